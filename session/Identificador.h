#pragma once

// The form: docs/formas/tablas.md

#include "core/Familia.h"
#include "core/jet/Base.h"

#include <QString>

/// The identifier of a stored line, which picks its kind among the rows of `Campos` and
/// `Identificadores`. Each part of the program reads it in its own way:
///
/// | who asks                | series A, level | series B: op. 4   | op. 7       | others       |
/// |-------------------------|-----------------|-------------------|-------------|--------------|
/// | `Id_De_Linea`           | first character | "Punto"           | "Per.Trans" | first word   |
/// | `Id_Del_Visor`          | first character | "Punto"           | "Per.Trans" | first word   |
/// | `Condicion_Descripcion` | first character | "Punto"           | "Per.Trans" | first word   |
/// | `Leer_Id_Registro`      | first character | up to first comma | up to first blank, else "" |
/// | `Extraer_ID`            | first character | up to first comma | first word                 |
/// | `Id_Al_Guardar`         | (never asked)   | "Punto"           | "Per.Trans" | see there    |
///
/// For the level `Id_De_Linea` is always "1".
///
/// The differences stand on purpose. The decoder fills a level line by position, with one set of
/// rows for all of them, while who shows a line wants the name of its letter. What formats store in
/// `Formatos1.Ids` and check against a session is the line's own text: a session of points then has
/// its points' names there, which `Sacar_IDs` never asks for. And identifiers that were stored once
/// are compared with those read today, so that no routine may become another one.
///
/// The general records in `DatosG` are told by one character too: the decoder takes that of the
/// item as it stands, the viewer that of the trimmed one.

/// For the decoder. Blanks at the left don't count.
/// @return a view of `linea` or of a text that stays
QStringView Id_De_Linea(QStringView linea, const Familia& familia, int ope);

/// For the viewer of one record. Blanks at the left don't count.
/// @return a view of `linea` or of a text that stays
QStringView Id_Del_Visor(QStringView linea, const Familia& familia, int ope);

/// For the grid of a session: the SQL condition that ties a line (`Datos`) to its row of
/// `Identificadores`, so that each line is listed once.
QString Condicion_Descripcion(const Familia& familia, int ope);

/// For the formats. Series B: the line up to its first blank, empty without one or when the line
/// begins with it; operation 4: the trimmed line up to its first comma.
QString Leer_Id_Registro(const QString& datos, const QString& maquina, int ope);

/// The same as a view of `datos`, for who looks at many lines.
QStringView Id_De_Formato(QStringView datos, const Familia& familia, int ope);

/// Of the current row's `Datos`: first character of the trimmed text; series B: the first comma
/// token when `ope` is 4, else the first word, whole when there is no blank; trimmed.
QString Extraer_ID(const Conjunto_Registros& registros, const QString& maquina, int ope);

/// For the storing of a KRT800 reception, which looks for general fields. Deliberate: the
/// left-trimmed line is cut at the place where the untrimmed one has its first blank, so that
/// " STN 1" gives "S", and a line without a blank gives "".
QString Id_Al_Guardar(const QString& linea, int ope);

/// Identifiers in one text, joined by blanks, as formats store them. Token `n` by blanks; for `ope`
/// 4 always "Punto".
QString Token_ID(const QString& cadena, qint64 n, int ope);
/// For `ope` 4 "Punto", else all 31 entries of `ids`, each followed by a blank, joined.
QString Todos_Los_IDs(int ope, const QStringList& ids);
