#!/usr/bin/env bash
# Makes the program's Windows icon from the drawn one. Same drawing and tools, same bytes: what the picture programs
# would write of their own (dates, names) is left out by putting the file together here.
#
# usage: make-icon.sh DRAWING.svg ICON.ico
set -euo pipefail
drawing=$1 icon=$2

# Title bar and lists at 100, 125, 150 and 200 %, the desktop, and what large views are scaled from.
sizes=(16 20 24 32 40 48 64 256)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

little_endian() { # BYTES NUMBER...
    local bytes=$1 number i text=''
    shift
    for number in "$@"; do
        for ((i = 0; i < bytes; i++)); do
            printf -v text '%s\\x%02x' "$text" $((number >> (8 * i) & 255))
        done
    done
    printf '%b' "$text"
}

# A bitmap as icons hold it: colours and alpha from the bottom up, then a mask of one bit a point. The alpha says it
# all, so the mask stays empty; its rows are padded to 32 bits.
bitmap() { # SIZE PICTURE
    little_endian 4 40 "$1" $((2 * $1))
    little_endian 2 1 32
    little_endian 4 0 0 0 0 0 0
    convert "$2" -flip -depth 8 bgra:-
    head -c $(($1 * (($1 + 31) / 32) * 4)) /dev/zero
}

offset=$((6 + 16 * ${#sizes[@]}))
{
    little_endian 2 0 1 "${#sizes[@]}"
    for size in "${sizes[@]}"; do
        rsvg-convert --width "$size" --height "$size" --output "$work/$size.png" "$drawing"
        if [ "$size" -eq 256 ]; then
            mv "$work/$size.png" "$work/$size" # compressed, as Windows Vista and later read it at this size
        else
            bitmap "$size" "$work/$size.png" >"$work/$size"
        fi
        length=$(stat -c %s "$work/$size")
        little_endian 1 $((size & 255)) $((size & 255)) 0 0 # 256 is written as 0
        little_endian 2 1 32
        little_endian 4 "$length" "$offset"
        offset=$((offset + length))
    done
    for size in "${sizes[@]}"; do
        cat "$work/$size"
    done
} >"$work/icon"
mv "$work/icon" "$icon"
