# SPDX-License-Identifier: MIT
install(TARGETS hoxqui hoxqsystem EXPORT HoxqUi
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Devel)
install(DIRECTORY ui util DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui COMPONENT Devel
  FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE PATTERN resources EXCLUDE)
install(FILES system/vexologging.h ${PROJECT_BINARY_DIR}/system/hoxqsystem_export.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui/system COMPONENT Devel)
install(FILES ${PROJECT_BINARY_DIR}/ui/hoxqui_export.h ${PROJECT_BINARY_DIR}/ui/ui_updatepage.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui/ui COMPONENT Devel)
if(TARGET hoxqpanel)
  install(TARGETS hoxqpanel EXPORT HoxqUi
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Devel)
  install(TARGETS hoxquikeyboard
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt5/plugins/platforminputcontexts COMPONENT Runtime)
  install(FILES ${HOXQ_CATALOGUE_FILES}
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/hoxqui/translations COMPONENT Runtime)
  install(DIRECTORY panel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui COMPONENT Devel
    FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE PATTERN plugin EXCLUDE
    PATTERN keyboards EXCLUDE)
  install(FILES ${PROJECT_BINARY_DIR}/panel/hoxqpanel_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui/panel COMPONENT Devel)
endif()
if(TARGET hoxquitest) # no panel needs it
  install(TARGETS hoxquitest EXPORT HoxqUi
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Devel)
  install(TARGETS hoxquiaudit
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt5/plugins/generic COMPONENT Devel)
  install(DIRECTORY uitest DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui COMPONENT Devel
    FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE PATTERN plugin EXCLUDE)
  install(FILES ${PROJECT_BINARY_DIR}/uitest/hoxquitest_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui/uitest COMPONENT Devel)
endif()
foreach(library system ui util panel uitest)
  get_property(forwards GLOBAL PROPERTY HOXQ_FORWARDS_${library})
  install(FILES ${forwards} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hoxqui COMPONENT Devel)
endforeach()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/HoxqUi)
install(FILES LICENSE NOTICES.md DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/hoxqui COMPONENT Runtime)
# A root for fontconfig, whose configuration lies in it as in that of a system.
install(FILES ui/resources/fontconfig/fonts.conf
  DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/hoxqui/fontconfig/etc/fonts COMPONENT Runtime)
install(EXPORT HoxqUi NAMESPACE Hoxq:: FILE HoxqUiTargets.cmake
  DESTINATION ${package_dir} COMPONENT Devel)
configure_package_config_file(cmake/HoxqUiConfig.cmake.in HoxqUiConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(HoxqUiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/HoxqUiConfig.cmake ${PROJECT_BINARY_DIR}/HoxqUiConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT Devel)

# Relative to its own folder, so that the installed tree can be moved.
file(RELATIVE_PATH up_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
set(pkgconfig_files hoxqui.pc)
foreach(name hoxqpanel hoxquitest)
  if(TARGET ${name})
    list(APPEND pkgconfig_files ${name}.pc)
  endif()
endforeach()
foreach(file IN LISTS pkgconfig_files)
  configure_file(cmake/${file}.in ${file} @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${file}
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Devel)
endforeach()
