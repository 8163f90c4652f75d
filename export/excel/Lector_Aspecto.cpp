#include "export/excel/Lector_Aspecto.h"

#include "core/Ansi.h"

#include <algorithm>

using namespace Biff;

namespace {

constexpr quint16 PAGINAS_LATINAS[] = {1252, 0x8001}; ///< Windows-1252 and its earlier number
constexpr quint16 PESO_DESDE_NEGRITA = 600;
constexpr quint16 FUENTE_QUE_NO_HAY = 4; ///< no font has this number: the fifth is 5
constexpr QByteArrayView DIBUJO_TEXTO = "@";

// "0", "0.0", …: the pictures of a fixed number of decimals. @return -1 for any other
qint8 Decimales_De(const QByteArray& dibujo)
{
    if (dibujo == "0") return 0;
    const qsizetype decimales = dibujo.size() - 2;
    if (decimales < 1 || decimales > Celda::MAX_DECIMALES) return -1;
    return dibujo == "0." + QByteArray(decimales, '0') ? qint8(decimales) : -1;
}

} // namespace

std::optional<Version_Excel> Version_De_Bof(const Registro_Biff& bof)
{
    switch (bof.id) {
    case BOF_BIFF3:
        return Version_Excel::Excel_3;
    case BOF_BIFF4:
        return Version_Excel::Excel_4;
    case BOF_BIFF58:
        switch (bof.Como<U16>()) {
        case VERSION_BIFF5:
            return Version_Excel::Excel_5;
        case VERSION_BIFF8:
            return Version_Excel::Excel_8;
        }
    }
    return std::nullopt;
}

QString Pagina_Biff::A_Texto(QByteArrayView bytes) const
{
    const bool latina = std::find(std::begin(PAGINAS_LATINAS), std::end(PAGINAS_LATINAS), pagina) !=
                        std::end(PAGINAS_LATINAS);
    // Letters and digits are the same in all pages; a wrong accent would pass unseen.
    if (!latina && std::any_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) > 127; }))
        throw Error_Ejecucion(
            3274,
            QStringLiteral("El libro usa la página de códigos %1, que no se admite").arg(pagina));
    return Ansi::A_Texto(bytes);
}

bool Aspectos_Leidos::Tomar(const Registro_Biff& registro, Version_Excel version)
{
    switch (registro.id) {
    case Font_34::ID:
        negritas.push_back(registro.Como<Font_34>().grbit & FUENTE_NEGRITA);
        return true;
    case Font_58::ID:
        negritas.push_back(registro.Como<Font_58>().bls >= PESO_DESDE_NEGRITA);
        return true;
    case Format_3::ID:
    case Format_58::ID:
        Tomar_Formato(registro, version);
        return true;
    case Xf_3::ID:
    case Xf_4::ID:
    case Xf_5::ID:
        Tomar_Xf(registro, version);
        return true;
    default:
        return false;
    }
}

// The picture stands at the end of the record, in one or two bytes a character: those that matter
// have one.
void Aspectos_Leidos::Tomar_Formato(const Registro_Biff& registro, Version_Excel version)
{
    const bool numerado = version >= Version_Excel::Excel_5;
    const quint16 numero = numerado ? quint16(registro.Como<Format_58>().ifmt) : formatos_leidos;
    ++formatos_leidos;
    const qsizetype antes = version == Version_Excel::Excel_3   ? 1
                            : version == Version_Excel::Excel_8 ? 5
                                                                : 3;
    dibujos[numero] =
        registro.cuerpo.size() > antes ? registro.cuerpo.sliced(antes).toByteArray() : QByteArray();
}

void Aspectos_Leidos::Tomar_Xf(const Registro_Biff& registro, Version_Excel version)
{
    if (version == Version_Excel::Excel_3) {
        const auto xf = registro.Como<Xf_3>();
        xfs.push_back({xf.ifnt, xf.ifmt});
    } else if (version == Version_Excel::Excel_4) {
        const auto xf = registro.Como<Xf_4>();
        xfs.push_back({xf.ifnt, xf.ifmt});
    } else {
        // The two later forms begin alike.
        const auto xf = registro.Como<Xf_5>();
        xfs.push_back({xf.ifnt, xf.ifmt});
    }
}

// A picture that the book doesn't bring is built into the forms; those that matter here are three.
QByteArray Aspectos_Leidos::Dibujo_De(quint16 formato) const
{
    const auto propio = dibujos.find(formato);
    if (propio != dibujos.end()) return propio->second;
    switch (formato) {
    case FORMATO_TEXTO:
        return DIBUJO_TEXTO.toByteArray();
    case FORMATO_ENTERO:
        return QByteArrayLiteral("0");
    case FORMATO_DOS_DECIMALES:
        return QByteArrayLiteral("0.00");
    default:
        return {};
    }
}

void Aspectos_Leidos::Vestir(Celda& celda, quint16 ixfe) const
{
    if (ixfe >= xfs.size()) return;
    const Xf& xf = xfs[ixfe];
    const std::size_t fuente = xf.fuente > FUENTE_QUE_NO_HAY ? xf.fuente - 1u : xf.fuente;
    celda.negrita = fuente < negritas.size() && negritas[fuente];
    const QByteArray dibujo = Dibujo_De(xf.formato);
    celda.como_texto = dibujo == DIBUJO_TEXTO;
    celda.decimales = Decimales_De(dibujo);
}
