#!/usr/bin/env bash
# The real program in a real window, driven from outside by the mouse: START, the post button, a post, a beam and a
# vertical beam on the plan. The design file's bytes and the pixels on the screen are those of the same clicks played.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/mouse.sh"

# What the screen should show before and after, by the player.
workingfolder "$scratch/played"
(cd "$scratch/played" && "$build/tools/play" - >"$scratch/played.log") <<'SCRIPT' || fail "the player"
click startprogrambtn
picture before.png
click postbeambtn
click postx0y16
click beamx0y16
click vbeamx16y16
picture after.png
click exitbtn
SCRIPT
[ "$(differing "$scratch/played/before.png" "$scratch/played/after.png")" -gt 500 ] || fail "three elements light no pixels"

startscreen 1900 900
startprogram

waitfor "the start window" shown "Tessaly Girder and Panel" 800
start=$window
clickcontrol "$start" startprogrambtn
waitfor "the main window" shown "Tessaly Girder and Panel" 1000
main=$window

# looks FILE: whether viewport shows this picture.
looks() {
    viewportpicture "$main" "$scratch/seen.png" && [ "$(differing "$scratch/seen.png" "$1")" -eq 0 ]
}
waitfor "the start scene" looks "$scratch/played/before.png"

clickcontrol "$main" postbeambtn
waitfor "the girder layout" shown "Layout Girders" 600
layout=$window
xdotool windowmove "$layout" 1100 200 # beside viewport

design=$scratch/work/designs/girders1.txt
# recorded COUNT: whether the design file has this many lines.
recorded() {
    [ -f "$design" ] && [ "$(wc -l <"$design")" -eq "$1" ]
}
clickat "$layout" 40 40 # postx0y16
waitfor "the post's record" recorded 1
clickat "$layout" 80 40 # beamx0y16, right of it
waitfor "the beam's record" recorded 2
clickat "$layout" 40 80 # vbeamx16y16, below it
waitfor "the vertical beam's record" recorded 3

printf '%s\r\n' '"girder",1,8,8,41,90,0,0,16,4,64' '"girder",49,8,104,42,0,0,0,16,4,64' \
    '"girder",91,104,8,43,0,270,16,16,1,64' | cmp - "$design" || fail "the design file holds other bytes"
waitfor "the three elements on the screen" looks "$scratch/played/after.png"

clickcontrol "$main" exitbtn
programended 0
echo "The design file and the picture are those of the clicks."
