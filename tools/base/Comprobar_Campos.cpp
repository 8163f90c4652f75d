#include "tools/base/Comprobaciones.h"

#include <QRegularExpression>

namespace {

constexpr int ANCHO_DATOS = 255;       // width of Registros.Datos
constexpr int ANCHO_CAMPO_NIVEL = 40;  // a level format keeps the name in 40 characters
constexpr int ULTIMO_LUGAR_NIVEL = 28; // fields of a level line that an export reads

bool Es_Nivel(const QString& familia)
{
    return Familia_De(familia).serie == Serie::Nivel;
}

bool Es_De_Columnas(const QString& familia)
{
    return Familia_De(familia).serie == Serie::A;
}

bool Es_De_Palabras(const QString& familia)
{
    return Familia_De(familia).serie == Serie::B;
}

/// The two halves of a level format stand in `Campos` as records of their own.
bool Es_Mitad(const QString& id)
{
    return id == QLatin1String("0") || id == QLatin1String("1");
}

bool Es_Coordenada(const QString& marca)
{
    return marca == QLatin1String("CX") || marca == QLatin1String("CY") ||
           marca == QLatin1String("CZ");
}

QString Motivo_Identificador(const QString& familia, int ope, const QString& id)
{
    if (!Es_De_Palabras(familia)) {
        if (id.size() != 1 || id == QLatin1String("+") || id == QLatin1String("_"))
            return QStringLiteral("el identificador \"%1\" no es un carácter libre").arg(id);
        return Es_Mitad(id) ? QStringLiteral("\"0\" y \"1\" son las mitades del nivel") : QString();
    }
    if (id.contains(' ') || id.contains(','))
        return QStringLiteral("el identificador \"%1\" lleva un separador").arg(id);
    // These operations have no identifier in the line: the program supplies the word.
    for (const Operacion sin_id : {Operacion::Puntos, Operacion::Perfiles}) {
        const QString fijo = Fila_De(sin_id).id_fijo;
        if ((Operacion(ope) == sin_id) != (id == fijo))
            return QStringLiteral("\"%1\" es el registro de la operación %2 y el único")
                .arg(fijo)
                .arg(int(sin_id));
    }
    return {};
}

/// Width of the whole record as its fields add up, identifier included.
int Suma_De_Anchos(const Juego& juego, const QString& familia, const QString& id)
{
    const Tabla& campos = juego.at("Campos");
    int suma = 1;
    for (qsizetype i = 0; i < campos.Filas(); ++i)
        if (campos.Celda(i, "Maquina") == familia && campos.Celda(i, "ID") == id)
            suma += campos.Numero(i, "Digitos");
    return suma;
}

QString Motivo_Ancho(const Juego& juego, const QString& familia, const QString& id,
                     const QString& ancho)
{
    if (!Es_De_Columnas(familia))
        return ancho.isEmpty() ? QString() : QStringLiteral("Ancho sólo vale para columnas fijas");
    const int suma = Suma_De_Anchos(juego, familia, id);
    if (ancho != QString::number(suma))
        return QStringLiteral("los campos del registro suman %1 y Ancho dice \"%2\"")
            .arg(suma)
            .arg(ancho);
    if (suma > ANCHO_DATOS) return QStringLiteral("el registro no cabe en %1").arg(ANCHO_DATOS);
    return {};
}

QString Motivo_Registro(const Juego& juego, qsizetype i)
{
    const Tabla& t = juego.at("Identificadores");
    const QString familia = t.Celda(i, "Nombre"), id = t.Celda(i, "ID");
    if (!Claves_Familias().contains(familia))
        return QStringLiteral("familia desconocida \"%1\"").arg(familia);
    if (!Ofrece(juego, familia, t.Numero(i, "OPE"), QStringLiteral("D")))
        return QStringLiteral("%1 no descarga la operación %2").arg(familia, t.Celda(i, "OPE"));
    if (QString m = Motivo_Identificador(familia, t.Numero(i, "OPE"), id); !m.isEmpty()) return m;
    if (Campos_De(juego, familia, id).isEmpty())
        return QStringLiteral("el registro \"%1\" no tiene campos").arg(id);
    return Motivo_Ancho(juego, familia, id, t.Celda(i, "Ancho"));
}

QString Motivo_PosDigit(const QString& posdigit, int digitos)
{
    if (posdigit == QLatin1String("*")) return {};
    static const QRegularExpression FORMA("^(\\d+),(\\d+)$");
    const QRegularExpressionMatch m = FORMA.match(posdigit);
    if (!m.hasMatch())
        return QStringLiteral("PosDigit \"%1\" no es \"*\" ni \"e,d\"").arg(posdigit);
    if (m.captured(1).toInt() + m.captured(2).toInt() > digitos)
        return QStringLiteral("PosDigit \"%1\" pasa de los %2 dígitos del campo")
            .arg(posdigit)
            .arg(digitos);
    return {};
}

QString Motivo_Especial(const QString& especial)
{
    if (especial.isEmpty()) return {};
    QStringList vistos;
    for (const QString& e : especial.split(',')) {
        if (!QStringList{"CD", "CI", "ED"}.contains(e) || vistos.contains(e))
            return QStringLiteral("Especial \"%1\" no es una lista de CD, CI y ED").arg(especial);
        vistos << e;
    }
    return {};
}

QString Motivo_Marcas(const QString& familia, const QString& marca, int digitos,
                      const QString& posdigit)
{
    if (marca.isEmpty() || marca == QLatin1String("NL")) return {};
    if (marca == QLatin1String("GE"))
        return Es_De_Palabras(familia) ? QString() : QStringLiteral("la marca GE es de KRT800");
    if (!Es_Coordenada(marca)) return QStringLiteral("marca \"%1\" desconocida").arg(marca);
    if (Es_Nivel(familia)) return QStringLiteral("el nivel no desplaza coordenadas");
    if (posdigit == QLatin1String("*"))
        return QStringLiteral("una coordenada necesita enteros y decimales en PosDigit");
    const QStringList ed = posdigit.split(',');
    if (Es_De_Columnas(familia) && digitos <= ed.value(0).toInt() + ed.value(1).toInt())
        return QStringLiteral("no queda sitio para el signo de la coordenada");
    return {};
}

QString Motivo_Caracter(const QString& familia, const QString& id, const QString& caracter)
{
    if (Es_Nivel(familia) && Es_Mitad(id)) {
        bool entero = false;
        const int lugar = caracter.toInt(&entero);
        return entero && lugar >= 0 && lugar <= ULTIMO_LUGAR_NIVEL
                   ? QString()
                   : QStringLiteral("Caracter \"%1\" no es el lugar del campo en la línea")
                         .arg(caracter);
    }
    if (!caracter.isEmpty() && caracter != QLatin1String(".") && caracter != QLatin1String(","))
        return QStringLiteral("Caracter \"%1\" no es una marca decimal").arg(caracter);
    return {};
}

QString Motivo_Forsalida(const QString& forsalida)
{
    static const QRegularExpression DIBUJO("^(#*0(\\.0+)?)?$");
    return DIBUJO.match(forsalida).hasMatch()
               ? QString()
               : QStringLiteral("Forsalida \"%1\" no es un dibujo de número").arg(forsalida);
}

QString Motivo_Nombre(const QString& familia, const QString& campo)
{
    if (Es_Nivel(familia) && campo.size() > ANCHO_CAMPO_NIVEL)
        return QStringLiteral("el nombre pasa de %1 caracteres").arg(ANCHO_CAMPO_NIVEL);
    static const QRegularExpression PROHIBIDOS("['\",`|\\x00-\\x1f]");
    return campo.contains(PROHIBIDOS)
               ? QStringLiteral("el nombre \"%1\" lleva un carácter reservado").arg(campo)
               : QString();
}

QString Motivo_Campo(const Juego& juego, qsizetype i)
{
    const Tabla& t = juego.at("Campos");
    const QString familia = t.Celda(i, "Maquina"), id = t.Celda(i, "ID");
    const int digitos = t.Numero(i, "Digitos");
    if (!Claves_Familias().contains(familia))
        return QStringLiteral("familia desconocida \"%1\"").arg(familia);
    const bool mitad = Es_Nivel(familia) && Es_Mitad(id);
    if (!mitad && !Registros_De(juego, familia).contains(id))
        return QStringLiteral("el registro \"%1\" no está en Identificadores").arg(id);
    if (digitos < 1) return QStringLiteral("Digitos debe ser 1 o más");
    const QString marca = t.Celda(i, "Marcas"), posdigit = t.Celda(i, "PosDigit");
    for (const QString& m :
         {Motivo_Nombre(familia, t.Celda(i, "Campo")), Motivo_PosDigit(posdigit, digitos),
          Motivo_Forsalida(t.Celda(i, "Forsalida")), Motivo_Especial(t.Celda(i, "Especial")),
          Motivo_Marcas(familia, marca, digitos, posdigit),
          Motivo_Caracter(familia, id, t.Celda(i, "Caracter"))})
        if (!m.isEmpty()) return m;
    return {};
}

/// Rows of `Campos` of one record kind, as numbers of rows of the table.
using Grupos = std::map<std::pair<QString, QString>, QList<qsizetype>>;

Grupos Agrupar(const Tabla& t)
{
    Grupos grupos;
    for (qsizetype i = 0; i < t.Filas(); ++i)
        grupos[{t.Celda(i, "Maquina"), t.Celda(i, "ID")}] << i;
    return grupos;
}

void Comprobar_Orden(const Tabla& t, const QList<qsizetype>& grupo, QList<Falta>& faltas)
{
    for (qsizetype n = 0; n < grupo.size(); ++n)
        if (t.Numero(grupo[n], "Orden") != n + 1) {
            faltas << t.Falta_En(grupo[n], QStringLiteral("Orden debe ser %1").arg(n + 1));
            return;
        }
}

/// The level's decoder fills the places of a line up to the one before the last name, so that the
/// last row only makes room, and a row that is not listed would shift those behind it.
void Comprobar_Linea_Nivel(const Tabla& t, const QList<qsizetype>& grupo, QList<Falta>& faltas)
{
    for (qsizetype n = 0; n < grupo.size(); ++n) {
        const bool ultima = n + 1 == grupo.size();
        const bool sobrante = t.Celda(grupo[n], "Campo") == QLatin1String("Nulo");
        if (t.Celda(grupo[n], "Marcas") == QLatin1String("NL"))
            faltas << t.Falta_En(grupo[n],
                                 QStringLiteral("una línea del nivel no admite la marca NL"));
        if (sobrante != ultima)
            faltas << t.Falta_En(grupo[n],
                                 QStringLiteral("la fila de sobra \"Nulo\" cierra la línea"));
    }
    if (grupo.size() - 1 > ULTIMO_LUGAR_NIVEL)
        faltas << t.Falta_En(grupo.last(),
                             QStringLiteral("la línea pasa de %1 campos").arg(ULTIMO_LUGAR_NIVEL));
}

/// Identifiers of a family that hold general data.
QSet<QString> Generales(const Juego& juego, const QString& familia)
{
    const Tabla& t = juego.at("Identificadores");
    QSet<QString> ids;
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (t.Celda(i, "Nombre") == familia && t.Celda(i, "tipo") == QLatin1String("G"))
            ids << t.Celda(i, "ID");
    return ids;
}

QString Motivo_Repetido(const Tabla& t, qsizetype antes, qsizetype ahora,
                        const QSet<QString>& generales)
{
    if (t.Celda(antes, "Marcas") != t.Celda(ahora, "Marcas"))
        return QStringLiteral("el campo \"%1\" lleva otras marcas en la línea %2")
            .arg(t.Celda(ahora, "Campo"))
            .arg(t.Linea(antes));
    const bool general_antes = generales.contains(t.Celda(antes, "ID"));
    const bool general_ahora = generales.contains(t.Celda(ahora, "ID"));
    if (general_antes != general_ahora)
        return QStringLiteral(
                   "el campo \"%1\" está en un registro general y en otro que no lo es (línea %2)")
            .arg(t.Celda(ahora, "Campo"))
            .arg(t.Linea(antes));
    // A general value is looked up by its name alone, and the first record of that name answers.
    if (general_ahora)
        return QStringLiteral("el campo general \"%1\" se repite (línea %2)")
            .arg(t.Celda(ahora, "Campo"))
            .arg(t.Linea(antes));
    return {};
}

void Comprobar_Repetidos(const Juego& juego, const QString& familia, QList<Falta>& faltas)
{
    const Tabla& t = juego.at("Campos");
    const QSet<QString> generales = Generales(juego, familia);
    std::map<QString, qsizetype> vistos;
    for (qsizetype i = 0; i < t.Filas(); ++i) {
        if (t.Celda(i, "Maquina") != familia) continue;
        const bool general = generales.contains(t.Celda(i, "ID"));
        if (Es_De_Palabras(familia) && general != (t.Celda(i, "Marcas") == QLatin1String("GE")))
            faltas << t.Falta_En(i, QStringLiteral("la marca GE y el registro general van juntos"));
        const auto [donde, nuevo] = vistos.emplace(t.Celda(i, "Campo"), i);
        if (nuevo) continue;
        if (const QString m = Motivo_Repetido(t, donde->second, i, generales); !m.isEmpty())
            faltas << t.Falta_En(i, m);
    }
}

} // namespace

void Comprobar_Registros(const Juego& juego, QList<Falta>& faltas)
{
    const Tabla& t = juego.at("Identificadores");
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (const QString m = Motivo_Registro(juego, i); !m.isEmpty()) faltas << t.Falta_En(i, m);
}

void Comprobar_Campos(const Juego& juego, QList<Falta>& faltas)
{
    const Tabla& t = juego.at("Campos");
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (const QString m = Motivo_Campo(juego, i); !m.isEmpty()) faltas << t.Falta_En(i, m);
    for (const auto& [clave, grupo] : Agrupar(t)) {
        Comprobar_Orden(t, grupo, faltas);
        if (Es_Nivel(clave.first) && !Es_Mitad(clave.second))
            Comprobar_Linea_Nivel(t, grupo, faltas);
    }
    for (const QString& familia : Claves_Familias())
        Comprobar_Repetidos(juego, familia, faltas);
}
