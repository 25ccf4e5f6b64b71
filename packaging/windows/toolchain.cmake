# CMake's view of the sysroot that sysroot.sh makes; ZPSG_SYSROOT (a variable or in the environment) says where.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

if(NOT ZPSG_SYSROOT)
    set(ZPSG_SYSROOT $ENV{ZPSG_SYSROOT})
endif()
set(ENV{ZPSG_SYSROOT} ${ZPSG_SYSROOT}) # the compiler checks read this file again, without the variables
set(cross ${ZPSG_SYSROOT}/cross/x86_64-w64-mingw32-)
set(CMAKE_C_COMPILER ${cross}gcc)
set(CMAKE_CXX_COMPILER ${cross}g++)
set(CMAKE_RC_COMPILER ${cross}windres)

set(CMAKE_FIND_ROOT_PATH ${ZPSG_SYSROOT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${ZPSG_SYSROOT}/lib/pkgconfig:/usr/x86_64-w64-mingw32/lib/pkgconfig)
set(PKG_CONFIG_ARGN --static) # most of them are archives, which need what they need themselves

# Tests run where they were built.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
