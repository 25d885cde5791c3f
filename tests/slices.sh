#!/usr/bin/env bash
# The example in Rust: compiled, run, and stopped by lengths that differ.   slices.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
build=$1 source=$2
rustc --version >/dev/null 2>&1 || { echo "skipped: rustc is missing"; exit 77; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
rustc -O -D warnings "$source/examples/slices.rs" -L "$build" -o "$work/slices"
export LD_LIBRARY_PATH=$build
"$work/slices" | grep -q '^exp(1) = 2.7182819'
if "$work/slices" short >"$work/output" 2>&1; then echo "slices of two lengths are computed"; exit 1; fi
grep -q 'the lengths of its slices differ' "$work/output"
