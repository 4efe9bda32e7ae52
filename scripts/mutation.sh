#!/usr/bin/env bash
# Puts thousands of small faults into src/ and platform/, one at a time, and says which of them no test notices.
# All are compiled in at once (scripts/mutation/mutate.py), so the sources are built once.
#
#   scripts/mutation.sh [PATH...]      with files and folders, only what they hold
#
# Fails when less than 95 % are noticed, or when one is not that scripts/mutation/survivors.txt does
# not explain. All results stay in build/mutation/results.tsv. Takes about half an hour.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --mutation
here=scripts/mutation
build=build/mutation
mkdir -p "$build"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
quietly() { "$@" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }; }

# The header that says what is exported is made by CMake.
quietly cmake --preset debug -B "$build/plain" -DNURL_GMS_INP_BUILD_TESTS=OFF \
    -DNURL_GMS_INP_BUILD_TOOL=OFF
includes=(-Iinclude -I"$build/plain/include" -Isrc)
for folder in platform/*/; do includes+=(-I"$folder" -I"${folder}include"); done
git ls-files --cached --others --exclude-standard |
    while read -r file; do if [[ -f $file ]]; then echo "$file"; fi; done |
    /usr/bin/python3 -B "$here/mutate.py" "$build/tree" "$build/mutants.tsv" -x c++ -std=c++20 \
        -resource-dir "$(clang-14 -print-resource-dir)" "${includes[@]}"

# The tests of what runs in one process; the library's own tests judge it, not those of the tool.
rooms=(platform model reader schema validation writer editor builder source source_check source_compare
    typed second_reading bounds faults)
programs=()
for room in "${rooms[@]}"; do programs+=("$build/out/tests/$room/test_$room"); done
programs+=("$build/out/tests/reader/test_reader_other_schema")
quietly cmake -G Ninja -S "$build/tree" -B "$build/out" -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS="-O1 -w -I$PWD/$here" -DCMAKE_CXX_FLAGS_DEBUG= -DNURL_GMS_INP_INSTALL=OFF
quietly cmake --build "$build/out" --parallel "$(nproc)" --target "${programs[@]##*/}"

rows=$build/mutants.tsv
if [[ $# -gt 0 ]]; then
    rows=$build/chosen.tsv
    paths=$(printf '|%s' "${@%/}")
    grep -P "^\d+\t(${paths:1})[/\t]" "$build/mutants.tsv" >"$rows"
fi
export NURL_GMS_INP_SCHEMA_YAML=$PWD/share/nurllib/schemas/input/gamess.yaml
python3 -B "$here/run.py" "$rows" "$here/survivors.txt" "$build/results.tsv" "${programs[@]}"
