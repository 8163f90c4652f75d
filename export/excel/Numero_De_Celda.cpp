#include "export/excel/Numero_De_Celda.h"

#include <algorithm>

namespace {

// What a double holds of any decimal number; a longer one would come back changed.
constexpr qsizetype CIFRAS = 15;

bool Son_Cifras(QStringView texto)
{
    return std::ranges::all_of(texto, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QStringView Sin_Blancos(QStringView texto)
{
    while (texto.startsWith(u' '))
        texto = texto.sliced(1);
    while (texto.endsWith(u' '))
        texto.chop(1);
    return texto;
}

qsizetype Significativas(QStringView enteras, QStringView decimales)
{
    qsizetype ceros = 0;
    const qsizetype todas = enteras.size() + decimales.size();
    const auto cifra = [&](qsizetype i) {
        return i < enteras.size() ? enteras[i] : decimales[i - enteras.size()];
    };
    while (ceros < todas && cifra(ceros) == u'0')
        ++ceros;
    return todas - ceros;
}

} // namespace

std::optional<Celda> Numero_De_Celda(QStringView texto)
{
    const QStringView numero = Sin_Blancos(texto);
    const bool con_signo = numero.startsWith(u'-') || numero.startsWith(u'+');
    const QStringView cifras = numero.sliced(con_signo ? 1 : 0);
    const qsizetype punto = cifras.indexOf(u'.');
    const QStringView enteras = punto < 0 ? cifras : cifras.first(punto);
    const QStringView decimales = punto < 0 ? QStringView() : cifras.sliced(punto + 1);
    if (enteras.isEmpty() || !Son_Cifras(enteras) || !Son_Cifras(decimales)) return std::nullopt;
    if (punto >= 0 && decimales.isEmpty()) return std::nullopt;
    if (enteras.size() > 1 && enteras.front() == u'0') return std::nullopt;
    if (Significativas(enteras, decimales) > CIFRAS || decimales.size() > Celda::MAX_DECIMALES)
        return std::nullopt;
    Celda celda = Celda::De(numero.toDouble());
    celda.decimales = qint8(decimales.size());
    return celda;
}
