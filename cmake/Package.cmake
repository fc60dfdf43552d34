# What `cmake --install` gives a terminal's programmers, as the component Library: the two libraries, the
# public headers in one folder, what services are written by, and the files by which CMake and pkg-config
# find all that.
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
  platform/framework/window/WindowKind.h
  platform/framework/window/WindowTypes.h
  tqSymbolApi.h
  platform/framework/tqFramework.h)
set(TQ_SYMBOL_HEADERS
  tqSymbol.h
  groups/GroupInfo.h
  groups/GroupSet.h
  idlist/IDList.h
  symbolid/ListID.h
  symbollist/SymbolList.h
  symbollist/TQSymbolListInfo.h
  manager/TQSymbolListMgr.h
  manager/TQSymbolOwned.h
  symbolid/IDConvert.h
  symbolid/OptFutID.h
  symboltable/SymbolTableMgr.h)
# All that is meant for terminals alone, and the services, which some of the headers above name and
# every terminal has to provide.
file(GLOB interface RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/platform/interface/*.h ${PROJECT_SOURCE_DIR}/platform/services/*.h)
list(APPEND TQ_SYMBOL_HEADERS ${interface})

set(TQ_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/tqSymbol)
set(TQ_SAMPLES_DIR ${CMAKE_INSTALL_DATADIR}/tqSymbol)
set(TQ_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tqSymbol)
file(RELATIVE_PATH TQ_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)

# Installs libraries that are found under the name of an export set.
function(tq_install_targets component export)
  install(TARGETS ${ARGN} EXPORT ${export}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component}
      NAMELINK_COMPONENT ${component}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component})
endfunction()

# Installs headers, which are given by their places in the tree.
function(tq_install_headers component)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE headers)
  install(CODE "set(TQ_HEADERS \"${headers}\")
    set(TQ_STAGE \"${CMAKE_BINARY_DIR}/package/headers/${component}\")
    set(TQ_INCLUDE_DIR \"${TQ_INCLUDE_DIR}\")" COMPONENT ${component})
  install(SCRIPT ${PROJECT_SOURCE_DIR}/cmake/InstallHeaders.cmake COMPONENT ${component})
endfunction()

# The file by which pkg-config finds a library.
function(tq_install_pc component name)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${component})
endfunction()

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
  tq_install_targets(Library tqSymbolTargets ${target})
  tq_install_pc(Library ${target})
endfunction()

tq_package_library(tqFramework)
tq_package_library(tqSymbol)

tq_install_headers(Library ${TQ_FRAMEWORK_HEADERS} ${TQ_SYMBOL_HEADERS})
# On Windows a service's DLL is linked with the file of its name, which says what it has to export.
install(DIRECTORY platform/services/ DESTINATION ${TQ_SAMPLES_DIR}/services COMPONENT Library
  FILES_MATCHING PATTERN *.def)

install(EXPORT tqSymbolTargets NAMESPACE tqSymbol:: DESTINATION ${TQ_PACKAGE_DIR} COMPONENT Library)
configure_package_config_file(cmake/tqSymbolConfig.cmake.in tqSymbolConfig.cmake
  INSTALL_DESTINATION ${TQ_PACKAGE_DIR} PATH_VARS TQ_SAMPLES_DIR NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(tqSymbolConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tqSymbolConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/tqSymbolConfigVersion.cmake DESTINATION ${TQ_PACKAGE_DIR}
  COMPONENT Library)

# The checker of services, as source: it is linked with the terminal's own.
install(DIRECTORY conformance DESTINATION ${TQ_SAMPLES_DIR} COMPONENT Library)

# What is written about it.
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Library)
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Library)
if(WIN32)
  # By which a terminal is cross-compiled as the library was.
  install(FILES cmake/mingw.cmake cmake/mingw-w64.cmake cmake/mingw-w64-i686.cmake
    DESTINATION ${TQ_SAMPLES_DIR}/cmake COMPONENT Library)
endif()
