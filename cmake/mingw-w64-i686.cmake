# Cross-compiles for 32-bit Windows with MinGW-w64 (posix threads, which std::mutex and friends need).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(TQ_MINGW i686-w64-mingw32)
set(CMAKE_C_COMPILER ${TQ_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TQ_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${TQ_MINGW}-windres)
set(CMAKE_DLLTOOL ${TQ_MINGW}-dlltool)
set(CMAKE_FIND_ROOT_PATH /usr/${TQ_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Packages are also found where CMAKE_PREFIX_PATH says: an installed tqSymbol is one.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
