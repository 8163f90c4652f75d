#include "transfer/ui/Dibujo_Transferencia.h"

#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"

namespace {

constexpr int TWIPS_POR_PUNTO = 15;

QPoint Punto_De(const Lugar_Rayo& lugar)
{
    return {lugar.izquierda / TWIPS_POR_PUNTO, lugar.arriba / TWIPS_POR_PUNTO};
}

} // namespace

Dibujo_Transferencia::Dibujo_Transferencia(const Extremos& extremos,
                                           const Lugar_Rayo (&lugares)[LUGARES_RAYO],
                                           Conversacion& conversacion)
{
    setFixedSize(320, 150);
    constexpr int LADO_RAYO = 32, AIRE = 4, ORILLA = 8, ANCHO_MAYOR = 110;
    // The right end stands clear of the ways that the picture takes.
    const int x = Punto_De(lugares[LUGARES_RAYO - 1]).x() + LADO_RAYO + AIRE;
    Poner(QStringLiteral("Image1"), extremos.izquierdo, ORILLA, 80);
    Poner(QStringLiteral("Image2"), extremos.derecho, x, qMin(ANCHO_MAYOR, width() - x - ORILLA));
    QLabel* const Rayo = Piezas::Imagen("Rayo", LADO_RAYO, LADO_RAYO);
    Rayo->setParent(this);
    if (!Piezas::Poner_Imagen(*Rayo, En_Instalacion("bmp/rayo.png"))) Rayo->setText("⚡");
    Rayo->move(Punto_De(lugares[0]));
    Rayo->setVisible(conversacion.Rayo_Visible());
    connect(&conversacion, &Conversacion::rayo_cambiado, Rayo, &QWidget::setVisible);
    connect(&conversacion, &Conversacion::rayo_movido, Rayo,
            [Rayo, &lugares](int lugar) { Rayo->move(Punto_De(lugares[lugar])); });
}

QLabel* Dibujo_Transferencia::Poner(const QString& nombre, const char* fichero, int x, int ancho)
{
    QLabel* const imagen = Piezas::Imagen(nombre, ancho, 110);
    imagen->setParent(this);
    imagen->move(x, 24);
    Piezas::Poner_Imagen(*imagen, En_Instalacion(QStringLiteral("bmp/") + QLatin1String(fichero)));
    return imagen;
}
