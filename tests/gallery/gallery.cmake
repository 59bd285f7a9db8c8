# The keyboard of the gallery, and its command line.
hoxq_test(gallery/tst_keyboard.cpp
  ${PROJECT_SOURCE_DIR}/gallery/measures.cpp
  ${PROJECT_SOURCE_DIR}/gallery/widgets/keyboard.cpp
  ${PROJECT_SOURCE_DIR}/gallery/widgets/keyboard.h)

hoxq_test(gallery/tst_gallery.cpp)
add_dependencies(tst_gallery hoxqgallery)
target_link_libraries(tst_gallery PRIVATE packagesupport)
target_compile_definitions(tst_gallery PRIVATE HOXQ_GALLERY="$<TARGET_FILE:hoxqgallery>")
