#!/usr/bin/env bash
# Checks that every machine draws the same pixels. Builds the engine without Qt, plays buildings and views, and compares
# the checksums of the picture, of the lines and of the numbers behind them after each step with everymachine.txt.
# Reports the first step that differs.
#   tests/everymachine.sh                  two compilers, as plain and as fast as they can, another processor, and
#                                          Windows. Also checks that a build with contracted arithmetic is noticed
#   tests/everymachine.sh all              these, clang's own library, 32 bits and a processor of the other byte order,
#                                          with Windows programs run by wine: about 200 MB of packages more
#   tests/everymachine.sh "c++ -O3"...     these compilers with these options; needs only them and cmake
# Windows programs are only built where wine is not installed.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
. tools/setup.sh
root=$PWD
kept=$root/tests/everymachine.txt
export WINEPREFIX=$root/build-everymachine/wine WINEDEBUG=-all

folderof() { echo "$root/build-everymachine/${1// /_}"; }

run() {
    local emulator= program
    program=$(folderof "$1")/tools/everymachine
    case $1 in
    aarch64-linux*) emulator=qemu-aarch64 ;;
    s390x-linux*) emulator=qemu-s390x ;;
    *mingw*) emulator=wine ;;
    esac
    $emulator "$program$([ "$emulator" != wine ] || echo .exe)" "$root" "${@:2}" | tr -d '\r'
}

# play BUILD: builds with this compiler, and runs where possible. The options come last, to override others.
play() {
    local folder compiler options= settings=()
    folder=$(folderof "$1")
    read -r compiler options <<<"$1"
    case $compiler in
    *-linux-gnu-*) settings=(-DCMAKE_EXE_LINKER_FLAGS="-static $options") ;;
    *mingw*) settings=(-DCMAKE_EXE_LINKER_FLAGS="-static $options" -DCMAKE_SYSTEM_NAME=Windows) ;;
    *) settings=(-DCMAKE_EXE_LINKER_FLAGS="$options") ;;
    esac
    mkdir -p "$folder"
    cmake -S . -B "$folder" -DTESSALY_WINDOWS=OFF -DTESSALY_WERROR=OFF -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_CXX_COMPILER="$compiler" "${settings[@]}" \
        -DCMAKE_CXX_COMPILE_OBJECT="<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> $options -o <OBJECT> -c <SOURCE>" \
        >"$folder/log" && cmake --build "$folder" --target everymachine play >>"$folder/log" || return 1
    rm -f "$folder/checksums"
    cannotrun "$1" || run "$1" >"$folder/checksums"
}

cannotrun() { [[ $1 == *mingw* ]] && ! command -v wine >/dev/null; }

# differs BUILD: says which step is the first to go another way, and, where a build that agrees is there to ask, which
# line or number of it.
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
expectcontracted=
if [ $# -eq 0 ] || [ "$1" = all ]; then
    more=()
    if [ $# -gt 0 ]; then
        more=("clang++ -O2 -stdlib=libc++" "i686-linux-gnu-g++ -O2" "s390x-linux-gnu-g++ -O2")
        machinepackages+=", $allmachinepackages"
    fi
    wantpackages "$machinepackages" || exit 1
    set -- "g++ -O2" "clang++ -O2" "g++ -O3 -march=native" "clang++ -O3 -march=native" "aarch64-linux-gnu-g++ -O2" \
        "$contracted" "g++ -O0" "clang++ -O0" "x86_64-w64-mingw32-g++-posix -O2" "${more[@]}"
    expectcontracted=yes
fi
printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -I '{}' "${BASH_SOURCE[0]}" --play '{}' || { echo "A build failed." >&2; exit 1; }

agreeing= failed=0
for build in "$@"; do
    if cannotrun "$build"; then
        echo "$build: built, not run without wine"
    elif cmp -s "$kept" "$(folderof "$build")/checksums"; then
        agreeing=${agreeing:-$build}
        echo "$build: all $(wc -l <"$kept") steps as kept"
        [ "$build" != "$contracted" ] || { echo "FAILED: contracted arithmetic passes unseen" >&2; failed=1; }
    else
        differs "$build"
        [ "$build" = "$contracted" ] && [ -n "$expectcontracted" ] || failed=1
    fi
done
exit $failed
