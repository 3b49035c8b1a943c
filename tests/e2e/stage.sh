# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# The stage for a scene: the real program on a virtual screen, with a window manager, a clock that
# the scene sets, and a user at keyboard and mouse. To be sourced, from a scene that is run as
#
#     bash NAME.scene FOLDER_OF_THE_BUILT_PROGRAM
#
# A scene builds houses (`build_house`), each with its own copy of the program folder and its own
# home, starts programs in them and looks at windows and files. Every wait has a bound, and all that
# was started is ended by its process id. When a scene fails, its screen is kept as a picture in the
# folder $KESTROVA_PICTURES ("scene-pictures" when that is not set).
set -euo pipefail

stage_source=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../../tools/virtual-display.bash
source "$stage_source/../../tools/virtual-display.bash"
# shellcheck source=paper.sh
source "$stage_source/paper.sh"
# shellcheck source=hands.sh
source "$stage_source/hands.sh"

scene=$(basename "$0" .scene)
built=$(cd "${1:?the folder of the built program}" && pwd)
pictures=${KESTROVA_PICTURES:-$PWD/scene-pictures}
patience=20 # seconds that anything may take which should come at once
stage=      # the folder of everything in this scene
programs=() # the process ids of what was started in it
house=      # the folder of the house in which programs are started
program=    # the process id of the program started last

# --- Telling -------------------------------------------------------------------------------------

tell() { echo "$scene: $*"; }

fail() {
    tell "FAILED: $*" >&2
    exit 1
}

skip() {
    tell "skipped: $*"
    exit 77
}

# Keeps what is on the screen, or in one window, for a human.
keep_picture() {
    local name=$1 window=${2:-root}
    command -v import >/dev/null || return 0
    mkdir -p "$pictures"
    timeout 10 import -window "$window" "$pictures/$scene-$name.png" || return 0
    tell "picture: $pictures/$scene-$name.png"
}

# --- Waiting -------------------------------------------------------------------------------------

# Whether a command succeeds within some seconds: `comes_true SECONDS COMMAND...`.
comes_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.05
    done
}

# Waits for what must come true: `await WHAT SECONDS COMMAND...`.
await() {
    comes_true "${@:2}" || fail "waited in vain for: $1"
}

not() { ! "$@"; }

# --- Setting up and taking down ------------------------------------------------------------------

need_tools() {
    local tool
    for tool in Xvfb openbox xdotool xprop; do
        command -v "$tool" >/dev/null || skip "$tool is not installed"
    done
    clock_library=$(find /usr/lib* /usr/local/lib* -name libfaketime.so.1 -print -quit 2>/dev/null)
    [[ -n $clock_library ]] || skip "libfaketime is not installed"
}

has_window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

open_stage() {
    need_tools
    stage=$(mktemp -d "${TMPDIR:-/tmp}/kestrova-$scene.XXXXXX")
    trap close_stage EXIT
    trap 'exit 1' HUP INT TERM
    unset DBUS_SESSION_BUS_ADDRESS XDG_CONFIG_HOME XMODIFIERS "${!LC_@}" "${!QT_@}"
    export TZ=UTC LANG=C.UTF-8 NO_AT_BRIDGE=1
    start_virtual_display "$stage"
    HOME=$stage openbox --sm-disable >"$stage/openbox.log" 2>&1 &
    openbox=$!
    await "the window manager" "$patience" has_window_manager
}

close_stage() {
    local status=$? pid
    trap - EXIT
    set +e
    if [[ $status != 0 && $status != 77 ]]; then
        [[ -z ${DISPLAY:-} ]] || keep_picture failed
        find "$stage" -name messages -exec cat {} + >&2
    fi
    for pid in "${programs[@]}" "${openbox:-}" "${xvfb:-}"; do
        end_process "$pid"
        # What the clock's library keeps for a process outlives one that was killed.
        rm -f "/dev/shm/faketime_shm_$pid" "/dev/shm/sem.faketime_sem_$pid"
    done
    [[ -z ${disc:-} ]] || umount -l "$disc"
    rm -rf "$stage"
    exit "$status"
}

# --- The clock -----------------------------------------------------------------------------------

# Sets the clock of all programs, running or yet to start: "2026-03-10 09:04:50". It goes on from
# there.
set_clock() {
    local offset=$(($(date -d "$1" +%s) - $(date +%s)))
    printf '%+d\n' "$offset" >"$stage/clock.new"
    mv "$stage/clock.new" "$stage/clock"
}

# --- Programs ------------------------------------------------------------------------------------

# Makes a house and moves in: $house/program is the program folder, a copy of the one that was built
# or of another.
build_house() {
    house=$stage/$1
    mkdir -p "$house"/{home,program}
    mkdir -m 0700 "$house/runtime"
    cp -R "${2:-$built}/." "$house/program"
}

# Starts a program in the house. $program is its process id.
start() {
    start_by_real_clock LD_PRELOAD="$clock_library" FAKETIME_TIMESTAMP_FILE="$stage/clock" \
        FAKETIME_NO_CACHE=1 FAKETIME_DONT_FAKE_MONOTONIC=1 NO_FAKE_STAT=1
}

# The same by the machine's own clock: `start_by_real_clock [ARGUMENT...] [NAME=VALUE...]`.
start_by_real_clock() {
    local word values=() arguments=()
    for word in "$@"; do
        if [[ $word =~ ^[A-Z_]+= ]]; then
            values+=("$word")
        else
            arguments+=("$word")
        fi
    done
    env HOME="$house/home" XDG_RUNTIME_DIR="$house/runtime" XDG_DATA_HOME="$house/home/data" \
        "${values[@]}" "$house/program/Kestrova" "${arguments[@]}" >>"$house/messages" 2>&1 &
    program=$!
    programs+=("$program")
}

is_running() { kill -0 "$1" 2>/dev/null; }

# Waits until a program has ended, and checks the code with which it did.
await_end() {
    local pid=$1 wanted=${2:-0} code=0
    await "the end of a program" "$patience" not is_running "$pid"
    wait "$pid" || code=$?
    [[ $code == "$wanted" ]] || fail "a program ended with $code instead of $wanted"
}

# Ends a program as the session's end does.
stop() {
    kill -TERM "$1"
    await_end "$1" 0
}

# Ends a program as a power cut does. The shell's remark on it is nobody's business.
cut_power() {
    kill -KILL "$1"
    wait "$1" 2>/dev/null || true
}

# Starts the program where it has not run before, and answers what it says about the files that it
# does not find.
start_first_time() {
    start
    accept_box settings
    accept_box diary
    await_main_window
}

# Starts the program where it has run before: it has no message, at most a reminder.
start_again() {
    start
    await_main_window
    not sees_box || fail "a start like any other shows a message"
}

open_stage
