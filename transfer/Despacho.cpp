#include "transfer/Despacho.h"

#include "core/Ayuda.h"
#include "core/Estado_Global.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "session/Filtro_Extensiones.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/krt300/Subida_KRT300.h"
#include "transfer/krt800/Subida_KRT800.h"
#include "transfer/nv400/Subida_Nivel.h"
#include "transfer/Peticiones_Transfer.h"

namespace {

const QString DESCARGA = "D";
const QString CARGA = "C";

// The download road common to all families: reminder, session name, step help, port, dialog.
void Empezar_Descarga(const Familia& familia, int operacion)
{
    if (Reclamar_La_En_Curso()) return;
    Peticiones_Transfer& pide = Peticiones_De_Transfer();
    pide.Ocultar_FrmIni();
    if (Ayuda_Recuerde) pide.Mostrar_Recordatorio();
    QString nombre;
    if (familia.pide_nombre) {
        nombre = pide.Pedir_Nombre_Sesion();
        if (nombre.isEmpty()) return;
    }
    Paso_Ayuda = 1;
    if (Ayuda_Visible) pide.Mostrar_Pasos(DESCARGA, QString::number(operacion));
    Descarga* const descarga = pide.Dialogo_Descarga();
    if (!descarga || !descarga->Abrir_Puerto()) return;
    descarga->Preparar(operacion, nombre);
    pide.Mostrar_Descarga();
}

void Descargar_Serie_A(const Familia& familia, int operacion)
{
    switch (Operacion(operacion)) {
    case Operacion::Medicion:
    case Operacion::Coordenadas:
    case Operacion::Calculadas:
        Empezar_Descarga(familia, Operacion_En_El_Enlace(familia, operacion));
        break;
    case Operacion::Libreria:
        Peticiones_De_Transfer().Recibir_Libreria(operacion);
        break;
    default:
        break;
    }
}

void Cargar_Serie_A(int operacion)
{
    switch (Operacion(operacion)) {
    case Operacion::Coordenadas:
        Subir_Puntos(operacion);
        break;
    case Operacion::Libreria:
        Subir_Libreria(operacion);
        break;
    default:
        break;
    }
}

void Cargar_Serie_B(int operacion, const QString& filtro)
{
    switch (Operacion(operacion)) {
    case Operacion::Libreria:
        Subir_Libreria_KRT800(filtro);
        break;
    case Operacion::Puntos:
    case Operacion::Replanteo:
        Subir_Puntos_KRT800(operacion, filtro);
        break;
    case Operacion::Alineaciones:
    case Operacion::Perfiles:
    case Operacion::Perfiles_Proyecto:
    case Operacion::Rasantes:
        Subir_Diseno_KRT800(operacion, filtro);
        break;
    default:
        Interfaz_Actual().Mensaje("El tipo de Carga no existe", Icono::Critico);
    }
}

void Lanzar_Descarga(const Familia& familia, int operacion)
{
    switch (familia.serie) {
    case Serie::A:
        Descargar_Serie_A(familia, operacion);
        break;
    case Serie::B:
        Empezar_Descarga(familia, operacion);
        break;
    case Serie::Nivel:
        if (Operacion(operacion) == Operacion::Medicion) Empezar_Descarga(familia, operacion);
        break;
    case Serie::Ninguna:
        break;
    }
}

void Lanzar_Carga(const Familia& familia, int operacion, const QString& filtro)
{
    // A file takes no line.
    if (familia.carga != Carga::Fichero && Reclamar_La_En_Curso()) return;
    switch (familia.serie) {
    case Serie::A:
        Cargar_Serie_A(operacion);
        break;
    case Serie::B:
        Cargar_Serie_B(operacion, filtro);
        break;
    case Serie::Nivel:
        Subir_NV400(operacion);
        break;
    case Serie::Ninguna:
        break;
    }
}

} // namespace

Peticiones_Transfer& Peticiones_De_Transfer()
{
    return Estado_Global::Unico<Peticiones_Transfer>();
}

QList<Operacion_Ofrecida> Operaciones_Ofrecidas(const QString& tipo_ope)
{
    QList<Operacion_Ofrecida> lista;
    Conjunto_Registros filas =
        Base_Datos->OpenRecordset("SELECT * From KRT2,OPE WHERE OPE.OPE = KRT2.OPE AND Nombre = '" +
                                      Clave_Estacion + "' AND TipOpe = '" + tipo_ope + "'",
                                  Tipo_Conjunto::Instantanea);
    for (; !filas.Es_EOF(); filas.MoveNext())
        lista.append({filas.Texto("OPE.DESOPE"), int(filas.Entero("KRT2.OPE"))});
    return lista;
}

void Lanzar_Operacion(const QString& maquina, int operacion, const QString& tipo_ope)
{
    const Familia& familia = Familia_De(maquina);
    if (familia.serie == Serie::Ninguna) return;
    if (tipo_ope == DESCARGA) Lanzar_Descarga(familia, operacion);
    if (tipo_ope != CARGA) return;
    const QString filtro = Filtro_Extensiones(maquina, operacion, tipo_ope);
    if (!filtro.isNull()) Lanzar_Carga(familia, operacion, filtro);
}

Texto_Recordatorio Leer_Recordatorio()
{
    return {"Conecte el aparato al puerto " + Puerto +
                " y configúrelo con los siguientes parámetros:",
            {"Velocidad: " + Velocidad, "Bits de Datos: " + Bits_Datos, "Paridad: " + Paridad,
             "Bit de Parada: " + Bits_Parada}};
}
