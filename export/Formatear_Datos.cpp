#include "export/Formatear_Datos.h"

#include "core/Error_Ejecucion.h"
#include "core/Familia.h"
#include "export/Filas_Marcadas.h"
#include "session/Decodificador.h"

#include <algorithm>
#include <utility>

namespace {

// The last run has no known end.
constexpr qint64 ULTIMA_SECUENCIA = 999999;

// One output row on its way: the cells by field, and the table that takes them.
class Fila_En_Curso {
public:
    Fila_En_Curso(Filas_Exportar& filas_, qsizetype campos) : celdas(campos), filas(filas_)
    {
        filas.assign(std::size_t(campos), Columna_Exportar());
    }

    // Adds the row to the table; the cells are empty again.
    void Guardar()
    {
        for (qsizetype c = 0; c < celdas.size(); ++c) {
            QString& celda = celdas[c];
            filas[std::size_t(c)].push_back(celda);
            // A text of its own keeps its place for the next row.
            if (celda.isDetached())
                celda.resize(0);
            else
                celda.clear();
        }
    }

    QStringList celdas; // `Campos_Fila`

private:
    Filas_Exportar& filas;
};

qint64 Contar_Registros(Base& bd, qint64 id)
{
    Recorrido cuenta = bd.Recorrer("SELECT COUNT(*) FROM Registros WHERE ID = ?", {id});
    return cuenta.Siguiente() ? cuenta.Entero(0) : 0;
}

// Runs of points, one query a run.
void Llenar_Por_Corridas(const Origen_Exportar& s, Filas_Exportar& filas)
{
    const std::vector<Corrida_Punto> corridas = Buscar_Corridas(s.bd, s.id);
    Marcador marcador(s.avance, qint64(corridas.size()));
    Fila_En_Curso fila(filas, s.campos.size());
    for (const Corrida_Punto& corrida : corridas) {
        Extraer_Punto(s.bd, s.id, s.maquina, s.ope, corrida.punto, corrida.secuencia_desde,
                      corrida.secuencia_hasta, s.campos, fila.celdas);
        fila.Guardar();
        marcador.Paso();
    }
    marcador.Terminar();
}

// The same in one pass through the lines: a run closes where the point changes. This holds while
// the sequence grows from run to run, as every stored session's does.
// @return false when it doesn't, or goes beyond the last run's end: `filas` is then of no use
bool Llenar_De_Una_Pasada(const Origen_Exportar& s, Filas_Exportar& filas)
{
    Decodificador decodificador(s.bd, s.maquina, s.ope, s.campos);
    const bool con_generales = decodificador.Hay_Generales();
    Fila_En_Curso fila(filas, s.campos.size());
    Marcador marcador(s.avance, Contar_Registros(s.bd, s.id));
    QString punto, texto;
    QByteArray bytes_punto;
    std::size_t corridas = 0;
    qint64 secuencia = 0;

    const auto cerrar = [&] {
        decodificador.Poner_Punto(punto, fila.celdas);
        fila.Guardar();
    };
    Recorrido lineas = s.bd.Recorrer(
        "SELECT Secuencia,Punto,Datos,DatosG FROM Registros WHERE ID = ? ORDER BY Secuencia",
        {s.id});
    while (lineas.Siguiente()) {
        const qint64 anterior = std::exchange(secuencia, lineas.Entero(0));
        if (corridas == 0 || lineas.Bytes(1) != bytes_punto) {
            if (corridas > 0 && secuencia == anterior) return false;
            if (corridas++ == MAX_FILAS) throw Error_Ejecucion(9);
            if (corridas > 1) cerrar();
            lineas.Texto(1, punto);
            bytes_punto = lineas.Bytes(1).toByteArray();
        }
        lineas.Texto(2, texto);
        decodificador.Linea(texto, fila.celdas);
        if (con_generales) decodificador.General(lineas.Bytes(3), fila.celdas);
        marcador.Paso();
    }
    if (corridas > 0) cerrar();
    marcador.Terminar();
    return secuencia <= ULTIMA_SECUENCIA;
}

// More points than rows: the runs, which are no fewer, are counted before anything is decoded.
void Rechazar_Demasiados_Puntos(const Origen_Exportar& s)
{
    Recorrido sesion = s.bd.Recorrer("SELECT NPuntos FROM Sesiones WHERE ID = ?", {s.id});
    if (sesion.Siguiente() && sesion.Entero(0) > qint64(MAX_FILAS)) Buscar_Corridas(s.bd, s.id);
}

void Llenar_Con_Puntos(const Origen_Exportar& s, Datos_Formateados& datos)
{
    Rechazar_Demasiados_Puntos(s);
    if (!Llenar_De_Una_Pasada(s, datos.filas)) Llenar_Por_Corridas(s, datos.filas);
}

void Llenar_Con_Registros(const Origen_Exportar& s, Datos_Formateados& datos)
{
    Decodificador decodificador(s.bd, s.maquina, s.ope, s.campos);
    Fila_En_Curso fila(datos.filas, s.campos.size());
    Marcador marcador(s.avance, Contar_Registros(s.bd, s.id));
    Recorrido registros =
        s.bd.Recorrer("SELECT Datos,DatosG FROM Registros WHERE ID = ? ORDER BY SECUENCIA", {s.id});
    QString texto;
    while (registros.Siguiente()) {
        registros.Texto(0, texto);
        decodificador.Linea(texto, fila.celdas);
        decodificador.General(registros.Bytes(1), fila.celdas);
        fila.Guardar();
        marcador.Paso();
    }
    marcador.Terminar();
}

void Llenar_Con_Mediciones(const Origen_Exportar& s, Datos_Formateados& datos)
{
    Decodificador decodificador(s.bd, s.maquina, s.ope, s.campos);
    Fila_En_Curso fila(datos.filas, s.campos.size());
    Marcador marcador(s.avance, Contar_Registros(s.bd, s.id));
    Recorrido registros = s.bd.Recorrer("SELECT Datos FROM Registros WHERE ID = ?", {s.id});
    while (registros.Siguiente()) {
        const QString linea = registros.Texto(0);
        if (!linea.isEmpty() && QStringView(u"ghijk").contains(linea.front())) {
            decodificador.Linea(linea, fila.celdas);
            if (!fila.celdas.isEmpty() && Es_Fila_Marcada(fila.celdas.front()))
                datos.lineas_especiales << linea;
        }
        fila.Guardar();
        marcador.Paso();
    }
    marcador.Terminar();
}

// What makes a row of a session's lines, by the series of its family.
struct Relleno {
    Serie serie;
    void (*llenar)(const Origen_Exportar& s, Datos_Formateados& datos);
};
constexpr Relleno RELLENOS[] = {
    {Serie::A, Llenar_Con_Puntos},
    {Serie::B, Llenar_Con_Registros},
    {Serie::Nivel, Llenar_Con_Mediciones},
};

} // namespace

std::vector<Corrida_Punto> Buscar_Corridas(Base& bd, qint64 id)
{
    std::vector<Corrida_Punto> corridas;
    QByteArray ultimo;
    Recorrido lineas =
        bd.Recorrer("SELECT Secuencia,Punto FROM Registros WHERE ID = ? ORDER BY Secuencia", {id});
    while (lineas.Siguiente()) {
        if (!corridas.empty() && lineas.Bytes(1) == ultimo) continue;
        if (corridas.size() == MAX_FILAS) throw Error_Ejecucion(9);
        const qint64 secuencia = lineas.Entero(0);
        if (!corridas.empty()) corridas.back().secuencia_hasta = secuencia - 1;
        corridas.push_back({lineas.Texto(1), secuencia, ULTIMA_SECUENCIA});
        ultimo = lineas.Bytes(1).toByteArray();
    }
    return corridas;
}

Datos_Formateados Formatear_Datos(const Origen_Exportar& origen)
{
    Datos_Formateados datos;
    datos.campos = origen.campos;
    datos.filas.resize(std::size_t(origen.campos.size()));
    const Serie serie = Familia_De(origen.maquina).serie;
    const auto relleno = std::ranges::find(RELLENOS, serie, &Relleno::serie);
    if (relleno != std::end(RELLENOS)) relleno->llenar(origen, datos);
    Ajustar_Filas(datos.filas);
    Igualar_Columnas(datos.filas);
    return datos;
}

void Ajustar_Filas(Filas_Exportar& filas)
{
    if (filas.empty()) return;
    std::vector<std::size_t> llenas;
    for (std::size_t fila = 0; fila < filas.front().size(); ++fila)
        if (std::ranges::any_of(filas, [fila](const Columna_Exportar& columna) {
                return columna.Vista(fila).Largo() > 0;
            }))
            llenas.push_back(fila);
    if (llenas.empty() || llenas.size() == filas.front().size()) return;
    for (Columna_Exportar& columna : filas)
        columna.Quedarse_Con(llenas);
}

void Igualar_Columnas(Filas_Exportar& filas)
{
    for (Columna_Exportar& columna : filas)
        columna.Igualar();
}
