#include "rawfiles/estaciones/Redondeo.h"

#include "core/Basico.h"

#include <QRegularExpression>

namespace {

struct Partes {
    bool numero = false;
    bool exponente = false;
    QString signo, entera, decimal;
};

Partes Leer(const QString& texto)
{
    static const QRegularExpression forma(
        QStringLiteral("^([+-]?)(\\d*)(?:\\.(\\d*))?([eEdD][+-]?\\d+)?$"));
    const QRegularExpressionMatch m = forma.match(texto);
    const QString cifras = m.captured(2) + m.captured(3);
    return {m.hasMatch() && !cifras.isEmpty(), m.hasCaptured(4),
            m.captured(1) == u"-" ? m.captured(1) : QString(), m.captured(2), m.captured(3)};
}

// One more in the last place of a run of digits, which may grow.
void Subir(QString& cifras)
{
    for (qsizetype i = cifras.size(); i-- > 0;) {
        if (cifras[i] != u'9') {
            cifras[i] = QChar(cifras[i].unicode() + 1);
            return;
        }
        cifras[i] = u'0';
    }
    cifras.prepend(u'1');
}

} // namespace

bool Redondeo::Es_Numero(const QString& texto)
{
    return Leer(texto).numero;
}

QString Redondeo::Redondear(const QString& texto, int decimales)
{
    const Partes p = Leer(texto);
    if (!p.numero) return texto;
    if (p.exponente)
        return Basico::Formato(Basico::Val(texto), u'0' + (u'.' + QString(decimales, u'0')))
            .replace(u',', u'.');
    QString cifras = p.entera + p.decimal.left(decimales).leftJustified(decimales, u'0');
    if (p.decimal.size() > decimales && p.decimal[decimales] >= u'5') Subir(cifras);
    QString entera = cifras.chopped(decimales);
    while (entera.startsWith(u'0'))
        entera.remove(0, 1);
    return p.signo + (entera.isEmpty() ? QStringLiteral("0") : entera) + u'.' +
           cifras.right(decimales);
}
