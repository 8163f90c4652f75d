#include "simulator/Libreta.h"

#include "core/Ansi.h"

#include <QFile>
#include <QStringDecoder>

simulador::Libreta simulador::Leer_Libreta(const QString& fichero)
{
    QFile f(fichero);
    if (!f.open(QIODevice::ReadOnly))
        return {{},
                QStringLiteral("no se puede leer la libreta %1: %2").arg(fichero, f.errorString())};
    Libreta libreta = Cortar_Libreta(f.readAll());
    if (!libreta.motivo.isEmpty()) libreta.motivo = fichero + QStringLiteral(": ") + libreta.motivo;
    return libreta;
}

simulador::Libreta simulador::Cortar_Libreta(const QByteArray& texto)
{
    QStringDecoder lector(QStringDecoder::Utf8);
    const QString decodificado = lector.decode(texto);
    const bool es_utf8 = !lector.hasError();
    Libreta libreta;
    int numero = 0;
    for (QString linea : (es_utf8 ? decodificado : Ansi::A_Texto(texto)).split(u'\n')) {
        ++numero;
        if (linea.endsWith(u'\r')) linea.chop(1);
        if (linea.isEmpty() || linea.startsWith(u'#')) continue;
        if (linea.startsWith(QLatin1String("\\#"))) linea.remove(0, 1);
        if (!Ansi::Cabe(linea)) {
            libreta.motivo =
                QStringLiteral("la línea %1 lleva un carácter que el aparato no conoce")
                    .arg(numero);
            return libreta;
        }
        libreta.registros << Ansi::A_Bytes(linea);
    }
    return libreta;
}

QByteArray simulador::Texto_Libreta(const QList<QByteArray>& registros)
{
    QByteArray texto;
    for (const QByteArray& r : registros)
        texto += (r.startsWith('#') ? "\\" : "") + Ansi::A_Texto(r).toUtf8() + '\n';
    return texto;
}
