# Shared by the scripts here: a scratch folder, a screen of its own with the real program on it, and a user who plays a
# script by mouse and keyboard. Sourced, not run. Nothing waits for a fixed long time, but for what is expected.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/workingfolder.sh"
build=${TESSALY_BUILD:-$root/build}
scratch=$(mktemp -d)
screenpid= programpid=
export LC_ALL=C.UTF-8 # of what the tools here write; a test of another country sets it for the program alone
density=100 # percent: pixels of the screen to a hundred of the window

fail() {
    echo "FAILED: $*" >&2
    [ -s "$scratch/program.log" ] && sed 's/^/program: /' "$scratch/program.log" >&2
    if [ -n "$screenpid" ]; then
        import -window root "$build/end-to-end-failed.png" && echo "The screen as it was: $build/end-to-end-failed.png" >&2
    fi
    exit 1
}

# stopscreen: takes the program and its screen away.
stopscreen() {
    [ -z "$programpid$screenpid" ] || kill $programpid $screenpid 2>/dev/null
    wait
    programpid= screenpid=
}
trap 'stopscreen; rm -rf "$scratch"' EXIT

# waitfor WHAT COMMAND...: repeats the command until it succeeds; fails after 20 seconds without.
waitfor() {
    local what=$1 deadline=$((SECONDS + 20))
    until "${@:2}"; do
        [ $SECONDS -lt $deadline ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

# startscreen WIDTH HEIGHT: a screen in memory, on the first display number that is free.
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

# startprogram FOLDER COMMAND...: starts it in the folder.
startprogram() {
    (cd "$1" && exec "${@:2}") >"$scratch/program.log" 2>&1 &
    programpid=$!
}

# programended STATUS: waits for the program's end and checks its status.
programended() {
    local status=0
    waitfor "the program's end" sh -c "! kill -0 $programpid 2>/dev/null"
    wait "$programpid" || status=$?
    programpid=
    [ "$status" -eq "$1" ] || fail "the program ended with status $status, not $1"
}

# shown LEASTWIDTH TITLE: whether such a window is on the screen; leaves its id in $window and its place in $X, $Y, ...
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

# clickon CONTROL [X Y]: a click of the left button there in $window, in its pixels, or on the middle of the control, which
# is found in the table of controls (twips, 15 to the pixel).
clickon() {
    local in= x y
    read -r in x y < <(awk -F '[(, ]+' -v name="$1" '/^CONTROL/ && $4 == name {
        print $2, int(($5 + $7 / 2) / 15), int(($6 + $8 / 2) / 15) }' "$root/core/controls.def") || [ -n "${2:-}" ] ||
        fail "no control $1 in the table"
    [ "$in" != vistaplan ] || window=$main
    [ -z "${2:-}" ] || x=$2 y=$3
    xdotool windowraise "$window" mousemove --window "$window" $((x * density / 100)) $((y * density / 100)) click 1
}

# playbymouse: what the lines of a player's script say, by mouse and keyboard, from the start window on. Behind a line may
# stand "# X Y", a place in the window that was opened last, or "# opens LEASTWIDTH TITLE", a window, which must be whole
# on the screen but for a pixel of rounding. At "picture NAME.png" and "# look NAME" the script that sources this looks
# closer.
playbymouse() {
    local action hint command name text x y title X Y WIDTH HEIGHT
    waitfor "the start window" shown 800 "Tessaly Girder and Panel"
    while IFS='#' read -r action hint; do
        read -r command name text <<<"$action"
        read -r x y title <<<"$hint"
        case $command in
        click | pick | type) clickon "$name" "${x#opens}" "$y" ;;
        picture) pictured "${name%.png}" ;;
        esac
        [ "$x" != look ] || looked "$y"
        [ "$command" != type ] || xdotool key ctrl+a type "${text//\"/}"
        [ "$x" = opens ] || continue
        waitfor "the window $title" shown "$y" "$title"
        [ "$name" != startprogrambtn ] || main=$window
        ((X >= 0 && Y >= 0 && X + WIDTH <= width + 1 && Y + HEIGHT <= height + 1)) ||
            fail "$title lies at $X,$Y and is ${WIDTH}x$HEIGHT, not on the screen"
    done
}

# differing FILE FILE: how many pixels differ.
differing() {
    compare -metric AE "$1" "$2" null: 2>&1 | awk '{ printf "%d\n", $1 }'
}
