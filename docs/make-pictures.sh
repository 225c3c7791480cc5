#!/bin/sh
# Remakes the pictures of the documents:
#   docs/images/studies/<name>.png            one for each study, and all.png with all ten
#   docs/images/trends/<name>.png             one for each kind of trendline, drawn with the mouse of a replay script
#   docs/images/window.png, window-dark.png   the real window
#   docs/images/settings/<page>.png           the pages of the settings sheet
#   docs/images/symbol-search.png             the symbol search
# The last three need the packages xvfb, xdotool and imagemagick, and are not remade without them.
# Usage: docs/make-pictures.sh [FOLDER OF THE BUILT PROGRAMS]     (default: build/release/bin)
# Uses a separate settings file; needs neither your display nor a feed.
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
bin=${1:-$root/build/release/bin}
images=$root/docs/images/studies
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$images"

export ZANTROQ_SETTINGS="$work/settings.db"
export QT_QPA_PLATFORM=offscreen

set_value() { "$bin/zantroq-settings" set "$1" "$2" --type sz; }

# picture NAME STUDY...: a price pane with these studies below it, in equal shares of the lower part.
picture() {
    name=$1
    shift
    "$bin/zantroq-settings" reset --yes 2>/dev/null
    set_value "RequestDataType" 2
    set_value "PTS INDEX" 3
    set_value "Number of displayed study charts" $#
    place=0
    for study in "$@"; do
        set_value "Type of study chart $place" "$study"
        place=$((place + 1))
    done
    # Two shares for the prices, one for each study (for one study: an even split).
    pane=1
    shares=$(($# + 2))
    while [ $pane -le $(($# + 1)) ]; do
        set_value "Top of chart $pane" "$(awk "BEGIN { printf \"%.6f\", ($pane + 1) / $shares }")"
        pane=$((pane + 1))
    done
    "$bin/zantroq-chart" --feed embedded --size "$size" --data daily --snapshot "$images/$name.png" GOOG
}

size=700x420
picture rsi 0
picture momentum 1
picture roc 2
picture obv 3
picture macd 4
picture stochastics 5
picture volume 6
picture money-flow 7
picture mfi 8
picture adx 9
size=1000x1300
picture all 0 1 2 3 4 5 6 7 8 9

# trend NAME COMMAND X1 Y1 X2 Y2 [X3 Y3]: a line drawn at these pixels of the price pane.
images=$root/docs/images/trends
mkdir -p "$images"
trend() {
    name=$1
    command=$2
    shift 2
    "$bin/zantroq-settings" reset --yes
    set_value "Number of displayed study charts" 0
    {
        printf 'resize 700 420\ntype daily\nsymbol GOOG\ndraw\nwait complete\ncommand %s\n' "$command"
        while [ $# -gt 0 ]; do
            printf 'mouse move 341 0 %s %s\nmouse down 341 1 %s %s\n' "$1" "$2" "$1" "$2"
            shift 2
        done
        # The right click ends the mode and removes its prompt.
        printf 'mouse down 341 2 5 5\nsnapshot "%s"\n' "$images/$name.png"
    } >"$work/script.txt"
    "$bin/zantroq-chart" --feed embedded --replay "$work/script.txt"
}

trend horizontal 32779 335 192 520 192
trend sloping 32784 88 88 470 155
trend parallel 32785 88 88 470 155 355 195
trend pitchfork 32786 330 125 385 185 220 95
trend fibonacci-fan 32789 88 88 345 125
trend fibonacci-retracements 32790 260 92 345 158
trend speed-resistance 32788 88 88 345 150

# window NAME LOOK: the window on a display, with the mouse over a day.
window() {
    Xvfb -displayfd 3 -screen 0 1280x800x24 3>"$work/display" 2>/dev/null &
    server=$!
    while [ ! -s "$work/display" ]; do sleep 0.1; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    env -u QT_QPA_PLATFORM QT_QPA_PLATFORMTHEME= ZANTROQ_LOOK="$2" "$bin/zantroq-chart" GOOG --data daily \
        --feed embedded --size 900x560 2>/dev/null &
    chart=$!
    id=$(xdotool search --sync --onlyvisible --name "GOOG - Chart" | tail -n 1)
    sleep 2 # the reply, and a first live trade
    xdotool mousemove --window "$id" 503 200
    sleep 1
    import -window "$id" "$root/docs/images/$1.png"
    kill "$chart" "$server"
    wait "$chart" "$server" 2>/dev/null || true
    rm "$work/display"
}

# dialog TITLE FILE: the open dialog with this title, while the script runs.
dialog() {
    Xvfb -displayfd 3 -screen 0 1280x800x24 3>"$work/display" 2>/dev/null &
    server=$!
    while [ ! -s "$work/display" ]; do sleep 0.1; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    env -u QT_QPA_PLATFORM QT_QPA_PLATFORMTHEME= ZANTROQ_LOOK=light "$bin/zantroq-chart" --feed embedded \
        --replay "$work/script.txt" --show 2>/dev/null &
    chart=$!
    id=$(xdotool search --sync --onlyvisible --name "^$1$" | tail -n 1)
    sleep 3
    import -window "$id" -strip "$root/docs/images/$2.png"
    wait "$chart" || true
    kill "$server"
    wait "$server" 2>/dev/null || true
    rm "$work/display"
}

# sheet NAME PAGE: a page of the settings sheet.
sheet() {
    mkdir -p "$root/docs/images/settings"
    "$bin/zantroq-settings" reset --yes
    printf 'type daily\nsymbol GOOG\ndraw\nwait complete\ncommand 775\ndialog page "%s"\nwait 8000\ndialog cancel\n' \
        "$2" >"$work/script.txt"
    dialog Settings "settings/$1"
}

# The symbol search with its options open and results.
search() {
    "$bin/zantroq-settings" reset --yes
    printf 'command 774\ndialog press 248\ndialog set 235 google\ndialog press 234\nwait search\nwait 8000\ndialog cancel\n' \
        >"$work/script.txt"
    dialog "Search for Company" symbol-search
}

for tool in Xvfb xdotool import; do
    command -v "$tool" >/dev/null || { echo "the pictures of windows stay as they are: $tool is missing" >&2; exit 0; }
done
"$bin/zantroq-settings" reset --yes
set_value "MAs SHOW" 1
window window light
"$bin/zantroq-settings" import "$root/docs/dark-chart.json"
window window-dark dark
sheet colors Colors
sheet general General
sheet data Data
sheet upper-studies "Upper Studies"
sheet lower-studies "Lower Studies"
search
