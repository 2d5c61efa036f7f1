# What others get: the library, what building against it takes, and the tools. A component each, so that a package can
# be made of each.
include(CMakePackageConfigHelpers)

set(KELVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/kelvane)
set(KELVANE_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The tools find the library from its own place, wherever both were moved to. Packagers for a folder that the loader
# searches anyway set CMAKE_SKIP_INSTALL_RPATH.
file(RELATIVE_PATH KELVANE_LIBDIR_FROM_BINDIR ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(kelvane_tool kelvaneConverter PROPERTIES
  INSTALL_RPATH "\$ORIGIN/${KELVANE_LIBDIR_FROM_BINDIR}")
install(TARGETS kelvane EXPORT kelvaneTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development)
install(TARGETS kelvane_tool kelvaneConverter DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT converter)

install(FILES include/kelvane/kelvane.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kelvane COMPONENT development)

install(EXPORT kelvaneTargets NAMESPACE kelvane:: DESTINATION ${KELVANE_CMAKE_DIR} COMPONENT development)
configure_package_config_file(cmake/kelvaneConfig.cmake.in kelvaneConfig.cmake
  INSTALL_DESTINATION ${KELVANE_CMAKE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(kelvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kelvaneConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/kelvaneConfigVersion.cmake
  DESTINATION ${KELVANE_CMAKE_DIR} COMPONENT development)

# Folders within the prefix are written from the place of the file, so that a moved tree stays usable.
file(RELATIVE_PATH KELVANE_PREFIX_FROM_PKGCONFIG
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" KELVANE_PREFIX_FROM_PKGCONFIG ${KELVANE_PREFIX_FROM_PKGCONFIG})
cmake_path(APPEND KELVANE_PKGCONFIG_LIBDIR "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
cmake_path(APPEND KELVANE_PKGCONFIG_INCLUDEDIR "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
configure_file(cmake/kelvane.pc.in kelvane.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kelvane.pc DESTINATION ${KELVANE_PKGCONFIG_DIR} COMPONENT development)

foreach(page IN ITEMS kelvane.1 kelvaneConverter.1)
  configure_file(docs/${page}.in ${page} @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT converter)
endforeach()
install(FILES src/frontends/kelvane/completion.bash RENAME kelvane
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT converter)
