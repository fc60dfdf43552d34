# Runs a test program once for each interface language: natively by TQ_LANG, under Wine by the locale,
# from which Wine takes the ANSI code page (tw: 950, cn: 936).
#
# Further arguments are patterns of tests that need no language. Natively, where all of the language
# comes from the terminal, they run once, with TQ_LANG=none: that fails each of them that asks for it
# after all. Under Wine all text goes through the code page, and they run in both as the others.
function(tq_add_language_tests program)
  set(languages tw cn)
  set(filter "")
  if(ARGN AND NOT WIN32)
    list(JOIN ARGN ":" neutral)
    list(APPEND languages none)
  endif()
  foreach(language IN LISTS languages)
    if(language STREQUAL none)
      set(filter "--gtest_filter=${neutral}")
    elseif(neutral)
      set(filter "--gtest_filter=-${neutral}")
    endif()
    if(WIN32)
      set(command ${PROJECT_SOURCE_DIR}/run wine ${language} $<TARGET_FILE:${program}>)
    else()
      set(command $<TARGET_FILE:${program}> ${filter})
    endif()
    add_test(NAME ${program}-${language} COMMAND ${command}
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    if(WIN32)
      # Two programs on one desktop would take the focus from each other.
      set_tests_properties(${program}-${language} PROPERTIES RESOURCE_LOCK desktop-${language})
    endif()
    set_tests_properties(${program}-${language} PROPERTIES
      ENVIRONMENT TQ_LANG=${language} TIMEOUT 900)
  endforeach()
endfunction()
