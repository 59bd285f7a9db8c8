# SPDX-License-Identifier: MIT
# Installs the build tree BUILD afresh into STAGE, a folder of its own.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${STAGE}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
