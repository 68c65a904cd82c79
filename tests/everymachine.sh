#!/usr/bin/env bash
# Checks that every machine draws the same pixels. Builds the engine without Qt, plays buildings and views, and compares
# checksums after each step with everymachine.txt: of the picture, the lines, and the numbers that they were computed
# from. Reports the first step that differs; build-everymachine/*/tools/everymachine lists its lines and numbers.
#   tests/everymachine.sh                  two compilers, without and with full optimization, a 64-bit ARM processor
#                                          and Windows; also checks that a build with contracted arithmetic is noticed
#   tests/everymachine.sh all              also clang's standard library, a 32-bit and a big-endian processor; installs
#                                          about 200 MB more, including wine to run the Windows programs
#   tests/everymachine.sh "c++ -O3"...     the given compilers and options; needs only these compilers and cmake
# Without wine, Windows programs are built and not run.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
. tools/setup.sh
export root=$PWD
expected=$root/tests/everymachine.txt
export WINEPREFIX=$root/build-everymachine/wine WINEDEBUG=-all

folderof() { echo "$root/build-everymachine/${1// /_}"; }
cannotrun() { [[ $1 == *mingw* ]] && ! command -v wine >/dev/null; }

# play BUILD: builds with a compiler and its options, and runs the result if it can. The options come last on the
# command line, so that they override others.
play() {
    local folder compiler options emulator= static=-static settings=() program=everymachine
    folder=$(folderof "$1")
    read -r compiler options <<<"$1"
    case $compiler in
    aarch64-linux*) emulator=qemu-aarch64 ;;
    s390x-linux*) emulator=qemu-s390x ;;
    i686-linux*) ;;
    *mingw*) emulator=wine settings=(-DCMAKE_SYSTEM_NAME=Windows) program+=.exe ;;
    *) static= ;;
    esac
    mkdir -p "$folder"
    cmake -S . -B "$folder" -DTESSALY_WINDOWS=OFF -DTESSALY_WERROR=OFF -DCMAKE_BUILD_TYPE=None "${settings[@]}" \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_EXE_LINKER_FLAGS="$static $options" \
        -DCMAKE_CXX_COMPILE_OBJECT="<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> $options -o <OBJECT> -c <SOURCE>" \
        >"$folder/log" && cmake --build "$folder" --target everymachine play >>"$folder/log" || return 1
    rm -f "$folder/checksums"
    cannotrun "$1" || $emulator "$folder/tools/$program" "$root" | tr -d '\r' >"$folder/checksums"
}

export -f folderof cannotrun play
contracted="aarch64-linux-gnu-g++ -O2 -ffp-contract=fast"
if [ $# -eq 0 ] || [ "$1" = all ]; then
    more=()
    if [ $# -gt 0 ]; then
        more=("clang++ -O2 -stdlib=libc++" "i686-linux-gnu-g++ -O2" "s390x-linux-gnu-g++ -O2")
        machinepackages+=", $allmachinepackages"
    fi
    wantpackages "$machinepackages" || exit 1
    set -- "g++ -O2" "clang++ -O2" "g++ -O3 -march=native" "clang++ -O3 -march=native" "aarch64-linux-gnu-g++ -O2" \
        "$contracted" "g++ -O0" "clang++ -O0" "x86_64-w64-mingw32-g++-posix -O2" "${more[@]}"
fi
printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -I '{}' bash -o pipefail -c 'play "$0"' '{}' || { echo "A build failed." >&2; exit 1; }

failed=0
for build in "$@"; do
    checksums=$(folderof "$build")/checksums
    if cannotrun "$build"; then
        echo "$build: built, but not run because wine is not installed"
    elif cmp -s "$expected" "$checksums"; then
        echo "$build: all $(wc -l <"$expected") steps as expected"
        [ "$build" != "$contracted" ] || { echo "FAILED: contracted arithmetic was not noticed" >&2; failed=1; }
    else
        echo "$build differs: $(diff "$expected" "$checksums" | sed -n 2p)"
        [ "$build" = "$contracted" ] || failed=1
    fi
done
exit $failed
