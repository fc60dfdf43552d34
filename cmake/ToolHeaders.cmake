# Finds the header-only libraries of the tools among the machine's headers, and makes a folder with them and
# nothing else: a cross-compiler may not see the machine's other headers.
#   TQ_TOOL_HEADERS_FOUND   whether all of them are here
#   tqToolHeaders           what a tool links to include them
set(TQ_TOOL_HEADERS_FOUND ON)
set(folder ${CMAKE_BINARY_DIR}/tool-headers)
file(MAKE_DIRECTORY ${folder})
foreach(header CLI/CLI.hpp nlohmann/json.hpp libfccp/csv.h)
  get_filename_component(library ${header} DIRECTORY)
  string(TOUPPER TQ_${library}_HEADERS variable)
  find_path(${variable} ${header} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH
    DOC "Directory with ${header}")
  if(NOT ${variable})
    set(TQ_TOOL_HEADERS_FOUND OFF)
  else()
    file(CREATE_LINK ${${variable}}/${library} ${folder}/${library} SYMBOLIC)
  endif()
endforeach()

add_library(tqToolHeaders INTERFACE)
target_include_directories(tqToolHeaders SYSTEM INTERFACE ${folder})
