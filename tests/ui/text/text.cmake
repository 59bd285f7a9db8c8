foreach(class vexolabel)
  hoxq_test(ui/text/tst_${class}.cpp)
endforeach()
