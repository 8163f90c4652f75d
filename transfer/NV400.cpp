#include "transfer/NV400.h"

#include "core/Ansi.h"
#include "core/Basico.h"
#include "core/Trozos.h"

Clase_Linea Clasificar_Linea(const QString& linea)
{
    constexpr qsizetype COLA = 4; // checksum, comma, CR, LF
    if (linea.size() <= COLA) return Clase_Linea::Mala;
    if (Suma_Nivel(linea.chopped(COLA)) != linea[linea.size() - COLA]) return Clase_Linea::Mala;
    if (linea == LINEA_INICIO) return Clase_Linea::Inicio;
    return linea == LINEA_FIN ? Clase_Linea::Fin : Clase_Linea::Datos;
}

void Recibir_NV400(char caracter, const Salida_Recepcion& comm)
{
    const QChar c = Ansi::Caracter(static_cast<unsigned char>(caracter));
    if (!Recepcion.EnLinea) {
        Recepcion.EnLinea = true;
        Recepcion.Linea = c;
        return;
    }
    Recepcion.Linea += c;
    if (caracter != Control::LF) return;
    Recepcion.EnLinea = false;
    switch (Clasificar_Linea(Recepcion.Linea)) {
    case Clase_Linea::Mala:
        comm.Enviar(LINEA_NAK);
        break;
    case Clase_Linea::Inicio:
        comm.Enviar(LINEA_ACK);
        break;
    case Clase_Linea::Datos:
        Recepcion.Acumulado += Recepcion.Linea;
        comm.Enviar(LINEA_ACK);
        break;
    case Clase_Linea::Fin:
        comm.Enviar(LINEA_ACK);
        Recepcion.Buffer = Recepcion.Acumulado;
        comm.Saltar_a_Sesiones();
        break;
    }
}

QString Nombre_Trabajo(const QString& linea)
{
    constexpr qint64 DESDE = 6;
    const qint64 coma = Basico::InStr(DESDE, linea, u",");
    return coma == 0 ? QString() : Basico::Mid(linea, DESDE, coma - DESDE);
}
