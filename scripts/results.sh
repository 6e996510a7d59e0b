# Sourced by ./test: runs checks and test programs, prints one line for each, and adds up what passed and failed.
# Several may run at the same time, each in a shell of its own: what they count goes through a file.
# shellcheck shell=bash
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

logs=$build/test
tally=$logs/tally

# Before anything is counted.
begin_tally() {
    mkdir -p "$logs"
    : >"$tally"
}

# add PASSED FAILED
add() { echo "$1 $2" >>"$tally"; }

# line NAME STATUS SECONDS [OUTPUT]: with what is to be seen of its output below it, in one piece.
line() {
    local text
    text=$(printf '%-24s %-32s %4d s' "$1" "$2" "$3")
    [[ -z ${4:-} ]] || text+=$(printf '\n    %s' "${4//$'\n'/$'\n    '}")
    { flock 9 && printf '%s\n' "$text"; } 9>>"$tally"
}

# check NAME COMMAND...: one test; passes when the command does. Its output is shown when it fails.
check() {
    local name=$1 log=$logs/$1.log start=$SECONDS
    shift
    if "$@" >"$log" 2>&1 </dev/null; then
        add 1 0
        line "$name" ok $((SECONDS - start))
    else
        add 0 1
        line "$name" FAILED $((SECONDS - start)) "$(tail -n 60 "$log")"
        return 1
    fi
}

# figures NAME COMMAND...: a check whose last lines are shown in any case.
figures() {
    local name=$1
    if check "$@"; then
        tail -n 12 "$logs/$name.log" | sed 's/^/    /'
    fi
}

# not_run NAME: what could not even start has failed.
not_run() {
    add 0 1
    line "$1" 'FAILED: not run' 0
}

# skipped NAME REASON: what this machine cannot run, and need not. It counts neither way.
skipped() { line "$1" "skipped: $2" 0; }

# run_program NAME COMMAND...: runs a GoogleTest program that writes $logs/NAME.xml; count_program adds it up.
run_program() {
    local name=$1 start=$SECONDS code=0
    shift
    rm -f "$logs/$name.xml"
    "$@" >"$logs/$name.log" 2>&1 </dev/null || code=$?
    echo "$code $((SECONDS - start))" >"$logs/$name.code"
}

# suite_attribute NAME ATTRIBUTE: the sum of the attribute over all suites of a program's report.
suite_attribute() {
    sed -n "s/^ *<testsuite .* $2=\"\([0-9]*\)\".*/\1/p" "$logs/$1.xml" | awk '{ sum += $1 } END { print sum + 0 }'
}

# The output of the failing tests alone; of a test that never ended, all there is.
failing_output() {
    awk '/^\[ RUN      \]/ { text = ""; open = 1 }
         open { text = text $0 "\n" }
         /^\[       OK \]/ { open = 0 }
         /^\[  FAILED  \]/ && open { printf "%s", text; open = 0 }
         !open && /error: |runtime error|ERROR: / { print }
         END { if (open) printf "%s", text }' "$logs/$1.log" | tail -n 200
}

# count_program NAME: adds up a program that run_program has run. Tests that were skipped or disabled did not pass.
# A program that crashes, hangs or cannot start is one failure more than its tests show.
count_program() {
    local name=$1 code seconds ran=0 bad=0 note=
    read -r code seconds <"$logs/$name.code"
    if [[ -s $logs/$name.xml ]]; then
        bad=$(($(suite_attribute "$name" failures) + $(suite_attribute "$name" errors)))
        bad=$((bad + $(suite_attribute "$name" disabled) + $(suite_attribute "$name" skipped)))
        ran=$(($(suite_attribute "$name" tests) - bad))
        if [[ $ran -eq 0 && $bad -eq 0 ]]; then
            bad=1 note='ran no test'
        elif [[ $code -ne 0 && $bad -eq 0 ]]; then
            bad=1 note="ended with $code after its tests"
        fi
    else
        ran=$(grep -c '^\[       OK \]' "$logs/$name.log" || true)
        bad=$(($(grep -c '^\[  FAILED  \].*ms)' "$logs/$name.log" || true) + 1))
        note="crashed or hung ($code)"
    fi
    add "$ran" "$bad"
    if [[ $bad -eq 0 ]]; then
        line "$name" "$ran passed" "$seconds"
        return
    fi
    line "$name" "FAILED: $bad of $((ran + bad))${note:+, $note}" "$seconds" \
        "$(failing_output "$name" && { [[ -z $note ]] || tail -n 30 "$logs/$name.log"; })"
    return 1
}

# The last line; fails when something failed or nothing ran.
summary() {
    local passed failed
    read -r passed failed < <(awk '{ passed += $1; failed += $2 } END { print passed + 0, failed + 0 }' "$tally")
    echo "$passed passed, $failed failed"
    [[ $failed -eq 0 && $passed -gt 0 ]]
}
