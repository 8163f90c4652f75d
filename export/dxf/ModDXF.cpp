#include "export/dxf/ModDXF.h"

#include "core/Ansi.h"
#include "core/Basico.h"

namespace {

constexpr double SEPARACION = 1.5; // between labels, in text heights

QString Con_Punto(double numero, const QString& dibujo)
{
    return Basico::Formato(numero, dibujo).replace(u',', u'.');
}

double Leer_Coordenada(QString texto)
{
    return Basico::CDbl(texto.replace(u'.', u','));
}

// The machine's Str: a blank stands where a negative number has its sign.
QString Color(int numero)
{
    return u' ' + QString::number(numero);
}

class Dibujante {
public:
    Dibujante(QByteArray& canal_, const Ajustes_DXF& ajustes_, double x, double y)
        : canal(canal_), ajustes(ajustes_), x_marca(Coordenada_DXF(x)), y_marca(Coordenada_DXF(y)),
          x_etiqueta(Coordenada_DXF(x + ajustes_.altura / 2)),
          altura(Con_Punto(ajustes_.altura, QStringLiteral("#0.00"))),
          inclinacion(Basico::Formato(QString(ajustes_.inclinacion).replace(u'.', u','),
                                      QStringLiteral("#0")))
    {
    }

    void Marca(QStringView capa, Color_DXF color, QStringView z)
    {
        Grupo_DXF(canal, 0, u"POINT");
        Grupo_DXF(canal, 8, capa);
        Grupo_DXF(canal, 62, Color(ajustes.Color(color)));
        Grupo_DXF(canal, 10, x_marca);
        Grupo_DXF(canal, 20, y_marca);
        if (!z.isEmpty()) Grupo_DXF(canal, 30, z);
    }

    void Texto(QStringView capa, Color_DXF color, double y, QStringView texto)
    {
        Grupo_DXF(canal, 0, u"TEXT");
        Grupo_DXF(canal, 8, capa);
        Grupo_DXF(canal, 62, Color(ajustes.Color(color)));
        Grupo_DXF(canal, 10, x_etiqueta);
        Grupo_DXF(canal, 20, Coordenada_DXF(y));
        Grupo_DXF(canal, 40, altura);
        Grupo_DXF(canal, 1, texto);
        Grupo_DXF(canal, 50, u"0");
        Grupo_DXF(canal, 51, inclinacion);
    }

private:
    QByteArray& canal;
    const Ajustes_DXF& ajustes;
    QString x_marca, y_marca, x_etiqueta, altura, inclinacion;
};

} // namespace

void Grupo_DXF(QByteArray& canal, int codigo, QStringView valor)
{
    canal += ' ' + QByteArray::number(codigo) + "\r\n";
    Ansi::Agregar_Bytes(canal, valor);
    canal += "\r\n";
}

void Abrir_DXF(QByteArray& canal)
{
    Grupo_DXF(canal, 0, u"SECTION");
    Grupo_DXF(canal, 2, u"ENTITIES");
}

void Cerrar_DXF(QByteArray& canal)
{
    Grupo_DXF(canal, 0, u"ENDSEC");
    Grupo_DXF(canal, 0, u"EOF");
}

void Guardar_DXF_Sesion(QByteArray& canal, const QString& punto, const QString& x, const QString& y,
                        const QString& z, const QString& codigo, Modo_DXF modo,
                        const Ajustes_DXF& ajustes)
{
    const double norte = Leer_Coordenada(y);
    const double cota = Leer_Coordenada(z);
    Dibujante dibujante(canal, ajustes, Leer_Coordenada(x), norte);
    switch (modo) {
    case Modo_DXF::Dos_D:
        dibujante.Marca(u"PUNTOS", Color_DXF::Punto_2D, {});
        break;
    case Modo_DXF::Tres_D:
        dibujante.Marca(u"PUNTOS", Color_DXF::Punto_3D, Coordenada_DXF(cota));
        break;
    default:
        dibujante.Marca(u"PUNTOS_2D", Color_DXF::Punto_2D, {});
        dibujante.Marca(u"PUNTOS_3D", Color_DXF::Punto_3D, Coordenada_DXF(cota));
    }
    const Alturas_Etiquetas alturas = Disposicion_DXF(ajustes.formato);
    const double h = ajustes.altura;
    dibujante.Texto(u"NUMEROS", Color_DXF::Numero, norte + alturas.numero * h, Basico::Trim(punto));
    dibujante.Texto(u"COTAS", Color_DXF::Cota, norte + alturas.cota * h,
                    Cota_DXF(cota, ajustes.decimales));
    dibujante.Texto(u"CODIGOS", Color_DXF::Codigo, norte + alturas.codigo * h, codigo);
}

QString Coordenada_DXF(double metros)
{
    return Con_Punto(metros, QStringLiteral("#####0.000"));
}

QString Cota_DXF(double metros, int decimales)
{
    static const QString DIBUJOS[] = {QStringLiteral("######0"), QStringLiteral("####0.0"),
                                      QStringLiteral("###0.00"), QStringLiteral("##0.000")};
    return Con_Punto(metros, DIBUJOS[decimales >= 1 && decimales <= 3 ? decimales : 0]);
}

Alturas_Etiquetas Disposicion_DXF(int formato)
{
    constexpr double S = SEPARACION;
    static constexpr Alturas_Etiquetas DISPOSICIONES[] = {
        {0, S, -S}, {-S, S, 0}, {-S, 0, S}, {0, -S, S}, {S, -S, 0}, {S, 0, -S},
    };
    if (formato < 1 || formato > int(std::size(DISPOSICIONES))) return {};
    return DISPOSICIONES[formato - 1];
}
