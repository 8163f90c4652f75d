#include "export/dxf/Ajustes_DXF.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

namespace {

constexpr qsizetype LINEAS = COLORES_DXF + 5;

QString Fichero_Ajustes()
{
    return En_Instalacion(QStringLiteral("DXF.Ini"));
}

int Entero_Entre(const QString& texto, int minimo, int maximo)
{
    bool bien = false;
    const int n = Basico::Trim(texto).toInt(&bien);
    if (!bien || n < minimo || n > maximo) throw Error_Ejecucion(13);
    return n;
}

double Numero_Finito(const QString& texto)
{
    if (!Basico::IsNumeric(QString(texto).replace(u'.', u','))) throw Error_Ejecucion(13);
    return Basico::Val(QString(texto).replace(u',', u'.'));
}

Ajustes_DXF De_Lineas(const QStringList& lineas)
{
    if (lineas.size() < LINEAS) throw Error_Ejecucion(62);
    Ajustes_DXF a;
    qsizetype i = 0;
    for (int& color : a.colores)
        color = Entero_Entre(lineas[i++], 1, 255);
    a.formato = Entero_Entre(lineas[i++], 1, 6);
    a.texto = lineas[i++];
    a.altura = Numero_Finito(lineas[i++]);
    if (a.altura <= 0) throw Error_Ejecucion(13);
    a.inclinacion = Basico::Trim(lineas[i++]);
    Numero_Finito(a.inclinacion);
    a.decimales = Entero_Entre(lineas[i], 0, 9);
    return a;
}

} // namespace

Ajustes_DXF Leer_Ajustes_DXF()
{
    try {
        return De_Lineas(Ficheros::Leer_Lineas(Fichero_Ajustes()));
    } catch (const Error_Ejecucion&) {
        // Nothing of the user's work hangs on it: a drawing starts from the defaults.
        return {};
    }
}

void Guardar_Ajustes_DXF(const Ajustes_DXF& ajustes)
{
    QStringList lineas;
    for (const int color : ajustes.colores)
        lineas << QString::number(color);
    lineas << QString::number(ajustes.formato) << ajustes.texto
           << Basico::Texto_Numero(ajustes.altura) << ajustes.inclinacion
           << QString::number(ajustes.decimales);
    Ficheros::Escribir(Fichero_Ajustes(),
                       Ansi::A_Bytes(lineas.join(u"\r\n") + QStringLiteral("\r\n")));
}
