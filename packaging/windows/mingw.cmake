# Debian's cross compiler for 64-bit Windows; the variant with POSIX threads, which std::thread needs.
# QT_WINDOWS: where Qt for Windows was installed (qt.sh); unset while Qt itself is built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# For Windows GCC believes that an inline function or template is its own copy of it and leaves in
# registers what that copy does not touch, though the linker may take the copy of another source, Qt's
# or ours. So none of that here, and the same optimisation for both, so that the copies are alike.
set(CMAKE_CXX_FLAGS_INIT -fno-ipa-ra)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QT_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${QT_WINDOWS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# moc, uic, rcc and the like are the host's own.
file(GLOB hostinfo /usr/lib/*/cmake/Qt6HostInfo)
list(GET hostinfo 0 Qt6HostInfo_DIR)
get_filename_component(QT_HOST_PATH_CMAKE_DIR ${Qt6HostInfo_DIR} DIRECTORY)
set(QT_HOST_PATH /usr)
