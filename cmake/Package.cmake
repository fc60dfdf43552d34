# What `cmake --install` gives a terminal's programmers: the two libraries, the public headers in one
# folder, and the files by which CMake and pkg-config find them.
include(CMakePackageConfigHelpers)

# Every header that a terminal may include, and what those include. Nothing else is installed.
set(TQ_FRAMEWORK_HEADERS
  platform/CodePage.h
  platform/Compiler.h
  platform/framework/ArrayStorage.h
  platform/framework/CArray.h
  platform/framework/window/CButton.h
  platform/framework/window/CComboBox.h
  platform/framework/window/CDialog.h
  platform/framework/window/CEdit.h
  platform/framework/window/CListBox.h
  platform/framework/window/CListCtrl.h
  platform/framework/CMap.h
  platform/framework/CMapStringToString.h
  platform/framework/CPtrArray.h
  platform/framework/CString.h
  platform/framework/CStringArray.h
  platform/framework/CUIntArray.h
  platform/framework/window/CWaitCursor.h
  platform/framework/CWinApp.h
  platform/framework/window/CWnd.h
  platform/framework/window/DialogResources.inc
  platform/framework/window/DialogRows.inc
  platform/framework/window/DialogRowsEnd.inc
  platform/framework/window/DialogTemplate.h
  platform/framework/FrameworkApi.h
  platform/framework/HashKey.h
  platform/framework/InvalidArgument.h
  platform/framework/MapStorage.h
  platform/framework/window/ResourceContext.h
  platform/framework/SeededHash.h
  platform/framework/Storage.h
  platform/framework/StringData.h
  platform/framework/window/WindowTypes.h
  platform/framework/tqFramework.h)
set(TQ_SYMBOL_HEADERS
  tqSymbol.h
  tqSymbolApi.h
  groups/GroupInfo.h
  groups/GroupSet.h
  platform/services/TQSProxy.h
  platform/services/VLProxy.h
  platform/services/VLRecords.h
  platform/services/tqStockFields.h
  idlist/IDList.h
  symbolid/ListID.h
  symbollist/SymbolList.h
  symbollist/TQSymbolListInfo.h
  manager/TQSymbolListMgr.h
  symbolid/IDConvert.h
  symbolid/OptFutID.h
  symboltable/SymbolTableMgr.h)

set(TQ_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/tqSymbol)
file(RELATIVE_PATH TQ_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)

# The number in the name of the .so is the interface's: it changes when a terminal has to be compiled
# anew.
function(tq_package_library target)
  target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${TQ_INCLUDE_DIR}>)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "\$ORIGIN")
  if(NOT WIN32)
    target_link_options(${target} PRIVATE
      LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/Exports.map)
    set_property(TARGET ${target} APPEND PROPERTY
      LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/Exports.map)
  endif()
  target_compile_features(${target} INTERFACE cxx_std_20)
  install(TARGETS ${target} EXPORT tqSymbolTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${target}.pc.in ${target}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

tq_package_library(tqFramework)
tq_package_library(tqSymbol)

set(headers ${TQ_FRAMEWORK_HEADERS} ${TQ_SYMBOL_HEADERS})
list(TRANSFORM headers PREPEND ${PROJECT_SOURCE_DIR}/)
install(CODE "set(TQ_HEADERS \"${headers}\")
  set(TQ_STAGE \"${CMAKE_BINARY_DIR}/package/headers\")
  set(TQ_INCLUDE_DIR \"${TQ_INCLUDE_DIR}\")")
install(SCRIPT cmake/InstallHeaders.cmake)

set(TQ_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tqSymbol)
install(EXPORT tqSymbolTargets NAMESPACE tqSymbol:: DESTINATION ${TQ_PACKAGE_DIR})
configure_package_config_file(cmake/tqSymbolConfig.cmake.in tqSymbolConfig.cmake
  INSTALL_DESTINATION ${TQ_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(tqSymbolConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tqSymbolConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/tqSymbolConfigVersion.cmake DESTINATION ${TQ_PACKAGE_DIR})

# The checker of services, as source: it is linked with the terminal's own.
install(DIRECTORY conformance DESTINATION ${CMAKE_INSTALL_DATADIR}/tqSymbol COMPONENT Library)
