# Debian's cross compiler with multi-arch libraries; programs run under qemu-user. Packages that cannot
# be installed for two architectures side by side lie unpacked in build/arm64-packages.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)
get_filename_component(unpacked ../build/arm64-packages ABSOLUTE BASE_DIR ${CMAKE_CURRENT_LIST_DIR})
list(APPEND CMAKE_FIND_ROOT_PATH ${unpacked})
