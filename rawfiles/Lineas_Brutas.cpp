#include "rawfiles/Lineas_Brutas.h"

#include "core/Ansi.h"

QStringList Lineas_Brutas(const QByteArray& bytes)
{
    if (bytes.isEmpty()) return {};
    const bool con_lf = bytes.contains('\n');
    QStringList lineas = Ansi::A_Texto(bytes).split(con_lf ? u'\n' : u'\r');
    if (lineas.last().isEmpty()) lineas.removeLast();
    if (con_lf)
        for (QString& linea : lineas)
            if (linea.endsWith(u'\r')) linea.chop(1);
    return lineas;
}
