# Installs three components: library, development and viewer.
if(KELVRA_BUILD_TOOLS)
  list(APPEND libraries kelvra_text)
endif()
install(TARGETS ${libraries} EXPORT kelvraTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kelvra)
install(EXPORT kelvraTargets NAMESPACE kelvra:: DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(cmake/kelvraConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/kelvraConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
  ${CMAKE_CURRENT_BINARY_DIR}/kelvraConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/kelvraConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/kelvraConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)
# The .pc file finds the installation from its own location.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
  BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir} OUTPUT_VARIABLE pc_prefix)
function(kelvra_install_pkgconfig name description)
  configure_file(cmake/kelvra.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${pkgconfig_dir} COMPONENT development)
endfunction()
kelvra_install_pkgconfig(kelvra "${PROJECT_DESCRIPTION}")

if(KELVRA_BUILD_TOOLS)
  kelvra_install_pkgconfig(kelvra_text "Messages of H.323 signalling as JSON")
  install(TARGETS kelvra-dump RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT viewer)
endif()
install(FILES docs/records.json DESTINATION ${CMAKE_INSTALL_DATADIR}/kelvra COMPONENT development)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)

# Debian packages, built by cpack; scripts/dist.sh makes everything else.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The Kelvra developers")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL library development viewer)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libkelvra${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/triggers)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkelvra-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME kelvra-dump)
set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION net)
include(CPack)
