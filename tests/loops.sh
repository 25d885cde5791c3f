#!/usr/bin/env bash
# A plain C loop becomes calls of libtarn: the object refers to the vector function, the program takes it from libtarn
# and not from the C library, its bits are those of the module's kernel with as many lanes, and it is no slower than
# with the C library's vector functions.   loops.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
fail() { echo "$*"; exit 1; }
has() { grep -qw "$1" /proc/cpuinfo; }

# The same output by the module's own calls.
cat > "$work/kernel.c" <<'C'
#include <ocl_tarn_k1.h>
#include <stdio.h>
#define PASTE(a, b, c) a##b##c
#define NAME(f, w) PASTE(__ocl_tarn_k1_, f, w)
#define VECTOR(w) PASTE(tarn_float, w, )
typedef union { VECTOR(LANES) v; float x[LANES]; uint32_t bits[LANES]; } Lanes;
int main(void) {
    for (int i = 0; i < 1024; i += LANES) {
        Lanes x, y;
        for (int k = 0; k < LANES; k++) x.x[k] = 0.004f * (float)(i + k + 1);
        y.v = NAME(FUNCTION, LANES)(x.v);
        for (int k = 0; k < LANES; k++) printf("%.9g %08x\n", (double)x.x[k], (unsigned)y.bits[k]);
    }
}
C
expect() {  # FUNCTION LANES
    cc -DFUNCTION="$1" -DLANES="$2" -I"$source/include" "$work/kernel.c" -o "$work/kernel" "$build/__ocl_tarn_k1.so" "-Wl,-rpath,$build"
    "$work/kernel" > "$work/expected"
}
undefined() { nm -u "$work/loop.o" | grep -qw "$1"; }

check() {  # NAME FUNCTION LANES COMPILER...
    local name=$1 function=$2 lanes=$3; shift 3
    "$@" -O3 -fno-math-errno -Wall -DFUNCTION="$function" -I"$source/include" -c "$source/examples/loop.c" -o "$work/loop.o"
    undefined "$name" || fail "$*: the loop over $function does not call $name"
    "$1" "$work/loop.o" -o "$work/loop" -L"$build" -ltarn -lm "-Wl,-rpath,$build"
    case " $* " in
        *" -mavx2 "*) has avx2 || return 0 ;;
        *" -mavx "*) has avx || return 0 ;;
    esac
    expect "$function" "$lanes"
    LD_BIND_NOW=1 LD_DEBUG=bindings LD_DEBUG_OUTPUT="$work/bindings" "$work/loop" > "$work/output" 2> "$work/time"
    grep -q "loop \[0\] to .*libtarn.so.1 .*\`$name'" "$work"/bindings.* || fail "$*: $name is not libtarn's"
    rm "$work"/bindings.*
    cmp -s "$work/output" "$work/expected" || { diff "$work/output" "$work/expected" | head -n 4 || true; fail "$*: $function has not the bits of width $lanes"; }
    checked=$((checked + 1))
}

checked=0
if gcc --version 2>/dev/null | grep -q 'Free Software'; then
    for function in expf tgammaf lgammaf sinpif rsqrtf exp2f sinf; do
        check "_ZGVbN4v_$function" $function 4 gcc
        check "_ZGVcN8v_$function" $function 8 gcc -mavx
        check "_ZGVdN8v_$function" $function 8 gcc -mavx2
    done
    check _ZGVdN8v_expf expf 8 gcc -mavx2 -mprefer-vector-width=256
    # With a pointer for each lane; of its own sincosf gcc makes a sine and a cosine.
    cat > "$work/pairs.c" <<'C'
#include <tarn_simd.h>
void pairs(const float* restrict x, float* restrict s, float* restrict c) {
#pragma omp simd
    for (int i = 0; i < 1000; i++) sincosf(x[i], &s[i], &c[i]);
}
C
    gcc -O3 -fno-math-errno -fopenmp-simd -fno-builtin-sincosf -I"$source/include" -c "$work/pairs.c" -o "$work/loop.o"
    undefined _ZGVbN4vvv_sincosf || fail "gcc: the loop over sincosf does not call _ZGVbN4vvv_sincosf"
fi
if clang --version >/dev/null 2>&1; then
    for function in expf sinf logf; do
        check "_ZGVbN4v_$function" $function 4 clang -fveclib=libmvec
        check "_ZGVdN8v_$function" $function 8 clang -fveclib=libmvec -mavx2
    done
fi
[ $checked -gt 0 ] || { echo "skipped: neither gcc nor clang is here"; exit 77; }

# One object with either library: in turns, and the least of each.
cc -O3 -fno-math-errno -I"$source/include" -c "$source/examples/loop.c" -o "$work/loop.o"
if undefined _ZGVbN4v_expf && cc "$work/loop.o" -o "$work/of_c" -lm 2>/dev/null; then
    cc "$work/loop.o" -o "$work/loop" -L"$build" -ltarn -lm "-Wl,-rpath,$build"
    for _ in 1 2 3 4 5 6 7 8; do
        "$work/loop" 2>> "$work/ours" >/dev/null
        "$work/of_c" 2>> "$work/theirs" >/dev/null
    done
    ours=$(sort -g "$work/ours" | head -n 1) theirs=$(sort -g "$work/theirs" | head -n 1)
    echo "expf in a loop, vectors of 128 bits: $ours ns an element, with the C library's $theirs"
    # A busy machine gets a tenth.
    awk -v ours="$ours" -v theirs="$theirs" 'BEGIN { exit !(ours < 1.1 * theirs) }' || fail "slower than with the C library's functions"
fi
echo "$checked loops call libtarn"
