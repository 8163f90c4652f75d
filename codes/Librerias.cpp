#include "codes/Librerias.h"

#include "codes/Codigos.h"
#include "codes/Textos_Envio.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"

#include <algorithm>

namespace {

// A table recordset standing on a library; `NoMatch` tells when there is none.
Conjunto_Registros Situar(Base& bd, const Serie_Librerias& serie, const QString& libreria)
{
    Conjunto_Registros filas = bd.OpenRecordset(serie.tabla);
    filas.Index("PrimaryKey");
    filas.Seek({libreria});
    return filas;
}

Conjunto_Registros Situar_Codigo(Base& bd, const QString& libreria, qint64 secuencia)
{
    Conjunto_Registros filas = bd.OpenRecordset("LIB800_2");
    filas.Index("PrimaryKey");
    filas.Seek({libreria, secuencia});
    return filas;
}

// ---- series A: the codes are one text of the library's row

Lista_De_Codigos Leer_A(Base& bd, const QString& libreria)
{
    const Conjunto_Registros fila = Situar(bd, Librerias_De(Serie::A), libreria);
    if (fila.NoMatch()) return {};
    return Como_Libreria(Separar_Codigos(fila.Texto("Codigos")));
}

void Guardar_A(Base& bd, const QString& libreria, const Lista_De_Codigos& codigos)
{
    Conjunto_Registros fila = Situar(bd, Librerias_De(Serie::A), libreria);
    if (fila.NoMatch()) return;
    fila.Edit();
    fila.Poner("Codigos", Unir_Codigos(Solo_Codigos(codigos)));
    fila.Update();
}

QString Envio_A(const QString&, const Lista_De_Codigos& codigos)
{
    return Texto_Libreria(Unir_Codigos(Solo_Codigos(codigos)));
}

QStringList Celdas_A(int numero, const Codigo_Libreria& codigo)
{
    return {QString::number(numero), codigo.codigo};
}

QString Linea_A(int numero, const Codigo_Libreria& codigo)
{
    return Rellenar_Ceros(QString::number(numero), 3) + codigo.codigo;
}

std::optional<Codigo_Libreria> Leer_Linea_A(const QString& linea, QString& motivo)
{
    constexpr int DIGITOS = 3;
    const QString numero = linea.left(DIGITOS);
    if (!Basico::IsNumeric(numero)) {
        motivo = QStringLiteral("no contiene un código de tipo numérico (%1)").arg(numero);
        return std::nullopt;
    }
    return Codigo_Libreria{.codigo = Basico::RTrim(linea.mid(DIGITOS)), .capa = {}};
}

// ---- series B: each code is a row

Lista_De_Codigos Leer_B(Base& bd, const QString& libreria)
{
    Conjunto_Registros filas =
        bd.OpenRecordset("SELECT * FROM LIB800_2 WHERE CODLIBRERIA = '" +
                             Reemplazar(libreria, "'", "''") + "' ORDER BY SECUENCIA",
                         Tipo_Conjunto::Instantanea);
    Lista_De_Codigos lista;
    for (; !filas.Es_EOF(); filas.MoveNext())
        lista.append({filas.Texto("CODIGO"), filas.Entero("ENTIDAD"), filas.Texto("CAPA"),
                      filas.Entero("SECUENCIA")});
    return lista;
}

void Guardar_B(Base& bd, const QString& libreria, const Lista_De_Codigos& codigos)
{
    bd.Execute("DELETE FROM LIB800_2 WHERE CodLibreria = ?", {libreria});
    Insercion filas = bd.Preparar_Insercion(
        "LIB800_2", {"CodLibreria", "SECUENCIA", "CODIGO", "ENTIDAD", "CAPA"});
    qint64 secuencia = 0;
    for (const Codigo_Libreria& c : codigos)
        filas.Anadir({libreria, ++secuencia, c.codigo, c.entidad, c.capa});
}

// Nothing on the wire would tell a code that the instrument can't take from the next line.
QString Envio_B(const QString& libreria, const Lista_De_Codigos& codigos)
{
    const QList<Entidad> entidades = Leer_Entidades(*Base_Datos);
    for (qsizetype i = 0; i < codigos.size(); ++i) {
        const QString motivo = Motivo_De_Codigo(Librerias_De(Serie::B), codigos[i], entidades);
        if (motivo.isEmpty()) continue;
        Interfaz_Actual().Mensaje(QStringLiteral("El código nº%1 (%2): %3")
                                      .arg(QString::number(i + 1), codigos[i].codigo, motivo),
                                  Icono::Critico, "Atención");
        return {};
    }
    return Codigos_KRT800(libreria);
}

QStringList Celdas_B(int, const Codigo_Libreria& codigo)
{
    return {QString::number(codigo.secuencia), codigo.codigo, QString::number(codigo.entidad),
            codigo.capa};
}

QString Linea_B(int, const Codigo_Libreria& codigo)
{
    return codigo.codigo + ',' + QString::number(codigo.entidad) + ',' + codigo.capa;
}

std::optional<Codigo_Libreria> Leer_Linea_B(const QString& linea, QString& motivo)
{
    const QStringList partes = linea.split(u',');
    if (partes.size() != 3) {
        motivo = QStringLiteral("no tiene la forma código,entidad,capa");
        return std::nullopt;
    }
    bool es_numero = false;
    const qint64 entidad = Basico::Trim(partes[1]).toLongLong(&es_numero);
    if (!es_numero) {
        motivo = QStringLiteral("la entidad '%1' no es un número").arg(partes[1]);
        return std::nullopt;
    }
    return Codigo_Libreria{Basico::Trim(partes[0]), entidad, Basico::Trim(partes[2])};
}

void Poner_Codigo(Conjunto_Registros& fila, const Codigo_Libreria& codigo)
{
    fila.Poner("Codigo", codigo.codigo);
    fila.Poner("ENTIDAD", codigo.entidad);
    fila.Poner("CAPA", codigo.capa);
    fila.Update();
}

const Serie_Librerias SERIES[] = {
    {.serie = Serie::A,
     .letra = QStringLiteral("A"),
     .tabla = QStringLiteral("Lib1"),
     .columna_codigo = QStringLiteral("CoD"),
     .columna_descripcion = QStringLiteral("Nombre"),
     .ancho_codigo = 20,
     .ancho_descripcion = 50,
     .largo_codigo = LARGO_CODIGO,
     .largo_capa = 0,
     .maximo = MAX_CODIGOS,
     .reservado = u'_',
     .titulo_nueva = QStringLiteral("Crear Librería de Códigos"),
     .titulo_editar = QStringLiteral("Editar Librería de Códigos"),
     .sin_codigo = QStringLiteral("El código de Librería no se puede dejar en blanco"),
     .sin_descripcion = QStringLiteral("La descripción de la Librería no se puede dejar en blanco"),
     .columnas_ver = {"Número", "Código"},
     .celdas_ver = Celdas_A,
     .leer = Leer_A,
     .guardar = Guardar_A,
     .texto_envio = Envio_A,
     .linea = Linea_A,
     .leer_linea = Leer_Linea_A},
    {.serie = Serie::B,
     .letra = QStringLiteral("B"),
     .tabla = QStringLiteral("LIB800"),
     .columna_codigo = QStringLiteral("CodLibreria"),
     .columna_descripcion = QStringLiteral("descripcion"),
     .ancho_codigo = 20,
     .ancho_descripcion = 255,
     .largo_codigo = 20,
     .largo_capa = 50,
     .maximo = 0,
     .reservado = u',',
     .titulo_nueva = QStringLiteral("Crear librería de códigos"),
     .titulo_editar = QStringLiteral("Editar librería de códigos"),
     .sin_codigo = QStringLiteral("El código de librería no se puede dejar en blanco"),
     .sin_descripcion = QStringLiteral("La descripción no se puede dejar en blanco"),
     .columnas_ver = {"Secuencia", "Código", "Entidad", "Capa"},
     .celdas_ver = Celdas_B,
     .leer = Leer_B,
     .guardar = Guardar_B,
     .texto_envio = Envio_B,
     .linea = Linea_B,
     .leer_linea = Leer_Linea_B},
};

Cabecera_Libreria Cabecera_De(Base& bd, const Serie_Librerias& serie,
                              const Conjunto_Registros& fila)
{
    const QString codigo = fila.Texto(serie.columna_codigo);
    return {codigo, fila.Texto(serie.columna_descripcion), serie.leer(bd, codigo).size()};
}

void Avisar()
{
    Q_EMIT Sucesos::Unico().librerias_cambiadas();
}

} // namespace

std::span<const Serie_Librerias> Series_De_Librerias()
{
    return SERIES;
}

const Serie_Librerias& Librerias_De(Serie serie)
{
    const auto fila = std::ranges::find(SERIES, serie, &Serie_Librerias::serie);
    return fila == std::end(SERIES) ? SERIES[0] : *fila;
}

QList<Cabecera_Libreria> Listar_Librerias(Base& bd, const Serie_Librerias& serie)
{
    Conjunto_Registros filas =
        bd.OpenRecordset("SELECT * FROM " + serie.tabla, Tipo_Conjunto::Instantanea);
    QList<Cabecera_Libreria> lista;
    for (; !filas.Es_EOF(); filas.MoveNext())
        lista.append(Cabecera_De(bd, serie, filas));
    return lista;
}

std::optional<Cabecera_Libreria> Buscar_Libreria(Base& bd, const Serie_Librerias& serie,
                                                 const QString& libreria)
{
    const Conjunto_Registros fila = Situar(bd, serie, libreria);
    if (fila.NoMatch()) return std::nullopt;
    return Cabecera_De(bd, serie, fila);
}

Lista_De_Codigos Leer_Codigos(Base& bd, const Serie_Librerias& serie, const QString& libreria)
{
    return serie.leer(bd, libreria);
}

void Crear_Libreria(Base& bd, const Serie_Librerias& serie, const QString& libreria,
                    const QString& descripcion, const Lista_De_Codigos& codigos)
{
    Transaccion todo(bd);
    {
        Conjunto_Registros filas = bd.OpenRecordset(serie.tabla);
        filas.AddNew();
        filas.Poner(serie.columna_codigo, libreria);
        filas.Poner(serie.columna_descripcion, descripcion);
        filas.Update();
    }
    serie.guardar(bd, libreria, codigos);
    todo.Confirmar();
    Avisar();
}

bool Guardar_Codigos(Base& bd, const Serie_Librerias& serie, const QString& libreria,
                     const Lista_De_Codigos& codigos, const std::optional<QString>& descripcion)
{
    Transaccion todo(bd);
    {
        Conjunto_Registros fila = Situar(bd, serie, libreria);
        if (fila.NoMatch()) return false;
        if (descripcion) {
            fila.Edit();
            fila.Poner(serie.columna_descripcion, *descripcion);
            fila.Update();
        }
    }
    serie.guardar(bd, libreria, codigos);
    todo.Confirmar();
    Avisar();
    return true;
}

bool Describir_Libreria(Base& bd, const Serie_Librerias& serie, const QString& libreria,
                        const QString& descripcion)
{
    Conjunto_Registros fila = Situar(bd, serie, libreria);
    if (fila.NoMatch()) return false;
    fila.Edit();
    fila.Poner(serie.columna_descripcion, descripcion);
    fila.Update();
    Avisar();
    return true;
}

void Eliminar_Libreria(Base& bd, const Serie_Librerias& serie, const QString& libreria)
{
    Transaccion todo(bd);
    serie.guardar(bd, libreria, {});
    {
        Conjunto_Registros fila = Situar(bd, serie, libreria);
        if (!fila.NoMatch()) fila.Delete();
    }
    todo.Confirmar();
    Avisar();
}

bool Borrar_Libreria(const Serie_Librerias& serie, const QString& libreria)
{
    if (!Interfaz_Actual().Preguntar("¿ Desea eliminar la librería de códigos ?")) return false;
    try {
        Eliminar_Libreria(*Base_Datos, serie, libreria);
        return true;
    } catch (...) {
        Informe_Error("Se produjo un error al eliminar la librería", Error_En_Curso());
        return false;
    }
}

qint64 Anadir_Codigo(Base& bd, const QString& libreria, const Codigo_Libreria& codigo)
{
    const Lista_De_Codigos hay = Leer_B(bd, libreria);
    const qint64 secuencia = hay.isEmpty() ? 1 : hay.last().secuencia + 1;
    Conjunto_Registros filas = bd.OpenRecordset("LIB800_2");
    filas.AddNew();
    filas.Poner("CodLibreria", libreria);
    filas.Poner("Secuencia", secuencia);
    Poner_Codigo(filas, codigo);
    Avisar();
    return secuencia;
}

bool Cambiar_Codigo(Base& bd, const QString& libreria, const Codigo_Libreria& codigo)
{
    Conjunto_Registros fila = Situar_Codigo(bd, libreria, codigo.secuencia);
    if (fila.NoMatch()) return false;
    fila.Edit();
    Poner_Codigo(fila, codigo);
    Avisar();
    return true;
}

void Eliminar_Codigo(Base& bd, const QString& libreria, qint64 secuencia)
{
    Conjunto_Registros fila = Situar_Codigo(bd, libreria, secuencia);
    if (!fila.NoMatch()) fila.Delete();
    Avisar();
}

QList<Entidad> Leer_Entidades(Base& bd)
{
    Conjunto_Registros filas =
        bd.OpenRecordset("SELECT * FROM TAB2 WHERE TIPO = 'ENTIDADES'", Tipo_Conjunto::Instantanea);
    QList<Entidad> lista;
    for (; !filas.Es_EOF(); filas.MoveNext())
        lista.append({filas.Entero("INDICE"), filas.Texto("DESCRIPCION")});
    return lista;
}
