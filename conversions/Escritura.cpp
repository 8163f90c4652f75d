#include "conversions/Escritura.h"

#include "conversions/Informe_Lectura.h"
#include "core/Ficheros.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <QFile>
#include <QFileInfo>

namespace Escritura {

void Anadir_Fijo(QByteArray& salida, double valor, int decimales)
{
    char texto[400]; // the longest double in fixed form has 309 digits before the mark
    const auto r =
        std::to_chars(texto, texto + sizeof texto, valor, std::chars_format::fixed, decimales);
    QByteArrayView v(texto, r.ptr - texto);
    const bool cero = std::none_of(v.begin(), v.end(), [](char c) { return c >= '1' && c <= '9'; });
    if (cero && v.startsWith('-')) v = v.sliced(1);
    salida.append(v);
}

QByteArray Fijo(double valor, int decimales)
{
    QByteArray s;
    Anadir_Fijo(s, valor, decimales);
    return s;
}

QByteArray Azimut(double radianes)
{
    double gon = std::fmod(radianes * 200 / std::numbers::pi, 400);
    if (gon < 0) gon += 400;
    const QByteArray s = Fijo(gon, 4);
    return s == "400.0000" ? QByteArrayLiteral("0.0000") : s;
}

void Guardar(const QString& ruta, const QByteArray& bytes)
{
    try {
        Ficheros::Escribir(ruta, bytes);
    } catch (const Error_Ejecucion& e) {
        throw Fallo_Conversion{"No se puede escribir el fichero de destino: " + e.descripcion, 0,
                               {}};
    }
}

void Retirar_Destino(const QString& ruta)
{
    const QFileInfo info(ruta);
    if (!ruta.isEmpty() && info.isFile() && info.isWritable()) QFile::remove(ruta);
}

bool Mismo_Fichero(const QString& a, const QString& b)
{
    const QString ruta = QFileInfo(a).canonicalFilePath();
    return !ruta.isEmpty() && ruta == QFileInfo(b).canonicalFilePath();
}

} // namespace Escritura
