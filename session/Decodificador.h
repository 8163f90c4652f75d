#pragma once

// The form: docs/formas/tablas.md

#include "core/Familia.h"
#include "core/jet/Base.h"
#include "session/Plan_Campo.h"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <QString>
#include <QStringList>
#include <vector>

/// The one decoder of stored lines. What a line means lives in the rows of `Campos` and
/// `Identificadores`: its identifier selects a record kind, and the rows of that kind, in `Orden`,
/// say how to cut it into named fields.
///
/// Decoding is by name. The caller hands in the names wanted and a list of values of the same
/// length: place k of the one goes with place k of the other. A name that no record provides keeps
/// its value, a field that nobody asked for is skipped. A field that can't be converted becomes
/// empty, the others stay; no routine here that works on a line shows or raises an error, the run
/// log has the first one.

/// A row of `Campos`; nulls are empty texts.
struct Fila_Campo {
    QString maquina, id, campo;
    int orden = 0;
    int digitos = 0; ///< width in characters
    QString posdigit, forsalida, especial, marcas, caracter;
};
using Filas_Campo = std::shared_ptr<const std::vector<Fila_Campo>>;

/// The rows of one record kind, in `Orden`. They come from a cache that is emptied when the
/// database is opened again or changed, by whoever it was.
Filas_Campo Campos_De(Base& bd, const QString& maquina, const QString& id);

/// The field `nombre` of a family when it belongs to a general record of the operation.
std::optional<Fila_Campo> Buscar_Campo_G(Base& bd, const QString& nombre, const Familia& familia,
                                         int ope);

/// Place, from 1, where a field of a general record begins behind the record's identifier: the
/// widths of the fields below `orden`, as the rows of `familia` have them.
int Posicion_Campo(Base& bd, const Familia& familia, const QString& id, int orden);

// The steps of the decoding, each on one text.

/// Splits the digits of `valor` into integer and decimals and puts `caracter` between them.
/// @param posdigit  "e,d": the last d characters are decimals (zeros fill in at the left when there
///                  are fewer), the e before them the integer part, what stands further left is
///                  dropped; "*": the value is no number and stays
/// @param caracter  decimal mark; empty: nothing is split
/// @return a leading "+" has become "0", a leading "-" stands in front again; an empty value stays
QString Aplicar_Digitos(const QString& posdigit, const QString& valor, const QString& caracter);

/// The treatments of a comma list, in its order. "CD" drops the zeros at the end of the decimals
/// but the first decimal, "CI" the zeros in front of the integer part, "ED" all up to the last "`".
/// @throws Error_Ejecucion 13 when "CI" finds an integer part that is no number
QString Aplicar_Especial(const QString& valor, const QString& lista);

/// How the decoding adds offsets: in the form of a family.
struct Suma {
    const Familia& familia;
    Desplazamientos desplazamientos;
};

/// Adds the offset of the axis that `marca` names ("CX", "CY", "CZ" in any case); any other mark
/// returns the value. Parameters and errors as in `Sumar_Desplazamiento`.
QString Aplicar_Marca(const Suma& suma, const QString& modo, const QString& marca,
                      const QString& valor, const QString& posdigit);

/// Cuts a field from fixed columns and stores it in the place of its name.
/// @param posicion  first column of the field, from 1
void Cortar_Campo(const Suma& suma, const QString& linea, int posicion, const Fila_Campo& campo,
                  const QStringList& nombres, QStringList& valores);

/// Cuts a field of a KRT800 line and stores it, unless the instrument sent "*" for it (no data: the
/// old value stays) or the field isn't listed ("NL").
/// @param indice  number of the token that holds it, from 1
void Cortar_Token_800(const Suma& suma, int ope, const QString& linea, int indice,
                      const Fila_Campo& campo, const QStringList& nombres, QStringList& valores);

/// Fills the places 1 to n - 1 of a list of n values with the fields of a level line, by position:
/// names don't count, and the last place is spare.
void Cortar_NV400(const QString& linea, const QStringList& nombres, QStringList& valores);

/// Decodes all lines of one point of a session, the last record winning for each field. The fields
/// called "Punto" get the point's name behind its last "`".
/// @param desde, hasta  range of `Secuencia`, both included
/// @param valores  emptied first
void Extraer_Punto(Base& bd, qint64 sesion, const QString& maquina, int ope, const QString& punto,
                   qint64 desde, qint64 hasta, const QStringList& nombres, QStringList& valores);

/// Decodes one line.
/// @param maquina, ope  those of the session, not of the model in force
void Decodificar_Linea(Base& bd, const QString& linea, const QString& punto, const QString& maquina,
                       int ope, const QStringList& nombres, QStringList& valores);

/// Decodes the general records in force for a line, as `DatosG` holds them.
void Decodificar_General(Base& bd, const QString& datosg, const QString& maquina,
                         const QStringList& nombres, QStringList& valores, int ope);

/// The decoder made ready for many lines of one session and one list of names: what the rows of
/// `Campos` say is worked out once a record kind, and general records once as long as they stay the
/// same. The routines above are this object used once.
class Decodificador {
public:
    /// The model and the offsets in force are those of this moment.
    Decodificador(Base& bd, const QString& maquina, int ope, const QStringList& nombres);
    /// @param familia, ope  those of the session
    /// @param suma  of the model in force, which decides three things whatever the session: while it
    ///              is the level every line is of kind "1", coordinates are added in its form, and
    ///              the columns of a general field are counted in its rows
    Decodificador(Base& bd, const Familia& familia, int ope, const QStringList& nombres, Suma suma);
    Decodificador(const Decodificador&) = delete;
    Decodificador& operator=(const Decodificador&) = delete;

    void Linea(QStringView linea, QStringList& valores);
    void General(const QString& datosg, QStringList& valores);
    /// The same from the store's bytes (UTF-8), which are looked at only when they are others than
    /// those of the call before.
    void General(QByteArrayView datosg, QStringList& valores);
    /// Puts the point's name into the fields called "Punto".
    void Poner_Punto(const QString& punto, QStringList& valores) const;
    /// @return false when no name is a general field: `General` then does nothing
    bool Hay_Generales();

private:
    struct Paso {
        qsizetype lugar; // place in the values, from 0
        int posicion;    // column, or token number, from 1
        Plan_Campo plan;
    };
    struct Registro {
        bool con_filas = false;
        std::vector<Paso> pasos;
        int ultimo_token = 0; // the highest that a step asks for
    };
    struct General_Pedido {
        qsizetype lugar;
        int posicion;
        QString id, campo;
        Plan_Campo plan;
    };
    // What general records give to the values: a text, or nothing, which leaves the old one.
    struct General_Leido {
        const General_Pedido* pedido;
        std::optional<QString> valor;
        std::size_t pieza = 0; // that it was read from
    };

    const Registro& Preparar(QStringView id);
    Registro Leer_Registro(const QString& id) const;
    void Cortar_Trozos(const Registro& registro, QStringView linea, QStringList& valores);
    void Preparar_Generales();
    void Leer_Generales(QStringView datosg);
    void Leer_Generales_800(QByteArrayView datosg);
    void Casar_Generales_800(const std::vector<QByteArrayView>& piezas);
    void Leer_Item(General_Leido& leido, QByteArrayView pieza);
    template <typename Sacar> bool Guardar(QString& valor, QStringView linea, Sacar&& sacar);

    Base& bd;
    const Familia& familia;
    int ope;
    QStringList nombres;
    Suma suma;
    std::map<QString, Registro, std::less<>> registros;
    std::array<const Registro*, 256> por_letra{};
    // The kind asked for last; its name stays in the map.
    std::pair<QStringView, const Registro*> ultimo{{}, nullptr};
    std::vector<QStringView> trozos; // of the line on its way
    std::optional<std::vector<General_Pedido>> generales;
    QByteArray ultimos_generales; // and what they gave:
    std::vector<General_Leido> generales_leidos;
    std::vector<qsizetype> puntos;
    bool anotado = false;
};
