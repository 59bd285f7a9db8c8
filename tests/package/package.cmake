# SPDX-License-Identifier: MIT
# Tests of what an application gets: the tree as it is installed, in a folder of the build tree.
set(stage ${CMAKE_CURRENT_BINARY_DIR}/stage)
add_test(NAME install COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -DSTAGE=${stage}
  -P ${CMAKE_CURRENT_SOURCE_DIR}/package/install.cmake)
set_tests_properties(install PROPERTIES FIXTURES_SETUP installed)

# hoxq_package_test(tst_name): a test program that does not link the library.
function(hoxq_package_test name)
  add_executable(${name} package/${name}.cpp)
  hoxq_compile(${name})
  target_link_libraries(${name} PRIVATE Qt5::Test)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_compile_definitions(${name} PRIVATE HOXQ_STAGE="${stage}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    FIXTURES_REQUIRED installed ENVIRONMENT "${HOXQ_TEST_ENVIRONMENT}" TIMEOUT 600)
endfunction()

foreach(name IN ITEMS tst_bundles tst_fontlifetime)
  hoxq_package_test(${name})
  target_link_libraries(${name} PRIVATE ${CMAKE_DL_LIBS})
  target_compile_definitions(${name} PRIVATE
    HOXQ_LIBRARY="${stage}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_SONAME_FILE_NAME:hoxqui>")
endforeach()
target_link_libraries(tst_bundles PRIVATE Qt5::Svg)
target_link_libraries(tst_fontlifetime PRIVATE Qt5::Widgets)
# The same where no font but the library's is to be found.
add_test(NAME tst_panelfonts COMMAND tst_fontlifetime)
set_tests_properties(tst_panelfonts PROPERTIES FIXTURES_REQUIRED installed
  ENVIRONMENT "${HOXQ_TEST_ENVIRONMENT};FONTCONFIG_FILE=/etc/fonts/fonts.conf;FONTCONFIG_SYSROOT=${stage}/${CMAKE_INSTALL_DATAROOTDIR}/hoxqui/fontconfig"
  FAIL_REGULAR_EXPRESSION "Fontconfig (warning|error)")
# The library finds this program's qRegisterResourceData before the toolkit's.
set_target_properties(tst_bundles PROPERTIES ENABLE_EXPORTS ON)

# The names of the forwarding headers, with blanks between.
foreach(library system ui util panel uitest)
  get_property(classes GLOBAL PROPERTY HOXQ_CLASSES_${library})
  string(REPLACE ";" " " HOXQ_CLASSES_${library} "${classes}")
endforeach()

# The applications that the tests build are built as the library is.
set(consumer_flags ${CMAKE_CXX_FLAGS})
if(HOXQ_SANITIZE)
  string(APPEND consumer_flags " -fsanitize=address,undefined")
endif()

add_library(packagesupport STATIC package/process.cpp package/process.h)
hoxq_compile(packagesupport)
target_include_directories(packagesupport PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(packagesupport PUBLIC Qt5::Core)
target_compile_definitions(packagesupport PUBLIC
  HOXQ_SOURCE="${PROJECT_SOURCE_DIR}" HOXQ_CONSUMER="${CMAKE_CURRENT_SOURCE_DIR}/consumer"
  HOXQ_STAGE="${stage}" HOXQ_LIBDIR="${CMAKE_INSTALL_LIBDIR}"
  HOXQ_SYSTEM_CLASSES="${HOXQ_CLASSES_system}" HOXQ_KIT_CLASSES="${HOXQ_CLASSES_uitest}"
  HOXQ_PANEL_CLASSES="${HOXQ_CLASSES_panel}"
  HOXQ_CLASSES="${HOXQ_CLASSES_ui} ${HOXQ_CLASSES_util}"
  HOXQ_VERSION="${PROJECT_VERSION}"
  HOXQ_CMAKE="${CMAKE_COMMAND}" HOXQ_GENERATOR="${CMAKE_GENERATOR}"
  HOXQ_COMPILER="${CMAKE_CXX_COMPILER}" HOXQ_LAUNCHER="${CMAKE_CXX_COMPILER_LAUNCHER}"
  HOXQ_FLAGS="${consumer_flags}" HOXQ_NM="${CMAKE_NM}" HOXQ_READELF="${CMAKE_READELF}")

# These are the applications themselves into which plugins are loaded, so both may have sanitizers.
hoxq_package_test(tst_stockkeyboard)
set_property(TEST tst_stockkeyboard APPEND PROPERTY ENVIRONMENT
  QT_PLUGIN_PATH=${stage}/${CMAKE_INSTALL_LIBDIR}/qt5/plugins QT_IM_MODULE=hoxqui
  LC_ALL=de_DE.UTF-8 LANGUAGE=)
target_link_libraries(tst_stockkeyboard PRIVATE Qt5::Widgets)
if(HOXQ_DESIGNER)
  hoxq_require(Qt5UiTools qttools5-dev 5.15)
  hoxq_package_test(tst_stockforms)
  target_link_libraries(tst_stockforms PRIVATE Qt5::UiTools)
  target_compile_definitions(tst_stockforms PRIVATE HOXQ_LIBDIR="${CMAKE_INSTALL_LIBDIR}")
endif()

foreach(name IN ITEMS tst_library tst_consumer tst_configuration)
  hoxq_package_test(${name})
  target_link_libraries(${name} PRIVATE packagesupport)
endforeach()
