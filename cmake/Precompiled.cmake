# Headers that nearly every file takes, read once for many files. `./run tidy` compiles each source by
# itself and without them, so that one that forgets an include is found there.
#   tq_precompiled(NAME OPTIONS HEADER ...)   a set of them, compiled with the options of that target
#   tq_take_precompiled(NAME TARGET ...)      has these targets take it
option(TQ_PRECOMPILED "Precompile the headers that nearly every file takes" OFF)

function(tq_precompiled name options)
  if(NOT TQ_PRECOMPILED)
    return()
  endif()
  # A library must have a source; this one is made for the headers alone.
  set(empty ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${empty} CONTENT "")
  add_library(${name} OBJECT ${empty})
  target_link_libraries(${name} PRIVATE ${options})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

function(tq_take_precompiled name)
  if(NOT TARGET ${name})
    return()
  endif()
  foreach(target IN LISTS ARGN)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endforeach()
endfunction()
