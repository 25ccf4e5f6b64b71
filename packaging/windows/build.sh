#!/usr/bin/env bash
# Builds the Windows program on Debian: its libraries from their source packages (once), the program, an installer and
# a ZIP to unpack and run.
#
# usage: build.sh [--tests] [OUTPUT-FOLDER]
#
#   --tests          builds the tests as well; test.sh runs them
#   OUTPUT-FOLDER    where zpsg-setup.exe and the ZIP go (default: build-windows/output in the tree)
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
. "$root/tools/setup.sh"

tests=OFF
if [ "${1:-}" = --tests ]; then
    tests=ON
    shift
fi
if [ $# -gt 1 ] || [[ ${1:-} == -* ]]; then
    echo "usage: $0 [--tests] [OUTPUT-FOLDER]" >&2
    exit 2
fi
build=$root/build-windows
output=${1:-$build/output}

install_missing "${build_packages[@]}" "${windows_packages[@]}"
sysroot=$("$here/sysroot.sh")
version=$(sed -nE 's/^project\(zpsg VERSION ([0-9.]+).*/\1/p' "$root/CMakeLists.txt")

# The same bytes whenever and wherever it is built from the same sources.
SOURCE_DATE_EPOCH=$(git -C "$root" log -1 --format=%ct 2>/dev/null || stat -c %Y "$root/CHANGELOG.md")
export SOURCE_DATE_EPOCH QT_RCC_SOURCE_DATE_OVERRIDE=$SOURCE_DATE_EPOCH LC_ALL=C TZ=UTC

echo "== What ships beside the program"
cmake -S "$root" -B "$build/native" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
cmake --build "$build/native" --target zpsg_data -- --quiet

echo "== The program"
ZPSG_SYSROOT=$sysroot cmake -S "$root" -B "$build/cross" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DZPSG_SYSROOT="$sysroot" -DZPSG_NATIVE_BUILD="$build/native" \
    -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$root=." -DCMAKE_EXE_LINKER_FLAGS=-Wl,--no-insert-timestamp \
    -DBUILD_TESTING="$tests" >/dev/null
cmake --build "$build/cross" -- --quiet

echo "== Installer and ZIP"
"$here/stage.sh" "$sysroot" "$build/cross" "$build/stage"
mkdir -p "$output"
"$here/package.sh" "$build/stage" "$output" "$version"
