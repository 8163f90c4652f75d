#include "export/dxf/Lista_Puntos.h"

#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"
#include "export/dxf/Puntos_DXF.h"

#include <algorithm>
#include <QStringDecoder>

namespace {

constexpr QChar BLANCO = u' ';
constexpr QChar SEPARADORES_PROBADOS[] = {u'\t', u',', BLANCO};

// UTF-8 is told from the page by its being valid: letters of the page with accents are not.
QString Texto_De(const QByteArray& bytes)
{
    if (bytes.contains('\0')) throw Error_Ejecucion(13, "El fichero no es un texto");
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString texto = utf8(bytes);
    if (utf8.hasError()) return Ansi::A_Texto(bytes);
    if (texto.startsWith(QChar(QChar::ByteOrderMark))) texto.remove(0, 1);
    return texto;
}

QStringList Palabras(const QString& linea)
{
    return linea.simplified().split(BLANCO, Qt::SkipEmptyParts);
}

class Lector_Titulos {
public:
    explicit Lector_Titulos(const QStringList& conocidos)
    {
        for (const QString& nombre : Campos_De_Punto() + conocidos)
            nombres << Nombre_Llano(nombre).split(BLANCO);
        std::ranges::stable_sort(nombres, std::ranges::greater(),
                                 [](const QStringList& n) { return n.size(); });
    }

    QStringList Cortar(const QString& linea, QChar separador) const
    {
        if (separador == BLANCO) return Por_Nombres(Palabras(linea));
        QStringList titulos = linea.split(separador);
        for (QString& titulo : titulos)
            titulo = titulo.trimmed();
        return titulos;
    }

private:
    QStringList Por_Nombres(const QStringList& palabras) const
    {
        QStringList llanas, titulos;
        for (const QString& palabra : palabras)
            llanas << Nombre_Llano(palabra);
        for (qsizetype i = 0; i < palabras.size();) {
            const auto nombre = std::ranges::find_if(
                nombres, [&](const QStringList& n) { return llanas.mid(i, n.size()) == n; });
            const qsizetype largo = nombre == nombres.end() ? 1 : nombre->size();
            titulos << palabras.mid(i, largo).join(BLANCO);
            i += largo;
        }
        return titulos;
    }

    QList<QStringList> nombres; // words of each, the longest first
};

bool Bastan(const QStringList& titulos)
{
    return Columnas_Punto::De(titulos).Falta().isEmpty();
}

QStringList Cortar_Linea(const QString& linea, QChar separador, qsizetype columnas)
{
    QStringList celdas = separador == BLANCO ? Palabras(linea) : linea.split(separador);
    if (celdas.size() > columnas) {
        celdas[columnas - 1] = celdas.mid(columnas - 1).join(separador);
        celdas.resize(columnas);
    }
    for (QString& celda : celdas)
        celda = celda.trimmed();
    return celdas;
}

} // namespace

std::optional<Lista_Puntos> Leer_Lista_Puntos(const QByteArray& bytes, const QStringList& conocidos,
                                              std::optional<QChar> separador,
                                              const Pedir_Separador_Lista& preguntar)
{
    QStringList lineas = Texto_De(bytes).split(u'\n');
    qsizetype primera = 0;
    while (primera < lineas.size() && lineas[primera].trimmed().isEmpty())
        ++primera;
    if (primera == lineas.size())
        throw Error_Ejecucion(62, "El fichero está vacío: falta la línea de títulos");

    const Lector_Titulos lector(conocidos);
    const QString cabecera = lineas[primera].trimmed();
    if (!separador) {
        const auto vale = std::ranges::find_if(
            SEPARADORES_PROBADOS, [&](QChar s) { return Bastan(lector.Cortar(cabecera, s)); });
        separador = vale == std::end(SEPARADORES_PROBADOS) ? preguntar() : *vale;
        if (!separador) return std::nullopt;
    }
    Lista_Puntos lista;
    lista.datos.campos = lector.Cortar(cabecera, *separador);
    const QString falta = Columnas_Punto::De(lista.datos.campos).Falta();
    if (!falta.isEmpty())
        throw Error_Ejecucion(
            3265, QStringLiteral("Línea %1: falta el título \"%2\"").arg(primera + 1).arg(falta));
    const qsizetype columnas = lista.datos.campos.size();
    lista.datos.filas.resize(std::size_t(columnas));
    for (qsizetype i = primera + 1; i < lineas.size(); ++i) {
        if (lineas[i].trimmed().isEmpty()) continue;
        const QStringList celdas = Cortar_Linea(lineas[i], *separador, columnas);
        if (celdas.size() < columnas) {
            lista.lineas_cortas << int(i) + 1;
            continue;
        }
        for (qsizetype c = 0; c < columnas; ++c)
            lista.datos.filas[std::size_t(c)].push_back(celdas[c]);
    }
    return lista;
}
