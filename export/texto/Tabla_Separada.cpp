#include "export/texto/Tabla_Separada.h"

#include "core/Error_Ejecucion.h"

#include <cmath>
#include <QLocale>
#include <QStringDecoder>

namespace {

constexpr QByteArrayView MARCA_UTF8 = "\xEF\xBB\xBF";

Error_Ejecucion Error_En_Linea(int linea, const QString& motivo)
{
    return Error_Ejecucion(13, QStringLiteral("Línea %1: %2").arg(linea).arg(motivo));
}

std::optional<QString> Decodificar(QByteArrayView bytes)
{
    QStringDecoder decodificador(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString texto = decodificador(bytes);
    if (decodificador.hasError()) return std::nullopt;
    return texto;
}

// Only a text that fails as a whole is looked through line by line for the place.
QString Decodificar_Todo(QByteArrayView bytes)
{
    if (bytes.startsWith(MARCA_UTF8)) bytes = bytes.sliced(MARCA_UTF8.size());
    if (auto texto = Decodificar(bytes)) return *texto;
    int linea = 1;
    for (qsizetype desde = 0;; ++linea) {
        qsizetype fin = bytes.indexOf('\n', desde);
        if (fin < 0) fin = bytes.size();
        if (fin == bytes.size() || !Decodificar(bytes.sliced(desde, fin - desde)))
            throw Error_En_Linea(linea, QStringLiteral("el texto no es UTF-8"));
        desde = fin + 1;
    }
}

/// Cuts a text into cells.
class Cortador {
public:
    Cortador(const QString& t, QChar s) : texto(t), separador(s), con_comillas(s == u',') {}

    bool Fin() const { return i >= texto.size(); }
    int Linea() const { return linea; }

    /// The cells of the next line.
    QStringList Siguiente()
    {
        QStringList celdas;
        for (;;) {
            celdas << (con_comillas && Letra() == u'"' ? Celda_Entre_Comillas() : Celda());
            if (Letra() != separador || Fin()) break;
            ++i;
        }
        i += Largo_Fin_De_Linea();
        ++linea;
        return celdas;
    }

private:
    QChar Letra() const { return Fin() ? QChar(u'\n') : texto[i]; }

    qsizetype Largo_Fin_De_Linea() const
    {
        if (Fin()) return 0;
        if (texto[i] == u'\n') return 1;
        if (texto[i] != u'\r') return 0;
        if (i + 1 == texto.size()) return 1;
        return texto[i + 1] == u'\n' ? 2 : 0;
    }

    QString Celda()
    {
        const qsizetype desde = i;
        while (!Fin() && texto[i] != separador && Largo_Fin_De_Linea() == 0) {
            if (texto[i].isNull())
                throw Error_En_Linea(linea, QStringLiteral("el texto tiene un carácter nulo"));
            ++i;
        }
        return texto.sliced(desde, i - desde);
    }

    QString Celda_Entre_Comillas()
    {
        const int linea_apertura = linea;
        QString celda;
        for (++i;; ++i) {
            if (Fin())
                throw Error_En_Linea(linea_apertura, QStringLiteral("las comillas no se cierran"));
            if (texto[i] == u'\n') ++linea;
            if (texto[i] == u'"') {
                ++i;
                if (Letra() != u'"') break;
            }
            celda += texto[i];
        }
        if (!Fin() && Letra() != separador && Largo_Fin_De_Linea() == 0)
            throw Error_En_Linea(linea, QStringLiteral("sobra texto detrás de las comillas"));
        return celda;
    }

    const QString& texto;
    const QChar separador;
    const bool con_comillas;
    qsizetype i = 0;
    int linea = 1;
};

} // namespace

Tabla_Separada Leer_Tabla_Separada(QByteArrayView utf8, QChar separador)
{
    const QString texto = Decodificar_Todo(utf8);
    Cortador cortador(texto, separador);
    if (cortador.Fin())
        throw Error_Ejecucion(62, QStringLiteral("El texto está vacío: falta la línea de títulos"));
    Tabla_Separada tabla;
    tabla.titulos = cortador.Siguiente();
    while (!cortador.Fin()) {
        Tabla_Separada::Fila fila;
        fila.linea = cortador.Linea();
        fila.celdas = cortador.Siguiente();
        if (fila.celdas.size() > tabla.titulos.size())
            throw Error_En_Linea(fila.linea, QStringLiteral("tiene %1 celdas, y hay %2 títulos")
                                                 .arg(fila.celdas.size())
                                                 .arg(tabla.titulos.size()));
        tabla.filas.push_back(std::move(fila));
    }
    return tabla;
}

QByteArray Linea_Tabulada(const QStringList& celdas)
{
    QString linea;
    for (qsizetype i = 0; i < celdas.size(); ++i) {
        if (i > 0) linea += u'\t';
        for (const QChar c : celdas[i])
            linea += c == u'\t' || c == u'\n' || c == u'\r' ? QChar(u' ') : c;
    }
    return linea.toUtf8();
}

std::optional<double> Numero_De_Texto(QStringView texto)
{
    const QByteArray t = texto.trimmed().toUtf8();
    // What the library takes for numbers besides: "inf", "nan", hexadecimal ones.
    for (const char c : t)
        if (!(c >= '0' && c <= '9') && !QByteArrayView("+-.eE").contains(c)) return std::nullopt;
    bool bien = false;
    const double numero = t.toDouble(&bien);
    if (!bien || !std::isfinite(numero)) return std::nullopt;
    return numero;
}

QString Texto_De_Numero(double numero)
{
    constexpr double ENTEROS_SIN_EXPONENTE = 1e15;
    if (std::abs(numero) < ENTEROS_SIN_EXPONENTE && numero == std::trunc(numero))
        return QString::number(qint64(numero));
    return QString::number(numero, 'g', QLocale::FloatingPointShortest);
}
