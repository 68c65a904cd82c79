#!/usr/bin/env bash
# tools/make-sessions.sh NAME... | --all: plays these sessions of tests/sessions, or all, and writes their expected
# records again. Shows how each record differs: review every line, because users see these changes. Refuses to replace
# a record that has uncommitted changes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh
root=$PWD
. tools/workingfolder.sh

if [ $# -eq 0 ]; then
    echo "usage: tools/make-sessions.sh NAME... | --all" >&2
    exit 2
fi
if [ "$1" = --all ]; then
    mapfile -t names < <(basename -s .play tests/sessions/*.play)
    set -- "${names[@]}"
fi
for name in "$@"; do
    if ! git diff --quiet HEAD -- "tests/sessions/$name.txt"; then
        echo "tests/sessions/$name.txt has uncommitted changes: commit them, or git restore it" >&2
        exit 1
    fi
done

wantpackages "$runpackages"
build release play
scratch=$(mktemp -d)
trap 'rm -r "$scratch"' EXIT

# record NAME: plays a session in a new working folder, shows the difference and replaces the record.
record() {
    local script=tests/sessions/$1.play expected=tests/sessions/$1.txt folder=$scratch/$1 status=0
    workingfolder "$folder"
    [ ! -d "tests/sessions/$1" ] || cp -r "tests/sessions/$1/." "$folder"
    (cd "$folder" && "$root/build/tools/play" "$root/$script" >/dev/null 2>error.txt) || status=$?
    if [ "$status" -gt 1 ]; then # 1: the program failed, which the record shows
        echo "$1: $(cat "$folder/error.txt")" >&2
        return 1
    fi
    diff -uN --label "$expected" --label "$expected, recorded again" "$expected" "$folder/record.txt" || true
    mv "$folder/record.txt" "$expected"
}

for name in "$@"; do
    record "$name"
done
