#!/bin/sh
# Makes every call of the tools that changes a file fail, one after the other, and looks at what is left: the file is what
# it was, or whole and new. Called with the folder of the programs and the library that makes calls fail (faults.cpp).
set -eu
bin=$(cd "$1" && pwd)
faults=$2
data=$(cd "$(dirname "$0")/data" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
runs=0

wrong() {
    echo "$*" >&2
    ls -l "$work/out" >&2
    cat "$work/err" >&2
    exit 1
}

# Usage: try NAME TARGET TOOL ARGUMENT...: runs a tool that writes out/TARGET, with every call failing in every way. The
# target is there before; what it is afterwards without a fault is what it should become.
try() {
    name=$1
    target=$work/out/$2
    shift 2
    cp "$target" "$work/before"
    "$@" >/dev/null 2>"$work/err"
    cp "$target" "$work/after"
    cmp -s "$work/before" "$work/after" && wrong "$name: nothing is written"
    for kind in ENOSPC EIO half kill; do
        call=0
        while :; do
            call=$((call + 1))
            cp "$work/before" "$target"
            rm -f "$work/log"
            status=0
            MVX_FAULT_FOLDER=$work/out MVX_FAULT_CALL=$call MVX_FAULT_KIND=$kind MVX_FAULT_LOG=$work/log \
                LD_PRELOAD=$faults sh -c 'exec "$@" 2>"$0"' "$work/err" "$@" >/dev/null || status=$?
            runs=$((runs + 1))
            [ -e "$work/log" ] || break
            where="$name, $kind in call $call ($(cat "$work/log"))"
            isNew=no
            if cmp -s "$target" "$work/after"; then
                isNew=yes
            elif ! cmp -s "$target" "$work/before"; then
                wrong "$where: the file is neither what it was nor new"
            fi
            [ "$kind" != kill ] || { find "$work/out" -type f ! -path "$target" -delete; continue; }
            if [ "$status" -eq 0 ]; then
                [ "$isNew" = yes ] || wrong "$where: status 0, but the file is what it was"
            else
                grep -q "$target.*\(No space left on device\|Input/output error\)" "$work/err" \
                    || wrong "$where: no message with the file and the reason"
                [ "$(grep -c . "$work/err")" -eq 1 ] || wrong "$where: more than one message"
            fi
            [ "$(find "$work/out" -type f | wc -l)" -eq 1 ] || wrong "$where: a temporary file is left"
        done
        [ "$call" -gt 4 ] || wrong "$name: only $((call - 1)) calls were seen"
    done
    rm "$target"
}

export LC_ALL=C.UTF-8
mkdir "$work/out"
# Smaller and larger than the 16 KB that Qt keeps in a buffer.
head -c 20000 /dev/zero | tr '\0' ' ' >"$work/blanks"
sed '/<ISO15745ProfileContainer/r '"$work/blanks" "$data/foreign.xdd" >"$work/large.xdd"
for size in small large; do
    source=$data/foreign.xdd
    [ $size = small ] || source=$work/large.xdd
    cp "$source" "$work/out/copy.xdd"
    try "xddnormalize --in-place, $size" copy.xdd "$bin/xddnormalize" -q --in-place "$work/out/copy.xdd"
    echo before >"$work/out/copy.xdd"
    try "xddnormalize -o, $size" copy.xdd "$bin/xddnormalize" -q -o "$work/out/copy.xdd" "$source"
    echo before >"$work/out/copy.eds"
    try "xdd2eds -o, $size" copy.eds "$bin/xdd2eds" -q -o "$work/out/copy.eds" "$source"
    echo before >"$work/out/copy.html"
    try "xdd2html -o, $size" copy.html "$bin/xdd2html" -o "$work/out/copy.html" "$source"
    echo before >"$work/out/copy.dbc"
    try "xdd2dbc -o, $size" copy.dbc "$bin/xdd2dbc" -q -o "$work/out/copy.dbc" "$source:5"
done
echo "$runs runs"
