#include "tools/base/Escritura.h"

#include "core/Error_Ejecucion.h"
#include "core/Familia.h"
#include "core/jet/Base.h"
#include "core/jet/Esquema.h"
#include "core/Renovacion.h"

#include <QFile>

namespace {

constexpr int ANCHO_CAMPO_NIVEL = 40;

QString Descripcion(const Juego& juego, int ope)
{
    const Tabla& t = juego.at("OPE");
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (t.Numero(i, "OPE") == ope) return t.Celda(i, "DESOPE");
    return {};
}

/// A level format's field fills 40 characters; half and a filler stand behind it.
QString Campo_De_Nivel(const QString& celda)
{
    return celda.mid(2).leftJustified(ANCHO_CAMPO_NIVEL) + celda.left(1) + u'0';
}

/// The value that the database holds for a column of a row.
QVariant Valor(const Juego& juego, const Tabla& t, qsizetype fila, const Esquema::Columna& columna)
{
    const QString tabla = t.Definicion().nombre;
    if (tabla == QLatin1String("KRT2") && columna.nombre == QLatin1String("DESOPE"))
        return Descripcion(juego, t.Numero(fila, "OPE"));
    QString celda = t.Celda(fila, columna.nombre);
    if (columna.tipo == Esquema::Tipo::Entero) return celda.toInt();
    if (tabla == QLatin1String("Campos") && columna.nombre == QLatin1String("Caracter") &&
        celda.isEmpty())
        return QVariant();
    if (tabla == QLatin1String("Formatos2") && columna.nombre == QLatin1String("Campo") &&
        Familia_De(t.Celda(fila, "Maquina")).serie == Serie::Nivel)
        return Campo_De_Nivel(celda);
    if (columna.nombre == QLatin1String("Codigos")) return QString(celda).replace(u'|', QChar(6));
    return celda;
}

/// Models that a row of the step help is for; one nameless entry for the rows of other tables.
QStringList Modelos(const Juego& juego, const Tabla& t, qsizetype fila)
{
    if (t.Definicion().nombre != QLatin1String("Ayudas")) return {QString()};
    const QString maquina = t.Celda(fila, "Maquina");
    if (!maquina.startsWith('*')) return {maquina};
    const Tabla& krt = juego.at("KRT");
    QStringList modelos;
    for (qsizetype i = 0; i < krt.Filas(); ++i)
        if (krt.Celda(i, "Clave") == maquina.mid(1)) modelos << krt.Celda(i, "Nombre");
    return modelos;
}

void Escribir_Tabla(const Juego& juego, const Tabla& t, Base& base, QList<Falta>& faltas)
{
    const Esquema::Tabla& esquema = *Esquema::Buscar_Tabla(t.Definicion().nombre);
    QStringList columnas;
    for (const Esquema::Columna& c : esquema.columnas)
        columnas << c.nombre;
    Insercion insercion = base.Preparar_Insercion(esquema.nombre, columnas);
    for (qsizetype i = 0; i < t.Filas(); ++i)
        for (const QString& modelo : Modelos(juego, t, i)) {
            QVariantList valores;
            for (const Esquema::Columna& c : esquema.columnas)
                valores << (!modelo.isEmpty() && c.nombre == QLatin1String("Maquina")
                                ? QVariant(modelo)
                                : Valor(juego, t, i, c));
            try {
                insercion.Anadir(valores);
            } catch (const Error_Ejecucion& e) {
                faltas << t.Falta_En(i, QStringLiteral("(%1) %2").arg(e.numero).arg(e.descripcion));
            }
        }
}

} // namespace

bool Escribir_Base(const Juego& juego, const QString& fichero, QList<Falta>& faltas,
                   const QString& sello)
{
    const QString nueva = fichero + QStringLiteral(".nueva");
    QFile::remove(nueva);
    const qsizetype antes = faltas.size();
    {
        const std::shared_ptr<Base> base = Base::Crear(nueva);
        Transaccion transaccion(*base);
        for (const Definicion_Tabla& d : Definiciones())
            Escribir_Tabla(juego, juego.at(d.nombre), *base, faltas);
        transaccion.Confirmar();
        Sellar_Entregadas(*base, sello);
        base->Close();
    }
    if (faltas.size() > antes) {
        QFile::remove(nueva);
        return false;
    }
    QFile::remove(fichero);
    if (!QFile::rename(nueva, fichero)) throw Error_Ejecucion(75, fichero);
    return true;
}
