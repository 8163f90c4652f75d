#include "export/excel/Archivo_Ole.h"
#include "export/excel/Estructura_Ole.h"

using namespace Ole;

namespace {

quint32 Sectores_Para(qsizetype bytes, qsizetype sector = SECTOR)
{
    return quint32((bytes + sector - 1) / sector);
}

/// Where the parts of the file lie. The sectors follow each other in this order: the stream (or the
/// mini stream and its table), the directory, the FAT, the DIFAT.
struct Reparto {
    explicit Reparto(qsizetype tamano_flujo)
    {
        menudo = tamano_flujo < qsizetype(CORTE_MENUDO);
        menudos = menudo ? Sectores_Para(tamano_flujo, SECTOR_MENUDO) : 0;
        flujo = menudo ? Sectores_Para(menudos * SECTOR_MENUDO) : Sectores_Para(tamano_flujo);
        mini_fat = Sectores_Para(menudos * qsizetype(sizeof(U32)));
        // The tables also count the sectors that they take themselves.
        for (quint32 antes = 0; antes != Total();) {
            antes = Total();
            fat = Sectores_Para(antes * qsizetype(sizeof(U32)));
            difat = fat <= DIFAT_CABECERA ? 0
                                          : (fat - DIFAT_CABECERA + ENTRADAS_POR_SECTOR - 2) /
                                                (ENTRADAS_POR_SECTOR - 1);
        }
    }
    quint32 Total() const { return flujo + mini_fat + directorio + fat + difat; }
    quint32 Sector_Mini_Fat() const { return flujo; }
    quint32 Sector_Directorio() const { return flujo + mini_fat; }
    quint32 Sector_Fat() const { return Sector_Directorio() + directorio; }
    quint32 Sector_Difat() const { return Sector_Fat() + fat; }

    bool menudo = false;
    quint32 menudos = 0; ///< mini sectors of the stream
    quint32 flujo = 0, mini_fat = 0, directorio = 1, fat = 0, difat = 0;
};

Cabecera Hacer_Cabecera(const Reparto& r)
{
    Cabecera c{};
    c.signature = FIRMA;
    c.minor_version = VERSION_MENOR;
    c.major_version = VERSION_3;
    c.byte_order = ORDEN_BYTES;
    c.sector_shift = BITS_SECTOR_V3;
    c.mini_sector_shift = BITS_SECTOR_MENUDO;
    c.num_fat_sectors = r.fat;
    c.first_dir_sector = r.Sector_Directorio();
    c.mini_stream_cutoff = CORTE_MENUDO;
    c.first_mini_fat_sector = r.mini_fat ? r.Sector_Mini_Fat() : ENDOFCHAIN;
    c.num_mini_fat_sectors = r.mini_fat;
    c.first_difat_sector = r.difat ? r.Sector_Difat() : ENDOFCHAIN;
    c.num_difat_sectors = r.difat;
    for (quint32 i = 0; i < DIFAT_CABECERA; ++i)
        c.difat[i] = i < r.fat ? r.Sector_Fat() + i : FREESECT;
    return c;
}

Entrada_Directorio Entrada_Vacia()
{
    Entrada_Directorio e{};
    e.left_sibling = e.right_sibling = e.child = NOSTREAM;
    return e;
}

Entrada_Directorio Entrada(const QString& nombre, Tipo_Objeto tipo, quint32 sector, quint64 tamano)
{
    Entrada_Directorio e = Entrada_Vacia();
    for (qsizetype i = 0; i < nombre.size() && i + 1 < qsizetype(e.name.size()); ++i)
        e.name[std::size_t(i)] = nombre[i].unicode();
    e.name_length = quint16((nombre.size() + 1) * 2);
    e.object_type = tipo;
    e.color = NEGRO;
    e.starting_sector = sector;
    e.stream_size = tamano;
    return e;
}

void Rellenar(QByteArray& fichero, qsizetype unidad = SECTOR, char con = 0)
{
    if (const qsizetype sobra = fichero.size() % unidad) fichero.append(unidad - sobra, con);
}

void Anadir_Numero(QByteArray& fichero, quint32 numero)
{
    fichero += Bytes_De(U32(numero));
}

/// The links of `cuantos` sectors in a row, of which the first has the number `primero`.
void Anadir_Cadena(QByteArray& fichero, quint32 primero, quint32 cuantos)
{
    for (quint32 i = 1; i < cuantos; ++i)
        Anadir_Numero(fichero, primero + i);
    if (cuantos > 0) Anadir_Numero(fichero, ENDOFCHAIN);
}

void Anadir_Fat(QByteArray& fichero, const Reparto& r)
{
    Anadir_Cadena(fichero, 0, r.flujo);
    Anadir_Cadena(fichero, r.Sector_Mini_Fat(), r.mini_fat);
    Anadir_Cadena(fichero, r.Sector_Directorio(), r.directorio);
    for (quint32 i = 0; i < r.fat; ++i)
        Anadir_Numero(fichero, FATSECT);
    for (quint32 i = 0; i < r.difat; ++i)
        Anadir_Numero(fichero, DIFSECT);
    Rellenar(fichero, SECTOR, char(0xFF)); // all bits set: FREESECT
}

void Anadir_Difat(QByteArray& fichero, const Reparto& r)
{
    quint32 siguiente = DIFAT_CABECERA;
    for (quint32 d = 0; d < r.difat; ++d) {
        for (quint32 i = 0; i + 1 < ENTRADAS_POR_SECTOR; ++i, ++siguiente)
            Anadir_Numero(fichero, siguiente < r.fat ? r.Sector_Fat() + siguiente : FREESECT);
        Anadir_Numero(fichero, d + 1 < r.difat ? r.Sector_Difat() + d + 1 : ENDOFCHAIN);
    }
}

} // namespace

QByteArray Escribir_Ole(const QString& nombre, QByteArrayView flujo, const Clase_Ole& clase)
{
    const Reparto r(flujo.size());
    QByteArray fichero;
    fichero.reserve(TAMANO_CABECERA + r.Total() * SECTOR);
    fichero += Bytes_De(Hacer_Cabecera(r));
    fichero += flujo;
    Rellenar(fichero);
    if (r.menudo) {
        Anadir_Cadena(fichero, 0, r.menudos);
        Rellenar(fichero, SECTOR, char(0xFF));
    }
    const quint32 sector_flujo = flujo.isEmpty() ? ENDOFCHAIN : 0;
    Entrada_Directorio raiz =
        Entrada(QStringLiteral("Root Entry"), RAIZ, r.menudo ? sector_flujo : ENDOFCHAIN,
                quint64(r.menudos * SECTOR_MENUDO));
    raiz.clsid = clase;
    raiz.child = 1;
    fichero += Bytes_De(raiz);
    fichero += Bytes_De(Entrada(nombre, FLUJO, sector_flujo, quint64(flujo.size())));
    while (fichero.size() % SECTOR)
        fichero += Bytes_De(Entrada_Vacia());
    Anadir_Fat(fichero, r);
    Anadir_Difat(fichero, r);
    return fichero;
}
