# SPDX-License-Identifier: MIT
# The three resource bundles. Sets font_resources and makes the object library hoxqui_resources;
# both are to be listed first in the library, in this order.
include(HoxqImages)

configure_file(${PROJECT_SOURCE_DIR}/ui/resources/fonts.qrc.in ${PROJECT_BINARY_DIR}/fonts.qrc @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/ui/resources/widgetimages.qrc.in
  ${PROJECT_BINARY_DIR}/widgetimages.qrc @ONLY)

# As a C array the fonts would take ten seconds and half a gigabyte to compile.
qt5_add_big_resources(font_resources ${PROJECT_BINARY_DIR}/fonts.qrc
  OPTIONS --format-version 3 --no-compress)
set_target_properties(rcc_object_fonts PROPERTIES
  CXX_VISIBILITY_PRESET default AUTOMOC OFF INTERPROCEDURAL_OPTIMIZATION OFF)

# Without --threshold 0 a short stylesheet would stay uncompressed.
qt5_add_resources(small_resources ${PROJECT_SOURCE_DIR}/ui/resources/stylesheets.qrc
  OPTIONS --format-version 3 --compress-algo zlib --compress 9 --threshold 0)
qt5_add_resources(small_resources ${PROJECT_BINARY_DIR}/widgetimages.qrc
  OPTIONS --format-version 3 --no-compress)
set_source_files_properties(${small_resources} PROPERTIES
  SKIP_AUTOMOC ON SKIP_UNITY_BUILD_INCLUSION ON SKIP_PRECOMPILE_HEADERS ON)

# A library of its own, never optimised across files: that would run other initialisers first.
add_library(hoxqui_resources OBJECT ${small_resources})
set_target_properties(hoxqui_resources PROPERTIES
  CXX_VISIBILITY_PRESET default AUTOMOC OFF INTERPROCEDURAL_OPTIMIZATION OFF)
target_link_libraries(hoxqui_resources PRIVATE Qt5::Core)
add_dependencies(hoxqui_resources hoxqui_images)
