#pragma once

#include <QList>
#include <QString>

/// One step of the wizard: text of at most 80 characters, picture name of at most 50.
struct Paso {
    QString texto, foto;
};
/// Step that the wizard shows, from 1.
extern int Paso_Ayuda;
/// Steps of the current model (by its name) for an operation, in order; longer texts are cut.
QList<Paso> Leer_Pasos(const QString& tipo_ope, const QString& ope);

/// The same for the wizard's load: without steps a box says so, and the wizard closes.
QList<Paso> Abrir_Pasos(const QString& tipo_ope, const QString& ope);

/// What the wizard shows for a step.
struct Vista_Paso {
    bool fin = false;   ///< beyond the last step: the wizard is unloaded
    bool atras = false; ///< `BtnAtras` is enabled
    QString texto;      ///< `Label1`
    QString foto;       ///< file of `Picture1`; empty: cleared
};
/// @param n  step, from 1
Vista_Paso Ver_Paso(const QList<Paso>& pasos, int n);

/// Starts the page viewer on the page of `clave`, without waiting.
void Mostrar_Ayuda_Web(const QString& clave);
