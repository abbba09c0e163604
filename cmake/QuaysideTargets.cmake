# How every target of the project is compiled.

include(GNUInstallDirs)

if(QUAYSIDE_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

add_library(quayside_flags INTERFACE)
target_compile_features(quayside_flags INTERFACE cxx_std_17)
target_compile_options(quayside_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<BOOL:${QUAYSIDE_WARNINGS_AS_ERRORS}>:-Werror>)
# Checks of the standard library, such as of an index, and targets that indirect jumps must have.
target_compile_definitions(quayside_flags INTERFACE _GLIBCXX_ASSERTIONS)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
  target_compile_options(quayside_flags INTERFACE -mbranch-protection=standard)
elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
  target_compile_options(quayside_flags INTERFACE -fcf-protection)
endif()
# Hardening of what is delivered. Sanitizers bring their own checks, and fortified calls would hide
# faults from them.
if(QUAYSIDE_SANITIZE)
  target_compile_options(quayside_flags INTERFACE
    -fsanitize=${QUAYSIDE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quayside_flags INTERFACE -fsanitize=${QUAYSIDE_SANITIZE})
else()
  set(delivered $<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>,$<CONFIG:MinSizeRel>>)
  target_compile_options(quayside_flags INTERFACE
    $<${delivered}:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong>)
  target_link_options(quayside_flags INTERFACE
    $<${delivered}:-Wl,-z,relro -Wl,-z,now>)
endif()

# A floor is a folder whose code may use what stands below it and nothing else. So the root of the
# sources is on nobody's include path: each floor has an include folder of its own, which holds links
# to its headers alone, and a target gets those of the libraries that it links.
set(QUAYSIDE_FLOORS ${PROJECT_BINARY_DIR}/floors)

# quayside_floor(<name> <folder or header>...): the include folder of a floor.
function(quayside_floor name)
  foreach(path IN LISTS ARGN)
    get_filename_component(parent ${QUAYSIDE_FLOORS}/${name}/${path} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${path} ${QUAYSIDE_FLOORS}/${name}/${path} SYMBOLIC)
  endforeach()
endfunction()

# quayside_configure(<target>): the common properties of a library or program.
function(quayside_configure target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:quayside_flags>)
  target_include_directories(${target} PUBLIC
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/quayside>)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
endfunction()

# quayside_program(<target>): a program that loads host libraries. They may take the services object
# and the decryption from it: the dynamic list puts the two into the program's dynamic symbol table,
# which by itself offers nothing; the version script keeps everything else out of it. Where it looks
# for host libraries is the same in the folder run/ of the build and installed: a path that is exchanged
# when the program is installed gets an empty entry until then, and the dynamic loader takes that for
# the working directory.
function(quayside_program target)
  quayside_configure(${target})
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/run
    BUILD_WITH_INSTALL_RPATH ON
    LINK_DEPENDS
      "${PROJECT_SOURCE_DIR}/cmake/exports.list;${PROJECT_SOURCE_DIR}/cmake/exports.map")
  if(QUAYSIDE_HOST_LIBRARIES)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)
  else()
    set_target_properties(${target} PROPERTIES
      INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  endif()
  target_link_options(${target} PRIVATE
    -Wl,--dynamic-list=${PROJECT_SOURCE_DIR}/cmake/exports.list
    -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
endfunction()

# quayside_library(<name> <sources>...): the static library quayside_<name>, alias Quayside::<name>,
# on the floor of the same name.
function(quayside_library name)
  add_library(quayside_${name} STATIC ${ARGN})
  add_library(Quayside::${name} ALIAS quayside_${name})
  quayside_configure(quayside_${name})
  target_include_directories(quayside_${name} PUBLIC
    $<BUILD_INTERFACE:${QUAYSIDE_FLOORS}/${name}>)
  target_compile_features(quayside_${name} PUBLIC cxx_std_17)
  set_target_properties(quayside_${name} PROPERTIES EXPORT_NAME ${name})
endfunction()
