# What the builds for Windows share; sourced from the root of the tree, behind tools/prepare.

jobs=${JOBS:-$(nproc)}
unset LDFLAGS # a linker that somebody chose for this system knows nothing of that one

# The distribution has the test framework as sources only, for a compiler like this one.
build_framework() {
    local framework=$PWD/build/windows-googletest
    [ ! -e "$framework/lib/libgmock_main.a" ] || return 0
    cmake -S /usr/src/googletest -B "$framework/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" -DCMAKE_INSTALL_PREFIX="$framework" >/dev/null
    cmake --build "$framework/build" --parallel "$jobs" --target install >/dev/null
}

# A prefix of its own, so that nobody's own Windows programs are touched.
use_wine() {
    export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all
    [ -e "$WINEPREFIX/system.reg" ] || wine wineboot --init >/dev/null 2>&1
}
