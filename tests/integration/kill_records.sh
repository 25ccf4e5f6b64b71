#!/usr/bin/env bash
# Kills the recording at each of its system calls that change a file, starts it again, and checks that every row
# is there once and settled once.
# usage: kill_records.sh RECORD_WRITER EMPTY_DATABASE FOLDER
set -euo pipefail
writer=$1 database=$2 folder=$3
export QT_LOGGING_RULES='*.warning=false'
mkdir -p "$folder"
killed=0
for call in write pwrite64 fsync fdatasync ftruncate rename linkat unlink copy_file_range sendfile; do
    for ((at = 1; ; at++)); do
        "$writer" prepare "$folder/start" "$database"
        status=0
        # In a shell of its own, which keeps its word about the killed child to itself.
        bash -c '"$@"; exit $?' - strace -f -qq -o /dev/null -e "trace=$call" \
            -e "inject=$call:signal=KILL:when=$at" "$writer" run "$folder/start" >/dev/null 2>&1 || status=$?
        [ "$status" -eq 0 ] && break # it came to its end: there is no such call any more
        killed=$((killed + 1))
        "$writer" run "$folder/start"
        "$writer" check "$folder/start" || {
            echo "after a kill at $call number $at"
            exit 1
        }
    done
done
"$writer" check "$folder/start"
[ "$killed" -ge 50 ] || { echo "killed only $killed times: does strace work here?"; exit 1; }
echo "killed $killed times"
rm -rf "$folder"
