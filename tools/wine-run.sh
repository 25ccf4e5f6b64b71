#!/usr/bin/env bash
# Runs a Windows program under wine, with a display that nobody sees and a drive C: of its own in FOLDER.
#
# usage: wine-run.sh FOLDER PROGRAM [ARGUMENT...]
#
# Exit status: the program's; 77 when wine or Xvfb is not installed (CTest takes that as skipped).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

(($# >= 2)) || {
    echo "usage: $0 FOLDER PROGRAM [ARGUMENT...]" >&2
    exit 2
}
command -v xvfb-run >/dev/null || {
    echo "skipped: xvfb-run is not installed (Debian: apt-get install xvfb xauth)"
    exit 77
}
"$here/wine-prefix.sh" "$1"
WINEPREFIX=$(cd "$1" && pwd)
shift
export WINEPREFIX WINEDEBUG=${WINEDEBUG:--all}
# A crash is to end the program and not to begin a debugger.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winedbg.exe=;winemenubuilder.exe='
# shellcheck disable=SC2016
# Without sound: what there is would be this user's own. What wine leaves running ends before its display does.
PULSE_SERVER=/dev/null ALSA_CONFIG_PATH=/dev/null xvfb-run --auto-servernum sh -c '
    wine "$@"
    result=$?
    wineserver --kill
    exit $result' sh "$@" </dev/null
