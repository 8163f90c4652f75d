#include "formats/ModFormatos.h"

#include "core/Estado_Global.h"
#include "core/Familia.h"
#include "core/Sucesos.h"
#include "core/Texto_SQL.h"
#include "formats/Nombre_Formato.h"
#include "session/Identificador.h"

QStringList Campos_Exportar = QStringList(MAX_CAMPOS, QString());
bool Incluir_Cabeceras = false;
[[maybe_unused]] static const bool anotadas =
    Estado_Global::Anotar(Campos_Exportar) && Estado_Global::Anotar(Incluir_Cabeceras);

namespace {

// Takes an identifier into the next free slot unless it stands in one; an empty one stands in every
// free slot.
void Anotar_Id(int& libre, const QString& id)
{
    const QString doblado = Doblar(id);
    if (esta_en_datosexport(doblado)) return;
    if (libre >= MAX_IDS) throw Error_Ejecucion(9);
    datosexport[libre++] = doblado;
}

// What was found in a session, as long as nothing is written to the database: the dialogs ask anew
// for each format that is picked.
struct Ids_De_Sesion {
    quint64 version = 0;
    Sesion_Elegida sesion;
    QStringList ids;

    bool Son_De(quint64 de_version, const Sesion_Elegida& otra) const
    {
        return version == de_version && sesion.id == otra.id && sesion.maquina == otra.maquina &&
               sesion.ope == otra.ope;
    }
};

// Fills the empty `datosexport`, in the order of the lines.
void Sacar_De_Las_Lineas(Base& bd, const Sesion_Elegida& sesion)
{
    static Ids_De_Sesion ultimos;
    const quint64 version = bd.Version();
    if (ultimos.Son_De(version, sesion)) {
        datosexport = ultimos.ids;
        return;
    }
    const Familia& familia = Familia_De(sesion.maquina);
    int libre = 0;
    QStringList vistos;
    QString linea;
    // An order that the index serves: no session is sorted to be looked through.
    Recorrido registros = bd.Recorrer(SQL_Registros(sesion.id) + " ORDER BY Secuencia");
    while (registros.Siguiente()) {
        registros.Texto(1, linea);
        const QStringView id = Id_De_Formato(linea, familia, sesion.ope);
        if (vistos.contains(id)) continue;
        Anotar_Id(libre, id.toString());
        if (!id.isEmpty()) vistos << id.toString();
    }
    ultimos = {version, sesion, datosexport};
}

Formato Formato_De(const Conjunto_Registros& formatos)
{
    Formato f;
    f.nombre = formatos.Texto("Nombre");
    f.maquina = formatos.Texto("Maquina");
    f.descripcion = formatos.Texto("descripcion");
    f.ids = formatos.Texto("Ids");
    f.cabeceras = formatos.Texto("cabeceras") == u"SI";
    f.modificable = formatos.Texto("Modificable") == u"SI";
    f.ope = int(formatos.Entero("ope"));
    return f;
}

QString Si_No(bool valor)
{
    return valor ? QStringLiteral("SI") : QStringLiteral("NO");
}

// A table recordset standing on the format of a name.
Conjunto_Registros Situar(Base& bd, const QString& maquina, const QString& nombre)
{
    Conjunto_Registros formatos = bd.OpenRecordset("Formatos1");
    formatos.Index("PrimaryKey");
    // The index has the name first whatever order a sentence gives the two in.
    formatos.Seek({nombre, maquina});
    return formatos;
}

void Borrar_Campos(Base& bd, const QString& maquina, const QString& nombre)
{
    bd.Execute("DELETE FROM FORMATOS2 WHERE Nombre = " + Literal_Formato(nombre) +
               " AND Maquina = '" + maquina + "'");
}

void Escribir_Campos(Base& bd, const Formato& formato)
{
    Conjunto_Registros campos = bd.OpenRecordset("Formatos2");
    campos.Index("PrimaryKey");
    for (qsizetype i = 0; i < formato.campos.size(); ++i) {
        campos.AddNew();
        campos.Poner("Maquina", formato.maquina);
        campos.Poner("Nombre", formato.nombre);
        campos.Poner("sec", i);
        campos.Poner("Campo", formato.campos[i]);
        campos.Update();
    }
}

} // namespace

void Poner_Campos_Exportar(const QStringList& campos)
{
    Campos_Exportar = QStringList(MAX_CAMPOS, QString());
    for (qsizetype i = 0; i < campos.size(); ++i) {
        if (i >= MAX_CAMPOS) throw Error_Ejecucion(9);
        Campos_Exportar[i] = campos[i];
    }
}

void Sacar_IDs(Base& bd, const Sesion_Elegida& sesion, bool formato_nuevo)
{
    Limpiar_IDs();
    const Fila_Operacion& fila = Fila_De(Operacion(sesion.ope));
    // Deliberate: only the dialogs of a new format take the cross sections' lines as one kind.
    if (fila.operacion == Operacion::Puntos ||
        (fila.operacion == Operacion::Perfiles && formato_nuevo)) {
        datosexport[0] = fila.id_fijo;
    } else {
        Sacar_De_Las_Lineas(bd, sesion);
    }
}

void Sacar_Ids_Nuevo(Base& bd, const QString& maquina, int ope)
{
    Limpiar_IDs();
    Recorrido identificadores = bd.Recorrer("SELECT ID FROM Identificadores WHERE Nombre = '" +
                                            maquina + "' AND OPE = '" + QString::number(ope) + "'");
    for (int i = 0; i < MAX_IDS && identificadores.Siguiente(); ++i)
        datosexport[i] = Doblar(identificadores.Texto(0));
}

void Rellenar_IDs(const QString& ids, int ope)
{
    Limpiar_IDs();
    if (const Fila_Operacion& fila = Fila_De(Operacion(ope)); fila.operacion == Operacion::Puntos) {
        datosexport[0] = fila.id_fijo;
        return;
    }
    // Stored identifiers have their apostrophes doubled, delivered ones may not.
    const QStringList piezas = ids.split(u' ');
    for (qsizetype i = 0; i < piezas.size() && i < MAX_IDS; ++i)
        datosexport[i] = Doblar(Reemplazar(piezas[i], "''", "'"));
}

bool esta_en_datosexport(const QString& id)
{
    return Existe_ID(id);
}

bool Comprobar_IDs(const QString& ids, int ope)
{
    // The count runs to the length of the text: the pieces past the last come back empty, and those
    // a table with a free slot always holds.
    for (qsizetype n = 1; n <= ids.size(); ++n)
        if (!esta_en_datosexport(Token_ID(ids, n, ope))) return true;
    return false;
}

QString Aviso_Campos(const QString& formato)
{
    return "El formato (" + formato +
           ") puede contener campos que no esten en los datos transferidos.\r\nSe recomienda crear "
           "un formato nuevo o elegir otro de los existentes!!";
}

QString Lista_Ids_SQL()
{
    QString lista;
    for (const QString& id : datosexport)
        lista += ",'" + Basico::Trim(id) + "' ";
    return lista.mid(1);
}

QString Cadena_Ids(int ope)
{
    return Todos_Los_IDs(ope, datosexport);
}

void Comprobar_Marcas_Coordenadas(Base& bd, const QString& maquina, const QString& campo,
                                  bool& hay_x, bool& hay_y, bool& hay_z)
{
    Conjunto_Registros campos = bd.OpenRecordset("Campos");
    campos.Index("MaqCam");
    campos.Seek({maquina, campo});
    if (campos.NoMatch()) return;
    const QString marca = campos.Texto("Marcas").toUpper();
    if (marca == u"CX") hay_x = true;
    if (marca == u"CY") hay_y = true;
    if (marca == u"CZ") hay_z = true;
}

void Ofrecer_Campos(Base& bd, const QString& maquina, Dos_Listas& listas, bool punto_primero,
                    Generales generales, int ope)
{
    const bool con_punto = Familia_De(maquina).ofrece_punto;
    if (con_punto && punto_primero) listas.Ofrecer("Punto");
    Recorrido campos = bd.Recorrer("SELECT DISTINCT Campo,Marcas FROM Campos WHERE id IN (" +
                                   Lista_Ids_SQL() + ") and Maquina = '" + maquina + "' ");
    while (campos.Siguiente())
        if (campos.Texto(1) != u"NL") listas.Ofrecer(campos.Texto(0));
    if (con_punto) listas.Ofrecer("Punto");

    QString sql = "SELECT Campo FROM Campos LEFT JOIN identificadores ON campos.maquina = "
                  "identificadores.nombre AND campos.id = identificadores.id WHERE Tipo = 'G' and "
                  "maquina = '" +
                  maquina + "' AND Marcas <> 'NL'";
    if (generales == Generales::De_La_Operacion) sql += " AND OPE = " + QString::number(ope);
    Recorrido de_generales = bd.Recorrer(sql);
    while (de_generales.Siguiente())
        listas.Ofrecer(de_generales.Texto(0));
}

QStringList Nombres_Formatos(Base& bd, const QString& maquina, std::optional<int> ope)
{
    QString sql = "SELECT Nombre FROM Formatos1 WHERE ";
    if (ope) sql += "OPE='" + QString::number(*ope) + "' AND ";
    Recorrido formatos = bd.Recorrer(sql + "Maquina = '" + maquina + "'");
    QStringList nombres;
    while (formatos.Siguiente())
        nombres << formatos.Texto(0);
    return nombres;
}

std::optional<Formato> Buscar_Formato(Base& bd, const QString& maquina, const QString& nombre)
{
    const Conjunto_Registros formatos = Situar(bd, maquina, nombre);
    if (formatos.NoMatch()) return std::nullopt;
    return Formato_De(formatos);
}

QStringList Campos_Formato(Base& bd, const QString& maquina, const QString& nombre)
{
    Recorrido campos = bd.Recorrer(
        "SELECT Campo FROM Formatos2 WHERE Formatos2.Nombre = " + Literal_Formato(nombre) +
        " And Formatos2.Maquina = '" + maquina + "' ORDER By Formatos2.Sec");
    QStringList lista;
    while (campos.Siguiente())
        lista << campos.Texto(0);
    return lista;
}

void Guardar_Formato(Base& bd, const Formato& formato, bool nuevo)
{
    Transaccion transaccion(bd);
    Conjunto_Registros formatos = Situar(bd, formato.maquina, formato.nombre);
    if (nuevo || formatos.NoMatch()) {
        formatos.AddNew();
        formatos.Poner("Maquina", formato.maquina);
        formatos.Poner("Nombre", formato.nombre);
    } else {
        formatos.Edit();
        Borrar_Campos(bd, formato.maquina, formato.nombre);
    }
    formatos.Poner("descripcion", formato.descripcion);
    formatos.Poner("cabeceras", Si_No(formato.cabeceras));
    formatos.Poner("Modificable", Si_No(formato.modificable));
    formatos.Poner("ope", formato.ope);
    formatos.Poner("Ids", formato.ids);
    formatos.Update();
    Escribir_Campos(bd, formato);
    transaccion.Confirmar();
    Q_EMIT Sucesos::Unico().formatos_cambiados();
}

bool Cambiar_Formato(Base& bd, const Formato& formato)
{
    Transaccion transaccion(bd);
    Conjunto_Registros formatos = Situar(bd, formato.maquina, formato.nombre);
    if (formatos.NoMatch()) return false;
    formatos.Edit();
    formatos.Poner("cabeceras", Si_No(formato.cabeceras));
    formatos.Poner("descripcion", formato.descripcion);
    formatos.Update();
    Borrar_Campos(bd, formato.maquina, formato.nombre);
    Escribir_Campos(bd, formato);
    transaccion.Confirmar();
    Q_EMIT Sucesos::Unico().formatos_cambiados();
    return true;
}

bool Eliminar_Formato(Base& bd, const QString& maquina, const QString& nombre)
{
    if (!Interfaz_Actual().Preguntar("¿ Desea Eliminar el Formato ?", Icono::Pregunta))
        return false;
    Transaccion transaccion(bd);
    Borrar_Campos(bd, maquina, nombre);
    Conjunto_Registros formatos = Situar(bd, maquina, nombre);
    if (!formatos.NoMatch()) formatos.Delete();
    transaccion.Confirmar();
    Q_EMIT Sucesos::Unico().formatos_cambiados();
    return true;
}
