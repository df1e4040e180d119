#!/bin/sh
# Starts Alembra from a program folder of the user's own: the program writes its options beside itself and puts its
# database back there, which a folder of the system does not let it do.
#
# In the user's folder a link is ours and a file is the user's, except for the executable, the original database, and
# the working one as long as it is as it came. So pictures, menu and help follow what is installed, and what the user
# puts in the place of one stays. Nothing else in the folder is touched: reports and copies are saved there.
#
# Entries come one by one, each whole or not at all, and the stamp last: a renewal that was interrupted is done again.
set -u

case $0 in
*/*) self=$0 ;;
*) self=$(command -v -- "$0") ;;
esac
[ ! -h "$self" ] || self=$(readlink -f -- "$self")
prefix=$(cd -P -- "${self%/*}/.." && pwd -P)
binaries=$prefix/lib/alembra
template=$prefix/share/alembra
original=$template/Backup/Database_uk_origin.rbk

Kept=3 # the status of a renewal that left the user's database where a new one came

# Where nobody reads standard error, in a window too.
say() {
    printf 'alembra: %s\n' "$1" >&2
    if [ -t 2 ] || [ -z "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
        return
    elif command -v zenity >/dev/null; then
        zenity --warning --no-markup --width 480 --title Alembra --text "$1"
    elif command -v kdialog >/dev/null; then
        kdialog --title Alembra --sorry "$1"
    elif command -v xmessage >/dev/null; then
        xmessage -center -title Alembra "$1"
    fi
}

fail() {
    say "$1"
    exit 1
}

# put <file> <destination>: a copy, whole or not at all.
put() {
    rm -f -- "$2.new" # what an interrupted one left may have other permissions
    if cp -- "$1" "$2.new" && sync -- "$2.new" && mv -f -- "$2.new" "$2"; then
        return
    fi
    rm -f -- "$2.new"
    return 1
}

same() {
    cmp -s -- "$1" "$2"
}

current() {
    [ -x "$folder/Alembra_uk" ] && [ -f "$folder/options_uk.ini" ] && [ -f "$folder/.release" ] &&
        read -r there <"$folder/.release" && [ "$there" = "$release" ]
}

# One link for each file, not for each folder: the program counts them in its statistics.
link_files() {
    find "$folder/" -xtype l -lname '*/share/alembra/*' -exec rm -f -- {} +
    find "$template" -type d ! -path "$template/Backup" | while read -r source; do
        below=$folder${source#"$template"}
        mkdir -p -- "$below"
        set --
        for file in "$source"/*; do
            there=$below/${file##*/}
            case $file in "$template/release" | "$template/options_uk.ini") continue ;; esac
            if [ -f "$file" ] && { [ -h "$there" ] || [ ! -e "$there" ]; }; then
                set -- "$@" "$file"
            fi
        done
        [ $# -eq 0 ] || ln -sf -- "$@" "$below" || exit 1
    done
}

# The working database first: it is told from the user's own by the original that it came from, which is still there.
renew() {
    mine=$folder/Data/Database_uk.mdb
    origin=$folder/Backup/Database_uk_origin.rbk
    status=0
    mkdir -p -- "$folder/Data" "$folder/Backup"
    if [ ! -e "$mine" ] || same "$mine" "$origin"; then
        put "$original" "$mine"
    elif ! same "$mine" "$original" && ! same "$origin" "$original"; then
        status=$Kept
    fi
    put "$original" "$origin"
    put "$binaries/Alembra_uk" "$folder/Alembra_uk"
    [ -e "$folder/options_uk.ini" ] || put "$template/options_uk.ini" "$folder/options_uk.ini"
    link_files
    printf '%s\n' "$release" >"$folder/.release.new"
    mv -f -- "$folder/.release.new" "$folder/.release"
    return "$status"
}

# Of two at once the second waits, and finds the work done.
renew_alone() {
    mkdir -p -- "$folder"
    exec 9>>"$folder/.lock"
    flock -w 60 9 || {
        echo 'Another start of Alembra is still at work there.'
        return 1
    }
    current || renew
}

case ${XDG_DATA_HOME-} in
/*) folder=$XDG_DATA_HOME/alembra ;;
*)
    [ -n "${HOME-}" ] || fail 'There is no home folder (HOME is not set) that could hold the program folder.'
    folder=$HOME/.local/share/alembra
    ;;
esac
read -r release <"$template/release" || fail "The installation is not complete: $template/release cannot be read."
release="$release $template"

if ! current; then
    reason=$(
        set -e
        renew_alone 2>&1
    )
    case $? in
    0) ;;
    "$Kept")
        say "There is a new database, but yours was changed, so it stays as it is.

The new one lies in $folder/Backup/Database_uk_origin.rbk. To use it, choose Restore in the options, on the tab \
Database."
        ;;
    *)
        fail "The program folder $folder could not be set up:

$reason

Nothing of yours was changed. When there is room and the folder can be written to, start Alembra again. XDG_DATA_HOME \
can name another place."
        ;;
    esac
    [ -x "$folder/Alembra_uk" ] ||
        fail "No program can be started in $folder. Name another place for program folders in XDG_DATA_HOME."
fi
exec "$folder/Alembra_uk" "$@"
