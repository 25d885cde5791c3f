#!/usr/bin/env bash
# The worst errors in the kernels' comments are those of their rows, and no comment states another; the contract's
# table is that of the rows.
#   comments.sh TARN-EXPORTS SOURCE-DIRECTORY
set -euo pipefail
exports=$1
cd "$2"
wrong=0
while IFS= read -r file; do
    "$exports" comments "$file" | diff -u "$file" - || { echo "$file: run scripts/generate"; wrong=1; }
done < <(grep -rl '^// Worst error of ' src)
"$exports" contract docs/contract.md | diff -u docs/contract.md - || { echo "docs/contract.md: run scripts/generate"; wrong=1; }
if grep -rnE '[0-9] ?ulp|ulp [0-9]' src --include='*.?pp' | grep -v ':// Worst error of '; then
    echo "an error that no test compares with its row: say it as '// Worst error of NAME: ', or leave it out"
    wrong=1
fi
exit $wrong
