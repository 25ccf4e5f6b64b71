#!/usr/bin/env bash
# Makes what wine needs to run a program: its registry and its drive C:. Once; a second call finds it made. Two
# programs that run at the same time, or that change it, each want a copy of their own: it is small.
#
# usage: wine-prefix.sh FOLDER
#
# Exit status: 0, 77 when wine is not installed (CTest takes that as skipped).
set -euo pipefail

[ $# -eq 1 ] || {
    echo "usage: $0 FOLDER" >&2
    exit 2
}
command -v wine wineserver flock >/dev/null || {
    echo "skipped: wine is not installed (Debian: apt-get install wine wine64)"
    exit 77
}
mkdir -p "$1"
folder=$(cd "$1" && pwd)
exec {lock}>"$folder.lock"
flock "$lock"
# Another wine would bring the folder up to date at every start, which takes longer than all else.
made=$(WINEDEBUG=-all wine --version && cksum <"$0")
if [ "$(cat "$folder/made" 2>/dev/null)" = "$made" ]; then exit; fi

rm -rf -- "$folder"
mkdir "$folder"
export WINEPREFIX=$folder WINEARCH=win64 WINEDEBUG=-all
# Neither .NET nor a browser is asked for, no menu entries are made, and no window says that it is at work.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
unset DISPLAY
{
    wine wineboot --init
    # Devices come from the kernel as they are, not as game controllers, and their nodes are watched: the guest
    # that the tests of devices run in has no udevd.
    for value in 'Enable SDL=0' DisableUdevd=1; do
        wine reg add 'HKLM\System\CurrentControlSet\Services\WineBus' \
            /v "${value%=*}" /t REG_DWORD /d "${value#*=}" /f
    done
    wineserver --wait
} >"$folder.log" 2>&1 {lock}>&- || {
    tail -n 20 "$folder.log" >&2
    echo "$0: wine could not make $folder" >&2
    exit 1
}
# Wine copies its whole self there, 700 MB; links do as well.
find "$folder/drive_c" -type f -size +8k -print0 | while IFS= read -r -d '' file; do
    for own in /usr/lib/*/wine/x86_64-windows/ /usr/lib/wine/x86_64-windows/; do
        if cmp -s "$own${file##*/}" "$file"; then ln -sf "$own${file##*/}" "$file"; fi
    done
done
echo "$made" >"$folder/made"
