#!/usr/bin/env bash
# Builds the project for several machines, runs the tests of each under three locales, and compares what
# gms-inp prints on all of them. Prints a line a machine; fails when a test fails or an output differs.
#
#   scripts/portability.sh [MACHINE...]     all of them unless given:
#
#     gcc-O0 gcc-O3 clang-O0 clang-O3       this machine, unoptimised and optimised
#     unsigned-char                         the same, where char is unsigned
#     i686                                  32 bits
#     s390x                                 big-endian, run by an emulator
#
# What is built, told and compared is kept in build/portability.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}
export CTEST_PARALLEL_LEVEL=${CTEST_PARALLEL_LEVEL:-$(nproc)}
work=$PWD/build/portability
machines=(gcc-O0 gcc-O3 clang-O0 clang-O3 unsigned-char i686 s390x)
locales=(C de_DE.UTF-8 tr_TR.UTF-8)
packages=(librapidcheck-dev doctest-dev libcli11-dev nlohmann-json3-dev)

# Unpacks what the build needs for another machine into a folder: unpack_packages ARCHITECTURE
#
# Its package lists are kept beside it, so that those of this system stay as they are. A source without the
# architecture is no harm as long as another one has the packages.
unpack_packages() {
    local folder=$work/packages/$1
    if [[ -d $folder/root ]]; then return; fi
    rm -rf "$folder" && mkdir -p "$folder"/{state/lists/partial,cache/archives/partial} && touch "$folder/status"
    local apt=(apt-get -q -o APT::Architecture="$1" -o APT::Architectures="$1" -o Dir::State="$folder/state"
        -o Dir::State::status="$folder/status" -o Dir::Cache="$folder/cache")
    (
        cd "$folder" || exit 1
        "${apt[@]}" update || true
        "${apt[@]}" download "${packages[@]}" || exit 1
        for package in *.deb; do dpkg-deb -x "$package" new || exit 1; done
        mv new root
    )
}

# Fills `options` with what CMake is told about a machine: choose_options MACHINE
choose_options() {
    local strict=-DNURL_GMS_INP_WARNINGS_AS_ERRORS=ON
    local gcc=-DCMAKE_CXX_COMPILER=g++-12 clang=-DCMAKE_CXX_COMPILER=clang++-14
    local plain=(-DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0" "$strict")
    local other=(-DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g0" "$strict")
    case $1 in
        gcc-O0) options=("$gcc" "${plain[@]}") ;;
        # GCC 12 warns with -O3 of overlaps and overflows of strings that there are not.
        gcc-O3) options=("$gcc" -DCMAKE_BUILD_TYPE=Release) ;;
        clang-O0) options=("$clang" "${plain[@]}") ;;
        clang-O3) options=("$clang" -DCMAKE_BUILD_TYPE=Release "$strict") ;;
        unsigned-char) options=("$gcc" -DCMAKE_CXX_FLAGS=-funsigned-char "${plain[@]}") ;;
        i686) options=("${other[@]}" -DCMAKE_FIND_ROOT_PATH="$work/packages/i386/root") ;;
        s390x) options=("${other[@]}" -DCMAKE_FIND_ROOT_PATH="$work/packages/s390x/root") ;;
        *) return 1 ;;
    esac
    local toolchain=$PWD/cmake/toolchains/$1-linux-gnu.cmake
    if [[ -f $toolchain ]]; then options+=(-DCMAKE_TOOLCHAIN_FILE="$toolchain"); fi
}

# Compiles the locales for a machine, and says where they are: make_locales MACHINE
#
# Tests use C.UTF-8 besides, which a system has in its own order of bytes alone.
make_locales() {
    local order=--little-endian locale
    export LOCPATH=$PWD/build/locales
    if [[ $1 == s390x ]]; then order=--big-endian LOCPATH+=/big-endian; fi
    mkdir -p "$LOCPATH"
    for locale in C.UTF-8 "${locales[@]:1}"; do
        if [[ -d $LOCPATH/$locale ]]; then continue; fi
        localedef "$order" -i "${locale%.*}" -f "${locale#*.}" "$LOCPATH/$locale" || return 1
    done
}

build() {
    case $1 in
        i686) unpack_packages i386 || return 1 ;;
        s390x) unpack_packages s390x || return 1 ;;
    esac
    cmake -G Ninja -S . -B "$work/$1" "${options[@]}" && cmake --build "$work/$1" && make_locales "$1"
}

# The words in front of a program of a machine that start it here: emulator_of MACHINE
emulator_of() { sed -n 's/^CMAKE_CROSSCOMPILING_EMULATOR:STRING=//p' "$work/$1/CMakeCache.txt" | tr ';' '\n'; }

# Runs the tests of a machine, and its tool, under a locale: run_under LOCALE MACHINE
#
# Tests of packages, real decks and pages are no matter of the machine. Under an emulator, one more is left out:
# it has a Python program start the tool. What it looks at is among the outputs that are compared.
run_under() {
    local results=$work/$2.results tool=$work/$2/tools/gms-inp/gms-inp left_out='^docs: ' emulator
    mapfile -t emulator < <(emulator_of "$2")
    if [[ ${#emulator[@]} -gt 0 ]]; then left_out+='|^schema: The library loads what a YAML library reads'; fi
    # What failed is in the report, which there is none of when ctest could not run.
    env LC_ALL="$1" NURL_TEST_LOCALE="$1" ctest --test-dir "$work/$2" -LE '^(package|corpus)$' -E "$left_out" \
        --output-on-failure --no-tests=error --timeout 300 --output-junit "$results/$1.xml" ||
        [[ -f $results/$1.xml ]] || return 1
    env LC_ALL="$1" python3 -B scripts/golden_outputs.py "${emulator[@]}" "$tool" >"$results/$1.outputs"
}

# Builds a machine and runs everything on it: try MACHINE
try() {
    local locale
    build "$1" || return 1
    rm -rf "$work/$1.results" && mkdir "$work/$1.results"
    for locale in "${locales[@]}"; do run_under "$locale" "$1" || return 1; done
}

# The sum of a count over the test reports of a machine: total COUNT MACHINE
total() { awk -F '"' -v name="$1=" '$1 ~ "^\t" name "$" { sum += $2 } END { print sum + 0 }' "$work/$2.results"/*.xml; }

# Tells the outcome of a machine, and of its outputs those that differ from the first ones: report MACHINE
report() {
    local failed skipped outputs
    failed=$(total failures "$1") skipped=$(total skipped "$1")
    printf '%-14s %5d tests passed, %d failed, %d skipped; outputs %s\n' "$1" \
        $(($(total tests "$1") - failed - skipped)) "$failed" "$skipped" \
        "$(sha256sum <"$work/$1.results/C.outputs" | cut -d ' ' -f 1)"
    if [[ $failed -gt 0 ]]; then
        sort -u <(sed -n 's/^\t<testcase name="\([^"]*\)".*status="fail".*/    failed: \1/p' "$work/$1.results"/*.xml)
        faults=1
    fi
    for outputs in "$work/$1.results"/*.outputs; do
        reference=${reference:-$outputs}
        cmp -s "$reference" "$outputs" && continue
        echo "    ${outputs#"$work/"} and ${reference#"$work/"} differ first in:"
        diff "$reference" "$outputs" | sed -n 's/^> [0-9a-f]* /    gms-inp /p' | head -n 5
        faults=1
    done
}

if [[ $# -gt 0 ]]; then machines=("$@"); fi
for machine in "${machines[@]}"; do
    choose_options "$machine" || { echo "portability: there is no machine $machine" >&2; exit 2; }
done

scripts/setup.sh --portability
mkdir -p "$work"
faults=0 reference=''
for machine in "${machines[@]}"; do
    choose_options "$machine"
    SECONDS=0
    if try "$machine" >"$work/$machine.log" 2>&1 </dev/null; then
        report "$machine"
    else
        echo "$machine: could not be built and run, see build/portability/$machine.log"
        faults=1
    fi
done
exit "$faults"
