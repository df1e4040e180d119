#!/bin/sh
# Starts Alembra with a folder of the user's own, ~/.local/share/alembra, for options and database: the program's own
# folder cannot be written to.
set -u

prefix=$(dirname -- "$(dirname -- "$(readlink -f -- "$0")")")
case ${XDG_DATA_HOME-} in
/*) folder=$XDG_DATA_HOME/alembra ;;
*) folder=${HOME:?names no home folder for your options and database}/.local/share/alembra ;;
esac

# In earlier releases the folder held a copy of the program and a link to each of its other files. What the user put in the
# place of a link stays and is used.
if [ -e "$folder/.release" ]; then
    find "$folder" -lname '*/share/alembra/*' -delete
    find "$folder" -mindepth 1 -type d -empty -delete
    rm -f -- "$folder/Alembra_uk" "$folder/Alembra_network.so" "$folder/.lock" "$folder/.release"
fi

exec "$prefix/lib/alembra/Alembra_uk" "$folder" "$@"
