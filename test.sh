#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test.
# What follows the command goes to ctest: ./test.sh -R projector
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

wantpackages "$runpackages" "$testpackages"
build release
ctest --preset release "$@"
