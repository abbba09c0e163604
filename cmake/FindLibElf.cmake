# libelf, of which not every version brings a configuration of its own: the target LibElf::LibElf.
include(FindPackageHandleStandardArgs)

find_path(LIBELF_INCLUDE_DIR gelf.h)
find_library(LIBELF_LIBRARY elf)
mark_as_advanced(LIBELF_INCLUDE_DIR LIBELF_LIBRARY)
find_package_handle_standard_args(LibElf REQUIRED_VARS LIBELF_LIBRARY LIBELF_INCLUDE_DIR)

if(LibElf_FOUND AND NOT TARGET LibElf::LibElf)
  add_library(LibElf::LibElf UNKNOWN IMPORTED)
  set_target_properties(LibElf::LibElf PROPERTIES
    IMPORTED_LOCATION ${LIBELF_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${LIBELF_INCLUDE_DIR})
endif()
