#include "export/GuardarN.h"

#include "core/ModEstTotal.h"
#include "export/Escritor_Texto.h"
#include "formats/ModFormatos.h"
#include "session/Decodificador.h"

#include <algorithm>
#include <utility>

namespace {

// The last run has no known end.
constexpr qint64 ULTIMA_SECUENCIA = 999999;

// A session on its way into rows.
struct Sesion_A_Formatear {
    Base& bd;
    qint64 id;
    const QString& maquina;
    int ope;
    const QStringList& campos;
    Avance_Exportar& avance;
};

// Moves the bar now and then, and lets the interface repaint.
class Marcador {
public:
    Marcador(Avance_Exportar& avance_, qint64 total) : avance(avance_) { avance.Maximo(total); }
    void Paso()
    {
        if (++hechos % PASOS_POR_REPINTADO != 0) return;
        avance.Valor(hechos);
        Interfaz_Actual().Repintar();
    }
    void Terminar() { avance.Valor(hechos); }

private:
    Avance_Exportar& avance;
    qint64 hechos = 0;
};

// One output row on its way: the cells by field, and the table that takes them.
class Fila_En_Curso {
public:
    Fila_En_Curso(Filas_Exportar& filas_, qsizetype campos) : celdas(campos), filas(filas_)
    {
        filas.assign(std::size_t(campos), {});
    }

    // Adds the row to the table; the cells are empty again.
    void Guardar()
    {
        for (qsizetype c = 0; c < celdas.size(); ++c)
            filas[std::size_t(c)].push_back(std::exchange(celdas[c], QString()));
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

// KRT300 and PX7, one query a run.
void Formatear_Por_Corridas(const Sesion_A_Formatear& s, Filas_Exportar& filas)
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
bool Formatear_De_Una_Pasada(const Sesion_A_Formatear& s, Filas_Exportar& filas)
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
        if (con_generales) {
            lineas.Texto(3, texto);
            decodificador.General(texto, fila.celdas);
        }
        marcador.Paso();
    }
    if (corridas > 0) cerrar();
    marcador.Terminar();
    return secuencia <= ULTIMA_SECUENCIA;
}

void Formatear_KRT300(const Sesion_A_Formatear& s, Filas_Exportar& filas)
{
    if (!Formatear_De_Una_Pasada(s, filas)) Formatear_Por_Corridas(s, filas);
}

void Formatear_KRT800(const Sesion_A_Formatear& s, Filas_Exportar& filas)
{
    Decodificador decodificador(s.bd, s.maquina, s.ope, s.campos);
    Fila_En_Curso fila(filas, s.campos.size());
    Marcador marcador(s.avance, Contar_Registros(s.bd, s.id));
    Recorrido registros =
        s.bd.Recorrer("SELECT Datos,DatosG FROM Registros WHERE ID = ? ORDER BY SECUENCIA", {s.id});
    QString texto;
    while (registros.Siguiente()) {
        registros.Texto(0, texto);
        decodificador.Linea(texto, fila.celdas);
        registros.Texto(1, texto);
        decodificador.General(texto, fila.celdas);
        fila.Guardar();
        marcador.Paso();
    }
    marcador.Terminar();
}

void Formatear_Nivel(const Sesion_A_Formatear& s, Datos_Formateados& datos)
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
    datos.filas.resize(std::size_t(campos.size()));
    const Sesion_A_Formatear sesion{bd, id, maquina, ope, campos, avance};
    if (maquina == u"KRT300" || maquina == u"PX7")
        Formatear_KRT300(sesion, datos.filas);
    else if (maquina == u"KRT800")
        Formatear_KRT800(sesion, datos.filas);
    else if (maquina == u"NV400")
        Formatear_Nivel(sesion, datos);
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
        for (QString& celda : columna) {
            const qsizetype largo = celda.size();
            if (largo == ancho) continue;
            celda.resize(ancho);
            std::fill(celda.begin() + largo, celda.end(), QChar(u' '));
        }
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
