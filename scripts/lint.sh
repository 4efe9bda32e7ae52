#!/usr/bin/env bash
# Every check that needs no run of the program: format, clang-tidy and the scripts in checks/.
#
#   scripts/lint.sh            all of it
#   scripts/lint.sh --ci       clang-tidy without its static analyzer and the checks that it has under
#                              two names, and not over the tool, where it spends its time in two
#                              large headers: a fifth of the time
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
folders='src|platform|tools'
if [[ ${1:-} == --ci ]]; then
    checks=(-checks='-clang-analyzer-*,-cert-*')
    folders='src|platform'
fi

echo "lint: clang-tidy"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
# Nothing is built here, so there are no precompiled headers.
cmake --preset clang -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >"$log" ||
    { cat "$log" >&2; exit 1; }
# The program prints each command it runs; only what the checks found is worth reading.
if ! run-clang-tidy-14 -quiet "${checks[@]}" -p build/lint -j "$(nproc)" \
    "^$(printf '%s' "$PWD" | sed 's/[][\.*^$+?(){}|]/\\&/g')/($folders)/" >"$log" 2>&1; then
    grep -vE '^(clang-tidy-14 |/usr/bin/clang-tidy-14 |[0-9]+ warnings? generated)' "$log" >&2
    exit 1
fi
echo "lint: clean"
