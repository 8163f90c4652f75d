#include "conversions/suelo/Texto_Fuente.h"

#include "conversions/suelo/Campos_Fuente.h"
#include "core/Ansi.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr qsizetype BLOQUE = 2 * Texto_Fuente::LINEA_MAXIMA;
constexpr char FIN_TEXTO = 26;

} // namespace

Texto_Fuente::Texto_Fuente(QIODevice& d)
    : dispositivo(d), bloque(std::make_unique_for_overwrite<char[]>(size_t(BLOQUE)))
{
}

/// Reads on behind what is left of the block. @return false at the end of the device
bool Texto_Fuente::Cargar()
{
    if (desde > 0) {
        std::memmove(bloque.get(), bloque.get() + desde, size_t(hasta - desde));
        hasta -= desde;
        desde = 0;
    }
    const qint64 n = dispositivo.read(bloque.get() + hasta, BLOQUE - hasta);
    if (n < 0)
        throw Fallo_Conversion{"No se puede leer el fichero: " + dispositivo.errorString(), 0, {}};
    hasta += n;
    return n > 0;
}

bool Texto_Fuente::Siguiente_Tal_Cual()
{
    if (fin) return false;
    qsizetype mirado = 0;
    const char* salto = nullptr;
    bool hay_mas = true;
    while (!salto) {
        const char* inicio = bloque.get() + desde;
        const qsizetype queda = hasta - desde;
        salto =
            static_cast<const char*>(std::memchr(inicio + mirado, '\n', size_t(queda - mirado)));
        if (salto || !hay_mas) break;
        mirado = queda;
        if (queda > LINEA_MAXIMA) break;
        hay_mas = Cargar();
    }
    ++numero;
    const char* inicio = bloque.get() + desde;
    const char* final = salto ? salto : bloque.get() + hasta;
    linea = QByteArrayView(inicio, final - inicio);
    desde = salto ? salto + 1 - bloque.get() : hasta;
    if (!salto && linea.isEmpty()) {
        fin = true;
        return false;
    }
    if (const qsizetype corte = linea.indexOf(FIN_TEXTO); corte >= 0) {
        linea = linea.first(corte);
        fin = true;
        if (linea.isEmpty()) return false;
    }
    if (numero == 1 && linea.startsWith("\xEF\xBB\xBF")) linea = linea.sliced(3);
    if (linea.size() > LINEA_MAXIMA)
        Fallar(QStringLiteral("La línea es demasiado larga: no es un fichero de este formato"));
    if (linea.contains('\0'))
        Fallar(QStringLiteral("El fichero no es un texto de 8 bits (contiene bytes nulos)"));
    while (linea.endsWith('\r'))
        linea.chop(1);
    return true;
}

bool Texto_Fuente::Siguiente()
{
    while (Siguiente_Tal_Cual())
        if (!Campos_Fuente::Recortar(linea).isEmpty()) return true;
    return false;
}

QString Texto_Fuente::Texto() const
{
    return Ansi::A_Texto(linea);
}

void Texto_Fuente::Rebobinar()
{
    if (!dispositivo.seek(0))
        throw Fallo_Conversion{"No se puede leer el fichero: " + dispositivo.errorString(), 0, {}};
    desde = hasta = 0;
    numero = 0;
    linea = {};
    fin = false;
}

void Texto_Fuente::Omitir(Informe_Lectura& informe, const QString& motivo) const
{
    const qsizetype visible = std::min(linea.size(), 2 * Informe_Lectura::TEXTO_MAXIMO);
    informe.Omitir(numero, Ansi::A_Texto(linea.first(visible)), motivo);
}

void Texto_Fuente::Fallar(const QString& motivo) const
{
    const qsizetype visible = std::min(linea.size(), 2 * Informe_Lectura::TEXTO_MAXIMO);
    throw Fallo_Conversion{motivo, numero, Ansi::A_Texto(linea.first(visible))};
}
