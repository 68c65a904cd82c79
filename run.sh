#!/usr/bin/env bash
# Installs what is missing, builds Tessaly and starts it here, in the repository's root as its working folder.
# With no display it plays the demonstration instead and leaves its picture in build/demo.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

wantpackages "${runpackages[@]}"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    build release tessaly-app
    exec build/tessaly "$@"
fi

# The demonstration records what it builds: it is played in a folder of its own, never in the user's.
build release play
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp -r datah pals "$scratch"
mkdir "$scratch/designs" "$scratch/bmps" "$scratch/nonuser"
echo "No display (DISPLAY and WAYLAND_DISPLAY are empty): playing tools/demo.play instead."
here=$PWD
(cd "$scratch" && timeout 60 "$here/build/tools/play" "$here/tools/demo.play")
mv "$scratch/demo.png" build/demo.png
echo "Its picture is $here/build/demo.png"
