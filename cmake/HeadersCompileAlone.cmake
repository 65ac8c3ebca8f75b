# Every header compiles alone. A header whose own source includes it before anything else shows that already; each other
# one gets a source that includes it and nothing else. Looked at whenever CMake runs, as ./check has it do. The preset with
# the sanitizers leaves that out, since it would show the same.
if(ORVIK_SANITIZE)
  return()
endif()

file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}
     ${CMAKE_SOURCE_DIR}/OrvikTypeLib/*.h ${CMAKE_SOURCE_DIR}/platform/*.h ${CMAKE_SOURCE_DIR}/plugin/*.h
     ${CMAKE_SOURCE_DIR}/model/*.h ${CMAKE_SOURCE_DIR}/instrument/*.h ${CMAKE_SOURCE_DIR}/results/*.h
     ${CMAKE_SOURCE_DIR}/ui/*.h ${CMAKE_SOURCE_DIR}/toolkit/*.h ${CMAKE_SOURCE_DIR}/resources/*.h ${CMAKE_SOURCE_DIR}/host/*.h
     ${CMAKE_SOURCE_DIR}/tester/*.h ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/benchmarks/*.h ${CMAKE_SOURCE_DIR}/fuzz/*.h)

# Sets `result` to whether the header's own source begins by including it. Sources of tests do not count: they have the
# precompiled header before everything else. Where several sources are compiled at once, it is the static analysis that
# reads each by itself; it passes over host/cli, whose headers are therefore compiled where every test is wanted.
function(is_shown_by_its_source header result)
  set(${result} FALSE PARENT_SCOPE)
  string(REGEX REPLACE "\\.h$" ".cpp" source ${header})
  if(header MATCHES "^(tests|benchmarks|fuzz)/" OR NOT EXISTS ${CMAKE_SOURCE_DIR}/${source})
    return()
  endif()
  if("$CACHE{CMAKE_UNITY_BUILD}" AND header MATCHES "^host/cli/" AND ORVIK_TEST_SET STREQUAL all)
    return()
  endif()
  file(STRINGS ${CMAKE_SOURCE_DIR}/${source} first_include REGEX "^#include" LIMIT_COUNT 1)
  if(first_include STREQUAL "#include \"${header}\"")
    set(${result} TRUE PARENT_SCOPE)
  endif()
endfunction()

# Those of tests and benchmarks only where every test is wanted.
if(NOT ORVIK_TEST_SET STREQUAL all)
  list(FILTER headers EXCLUDE REGEX "^(tests|benchmarks|fuzz)/")
endif()

set(sources)
foreach(header IN LISTS headers)
  is_shown_by_its_source(${header} shown)
  if(NOT shown)
    string(MAKE_C_IDENTIFIER ${header} name)
    set(source ${CMAKE_BINARY_DIR}/headers-compile-alone/${name}.cpp)
    file(GENERATE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
    list(APPEND sources ${source})
  endif()
endforeach()

add_library(headers-compile-alone OBJECT ${sources})
set_target_properties(headers-compile-alone PROPERTIES UNITY_BUILD OFF)
find_package(Qt6 REQUIRED COMPONENTS Widgets Test)
target_link_libraries(headers-compile-alone PRIVATE host-cli keld-sim-core Qt6::Test Qt6::Widgets GTest::gtest)
target_compile_options(headers-compile-alone PRIVATE -O0)
# What the headers of the tests take from the build; the values do not matter here.
target_compile_definitions(headers-compile-alone PRIVATE QT_NO_KEYWORDS
  SOURCE_PATH="" CATALOGUE_PATH="" PLUGIN_PATH="" CHECKER_PATH="" KELD_SIM_PATH="" ORVIK_BENCH_PATH="" DRAW_BITMAPS_PATH="")
