#!/bin/sh
# Tries xdddiff in a repository as docs/ci.md has it: what the pages say of git is what git does. Called with the folder
# of the programs and a description in XML.
set -eu
bin=$(cd "$1" && pwd)
description=$(cd "$(dirname "$2")" && pwd)/$(basename "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
PATH=$bin:$PATH
export GIT_CONFIG_NOSYSTEM=1 HOME="$work" GIT_PAGER=cat
unset GIT_DIR GIT_WORK_TREE GIT_INDEX_FILE

# Usage: expect WHAT EXPECTED ACTUAL
expect() {
    [ "$2" = "$3" ] || { printf '%s:\nexpected: %s\ngot:      %s\n' "$1" "$2" "$3" >&2; exit 1; }
}

mkdir "$work/a team"
cd "$work/a team"
git init -q .
git config user.name Works
git config user.email works@example.org
git config diff.canopen.command 'xdddiff --git'
git config alias.commits 'log --format= -p --ext-diff'
printf '*.xdd diff=canopen\n*.eds diff=canopen\n' >.gitattributes
cp "$description" drive.xdd
git add .
git commit -qm first
git tag v1

sed -i 's/name="Way"/name="Path"/' drive.xdd
line='drive.xdd:133: editorial: 0x2006: name "Way" -> "Path" [name-changed] people'
expect "git diff" "--- drive.xdd
$line
editorial: 1 editorial" "$(git diff)"
expect "the gate" "editorial: 1 editorial" "$(git show "$(git describe --tags --abbrev=0)":drive.xdd | xdddiff -q - drive.xdd)"
expect "git difftool" "editorial: 1 editorial" "$(git difftool -y -x 'xdddiff' v1 -- '*.xdd' | tail -n 1)"
git commit -qam second

xdd2eds -q -o io.eds drive.xdd
git add io.eds
expect "a new file" "io.eds: the description is new" "$(git diff --cached)"
git commit -qm third
git rm -q drive.xdd
expect "a file that is gone" "drive.xdd: the description is gone" "$(git diff --cached)"
expect "git log" "editorial: 1 editorial" "$(git commits | grep editorial: | tail -n 1)"
git reset -q --hard
printf 'no description\n' >drive.xdd
expect "no description" 0 "$(git diff >/dev/null 2>&1; echo $?)"
sed 's/accessType="rw"/accessType="ro"/' "$description" >drive.xdd
expect "the gate on what breaks" 1 "$(git show v1:drive.xdd | xdddiff -q - drive.xdd >/dev/null || echo $?)"
expect "an absent file" 2 "$(git show v1:absent.xdd 2>/dev/null | xdddiff -q - drive.xdd >/dev/null 2>&1 || echo $?)"
