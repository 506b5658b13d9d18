# build/program/ is the program folder as shipped: the executable with its archive, language files, settings and sound
# beside it. Files that the user may have changed there since (settings, archive) are laid down only once.

add_executable(quarvel src/main.cpp)
target_link_libraries(quarvel PRIVATE quarvel_shell quarvel_cli)
# In front of all other libraries: most names that the loader looks for at a start are found in these, and every library
# before them is asked in vain some ten thousand times.
target_link_options(quarvel PRIVATE
  LINKER:--push-state,--no-as-needed $<TARGET_FILE:Qt6::Core> $<TARGET_FILE:Qt6::Gui> $<TARGET_FILE:Qt6::Widgets>
  LINKER:--pop-state)
add_dependencies(quarvel quarvel_printing)
set(QUARVEL_PROGRAM_FOLDER ${PROJECT_SOURCE_DIR}/build/program)

add_custom_target(program ALL
  COMMAND ${CMAKE_COMMAND} -DDATA=${PROJECT_SOURCE_DIR}/data -DEXECUTABLE=$<TARGET_FILE:quarvel> -DPRINTING=$<TARGET_FILE:quarvel_printing>
          -DFOLDER=${QUARVEL_PROGRAM_FOLDER} -P ${PROJECT_SOURCE_DIR}/cmake/lay_out_program.cmake
  DEPENDS quarvel quarvel_printing
  VERBATIM)
