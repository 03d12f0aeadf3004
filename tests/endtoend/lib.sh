# shellcheck shell=bash
# What the end-to-end scripts share: a virtual display, a fresh home, and the program in it.
#
#   source lib.sh
#   setup PROGRAM          once; everything is taken down at the script's end
#   fresh_home             $home/ZUL exists and is empty
#   start [ARGUMENT...]    the program, with its window titled $title on the screen
#   quit                   by the keyboard; its exit status must be 0
#
# A wait that does not come true in time fails the script, with the program's console.
set -euo pipefail

readonly poll_seconds=0.05
readonly wait_polls=300 # 15 seconds

work=
server=
display=
pid=
home=
title=
checks=0

fail() {
    echo "FAILED: $1" >&2
    if [[ -f $work/console.txt ]]; then
        echo "--- console of the program" >&2
        cat "$work/console.txt" >&2
    fi
    exit 1
}

# check WHAT COMMAND...
check() {
    local what=$1
    shift
    "$@" || fail "$what"
    checks=$((checks + 1))
}

# wait_for WHAT COMMAND...
wait_for() {
    local what=$1
    shift
    local i
    for ((i = 0; i < wait_polls; ++i)); do
        "$@" && return
        sleep "$poll_seconds"
    done
    fail "$what"
}

takedown() {
    [[ -z $pid ]] || kill "$pid" 2>/dev/null || true
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    [[ -z $work ]] || rm -rf "$work"
}

# Only once the line is complete.
display_is_known() { read -r display <"$work/display"; }

setup() {
    program=$1
    local tool
    for tool in Xvfb xdotool; do
        command -v "$tool" >/dev/null || fail "$tool is not installed"
    done
    work=$(mktemp -d)
    trap takedown EXIT
    # The server picks a free display number and tells it. It would start anew when its last client
    # leaves, and refuse the one that comes just then.
    : >"$work/display"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset \
        3>"$work/display" 2>/dev/null &
    server=$!
    wait_for "The virtual display does not start." display_is_known
    export DISPLAY=:$display
    unset QT_QPA_PLATFORM ZUL_HOME
}

fresh_home() {
    rm -rf "${work:?}/home"
    home=$work/home
    mkdir -p "$home/ZUL"
}

is_running() { kill -0 "$pid" 2>/dev/null; }
is_gone() { ! is_running; }

# The program's window is on the screen with exactly this title.
window_is_up() {
    local id
    is_running || fail "The program ended early."
    for id in $(xdotool search --onlyvisible --name "$title" 2>/dev/null); do
        [[ $(xdotool getwindowname "$id" 2>/dev/null) == "$title" ]] && return
    done
    return 1
}

start() {
    (cd "$home/ZUL" && appdata=$home exec "$program" "$@") >"$work/console.txt" 2>&1 &
    pid=$!
    wait_for "No window titled \"$title\" appears." window_is_up
}

# Without a window manager no window has the keyboard by itself, and the splash screen that goes may
# take it along: it is given and the key pressed until the program goes.
press_quit() {
    is_gone && return
    local id
    for id in $(xdotool search --onlyvisible --name "^ZUL" 2>/dev/null); do
        xdotool windowfocus "$id" key ctrl+q 2>/dev/null || true
    done
    sleep 0.1
    is_gone
}

quit() {
    wait_for "The program does not quit." press_quit
    local status=0
    wait "$pid" || status=$?
    pid=
    check "The program ended with $status." test "$status" -eq 0
}

console_has() { grep -qxF -- "$1" "$work/console.txt"; }
console_count() { grep -cxF -- "$1" "$work/console.txt" || true; }

done_with() {
    echo "$1: $checks checks"
}
