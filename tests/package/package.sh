#!/usr/bin/env bash
# Uses the library as others do, in a temporary folder outside the source and the build tree.
#
#   package.sh CASE      with SOURCE_DIR, BUILD_DIR, LIBDIR, BINDIR, CMAKE and CXX in the environment
set -euo pipefail
: "${SOURCE_DIR:?}" "${BUILD_DIR:?}" "${LIBDIR:?}" "${BINDIR:?}" "${CMAKE:?}" "${CXX:?}"
export CXX CXXFLAGS=${CXXFLAGS:-}
unset NURL_GMS_INP_SCHEMA_YAML DESTDIR

here=$(mktemp -d)
trap 'rm -rf "$here"' EXIT
cd "$here"
prefix=$here/prefix

fail() {
    echo "$*" >&2
    exit 1
}

# Configures and builds a project with the given options: build_project SOURCE BUILD [OPTION...]
# Several sources are compiled as one, which takes a third of the time.
build_project() {
    "$CMAKE" -G Ninja -S "$1" -B "$2" -DCMAKE_BUILD_TYPE=Debug \
        -DCMAKE_UNITY_BUILD=ON "${@:3}"
    "$CMAKE" --build "$2" --parallel 2
}

# Installs a build tree and moves the result, since a package may not depend on its first place.
install_build() {
    "$CMAKE" --install "$1" --prefix "$here/first"
    mv "$here/first" "$prefix"
}

# Fails unless the consumer ran and printed what it read.
expect_run() {
    local printed
    printed=$("$@") || fail "the consumer failed"
    [[ $printed == OPTIMIZE ]] || fail "the consumer printed '$printed'"
}

use_through_cmake() {
    cp -r "$SOURCE_DIR/tests/package/consumer" .
    build_project consumer consumer-build -DCMAKE_PREFIX_PATH="$prefix"
    expect_run consumer-build/consumer
}

# Takes options for pkg-config.
use_through_pkg_config() {
    local flags
    flags=$(PKG_CONFIG_PATH="$prefix/$LIBDIR/pkgconfig" pkg-config "$@" --cflags --libs nurl_gms_inp)
    # The flags are words, so they are not quoted.
    # shellcheck disable=SC2086
    "$CXX" $CXXFLAGS -std=c++20 "$SOURCE_DIR/tests/package/consumer/main.cpp" -o program $flags
    LD_LIBRARY_PATH="$prefix/$LIBDIR" expect_run ./program
}

case_cmake() {
    install_build "$BUILD_DIR"
    use_through_cmake
}

case_pkg_config() {
    install_build "$BUILD_DIR"
    use_through_pkg_config
}

case_tool() {
    install_build "$BUILD_DIR"
    "$prefix/$BINDIR/gms-inp" --version
    "$prefix/$BINDIR/gms-inp" schema CONTRL.SCFTYP
}

case_static() {
    build_project "$SOURCE_DIR" build -DBUILD_SHARED_LIBS=OFF \
        -DNURL_GMS_INP_BUILD_TOOL=OFF -DNURL_GMS_INP_BUILD_TESTS=OFF \
        -DCMAKE_INSTALL_LIBDIR="$LIBDIR"
    install_build build
    [[ -f $prefix/$LIBDIR/libnurl_gms_inp.a ]] || fail "the library is not static"
    use_through_cmake
    use_through_pkg_config --static
}

case_subfolder() {
    cp -r "$SOURCE_DIR"/tests/package/{consumer,subfolder} .
    build_project subfolder build -DGMS_INP_DIR="$SOURCE_DIR"
    expect_run build/consumer
    install_build build
    local found
    found=$(find "$prefix" -path '*nurl_c*' -o -path '*nurl/core*' -o -path '*nurl/chem*')
    [[ -z $found ]] || fail "stand-ins were installed: $found"
}

"case_$1"
