# GoogleTest from the sources that the system's package brings, so that one version serves all
# compilers and targets.
set(googletest_source /usr/src/googletest CACHE PATH "GoogleTest's sources")
if(NOT EXISTS ${googletest_source}/googletest/src/gtest-all.cc)
  message(FATAL_ERROR "GoogleTest's sources are not in ${googletest_source}: "
                      "run tools/test, or install the package googletest.")
endif()
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
      # One desktop: focus and the foreground belong to one program at a time.
      set_tests_properties(${test} PROPERTIES RESOURCE_LOCK desktop)
    endif()
  endforeach()
endfunction()
