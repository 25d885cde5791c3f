#!/usr/bin/env bash
# Proved bounds against the families' rows, or what proves them against values known otherwise.
#   proofs.sh SOURCE-DIRECTORY TRACER [FAMILY]
set -euo pipefail
source=$1 family=${3:-}
export TARN_TRACE=$2 PYTHONDONTWRITEBYTECODE=1
python=/usr/bin/python3
for program in gappa sollya; do
    command -v $program >/dev/null || { echo "skipped: $program is missing"; exit 77; }
done
modules=(gmpy2 numpy); [ -n "$family" ] || modules+=(pytest)
for module in "${modules[@]}"; do
    $python -c "import $module" 2>/dev/null || { echo "skipped: $python has no $module"; exit 77; }
done
[ -z "$family" ] || exec $python "$source/proofs/prove.py" --check "$family"
exec $python -m pytest -q -p no:cacheprovider "$source/tests/proofs"
