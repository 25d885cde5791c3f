#!/usr/bin/env bash
# The pictures of docs/plots are what the data and the table of families say, drawn by the gnuplot that they name, and pages show them
# all.   figures.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
wrong=0
for picture in "$source"/docs/plots/*.svg; do
    grep -qF "plots/${picture##*/})" "$source"/{README.md,docs/*.md} || { echo "no page shows ${picture##*/}"; wrong=1; }
done
[ $wrong = 0 ] || exit 1
command -v gnuplot >/dev/null || { echo "skipped: gnuplot is missing"; exit 77; }
drawn_by=$(sed -n 's|.*Produced by GNUPLOT \(.*[^ ]\) *</desc>|\1|p' "$source"/docs/plots/*.svg | sort -u)
here=$(gnuplot --version); here=${here#gnuplot }
[ "$drawn_by" = "$here" ] || { echo "skipped: drawn by gnuplot $drawn_by, here is $here"; exit 77; }
mkdir "$work/docs"
cp -r "$source/docs/data" "$work/docs"
for what in errors speed; do "$source/scripts/draw" $what "$work/docs" "$build"; done
diff -rq --exclude='*.gp' "$source/docs/plots" "$work/docs/plots" || { echo "run scripts/generate"; exit 1; }
# Another time is another picture.
sed -i '/^call	expf	plain	w16	/s/[^	]*$/0.123/' "$work/docs/data/speed.tsv"
"$source/scripts/draw" speed "$work/docs" "$build"
if cmp -s "$source/docs/plots/speed_exponentials.svg" "$work/docs/plots/speed_exponentials.svg"; then echo "the plot does not show the data"; exit 1; fi
