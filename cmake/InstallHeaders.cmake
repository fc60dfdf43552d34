# Installs the public headers into one folder, whatever folders they are in here, so that moving one is
# no change for terminals. What they include of each other is named accordingly.
#   TQ_HEADERS       the headers, with their whole paths
#   TQ_STAGE         a folder of the build for their installed forms
#   TQ_INCLUDE_DIR   where they go, below the prefix
file(REMOVE_RECURSE ${TQ_STAGE})
foreach(header IN LISTS TQ_HEADERS)
  get_filename_component(name ${header} NAME)
  if(EXISTS ${TQ_STAGE}/${name})
    message(FATAL_ERROR "two public headers are called ${name}")
  endif()
  file(READ ${header} text)
  string(REGEX REPLACE "(#include \")[A-Za-z0-9/]+/([A-Za-z0-9]+[.](h|inc)\")" "\\1\\2" text "${text}")
  file(WRITE ${TQ_STAGE}/${name} "${text}")
  file(INSTALL DESTINATION ${CMAKE_INSTALL_PREFIX}/${TQ_INCLUDE_DIR} FILES ${TQ_STAGE}/${name})
endforeach()
