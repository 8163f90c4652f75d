#include "tools/base/Comprobaciones.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr int ANCHO_TEXTO_AYUDA = 80;
constexpr int ANCHO_FOTO_AYUDA = 50;
constexpr int MAX_CODIGOS = 50;
constexpr int ANCHO_CODIGO = 10;

bool Es_Si_No(const QString& t)
{
    return t == QLatin1String("SI") || t == QLatin1String("NO");
}

// ---- formats

QString Motivo_Formato(const Juego& juego, qsizetype i)
{
    const Tabla& t = juego.at("Formatos1");
    const QString familia = t.Celda(i, "Maquina");
    if (!Claves_Familias().contains(familia))
        return QStringLiteral("familia desconocida \"%1\"").arg(familia);
    if (!Es_Si_No(t.Celda(i, "cabeceras")) || !Es_Si_No(t.Celda(i, "Modificable")))
        return QStringLiteral("cabeceras y Modificable son SI o NO");
    const int ope = t.Numero(i, "ope");
    if (!Ofrece(juego, familia, ope, QStringLiteral("D")))
        return QStringLiteral("%1 no descarga la operación %2").arg(familia).arg(ope);
    for (const QString& id : t.Celda(i, "Ids").split(' ', Qt::SkipEmptyParts))
        if (!Registros_De(juego, familia, ope).contains(id))
            return QStringLiteral("Ids nombra \"%1\", que no es un registro de la operación")
                .arg(id);
    return {};
}

/// Row of `Formatos1` of a format, -1 without one.
qsizetype Cabecera_De(const Tabla& formatos1, const QString& nombre, const QString& maquina)
{
    for (qsizetype i = 0; i < formatos1.Filas(); ++i)
        if (formatos1.Celda(i, "Nombre") == nombre && formatos1.Celda(i, "Maquina") == maquina)
            return i;
    return -1;
}

QString Motivo_Campo_Nivel(const Juego& juego, const QString& maquina, const QString& campo)
{
    const QString mitad = campo.left(1);
    if (campo.mid(1, 1) != QLatin1String(":") ||
        (mitad != QLatin1String("0") && mitad != QLatin1String("1")))
        return QStringLiteral("\"%1\" no es mitad y campo, como 1:Lectura").arg(campo);
    return Campos_De(juego, maquina, mitad).contains(campo.mid(2))
               ? QString()
               : QStringLiteral("el formato nombra el campo desconocido \"%1\"").arg(campo.mid(2));
}

QString Motivo_Linea_Formato(const Juego& juego, qsizetype i)
{
    const Tabla& t = juego.at("Formatos2");
    const QString maquina = t.Celda(i, "Maquina"), campo = t.Celda(i, "Campo");
    const qsizetype cabecera = Cabecera_De(juego.at("Formatos1"), t.Celda(i, "Nombre"), maquina);
    if (cabecera < 0)
        return QStringLiteral("el formato %1 de %2 no está en Formatos1")
            .arg(t.Celda(i, "Nombre"), maquina);
    const Familia& familia = Familia_De(maquina);
    if (familia.serie == Serie::Nivel) return Motivo_Campo_Nivel(juego, maquina, campo);
    // The point's name is a column of the session in these families, not a field of a line.
    if (campo == QLatin1String("Punto") && familia.ofrece_punto) return {};
    const int ope = juego.at("Formatos1").Numero(cabecera, "ope");
    for (const QString& id : Registros_De(juego, maquina, ope))
        if (Campos_De(juego, maquina, id).contains(campo)) return {};
    return QStringLiteral("el formato nombra el campo desconocido \"%1\"").arg(campo);
}

/// Half of a level format's field; empty for the other families, which have but one part.
QString Mitad(const Tabla& t, qsizetype i)
{
    const bool nivel = Familia_De(t.Celda(i, "Maquina")).serie == Serie::Nivel;
    return nivel ? t.Celda(i, "Campo").left(1) : QString();
}

void Comprobar_Secuencias(const Tabla& t, QList<Falta>& faltas)
{
    std::map<QStringList, int> siguiente;
    for (qsizetype i = 0; i < t.Filas(); ++i) {
        int& n = siguiente[{t.Celda(i, "Maquina"), t.Celda(i, "Nombre"), Mitad(t, i)}];
        if (t.Numero(i, "sec") != n)
            faltas << t.Falta_En(i, QStringLiteral("sec debe ser %1").arg(n));
        ++n;
    }
}

// ---- step help

QString Motivo_Ayuda(const Juego& juego, qsizetype i, const QString& datos)
{
    const Tabla& t = juego.at("Ayudas");
    const QString maquina = t.Celda(i, "Maquina");
    const QString familia = maquina.startsWith('*') ? maquina.mid(1) : Familia_De(juego, maquina);
    if (!Claves_Familias().contains(familia))
        return QStringLiteral("modelo desconocido \"%1\"").arg(maquina);
    if (!Ofrece(juego, familia, t.Numero(i, "OPE"), t.Celda(i, "TipOpe")))
        return QStringLiteral("%1 no ofrece la operación %2 %3")
            .arg(familia, t.Celda(i, "OPE"), t.Celda(i, "TipOpe"));
    if (t.Celda(i, "Texto").size() > ANCHO_TEXTO_AYUDA)
        return QStringLiteral("el texto pasa de %1 caracteres").arg(ANCHO_TEXTO_AYUDA);
    const QString foto = t.Celda(i, "Foto");
    if (foto.size() > ANCHO_FOTO_AYUDA ||
        !QFileInfo::exists(datos + QStringLiteral("/bmphlp/") + foto))
        return QStringLiteral("falta la imagen /bmphlp/%1").arg(foto);
    return {};
}

// ---- code libraries

QString Motivo_Codigos(const QString& codigos)
{
    const QStringList lista = codigos.split('|');
    if (!lista.first().isEmpty()) return QStringLiteral("la lista de códigos empieza por \"|\"");
    if (lista.size() - 1 > MAX_CODIGOS)
        return QStringLiteral("el aparato guarda %1 códigos").arg(MAX_CODIGOS);
    static const QRegularExpression CODIGO(QStringLiteral("^[ -^`-~]{1,%1}$").arg(ANCHO_CODIGO));
    for (const QString& c : lista.mid(1))
        if (!CODIGO.match(c).hasMatch())
            return QStringLiteral("el aparato no admite el código \"%1\"").arg(c);
    return {};
}

QString Motivo_Linea_Libreria(const Tabla& t, qsizetype i, const QSet<QString>& librerias,
                              const QSet<int>& entidades)
{
    if (!librerias.contains(t.Celda(i, "CodLibreria")))
        return QStringLiteral("la librería %1 no está en LIB800").arg(t.Celda(i, "CodLibreria"));
    if (!entidades.contains(t.Numero(i, "ENTIDAD")))
        return QStringLiteral("la entidad %1 no está en TAB2").arg(t.Celda(i, "ENTIDAD"));
    if (t.Celda(i, "CODIGO").contains(',') || t.Celda(i, "CAPA").contains(','))
        return QStringLiteral("código y capa viajan separados por comas y no pueden llevarlas");
    return {};
}

} // namespace

void Comprobar_Formatos(const Juego& juego, QList<Falta>& faltas)
{
    const Tabla& cabeceras = juego.at("Formatos1");
    const Tabla& lineas = juego.at("Formatos2");
    QSet<QStringList> con_campos;
    for (qsizetype i = 0; i < lineas.Filas(); ++i) {
        con_campos << QStringList{lineas.Celda(i, "Nombre"), lineas.Celda(i, "Maquina")};
        if (const QString m = Motivo_Linea_Formato(juego, i); !m.isEmpty())
            faltas << lineas.Falta_En(i, m);
    }
    Comprobar_Secuencias(lineas, faltas);
    for (qsizetype i = 0; i < cabeceras.Filas(); ++i) {
        if (const QString m = Motivo_Formato(juego, i); !m.isEmpty())
            faltas << cabeceras.Falta_En(i, m);
        if (!con_campos.contains({cabeceras.Celda(i, "Nombre"), cabeceras.Celda(i, "Maquina")}))
            faltas << cabeceras.Falta_En(i, QStringLiteral("el formato no tiene campos"));
    }
}

void Comprobar_Ayudas(const Juego& juego, const QString& datos, QList<Falta>& faltas)
{
    const Tabla& t = juego.at("Ayudas");
    std::map<QStringList, int> pasos;
    for (qsizetype i = 0; i < t.Filas(); ++i) {
        if (const QString m = Motivo_Ayuda(juego, i, datos); !m.isEmpty())
            faltas << t.Falta_En(i, m);
        int& n = pasos[{t.Celda(i, "Maquina"), t.Celda(i, "OPE"), t.Celda(i, "TipOpe")}];
        if (t.Numero(i, "Sec") != ++n)
            faltas << t.Falta_En(i, QStringLiteral("Sec debe ser %1").arg(n));
    }
}

void Comprobar_Librerias(const Juego& juego, QList<Falta>& faltas)
{
    const Tabla& serie_a = juego.at("Lib1");
    for (qsizetype i = 0; i < serie_a.Filas(); ++i)
        if (const QString m = Motivo_Codigos(serie_a.Celda(i, "Codigos")); !m.isEmpty())
            faltas << serie_a.Falta_En(i, m);

    const Tabla& cabeceras = juego.at("LIB800");
    QSet<QString> librerias;
    for (qsizetype i = 0; i < cabeceras.Filas(); ++i)
        librerias << cabeceras.Celda(i, "CodLibreria");
    const Tabla& tab2 = juego.at("TAB2");
    QSet<int> entidades;
    for (qsizetype i = 0; i < tab2.Filas(); ++i)
        if (tab2.Celda(i, "TIPO") == QLatin1String("ENTIDADES"))
            entidades << tab2.Numero(i, "INDICE");
    const Tabla& lineas = juego.at("LIB800_2");
    for (qsizetype i = 0; i < lineas.Filas(); ++i)
        if (const QString m = Motivo_Linea_Libreria(lineas, i, librerias, entidades); !m.isEmpty())
            faltas << lineas.Falta_En(i, m);
}
