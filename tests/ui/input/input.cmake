hoxq_test(ui/input/tst_shakemotion.cpp ${PROJECT_SOURCE_DIR}/ui/input/shakemotion.cpp)
hoxq_test(ui/input/tst_vexolineedit.cpp)
