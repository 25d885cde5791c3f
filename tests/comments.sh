#!/usr/bin/env bash
# The worst errors in the kernels' comments are those of their rows, and no comment states another; the tables
# of the contract and of OpenCL's built-ins are those of the rows.
#   comments.sh TARN-EXPORTS SOURCE-DIRECTORY
set -euo pipefail
exports=$1
cd "$2"
wrong=0
while IFS= read -r file; do
    "$exports" comments "$file" | diff -u "$file" - || { echo "$file: run scripts/generate"; wrong=1; }
done < <(grep -rl '^// Worst error of ' src)
for page in contract:docs/contract.md mapping:docs/opencl.md; do
    "$exports" "${page%%:*}" "${page#*:}" | diff -u "${page#*:}" - || { echo "${page#*:}: run scripts/generate"; wrong=1; }
done
if grep -rnE '[0-9] ?ulp|ulp [0-9]' src --include='*.?pp' | grep -v ':// Worst error of '; then
    echo "an error that no test compares with its row: say it as '// Worst error of NAME: ', or leave it out"
    wrong=1
fi
exit $wrong
