#!/usr/bin/env bash
# The launcher, with a program that only tells where and how it was started: the working folder of the first start, what
# later starts leave alone and add, and that the program is not started where there is no folder to work in.
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() {
    echo "FAILED: $*" >&2
    exit 1
}
# holds FILE TEXT: whether the file is there with just this text.
holds() {
    [ "$(cat "$1" 2>&1)" = "$2" ] || fail "$1 holds: $(cat "$1" 2>&1)"
}

prefix="$scratch/a prefix"
share=$prefix/share/tessaly
mkdir -p "$prefix/bin" "$prefix/libexec/tessaly" "$share/datah" "$share/pals" "$share/samples" "$share/el-numbers"
cp "$(dirname "${BASH_SOURCE[0]}")/../packaging/tessaly" "$prefix/bin"
cat >"$prefix/libexec/tessaly/tessaly" <<'PROGRAM'
#!/bin/sh
{ pwd; printf '<%s>' "$@"; } >"$STARTED"
exit 3
PROGRAM
cat >"$prefix/libexec/tessaly/report" <<'REPORT'
#!/bin/sh
printf '%s\n' "$@" >"$REPORTED"
REPORT
chmod +x "$prefix"/libexec/tessaly/*
for file in datah/post.txt datah/beam.txt pals/p.pal samples/s.txt el-numbers/e.png; do
    echo shipped >"$share/$file"
done
chmod a-w "$share/datah/beam.txt"
export STARTED=$scratch/started REPORTED=$scratch/reported HOME="$scratch/some home"
unset TESSALY_HOME DISPLAY WAYLAND_DISPLAY
mkdir "$HOME"

# start STATUS COMMAND...: the launcher, from a folder of no importance.
start() {
    local wanted=$1 status=0
    shift
    rm -f "$STARTED"
    (cd "$scratch" && "$@") 2>"$scratch/errors" || status=$?
    [ "$status" -eq "$wanted" ] || fail "status $status of $*: $(cat "$scratch/errors")"
}
launcher=$prefix/bin/tessaly
work=$HOME/Tessaly

# The first start.
start 3 "$launcher" -style "two words"
holds "$STARTED" "$work
<-style><two words>"
for file in datah/post.txt datah/beam.txt pals/p.pal samples/s.txt el-numbers/e.png; do
    holds "$work/$file" shipped
done
[ "$(find "$work" | wc -l)" -eq 13 ] || fail "the working folder holds something else: $(find "$work")"
[ -n "$(find "$work/datah/beam.txt" -perm -200)" ] || fail "a file that cannot be edited"
for folder in designs bmps nonuser; do
    [ -d "$work/$folder" ] || fail "no $folder/"
done

# A later one, from a newer package: what is there stays, what is missing comes.
echo mine >"$work/datah/post.txt"
echo mine >"$work/designs/girders1.txt"
ln -sf nowhere "$work/pals/p.pal"
rm "$work/samples/s.txt"
echo newer >"$share/datah/post.txt"
echo newer >"$share/datah/roof.txt"
ln -s "$launcher" "$scratch/link"
start 3 "$scratch/link"
holds "$work/datah/post.txt" mine
holds "$work/designs/girders1.txt" mine
holds "$work/samples/s.txt" shipped
holds "$work/datah/roof.txt" newer
[ "$(readlink "$work/pals/p.pal")" = nowhere ] || fail "a link of the user's was replaced"
[ -s "$scratch/errors" ] && fail "a start in good order reports: $(cat "$scratch/errors")"

# Another folder, named from where one stands.
mkdir -p "$scratch/elsewhere/here"
start 3 env CDPATH="$scratch/elsewhere" TESSALY_HOME=here "$launcher"
holds "$scratch/here/datah/post.txt" newer
[ "$(head -n 1 "$STARTED")" = "$scratch/here" ] || fail "started in $(head -n 1 "$STARTED")"

start 3 env OLDPWD="$scratch/elsewhere" TESSALY_HOME=- "$launcher"
[ "$(head -n 1 "$STARTED")" = "$scratch/-" ] || fail "started in $(head -n 1 "$STARTED")"

# Killed during its first copies: the next start has whole files and nothing besides.
mkdir "$scratch/bin"
printf '#!/bin/sh\nfor to; do :; done\necho half >"$to"\nkill -9 $PPID\n' >"$scratch/bin/cp"
chmod +x "$scratch/bin/cp"
export TESSALY_HOME=$scratch/killed
start 137 env PATH="$scratch/bin:$PATH" sh -c '"$0" || exit' "$launcher"
grep -qr half "$TESSALY_HOME" || fail "nothing to be cleared away"
start 3 "$launcher"
[ -z "$(grep -r half "$TESSALY_HOME")" ] || fail "left behind: $(grep -r half "$TESSALY_HOME")"
holds "$TESSALY_HOME/datah/beam.txt" shipped

# Nowhere to work: said in a window where there is a display.
echo "in the way" >"$scratch/file"
start 1 env -u HOME -u TESSALY_HOME "$launcher"
[ ! -e "$STARTED" ] && grep -q TESSALY_HOME "$scratch/errors" || fail "started with no folder to work in"
[ ! -e "$REPORTED" ] || fail "a window without a display"
start 1 env DISPLAY=:7 TESSALY_HOME="$scratch/file" "$launcher"
[ ! -e "$STARTED" ] && grep -q "$scratch/file" "$scratch/errors" || fail "started with a file as its folder"
grep -q "$scratch/file" "$REPORTED" || fail "no window says why nothing starts"
echo "The launcher makes its folder and leaves what is there."
