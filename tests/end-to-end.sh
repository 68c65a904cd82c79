#!/usr/bin/env bash
# The real program in real windows: end-to-end.play by mouse and keyboard on a plain desktop and on others, which have a
# dark theme with large letters, a country that writes a comma for the decimal point, a small screen, a screen of double
# and of one and a half density; then by what assistive technology has, on a session bus of its own. Each time viewport
# shows what the player draws, the windows look as on the plain desktop or, where they cannot, are whole on the screen,
# and the folder holds what the player leaves. The windows' pictures stay in the build folder's walk/.
set -euo pipefail
[ -n "${DBUS_OF_THIS_TEST:-}" ] || DBUS_OF_THIS_TEST=yes exec dbus-run-session -- "$0"
. "$(dirname "${BASH_SOURCE[0]}")/shared.sh"

pictures=$build/walk
rm -rf "$pictures" && mkdir -p "$pictures"
script=$root/tests/end-to-end.play
workingfolder "$scratch/player"
(cd "$scratch/player" && sed 's/ *#.*//' "$script" | "$build/tools/play" - >"$scratch/program.log") || fail "the player"
mkdir "$scratch/drawn"
mv "$scratch"/player/*.png "$scratch/drawn"

# drawn NAME: whether viewport shows this picture of the player's, each of its pixels as large as the density is; where
# that is no whole number, they are blended.
drawn() {
    [ $((density % 100)) -eq 0 ] || return 0
    import -window "$main" -crop "$((896 * density / 100))x$((580 * density / 100))+$((120 * density / 100))+0" +repage \
        "$scratch/seen.png"
    [ "$(differing "$scratch/seen.png" "$scratch/$1.png")" = 0 ]
}

# rests NAME: whether the window no longer changes; its picture is kept.
rests() {
    import -window "$window" "$scratch/earlier.png"
    sleep 0.1
    import -window "$window" "$pictures/$desktop-$1.png"
    [ "$(differing "$scratch/earlier.png" "$pictures/$desktop-$1.png")" = 0 ]
}

# alike NAME: whether the window looks as on the plain desktop, but for the help on a screen where it scrolls.
alike() {
    [ "$desktop$1" != smallhelp ] && [ "$desktop$1" != smallhelppages ] || return 0
    import -window "$window" "$pictures/$desktop-$1.png"
    [ "$(differing "$pictures/plain-$1.png[1022x707+0+0]" "$pictures/$desktop-$1.png[1022x707+0+0]")" = 0 ]
}

# pictured NAME, looked NAME: waits for that picture of the player's, and for windows as they should look.
pictured() {
    xdotool windowraise "$main" mousemove "$width" "$height"
    waitfor "$desktop: the picture $1" drawn "$1"
    looked "$1"
}
looked() {
    xdotool windowraise "$window" mousemove "$width" "$height" # away from tooltips
    waitfor "$desktop: $1 to be painted as it should look" $look "$1"
}

# on DESKTOP LOOK WIDTH HEIGHT VARIABLE=VALUE...: the session on such a screen, with these in the program's environment.
on() {
    local desktop=$1 look=$2
    mogrify -path "$scratch" -crop 896x580+0+0 +repage -sample "$density%" "$scratch"/drawn/*.png
    startscreen "$3" "$4"
    workingfolder "$scratch/$desktop"
    startprogram "$scratch/$desktop" env "${@:5}" "$build/tessaly"
    if [ "$look" = spoken ]; then
        "$root/tests/accessibility.py" "$script" "$build/spoken.txt" || fail "the interface; its controls are listed in $build/spoken.txt"
    else
        playbymouse <"$script"
    fi
    programended 0
    stopscreen
    diff -r "$scratch/player" "$scratch/$desktop" || fail "$desktop: the folder holds other files"
}

on plain rests 1400 1000

# A dark theme with large letters, as one of the common desktops hands it to its programs.
mkdir "$scratch/theme"
{
    printf '[Colors:%s]\nBackgroundNormal=30,30,35\nForegroundNormal=235,235,235\n' Button Selection Tooltip View Window
    printf '[General]\n%s=DejaVu Serif,24,-1,5,50,0,0,0,0,0\n' font fixed
    printf '[KDE]\nwidgetStyle=Windows\n'
} >"$scratch/theme/kdeglobals"
on dark alike 1400 1000 XDG_CONFIG_HOME="$scratch/theme" XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5

# A country of the decimal comma, made here: few machines have it.
mkdir "$scratch/locales"
localedef -i de_DE -f UTF-8 "$scratch/locales/de_DE.UTF-8" || fail "no locale"
comma=(LOCPATH="$scratch/locales" LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8)
[ "$(env "${comma[@]}" /usr/bin/printf %.1f 1)" = 1,0 ] || fail "the locale writes no comma"
on comma alike 1400 1000 "${comma[@]}"

on small alike 1024 768
density=200 on double true 2800 2000 QT_SCALE_FACTOR=2
density=150 on oneandhalf true 2100 1500 QT_SCALE_FACTOR=1.5

export NO_AT_BRIDGE= QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
waitfor "the accessibility bus" dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
    org.a11y.Bus.GetAddress >/dev/null
on spoken spoken 1400 1000
echo "On seven desktops the same pictures and files; the windows' pictures: $pictures"
