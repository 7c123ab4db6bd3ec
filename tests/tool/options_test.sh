#!/usr/bin/env bash
# The man page and the completion know every command and option that --help names, and the man page no other.
# usage: options_test.sh DIRECTORY-OF-THE-TOOL SOURCES-OF-THE-TOOL
set -euo pipefail
PATH=$1:$PATH
page=$2/localize.1
. "$2/completion/localize"

# Prints what is completed behind the words.
completed() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    _localize 2>/dev/null
    printf '%s\n' "${COMPREPLY[@]}" | sort
}

failed=0
differ() { # WHAT EXPECTED ACTUAL
    diff <(echo "$2") <(echo "$3") >&2 || { echo "$1 differs" >&2; failed=1; }
}

# Prints the commands of a command, or of the program.
commands_of() {
    localize "$@" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\)  *.*/\1/p' | sort
}

# Judges a command that has no commands.
judge() {
    options=$(localize "$@" --help | grep -oE '^  (-h,)?--[a-z-]+' | grep -oE -- '--[a-z-]+' | sort)
    differ "completion of $*" "$options" "$(completed localize "$@" --)"
    section=$(sed -n "/^\.SS $*\$/,/^\.S[SH]/p" "$page" | sed 's/\\-/-/g' | grep -v '^\.SS' |
        grep -v -- '--format json$' | grep -oE -- '--[a-z][a-z-]*' | sort -u) || [ -z "$section" ]  # some have none
    differ "man page's section $*" "$(grep -vx -- --help <<<"$options")" "$section"
}

commands=$(commands_of)
[ "$(wc -w <<<"$commands")" -ge 10 ]
differ "completion of commands" "$commands" "$(completed localize '')"
left_out='^$'
grep -qx xliff <<<"$commands" || left_out='^xliff'  # a build may be without
differ "man page's commands" "$commands" "$(sed -n 's/^\.SS //p' "$page" | grep -v "$left_out" | cut -d ' ' -f 1 | sort -u)"
for command in $commands; do
    further=$(commands_of "$command")
    [ -n "$further" ] || judge "$command"
    for word in $further; do
        judge "$command" "$word"
    done
done
differ "completion of cultures" "$(printf 'ar\n')" "$(completed localize get --root tree --culture a)"
differ "completion of scopes" "$(printf 'settings\n')" "$(completed localize get --root tree --scope s)"
exit $failed
