#include "export/mdb/Texto_Jet.h"

#include "core/Error_Ejecucion.h"

#include <algorithm>

namespace Jet {

namespace {

constexpr uchar MARCA_COMPRIMIDO[] = {0xFF, 0xFE};
constexpr qsizetype COMPRIMIBLE_MINIMO = 3; // below, the mark costs what it saves
constexpr char16_t MARCA_COMO_LETRA = 0xFEFF;

// Outside U+0001 to U+00FF. A zero byte among the narrow ones would switch the reader back to
// UTF-16.
bool Es_Ancho(char16_t c)
{
    return static_cast<char16_t>(c - 1) >= 0xFF;
}

bool Cabe_En_Bytes(QStringView texto)
{
    unsigned anchos = 0; // counted without leaving early, which lets the compiler take many at once
    for (const QChar c : texto)
        anchos |= static_cast<unsigned>(Es_Ancho(c.unicode()));
    return anchos == 0;
}

} // namespace

Texto_Cifrado::Texto_Cifrado(QStringView valor, bool comprimido) : texto(valor)
{
    while (!texto.isEmpty() && texto.front().unicode() == MARCA_COMO_LETRA)
        texto = texto.mid(1);
    estrecho = comprimido && texto.size() >= COMPRIMIBLE_MINIMO && Cabe_En_Bytes(texto);
}

void Texto_Cifrado::Escribir(uchar* donde) const
{
    if (texto.isEmpty()) return;
    if (!estrecho) {
        qToLittleEndian<char16_t>(texto.utf16(), texto.size(), donde);
        return;
    }
    donde = std::copy(std::begin(MARCA_COMPRIMIDO), std::end(MARCA_COMPRIMIDO), donde);
    for (const QChar c : texto)
        *donde++ = static_cast<uchar>(c.unicode());
}

void Comprobar_Nombre(const QString& nombre)
{
    static const QString prohibidos = QStringLiteral(".!`[]");
    const bool bueno = !nombre.isEmpty() && nombre.size() <= LARGO_NOMBRE && nombre[0] != u' ' &&
                       std::none_of(nombre.begin(), nombre.end(), [](QChar c) {
                           return c.unicode() < u' ' || prohibidos.contains(c);
                       });
    if (!bueno) throw Error_Ejecucion::Con(3125, u'\'' + nombre + u'\'');
}

} // namespace Jet
