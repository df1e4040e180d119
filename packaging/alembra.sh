#!/bin/sh
# Starts Alembra with the user's folder, ~/.local/share/alembra, for options and database: the program's own folder cannot
# be written to. The program fills the folder and brings it up to date.
set -u

prefix=$(dirname -- "$(dirname -- "$(readlink -f -- "$0")")")
case ${XDG_DATA_HOME-} in
/*) folder=$XDG_DATA_HOME/alembra ;;
*) folder=${HOME:?names no home folder for your options and database}/.local/share/alembra ;;
esac

# Earlier releases put a copy of the program and a link to each of its files into the folder. Files that the user put in
# place of a link stay and are used.
if [ -e "$folder/.release" ]; then
    find "$folder" -lname '*/share/alembra/*' -delete
    find "$folder" -mindepth 1 -type d -empty -delete
    rm -f -- "$folder/Alembra_uk" "$folder/Alembra_network.so" "$folder/.lock" "$folder/.release"
fi

exec "$prefix/lib/alembra/Alembra_uk" "$folder" "$@"
