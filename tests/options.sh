#!/usr/bin/env bash
# The OpenCL example and the commands of the README's section on OpenCL: results, the picture, what is said of bad input.
#   options.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 source=$2 program=$1/examples/options
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
export POCL_CACHE_DIR=$work
status=0
commands=$(awk '/^## / { inside = $0 == "## OpenCL" } inside' "$source/README.md" | awk '/^```/ { block = block ? "" : $0; next } block == "```sh"')
[ "$(wc -l <<< "$commands")" -ge 2 ] || { echo "README.md has no commands for OpenCL"; exit 1; }
# Of this build, the picture elsewhere; programs that this build has not are left out.
[ -x "$build/tools/tarn-bench-opencl" ] || commands=$(grep -v tarn-bench-opencl <<< "$commands")
commands=${commands//build\/release\/gamma/"$work/gamma"}
(cd "$source" && bash -euc "${commands//build\/release/"$build"}") > "$work/out" 2> "$work/err" || status=$?
if grep -q 'no OpenCL runtime' "$work/err"; then
    echo "skipped: $(cat "$work/err")"
    exit 77
fi
[ $status -eq 0 ] || { cat "$work/out" "$work/err"; exit 1; }
cat "$work/out"
grep -q 'all 6000000 results the same bit for bit' "$work/out"
# The price of the contract shown, by an independent evaluation.
python3 - "$work/out" <<'PY'
import math, re, sys
text = open(sys.argv[1]).read()
k, t, v, price = map(float, re.search(r"strike (\S+), (\S+) years, volatility (\S+): price (\S+)", text).groups())
d = (math.log(100 / k) + (0.03 + v * v / 2) * t) / (v * math.sqrt(t))
below = lambda x: math.erfc(-x / math.sqrt(2)) / 2
expected = 100 * below(d) - k * math.exp(-0.03 * t) * below(d - v * math.sqrt(t))
assert abs(price - expected) < 0.01 * expected, (price, expected)
PY
file=$(od -An -tx1 -N8 "$work/gamma.png" | tr -d ' ')
[ "$file" = 89504e470d0a1a0a ] || { echo "no picture"; exit 1; }
for bad in "" "/none.cl $source/include"; do
    status=0
    # shellcheck disable=SC2086
    said=$("$program" $bad 2>&1) || status=$?
    [ $status -eq 2 ] && [ "$(wc -l <<< "$said")" -eq 1 ] || { echo "bad input '$bad': $status, $said"; exit 1; }
done
[ ! -x "$build/tools/tarn-bench-opencl" ] || for bad in nosuch "sin --rounds 0" "sin --header /none"; do
    status=0
    # shellcheck disable=SC2086
    said=$("$build/tools/tarn-bench-opencl" $bad 2>&1) || status=$?
    [ $status -eq 2 ] && [ "$(wc -l <<< "$said")" -eq 1 ] || { echo "bad input '$bad': $status, $said"; exit 1; }
done
