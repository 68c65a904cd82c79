#!/usr/bin/env bash
# Installs missing packages, builds the fuzzed program with the sanitizers and runs it: ./fuzz.sh TARGET SECONDS
# The targets are the play files of fuzz/. A run starts with the shipped files of its kind, fuzz/seeds/TARGET and the
# inputs that earlier runs collected in build-fuzz/gathered/TARGET. It ends at the first finding and saves it in
# build-fuzz as crash-.., timeout-.. or oom-..; when the fault is fixed, the file belongs in the seeds. Further arguments
# are passed to libFuzzer.
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
*) shipped=() ;; # only the seeds in fuzz/seeds
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
# A small quarantine of freed memory, so that it does not count much towards the limit of 512 MB.
export ASAN_OPTIONS=quarantine_size_mb=10 TESSALY_FUZZ=$PWD/fuzz/$target.play
"$PWD/build-fuzz/fuzz" -max_total_time="$seconds" -timeout=60 -rss_limit_mb=512 -malloc_limit_mb=512 \
    -dict="$PWD/fuzz/keywords.txt" -artifact_prefix="$PWD/build-fuzz/" -close_fd_mask=1 -print_final_stats=1 \
    "${@:3}" "$gathered" "$TMPDIR/seeds"
