if(ORVIK_SANITIZE)
  # "vptr" compares type information by address, which differs between a host and a plug-in that exports nothing but its entry points.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer -g1 -Og)
  add_link_options(-fsanitize=address,undefined)
  # Indexing beyond a container, empty optionals and the like end the program as well.
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
if(ORVIK_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    message(FATAL_ERROR "Fuzzing needs clang: configure with the preset \"fuzz\", or begin it with fuzz/run")
  endif()
  # As above, and what the fuzzer steers by: which edges of the code an input reaches.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g1 -O1)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
