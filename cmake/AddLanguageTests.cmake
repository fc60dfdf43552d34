# Runs a test program once for each interface language: natively by TQ_LANG, under Wine by the locale,
# from which Wine takes the ANSI code page (tw: 950, cn: 936).
#
# Natively, where all of the language comes from the terminal, two kinds of tests run once, with TQ_LANG=none,
# which fails each of them that asks for the language after all:
#   NEUTRAL patterns   tests that need no language
#   APART patterns     such of them as fork so often that they take a process of their own: a fork is slow
#                      once other tests have used much memory
# Under Wine all text goes through the code page, and they run in both languages as the others.
#
# SHARDS parts a long program into that many tests, so that none of them is alone at the end or runs into the
# time limit on a slow machine. Not for a program whose tests start it again: it would do a part of them there.
#
# Everywhere, ALONE patterns are tests that take a process of their own in each language: thousands of dialogs
# in one process leave Wine without room for those of other tests.
function(tq_add_language_tests program)
  cmake_parse_arguments(PARSE_ARGV 1 tests "" "SHARDS" "NEUTRAL;APART;ALONE")
  if(NOT tests_SHARDS)
    set(tests_SHARDS 1)
  endif()
  list(JOIN tests_NEUTRAL ":" neutral)
  list(JOIN tests_APART ":" apart)
  list(JOIN tests_ALONE ":" alone)
  foreach(language tw cn)
    foreach(shard RANGE 1 ${tests_SHARDS})
      set(name ${language})
      if(tests_SHARDS GREATER 1)
        set(name ${language}-${shard})
      endif()
      if(WIN32)
        tq_add_language_test(${program} ${name} ${language}
          ${PROJECT_SOURCE_DIR}/run wine ${language} $<TARGET_FILE:${program}> "--gtest_filter=*-${alone}")
        tq_takes_desktop(${language} ${program}-${name})
      else()
        tq_add_language_test(${program} ${name} ${language}
          $<TARGET_FILE:${program}> "--gtest_filter=*-${neutral}:${apart}:${alone}")
      endif()
      math(EXPR index "${shard} - 1")
      set_property(TEST ${program}-${name} APPEND PROPERTY ENVIRONMENT
        GTEST_TOTAL_SHARDS=${tests_SHARDS} GTEST_SHARD_INDEX=${index})
      # What takes longest comes first.
      set_tests_properties(${program}-${name} PROPERTIES COST ${tests_SHARDS})
    endforeach()
    if(alone AND WIN32)
      tq_add_language_test(${program} alone-${language} ${language}
        ${PROJECT_SOURCE_DIR}/run wine ${language} $<TARGET_FILE:${program}> "--gtest_filter=${alone}")
      tq_takes_desktop(${language} ${program}-alone-${language})
    elseif(alone)
      tq_add_language_test(${program} alone-${language} ${language}
        $<TARGET_FILE:${program}> "--gtest_filter=${alone}")
    endif()
  endforeach()
  foreach(kind neutral apart)
    if(${kind} AND NOT WIN32)
      tq_add_language_test(${program} ${kind} none
        $<TARGET_FILE:${program}> "--gtest_filter=${${kind}}")
    endif()
  endforeach()
endfunction()

# Tests that run Windows programs in a language. Two such programs at once would take the focus from each other,
# and turns on the language's core while the other core has nothing to do.
function(tq_takes_desktop language)
  if(WIN32)
    set_tests_properties(${ARGN} PROPERTIES RESOURCE_LOCK desktop-${language})
  endif()
endfunction()

function(tq_add_language_test program name language)
  add_test(NAME ${program}-${name} COMMAND ${ARGN} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  set_tests_properties(${program}-${name} PROPERTIES ENVIRONMENT TQ_LANG=${language} TIMEOUT 900)
endfunction()
