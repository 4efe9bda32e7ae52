#!/usr/bin/env bash
# Runs every fuzz target for a while, under address and undefined-behaviour sanitizers.
#
#   scripts/fuzz.sh [SECONDS [TARGET...]]      60 seconds each unless given
#
# Starts from the seeds in fuzz/seeds, and from real decks where NURL_TEST_CORPUS names a folder of
# them. What is found goes to build/fuzz/corpus/TARGET and is where the next run goes on; an input
# that breaks a promise is written to build/fuzz/crashes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-60}
shift || true
scripts/setup.sh --checks
cmake --preset fuzz
cmake --build --preset fuzz --parallel "$(nproc)"

targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
    for program in build/fuzz/fuzz/fuzz_*; do
        if [[ -x $program ]]; then targets+=("${program##*/fuzz_}"); fi
    done
fi

mkdir -p build/fuzz/crashes
export NURL_GMS_INP_SCHEMA_YAML=$PWD/share/nurllib/schemas/input/gamess.yaml
for target in "${targets[@]}"; do
    corpus=build/fuzz/corpus/$target
    mkdir -p "$corpus"
    seeds=(fuzz/seeds)
    if [[ -n ${NURL_TEST_CORPUS:-} ]]; then seeds+=("$NURL_TEST_CORPUS"); fi
    echo "== $target, $seconds s"
    "build/fuzz/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len=4096 -timeout=10 \
        -dict=fuzz/deck.dict -artifact_prefix=build/fuzz/crashes/"$target"- -print_final_stats=1 \
        -verbosity=0 -print_funcs=0 "$corpus" "${seeds[@]}" 2>&1 | grep -v '^INFO'
done
