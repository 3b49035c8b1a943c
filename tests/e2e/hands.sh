# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # what belongs to the stage is set there
# Eyes and hands: finding windows, and real key strokes and clicks. To be sourced by stage.sh.
# A window is one of the program $program unless another process id is given.

readonly main_title='^Kestrova$'
readonly message_title='^Kestrova Messenger'
readonly note_title='^Text Editor$'
page_title='^Diary' # in English: a scene that goes to another language sets these anew
settings_title='^Settings$'
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

# Presses one key so many times.
press_times() {
    local keys
    mapfile -t keys < <(yes "$2" | head -n "$1")
    ((${#keys[@]} == 0)) || press "${keys[@]}"
}

# Takes the keyboard so many controls further, or back when the number is negative.
tab_by() {
    if (($1 < 0)); then
        press_times $((-$1)) shift+Tab
    else
        press_times "$1" Tab
    fi
}

# Clicks at a place in a window, in pixels.
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; }

# Prints the width and the height of a window.
size_of() {
    xdotool getwindowgeometry --shell "$1" |
        awk -F= '$1 == "WIDTH" { width = $2 } $1 == "HEIGHT" { print width, $2 }'
}

# Prints the place of a window on the screen, without its frame.
place_of() {
    xwininfo -id "$1" |
        awk '/Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { print x, $NF }'
}

is_gone() { ! xprop -id "$1" WM_STATE 2>/dev/null | grep -q 'Normal'; }

# --- What a window shows -------------------------------------------------------------------------

need_pictures() { command -v import >/dev/null || skip "ImageMagick is not installed"; }

# The mouse lights up what it stands over.
put_mouse_away() { xdotool mousemove 1279 799; }

# Prints the pixels of a part of a window that nothing covers: `pixels_of WINDOW WIDTHxHEIGHT+X+Y`.
pixels_of() {
    timeout "$escape_hatch" import -silent -window "$1" -crop "$2" +repage -depth 8 rgb:-
}

# Prints a name for what that part shows: the same pixels, the same name.
look_of() { pixels_of "$@" | sha256sum; }

# The same, when it is no longer being drawn.
look_at_rest() {
    local look last='' end=$((SECONDS + patience))
    until look=$(look_of "$@") && [[ $look == "$last" ]]; do
        ((SECONDS < end)) || return 1
        last=$look
        sleep 0.05
    done
    echo "$look"
}

# Prints red, green and blue at a place in a window: "193 193 193".
colour_at() { pixels_of "$1" "1x1+$2+$3" | od -An -tu1 | awk '{ print $1, $2, $3 }'; }

# --- The main window -----------------------------------------------------------------------------

await_main_window() { await_window "$main_title" >/dev/null; }

# Prints the colour behind the dates, from the right edge of their card.
card_colour() {
    local window size
    window=$(find_window "$main_title")
    size=$(size_of "$window")
    colour_at "$window" $((${size% *} - 22)) $((${size#* } / 2))
}

card_colour_is() { [[ $(card_colour) == "$1" ]]; }

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

# Prints a dialog of the program that is none of the windows given, whatever its title.
find_other_box() {
    local window
    for window in $(timeout "$escape_hatch" \
        xdotool search --onlyvisible --all --pid "$program" --name '' 2>/dev/null); do
        if [[ " $* " != *" $window "* ]] && is_box "$window"; then
            echo "$window"
            return 0
        fi
    done
    return 1
}

sees_other_box() { find_other_box "$@" >/dev/null; }

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

# "Event Details": opens the note of the row that is edited; $note is its window.
open_note() {
    click_page 4800 5225
    note=$(await_window "$note_title")
    go_to "$note"
}

close_note() {
    go_to "$note"
    press Escape
    await "the note to close" "$patience" is_gone "$note"
}

# Prints a name for what the ten rows show: the same rows, the same name.
look_of_rows() {
    local size
    size=$(size_of "$page")
    put_mouse_away
    look_at_rest "$page" "${size% *}x208+0+$((${size#* } - page_height + 78))"
}

rows_look_like() { [[ $(look_of_rows) == "$1" ]]; }

# Chooses from the list of diaries: the first is the user's own, the last adds one.
choose_diary() {
    go_to "$page"
    click_page 11000 4770
    press Home
    press_times $(($1 - 1)) Down
    press Return
}

# --- The settings window -------------------------------------------------------------------------

# Opens it, with the keyboard on the list of languages; $settings is its window.
open_settings() {
    local window
    window=$(await_window "$main_title")
    go_to "$window"
    press ctrl+comma
    settings=$(await_window "$settings_title")
    go_to "$settings"
}

# Return is "Save", wherever the keyboard stands.
save_settings() {
    go_to "$settings"
    press Return
    await "the settings window to close" "$patience" is_gone "$settings"
}
