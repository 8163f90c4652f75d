#include "transfer/krt800/Perfiles_KRT800.h"

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/jet/Base.h"

#include <algorithm>
#include <QHash>

namespace {

constexpr qint64 FILAS_POR_PASO = 1000;

struct Fila {
    qint64 secuencia = 0;
    QString punto, datos, datosg;
};

using Filas = QList<Fila>;
using Lugares = QList<qsizetype>;

Filas Leer(Base& base, qint64 id)
{
    Filas filas;
    Recorrido r =
        base.Recorrer("SELECT Secuencia, Punto, Datos, DatosG FROM Registros WHERE ID = ?", {id});
    QString datosg;
    while (r.Siguiente()) {
        // The general values change seldom: rows share their text.
        if (r.Bytes(3) != datosg.toUtf8()) datosg = r.Texto(3);
        filas.append({r.Entero(0), r.Texto(1), r.Texto(2), datosg});
    }
    return filas;
}

// The first field with its comma; empty without one.
QStringView Perfil_De(const QString& linea)
{
    return QStringView(linea).left(linea.indexOf(u',') + 1);
}

// Puts the rows of a profile in the order of their second field.
void Ordenar(Lugares& grupo, const Filas& filas)
{
    const QString& primera = filas[grupo.first()].datos;
    const qint64 p = Perfil_De(primera).size();
    const qint64 q = Basico::InStr(p + 1, primera, u",");
    // Odd on purpose: the second field is read to a length of q-1, counted from its start; behind a
    // number the rest of it changes no value.
    const qint64 largo = qMax<qint64>(q - 1, 0);
    QList<std::pair<double, qsizetype>> valores;
    for (const qsizetype i : grupo)
        valores.append({Basico::Val(Basico::Mid(filas[i].datos, p + 1, largo)), i});
    std::stable_sort(valores.begin(), valores.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (qsizetype k = 0; k < grupo.size(); ++k)
        grupo[k] = valores[k].second;
}

// Places of all rows in their new order.
Lugares Nuevo_Orden(const Filas& filas)
{
    QHash<QStringView, Lugares> grupos;
    for (qsizetype i = 0; i < filas.size(); ++i)
        grupos[Perfil_De(filas[i].datos)].append(i);
    Lugares orden;
    QList<bool> puesta(filas.size(), false);
    for (qsizetype i = 0; i < filas.size(); ++i) {
        if (puesta[i]) continue;
        // Such a line has never been taken as the beginning of a profile: the session then stays in
        // the order in which it came.
        if (filas[i].datos.contains(u'\'')) throw Error_Ejecucion::Con(3075, filas[i].datos);
        const QStringView perfil = Perfil_De(filas[i].datos);
        if (perfil.isEmpty()) {
            // Without a comma nothing tells a line from the others: all that are left follow it.
            for (qsizetype k = i; k < filas.size(); ++k)
                if (!puesta[k]) orden.append(k);
            return orden;
        }
        Lugares& grupo = grupos[perfil];
        Ordenar(grupo, filas);
        for (const qsizetype k : grupo)
            puesta[k] = true;
        orden += grupo;
    }
    return orden;
}

} // namespace

bool Ordenar_Perfiles(Base& base, qint64 id,
                      const std::function<bool(qint64 hechas, qint64 todas)>& avance)
{
    Transaccion transaccion(base);
    const Filas filas = Leer(base, id);
    const Lugares orden = Nuevo_Orden(filas);
    base.Execute(QStringLiteral("DELETE FROM Registros WHERE ID = %1").arg(id));
    Insercion insercion =
        base.Preparar_Insercion("Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    insercion.Poner(0, id);
    qint64 hechas = 0;
    for (const qsizetype i : orden) {
        const Fila& f = filas[i];
        insercion.Poner(1, f.secuencia);
        insercion.Poner(2, f.punto);
        insercion.Poner(3, f.datos);
        insercion.Poner(4, f.datosg);
        insercion.Anadir();
        if (++hechas % FILAS_POR_PASO == 0 && avance && !avance(hechas, filas.size())) return false;
    }
    transaccion.Confirmar();
    return true;
}
