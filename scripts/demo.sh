#!/usr/bin/env bash
# Shows the main job on a deck: checks it, asks for an optimisation, and shows what changed.
#
#   scripts/demo.sh [DECK]      the deck is examples/water.inp unless given
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
deck=$(realpath -- "${1:-$root/examples/water.inp}")
cd "$root"

scripts/setup.sh

echo "demo: building"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
build() {
    cmake --preset release &&
        cmake --build --preset release --parallel "$(nproc)" --target gms-inp
}
if ! build </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    echo "demo: the build failed" >&2
    exit 1
fi
PATH=$root/build/release/tools/gms-inp:$PATH

# Prints a command, then runs it. The exit code 1 says that there are findings or differences.
show() {
    printf '\n$ %s\n' "$*"
    "$@" || [[ $? -eq 1 ]]
}

edited=$(mktemp -d)/$(basename -- "$deck")
show gms-inp check "$deck"
show gms-inp set "$deck" CONTRL.RUNTYP=OPTIMIZE -o "$edited"
show diff -u "$deck" "$edited"
printf '\nThe edited deck is %s\n' "$edited"
