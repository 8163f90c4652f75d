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
class Receptor_NV400 : public Receptor {
public:
    Respuesta_Recepcion Recibir(char caracter) override;
    /// The lines accepted so far.
    QString Rescatable() const override { return acumulado; }

private:
    Respuesta_Recepcion Cerrar_Linea();

    QString linea; ///< the open line
    QString acumulado;
};
