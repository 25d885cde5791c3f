#!/usr/bin/env bash
# The header for OpenCL C hands everything to the exports as the C header does, whatever processor the kernel is compiled
# for and in every version of the language: compiled with clang alone, no runtime is needed.
#   opencl_header.sh SOURCE_DIR tarn-exports
set -euo pipefail
source=$1 exports=$2
clang=$(command -v clang || command -v clang-14 || command -v clang-15) || { echo "skipped: clang is missing"; exit 77; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT

# Every jump is kept, and every export has its address taken in C.
names=$("$exports" names)
sed 's/__attribute__((naked/__attribute__((used, naked/' "$source/include/ocl_tarn_k1.cl.h" > "$work/all.cl"
{
    echo '#include <ocl_tarn_k1.h>'
    echo "void all(void** to) {"
    i=0
    for name in $names; do echo "to[$((i++))] = (void*)$name;"; done
    echo "}"
} > "$work/all.c"

# A function's result and parameters in LLVM's IR, without what its types are called and what is promised of them.
signatures() {  # PREFIX
    sed -nE "s/^(define internal|declare) (.*) @$1(__ocl_tarn_k1_[a-z0-9_]+)\((.*)\).*/\3: \2 (\4)/p" |
        sed -E 's/%("[^"]*"|[A-Za-z_][A-Za-z0-9_.]*)/%struct/g; s/ %[0-9]+//g
                s/\b(noundef|nocapture|nonnull|signext|zeroext) ?//g
                s/<[0-9]+ x (float|double|i32|i64)>\*|(float|double|i32|i64)\*|%struct\*/ptr/g
                s/ +/ /g; s/ ([,)])/\1/g' | sort
}
common=(-S -emit-llvm -Xclang -disable-llvm-passes -O1 -target x86_64-linux-gnu -Wno-psabi -o -)
"$clang" -x c "${common[@]}" -I "$source/include" "$work/all.c" | signatures "" > "$work/c"
[ "$(wc -l < "$work/c")" -eq "$(wc -w <<< "$names")" ] || { echo "the C header declares $(wc -l < "$work/c") functions"; exit 1; }
for target in "x86-64 CL1.2" "haswell CL2.0" "skylake-avx512 CL3.0"; do
    read -r cpu language <<< "$target"
    "$clang" -x cl "-cl-std=$language" -march="$cpu" -Xclang -finclude-default-header "${common[@]}" "$work/all.cl" |
        signatures tarn_to > "$work/cl"
    diff "$work/c" "$work/cl" > "$work/diff" || { echo "$cpu, $language: not as in C:"; head -20 "$work/diff"; exit 1; }
done
echo "$(wc -l < "$work/c") functions are called as in C"
