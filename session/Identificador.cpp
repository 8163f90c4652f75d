#include "session/Identificador.h"

#include "core/ModEstTotal.h"
#include "session/Blancos.h"

namespace {

QStringView Primera_Letra(QStringView linea)
{
    return Sin_Blancos_Izquierda(linea).left(1);
}

QStringView Primera_Palabra(QStringView linea)
{
    linea = Sin_Blancos_Izquierda(linea);
    const qsizetype blanco = linea.indexOf(u' ');
    return blanco < 0 ? linea : linea.left(blanco);
}

// The identifier that all lines of an operation share; empty when each carries its own.
const QString& Id_Fijo(int ope)
{
    return Fila_De(Operacion(ope)).id_fijo;
}

bool Es_De_Puntos(int ope)
{
    return Operacion(ope) == Operacion::Puntos;
}

} // namespace

QStringView Id_De_Linea(QStringView linea, const Familia& familia, int ope)
{
    return familia.serie == Serie::Nivel ? QStringView(u"1") : Id_Del_Visor(linea, familia, ope);
}

QStringView Id_Del_Visor(QStringView linea, const Familia& familia, int ope)
{
    if (familia.serie != Serie::B) return Primera_Letra(linea);
    const QString& fijo = Id_Fijo(ope);
    return fijo.isEmpty() ? Primera_Palabra(linea) : QStringView(fijo);
}

QString Condicion_Descripcion(const Familia& familia, int ope)
{
    if (familia.serie != Serie::B)
        return QStringLiteral("Mid(LTRIM(Datos),1,1) = Mid(Identificadores.Id,1,1)");
    if (const QString& fijo = Id_Fijo(ope); !fijo.isEmpty())
        return "Identificadores.Id = '" + fijo + "'";
    return QStringLiteral("Trim(Mid(LTRIM(Datos),1,InSTR(1,LTRIM(Datos) || ' ',' '))) = "
                          "Trim(Identificadores.Id)");
}

QStringView Id_De_Formato(QStringView datos, const Familia& familia, int ope)
{
    if (familia.serie != Serie::B) return Primera_Letra(datos);
    if (!Es_De_Puntos(ope)) return Sin_Blancos(datos.left(datos.indexOf(u' ') + 1));
    datos = Sin_Blancos(datos);
    const qsizetype coma = datos.indexOf(u',');
    return coma < 0 ? datos : datos.left(coma);
}

QString Leer_Id_Registro(const QString& datos, const QString& maquina, int ope)
{
    return Id_De_Formato(datos, Familia_De(maquina), ope).toString();
}

QString Extraer_ID(const Conjunto_Registros& registros, const QString& maquina, int ope)
{
    const QString datos = Basico::Trim(registros.Texto("Datos"));
    if (Familia_De(maquina).serie != Serie::B) return datos.left(1);
    return Basico::Trim(Trozo(1, datos, Es_De_Puntos(ope) ? QChar(u',') : QChar(u' ')));
}

QString Id_Al_Guardar(const QString& linea, int ope)
{
    if (const QString& fijo = Id_Fijo(ope); !fijo.isEmpty()) return fijo;
    return Basico::Trim(Basico::LTrim(linea).left(Basico::InStr(1, linea, u" ")));
}

QString Token_ID(const QString& cadena, qint64 n, int ope)
{
    return Es_De_Puntos(ope) ? Id_Fijo(ope) : Trozo(n, cadena, u' ');
}

QString Todos_Los_IDs(int ope, const QStringList& ids)
{
    if (Es_De_Puntos(ope)) return Id_Fijo(ope);
    QString todos;
    for (qsizetype i = 0; i < MAX_IDS; ++i)
        todos += ids.value(i) + u' ';
    return todos;
}
