#include "core/Perfil.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"

#include <QFileInfo>
#include <QStringList>

namespace {

bool Iguales(QStringView a, QStringView b)
{
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

QStringList Lineas(const QString& fichero)
{
    if (!QFileInfo::exists(fichero)) return {};
    QString texto = Ansi::A_Texto(Ficheros::Leer(fichero));
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (texto.endsWith(u'\n')) texto.chop(1);
    return texto.isEmpty() ? QStringList() : texto.split(u'\n');
}

bool Es_Seccion(QStringView linea)
{
    return linea.trimmed().startsWith(u'[');
}

// First line behind the heading of a section, or -1.
qsizetype Dentro_De(const QStringList& lineas, const QString& seccion)
{
    for (qsizetype i = 0; i < lineas.size(); ++i) {
        const QStringView l = QStringView(lineas[i]).trimmed();
        if (!Es_Seccion(l)) continue;
        const qsizetype cierre = l.indexOf(u']');
        if (Iguales(cierre < 0 ? l.mid(1) : l.mid(1, cierre - 1), seccion)) return i + 1;
    }
    return -1;
}

// Line of a key in the section that begins at `desde`, or -1.
qsizetype Linea_De(const QStringList& lineas, qsizetype desde, const QString& clave)
{
    if (desde < 0) return -1;
    for (qsizetype i = desde; i < lineas.size() && !Es_Seccion(lineas[i]); ++i) {
        const qsizetype igual = lineas[i].indexOf(u'=');
        if (igual > 0 && !QStringView(lineas[i]).trimmed().startsWith(u';') &&
            Iguales(QStringView(lineas[i]).left(igual), clave))
            return i;
    }
    return -1;
}

// Behind the last line of the section that says something.
qsizetype Final_De(const QStringList& lineas, qsizetype desde)
{
    qsizetype final = desde;
    for (qsizetype i = desde; i < lineas.size() && !Es_Seccion(lineas[i]); ++i)
        if (!QStringView(lineas[i]).trimmed().isEmpty()) final = i + 1;
    return final;
}

// @return false when nothing had to change: a key to be removed that isn't there
bool Poner(QStringList& lineas, const Perfil::Entrada& entrada)
{
    qsizetype dentro = Dentro_De(lineas, entrada.seccion);
    const qsizetype i = Linea_De(lineas, dentro, entrada.clave);
    if (entrada.valor.isNull()) {
        if (i >= 0) lineas.removeAt(i);
        return i >= 0;
    }
    // A line break would make another key of the rest.
    const QString valor = entrada.valor.section(u'\r', 0, 0).section(u'\n', 0, 0);
    const QString linea = entrada.clave + u'=' + valor;
    if (dentro < 0) {
        lineas << u'[' + entrada.seccion + u']';
        dentro = lineas.size();
    }
    if (i >= 0)
        lineas[i] = linea;
    else
        lineas.insert(Final_De(lineas, dentro), linea);
    return true;
}

} // namespace

QString Perfil::Leer(const QString& fichero, const QString& seccion, const QString& clave,
                     const QString& defecto, int maximo)
{
    QStringList lineas;
    try {
        lineas = Lineas(fichero);
    } catch (const Error_Ejecucion&) {
        return defecto.left(maximo); // as a file that isn't there
    }
    const qsizetype i = Linea_De(lineas, Dentro_De(lineas, seccion), clave);
    if (i < 0) return defecto.left(maximo);
    return lineas[i].mid(lineas[i].indexOf(u'=') + 1).trimmed().left(maximo);
}

void Perfil::Escribir(const QString& fichero, const QString& seccion, const QString& clave,
                      const QString& valor)
{
    Escribir_Todas(fichero, {{seccion, clave, valor}});
}

void Perfil::Escribir_Todas(const QString& fichero, const QList<Entrada>& entradas)
{
    QStringList lineas = Lineas(fichero);
    bool cambia = false;
    for (const Entrada& entrada : entradas)
        cambia = Poner(lineas, entrada) || cambia;
    if (!cambia) return;
    QByteArray bytes;
    for (const QString& l : lineas)
        bytes += Ansi::A_Bytes(l) + "\r\n";
    Ficheros::Escribir(fichero, bytes);
}
