#pragma once

#include "export/dxf/Ajustes_DXF.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// The drawing of surveyed points as DXF entities: a marker and three texts beside it (number,
/// elevation, code). The file is an ENTITIES section alone; docs/formas/dibujo.md draws it.

/// Which points a drawing holds.
enum class Modo_DXF { Dos_D = 0, Tres_D = 1, Ambos = 2 };

/// Two lines behind `canal`: a blank and the group code, then `valor` as it stands in the page of
/// the files; lines end in CR LF.
void Grupo_DXF(QByteArray& canal, int codigo, QStringView valor);

/// The start of the section, before the first point, and its end, behind the last.
void Abrir_DXF(QByteArray& canal);
void Cerrar_DXF(QByteArray& canal);

/// Writes points of one kind of drawing with one set of settings: what all of them share is made
/// ready once.
class Dibujante_DXF {
public:
    Dibujante_DXF(const Ajustes_DXF& ajustes, Modo_DXF modo);

    /// Entities of one point: marker (two of them for `Modo_DXF::Ambos`), number, elevation and
    /// code, always all of them, a code that is empty included. The texts lie at no elevation.
    /// @param x, y, z  metres
    /// @param codigo  as it stands, the number being trimmed; a control character, which would end
    /// the line, becomes a blank
    void Punto(QByteArray& canal, QStringView punto, double x, double y, double z,
               QStringView codigo) const;

private:
    struct Marca {
        QByteArray cabeza; // up to the code of its X
        bool con_cota;
    };
    struct Etiqueta {
        QByteArray cabeza;
        double altura; // over the point, metres
    };
    void Poner_Marca(QStringView capa, int color, bool con_cota);
    Etiqueta Hacer_Etiqueta(QStringView capa, int color, double altura) const;

    QList<Marca> marcas;
    Etiqueta numero, cota, codigo;
    QByteArray altura_letra, pie; // groups of a text between its place and its words, and behind
    double al_lado;               // of the labels from their point, metres
    int decimales;                // of the elevation's label
};

/// The entities of one point given by texts. @param punto, x, y, z, codigo  cells of the row;
/// decimal point or comma in the coordinates, metres
/// @throws Error_Ejecucion 13 when a coordinate is no number; nothing has been written then
void Guardar_DXF_Sesion(QByteArray& canal, const QString& punto, const QString& x, const QString& y,
                        const QString& z, const QString& codigo, Modo_DXF modo,
                        const Ajustes_DXF& ajustes);

/// A number as a coordinate of the drawing has it: three decimals, half away from zero, decimal
/// point.
QString Coordenada_DXF(double metros);
/// An elevation's label. @param decimales  1 to 3; any other number: none
QString Cota_DXF(double metros, int decimales);

/// Heights of the labels over their point, in text heights (Y of the drawing).
struct Alturas_Etiquetas {
    double numero = 0, cota = 0, codigo = 0;
};
/// @param formato  arrangement 1 to 6; any other leaves all at the point's own height
Alturas_Etiquetas Disposicion_DXF(int formato);
