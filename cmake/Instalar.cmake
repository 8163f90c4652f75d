# `cmake --install BUILD --prefix FOLDER` makes the install directory in FOLDER: programs and data
# side by side, as the build assembles them. What a user has there of his own (database, settings,
# logs) stays.
set(programas Miraldos miraldos-cli miraldos-sim ayudaweb Convert)
foreach(programa ${programas})
  if(TARGET ${programa})
    install(TARGETS ${programa} RUNTIME DESTINATION .)
  endif()
endforeach()
if(TARGET CVZENDRA)
  install(TARGETS CVZENDRA LIBRARY DESTINATION . RUNTIME DESTINATION . ARCHIVE DESTINATION .)
  install(FILES ${MIRALDOS_INSTALACION}/CVZENDRA.h DESTINATION .)
endif()
foreach(carpeta DAT bmp bmphlp hlp ficheros Ayuda)
  install(DIRECTORY ${MIRALDOS_INSTALACION}/${carpeta} DESTINATION .)
endforeach()
install(DIRECTORY DESTINATION MDB)
install(DIRECTORY DESTINATION LOG)
install(CODE "
  file(REAL_PATH \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\" destino)
  if(NOT EXISTS \"\${destino}/EstTotal.ini\")
    file(COPY \"${CMAKE_SOURCE_DIR}/data/EstTotal.ini\" DESTINATION \"\${destino}\")
  endif()")
