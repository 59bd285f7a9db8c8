# SPDX-License-Identifier: MIT
# Cross build for 64-bit Arm with Debian's g++-aarch64-linux-gnu. HOXQ_ARM64_SYSROOT in the
# environment names the panel's root file system with Qt's development files; the tests run under
# qemu-aarch64 (package qemu-user).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
if(NOT IS_DIRECTORY "$ENV{HOXQ_ARM64_SYSROOT}")
  message(FATAL_ERROR "HOXQ_ARM64_SYSROOT must name the folder of the Arm root file system")
endif()
set(CMAKE_SYSROOT $ENV{HOXQ_ARM64_SYSROOT})
set(CMAKE_FIND_ROOT_PATH ${CMAKE_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# What is the same for all machines may come from the build machine.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64;-L;${CMAKE_SYSROOT})
# Qt's own tools of the build machine; its package files keep a target that exists.
foreach(tool moc rcc uic qmake lrelease lupdate lconvert)
  if(NOT TARGET Qt5::${tool})
    add_executable(Qt5::${tool} IMPORTED GLOBAL)
    set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION /usr/lib/qt5/bin/${tool})
  endif()
endforeach()
