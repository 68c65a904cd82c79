#!/usr/bin/env bash
# Whether the same pixels are drawn everywhere. The engine is built without the toolkit and plays buildings and views, and
# after each step the checksums of the picture, of the lines and of the figures behind them are held against those kept in
# everymachine.txt. What differs is told by its first line.
#   tests/everymachine.sh                  by two compilers as plain and as fast as they can, and for another processor,
#                                          which also shows that a build with contracted arithmetic is found out
#   tests/everymachine.sh "c++ -O3"...     by these compilers with these options, with nothing but them and cmake
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
. tools/setup.sh
root=$PWD
kept=$root/tests/everymachine.txt

folderof() { echo "$root/build-everymachine/${1// /_}"; }

run() {
    local emulator=
    [[ $1 != aarch64* ]] || emulator=qemu-aarch64
    $emulator "$(folderof "$1")/tools/everymachine" "$root" "${@:2}"
}

# play BUILD: compiles by the compiler, plays and keeps what it writes. Its options stand last, so that they are obeyed.
play() {
    local folder compiler options= link=
    folder=$(folderof "$1")
    read -r compiler options <<<"$1"
    [[ $compiler != aarch64* ]] || link=-static
    mkdir -p "$folder"
    cmake -S . -B "$folder" -DTESSALY_WINDOWS=OFF -DTESSALY_TESTS=OFF -DTESSALY_WERROR=OFF -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_EXE_LINKER_FLAGS="$link" \
        -DCMAKE_CXX_COMPILE_OBJECT="<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> $options -o <OBJECT> -c <SOURCE>" \
        >"$folder/log" && cmake --build "$folder" --target everymachine >>"$folder/log" && run "$1" >"$folder/checksums"
}

# differs BUILD: says which step is the first to go another way, and, where a build that agrees is there to ask, which
# line or figure of it.
differs() {
    local row number
    row=$(diff "$kept" "$(folderof "$1")/checksums" | sed -n '/^>/ { s/^> //p; q }')
    echo "$1 differs: ${row:-steps are missing}"
    number=$(sed -n 's/.* step \([0-9]*\): .*/\1/p' <<<"$row")
    [ -n "$number" ] && [ -n "$agreeing" ] || return 0
    diff <(run "$agreeing" "$number") <(run "$1" "$number") |
        awk -v agreeing="$agreeing" '/^</ && !right { right = substr($0, 3) } /^>/ && !wrong { wrong = substr($0, 3) }
            END { print "    " right "   by " agreeing "\n    " wrong "   by it" }'
}

if [ "${1:-}" = --play ]; then
    play "$2"
    exit
fi
contracted="aarch64-linux-gnu-g++ -O2 -ffp-contract=fast"
everyway=$#
if [ $# -eq 0 ]; then
    wantpackages "${machinepackages[@]}" || exit 1
    set -- "g++ -O2" "clang++ -O2" "g++ -O3 -march=native" "clang++ -O3 -march=native" "aarch64-linux-gnu-g++ -O2" \
        "$contracted" "g++ -O0" "clang++ -O0"
fi
printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -I '{}' "${BASH_SOURCE[0]}" --play '{}' || { echo "A build failed." >&2; exit 1; }

agreeing= failed=0
for build in "$@"; do
    if cmp -s "$kept" "$(folderof "$build")/checksums"; then
        agreeing=${agreeing:-$build}
        echo "$build: all $(wc -l <"$kept") steps as kept"
        [ "$build" != "$contracted" ] || { echo "FAILED: contracted arithmetic passes unseen" >&2; failed=1; }
    else
        differs "$build"
        [ "$build" = "$contracted" ] && [ "$everyway" -eq 0 ] || failed=1
    fi
done
exit $failed
