#include "export/excel/Lector_Hoja.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>

using namespace Biff;

namespace {

/// The texts that Excel shows for the codes of its errors.
constexpr std::pair<quint8, const char16_t*> ERRORES[] = {
    {0x00, u"#NULL!"}, {0x07, u"#DIV/0!"}, {0x0F, u"#VALUE!"}, {0x17, u"#REF!"},
    {0x1D, u"#NAME?"}, {0x24, u"#NUM!"},   {0x2A, u"#N/A"}};

QString Texto_De_Error(quint8 codigo)
{
    for (const auto& [c, texto] : ERRORES)
        if (c == codigo) return QString::fromUtf16(texto);
    throw Libro_Danado(QStringLiteral("una celda tiene el código de error %1").arg(codigo));
}

// A number shortened to 32 bits: two flags, and behind them an integer of 30 bits or the upper 30
// bits of a double.
double Numero_De_Rk(quint32 rk)
{
    constexpr quint32 CENTESIMAS = 1, ENTERO = 2, MARCAS = 3;
    const double valor =
        rk & ENTERO ? double(qint32(rk) >> 2) : std::bit_cast<double>(quint64(rk & ~MARCAS) << 32);
    return rk & CENTESIMAS ? valor / 100 : valor;
}

} // namespace

void Lector_Hoja::Tomar(const Registro_Biff& registro, Flujo_Biff& flujo)
{
    switch (registro.id) {
    case Dimensions_8::ID:
        return Tomar_Dimensiones(registro);
    case ColInfo::ID:
        return Tomar_Columna(registro);
    case LabelSst::ID:
        return Tomar_Cadena(registro);
    case Label::ID:
    case RSTRING:
        return Tomar_Texto(registro, flujo);
    case Number::ID: {
        const auto celda = registro.Como<Number>();
        return Poner(celda, Celda::De(celda.num));
    }
    case Rk::ID: {
        const auto celda = registro.Como<Rk>();
        return Poner(celda, Celda::De(Numero_De_Rk(celda.rk)));
    }
    case MULRK:
        return Tomar_Numeros(registro);
    case Blank::ID:
        return Poner(registro.Como<Blank>(), Celda());
    case MULBLANK:
        return Tomar_Vacias(registro);
    case BoolErr::ID:
        return Tomar_Logico_O_Error(registro);
    case FORMULA_BIFF58:
    case FORMULA_BIFF3:
    case FORMULA_BIFF4:
        return Tomar_Formula(registro);
    case STRING:
        return Tomar_Texto_De_Formula(registro, flujo);
    default:
        return;
    }
}

void Lector_Hoja::Poner(const Lugar_Celda& lugar, Celda celda)
{
    if (lugar.col >= Hoja_Excel::MAX_COLUMNAS)
        throw Libro_Danado(QStringLiteral("una celda está en la columna %1").arg(lugar.col + 1));
    if (!std::isfinite(celda.numero))
        throw Libro_Danado(QStringLiteral("una celda tiene un número imposible"));
    comun.aspectos.Vestir(celda, lugar.ixfe);
    hoja.Poner(lugar.rw, lugar.col, celda);
}

// A program that drops the empty cells of prepared rows still counts the rows here.
void Lector_Hoja::Tomar_Dimensiones(const Registro_Biff& registro)
{
    const auto anotar = [this](const auto& d) {
        hoja.Ampliar_Uso({int(std::min<quint32>(d.rw_mic, Hoja_Excel::MAX_FILAS)), d.col_mic,
                          int(std::min<quint32>(d.rw_mac, Hoja_Excel::MAX_FILAS)) - 1,
                          d.col_mac - 1});
    };
    if (comun.version == Version_Excel::Excel_8)
        anotar(registro.Como<Dimensions_8>());
    else
        anotar(registro.Como<Dimensions_345>());
}

void Lector_Hoja::Tomar_Columna(const Registro_Biff& registro)
{
    const auto c = registro.Como<ColInfo>();
    const double ancho = c.coldx / ANCHO_UNIDADES;
    const int hasta = std::min<int>(c.col_last, Hoja_Excel::MAX_COLUMNAS - 1);
    for (int columna = c.col_first; columna <= hasta; ++columna)
        hoja.Poner_Ancho(columna, std::min(ancho, 255.0));
}

QString Lector_Hoja::Leer_Texto(const Registro_Biff& registro, qsizetype desde,
                                Flujo_Biff& flujo) const
{
    Cuerpo_Biff cuerpo(registro, flujo);
    cuerpo.Saltar(desde);
    const quint16 largo = cuerpo.Leer<U16>();
    if (comun.version == Version_Excel::Excel_8) return cuerpo.Leer_Texto(largo);
    return comun.pagina.A_Texto(cuerpo.Leer_Bytes(largo));
}

void Lector_Hoja::Tomar_Texto(const Registro_Biff& registro, Flujo_Biff& flujo)
{
    const QString texto = Leer_Texto(registro, sizeof(Lugar_Celda), flujo);
    Poner(registro.Como<Lugar_Celda>(), Celda::De(texto));
}

void Lector_Hoja::Tomar_Cadena(const Registro_Biff& registro)
{
    const auto celda = registro.Como<LabelSst>();
    if (celda.isst >= comun.cadenas.size())
        throw Libro_Danado(QStringLiteral("una celda nombra un texto que no existe"));
    Poner(celda, Celda::De(comun.cadenas[celda.isst]));
}

void Lector_Hoja::Poner_Logico_O_Error(const Lugar_Celda& lugar, quint8 valor, bool es_error)
{
    Poner(lugar, es_error ? Celda::De(Texto_De_Error(valor)) : Celda::De(double(valor)));
}

void Lector_Hoja::Tomar_Logico_O_Error(const Registro_Biff& registro)
{
    const auto celda = registro.Como<BoolErr>();
    Poner_Logico_O_Error(celda, celda.b_bool_err, celda.f_error != 0);
}

void Lector_Hoja::Tomar_Formula(const Registro_Biff& registro)
{
    const auto celda = registro.Como<Formula>();
    const auto& v = celda.valor;
    formula_de_texto.reset();
    if (v[6] != VALOR_NO_NUMERICO || v[7] != VALOR_NO_NUMERICO)
        return Poner(celda, Celda::De(registro.Como<F64>(sizeof(Lugar_Celda))));
    switch (v[0]) {
    case Clase_Valor::TEXTO:
        formula_de_texto = celda;
        return Poner(celda, Celda::De(QString()));
    case Clase_Valor::LOGICO:
    case Clase_Valor::ERROR:
        return Poner_Logico_O_Error(celda, v[2], v[0] == Clase_Valor::ERROR);
    case Clase_Valor::VACIO:
        return Poner(celda, Celda::De(QString()));
    default:
        throw Libro_Danado(QStringLiteral("una fórmula tiene un valor de clase %1").arg(v[0]));
    }
}

void Lector_Hoja::Tomar_Texto_De_Formula(const Registro_Biff& registro, Flujo_Biff& flujo)
{
    if (!formula_de_texto) return;
    Poner(*formula_de_texto, Celda::De(Leer_Texto(registro, 0, flujo)));
    formula_de_texto.reset();
}

// Cells side by side in one record: row, first column, something for each cell, last column.
template <class Trazado, class Poner_Celda>
static void Recorrer_Varias(const Registro_Biff& registro, Poner_Celda poner)
{
    const auto cabeza = registro.Como<MulBlank>();
    const quint16 ultima = registro.Como<U16>(registro.cuerpo.size() - qsizetype(sizeof(U16)));
    qsizetype desde = sizeof(MulBlank);
    for (quint32 columna = cabeza.col_first; columna <= ultima; ++columna) {
        poner(cabeza.rw, quint16(columna), registro.Como<Trazado>(desde));
        desde += qsizetype(sizeof(Trazado));
    }
}

void Lector_Hoja::Tomar_Vacias(const Registro_Biff& registro)
{
    Recorrer_Varias<U16>(registro, [this](quint16 fila, quint16 columna, quint16 ixfe) {
        Poner(Lugar_Celda{fila, columna, ixfe}, Celda());
    });
}

void Lector_Hoja::Tomar_Numeros(const Registro_Biff& registro)
{
    Recorrer_Varias<RkRec>(registro, [this](quint16 fila, quint16 columna, const RkRec& numero) {
        Poner(Lugar_Celda{fila, columna, numero.ixfe}, Celda::De(Numero_De_Rk(numero.rk)));
    });
}
