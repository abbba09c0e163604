# libmcrypt, which brings no configuration of its own: the target Mcrypt::Mcrypt.
include(FindPackageHandleStandardArgs)

find_path(MCRYPT_INCLUDE_DIR mcrypt.h)
find_library(MCRYPT_LIBRARY mcrypt)
mark_as_advanced(MCRYPT_INCLUDE_DIR MCRYPT_LIBRARY)
find_package_handle_standard_args(Mcrypt REQUIRED_VARS MCRYPT_LIBRARY MCRYPT_INCLUDE_DIR)

if(Mcrypt_FOUND AND NOT TARGET Mcrypt::Mcrypt)
  add_library(Mcrypt::Mcrypt UNKNOWN IMPORTED)
  set_target_properties(Mcrypt::Mcrypt PROPERTIES
    IMPORTED_LOCATION ${MCRYPT_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${MCRYPT_INCLUDE_DIR})
endif()
