#!/usr/bin/env bash
# tools/make-pictures.sh PLAY FOLDER: draws the pictures of the panels, the sample tower and the guide's building, and
# saves them in FOLDER (docs/pictures). Uses the player PLAY in temporary working folders.
set -euo pipefail
if [ $# -ne 2 ]; then
    echo "usage: tools/make-pictures.sh PLAY FOLDER" >&2
    exit 2
fi
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/workingfolder.sh"
TMPDIR=$(mktemp -d)
export TMPDIR
trap 'rm -r "$TMPDIR"' EXIT
play=$(realpath "$1")
folder=$(realpath "$2")

# scene PICTURE VIEW: plays standard input in a folder with the sample designs, starting with this view, and saves the
# final viewport as PICTURE.png.
scene() {
    local scratch
    scratch=$(mktemp -d)
    workingfolder "$scratch"
    cp "$root"/samples/*.txt "$scratch/designs"
    sed -i "/^DEFAULTVIEW:/{n;s/.*/$2/}" "$scratch/datah/start.txt"
    { echo "click startprogrambtn"; cat; echo "picture $1.png"; echo "click exitbtn"; } |
        (cd "$scratch" && "$play" -)
    mv "$scratch/$1.png" "$folder"
}

# replay FILE...: replays the files solid with the single file reader.
replay() {
    local file
    for file in "$@"; do
        echo "click autosolidsingle"
        echo "pick autofile5 \"$file.txt\""
    done
}

tower=$(for floor in 1 2 3 4 5 6 7 8 9 0; do echo "girdtow$floor paneto$floor"; done)

# panels: places the eight types of panels in two rows, the first four in the upper row.
panels() {
    local n=0 panel
    echo 'click writefilebtn'
    echo 'type floor "2"'
    for panel in orange1 orange2 orange3 yellow1 yellow2 yellow3 door2 door4; do
        if [ $n = 4 ]; then echo 'type floor "1"'; fi
        echo "click ${panel}btn"
        echo "click pan90x592y$((192 + 192 * (n % 4)))"
        n=$((n + 1))
    done
}

replay $tower rooft0 | scene tower "1850, -1850, 1230, 0, 0, 600, 0.036, 200, -270"
panels | scene panels "2200, 500, 560, 104, -96, 150, 0.1, 200, -270"

# The building of the guide, built by its script.
scratch=$(mktemp -d)
workingfolder "$scratch"
(cd "$scratch" && "$play" "$root/docs/guide.play")
cmp "$scratch/guide-retrieved.png" "$scratch/guide-house.png" # the retrieved picture must equal the captured one
rm "$scratch/guide-retrieved.png"
mv "$scratch"/guide-*.png "$folder"
