# Cross-compiling for Windows with MinGW-w64 (posix threads, which std::mutex and friends need). The
# toolchain files include it with the processor in CMAKE_SYSTEM_PROCESSOR.
set(CMAKE_SYSTEM_NAME Windows)
set(TQ_MINGW ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
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
