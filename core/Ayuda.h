#pragma once

#include <QString>
#include <QList>

/// One step of the wizard: text of at most 80 characters, picture name of at most 50.
struct Paso {
    QString texto, foto;
};
/// Step that the wizard shows, from 1.
extern int Paso_Ayuda;
/// Steps of the current model (by its name) for an operation, in order; longer texts are cut.
QList<Paso> Leer_Pasos(const QString& tipo_ope, const QString& ope);

/// Starts the page viewer on the page of `clave`, without waiting.
void Mostrar_Ayuda_Web(const QString& clave);
