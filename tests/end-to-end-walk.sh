#!/usr/bin/env bash
# A walk through the whole program by mouse and keyboard alone, as a user takes it: a storey of girders, panels with
# snips, a roof, floors, wires and solids, replays, every way of changing the view, capture and retrieval, the file list,
# the help, exit. Each station is checked by the files or the picture; screenshots stay in the build folder's walk/.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/mouse.sh"

pictures=$build/walk
rm -rf "$pictures" && mkdir -p "$pictures"
work=$scratch/work
station=0

# station NAME: a screenshot of the whole screen, numbered.
station() {
    station=$((station + 1))
    import -window root "$pictures/$(printf %02d $station)-$1.png"
}

lines() { [ -f "$work/$1" ] && [ "$(wc -l <"$work/$1")" -eq "$2" ]; }
holds() { grep -qF -- "$2" "$work/$1" 2>/dev/null; }
gone() { [ ! -e "$work/$1" ]; }
there() { [ -s "$work/$1" ]; }

# opened TITLE LEASTWIDTH BUTTON X Y: presses a button of the main window and moves the window that it opens aside.
opened() {
    clickcontrol "$main" "$3"
    waitfor "the window $1" shown "$1" "$2"
    xdotool windowmove "$window" "$4" "$5"
}

# look: keeps the picture as it is; changed, unchanged: whether it is another since then.
look() { viewportpicture "$main" "$scratch/before.png"; }
changed() {
    viewportpicture "$main" "$scratch/now.png"
    [ "$(differing "$scratch/before.png" "$scratch/now.png")" -gt 200 ]
}
same() {
    viewportpicture "$main" "$scratch/now.png"
    [ "$(differing "$1" "$scratch/now.png")" -eq 0 ]
}

# press BUTTON: a click on a button of the main window that changes the picture.
press() {
    look
    clickcontrol "$main" "$1"
    waitfor "the picture after $1" changed
}

# pickitem LIST ROW [HEIGHT]: a click on an item of a list on the main window; rows count from 0 and are so many pixels high.
pickitem() {
    local left top
    read -r left top < <(awk -F, -v name="$1" '/^CONTROL/ { gsub(/ /, "", $3)
        if ($3 == name) print int($4 / 15), int($5 / 15) }' "$root/core/controls.def")
    clickat "$main" $((left + 20)) $((top + 8 + $2 * ${3:-17}))
}

startscreen 2100 1000
startprogram
waitfor "the start window" shown "Tessaly Girder and Panel" 800
station start
clickcontrol "$window" startprogrambtn
waitfor "the main window" shown "Tessaly Girder and Panel" 1000
main=$window
xdotool windowmove "$main" 0 0
station scene

# a storey of girders around four bays; places on the plan in pixels: 32 + 80 column, row likewise
opened "Layout Girders" 600 postbeambtn 1100 100
plan=$window
for row in 1 2 3; do for column in 2 3 4; do clickat "$plan" $((40 + 80 * column)) $((40 + 80 * row)); done; done
for row in 1 2 3; do for column in 2 3; do clickat "$plan" $((80 + 80 * column)) $((40 + 80 * row)); done; done
for row in 1 2; do for column in 2 3 4; do clickat "$plan" $((40 + 80 * column)) $((80 + 80 * row)); done; done
waitfor "21 girders" lines designs/girders1.txt 21
station girders

# panels: one full, one snipped by a button, one snipped by the keyboard, which holds for one panel each
opened "Panels Layout" 500 orange2btn 1100 100
plan=$window
clickat "$plan" $((72 + 64 * 2)) $((86 + 64 * 3)) # pan90, below the lower edge
waitfor "a panel" lines designs/panels1.txt 1
clickat "$plan" 178 12 # snip left
clickat "$plan" $((72 + 64 * 3)) $((86 + 64 * 3))
waitfor "a snipped panel" lines designs/panels1.txt 2
clickat "$plan" 430 10
xdotool key --window "$plan" ctrl+a
xdotool type --window "$plan" "snip both sides"
clickat "$plan" $((30 + 64 * 2)) $((104 + 64 * 1)) # pan0, left of the left edge
waitfor "a panel snipped on both sides" lines designs/panels1.txt 3
clickcontrol "$main" yellow3btn
clickat "$plan" $((30 + 64 * 2)) $((104 + 64 * 2))
waitfor "a yellow panel" lines designs/panels1.txt 4
cut -d, -f5 "$work/designs/panels1.txt" | tr '\n' ' ' | grep -qx '4 5 32 16 ' || fail "panel codes: $(cat "$work/designs/panels1.txt")"
station panels

# the roof, then a post on floor 2 as wires
opened "Roof Layout" 400 roofbtn 1100 100
plan=$window
clickat "$plan" $((72 + 56 * 2)) $((72 + 56 * 1))
waitfor "a roof" holds designs/roofs1.txt '"roof",10,296,488,0,0,0,192,384,4,64'
station roof
clickcontrol "$main" floorbtn
pickitem floorlist 7 13
clickcontrol "$main" wiresolidbtn
opened "Layout Girders" 600 postbeambtn 1100 100
clickat "$window" 200 120
waitfor "a post on floor 2" lines designs/girders2.txt 1
station floor2
clickcontrol "$main" wiresolidbtn
press fillscreen
press groupbtn
station markers

# replay of one file, wire and solid, and of two
look
clickcontrol "$main" autowiresingle
pickitem autofile 0
waitfor "the wires of girders1.txt" changed
station wirereplay
look
clickcontrol "$main" autosolidsingle
pickitem autofile5 0
waitfor "the faces of girders1.txt" changed
clickcontrol "$main" autosolidbtn
pickitem autofile3 0
station firstpick
look
pickitem autofile4 2
waitfor "girders and panels together" changed
waitfor "no temporary file" gone nonuser/temp.txt
station combined

# the view: arrows, steps, figures, quick views, default view
press activateleftbtn
press rotleftbtn
press rotleftbtn
clickcontrol "$main" activaterightbtn
press rotrightbtn
station rotation
for button in vertfocusplusbtn vertperpplusbtn magplusbtn vertinc horizdec; do press $button; done
clickcontrol "$main" incrementbtn
pickitem incrementlist 1 16
press vertperpminusbtn
station steps
clickcontrol "$main" shopfm
clickcontrol "$main" magtxt
xdotool key ctrl+a && xdotool type "0.07"
press cventerbtn
station set
opened "Easy views" 900 fastchange 1100 100
clickat "$window" 617 296 # eye at X 0, Y 1800
clickat "$window" 840 168 # eye at Z 1100
clickat "$window" 728 624 # close
press cventerbtn
station quickview
press defaultviewbtn
clickcontrol "$main" hidpfm
press fillscreen
press groupbtn
clickcontrol "$main" autosolidbtn
pickitem autofile3 0
look
pickitem autofile4 2
waitfor "the building from the default view" changed
sleep 0.3
viewportpicture "$main" "$scratch/kept.png"
station default

# capture, another view, retrieval, a step from there
clickcontrol "$main" screencapbtn
xdotool type "walk.bmp"
clickcontrol "$main" screencapenter
waitfor "the capture" there bmps/walk.bmp
waitfor "its view" holds bmps/walk.txt '"280","0.056","170","-270"'
press magminusbtn
clickcontrol "$main" retrieveimagetbtn
pickitem bmplistbox 0
station retrieval
clickcontrol "$main" displayimagebtn
waitfor "the captured picture" same "$scratch/kept.png"
press vertperpplusbtn
station retrieved

# the file list, the help by keyboard, exit
clickcontrol "$main" displayfilelistbtn
pickitem designfileslist 1
station filelist
clickcontrol "$main" killfilebtn
waitfor "the deletion" gone designs/girders2.txt
xdotool key --window "$main" F1
waitfor "the help" shown "Tessaly Panel and Girder" 1000
xdotool windowmove "$window" 700 50
station help
clickat "$window" 60 400
sleep 0.3
station helppages
clickat "$window" 264 712 # back
clickcontrol "$main" exitbtn
programended 0
echo "Walked through $station stations; their pictures: $pictures"
