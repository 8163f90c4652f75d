#include "transfer/Lineas_Envio.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

#include <algorithm>
#include <QStringDecoder>

namespace {

constexpr int FORMATO_NO_VALIDO = 321;
constexpr qsizetype LARGO_MOSTRADO = 60;

bool Es_De_Fuera(char c)
{
    return static_cast<unsigned char>(c) > 127;
}

// Text of a page above 127 is hardly ever good UTF-8 as well.
bool Es_Utf8(const QByteArray& bytes)
{
    if (std::ranges::none_of(bytes, Es_De_Fuera)) return false;
    QStringDecoder lector(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString leido = lector(bytes);
    return !leido.isNull() && !lector.hasError();
}

[[noreturn]] void Rechazar(const QByteArray& bytes, qsizetype donde, const QString& motivo)
{
    const auto linea = std::count(bytes.begin(), bytes.begin() + donde, '\n') + 1;
    throw Error_Ejecucion(FORMATO_NO_VALIDO,
                          QStringLiteral("%1 (línea %2)").arg(motivo).arg(linea));
}

void Comprobar_Pagina(const QByteArray& bytes)
{
    const QString guardelo = QStringLiteral("; guárdelo como texto ANSI");
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        Rechazar(bytes, 0, QStringLiteral("El fichero está en UTF-16") + guardelo);
    if (const qsizetype nulo = bytes.indexOf('\0'); nulo >= 0)
        Rechazar(bytes, nulo, QStringLiteral("El fichero no es de texto ANSI"));
    if (Es_Utf8(bytes)) {
        const auto primero = std::ranges::find_if(bytes, Es_De_Fuera);
        Rechazar(bytes, primero - bytes.begin(),
                 QStringLiteral("El fichero está en UTF-8") + guardelo);
    }
}

} // namespace

QStringList Leer_Lineas_Envio(const QString& fichero)
{
    if (!FileExist(fichero) && !QFileInfo(fichero).isDir()) throw Error_Ejecucion::Con(53, fichero);
    Comprobar_Pagina(Ficheros::Leer(fichero));
    return Ficheros::Leer_Lineas(fichero);
}

Error_Ejecucion Error_De_Linea(int numero, qint64 linea, const QString& texto,
                               const QString& motivo)
{
    const QString corto =
        texto.size() > LARGO_MOSTRADO ? texto.left(LARGO_MOSTRADO) + QStringLiteral("...") : texto;
    return Error_Ejecucion(numero, QStringLiteral("%1 (línea %2: %3)")
                                       .arg(motivo.isEmpty() ? Descripcion_Error(numero) : motivo)
                                       .arg(linea)
                                       .arg(corto));
}

QString Primero_No_Aceptado(QStringView texto)
{
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c.unicode() >= 32 && c.unicode() <= 126) continue;
        const bool doble = c.isHighSurrogate() && i + 1 < texto.size();
        return texto.mid(i, doble ? 2 : 1).toString();
    }
    return {};
}

void Comprobar_Campo(const QString& campo, QChar reservado, qint64 linea, const QString& texto)
{
    if (const QString malo = Primero_No_Aceptado(campo); !malo.isEmpty())
        throw Error_De_Linea(
            5, linea, texto,
            QStringLiteral("El carácter '%1' no es aceptado por el aparato").arg(malo));
    if (campo.contains(reservado))
        throw Error_De_Linea(5, linea, texto,
                             QStringLiteral("El carácter '%1' es reservado").arg(reservado));
}

void Avisar_Separador(const QString& linea)
{
    Interfaz_Actual().Mensaje(
        "El formato del fichero especificado no es correcto en la linea:\r\n" + linea +
            "Probablemente el separador especificado no sea válido",
        Icono::Exclamacion);
}
