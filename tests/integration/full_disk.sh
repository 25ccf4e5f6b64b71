#!/usr/bin/env bash
# Records on a small file system of its own while that is full and while it is read-only.
# usage: full_disk.sh RECORD_WRITER EMPTY_DATABASE FOLDER
set -euo pipefail
mkdir -p "$3"
as=()
[ "$(id -u)" -eq 0 ] || as=(--map-root-user)
unshare "${as[@]}" --mount true 2>/dev/null || { echo "no file system can be mounted here"; exit 77; }
QT_LOGGING_RULES='*.warning=false' unshare "${as[@]}" --mount bash -euo pipefail -c '
    mount -t tmpfs -o size=1m tmpfs "$3"
    "$1" faults "$3" "$2"
' - "$@"
