# GoogleTest from the sources that the system's package brings, so that one version serves all
# compilers and targets.
add_library(gtest STATIC ${googletest_source}/googletest/src/gtest-all.cc)
target_include_directories(gtest SYSTEM PUBLIC ${googletest_source}/googletest/include)
target_include_directories(gtest PRIVATE ${googletest_source}/googletest)
add_library(gtest_main STATIC ${googletest_source}/googletest/src/gtest_main.cc)
target_link_libraries(gtest_main PUBLIC gtest)
if(WIN32)
  target_link_options(gtest PUBLIC -static)
endif()

# The name of the build folder tells whose tests these are: native, i686, ...
get_filename_component(test_prefix ${CMAKE_BINARY_DIR} NAME)

# A CTest test for each source file of the program that has GoogleTest suites, so that a failure
# names what it is about.
function(vorn_add_tests target)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} declarations REGEX "^TEST(_F)?\\(")
    if(NOT declarations)
      continue()
    endif()
    list(TRANSFORM declarations REPLACE "^TEST(_F)?\\(([A-Za-z0-9_]+),.*" "\\2.*")
    list(REMOVE_DUPLICATES declarations)
    list(JOIN declarations ":" filter)
    get_filename_component(name ${source} NAME_WE)
    string(REGEX REPLACE "_test$" "" name ${name})
    set(test ${test_prefix}.${target}.${name})
    add_test(NAME ${test} COMMAND ${target} --gtest_brief=1 --gtest_filter=${filter})
    set_tests_properties(${test} PROPERTIES
      TIMEOUT 900 FAIL_REGULAR_EXPRESSION "0 tests from 0 test suites")
    if(WIN32)
      # One desktop: focus and the foreground belong to one program at a time. A program that Wine
      # lost ends with status 0, so what counts is that it said how it went.
      set_tests_properties(${test} PROPERTIES
        RESOURCE_LOCK desktop
        PASS_REGULAR_EXPRESSION "\\[  PASSED  \\] [1-9][0-9]* test"
        FAIL_REGULAR_EXPRESSION "\\[  FAILED  \\];0 tests from 0 test suites;ended with status")
    endif()
  endforeach()
endfunction()
