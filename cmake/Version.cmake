# Reads the version from the header that is installed with the library, into TQ_VERSION. There is no
# other place that says it.
set(header ${CMAKE_CURRENT_LIST_DIR}/../platform/interface/TQSymbolVersion.h)
set(TQ_VERSION)
foreach(part MAJOR MINOR PATCH)
  file(STRINGS ${header} line REGEX "^#define TQSYMBOL_VERSION_${part} [0-9]+$")
  string(REGEX MATCH "[0-9]+$" number "${line}")
  if(number STREQUAL "")
    message(FATAL_ERROR "${header} does not define TQSYMBOL_VERSION_${part}")
  endif()
  list(APPEND TQ_VERSION ${number})
endforeach()
list(JOIN TQ_VERSION . TQ_VERSION)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
