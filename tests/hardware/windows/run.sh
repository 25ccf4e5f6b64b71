#!/usr/bin/env bash
# Builds HidHelper for Windows and runs the test program that drives it, in the guest, where wine finds the
# kernel's HID devices.
#
# usage: run.sh OUTPUT-FOLDER TEST-PROGRAM [ARGUMENT...]
#
# hidapi comes from Debian's source package, fetched once into ${ZPSG_CACHE:-~/.cache/zpsg}. Exit status: the
# test's own; 77 when wine, the cross compiler or hidapi's source is missing (CTest takes that as skipped).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../../.." && pwd)

(($# >= 2)) || {
    echo "usage: $0 OUTPUT-FOLDER TEST-PROGRAM [ARGUMENT...]" >&2
    exit 2
}
mkdir -p "$1"
output=$(cd "$1" && pwd)
shift

skip() {
    echo "skipped: $1"
    exit 77
}

compiler=x86_64-w64-mingw32-g++-posix
command -v "$compiler" >/dev/null || skip "$compiler is missing (Debian: apt-get install g++-mingw-w64-x86-64-posix)"
"$root/tools/wine-prefix.sh" "$output/prefix"

cache=${ZPSG_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zpsg}
fetch_hidapi() {
    local scratch=$cache/hidapi.part.$$ result=0
    mkdir -p "$cache"
    # shellcheck disable=SC1091
    source "$root/packaging/windows/sources.sh"
    if { sources_prepare "$scratch" && source_fetch hidapi "$scratch/unpacked"; } >"$output/hidapi.log" 2>&1; then
        mv -T "$scratch/unpacked" "$cache/hidapi" || true
    else
        result=1
    fi
    rm -rf -- "$scratch"
    return $result
}
[[ -d $cache/hidapi ]] || fetch_hidapi || skip "hidapi's source package can't be fetched, see $output/hidapi.log"

cd "$root"
warnings=(-O1 -Wall -Wextra -Wpedantic -Werror)
x86_64-w64-mingw32-gcc-posix -O1 -I"$cache/hidapi/hidapi" -c "$cache/hidapi/windows/hid.c" -o "$output/hidapi.o"
"$compiler" -std=c++20 "${warnings[@]}" -Isrc -isystem "$cache/hidapi/hidapi" -static -o "$output/hid-helper.exe" \
    "$here/HidHelper.cpp" src/psu/HidApiBackend.cpp src/platform/EventBurst.cpp \
    src/platform/windows/{DeviceAccess,DeviceWatch,HidSearch,MessageWindow,RawHid,Win32}.cpp \
    "$output/hidapi.o" -lhid -lsetupapi
"$compiler" -std=c++20 "${warnings[@]}" -shared -static -o "$output/cfgmgr32.dll" \
    "$here/Cfgmgr32.cpp" "$here/Cfgmgr32.def" -lsetupapi

in_guest() {
    tools/vusb/guest.sh --timeout 290 --env "WINEPREFIX=$output/prefix" --env "ZPSG_HID_HELPER=$output/hid-helper.exe" \
        "$here/in-guest.sh" "$@"
}
# On a busy machine wine now and then misses a device node that comes (once in eight runs). A fault of ours fails twice.
in_guest "$@" || {
    echo "Once more, in a new guest:"
    in_guest "$@"
}
