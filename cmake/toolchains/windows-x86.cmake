set(PLEXEL_MINGW i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
