#include "tools/base/Tablas.h"

#include "core/jet/Esquema.h"

#include <QDir>
#include <QFile>

namespace {

QList<Definicion_Tabla> Declarar()
{
    return {
        {"KRT",
         {"Nombre", "Clave", "Foto", "Fotoini", "VelPuerto", "FormatoCoord"},
         {},
         {"Nombre"}},
        {"OPE", {"OPE", "DESOPE"}, {}, {"OPE"}},
        {"CONVERT", {"Clave", "descripcion", "ext"}, {}, {"Clave"}},
        {"KRT2", {"Nombre", "OPE", "TipOpe", "Conv"}, {}, {"Nombre", "OPE", "TipOpe"}},
        {"Identificadores",
         {"Nombre", "OPE", "ID", "NomID", "tipo", "Ancho"},
         {"Ancho"},
         {"Nombre", "OPE", "ID"}},
        {"Campos",
         {"Maquina", "ID", "Campo", "Orden", "Digitos", "PosDigit", "Forsalida", "Especial",
          "Marcas", "Caracter"},
         {"Forsalida", "Especial", "Marcas", "Caracter"},
         {"Maquina", "ID", "Campo"}},
        {"TAB2", {"TIPO", "INDICE", "DESCRIPCION"}, {}, {"TIPO", "INDICE"}},
        {"Ayudas",
         {"Maquina", "OPE", "TipOpe", "Sec", "Texto", "Foto"},
         {},
         {"Maquina", "OPE", "TipOpe", "Sec"}},
        {"Formatos1",
         {"Nombre", "Maquina", "descripcion", "cabeceras", "Modificable", "ope", "Ids"},
         {"descripcion", "Ids"},
         {"Nombre", "Maquina"}},
        {"Formatos2", {"Nombre", "Maquina", "sec", "Campo"}, {}, {"Nombre", "Maquina", "Campo"}},
        {"Lib1", {"CoD", "Nombre", "Codigos"}, {}, {"CoD"}},
        {"LIB800", {"CodLibreria", "descripcion"}, {}, {"CodLibreria"}},
        {"LIB800_2",
         {"CodLibreria", "SECUENCIA", "CODIGO", "ENTIDAD", "CAPA"},
         {},
         {"CodLibreria", "SECUENCIA"}},
    };
}

QString Motivo_Celda(const Definicion_Tabla& definicion, const QString& nombre,
                     const QString& celda)
{
    if (celda.isEmpty())
        return definicion.opcionales.contains(nombre)
                   ? QString()
                   : QStringLiteral("la columna %1 está vacía").arg(nombre);
    if (celda != celda.trimmed())
        return QStringLiteral("sobran blancos en la columna %1").arg(nombre);
    // A column that the database lacks is there for the checks alone.
    const Esquema::Columna* c = Esquema::Buscar_Tabla(definicion.nombre)->Buscar_Columna(nombre);
    if (!c) return {};
    if (c->tipo == Esquema::Tipo::Entero) {
        bool entero = false;
        if (celda.toInt(&entero) < 0 || !entero)
            return QStringLiteral("\"%1\" no es un número en la columna %2").arg(celda, nombre);
    } else if (c->tipo == Esquema::Tipo::Texto && celda.size() > c->ancho) {
        return QStringLiteral("el texto pasa de los %1 caracteres de la columna %2")
            .arg(c->ancho)
            .arg(nombre);
    }
    return {};
}

/// @return the row's fault of form, empty when it has none
QString Motivo_Fila(const Definicion_Tabla& definicion, const Fila& fila)
{
    if (fila.celdas.size() != definicion.columnas.size())
        return QStringLiteral("tiene %1 celdas y la cabecera %2")
            .arg(fila.celdas.size())
            .arg(definicion.columnas.size());
    for (qsizetype i = 0; i < fila.celdas.size(); ++i)
        if (QString m = Motivo_Celda(definicion, definicion.columnas[i], fila.celdas[i]);
            !m.isEmpty())
            return m;
    return {};
}

QList<Fila> Leer_Filas(const QString& carpeta, const Definicion_Tabla& definicion,
                       QList<Falta>& faltas)
{
    const QString nombre = definicion.nombre + QStringLiteral(".csv");
    QFile fichero(QDir(carpeta).filePath(nombre));
    if (!fichero.open(QIODevice::ReadOnly)) {
        faltas << Falta{nombre, 0, QStringLiteral("no se puede leer")};
        return {};
    }
    QList<Fila> filas = Cortar_Csv(fichero.readAll(), nombre, faltas);
    if (filas.isEmpty() || filas.first().celdas != definicion.columnas) {
        faltas << Falta{
            nombre, 1,
            QStringLiteral("la cabecera debe ser %1").arg(definicion.columnas.join(','))};
        return {};
    }
    filas.removeFirst();
    QList<Fila> buenas;
    for (const Fila& f : filas)
        if (const QString motivo = Motivo_Fila(definicion, f); !motivo.isEmpty())
            faltas << Falta{nombre, f.linea, motivo};
        else
            buenas << f;
    return buenas;
}

void Comprobar_Claves(const Tabla& tabla, QList<Falta>& faltas)
{
    std::map<QStringList, int> vistas;
    for (qsizetype i = 0; i < tabla.Filas(); ++i) {
        QStringList clave;
        for (const QString& c : tabla.Definicion().clave)
            clave << tabla.Celda(i, c);
        const auto [donde, nueva] = vistas.emplace(clave, tabla.Linea(i));
        if (!nueva)
            faltas << tabla.Falta_En(i, QStringLiteral("repite la clave (%1) de la línea %2")
                                            .arg(clave.join(QStringLiteral(", ")))
                                            .arg(donde->second));
    }
}

} // namespace

const QList<Definicion_Tabla>& Definiciones()
{
    static const QList<Definicion_Tabla> lista = Declarar();
    return lista;
}

Tabla::Tabla(const Definicion_Tabla& una, const QList<Fila>& unas) : definicion(&una), filas(unas)
{
}

QString Tabla::Celda(qsizetype fila, QAnyStringView columna) const
{
    const QStringList& nombres = definicion->columnas;
    for (qsizetype i = 0; i < nombres.size(); ++i)
        if (QAnyStringView::equal(nombres[i], columna)) return filas[fila].celdas[i];
    qFatal("no column %s", qPrintable(columna.toString()));
}

int Tabla::Numero(qsizetype fila, QAnyStringView columna) const
{
    return Celda(fila, columna).toInt();
}

Falta Tabla::Falta_En(qsizetype fila, const QString& motivo) const
{
    return {Fichero(), Linea(fila), motivo};
}

Juego Leer_Tablas(const QString& carpeta, QList<Falta>& faltas)
{
    Juego juego;
    for (const Definicion_Tabla& d : Definiciones()) {
        juego.emplace(d.nombre, Tabla(d, Leer_Filas(carpeta, d, faltas)));
        Comprobar_Claves(juego.at(d.nombre), faltas);
    }
    return juego;
}
