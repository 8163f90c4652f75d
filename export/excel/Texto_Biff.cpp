#include "export/excel/Texto_Biff.h"

#include "core/Ansi.h"
#include "export/excel/Registros_Biff.h"

#include <algorithm>

bool Cabe_Estrecho(QStringView texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) { return c.unicode() <= 0xFF; });
}

void Anadir_Caracteres(QByteArray& bytes, QStringView texto, bool ancho)
{
    const qsizetype antes = bytes.size();
    bytes.resize(antes + texto.size() * (ancho ? 2 : 1));
    char* d = bytes.data() + antes;
    for (const QChar c : texto) {
        *d++ = char(c.unicode());
        if (ancho) *d++ = char(c.unicode() >> 8);
    }
}

static QByteArray Con_Caracteres(const Forma_Excel& forma, QByteArray longitud, QStringView texto)
{
    if (!forma.unicode) return longitud + Ansi::A_Bytes(texto);
    const bool ancho = !Cabe_Estrecho(texto);
    longitud += ancho ? char(Biff::TEXTO_ANCHO) : '\0';
    Anadir_Caracteres(longitud, texto, ancho);
    return longitud;
}

static qsizetype Longitud(const Forma_Excel& forma, QStringView texto)
{
    return forma.unicode ? texto.size() : Ansi::A_Bytes(texto).size();
}

QByteArray Texto_Corto(const Forma_Excel& forma, QStringView texto)
{
    return Con_Caracteres(forma, QByteArray(1, char(Longitud(forma, texto))), texto);
}

QByteArray Texto_Largo(const Forma_Excel& forma, QStringView texto)
{
    return Con_Caracteres(forma, Bytes_De(U16(quint16(Longitud(forma, texto)))).toByteArray(),
                          texto);
}
