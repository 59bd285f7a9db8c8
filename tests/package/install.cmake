# SPDX-License-Identifier: MIT
# Installs the build tree BUILD afresh and moves the whole to STAGE, a folder of its own: what is
# tested there depends on no place.
file(REMOVE_RECURSE ${STAGE} ${STAGE}-before)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${STAGE}-before
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${STAGE}-before ${STAGE})
