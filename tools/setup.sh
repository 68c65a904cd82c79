# Procedures that install needed packages and build, for run.sh, test.sh, bench.sh, fuzz.sh, .ci/run and other scripts.
# Source this file with the root of the repository as the current folder.

# Packages, in the syntax of dependencies: "a | b" means either package.
runpackages='cmake, ninja-build, g++, qt6-base-dev, qt6-svg-dev | libqt6svg6-dev, qt6-wayland, fonts-dejavu-core, fonts-liberation'
testpackages='libgtest-dev, libgmock-dev'
benchpackages='libbenchmark-dev'
fuzzpackages='cmake, ninja-build, clang, libclang-rt-dev'
machinepackages='cmake, ninja-build, g++, clang, g++-aarch64-linux-gnu, qemu-user, g++-mingw-w64-x86-64-posix'
allmachinepackages='libc++-dev, libc++abi-dev, g++-s390x-linux-gnu, g++-i686-linux-gnu, wine, wine64'
checkpackages='git, clang, clang-format, clang-tidy, xvfb, xdotool, x11-utils, imagemagick, locales, dpkg-dev, file, appstream,
    desktop-file-utils, lintian, at-spi2-core, dbus-bin, dbus-daemon, gir1.2-atspi-2.0, python3-gi'

temporary=${TMPDIR:-/tmp}
if ! { [ -d "$temporary" ] && [ -w "$temporary" ]; }; then
    echo "TMPDIR is $temporary, which is not a folder that you can write to." >&2
    exit 1
fi

# CMake cannot use a path that contains # or a double quote. Work through a symbolic link then.
case $PWD in
*[\#\"]*)
    link=$temporary/tessaly-$(printf %s "$PWD" | cksum | cut -d ' ' -f 1)
    ln -sfn "$PWD" "$link"
    cd "$link"
    ;;
esac

# wantpackages LIST...: installs missing packages. If it cannot, it reports what is needed and returns 1.
# TESSALY_SKIP_SETUP=1 skips this, for systems whose tools were installed in another way.
wantpackages() {
    [ "${TESSALY_SKIP_SETUP:-}" = 1 ] && return 0
    local IFS=, simulated asroot=()
    local satisfy=(satisfy --no-install-recommends "$*")
    unset IFS
    if ! command -v apt-get >/dev/null; then
        echo "This system has no apt-get. Install the equivalents of these Debian packages: ${satisfy[2]}" >&2
        echo "Then run this again with TESSALY_SKIP_SETUP=1." >&2
        return 1
    fi
    simulated=$(apt-get -s "${satisfy[@]}" 2>&1) && ! grep -q '^Inst ' <<<"$simulated" && return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Packages are missing. As root, run: apt-get satisfy --no-install-recommends '${satisfy[2]}'" >&2
            return 1
        fi
        asroot=(sudo)
        [ -t 0 ] || asroot=(sudo -n) # without a terminal for the password, fail instead of waiting
    fi
    echo "Installing with apt-get: ${satisfy[2]}"
    "${asroot[@]}" apt-get -q update &&
        "${asroot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y "${satisfy[@]}" && return 0
    echo "apt-get failed. Needed packages: ${satisfy[2]}" >&2
    return 1
}

export CMAKE_GENERATOR=${CMAKE_GENERATOR:-Ninja} # used for new build folders only

# build PRESET TARGET...: configures with a preset of CMakePresets.json, which is quick if nothing has changed, and
# builds the targets, or those of the preset if none is given, on all cores.
build() {
    local preset=$1 targets=() version
    shift
    [ $# -gt 0 ] && targets=(--target "$@")
    version=$(cmake --version | sed -n '1s/.* //p')
    if [ -n "$version" ] && ! printf '%s\n' 3.22 "$version" | sort -CV; then
        echo "CMake $version is too old: version 3.22 or newer is needed." >&2
        return 1
    fi
    cmake --preset "$preset" >/dev/null && cmake --build --preset "$preset" -j "$(nproc)" "${targets[@]}"
}
