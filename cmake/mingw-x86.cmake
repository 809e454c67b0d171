set(CORVANE_TARGET i686-w64-mingw32)
set(CORVANE_ARCH x86)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
