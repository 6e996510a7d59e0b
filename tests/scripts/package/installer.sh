# Sourced by the parts of package-test: a Wine prefix in which packages are installed, what lies in it before that, and
# how it is compared. package-test says which prefix (prefix_name) and where the packages lie (work).
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/../../../scripts/common.sh"

# What package-test hands on.
: "${arch:?}" "${work:?}" "${prefix_name:?}"
prefix=$build/wine/$prefix_name-$arch
# shellcheck disable=SC2034 # for those who source this file
class='CLSID\{03822644-1FCA-429D-A547-70C08FCDDAEC}'

# steps NAME: runs the lines of a command script, its standard input, in the work folder. They see %packages%, and what
# they print is in NAME.output.
steps() {
    printf '@echo off\r\nset packages=Z:%s\r\n' "${work//\//\\}" >"$work/$1.cmd"
    { cat && echo exit 0; } | sed 's/$/\r/' >>"$work/$1.cmd"
    (cd "$work" && "$scripts/wine-run" --timeout 300 --keep "$prefix_name" "$arch" cmd /c "$1.cmd") \
        >"$work/$1.raw" </dev/null || die "$1: the steps ended with $?"
    sed 's/\r//; s/[[:space:]]*$//; /^$/d' "$work/$1.raw" >"$work/$1.output"
}

# expect NAME: compares what the steps have printed with the standard input.
expect() { diff - "$work/$1.output" || die "$1: other than expected (<)"; }

# What the prefix holds: names of files (temporary ones apart), and the registry without its times and without the
# System branch, where Wine notes devices at each start. The installer's own books stay when they are empty: its keys
# without values, and its folders.
snapshot() {
    (cd "$prefix/drive_c" && find . -path '*/Temp/*' -prune -o -type d -name Installer -o -print | LC_ALL=C sort) \
        >"$work/$1.files"
    cat "$prefix"/{system,user}.reg | awk '
        /^#time=/ { next }
        /^\[/ { sub(/ [0-9]+$/, ""); kept = $0 !~ /^\[System\\/; books = $0 ~ /\\Installer(\\|\])/; key = $0
                if (kept && !books) print
                next }
        kept && NF { if (books) { print key; books = 0 } print }' >"$work/$1.registry"
}

# same ONE OTHER WHAT: two snapshots.
same() {
    local different=
    diff "$work/$1.files" "$work/$2.files" || different=yes
    diff "$work/$1.registry" "$work/$2.registry" || different=yes
    [[ -z $different ]] || die "$3: something was left behind (>) or taken away (<)"
}

# all_classes NAME: the part of a snapshot's registry that registration writes into; keys are in small letters, as one
# that was there before keeps its own spelling.
all_classes() {
    awk '/^\[/ { key = tolower($0); kept = key ~ /^\[software\\\\(wow6432node\\\\)?classes\\/ &&
            key !~ /\\installer\\/; next }
        kept && NF { print key, $0 }' "$work/$1.registry" | LC_ALL=C sort
}

# classes NAME: what has come into it since the beginning.
classes() { comm -13 <(all_classes before) <(all_classes "$1"); }

# What a host and its user have in the chosen folder, and in the component's own: it stays as it is.
put_foreign_files() {
    local folder=$prefix/drive_c/Contab
    mkdir -p "$folder/Tavrin-$arch/docs"
    printf 'program' >"$folder/contab.exe"
    printf 'data' >"$folder/contab.mdb"
    printf 'of the host' | tee "$folder/README.txt" >"$folder/Tavrin.dll"
    printf 'of the user' | tee "$folder/Tavrin-$arch/own.txt" >"$folder/Tavrin-$arch/docs/own.txt"
    foreign_files >"$work/foreign"
}

foreign_files() {
    (cd "$prefix/drive_c/Contab" && sha256sum contab.exe contab.mdb README.txt Tavrin.dll "Tavrin-$arch/own.txt" \
        "Tavrin-$arch/docs/own.txt" 2>&1)
}

# foreign_files_are_whole WHEN
foreign_files_are_whole() { diff "$work/foreign" <(foreign_files) || die "$1: the host's files are not as they were"; }

# installed_is STAGE FOLDER WHEN: the folder, a Unix path below drive C, has this package's files with their content.
installed_is() {
    diff <(cd "$1" && find . -type f -exec sha256sum {} + | LC_ALL=C sort) \
        <(cd "$prefix/drive_c/$2" && find . -type f ! -name own.txt -exec sha256sum {} + | LC_ALL=C sort) ||
        die "$3: the files are not the package's (<)"
}
