#include "export/mdb/Orden_Jet.h"

#include <algorithm>
#include <iterator>
#include <QString>

namespace Jet {

namespace {

constexpr char FIN_TEXTO = 0x01;
constexpr char FIN_PESOS = 0x00;
constexpr char SIN_ACENTO = 0x02;

constexpr uchar LETRAS[] = {0x4A, 0x4C, 0x4D, 0x4F, 0x51, 0x53, 0x55, 0x57, 0x59,
                            0x5B, 0x5C, 0x5E, 0x60, 0x62, 0x64, 0x66, 0x68, 0x69,
                            0x6B, 0x6D, 0x6F, 0x71, 0x73, 0x75, 0x76, 0x78};
constexpr uchar PRIMERA_CIFRA = 0x36;
constexpr int CIFRA_PASO = 2; // room for fractions between the digits

struct Signo {
    char16_t caracter;
    uchar peso;
    uchar segundo = 0; // none
};
constexpr Signo SIGNOS[] = {
    {u' ', 0x07},       {u'\u00A0', 0x08, 2}, {u'!', 0x09},       {u'"', 0x0A},
    {u'#', 0x0C},       {u'$', 0x0E},         {u'%', 0x10},       {u'&', 0x12},
    {u'(', 0x14},       {u')', 0x16},         {u'*', 0x18},       {u',', 0x1A},
    {u'.', 0x1C},       {u'/', 0x1E},         {u':', 0x20},       {u';', 0x22},
    {u'?', 0x24},       {u'@', 0x26},         {u'[', 0x27},       {u'\\', 0x29},
    {u']', 0x2A},       {u'^', 0x2B, 0x02},   {u'_', 0x2B, 0x03}, {u'`', 0x2B, 0x07},
    {u'{', 0x2B, 0x09}, {u'|', 0x2B, 0x0B},   {u'}', 0x2B, 0x0D}, {u'~', 0x2B, 0x0F},
    {u'¡', 0x2B, 0x10}, {u'¦', 0x2B, 0x11},   {u'¨', 0x2B, 0x12}, {u'¯', 0x2B, 0x13},
    {u'´', 0x2B, 0x14}, {u'¸', 0x2B, 0x15},   {u'¿', 0x2B, 0x16}, {u'ˆ', 0x2B, 0x17},
    {u'˜', 0x2B, 0x18}, {u'‘', 0x2B, 0x19},   {u'’', 0x2B, 0x1A}, {u'‚', 0x2B, 0x1B},
    {u'“', 0x2B, 0x1C}, {u'”', 0x2B, 0x1D},   {u'„', 0x2B, 0x1E}, {u'–', 0x2B, 0x1F},
    {u'—', 0x2B, 0x20}, {u'+', 0x2C},         {u'<', 0x2E},       {u'=', 0x30},
    {u'>', 0x32},       {u'±', 0x33, 0x04},   {u'«', 0x33, 0x05}, {u'»', 0x33, 0x07},
    {u'×', 0x33, 0x09}, {u'÷', 0x33, 0x0A},   {u'‹', 0x33, 0x0B}, {u'›', 0x33, 0x0C},
    {u'¢', 0x34, 0xA6}, {u'£', 0x34, 0xA7},   {u'¤', 0x34, 0xA8}, {u'¥', 0x34, 0xA9},
    {u'§', 0x34, 0xAA}, {u'©', 0x34, 0xAB},   {u'¬', 0x34, 0xAC}, {u'®', 0x34, 0xAD},
    {u'°', 0x34, 0xAE}, {u'µ', 0x34, 0xAF},   {u'¶', 0x34, 0xB0}, {u'·', 0x34, 0xB1},
    {u'€', 0x34, 0xB2}, {u'†', 0x34, 0xB3},   {u'‡', 0x34, 0xB4}, {u'•', 0x34, 0xB5},
    {u'…', 0x34, 0xB6}, {u'‰', 0x34, 0xB7},   {u'™', 0x34, 0xB8}, {u'¼', 0x37, 0x12},
    {u'½', 0x37, 0x16}, {u'¾', 0x37, 0x1A},
};

// Letters that are others with a stroke, raised or joined; the second weight is an accent.
struct Variante {
    char16_t caracter;
    const char* letras;
    uchar acento = 0;
};
constexpr Variante VARIANTES[] = {
    {u'ø', "o", 0x21}, {u'ð', "d", 0x68}, {u'ƒ', "f", 0x21}, {u'ª', "a", 0x03},
    {u'º', "o", 0x03}, {u'¹', "1", 0x03}, {u'²', "2", 0x03}, {u'³', "3", 0x03},
    {u'ß', "ss"},      {u'þ', "th"},      {u'æ', "ae"},      {u'œ', "oe"},
};

struct Acento {
    char16_t caracter; // the combining one
    uchar peso;
};
constexpr Acento ACENTOS[] = {
    {u'\u0300', 0x0F}, {u'\u0301', 0x0E}, {u'\u0302', 0x12}, {u'\u0303', 0x19},
    {u'\u0308', 0x13}, {u'\u030A', 0x1A}, {u'\u030C', 0x14}, {u'\u0327', 0x1C},
};

// Signs that don't count among the letters: they are named behind them, with their place.
constexpr Signo OCULTOS[] = {{u'\'', 0x06, 0x80}, {u'\u00AD', 0x06, 0x81}, {u'-', 0x06, 0x82}};
constexpr int OCULTO_BASE = 0x8007;
constexpr int OCULTO_PASO = 4;

constexpr uchar FUERA_DE_PAGINA = 0xFE;

template <class Fila, std::size_t n> const Fila* Buscar(const Fila (&filas)[n], char16_t c)
{
    const auto* const fila = std::find_if(std::begin(filas), std::end(filas),
                                          [c](const Fila& f) { return f.caracter == c; });
    return fila == std::end(filas) ? nullptr : fila;
}

class Pesador {
public:
    void Pesar(QChar c);
    QByteArray Acabado() const;

private:
    bool Letra(char16_t c, uchar acento = 0);
    void Ocupar(std::initializer_list<uchar> pesos, uchar acento = 0);
    void Ocultar(const Signo& signo);

    QByteArray letras;
    QByteArray acentos; // one byte a place, up to the last that has one
    QByteArray ocultos;
    int lugares = 0;
};

void Pesador::Ocupar(std::initializer_list<uchar> pesos, uchar acento)
{
    for (const uchar peso : pesos)
        if (peso != 0) letras += static_cast<char>(peso);
    if (acento != 0) {
        acentos.append(lugares - acentos.size(), SIN_ACENTO);
        acentos += static_cast<char>(acento);
    }
    ++lugares;
}

void Pesador::Ocultar(const Signo& signo)
{
    const int lugar = OCULTO_BASE + OCULTO_PASO * lugares;
    for (const int byte : {lugar >> 8, lugar & 0xFF, int(signo.peso), int(signo.segundo)})
        ocultos += static_cast<char>(byte);
}

bool Pesador::Letra(char16_t c, uchar acento)
{
    if (c >= u'a' && c <= u'z')
        Ocupar({LETRAS[c - u'a']}, acento);
    else if (c >= u'0' && c <= u'9')
        Ocupar({static_cast<uchar>(PRIMERA_CIFRA + CIFRA_PASO * (c - u'0'))}, acento);
    else
        return false;
    return true;
}

void Pesador::Pesar(QChar caracter)
{
    const QChar menor = caracter.toLower();
    const char16_t c = menor.unicode();
    if (Letra(c)) return;
    if (const Signo* s = Buscar(SIGNOS, c)) return Ocupar({s->peso, s->segundo});
    if (const Signo* s = Buscar(OCULTOS, c)) return Ocultar(*s);
    if (const Variante* v = Buscar(VARIANTES, c)) {
        for (const char* letra = v->letras; *letra != 0; ++letra)
            Letra(static_cast<char16_t>(*letra), v->acento);
        return;
    }
    const QString partes = menor.decomposition();
    const Acento* acento = partes.size() == 2 ? Buscar(ACENTOS, partes[1].unicode()) : nullptr;
    if (acento && Letra(partes[0].unicode(), acento->peso)) return;
    if (menor.category() == QChar::Other_Control) return; // weighs nothing
    Ocupar({FUERA_DE_PAGINA, static_cast<uchar>(c >> 8), static_cast<uchar>(c)});
}

QByteArray Pesador::Acabado() const
{
    QByteArray clave = letras + FIN_TEXTO + acentos;
    if (!ocultos.isEmpty()) clave += QByteArray(3, FIN_TEXTO) + ocultos;
    return clave + FIN_PESOS;
}

} // namespace

QByteArray Pesos_Nombre(QStringView nombre)
{
    Pesador pesador;
    for (const QChar c : nombre)
        pesador.Pesar(c);
    return pesador.Acabado();
}

} // namespace Jet
