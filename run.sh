#!/usr/bin/env bash
# Builds Zantroq Chart and shows a recorded market on the feed inside the program. Without a display it writes a picture instead and
# says where.
#
#   ./run.sh                 build and start; further words go to zantroq-chart
#   ./run.sh --build-only    build; the programs are then in build/release/bin/, and cmake --install build/release --prefix PREFIX works
#   ./run.sh --help
set -euo pipefail
cd "$(dirname "$0")"

if [[ "${1:-}" == "--help" || "${1:-}" == "-h" ]]; then
    sed -n '2,8s/^# \{0,1\}//p' "$0"
    exit 0
fi

packaging/install-packages.sh build run
packaging/build-release.sh installed

programs=build/release/bin
if [[ "${1:-}" == "--build-only" ]]; then
    echo "Built: $programs/zantroq-chart, $programs/zantroq-feed, $programs/zantroq-settings"
    exit 0
fi

words=("$@")
[[ ${#words[@]} -eq 0 ]] && words=(GOOG --data daily --feed embedded)
if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
    exec "$programs/zantroq-chart" "${words[@]}"
fi
# Without a display: a picture, with separate settings so that the user's do not change.
picture="$PWD/build/chart.png"
ZANTROQ_SETTINGS="$PWD/build/picture-settings.db" "$programs/zantroq-chart" "${words[@]}" --size 900x700 --snapshot "$picture"
echo "There is no display; the chart is in $picture"
