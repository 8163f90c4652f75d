#pragma once

#include "formats/Opciones_Nivel.h"
#include "session/Consultas_Sesion.h"

#include <functional>
#include <QString>

class Formato_Existente;
class Formato_Existente_Nivel;
class Formato_Nuevo;
class Formato_Nuevo_Nivel;

/// What a format dialog hands on to the output: `FrmExportar` or `FrmImpFormato`. The fields stand
/// in `Campos_Exportar`.
struct Trabajo_Exportar {
    qint64 id = 0;
    QString maquina; ///< of the session
    int ope = 0;
    QString formato;
    QString fichero = {};      ///< chosen for it in `FrmExportar`; empty before
    Opciones_Nivel nivel = {}; ///< chosen with a level format
};

/// The dialogs that the flows of the formats show, as questions: the windows, the command line and
/// the tests set them. Each shows its dialog modally and returns when it has closed.
struct Peticiones_Formatos {
    /// `FrmExistformato` and `FrmNuevoformato`, bound to their models.
    std::function<void(Formato_Existente&)> Mostrar_Existente = [](Formato_Existente&) {};
    std::function<void(Formato_Nuevo&)> Mostrar_Nuevo = [](Formato_Nuevo&) {};
    /// `FrmExistFormNV400` and `FrmNuevoFormatoNV400`.
    std::function<void(Formato_Existente_Nivel&)> Mostrar_Existente_NV400 =
        [](Formato_Existente_Nivel&) {};
    std::function<void(Formato_Nuevo_Nivel&)> Mostrar_Nuevo_NV400 = [](Formato_Nuevo_Nivel&) {};
    /// `FrmExportar` and `FrmImpFormato`.
    std::function<void(const Trabajo_Exportar&)> Abrir_Exportar = [](const Trabajo_Exportar&) {};
    std::function<void(const Trabajo_Exportar&)> Abrir_Imprimir;
};
Peticiones_Formatos& Peticiones_De_Formatos();
