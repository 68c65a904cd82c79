#!/usr/bin/env bash
# Plays end-to-end.play in the real program, by mouse and keyboard, on several desktops: a plain one, one with a dark
# theme and large letters, one with a locale that writes a decimal comma, a small screen, and screens of 200 % and 150 %
# density. Plays it again through the accessibility interface, on a separate session bus. Each time, viewport must show
# the pixels that the player draws, except at 150 %, and the folder must contain the files that the player writes. On
# desktops of normal density, windows must look as on the plain desktop. By mouse and keyboard, each window that opens
# must be completely on the screen. Saves pictures of the windows in walk/ of the build folder.
set -euo pipefail
[ -n "${DBUS_OF_THIS_TEST:-}" ] || DBUS_OF_THIS_TEST=yes exec dbus-run-session -- "$0"
. "$(dirname "${BASH_SOURCE[0]}")/shared.sh"

pictures=$build/walk
rm -rf "$pictures" && mkdir -p "$pictures"
script=$root/tests/end-to-end.play
workingfolder "$scratch/player"
(cd "$scratch/player" && sed 's/ *#.*//' "$script" | "$build/tools/play" - >"$scratch/program.log") || fail "the player failed"
mkdir "$scratch/drawn"
mv "$scratch"/player/*.png "$scratch/drawn"

# drawn NAME: succeeds if viewport shows this picture of the player, scaled by the density. Always succeeds if the
# density is not a whole multiple of 100 %, because the screen then blends pixels.
drawn() {
    [ $((density % 100)) -eq 0 ] || return 0
    import -window "$main" -crop "$((896 * density / 100))x$((580 * density / 100))+$((120 * density / 100))+0" +repage \
        "$scratch/seen.png"
    [ "$(differentpixels "$scratch/seen.png" "$scratch/$1.png")" = 0 ]
}

# rests NAME: saves a picture of the window, and succeeds if the window no longer changes.
rests() {
    import -window "$window" "$scratch/earlier.png"
    sleep 0.1
    import -window "$window" "$pictures/$desktop-$1.png"
    [ "$(differentpixels "$scratch/earlier.png" "$pictures/$desktop-$1.png")" = 0 ]
}

# alike NAME: succeeds if the window looks as it does on the plain desktop. Skips the help on the small screen, where it
# scrolls.
alike() {
    [ "$desktop$1" != smallhelp ] && [ "$desktop$1" != smallhelppages ] || return 0
    import -window "$window" "$pictures/$desktop-$1.png"
    [ "$(differentpixels "$pictures/plain-$1.png[1022x707+0+0]" "$pictures/$desktop-$1.png[1022x707+0+0]")" = 0 ]
}

# expectpicture NAME: waits until viewport shows the picture. expectlook NAME: waits until the window looks as it should.
expectpicture() {
    xdotool windowraise "$main" mousemove "$width" "$height"
    waitfor "$desktop: the picture $1" drawn "$1"
    expectlook "$1"
}
expectlook() {
    xdotool windowraise "$window" mousemove "$width" "$height" # away from tooltips
    waitfor "$desktop: the expected look of $1" $look "$1"
}

# on DESKTOP LOOK WIDTH HEIGHT VARIABLE=VALUE...: plays the script on a screen of this size, with these environment
# variables. LOOK is the function that checks the look of a window.
on() {
    local desktop=$1 look=$2
    mogrify -path "$scratch" -crop 896x580+0+0 +repage -sample "$density%" "$scratch"/drawn/*.png
    startscreen "$3" "$4"
    workingfolder "$scratch/$desktop"
    startprogram "$scratch/$desktop" env "${@:5}" "$build/tessaly"
    if [ "$look" = spoken ]; then
        "$root/tests/accessibility.py" "$script" || fail "the accessibility interface"
    else
        playbymouse <"$script"
    fi
    expectend 0
    stopscreen
    diff -r "$scratch/player" "$scratch/$desktop" || fail "$desktop: the folder has other files"
}

on plain rests 1400 1000

# A dark theme with large letters, in the form in which a common desktop passes it to programs.
mkdir "$scratch/theme"
{
    printf '[Colors:%s]\nBackgroundNormal=30,30,35\nForegroundNormal=235,235,235\n' Button Selection Tooltip View Window
    printf '[General]\n%s=DejaVu Serif,24,-1,5,50,0,0,0,0,0\n' font fixed
    printf '[KDE]\nwidgetStyle=Windows\n'
} >"$scratch/theme/kdeglobals"
on dark alike 1400 1000 XDG_CONFIG_HOME="$scratch/theme" XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5

# A locale with a decimal comma. Create it here, because few machines have one.
mkdir "$scratch/locales"
localedef -i de_DE -f UTF-8 "$scratch/locales/de_DE.UTF-8" || fail "cannot create the locale"
comma=(LOCPATH="$scratch/locales" LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8)
[ "$(env "${comma[@]}" /usr/bin/printf %.1f 1)" = 1,0 ] || fail "the locale does not write a decimal comma"
on comma alike 1400 1000 "${comma[@]}"

on small alike 1024 768
density=200 on double true 2800 2000 QT_SCALE_FACTOR=2
density=150 on oneandhalf true 2100 1500 QT_SCALE_FACTOR=1.5

export NO_AT_BRIDGE= QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
waitfor "the accessibility bus" dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
    org.a11y.Bus.GetAddress >/dev/null
on spoken spoken 1400 1000
echo "Pictures and files are equal on seven desktops. Pictures of the windows: $pictures"
