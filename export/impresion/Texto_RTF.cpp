#include "export/impresion/Texto_RTF.h"

#include "core/Ansi.h"

void RTF::Agregar(QByteArray& rtf, QStringView texto)
{
    constexpr char CIFRAS[] = "0123456789abcdef";
    const qsizetype desde = rtf.size();
    Ansi::Agregar_Bytes(rtf, texto);
    const auto es_llano = [](char c) {
        return c >= ' ' && c != '\\' && c != '{' && c != '}' && c != '\x7f';
    };
    qsizetype i = desde;
    while (i < rtf.size() && es_llano(rtf[i]))
        ++i;
    if (i == rtf.size()) return;
    const QByteArray resto = rtf.sliced(i);
    rtf.truncate(i);
    for (const char c : resto) {
        const auto codigo = static_cast<unsigned char>(c);
        if (es_llano(c)) {
            rtf += c;
        } else if (codigo > 127) {
            rtf += "\\'";
            rtf += CIFRAS[codigo / 16];
            rtf += CIFRAS[codigo % 16];
        } else if (codigo < ' ' || codigo == 127) {
            rtf += ' ';
        } else {
            rtf += '\\';
            rtf += c;
        }
    }
}
