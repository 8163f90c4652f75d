#include "export/excel/Area_Impresion.h"

#include "core/Ansi.h"

using namespace Biff;

namespace {

// The sheets that names speak of have to be listed first, each form in its own way.
void Escribir_Referencias(Salida_Biff& salida, const Forma_Excel& forma, const Libro_Excel& libro)
{
    const quint16 hojas = quint16(libro.Numero_Hojas());
    if (forma.unicode) {
        salida.Escribir_Como(SUPBOOK, std::array<U16, 2>{hojas, LIBRO_PROPIO});
        QByteArray lista;
        for (quint16 i = 0; i < hojas; ++i)
            lista += Bytes_De(Xti{quint16(0), i, i});
        salida.Escribir_Como(EXTERNSHEET, U16(hojas), lista);
        return;
    }
    salida.Escribir_Como(EXTERNCOUNT, U16(hojas));
    for (int i = 0; i < hojas; ++i) {
        const QByteArray nombre = Ansi::A_Bytes(libro.Hoja(i).nombre);
        salida.Escribir_Bytes(EXTERNSHEET,
                              QByteArray(1, char(nombre.size())) + char(HOJA_PROPIA) + nombre);
    }
}

template <class Area> Name_58 Nombre_De(quint16 hoja)
{
    return {
        NOMBRE_INTEGRADO, 0, 1, quint16(sizeof(Area)), quint16(0), quint16(hoja + 1), 0, 0, 0, 0};
}

void Escribir_Area(Salida_Biff& salida, const Forma_Excel& forma, const Rango& r, quint16 hoja)
{
    const quint16 fila = quint16(r.fila), fila_hasta = quint16(r.fila_hasta);
    QByteArray nombre(1, char(NOMBRE_AREA_IMPRESION));
    if (forma.unicode) {
        const Area_3D_8 area{
            PTG_AREA_3D, hoja, fila, fila_hasta, quint16(r.columna), quint16(r.columna_hasta)};
        salida.Escribir(Nombre_De<Area_3D_8>(hoja), '\0' + nombre + Bytes_De(area).toByteArray());
        return;
    }
    Name_58 cabeza = Nombre_De<Area_3D_5>(hoja);
    cabeza.ixals = quint16(hoja + 1);
    const Area_3D_5 area{
        PTG_AREA_3D,       quint16(-(hoja + 1)),   {}, hoja, hoja, fila, fila_hasta,
        quint8(r.columna), quint8(r.columna_hasta)};
    salida.Escribir(cabeza, nombre + Bytes_De(area).toByteArray());
}

} // namespace

void Escribir_Area_De_Hoja(Salida_Biff& salida, const Hoja_Excel& hoja)
{
    if (!hoja.Area_Impresion()) return;
    const Rango& r = *hoja.Area_Impresion();
    const Area_34 area{PTG_AREA, quint16(r.fila), quint16(r.fila_hasta), quint8(r.columna),
                       quint8(r.columna_hasta)};
    salida.Escribir(Name_34{NOMBRE_INTEGRADO, 0, 1, quint16(sizeof(area))},
                    QByteArray(1, char(NOMBRE_AREA_IMPRESION)) + Bytes_De(area).toByteArray());
}

void Escribir_Areas_De_Libro(Salida_Biff& salida, const Forma_Excel& forma,
                             const Libro_Excel& libro)
{
    bool con_referencias = false;
    for (int i = 0; i < libro.Numero_Hojas(); ++i) {
        const auto& area = libro.Hoja(i).Area_Impresion();
        if (!area) continue;
        if (!con_referencias) Escribir_Referencias(salida, forma, libro);
        con_referencias = true;
        Escribir_Area(salida, forma, *area, quint16(i));
    }
}
