# Install rules and the package file: find_package(Tactix COMPONENTS Qt).

if(NOT TARGET tactix)
  return()
endif()
include(CMakePackageConfigHelpers)
set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/Tactix)

install(TARGETS tactix EXPORT TactixTargets)
install(EXPORT TactixTargets NAMESPACE tactix:: DESTINATION ${packageFolder})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/tactix DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

if(TARGET tactix_qt)
  install(TARGETS tactix_qt EXPORT TactixQtTargets)
  install(EXPORT TactixQtTargets NAMESPACE tactix:: DESTINATION ${packageFolder})
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/tactix-qt DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/TactixConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TactixConfig.cmake INSTALL_DESTINATION ${packageFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TactixConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TactixConfig.cmake ${PROJECT_BINARY_DIR}/TactixConfigVersion.cmake
  DESTINATION ${packageFolder})
