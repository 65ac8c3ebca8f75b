# Every header compiles alone: one source for each, which includes nothing else. The preset with the sanitizers leaves
# it out, since it would show the same.
if(ORVIK_SANITIZE)
  return()
endif()

file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}
     ${CMAKE_SOURCE_DIR}/OrvikTypeLib/*.h ${CMAKE_SOURCE_DIR}/platform/*.h ${CMAKE_SOURCE_DIR}/plugin/*.h
     ${CMAKE_SOURCE_DIR}/model/*.h ${CMAKE_SOURCE_DIR}/instrument/*.h ${CMAKE_SOURCE_DIR}/results/*.h
     ${CMAKE_SOURCE_DIR}/ui/*.h ${CMAKE_SOURCE_DIR}/resources/*.h ${CMAKE_SOURCE_DIR}/host/*.h
     ${CMAKE_SOURCE_DIR}/tester/*.h ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/benchmarks/*.h)

set(sources)
foreach(header IN LISTS headers)
  string(MAKE_C_IDENTIFIER ${header} name)
  set(source ${CMAKE_BINARY_DIR}/headers-compile-alone/${name}.cpp)
  file(GENERATE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
  list(APPEND sources ${source})
endforeach()

add_library(headers-compile-alone OBJECT ${sources})
target_link_libraries(headers-compile-alone PRIVATE orvik-host keld-sim-core GTest::gtest)
target_compile_options(headers-compile-alone PRIVATE -O0)
