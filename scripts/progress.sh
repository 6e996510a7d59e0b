# Sourced by what takes long: one line a stage, which says how far it has come and in the end how long it took.
# shellcheck shell=bash

# On a terminal a line is renewed in place; elsewhere a new one is printed now and then.
seconds_between_lines=15

# shellcheck disable=SC2034 # for those who source this file
ninja_progress='s,^\[\([0-9]*\)/\([0-9]*\)\].*, \1 of \2,p'

# stage TITLE LOG PROGRESS COMMAND...: runs the command, keeps all that it says in LOG, and shows the last of it where it
# fails. PROGRESS is a sed program that makes of what it says how far it has come; what that has after a colon is of
# the moment and not in the stage's last line.
stage() {
    local title=$1 log=$2 progress=$3 code=0
    shift 3
    mkdir -p "$(dirname "$log")"
    "$@" </dev/null 2>&1 | tee "$log" | sed -un "$progress" | show_progress "$title" || code=$?
    [[ $code -ne 0 ]] || return 0
    grep -v '^[dp][lm]status:' "$log" | tail -n 20 | sed 's/^/    /' >&2
    die "that failed with $code; all that was said is in $log"
}

# renew LINE: the line of a terminal.
renew() { [[ ! -t 2 ]] || printf '\r\033[K%s' "$1" >&2; }

# show_progress TITLE: takes each line that comes in for how far the stage has come.
show_progress() {
    local title=$1 start=$SECONDS shown=$SECONDS far='' line
    renew "$title"
    [[ -t 2 ]] || say "$title"
    while IFS= read -r line; do
        far=$line
        renew "$title$far"
        if [[ ! -t 2 && $((SECONDS - shown)) -ge $seconds_between_lines ]]; then
            say "$title$far"
            shown=$SECONDS
        fi
    done
    renew ''
    say "$title${far%%:*}, $((SECONDS - start)) s"
}
