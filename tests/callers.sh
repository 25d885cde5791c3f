#!/usr/bin/env bash
# The C callers' test from gcc and clang, with and without AVX2.   callers.sh MODULE TARN-EXPORTS SOURCE-DIRECTORY
# The environment's TARN_MODULE is called instead of MODULE.
set -euo pipefail
module=${TARN_MODULE:-$1} exports=$2 source=$3
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
"$exports" calls > "$work/calls.inc"
compilers=0
for compiler in gcc clang; do
    command -v "$compiler" >/dev/null || { echo "$compiler: not here, left out"; continue; }
    compilers=$((compilers + 1))
    # Programs that look at flags can have every call stay where it is.
    if "$compiler" -DTARN_FENV_ACCESS -E "$source/include/ocl_tarn_k1.h" | grep -q 'const))'; then
        echo "$compiler: const in spite of TARN_FENV_ACCESS"
        exit 1
    fi
    for flags in "-O2" "-O2 -mavx2" "-O0"; do
        # shellcheck disable=SC2086
        "$compiler" -std=c11 $flags -Wall -Wextra -Werror -I"$work" -I"$source/include" "$source/tests/callers/main.c" \
            -o "$work/callers" "$module" -Wl,-rpath,"${module%/*}" -lpthread -lm
        case $flags in
            *avx2*) grep -qw avx2 /proc/cpuinfo || { echo "$compiler $flags: compiled, no processor for it here"; continue; } ;;
        esac
        printf '%s: ' "$compiler $flags"
        "$work/callers"
    done
done
[ "$compilers" -gt 0 ] || { echo "no compiler found"; exit 1; }
