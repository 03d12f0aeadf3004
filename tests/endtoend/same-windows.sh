#!/usr/bin/env bash
# The demo project with traffic, quit, and started again: the second run brings back the same
# windows, and saves the same bytes.
#
#   same-windows.sh PROGRAM RUN_HEADLESS DEMO_DIRECTORY
# shellcheck source=tests/endtoend/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
setup "$1"
run_headless=$2
demo=$3
title="ZUL     default.zul"

fresh_home
cp "$demo/default.zul" "$demo/zul.ini" "$home/ZUL/"
check "the demo project runs" "$run_headless" "$program" "$home" "$work/picture.png" 1
check "a screenshot was made" test -s "$work/picture.png"
cp "$home/ZUL/default.zul" "$work/first.zul"
check "the demo's windows are saved as open" \
    test "$(grep -c 'open="1"' "$work/first.zul")" -eq "$(grep -c 'open="1"' "$demo/default.zul")"

for run in 2 3; do
    start
    quit
    check "run $run saves the same bytes" cmp "$work/first.zul" "$home/ZUL/default.zul"
done

done_with same-windows
