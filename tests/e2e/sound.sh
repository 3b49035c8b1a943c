# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # what belongs to the stage is set there
# A sound server of a scene's own, all of whose sound is recorded. To be sourced by a scene.

open_sound() {
    export PULSE_SERVER=unix:$stage/sound
    HOME=$stage XDG_RUNTIME_DIR=$stage pulseaudio -n --daemonize=no --exit-idle-time=-1 \
        --load="module-null-sink sink_name=ear" \
        --load="module-native-protocol-unix socket=$stage/sound auth-anonymous=1" \
        >"$stage/pulseaudio.log" 2>&1 &
    programs+=($!)
    await "the sound server" "$patience" test -S "$stage/sound"
    parec --device=ear.monitor --rate=44100 --channels=1 --format=s16le --latency-msec=50 \
        >"$stage/heard.raw" 2>/dev/null &
    programs+=($!)
    await "the recording" "$patience" test -s "$stage/heard.raw"
}

# From now on only what comes now is listened to.
listen_anew() { heard_from=$(($(stat -c %s "$stage/heard.raw") / 2 * 2)); }

# Whether anything louder than a whisper has been heard since.
hears_something() {
    tail -c +$((heard_from + 1)) "$stage/heard.raw" | od -An -v -td2 -w2 |
        awk '$1 > 2000 || $1 < -2000 { n++ } END { exit n < 500 }'
}
