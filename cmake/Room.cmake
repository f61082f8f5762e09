# room(NAME DEPENDS rooms... LINK libraries...): one folder under src/ as one library.
# Its sources see only the rooms that they may depend on: each room has an include folder of its own with links to
# itself and to those, so that a forbidden include does not compile.

# The program is made by GCC, its tests by Clang, which compiles them in half the time: both look at every line.
set(WARNINGS -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps and overflows in optimised text + text that are not there, also through compiled headers.
  list(APPEND WARNINGS -Wshadow=local -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
else()
  list(APPEND WARNINGS -Wno-deprecated-declarations)  # of GCC 12's own library
endif()

function(include_tree target out)
  set(tree ${CMAKE_BINARY_DIR}/include/${target})
  file(MAKE_DIRECTORY ${tree})
  file(GLOB old ${tree}/*)
  foreach(link ${old})
    get_filename_component(name ${link} NAME)
    if(NOT name IN_LIST ARGN)
      file(REMOVE ${link})
    endif()
  endforeach()
  foreach(name ${ARGN})
    if(NOT EXISTS ${tree}/${name})
      file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${name} ${tree}/${name} SYMBOLIC)
    endif()
  endforeach()
  set(${out} ${tree} PARENT_SCOPE)
endfunction()

# The standard library's headers, compiled once for all that is compiled alike.
function(standard_headers target)
  if(TARGET standard_headers)
    target_precompile_headers(${target} REUSE_FROM standard_headers)
    return()
  endif()
  file(WRITE ${CMAKE_BINARY_DIR}/empty.cpp "")
  add_library(standard_headers STATIC ${CMAKE_BINARY_DIR}/empty.cpp)
  target_compile_options(standard_headers PRIVATE ${WARNINGS})
  target_precompile_headers(standard_headers PRIVATE
    <algorithm> <array> <chrono> <deque> <filesystem> <functional> <map> <memory> <optional> <random> <set> <span> <sstream>
    <stdexcept> <string> <string_view> <unordered_map> <utility> <variant> <vector>)
  target_precompile_headers(${target} REUSE_FROM standard_headers)
endfunction()

function(room name)
  cmake_parse_arguments(ROOM "" "" "DEPENDS;LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp ${CMAKE_SOURCE_DIR}/src/${name}/layout/*.cpp)
  if(NOT sources)
    add_library(${name} INTERFACE)
    return()
  endif()
  include_tree(${name} tree ${name} ${ROOM_DEPENDS})
  set(ROOMS ${ROOMS} ${name} PARENT_SCOPE)  # the rooms that have sources, and what each sees
  set(${name}_SEES ${ROOM_DEPENDS} PARENT_SCOPE)
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PRIVATE ${tree})
  target_compile_options(${name} PRIVATE ${WARNINGS})
  target_link_libraries(${name} PUBLIC ${ROOM_DEPENDS} ${ROOM_LINK})
  standard_headers(${name})
endfunction()

# program(NAME source DEPENDS rooms...): an executable in bin/ that sees the rooms named.
function(program name source)
  cmake_parse_arguments(PROGRAM "" "" "DEPENDS" ${ARGN})
  include_tree(${name} tree ${PROGRAM_DEPENDS})
  add_executable(${name} ${source})
  target_include_directories(${name} PRIVATE ${tree})
  target_compile_options(${name} PRIVATE ${WARNINGS})
  target_link_libraries(${name} PRIVATE ${PROGRAM_DEPENDS})
  standard_headers(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
endfunction()
