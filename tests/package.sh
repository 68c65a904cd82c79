#!/usr/bin/env bash
# Builds the Debian package, installs it under a temporary root, and starts it as a user would: with the launcher and an
# empty home folder. Then removes the package. Changes nothing on this machine: the package manager works with a copy of
# its database, so that it finds the dependencies.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/shared.sh"

rm -f "$build"/*.deb
cmake --build "$build" --target deb -j2 >"$scratch/deb.log" 2>&1 || { cat "$scratch/deb.log" >&2; fail "cannot build the package"; }
package=$(ls "$build"/tessaly_*.deb)

for wanted in 'Package: tessaly$' 'Maintainer: .*@' 'Description: .' 'Depends: .*libqt6widgets6' 'Depends: .*libqt6svg6' \
    'Depends: .*fonts-liberation' 'Depends: .*fonts-dejavu-core'; do
    dpkg-deb -f "$package" | grep -q "^$wanted" || fail "the control data of the package lacks: $wanted"
done
apt-get -qq --simulate install "$package" >/dev/null || fail "a dependency of the package is not available"

hardened=hardening-no-bindnow,hardening-no-fortify-functions # lintian ranks these two as information only
said=$(lintian --allow-root "$package" 2>&1 && lintian --allow-root --display-info --tags $hardened "$package" 2>&1) &&
    [ -z "$said" ] || fail "lintian: $said"

installed=$scratch/root/usr
mkdir -p "$scratch/root/var/lib/dpkg/info" "$scratch/root/var/lib/dpkg/updates"
cp /var/lib/dpkg/status "$scratch/root/var/lib/dpkg"
# packages COMMAND...: runs the package manager under the temporary root, and installs documents even if this machine
# excludes them.
packages() {
    dpkg --root="$scratch/root" --log=/dev/null --force-not-root --path-include='/usr/share/*' "$@" >"$scratch/dpkg.log" 2>&1 ||
        { grep -v 'files list file' "$scratch/dpkg.log" >&2; fail "dpkg $*"; }
}
packages --install "$package"
desktop-file-validate "$installed/share/applications/tessaly.desktop" || fail "the desktop entry is not valid"
appstreamcli validate --no-net "$installed"/share/metainfo/*.xml >"$scratch/metainfo.log" ||
    { cat "$scratch/metainfo.log" >&2; fail "the metainfo is not valid"; }
for icon in scalable/apps/tessaly.svg {16x16,32x32,48x48,128x128,512x512}/apps/tessaly.png; do
    [ -f "$installed/share/icons/hicolor/$icon" ] || fail "the icon $icon is missing"
done
grep -qx Icon=tessaly "$installed/share/applications/tessaly.desktop" || fail "the desktop entry has another icon"

version=$(dpkg-deb -f "$package" Version)
grep -q "version=\"$version\"" "$installed"/share/metainfo/*.xml || fail "the metainfo has another version"
zgrep -q "\"Tessaly $version\"" "$installed/share/man/man1/tessaly.1.gz" || fail "the manual page has another version"
zgrep -q "^tessaly ($version)" "$installed/share/doc/tessaly/changelog.gz" || fail "the changelog has another version"

# The links of the documents lead to installed files.
for page in NOT-BUGS.md docs/guide.md samples/README.md; do
    page=$installed/share/doc/tessaly/$page
    [ -f "$page" ] || fail "$page is missing"
    for target in $(grep -o ']([^)#: ]*' "$page" | cut -c 3-); do
        [ -e "$(dirname "$page")/$target" ] || fail "$page has a broken link: $target"
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
expectend 0
for folder in datah pals el-numbers samples; do
    diff -r "$root/$folder" "$work/$folder" || fail "$folder/ differs from the shipped folder"
done
[ "$(cd "$work" && echo *)" = "bmps datah designs el-numbers nonuser pals samples" ] || fail "the working folder has other contents: $(ls "$work")"
[ "$(cd "$work" && find designs bmps -name '*.txt')" = designs/girders1.txt ] || fail "other records were written: $(find "$work" -name '*.txt')"

# A window reports why the program cannot start.
echo "in the way" >"$scratch/file"
startprogram / env TESSALY_HOME="$scratch/file" "$installed/bin/tessaly"
waitfor "the launcher's report" shown 200 Tessaly
xdotool windowfocus "$window" key Return
expectend 1

packages --purge tessaly
[ -z "$(find "$scratch/root/usr" ! -type d 2>/dev/null)" ] || fail "the package left files: $(find "$scratch/root/usr" ! -type d)"
[ -f "$work/designs/girders1.txt" ] || fail "removing the package deleted the user's building"
echo "$(basename "$package"): installed, started and removed. The working folder is unchanged."
