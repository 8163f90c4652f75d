# cmake -D DE=file -D A=file -P Copiar_Si_Falta.cmake: a user's file is never overwritten.
if(NOT EXISTS "${A}")
  configure_file("${DE}" "${A}" COPYONLY)
endif()
