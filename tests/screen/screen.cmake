hoxq_test(screen/tst_deletions.cpp)
hoxq_test(screen/tst_overlay.cpp)
hoxq_test(screen/tst_restyle.cpp support/propertywalk.cpp support/propertywalk.h)
hoxq_test(screen/tst_texts.cpp support/propertywalk.cpp support/propertywalk.h)
