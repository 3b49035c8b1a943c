# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# A copy of the program folder that has been started before. To be sourced.

# Copies the folder of a program below the folder given, starts it there once, so that the files
# which a first start makes are made, and sets program to the copy. Needs a display.
copy_program() {
    local original=$1 folder=$2 first
    mkdir "$folder/program"
    cp -R "$(dirname "$original")/." "$folder/program/"
    program=$folder/program/$(basename "$original")
    "$program" >/dev/null 2>&1 &
    first=$!
    if ! reach_main_window "$first"; then
        end_process "$first"
        echo "$original did not come up." >&2
        return 1
    fi
    end_process "$first"
}
