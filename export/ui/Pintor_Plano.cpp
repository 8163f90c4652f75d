#include "export/ui/Pintor_Plano.h"

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/Ficheros.h"
#include "export/dxf/Colores_DXF.h"

#include <cmath>
#include <functional>
#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSet>
#include <QSvgGenerator>

namespace {

constexpr double PUNTOS_POR_MM = 72 / 25.4;
constexpr double ANCHO_HOJA = 595, ALTO_HOJA = 842, MARGEN = 34, PIE = 24; // points
constexpr double PUNTOS_POR_IMAGEN = 200.0 / 72;                           // pixels a point
const QColor AVISO(255, 128, 0);

// The places where labels stand already, in cells of a label's height.
class Sitios_Ocupados {
public:
    explicit Sitios_Ocupados(double celda_) : celda(celda_) {}

    // @return false when something stands there; else it is taken
    bool Ocupar(const QRectF& r)
    {
        const int x0 = En(r.left()), x1 = En(r.right()), y0 = En(r.top()), y1 = En(r.bottom() - 1);
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x)
                if (ocupados.contains({x, y})) return false;
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x)
                ocupados.insert({x, y});
        return true;
    }

private:
    int En(double v) const { return int(std::floor(v / celda)); }
    double celda;
    QSet<std::pair<int, int>> ocupados;
};

class Pintada {
public:
    Pintada(QPainter& p, const Plano& pl, const Vista_Plano& v, const Aspecto_Plano& a,
            double ancho, double alto)
        : pintor(p), plano(pl), vista(v), aspecto(a), hueco(-50, -50, ancho + 100, alto + 100)
    {
    }

    void Lineas()
    {
        for (const Linea_Plano& linea : plano.lineas) {
            if (!plano.Visible(linea.capa)) continue;
            QPolygonF poligono;
            for (const Lugar_Plano vertice : linea.vertices)
                poligono << En(vertice);
            if (!poligono.boundingRect().adjusted(-1, -1, 1, 1).intersects(hueco)) continue;
            Pluma(linea.color);
            pintor.drawPolyline(poligono);
        }
    }

    void Puntos()
    {
        for (const Punto_De_Plano& punto : plano.puntos) {
            if (!plano.Visible(punto.capa)) continue;
            const QPointF p = En(punto.lugar);
            if (!hueco.contains(p)) continue;
            Pluma(punto.color);
            const double m = aspecto.marca;
            const QLineF cruz[] = {{p.x() - m, p.y(), p.x() + m, p.y()},
                                   {p.x(), p.y() - m, p.x(), p.y() + m}};
            pintor.drawLines(cruz, 2);
            if (!punto.repetido && !punto.lejano) continue;
            Pluma_De(AVISO);
            if (punto.repetido) pintor.drawEllipse(p, 2 * m, 2 * m);
            if (punto.lejano) pintor.drawRect(QRectF(p.x() - 2 * m, p.y() - 2 * m, 4 * m, 4 * m));
        }
    }

    void Textos()
    {
        Sitios_Ocupados sitios(aspecto.letra / 2);
        QFont letra = pintor.font();
        for (const Texto_Plano& texto : plano.textos) {
            if (!plano.Visible(texto.capa)) continue;
            const double alto = texto.altura > 0 ? texto.altura * vista.Escala() : aspecto.letra;
            // A text of the ground that is too small to read isn't drawn, nor one that fills all.
            if (alto < aspecto.letra / 3 || alto > hueco.height()) continue;
            QPointF p = En(texto.lugar);
            if (!hueco.contains(p)) continue;
            if (texto.altura <= 0)
                p += QPointF(aspecto.marca * 1.5, -texto.renglon * aspecto.letra + alto * 0.35);
            const QRectF caja(p.x(), p.y() - alto, double(texto.texto.size()) * alto * 0.6, alto);
            if (!sitios.Ocupar(caja)) continue;
            if (letra.pixelSize() != std::max(1, qRound(alto))) {
                letra.setPixelSize(std::max(1, qRound(alto)));
                pintor.setFont(letra);
            }
            Pluma(texto.color);
            pintor.drawText(p, texto.texto);
        }
    }

private:
    QPointF En(Lugar_Plano lugar) const
    {
        const Lugar_Plano p = vista.A_Pantalla(lugar);
        return {p.x, p.y};
    }
    void Pluma(int color)
    {
        if (color == ultimo) return;
        Pluma_De(Color_Visible(color, aspecto.fondo));
        ultimo = color;
    }
    void Pluma_De(const QColor& color)
    {
        pintor.setPen(QPen(color, aspecto.trazo));
        ultimo = 0;
    }

    QPainter& pintor;
    const Plano& plano;
    const Vista_Plano& vista;
    const Aspecto_Plano& aspecto;
    const QRectF hueco;
    int ultimo = 0;
};

QSizeF Papel_De(const Hoja_Plano& hoja)
{
    return hoja.apaisada ? QSizeF(ALTO_HOJA, ANCHO_HOJA) : QSizeF(ANCHO_HOJA, ALTO_HOJA);
}

// The part of the sheet that the plan takes.
QRectF Campo_De(const Hoja_Plano& hoja)
{
    const QSizeF papel = Papel_De(hoja);
    return QRectF(MARGEN, MARGEN, papel.width() - 2 * MARGEN, papel.height() - 2 * MARGEN - PIE);
}

double Escala_Minima(const Caja_Plano& caja, bool apaisada)
{
    // Labels at the edge need some room.
    constexpr double AIRE = 40; // points
    const QRectF campo = Campo_De({0, apaisada});
    return Escala_Que_Cabe(caja, (campo.width() - AIRE) / PUNTOS_POR_MM,
                           (campo.height() - AIRE) / PUNTOS_POR_MM);
}

void Pintar_Pie(QPainter& pintor, const Hoja_Plano& hoja, const QRectF& campo)
{
    // The bar is a round length of some four centimetres.
    const double metros = hoja.escala * 0.04;
    const double potencia = std::pow(10, std::floor(std::log10(metros)));
    const double redondos = std::floor(metros / potencia) * potencia;
    const double largo = redondos * 1000 / hoja.escala * PUNTOS_POR_MM,
                 y = campo.bottom() + PIE - 6;
    QFont letra = pintor.font();
    letra.setPixelSize(9);
    pintor.setFont(letra);
    pintor.setPen(QPen(Qt::black, 0.8));
    pintor.drawText(QPointF(campo.left(), y), "Escala 1:" + Basico::Texto_Numero(hoja.escala));
    const double x = campo.right() - largo;
    pintor.drawLine(QPointF(x, y), QPointF(campo.right(), y));
    for (const double borde : {x, campo.right()})
        pintor.drawLine(QPointF(borde, y - 4), QPointF(borde, y));
    pintor.drawText(QPointF(x, y - 6), Basico::Texto_Numero(redondos) + " m");
}

QByteArray En_Bytes(const std::function<void(QIODevice&)>& escribir)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    escribir(bytes);
    return bytes.data();
}

void Como_PNG(QIODevice& salida, const Plano& plano, const Hoja_Plano& hoja)
{
    const QSizeF papel = Papel_De(hoja);
    QImage imagen((papel * PUNTOS_POR_IMAGEN).toSize(), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    imagen.setDotsPerMeterX(qRound(200 / 0.0254));
    imagen.setDotsPerMeterY(qRound(200 / 0.0254));
    {
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.scale(PUNTOS_POR_IMAGEN, PUNTOS_POR_IMAGEN);
        Pintar_Hoja(pintor, plano, hoja);
    }
    if (!imagen.save(&salida, "PNG")) throw Error_Ejecucion(7);
}

void Como_PDF(QIODevice& salida, const Plano& plano, const Hoja_Plano& hoja)
{
    QPdfWriter pdf(&salida);
    pdf.setResolution(1200);
    pdf.setCreator(QStringLiteral("Miraldos"));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageOrientation(hoja.apaisada ? QPageLayout::Landscape : QPageLayout::Portrait);
    pdf.setPageMargins(QMarginsF());
    QPainter pintor(&pdf);
    pintor.scale(1200 / 72.0, 1200 / 72.0);
    Pintar_Hoja(pintor, plano, hoja);
}

void Como_SVG(QIODevice& salida, const Plano& plano, const Hoja_Plano& hoja)
{
    QSvgGenerator svg;
    svg.setOutputDevice(&salida);
    svg.setResolution(72);
    svg.setSize(Papel_De(hoja).toSize());
    svg.setViewBox(QRectF(QPointF(), Papel_De(hoja)));
    svg.setTitle(QStringLiteral("Plano"));
    QPainter pintor(&svg);
    Pintar_Hoja(pintor, plano, hoja);
}

} // namespace

Aspecto_Plano Aspecto_Pantalla()
{
    return {QColor(24, 28, 34), 11, 3, 1};
}

Aspecto_Plano Aspecto_Papel()
{
    return {Qt::white, 6, 1.6, 0.4};
}

QColor Color_Visible(int numero, const QColor& fondo)
{
    const Color_RGB c = Color_De_Numero(numero);
    const QColor color(c.rojo, c.verde, c.azul);
    constexpr int SE_VE = 60; // difference of grey
    if (std::abs(qGray(color.rgb()) - qGray(fondo.rgb())) > SE_VE) return color;
    const bool sobre_claro = fondo.lightness() > 127;
    if (color.saturation() == 0) return sobre_claro ? QColor(Qt::black) : QColor(Qt::white);
    return sobre_claro ? color.darker(200) : color.lighter(180);
}

void Pintar_Plano(QPainter& pintor, const Plano& plano, const Vista_Plano& vista,
                  const Aspecto_Plano& aspecto, double ancho, double alto)
{
    Pintada pintada(pintor, plano, vista, aspecto, ancho, alto);
    pintada.Lineas();
    pintada.Puntos();
    pintada.Textos();
}

Hoja_Plano Preparar_Hoja(const Plano& plano, double escala)
{
    const auto caja = plano.Caja();
    if (!caja) throw Error_Ejecucion(5, "No hay nada que dibujar en el plano");
    Hoja_Plano hoja;
    hoja.apaisada = caja->Ancho() > caja->Alto();
    const double minima = Escala_Minima(*caja, hoja.apaisada);
    if (escala > 0 && escala < minima) {
        const QRectF campo = Campo_De(hoja);
        const double cabe = std::min(campo.width() / PUNTOS_POR_MM / (caja->Ancho() * 1000),
                                     campo.height() / PUNTOS_POR_MM / (caja->Alto() * 1000));
        if (cabe * escala < 1)
            throw Error_Ejecucion(
                5, "A escala 1:" + Basico::Texto_Numero(escala) +
                       " el plano no cabe en la hoja; cabe a 1:" + Basico::Texto_Numero(minima));
    }
    hoja.escala = escala > 0 ? escala : minima;
    return hoja;
}

void Pintar_Hoja(QPainter& pintor, const Plano& plano, const Hoja_Plano& hoja)
{
    const QRectF campo = Campo_De(hoja);
    Vista_Plano vista;
    vista.Encajar(plano.Caja().value_or(Caja_Plano()), campo.width(), campo.height());
    vista.Poner_Escala(1000 / hoja.escala * PUNTOS_POR_MM);
    pintor.save();
    pintor.setClipRect(campo);
    pintor.translate(campo.topLeft());
    Pintar_Plano(pintor, plano, vista, Aspecto_Papel(), campo.width(), campo.height());
    pintor.restore();
    pintor.setPen(QPen(Qt::black, 0.8));
    pintor.drawRect(campo);
    Pintar_Pie(pintor, hoja, campo);
}

void Guardar_Hoja(const Plano& plano, const Hoja_Plano& hoja, const QString& fichero)
{
    static const std::pair<QString, void (*)(QIODevice&, const Plano&, const Hoja_Plano&)>
        FORMAS[] = {{".png", Como_PNG}, {".pdf", Como_PDF}, {".svg", Como_SVG}};
    for (const auto& [final, escribir] : FORMAS) {
        if (!fichero.endsWith(final, Qt::CaseInsensitive)) continue;
        Ficheros::Escribir(fichero, En_Bytes([&](QIODevice& s) { escribir(s, plano, hoja); }));
        return;
    }
    throw Error_Ejecucion(5, "El fichero del plano debe ser .png, .pdf o .svg: " + fichero);
}
