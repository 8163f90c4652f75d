#include "export/excel/Tabla_Cadenas.h"

#include "export/excel/Texto_Biff.h"

#include <algorithm>

using namespace Biff;

namespace {

constexpr quint32 MAX_LUGARES = 128; ///< places that EXTSST tells at most, roughly
constexpr quint32 MIN_TEXTOS_POR_LUGAR = 8;

/// Writes SST and the CONTINUE records that it needs, one record's body at a time.
class Escritor_Sst {
public:
    Escritor_Sst(Salida_Biff& s, const Sst& cabeza)
        : salida(s), cuerpo(Bytes_De(cabeza).toByteArray())
    {
        cuerpo.reserve(MAX_CUERPO_BIFF8);
    }

    /// @return where the text begins
    IsstInf Anadir(const QString& texto)
    {
        const bool ancho = !Cabe_Estrecho(texto);
        const qsizetype por_caracter = ancho ? 2 : 1;
        const char marcas = ancho ? char(TEXTO_ANCHO) : '\0';
        if (Sitio() < CABEZA_TEXTO + (texto.isEmpty() ? 0 : por_caracter)) Cerrar();
        const IsstInf lugar{quint32(salida.Posicion() + Cabeza_Registro() + cuerpo.size()),
                            quint16(Cabeza_Registro() + cuerpo.size()), quint16(0)};
        cuerpo += Bytes_De(U16(quint16(texto.size())));
        cuerpo += marcas;
        for (QStringView resto = texto; !resto.isEmpty();) {
            if (Sitio() < por_caracter) {
                Cerrar();
                cuerpo += marcas;
            }
            const qsizetype caben = std::min(resto.size(), Sitio() / por_caracter);
            Anadir_Caracteres(cuerpo, resto.first(caben), ancho);
            resto = resto.sliced(caben);
        }
        return lugar;
    }

    void Cerrar()
    {
        salida.Escribir_Bytes(id, cuerpo);
        cuerpo.resize(0);
        id = CONTINUE;
    }

private:
    static constexpr qsizetype CABEZA_TEXTO = sizeof(U16) + sizeof(U8);
    static constexpr qsizetype Cabeza_Registro() { return sizeof(Cabeza); }
    qsizetype Sitio() const { return MAX_CUERPO_BIFF8 - cuerpo.size(); }

    Salida_Biff& salida;
    QByteArray cuerpo;
    quint16 id = Sst::ID;
};

} // namespace

quint32 Tabla_Cadenas::Lugar(const QString& texto)
{
    ++usos;
    quint32& lugar = lugares[texto];
    if (std::size_t(lugares.size()) > textos.size()) {
        lugar = quint32(textos.size());
        textos.push_back(texto);
    }
    return lugar;
}

void Tabla_Cadenas::Escribir(Salida_Biff& salida) const
{
    const quint32 cuantos = quint32(textos.size());
    const quint32 por_lugar = std::max(MIN_TEXTOS_POR_LUGAR, cuantos / MAX_LUGARES + 1);
    QByteArray sitios;
    Escritor_Sst escritor(salida, {usos, cuantos});
    for (quint32 i = 0; i < cuantos; ++i) {
        const IsstInf lugar = escritor.Anadir(textos[i]);
        if (i % por_lugar == 0) sitios += Bytes_De(lugar);
    }
    escritor.Cerrar();
    salida.Escribir(ExtSst{quint16(por_lugar)}, sitios);
}
