#include "export/mdb/Definicion_Jet.h"

#include <algorithm>
#include <cstring>

namespace Jet {

namespace {

enum Cabecera_Definicion { DEF_SIGUIENTE = 0x04, DEF_LARGO = 0x08 };
constexpr int CABECERA_PAGINA = 8;                     // kind, mark, free bytes and next page
constexpr int FIN_LARGO = DEF_LARGO + 4;               // what `Cuerpo` begins behind
constexpr int TROZO = TAMANO_PAGINA - CABECERA_PAGINA; // bytes of a further page

constexpr quint32 IDIOMA = 0x0409; // of every column, with sort version 0
constexpr int COLUMNAS_DE_INDICE = 10;
constexpr quint16 SIN_COLUMNA = 0xFFFF;
constexpr quint8 ASCENDENTE = 1;
constexpr quint32 SIN_RELACION = 0xFFFFFFFF;
constexpr quint8 EN_CASCADA = 4; // what an index of no relationship holds in both places
constexpr quint16 FIN_DEFINICION = 0xFFFF;

void Poner_Cuentas(Tira& t, const Definicion& d)
{
    const auto variables =
        std::count_if(d.columnas.begin(), d.columnas.end(),
                      [](const Columna& c) { return (c.banderas & COL_FIJA) == 0; });
    const auto columnas = static_cast<quint16>(d.columnas.size());
    t.U32(SELLO_DEFINICION).U32(d.filas).U32(0).U32(1).Ceros(12);
    t.U8(static_cast<quint8>(d.clase));
    t.U16(columnas).U16(static_cast<quint16>(variables)).U16(columnas);
    t.U32(static_cast<quint32>(d.nombres.size())).U32(static_cast<quint32>(d.indices.size()));
    t.U32(d.propias).U32(d.libres);
    for (const Indice_Real& i : d.indices)
        t.U32(0).U32(i.claves).U32(0);
}

void Poner_Columna(Tira& t, const Columna& c)
{
    t.U8(static_cast<quint8>(c.tipo)).U32(SELLO_DEFINICION);
    t.U16(c.id).U16(c.variable).U16(c.ordinal).U32(IDIOMA);
    t.U8(c.banderas).U8(c.ampliadas).U32(0).U16(c.desplazamiento).U16(c.largo);
}

void Poner_Indice(Tira& t, const Indice_Real& i)
{
    t.U32(SELLO_INDICE);
    for (int k = 0; k < COLUMNAS_DE_INDICE; ++k) {
        if (k < i.columnas.size())
            t.U16(i.columnas[k]).U8(ASCENDENTE);
        else
            t.U16(SIN_COLUMNA).U8(0);
    }
    t.U32(i.mapa).U32(i.raiz).U32(0).U16(i.banderas).U32(0);
}

void Poner_Nombre_De_Indice(Tira& t, const Indice_Logico& i)
{
    t.U32(SELLO_DEFINICION).U32(i.numero).U32(i.real).U8(0).U32(SIN_RELACION).U32(0);
    t.U8(EN_CASCADA).U8(EN_CASCADA).U8(i.principal ? 1 : 0).U32(0);
}

// The definition from behind its length to its end.
QByteArray Cuerpo(const Definicion& d)
{
    Tira t;
    Poner_Cuentas(t, d);
    for (const Columna& c : d.columnas)
        Poner_Columna(t, c);
    for (const Columna& c : d.columnas)
        t.Nombre(c.nombre);
    for (const Indice_Real& i : d.indices)
        Poner_Indice(t, i);
    for (const Indice_Logico& i : d.nombres)
        Poner_Nombre_De_Indice(t, i);
    for (const Indice_Logico& i : d.nombres)
        t.Nombre(i.nombre);
    for (const Columna_Larga& c : d.largas)
        t.U16(c.id).U32(c.propias).U32(c.libres);
    return t.U16(FIN_DEFINICION).Hecha();
}

} // namespace

quint32 Paginas_De(const Definicion& definicion)
{
    const qsizetype largo = FIN_LARGO + Cuerpo(definicion).size();
    const qsizetype resto = std::max<qsizetype>(0, largo - TAMANO_PAGINA);
    return static_cast<quint32>(1 + (resto + TROZO - 1) / TROZO);
}

void Escribir_Definicion(const Definicion& definicion, const QList<quint32>& numeros,
                         Paginas& paginas)
{
    const QByteArray cuerpo = Cuerpo(definicion);
    qsizetype escrito = 0;
    for (qsizetype k = 0; k < numeros.size(); ++k) {
        Pagina pagina = Pagina_Nueva(Clase_Pagina::DEFINICION);
        const int desde = k == 0 ? FIN_LARGO : CABECERA_PAGINA;
        const qsizetype trozo = std::min(cuerpo.size() - escrito, qsizetype(TAMANO_PAGINA) - desde);
        std::memcpy(pagina.data() + desde, cuerpo.data() + escrito,
                    static_cast<std::size_t>(trozo));
        escrito += trozo;
        // The engine keeps the room of a page header back at the end, too.
        const qsizetype libre = TAMANO_PAGINA - (desde + trozo) - CABECERA_PAGINA;
        Poner<quint16>(pagina, PAG_LIBRE, static_cast<quint16>(std::max<qsizetype>(0, libre)));
        Poner<quint32>(pagina, DEF_SIGUIENTE, k + 1 < numeros.size() ? numeros[k + 1] : 0);
        if (k == 0)
            Poner<quint32>(pagina, DEF_LARGO, static_cast<quint32>(FIN_LARGO + cuerpo.size()));
        paginas.Escribir(numeros[k], pagina);
    }
}

} // namespace Jet
