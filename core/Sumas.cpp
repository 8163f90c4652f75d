#include "core/Sumas.h"

#include "core/Ansi.h"

QString Suma_XOR(QStringView cadena)
{
    int suma = 0;
    for (const QChar c : cadena)
        suma ^= Ansi::Codigo(c);
    return QStringLiteral("%1").arg(suma, 3, 10, QChar(u'0'));
}

QChar Suma_Nivel(QStringView cadena)
{
    int suma = 0;
    for (const QChar c : cadena)
        suma = (suma + Ansi::Codigo(c)) & 63;
    return QChar(char16_t(suma + 32));
}
