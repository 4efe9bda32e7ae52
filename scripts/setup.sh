#!/usr/bin/env bash
# Installs the Debian packages that are missing for building and testing, and asks for nothing.
#
#   scripts/setup.sh            the compiler, CMake, and what the tool and the tests use
#   scripts/setup.sh --locales  also what scripts/locale.sh makes locales of
#   scripts/setup.sh --bench    also what the benchmarks use
#   scripts/setup.sh --portability   also what scripts/portability.sh builds and runs with
#   scripts/setup.sh --growth   also what counting instructions uses
#   scripts/setup.sh --mutation also what scripts/mutation.sh uses
#   scripts/setup.sh --checks   also what scripts/lint.sh and the Clang presets use
set -euo pipefail

packages=(g++ cmake ninja-build pkg-config python3 python3-yaml
    doctest-dev librapidcheck-dev libcli11-dev nlohmann-json3-dev)
if [[ ${1:-} == --checks ]]; then
    packages+=(clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev abigail-tools
        gcovr xz-utils)
elif [[ ${1:-} == --mutation ]]; then
    packages+=(clang-14 libclang-14-dev python3-clang-14)
elif [[ ${1:-} == --locales ]]; then
    packages+=(locales)
elif [[ ${1:-} == --bench ]]; then
    packages+=(libbenchmark-dev)
elif [[ ${1:-} == --portability ]]; then
    packages+=(clang-14 g++-i686-linux-gnu g++-s390x-linux-gnu qemu-user locales)
elif [[ ${1:-} == --growth ]]; then
    packages+=(valgrind)
fi

if ! command -v dpkg-query >/dev/null; then
    echo "setup: this is not a Debian system, needed are: ${packages[*]}" >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
        missing+=("$package")
done
if [[ ${#missing[@]} -eq 0 ]]; then
    echo "setup: nothing is missing"
    exit 0
fi

as_root=()
if [[ $EUID -ne 0 ]]; then
    if ! sudo -n true 2>/dev/null; then
        echo "setup: please run as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo -n)
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y \
        -o DPkg::Lock::Timeout=300 "$@" </dev/null >>"$log" 2>&1
}
if ! { apt update && apt install --no-install-recommends "${missing[@]}"; }; then
    cat "$log" >&2
    echo "setup: could not install ${missing[*]}" >&2
    exit 1
fi
echo "setup: installed ${missing[*]}"
