# Gives a DLL the resource by which Windows tells its version and what it is, in both languages.
#   tq_version_resource(TARGET TRADITIONAL SIMPLIFIED)   the descriptions
function(tq_version_resource target traditional simplified)
  if(NOT WIN32)
    return()
  endif()
  set(TQ_LIBRARY ${target})
  set(TQ_DESCRIPTION_TW ${traditional})
  set(TQ_DESCRIPTION_CN ${simplified})
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}Version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${resource})
  set_source_files_properties(${resource} PROPERTIES COMPILE_OPTIONS "-c65001")
endfunction()
