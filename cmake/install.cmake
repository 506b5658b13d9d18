# The installed program: <prefix>/bin/quarvel, and the starter folder from which a first start lays out the user's own
# program folder. What a desktop wants to know of a program goes where it looks for it.

include(GNUInstallDirs)
set(QUARVEL_ID example.quarvel.Quarvel)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(data ${PROJECT_SOURCE_DIR}/data)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)

install(TARGETS quarvel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# The executable looks for it in ../lib/quarvel, whatever CMAKE_INSTALL_LIBDIR says.
install(TARGETS quarvel_printing LIBRARY DESTINATION lib/quarvel)

# The executable looks for ../share/quarvel/starter, whatever CMAKE_INSTALL_DATADIR says. The data's README.md speaks to
# whoever changes the samples, not to a user, and stays behind.
file(GLOB starter ${data}/*.lng ${data}/*.wav ${data}/*.ini)
install(FILES ${starter} DESTINATION share/quarvel/starter)
install(DIRECTORY ${data}/aeroporti DESTINATION share/quarvel/starter)

install(FILES ${packaging}/quarvel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/${QUARVEL_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

foreach(size 16 22 24 32 48 64 128 256 512)
  set(picture ${PROJECT_SOURCE_DIR}/resources/pictures/quarvel-${size}.png)
  if(NOT EXISTS ${picture})
    set(picture ${PROJECT_SOURCE_DIR}/resources/icons/quarvel-${size}.png)
  endif()
  install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps RENAME quarvel.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/resources/svg/quarvel.svg DESTINATION ${icons}/scalable/apps)

install(FILES ${packaging}/quarvel.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${packaging}/quarvel.it.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/it/man1 RENAME quarvel.1)
