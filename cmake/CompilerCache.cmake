# A compiler cache, when there is one. What uses a precompiled header can be cached when the preprocessor leaves a mark of
# it and the cache takes it by content; CMakePresets.json sets CCACHE_SLOPPINESS for that.
find_program(CCACHE ccache)
if(CCACHE)
  # Without this the cache would pass over everything that is compiled with a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  set(PRECOMPILED_HEADER_OPTIONS $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
