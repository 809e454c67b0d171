set(CORVANE_TARGET x86_64-w64-mingw32)
set(CORVANE_ARCH x64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
