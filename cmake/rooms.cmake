# A room is one folder of src/ and one static library, so that the linker keeps the walls between them.

add_library(quarvel_build INTERFACE)
target_include_directories(quarvel_build INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(quarvel_build INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)
target_compile_definitions(quarvel_build INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# quarvel_room(name SOURCES file... [LINKS target...]): the static library quarvel_<name>.
# Its LINKS are all it may know; scripts/check-walls holds the includes against the same order.
function(quarvel_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
  add_library(quarvel_${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(quarvel_${name} PUBLIC quarvel_build ${ROOM_LINKS})
endfunction()
