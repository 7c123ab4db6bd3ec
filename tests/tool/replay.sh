#!/bin/sh
# Replays a transcript: runs its commands, which stand after "$ ", and tells where what they print
# differs from what stands below them. Their standard input is empty.
# usage: replay.sh TRANSCRIPT DIRECTORY-OF-THE-TOOL
transcript=$1
PATH=$2:$PATH
TEMP=$(mktemp -d)
export PATH TEMP
trap 'rm -rf "$TEMP"' EXIT
while IFS= read -r line; do
    case $line in
    '$ '*)
        printf '%s\n' "$line"
        (eval "${line#??}") 2> "$TEMP/errors" < /dev/null
        status=$?
        sed 's/^/! /' "$TEMP/errors"
        [ $status = 0 ] || echo "? $status"
        ;;
    '#'* | '') printf '%s\n' "$line" ;;
    esac
done < "$transcript" | diff -u "$transcript" -
