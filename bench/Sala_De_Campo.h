#pragma once

#include "core/Interfaz.h"
#include "transfer/enlace/Recepcion.h"

#include <QTemporaryDir>

/// An installation with the delivered database, and nobody at the screen, for as long as a measure
/// lasts; and the field books of a surveyor's days.
class Sala_De_Campo {
public:
    /// @param maquina  family in force
    explicit Sala_De_Campo(const QString& maquina);
    ~Sala_De_Campo();
    Sala_De_Campo(const Sala_De_Campo&) = delete;
    Sala_De_Campo& operator=(const Sala_De_Campo&) = delete;

    /// Stores a reception. @return the session's number
    qint64 Guardar(const Datos_Recepcion& datos) const;
    /// Exports a session with a delivered format, as the format has its fields.
    /// @param tipo  kind of output: "TxF", "Txt" @return true when it was written
    bool Exportar(qint64 sesion, int operacion, const QString& formato, const QString& tipo) const;

    QString Ruta(const QString& nombre) const { return carpeta.filePath(nombre); }
    QString Salida() const { return Ruta(QStringLiteral("salida.txt")); }

private:
    QTemporaryDir carpeta;
    QString maquina;
    std::unique_ptr<Interfaz> muda;
    Interfaz* anterior;
};

/// A KRT300 measurement book: 5 lines a point, a station each 50 points.
Datos_Recepcion Libreta_KRT300(int puntos);
/// A KRT300 book of coordinates: 4 lines a point.
Datos_Recepcion Coordenadas_KRT300(int puntos);
/// A KRT800 measurement: 2 lines a point, a station each 50 points.
Datos_Recepcion Libreta_KRT800(int puntos);

/// Seconds of what no program can do without: stepping through the lines of a session with one bare
/// statement and writing `bytes`.
double Recorrer_Y_Escribir(qint64 sesion, const QByteArray& bytes, const QString& fichero);
/// Seconds of inserting the lines of a session as those of session 30000, in one transaction. They
/// are deleted again.
double Insertar_A_Pelo(qint64 sesion);
/// Most memory that the process has had, in MB.
double Memoria_MB();
QByteArray Leer_Todo(const QString& fichero);
