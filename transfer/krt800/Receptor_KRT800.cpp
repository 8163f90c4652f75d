#include "transfer/krt800/Receptor_KRT800.h"

#include "core/Ansi.h"

#include <algorithm>

namespace {

// Blanks and marks behind the last line are no text.
qsizetype Largo_Con_Texto(QStringView resto)
{
    return std::ranges::any_of(resto, [](QChar c) { return c > u' '; }) ? resto.size() : 0;
}

} // namespace

Respuesta_Recepcion Receptor_KRT800::Recibir(char caracter)
{
    if (caracter == Control::EOT) {
        acabada = true;
        return {{}, true};
    }
    buffer += Ansi::Caracter(static_cast<unsigned char>(caracter));
    return {};
}

QString Receptor_KRT800::Rescatable() const
{
    QString lineas = buffer;
    lineas.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    const qsizetype ultima = lineas.lastIndexOf(u'\n') + 1;
    if (!acabada)
        lineas.truncate(ultima);
    else if (ultima < lineas.size())
        lineas += u'\n';
    return lineas.replace(u'\n', QStringLiteral("\r\n"));
}

Faltas_Recepcion Receptor_KRT800::Faltas() const
{
    const qsizetype ultimo = buffer.lastIndexOf(QStringLiteral("\r\n"));
    return {.sin_fin = Largo_Con_Texto(QStringView(buffer).sliced(ultimo < 0 ? 0 : ultimo + 2)),
            .sin_acabar = !acabada};
}

Faltas_Recepcion Receptor_KRT800::Faltas_De_Rescate() const
{
    if (acabada) return {};
    const qsizetype ultimo = std::max(buffer.lastIndexOf(u'\n'), buffer.lastIndexOf(u'\r'));
    return {.sin_fin = Largo_Con_Texto(QStringView(buffer).sliced(ultimo + 1)), .sin_acabar = true};
}
