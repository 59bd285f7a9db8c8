foreach(class vexoverticalbuttonscrollarea vexoverticalscrollarea)
  hoxq_test(ui/scrolling/tst_${class}.cpp)
endforeach()
