#include "tools/base/Comprobaciones.h"

#include <QFileInfo>
#include <QRegularExpression>

QString Familia_De(const Juego& juego, const QString& modelo)
{
    const Tabla& krt = juego.at("KRT");
    for (qsizetype i = 0; i < krt.Filas(); ++i)
        if (krt.Celda(i, "Nombre") == modelo) return krt.Celda(i, "Clave");
    return {};
}

bool Ofrece(const Juego& juego, const QString& familia, int ope, const QString& tipo_ope)
{
    const Tabla& krt2 = juego.at("KRT2");
    for (qsizetype i = 0; i < krt2.Filas(); ++i)
        if (krt2.Celda(i, "Nombre") == familia && krt2.Numero(i, "OPE") == ope &&
            krt2.Celda(i, "TipOpe") == tipo_ope)
            return true;
    return false;
}

QStringList Registros_De(const Juego& juego, const QString& familia, int ope)
{
    const Tabla& t = juego.at("Identificadores");
    QStringList ids;
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (t.Celda(i, "Nombre") == familia && (ope < 0 || t.Numero(i, "OPE") == ope))
            ids << t.Celda(i, "ID");
    return ids;
}

QStringList Campos_De(const Juego& juego, const QString& familia, const QString& id)
{
    const Tabla& t = juego.at("Campos");
    QStringList campos;
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (t.Celda(i, "Maquina") == familia && t.Celda(i, "ID") == id)
            campos << t.Celda(i, "Campo");
    return campos;
}

namespace {

const QStringList& Velocidades()
{
    static const QStringList lista{"300",  "600",   "1200",  "2400",  "4800",
                                   "9600", "19200", "38400", "57600", "115200"};
    return lista;
}

QString Motivo_Modelo(const Tabla& krt, qsizetype i, const QString& datos)
{
    if (!Claves_Familias().contains(krt.Celda(i, "Clave")))
        return QStringLiteral("familia desconocida \"%1\"").arg(krt.Celda(i, "Clave"));
    for (const QString& v : krt.Celda(i, "VelPuerto").split(','))
        if (!Velocidades().contains(v))
            return QStringLiteral("velocidad \"%1\" no admitida").arg(v);
    for (const QString& foto : {QStringLiteral("/bmphlp/") + krt.Celda(i, "Foto"),
                                QStringLiteral("/bmphlp/ini/") + krt.Celda(i, "Fotoini")})
        if (!QFileInfo::exists(datos + foto)) return QStringLiteral("falta la imagen %1").arg(foto);
    static const QRegularExpression FORMATO("^\\d+,\\d+$");
    if (!FORMATO.match(krt.Celda(i, "FormatoCoord")).hasMatch())
        return QStringLiteral("FormatoCoord \"%1\" no es \"e,d\"")
            .arg(krt.Celda(i, "FormatoCoord"));
    return {};
}

QString Motivo_Operacion(const Juego& juego, qsizetype i, const QSet<int>& descritas,
                         const QSet<QString>& tipos)
{
    const Tabla& krt2 = juego.at("KRT2");
    if (!Claves_Familias().contains(krt2.Celda(i, "Nombre")))
        return QStringLiteral("familia desconocida \"%1\"").arg(krt2.Celda(i, "Nombre"));
    if (!descritas.contains(krt2.Numero(i, "OPE")))
        return QStringLiteral("la operación %1 no tiene descripción en OPE")
            .arg(krt2.Celda(i, "OPE"));
    const QString tipo = krt2.Celda(i, "TipOpe");
    if (tipo != QLatin1String("D") && tipo != QLatin1String("C"))
        return QStringLiteral("TipOpe \"%1\" no es D ni C").arg(tipo);
    for (const QString& clave : krt2.Celda(i, "Conv").split(','))
        if (!tipos.contains(clave))
            return QStringLiteral("Conv nombra \"%1\", que no está en CONVERT").arg(clave);
    return {};
}

} // namespace

void Comprobar_Modelos(const Juego& juego, const QString& datos, QList<Falta>& faltas)
{
    const Tabla& krt = juego.at("KRT");
    QSet<QString> presentes;
    for (qsizetype i = 0; i < krt.Filas(); ++i) {
        presentes << krt.Celda(i, "Clave");
        if (const QString m = Motivo_Modelo(krt, i, datos); !m.isEmpty())
            faltas << krt.Falta_En(i, m);
    }
    for (const QString& f : Claves_Familias())
        if (!presentes.contains(f))
            faltas << Falta{krt.Fichero(), 0,
                            QStringLiteral("la familia %1 no tiene modelos").arg(f)};
}

void Comprobar_Operaciones(const Juego& juego, QList<Falta>& faltas)
{
    const Tabla& ope = juego.at("OPE");
    QSet<int> descritas;
    std::map<QString, int> textos;
    for (qsizetype i = 0; i < ope.Filas(); ++i) {
        descritas << ope.Numero(i, "OPE");
        // The format dialogs find an operation by its text.
        if (!textos.emplace(ope.Celda(i, "DESOPE"), ope.Linea(i)).second)
            faltas << ope.Falta_En(
                i, QStringLiteral("la descripción \"%1\" se repite").arg(ope.Celda(i, "DESOPE")));
    }
    const Tabla& convert = juego.at("CONVERT");
    QSet<QString> tipos;
    static const QRegularExpression PATRON("^\\*\\.(\\w+|\\*)$");
    for (qsizetype i = 0; i < convert.Filas(); ++i) {
        tipos << convert.Celda(i, "Clave");
        if (convert.Celda(i, "descripcion").contains('|') ||
            !PATRON.match(convert.Celda(i, "ext")).hasMatch())
            faltas << convert.Falta_En(
                i, QStringLiteral("el filtro no es un texto y un patrón *.ext"));
    }
    const Tabla& krt2 = juego.at("KRT2");
    for (qsizetype i = 0; i < krt2.Filas(); ++i)
        if (const QString m = Motivo_Operacion(juego, i, descritas, tipos); !m.isEmpty())
            faltas << krt2.Falta_En(i, m);
}

void Comprobar_Todo(const Juego& juego, const QString& datos, QList<Falta>& faltas)
{
    Comprobar_Modelos(juego, datos, faltas);
    Comprobar_Operaciones(juego, faltas);
    Comprobar_Registros(juego, faltas);
    Comprobar_Campos(juego, faltas);
    Comprobar_Formatos(juego, faltas);
    Comprobar_Ayudas(juego, datos, faltas);
    Comprobar_Librerias(juego, faltas);
}
