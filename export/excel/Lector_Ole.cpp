#include "export/excel/Archivo_Ole.h"
#include "export/excel/Error_Libro.h"
#include "export/excel/Estructura_Ole.h"

#include <algorithm>

using namespace Ole;

bool Lector_Ole::Es_Ole(QByteArrayView bytes)
{
    return bytes.startsWith(Bytes_De(FIRMA));
}

Lector_Ole::Lector_Ole(QByteArrayView b) : bytes(b)
{
    Leer_Tabla_Asignacion();
    Leer_Directorio();
}

QByteArrayView Lector_Ole::Sector(quint32 numero) const
{
    // The header takes the place of the first sector, whatever the sector's size.
    const qsizetype desde = (qsizetype(numero) + 1) * tamano_sector;
    if (numero > MAXREGSECT || desde >= bytes.size())
        throw Libro_Danado(QStringLiteral("el sector %1 cae fuera del fichero").arg(numero));
    // Some programs cut the file behind the last byte in use instead of the last sector.
    return bytes.sliced(desde, std::min(tamano_sector, bytes.size() - desde));
}

static void Anadir_Numeros(std::vector<quint32>& tabla, QByteArrayView sector)
{
    for (qsizetype i = 0; i + qsizetype(sizeof(U32)) <= sector.size(); i += sizeof(U32))
        tabla.push_back(*Leer_Trazado<U32>(sector, i));
}

void Lector_Ole::Leer_Tabla_Asignacion()
{
    const auto cabecera = Leer_Trazado<Cabecera>(bytes);
    if (!cabecera || !Es_Ole(bytes)) throw Libro_Danado(QStringLiteral("falta la cabecera OLE"));
    const quint16 bits = cabecera->sector_shift;
    if (bits != BITS_SECTOR_V3 && bits != BITS_SECTOR_V4)
        throw Libro_Danado(QStringLiteral("el tamaño de sector no es válido"));
    if (cabecera->mini_sector_shift != BITS_SECTOR_MENUDO)
        throw Libro_Danado(QStringLiteral("el tamaño de sector menudo no es válido"));
    tamano_sector = qsizetype(1) << bits;
    corte_menudo = cabecera->mini_stream_cutoff;

    std::vector<quint32> sectores_fat;
    for (const U32& sector : cabecera->difat)
        if (sector <= MAXREGSECT) sectores_fat.push_back(sector);
    const quint32 sectores = quint32(bytes.size() / tamano_sector);
    quint32 vueltas = 0;
    for (quint32 s = cabecera->first_difat_sector; s <= MAXREGSECT;) {
        if (++vueltas > sectores)
            throw Libro_Danado(QStringLiteral("la cadena de la tabla DIFAT no acaba"));
        std::vector<quint32> parte;
        Anadir_Numeros(parte, Sector(s));
        if (parte.empty()) throw Libro_Danado(QStringLiteral("la tabla DIFAT está cortada"));
        s = parte.back();
        parte.pop_back();
        for (const quint32 sector : parte)
            if (sector <= MAXREGSECT) sectores_fat.push_back(sector);
    }
    if (sectores_fat.size() > sectores)
        throw Libro_Danado(QStringLiteral("la tabla de asignación es mayor que el fichero"));
    for (const quint32 sector : sectores_fat)
        Anadir_Numeros(fat, Sector(sector));
    if (cabecera->first_mini_fat_sector <= MAXREGSECT)
        Anadir_Numeros(mini_fat, Leer_Cadena(cabecera->first_mini_fat_sector, -1));
}

void Lector_Ole::Leer_Directorio()
{
    const auto cabecera = Leer_Trazado<Cabecera>(bytes);
    const QByteArray directorio = Leer_Cadena(cabecera->first_dir_sector, -1);
    for (qsizetype i = 0; const auto e = Leer_Trazado<Entrada_Directorio>(directorio, i);
         i += sizeof(Entrada_Directorio)) {
        if (e->object_type != FLUJO && e->object_type != RAIZ) continue;
        // The upper half of the length is not to be trusted in files of the short sectors.
        const quint64 tamano =
            tamano_sector == SECTOR ? quint32(e->stream_size) : quint64(e->stream_size);
        if (e->object_type == RAIZ && i == 0) {
            if (tamano > 0 && e->starting_sector <= MAXREGSECT)
                mini_flujo = Leer_Cadena(e->starting_sector, -1);
            continue;
        }
        Flujo flujo;
        const qsizetype letras = std::min<qsizetype>(e->name_length / 2, qsizetype(e->name.size()));
        for (qsizetype k = 0; k + 1 < letras; ++k)
            flujo.nombre += QChar(char16_t(e->name[std::size_t(k)]));
        flujo.primer_sector = e->starting_sector;
        flujo.tamano = tamano;
        flujos.push_back(flujo);
    }
}

const Lector_Ole::Flujo* Lector_Ole::Buscar(const QString& nombre) const
{
    for (const Flujo& flujo : flujos)
        if (flujo.nombre.compare(nombre, Qt::CaseInsensitive) == 0) return &flujo;
    return nullptr;
}

QByteArray Lector_Ole::Leer(const QString& nombre) const
{
    const Flujo* flujo = Buscar(nombre);
    if (!flujo) throw Libro_Danado(QStringLiteral("falta la secuencia \"%1\"").arg(nombre));
    if (flujo->tamano > quint64(bytes.size()))
        throw Libro_Danado(
            QStringLiteral("la secuencia \"%1\" es mayor que el fichero").arg(nombre));
    return flujo->tamano < corte_menudo
               ? Leer_Cadena_Menuda(flujo->primer_sector, qint64(flujo->tamano))
               : Leer_Cadena(flujo->primer_sector, qint64(flujo->tamano));
}

// Follows a chain of an allocation table, handing each sector to `tomar` until it says no more.
template <class Tomar>
static void Seguir_Cadena(const std::vector<quint32>& tabla, quint32 primero, Tomar tomar)
{
    std::vector<bool> vistos(tabla.size());
    for (quint32 s = primero; s != ENDOFCHAIN; s = tabla[s]) {
        if (s >= tabla.size())
            throw Libro_Danado(QStringLiteral("la cadena de sectores se sale de la tabla"));
        if (vistos[s]) throw Libro_Danado(QStringLiteral("la cadena de sectores no acaba"));
        vistos[s] = true;
        if (!tomar(s)) return;
    }
}

static QByteArray Comprobar_Largo(QByteArray resultado, qint64 tamano)
{
    if (tamano < 0) return resultado;
    if (resultado.size() < tamano)
        throw Libro_Danado(QStringLiteral("la cadena de sectores acaba antes de tiempo"));
    resultado.truncate(tamano);
    return resultado;
}

QByteArray Lector_Ole::Leer_Cadena(quint32 primero, qint64 tamano) const
{
    QByteArray resultado;
    if (tamano == 0) return resultado;
    Seguir_Cadena(fat, primero, [&](quint32 s) {
        resultado += Sector(s);
        return tamano < 0 || resultado.size() < tamano;
    });
    return Comprobar_Largo(resultado, tamano);
}

QByteArray Lector_Ole::Leer_Cadena_Menuda(quint32 primero, qint64 tamano) const
{
    QByteArray resultado;
    if (tamano == 0) return resultado;
    Seguir_Cadena(mini_fat, primero, [&](quint32 s) {
        const qsizetype desde = qsizetype(s) * SECTOR_MENUDO;
        if (desde >= mini_flujo.size())
            throw Libro_Danado(QStringLiteral("un sector menudo cae fuera del fichero"));
        resultado += QByteArrayView(mini_flujo)
                         .sliced(desde, std::min(SECTOR_MENUDO, mini_flujo.size() - desde));
        return resultado.size() < tamano;
    });
    return Comprobar_Largo(resultado, tamano);
}
