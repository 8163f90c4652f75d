#include "export/mdb/Cabecera_Jet.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <utility>

namespace Jet {

namespace {

enum Cabecera_Fichero {
    CAB_NOMBRE = 0x04,
    CAB_VERSION = 0x14,
    CAB_OCULTO = 0x18,
    CAB_EDICION = 0x98,
    CAB_EDICION_TEXTO = 0x9C,
    CAB_TESTIGOS = 0xE00
};
constexpr uchar MARCA_FICHERO[] = {0x00, 0x01, 0x00, 0x00};
constexpr char NOMBRE_MOTOR[] = "Standard Jet DB";
constexpr quint32 JET_4 = 1;
constexpr quint32 EDICION = 0x654;
constexpr char EDICION_TEXTO[] = "4.0";

// A pair of bytes a user: zeros mean that he died while writing, and the file counts as damaged.
constexpr uchar USUARIO_PRESENTE[] = {0x01, 0x01};
constexpr uchar USUARIO_AUSENTE[] = {0x00, 0x01};

// Offsets in the page of what is obfuscated.
enum Oculto {
    OCU_MAPA_GLOBAL = 0x18,
    OCU_MAPA_LIBERADAS = 0x1C,
    OCU_TABLAS = 0x20,
    OCU_PAGINA_CODIGOS = 0x3C,
    OCU_CONTRASENA = 0x42,
    OCU_VERSION_MOTOR = 0x6A,
    OCU_IDIOMA = 0x6E,
    OCU_FECHA = 0x72,
    OCU_FIN_CLAVE = 0x92
};
constexpr int LARGO_CONTRASENA = 40;
constexpr quint16 WINDOWS_1252 = 1252;
constexpr quint32 VERSION_MOTOR = 9756;
constexpr quint32 IDIOMA_GENERAL = 0x0409;
constexpr uchar CLAVE_FICHERO[] = {0xC7, 0xDA, 0x39, 0x6B};

constexpr int LARGO_SID = 2;
constexpr int VUELTAS_CLAVE = 40; // over every other byte of the region
constexpr int GIRO_CLAVE = 24;

// The first `largo` bytes of the RC4 stream of `clave`.
QByteArray Serie_Rc4(QByteArrayView clave, int largo)
{
    std::array<uchar, 256> s;
    std::iota(s.begin(), s.end(), uchar(0));
    uchar j = 0;
    for (int i = 0; i < 256; ++i) {
        j = static_cast<uchar>(j + s[static_cast<uchar>(i)] + clave[i % clave.size()]);
        std::swap(s[static_cast<uchar>(i)], s[j]);
    }
    QByteArray serie;
    uchar i = 0;
    j = 0;
    while (serie.size() < largo) {
        j = static_cast<uchar>(j + s[++i]);
        std::swap(s[i], s[j]);
        serie += static_cast<char>(s[static_cast<uchar>(s[i] + s[j])]);
    }
    return serie;
}

template <class Numero> QByteArray Crudo(Numero valor)
{
    QByteArray bytes(sizeof valor, Qt::Uninitialized);
    qToLittleEndian(valor, bytes.data());
    return bytes;
}

// Folds the bytes that identify the file into the key of its account numbers.
quint32 Clave_Sid(const std::array<uchar, 128>& oculto, double fecha)
{
    constexpr int CONTRASENA = int(OCU_CONTRASENA) - CAB_OCULTO;
    auto clave = static_cast<quint32>(std::bit_cast<quint64>(fecha));
    const QByteArray mascara = Crudo(static_cast<quint32>(fecha));
    for (int i = 0; i < VUELTAS_CLAVE; ++i) {
        const int lugar = 2 * i;
        quint32 byte = oculto[static_cast<std::size_t>(CONTRASENA + lugar)];
        if (lugar < LARGO_CONTRASENA) byte ^= static_cast<uchar>(mascara[lugar % mascara.size()]);
        clave ^= byte << (i % GIRO_CLAVE);
    }
    static_assert(OCU_CONTRASENA + 2 * VUELTAS_CLAVE == int(OCU_FIN_CLAVE));
    return clave;
}

template <std::size_t n> void Copiar(const uchar (&bytes)[n], Pagina& pagina, int donde)
{
    std::copy(std::begin(bytes), std::end(bytes), pagina.begin() + donde);
}

template <std::size_t n> void Copiar(const char (&texto)[n], Pagina& pagina, int donde)
{
    std::copy(std::begin(texto), std::end(texto), pagina.begin() + donde);
}

} // namespace

Cabecera::Cabecera(double fecha)
{
    const auto poner = [this](int donde, auto valor) {
        qToLittleEndian(valor, oculto.data() + donde - CAB_OCULTO);
    };
    poner(OCU_MAPA_GLOBAL, Puntero(PAGINA_MAPA_GLOBAL, 0));
    poner(OCU_MAPA_LIBERADAS, Puntero(PAGINA_MAPA_GLOBAL, 1));
    for (quint32 k = 0; k < 4; ++k)
        poner(OCU_TABLAS + 4 * static_cast<int>(k), PAGINA_OBJETOS + k);
    poner(OCU_PAGINA_CODIGOS, WINDOWS_1252);
    for (int k = 0; k < LARGO_CONTRASENA; k += 4)
        poner(OCU_CONTRASENA + k, static_cast<quint32>(fecha)); // an empty one
    poner(OCU_VERSION_MOTOR, VERSION_MOTOR);
    poner(OCU_IDIOMA, IDIOMA_GENERAL);
    poner(OCU_FECHA, std::bit_cast<quint64>(fecha));
    serie_sid = Serie_Rc4(Crudo(Clave_Sid(oculto, fecha)), LARGO_SID);
}

Pagina Cabecera::Acabada() const
{
    Pagina pagina{};
    Copiar(MARCA_FICHERO, pagina, 0);
    Copiar(NOMBRE_MOTOR, pagina, CAB_NOMBRE);
    Poner<quint32>(pagina, CAB_VERSION, JET_4);
    const QByteArray serie = Serie_Rc4({CLAVE_FICHERO, sizeof CLAVE_FICHERO}, LARGO_OCULTO);
    std::transform(oculto.begin(), oculto.end(), serie.begin(), pagina.begin() + CAB_OCULTO,
                   [](uchar a, char b) { return static_cast<uchar>(a ^ static_cast<uchar>(b)); });
    Poner<quint32>(pagina, CAB_EDICION, EDICION);
    Copiar(EDICION_TEXTO, pagina, CAB_EDICION_TEXTO);
    Copiar(USUARIO_PRESENTE, pagina, CAB_TESTIGOS);
    for (int donde = CAB_TESTIGOS + 2; donde < TAMANO_PAGINA; donde += 2)
        Copiar(USUARIO_AUSENTE, pagina, donde);
    return pagina;
}

QByteArray Cabecera::Sid(Cuenta cuenta) const
{
    static constexpr uchar CLAROS[][LARGO_SID] = {
        {0x03, 0x01}, {0x02, 0x01}, {0x02, 0x03}, {0x02, 0x04}};
    QByteArray sid;
    for (int i = 0; i < LARGO_SID; ++i)
        sid += static_cast<char>(CLAROS[static_cast<int>(cuenta)][i] ^
                                 static_cast<uchar>(serie_sid[i]));
    return sid;
}

} // namespace Jet
