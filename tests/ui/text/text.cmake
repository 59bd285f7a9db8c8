foreach(class vexolabel vexolinespacer vexologo vexologolabel vexoruler)
  hoxq_test(ui/text/tst_${class}.cpp)
endforeach()
