# Shared by run.sh, test.sh, bench.sh and the checks: the packages that are needed, and the building of build/.
# Sourced, not run, with the repository's root as the working folder. A second run with nothing missing costs a moment.

# The lists. "a|b" is one package under two names: either will do.
runpackages=(cmake ninja-build g++ qt6-base-dev 'qt6-svg-dev|libqt6svg6-dev' qt6-wayland fonts-dejavu-core fonts-liberation)
testpackages=(libgtest-dev libgmock-dev)
benchpackages=(libbenchmark-dev)
fuzzpackages=(cmake ninja-build clang libclang-rt-dev)
machinepackages=(cmake ninja-build g++ clang g++-aarch64-linux-gnu qemu-user)
checkpackages=(git clang clang-format xvfb xdotool x11-utils imagemagick
    locales dpkg-dev file appstream desktop-file-utils lintian
    at-spi2-core dbus-bin dbus-daemon gir1.2-atspi-2.0 python3-gi)

# installed NAME: whether the package of that name is installed (not merely known or half removed).
installed() {
    case $'\n'$(dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null)$'\n' in
    *$'\ninstalled\n'*) ;; # once for each architecture that it is installed for
    *) return 1 ;;
    esac
}

# missingpackages NAME...: writes those that are not installed, one a line, under the name to install them by.
missingpackages() {
    local wanted name known
    for wanted in "$@"; do
        known=
        for name in ${wanted//|/ }; do
            if installed "$name"; then
                continue 2
            fi
            if [ -z "$known" ] && [ -n "$(apt-cache show "$name" 2>/dev/null)" ]; then
                known=$name
            fi
        done
        printf '%s\n' "${known:-${wanted%%|*}}"
    done
}

# wantpackages NAME...: installs what is missing; returns 1, after saying what is wanted, where it cannot.
# TESSALY_SKIP_SETUP=1 leaves the machine alone, for whoever has the tools from elsewhere.
wantpackages() {
    [ "${TESSALY_SKIP_SETUP:-}" = 1 ] && return 0
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        {
            echo "This machine has no apt-get. Wanted are the equivalents of these Debian packages:"
            echo "  ${*//|/ or }"
            echo "With these in place, run again with TESSALY_SKIP_SETUP=1."
        } >&2
        return 1
    fi
    local missing asroot=()
    mapfile -t missing < <(missingpackages "$@")
    [ "${#missing[@]}" -eq 0 ] && return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
            return 1
        fi
        asroot=(sudo)
        [ -t 0 ] || asroot=(sudo -n) # with nobody to type a password, fail rather than wait
    fi
    echo "Installing with apt-get: ${missing[*]}"
    "${asroot[@]}" apt-get -q update &&
        mapfile -t missing < <(missingpackages "$@") && # names may differ once the lists are fresh
        "${asroot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends "${missing[@]}" &&
        return 0
    echo "apt-get failed. Wanted packages: ${missing[*]}" >&2
    return 1
}

export CMAKE_GENERATOR=${CMAKE_GENERATOR:-Ninja} # of a folder that has none yet

# build PRESET TARGET...: configures by the preset of that name (CMakePresets.json), which costs a moment where nothing has
# changed, and builds these targets, or everything, on all cores.
build() {
    local preset=$1 targets=()
    shift
    [ $# -gt 0 ] && targets=(--target "$@")
    cmake --preset "$preset" >/dev/null && cmake --build --preset "$preset" -j "$(nproc)" "${targets[@]}"
}
