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
            # Designated initializers leave the rest at their defaults on purpose.
            -Wno-missing-field-initializers
            # GCC 12 sees overlaps in std::string where there are none, once all is inlined.
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
            $<$<BOOL:${VANTLE_WARNINGS_AS_ERRORS}>:-Werror>)

function(vantle_add_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(vantle_${name} STATIC ${arg_SOURCES})
  target_include_directories(vantle_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(vantle_${name} PUBLIC ${arg_LINKS} PRIVATE vantle_warnings)
endfunction()

# Puts all of these libraries of ours into a shared one, and not only what that itself refers to.
function(vantle_add_parts shared)
  foreach(part IN LISTS ARGN)
    target_sources(${shared} PRIVATE $<TARGET_OBJECTS:vantle_${part}>)
    target_link_libraries(${shared} PRIVATE vantle_${part})
  endforeach()
endfunction()

# Others see of this shared library what the version script `exports` names, which is less to bind when
# it is loaded.
function(vantle_export_only shared exports)
  cmake_path(ABSOLUTE_PATH exports)
  target_link_options(${shared} PRIVATE -Wl,--version-script=${exports} -Wl,-z,defs)
  set_property(TARGET ${shared} APPEND PROPERTY LINK_DEPENDS ${exports})
endfunction()

# Most of the program waits for people: there small code counts, which is memory that stays. This is
# for a library that works through many files or pixels.
function(vantle_optimize_for_speed library)
  target_compile_options(vantle_${library} PRIVATE $<$<CONFIG:Release>:-O2>)
endfunction()

# An argument of qt_add_qml_module: compiling QML ahead takes a while, and the sanitizers see nothing
# in it.
if(VANTLE_SANITIZE)
  set(VANTLE_QML_COMPILATION NO_CACHEGEN)
endif()

# QML becomes bytecode when Vantle is built: what the toolkit would compile at run time it keeps in the
# user's home, and takes for this version's later, because all files in the program carry one date.
# What its compiler makes of the bindings in C++ differs from folder to folder; its bytecode does not.
function(vantle_compile_qml target)
  set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
endfunction()

# Reads headers of others once for all files of a target. Only under the sanitizers, where whole
# builds are the rule: elsewhere each file is to prove that it includes what it uses.
function(vantle_precompile target)
  if(VANTLE_SANITIZE)
    vantle_precompile_tests(${target} ${ARGN})
  endif()
endfunction()

# The same for tests, in every build: they are half of what there is to compile.
function(vantle_precompile_tests target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
endfunction()
