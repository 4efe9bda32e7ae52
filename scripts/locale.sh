#!/usr/bin/env bash
# Runs the tests of the debug build again, under locales that write a decimal comma and group digits. The
# locales are compiled into the build folder, so that none has to be installed.
#
#   scripts/locale.sh [LOCALE...]      de_DE.UTF-8 and tr_TR.UTF-8 unless given; tr_TR has letters of its own
#                                      for i and I
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh --locales
export LOCPATH=$PWD/build/locales
mkdir -p "$LOCPATH"
locales=("$@")
if [[ ${#locales[@]} -eq 0 ]]; then locales=(de_DE.UTF-8 tr_TR.UTF-8); fi
for locale in "${locales[@]}"; do
    if [[ ! -d $LOCPATH/$locale ]]; then localedef -i "${locale%.*}" -f "${locale#*.}" "$LOCPATH/$locale"; fi
    echo "== $locale"
    LC_ALL=$locale NURL_TEST_LOCALE=$locale ctest --preset debug -LE '^(package|corpus)$'
done
