# As mingw.cmake, for what is built against Qt: the runtime of the compiler is linked in, so that the
# program needs no library that Windows does not have, and programs run through Wine where it is there.
# QT_WINDOWS: the folder that qt.sh names.
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "As Qt is compiled")
find_program(WINE NAMES wine64 wine PATHS /usr/lib/wine NO_CMAKE_FIND_ROOT_PATH)
if(WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE})
endif()
