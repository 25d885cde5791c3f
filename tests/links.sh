#!/usr/bin/env bash
# Pages lead to files and headings that there are, and the page of pages to all of them.   links.sh SOURCE-DIRECTORY
set -euo pipefail
cd "$1"
wrong=0
# A heading as links name it.
anchors() { sed -n 's/^##* //p' "$1" | tr '[:upper:]' '[:lower:]' | tr -cd 'a-z0-9 _\n-' | tr ' ' '-'; }
while IFS= read -r page; do
    while IFS= read -r link; do
        file=${link%%#*} anchor=''
        [[ $link != *'#'* ]] || anchor=${link#*#}
        target=$page
        [ -z "$file" ] || target=$(dirname "$page")/$file
        [ -e "$target" ] || { echo "$page: nothing is at $link"; wrong=1; continue; }
        [ -z "$anchor" ] || grep -qxF -- "$anchor" <(anchors "$target") || { echo "$page: no heading for $link"; wrong=1; }
    done < <(awk '/^```/ { code = !code } !code' "$page" | grep -oP '\]\(\K(?!https?:)[^)]+' || true)
done < <(find README.md CHANGELOG.md docs -name '*.md')
for page in docs/*.md; do
    [ "$page" = docs/index.md ] || grep -qF "(${page#docs/})" docs/index.md || { echo "docs/index.md does not name ${page#docs/}"; wrong=1; }
done
exit $wrong
