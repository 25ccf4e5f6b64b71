#!/usr/bin/env bash
# Tries what build.sh has built, under wine on a display that nobody sees: the unit tests, the program, the setup and the
# ZIP. Arguments go to CTest: test.sh -R records
#
# usage: test.sh [--if-built] [CTEST-ARGUMENT...]
#
#   --if-built    builds what has changed when the libraries are there already, and otherwise only says so; without it,
#                 they are built as well
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
. "$root/tools/setup.sh"

install_missing "${build_packages[@]}" "${test_packages[@]}"
if [ "${1:-}" = --if-built ]; then
    shift
    if ! "$here/sysroot.sh" --find >/dev/null; then
        echo "The Windows libraries are not built on this machine (packaging/windows/build.sh does that), so the whole" \
            "program is not tried; what runs on Windows alone was."
        exit 0
    fi
fi
"$here/build.sh" --tests # installs the rest
sysroot=$("$here/sysroot.sh")
build=$root/build-windows

"$root/tools/wine-prefix.sh" "$build/wine"
folders=("$sysroot/bin" "$build/stage")
WINEPATH=$(printf 'Z:%s;' "${folders[@]}" | tr / '\\')
export WINEPATH WINEPREFIX=$build/wine WINEDEBUG=-all QT_PLUGIN_PATH=$sysroot/plugins
export WINEDLLOVERRIDES='mscoree=;mshtml=;winedbg.exe=;winemenubuilder.exe='
export PULSE_SERVER=/dev/null ALSA_CONFIG_PATH=/dev/null # what sound there is would be this user's own

failed=0
xvfb-run --auto-servernum --server-args '-screen 0 1366x768x24' \
    ctest --test-dir "$build/cross" --output-on-failure "$@" || failed=1
wineserver --kill || true
if [ $# -eq 0 ]; then
    xvfb-run --auto-servernum "$here/test-network.sh" "$build/stage/zpsg.exe" || failed=1
    "$here/test-installer.sh" "$build/output/zpsg-setup.exe" || failed=1
fi
exit $failed
