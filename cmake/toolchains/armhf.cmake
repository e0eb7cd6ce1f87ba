# Debian's cross compiler for 32-bit ARM with hardware floating point, against the libraries
# that scripts/armhf-sysroot fetches. Programs run under qemu.
cmake_path(SET sysroot NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../../build/armhf-sysroot")
if(NOT EXISTS "${sysroot}")
  message(FATAL_ERROR "There is no ${sysroot}: run scripts/armhf-sysroot")
endif()

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# Without notes about the ABI of older compilers.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L "${sysroot}")

set(CMAKE_SYSROOT "${sysroot}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${sysroot}")
set(ENV{PKG_CONFIG_LIBDIR}
  "${sysroot}/usr/lib/arm-linux-gnueabihf/pkgconfig:${sysroot}/usr/share/pkgconfig")
