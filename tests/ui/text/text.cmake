foreach(class vexolabel vexolinespacer vexoruler)
  hoxq_test(ui/text/tst_${class}.cpp)
endforeach()
