#!/usr/bin/env bash
# Builds the libraries that the Windows program stands on, from Debian's source packages, and prints the folder that
# holds them. Once: the folder is kept outside the tree, under a name made from the versions, the recipes and the
# compiler, and is found again as long as these stay. A build that was cut off goes on with the library it was at.
#
# usage: sysroot.sh [--find]     --find only says where it is, and fails when it has not been built
#
# ZPSG_CACHE is the folder to keep it in (default: zpsg in the user's cache folder).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/sources.sh"

# In the order in which they need each other.
packages=(sqlite3 qtbase-opensource-src qtsvg-opensource-src qwt hidapi libsodium libzip openssl mosquitto
    libmicrohttpd kissfft googletest)
cache=${ZPSG_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zpsg}
jobs=$(nproc)

sources_prepare "$cache/sources"
name=$({
    for package in "${packages[@]}"; do
        echo "$package $(source_versions "$package" | head -n 1)"
        cat "$here/recipes/$package"
    done
    x86_64-w64-mingw32-g++-posix --version
} | sha256sum | cut -c1-12)
sysroot=$cache/windows-$name

if [ "${1:-}" = --find ]; then
    [ -f "$sysroot/complete" ] && echo "$sysroot"
    exit
fi

# What the recipes call. The compilers say nothing of where they worked, so that the bytes don't depend on it.
cross=$sysroot/cross/x86_64-w64-mingw32
work=$cache/build-$name
make_cross_tools() {
    local tool
    mkdir -p "$sysroot/cross"
    for tool in ar nm objcopy objdump ranlib strip windres ld dlltool; do
        ln -sf "$(command -v "x86_64-w64-mingw32-$tool")" "$cross-$tool"
    done
    for tool in gcc g++; do
        printf '#!/bin/sh\nexec x86_64-w64-mingw32-%s-posix -ffile-prefix-map="%s"=. -ffile-prefix-map="%s"=. "$@"\n' \
            "$tool" "$work" "$sysroot" >"$cross-$tool"
        chmod +x "$cross-$tool"
    done
}

cmake_install() { # OPTION...: builds the library in the present folder
    cmake -S . -B zpsg-build -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$sysroot" -DCMAKE_INSTALL_LIBDIR=lib "$@"
    cmake --build zpsg-build
    cmake --install zpsg-build
}

build() { # PACKAGE
    local log=$cache/log/$1.log started=$SECONDS version
    [ ! -f "$sysroot/built/$1" ] || return 0
    echo "  $1 ..." >&2
    mkdir -p "$cache/log"
    version=$(source_fetch "$1" "$work/$1")
    # Not as a condition, which would turn errexit off inside.
    set +e
    (
        set -e
        cd "$work/$1"
        . "$here/recipes/$1"
    ) >"$log" 2>&1 </dev/null
    local result=$?
    set -e
    if [ "$result" -ne 0 ]; then
        tail -n 20 "$log" >&2
        echo "$1 was not built. The whole log: $log" >&2
        return 1
    fi
    # Licences go with the program that is given away.
    mkdir -p "$sysroot/built" "$sysroot/licences"
    cp "$work/$1/debian/copyright" "$sysroot/licences/$1.txt"
    rm -rf "${work:?}/$1"
    echo "$version" >"$sysroot/built/$1"
    echo "  $1 $version, $((SECONDS - started)) s" >&2
}

if [ ! -f "$sysroot/complete" ]; then
    echo "Building the Windows libraries, which takes about half an hour on two cores, and once:" >&2
    export ZPSG_SYSROOT=$sysroot LC_ALL=C
    SOURCE_DATE_EPOCH=$(date -ud 2023-01-01 +%s)
    export SOURCE_DATE_EPOCH
    mkdir -p "$work"
    make_cross_tools
    for package in "${packages[@]}"; do
        build "$package"
    done
    rm -rf "$work"
    touch "$sysroot/complete"
fi
echo "$sysroot"
