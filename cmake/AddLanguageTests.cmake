# Runs a test program once for each interface language: natively by TQ_LANG, under Wine by the locale,
# from which Wine takes the ANSI code page (tw: 950, cn: 936).
function(tq_add_language_tests program)
  foreach(language tw cn)
    if(WIN32)
      set(command ${PROJECT_SOURCE_DIR}/run wine ${language} $<TARGET_FILE:${program}>)
    else()
      set(command $<TARGET_FILE:${program}>)
    endif()
    add_test(NAME ${program}-${language} COMMAND ${command}
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(${program}-${language} PROPERTIES
      ENVIRONMENT TQ_LANG=${language} TIMEOUT 900)
  endforeach()
endfunction()
