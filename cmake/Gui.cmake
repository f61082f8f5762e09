# The windows: the room `qt`, the hand-made views of the rooms, the register of screens, the program.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Svg Test)

# The icons of src/qt/icons.txt, out of the pinned icon set, as one compiled-in resource.
set(ICON_SET ${CMAKE_SOURCE_DIR}/node_modules/lucide-static/icons)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/qt/icons.txt)
file(STRINGS ${CMAKE_SOURCE_DIR}/src/qt/icons.txt icons REGEX "^[a-z]")
set(entries "")
foreach(icon ${icons})
  if(NOT EXISTS ${ICON_SET}/${icon}.svg)
    message(FATAL_ERROR "The icon ${icon} is missing: run tools/setup first.")
  endif()
  string(APPEND entries "    <file alias=\"${icon}.svg\">${ICON_SET}/${icon}.svg</file>\n")
endforeach()
set(ICON_RESOURCE ${CMAKE_BINARY_DIR}/icons.qrc)
file(CONFIGURE OUTPUT ${ICON_RESOURCE}
  CONTENT "<RCC>\n  <qresource prefix=\"/icons\">\n@entries@  </qresource>\n</RCC>\n" @ONLY)

# gui_target(NAME SEES rooms... LINK libraries...): a library or program that may use Qt.
function(gui_target name)
  cmake_parse_arguments(GUI "" "" "SEES;LINK" ${ARGN})
  include_tree(${name} tree ${GUI_SEES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
  target_include_directories(${name} PRIVATE ${tree})
  target_compile_options(${name} PRIVATE ${WARNINGS})
  target_link_libraries(${name} PUBLIC ${GUI_LINK} Qt6::Widgets Qt6::Svg)
  window_headers(${name})
endfunction()

# The toolkit's headers, compiled once for all that opens windows.
function(window_headers target)
  if(TARGET window_headers)
    target_precompile_headers(${target} REUSE_FROM window_headers)
    return()
  endif()
  add_library(window_headers STATIC ${CMAKE_BINARY_DIR}/empty.cpp)
  target_compile_options(window_headers PRIVATE ${WARNINGS})
  target_link_libraries(window_headers PRIVATE Qt6::Widgets Qt6::Svg)
  target_precompile_headers(window_headers PRIVATE <algorithm> <functional> <map> <memory> <string> <vector> <QtWidgets>)
  target_precompile_headers(${target} REUSE_FROM window_headers)
endfunction()

file(GLOB qt_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/qt/*.cpp ${CMAKE_SOURCE_DIR}/src/qt/printing/*.cpp)
add_library(qt STATIC ${qt_sources} ${ICON_RESOURCE})
set_target_properties(qt PROPERTIES AUTORCC ON)
gui_target(qt SEES qt base store platform printing kit LINK base store platform printing kit Qt6::Widgets Qt6::Svg)

# Hand-made views: src/<room>/view/*.cpp. Each may use qt and what its room may use.
add_library(views INTERFACE)
foreach(name ${ROOMS})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/view/*.cpp)
  if(sources)
    add_library(${name}_view STATIC ${sources})
    gui_target(${name}_view SEES ${name} qt ${${name}_SEES} LINK ${name} qt)
    target_link_libraries(views INTERFACE ${name}_view)
  endif()
endforeach()

add_library(office STATIC ${CMAKE_SOURCE_DIR}/src/app/data_folder.cpp ${CMAKE_SOURCE_DIR}/src/app/office.cpp
            ${CMAKE_SOURCE_DIR}/src/app/views.cpp)
gui_target(office SEES app qt ${ROOMS} LINK views qt screens)

# gui_program(NAME sources... LINK libraries...): the program itself and the tools that open windows.
function(gui_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  gui_target(${name} SEES app qt ${ROOMS} LINK ${PROGRAM_LINK})
endfunction()

gui_program(fee-office SOURCES src/app/main.cpp LINK office)
gui_program(tour SOURCES tools/tour.cpp tools/tour_day.cpp tools/tour_player.cpp LINK office Qt6::Test)
gui_program(pictures SOURCES tools/pictures.cpp LINK Qt6::Gui)
gui_program(report_pictures SOURCES tools/report_pictures.cpp LINK qt reports)
