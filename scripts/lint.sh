#!/usr/bin/env bash
# Every check that needs no run of the program: format, clang-tidy and the scripts in checks/.
#
#   scripts/lint.sh            all of it
#   scripts/lint.sh --ci       without the static analyzer of clang-tidy and the checks that it has
#                              under two names, which takes a third of the time
#   scripts/lint.sh --quick    without clang-tidy
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --checks

echo "lint: scripts/checks"
for check in file_length include_direction forbidden_functions docstrings wording; do
    python3 "scripts/checks/$check.py"
done

scripts/check_schema

echo "lint: clang-format"
find include src platform tools tests fuzz bench examples \( -name '*.hpp' -o -name '*.cpp' \) -print0 |
    xargs -0 clang-format-14 --dry-run --Werror

if [[ ${1:-} == --quick ]]; then exit 0; fi

checks=()
if [[ ${1:-} == --ci ]]; then checks=(-checks='-clang-analyzer-*,-cert-*'); fi

echo "lint: clang-tidy"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset clang >"$log" || { cat "$log" >&2; exit 1; }
# The program prints each command it runs; only what the checks found is worth reading.
if ! run-clang-tidy-14 -quiet "${checks[@]}" -p build/clang -j "$(nproc)" \
    "^$(printf '%s' "$PWD" | sed 's/[][\.*^$+?(){}|]/\\&/g')/(src|platform|tools)/" >"$log" 2>&1; then
    grep -vE '^(clang-tidy-14 |/usr/bin/clang-tidy-14 |[0-9]+ warnings? generated)' "$log" >&2
    exit 1
fi
echo "lint: clean"
