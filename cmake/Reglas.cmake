# The compiler's rules for every target, and the two ways of making one.

add_library(reglas INTERFACE)
target_compile_options(reglas INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast
                                        -Wnon-virtual-dtor -Woverloaded-virtual)
# Only where the program is developed: a newer compiler's warnings must not keep a user from building.
if(MIRALDOS_AVISOS_SON_ERRORES)
  target_compile_options(reglas INTERFACE -Werror)
endif()
target_compile_definitions(reglas INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS
                                            QT_NO_FOREACH)
target_include_directories(reglas INTERFACE ${CMAKE_SOURCE_DIR})
if(MIRALDOS_SANEADORES)
  target_compile_options(reglas INTERFACE -fsanitize=address,undefined
                                          -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(reglas INTERFACE -fsanitize=address,undefined)
endif()

find_program(MIRALDOS_MOLD mold)
if(MIRALDOS_MOLD)
  target_link_options(reglas INTERFACE -fuse-ld=mold)
endif()

# CMake's moc step does not notice a source that a glob has just found: its stamp is taken away.
function(miraldos_avisar_moc objetivo)
  set(nota ${CMAKE_CURRENT_BINARY_DIR}/${objetivo}.fuentes)
  set(antes "")
  if(EXISTS ${nota})
    file(READ ${nota} antes)
  endif()
  if(NOT "${antes}" STREQUAL "${ARGN}")
    file(WRITE ${nota} "${ARGN}")
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${objetivo}_autogen/timestamp)
  endif()
endfunction()

# miraldos_piso(<folder> <libraries below it...>): the static library of one floor, made of the
# sources that lie in its folder and its subfolders (its ui/ belongs to the library `ui`).
function(miraldos_piso nombre)
  file(GLOB fuentes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
                                      ${CMAKE_CURRENT_SOURCE_DIR}/*.h
                                      ${CMAKE_CURRENT_SOURCE_DIR}/*/*.cpp
                                      ${CMAKE_CURRENT_SOURCE_DIR}/*/*.h)
  list(FILTER fuentes EXCLUDE REGEX "/ui/")
  if(NOT fuentes)
    add_library(${nombre} INTERFACE)
    target_link_libraries(${nombre} INTERFACE ${ARGN})
    return()
  endif()
  add_library(${nombre} STATIC ${fuentes})
  miraldos_avisar_moc(${nombre} ${fuentes})
  target_link_libraries(${nombre} PUBLIC reglas Qt6::Core ${ARGN})
  target_precompile_headers(${nombre} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/Comun.h)
endfunction()

# miraldos_pruebas(<folder> <libraries...>): one test program for the folder's tests
# (tests/<folder>/Test*.cpp, those of its rooms included) and one ctest entry a file. Tests of
# windows lie in ui/ and have a program of their own.
function(miraldos_pruebas nombre carpeta main)
  file(GLOB fuentes CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${carpeta}/Test*.cpp
                                      ${CMAKE_SOURCE_DIR}/tests/${carpeta}/*/Test*.cpp)
  if(NOT carpeta MATCHES "ui$")
    list(FILTER fuentes EXCLUDE REGEX "/ui/")
  endif()
  if(NOT fuentes)
    return()
  endif()
  set(programa pruebas_${nombre})
  add_executable(${programa} ${fuentes} ${CMAKE_SOURCE_DIR}/tests/apoyo/${main}.cpp)
  miraldos_avisar_moc(${programa} ${fuentes})
  set_target_properties(${programa} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/pruebas)
  target_link_libraries(${programa} PRIVATE apoyo_pruebas ${ARGN})
  target_compile_definitions(${programa} PRIVATE DATOS_PRUEBA="${CMAKE_SOURCE_DIR}/tests/datos"
                             RAIZ_FUENTES="${CMAKE_SOURCE_DIR}" INSTALACION="${MIRALDOS_INSTALACION}")
  target_precompile_headers(${programa} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/ComunPruebas.h)
  # Memory that nobody gives back fails a test; what libraries keep until the end is listed.
  set(fugas "ASAN_OPTIONS=detect_leaks=1")
  if(EXISTS ${CMAKE_SOURCE_DIR}/tests/apoyo/fugas.supp)
    list(APPEND fugas
         "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/apoyo/fugas.supp:print_suppressions=0")
  endif()
  foreach(fuente ${fuentes})
    get_filename_component(clase ${fuente} NAME_WE)
    add_test(NAME ${carpeta}/${clase} COMMAND ${programa} ${clase})
    set_tests_properties(${carpeta}/${clase} PROPERTIES TIMEOUT 600
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${fugas}")
  endforeach()
endfunction()
