#!/usr/bin/env bash
# Ctrl+Z is swallowed wherever it is pressed: a name that is typed in the tree of objects stays.
#
#   undo-key.sh PROGRAM
# shellcheck source=tests/endtoend/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
setup "$1"
title="ZUL     default.zul"

fresh_home
cat >"$home/ZUL/default.zul" <<'XML'
<ZUL>
  <TopLevelWindow x="0" y="0" width="1000" height="700"/>
  <ObjectReceive><Window name="Nose" open="0"/></ObjectReceive>
</ZUL>
XML
start

# A click into the tree gives it the keyboard; its second line is the object. What is typed behind
# Ctrl+Z changes the name in any case, and the title tells of it.
rename() {
    local id
    for id in $(xdotool search --onlyvisible --name "^ZUL" 2>/dev/null); do
        xdotool windowfocus "$id" mousemove 140 300 click 1 2>/dev/null || true
    done
    xdotool key Home Down F2 x y ctrl+z z Return
    sleep 0.3
    for id in $(xdotool search --onlyvisible --name "^ZUL" 2>/dev/null); do
        [[ $(xdotool getwindowname "$id" 2>/dev/null) != *"(edited)" ]] || return 0
    done
    return 1
}
wait_for "The name that is typed does not arrive." rename
quit
check "the name is as it was typed" grep -q 'name="xyz"' "$home/ZUL/default.zul"

done_with undo-key
