# The installed tree: the program with Qt's catalogue for it, the stand-in, and the libraries with
# their headers and a CMake package for those who compile against them. The component "programs" is
# what runs without a compiler.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Quayside)
install(CODE "message(STATUS \"Installing Quayside ${PROJECT_VERSION}, built as ${CMAKE_BUILD_TYPE}: the\
 programs, what records calls, the stand-in unless maker's libraries are linked, the static libraries\
 with their headers and CMake package, the catalogue, the manual. Tests, examples and benchmarks stay in\
 the build folder.\")")
# Names of the place of installation go into files when they are installed: only then it is known.
# quayside_install_filled(<template> <destination> <name> [<line of CMake>...])
function(quayside_install_filled template destination name)
  string(JOIN "\n" lines ${ARGN})
  install(CODE "${lines}
    configure_file(${PROJECT_SOURCE_DIR}/packaging/${template} ${PROJECT_BINARY_DIR}/filled/${name} @ONLY)"
    COMPONENT programs)
  install(PROGRAMS ${PROJECT_BINARY_DIR}/filled/${name} DESTINATION ${destination}
    PERMISSIONS ${QUAYSIDE_FILLED_PERMISSIONS} COMPONENT programs)
endfunction()
set(data_permissions OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# In a private folder the stand-in is in nobody's way: no run path leads there, and scripts in the place
# of the programs let the loader look there last.
set(programs quayside)
if(QUAYSIDE_BUILD_CTL)
  list(APPEND programs quaysidectl)
endif()
if(QUAYSIDE_PRIVATE_FOLDER)
  set(stand_in_folder ${QUAYSIDE_PRIVATE_FOLDER})
  set_target_properties(${programs} PROPERTIES INSTALL_RPATH "")
  install(TARGETS ${programs} RUNTIME
    DESTINATION ${QUAYSIDE_PRIVATE_FOLDER} COMPONENT programs)
  set(QUAYSIDE_FILLED_PERMISSIONS
    ${data_permissions} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
  foreach(program IN LISTS programs)
    quayside_install_filled(launcher.in ${CMAKE_INSTALL_BINDIR} ${program}
      "set(folder \"\${CMAKE_INSTALL_PREFIX}/${QUAYSIDE_PRIVATE_FOLDER}\")"
      "set(program ${program})")
  endforeach()
else()
  set(stand_in_folder ${CMAKE_INSTALL_LIBDIR})
  install(TARGETS ${programs} RUNTIME
    DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
endif()
install(TARGETS
    quayside_support quayside_platform quayside_crypto quayside_widgets quayside_resources
    quayside_app quayside_regfile quayside_inspection quayside_operations quayside_trace
    quayside_window quayside_pages
    quayside_headers
  EXPORT QuaysideTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
# Beside the maker's libraries the stand-in would be found in their place: it has the same name.
if(NOT QUAYSIDE_HOST_LIBRARIES)
  install(TARGETS quayside_host EXPORT QuaysideTargets
    LIBRARY DESTINATION ${stand_in_folder} COMPONENT programs)
endif()
# What "quaysidectl trace record" preloads, where it looks: beside itself, or among the libraries.
if(QUAYSIDE_BUILD_CTL)
  install(TARGETS quayside_recorder LIBRARY DESTINATION ${stand_in_folder} COMPONENT programs)
endif()
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
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quayside COMPONENT programs)

install(FILES ${PROJECT_SOURCE_DIR}/docs/quaysidectl.1 ${PROJECT_SOURCE_DIR}/docs/quayside.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/zh_CN/
  DESTINATION ${CMAKE_INSTALL_MANDIR}/zh_CN/man1 FILES_MATCHING PATTERN *.1)

# What desktops read. The entry starts the application in the folder that holds Qt's catalogue.
set(QUAYSIDE_FILLED_PERMISSIONS ${data_permissions})
quayside_install_filled(quayside.desktop.in ${CMAKE_INSTALL_DATADIR}/applications quayside.desktop
  "set(QUAYSIDE_DATA_FOLDER \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/quayside\")")
install(FILES ${PROJECT_SOURCE_DIR}/packaging/quayside.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/quayside-mime.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME quayside.xml)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/icons/quayside-${size}.png
    DESTINATION ${icons}/${size}x${size}/apps RENAME quayside.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/packaging/icons/quayside.svg DESTINATION ${icons}/scalable/apps)
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

quayside_install_filled(quayside.pc.in ${CMAKE_INSTALL_LIBDIR}/pkgconfig quayside.pc
  "set(CMAKE_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})"
  "set(CMAKE_INSTALL_LIBDIR ${CMAKE_INSTALL_LIBDIR})"
  "set(stand_in_folder ${stand_in_folder})"
  "set(PROJECT_VERSION ${PROJECT_VERSION})")

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Windows-style services for host libraries on Linux")
set(CPACK_PACKAGE_CONTACT "the Quayside developers")
set(CPACK_GENERATOR TGZ)
include(CPack)
