#include "export/ui/Pintor_Pagina.h"

#include "core/Ficheros.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr double PUNTOS_POR_PULGADA = 72;
constexpr int PUNTOS_PDF = 1200; // to the inch

// The font with the advance that the pages were laid out for, whichever stands in for it.
QFont Letra(const Tramo_RTF& tramo)
{
    // Metrics are whole pixels at a letter's real size, so they are asked for at a large one.
    constexpr int GRANDE = 1000;
    QFont letra(tramo.letra.isEmpty() ? QStringLiteral("Courier New") : tramo.letra);
    letra.setStyleHint(QFont::TypeWriter);
    letra.setFixedPitch(true);
    letra.setBold(tramo.negrita);
    letra.setUnderline(tramo.subrayado);
    letra.setHintingPreference(QFont::PreferNoHinting);
    letra.setPixelSize(GRANDE);
    const double avance = QFontMetricsF(letra).horizontalAdvance(u'0') / GRANDE;
    const double tamano = tramo.medios_puntos / 2.0;
    letra.setPixelSize(std::max(1, qRound(tamano)));
    letra.setLetterSpacing(QFont::AbsoluteSpacing, (ANCHO_LETRA - avance) * tamano);
    return letra;
}

} // namespace

void Pintar_Pagina(QPainter& pintor, const Pagina& pagina)
{
    for (const Renglon_Pagina& renglon : pagina) {
        double x = renglon.x;
        for (const Tramo_RTF& tramo : renglon.tramos) {
            const double tamano = tramo.medios_puntos / 2.0;
            const double ancho = double(tramo.texto.size()) * tamano * ANCHO_LETRA;
            if (tamano > 0) {
                pintor.setFont(Letra(tramo));
                pintor.drawText(QPointF(x, renglon.y + tamano * 0.85), tramo.texto);
            }
            x += ancho;
        }
    }
}

void Pintar_Impreso(QPagedPaintDevice& papel, const Impreso& impreso)
{
    QPainter pintor;
    if (!pintor.begin(&papel)) throw Error_Ejecucion(482);
    for (qsizetype i = 0; i < impreso.paginas.size(); ++i) {
        if (i > 0 && !papel.newPage()) throw Error_Ejecucion(482);
        pintor.save();
        pintor.scale(papel.logicalDpiX() / PUNTOS_POR_PULGADA,
                     papel.logicalDpiY() / PUNTOS_POR_PULGADA);
        Pintar_Pagina(pintor, impreso.paginas[i]);
        pintor.restore();
    }
    if (!pintor.end()) throw Error_Ejecucion(482);
}

void Guardar_PDF(const Impreso& impreso, const QString& fichero)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&bytes);
        pdf.setResolution(PUNTOS_PDF);
        pdf.setTitle(impreso.nombre);
        pdf.setCreator(QStringLiteral("Miraldos"));
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageOrientation(impreso.apaisado ? QPageLayout::Landscape : QPageLayout::Portrait);
        pdf.setPageMargins(QMarginsF());
        Pintar_Impreso(pdf, impreso);
    }
    Ficheros::Escribir(fichero, bytes.data());
}
