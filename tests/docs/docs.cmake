# What the pages of docs/classes show must compile, under the same warnings as the library.
file(GLOB snippets CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/snippets/*.cpp)
add_library(docsnippets OBJECT ${snippets})
hoxq_compile(docsnippets)
target_link_libraries(docsnippets PRIVATE Hoxq::Ui)

# The example of the tutorial, as it stands.
hoxq_test(docs/tst_firstpanel.cpp)
target_include_directories(tst_firstpanel PRIVATE ${PROJECT_SOURCE_DIR})

# What scripts/docs makes of a header.
find_program(HOXQ_PYTHON3 python3 REQUIRED)
add_test(NAME docs_generator
  COMMAND ${HOXQ_PYTHON3} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/docs_test.py)
