#!/bin/sh
# Compiles what runs on Windows only, and the Qt-free simulator, with the MinGW cross compiler and links a
# self-test from it, so that a change made on Linux can't break Windows unseen.
#
# usage: check-windows.sh OUTPUT-FOLDER
set -eu

if [ $# -ne 1 ]; then
    echo "usage: $0 OUTPUT-FOLDER" >&2
    exit 2
fi
root=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$1"
output=$(cd "$1" && pwd)

compiler=x86_64-w64-mingw32-g++-posix
if ! command -v "$compiler" >/dev/null; then
    echo "$0: $compiler is missing (Debian: apt-get install g++-mingw-w64-x86-64-posix)" >&2
    exit 1
fi

cd "$root"
rm -f "$output"/*.o "$output"/selftest.exe
set -- src/platform/windows/*.cpp src/platform/EventBurst.cpp \
    src/simulator/LinearEncoding.cpp src/simulator/SupplyModel.cpp src/simulator/DayScript.cpp \
    tests/unit/platform/WindowsSelfTest.cpp tests/unit/platform/windows/*.cpp

export compiler output
# The object's name comes from the whole path: two folders may have files of the same name.
printf '%s\n' "$@" | xargs -P 2 -I '{}' sh -c '
    object=$output/$(printf %s "$1" | tr / -).o
    "$compiler" -std=c++20 -O1 -Wall -Wextra -Wpedantic -Werror -Isrc -c "$1" -o "$object"' compile '{}'
"$compiler" -static -o "$output/selftest.exe" "$output"/*.o -lhid -lsetupapi -luser32 -ladvapi32 -lole32 -lpowrprof \
    -lwtsapi32 -lws2_32

echo "Windows: $# sources compile without warnings and link: $output/selftest.exe"
