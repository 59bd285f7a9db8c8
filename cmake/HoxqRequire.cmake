# SPDX-License-Identifier: MIT
# hoxq_require(NAME PACKAGE [find_package argument...]): finds it, or says which package of Debian
# brings it.
macro(hoxq_require name package)
  find_package(${name} ${ARGN} QUIET)
  if(NOT ${name}_FOUND)
    message(FATAL_ERROR "${name} not found: install the package ${package}")
  endif()
endmacro()
