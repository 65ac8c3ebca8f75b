if(ORVIK_SANITIZE)
  # "vptr" compares type information by address, which differs between a host and a plug-in that exports nothing but its entry points.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer -g1 -Og)
  add_link_options(-fsanitize=address,undefined)
  # Indexing beyond a container, empty optionals and the like end the program as well.
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
