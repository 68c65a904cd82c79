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
chmod +x "$prefix/libexec/tessaly/tessaly"
for file in datah/post.txt datah/beam.txt pals/p.pal samples/s.txt el-numbers/e.png; do
    echo shipped >"$share/$file"
done
chmod a-w "$share/datah/beam.txt"
export STARTED=$scratch/started HOME="$scratch/some home"
unset TESSALY_HOME
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

# Nowhere to work.
echo "in the way" >"$scratch/file"
start 1 env -u HOME "$launcher"
[ ! -e "$STARTED" ] && grep -q TESSALY_HOME "$scratch/errors" || fail "started with no folder to work in"
start 1 env TESSALY_HOME="$scratch/file" "$launcher"
[ ! -e "$STARTED" ] && grep -q "$scratch/file" "$scratch/errors" || fail "started with a file as its folder"
echo "The launcher makes its folder and leaves what is there."
