#!/usr/bin/env bash
# Installs missing packages, builds everything and runs every test.
# Arguments are passed to ctest: ./test.sh -R painter
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

wantpackages "$runpackages" "$testpackages"
build release
ctest --preset release "$@"
