# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# A display without a screen, for scripts that show the program to nobody. To be sourced.

# Ends a process that this shell has started, gently if it will.
end_process() {
    local pid=$1
    [[ -n $pid ]] || return 0
    kill "$pid" 2>/dev/null || true
    for _ in {1..30}; do
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.1
    done
    kill -KILL "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}

# Starts an X server on a free display number, and sets DISPLAY, and xvfb to its process. The folder
# is for its messages.
start_virtual_display() {
    local folder=$1 number=
    mkfifo "$folder/display"
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset \
        3>"$folder/display" >/dev/null 2>"$folder/xvfb.log" &
    xvfb=$!
    # Opened for reading and writing, so that a server that dies cannot leave us waiting at the pipe.
    exec 4<>"$folder/display"
    read -r -t 20 -u 4 number || true
    exec 4>&-
    if [[ -z $number ]]; then
        echo "The virtual display did not start:" >&2
        cat "$folder/xvfb.log" >&2
        return 1
    fi
    export DISPLAY=:$number
    unset WAYLAND_DISPLAY
    export QT_QPA_PLATFORM=xcb
    # A runtime folder of its own: a program that runs elsewhere must not take this start for its.
    mkdir -m 0700 "$folder/runtime"
    export XDG_RUNTIME_DIR=$folder/runtime
}

# Whether a window is a message box or the like, which stands before the main window.
is_box() { xprop -id "$1" _NET_WM_WINDOW_TYPE 2>/dev/null | grep -q _DIALOG; }

# Answers every message box of a process (a first start tells that it has made its files) until the
# main window stands there alone. Fails when it does not within half a minute, or the process ends.
reach_main_window() {
    local pid=$1 window boxes others
    for _ in {1..150}; do
        kill -0 "$pid" 2>/dev/null || return 1
        boxes=0
        others=0
        for window in $(xdotool search --onlyvisible --pid "$pid" 2>/dev/null || true); do
            if is_box "$window"; then
                boxes=$((boxes + 1))
                xdotool windowfocus "$window" key Return 2>/dev/null || true
            else
                others=$((others + 1))
            fi
        done
        if ((others > 0 && boxes == 0)); then
            return 0
        fi
        sleep 0.2
    done
    return 1
}
