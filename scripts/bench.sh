#!/usr/bin/env bash
# Builds the benchmarks in release, runs each beside its floor, and writes the ratios of the medians of
# interleaved repetitions to docs/benchmarks.md and docs/benchmarks.svg. Takes a few minutes; nothing else
# should run meanwhile.
#
#   scripts/bench.sh [REPETITIONS]      9 unless given
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --bench
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
{
    cmake --preset release -DNURL_GMS_INP_BUILD_BENCHMARKS=ON &&
        cmake --build --preset release --parallel "$(nproc)" --target bench_gms_inp bench_peak_memory
} >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }

export NURL_GMS_INP_SCHEMA_YAML=$PWD/share/nurllib/schemas/input/gamess.yaml
build/release/bench/bench_peak_memory >"$work/memory.json"
build/release/bench/bench_gms_inp --benchmark_repetitions="${1:-9}" --benchmark_min_time=0.2 \
    --benchmark_enable_random_interleaving=true --benchmark_format=json \
    >"$work/times.json" 2>"$work/log" || { cat "$work/log" >&2; exit 1; }
python3 scripts/bench_report.py "$work/times.json" "$work/memory.json"
