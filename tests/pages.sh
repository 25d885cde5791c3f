#!/usr/bin/env bash
# Runs a page's commands: blocks with a file's name are that file, sh blocks run in turn, beside the examples and with
# the libraries of a build.   pages.sh PAGE BUILD SOURCE-DIRECTORY
set -euo pipefail
page=$1 build=$2 source=$3
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
cp -r "$source/examples" "$work"
awk -v work="$work" '
    /^```/ && file { close(file); file = ""; next }
    /^```sh$/ { file = work "/commands"; next }
    /^```[a-z]+ [a-z_.]+$/ { file = work "/" $2; next }
    file { print >> file }' "$page"
[ -s "$work/commands" ] || { echo "$page has no commands"; exit 1; }
cd "$work"
export CPATH=$source/include LIBRARY_PATH=$build LD_LIBRARY_PATH=$build
while IFS= read -r command; do
    case $command in gcc\ *|clang\ *|./loop_clang) command -v "${command%% *}" >/dev/null || { echo "skipped: $command"; continue; } ;; esac
    bash -euc "$command" > output 2>&1 || { head -n 20 output; echo "fails: $command"; exit 1; }
    cat output >> all
done < commands
grep -q 'exp(1) = 2.7182819' all && grep -q 'tarn::pow: the lengths of its spans differ' all || { echo "the examples do not say what they ought to"; exit 1; }
