#include "tools/base/Csv.h"

#include <QStringDecoder>

QString Falta::Texto() const
{
    return linea > 0 ? QStringLiteral("%1:%2: %3").arg(fichero).arg(linea).arg(motivo)
                     : QStringLiteral("%1: %2").arg(fichero, motivo);
}

namespace {

class Cortador {
public:
    Cortador(const QString& un_texto, const QString& un_fichero, QList<Falta>& unas)
        : texto(un_texto), fichero(un_fichero), faltas(unas)
    {
    }

    QList<Fila> Cortar()
    {
        while (pos < texto.size())
            if (!Cortar_Fila()) break;
        return filas;
    }

private:
    bool Es_Fin_Linea() const
    {
        return texto[pos] == u'\n' || texto.mid(pos, 2) == QLatin1String("\r\n");
    }

    void Pasar_Fin_Linea()
    {
        pos += texto[pos] == u'\r' ? 2 : 1;
        ++linea;
    }

    bool Cortar_Fila()
    {
        Fila fila{linea, {}};
        while (true) {
            std::optional<QString> celda = Cortar_Celda();
            if (!celda) return false;
            fila.celdas << *celda;
            if (pos >= texto.size()) break;
            if (Es_Fin_Linea()) {
                Pasar_Fin_Linea();
                break;
            }
            ++pos; // the comma
        }
        if (fila.celdas != QStringList{QString()}) filas << fila;
        return true;
    }

    std::optional<QString> Cortar_Celda()
    {
        if (pos < texto.size() && texto[pos] == u'"') return Cortar_Entrecomillada();
        const qsizetype desde = pos;
        while (pos < texto.size() && texto[pos] != u',' && !Es_Fin_Linea())
            ++pos;
        return texto.mid(desde, pos - desde);
    }

    std::optional<QString> Cortar_Entrecomillada()
    {
        const int primera = linea;
        QString celda;
        for (++pos; pos < texto.size(); ++pos) {
            if (texto[pos] == u'\n') ++linea;
            if (texto[pos] != u'"') {
                celda += texto[pos];
            } else if (texto.mid(pos, 2) == QLatin1String("\"\"")) {
                celda += texto[pos++];
            } else {
                ++pos;
                if (pos >= texto.size() || texto[pos] == u',' || Es_Fin_Linea()) return celda;
                faltas << Falta{fichero, linea,
                                QStringLiteral("texto tras las comillas de cierre")};
                return {};
            }
        }
        faltas << Falta{fichero, primera, QStringLiteral("comillas sin cerrar")};
        return {};
    }

    const QString& texto;
    const QString& fichero;
    QList<Falta>& faltas;
    QList<Fila> filas;
    qsizetype pos = 0;
    int linea = 1;
};

} // namespace

QList<Fila> Cortar_Csv(const QByteArray& bytes, const QString& fichero, QList<Falta>& faltas)
{
    QStringDecoder lector(QStringDecoder::Utf8);
    const QString texto = lector.decode(bytes);
    if (lector.hasError()) {
        faltas << Falta{fichero, 0, QStringLiteral("no es texto UTF-8")};
        return {};
    }
    return Cortador(texto, fichero, faltas).Cortar();
}
