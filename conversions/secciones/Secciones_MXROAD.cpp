#include "conversions/secciones/Lectores_Secciones.h"
#include "conversions/secciones/Secciones_Comun.h"

#include <algorithm>

using namespace Campos_Fuente;

namespace {

constexpr QByteArrayView PALABRA = "CHAINAGE";

// First number behind the word CHAINAGE.
std::optional<double> PK_De(QByteArrayView linea)
{
    for (qsizetype i = 0; i + PALABRA.size() <= linea.size(); ++i) {
        if ((linea[i] | 0x20) != 'c' || !Empieza_Por(linea.sliced(i), PALABRA)) continue;
        QByteArrayView resto = Recortar(linea.sliced(i + PALABRA.size()));
        if (resto.startsWith(':') || resto.startsWith('=')) resto = resto.sliced(1);
        for (const QByteArrayView palabra : Por_Blancos(resto))
            if (const auto pk = Numero_PK(palabra, Marca::Punto_O_Coma)) return pk;
        return {};
    }
    return {};
}

constexpr QByteArrayView DE_RELLENO[] = {"STRING", "LABEL", "END", "FINISH", "999"};

bool Es_Comentario_Mxroad(QByteArrayView linea)
{
    return linea.front() == '*' || linea.front() == ';' || linea.front() == '#';
}

// Page furniture between the sections. A row whose label merely begins like such a word is a row.
bool Es_Fila_De_Relleno(QByteArrayView etiqueta)
{
    for (const QByteArrayView palabra : DE_RELLENO)
        if (Iguales(etiqueta, palabra)) return true;
    return false;
}

bool Es_Relleno(QByteArrayView linea)
{
    return std::ranges::any_of(DE_RELLENO,
                               [&](QByteArrayView palabra) { return Empieza_Por(linea, palabra); });
}

qsizetype Largo_Palabra(QByteArrayView linea)
{
    qsizetype n = 0;
    while (n < linea.size() && linea[n] != ' ' && linea[n] != '\t')
        ++n;
    return n;
}

// A line that isn't plainly a row: furniture, or a row with unusual numbers, or one to be refused.
void Leer_Otra(const Texto_Fuente& fuente, QByteArrayView linea, Secciones& secciones,
               size_t abierta)
{
    const Lista campos = Por_Blancos(linea);
    const bool completa = campos.size() >= 3;
    const auto d = completa ? Numero(campos[1]) : std::nullopt;
    const auto z = completa ? Numero(campos[2]) : std::nullopt;
    if (d && z ? Es_Fila_De_Relleno(campos[0]) : Es_Relleno(linea)) return;
    if (!completa) fuente.Fallar(QStringLiteral("Faltan campos: etiqueta, desplazamiento y cota"));
    secciones.Anadir(abierta, Secciones_Comun::Exigir_Punto(fuente, d, z));
}

} // namespace

Secciones Lectores_Secciones::Mxroad(Texto_Fuente& fuente, Informe_Lectura&)
{
    Secciones secciones;
    std::optional<size_t> abierta;
    while (fuente.Siguiente()) {
        const QByteArrayView linea = Recortar(fuente.Linea());
        const qsizetype etiqueta = Largo_Palabra(linea);
        double n[2];
        const auto resto = Numeros_Llanos(linea.sliced(etiqueta), ' ', Marca::Punto_O_Coma, n);
        // Nearly every line is a row and has no room for the word.
        const bool solo_fila = resto && resto->isEmpty() && etiqueta < PALABRA.size();
        if (const auto pk = solo_fila ? std::nullopt : PK_De(linea)) {
            abierta = secciones.Abrir(*pk);
            continue;
        }
        if (!abierta || Es_Comentario_Mxroad(linea)) continue;
        if (!resto)
            Leer_Otra(fuente, linea, secciones, *abierta);
        else if (!Es_Fila_De_Relleno(linea.first(etiqueta)))
            secciones.Anadir(*abierta, {n[0], n[1]});
    }
    return Secciones_Comun::Terminar(std::move(secciones));
}
