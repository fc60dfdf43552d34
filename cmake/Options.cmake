# What every target of this tree is compiled with.
find_program(TQ_CCACHE ccache)
if(TQ_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${TQ_CCACHE})
endif()

# The folder of platform/ whose bodies this build takes.
if(WIN32)
  set(TQ_PLATFORM win32)
else()
  set(TQ_PLATFORM posix)
endif()

# What the system is called in the names of the lists in tests/exports.
if(NOT WIN32)
  set(TQ_SYSTEM linux)
elseif(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(TQ_SYSTEM windows-32)
else()
  set(TQ_SYSTEM windows)
endif()

add_library(tqOptions INTERFACE)
target_compile_options(tqOptions INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  $<$<BOOL:${TQ_WERROR}>:-Werror>
  # GCC 12 sees overlapping copies in every optimised assignment of a literal to a std::string.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(tqOptions INTERFACE ${PROJECT_SOURCE_DIR})

# What a test that fails says names its source from the tree's root. So objects are the same in every checkout,
# and the compiler cache has them for all.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=>)

# Lets the compiler cache see past a precompiled header.
if(TQ_PRECOMPILED AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
elseif(TQ_PRECOMPILED)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()
if(NOT WIN32)
  # Within one library its own functions are called directly: nobody replaces them from outside.
  add_compile_options(-fno-semantic-interposition)
  add_link_options(LINKER:-Bsymbolic-functions)
endif()

if(TQ_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(TQ_SANITIZE)
endif()

if(WIN32)
  # A terminal ships our DLLs alone: the compiler's runtime goes into them. What one module allocates it frees
  # itself (strings and arrays through tqFramework, objects by virtual destructors, the copy of all symbols by
  # FreeSymbolInfos), so each may have its own.
  add_link_options(-static-libgcc -static-libstdc++ -Wl,-Bstatic,--whole-archive -lwinpthread
    -Wl,--no-whole-archive,-Bdynamic)
  add_compile_definitions(_WIN32_WINNT=0x0601 WINVER=0x0601 NOMINMAX WIN32_LEAN_AND_MEAN)
endif()
