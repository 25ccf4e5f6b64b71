#!/usr/bin/env bash
# Lets a demo record three days in about a minute, exports them, and has a program of its own check every figure
# against the script of loads.
# usage: demo_days.sh PROGRAM FOLDER
set -euo pipefail
program=$1 folder=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rm -rf "$folder" && mkdir -p "$folder"
export XDG_RUNTIME_DIR=$folder XDG_CONFIG_HOME=$folder XDG_DATA_HOME=$folder
export QT_QPA_PLATFORM=offscreen TZ=UTC # where each day has 1440 minutes
from=$(date -d '3 days ago' +%F) to=$(date -d yesterday +%F)
"$program" --demo --fast-clock --data-dir "$folder/data" &
demo=$!
trap 'kill "$demo" 2>/dev/null || true' EXIT
# The third day is settled when the file that holds its last minute is: the thirteenth, but for the row that the
# program takes when it starts.
for ((second = 0; second < 240; second++)); do
    grep -qE '^RecFiledayNumber=1[3-9]' "$folder/data/demo/config_ZPSG.ini" 2>/dev/null && break
    sleep 1
done
kill -TERM "$demo"
wait "$demo" || { echo "the demo did not end well"; exit 1; }
trap - EXIT
for what in minutes days; do
    "$program" export --demo --data-dir "$folder/data" --from "$from" --to "$to" "--$what" \
        --output "$folder/$what.csv"
done
python3 "$here/check_history.py" "$folder/minutes.csv" "$folder/days.csv" "$folder/data/demo/database.db" 1000
