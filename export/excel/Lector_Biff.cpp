#include "export/excel/Lector_Biff.h"

#include "export/excel/Archivo_Ole.h"
#include "export/excel/Lector_Hoja.h"

#include <algorithm>

using namespace Biff;

namespace {

Error_Ejecucion Forma_Desconocida()
{
    return Error_Ejecucion(3274, QStringLiteral("El fichero no es un libro de Excel 3.0 a 2003"));
}

bool Es_Bof(quint16 id)
{
    return id == BOF_BIFF3 || id == BOF_BIFF4 || id == BOF_BIFF58;
}

/// A sheet as the globals announce it.
struct Hoja_Anunciada {
    QString nombre;
    quint32 lugar = 0; ///< of its BOF in the stream
};

class Lector_Biff {
public:
    Lector_Biff(QByteArrayView flujo, const QString& nombre) : bytes(flujo), nombre_hoja(nombre) {}

    Libro_Excel Leer()
    {
        const auto cabeza = Leer_Trazado<Cabeza>(bytes);
        if (!cabeza || !Es_Bof(cabeza->id)) throw Forma_Desconocida();
        Flujo_Biff flujo(bytes, 0);
        const Registro_Biff bof = flujo.Siguiente();
        const auto version = Version_De_Bof(bof);
        if (!version) throw Forma_Desconocida();
        comun.version = *version;
        const quint16 contenido = bof.Como<Bof_34>().dt;
        if (!Forma_De(*version).compuesto) {
            if (contenido != HOJA_DE_CALCULO) throw Forma_Desconocida();
            Leer_Hoja(flujo, nombre_hoja);
        } else {
            if (contenido != GLOBALES) throw Forma_Desconocida();
            Leer_Globales(flujo);
            Leer_Hojas();
        }
        if (hojas.empty())
            throw Error_Ejecucion(3274, QStringLiteral("El libro no tiene hojas de cálculo"));
        return Libro_Excel(std::move(hojas));
    }

private:
    void Leer_Globales(Flujo_Biff& flujo);
    bool Tomar_Comun(const Registro_Biff& registro);
    void Tomar_Cadenas(const Registro_Biff& registro, Flujo_Biff& flujo);
    void Tomar_Anuncio(const Registro_Biff& registro);
    void Leer_Hojas();
    void Leer_Hoja(Flujo_Biff& flujo, const QString& nombre);

    QByteArrayView bytes;
    QString nombre_hoja;
    Comun_Libro comun;
    std::vector<Hoja_Anunciada> anunciadas;
    std::deque<Hoja_Excel> hojas;
};

// The records that stand in the globals of a book or in a plain sheet.
bool Lector_Biff::Tomar_Comun(const Registro_Biff& registro)
{
    switch (registro.id) {
    case FILEPASS:
        throw Error_Ejecucion(3274, QStringLiteral("El libro está protegido con una contraseña"));
    case CODEPAGE:
        comun.pagina.Fijar(registro.Como<U16>());
        return true;
    default:
        return comun.aspectos.Tomar(registro, comun.version);
    }
}

void Lector_Biff::Leer_Globales(Flujo_Biff& flujo)
{
    for (;;) {
        const Registro_Biff registro = flujo.Siguiente();
        if (registro.id == END_OF_FILE) return;
        if (registro.id == BoundSheet::ID)
            Tomar_Anuncio(registro);
        else if (registro.id == Sst::ID)
            Tomar_Cadenas(registro, flujo);
        else
            Tomar_Comun(registro);
    }
}

void Lector_Biff::Tomar_Anuncio(const Registro_Biff& registro)
{
    const auto anuncio = registro.Como<BoundSheet>();
    if (anuncio.dt != HOJA_NORMAL) return; // a chart, a macro
    qsizetype desde = sizeof(BoundSheet);
    const quint8 largo = registro.Como<U8>(desde++);
    Hoja_Anunciada hoja{{}, anuncio.lb_ply_pos};
    if (comun.version == Version_Excel::Excel_8) {
        Flujo_Biff nada({}, 0);
        Cuerpo_Biff cuerpo({registro.id, registro.cuerpo.sliced(desde)}, nada);
        hoja.nombre = cuerpo.Leer_Texto(largo);
    } else {
        if (registro.cuerpo.size() - desde < largo)
            throw Libro_Danado(QStringLiteral("el nombre de una hoja está cortado"));
        hoja.nombre = comun.pagina.A_Texto(registro.cuerpo.sliced(desde, largo));
    }
    anunciadas.push_back(hoja);
}

void Lector_Biff::Tomar_Cadenas(const Registro_Biff& registro, Flujo_Biff& flujo)
{
    Cuerpo_Biff cuerpo(registro, flujo);
    const auto cabeza = cuerpo.Leer<Sst>();
    for (quint32 i = 0; i < cabeza.cst_unique; ++i) {
        const quint16 largo = cuerpo.Leer<U16>();
        comun.cadenas.push_back(cuerpo.Leer_Texto(largo));
    }
}

void Lector_Biff::Leer_Hojas()
{
    // Sheets stand apart in the stream: those of a false directory, that lie one in the other, are
    // not read over and over.
    qsizetype leido = 0;
    for (const Hoja_Anunciada& anuncio : anunciadas) {
        Flujo_Biff flujo(bytes, anuncio.lugar);
        if (!Es_Bof(flujo.Siguiente().id))
            throw Libro_Danado(QStringLiteral("falta la hoja \"%1\"").arg(anuncio.nombre));
        Leer_Hoja(flujo, anuncio.nombre);
        leido += flujo.Posicion() - anuncio.lugar;
        if (leido > bytes.size()) throw Libro_Danado(QStringLiteral("las hojas se solapan"));
    }
}

void Lector_Biff::Leer_Hoja(Flujo_Biff& flujo, const QString& nombre)
{
    Hoja_Excel& hoja = hojas.emplace_back(nombre);
    Lector_Hoja lector(hoja, comun);
    const bool suelta = !Forma_De(comun.version).compuesto;
    // A chart in the sheet has a part of the stream to itself, with a BOF and an EOF of its own.
    for (int dentro = 0;;) {
        const Registro_Biff registro = flujo.Siguiente();
        if (Es_Bof(registro.id)) {
            ++dentro;
        } else if (registro.id == END_OF_FILE) {
            if (dentro-- == 0) return;
        } else if (dentro == 0 && !(suelta && Tomar_Comun(registro))) {
            lector.Tomar(registro, flujo);
        }
    }
}

// The stream of the later form wins in a file that was saved for both.
QByteArray Flujo_De_Libro(const Lector_Ole& ole)
{
    for (const QString& nombre : {QStringLiteral("Workbook"), QStringLiteral("Book")})
        if (ole.Hay(nombre)) return ole.Leer(nombre);
    throw Error_Ejecucion(3274, QStringLiteral("El fichero no contiene ningún libro de Excel"));
}

} // namespace

Libro_Excel Leer_Libro(QByteArrayView fichero, const QString& nombre_hoja)
{
    if (Lector_Ole::Es_Ole(fichero)) {
        const QByteArray flujo = Flujo_De_Libro(Lector_Ole(fichero));
        return Lector_Biff(flujo, nombre_hoja).Leer();
    }
    if (fichero.startsWith("PK"))
        throw Error_Ejecucion(3274,
                              QStringLiteral("El fichero es un libro comprimido (.xlsx, .ods): "
                                             "guárdelo antes como libro de Excel 97-2003"));
    return Lector_Biff(fichero, nombre_hoja).Leer();
}
