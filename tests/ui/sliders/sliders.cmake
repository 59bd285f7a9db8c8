foreach(class vexoslider vexosliderdecoration)
  hoxq_test(ui/sliders/tst_${class}.cpp)
endforeach()
