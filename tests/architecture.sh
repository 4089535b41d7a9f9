#!/bin/sh
# Compares docs/architecture.md with the sources: the files that it names are there, and nothing in libmvxXddTools, be it
# a room of src or a public header, includes a header that stands above it. Called with the folder of the sources.
set -eu
cd "$1"
page=docs/architecture.md
status=0

wrong() {
    echo "$*" >&2
    status=1
}

for path in $(grep -oh '`[A-Za-z]*/[A-Za-z0-9_./]*`' "$page" CONTRIBUTING.md | tr -d '`' | sort -u); do
    [ -e "$path" ] || [ -e "libmvxXddTools/src/$path" ] || [ -e "libmvxXddTools/src/$path.h" ] \
        || wrong "$path is named, but is not there"
done

# A row has rooms (folders of src) and public headers.
layers=$(sed -n '/<!-- layers -->/,/<!-- end of layers -->/p' "$page" | grep '^    ' | tr -d ',' | tr -s ' ')
[ "$(echo "$layers" | wc -l)" -gt 5 ] || wrong "$page has no layers"

# Usage: look NAME ALLOWED FILE...: the headers that the files of a room, or a header, include.
look() {
    name=$1
    allowed=$2
    shift 2
    for header in $(grep -ho '#include "[^"]*"' "$@" | sed 's/#include "\(.*\)"/\1/' | sort -u); do
        case $header in
            */*) place=${header%%/*} ;;
            *) [ -e "libmvxXddTools/include/$header" ] && place=${header%.h} || continue ;;
        esac
        case " $name $allowed mvxXddTools_export " in
            *" $place "*) ;;
            *) wrong "$name includes $header, which does not stand below it" ;;
        esac
    done
}

# From below, so that what is allowed grows with each row. Headers of one row may include each other.
below=""
while read -r row; do
    for name in $row; do
        if [ -d "libmvxXddTools/src/$name" ]; then
            look "$name" "$below" libmvxXddTools/src/"$name"/*.h libmvxXddTools/src/"$name"/*.cpp
        elif [ -e "libmvxXddTools/include/$name.h" ]; then
            look "$name" "$below $row" "libmvxXddTools/include/$name.h"
        else
            wrong "$name is named, but is not there"
        fi
    done
    below="$below $row"
done <<ROWS
$(echo "$layers" | tac)
ROWS
for path in libmvxXddTools/src/*/ libmvxXddTools/include/*.h; do
    name=$(basename "$path" .h)
    case " $(echo $layers) mvxXddTools_export " in
        *" $name "*) ;;
        *) wrong "$page does not name $path" ;;
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
