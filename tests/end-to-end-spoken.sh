#!/usr/bin/env bash
# The real program as assistive technology has it, on a session bus of its own: tests/spoken.py looks through every window
# and builds, replays and captures by the interface alone. What it leaves in the folder is what the same clicks leave when
# they are played. The dump of all windows stays in the build folder.
set -euo pipefail
[ -n "${DBUS_OF_THIS_TEST:-}" ] || DBUS_OF_THIS_TEST=yes exec dbus-run-session -- "$0"
. "$(dirname "${BASH_SOURCE[0]}")/mouse.sh"

workingfolder "$scratch/played"
(cd "$scratch/played" && "$build/tools/play" - >"$scratch/played.log") <<'SCRIPT' || fail "the player"
click startprogrambtn
click postbeambtn
click postx0y16
click beamx0y16
click orange1btn
click snipleftbtn
click pan0x0y0
click fastchange
click perpx1800y0
click cventerbtn
click floorbtn
pick floorlist "2"
click postx0y16
click autosolidbtn
pick autofile3 "girders1.txt"
pick autofile4 "panels1.txt"
click screencapbtn
type capbox "spoken.bmp"
click screencapenter
click exitbtn
SCRIPT

startscreen 1400 1000
export NO_AT_BRIDGE= QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
waitfor "the accessibility bus" dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
    org.a11y.Bus.GetAddress >/dev/null
startprogram
"$root/tests/spoken.py" "$build/spoken.txt" || fail "the interface; its controls are listed in $build/spoken.txt"
programended 0
diff -r "$scratch/played" "$scratch/work" || fail "the folder holds other files"
echo "Every control has its name, role and action: $(wc -l <"$build/spoken.txt") are listed in $build/spoken.txt"
