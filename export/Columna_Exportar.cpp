#include "export/Columna_Exportar.h"

#include "core/Error_Ejecucion.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr unsigned char LARGA = 254, ANCHA = 255;
constexpr qsizetype CABECERA = 1, CABECERA_LARGA = 5;

// The page's own byte is the character's code for these.
bool Es_De_Pagina(char16_t c)
{
    return c < 0x80 || (c >= 0xA0 && c <= 0xFF);
}

qsizetype Lugar_Par(qsizetype lugar)
{
    return (lugar + 1) & ~qsizetype(1);
}

} // namespace

QChar Vista_Celda::Primera() const
{
    if (!pagina.isEmpty()) return QChar(char16_t(static_cast<unsigned char>(pagina.front())));
    return unidades.isEmpty() ? QChar() : unidades.front();
}

bool Vista_Celda::Blanca() const
{
    return std::ranges::all_of(pagina, [](char c) { return c == ' '; }) &&
           std::ranges::all_of(unidades, [](QChar c) { return c == u' '; });
}

QString Vista_Celda::Texto() const
{
    return unidades.isEmpty() ? QString::fromLatin1(pagina) : unidades.toString();
}

Columna_Exportar::Columna_Exportar(std::initializer_list<QString> celdas)
{
    for (const QString& celda : celdas)
        push_back(celda);
}

void Columna_Exportar::Anotar(std::size_t inicio, qsizetype largo)
{
    if (inicio > std::numeric_limits<quint32>::max()) throw Error_Ejecucion(7);
    inicios.push_back(quint32(inicio));
    ancho = std::max(ancho, largo);
}

// @return false when a character is not the page's, nothing being added
bool Columna_Exportar::Anadir_De_Pagina(QStringView celda)
{
    const qsizetype inicio = bytes.size(), largo = celda.size();
    const bool larga = largo >= LARGA;
    bytes.resize(inicio + (larga ? CABECERA_LARGA : CABECERA) + largo);
    char* p = bytes.data() + inicio;
    *p++ = char(larga ? LARGA : largo);
    if (larga) {
        const auto n = quint32(largo);
        std::memcpy(p, &n, sizeof n);
        p += sizeof n;
    }
    for (const QChar c : celda) {
        if (!Es_De_Pagina(c.unicode())) {
            bytes.resize(inicio);
            return false;
        }
        *p++ = char(c.unicode());
    }
    const qsizetype ocupa = bytes.size() - inicio;
    const qsizetype anterior = inicios.empty() ? inicio : qsizetype(inicios.back());
    const bool repetida = inicio - anterior >= ocupa &&
                          std::memcmp(bytes.constData() + anterior, bytes.constData() + inicio,
                                      std::size_t(ocupa)) == 0;
    if (repetida) bytes.resize(inicio);
    Anotar(std::size_t(repetida ? anterior : inicio), largo);
    return true;
}

void Columna_Exportar::push_back(QStringView celda)
{
    if (Anadir_De_Pagina(celda)) return;
    const qsizetype inicio = bytes.size();
    const qsizetype unidades = Lugar_Par(inicio + CABECERA_LARGA);
    const auto n = quint32(celda.size());
    bytes.resize(unidades + celda.size() * 2);
    bytes[inicio] = char(ANCHA);
    std::memcpy(bytes.data() + inicio + 1, &n, sizeof n);
    std::memcpy(bytes.data() + unidades, celda.data(), std::size_t(celda.size()) * 2);
    Anotar(std::size_t(inicio), celda.size());
}

Vista_Celda Columna_Exportar::Vista(std::size_t fila) const
{
    const auto inicio = qsizetype(inicios[fila]);
    const char* const p = bytes.constData() + inicio;
    const auto marca = static_cast<unsigned char>(*p);
    if (marca < LARGA) return {{p + CABECERA, marca}, {}};
    quint32 n = 0;
    std::memcpy(&n, p + 1, sizeof n);
    if (marca == LARGA) return {{p + CABECERA_LARGA, qsizetype(n)}, {}};
    const char* const unidades = bytes.constData() + Lugar_Par(inicio + CABECERA_LARGA);
    return {{}, {reinterpret_cast<const QChar*>(unidades), qsizetype(n)}};
}

QString Columna_Exportar::Celda(std::size_t fila) const
{
    const QString texto = Vista(fila).Texto();
    return igualada ? texto.leftJustified(ancho) : texto;
}

void Columna_Exportar::Quedarse_Con(const std::vector<std::size_t>& filas)
{
    Columna_Exportar nueva;
    nueva.reserve(filas.size());
    nueva.igualada = igualada;
    for (const std::size_t fila : filas)
        nueva.push_back(Vista(fila).Texto());
    *this = std::move(nueva);
}

bool Columna_Exportar::operator==(const Columna_Exportar& otra) const
{
    if (size() != otra.size()) return false;
    for (std::size_t fila = 0; fila < size(); ++fila)
        if (Celda(fila) != otra.Celda(fila)) return false;
    return true;
}
