#pragma once

// The form: docs/formas/nv400.md

#include "transfer/enlace/Receptor.h"

/// The level's fixed lines, with their own checksums ("Z", "&", "R" and "!").
inline const QString LINEA_INICIO = QStringLiteral("A,01,Z,\r\n");
inline const QString LINEA_FIN = QStringLiteral("Z,&,\r\n");
inline const QByteArray LINEA_ACK = QByteArrayLiteral("\x06,R,\r\n");
inline const QByteArray LINEA_NAK = QByteArrayLiteral("\x15,!,\r\n");

/// What a received line is.
enum class Clase_Linea { Mala = 0, Inicio = 1, Datos = 2, Fin = 3 };

/// Classifies a whole line, CR LF included; four characters or fewer are bad.
Clase_Linea Clasificar_Linea(const QString& linea);

/// Receives from an NV400. A line ends at LF; a good one is answered with the ACK line and, being
/// data, accepted; a bad one with the NAK line, and the level repeats it. The buffer stays empty
/// until the end line, which makes it of the accepted lines and ends the reception.
///
/// Lines carry no number, so a refused one counts as repeated only when the next good one is
/// recognisably the same (`Es_Repeticion`). What is too short to be a line of the level is noise
/// and no refused line.
class Receptor_NV400 : public Receptor {
public:
    Respuesta_Recepcion Recibir(char caracter) override;
    /// The lines accepted so far.
    QString Rescatable() const override { return acumulado; }
    Faltas_Recepcion Faltas() const override;
    bool Sin_Datos() const override { return acumulado.isEmpty() && Faltas().Ninguna(); }

private:
    Respuesta_Recepcion Cerrar_Linea();
    void Anotar_Rechazada(const QString& mala);
    void Repasar_Rechazadas(const QString& buena);

    QString linea; ///< the open line
    QString acumulado;
    QStringList rechazadas; ///< refused since the last good line, each of them once
    int perdidas = 0;
    bool acabada = false;
};
