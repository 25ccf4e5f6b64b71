#!/usr/bin/env bash
# What the program costs while nobody does anything: the share of one core over a while, and resident memory, with the
# supply polled every second. Prints one line for the window shown and one for the window hidden.
#   idle.sh PROGRAM [SECONDS]
set -euo pipefail
program=${1:?usage: idle.sh PROGRAM [SECONDS]}
seconds=${2:-60}
home=$(mktemp -d)
trap 'kill ${pid:-} ${server:-} 2>/dev/null || true; rm -rf "$home"' EXIT
export XDG_RUNTIME_DIR=$home
chmod 700 "$home"

Xvfb -displayfd 3 -screen 0 1366x768x24 -noreset -nolisten tcp 3>"$home/display" 2>/dev/null &
server=$!
while [ ! -s "$home/display" ]; do sleep 0.1; done
DISPLAY=:$(cat "$home/display")
export DISPLAY

ticks() { awk '{ sub(/.*\) /, ""); print $12 + $13 }' "/proc/$pid/stat"; }
visible() { [ -n "$(xdotool search --onlyvisible --name '^CorvaneZPSPOWER$' 2>/dev/null)" ]; }

measure() { # NAME
    local before after
    sleep 5
    before=$(ticks)
    sleep "$seconds"
    after=$(ticks)
    awk -v name="$1" -v used=$((after - before)) -v hz="$(getconf CLK_TCK)" -v s="$seconds" \
        -v kb="$(awk '/VmRSS/ { print $2 }' "/proc/$pid/status")" \
        'BEGIN { printf "%-8s %5.2f %% of one core, %5.1f MB resident, over %d s\n", name, 100 * used / hz / s, kb / 1024, s }'
}

"$program" --demo --data-dir "$home/data" &
pid=$!
until visible; do sleep 0.1; done
measure shown
kill "$pid"
wait "$pid"
"$program" open --demo --data-dir "$home/data" &
pid=$!
until visible; do sleep 0.1; done
while visible; do sleep 0.1; done
measure hidden
