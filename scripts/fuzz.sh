#!/usr/bin/env bash
# Runs every fuzz target for a while, under address and undefined-behaviour sanitizers.
#
#   scripts/fuzz.sh [SECONDS [TARGET...]]      60 seconds each unless given
#   scripts/fuzz.sh --ci [TARGET...]           10 seconds each from fuzz/seeds alone, always with the
#                                              same random numbers; nothing is kept
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
cmake --preset fuzz
cmake --build --preset fuzz --parallel "$(nproc)"

targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
    for program in build/fuzz/fuzz/fuzz_*; do
        if [[ -x $program ]]; then targets+=("${program##*/fuzz_}"); fi
    done
fi

seeds=(fuzz/seeds)
if ! $ci && [[ -n ${NURL_TEST_CORPUS:-} ]]; then seeds+=("$NURL_TEST_CORPUS"); fi
mkdir -p build/fuzz/crashes
export NURL_GMS_INP_SCHEMA_YAML=$PWD/share/nurllib/schemas/input/gamess.yaml

# Runs a target over folders: run_target TARGET FOLDER...
run_target() {
    local target=$1 dictionary=fuzz/deck.dict options=()
    shift
    if [[ -e fuzz/$target.dict ]]; then dictionary=fuzz/$target.dict; fi
    if $ci; then options=(-seed=1); fi
    "build/fuzz/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len=4096 -timeout=10 \
        -dict="$dictionary" -artifact_prefix=build/fuzz/crashes/"$target"- -print_final_stats=1 \
        -verbosity=0 -print_funcs=0 "${options[@]}" "$@" 2>&1 | grep -v '^INFO'
}

# Keeps of a corpus what together reaches as much as all of it.
minimise() {
    local target=$1 corpus=build/fuzz/corpus/$1
    rm -rf "$corpus.smaller"
    mkdir "$corpus.smaller"
    "build/fuzz/fuzz/fuzz_$target" -merge=1 -verbosity=0 "$corpus.smaller" "$corpus" 2>&1 |
        grep -v '^INFO' || true
    if [[ -n $(ls -A "$corpus.smaller") ]]; then
        rm -rf "$corpus"
        mv "$corpus.smaller" "$corpus"
    fi
}

for target in "${targets[@]}"; do
    echo "== $target, $seconds s"
    if $ci; then
        rm -rf build/fuzz/ci
        mkdir build/fuzz/ci
        run_target "$target" build/fuzz/ci "${seeds[@]}"
    else
        mkdir -p "build/fuzz/corpus/$target"
        run_target "$target" "build/fuzz/corpus/$target" "${seeds[@]}"
        minimise "$target"
    fi
done
