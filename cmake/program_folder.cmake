# build/program/ is the program folder as shipped: the executable with its archive, language files, settings and sound
# beside it. Files that the user may have changed there since (settings, archive) are laid down only once.

add_executable(quarvel src/main.cpp)
target_link_libraries(quarvel PRIVATE quarvel_shell)
set(QUARVEL_PROGRAM_FOLDER ${PROJECT_SOURCE_DIR}/build/program)

add_custom_target(program ALL
  COMMAND ${CMAKE_COMMAND} -DDATA=${PROJECT_SOURCE_DIR}/data -DEXECUTABLE=$<TARGET_FILE:quarvel>
          -DFOLDER=${QUARVEL_PROGRAM_FOLDER} -P ${PROJECT_SOURCE_DIR}/cmake/lay_out_program.cmake
  DEPENDS quarvel
  VERBATIM)
