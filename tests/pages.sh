#!/usr/bin/env bash
# Runs a page's commands: blocks with a file's name are that file, sh blocks are run in turn, by one shell, in a tree like
# the sources' whose build/release is the build at hand; text blocks are lines that the commands print. Sections that
# another test runs are named with it.   pages.sh PAGE BUILD SOURCE-DIRECTORY [SECTION=TEST...]
set -euo pipefail
page=$1 build=$2 source=$3
fail() { echo "$1"; exit 1; }
others=''
for other in "${@:4}"; do
    grep -q '"## '"${other%=*}"'"' "$source/tests/${other#*=}" || fail "${other#*=} runs no section '${other%=*}'"
    others+="${other%=*}"$'\n'
done

# Nothing is installed or built twice: tests/shims has what stands for cmake, ctest and the scripts that do.
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
tree=$work/tree
mkdir -p "$tree/build" "$work/home"
for entry in "$source"/*; do
    case ${entry##*/} in
        build) ;;
        docs|examples|scripts) cp -r "$entry" "$tree" ;;
        *) ln -s "$entry" "$tree" ;;
    esac
done
ln -s "$build" "$tree/build/release"
for other in v3 windows; do
    sibling=$(dirname "$build")/$other
    [ ! -e "$sibling/CMakeCache.txt" ] || ln -s "$sibling" "$tree/build/$other"
done
cp "$source"/tests/shims/scripts/* "$tree/scripts"

awk -v tree="$tree" -v work="$work" -v others="$others" '
    BEGIN { count = split(others, list, "\n"); for (i = 1; i < count; i++) elsewhere[list[i]] = 1 }
    /^## / { skipped = substr($0, 4) in elsewhere }
    /^```/ && inside { if (file) close(file); inside = 0; file = ""; next }
    /^```/ { inside = 1 }
    skipped { next }
    /^```sh$/ { file = work "/commands"; next }
    /^```text$/ { file = work "/printed"; next }
    /^```[a-z]+ [A-Za-z_.\/]+$/ {
        file = tree "/" $2
        if (!system("[ -e " file " ]")) { print "a block would be the sources'\'' " $2; exit 1 }
        system("mkdir -p $(dirname " file ")")
        next
    }
    file { print >> file }' "$page"
[ -s "$work/commands" ] || fail "$page has no commands"

export HOME=$work/home PATH=$source/tests/shims:$PATH ROUNDS=1
# Of a page that does not install anything the libraries are where the compiler looks.
grep -q 'cmake --install' "$work/commands" || export CPATH=$source/include LIBRARY_PATH=$build LD_LIBRARY_PATH=$build
cd "$tree"
touch "$work/all"
while IFS= read -r command <&3; do
    [ -n "$command" ] || continue
    program=${command%% *}
    if [[ $command == *build/v3/* ]] && ! { [ -e build/v3 ] && "$source/scripts/has-x86-64-v3"; }; then
        echo "skipped: $command"
        continue
    fi
    case $program in
        gcc|clang) command -v "$program" >/dev/null || { echo "skipped: $command"; continue; } ;;
        ./loop_clang|build/*) [ -x "$program" ] || { echo "skipped: $command"; continue; } ;;
    esac
    status=0
    eval "$command" > "$work/output" 2>&1 || status=$?
    cat "$work/output" >> "$work/all"
    [ $status -ne 75 ] || { echo "skipped: $command"; continue; }
    [ $status -eq 0 ] || { head -n 20 "$work/output"; fail "fails: $command"; }
done 3< "$work/commands"
[ ! -e "$work/printed" ] || while IFS= read -r line; do
    grep -qF -- "$line" "$work/all" || { tail -n 40 "$work/all"; fail "nothing prints: $line"; }
done < "$work/printed"
