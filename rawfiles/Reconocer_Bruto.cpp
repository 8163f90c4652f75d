#include "rawfiles/Reconocer_Bruto.h"

#include "core/ModEstTotal.h"
#include "core/Sumas.h"
#include "rawfiles/Lineas_Brutas.h"

#include <algorithm>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>

namespace {

// The head of a file tells as much as all of it: records, and bytes for them.
constexpr qsizetype MUESTRA = 2000;
constexpr qsizetype BYTES_MUESTRA = 256 * 1024;

const QString DE_TODAS_FORMAS = QStringLiteral(" ¿ Desea importarlo de todas formas ?");

// The record kinds of all families, or of one operation of one family, as the tables have them.
class Clases {
public:
    explicit Clases(const QString& condicion = {}, const QVariantList& valores = {})
    {
        for (Recorrido r = Base_Datos->Recorrer(
                 QStringLiteral("SELECT Nombre, ID, (SELECT SUM(Digitos) FROM Campos WHERE "
                                "Campos.Maquina = Identificadores.Nombre AND "
                                "Campos.ID = Identificadores.ID) FROM Identificadores") +
                     condicion,
                 valores);
             r.Siguiente();) {
            const QString id = r.Texto(1);
            if (id.isEmpty()) continue;
            if (Familia_De(r.Texto(0)).serie == Serie::B) palabras << id;
            if (Familia_De(r.Texto(0)).serie == Serie::A)
                letras[id[0]] = qMax(letras.value(id[0]), r.Entero(2));
        }
    }

    // A letter of a kind, and no more behind it than the kind has room for.
    bool Es_Serie_A(const QString& registro) const
    {
        const QString llano = Basico::Trim(registro);
        if (llano.isEmpty() || !letras.contains(llano[0])) return false;
        return llano.size() <= 1 + letras.value(llano[0]);
    }

    bool Es_Palabra_De_Serie_B(const QString& linea) const
    {
        const QString llana = Basico::LTrim(linea);
        const qsizetype blanco = llana.indexOf(u' ');
        return blanco > 0 && palabras.contains(llana.left(blanco));
    }

private:
    QHash<QChar, qint64> letras; // with the width of their fields
    QSet<QString> palabras;
};

// Points and cross sections: numbers behind the first comma.
bool Es_Lista_De_Numeros(const QString& linea)
{
    static const QRegularExpression forma(
        QStringLiteral("^[^,]+,\\s*[+-]?\\d*\\.?\\d+\\s*,\\s*[+-]?\\d*\\.?\\d+\\s*(,|$)"));
    return forma.match(linea).hasMatch();
}

// A stored line of the level ends in its checksum and a comma; one that was typed may lack it.
bool Es_Linea_De_Nivel(const QString& linea)
{
    static const QRegularExpression comienzo(QStringLiteral("^[a-z],\\d\\d,"));
    if (comienzo.match(linea).hasMatch()) return true;
    const QString carga = linea.chopped(qMin<qsizetype>(2, linea.size()));
    return carga.endsWith(u',') && linea.endsWith(u',') &&
           linea[linea.size() - 2] == Suma_Nivel(carga);
}

Serie Serie_De_Registro(const QString& registro, const Clases& clases)
{
    if (Es_Linea_De_Nivel(registro)) return Serie::Nivel;
    if (clases.Es_Palabra_De_Serie_B(registro) || Es_Lista_De_Numeros(registro)) return Serie::B;
    if (registro.startsWith(MARCA_PUNTO) || clases.Es_Serie_A(registro)) return Serie::A;
    return Serie::Ninguna;
}

// The series that more than half of the records belong to.
Serie Serie_De(const QStringList& registros, const Clases& clases)
{
    QHash<int, qsizetype> votos;
    qsizetype total = 0;
    for (const QString& registro : registros) {
        if (registro.trimmed().isEmpty()) continue;
        ++total;
        ++votos[int(Serie_De_Registro(registro, clases))];
    }
    for (const Serie serie : {Serie::A, Serie::B, Serie::Nivel})
        if (2 * votos.value(int(serie)) > total) return serie;
    return Serie::Ninguna;
}

QString Defecto_De(const QByteArray& bytes)
{
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"))
        return QStringLiteral("está en UTF-16 y no en la página del aparato.");
    if (bytes.contains('\0'))
        return QStringLiteral("contiene caracteres nulos: no es un texto del aparato.");
    const bool ascii = std::ranges::all_of(bytes, [](char c) { return (c & 0x80) == 0; });
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString texto = utf8(bytes);
    if (!ascii && !utf8.hasError())
        return QStringLiteral("está en UTF-8 y no en la página del aparato: sus acentos quedarían "
                              "alterados.");
    return {};
}

QStringList Muestra_De(const QByteArray& bytes, Forma_Bruta& forma)
{
    QStringList lineas = Lineas_Brutas(bytes.left(BYTES_MUESTRA));
    forma = !lineas.isEmpty() && lineas.first().startsWith(SEPARADOR_MAQUINA) ? Forma_Bruta::Maquina
                                                                              : Forma_Bruta::Lineas;
    if (forma == Forma_Bruta::Maquina) lineas = lineas.join(QString()).split(SEPARADOR_MAQUINA);
    return lineas.first(qMin(MUESTRA, lineas.size()));
}

QString Nombre_Forma(Forma_Bruta forma)
{
    return forma == Forma_Bruta::Maquina ? QStringLiteral("Formato Máquina")
                                         : QStringLiteral("Formato Lineas");
}

QString Familias_De(Serie serie)
{
    QStringList claves;
    for (const Familia& f : Familias())
        if (f.serie == serie) claves << f.clave;
    return claves.join(QStringLiteral(" o "));
}

// Whether a record is one of those that the operation knows.
bool Es_De_La_Operacion(const QString& registro, Serie serie, int ope, const Clases& clases)
{
    if (serie == Serie::A) return clases.Es_Serie_A(registro);
    return Fila_De(Operacion(ope)).id_fijo.isEmpty() ? clases.Es_Palabra_De_Serie_B(registro)
                                                     : Es_Lista_De_Numeros(registro);
}

bool Ninguno_De_La_Operacion(const QStringList& registros, const Familia& familia, int ope)
{
    if (familia.serie == Serie::Nivel) return false;
    const Clases clases(QStringLiteral(" WHERE Nombre = ? AND OPE = ?"), {familia.clave, ope});
    return std::ranges::none_of(registros, [&](const QString& r) {
        return Es_De_La_Operacion(r, familia.serie, ope, clases);
    });
}

} // namespace

Aspecto_Bruto Reconocer_Bruto(const QByteArray& bytes)
{
    Aspecto_Bruto aspecto;
    aspecto.defecto = Defecto_De(bytes);
    const QStringList registros = Muestra_De(bytes, aspecto.forma);
    aspecto.serie = Serie_De(registros, Clases());
    return aspecto;
}

std::optional<QString> Duda_De_Importar(const QByteArray& bytes, const Familia& familia,
                                        Forma_Bruta forma, int ope)
{
    const Aspecto_Bruto aspecto = Reconocer_Bruto(bytes);
    if (!aspecto.defecto.isEmpty())
        return QStringLiteral("El fichero ") + aspecto.defecto + DE_TODAS_FORMAS;
    if (aspecto.serie == Serie::Ninguna) return std::nullopt;
    if (aspecto.serie != familia.serie)
        return QStringLiteral("El fichero parece de un %1 y no de un %2.")
                   .arg(Familias_De(aspecto.serie), familia.clave) +
               DE_TODAS_FORMAS;
    if (familia.serie == Serie::A && aspecto.forma != forma)
        return QStringLiteral("El fichero parece estar en %1 y no en %2.")
                   .arg(Nombre_Forma(aspecto.forma), Nombre_Forma(forma)) +
               DE_TODAS_FORMAS;
    Forma_Bruta sin_uso{};
    if (Ninguno_De_La_Operacion(Muestra_De(bytes, sin_uso), familia, ope))
        return QStringLiteral("Ningún registro del fichero parece de \"%1\".")
                   .arg(Descripcion_Operacion(ope)) +
               DE_TODAS_FORMAS;
    return std::nullopt;
}
