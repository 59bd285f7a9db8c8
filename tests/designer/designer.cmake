# SPDX-License-Identifier: MIT
foreach(module IN ITEMS Designer DesignerComponents UiPlugin UiTools)
  hoxq_require(Qt5${module} qttools5-dev 5.15)
endforeach()

add_library(designerhost STATIC designer/designerhost.cpp designer/designerhost.h)
hoxq_compile(designerhost)
target_compile_definitions(designerhost PUBLIC HOXQ_PLUGINS="${PROJECT_BINARY_DIR}/plugins"
  HOXQ_FORM="${CMAKE_CURRENT_BINARY_DIR}/everywidget.ui")
target_link_libraries(designerhost PUBLIC testsupport Qt5::Designer Qt5::DesignerComponents)
add_dependencies(designerhost hoxqdesigner)

# A form as Designer saves it, and what uic makes of it.
add_executable(writeform designer/writeform.cpp)
hoxq_compile(writeform)
target_link_libraries(writeform PRIVATE designerhost)
add_custom_command(OUTPUT everywidget.ui
  COMMAND ${CMAKE_COMMAND} -E env ${HOXQ_TEST_ENVIRONMENT}
    ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:writeform> everywidget.ui
  DEPENDS writeform hoxqdesigner
  COMMENT "Saving a form with every widget"
  VERBATIM)
qt5_wrap_ui(everywidget ${CMAKE_CURRENT_BINARY_DIR}/everywidget.ui)

hoxq_test(designer/tst_designerplugin.cpp)
target_link_libraries(tst_designerplugin PRIVATE Qt5::UiPlugin)
target_compile_definitions(tst_designerplugin PRIVATE
  HOXQ_DESIGNER_PLUGIN="$<TARGET_FILE:hoxqdesigner>")
add_dependencies(tst_designerplugin hoxqdesigner)

hoxq_test(designer/tst_designer.cpp)
target_link_libraries(tst_designer PRIVATE designerhost)

hoxq_test(designer/tst_forms.cpp ${everywidget})
target_include_directories(tst_forms PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
target_link_libraries(tst_forms PRIVATE Qt5::UiTools designerhost)
