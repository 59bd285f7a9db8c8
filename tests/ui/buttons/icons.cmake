hoxq_test(ui/buttons/tst_activevectorbutton.cpp)
hoxq_test(ui/buttons/tst_vexoiconbutton.cpp)
hoxq_test(ui/buttons/tst_vexodesignvectorbutton.cpp)
hoxq_test(ui/buttons/tst_vexokeyboardbutton.cpp)
