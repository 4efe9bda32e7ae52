#!/usr/bin/env bash
# Proves that the time of every operation grows linearly with its input, on hostile input too.
#
#   scripts/growth.sh [WORD...]         inputs of up to a million words or 50 megabytes, about an hour
#   scripts/growth.sh --ci [WORD...]    small inputs, less than two minutes with the build
#
# Seconds depend on the machine and on who else uses it, so instructions are counted, with callgrind:
# those of one operation on an input of n units and on one of 4n. Four times the input may take 4.2
# times the instructions. The making of the input and the destruction of the result do not count. With
# words, only the families are run whose names hold all of them.
#
# A family is a row of a table in bench/growth: a text as a function of n, and what is done with it. A
# name that says "n" means that many units. What is printed for each family is n, the instructions at n
# and at 4n, and their ratio, with a `!` behind those with a fault; faults end the script with 1.
# Besides a ratio above the limit these are: a run without counts, an operation that did nothing or
# does not depend on n, and an n so small that an instruction for each pair of units would not show.
#
# The functions that grew are named. All counts stay in build/growth/counts, one file a run, in order;
# callgrind_annotate --threshold=100 shows them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sizes=full
if [[ ${1:-} == --ci ]]; then
    sizes=quick
    shift
fi

scripts/setup.sh --growth
build=build/growth
log=$(mktemp)
trap 'rm -f "$log"' EXIT
{
    cmake --preset release -B "$build" -DNURL_GMS_INP_BUILD_GROWTH=ON \
        -DNURL_GMS_INP_BUILD_TESTS=OFF -DNURL_GMS_INP_BUILD_TOOL=OFF &&
        cmake --build "$build" --parallel "$(nproc)" --target growth
} >"$log" 2>&1 || { cat "$log" >&2; exit 1; }

rm -rf "$build/counts"
mkdir "$build/counts"
export NURL_GMS_INP_SCHEMA_YAML=$PWD/share/nurllib/schemas/input/gamess.yaml
# What the C library does must not change its ways with the size of the input: no string instructions,
# which count once for each byte, no symbols bound at first use, no heap that is tidied up now and then.
export LD_BIND_NOW=1
GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2,-AVX_Fast_Unaligned_Load,-ERMS
GLIBC_TUNABLES+=:glibc.cpu.x86_non_temporal_threshold=0x0fffffffffff:glibc.malloc.mxfast=0
export GLIBC_TUNABLES
{
    valgrind --tool=callgrind --collect-atstart=no --compress-strings=no --log-file="$log" \
        --callgrind-out-file="$build/counts/run" "$build/bench/growth/growth" "$sizes" "$@" ||
        { cat "$log" >&2; exit 1; }
} | python3 scripts/growth_ratios.py "$build/counts/run"
