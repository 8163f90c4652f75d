#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/Error_Ejecucion.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "formats/ModFormatos.h"
#include "session/Consultas_Sesion.h"
#include "session/ModVDatos.h"

#include <algorithm>

namespace {

// The families asked for: the one of --maquina, or all.
QStringList Maquinas_De(const Argumentos& a, const Instalacion& instalacion)
{
    if (!a.Hay("maquina")) return Claves_Familias();
    instalacion.Elegir_Maquina(a.Opcion("maquina"));
    return {Clave_Estacion};
}

// The joiners of general data in signs that can be read.
QString Legible(QString datosg)
{
    return datosg.replace(QChar(SEP_LISTA), u'|').replace(QChar(SEP_CAMPO), u'=');
}

} // namespace

int Orden_Modelos(const Contexto& c, const QStringList& palabras)
{
    Argumentos(palabras, {}).Sueltos(0, 0);
    const Instalacion instalacion(c);
    c.Fila({"Nombre", "Clave", "Velocidades"});
    for (Recorrido r = Base_Datos->Recorrer("SELECT Nombre, Clave, VelPuerto FROM KRT");
         r.Siguiente();)
        c.Fila({r.Texto(0), r.Texto(1), r.Texto(2)});
    return HECHO;
}

int Orden_Operaciones(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo"});
    a.Sueltos(0, 0);
    const QString modelo = a.Obligada("modelo");
    const Instalacion instalacion(c);
    instalacion.Elegir_Modelo(modelo);
    c.Fila({"OPE", "TipOpe", "DESOPE"});
    for (Recorrido r = Base_Datos->Recorrer("SELECT OPE, TipOpe, DESOPE FROM KRT2 WHERE Nombre = ?",
                                            {Clave_Estacion});
         r.Siguiente();)
        c.Fila({r.Texto(0), r.Texto(1), r.Texto(2)});
    return HECHO;
}

int Orden_Sesiones(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"maquina"});
    a.Sueltos(0, 0);
    const Instalacion instalacion(c);
    QList<std::pair<qint64, QStringList>> filas;
    for (const QString& maquina : Maquinas_De(a, instalacion)) {
        Conjunto_Registros s = Base_Datos->OpenRecordset(SQL_Sesiones(maquina));
        for (; !s.Es_EOF(); s.MoveNext()) {
            QStringList celdas;
            for (const Columna_Sesion& columna : Columnas_Sesion())
                celdas << Texto_Celda(columna, s.Valor(columna.campo));
            celdas.insert(3, s.Texto("nOpe"));
            filas.append({s.Entero("Id"), celdas});
        }
    }
    std::ranges::stable_sort(filas, std::greater{}, [](const auto& f) { return f.first; });
    c.Fila(
        {"Id", "Fecha", "Hora", "OPE", "Tipo Fichero", "Nombre de Sesión", "Aparato", "Nº Puntos"});
    for (const auto& fila : filas)
        c.Fila(fila.second);
    return HECHO;
}

int Orden_Formatos(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"maquina"});
    a.Sueltos(0, 0);
    const Instalacion instalacion(c);
    c.Fila({"Nombre", "Maquina", "OPE", "Modificable", "Campos"});
    for (const QString& maquina : Maquinas_De(a, instalacion))
        for (const QString& nombre : Nombres_Formatos(*Base_Datos, maquina)) {
            const auto formato = Buscar_Formato(*Base_Datos, maquina, nombre);
            if (!formato) continue;
            QStringList campos;
            try {
                campos = Campos_Formato(*Base_Datos, maquina, nombre);
            } catch (const Error_Ejecucion& e) {
                // A name that its own statement can't hold hides its fields, not the other formats.
                c.Mensaje(nombre + ": " + e.descripcion);
            }
            // Behind 40 characters a field of the level carries the mark of its half.
            if (Familia_De(maquina).serie == Serie::Nivel)
                for (QString& campo : campos)
                    campo = Basico::Trim(campo.left(40));
            c.Fila({nombre, maquina, QString::number(formato->ope),
                    formato->modificable ? "SI" : "NO", campos.join(u',')});
        }
    return HECHO;
}

int Orden_Ver(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {}, {"campos"});
    const int id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    const Instalacion instalacion(c);
    const Sesion_Elegida sesion = instalacion.Elegir_Sesion(id);
    Recorrido r = Base_Datos->Recorrer(
        "SELECT Secuencia, Punto, Datos, DatosG FROM Registros WHERE ID = ? ORDER BY Secuencia",
        {id});
    if (!a.Hay("campos")) {
        c.Fila({"Secuencia", "Punto", "Datos", "DatosG"});
        while (r.Siguiente())
            c.Fila({r.Texto(0), r.Texto(1), r.Texto(2), Legible(r.Texto(3))});
        return HECHO;
    }
    c.Fila({"Secuencia", "Punto", "Campo", "Valor"});
    Visor_Registros visor(*Base_Datos, sesion.maquina, sesion.ope);
    QString datos;
    while (r.Siguiente()) {
        r.Texto(2, datos);
        const Vista_Registro* const vista = visor.Mirar(datos);
        if (!vista) continue;
        const QString secuencia = r.Texto(0), punto = r.Texto(1);
        for (const Linea_Rejilla& l : Llenar_Rejilla(vista->nombres, vista->valores))
            c.Fila({secuencia, punto, l.campo, l.valor});
    }
    return HECHO;
}
