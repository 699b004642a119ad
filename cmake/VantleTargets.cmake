# One folder is one library, named after it: vantle_add_library(capture ...) makes vantle_capture.
# Headers are included from src/ by folder ("capture/Capture.h").

add_library(vantle_warnings INTERFACE)
target_compile_options(
  vantle_warnings
  INTERFACE -Wall
            -Wextra
            -Wconversion
            -Wshadow
            -Wnon-virtual-dtor
            # Designated initializers deliberately leave the other members at their defaults.
            -Wno-missing-field-initializers
            # GCC 12 reports overlaps in std::string that do not exist when everything is inlined.
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
            $<$<BOOL:${VANTLE_WARNINGS_AS_ERRORS}>:-Werror>)

function(vantle_add_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(vantle_${name} STATIC ${arg_SOURCES})
  target_include_directories(vantle_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(vantle_${name} PUBLIC ${arg_LINKS} PRIVATE vantle_warnings)
endfunction()

# Puts all objects of these libraries into a shared one, not only those that it refers to.
function(vantle_add_parts shared)
  foreach(part IN LISTS ARGN)
    target_sources(${shared} PRIVATE $<TARGET_OBJECTS:vantle_${part}>)
    target_link_libraries(${shared} PRIVATE vantle_${part})
  endforeach()
endfunction()

# Exports only the symbols that the version script `exports` names, so that less must be bound when
# the library is loaded.
function(vantle_export_only shared exports)
  cmake_path(ABSOLUTE_PATH exports)
  target_link_options(${shared} PRIVATE -Wl,--version-script=${exports} -Wl,-z,defs)
  set_property(TARGET ${shared} APPEND PROPERTY LINK_DEPENDS ${exports})
endfunction()

# Most of the program waits for people; small code counts there, because it stays in memory. This
# function is for libraries that process many files or pixels.
function(vantle_optimize_for_speed library)
  target_compile_options(vantle_${library} PRIVATE $<$<CONFIG:Release>:-O2>)
endfunction()

# An argument of qt_add_qml_module: compiling QML ahead of time takes a while, and the sanitizers
# cannot see anything in it.
if(VANTLE_SANITIZE)
  set(VANTLE_QML_COMPILATION NO_CACHEGEN)
endif()

# QML becomes bytecode when Vantle is built. If the toolkit compiled it at run time, it would cache
# the result in the user's home and use that for later versions, because all files in the program
# have the same date. The C++ that the compiler makes of bindings differs from folder to folder; the
# bytecode does not.
function(vantle_compile_qml target)
  set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
endfunction()

# Precompiles the headers of other libraries for all files of a target. Only under the sanitizers,
# where everything is built anyway: in other builds each file must prove that it includes what it
# uses.
function(vantle_precompile target)
  if(VANTLE_SANITIZE)
    vantle_precompile_tests(${target} ${ARGN})
  endif()
endfunction()

# Does the same for tests in every build, because tests are half of all that is compiled.
function(vantle_precompile_tests target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
endfunction()
