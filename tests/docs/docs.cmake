# What the pages of docs/classes show: compiled as the library is, and each snippet run once.
file(GLOB snippets CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/snippets/*.cpp)
add_library(docsnippets OBJECT ${snippets})
hoxq_compile(docsnippets)
target_include_directories(docsnippets PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(docsnippets PUBLIC Hoxq::Ui)

hoxq_test(docs/tst_snippets.cpp)
target_link_libraries(tst_snippets PRIVATE docsnippets)
