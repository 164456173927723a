# Install rules and the package file: find_package(Tactix COMPONENTS Qt).

if(NOT TARGET tactix)
  return()
endif()
include(CMakePackageConfigHelpers)
set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/Tactix)

install(TARGETS tactix EXPORT TactixTargets)
install(EXPORT TactixTargets NAMESPACE tactix:: DESTINATION ${packageFolder})
# What is for the library alone lies in folders `private`.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/tactix DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h" PATTERN private EXCLUDE)

if(TARGET tactix_qt)
  install(TARGETS tactix_qt EXPORT TactixQtTargets)
  install(EXPORT TactixQtTargets NAMESPACE tactix:: DESTINATION ${packageFolder})
  # Here it is the peers, and the headers that the front end itself is made of.
  set(ownHeaders Convert FittedText Forwarding MenuPopUp PictureIcon QtTimers Retirement WaitLoop)
  list(JOIN ownHeaders "|" ownHeaders)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/tactix-qt DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h" PATTERN peers EXCLUDE PATTERN pictures EXCLUDE PATTERN private EXCLUDE
    REGEX "/(${ownHeaders})\\.h$" EXCLUDE)
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/TactixConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TactixConfig.cmake INSTALL_DESTINATION ${packageFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TactixConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TactixConfig.cmake ${PROJECT_BINARY_DIR}/TactixConfigVersion.cmake
  DESTINATION ${packageFolder})
