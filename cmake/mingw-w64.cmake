# Builds for 64-bit Windows on a Linux machine, with Debian's packages of mingw-w64; wine runs what comes out. The
# compiler's own libraries are linked in, so an executable needs nothing beside it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix) # the kind whose standard library has threads
set(CMAKE_RC_COMPILER ${triple}-windres)
# A stack of 1 MiB is what the linker of Visual Studio gives; GNU's gives two.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--stack,1048576")
set(CMAKE_CXX_FLAGS_INIT -fno-ipa-ra) # for the test framework too; CMakeLists.txt tells why
set(ZLIB_USE_STATIC_LIBS ON)

set(CMAKE_FIND_ROOT_PATH /usr/${triple} ${CMAKE_CURRENT_LIST_DIR}/../build/windows-googletest)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST) # building alone starts no wine
