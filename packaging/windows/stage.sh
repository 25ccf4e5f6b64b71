#!/usr/bin/env bash
# Gathers what the Windows program needs to run into one folder: the program, the libraries it loads, Qt's plug-ins,
# what ships beside it, and the licences.
#
# usage: stage.sh SYSROOT BUILD-FOLDER STAGE
set -euo pipefail
[ $# -eq 3 ] || {
    echo "usage: $0 SYSROOT BUILD-FOLDER STAGE" >&2
    exit 2
}
sysroot=$1 build=$2 stage=$3
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cross=x86_64-w64-mingw32
search=("$sysroot/bin" "$(dirname "$($cross-g++-posix -print-file-name=libstdc++-6.dll)")"
    "$(dirname "$($cross-g++-posix -print-file-name=libwinpthread-1.dll)")" "/usr/$cross/lib")

# Copies a library with every library it loads; what is found nowhere here is the system's.
bring_libraries_of() { # FILE
    local name folder
    while read -r name; do
        [ ! -f "$stage/$name" ] || continue
        for folder in "${search[@]}"; do
            if [ -f "$folder/$name" ]; then
                cp "$folder/$name" "$stage/$name"
                bring_libraries_of "$stage/$name"
                break
            fi
        done
    done < <("$cross-objdump" -p "$1" | sed -n 's/^\tDLL Name: //p')
}

rm -rf "$stage"
mkdir -p "$stage"
cp "$build/bin/zpsg.exe" "$build/bin/zpsg.com" "$stage"
cp -r "$build/bin/BOX" "$build/bin/Image" "$build/bin/Language" "$build/bin/database.db" "$stage"
for plugin in platforms/qwindows sqldrivers/qsqlite styles/qwindowsvistastyle; do
    mkdir -p "$stage/$(dirname "$plugin")"
    cp "$sysroot/plugins/$plugin.dll" "$stage/$plugin.dll"
done
while read -r file; do
    bring_libraries_of "$file"
done < <(find "$stage" -name '*.exe' -o -name '*.com' -o -name '*.dll')
find "$stage" \( -name '*.exe' -o -name '*.com' -o -name '*.dll' \) -exec "$cross-strip" --strip-unneeded {} +

mkdir "$stage/licences"
cp "$root/LICENSE" "$stage/licences/zpsg.txt"
cp "$sysroot"/licences/*.txt "$stage/licences"
rm -f "$stage/licences/googletest.txt"
for package in gcc-mingw-w64-base mingw-w64-common libz-mingw-w64-dev; do
    cp "/usr/share/doc/$package/copyright" "$stage/licences/$package.txt"
done
cp "$root/README.md" "$root/CHANGELOG.md" "$stage"
# Without the rights of whoever builds.
chmod -R u=rwX,go=rX "$stage"
