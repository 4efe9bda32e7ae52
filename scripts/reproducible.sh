#!/usr/bin/env bash
# Builds the committed state twice, in two folders of different names, and compares what is installed
# byte by byte. Also looks for the protections of an optimised build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Builds and installs a copy of the project under a folder: build_in <folder>
build_in() {
    mkdir -p "$1"
    git archive HEAD | tar -x -C "$1"
    {
        cmake --preset release -S "$1" -B "$1/out" -DNURL_GMS_INP_BUILD_TESTS=OFF &&
            cmake --build "$1/out" --parallel "$(nproc)" &&
            DESTDIR="$1/installed" cmake --install "$1/out" --prefix /usr
    } >"$work/log" 2>&1 </dev/null || { cat "$work/log" >&2; exit 1; }
}

build_in "$work/one"
build_in "$work/another/folder"
diff -r "$work/one/installed" "$work/another/folder/installed"
echo "reproducible: $(find "$work/one/installed" -type f | wc -l) files are the same"
python3 -B scripts/checks/hardening.py --optimised \
    "$(find "$work/one/installed" -name libnurl_gms_inp.so)" "$work/one/installed/usr/bin/gms-inp"
