#!/usr/bin/env bash
# Compares the binary interface of a build with the one that is stored, and fails on any
# difference: in exported functions, and in the layout of the types that they take and give.
#
#   scripts/abi.sh [BUILD]            compares; the build is build/debug unless given
#   scripts/abi.sh --write [BUILD]    stores the interface as it is now, after an intended change
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --checks
write=false
if [[ ${1:-} == --write ]]; then
    write=true
    shift
fi
library=${1:-build/debug}/src/libnurl_gms_inp.so
stored=cmake/libnurl_gms_inp.abi.xz
ours=(--drop-private-types --exported-interfaces-only)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if $write; then
    abidw --headers-dir include "${ours[@]}" --no-corpus-path --no-comp-dir-path --no-show-locs \
        --no-parameter-names --no-elf-needed "$library" | xz -9 >"$stored"
    exit
fi
xz -dc "$stored" >"$work/stored.abi"
abidiff --headers-dir2 include "${ours[@]}" "$work/stored.abi" "$library"
echo "abi: as stored"
