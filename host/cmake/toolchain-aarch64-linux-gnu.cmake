# Cross build of the host configuration for 64-bit Arm Linux with Debian's aarch64-linux-gnu
# toolchain. Binaries and tests run under qemu-aarch64 with the cross libc's sysroot (binfmt
# registration is not needed). GoogleTest is built from the sources libgtest-dev ships;
# nlohmann-json is headers only, taken from the build machine.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

set(AARCH64_SYSROOT /usr/aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH ${AARCH64_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# ctest, gtest_discover_tests and add_test(COMMAND <target>) run target binaries through this.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${AARCH64_SYSROOT})

# Architecture-independent packages of the build machine, and GoogleTest from source.
set(nlohmann_json_DIR /usr/share/cmake/nlohmann_json CACHE PATH "nlohmann-json (headers only)")
set(GTest_DIR ${CMAKE_CURRENT_LIST_DIR}/aarch64 CACHE PATH "GoogleTest built from source")
