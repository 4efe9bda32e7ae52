#!/usr/bin/env bash
# Makes a folder in which a program that counts what is run of it finds a place for all of its counts, which are
# lost there. It would complain of counts that it cannot write, as on a full disk.
#
#   uncounted.sh FOLDER PROGRAM
set -euo pipefail

rm -rf "$1"
GCOV_PREFIX=$1 "$2" --version
find "$1" -name '*.gcda' -print0 | xargs -0 -I{} ln -sf /dev/null {}
