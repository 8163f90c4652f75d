#include "export/excel/Escritor_Estilos.h"

#include "export/excel/Texto_Biff.h"

using namespace Biff;

namespace {

constexpr char16_t NOMBRE_FUENTE[] = u"Arial";
constexpr quint16 ALTO_FUENTE = 200; ///< 10 points, in twips

// Readers take the first four fonts for the normal one and its bold, italic and bold italic.
enum Fuente : quint8 { FUENTE_BASE, BASE_NEGRITA, BASE_CURSIVA, BASE_NEGRITA_CURSIVA };

/// An XF, whatever the form.
struct Aspecto {
    Fuente fuente = FUENTE_BASE;
    quint16 formato = FORMATO_GENERAL;
    bool es_estilo = false;
    quint8 atributos = 0;
};

// In the earliest forms a number format is named by its place among the FORMAT records.
quint16 Formato_De_Texto(const Forma_Excel& forma)
{
    return forma.compuesto ? FORMATO_TEXTO : 1;
}
constexpr quint16 FORMATOS_FIJOS = 2; ///< "General" and "@", ahead of those of the decimals

quint16 Formato_De_Decimales(const Forma_Excel& forma, std::size_t lugar)
{
    return quint16((forma.compuesto ? FORMATO_PROPIO : FORMATOS_FIJOS) + lugar);
}

void Escribir_Formato(const Forma_Excel& forma, Salida_Biff& salida, quint16 numero,
                      QStringView dibujo)
{
    switch (forma.version) {
    case Version_Excel::Excel_3:
        salida.Escribir_Bytes(Format_3::ID, Texto_Corto(forma, dibujo));
        break;
    case Version_Excel::Excel_4:
        salida.Escribir(Format_4{quint16(0)}, Texto_Corto(forma, dibujo));
        break;
    case Version_Excel::Excel_5:
        salida.Escribir(Format_58{numero}, Texto_Corto(forma, dibujo));
        break;
    case Version_Excel::Excel_8:
        salida.Escribir(Format_58{numero}, Texto_Largo(forma, dibujo));
        break;
    }
}

void Escribir_Fuente(const Forma_Excel& forma, Salida_Biff& salida, Fuente fuente)
{
    const bool negrita = fuente == BASE_NEGRITA || fuente == BASE_NEGRITA_CURSIVA;
    const bool cursiva = fuente == BASE_CURSIVA || fuente == BASE_NEGRITA_CURSIVA;
    const quint16 marcas = quint16((negrita ? FUENTE_NEGRITA : 0) | (cursiva ? FUENTE_CURSIVA : 0));
    const QByteArray nombre = Texto_Corto(forma, NOMBRE_FUENTE);
    if (!forma.compuesto) {
        salida.Escribir(Font_34{ALTO_FUENTE, marcas, COLOR_AUTOMATICO}, nombre);
        return;
    }
    Font_58 f{};
    f.dy_height = ALTO_FUENTE;
    f.grbit = marcas;
    f.icv = COLOR_AUTOMATICO;
    f.bls = negrita ? PESO_NEGRITA : PESO_NORMAL;
    salida.Escribir(f, nombre);
}

void Escribir_Xf(const Forma_Excel& forma, Salida_Biff& salida, const Aspecto& a)
{
    const quint8 formato = quint8(a.formato);
    const quint16 proteccion = quint16(XF_BLOQUEADA | (a.es_estilo ? XF_ES_ESTILO : 0));
    const quint16 padre = a.es_estilo ? XF_SIN_PADRE : 0;
    switch (forma.version) {
    case Version_Excel::Excel_3:
        salida.Escribir(Xf_3{a.fuente, formato, quint8(proteccion), a.atributos, padre, XF_AREA_34,
                             quint32(0)});
        break;
    case Version_Excel::Excel_4:
        salida.Escribir(Xf_4{a.fuente, formato, quint16(proteccion | padre), XF_ABAJO, a.atributos,
                             XF_AREA_34, quint32(0)});
        break;
    case Version_Excel::Excel_5:
        salida.Escribir(Xf_5{quint16(a.fuente), a.formato, quint16(proteccion | padre), XF_ABAJO,
                             a.atributos, quint32(XF_AREA_58), quint32(0)});
        break;
    case Version_Excel::Excel_8:
        salida.Escribir(Xf_8{quint16(a.fuente), a.formato, quint16(proteccion | padre), XF_ABAJO, 0,
                             0, a.atributos, quint32(0), quint32(0), XF_AREA_58});
        break;
    }
}

constexpr int ASPECTOS_FIJOS = 4; ///< XFs of cells that every book gets

} // namespace

Estilos_Libro::Estilos_Libro(const Libro_Excel& libro)
{
    for (int h = 0; h < libro.Numero_Hojas(); ++h) {
        const Hoja_Excel& hoja = libro.Hoja(h);
        const int ultima = hoja.Rango_Usado().fila_hasta;
        for (int fila = 0; fila <= ultima; ++fila)
            for (const Celda_Situada& celda : hoja.Fila(fila)) {
                if (celda.decimales < 0) continue;
                quint16& lugar = lugares[std::size_t(celda.decimales)];
                if (lugar != 0) continue;
                decimales.push_back(celda.decimales);
                lugar = quint16(decimales.size());
            }
    }
}

// A number of decimals is the look of a number: what else the cell was prepared for counts no more.
quint16 Estilos_Libro::Xf_De(const Celda& celda) const
{
    const int negrita = celda.negrita ? 1 : 0;
    if (celda.decimales >= 0) {
        const int lugar = lugares[std::size_t(celda.decimales)];
        if (lugar > 0) return quint16(XF_NORMAL + ASPECTOS_FIJOS + 2 * (lugar - 1) + negrita);
    }
    return quint16(XF_NORMAL + negrita + (celda.como_texto ? 2 : 0));
}

// The later forms know "General" and "@" by heart.
void Estilos_Libro::Escribir_Formatos(const Forma_Excel& forma, Salida_Biff& salida) const
{
    if (!forma.compuesto) {
        salida.Escribir_Como(BUILTINFMTCOUNT, U16(1));
        Escribir_Formato(forma, salida, FORMATO_GENERAL, u"General");
        Escribir_Formato(forma, salida, Formato_De_Texto(forma), u"@");
    }
    for (std::size_t i = 0; i < decimales.size(); ++i) {
        const QString dibujo =
            decimales[i] == 0 ? QStringLiteral("0") : "0." + QString(decimales[i], u'0');
        Escribir_Formato(forma, salida, Formato_De_Decimales(forma, i), dibujo);
    }
}

void Estilos_Libro::Escribir(const Forma_Excel& forma, Salida_Biff& salida) const
{
    for (const Fuente f : {FUENTE_BASE, BASE_NEGRITA, BASE_CURSIVA, BASE_NEGRITA_CURSIVA})
        Escribir_Fuente(forma, salida, f);
    Escribir_Formatos(forma, salida);
    // The style "Normal", then those of the outline levels of rows and columns; readers look for
    // the looks of unset cells behind them.
    Escribir_Xf(forma, salida, {FUENTE_BASE, FORMATO_GENERAL, true, 0});
    for (int i = 1; i < XF_NORMAL; ++i)
        Escribir_Xf(forma, salida, {FUENTE_BASE, FORMATO_GENERAL, true, XF_ATR_ESTILO});
    const auto par = [&](quint16 formato) {
        const quint8 numero = formato == FORMATO_GENERAL ? 0 : XF_ATR_NUMERO;
        Escribir_Xf(forma, salida, {FUENTE_BASE, formato, false, numero});
        Escribir_Xf(forma, salida, {BASE_NEGRITA, formato, false, quint8(numero | XF_ATR_FUENTE)});
    };
    par(FORMATO_GENERAL);
    par(Formato_De_Texto(forma));
    for (std::size_t i = 0; i < decimales.size(); ++i)
        par(Formato_De_Decimales(forma, i));
    salida.Escribir(Style{ESTILO_INTEGRADO, 0, SIN_NIVEL});
}
