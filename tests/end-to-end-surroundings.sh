#!/usr/bin/env bash
# The real program on other desktops: a dark theme with large letters, a country that writes a comma for the decimal
# point, a small screen, a screen of double and of one and a half density. The same short session each time: its design
# file, its capture and the view kept with it hold the same bytes as on a plain desktop, and its windows look the same or,
# where they cannot, are whole on the screen.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/mouse.sh"

pictures=$build/surroundings
rm -rf "$pictures" && mkdir -p "$pictures"
there() { [ -s "$scratch/work/$1" ]; }

# keep WINDOW NAME: a picture of a window, once it has come to rest.
keep() {
    waitfor "$2 to be painted" rests "$1" "$pictures/$desktop-$2.png"
}
rests() {
    import -window "$1" "$scratch/earlier.png"
    sleep 0.15
    import -window "$1" "$2"
    [ "$(differing "$scratch/earlier.png" "$2")" = 0 ]
}

# visit BUTTON TITLE LEASTWIDTH: opens a window by its button; it is whole on the screen, but for a pixel of rounding, and
# its picture is kept.
visit() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    clickcontrol "$main" "$1"
    waitfor "the window $2" shown "$2" $(($3 * density / 100))
    eval "$(xdotool getwindowgeometry --shell "$window")"
    [ "$X" -ge 0 ] && [ "$Y" -ge 0 ] && [ $((X + WIDTH)) -le $((width + 1)) ] && [ $((Y + HEIGHT)) -le $((height + 1)) ] ||
        fail "$desktop: $2 lies at $X,$Y and is ${WIDTH}x$HEIGHT, not on the screen"
    keep "$window" "$1"
}
aside() { xdotool windowmove "$window" "$width" "$height"; }

# session DESKTOP WIDTH HEIGHT VARIABLE=VALUE...: the session on such a screen, with these in the program's environment.
session() {
    local desktop=$1 width=$2 height=$3 main
    shift 3
    startscreen "$width" "$height"
    rm -rf "$scratch/work"
    startprogram "$@"
    waitfor "the start window" shown "Tessaly Girder and Panel" $((800 * density / 100))
    keep "$window" start
    clickcontrol "$window" startprogrambtn
    waitfor "the main window" shown "Tessaly Girder and Panel" $((1000 * density / 100))
    main=$window
    keep "$main" scene

    clickcontrol "$main" shopfm
    clickcontrol "$main" perptxtx
    xdotool key ctrl+a && xdotool type "1234.5"
    clickcontrol "$main" magtxt
    xdotool key ctrl+a && xdotool type ".061"
    clickcontrol "$main" cventerbtn
    keep "$main" set
    visit postbeambtn "Layout Girders" 600
    clickat "$window" 40 40 # postx0y16
    waitfor "the post's record" there designs/girders1.txt
    aside
    clickcontrol "$main" screencapbtn
    xdotool type "kept.bmp"
    keep "$main" capture
    clickcontrol "$main" screencapenter
    waitfor "the capture" there bmps/kept.bmp
    visit orange1btn "Panels Layout" 500 && aside
    visit roofbtn "Roof Layout" 400 && aside
    visit fastchange "Easy views" 700
    clickcontrol "$window" easysetbtn
    visit instructionsbtn "Tessaly Panel and Girder" 900
    clickat "$window" 60 400 # the elements' pages
    keep "$window" pages
    clickat "$window" 264 712 # back
    clickcontrol "$main" exitbtn
    programended 0
    mv "$scratch/work" "$scratch/$desktop"
    stopscreen
    [ "$desktop" = plain ] || diff -r "$scratch/plain" "$scratch/$desktop" || fail "$desktop: the files are not those of plain"
}

mainwindow="scene set capture"
ofonesize="start postbeambtn orange1btn roofbtn fastchange"
help="instructionsbtn pages"

# alike DESKTOP SIZE NAME...: whether these windows look as on the plain desktop, as far as SIZE from their upper left.
alike() {
    local desktop=$1 size=$2 name
    for name in "${@:3}"; do
        convert "$pictures/plain-$name.png" -crop "$size" +repage "$scratch/plain.png"
        convert "$pictures/$desktop-$name.png" -crop "$size" +repage "$scratch/here.png"
        [ "$(differing "$scratch/plain.png" "$scratch/here.png")" = 0 ] ||
            fail "$desktop: $name looks another way; see $pictures"
    done
}

session plain 1400 1000
for figure in '"1234.5"' '"0.061"' '"170"'; do
    grep -q -- "$figure" "$scratch/plain/bmps/kept.txt" || fail "the capture keeps $(cat "$scratch/plain/bmps/kept.txt")"
done

# A dark theme with large letters, as one of the common desktops hands it to its programs.
mkdir "$scratch/theme"
{
    for part in Button Selection Tooltip View Window; do
        printf '[Colors:%s]\nBackgroundNormal=30,30,35\nForegroundNormal=235,235,235\n' "$part"
    done
    printf '[General]\nfont=DejaVu Serif,24,-1,5,50,0,0,0,0,0\nfixed=DejaVu Serif,24,-1,5,50,0,0,0,0,0\n'
    printf '[KDE]\nwidgetStyle=Windows\n'
} >"$scratch/theme/kdeglobals"
session dark 1400 1000 XDG_CONFIG_HOME="$scratch/theme" XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
# shellcheck disable=SC2086
alike dark 1400x1000+0+0 $mainwindow $ofonesize $help

# A country of the decimal comma, made here: few machines have it.
mkdir "$scratch/locales"
localedef -i de_DE -f UTF-8 "$scratch/locales/de_DE.UTF-8" || fail "no locale"
comma=(LOCPATH="$scratch/locales" LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8)
[ "$(env "${comma[@]}" /usr/bin/printf %.1f 1)" = 1,0 ] || fail "the locale writes no comma"
session comma 1400 1000 "${comma[@]}"
# shellcheck disable=SC2086
alike comma 1400x1000+0+0 $mainwindow $ofonesize $help

# A small screen holds everything but the help, which scrolls.
session small 1024 768
# shellcheck disable=SC2086
alike small 1022x707+0+0 $mainwindow $ofonesize

# On a dense screen a pixel of viewport is as many pixels large, and what is kept of it is not.
density=200
session double 2800 2000 QT_SCALE_FACTOR=2
convert "$pictures/double-scene.png" -crop 1794x1162+240+0 +repage -sample 50% "$scratch/here.png"
convert "$pictures/plain-scene.png" -crop 897x581+120+0 +repage "$scratch/plain.png"
[ "$(differing "$scratch/plain.png" "$scratch/here.png")" = 0 ] || fail "double: viewport is not its image twice as large"
density=150
session oneandhalf 2100 1500 QT_SCALE_FACTOR=1.5
echo "On six desktops the same files, and windows as they should look; their pictures: $pictures"
