foreach(class scaledisplaywidget vexohorizontallabelwidget vexoimageheadline vexolabel
    vexolabeledcontainer vexolinespacer vexologo vexologolabel vexoruler vexotextenumeration)
  hoxq_test(ui/text/tst_${class}.cpp)
endforeach()
