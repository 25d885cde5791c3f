#!/usr/bin/env bash
# The module of docs/jit.md, as the page has it: vectorised by each LLVM at hand that reads it, and run.
#   jit.sh MODULE SOURCE_DIR tarn-eval
set -euo pipefail
module=$1 source=$2 evaluate=$3
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
awk '/^```llvm/ { inside = 1; next } /^```/ { inside = 0 } inside' "$source/docs/jit.md" > "$work/loop.ll"
truth=$("$evaluate" expf1 20)
ran=
for version in "" -14 -15; do
    command -v "opt$version" >/dev/null && command -v "lli$version" >/dev/null || continue
    # Pointers with types are gone from LLVM 17 on.
    [ "$("opt$version" --version | sed -n 's/.*LLVM version \([0-9]*\).*/\1/p')" -le 16 ] || continue
    "opt$version" -O3 -S "$work/loop.ll" -o "$work/vectorised.ll"
    grep -q 'call <4 x float> @__ocl_tarn_k1_expf4(<4 x float>' "$work/vectorised.ll" || { echo "opt$version vectorises no call"; exit 1; }
    "lli$version" --dlopen="$module" "$work/vectorised.ll" > "$work/out"
    said=$(sed -n 's/^exp(20) = //p' "$work/out")
    [ -n "$said" ] && [[ $truth == *"$said"* ]] || { echo "lli$version: exp(20) is '$said', tarn-eval says $truth"; exit 1; }
    ran+=" opt$version"
done
[ -n "$ran" ] || { echo "skipped: opt and lli of LLVM 14 to 16 are missing"; exit 77; }
echo "vectorised and run:$ran"
