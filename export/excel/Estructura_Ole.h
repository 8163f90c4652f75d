#pragma once

#include "export/excel/Campos_Binarios.h"

/// Layouts and constants of the compound file, with the names of its public description.
namespace Ole {

constexpr std::array<U8, 8> FIRMA = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};

// Sector numbers that are no sectors.
constexpr quint32 MAXREGSECT = 0xFFFFFFFA; ///< last number that may be a sector
constexpr quint32 DIFSECT = 0xFFFFFFFC;    ///< sector holding a part of the DIFAT
constexpr quint32 FATSECT = 0xFFFFFFFD;    ///< sector holding a part of the FAT
constexpr quint32 ENDOFCHAIN = 0xFFFFFFFE;
constexpr quint32 FREESECT = 0xFFFFFFFF;
constexpr quint32 NOSTREAM = 0xFFFFFFFF; ///< no directory entry

constexpr int DIFAT_CABECERA = 109;    ///< FAT sectors named by the header itself
constexpr quint32 CORTE_MENUDO = 4096; ///< shorter streams live in the mini stream
constexpr quint16 VERSION_3 = 3;       ///< sectors of 512 bytes
constexpr quint16 VERSION_4 = 4;       ///< sectors of 4096 bytes
constexpr quint16 BITS_SECTOR_V3 = 9;
constexpr quint16 BITS_SECTOR_V4 = 12;
constexpr quint16 BITS_SECTOR_MENUDO = 6;
constexpr qsizetype TAMANO_CABECERA = 512;
constexpr qsizetype SECTOR = 1 << BITS_SECTOR_V3;
constexpr qsizetype SECTOR_MENUDO = 1 << BITS_SECTOR_MENUDO;
constexpr quint32 ENTRADAS_POR_SECTOR = SECTOR / sizeof(U32);

struct Cabecera {
    std::array<U8, 8> signature;
    std::array<U8, 16> clsid;
    U16 minor_version;
    U16 major_version;
    U16 byte_order;
    U16 sector_shift;
    U16 mini_sector_shift;
    std::array<U8, 6> reserved;
    U32 num_dir_sectors;
    U32 num_fat_sectors;
    U32 first_dir_sector;
    U32 transaction_signature;
    U32 mini_stream_cutoff;
    U32 first_mini_fat_sector;
    U32 num_mini_fat_sectors;
    U32 first_difat_sector;
    U32 num_difat_sectors;
    std::array<U32, DIFAT_CABECERA> difat;
};
static_assert(sizeof(Cabecera) == TAMANO_CABECERA);

constexpr quint16 ORDEN_BYTES = 0xFFFE; ///< little-endian
constexpr quint16 VERSION_MENOR = 0x003E;

enum Tipo_Objeto : U8 { VACIO = 0, ALMACEN = 1, FLUJO = 2, RAIZ = 5 };
enum Color : U8 { ROJO = 0, NEGRO = 1 };

struct Entrada_Directorio {
    std::array<U16, 32> name;
    U16 name_length; ///< bytes, with the closing zero
    U8 object_type;
    U8 color;
    U32 left_sibling;
    U32 right_sibling;
    U32 child;
    std::array<U8, 16> clsid;
    U32 state_bits;
    U64 creation_time;
    U64 modified_time;
    U32 starting_sector;
    U64 stream_size;
};
static_assert(sizeof(Entrada_Directorio) == 128);

} // namespace Ole
