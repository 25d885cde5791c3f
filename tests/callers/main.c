/* Every function of the module called from C, as compilers and their vector settings call it: the callee keeps the
 * registers it must, copes with every 16-byte alignment of the stack, writes a second result at any address and no
 * further than its lanes, and 8 threads get what one gets. A lane has to agree with the function of width 1, to
 * what a mistake in passing it would spoil: bits are other tests' subject.
 *
 * calls.inc comes from the table of families: tarn-exports calls. */
#define _GNU_SOURCE
#include <alloca.h>
#include <math.h>
#include <ocl_tarn_k1.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <xmmintrin.h>

enum { widest = 16, vector_bytes = 8 * widest, guard_bytes = 16, rounds = 4, depths = 4, threads = 8 };

typedef void address(void);

typedef struct signature {
    void (*call)(address* f, unsigned char (*args)[vector_bytes], unsigned char* result, void* second);
    int width;
    const char* args; /* f, d, i, l: float, double, and integers of their sizes */
    const char* result;
    const char* second;
    int pair;
} signature;

/* The call under watch ---------------------------------------------------------------------------
 * guarded takes the place of the function: it fills the registers that a callee has to keep, has the function
 * return to itself, looks at them, and returns to the caller. Arguments on the stack stay where they are. */

__thread address* guarded_function;
__thread unsigned long guarded_return, guarded_saved[6], guarded_stack, guarded_broken;

address guarded;
static address* volatile entrance = guarded; /* its type is another at each call, which compilers are not to see */
__asm__(
    ".text\n.globl guarded\n.type guarded, @function\nguarded:\n"
    "  popq %r11\n"
    "  movq %r11, %fs:guarded_return@tpoff\n"
    "  movq %rsp, %fs:guarded_stack@tpoff\n"
    "  movq %rbx, %fs:guarded_saved@tpoff\n"
    "  movq %rbp, %fs:guarded_saved@tpoff+8\n"
    "  movq %r12, %fs:guarded_saved@tpoff+16\n"
    "  movq %r13, %fs:guarded_saved@tpoff+24\n"
    "  movq %r14, %fs:guarded_saved@tpoff+32\n"
    "  movq %r15, %fs:guarded_saved@tpoff+40\n"
    "  movq $-101, %rbx\n  movq $-202, %rbp\n  movq $-303, %r12\n"
    "  movq $-404, %r13\n  movq $-505, %r14\n  movq $-606, %r15\n"
    "  leaq 1f(%rip), %r11\n"
    "  pushq %r11\n"
    "  jmpq *%fs:guarded_function@tpoff\n"
    "1: addq $101, %rbx\n  addq $202, %rbp\n  addq $303, %r12\n"
    "  addq $404, %r13\n  addq $505, %r14\n  addq $606, %r15\n"
    "  movq %rsp, %r11\n"
    "  subq %fs:guarded_stack@tpoff, %r11\n"
    "  orq %rbx, %r11\n  orq %rbp, %r11\n  orq %r12, %r11\n  orq %r13, %r11\n  orq %r14, %r11\n  orq %r15, %r11\n"
    "  orq %r11, %fs:guarded_broken@tpoff\n"
    "  movq %fs:guarded_stack@tpoff, %rsp\n"
    "  movq %fs:guarded_saved@tpoff, %rbx\n"
    "  movq %fs:guarded_saved@tpoff+8, %rbp\n"
    "  movq %fs:guarded_saved@tpoff+16, %r12\n"
    "  movq %fs:guarded_saved@tpoff+24, %r13\n"
    "  movq %fs:guarded_saved@tpoff+32, %r14\n"
    "  movq %fs:guarded_saved@tpoff+40, %r15\n"
    "  jmpq *%fs:guarded_return@tpoff\n"
    ".size guarded, .-guarded\n");

/* The signatures and their functions --------------------------------------------------------------- */

#define LOAD(type, name, i) \
    type name;              \
    memcpy(&name, args[i], sizeof name)
#define CALLER(id, parameters, loads, actual)                                                                         \
    static void call_##id(address* f, unsigned char (*args)[vector_bytes], unsigned char* result, void* second) {     \
        (void)second;                                                                                                 \
        loads;                                                                                                        \
        guarded_function = f;                                                                                         \
        const type_of_##id r = ((function_##id*)entrance)actual;                                                      \
        memcpy(result, &r, sizeof r);                                                                                 \
    }
#define SIGNATURE_(id, w, R, parameters, loads, actual, in, out, out2, is_pair)                                       \
    typedef R type_of_##id;                                                                                           \
    typedef R function_##id parameters;                                                                               \
    CALLER(id, parameters, loads, actual)                                                                             \
    static const signature id = {call_##id, w, in, out, out2, is_pair};
#define SIGNATURE_1(id, w, R, A, in, out, out2, is_pair) \
    SIGNATURE_(id, w, R, (A), LOAD(A, x, 0), (x), in, out, out2, is_pair)
#define SIGNATURE_2(id, w, R, A, B, in, out, out2, is_pair) \
    SIGNATURE_(id, w, R, (A, B), LOAD(A, x, 0); LOAD(B, y, 1), (x, y), in, out, out2, is_pair)
#define SIGNATURE_3(id, w, R, A, B, C, in, out, out2, is_pair) \
    SIGNATURE_(id, w, R, (A, B, C), LOAD(A, x, 0); LOAD(B, y, 1); LOAD(C, z, 2), (x, y, z), in, out, out2, is_pair)
#define SIGNATURE_1_SECOND(id, w, R, A, S, in, out, out2, is_pair) \
    SIGNATURE_(id, w, R, (A, S*), LOAD(A, x, 0), (x, (S*)second), in, out, out2, is_pair)
#define SIGNATURE_2_SECOND(id, w, R, A, B, S, in, out, out2, is_pair) \
    SIGNATURE_(id, w, R, (A, B, S*), LOAD(A, x, 0); LOAD(B, y, 1), (x, y, (S*)second), in, out, out2, is_pair)
#define FUNCTION(name, id, ...)
#include "calls.inc"
#undef FUNCTION
#undef SIGNATURE_1
#undef SIGNATURE_2
#undef SIGNATURE_3
#undef SIGNATURE_1_SECOND
#undef SIGNATURE_2_SECOND
#define SIGNATURE_1(...)
#define SIGNATURE_2(...)
#define SIGNATURE_3(...)
#define SIGNATURE_1_SECOND(...)
#define SIGNATURE_2_SECOND(...)

/* The header's declaration has to have the signature, or this does not compile. */
#define FUNCTION(name, id, ...) {#name, (address*)(1 ? name : (function_##id*)0), &id, {__VA_ARGS__}},
static const struct {
    const char* name;
    address* f;
    const signature* of;
    double usual[6];
} functions[] = {
#include "calls.inc"
};
enum { function_count = sizeof functions / sizeof *functions };

/* Lanes ------------------------------------------------------------------------------------------- */

static int size_of(char lane) { return lane == 'd' || lane == 'l' ? 8 : 4; }
static int stored(int width) { return width == 3 ? 4 : width; }

static double value(char lane, const unsigned char* at) {
    float f;
    double d;
    int32_t i;
    int64_t l;
    switch (lane) {
        case 'f': memcpy(&f, at, 4); return f;
        case 'd': memcpy(&d, at, 8); return d;
        case 'i': memcpy(&i, at, 4); return i;
        default: memcpy(&l, at, 8); return (double)l;
    }
}

static void put(char lane, unsigned char* at, double v) {
    const float f = (float)v;
    const int32_t i = isfinite(v) ? (int32_t)v : 7;
    const int64_t l = i;
    memcpy(at, lane == 'f' ? (const void*)&f : lane == 'd' ? (const void*)&v : lane == 'i' ? (const void*)&i : (const void*)&l,
           (size_t)size_of(lane));
}

/* Lane i of argument a: spread over the usual interval; in later rounds every third lane takes another way. */
static double lane_value(const double* usual, int a, int i, int round) {
    const double special[] = {0, -0.0, INFINITY, -INFINITY, NAN, 1, -1};
    if (round > 0 && (i + a + round) % 3 == 0) return special[(i + round) % 7];
    const double part = ((i * 7 + a * 5 + round * 3) % 16 + 0.37) / 16;
    return usual[2 * a] + (usual[2 * a + 1] - usual[2 * a]) * part;
}

static int agree(char lane, const unsigned char* x, const unsigned char* y) {
    const double v = value(lane, x), w = value(lane, y);
    if (lane == 'i' || lane == 'l') return memcmp(x, y, (size_t)size_of(lane)) == 0;
    return v == w || (isnan(v) && isnan(w)) || fabs(v - w) <= 1e-2 * fmax(fabs(v), fabs(w));
}

/* One function -------------------------------------------------------------------------------------- */

typedef struct {
    unsigned char result[2 * vector_bytes], second[vector_bytes];
} outcome;

static _Atomic int failures;

static void fail(int f, const char* what) {
    if (failures++ < 20) fprintf(stderr, "%s %s\n", functions[f].name, what);
}

/* At one of the four places that a stack aligned to 16 bytes may have in 64. */
__attribute__((noinline)) static void call_at_depth(int f, int depth, unsigned char (*args)[vector_bytes], outcome* out) {
    volatile char* const deeper = alloca((size_t)(16 * depth + 16));
    deeper[0] = 0;
    const signature* const s = functions[f].of;
    const int through_pointer = *s->second && !s->pair;
    const size_t bytes = through_pointer ? (size_t)(size_of(*s->second) * stored(s->width)) : 0;
    /* At an odd address, between guards. */
    unsigned char room[guard_bytes + vector_bytes + guard_bytes + 1];
    memset(room, 0xA5, sizeof room);
    unsigned char* const second = room + guard_bytes + ((size_t)room & 1 ? 0 : 1);

    const unsigned control = _mm_getcsr() & ~(unsigned)_MM_EXCEPT_MASK;
    s->call(functions[f].f, args, out->result, second);
    unsigned short x87;
    __asm__ volatile("fnstsw %0" : "=a"(x87));
    if ((_mm_getcsr() & ~(unsigned)_MM_EXCEPT_MASK) != control) fail(f, "changes the control register");
    if (x87 >> 11 & 7) fail(f, "leaves values on the x87 stack");
    if (guarded_broken) fail(f, "does not keep the caller's registers");
    guarded_broken = 0;
    for (unsigned char* p = room; p < room + sizeof room; p++)
        if ((p < second || p >= second + bytes) && *p != 0xA5) {
            fail(f, "writes beyond its second result");
            break;
        }
    memcpy(out->second, second, bytes);
}

/* As the lanes say, whatever the width: the first lanes of all widths are the same. */
static void call(int f, int round, int depth, outcome* out) {
    const signature* const s = functions[f].of;
    unsigned char args[3][vector_bytes];
    memset(args, 0xFF, sizeof args); /* lane 3 of width 3 too */
    memset(out, 0, sizeof *out);
    for (int a = 0; s->args[a]; a++)
        for (int i = 0; i < s->width; i++)
            put(s->args[a], args[a] + i * size_of(s->args[a]), lane_value(functions[f].usual, a, i, round));
    call_at_depth(f, depth, args, out);
    if (s->pair) memcpy(out->second, out->result + size_of(*s->result) * stored(s->width), (size_t)(size_of(*s->second) * stored(s->width)));
}

/* Each lane of the function against the same lane alone through width 1. */
static void compare_with_width_1(int f, int one, int round, const outcome* out) {
    const signature* const s = functions[f].of;
    for (int i = 0; i < s->width; i++) {
        outcome alone;
        unsigned char args[3][vector_bytes];
        for (int a = 0; s->args[a]; a++) put(s->args[a], args[a], lane_value(functions[f].usual, a, i, round));
        memset(&alone, 0, sizeof alone);
        call_at_depth(one, 0, args, &alone);
        if (s->pair) memcpy(alone.second, alone.result + size_of(*s->result), (size_t)size_of(*s->second));
        if (!agree(*s->result, out->result + i * size_of(*s->result), alone.result)) fail(f, "has another value in a lane");
        if (*s->second && !agree(*s->second, out->second + i * size_of(*s->second), alone.second))
            fail(f, "has another second value in a lane");
    }
}

static outcome expected[function_count][rounds];

/* What a caller may look at: lane 3 of width 3 is undefined. */
static int same_lanes(int f, const outcome* x, const outcome* y) {
    const signature* const s = functions[f].of;
    const size_t bytes = (size_t)(size_of(*s->result) * s->width);
    return memcmp(x->result, y->result, bytes) == 0 &&
           (!*s->second || memcmp(x->second, y->second, (size_t)(size_of(*s->second) * s->width)) == 0);
}

static void* every_function(void* unused) {
    for (int f = 0; f < function_count; f++)
        for (int round = 0; round < rounds; round++)
            for (int depth = 0; depth < depths; depth++) {
                outcome out;
                call(f, round, depth, &out);
                if (!same_lanes(f, &out, &expected[f][round])) fail(f, "gives other bits at another depth or in another thread");
            }
    return unused;
}

int main(void) {
    for (int f = 0, one = 0; f < function_count; f++) {
        if (functions[f].of->width == 1) one = f;
        for (int round = 0; round < rounds; round++) {
            call(f, round, 0, &expected[f][round]);
            compare_with_width_1(f, one, round, &expected[f][round]);
        }
    }
    every_function(NULL);
    pthread_t started[threads];
    for (int t = 0; t < threads; t++)
        if (pthread_create(&started[t], NULL, every_function, NULL) != 0) return fputs("no thread\n", stderr), 2;
    for (int t = 0; t < threads; t++) pthread_join(started[t], NULL);
    printf("%d functions, %d failures\n", (int)function_count, (int)failures);
    return failures != 0;
}
