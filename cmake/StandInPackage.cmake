# The stand-in terminal as a component of its own, StandIn: a programmer starts with all services there,
# on a sample market, and puts his own in their places one by one. A terminal is never shipped with it.
set(TQ_STANDIN_HEADERS
  terminal/StandIn.h
  terminal/StandInApi.h
  terminal/user/DialogControls.h
  terminal/user/User.h
  terminal/user/UserActions.h
  terminal/user/UserScripts.h
  platform/framework/window/DialogAccess.h)

# What a program links: all of it.
add_library(tqStandInTerminal INTERFACE)
target_link_libraries(tqStandInTerminal INTERFACE tqUser tqStandIn ${TQ_SERVICES})
set_target_properties(tqStandInTerminal PROPERTIES EXPORT_NAME StandIn)
set_target_properties(tqStandIn ${TQ_SERVICES} PROPERTIES INSTALL_RPATH "\$ORIGIN")
target_include_directories(tqStandIn INTERFACE $<INSTALL_INTERFACE:${TQ_INCLUDE_DIR}>)
tq_install_targets(StandIn tqStandInTargets tqStandInTerminal tqStandIn tqUser ${TQ_SERVICES})
install(EXPORT tqStandInTargets NAMESPACE tqSymbol:: DESTINATION ${TQ_PACKAGE_DIR}
  COMPONENT StandIn)
tq_install_headers(StandIn ${TQ_STANDIN_HEADERS})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/market ${PROJECT_SOURCE_DIR}/data/lists
  DESTINATION ${TQ_SAMPLES_DIR} COMPONENT StandIn)

list(TRANSFORM TQ_SERVICES PREPEND -l OUTPUT_VARIABLE TQ_STANDIN_LIBS)
list(JOIN TQ_STANDIN_LIBS " " TQ_STANDIN_LIBS)
if(NOT WIN32)
  # tqSymbol calls the services, and perhaps nothing else does: a linker may not drop them.
  set(TQ_STANDIN_LIBS "-Wl,--push-state,--no-as-needed ${TQ_STANDIN_LIBS} -Wl,--pop-state")
endif()
tq_install_pc(StandIn tqStandIn)
