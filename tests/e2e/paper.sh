# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # what belongs to the stage is set there
# Reading and writing the program's files without the program. To be sourced by stage.sh.
# A place is: year index (0 or 1), month (0-11), day (1-31), slot (1-10).

readonly diary_lines=91520
readonly settings_lines=70

diary_file() { echo "$house/program/DiaryDat/Data.dat"; }

settings_file() { echo "$house/program/Settings.dat"; }

# Prints the ten fields of a record with bars between them: " 9 | 5 |tea|Never|Screen| 0 ||||".
record() {
    local year=$1 month=$2 day=$3 slot=$4
    local first=$(((((year * 13 + month) * 32 + day) * 11 + slot) * 10 + 1))
    sed -n "$first,$((first + 9))p" "$(diary_file)" | tr -d '\r' | paste -sd '|'
}

record_is() { [[ $(record "${@:1:4}") == "$5" ]]; }

# Whether some event has exactly this message.
diary_holds() { grep -Fqx "$1"$'\r' "$(diary_file)"; }

# Prints the number of events of this message in a year (0 or 1).
count_events() {
    tr -d '\r' <"$(diary_file)" | awk -v message="$1" -v year="$2" '
        NR % 10 == 3 && $0 == message && int((NR - 1) / 45760) == year { count++ }
        END { print count + 0 }'
}

is_whole_diary() { [[ $(wc -l <"$(diary_file)") == "$diary_lines" ]]; }

is_whole_settings() { [[ $(wc -l <"$(settings_file)") == "$settings_lines" ]]; }

# Prints the number of events there are.
count_all_events() { awk 'NR % 10 == 3 && $0 != "\r" { n++ } END { print n + 0 }' "$(diary_file)"; }

# Prints the path of the note of an event; that of a new one has slot 11 until it is accepted.
note_file() {
    local letter=65 day=$(($3 + 65)) code name=
    if (($3 >= 25)); then
        letter=97
        day=$(($3 + 25))
    fi
    for code in $(($4 + letter)) "$day" $(($2 + letter)) $(($1 + letter)); do
        printf -v code '\\x%x' "$code"
        printf -v code '%b' "$code"
        name+=$code
    done
    echo "$house/program/DiaryDat/$name.txt"
}

# Whether a note holds exactly these lines: `note_is YEAR MONTH DAY SLOT LINE...`.
note_is() { printf '%s\r\n' "${@:5}" | cmp -s - "$(note_file "${@:1:4}")"; }

# Writes an empty diary with the events given as lines "YEAR MONTH DAY SLOT|HOUR|MINUTE|MESSAGE|
# REPEAT|REMINDER|DETAIL|DETAIL", the details being a media file, say, or a name and an address. The
# file changes at once, as a careful program writes it.
write_diary() {
    awk -F'|' '
        function put(text) { printf "%s\r\n", text }
        { split($1, p, " "); at[((p[1] * 13 + p[2]) * 32 + p[3]) * 11 + p[4]] = $0 }
        END {
            for (i = 0; i < 9152; i++) {
                split(i in at ? at[i] : "|0|0|||", f, "|")
                put(" " f[2] " "); put(" " f[3] " ")
                put(f[4]); put(f[5]); put(f[6])
                put(" 0 "); put(""); put(f[7]); put(f[8]); put("")
            }
        }' >"$stage/diary.new"
    mv "$stage/diary.new" "$(diary_file)"
}

# The year of the diary, as the settings have it.
settings_year() { sed -n 2p "$(settings_file)" | tr -d ' \r'; }

settings_year_is() { [[ $(settings_year) == "$1" ]]; }

# Prints a line of the settings without the blanks around it.
settings_line() { sed -n "$1p" "$(settings_file)" | tr -d '\r' | sed 's/^ *//;s/ *$//'; }

settings_line_is() { [[ $(settings_line "$1") == "$2" ]]; }

set_settings_year() { sed -i "2s/.*/ $1 \r/" "$(settings_file)"; }

# Prints what lies in the program folder under a name that only a save under way has.
temporary_files() {
    find "$house/program/" -name '*.dat.?*' ! -name '*.lock' -o -name '*.new-*' -o -name Saving.tmp
}

# Fails unless the files are whole and nothing half written lies about.
check_files_in_order() {
    is_whole_diary || fail "the diary is not whole"
    is_whole_settings || fail "the settings are not whole"
    [[ -z $(temporary_files) ]] || fail "left behind: $(temporary_files)"
}

# Whether a file is kept beside another under a name with a mark: `is_kept NAME MARK COPY` looks for
# "NAME MARK ...dat" with the bytes of COPY, in the folder of the file.
is_kept() {
    local kept
    for kept in "$1 $2"*.dat; do
        if cmp -s "$kept" "$3"; then
            return 0
        fi
    done
    return 1
}
