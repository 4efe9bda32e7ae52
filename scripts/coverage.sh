#!/usr/bin/env bash
# Says which lines and branches of src/ and platform/ no test runs, from what the tests recorded:
#
#   scripts/test.sh coverage
#   scripts/coverage.sh
#
# Fails when there is one that scripts/coverage_exclusions.txt does not explain. Branches that only an
# exception takes do not count; memory that runs out is tried by tests/faults.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --checks
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
gcovr --root . --object-directory build/coverage -j "$(nproc)" --filter src/ --filter platform/ \
    --exclude-directories '.*/uncounted' --exclude-throw-branches --exclude-unreachable-branches \
    --json "$work/counts.json" build/coverage
python3 -B scripts/coverage_report.py "$work/counts.json" scripts/coverage_exclusions.txt
