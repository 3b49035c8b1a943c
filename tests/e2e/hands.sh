# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # what belongs to the stage is set there
# Eyes and hands: finding windows, and real key strokes and clicks. To be sourced by stage.sh.
# A window is one of the program $program unless another process id is given.

readonly main_title='^Kestrova$'
readonly message_title='^Kestrova Messenger'
readonly page_title='^Diary'
readonly page_height=377 # pixels below the menu bar: 5650 twips
readonly escape_hatch=5  # seconds for one question to the X server

# Prints the visible window of a program whose title matches; fails when there is none.
find_window() {
    local title=$1 pid=${2:-$program} found
    found=$(timeout "$escape_hatch" \
        xdotool search --onlyvisible --all --pid "$pid" --name "$title" 2>/dev/null) || return 1
    [[ -n $found ]] && tail -n 1 <<<"$found"
}

sees() { find_window "$@" >/dev/null; }

sees_not() { not sees "$@"; }

# Waits for a window, and prints it.
await_window() {
    await "the window $1" "$patience" sees "$@"
    find_window "$@"
}

is_active() { [[ $(timeout "$escape_hatch" xdotool getactivewindow 2>/dev/null) == "$1" ]]; }

activate() {
    timeout "$escape_hatch" xdotool windowactivate "$1" 2>/dev/null
    is_active "$1"
}

# Brings a window to the front, so that it gets what is typed.
go_to() { await "the window $1 to become active" "$patience" activate "$1"; }

press() { xdotool key --delay 30 "$@"; }

type_text() { xdotool type --delay 30 "$1"; }

# Clicks at a place in a window, in pixels.
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; }

# Prints the width and the height of a window.
size_of() {
    xdotool getwindowgeometry --shell "$1" |
        awk -F= '$1 == "WIDTH" { width = $2 } $1 == "HEIGHT" { print width, $2 }'
}

is_gone() { ! xprop -id "$1" WM_STATE 2>/dev/null | grep -q 'Normal'; }

# --- The main window -----------------------------------------------------------------------------

await_main_window() { await_window "$main_title" >/dev/null; }

# --- Message boxes -------------------------------------------------------------------------------

# The reminder window has the same title, but is no dialog.
find_box() {
    local window
    window=$(find_window "$message_title") && is_box "$window" && echo "$window"
}

sees_box() { find_box >/dev/null; }

# Waits for a message box and presses a key in it, Return unless another is given.
accept_box() {
    local box
    await "a message: $1" "$patience" sees_box
    box=$(find_box)
    go_to "$box"
    press "${2:-Return}"
    await "the message to go: $1" "$patience" is_gone "$box"
}

# --- The reminder window ------------------------------------------------------------------------

# Its size for so many lines: 6600 twips wide; 255 high for each line and one more, and 1450.
reminder_size() { echo "440 $(((($1 + 1) * 255 + 1450 + 7) / 15))"; }

find_reminder() {
    local window
    window=$(find_window "$message_title") && ! is_box "$window" && echo "$window"
}

# Whether the reminder window shows so many lines.
sees_reminder() {
    local window
    window=$(find_reminder) && [[ $(size_of "$window") == "$(reminder_size "$1")" ]]
}

# Clicks "Clear Messages", which stands 600 twips below the lines.
clear_reminder() {
    local window size
    window=$(find_reminder)
    size=$(size_of "$window")
    click "$window" 220 $((${size#* } - 40))
    await "the reminder to go" "$patience" is_gone "$window"
}

# --- The day page --------------------------------------------------------------------------------

# Opens the page of the selected day; $page is its window.
open_page() {
    local window
    window=$(await_window "$main_title")
    go_to "$window"
    press Return
    page=$(await_window "$page_title")
    go_to "$page"
}

close_page() {
    go_to "$page"
    press Escape
    await "the day page to close" "$patience" is_gone "$page"
}

# Clicks at a place on the day page, in twips below its menu bar.
click_page() {
    local left=$1 top=$2 height
    height=$(size_of "$page")
    click "$page" $((left / 15)) $((top / 15 + ${height#* } - page_height))
}

click_add_line() { click_page 1600 4450; }

click_row() { click_page 1600 $(($1 * 315 + 840 + 150)); }

# Types a new event into the open page without accepting it: `type_event MESSAGE [HOUR MINUTE]`.
type_event() {
    go_to "$page"
    click_add_line
    type_text "$1"
    if (($# > 1)); then
        press shift+Tab
        type_text "$3"
        press shift+Tab
        type_text "$2"
        press Tab Tab
    fi
}
