# Shared by the scripts of this folder, which source it: a temporary folder, a virtual screen for the real program, and
# procedures that play a script by mouse and keyboard. They wait for an expected state, not for a fixed time.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/workingfolder.sh"
build=${TESSALY_BUILD:-$root/build}
scratch=$(mktemp -d)
screenpid= programpid=
export LC_ALL=C.UTF-8 # for the tools of these scripts; a test of another locale sets it for the program only
density=100 # screen pixels per 100 window pixels

fail() {
    echo "FAILED: $*" >&2
    [ -s "$scratch/program.log" ] && sed 's/^/program: /' "$scratch/program.log" >&2
    if [ -n "$screenpid" ]; then
        import -window root "$build/end-to-end-failed.png" && echo "Picture of the screen: $build/end-to-end-failed.png" >&2
    fi
    exit 1
}

# stopscreen: ends the program and its screen.
stopscreen() {
    [ -z "$programpid$screenpid" ] || kill $programpid $screenpid 2>/dev/null
    wait
    programpid= screenpid=
}
trap 'stopscreen; rm -rf "$scratch"' EXIT

# waitfor WHAT COMMAND...: repeats the command until it succeeds; fails after 20 seconds.
waitfor() {
    local what=$1 deadline=$((SECONDS + 20))
    until "${@:2}"; do
        [ $SECONDS -lt $deadline ] || fail "timed out while waiting for $what"
        sleep 0.05
    done
}

# startscreen WIDTH HEIGHT: starts a virtual screen on the first free display number.
startscreen() {
    width=$1 height=$2
    rm -f "$scratch/display"
    Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp 3>"$scratch/display" 2>"$scratch/screen.log" &
    screenpid=$!
    waitfor "the screen" test -s "$scratch/display"
    DISPLAY=:$(cat "$scratch/display")
    export DISPLAY QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
}

# startprogram FOLDER COMMAND...: starts the command in the folder.
startprogram() {
    (cd "$1" && exec "${@:2}") >"$scratch/program.log" 2>&1 &
    programpid=$!
}

# expectend STATUS: waits for the end of the program and checks its exit status.
expectend() {
    local status=0
    waitfor "the program's end" sh -c "! kill -0 $programpid 2>/dev/null"
    wait "$programpid" || status=$?
    programpid=
    [ "$status" -eq "$1" ] || fail "the program ended with status $status, not $1"
}

# shown MINWIDTH TITLE: succeeds if the screen shows a window with this title that is wide enough. Sets window to its
# id, and X, Y, WIDTH and HEIGHT to its bounds.
shown() {
    local WINDOW SCREEN id
    for id in $(xdotool search --onlyvisible --name "^$2\$" 2>/dev/null); do
        WIDTH=0
        eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
        window=$id
        [ "$WIDTH" -lt $(($1 * density / 100)) ] || return 0
    done
    return 1
}

# clickon CONTROL [X Y]: clicks a control with the left button, at X, Y of $window in window pixels, or in the middle of
# the bounds in the table of controls (15 twips per pixel). A control of the table is in the main window, or in the window
# that was found last.
clickon() {
    local owner= x y
    read -r owner x y < <(awk -F '[(, ]+' -v name="$1" '/^CONTROL/ && $4 == name {
        print $2, int(($5 + $7 / 2) / 15), int(($6 + $8 / 2) / 15) }' "$root/core/controls.def") || [ -n "${2:-}" ] ||
        fail "no control $1 in the table"
    [ "$owner" != vistaplan ] || window=$main
    [ -z "${2:-}" ] || x=$2 y=$3
    xdotool windowraise "$window" mousemove --window "$window" $((x * density / 100)) $((y * density / 100)) click 1
}

# playbymouse: plays the lines of a player's script from standard input by mouse and keyboard, starting at the start
# window. A comment after a line adds details: "# X Y" is a position in the window that was opened last; "# opens
# MINWIDTH TITLE" is a window that the line opens, which must be completely on the screen, with one pixel allowed for
# rounding. For a line "picture NAME.png" and a comment "# look NAME", calls expectpicture and expectlook.
playbymouse() {
    local action hint command name text x y title X Y WIDTH HEIGHT
    waitfor "the start window" shown 800 "Tessaly Girder and Panel"
    while IFS='#' read -r action hint; do
        read -r command name text <<<"$action"
        read -r x y title <<<"$hint"
        case $command in
        click | pick | type) clickon "$name" "${x#opens}" "$y" ;;
        picture) expectpicture "${name%.png}" ;;
        esac
        [ "$x" != look ] || expectlook "$y"
        [ "$command" != type ] || xdotool key ctrl+a type "${text//\"/}"
        [ "$x" = opens ] || continue
        waitfor "the window $title" shown "$y" "$title"
        [ "$name" != startprogrambtn ] || main=$window
        ((X >= 0 && Y >= 0 && X + WIDTH <= width + 1 && Y + HEIGHT <= height + 1)) ||
            fail "$title at $X,$Y with ${WIDTH}x$HEIGHT pixels is not completely on the screen"
    done
}

# differentpixels FILE FILE: writes the number of pixels that differ.
differentpixels() {
    compare -metric AE "$1" "$2" null: 2>&1 | awk '{ printf "%d\n", $1 }'
}
