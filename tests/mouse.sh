# Shared by the end-to-end tests: a screen of its own, the real program on it in a scratch working folder, and a mouse.
# Sourced, not run. Nothing here sleeps for a fixed long time: every step waits for what it expects to see.

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
    [ -n "$programpid" ] && kill "$programpid" 2>/dev/null
    [ -n "$screenpid" ] && kill "$screenpid" 2>/dev/null
    wait
    programpid= screenpid=
}

cleanup() {
    stopscreen
    rm -rf "$scratch"
}
trap cleanup EXIT

# waitfor WHAT COMMAND...: repeats the command until it succeeds; fails after 20 seconds without.
waitfor() {
    local what=$1 deadline=$((SECONDS + 20))
    shift
    until "$@"; do
        [ $SECONDS -lt $deadline ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

# startscreen WIDTH HEIGHT: a screen in memory, on the first display number that is free.
startscreen() {
    rm -f "$scratch/display"
    Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp 3>"$scratch/display" 2>"$scratch/screen.log" &
    screenpid=$!
    waitfor "the screen" test -s "$scratch/display"
    DISPLAY=:$(cat "$scratch/display")
    export DISPLAY
    unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
}

# startprogram VARIABLE=VALUE...: the program in the working folder $scratch/work, with these in its environment.
startprogram() {
    workingfolder "$scratch/work"
    (cd "$scratch/work" && exec env QT_QPA_PLATFORM=xcb "$@" "$build/tessaly") >"$scratch/program.log" 2>&1 &
    programpid=$!
}

# programended STATUS: waits for the program's end and checks its status.
programended() {
    waitfor "the program's end" sh -c "! kill -0 $programpid 2>/dev/null"
    local status=0
    wait "$programpid" || status=$?
    programpid=
    [ "$status" -eq "$1" ] || fail "the program ended with status $status, not $1"
}

# shown TITLE LEASTWIDTH: whether a window of that title and at least that wide is on the screen; leaves its id in $window.
shown() {
    local id WINDOW X Y WIDTH HEIGHT SCREEN
    for id in $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
        eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
        if [ "${WIDTH:-0}" -ge "$2" ]; then
            window=$id
            return 0
        fi
    done
    return 1
}

# clickat WINDOW X Y: a click of the left button, in pixels of the window from its corner.
clickat() {
    xdotool mousemove --window "$1" $(($2 * density / 100)) $(($3 * density / 100)) click 1
}

# clickcontrol WINDOW NAME: a click on the middle of a control, found in the table of controls (twips, 15 to the pixel).
clickcontrol() {
    local place
    place=$(awk -F, -v name="$2" '/^CONTROL/ { gsub(/ /, "", $3); if ($3 == name)
        print int(($4 + $6 / 2) / 15), int(($5 + $7 / 2) / 15) }' "$root/core/controls.def")
    [ -n "$place" ] || fail "no control $2 in the table"
    # shellcheck disable=SC2086
    clickat "$1" $place
}

# viewportpicture WINDOW FILE: what the screen shows where viewport lies.
viewportpicture() {
    import -window "$1" -crop 897x581+120+0 +repage "$2"
}

# differing FILE FILE: how many pixels differ.
differing() {
    compare -metric AE "$1" "$2" null: 2>&1 | awk '{ printf "%d\n", $1 }'
}
