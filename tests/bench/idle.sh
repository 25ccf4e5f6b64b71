#!/usr/bin/env bash
# What the program costs while nobody does anything: the share of one core over a while, and resident memory, with the
# supply polled every second. Prints one line for the window shown, one for the window hidden, and the memory after all
# pages were opened.
#   idle.sh PROGRAM [SECONDS] [MODEL]
set -euo pipefail
program=${1:?usage: idle.sh PROGRAM [SECONDS] [MODEL]}
seconds=${2:-60}
demo=--demo${3:+=$3}
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

"$program" "$demo" --data-dir "$home/data" &
pid=$!
until visible; do sleep 0.1; done
measure shown
# There is no window manager to give it the keyboard: the first click does.
xdotool search --onlyvisible --name '^CorvaneZPSPOWER$' windowmove 0 0 mousemove 500 10 click 1 2>/dev/null
for page in 2 3 4 5 6 7 1; do
    xdotool mousemove 36 $((45 + 60 * page - 30)) click 1
    sleep 0.5
done
awk '/VmRSS/ { printf "all pages opened: %.1f MB resident\n", $2 / 1024 }' "/proc/$pid/status"
kill "$pid"
wait "$pid"
"$program" open "$demo" --data-dir "$home/data" &
pid=$!
until visible; do sleep 0.1; done
while visible; do sleep 0.1; done
measure hidden
