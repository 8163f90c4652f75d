#include "export/GuardarN.h"

#include "core/ModEstTotal.h"
#include "export/Escritor_Texto.h"
#include "formats/ModFormatos.h"
#include "session/Decodificador.h"

#include <algorithm>

namespace {

// The last run has no known end.
constexpr qint64 ULTIMA_SECUENCIA = 999999;
// Rows between two looks at the interface.
constexpr std::size_t FILAS_POR_REPINTADO = 512;

// Moves the bar now and then, and lets the interface repaint.
class Marcador {
public:
    Marcador(Avance_Exportar& avance_, std::size_t total) : avance(avance_)
    {
        avance.Maximo(qint64(total));
    }
    void Fila_Hecha()
    {
        if (++hechas % FILAS_POR_REPINTADO != 0) return;
        avance.Valor(qint64(hechas));
        Interfaz_Actual().Repintar();
    }
    void Terminar() { avance.Valor(qint64(hechas)); }

private:
    Avance_Exportar& avance;
    std::size_t hechas = 0;
};

// One output row on its way: the cells by field, and the table that takes them.
class Fila_En_Curso {
public:
    Fila_En_Curso(Filas_Exportar& filas_, qsizetype campos) : celdas(campos), filas(filas_) {}

    void Vaciar()
    {
        for (QString& celda : celdas)
            celda.clear();
    }
    void Guardar(std::size_t fila)
    {
        for (qsizetype c = 0; c < celdas.size(); ++c)
            filas[std::size_t(c)][fila] = std::move(celdas[c]);
    }

    QStringList celdas; // `Campos_Fila`

private:
    Filas_Exportar& filas;
};

Filas_Exportar Tabla_Vacia(qsizetype columnas, std::size_t filas)
{
    return Filas_Exportar(std::size_t(columnas), std::vector<QString>(filas));
}

std::size_t Contar_Registros(Base& bd, qint64 id)
{
    Recorrido cuenta = bd.Recorrer("SELECT COUNT(*) FROM Registros WHERE ID = ?", {id});
    return cuenta.Siguiente() ? std::size_t(cuenta.Entero(0)) : 0;
}

// KRT300 and PX7. One pass through the lines serves all runs: their ranges follow one another
// without overlapping, so each line falls into one run at most.
void Formatear_Corridas(Base& bd, qint64 id, Decodificador& decodificador, Filas_Exportar& filas,
                        qsizetype campos, Avance_Exportar& avance)
{
    const std::vector<Corrida_Punto> corridas = Buscar_Corridas(bd, id);
    filas = Tabla_Vacia(campos, corridas.size());
    Marcador marcador(avance, corridas.size());
    Fila_En_Curso fila(filas, campos);
    const bool con_generales = decodificador.Hay_Generales();

    Recorrido lineas = bd.Recorrer(
        "SELECT Secuencia,Punto,Datos,DatosG FROM Registros WHERE ID = ? ORDER BY Secuencia", {id});
    bool hay_linea = lineas.Siguiente();
    for (std::size_t k = 0; k < corridas.size(); ++k) {
        const Corrida_Punto& corrida = corridas[k];
        const QByteArray punto = corrida.punto.toUtf8();
        for (; hay_linea && lineas.Entero(0) <= corrida.secuencia_hasta;
             hay_linea = lineas.Siguiente()) {
            if (lineas.Bytes(1) != punto) continue;
            decodificador.Linea(lineas.Texto(2), fila.celdas);
            if (con_generales) decodificador.General(lineas.Texto(3), fila.celdas);
        }
        decodificador.Poner_Punto(corrida.punto, fila.celdas);
        fila.Guardar(k);
        fila.Vaciar();
        marcador.Fila_Hecha();
    }
    marcador.Terminar();
}

void Formatear_Registros_800(Base& bd, qint64 id, Decodificador& decodificador,
                             Filas_Exportar& filas, qsizetype campos, Avance_Exportar& avance)
{
    const std::size_t total = Contar_Registros(bd, id);
    filas = Tabla_Vacia(campos, total);
    Marcador marcador(avance, total);
    Fila_En_Curso fila(filas, campos);
    Recorrido registros =
        bd.Recorrer("SELECT Datos,DatosG FROM Registros WHERE ID = ? ORDER BY SECUENCIA", {id});
    for (std::size_t r = 0; r < total && registros.Siguiente(); ++r) {
        decodificador.Linea(registros.Texto(0), fila.celdas);
        decodificador.General(registros.Texto(1), fila.celdas);
        fila.Guardar(r);
        fila.Vaciar();
        marcador.Fila_Hecha();
    }
    marcador.Terminar();
}

void Formatear_Registros_Nivel(Base& bd, qint64 id, Decodificador& decodificador,
                               Datos_Formateados& datos, qsizetype campos, Avance_Exportar& avance)
{
    const std::size_t total = Contar_Registros(bd, id);
    datos.filas = Tabla_Vacia(campos, total);
    Marcador marcador(avance, total);
    Fila_En_Curso fila(datos.filas, campos);
    Recorrido registros = bd.Recorrer("SELECT Datos FROM Registros WHERE ID = ?", {id});
    for (std::size_t r = 0; r < total && registros.Siguiente(); ++r) {
        const QString linea = registros.Texto(0);
        if (!linea.isEmpty() && QStringView(u"ghijk").contains(linea.front())) {
            decodificador.Linea(linea, fila.celdas);
            if (campos > 0 && Es_Fila_Marcada(fila.celdas.front()))
                datos.lineas_especiales << linea;
            fila.Guardar(r);
            fila.Vaciar();
        }
        marcador.Fila_Hecha();
    }
    marcador.Terminar();
}

} // namespace

Avance_Exportar::~Avance_Exportar() = default;

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

QStringList Cargar_Campos_Exportar()
{
    const qsizetype fin = Campos_Exportar.indexOf(QString());
    return fin < 0 ? Campos_Exportar : Campos_Exportar.mid(0, fin);
}

Datos_Formateados Formatear_Datos(Base& bd, qint64 id, const QString& maquina, int ope,
                                  const QStringList& campos, Avance_Exportar& avance)
{
    Datos_Formateados datos;
    datos.filas = Tabla_Vacia(campos.size(), 0);
    Decodificador decodificador(bd, maquina, ope, campos);
    if (maquina == u"KRT300" || maquina == u"PX7")
        Formatear_Corridas(bd, id, decodificador, datos.filas, campos.size(), avance);
    else if (maquina == u"KRT800")
        Formatear_Registros_800(bd, id, decodificador, datos.filas, campos.size(), avance);
    else if (maquina == u"NV400")
        Formatear_Registros_Nivel(bd, id, decodificador, datos, campos.size(), avance);
    Ajustar_Filas(datos.filas);
    Igualar_Columnas(datos.filas);
    return datos;
}

void Ajustar_Filas(Filas_Exportar& filas)
{
    Quitar_Vacios(filas);
}

void Igualar_Columnas(Filas_Exportar& filas)
{
    for (auto& columna : filas) {
        qsizetype ancho = 0;
        for (const QString& celda : columna)
            ancho = std::max(ancho, celda.size());
        for (QString& celda : columna)
            if (celda.size() < ancho) celda = celda.leftJustified(ancho);
    }
}

const QList<Salida_Exportar>& Salidas_Exportar()
{
    static const QList<Salida_Exportar> salidas = {
        {"TxF", Escribir_Texto_Formateado, nullptr},
        {"Txt", Escribir_Texto_Separado, nullptr},
        {"Xls", nullptr, nullptr},
        {"mdb", nullptr, nullptr},
    };
    return salidas;
}

Escritor Escritor_De(const QString& tipo)
{
    for (const Salida_Exportar& salida : Salidas_Exportar())
        if (salida.tipo.compare(tipo, Qt::CaseInsensitive) == 0)
            return Clave_Estacion == u"NV400" ? salida.escribir_nivel : salida.escribir;
    return nullptr;
}

bool Exportar_Sesion(qint64 id, const QString& maquina, int ope, const QString& tipo,
                     const QString& formato, const QString& fichero, const QString& opciones,
                     Avance_Exportar& avance)
{
    const Escritor escribir = Escritor_De(tipo);
    if (!escribir) return false;
    bool hecho = false;
    try {
        const std::shared_ptr<Base> bd = Base::Abrir(Fichero_MDB);
        avance.Etiqueta("Formateando Datos... (1 de 2)");
        Interfaz_Actual().Repintar();
        const QStringList campos = Cargar_Campos_Exportar();
        const Datos_Formateados datos = Formatear_Datos(*bd, id, maquina, ope, campos, avance);

        avance.Valor(0);
        avance.Etiqueta("Exportando... (2 de 2)");
        Interfaz_Actual().Repintar();
        hecho =
            escribir({*bd, id, maquina, ope, formato, fichero, campos, opciones, datos, avance});
    } catch (...) {
        Informe_Error("Se produjo un error al formatear los datos", Error_En_Curso());
    }
    avance.Valor(0);
    return hecho;
}
