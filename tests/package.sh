#!/usr/bin/env bash
# The Debian package: built, installed under a scratch root and started as a user would, by the launcher, in an empty home.
# Then once more, with a shipped file changed and one gone; and removed. Nothing of the machine is touched: the package
# manager works on a copy of its list of packages, so that dependencies are those of the machine.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/shared.sh"

rm -f "$build"/*.deb
cmake --build "$build" --target deb -j2 >"$scratch/deb.log" 2>&1 || { cat "$scratch/deb.log" >&2; fail "the package"; }
package=$(ls "$build"/tessaly_*.deb)

for wanted in 'Package: tessaly$' 'Maintainer: .*@' 'Description: .' 'Depends: .*libqt6widgets6' 'Depends: .*libqt6svg6' \
    'Depends: .*fonts-liberation' 'Depends: .*fonts-dejavu-core'; do
    dpkg-deb -f "$package" | grep -q "^$wanted" || fail "the package does not say: $wanted"
done
apt-get -qq --simulate install "$package" >/dev/null || fail "what the package depends on is not to be had"

hardened=hardening-no-bindnow,hardening-no-fortify-functions # are no more than remarks by themselves
said=$(lintian --allow-root "$package" 2>&1 && lintian --allow-root --display-info --tags $hardened "$package" 2>&1) &&
    [ -z "$said" ] || fail "lintian: $said"

installed=$scratch/root/usr
mkdir -p "$scratch/root/var/lib/dpkg/info" "$scratch/root/var/lib/dpkg/updates"
cp /var/lib/dpkg/status "$scratch/root/var/lib/dpkg"
# packages COMMAND...: the package manager under the scratch root, also for files that the machine itself does without.
packages() {
    dpkg --root="$scratch/root" --log=/dev/null --force-not-root --path-include='/usr/share/*' "$@" >"$scratch/dpkg.log" 2>&1 ||
        { grep -v 'files list file' "$scratch/dpkg.log" >&2; fail "dpkg $*"; }
}
packages --install "$package"
dpkg-query --admindir="$scratch/root/var/lib/dpkg" -W -f '${db:Status-Status}' tessaly | grep -qx installed || fail "not installed"
desktop-file-validate "$installed/share/applications/tessaly.desktop" || fail "the desktop entry"
appstreamcli validate --no-net "$installed"/share/metainfo/*.xml >"$scratch/metainfo.log" ||
    { cat "$scratch/metainfo.log" >&2; fail "the metainfo"; }
[ -x "$installed/bin/$(sed -n 's/^Exec=//p' "$installed/share/applications/tessaly.desktop")" ] || fail "the entry's program"
for icon in scalable/apps/tessaly.svg {16x16,32x32,48x48,128x128,512x512}/apps/tessaly.png; do
    [ -f "$installed/share/icons/hicolor/$icon" ] || fail "no icon $icon"
done
grep -qx Icon=tessaly "$installed/share/applications/tessaly.desktop" || fail "the entry's icon"

version=$(dpkg-deb -f "$package" Version)
grep -q "version=\"$version\"" "$installed"/share/metainfo/*.xml || fail "the metainfo's release"
zgrep -q "\"Tessaly $version\"" "$installed/share/man/man1/tessaly.1.gz" || fail "the manual's version"
zgrep -q "^tessaly ($version)" "$installed/share/doc/tessaly/changelog.gz" || fail "the changelog's version"

# What the documents link to lies where they say.
for page in NOT-BUGS.md docs/guide.md samples/README.md; do
    page=$installed/share/doc/tessaly/$page
    [ -f "$page" ] || fail "no $page"
    for target in $(grep -o ']([^)#: ]*' "$page" | cut -c 3-); do
        [ -e "$(dirname "$page")/$target" ] || fail "$page leads nowhere: $target"
    done
done

startscreen 1100 900
export HOME=$scratch/home
unset TESSALY_HOME XDG_CONFIG_HOME
mkdir "$HOME"
work=$HOME/Tessaly

# The first start, and a click that is recorded.
startprogram / "$installed/bin/tessaly"
playbymouse <<'SCRIPT'
click startprogrambtn   # opens 1000 Tessaly Girder and Panel
click postbeambtn       # opens 600 Layout Girders
click postx0y16         # 40 40
click exitbtn
SCRIPT
programended 0
for folder in datah pals el-numbers samples; do
    diff -r "$root/$folder" "$work/$folder" || fail "$folder/ is not as shipped"
done
[ "$(cd "$work" && echo *)" = "bmps datah designs el-numbers nonuser pals samples" ] || fail "the working folder: $(ls "$work")"
[ "$(cd "$work" && find designs bmps -name '*.txt')" = designs/girders1.txt ] || fail "the records: $(find "$work" -name '*.txt')"

# The second start adds and overwrites nothing else.
echo changed >"$work/datah/st-post.txt"
rm "$work/datah/st-roof.txt"
cp -r "$work" "$scratch/before"
cp "$root/datah/st-roof.txt" "$scratch/before/datah"
startprogram / "$installed/bin/tessaly"
playbymouse <<'SCRIPT'
click startprogrambtn   # opens 1000 Tessaly Girder and Panel
click exitbtn
SCRIPT
programended 0
diff -r "$scratch/before" "$work" || fail "the second start changed the working folder"

# What keeps it from starting is said in a window.
echo "in the way" >"$scratch/file"
startprogram / env TESSALY_HOME="$scratch/file" "$installed/bin/tessaly"
waitfor "the launcher's report" shown 200 Tessaly
xdotool windowfocus "$window" key Return
programended 1

packages --purge tessaly
[ -z "$(find "$scratch/root/usr" ! -type d 2>/dev/null)" ] || fail "left behind: $(find "$scratch/root/usr" ! -type d)"
[ -f "$work/designs/girders1.txt" ] || fail "the user's building went with the package"
echo "$(basename "$package"): installed, started twice, removed, and the working folder is the user's."
