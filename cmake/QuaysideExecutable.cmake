# The executable.
#
# Its libraries are linked whole and in this order, because the order of the archives decides the
# order in which static objects are constructed: the services object and the button monitor come
# first by their priorities, then the stream initialisers of the libraries, then the Base64 alphabet
# (the last object of the crypto library), then the compiled-in resources. Linking them whole also
# keeps what nothing references from inside, such as the exported decryption entry.
set(quayside_archives
  platform widgets support app regfile inspection operations trace window pages crypto resources)

add_executable(quayside ${PROJECT_SOURCE_DIR}/app/main.cpp)
quayside_program(quayside)

set(whole_archives)
foreach(name IN LISTS quayside_archives)
  add_dependencies(quayside quayside_${name})
  list(APPEND whole_archives $<TARGET_FILE:quayside_${name}>)
endforeach()
target_link_libraries(quayside PRIVATE
  -Wl,--whole-archive ${whole_archives} -Wl,--no-whole-archive
  quayside_host_in_use Qt5::Widgets ${CMAKE_DL_LIBS})
target_include_directories(quayside PRIVATE
  $<TARGET_PROPERTY:quayside_pages,INTERFACE_INCLUDE_DIRECTORIES>)

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
add_dependencies(quayside quayside_translations)
