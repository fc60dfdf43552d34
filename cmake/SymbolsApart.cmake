# Debug symbols of the two libraries in files beside them, "libtqSymbol.so.2.0.0.debug" or
# "tqSymbol.dll.debug", which a debugger finds by the name that the library holds. They are the component
# Symbols: kept with each release, not shipped with it.
if(TQ_SYMBOLS_APART)
  add_compile_options(-g)
  # The compilers for Windows bear a name from which CMake does not tell their objcopy's.
  if(WIN32)
    set(TQ_OBJCOPY ${TQ_MINGW}-objcopy)
  else()
    set(TQ_OBJCOPY ${CMAKE_OBJCOPY})
  endif()
endif()

function(tq_keep_symbols_apart target)
  if(NOT TQ_SYMBOLS_APART)
    return()
  endif()
  set(library $<TARGET_FILE:${target}>)
  add_custom_command(TARGET ${target} POST_BUILD VERBATIM
    COMMAND ${TQ_OBJCOPY} --only-keep-debug ${library} ${library}.debug
    COMMAND ${TQ_OBJCOPY} --strip-debug --add-gnu-debuglink=${library}.debug ${library})
  if(WIN32)
    set(directory ${CMAKE_INSTALL_BINDIR})
  else()
    set(directory ${CMAKE_INSTALL_LIBDIR})
  endif()
  install(FILES ${library}.debug DESTINATION ${directory} COMPONENT Symbols)
endfunction()
