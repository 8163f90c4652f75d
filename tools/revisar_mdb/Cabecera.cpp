#include "tools/revisar_mdb/Cabecera.h"

#include <array>
#include <cmath>
#include <cstring>

namespace Revision_Mdb {

namespace {

constexpr qsizetype OCULTO = 0x18;
constexpr qsizetype LARGO_OCULTO = 0x80;
constexpr qsizetype CONTRASENA = 0x42;
constexpr qsizetype LARGO_CONTRASENA = 40;
constexpr qsizetype FECHA = 0x72;
constexpr qsizetype TESTIGOS = 0xE00;
constexpr qsizetype LARGO_REGION = 0x50; // from the password on, folded into the key

// The stream cipher with which parts of the file are obfuscated.
class Cifra {
public:
    explicit Cifra(QByteArrayView clave)
    {
        for (int i = 0; i < 256; ++i)
            caja[quint8(i)] = quint8(i);
        for (int i = 0; i < 256; ++i) {
            salto = quint8(salto + caja[quint8(i)] + quint8(clave[i % clave.size()]));
            Cambiar(quint8(i), salto);
        }
        salto = 0;
    }
    QByteArray Aplicar(QByteArrayView texto)
    {
        QByteArray resultado;
        for (const char c : texto) {
            ++paso;
            salto = quint8(salto + caja[paso]);
            Cambiar(paso, salto);
            resultado += char(quint8(c) ^ caja[quint8(caja[paso] + caja[salto])]);
        }
        return resultado;
    }

private:
    void Cambiar(quint8 a, quint8 b)
    {
        const quint8 antes = caja[a];
        caja[a] = caja[b];
        caja[b] = antes;
    }

    std::array<quint8, 256> caja{};
    quint8 paso = 0;
    quint8 salto = 0;
};

double Real(Bytes bytes)
{
    double valor;
    std::memcpy(&valor, bytes.Parte(0, sizeof valor).Vista().data(), sizeof valor);
    return valor;
}

void Revisar_En_Claro(Revision& r, Bytes pagina)
{
    r.Exigir(pagina.Parte(0, 4) == QByteArrayView("\x00\x01\x00\x00", 4), 0, "marca del fichero");
    r.Exigir(pagina.Parte(4, 16) == QByteArrayView("Standard Jet DB", 16), 0, "nombre del motor");
    r.Igual(pagina.U32(0x14), 1, 0, "versión");
    r.Igual(pagina.U32(0x98), 0x654, 0, "edición");
    r.Exigir(pagina.Parte(0x9C, 4) == QByteArrayView("4.0", 4), 0, "texto de la edición");
    r.Exigir(pagina.Parte(0xA0, TESTIGOS - 0xA0).Ceros(), 0, "bytes sin uso que no son cero");
    for (qsizetype i = TESTIGOS; i < PAGINA; i += 2)
        r.Igual(pagina.U16(i), i == TESTIGOS ? 0x0101 : 0x0100, 0, "testigo de un usuario");
}

// `claro` begins at `OCULTO`; offsets are those of the page.
void Revisar_Oculto(Revision& r, Bytes claro, double fecha)
{
    const auto u32 = [&](qsizetype donde) { return claro.U32(donde - OCULTO); };
    r.Igual(u32(0x18), 0x100, 0, "mapa de páginas libres");
    r.Igual(u32(0x1C), 0x101, 0, "mapa de páginas liberadas");
    for (quint32 k = 0; k < 4; ++k)
        r.Igual(u32(0x20 + 4 * k), 2 + k, 0, "tabla del sistema");
    r.Exigir(claro.Parte(0x30 - OCULTO, 0x3C - 0x30).Ceros(), 0, "bytes ocultos sin uso");
    r.Igual(claro.U16(0x3C - OCULTO), 1252, 0, "página de códigos");
    r.Igual(u32(0x3E), 0, 0, "clave de cifrado");
    for (qsizetype i = 0; i < LARGO_CONTRASENA; i += 4)
        r.Igual(u32(CONTRASENA + i), quint32(fecha), 0, "contraseña vacía");
    r.Igual(u32(0x6A), 9756, 0, "versión del motor");
    r.Igual(u32(0x6E), 0x409, 0, "idioma");
    r.Exigir(claro.Desde(FECHA + 8 - OCULTO).Ceros(), 0, "bytes ocultos sin uso");
}

QByteArray Serie_Sid(Bytes claro, double fecha)
{
    std::array<quint8, LARGO_REGION> region;
    const Bytes cruda = claro.Parte(CONTRASENA - OCULTO, LARGO_REGION);
    for (qsizetype i = 0; i < LARGO_REGION; ++i) {
        const auto velo = quint8(quint32(fecha) >> (8 * (i % 4)));
        region[std::size_t(i)] = i < LARGO_CONTRASENA ? cruda.U8(i) ^ velo : cruda.U8(i);
    }
    quint32 clave = claro.U32(FECHA - OCULTO);
    for (quint32 i = 0; i < LARGO_REGION / 2; ++i)
        clave ^= quint32(region[2 * i]) << (i % 24);
    char bytes[4];
    qToLittleEndian(clave, bytes);
    return Cifra({bytes, 4}).Aplicar({"\0\0", 2});
}

} // namespace

QString Cabecera::Cuenta(QByteArrayView sid) const
{
    if (sid.size() != 2 || serie_sid.size() != 2) return {};
    const int claro = quint8(sid[0] ^ serie_sid[0]) << 8 | quint8(sid[1] ^ serie_sid[1]);
    switch (claro) {
    case 0x0301:
        return QStringLiteral("Admin");
    case 0x0201:
        return QStringLiteral("Users");
    case 0x0203:
        return QStringLiteral("Engine");
    case 0x0204:
        return QStringLiteral("Creator");
    default:
        return {};
    }
}

Cabecera Revisar_Cabecera(Revision& r)
{
    r.Reclamar(0, "la cabecera");
    const Bytes pagina = r.Pagina(0);
    Revisar_En_Claro(r, pagina);
    const QByteArray claro =
        Cifra("\xC7\xDA\x39\x6B").Aplicar(pagina.Parte(OCULTO, LARGO_OCULTO).Vista());
    Cabecera cabecera;
    cabecera.fecha = claro.mid(FECHA - OCULTO, 8);
    const double fecha = Real(Bytes(cabecera.fecha));
    if (!r.Exigir(std::isfinite(fecha) && fecha > 0 && fecha < 2958466, 0, "fecha de creación"))
        return cabecera;
    Revisar_Oculto(r, Bytes(claro), fecha);
    cabecera.serie_sid = Serie_Sid(Bytes(claro), fecha);
    return cabecera;
}

} // namespace Revision_Mdb
