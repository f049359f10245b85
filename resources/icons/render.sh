#!/bin/bash
# Turns one drawing into a Windows icon: render.sh IN.svg OUT.ico SIZE...
# A size with a drawing of its own, SIZE/IN.svg in the same folder, is taken from that one. From 48 pixels on the
# pictures are compressed.
set -eu

if [ "$#" -lt 3 ]; then
    echo "usage: render.sh IN.svg OUT.ico SIZE..." >&2
    exit 2
fi
in=$1
out=$2
shift 2

folder=$(dirname -- "$in")
name=$(basename -- "$in")
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

frames=()
for size in "$@"; do
    svg=$folder/$size/$name
    if [ ! -f "$svg" ]; then
        svg=$in
    fi
    png=$work/$size.png
    rsvg-convert --width "$size" --height "$size" --format png --output "$png" -- "$svg"
    if [ "$size" -ge 48 ]; then
        optipng -quiet -o4 -strip all "$png"
        frames+=("--raw=$png")
    else
        frames+=("$png")
    fi
done

icotool --create --icon --bit-depth=32 --output "$work/out.ico" "${frames[@]}"
cp -- "$work/out.ico" "$out"
