#!/usr/bin/env bash
# The program with each form of its command line: what the console says, that the window comes
# nevertheless, and what lies in the home directory afterwards.
#
#   command-line.sh PROGRAM
# shellcheck source=tests/endtoend/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
setup "$1"
title="ZUL     default.zul"

readonly dashes="-------------------------------------------------"
readonly help_line="-h       print this help"
readonly usage_line="Usage of $program :"

# line_of TEXT: the number of the first line that starts with it, 0 if there is none
line_of() {
    awk -v text="$1" 'index($0, text) == 1 { print NR; found = 1; exit } END { if (!found) print 0 }' \
        "$work/console.txt"
}

# run USAGE_COUNT [ARGUMENT...]: start, look at the console, quit
run() {
    local usages=$1
    shift
    fresh_home
    [[ -z ${settings:-} ]] || printf '%s' "$settings" >"$home/ZUL/zul.ini"
    start "$@"
    quit
    check "usage $usages times with: $*" test "$(console_count "$usage_line")" -eq "$usages"
    check "help line $usages times with: $*" test "$(console_count "$help_line")" -eq "$usages"
    check "two dashed lines with: $*" test "$(console_count "$dashes")" -eq 2
    check "home with: $*" console_has "HOME: <$home>"
    check "default.zul with: $*" test -s "$home/ZUL/default.zul"
    check "zul.ini with: $*" test -s "$home/ZUL/zul.ini"
}

run 0
check "the banner stands first" test "$(line_of "$dashes")" -eq 1
version=$(line_of "                Version  : ZUL 1.8.9")
check "version in the banner" test "$version" -gt 1
check "build stamp next" test "$(line_of "                Compiled : ")" -eq $((version + 1))
check "directory next" console_has "                CWD      : $home/ZUL"
check "home after the banner" test "$(line_of "HOME: <")" -gt $((version + 3))

run 1 -h
check "banner, then usage" test "$(line_of "Usage of ")" -gt "$(line_of "                CWD ")"
check "usage, then home" test "$(line_of "HOME: <")" -gt "$(line_of "Usage of ")"
check "-f stands before -h" test "$(line_of "-h  ")" -eq $(($(line_of "-f  ") + 1))
check "default of -f" console_has "-f       [initialisation file] default [zul.ini]"

run 1 -x
check "the unknown option is named" console_has "unknown option -x"
check "before the usage" test "$(line_of "Usage of ")" -gt "$(line_of "unknown option -x")"

run 1 -h -h

run 0 -f

# The file that -f names is not read: what counts is zul.ini of the home.
settings='<Zul><Property id="OnCloseDialog" value="2"/><Property id="Kept" value="home"/></Zul>'
run 0 -f other.ini
check "settings of the home are kept" grep -q '"Kept"' "$home/ZUL/zul.ini"
check "and their values" grep -q '"home"' "$home/ZUL/zul.ini"
check "no other file is written" test ! -e "$home/ZUL/other.ini"

done_with command-line
