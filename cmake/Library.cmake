# tqSymbol itself, from the objects of its rooms.
set(TQ_SUBSYSTEMS $<TARGET_OBJECTS:tqPlatform>)
foreach(room IN LISTS TQ_ROOM_TARGETS)
  list(APPEND TQ_SUBSYSTEMS $<TARGET_OBJECTS:${room}>)
endforeach()

add_library(tqSymbol SHARED ${TQ_SUBSYSTEMS})
set_target_properties(tqSymbol PROPERTIES PREFIX "${CMAKE_SHARED_LIBRARY_PREFIX}" LINKER_LANGUAGE CXX)
if(WIN32)
  set_target_properties(tqSymbol PROPERTIES PREFIX "")
  set(resources dialogs/resources/tqSymbol.rc)
  target_sources(tqSymbol PRIVATE ${resources})
  set_source_files_properties(${resources} PROPERTIES COMPILE_OPTIONS "-c65001")
  # The resource compiler does not tell which files it includes.
  file(GLOB texts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/dialogs/resources/*.inc
    ${PROJECT_SOURCE_DIR}/platform/texts/*.inc)
  set(TQ_RESOURCE_TEXTS ${texts} ${PROJECT_SOURCE_DIR}/platform/framework/window/DialogResources.inc)
  set_source_files_properties(dialogs/resources/tqSymbol.rc PROPERTIES OBJECT_DEPENDS
    "${TQ_RESOURCE_TEXTS}")
endif()
tq_version_resource(tqSymbol "自選商品組合與商品代碼" "自选商品组合与商品代码")
tq_keep_symbols_apart(tqSymbol)
target_link_libraries(tqSymbol PUBLIC tqFramework PRIVATE tqOptions tqPlatformLibs tqServices)

# The same objects for tests of what the library does not export.
add_library(tqSymbolInternals STATIC ${TQ_SUBSYSTEMS})
target_compile_definitions(tqSymbolInternals INTERFACE TQSYMBOL_STATIC)
target_link_libraries(tqSymbolInternals PUBLIC tqFramework tqPlatformLibs tqOptions)
