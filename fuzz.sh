#!/usr/bin/env bash
# Installs what is missing, builds the fuzzed program under the sanitizers and feeds it inputs: ./fuzz.sh TARGET SECONDS
# The targets are the play files of fuzz/. A run begins with the shipped files of its kind and with fuzz/seeds/TARGET, and
# goes on from what the runs before it have gathered in build-fuzz/gathered/TARGET. A finding ends it and is left in
# build-fuzz as crash-.., timeout-.. or oom-..; once it is mended it goes to the seeds. What follows goes to libFuzzer.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

target=${1:?"which target? one of: $(basename -s .play -a fuzz/*.play | xargs)"} seconds=${2:?"for how many seconds?"}
case $target in
element | script) shipped=(datah/st-*.txt) ;;
cubes) shipped=(datah/az-*.txt) ;;
palette) shipped=(pals/*.pal) ;;
start) shipped=(datah/start.txt) ;;
designs) shipped=(samples/*.txt) ;;
player) shipped=(docs/*.play tools/*.play) ;;
*) shipped=() ;; # their seeds are made by hand
esac

wantpackages "${fuzzpackages[@]}"
build fuzz fuzz

gathered=$PWD/build-fuzz/gathered/$target
TMPDIR=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
mkdir -p "$gathered" "$TMPDIR/seeds"
for seed in "${shipped[@]}" fuzz/seeds/"$target"/*; do
    [ ! -e "$seed" ] || cp "$seed" "$TMPDIR/seeds/"
done
# What was freed is kept from being given out again for 10 MB only, so that an input that takes 512 MB shows.
export ASAN_OPTIONS=quarantine_size_mb=10 TESSALY_FUZZ=$PWD/fuzz/$target.play
"$PWD/build-fuzz/fuzz" -max_total_time="$seconds" -timeout=60 -rss_limit_mb=512 -malloc_limit_mb=512 \
    -dict="$PWD/fuzz/keywords.txt" -artifact_prefix="$PWD/build-fuzz/" -close_fd_mask=1 -print_final_stats=1 \
    "${@:3}" "$gathered" "$TMPDIR/seeds"
