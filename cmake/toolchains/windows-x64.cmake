set(PLEXEL_MINGW x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
