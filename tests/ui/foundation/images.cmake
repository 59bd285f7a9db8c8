hoxq_test(ui/foundation/tst_cachedvectoricon.cpp)
hoxq_test(ui/foundation/tst_hostileimages.cpp)
find_package(ZLIB REQUIRED)
target_link_libraries(tst_hostileimages PRIVATE ZLIB::ZLIB)
# An endless rendering fails its row by name, long before the whole program is stopped.
set_property(TEST tst_hostileimages APPEND PROPERTY ENVIRONMENT QTEST_FUNCTION_TIMEOUT=120000)
