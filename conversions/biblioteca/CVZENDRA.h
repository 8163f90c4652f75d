#ifndef CVZENDRA_H
#define CVZENDRA_H

/* The converter library's border: 39 functions in C.
 *
 * Texts are 8-bit and zero-terminated, in the page of the files (Windows-1252); paths are in the
 * system's own 8-bit form, or in that page where they are no text of the system's. They are read, not kept and not changed. A null text counts as empty.
 * Results are 32-bit: 1 converted, -1 converted but something in the source was invalid, 0 nothing
 * converted (no target file is left behind then); the three list functions give the number of lines
 * of the list file. No exception crosses the border. The last argument `app`, the application
 * folder, is not used.
 */

#include <stdint.h>

#if defined(_WIN32)
#define CVZENDRA_LLAMADA __stdcall
#if defined(CVZENDRA_EXPORTA)
#define CVZENDRA_API __declspec(dllexport)
#else
#define CVZENDRA_API
#endif
#else
#define CVZENDRA_LLAMADA
#define CVZENDRA_API __attribute__((visibility("default")))
#endif

#define CVZENDRA_FUNCION(nombre) CVZENDRA_API int32_t CVZENDRA_LLAMADA MyDll_##nombre

#ifdef __cplusplus
extern "C" {
#endif

/* Horizontal alignments to the instrument's form; a target name in ".hal" gets the 640/6000 form. */
CVZENDRA_FUNCION(aclipplt2krt)(const char* in, const char* out, const char* app);
CVZENDRA_FUNCION(aqtr2krt)(const char* in, const char* out, const char* app);
CVZENDRA_FUNCION(aistram2krt)(const char* in, const char* out, const char* app);
CVZENDRA_FUNCION(aistramList2krt)(const char* in, const char* out, const char* app);
CVZENDRA_FUNCION(ahtrazado2krt)(const char* in, const char* out, const char* app);
CVZENDRA_FUNCION(amxroad2krt)(const char* in, const char* out, const char* app);
CVZENDRA_FUNCION(aispol2krt)(const char* in, const char* out, const char* app);
/* `index` counts the lines of seleccionaEjeLandXML from 0. */
CVZENDRA_FUNCION(alandxml2krt)(int32_t index, const char* in, const char* out, const char* app);

/* Vertical alignments to the instrument's form. */
CVZENDRA_FUNCION(ristram2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(rqsv2krt)(const char* in, const char* out);
/* `name` is a line of seleccionaRasanteLandXML. */
CVZENDRA_FUNCION(rlandxml2krt)(const char* name, const char* in, const char* out);

/* Cross sections to the instrument's form; results 1 and 0. */
CVZENDRA_FUNCION(cliptrv2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(qtr2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(clip2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(istram2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(htrazado2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(mxroad2krt)(const char* in, const char* out);
/* `part1` and `part2`: a line of seleccionaTransverLandXML, split at ":". */
CVZENDRA_FUNCION(tralandxml2krt)
(const char* part1, const char* part2, const char* in, const char* out);

/* To LandXML. */
CVZENDRA_FUNCION(aQSV2LandXML)(const char* in, const char* out);
CVZENDRA_FUNCION(aclipplt2LandXML)(const char* in, const char* out);
CVZENDRA_FUNCION(aistram2LandXML)(const char* in, const char* out);
CVZENDRA_FUNCION(aistramList2LandXML)(const char* in, const char* out);
CVZENDRA_FUNCION(aispol2LandXML)(const char* in, const char* out);
CVZENDRA_FUNCION(traclip2landxml)(const char* in, const char* out);
CVZENDRA_FUNCION(tracliptrv2landxml)(const char* in, const char* out);
CVZENDRA_FUNCION(traqsv2landxml)(const char* in, const char* out);
CVZENDRA_FUNCION(traistram2landxml)(const char* in, const char* out);
CVZENDRA_FUNCION(trahtrazado2lamdxml)(const char* in, const char* out);
CVZENDRA_FUNCION(rqsv2landxml)(const char* in, const char* out);
CVZENDRA_FUNCION(ristram2landxml)(const char* in, const char* out);

/* Lists of what a LandXML file holds, one choice a line, into the list file. */
CVZENDRA_FUNCION(seleccionaEjeLandXML)(const char* in);
CVZENDRA_FUNCION(seleccionaRasanteLandXML)(const char* in);
CVZENDRA_FUNCION(seleccionaTransverLandXML)(const char* in);

/* Points, level, codes. */
CVZENDRA_FUNCION(puntos2krt)(const char* in, const char* out);
CVZENDRA_FUNCION(puntos2nivel)(const char* in, const char* out);
CVZENDRA_FUNCION(lectkrt2bronex)(const char* in, const char* out);
/* dato1 to dato5: serial number, staff 1, staff 2, operator, company. */
CVZENDRA_FUNCION(anivel2ing)
(const char* in, const char* out, const char* dato1, const char* dato2, const char* dato3,
 const char* dato4, const char* dato5);

/* Monitoring. */
CVZENDRA_FUNCION(procesaCabecera)(const char* in, const char* out);
CVZENDRA_FUNCION(procesaRobotizada)
(const char* in, const char* coordenadas, const char* out, const char* trabajo,
 const char* descripcion, const char* operario, const char* temperatura, const char* fecha,
 const char* hora);

#ifdef __cplusplus
}
#endif

#endif
