#!/usr/bin/env bash
# Files of the home directory that no program of this kind wrote: the program starts, quits with 0,
# writes files of its own, and keeps the ones that it could not read.
#
#   hostile-home.sh PROGRAM
# shellcheck source=tests/endtoend/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
setup "$1"
title="ZUL     default.zul"

truncated() { printf '<ZUL><ObjectReceive><Window name="A" op' >"$1"; }
empty() { : >"$1"; }
binary() { head -c 5000 /dev/urandom >"$1"; }
huge() { truncate -s 70M "$1"; }

for kind in truncated empty binary huge; do
    fresh_home
    for file in default.zul zul.ini; do
        "$kind" "$work/$file.given"
        cp --sparse=always "$work/$file.given" "$home/ZUL/$file"
    done
    start
    quit
    for file in default.zul zul.ini; do
        check "$kind $file is kept" cmp "$work/$file.given" "$home/ZUL/$file.bak"
        check "a new $file after $kind" grep -qi '<zul' "$home/ZUL/$file"
    done
done

# A directory in the place of the project: nothing can be read or written there.
fresh_home
mkdir "$home/ZUL/default.zul"
start
quit
check "the directory is still there" test -d "$home/ZUL/default.zul"

# No home directory at all.
fresh_home
rmdir "$home/ZUL"
(cd "$work" && appdata=$home exec "$program") >"$work/console.txt" 2>&1 &
pid=$!
wait_for "No window without a home directory." window_is_up
quit

done_with hostile-home
