#!/usr/bin/env bash
# Makes the two things that are given away from a folder that holds the program with all it needs:
# OUTPUT/zpsg-setup.exe and OUTPUT/zpsg-VERSION-portable.zip. Same folder and version, same bytes; SOURCE_DATE_EPOCH is
# the time that the files in them get.
#
# usage: package.sh STAGE OUTPUT VERSION
set -euo pipefail
export LC_ALL=C TZ=UTC
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
stage=$1 output=$2 version=$3
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-1672531200} # 2023-01-01, as sysroot.sh

for wanted in zpsg.exe Language BOX Image database.db; do
    if [ ! -e "$stage/$wanted" ]; then
        echo "$stage holds no $wanted" >&2
        exit 1
    fi
done
if ! [[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]]; then
    echo "a version is three numbers, and not \"$version\"" >&2
    exit 1
fi
mkdir -p "$output"
output=$(cd "$output" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# With times and permissions of our own.
name=zpsg-$version
cp -R "$stage" "$work/$name"
cd "$work/$name"
find . -type d -exec chmod 755 {} +
find . -type f -exec chmod 644 {} +
find . -type f \( -name '*.exe' -o -name '*.com' -o -name '*.dll' \) -exec chmod 755 {} +
find . -exec touch --no-dereference --date "@$SOURCE_DATE_EPOCH" {} +
strange=$(find . -mindepth 1 \( -name '*[!A-Za-z0-9._+-]*' -o ! -type f ! -type d \))
if [ -n "$strange" ]; then
    echo "names that the installer's list can't hold, or no plain files: $strange" >&2
    exit 1
fi

zip=$output/zpsg-$version-portable.zip
rm -f "$zip"
# There the user's history lies in the same folder: a newer ZIP unpacked over it must not bring one along.
mv database.db empty.db
(cd .. && find "$name" -type f | sort | zip -X -9 -q "$zip" -@)
mv empty.db database.db

# The list of what is installed. The program and the setup read it (docs/files.md).
dos_paths() { sed 's|^\./||; s|/|\\|g'; }
{
    echo "; Written by the setup, which removes these files by this list. While it stands here, the program keeps"
    echo "; settings and records in the user's own folder and not in this one."
    echo "[files]"
    { find . -type f; echo ./installed.ini; } | sort | dos_paths | sed 's/$/=1/'
    echo "[folders]"
    find . -mindepth 1 -type d | sort -r | dos_paths | sed 's/$/=1/'
} | sed 's/$/\r/' >"$work/installed.ini"
mv "$work/installed.ini" installed.ini
touch --date "@$SOURCE_DATE_EPOCH" installed.ini

# The list goes first: what a setup that was cut off has left can be removed by it.
{
    echo '!macro InstallFiles'
    echo '    SetOutPath "$INSTDIR"'
    echo '    File "installed.ini"'
    find . -type d | sort | while read -r folder; do
        files=$(find "$folder" -maxdepth 1 -type f ! -path ./installed.ini | sort)
        [ -n "$files" ] || continue
        echo "    SetOutPath \"\$INSTDIR$(sed 's|^\.||; s|/|\\|g' <<<"$folder")\""
        sed 's|^\./||; s|.*|    File "&"|' <<<"$files"
    done
    echo '    SetOutPath "$INSTDIR"' # where the shortcuts start the program
    echo '!macroend'
} >"$work/files.nsh"

# Pictures at twice the size, so that they stay crisp on a dense screen.
drawing=$root/data/pictures/ZPSapp.svg
"$here/resources/make-icon.sh" "$drawing" "$work/zpsg.ico"
rsvg-convert --width 192 --height 192 --output "$work/large.png" "$drawing"
rsvg-convert --width 96 --height 96 --output "$work/small.png" "$drawing"
convert -size 328x628 xc:'#1c2024' "$work/large.png" -gravity north -geometry +0+120 -composite \
    -type TrueColor "BMP3:$work/side.bmp"
convert -size 300x114 xc:white "$work/small.png" -gravity east -geometry +18+0 -composite \
    -type TrueColor "BMP3:$work/header.bmp"

touch --date "@$SOURCE_DATE_EPOCH" "$work"/*.bmp # the setup unpacks them, with their time

kib=$(find . -type f -printf '%s\n' | awk '{sum += int(($1 + 1023) / 1024)} END {print sum}')
makensis -V2 -WX -NOCD -INPUTCHARSET UTF8 \
    "-DVERSION=$version" "-DSIZE=$kib" "-DICON=$work/zpsg.ico" \
    "-DSIDE=$work/side.bmp" "-DHEADER=$work/header.bmp" "-DFILES=$work/files.nsh" "-DOUTPUT=$work/zpsg-setup.exe" \
    "$here/installer.nsi"
mv "$work/zpsg-setup.exe" "$output/zpsg-setup.exe"
