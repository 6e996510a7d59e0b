# Sourced by the scripts: where the clone lies, how they speak, and how they become root.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
build=$root/build
# shellcheck disable=SC2034 # for those who source this file
scripts=$root/scripts

# Debian keeps debootstrap and chroot where only root looks.
PATH=$PATH:/usr/sbin:/sbin

say() { printf '%s\n' "$*" >&2; }

die() {
    say "error: $*"
    exit 1
}

# print_usage SCRIPT: the comment at its beginning.
print_usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$1"; }

# require_value OPTION [VALUE...]: what stands after an option is not the next option.
require_value() { [[ -n ${2:-} && $2 != --* ]] || die "$1 needs a value (see --help)"; }

# Put before a command that needs root.
become_root=()
if [[ $(id -u) -ne 0 ]]; then
    become_root=(sudo --)
fi

as_root() {
    [[ ${#become_root[@]} -eq 0 ]] || command -v sudo >/dev/null || die "this needs root or sudo: $*"
    ${become_root[@]+"${become_root[@]}"} "$@"
}

# Windows programs see the clone's user folder instead of the real one. The display's key is looked for first.
use_own_home() {
    export XAUTHORITY=${XAUTHORITY:-${HOME:-/}/.Xauthority}
    export HOME=$build/wine/home
    mkdir -p "$HOME"
}

# What every run of a Windows program needs: UTF-8, no log, and no debugger, menu builder or browser popping up.
use_wine_environment() {
    use_own_home
    export LC_ALL=C.UTF-8
    export WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES='winedbg.exe=;winemenubuilder.exe=;mscoree,mshtml='
}

# Where this machine gets Debian from.
debian_mirror() {
    local mirror
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Origin: Debian' 'Label: Debian' 2>/dev/null | sort -u | head -n 1)
    echo "${mirror:-http://deb.debian.org/debian}"
}

require_arch() {
    [[ $1 == x64 || $1 == x86 ]] || die "architecture must be x64 or x86, not '$1'"
}

# Under Wine a process that has had some sixty apartments hangs in the next one's first marshalling, and each
# end-to-end test has one of its own. So the tests are dealt to several processes.
# shellcheck disable=SC2034 # for those who source this file
e2e_shards=8
