# The installed tree: the program with Qt's catalogue for it, the stand-in, and the libraries with
# their headers and a CMake package for those who compile against them.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Quayside)
install(TARGETS quayside quaysidectl RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS
    quayside_support quayside_platform quayside_crypto quayside_widgets quayside_resources
    quayside_app quayside_regfile quayside_inspection quayside_window quayside_pages
  EXPORT QuaysideTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
# Beside the maker's libraries the stand-in would be found in their place: it has the same name.
if(NOT QUAYSIDE_HOST_LIBRARIES)
  install(TARGETS quayside_host EXPORT QuaysideTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()
# What "quaysidectl trace record" preloads.
install(TARGETS quayside_recorder LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
# The headers that others compile against; all others may change from one version to the next.
set(public_headers
  app/CStdStr.h app/CommandLine.h app/Logger.h app/TextTime.h
  crypto/AesEncrypt.h crypto/Base64Encoder.h crypto/Encrypt.h crypto/MD5.h crypto/Sha256.h
  host/HostLibraries.h
  platform/IPlatformServices.h platform/PlatformCursorManagerImp.h
  platform/PlatformDirectoryManagerImp.h platform/PlatformFontManagerImp.h
  platform/PlatformMessageManagerImp.h platform/PlatformProfileManagerImp.h
  platform/PlatformRegisterManagerImp.h platform/PlatformResourceManagerImp.h
  platform/PlatformServicesImp.h platform/PlatformUserInputManagerImp.h platform/WindowsTypes.h
  widgets/ButtonMonitor.h widgets/QAnimationStackedWidget.h widgets/QProgressIndicator.h
  window/MainWindow.h)
foreach(header IN LISTS public_headers)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/${header}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quayside/${folder})
endforeach()
install(DIRECTORY ${PROJECT_BINARY_DIR}/run/translations
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quayside)

install(FILES ${PROJECT_SOURCE_DIR}/docs/quaysidectl.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/quaysidectl.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME quaysidectl)

install(EXPORT QuaysideTargets NAMESPACE Quayside:: DESTINATION ${package_folder})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QuaysideConfig.cmake.in
  ${PROJECT_BINARY_DIR}/QuaysideConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuaysideConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/QuaysideConfig.cmake ${PROJECT_BINARY_DIR}/QuaysideConfigVersion.cmake
  DESTINATION ${package_folder})

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Windows-style services for host libraries on Linux")
set(CPACK_PACKAGE_CONTACT "the Quayside developers")
set(CPACK_GENERATOR TGZ)
include(CPack)
