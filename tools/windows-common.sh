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

# Fetches a source package of the distribution and unpacks it into a folder, by lists of the build's own, so that the machine's stay
# as they are.
fetch_source_package() {
    local package=$1 version=$2 kept=$3 folder=$4 site suite
    local lists=$kept/lists
    suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
    site=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' "Codename: $suite" 'Component: main' | head -n 1)
    mkdir -p "$lists/state/partial" "$lists/cache/archives/partial" "$kept/source"
    printf 'deb-src %s %s main\n' "$site" "$suite" "$site" "$suite-updates" >"$lists/sources.list"
    local own=(-o "Dir::Etc::sourcelist=$lists/sources.list" -o Dir::Etc::sourceparts=- -o "Dir::State::lists=$lists/state"
        -o "Dir::Cache=$lists/cache" -o APT::Sandbox::User=)
    apt-get update -qq "${own[@]}"
    (cd "$kept/source" && apt-get source -qq --download-only "${own[@]}" "$package=$version" >/dev/null)
    rm -rf "$folder" "$kept/source/unpacked"
    dpkg-source -q --no-check -x "$kept/source/${package}_${version#*:}.dsc" "$kept/source/unpacked"
    mv "$kept/source/unpacked" "$folder"
}

# The faster inflater is no package for that system. It is built from the sources of the package that this system has, once a
# version; where there is none, zlib reads alone. Sets `inflater`, what CMake is to be told of it.
build_inflater() {
    local kept=$PWD/build/windows-isal version key built triple=x86_64-w64-mingw32
    inflater=(-DDRAVIK_ISAL=OFF)
    version=$(dpkg-query -W -f '${source:Version}' libisal-dev 2>/dev/null) && command -v nasm >/dev/null || return 0
    key=${version//[^0-9A-Za-z.]/-}
    built=$kept/$key
    if [ ! -e "$built/ready" ]; then
        echo "Building the inflater $version for Windows, once: less than a minute."
        local source=$kept/source/libisal
        fetch_source_package libisal "$version" "$kept" "$source"
        make -s -C "$source" -f Makefile.unx lib arch=mingw host_cpu=x86_64 units="crc igzip" AS=nasm \
            CC=$triple-gcc-posix AR=$triple-ar -j"$jobs" >"$kept/made" 2>&1 ||
            { tail -n 40 "$kept/made" >&2; return 1; }
        rm -rf "$built"
        mkdir -p "$built/include/isa-l" "$built/lib"
        cp "$source"/include/*.h "$built/include/isa-l"
        cp "$source/bin/isa-l.a" "$built/lib/libisal.a"
        touch "$built/ready"
    fi
    inflater=(-DDRAVIK_ISAL=ON -DISAL_INCLUDE_DIR="$built/include" -DISAL_LIBRARY="$built/lib/libisal.a")
}

# A prefix of its own, so that nobody's own Windows programs are touched.
use_wine() {
    export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all
    [ -e "$WINEPREFIX/system.reg" ] || wine wineboot --init >/dev/null 2>&1
}
