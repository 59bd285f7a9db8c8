# SPDX-License-Identifier: MIT
# What every target is compiled with. Warnings are errors for our own code; the options are given
# to a target with hoxq_compile(target), so that generated code of others stays outside.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(HOXQ_SANITIZE)
  # float-cast-overflow and float-divide-by-zero belong to no group, and only "all" makes each
  # finding fatal.
  add_compile_options(-fsanitize=address,undefined,float-cast-overflow,float-divide-by-zero
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

function(hoxq_compile target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Woverloaded-virtual
    -Wsuggest-override -Wold-style-cast -Wzero-as-null-pointer-constant -Wformat=2 -Wundef
    -Wnull-dereference -Wdouble-promotion -Wextra-semi -Werror)
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS QT_DEPRECATED_WARNINGS)
endfunction()
