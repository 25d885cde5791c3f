/* Calls every export of the module with the inputs of a file and compares what it gives with what the file says, to the
 * last bit: results, second results and the bytes around them, arguments in memory, IEEE's exceptions, the registers
 * that a callee has to keep, the stack and the control words. Every register and slot that a call leaves free is filled
 * with what would spoil it; the stack lies at every multiple of 8, and the x87 unit computes with either precision that
 * Windows programs have. Then it looks for the way back to the caller from every instruction of a call, and from a
 * pointer that cannot be read or written.
 *   calls.exe MODULE CASES */
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#include "cases.h"

enum { rax, rcx, rdx, rbx, rsp, rbp, rsi, rdi, general_registers = 16 };
enum { slot_count = 8, widest_bytes = 256, room = 1024, frame_bytes = 1 << 14 };

typedef struct xmm {
    uint64_t half[2];
} xmm;

/* trampoline.S has the same layout. */
struct {
    xmm xmm_in[16];
    uint64_t gpr_in[general_registers];
    uint64_t slots[slot_count];
    void* target;
    uint64_t stack, trap, own_stack;
    xmm xmm_out[16];
    uint64_t gpr_out[general_registers];
    uint32_t mxcsr_out, x87_out[7], mxcsr_in;
    uint16_t x87_in, own_x87;
} call = {.mxcsr_in = 0x1F80};
_Static_assert(offsetof(__typeof__(call), gpr_in) == 256 && offsetof(__typeof__(call), target) == 448 &&
               offsetof(__typeof__(call), xmm_out) == 480 && offsetof(__typeof__(call), gpr_out) == 736 &&
                   offsetof(__typeof__(call), mxcsr_out) == 864 && offsetof(__typeof__(call), mxcsr_in) == 896,
               "the layout of trampoline.S");
void make_call(void);
extern char after_call[];

static const char* current = "";
static long calls_made, failures, other_nans, steps, faults, in_registers;
static char *module_begin, *module_end;

static void fail(const char* what, long at) {
    if (failures++ < 20) printf("%s: %s %ld\n", current, what, at);
}
static void refuse(const char* what, const char* of) {
    fprintf(stderr, "calls: %s %s\n", what, of);
    exit(2);
}

/* The registers that a callee keeps ----------------------------------------------------------- */

static const int kept[] = {rbx, rbp, rsi, rdi, 12, 13, 14, 15};

static void check_registers(const uint64_t* gpr, const xmm* vectors, uint64_t stack, long at) {
    for (unsigned i = 0; i < sizeof kept / sizeof *kept; i++)
        if (gpr[kept[i]] != call.gpr_in[kept[i]]) fail("general register not kept,", kept[i] + 100 * at);
    for (int i = 6; i < 16; i++)
        if (memcmp(&vectors[i], &call.xmm_in[i], sizeof(xmm))) fail("xmm register not kept,", i + 100 * at);
    if (stack != call.stack) fail("stack not where it was,", at);
}

/* The way back ---------------------------------------------------------------------------------- */

/* A function may end by a jump to another as by a return, which Wine does not know; so the rest of such an end, pops
 * and the jump, is done here. */
static void end_by_jump(CONTEXT* at) {
    CONTEXT after = *at;
    const unsigned char* instruction = (const unsigned char*)at->Rip;
    for (int high; high = *instruction == 0x41, (instruction[high] & 0xF8) == 0x58; instruction += 1 + high) {
        (&after.Rax)[(instruction[high] & 7) + 8 * high] = *(DWORD64*)after.Rsp;
        after.Rsp += 8;
    }
    if (*instruction != 0xE9) return;
    int32_t distance;
    memcpy(&distance, instruction + 1, sizeof distance);
    after.Rip = (DWORD64)(instruction + 5) + (DWORD64)(int64_t)distance;
    *at = after;
}

/* From a place in the module to the caller by the module's unwind data. */
static void unwind(const CONTEXT* from, CONTEXT* at) {
    *at = *from;
    end_by_jump(at);
    for (int frames = 0; (char*)at->Rip >= module_begin && (char*)at->Rip < module_end; frames++) {
        DWORD64 base;
        PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(at->Rip, &base, NULL);
        if (function) {
            void* data;
            DWORD64 frame;
            RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, at->Rip, function, at, &data, &frame, NULL);
        } else {
            at->Rip = *(DWORD64*)at->Rsp;
            at->Rsp += 8;
        }
        if (frames == 16) break;
    }
    const long where = (long)((char*)from->Rip - module_begin);
    if ((char*)at->Rip != after_call) fail("no way back from offset", where);
    else check_registers(&at->Rax, (const xmm*)&at->Xmm0, at->Rsp, where);
}

static int expecting_fault;

static LONG CALLBACK handler(EXCEPTION_POINTERS* e) {
    CONTEXT* here = e->ContextRecord;
    const int inside = (char*)here->Rip >= module_begin && (char*)here->Rip < module_end;
    CONTEXT caller;
    if (e->ExceptionRecord->ExceptionCode == EXCEPTION_SINGLE_STEP) {
        if (inside) steps++, unwind(here, &caller);
        if ((char*)here->Rip != after_call) here->EFlags |= 0x100;
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    if (e->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION && inside && expecting_fault) {
        expecting_fault = 0, faults++;
        unwind(here, &caller);
        if ((char*)caller.Rip != after_call) return EXCEPTION_CONTINUE_SEARCH;
        *here = caller;
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    if (inside) {
        printf("%s: exception %lx at offset %lx\n", current, e->ExceptionRecord->ExceptionCode,
               (unsigned long)((char*)here->Rip - module_begin));
        ExitProcess(1);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

/* One call ---------------------------------------------------------------------------------------- */

static _Alignas(64) unsigned char argument[most_arguments][widest_bytes], result[room], second[room];
static unsigned char* stack_top; /* above the frames of calls, in the thread's own stack */
static char* unreadable;

/* Where a second result and a result in memory are written: the first at any address. */
static unsigned char* second_at(long number) { return second + 256 + number % 16; }
static unsigned char* result_at(void) { return result + 256; }

static void place(const cases_vector* v, const unsigned char* blocks, void* pointer) {
    static const int integers[] = {rcx, rdx, 8, 9};
    if (v->place.where == in_vectors) memcpy(&call.xmm_in[v->place.first], blocks, 16 * v->blocks);
    else if (v->place.where == in_integer) call.gpr_in[integers[v->place.first]] = (uint64_t)pointer;
    else if (v->place.where == in_slot) call.slots[v->place.first - 1] = (uint64_t)pointer;
}

/* `wrong`: which pointer cannot be followed, counted from the arguments on; -1: all can. Says whether there is one. */
static int prepare(const cases_export* e, const unsigned char* blocks, long number, int wrong) {
    for (int i = 0; i < 16; i++) call.xmm_in[i] = (xmm){{0xFFF7A5A5FFA5A500 + i, 0x7FF4A5A57FA5A500 + i}};
    for (int i = 0; i < general_registers; i++) call.gpr_in[i] = 0xA5A5000000000000 + 0x10101 * (number + i);
    for (int i = 0; i < slot_count; i++) call.slots[i] = 0x5A5A000000000000 + i;
    memset(result, 0xC3, sizeof result), memset(second, 0x3C, sizeof second);
    call.stack = (uint64_t)stack_top + 8 * (number % 8);
    call.x87_in = number / 8 % 2 ? 0x037F : 0x027F; /* 64 and 53 bits */
    int pointers = 0;
    for (unsigned i = 0; i < e->arguments; i++) {
        memcpy(argument[i], blocks, 16 * e->argument[i].blocks);
        const int bad = e->argument[i].place.by_reference && pointers++ == wrong;
        place(&e->argument[i], blocks, bad ? (void*)unreadable : argument[i]);
        blocks += 16 * e->argument[i].blocks;
    }
    if (e->result.place.by_reference) {
        const int bad = pointers++ == wrong;
        place(&e->result, NULL, bad ? (void*)unreadable : result_at());
    }
    if (!e->pair && e->second.blocks) {
        const int bad = pointers++ == wrong;
        place(&e->second, NULL, bad ? (void*)unreadable : second_at(number));
    }
    return wrong < pointers;
}

static void check_lanes(const cases_vector* v, const unsigned char* got, const unsigned char* wanted, const char* what,
                        long number) {
    if (!memcmp(got, wanted, v->lanes)) return;
    for (unsigned i = 0; v->real && i < v->lanes; i += v->real) {
        uint64_t a = 0, b = 0;
        memcpy(&a, got + i, v->real), memcpy(&b, wanted + i, v->real);
        const uint64_t infinity = v->real == 8 ? 0x7FF0000000000000 : 0x7F800000;
        const uint64_t all = v->real == 8 ? ~0ull >> 1 : 0x7FFFFFFF;
        if (a != b && (a & all) > infinity && (b & all) > infinity) {
            other_nans++;
        } else if (a != b) {
            fail(what, number);
            return;
        }
    }
    if (!v->real) fail(what, number);
}

static void check_rest(const unsigned char* from, const unsigned char* begin, unsigned size, unsigned char fill,
                       const char* what, long number) {
    for (int i = 0; i < room; i++)
        if ((from + i < begin || from + i >= begin + size) && from[i] != fill) {
            fail(what, number);
            return;
        }
}

static void check(const cases_export* e, const unsigned char* blocks, long number) {
    const unsigned char* wanted = blocks;
    for (unsigned i = 0; i < e->arguments; i++) {
        if (memcmp(argument[i], wanted, 16 * e->argument[i].blocks)) fail("argument overwritten in call", number);
        wanted += 16 * e->argument[i].blocks;
    }
    const unsigned char* got = (const unsigned char*)call.xmm_out;
    const unsigned result_bytes = 16 * e->result.blocks * (e->pair ? 2 : 1);
    if (e->result.place.by_reference) {
        got = result_at();
        check_rest(result, got, result_bytes, 0xC3, "bytes around the result written in call", number);
        if (call.gpr_out[rax] != (uint64_t)got) fail("rax is not the result's address in call", number);
    }
    check_lanes(&e->result, got, wanted, "another result in call", number);
    wanted += 16 * e->result.blocks;
    if (e->pair) {
        check_lanes(&e->second, got + 16 * e->result.blocks, wanted, "another second result in call", number);
    } else if (e->second.blocks) {
        check_lanes(&e->second, second_at(number), wanted, "another second result in call", number);
        check_rest(second, second_at(number), e->second.stored, 0x3C, "bytes around the second result written in call",
                   number);
    }
    uint32_t raised;
    memcpy(&raised, wanted + 16 * e->second.blocks, sizeof raised);
    if (e->raises_alike && ((call.mxcsr_out | call.x87_out[1]) & 0x3D) != raised)
        fail("other exceptions raised in call", number);
    if (memcmp((void*)call.stack, call.slots, sizeof call.slots)) fail("slots overwritten in call", number);
    check_registers(call.gpr_out, call.xmm_out, call.gpr_out[rsp], number);
    if ((call.mxcsr_out & ~0x3Fu) != 0x1F80) fail("MXCSR changed in call", number);
    if ((call.x87_out[0] & 0xFFFF) != call.x87_in) fail("x87 control word changed in call", number);
    if ((call.x87_out[2] & 0xFFFF) != 0xFFFF) fail("x87 stack not empty after call", number);
}

/* Those that lack a register, that send every lane to a scalar routine or read a control word, and that have special
 * lanes among any. */
static const char* const in_memory[] = {"powrf", "tanpif", "tgamma", "lgamma", "fmaf", "fma1", "fma2",
                                        "fmod", "remainder", "remquo", "ldexp", "ilogb"};

/* An ordinary call writes to its frame the registers that it has to keep, and nothing else where each of its vectors
 * takes one register. That is seen in what it leaves below the stack. */
static void check_frame(const cases_export* e, const unsigned char* blocks, long number) {
    prepare(e, blocks, number, -1);
    uint64_t* const bottom = (uint64_t*)(call.stack - frame_bytes);
    const uint64_t untouched = 0x0123456789ABCDEF;
    for (int i = 0; i < frame_bytes / 8 - 1; i++) bottom[i] = untouched;
    make_call();
    int others = 0;
    for (int i = 0; i < frame_bytes / 8 - 1; i++) {
        int known = bottom[i] == untouched;
        for (unsigned k = 0; k < sizeof kept / sizeof *kept; k++) known |= bottom[i] == call.gpr_in[kept[k]];
        for (int k = 6; k < 16; k++)
            known |= bottom[i] == call.xmm_in[k].half[0] || bottom[i] == call.xmm_in[k].half[1];
        others += !known;
    }
    in_registers += !others;
    int single = e->result.blocks == 1;
    for (unsigned i = 0; i < e->arguments; i++) single &= e->argument[i].blocks == 1;
    for (unsigned i = 0; i < sizeof in_memory / sizeof *in_memory; i++)
        single &= strncmp(e->name + strlen("__ocl_tarn_k1_"), in_memory[i], strlen(in_memory[i])) != 0;
    if (single && others) fail("words of its own in the frame:", others);
}

static void try_export(FILE* file) {
    cases_export e;
    if (fread(&e, sizeof e, 1, file) != 1) refuse("the file ends early:", "cases");
    current = e.name;
    call.target = (void*)GetProcAddress((HMODULE)module_begin, e.name);
    unsigned blocks = e.result.blocks + e.second.blocks + 1;
    for (unsigned i = 0; i < e.arguments; i++) blocks += e.argument[i].blocks;
    unsigned char* all = malloc(16 * blocks * e.calls);
    if (fread(all, 16 * blocks, e.calls, file) != e.calls) refuse("the file ends early:", "cases");
    if (!call.target) {
        fail("not exported,", 0);
        free(all);
        return;
    }
    for (unsigned i = 0; i < e.calls; i++) {
        const unsigned char* at = all + 16 * blocks * i;
        prepare(&e, at, i, -1);
        make_call();
        calls_made++;
        check(&e, at, i);
    }
    check_frame(&e, all + 16 * blocks * e.ordinary, e.ordinary);
    const unsigned stepped[] = {e.ordinary, 0};
    for (unsigned i = 0; i < sizeof stepped / sizeof *stepped; i++) {
        const unsigned char* at = all + 16 * blocks * stepped[i];
        prepare(&e, at, stepped[i], -1);
        call.trap = 1;
        make_call();
        call.trap = 0;
        check(&e, at, stepped[i]);
    }
    for (int wrong = 0; prepare(&e, all, wrong, wrong); wrong++) {
        expecting_fault = 1;
        make_call();
        if (expecting_fault) fail("followed no pointer", wrong);
        expecting_fault = 0;
        check_registers(call.gpr_out, call.xmm_out, call.gpr_out[rsp], wrong);
    }
    free(all);
}

/* The module and the file ------------------------------------------------------------------------------- */

/* Loaded where it does not ask to lie: that place is taken first. */
static HMODULE load_elsewhere(const char* path) {
    IMAGE_DOS_HEADER dos;
    IMAGE_NT_HEADERS64 headers;
    FILE* file = fopen(path, "rb");
    if (!file || fread(&dos, sizeof dos, 1, file) != 1 || fseek(file, dos.e_lfanew, SEEK_SET) ||
        fread(&headers, sizeof headers, 1, file) != 1)
        refuse("cannot read", path);
    fclose(file);
    VirtualAlloc((void*)headers.OptionalHeader.ImageBase, 1 << 16, MEM_RESERVE, PAGE_NOACCESS);
    const HMODULE loaded = LoadLibraryA(path);
    if (!loaded) refuse("cannot load", path);
    if ((uint64_t)loaded == headers.OptionalHeader.ImageBase) refuse("the place is not taken of", path);
    return loaded;
}

static void check_image(uint32_t exports) {
    current = "the module";
    const IMAGE_NT_HEADERS64* headers = (void*)(module_begin + ((const IMAGE_DOS_HEADER*)module_begin)->e_lfanew);
    module_end = module_begin + headers->OptionalHeader.SizeOfImage;
    const IMAGE_DATA_DIRECTORY* directory = headers->OptionalHeader.DataDirectory;
    const IMAGE_EXPORT_DIRECTORY* names = (void*)(module_begin + directory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
    if (names->NumberOfNames != exports || names->NumberOfFunctions != exports)
        fail("names exported:", names->NumberOfNames);
    const IMAGE_DATA_DIRECTORY imports = directory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const IMAGE_IMPORT_DESCRIPTOR* first = (void*)(module_begin + imports.VirtualAddress);
    if (imports.Size && (first->Name || first->FirstThunk)) fail("imports something,", first->Name);
    if (directory[IMAGE_DIRECTORY_ENTRY_TLS].Size) fail("has thread-local storage,", 0);
    if (!directory[IMAGE_DIRECTORY_ENTRY_EXCEPTION].Size) fail("has no unwind data,", 0);
}

int main(int argc, char** argv) {
    setvbuf(stdout, NULL, _IONBF, 0);
    if (argc != 3) refuse("usage: calls.exe MODULE", "CASES");
    module_begin = (char*)load_elsewhere(argv[1]);
    FILE* file = fopen(argv[2], "rb");
    cases_header header;
    if (!file || fread(&header, sizeof header, 1, file) != 1 || header.magic != cases_magic)
        refuse("cannot read", argv[2]);
    check_image(header.exports);
    _Alignas(64) unsigned char stack[1 << 18];
    stack_top = stack + sizeof stack - 256;
    unreadable = VirtualAlloc(NULL, 1 << 16, MEM_RESERVE, PAGE_NOACCESS);
    AddVectoredExceptionHandler(1, handler);
    for (uint32_t i = 0; i < header.exports; i++) try_export(file);
    current = "the module";
    if (fgetc(file) != EOF) fail("the file goes on after export", header.exports);
    if (!FreeLibrary((HMODULE)module_begin)) fail("does not go,", 0);
    if (calls_made == 0 || steps == 0 || faults == 0) fail("nothing was called,", calls_made);
    printf("%u exports, %ld calls, the way back from %ld instructions and %ld wrong pointers: %ld failures",
           header.exports, calls_made, steps, faults, failures);
    printf(", %ld ordinary calls in registers alone", in_registers);
    if (other_nans) printf(", %ld NaNs of other sign or payload", other_nans);
    printf("\n");
    return failures != 0;
}
