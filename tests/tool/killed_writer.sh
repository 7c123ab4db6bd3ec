#!/bin/sh
# A run that is killed while it writes leaves every file old or new, never half.
# usage: killed_writer.sh DIRECTORY-OF-THE-TOOL
PATH=$1:$PATH
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
awk 'BEGIN { for (i = 0; i < 40000; ++i) printf "Key%05d   =   \047text\047\n", i }' > old
cp old file.lt
begin=$(date +%s%N)
localize format file.lt
duration=$(($(date +%s%N) - begin))
cp file.lt new
was_old=0
was_new=0
# Later and later, until some have come to their end. Each in a session of its own: a runner may have started a
# process of its own for the program.
for i in $(seq 400); do
    [ "$was_new" -lt 10 ] || break
    cp old file.lt
    setsid localize format file.lt &
    sleep "$(awk "BEGIN { print $duration * $i / 60 / 1e9 }")"
    kill -s KILL -- -$! 2> /dev/null
    wait $! 2> /dev/null
    if cmp -s file.lt old; then
        was_old=$((was_old + 1))
    elif cmp -s file.lt new; then
        was_new=$((was_new + 1))
    else
        echo "a file is half written"
        exit 1
    fi
done
echo "$was_old old, $was_new new"
[ "$was_old" -gt 0 ] && [ "$was_new" -gt 0 ]
