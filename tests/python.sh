#!/usr/bin/env bash
# The Python package, installed by pip from a copy without a network, over an installed libtarn: README's example, then
# its own tests.   python.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
build=$1 source=$2
python=/usr/bin/python3
for module in numpy pytest pip setuptools wheel; do
    $python -c "import $module" 2>/dev/null || { echo "skipped: $python has no $module"; exit 77; }
done
[ -e "$build/exports.json" ] || { echo "skipped: this build has no catalogue"; exit 77; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/a prefix" --component runtime >/dev/null
library=$(dirname "$(find "$work/a prefix" -name libtarn.so.1)")

# README's commands, where pip is Debian's.
mkdir "$work/shims"
cat > "$work/shims/pip" <<SH
#!/bin/sh
exec $python -m pip "\$@" --quiet --no-build-isolation --no-index --no-deps --target "$work/site" --root-user-action=ignore --disable-pip-version-check
SH
chmod +x "$work/shims/pip"
section() { awk -v language="$1" '/^## /{ within = $0 == "## Python" } /^```/{ code = within && $0 == "```" language; next } code' "$source/README.md"; }
section sh > "$work/commands"
section python > "$work/example.py"
grep -q 'pip install ./python' "$work/commands" && grep -q 'import tarn' "$work/example.py"
cp -r "$source/python" "$work/python"
cd "$work"
PATH=$work/shims:$PATH bash -eu commands >log 2>&1 || { cat log; exit 1; }
export PYTHONPATH=$work/site PYTHONDONTWRITEBYTECODE=1
unset TARN_CATALOGUE
LD_LIBRARY_PATH=$library TARN_LIBRARY= $python example.py > output
grep -q '^\[0.367879.* 1.648721.* 2.71828' output || { cat output; echo "README's example gives something else"; exit 1; }
LD_LIBRARY_PATH=$library TARN_LIBRARY= $python -c "import tarn; assert str(tarn.library).startswith('$work/a prefix'), tarn.library"
TARN_LIBRARY=$build/libtarn.so.1 TARN_CATALOGUE=$build/exports.json $python - <<PY || { echo "python/pyproject.toml is of another version"; exit 1; }
import importlib.metadata, tarn
assert importlib.metadata.version("tarn") == tarn.__version__
PY
# Nowhere at all: one line.
if LD_LIBRARY_PATH= TARN_LIBRARY= $python -c 'import tarn' 2>output; then
    echo "libtarn is installed on this machine: what is said where it is missing is not tried"
else
    tail -n 1 output | grep -q '^ImportError: tarn: install libtarn or name it in the environment'"'"'s TARN_LIBRARY: ' || { cat output; exit 1; }
fi
TARN_LIBRARY=${TARN_LIBRARY:-$build/libtarn.so.1} TARN_CATALOGUE=$build/exports.json TARN_HEADER=$source/include/tarn.h \
    $python -m pytest -q -p no:cacheprovider python/tests
$python python/bench.py --elements 0 2>output && { echo "the bench takes 0 elements"; exit 1; }
TARN_LIBRARY=$build/libtarn.so.1 $python python/bench.py --elements 1000 --seconds 0.001 > output
[ "$(grep -c '^| `' output)" = 8 ] || { cat output; exit 1; }
