# SPDX-License-Identifier: MIT
# Forwarding headers: applications write #include <ScalingInfo>.
#   hoxq_forward(out folder Class...)  appends the files to the list out
function(hoxq_forward out folder)
  foreach(class IN LISTS ARGN)
    string(TOLOWER ${class} header)
    if(NOT EXISTS ${PROJECT_SOURCE_DIR}/${folder}/${header}.h)
      message(FATAL_ERROR "no header for ${class}")
    endif()
    set(file ${PROJECT_BINARY_DIR}/fwd/${class})
    file(GENERATE OUTPUT ${file} CONTENT "#include \"${folder}/${header}.h\"\n")
    list(APPEND files ${file})
  endforeach()
  set(${out} ${${out}} ${files} PARENT_SCOPE)
endfunction()
