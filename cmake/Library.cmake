# tqSymbol itself, from the objects of its subsystems.
set(TQ_SUBSYSTEMS $<TARGET_OBJECTS:tqPlatform> $<TARGET_OBJECTS:tqSymbolTable>
  $<TARGET_OBJECTS:tqSymbolList> $<TARGET_OBJECTS:tqGroups>
  $<TARGET_OBJECTS:tqDialogs>)

add_library(tqSymbol SHARED ${TQ_SUBSYSTEMS})
set_target_properties(tqSymbol PROPERTIES PREFIX "${CMAKE_SHARED_LIBRARY_PREFIX}" LINKER_LANGUAGE CXX)
if(WIN32)
  set_target_properties(tqSymbol PROPERTIES PREFIX "")
  enable_language(RC)
  target_sources(tqSymbol PRIVATE dialogs/resources/tqSymbol.rc)
  set_source_files_properties(dialogs/resources/tqSymbol.rc PROPERTIES COMPILE_OPTIONS "-c65001")
endif()
target_link_libraries(tqSymbol PUBLIC tqFramework PRIVATE tqOptions tqPlatformLibs tqServices)

# The same objects for tests of what the library does not export.
add_library(tqSymbolInternals STATIC ${TQ_SUBSYSTEMS})
target_compile_definitions(tqSymbolInternals INTERFACE TQSYMBOL_STATIC)
target_link_libraries(tqSymbolInternals PUBLIC tqFramework tqPlatformLibs tqOptions)
