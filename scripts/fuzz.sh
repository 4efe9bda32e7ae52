#!/usr/bin/env bash
# Runs every fuzz target for a while, under address and undefined-behaviour sanitizers.
#
#   scripts/fuzz.sh [SECONDS [TARGET...]]      60 seconds each unless given
#   scripts/fuzz.sh --ci [TARGET...]           10 seconds each from fuzz/seeds alone, always with the
#                                              same random numbers; nothing is kept. In the build of
#                                              `scripts/test.sh asan-ubsan`, which has the targets too
#
# Starts from the seeds in fuzz/seeds, and from real decks where NURL_TEST_CORPUS names a folder of
# them. What is found goes to build/fuzz/corpus/TARGET, where at the end those inputs are kept that
# together reach what all of them reach, and is where the next run goes on; an input that breaks a
# promise is written to build/fuzz/crashes. A target with words of its own has them in
# fuzz/TARGET.dict, the others take those of decks.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

ci=false
seconds=${1:-60}
if [[ $seconds == --ci ]]; then
    ci=true
    seconds=10
fi
shift || true
scripts/setup.sh --checks
preset=fuzz
if $ci; then preset=asan-ubsan; fi
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$(nproc)"
programs=build/$preset/fuzz

targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
    for program in "$programs"/fuzz_*; do
        if [[ -x $program ]]; then targets+=("${program##*/fuzz_}"); fi
    done
fi
mkdir -p build/fuzz/crashes
export NURL_GMS_INP_SCHEMA_YAML=$PWD/share/nurllib/schemas/input/gamess.yaml

# Runs a target over folders: run_target TARGET OPTION... FOLDER...
run_target() {
    local target=$1 dictionary=fuzz/deck.dict
    if [[ -e fuzz/$target.dict ]]; then dictionary=fuzz/$target.dict; fi
    "$programs/fuzz_$target" -max_total_time="$seconds" -max_len=4096 -timeout="$limit" \
        -dict="$dictionary" -artifact_prefix=build/fuzz/crashes/"$target"- -print_final_stats=1 \
        -verbosity=0 -print_funcs=0 "${@:2}" 2>&1 | grep -v '^INFO'
}

# Keeps of a corpus what together reaches as much as all of it.
minimise() {
    local target=$1 corpus=build/fuzz/corpus/$1
    rm -rf "$corpus.smaller"
    mkdir "$corpus.smaller"
    "$programs/fuzz_$target" -merge=1 -verbosity=0 "$corpus.smaller" "$corpus" 2>&1 |
        grep -v '^INFO' || true
    if [[ -n $(ls -A "$corpus.smaller") ]]; then
        rm -rf "$corpus"
        mv "$corpus.smaller" "$corpus"
    fi
}

# One target from the seeds, its words together at the end: run_in_ci TARGET
run_in_ci() {
    local found log
    found=$(mktemp -d)
    log=$(run_target "$1" -seed=1 "$found" fuzz/seeds) || { echo "== $1: $log"; return 1; }
    rm -rf "$found"
    echo "== $1, $seconds s: $(grep -o 'number_of_executed_units: .*' <<<"$log")"
}

# So many seconds may one input take, where other programs run too.
limit=60
if $ci; then
    export -f run_target run_in_ci
    export programs seconds limit
    printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I{} bash -euo pipefail -c 'run_in_ci {}'
    exit
fi

seeds=(fuzz/seeds)
if [[ -n ${NURL_TEST_CORPUS:-} ]]; then seeds+=("$NURL_TEST_CORPUS"); fi
for target in "${targets[@]}"; do
    echo "== $target, $seconds s"
    mkdir -p "build/fuzz/corpus/$target"
    run_target "$target" "build/fuzz/corpus/$target" "${seeds[@]}"
    minimise "$target"
done
