#pragma once

// The form: docs/formas/ficheros-brutos.md

#include "rawfiles/Lineas_Sesion.h"

#include <QMap>
#include <QStringList>

/// What separates two records of a machine file, as on the wire.
inline constexpr QChar SEPARADOR_MAQUINA = u'_';
/// First character of a record that sets the point of those behind it.
inline constexpr QChar MARCA_PUNTO = u'+';

/// How often each kind of general record was left out, by its first character.
using Generales_Omitidos = QMap<QChar, int>;

/// The records of a KRT300 or PX7 session as the instrument sent them: the lines, "+" and the point
/// wherever it changes and, on request, each general record where it came into force (before the
/// point: the store doesn't tell on which side of it).
class Registros_Serie_A {
public:
    Registros_Serie_A(qint64 id, bool generales);

    /// Steps to the next record. @return false behind the last
    bool Siguiente();
    const QString& Registro() const { return actual; }
    /// The general records that came into force so far, when they were not asked for.
    const Generales_Omitidos& Omitidos() const { return omitidos; }

private:
    void Encolar_Linea();
    void Encolar_Generales(const QString& datosg);

    Lineas_Sesion lineas;
    bool con_generales;
    QString actual, punto;
    QStringList cola;
    QString datosg_visto;
    QMap<QChar, QString> en_vigor;
    Generales_Omitidos omitidos;
};
