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
python3 - "$work" "$source/docs/functions" <<'PY'
import pathlib, sys, xml.dom.minidom
work, functions = map(pathlib.Path, sys.argv[1:])
pages = "".join(page.read_text() for page in functions.glob("*.md"))
for picture in work.glob("*.svg"):
    text = picture.read_text()
    xml.dom.minidom.parseString(text)
    assert "largest error, ulp" in text, f"{picture.name} is empty"
    assert len(text) < 40960, f"{picture.name} is larger than 40 KiB"
    assert f"({picture.name})" in pages, f"{picture.name} is on no page"
PY
[ "$drawn_by" = "<!-- $(gnuplot --version) -->" ] || { echo "skipped: $(gnuplot --version), drawn by $drawn_by"; exit 77; }
diff -rq "$work" "$source/docs/functions" --exclude='*.md' || { echo "not the pictures of their data: scripts/generate"; exit 1; }
