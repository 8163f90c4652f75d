#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

/// Control characters of the links.
namespace Control {
inline constexpr char STX = 2, ETX = 3, EOT = 4, ENQ = 5, ACK = 6, LF = 10, CR = 13, SI = 15,
                      NAK = 21;
}

/// State of a reception: one for the process, since the receive routines belong to the families and
/// not to a dialog.
struct Estado_Recepcion {
    QString Buffer;      ///< data of all that was accepted so far
    bool EnTrama = false;   ///< KRT300, PX7: a frame is open
    QString Trama;          ///< its inner text
    bool EnLinea = false;   ///< NV400: a line is open
    QString Linea;
    QString Acumulado;      ///< NV400: accepted data lines
};
extern Estado_Recepcion Recepcion;

/// What a receive routine does outside itself: answers the instrument, and ends the reception on
/// the dialog that runs it.
struct Salida_Recepcion {
    std::function<void(const QByteArray&)> Enviar;
    std::function<void()> Saltar_a_Sesiones;
};

/// Routes one received byte to the routine of the family `maquina`; other families: nothing.
void Recibir_Caracter(char caracter, const QString& maquina, const Salida_Recepcion& comm);

/// Clears the frame or line left open by a reception that broke off; `Buffer` stays.
void Preparar_Recepcion();
