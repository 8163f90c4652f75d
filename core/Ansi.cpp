#include "core/Ansi.h"

#include <array>

namespace {

// Codes 80 to 9F hex of the page; 0 where the page defines none.
constexpr std::array<char16_t, 32> ALTOS = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr char16_t Unidad(unsigned char b)
{
    return b >= 0x80 && b < 0xA0 && ALTOS[b - 0x80] != 0 ? ALTOS[b - 0x80] : char16_t(b);
}

int Byte_De(char16_t u)
{
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return u;
    if (u < 0xA0) return ALTOS[u - 0x80] == 0 ? u : -1;
    for (std::size_t i = 0; i < ALTOS.size(); ++i)
        if (ALTOS[i] == u) return int(0x80 + i);
    return -1;
}

} // namespace

QString Ansi::A_Texto(QByteArrayView bytes)
{
    QString texto(bytes.size(), Qt::Uninitialized);
    QChar* d = texto.data();
    for (const char b : bytes)
        *d++ = QChar(Unidad(static_cast<unsigned char>(b)));
    return texto;
}

QByteArray Ansi::A_Bytes(QStringView texto)
{
    QByteArray bytes;
    Agregar_Bytes(bytes, texto);
    return bytes;
}

void Ansi::Agregar_Bytes(QByteArray& bytes, QStringView texto)
{
    const qsizetype antes = bytes.size();
    bytes.resize(antes + texto.size());
    char* d = bytes.data() + antes;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c.isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate()) ++i;
        *d++ = c.unicode() < 0x80 ? char(c.unicode()) : static_cast<char>(Codigo(c));
    }
    bytes.truncate(d - bytes.constData());
}

int Ansi::Codigo(QChar c)
{
    const int b = Byte_De(c.unicode());
    return b < 0 ? '?' : b;
}

QChar Ansi::Caracter(int codigo)
{
    return QChar(Unidad(static_cast<unsigned char>(codigo)));
}

bool Ansi::Cabe(QStringView texto)
{
    for (const QChar c : texto)
        if (Byte_De(c.unicode()) < 0) return false;
    return true;
}
