#include "export/dxf/Ajustes_DXF.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

namespace {

constexpr qsizetype LINEAS = COLORES_DXF + 5;
constexpr int DECIMALES_TOPE = 9;
constexpr double ALTURA_TOPE = 1e6; // metres

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
        color = Entero_Entre(lineas[i++], 1, COLOR_TOPE);
    a.formato = Entero_Entre(lineas[i++], 1, FORMATOS_DXF);
    a.texto = lineas[i++];
    a.altura = Numero_Finito(lineas[i++]);
    if (a.altura <= 0) throw Error_Ejecucion(13);
    a.inclinacion = Basico::Trim(lineas[i++]);
    Numero_Finito(a.inclinacion);
    a.decimales = Entero_Entre(lineas[i], 0, DECIMALES_TOPE);
    return a;
}

} // namespace

Textos_DXF Textos_De(const Ajustes_DXF& a)
{
    return {QString::number(a.formato), Basico::Texto_Numero(a.altura), a.inclinacion,
            QString::number(a.decimales)};
}

QString Tomar_Textos(const Textos_DXF& textos, Ajustes_DXF& ajustes)
{
    const auto con_punto = [](QString texto) { return texto.replace(u',', u'.'); };
    Ajustes_DXF nuevos = ajustes;
    nuevos.formato = int(Basico::Val(textos.formato));
    nuevos.altura = Basico::Val(con_punto(textos.altura));
    nuevos.inclinacion = Basico::Trim(textos.inclinacion);
    const double decimales = Basico::Val(con_punto(textos.decimales));
    if (nuevos.formato < 1 || nuevos.formato > FORMATOS_DXF)
        return QStringLiteral("El formato va de 1 a %1").arg(FORMATOS_DXF);
    if (!(nuevos.altura > 0 && nuevos.altura < ALTURA_TOPE))
        return QStringLiteral("La altura del texto debe ser un número mayor que cero");
    if (!Basico::Numero_O_Nada(nuevos.inclinacion))
        return QStringLiteral("La inclinación de las letras debe ser un número de grados");
    if (!(decimales >= 0 && decimales <= DECIMALES_TOPE) || decimales != Basico::Fix(decimales))
        return QStringLiteral("El número de decimales va de 0 a %1").arg(DECIMALES_TOPE);
    nuevos.decimales = int(decimales);
    ajustes = nuevos;
    return {};
}

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
