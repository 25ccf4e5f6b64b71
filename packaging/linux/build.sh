#!/usr/bin/env bash
# Makes the Debian package and checks it: packaging/linux/build.sh [OUTPUT-FOLDER]
#
# OUTPUT-FOLDER (default: this project's build-package) takes the package; what is compiled stays in build-package, so
# a second run is quick. With the same tools two runs give the same bytes.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
. "$root/tools/setup.sh"

package_packages=(dpkg-dev lintian appstream desktop-file-utils man-db gzip)

install_missing "${build_packages[@]}" "${package_packages[@]}"
umask 022
export LC_ALL=C.UTF-8
build=$root/build-package
output=${1:-$build}
mkdir -p "$build" "$output"
output=$(cd "$output" && pwd)

# The time of everything in the package, unless somebody says otherwise.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(dpkg-parsechangelog -l "$here/debian/changelog" -S Timestamp)}

# Debian's flags, hardened as far as they go. The package has no debug symbols, so none are made.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g
flags() { (cd "$root" && dpkg-buildflags --get "$1"); }
if [ ! -f "$build/build.ninja" ]; then
    echo "Configuring ..."
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
        -DCMAKE_INSTALL_PREFIX=/usr \
        -DCMAKE_CXX_FLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS) -ffile-prefix-map=$build=." \
        -DCMAKE_EXE_LINKER_FLAGS="$(flags LDFLAGS)" >/dev/null
fi
echo "Building ..."
cmake --build "$build" -- --quiet

echo "Packing ..."
rm -rf -- "$build/package" "$build/_CPack_Packages"
(cd "$build" && cpack -G DEB -B "$build/package" >"$build/cpack.log") || {
    cat "$build/cpack.log" >&2
    exit 1
}
package=$(find "$build/package" -maxdepth 1 -name '*.deb')
if [ "$output" != "$build/package" ]; then cp "$package" "$output"; fi
package=$output/$(basename "$package")
echo "$package"

echo "Checking ..."
desktop-file-validate "$here/zpsg.desktop"
appstreamcli validate --no-net "$here"/*.metainfo.xml
# Root may run it as well; it only reads.
lintian --allow-root --info --fail-on error,warning "$package"
echo "The package passed all checks."
