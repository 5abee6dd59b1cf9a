# Cross toolchain for 32-bit ARM hard-float Linux (Debian's armhf ABI).
#
# Needs g++-arm-linux-gnueabihf and qemu-user on the build machine, plus a
# sysroot holding the armhf Qt 5 (headers, CMake config files and libraries
# with their dependencies), as assembled by .ci/armhf. The C and C++ runtime
# come from the cross toolchain in /usr/arm-linux-gnueabihf, not the sysroot.
#
#   cmake -S . -B build-armhf/vfpv3 \
#         -DCMAKE_TOOLCHAIN_FILE=cmake/toolchain-armhf.cmake \
#         -DSAISKUKO_ARMHF_SYSROOT=$PWD/build-armhf/sysroot
#
# SAISKUKO_ARMHF_SYSROOT may also come from the environment.
# SAISKUKO_ARMHF_FPU (e.g. neon-vfpv4) overrides the compiler's default FPU
# (vfpv3-d16); it only takes effect on a fresh build directory.
# Tests run under qemu-arm through CMAKE_CROSSCOMPILING_EMULATOR, so plain
# `ctest` works in the build directory.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)

set(_armhf_triplet arm-linux-gnueabihf)
set(CMAKE_LIBRARY_ARCHITECTURE ${_armhf_triplet})

# try_compile() re-reads this file in a fresh scope; these must survive that.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SAISKUKO_ARMHF_SYSROOT SAISKUKO_ARMHF_FPU)

if(NOT SAISKUKO_ARMHF_SYSROOT AND DEFINED ENV{SAISKUKO_ARMHF_SYSROOT})
    set(SAISKUKO_ARMHF_SYSROOT "$ENV{SAISKUKO_ARMHF_SYSROOT}")
endif()
if(NOT SAISKUKO_ARMHF_SYSROOT)
    message(FATAL_ERROR "Set SAISKUKO_ARMHF_SYSROOT (cache or environment) to the armhf sysroot; .ci/armhf builds one.")
endif()
get_filename_component(SAISKUKO_ARMHF_SYSROOT "${SAISKUKO_ARMHF_SYSROOT}" ABSOLUTE)
set(SAISKUKO_ARMHF_SYSROOT "${SAISKUKO_ARMHF_SYSROOT}" CACHE PATH "armhf sysroot holding Qt 5 and its dependencies")
set(SAISKUKO_ARMHF_FPU "${SAISKUKO_ARMHF_FPU}" CACHE STRING "-mfpu value; empty keeps the compiler default (vfpv3-d16)")
if(NOT EXISTS "${SAISKUKO_ARMHF_SYSROOT}/usr/lib/${_armhf_triplet}/cmake/Qt5Core/Qt5CoreConfig.cmake")
    message(FATAL_ERROR "${SAISKUKO_ARMHF_SYSROOT} holds no armhf Qt5Core; run .ci/armhf to assemble it.")
endif()
set(_armhf_sysroot "${SAISKUKO_ARMHF_SYSROOT}")

set(CMAKE_C_COMPILER ${_armhf_triplet}-gcc)
set(CMAKE_CXX_COMPILER ${_armhf_triplet}-g++)

# GCC notes every std:: iterator whose argument passing changed in GCC 7.1;
# everything here, Qt included, is built by one newer GCC, so the notes are noise.
set(_armhf_flags "-Wno-psabi")
if(SAISKUKO_ARMHF_FPU)
    string(APPEND _armhf_flags " -mfpu=${SAISKUKO_ARMHF_FPU}")
endif()
set(CMAKE_C_FLAGS_INIT "${_armhf_flags}")
set(CMAKE_CXX_FLAGS_INIT "${_armhf_flags}")

# Not CMAKE_SYSROOT: libc headers and crt files live with the cross compiler,
# so the compiler keeps its own root and only find_*() look in the sysroot.
set(CMAKE_FIND_ROOT_PATH "${_armhf_sysroot}" "/usr/${_armhf_triplet}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt links by absolute path, but the linker must still see the libraries
# libQt5Core itself needs (ICU, PCRE2, glib, ...) to check for undefined symbols.
set(_armhf_libdirs "${_armhf_sysroot}/lib/${_armhf_triplet}:${_armhf_sysroot}/usr/lib/${_armhf_triplet}")
foreach(_kind EXE SHARED MODULE)
    set(CMAKE_${_kind}_LINKER_FLAGS_INIT "-Wl,-rpath-link,${_armhf_libdirs}")
endforeach()

find_program(SAISKUKO_QEMU_ARM NAMES qemu-arm qemu-arm-static)
if(NOT SAISKUKO_QEMU_ARM)
    message(FATAL_ERROR "qemu-arm not found; install qemu-user.")
endif()
# qemu resolves guest paths inside -L first and falls back to the host, so
# the armhf loader symlinked into the sysroot finds the cross libc through
# LD_LIBRARY_PATH while Qt's dependencies come from the sysroot's multiarch dirs.
# Without that symlink, root qemu at the cross libc and name the sysroot dirs.
if(EXISTS "${_armhf_sysroot}/lib/ld-linux-armhf.so.3")
    set(_armhf_qemu_root "${_armhf_sysroot}")
else()
    set(_armhf_qemu_root "/usr/${_armhf_triplet}")
endif()
set(CMAKE_CROSSCOMPILING_EMULATOR
    "${SAISKUKO_QEMU_ARM}" -L "${_armhf_qemu_root}"
    -E "LD_LIBRARY_PATH=${_armhf_libdirs}:/usr/${_armhf_triplet}/lib")
