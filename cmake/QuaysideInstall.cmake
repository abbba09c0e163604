# The installed tree: the program with its catalogues, the stand-in, and the libraries with their
# headers for those who compile against them.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS quayside RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_BINARY_DIR}/run/translations
  DESTINATION ${CMAKE_INSTALL_DATADIR}/quayside)
