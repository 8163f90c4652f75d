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
    bool como_texto = false;
    bool es_estilo = false;
    quint8 atributos = 0;
};

// In the earliest forms a number format is named by its place among the FORMAT records.
quint8 Lugar_Formato(const Forma_Excel& forma, bool como_texto)
{
    if (!como_texto) return FORMATO_GENERAL;
    return forma.compuesto ? quint8(FORMATO_TEXTO) : 1;
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

// The later forms know both pictures by heart.
void Escribir_Formatos(const Forma_Excel& forma, Salida_Biff& salida)
{
    if (forma.compuesto) return;
    salida.Escribir_Como(BUILTINFMTCOUNT, U16(1));
    for (const char16_t* dibujo : {u"General", u"@"}) {
        const QByteArray texto = Texto_Corto(forma, QStringView(dibujo));
        if (forma.version == Version_Excel::Excel_3)
            salida.Escribir_Bytes(Format_3::ID, texto);
        else
            salida.Escribir(Format_4{quint16(0)}, texto);
    }
}

void Escribir_Xf(const Forma_Excel& forma, Salida_Biff& salida, const Aspecto& a)
{
    const quint8 formato = Lugar_Formato(forma, a.como_texto);
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
        salida.Escribir(Xf_5{quint16(a.fuente), quint16(formato), quint16(proteccion | padre),
                             XF_ABAJO, a.atributos, quint32(XF_AREA_58), quint32(0)});
        break;
    case Version_Excel::Excel_8:
        salida.Escribir(Xf_8{quint16(a.fuente), quint16(formato), quint16(proteccion | padre),
                             XF_ABAJO, 0, 0, a.atributos, quint32(0), quint32(0), XF_AREA_58});
        break;
    }
}

} // namespace

quint16 Xf_De(const Celda& celda)
{
    return quint16(XF_NORMAL + (celda.negrita ? 1 : 0) + (celda.como_texto ? 2 : 0));
}

void Escribir_Estilos(const Forma_Excel& forma, Salida_Biff& salida)
{
    for (const Fuente f : {FUENTE_BASE, BASE_NEGRITA, BASE_CURSIVA, BASE_NEGRITA_CURSIVA})
        Escribir_Fuente(forma, salida, f);
    Escribir_Formatos(forma, salida);
    // The style "Normal", then those of the outline levels of rows and columns; readers look for
    // the looks of unset cells behind them.
    Escribir_Xf(forma, salida, {FUENTE_BASE, false, true, 0});
    for (int i = 1; i < XF_NORMAL; ++i)
        Escribir_Xf(forma, salida, {FUENTE_BASE, false, true, XF_ATR_ESTILO});
    Escribir_Xf(forma, salida, {});
    Escribir_Xf(forma, salida, {BASE_NEGRITA, false, false, XF_ATR_FUENTE});
    Escribir_Xf(forma, salida, {FUENTE_BASE, true, false, XF_ATR_NUMERO});
    Escribir_Xf(forma, salida, {BASE_NEGRITA, true, false, XF_ATR_FUENTE | XF_ATR_NUMERO});
    salida.Escribir(Style{ESTILO_INTEGRADO, 0, SIN_NIVEL});
}
