#!/bin/sh
# Follows a page of the documents: runs the commands of its console blocks on a copy of the samples, and tells
# where what they print differs from what the page says.
# usage: follow_page.sh PAGE DIRECTORY-OF-THE-TOOL SAMPLES
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$3" "$work/samples"
sed -n '/^```console$/,/^```$/{/^```/d;p;}' "$1" > "$work/transcript"
grep -q '^\$ localize' "$work/transcript" || exit 1
cd "$work" || exit 1
sh "$here/replay.sh" "$work/transcript" "$2"
