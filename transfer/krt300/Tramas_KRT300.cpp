#include "transfer/krt300/Tramas_KRT300.h"

#include "core/Sumas.h"
#include "transfer/enlace/Receptor.h"

namespace {

QString En_Trama(const QString& interior)
{
    return QChar::fromLatin1(Control::STX) + interior + QChar::fromLatin1(Control::ETX) +
           QStringLiteral("\r\n");
}

QString Con_Suma(const QString& interior)
{
    return En_Trama(interior + Suma_XOR(interior));
}

} // namespace

QString Tramas_KRT300::Apertura()
{
    return En_Trama(QStringLiteral("F00F000"));
}

QString Tramas_KRT300::Cabecera()
{
    // A constant record that the instrument wants ahead of coordinates, in its parts.
    return Con_Suma(QStringLiteral("BARCELONA "
                                   "+1234"
                                   "00002.01"
                                   "5555"
                                   "10-20"
                                   "9999"
                                   "S"));
}

QString Tramas_KRT300::Bloque(const QString& datos, qint64 numero)
{
    const QString bloque = datos.mid((numero - 1) * LARGO_BLOQUE, LARGO_BLOQUE);
    return Con_Suma(bloque.leftJustified(LARGO_BLOQUE) + QString::number((numero - 1) % 10));
}

QString Tramas_KRT300::Cierre()
{
    return En_Trama(QChar::fromLatin1(Control::EOT));
}
