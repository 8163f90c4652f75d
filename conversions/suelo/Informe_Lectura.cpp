#include "conversions/suelo/Informe_Lectura.h"

namespace {

QString Recortar(const QString& texto)
{
    QString t = texto.trimmed();
    if (t.size() > Informe_Lectura::TEXTO_MAXIMO)
        t = t.left(Informe_Lectura::TEXTO_MAXIMO) + QStringLiteral("...");
    for (QChar& c : t)
        if (c < u' ') c = u' ';
    return t;
}

QString Linea_De(const Omision& o)
{
    QString s;
    if (o.linea > 0) s = QStringLiteral("Línea %1: ").arg(o.linea);
    s += o.motivo;
    if (!o.texto.isEmpty()) s += QStringLiteral(": \"") + o.texto + u'"';
    return s;
}

} // namespace

void Informe_Lectura::Omitir(qint64 linea, const QString& texto, const QString& motivo)
{
    ++total;
    if (omisiones.size() < MAXIMO) omisiones.push_back({linea, Recortar(texto), motivo});
}

void Informe_Lectura::Fallar(const Fallo_Conversion& f)
{
    fallo = Omision{f.linea, Recortar(f.texto), f.motivo};
}

QStringList Informe_Lectura::Lineas() const
{
    QStringList lineas;
    if (fallo) lineas << Linea_De(*fallo);
    for (const Omision& o : omisiones)
        lineas << Linea_De(o);
    const qint64 resto = total - qint64(omisiones.size());
    if (resto > 0) lineas << QStringLiteral("... y %1 más").arg(resto);
    return lineas;
}
