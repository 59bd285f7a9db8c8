# SPDX-License-Identifier: MIT
# A class of the public interface is one line:
#   hoxq_class(FOLDER Class PAGE NEED [TESTED_BY Class] [DESCRIBES Class])
# FOLDER, in the current one, holds header and source under the name in lower case; PAGE is the page
# of the gallery that shows the class, or -; NEED says in a few words what one sees or needs who
# looks for it. The line adds the sources to hoxq_sources, makes the forwarding header (applications
# write #include <ScalingInfo>) and sees to it that there is a test, its own or that of another
# class. scripts/docs reads the line for the page and the tables of classes, with DESCRIBES for
# another class in that header; the tests and the plugin for Designer are held against it.
function(hoxq_class folder class page need)
  cmake_parse_arguments(PARSE_ARGV 4 arg "" "TESTED_BY;DESCRIBES" "")
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}
    OUTPUT_VARIABLE library)
  string(TOLOWER ${class} name)
  cmake_path(SET path NORMALIZE ${library}/${folder}/${name})
  if(NOT EXISTS ${PROJECT_SOURCE_DIR}/${path}.h)
    message(FATAL_ERROR "${class} has no header ${path}.h")
  endif()

  set(test ${class})
  if(arg_TESTED_BY)
    set(test ${arg_TESTED_BY})
  endif()
  string(TOLOWER tst_${test} test)
  file(GLOB tests ${PROJECT_SOURCE_DIR}/tests/${library}/${folder}/${test}*.cpp)
  if(HOXQ_TESTS AND NOT tests)
    message(FATAL_ERROR "${class} has no test tests/${library}/${folder}/${test}.cpp")
  endif()

  set(forward ${PROJECT_BINARY_DIR}/fwd/${class})
  file(GENERATE OUTPUT ${forward} CONTENT "#include \"${path}.h\"\n")
  set_property(GLOBAL APPEND PROPERTY HOXQ_FORWARDS_${library} ${forward})
  set_property(GLOBAL APPEND PROPERTY HOXQ_CLASSES_${library} ${class})
  set_property(GLOBAL APPEND PROPERTY HOXQ_HEADERS_${library} ${path}.h)

  set(sources ${PROJECT_SOURCE_DIR}/${path}.h)
  if(EXISTS ${PROJECT_SOURCE_DIR}/${path}.cpp)
    list(APPEND sources ${PROJECT_SOURCE_DIR}/${path}.cpp)
  endif()
  set(hoxq_sources ${hoxq_sources} ${sources} PARENT_SCOPE)
endfunction()

# hoxq_list_classes(FILE LIBRARY...): a header with all classes of these libraries, which defines
# HOXQ_FOR_EACH_CLASS(DO) as DO(ScalingInfo) and so on for each of them.
function(hoxq_list_classes file)
  foreach(library IN LISTS ARGN)
    get_property(headers GLOBAL PROPERTY HOXQ_HEADERS_${library})
    foreach(header IN LISTS headers)
      string(APPEND text "#include \"${header}\"\n")
    endforeach()
    get_property(classes GLOBAL PROPERTY HOXQ_CLASSES_${library})
    foreach(class IN LISTS classes)
      string(APPEND list " \\\n    DO(${class})")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${file} @ONLY
    CONTENT "#pragma once\n\n${text}\n#define HOXQ_FOR_EACH_CLASS(DO)${list}\n")
endfunction()
