#!/usr/bin/env bash
# Builds the benchmarks in release, runs each beside its floor, and prints the ratio of the medians of
# interleaved repetitions.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --bench
log=$(mktemp)
trap 'rm -f "$log"' EXIT
{
    cmake --preset release -DNURL_GMS_INP_BUILD_BENCHMARKS=ON &&
        cmake --build --preset release --parallel "$(nproc)" --target bench_gms_inp
} >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
build/release/bench/bench_gms_inp --benchmark_repetitions=9 --benchmark_format=json \
    --benchmark_enable_random_interleaving=true 2>"$log" | python3 scripts/bench_ratios.py
