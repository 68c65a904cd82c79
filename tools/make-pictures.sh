#!/usr/bin/env bash
# tools/make-pictures.sh PLAY FOLDER: draws the pictures of the elements and of the sample buildings with the player
# PLAY, in working folders of its own, and leaves them in FOLDER (docs/pictures). The sheet of the walk around the house
# is put together by montage (package imagemagick).
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/workingfolder.sh"
play=$(realpath "$1")
folder=$(realpath "$2")

# scene PICTURE VIEW: plays standard input in a folder that starts with that view ("" for the usual one) and holds the
# sample designs; the picture is that of viewport at the end.
scene() {
    local scratch
    scratch=$(mktemp -d)
    workingfolder "$scratch"
    cp "$root"/samples/*.txt "$scratch/designs"
    if [ -n "$2" ]; then
        sed -i "/^DEFAULTVIEW:/{n;s/.*/$2/}" "$scratch/datah/start.txt"
    fi
    { echo "click startprogrambtn"; cat; echo "picture $1.png"; echo "click exitbtn"; } |
        (cd "$scratch" && "$play" -)
    if ls "$scratch"/walk-*.png >/dev/null 2>&1; then
        montage "$scratch"/walk-*.png -tile 2x4 -geometry +4+4 -define png:exclude-chunks=date,time "$scratch/$1.png"
    fi
    mv "$scratch/$1.png" "$folder"
    rm -r "$scratch"
}

# replay solid|wire FILE...: the files through the single file reader.
replay() {
    local way=$1 list=autofile file
    [ "$way" = solid ] && list=autofile5
    for file in "${@:2}"; do
        echo "click auto${way}single"
        echo "pick $list \"$file.txt\""
    done
}

house="girdhou1 paneho1 roofh1 girdhou2 paneho2 roofh2"
tower=$(for floor in 1 2 3 4 5 6 7 8 9 0; do echo "girdtow$floor paneto$floor"; done)

# The eight types of panel in two rows at one angle: upper row orange, lower row yellow and doors.
# panels WORD X Y DX DY: the family's word, the first place on the plan in layout units, the step to the next.
panels() {
    local x=$2 y=$3 n=0 panel
    echo 'click writefilebtn'
    echo 'type floor "2"'
    for panel in orange1 orange2 orange3 yellow1 yellow2 yellow3 door2 door4; do
        [ $n = 4 ] && { x=$2; y=$3; echo 'type floor "1"'; }
        n=$((n + 1))
        echo "click ${panel}btn"
        echo "click pan$1x${x}y${y}"
        x=$((x + $4)) y=$((y + $5))
    done
}

# A whole storey of steel: clicked in wires, then replayed solid on a cleared picture.
storey() {
    local i j
    echo "click wiresolidbtn"
    echo "click postbeambtn"
    for i in 0 1 2 3 4 5; do
        for j in 0 1 2 3 4 5 6 7; do
            echo "click postx$((192 * i))y$((192 * j + 16))"
            if ((j < 7)); then echo "click beamx$((192 * i))y$((192 * j + 16))"; fi
            if ((i < 5)); then echo "click vbeamx$((192 * i + 16))y$((192 * j + 16))"; fi
        done
    done
    echo "click groupbtn"
    echo "click cventerbtn"
    replay solid girders1
}

# The house from an eye that walks around it, each view set by hand; the pictures of one sheet, row by row. The markers
# bring the layout grid back into the tables, so that SET draws it; they
# also write the boxes, so they come first.
walk() {
    local n=0 eye
    echo "click shopfm"
    for eye in "1850 -1850" "2616 0" "1850 1850" "0 2616" "-1850 1850" "-2616 0" "-1850 -1850" "0 -2616"; do
        echo "click groupbtn"
        set -- $eye 830 -192 96 200 0.075 170 -270
        for box in perptxtx perptxty perptxtz focustxtx focustxty focustxtz magtxt verttxt horiztxt; do
            echo "type $box \"$1\""
            shift
        done
        echo "click cventerbtn"
        replay solid $house
        n=$((n + 1))
        echo "picture walk-$n.png"
    done
}

mode() { if [ "$1" = wire ]; then echo "click wiresolidbtn"; fi; }

scene start "" </dev/null
storey | scene steel ""
walk | scene walk ""
replay solid $house | scene house ""
replay wire $house | scene house-wire ""
replay solid $tower rooft0 | scene tower "1850, -1850, 1230, 0, 0, 600, 0.036, 200, -270"
for way in solid wire; do
    name=; [ $way = wire ] && name=-wire
    { mode $way; panels 0 0 576 192 0; } | scene panels-0$name "500, -2200, 560, -96, -104, 150, 0.1, 200, -270"
    { mode $way; panels 90 592 192 0 192; } | scene panels-90$name "2200, 500, 560, 104, -96, 150, 0.1, 200, -270"
    { mode $way; panels 180 976 784 -192 0; } | scene panels-180$name "-500, 2200, 560, 96, 104, 150, 0.1, 200, -270"
    { mode $way; panels 270 384 1168 0 -192; } | scene panels-270$name "-2200, -500, 560, -104, 96, 150, 0.1, 200, -270"
done

# The guide's own building, by the guide's own script.
scratch=$(mktemp -d)
workingfolder "$scratch"
(cd "$scratch" && "$play" "$root/docs/guide.play")
rm "$scratch/guide-retrieved.png" # the same as guide-house.png
mv "$scratch"/guide-*.png "$folder"
rm -r "$scratch"
