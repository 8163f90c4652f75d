#include "transfer/krt800/Emisor_KRT800.h"

#include "core/Ansi.h"
#include "transfer/enlace/Receptor.h"

namespace {

constexpr int MS_CARACTER = 25;
constexpr qsizetype PASOS_BARRA = 100;

} // namespace

Emisor_KRT800::Emisor_KRT800(const Datos_Envio& datos)
    : texto(datos.datos), bytes(Ansi::A_Bytes(datos.datos))
{
}

qint64 Emisor_KRT800::Maximo() const
{
    return bytes.size();
}

Paso_Envio Emisor_KRT800::Empezar_Envio()
{
    Paso_Envio paso;
    paso.etiqueta = QStringLiteral("Enviando datos");
    paso.barra = 0;
    paso.encadena = true;
    return paso;
}

Paso_Envio Emisor_KRT800::Seguir()
{
    if (enviados == bytes.size()) return Acabar();
    Paso_Envio paso;
    if (++desde_barra >= bytes.size() / PASOS_BARRA) {
        paso.barra = enviados + 1;
        desde_barra = 0;
    }
    paso.envia = bytes.mid(enviados++, 1);
    paso.pausa = MS_CARACTER;
    paso.encadena = true;
    return paso;
}

Paso_Envio Emisor_KRT800::Acabar() const
{
    Paso_Envio paso;
    paso.barra = Maximo();
    paso.traza << texto;
    if (!bytes.contains(Control::EOT)) {
        paso.envia = QByteArray(1, Control::EOT);
        paso.traza << QString(QChar::fromLatin1(Control::EOT));
    }
    paso.fin = Fin_Envio::Hecho;
    return paso;
}

QString Emisor_KRT800::Resumen() const
{
    return QStringLiteral("Caracteres enviados: %1 de %2").arg(enviados).arg(bytes.size());
}

QStringList Emisor_KRT800::Traza_Pendiente() const
{
    return {Ansi::A_Texto(bytes.first(enviados))};
}

QString Emisor_KRT800::Mensaje_De_Fallo() const
{
    return QStringLiteral("Se produjo un error en la comunicación");
}
