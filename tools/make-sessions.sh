#!/usr/bin/env bash
# Writes the records of the sessions in tests/sessions anew: all, or those that are named. Read what changed before you
# keep it: each line is something that a user sees or finds on disk.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh

wantpackages "${runpackages[@]}"
build release play
root=$PWD
. tools/workingfolder.sh
[ $# -gt 0 ] || set -- $(basename -s .play tests/sessions/*.play)
for name in "$@"; do
    scratch=$(mktemp -d)
    workingfolder "$scratch"
    [ ! -d "tests/sessions/$name" ] || cp -r "tests/sessions/$name/." "$scratch"
    status=0
    (cd "$scratch" && "$root/build/tools/play" "$root/tests/sessions/$name.play" 2>error.txt) || status=$?
    if [ "$status" -gt 1 ]; then # 1: the program failed, as the record tells
        echo "$name: $(cat "$scratch/error.txt")" >&2
        exit 1
    fi
    mv "$scratch/record.txt" "tests/sessions/$name.txt"
    rm -r "$scratch"
done
git --no-pager diff --stat tests/sessions
