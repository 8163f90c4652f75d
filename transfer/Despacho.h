#pragma once

#include <QList>
#include <QString>

/// One operation offered in a list of `FrmIni`.
struct Operacion_Ofrecida {
    QString texto; ///< `DESOPE`
    int ope = 0;   ///< the item's tag
};
/// Operations of the model in force; `tipo_ope` "D" for downloads, "C" for uploads.
QList<Operacion_Ofrecida> Operaciones_Ofrecidas(const QString& tipo_ope);

/// The single routing entry: starts operation `operacion` for the family `maquina` ("KRT300", "PX7",
/// "NV400", "KRT800"; anything else does nothing). A number that the family doesn't know is ignored,
/// save for an upload to a KRT800, which says so.
void Lanzar_Operacion(const QString& maquina, int operacion, const QString& tipo_ope);

/// What the reminder shows: the sentence and its four lines of settings.
struct Texto_Recordatorio {
    QString frase;
    QString datos[4];
};
Texto_Recordatorio Leer_Recordatorio();
