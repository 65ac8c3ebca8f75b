# One library for each folder.
#
#   orvik_folder(TARGET FOLDER [USES target…] [LIBRARIES library…] [EXCEPT file…] [RECURSE] [HIDDEN])
#
# USES names the folders whose headers this one may include; LIBRARIES are what comes from outside. All of it is public:
# whoever links a folder can link what its headers need. The arrows are written to build/…/folders.txt, and
# tests/architecture holds every include to them.
function(orvik_folder target folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "RECURSE;HIDDEN" "" "USES;LIBRARIES;EXCEPT")
  if(arg_RECURSE)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  else()
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  endif()
  foreach(file IN LISTS arg_EXCEPT)
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/${folder}/${file})
  endforeach()

  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PUBLIC ${arg_USES} ${arg_LIBRARIES})
    if(arg_HIDDEN)
      set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    endif()
  else()
    add_library(${target} INTERFACE)
    target_link_libraries(${target} INTERFACE ${arg_USES} ${arg_LIBRARIES})
  endif()

  set(used_folders ${folder})
  foreach(used IN LISTS arg_USES)
    get_property(used_folder GLOBAL PROPERTY ORVIK_FOLDER_OF_${used})
    if(NOT used_folder)
      message(FATAL_ERROR "${target} uses ${used}, which is not a folder below it")
    endif()
    list(APPEND used_folders ${used_folder})
  endforeach()
  list(JOIN used_folders " " line)
  set_property(GLOBAL PROPERTY ORVIK_FOLDER_OF_${target} ${folder})
  set_property(GLOBAL APPEND PROPERTY ORVIK_FOLDERS "${line}")
endfunction()

# Writes one line for each folder: its name, then the folders that it may include.
function(orvik_write_folders file)
  get_property(lines GLOBAL PROPERTY ORVIK_FOLDERS)
  list(JOIN lines "\n" text)
  file(GENERATE OUTPUT ${file} CONTENT "${text}\n")
endfunction()
