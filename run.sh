#!/usr/bin/env bash
# Installs missing packages, builds Tessaly and starts it with the root of the repository as its working folder.
# Without a display, plays a demonstration instead and saves its picture as build/demo.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

wantpackages "$runpackages"
mkdir -p designs bmps nonuser

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    build release tessaly-app
    exec build/tessaly "$@"
fi

# The demonstration writes design files, so play it in a temporary folder, not in the user's.
build release play
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$PWD
. tools/workingfolder.sh
workingfolder "$scratch"
echo "There is no display (DISPLAY and WAYLAND_DISPLAY are empty). Playing tools/demo.play instead."
(cd "$scratch" && timeout 60 "$root/build/tools/play" "$root/tools/demo.play")
mv "$scratch/demo.png" build/demo.png
echo "The picture is $root/build/demo.png"
