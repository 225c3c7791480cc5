#!/bin/sh
# Remakes the pictures of the documents: docs/images/studies/<name>.png, one for each study, and all.png with all ten.
# Usage: docs/make-pictures.sh [FOLDER OF THE BUILT PROGRAMS]     (default: build/release/bin)
# Works on a settings file of its own; needs no display and no feed.
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
    "$bin/zantroq-settings" reset --yes
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

size=900x420
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
size=1200x1400
picture all 0 1 2 3 4 5 6 7 8 9
