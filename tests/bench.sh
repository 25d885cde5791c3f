#!/usr/bin/env bash
# scripts/bench on two families: its files, what it says, and what it refuses without a loss.
#   bench.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
export TARN_BUILD=$1
source=$2
[ -x "$TARN_BUILD/tools/tarn-bench" ] || { echo "skipped: this build has no bench"; exit 77; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
fail() { echo "$1"; exit 1; }
bench() { "$source/scripts/bench" --into "$work/a folder" "$@"; }
sums() { (cd "$work/a folder" && find . -type f -exec cksum {} + | sort); }

ROUNDS=1 bench exp2 ceilf > "$work/said"
cut -f 2 "$work/a folder/data/speed.tsv" | sort -u | diff - <(printf 'ceilf\nexp2\nrow\n') || fail "other rows than those of the families"
grep -q '^| `exp2` | [0-9]' "$work/a folder/speed.md" || fail "the page has no table"
grep -q 'best peer.s time over ours: ' "$work/said" && grep -q '^not timed here: ' "$work/said" || { cat "$work/said"; fail "no differences are told"; }
if command -v gnuplot >/dev/null; then
    grep -o 'plots/[a-z_]*.svg' "$work/a folder/speed.md" | while read -r plot; do [ -s "$work/a folder/$plot" ] || fail "$plot is missing"; done
fi

sums > "$work/before"
refused() {  # WHAT IT SAYS, COMMAND...
    local said status=0
    said=$("${@:2}" 2>&1 >/dev/null) || status=$?
    [ "$status $(wc -l <<< "$said")" = "2 1" ] && grep -q "$1" <<< "$said" || fail "status $status: ${*:2}: $said"
    sums | cmp -s - "$work/before" || fail "results were lost: ${*:2}"
}
refused 'earlier run' bench exp2
refused "'nothing'" bench --again exp2 nothing
refused 'ROUNDS' env ROUNDS=0 "$source/scripts/bench" --into "$work/a folder" --again exp2
refused "'--against'" bench --again --against x
refused 'needs a folder' "$source/scripts/bench" --again --into
refused 'written' "$source/scripts/bench" --into /proc/folder exp2
refused "takes no 'exp2'" "$source/scripts/measure-speed" exp2
ROUNDS=1 bench --again ceilf > /dev/null
[ "$(cut -f 2 "$work/a folder/data/speed.tsv" | sort -u | tr '\n' ' ')" = "ceilf row " ] || fail "--again does not replace"
