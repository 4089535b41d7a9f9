#!/bin/sh
# Compares docs/architecture.md with the sources: the files that it names are there, and no folder of libmvxXddTools
# includes a header of one that stands above it. Called with the folder of the sources.
set -eu
cd "$1"
page=docs/architecture.md
status=0

wrong() {
    echo "$*" >&2
    status=1
}

for path in $(grep -oh '`[A-Za-z]*/[A-Za-z0-9_./]*`' "$page" CONTRIBUTING.md | tr -d '`' | sort -u); do
    [ -e "$path" ] || [ -e "libmvxXddTools/$path" ] || [ -e "libmvxXddTools/$path.h" ] || wrong "$path is named, but is not there"
done

layers=$(sed -n '/<!-- layers -->/,/<!-- end of layers -->/p' "$page" | grep '^    ' | tr -d ',')
[ "$(echo "$layers" | wc -l)" -gt 4 ] || wrong "$page has no layers"
records=$(echo "$layers" | tail -n 1)
below=""
# From below, so that what is allowed grows with each line.
for row in $(echo "$layers" | sed '1d;$d' | tac | tr -s ' ' | tr ' ' '+'); do
    row=$(echo "$row" | tr '+' ' ')
    for folder in $row; do
        [ -d "libmvxXddTools/$folder" ] || wrong "libmvxXddTools/$folder is named, but is not there"
        for header in $(grep -ho '#include "[^"]*"' libmvxXddTools/"$folder"/*.h libmvxXddTools/"$folder"/*.cpp \
            | sed 's/#include "\(.*\)"/\1/' | sort -u); do
            case $header in
                */*) place=${header%%/*} ;;
                *) [ -e "libmvxXddTools/$header" ] && place=${header%.h} || continue ;;
            esac
            case " $folder $below $records " in
                *" $place "*) ;;
                *) wrong "libmvxXddTools/$folder includes $header, which stands above it" ;;
            esac
        done
    done
    below="$below $row"
done
for folder in libmvxXddTools/*/; do
    case "$below" in
        *" $(basename "$folder")"*) ;;
        *) wrong "$page does not name $folder" ;;
    esac
done

# Of the reader's folder everything else uses the names of the format alone.
own=$(ls src)
for header in $(grep -rhoE '#include "[A-Za-z0-9_]+\.h"' libmvxXddTools tools | sed 's/#include "\(.*\)"/\1/' | sort -u); do
    case "
$own
" in
        *"
$header
"*) [ "$header" = NIso15745Tags.h ] || wrong "$header of src is used outside of it" ;;
    esac
done
exit $status
