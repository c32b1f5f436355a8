# The installed CMake package: QelMfc0Config.cmake, its version file and the exported targets,
# below <prefix>/lib/cmake/QelMfc0.
include(CMakePackageConfigHelpers)

set(QEL_QT_MIN_VERSION 6.4)
set(QEL_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/QelMfc0)

install(EXPORT QelMfc0Targets
  NAMESPACE QelMfc0::
  DESTINATION ${QEL_PACKAGE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QelMfc0Config.cmake.in
  ${PROJECT_BINARY_DIR}/QelMfc0Config.cmake
  INSTALL_DESTINATION ${QEL_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QelMfc0ConfigVersion.cmake
  VERSION ${PROJECT_VERSION}
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/QelMfc0Config.cmake
  ${PROJECT_BINARY_DIR}/QelMfc0ConfigVersion.cmake
  DESTINATION ${QEL_PACKAGE_DIR})
