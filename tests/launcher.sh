#!/usr/bin/env bash
# Tests the launcher with a stand-in for the program, which only records its working folder and arguments. Checks what
# the first start creates, what later starts change and add, and that the program is not started without a usable
# working folder.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/shared.sh"

# holds TEXT FILE...: fails unless each of the files exists and contains exactly this text.
holds() {
    local file
    for file in "${@:2}"; do
        [ "$(cat "$file" 2>&1)" = "$1" ] || fail "$file contains: $(cat "$file" 2>&1)"
    done
}

prefix="$scratch/a prefix"
share=$prefix/share/tessaly
launcher=$prefix/bin/tessaly
export STARTED=$scratch/started REPORTED=$scratch/reported HOME="$scratch/some home"
unset TESSALY_HOME DISPLAY WAYLAND_DISPLAY
work=$HOME/Tessaly
mkdir -p "$HOME" "$prefix"/{bin,libexec/tessaly} "$share"/{datah,pals,samples,el-numbers}
cp "$build/packaging/tessaly" "$launcher"
printf '#!/bin/sh\nprintf "<%%s>" "$(pwd)" "$@" >"$STARTED"\nexit 3\n' >"$prefix/libexec/tessaly/tessaly"
printf '#!/bin/sh\nprintf "%%s" "$@" >"$REPORTED"\n' >"$prefix/libexec/tessaly/report"
printf '#!/bin/sh\nfor to; do :; done\necho half >"$to"\nkill -9 $PPID\n' >"$scratch/cp"
chmod +x "$prefix"/libexec/tessaly/* "$scratch/cp"
shipped=(datah/post.txt datah/beam.txt pals/p.pal samples/s.txt el-numbers/e.png)
for file in "${shipped[@]}"; do
    echo shipped >"$share/$file"
done
chmod a-w "$share/datah/beam.txt"

# start STATUS COMMAND...: runs the launcher, and checks its exit status.
start() {
    local status=0
    rm -f "$STARTED"
    (cd "$scratch" && "${@:2}") 2>"$scratch/errors" || status=$?
    [ "$status" -eq "$1" ] || fail "status $status of ${*:2}: $(cat "$scratch/errors")"
}

# The first start.
start 3 "$launcher" -style "two words"
holds "<$work><-style><two words>" "$STARTED"
holds shipped "${shipped[@]/#/$work/}"
[ "$(find "$work" | wc -l)" -eq 13 ] && [ -d "$work/designs" ] && [ -d "$work/bmps" ] && [ -d "$work/nonuser" ] ||
    fail "the working folder has other contents: $(find "$work")"
[ -n "$(find "$work/datah/beam.txt" -perm -200)" ] || fail "a copied file is not writable"

# A later start, from a newer package: existing files stay, missing files are added.
echo mine | tee "$work/datah/post.txt" >"$work/designs/girders1.txt"
ln -sf nowhere "$work/pals/p.pal"
rm "$work/samples/s.txt"
echo newer | tee "$share/datah/post.txt" >"$share/datah/roof.txt"
ln -s "$launcher" "$scratch/link"
start 3 "$scratch/link"
holds mine "$work/datah/post.txt" "$work/designs/girders1.txt"
holds shipped "$work/samples/s.txt"
holds newer "$work/datah/roof.txt"
[ "$(readlink "$work/pals/p.pal")" = nowhere ] || fail "the user's link was replaced"
holds "" "$scratch/errors"

# Other folders, given by a relative path.
mkdir -p "$scratch/elsewhere/here"
for folder in here -; do
    start 3 env CDPATH="$scratch/elsewhere" OLDPWD="$scratch/elsewhere" TESSALY_HOME=$folder "$launcher"
    holds newer "$scratch/$folder/datah/post.txt"
    holds "<$scratch/$folder>" "$STARTED"
done

# A start is killed during its first copy: the next start completes the files and removes the partial copy.
export TESSALY_HOME=$scratch/killed
start 137 env PATH="$scratch:$PATH" sh -c '"$0" || exit' "$launcher"
grep -qr half "$TESSALY_HOME" || fail "there is no partial copy to remove"
start 3 "$launcher"
! grep -r half "$TESSALY_HOME" || fail "the partial copy was not removed"
holds shipped "$TESSALY_HOME/datah/beam.txt"

# There is no usable folder: if there is a display, a window reports it.
start 1 env -u HOME -u TESSALY_HOME "$launcher"
grep -q TESSALY_HOME "$scratch/errors" && [ ! -e "$STARTED" ] && [ ! -e "$REPORTED" ] || fail "the program or the report window started without a working folder or display"
echo "in the way" >"$scratch/file"
start 1 env DISPLAY=:7 TESSALY_HOME="$scratch/file" "$launcher"
grep -q "$scratch/file" "$scratch/errors" && [ ! -e "$STARTED" ] || fail "the program started with a file as its folder"
grep -q "$scratch/file" "$REPORTED" || fail "no window reports why the program does not start"
[ "$(wc -l <"$scratch/errors")" -eq 2 ] || fail "the report is too long: $(cat "$scratch/errors")"
mkdir "$scratch/deleted"
start 1 sh -c 'cd deleted && rmdir ../deleted && TESSALY_HOME=.tessaly-launcher-test exec "$0"' "$launcher"
[ ! -e /.tessaly-launcher-test ] || fail "a working folder was created in the root folder"

# A folder that is not writable is reported once. Files that cannot be copied are reported once, too, and the program
# starts.
chmod 777 "$scratch"
user=()
[ "$(id -u)" -ne 0 ] || user=(setpriv --reuid=65534 --regid=65534 --clear-groups) # root can write everywhere
rm "$TESSALY_HOME"/datah/*
chmod a-w "$TESSALY_HOME"/{designs,datah}
start 1 "${user[@]}" "$launcher"
[ "$(grep -c designs "$scratch/errors")" -eq 1 ] && [ ! -e "$STARTED" ] || fail "the folder is not reported once, or the program started: $(cat "$scratch/errors")"
chmod a+w "$TESSALY_HOME"/{designs,bmps,nonuser}
start 3 "${user[@]}" "$launcher"
[ "$(grep -c . "$scratch/errors")" -eq 2 ] || fail "the files are not reported in two lines: $(cat "$scratch/errors")"
chmod u+w "$TESSALY_HOME/datah"
echo "The launcher creates the working folder and changes no existing file."
