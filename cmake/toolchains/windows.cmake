# Cross compilation for Windows with MinGW-w64: the bitness comes from the files beside this one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_CXX_COMPILER ${PLEXEL_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${PLEXEL_MINGW}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${PLEXEL_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Nothing but the system's own libraries is needed where it runs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--enable-stdcall-fixup,--kill-at")
