#!/usr/bin/env bash
# The pictures of docs are what the data and the table of families say, drawn by the gnuplot that they name, none of them
# is empty, and pages show them all.   figures.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
/usr/bin/python3 - "$source" <<'PY'
import pathlib, sys, xml.dom.minidom
source = pathlib.Path(sys.argv[1])
pages = {page: page.read_text() for page in [source / "README.md", *source.glob("docs/**/*.md")]}
pictures = [*source.glob("docs/plots/*.svg"), *source.glob("docs/functions/*.svg")]
assert len(pictures) > 100, "there are pictures"
for picture in pictures:
    text = picture.read_text()
    xml.dom.minidom.parseString(text)
    assert "<path" in text and "<text" in text, f"{picture} is empty"
    assert any(picture.is_relative_to(page.parent) and f"({picture.relative_to(page.parent)})" in words
               for page, words in pages.items()), f"{picture} is on no page"
for profile in source.glob("docs/functions/*.svg"):
    assert len(profile.read_text()) < 40960, f"{profile} is larger than 40 KiB"
PY
command -v gnuplot >/dev/null || { echo "skipped: gnuplot is missing"; exit 77; }
drawn_by=$(sed -n 's|.*Produced by GNUPLOT \(.*[^ ]\) *</desc>|\1|p' "$source"/docs/{plots,functions}/*.svg | sort -u)
here=$(gnuplot --version); here=${here#gnuplot }
[ "$drawn_by" = "$here" ] || { echo "skipped: drawn by gnuplot $drawn_by, here is $here"; exit 77; }
mkdir "$work/docs"
cp -r "$source/docs/data" "$work/docs"
for what in errors speed profiles; do "$source/scripts/draw" $what "$work/docs" "$build"; done
for folder in plots functions; do
    diff -rq --exclude='*.gp' --exclude='*.md' "$source/docs/$folder" "$work/docs/$folder" || { echo "run scripts/generate"; exit 1; }
done
# Another time is another picture, and so is another error.
sed -i '/^call	expf	plain	w16	/s/[^	]*$/0.123/' "$work/docs/data/speed.tsv"
"$source/scripts/draw" speed "$work/docs" "$build"
sed -i '4,$s/^\(expf16	1	[^	]*	[^	]*	\)[^	]*/\11.5/' "$work/docs/data/errors/expf.tsv"
"$source/scripts/draw" profiles "$work/docs" "$build"
for picture in plots/speed_exponentials functions/expf; do
    if cmp -s "$source/docs/$picture.svg" "$work/docs/$picture.svg"; then echo "$picture does not show the data"; exit 1; fi
done
# What cannot be drawn is refused.
for wrong in "nothing $work/docs" "profiles /nowhere" "speed $work"; do
    status=0
    # shellcheck disable=SC2086
    "$source/scripts/draw" $wrong "$build" > "$work/said" 2>&1 || status=$?
    [ $status -eq 2 ] && [ "$(wc -l < "$work/said")" -eq 1 ] || { cat "$work/said"; echo "status $status: draw $wrong"; exit 1; }
done
