#!/usr/bin/env bash
# tools/make-samples.sh PLAY FOLDER: builds the sample designs and saves their design files in FOLDER, under names that
# differ from the standard ones. Uses clicks in the player PLAY, in a temporary working folder.
set -euo pipefail
if [ $# -ne 2 ]; then
    echo "usage: tools/make-samples.sh PLAY FOLDER" >&2
    exit 2
fi
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/workingfolder.sh"
TMPDIR=$(mktemp -d)
export TMPDIR
trap 'rm -r "$TMPDIR"' EXIT

# Arguments I and J count bays along X and Y. Bay I J lies between the posts I J, I+1 J, I J+1 and I+1 J+1. The side of
# a bay is 192 layout units.
post() { echo "click postx$((192 * $1))y$((192 * $2 + 16))"; }
beam() { echo "click beamx$((192 * $1))y$((192 * $2 + 16))"; }      # from post I J along Y
vbeam() { echo "click vbeamx$((192 * $1 + 16))y$((192 * $2 + 16))"; } # from post I J along X
roof() { echo "click roofx$((192 * $1))y$((192 * $2))"; }

# wall SIDE I J PANEL: places the panel of button PANEL on a side of bay I J.
wall() {
    echo "click ${4}btn"
    case $1 in
    front) echo "click pan0x$((192 * $2))y$((192 * $3))" ;;                  # faces minus Y
    back) echo "click pan180x$((192 * $2 + 208))y$((192 * $3 + 208))" ;;      # towards plus Y
    left) echo "click pan270x$((192 * $2))y$((192 * $3 + 208))" ;;            # towards minus X
    right) echo "click pan90x$((192 * $2 + 208))y$((192 * $3))" ;;            # towards plus X
    esac
}

# snipped SNIP SIDE I J PANEL: the same with a snipped panel, for an inside corner.
snipped() {
    local snip=$1 panel=$5
    echo "click ${panel}btn"
    echo "click snip${snip}btn"
    wall "$2" "$3" "$4" "$panel" | tail -n 1
}

# steel I0 I1 J0 J1 NAME...: places all posts and beams of these bays, except those named.
steel() {
    local i j left=" ${*:5} "
    echo "click postbeambtn"
    for ((i = $1; i <= $2 + 1; i++)); do
        for ((j = $3; j <= $4 + 1; j++)); do
            post "$i" "$j"
            if ((j <= $4)); then beam "$i" "$j"; fi
            if ((i <= $2)); then vbeam "$i" "$j"; fi
        done
    done | while read -r click name; do
        [[ $left == *" $name "* ]] || echo "$click $name"
    done
}

roofs() {
    local i j
    for ((i = $1; i <= $2; i++)); do
        for ((j = $3; j <= $4; j++)); do roof "$i" "$j"; done
    done
}

# house: two floors of three by four bays; on the upper floor, the front corner bay is a terrace.
house() {
    echo "click startprogrambtn"
    steel 0 2 2 5
    wall front 0 2 orange2; wall front 1 2 door2; wall front 2 2 orange3
    wall right 2 2 orange3; wall right 2 3 yellow2; wall right 2 4 yellow2; wall right 2 5 door4
    wall back 2 5 orange1; wall back 1 5 door2; wall back 0 5 orange2
    wall left 0 5 orange1; wall left 0 4 yellow3; wall left 0 3 yellow3; wall left 0 2 orange1
    echo "click roofbtn"
    roof 2 2
    echo 'type floor "2"'
    steel 0 2 2 5 postx576y400 beamx576y400 vbeamx400y400
    wall front 0 2 yellow2; wall front 1 2 yellow3
    snipped left front 2 3 door2
    snipped righ right 1 2 yellow2
    wall right 2 3 yellow3; wall right 2 4 yellow3; wall right 2 5 yellow1
    wall back 2 5 yellow1; wall back 1 5 yellow2; wall back 0 5 yellow1
    wall left 0 5 yellow1; wall left 0 4 yellow2; wall left 0 3 yellow2; wall left 0 2 yellow1
    echo "click roofbtn"
    roofs 0 2 2 5 | grep -v "roofx384y384"
    echo "click exitbtn"
}

# ring PANEL MIDDLEPANEL: places the four walls of a tower floor, three bays each.
ring() {
    local i
    for i in 1 2 3; do
        local panel=$1
        [ "$i" = 2 ] && panel=$2
        wall front "$i" 2 "$panel"; wall right 3 "$((i + 1))" "$panel"
        wall back "$((4 - i))" 4 "$panel"; wall left 1 "$((5 - i))" "$panel"
    done
}

# tower: ten floors of three by three bays.
tower() {
    local floor
    echo "click startprogrambtn"
    for floor in 1 2 3 4 5 6 7 8 9 10; do
        echo "type floor \"$floor\""
        steel 1 3 2 4
        case $floor in
        1) ring orange3 door4 ;;
        10) ring orange1 yellow1 ;;
        *[13579]) ring orange2 yellow3 ;;
        *) ring orange2 yellow2 ;;
        esac
    done
    echo "click roofbtn"
    roofs 1 3 2 4
    echo "click exitbtn"
}

# samples NAME: plays NAME and moves its design files to FOLDER, as girdNAM1.txt, paneNA1.txt and roofN1.txt. The
# readers expect the first four letters and the floor digit (0 for the tenth floor) in these positions.
samples() {
    local name=$1 scratch file floor
    scratch=$(mktemp -d)
    workingfolder "$scratch"
    "$name" | (cd "$scratch" && "$play" -)
    for file in "$scratch"/designs/*.txt; do
        floor=$(basename "$file" .txt)
        floor=${floor##*[a-z]}
        case $(basename "$file") in
        girders*) mv "$file" "$folder/gird${name:0:3}${floor: -1}.txt" ;;
        panels*) mv "$file" "$folder/pane${name:0:2}${floor: -1}.txt" ;;
        roofs*) mv "$file" "$folder/roof${name:0:1}${floor: -1}.txt" ;;
        esac
    done
}

play=$(realpath "$1")
folder=$(realpath "$2")
samples house
samples tower
