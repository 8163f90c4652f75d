#include "export/mdb/Largos_Jet.h"

namespace Jet {

namespace {

constexpr qsizetype ENTERO_MAXIMO = 3816; // longest value that isn't chained
constexpr qsizetype PIEZA_MAXIMA = 4072;
constexpr quint32 EN_UNA_PAGINA = 0x40000000; // flag beside the value's size
constexpr quint32 SELLO_CADENA = 1; // any value, the same in the first page and in the record

constexpr char MARCA_PROPIEDADES[] = "MR2"; // its closing zero belongs to it
enum Bloque : quint16 { BLOQUE_NOMBRES = 0x80, BLOQUE_COLUMNA = 0x01 };
constexpr quint8 PROPIEDAD_DE_ESQUEMA = 1;
constexpr quint8 TIPO_LOGICO = 1;
constexpr quint16 PRIMER_NOMBRE = 0;
constexpr quint8 VERDADERO = 0xFF;

void Poner_Bloque(Tira& t, Bloque clase, const QByteArray& contenido)
{
    t.U32(static_cast<quint32>(4 + 2 + contenido.size())).U16(clase).Bytes(contenido);
}

QByteArray Con_Largo(int bytes_del_largo, const QByteArray& contenido)
{
    const qsizetype largo = bytes_del_largo + contenido.size();
    Tira t;
    if (bytes_del_largo == 4)
        t.U32(static_cast<quint32>(largo));
    else
        t.U16(static_cast<quint16>(largo));
    return t.Bytes(contenido).Hecha();
}

} // namespace

QByteArray Propiedades(const QStringList& columnas)
{
    if (columnas.isEmpty()) return {};
    const QByteArray verdadera = Con_Largo(2, Tira()
                                                  .U8(PROPIEDAD_DE_ESQUEMA)
                                                  .U8(TIPO_LOGICO)
                                                  .U16(PRIMER_NOMBRE)
                                                  .U16(sizeof VERDADERO)
                                                  .U8(VERDADERO)
                                                  .Hecha());
    Tira t;
    t.Bytes({MARCA_PROPIEDADES, sizeof MARCA_PROPIEDADES});
    Poner_Bloque(t, BLOQUE_NOMBRES, Tira().Nombre(u"AllowZeroLength").Hecha());
    for (const QString& columna : columnas)
        Poner_Bloque(t, BLOQUE_COLUMNA, Con_Largo(4, Tira().Nombre(columna).Hecha()) + verdadera);
    return t.Hecha();
}

QByteArray Valores_Largos::Guardar(const QByteArray& valor)
{
    if (valor.size() > ENTERO_MAXIMO) return Guardar_En_Cadena(valor);
    const Filas::Lugar lugar = enteros.Anadir(valor);
    return Tira()
        .U32(static_cast<quint32>(valor.size()) | EN_UNA_PAGINA)
        .U32(Puntero(lugar.pagina, lugar.fila))
        .U32(0)
        .Hecha();
}

QByteArray Valores_Largos::Guardar_En_Cadena(const QByteArray& valor)
{
    const auto piezas = static_cast<quint32>((valor.size() + PIEZA_MAXIMA - 1) / PIEZA_MAXIMA);
    const quint32 primera = salida.Reservar(piezas);
    for (quint32 k = 0; k < piezas; ++k) {
        const quint32 siguiente = k + 1 < piezas ? Puntero(primera + k + 1, 0) : 0;
        Pagina_Datos eslabon(DUENO_LARGOS);
        eslabon.Anadir(
            Tira().U32(siguiente).Bytes(valor.mid(k * PIEZA_MAXIMA, PIEZA_MAXIMA)).Hecha());
        if (k == 0) eslabon.Sellar(SELLO_CADENA);
        salida.Escribir(primera + k, eslabon.Acabada());
        enteros.Contar_Pagina(primera + k);
    }
    return Tira()
        .U32(static_cast<quint32>(valor.size()))
        .U32(Puntero(primera, 0))
        .U32(SELLO_CADENA)
        .Hecha();
}

} // namespace Jet
