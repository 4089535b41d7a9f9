#!/bin/sh
# Runs the commands of the transcripts in tests/data/transcripts and compares what they print. Called with the folder of
# the programs, the major version of Qt, for which NAME-qt5.txt or NAME-qt6.txt is taken, and the German catalogue,
# without which german.txt is left out. A transcript has commands behind "$ ", each followed by what it prints: its
# output, then its messages behind "! ", and "= " with its status unless that is 0. They run in a copy of tests/data.
# With MVX_RENEW=1 the transcripts are written instead.
set -eu
[ -x "$1/xddinfo" ] || { echo "There are no programs in $1" >&2; exit 1; }
bin=$(cd "$1" && pwd)
data=$(cd "$(dirname "$0")/data" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
PATH=$bin:$PATH
status=0

for transcript in "$data"/transcripts/*.txt; do
    case $transcript in
        *-qt"$2".txt) ;;
        *-qt?.txt) continue ;;
    esac
    if [ "$(basename "$transcript")" = german.txt ] && [ ! -e "${3:-}" ]; then
        echo "german.txt is left out: there is no catalogue"
        continue
    fi
    rm -rf "$work/data"
    cp -r "$data" "$work/data"
    : >"$work/actual"
    grep '^\(\$\|#\)' "$transcript" >"$work/commands"
    while IFS= read -r line; do
        printf '%s\n' "$line" >>"$work/actual"
        case $line in \#*) continue ;; esac
        result=0
        (cd "$work/data" && sh -c "${line#\$ }" </dev/null >"$work/out" 2>"$work/err") || result=$?
        {
            cat "$work/out"
            sed 's/^/! /' "$work/err"
            [ "$result" -eq 0 ] || echo "= $result"
        } >>"$work/actual"
    done <"$work/commands"
    if [ "${MVX_RENEW:-}" = 1 ]; then
        cp "$work/actual" "$transcript"
    elif ! diff -u "$transcript" "$work/actual"; then
        echo "$(basename "$transcript") is not what the tools print" >&2
        status=1
    fi
done
exit $status
