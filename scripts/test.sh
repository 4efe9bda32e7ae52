#!/usr/bin/env bash
# Builds with warnings as errors and runs the tests.
#
#   scripts/test.sh [PRESET [CTEST-OPTION...]]      the preset is `debug` unless given
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=${1:-debug}
if [[ $preset == debug ]]; then scripts/setup.sh; else scripts/setup.sh --checks; fi

cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$(nproc)"
# What an earlier run counted, where the build counts.
find "build/$preset" -name '*.gcda' -type f -delete
ctest --preset "$preset" "${@:2}"
