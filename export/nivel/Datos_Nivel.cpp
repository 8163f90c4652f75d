#include "export/nivel/Datos_Nivel.h"

#include "session/Nivel.h"

#include <algorithm>

namespace {

constexpr int ULTIMO_CAMPO = 28;

// The fields whose digits are written with their marks, by their names.
struct Forma_Escrita {
    QStringView nombre;
    QString (*escribir)(const QString&);
};
constexpr Forma_Escrita FORMAS[] = {{u"Fecha", Fecha_De_Nivel}, {u"Hora", Hora_De_Nivel}};

// Puts `marca` behind every second digit; a value of another length or with other characters stays.
QString Con_Marcas(const QString& valor, qsizetype cifras, QChar marca)
{
    const auto es_cifra = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (valor.size() != cifras || !std::ranges::all_of(valor, es_cifra)) return valor;
    QString texto = valor.left(2);
    for (qsizetype i = 2; i < cifras; i += 2)
        texto += marca + valor.mid(i, 2);
    return texto;
}

} // namespace

QString Datos_Nivel::Celda(qsizetype registro, int numero) const
{
    if (numero < 0 || numero > ULTIMO_CAMPO) return {};
    return Campo_NV400(lineas[registro], numero);
}

QChar Datos_Nivel::Tipo(qsizetype registro) const
{
    return Tipo_NV400(lineas[registro]);
}

QString Datos_Nivel::Valor(qsizetype registro, const Campo_De_Informe& campo) const
{
    const QString valor = Celda(registro, campo.numero);
    const auto forma = std::ranges::find(FORMAS, QStringView(campo.nombre), &Forma_Escrita::nombre);
    return forma == std::end(FORMAS) ? valor : forma->escribir(valor);
}

bool Es_Medicion_Nivel(QChar tipo)
{
    return !tipo.isNull() && QStringView(u"ghijkf").contains(tipo);
}

QString Fecha_De_Nivel(const QString& valor)
{
    return Con_Marcas(valor, 6, u'/');
}

QString Hora_De_Nivel(const QString& valor)
{
    return Con_Marcas(valor, 4, u':');
}
