#!/usr/bin/env bash
# The pictures of docs/functions are those of the data, one for each profile; what cannot be drawn is refused in a line.
#   plots.sh TARN-EXPORTS SOURCE-DIRECTORY
set -euo pipefail
export TARN_EXPORTS=$1
source=$2
command -v gnuplot >/dev/null || { echo "skipped: gnuplot is missing"; exit 77; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT

refused() {
    status=0
    said=$("$source/scripts/plot-errors" "$@" 2>&1 >/dev/null) || status=$?
    [ $status -eq 2 ] && [ "$(wc -l <<< "$said")" -eq 1 ] || { echo "bad input '$*': $status, $said"; exit 1; }
}
refused /nowhere
refused "$work" nosuch
[ -z "$(ls "$work")" ] || { echo "a picture of nothing"; exit 1; }

"$source/scripts/plot-errors" "$work"
diff <(cd "$work" && ls) <(cd "$source/docs/functions" && ls -- *.svg) || { echo "other pictures than profiles: scripts/generate"; exit 1; }
drawn_by=$(tail -qn 1 "$source"/docs/functions/*.svg | sort -u)
for picture in "$work"/*.svg; do
    name=$(basename "$picture")
    python3 -c 'import sys, xml.dom.minidom as m; m.parse(sys.argv[1])' "$picture"
    grep -q 'largest error, ulp' "$picture" || { echo "$name is empty"; exit 1; }
    [ "$(stat -c %s "$picture")" -lt 40960 ] || { echo "$name is larger than 40 KiB"; exit 1; }
    grep -q "($(basename "$name"))" "$source"/docs/functions/*.md || { echo "$name is on no page"; exit 1; }
done
[ "$drawn_by" = "<!-- $(gnuplot --version) -->" ] || { echo "skipped: $(gnuplot --version), drawn by $drawn_by"; exit 77; }
for picture in "$work"/*.svg; do
    cmp "$picture" "$source/docs/functions/$(basename "$picture")" || { echo "not the picture of its data: scripts/generate"; exit 1; }
done
