#include "transfer/Despacho.h"

#include "core/Ayuda.h"
#include "core/Estado_Global.h"
#include "core/ModEstTotal.h"
#include "transfer/Descarga.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/Subida_Nivel.h"

namespace {

const QString DESCARGA = "D";
const QString CARGA = "C";

// The download road common to all families: reminder, session name, step help, port, dialog.
void Empezar_Descarga(const QString& maquina, int operacion)
{
    Peticiones_Transfer& pide = Peticiones_De_Transfer();
    if (Descarga* en_curso = pide.Dialogo_Descarga(false); en_curso && en_curso->En_Marcha()) {
        Interfaz_Actual().Pitar();
        pide.Mostrar_Descarga();
        return;
    }
    pide.Ocultar_FrmIni();
    if (Ayuda_Recuerde) pide.Mostrar_Recordatorio();
    QString nombre;
    // The level's session names come from its data.
    if (maquina != u"NV400") {
        nombre = pide.Pedir_Nombre_Sesion();
        if (nombre.isEmpty()) return;
    }
    Paso_Ayuda = 1;
    if (Ayuda_Visible) pide.Mostrar_Pasos(DESCARGA, QString::number(operacion));
    Descarga* const descarga = pide.Dialogo_Descarga(true);
    if (!descarga || !descarga->Abrir_Puerto()) return;
    descarga->Preparar(operacion, nombre);
    pide.Mostrar_Descarga();
}

void No_Disponible(const QString& que)
{
    Interfaz_Actual().Mensaje(que + " todavía no está disponible en esta versión",
                              Icono::Informacion);
}

void Lanzar_Serie_A(const QString& maquina, int operacion, const QString& tipo_ope)
{
    if (tipo_ope == DESCARGA) {
        if (operacion == 0 || operacion == 1) Empezar_Descarga(maquina, operacion);
        // Only the routing knows 11 from 1.
        else if (operacion == 11) Empezar_Descarga(maquina, 1);
        else if (operacion == 2) No_Disponible("La descarga de librerías de códigos");
    } else if (tipo_ope == CARGA) {
        if (Filtro_Extensiones(maquina, operacion, tipo_ope).isNull()) return;
        if (operacion == 1) No_Disponible("La carga de coordenadas");
        else if (operacion == 2) No_Disponible("La carga de librerías de códigos");
    }
}

void Lanzar_Nivel(const QString& maquina, int operacion, const QString& tipo_ope)
{
    if (tipo_ope == DESCARGA) {
        if (operacion == 0) Empezar_Descarga(maquina, operacion);
    } else if (tipo_ope == CARGA) {
        if (Filtro_Extensiones(maquina, operacion, tipo_ope).isNull()) return;
        Subir_NV400(operacion);
    }
}

void Lanzar_Serie_B(const QString& maquina, int operacion, const QString& tipo_ope)
{
    if (tipo_ope == DESCARGA) {
        Empezar_Descarga(maquina, operacion);
        return;
    }
    if (tipo_ope != CARGA) return;
    if (Filtro_Extensiones(maquina, operacion, tipo_ope).isNull()) return;
    switch (operacion) {
    case 2: No_Disponible("La carga de librerías de códigos"); break;
    case 4:
    case 9: No_Disponible("La carga de coordenadas"); break;
    case 6: No_Disponible("La carga de alineaciones"); break;
    case 7:
    case 10: No_Disponible("La carga de perfiles transversales"); break;
    case 8: No_Disponible("La carga de rasantes"); break;
    default: Interfaz_Actual().Mensaje("El tipo de Carga no existe", Icono::Critico);
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
    Conjunto_Registros filas = Base_Datos->OpenRecordset(
        "SELECT * From KRT2,OPE WHERE OPE.OPE = KRT2.OPE AND Nombre = '" + Clave_Estacion +
            "' AND TipOpe = '" + tipo_ope + "'",
        Tipo_Conjunto::Instantanea);
    for (; !filas.Es_EOF(); filas.MoveNext())
        lista.append({filas.Texto("OPE.DESOPE"), int(filas.Entero("KRT2.OPE"))});
    return lista;
}

void Lanzar_Operacion(const QString& maquina, int operacion, const QString& tipo_ope)
{
    if (maquina == u"KRT300" || maquina == u"PX7") Lanzar_Serie_A(maquina, operacion, tipo_ope);
    else if (maquina == u"NV400") Lanzar_Nivel(maquina, operacion, tipo_ope);
    else if (maquina == u"KRT800") Lanzar_Serie_B(maquina, operacion, tipo_ope);
}

QString Filtro_Extensiones(const QString& maquina, int operacion, const QString& tipo_ope)
{
    Conjunto_Registros operaciones = Base_Datos->OpenRecordset("KRT2");
    operaciones.Index("PrimaryKey");
    operaciones.Seek({maquina, operacion, tipo_ope});
    if (operaciones.NoMatch()) {
        Interfaz_Actual().Mensaje("No hay extensiones definidas para esta operación", Icono::Critico);
        Interfaz_Actual().Terminar(1);
        return {};
    }
    Conjunto_Registros tipos = Base_Datos->OpenRecordset("CONVERT");
    tipos.Index("PrimaryKey");
    QString filtro;
    for (const QString& clave : operaciones.Texto("Conv").split(u',')) {
        tipos.Seek({clave});
        if (!tipos.NoMatch())
            filtro += u'|' + Basico::Trim(tipos.Texto("descripcion")) + u'|' +
                      Basico::Trim(tipos.Texto("ext"));
    }
    return filtro.isEmpty() ? QStringLiteral("") : filtro.mid(1);
}

Texto_Recordatorio Leer_Recordatorio()
{
    return {"Conecte el aparato al puerto " + Puerto + " y configúrelo con los siguientes parámetros:",
            {"Velocidad: " + Velocidad, "Bits de Datos: " + Bits_Datos, "Paridad: " + Paridad,
             "Bit de Parada: " + Bits_Parada}};
}
