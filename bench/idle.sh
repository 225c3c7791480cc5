#!/bin/sh
# The costs of the whole program, started like a user starts it: processor time of an idle window with a silent feed, memory
# with 2,000,000 ticks loaded, and the time from start to picture.
# Usage: bench/idle.sh [FOLDER OF THE BUILT PROGRAMS]     (default: build/release/bin)
# Needs no display. Uses separate settings and free ports.
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
bin=${1:-$root/build/release/bin}
seconds=20
work=$(mktemp -d)
feed=
chart=
trap 'kill $chart $feed 2>/dev/null || true; rm -rf "$work"' EXIT
export ZANTROQ_SETTINGS="$work/settings.db" QT_QPA_PLATFORM=offscreen

: >"$work/feed"
"$bin/zantroq-feed" --lookup-port 0 --level1-port 0 >>"$work/feed" 2>/dev/null &
feed=$!
tries=0
until grep -q listening "$work/feed"; do
    tries=$((tries + 1))
    [ $tries -lt 100 ] || { echo "the feed did not start" >&2; exit 1; }
    sleep 0.1
done
ports=$(sed -n 's/.*1:\([0-9]*\) and .*1:\([0-9]*\)$/\1 \2/p' "$work/feed")
startup='Software\Zantro\Quovex\Startup'
"$bin/zantroq-settings" --key "$startup" set LookupPort "${ports% *}"
"$bin/zantroq-settings" --key "$startup" set Level1Port "${ports#* }"

# An idle window: waits five seconds for its start, then counts its clock ticks, user and system, for some seconds.
ticks() { awk '{ print $14 + $15 }' "/proc/$1/stat"; }
DISPLAY=none "$bin/zantroq-chart" GOOG --data daily >/dev/null 2>&1 &
chart=$!
sleep 5
before=$(ticks $chart)
sleep $seconds
after=$(ticks $chart)
kill $chart
chart=
awk -v ticks=$((after - before)) -v hz="$(getconf CLK_TCK)" -v s=$seconds \
    'BEGIN { printf "idle window: %.2f %% of a core over %d s\n", 100 * ticks / hz / s, s }'

# Start to picture, the third of three runs.
for run in 1 2 3; do
    began=$(date +%s%N)
    "$bin/zantroq-chart" GOOG --data daily --snapshot "$work/a.png"
    ended=$(date +%s%N)
done
echo "start to picture: $(((ended - began) / 1000000)) ms"

# The feed is a separate process, so the figure covers only the chart.
"$bin/zantroq-settings" set RequestDatapoints 2000000,1000,1000,1000,1000
/usr/bin/env python3 - "$bin/zantroq-chart" "$work/a.json" <<'PYTHON'
import json, resource, subprocess, sys
subprocess.run([sys.argv[1], "SIM.BIG", "--data", "tick", "--timeout", "300", "--snapshot", sys.argv[2]], check=True,
               stderr=subprocess.DEVNULL)
peak = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
count = json.load(open(sys.argv[2]))["range"]["count"]
print(f"memory with {count} ticks: {peak / 1024:.0f} MB at most")
PYTHON
