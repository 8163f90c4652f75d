#include "transfer/enlace/Recepcion.h"

namespace {

QString Plural(const QString& palabras)
{
    QStringList lista = palabras.split(u' ');
    for (QString& palabra : lista)
        palabra += u's';
    return lista.join(u' ');
}

// "1 trama", "3 tramas"; the words behind stay as they are.
QString Contadas(qint64 n, const QString& palabras, const QString& detras = {})
{
    return QStringLiteral("%1 %2%3").arg(n).arg(n == 1 ? palabras : Plural(palabras), detras);
}

} // namespace

bool Faltas_Recepcion::Ninguna() const
{
    return rechazadas == 0 && abiertas == 0 && desconocidas == 0 && sueltas == 0 && sin_fin == 0 &&
           cortadas == 0 && sin_sesion == 0 && !sin_acabar && !interrumpida;
}

Faltas_Recepcion& Faltas_Recepcion::operator+=(const Faltas_Recepcion& otras)
{
    rechazadas += otras.rechazadas;
    abiertas += otras.abiertas;
    desconocidas += otras.desconocidas;
    sueltas += otras.sueltas;
    sin_fin += otras.sin_fin;
    cortadas += otras.cortadas;
    sin_sesion += otras.sin_sesion;
    sin_acabar = sin_acabar || otras.sin_acabar;
    interrumpida = interrumpida || otras.interrumpida;
    return *this;
}

QString Frase_Faltas(const Faltas_Recepcion& f, const QString& unidad)
{
    QStringList partes;
    if (f.rechazadas > 0)
        partes << QStringLiteral("%1 %2 y no %3")
                      .arg(Contadas(f.rechazadas, unidad),
                           f.rechazadas == 1 ? QStringLiteral("rechazada")
                                             : QStringLiteral("rechazadas"),
                           f.rechazadas == 1 ? QStringLiteral("repetida")
                                             : QStringLiteral("repetidas"));
    if (f.abiertas > 0) partes << Contadas(f.abiertas, unidad, QStringLiteral(" sin terminar"));
    if (f.desconocidas > 0)
        partes << Contadas(f.desconocidas, QStringLiteral("registro desconocido"));
    if (f.sueltas > 0)
        partes << Contadas(f.sueltas, QStringLiteral("registro"),
                           QStringLiteral(" sin ninguna medición detrás"));
    if (f.sin_fin > 0)
        partes << Contadas(f.sin_fin, QStringLiteral("byte"),
                           QStringLiteral(" detrás del último fin de línea"));
    if (f.cortadas > 0)
        partes << Contadas(f.cortadas, QStringLiteral("registro cortado"),
                           QStringLiteral(" al ancho de su columna"));
    if (f.sin_sesion > 0)
        partes << Contadas(f.sin_sesion, QStringLiteral("línea"), QStringLiteral(" sin sesión"));
    if (f.sin_acabar)
        partes << QStringLiteral("el aparato no dio por acabados los datos y el último registro "
                                 "puede estar incompleto");
    if (f.interrumpida) partes << QStringLiteral("el guardado se canceló a medias");
    return partes.join(QStringLiteral(", "));
}
