#!/usr/bin/env bash
# The module for Windows x64 under Wine: every export with what the Linux module gave, the LLVM declarations of
# docs/abi.md, the installed files and the example. Status 77, with the reason, where Wine does not run here.
#   windows.sh BUILD_DIR LINUX_BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 linux=$2 source=$3
. "$source/tests/ir/compile.sh"
skip() { echo "skipped: $1"; exit 77; }

target=x86_64-w64-mingw32
command -v $target-gcc >/dev/null || skip "$target-gcc is missing"
wine=$(command -v wine64 || command -v /usr/lib/wine/wine64 || command -v wine) || skip "wine64 is missing"
work=$(mktemp -d)
export WINEPREFIX=$work/prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" DISPLAY=
server=$(command -v wineserver64 || command -v /usr/lib/wine/wineserver64 || command -v wineserver || echo true)
trap '"$server" -k >/dev/null 2>&1 || true; rm -rf "$work"' EXIT
run() { timeout 300 "$wine" "$@"; }

cd "$work"
printf 'int main(void) { return 42; }' > here.c
$target-gcc here.c -o here.exe
status=0
run here.exe >log 2>&1 || status=$?
[ $status -eq 42 ] || { tail -n 3 log; skip "wine64 runs no program here (status $status)"; }

cmake --install "$build" --prefix "$work/installed" >/dev/null
cp installed/bin/__ocl_tarn_k1.dll .
link() { $target-gcc "$@" -Linstalled/lib -l__ocl_tarn_k1; }
clang_for() { clang --target=$target -std=c11 -Wall -Wextra -Werror -Iinstalled/include "$@"; }

# Every export.
"$linux/tests/write-cases" cases
$target-gcc -std=c11 -O1 -Wall -Wextra -Werror "$source"/tests/windows/{calls.c,trampoline.S} -o calls.exe
run calls.exe __ocl_tarn_k1.dll cases

# The declarations for LLVM, and the mistake that passes until the caller is compiled for AVX.
declarations "$source" "Windows x64" > calls.ll
cat "$source/tests/ir/values.ll" "$source/tests/ir/windows.ll" >> calls.ll
ir() {  # FILE FLAGS...
    clang_on_ir --target=$target "${@:2}" -c "$1" -o ir.o
    link ir.o -o ir.exe
    run ir.exe
}
has_avx=$(grep -qw avx /proc/cpuinfo && echo 1 || true)
for flags in -O0 -O2 ${has_avx:+-mavx}; do
    ir calls.ll "$flags" || { echo "$flags: calls by LLVM's declarations are wrong, bits $?"; exit 1; }
done
ir "$source/tests/ir/wrong_windows.ll" -O2 || { echo "a vector of 8 lanes no longer passes without AVX"; exit 1; }
[ -z "$has_avx" ] || ! ir "$source/tests/ir/wrong_windows.ll" -O2 -mavx ||
    { echo "a vector of 8 lanes passes with AVX"; exit 1; }
echo "LLVM's declarations called"

# The header in C and C++, with labels and, as Microsoft's compiler reads it, with decorated names; and the example.
echo '#include <ocl_tarn_k1_windows.h>' > header.c
clang_for -fsyntax-only header.c
clang --target=$target -std=c++17 -Wall -Wextra -Werror -Iinstalled/include -fsyntax-only -x c++ header.c
clang_for -O2 -c "$source/examples/call_windows.c" -o example.o
link example.o -o example.exe
run example.exe > said
grep -q '^1: exp 2.71828198, sin 0.841470957, cos 0.540302277, 1^x 1' said &&
    grep -q '^exp(1) = 2.71828182845904' said || { cat said; exit 1; }
clang --target=x86_64-pc-windows-msvc -U__clang__ -fms-compatibility-version=19.30 -ffreestanding -O2 -Wall -Werror \
    -Iinstalled/include -c "$source/tests/windows/decorated.c" -o decorated.o
link decorated.o -o decorated.exe
run decorated.exe || { echo "calls by decorated names are wrong, bits $?"; exit 1; }
echo "header, import library and example used"
