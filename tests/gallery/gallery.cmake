# The keyboard of the gallery, pages that it types into, and the command line.
hoxq_test(gallery/tst_keyboard.cpp
  ${PROJECT_SOURCE_DIR}/gallery/measures.cpp
  ${PROJECT_SOURCE_DIR}/gallery/widgets/keyboard.cpp
  ${PROJECT_SOURCE_DIR}/gallery/widgets/keyboard.h)

foreach(file measures page pages/loginpage pages/pinpage pages/stringspage
    widgets/fieldentry widgets/formground widgets/ground widgets/keyboard)
  list(APPEND entry ${PROJECT_SOURCE_DIR}/gallery/${file}.cpp ${PROJECT_SOURCE_DIR}/gallery/${file}.h)
endforeach()
hoxq_test(gallery/tst_entry.cpp ${entry})
target_include_directories(tst_entry PRIVATE ${PROJECT_SOURCE_DIR})

foreach(file measures page
    pages/busyanimationpage pages/headlinespage pages/updatewindowpage pages/videopage
    widgets/busysign widgets/fingerscroll widgets/framedground widgets/testpicture
    widgets/tilelayout widgets/videooutput)
  list(APPEND screens ${PROJECT_SOURCE_DIR}/gallery/${file}.cpp ${PROJECT_SOURCE_DIR}/gallery/${file}.h)
endforeach()
hoxq_test(gallery/tst_screens.cpp ${screens} $<TARGET_OBJECTS:galleryresources>)
target_include_directories(tst_screens PRIVATE ${PROJECT_SOURCE_DIR})
foreach(file measures page pages/formpage pages/listspage
    widgets/fingerscroll widgets/ground widgets/tilelayout)
  list(APPEND lists ${PROJECT_SOURCE_DIR}/gallery/${file}.cpp ${PROJECT_SOURCE_DIR}/gallery/${file}.h)
endforeach()
hoxq_test(gallery/tst_lists.cpp ${lists})
target_include_directories(tst_lists PRIVATE ${PROJECT_SOURCE_DIR})

hoxq_test(gallery/tst_gallery.cpp)
add_dependencies(tst_gallery hoxqgallery)
target_link_libraries(tst_gallery PRIVATE packagesupport)
target_compile_definitions(tst_gallery PRIVATE HOXQ_GALLERY="$<TARGET_FILE:hoxqgallery>")
