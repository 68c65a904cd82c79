#!/usr/bin/env bash
# ./fuzz.sh TARGET SECONDS [ARGUMENT...]: installs missing packages, builds the fuzz program with the sanitizers and
# runs it. The targets are the .play files of fuzz/. The other arguments are passed to libFuzzer.
# The first inputs of a run are the shipped files that suit the target, the files in fuzz/seeds/TARGET, and the inputs
# that earlier runs gathered in build-fuzz/gathered/TARGET. A run ends at the first failure and saves its input in
# build-fuzz, as crash-*, timeout-* or oom-*. When you have fixed the fault, add that file to the seeds.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

if [ $# -lt 2 ]; then
    echo "usage: ./fuzz.sh TARGET SECONDS [ARGUMENT...]" >&2
    echo "targets: $(basename -s .play -a fuzz/*.play | xargs)" >&2
    exit 2
fi
target=$1 seconds=$2
case $target in
element | script) shipped=(datah/st-*.txt) ;;
cubes) shipped=(datah/az-*.txt) ;;
palette) shipped=(pals/*.pal) ;;
start) shipped=(datah/start.txt) ;;
designs) shipped=(samples/*.txt) ;;
player) shipped=(docs/*.play tools/*.play) ;;
*) shipped=() ;; # this target has only seeds
esac

wantpackages "$fuzzpackages"
build fuzz

gathered=$PWD/build-fuzz/gathered/$target
TMPDIR=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
mkdir -p "$gathered" "$TMPDIR/seeds"
for seed in "${shipped[@]}" fuzz/seeds/"$target"/*; do
    [ ! -e "$seed" ] || cp "$seed" "$TMPDIR/seeds/"
done
# Freed memory in quarantine counts towards the limit of 512 MB, so keep the quarantine small.
export ASAN_OPTIONS=quarantine_size_mb=10 TESSALY_FUZZ=$PWD/fuzz/$target.play
"$PWD/build-fuzz/fuzz" -max_total_time="$seconds" -timeout=60 -rss_limit_mb=512 -malloc_limit_mb=512 \
    -dict="$PWD/fuzz/keywords.txt" -artifact_prefix="$PWD/build-fuzz/" -close_fd_mask=1 -print_final_stats=1 \
    "${@:3}" "$gathered" "$TMPDIR/seeds"
