include(GoogleTest)

# GoogleTest stands on a library of C++: where that is not the system's, it is built like the rest.
macro(vantle_find_googletest)
  if(VANTLE_GOOGLETEST)
    add_subdirectory(${VANTLE_GOOGLETEST} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest REQUIRED)
  endif()
endmacro()

# vantle_discover_tests(TARGET PROPERTIES...): ctest runs each test of a program of GoogleTest. One
# that is not built is left out, so that ctest can follow the build of a single target; where
# VANTLE_REQUIRE_ALL_TESTS is set, as ./test does, it is a test that fails.
function(vantle_discover_tests target)
  get_directory_property(before TEST_INCLUDE_FILES)
  gtest_discover_tests(${target} PROPERTIES ${ARGN} DISCOVERY_TIMEOUT 60)
  get_directory_property(discovered TEST_INCLUDE_FILES)
  list(REMOVE_ITEM discovered ${before})
  set(where_built ${CMAKE_CURRENT_BINARY_DIR}/${target}_where_built.cmake)
  file(
    GENERATE
    OUTPUT ${where_built}
    CONTENT
      "if(EXISTS \"$<TARGET_FILE:${target}>\" OR DEFINED ENV{VANTLE_REQUIRE_ALL_TESTS})
  include(\"${discovered}\")
endif()
")
  set_property(DIRECTORY PROPERTY TEST_INCLUDE_FILES ${before} ${where_built})
endfunction()
