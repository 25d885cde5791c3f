#!/usr/bin/env bash
# The LLVM declarations of docs/abi.md, compiled, linked to the module and called; and the mistake that it warns of.
#   ir.sh MODULE SOURCE_DIR
set -euo pipefail
module=${TARN_MODULE:-$1} source=$2
. "$source/tests/ir/compile.sh"
command -v clang >/dev/null || { echo "skipped: clang is missing"; exit 77; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
declarations "$source" "System V" > "$work/calls.ll"
cat "$source/tests/ir/values.ll" "$source/tests/ir/system_v.ll" >> "$work/calls.ll"
link=("$module" "-Wl,-rpath,${module%/*}")
for flags in -O0 -O2 "-O2 -mavx2"; do
    [[ $flags != *avx2* ]] || grep -qw avx2 /proc/cpuinfo || continue
    # shellcheck disable=SC2086
    clang_on_ir $flags "$work/calls.ll" "${link[@]}" -o "$work/calls"
    "$work/calls" || { echo "$flags: calls are wrong, bits $?"; exit 1; }
done
clang_on_ir -O2 "$source/tests/ir/wrong.ll" "${link[@]}" -o "$work/wrong"
status=0
{ "$work/wrong"; } 2>/dev/null || status=$?
[ $status -eq 139 ] || { echo "a vector of 8 lanes ends with status $status, not by a fault"; exit 1; }
echo "declarations called; a vector of 8 lanes in the place of a struct faults"
