include(GoogleTest)

# GoogleTest needs a C++ library. If that is not the system's, GoogleTest is built from source.
macro(vantle_find_googletest)
  if(VANTLE_GOOGLETEST)
    add_subdirectory(${VANTLE_GOOGLETEST} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest REQUIRED)
  endif()
endmacro()

# vantle_discover_tests(TARGET PROPERTIES...): ctest runs each test of a GoogleTest program. If the
# program is not built, its tests are left out, so that ctest can run after the build of a single
# target; if VANTLE_REQUIRE_ALL_TESTS is set, as ./test does, they are one test that fails.
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
