#!/usr/bin/env bash
# Installs missing packages, builds the benchmarks and runs them.
# Arguments are passed to the benchmark program: ./bench.sh --benchmark_filter=replay
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/setup.sh

wantpackages "$runpackages" "$benchpackages"
build release bench
QT_QPA_PLATFORM=offscreen exec build/bench "$@"
