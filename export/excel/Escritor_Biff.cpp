#include "export/excel/Escritor_Biff.h"

#include "export/excel/Archivo_Ole.h"
#include "export/excel/Area_Impresion.h"
#include "export/excel/Escritor_Estilos.h"
#include "export/excel/Escritor_Hoja.h"
#include "export/excel/Texto_Biff.h"

using namespace Biff;

namespace {

constexpr quint16 PAGINA_1252 = 1252;
constexpr quint16 PAGINA_UNICODE = 1200;
constexpr quint16 PAIS_ESPANA = 34;
constexpr quint16 FUNCIONES_INTEGRADAS = 14;
constexpr char16_t PROGRAMA[] = u"Miraldos";
constexpr qsizetype LARGO_WRITEACCESS = 112;

// Program that made the file, for its stamp: a build of Excel 97 and one of Excel 5.
constexpr quint16 COMPILACION_8 = 0x1CC0, ANNO_8 = 0x07CC;
constexpr quint16 COMPILACION_5 = 0x096C, ANNO_5 = 0x07C9;
constexpr quint32 HISTORIA_8 = 0x000000C1, MINIMA_8 = 0x00000006;

constexpr Clase_Ole CLASE_EXCEL_5 = {0x10, 0x08, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46};
constexpr Clase_Ole CLASE_EXCEL_8 = {0x20, 0x08, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46};

// Window of the workbook: 15 by 9 inches or so, in twips.
constexpr quint16 VENTANA_X = 240, VENTANA_Y = 120, VENTANA_ANCHO = 14940, VENTANA_ALTO = 9150;
constexpr quint16 PROPORCION_PESTANAS = 600; ///< thousandths of the width that the tabs take

void Escribir_Bof(Salida_Biff& salida, const Forma_Excel& forma, quint16 contenido)
{
    switch (forma.version) {
    case Version_Excel::Excel_3:
        salida.Escribir_Como(BOF_BIFF3, Bof_34{quint16(0), contenido, quint16(0)});
        break;
    case Version_Excel::Excel_4:
        salida.Escribir_Como(BOF_BIFF4, Bof_34{quint16(0), contenido, quint16(0)});
        break;
    case Version_Excel::Excel_5:
        salida.Escribir_Como(BOF_BIFF58, Bof_5{VERSION_BIFF5, contenido, COMPILACION_5, ANNO_5});
        break;
    case Version_Excel::Excel_8:
        salida.Escribir_Como(BOF_BIFF58, Bof_8{VERSION_BIFF8, contenido, COMPILACION_8, ANNO_8,
                                               HISTORIA_8, MINIMA_8});
        break;
    }
}

void Escribir_Fin(Salida_Biff& salida)
{
    salida.Escribir_Bytes(END_OF_FILE);
}

// ---------------------------------------------------------------- one plain sheet

QByteArray Escribir_Hoja_Suelta(const Libro_Excel& libro, const Forma_Excel& forma)
{
    const Hoja_Excel& hoja = libro.Hoja(0);
    Salida_Biff salida;
    Tabla_Cadenas cadenas;
    const Estilos_Libro estilos(libro);
    Escritor_Hoja escritor(hoja, forma, estilos, cadenas, salida);
    Escribir_Bof(salida, forma, HOJA_DE_CALCULO);
    salida.Escribir_Como(CODEPAGE, U16(PAGINA_1252));
    estilos.Escribir(forma, salida);
    Escribir_Area_De_Hoja(salida, hoja);
    escritor.Escribir_Ajustes();
    escritor.Escribir_Celdas();
    salida.Escribir(Window1_34{VENTANA_X, VENTANA_Y, VENTANA_ANCHO, VENTANA_ALTO, quint16(0)});
    escritor.Escribir_Vista(true);
    Escribir_Fin(salida);
    return salida.bytes;
}

// ---------------------------------------------------------------- book of several sheets

/// A sheet whose records are made, all but its BOF and INDEX, which wait for their place.
struct Hoja_Hecha {
    QByteArray registros;
    Indice_Hoja indice;
};

Hoja_Hecha Hacer_Hoja(const Hoja_Excel& hoja, const Forma_Excel& forma,
                      const Estilos_Libro& estilos, Tabla_Cadenas& cadenas, bool elegida)
{
    Salida_Biff salida;
    Escritor_Hoja escritor(hoja, forma, estilos, cadenas, salida);
    escritor.Escribir_Ajustes();
    escritor.Escribir_Celdas();
    escritor.Escribir_Vista(elegida);
    Escribir_Fin(salida);
    return {salida.bytes, escritor.Indice()};
}

void Escribir_Indice(Salida_Biff& salida, const Forma_Excel& forma, const Indice_Hoja& indice)
{
    if (!indice.posible) return;
    const qsizetype largo = qsizetype(forma.unicode ? sizeof(Index_8) : sizeof(Index_5));
    const qsizetype tras_indice = salida.Posicion() + qsizetype(sizeof(Cabeza)) + largo +
                                  qsizetype(indice.bloques.size() * sizeof(U32));
    QByteArray bloques;
    for (const qsizetype b : indice.bloques)
        bloques += Bytes_De(U32(quint32(tras_indice + b)));
    const quint32 ancho = quint32(tras_indice + indice.ancho_columnas);
    const Rango u = indice.usado.Vacio() ? Rango{0, 0, -1, -1} : indice.usado;
    if (forma.unicode)
        salida.Escribir(Index_8{quint32(0), quint32(u.fila), quint32(u.fila_hasta + 1), ancho},
                        bloques);
    else
        salida.Escribir(Index_5{quint32(0), quint16(u.fila), quint16(u.fila_hasta + 1), ancho},
                        bloques);
}

void Escribir_Autor(Salida_Biff& salida, const Forma_Excel& forma)
{
    salida.Escribir_Como(INTERFACEHDR, U16(PAGINA_UNICODE));
    salida.Escribir_Como(MMS, U16(0));
    salida.Escribir_Bytes(INTERFACEEND);
    salida.Escribir_Bytes(WRITEACCESS,
                          Texto_Largo(forma, PROGRAMA).leftJustified(LARGO_WRITEACCESS, ' '));
}

/// Settings of the book that are one 16-bit number, and whether the form before Unicode has them.
struct Ajuste_Libro {
    quint16 id, valor;
    bool tambien_5;
};

constexpr Ajuste_Libro PROTECCION[] = {{FNGROUPCOUNT, FUNCIONES_INTEGRADAS, true},
                                       {WINDOWPROTECT, 0, true},
                                       {PROTECT, 0, true},
                                       {PASSWORD, 0, true},
                                       {PROT4REV, 0, false},
                                       {PROT4REVPASS, 0, false}};
constexpr Ajuste_Libro OPCIONES[] = {{BACKUP, 0, true},      {HIDEOBJ, 0, true},
                                     {DATEMODE, 0, true},    {PRECISION, 1, true},
                                     {REFRESHALL, 0, false}, {BOOKBOOL, 0, true}};

void Escribir_Ajustes_Libro(Salida_Biff& salida, const Forma_Excel& forma,
                            std::span<const Ajuste_Libro> ajustes)
{
    for (const Ajuste_Libro& a : ajustes)
        if (forma.unicode || a.tambien_5) salida.Escribir_Como(a.id, U16(a.valor));
}

// Writes the records of the sheets' names; the places of the sheets are filled in later.
// @return where each record's body begins
std::vector<qsizetype> Escribir_Nombres(Salida_Biff& salida, const Forma_Excel& forma,
                                        const Libro_Excel& libro)
{
    std::vector<qsizetype> huecos;
    for (int i = 0; i < libro.Numero_Hojas(); ++i) {
        huecos.push_back(salida.Posicion() + qsizetype(sizeof(Cabeza)));
        salida.Escribir(BoundSheet{quint32(0), 0, HOJA_NORMAL},
                        Texto_Corto(forma, libro.Hoja(i).nombre));
    }
    return huecos;
}

std::vector<qsizetype> Escribir_Globales(Salida_Biff& salida, const Forma_Excel& forma,
                                         const Libro_Excel& libro, const Estilos_Libro& estilos,
                                         const Tabla_Cadenas& cadenas)
{
    Escribir_Bof(salida, forma, GLOBALES);
    if (forma.unicode) Escribir_Autor(salida, forma);
    salida.Escribir_Como(CODEPAGE, U16(forma.unicode ? PAGINA_UNICODE : PAGINA_1252));
    if (forma.unicode) {
        salida.Escribir_Como(DSF, U16(0));
        QByteArray numeros;
        for (int i = 1; i <= libro.Numero_Hojas(); ++i)
            numeros += Bytes_De(U16(quint16(i)));
        salida.Escribir_Bytes(TABID, numeros);
    }
    Escribir_Ajustes_Libro(salida, forma, PROTECCION);
    salida.Escribir(Window1_58{VENTANA_X, VENTANA_Y, VENTANA_ANCHO, VENTANA_ALTO,
                               VENTANA_CON_BARRAS, quint16(0), quint16(0), quint16(1),
                               PROPORCION_PESTANAS});
    Escribir_Ajustes_Libro(salida, forma, OPCIONES);
    estilos.Escribir(forma, salida);
    if (forma.unicode) salida.Escribir_Como(USESELFS, U16(0));
    std::vector<qsizetype> huecos = Escribir_Nombres(salida, forma, libro);
    salida.Escribir_Como(COUNTRY, std::array<U16, 2>{PAIS_ESPANA, PAIS_ESPANA});
    Escribir_Areas_De_Libro(salida, forma, libro);
    if (forma.unicode) cadenas.Escribir(salida);
    Escribir_Fin(salida);
    return huecos;
}

qsizetype Contar_Textos(const Libro_Excel& libro)
{
    qsizetype textos = 0;
    for (int i = 0; i < libro.Numero_Hojas(); ++i) {
        const int ultima = libro.Hoja(i).Rango_Usado().fila_hasta;
        for (int fila = 0; fila <= ultima; ++fila)
            for (const Celda_Situada& celda : libro.Hoja(i).Fila(fila))
                textos += celda.tipo == Celda::Tipo::Texto;
    }
    return textos;
}

QByteArray Escribir_Flujo_Libro(const Libro_Excel& libro, const Forma_Excel& forma)
{
    Tabla_Cadenas cadenas;
    if (forma.unicode) cadenas.Prever(Contar_Textos(libro));
    const Estilos_Libro estilos(libro);
    std::vector<Hoja_Hecha> hojas;
    hojas.reserve(std::size_t(libro.Numero_Hojas()));
    for (int i = 0; i < libro.Numero_Hojas(); ++i)
        hojas.push_back(Hacer_Hoja(libro.Hoja(i), forma, estilos, cadenas, i == 0));

    Salida_Biff salida;
    const std::vector<qsizetype> huecos = Escribir_Globales(salida, forma, libro, estilos, cadenas);
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        const U32 lugar = quint32(salida.Posicion());
        salida.bytes.replace(huecos[i], sizeof(lugar), Bytes_De(lugar));
        Escribir_Bof(salida, forma, HOJA_DE_CALCULO);
        Escribir_Indice(salida, forma, hojas[i].indice);
        salida.bytes += hojas[i].registros;
    }
    return salida.bytes;
}

} // namespace

QByteArray Escribir_Libro(const Libro_Excel& libro, Version_Excel version)
{
    const Forma_Excel& forma = Forma_De(version);
    libro.Comprobar(forma);
    if (!forma.compuesto) return Escribir_Hoja_Suelta(libro, forma);
    const QByteArray flujo = Escribir_Flujo_Libro(libro, forma);
    return forma.unicode ? Escribir_Ole(QStringLiteral("Workbook"), flujo, CLASE_EXCEL_8)
                         : Escribir_Ole(QStringLiteral("Book"), flujo, CLASE_EXCEL_5);
}
