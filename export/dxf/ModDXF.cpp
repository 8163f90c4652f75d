#include "export/dxf/ModDXF.h"

#include "core/Ansi.h"
#include "core/Basico.h"

#include <algorithm>

namespace {

constexpr double SEPARACION = 1.5; // between labels, in text heights
constexpr int DECIMALES_COORDENADA = 3, DECIMALES_ALTURA = 2;

// The machine's Str: a blank stands where a negative number has its sign.
QString Color(int numero)
{
    return u' ' + QString::number(numero);
}

void Codigo_De_Grupo(QByteArray& canal, int codigo)
{
    canal += ' ' + QByteArray::number(codigo) + "\r\n";
}

void Coordenada(QByteArray& canal, double metros)
{
    Basico::Agregar_Fijo(canal, metros, DECIMALES_COORDENADA);
}

int Decimales_Cota(int decimales)
{
    return decimales >= 1 && decimales <= 3 ? decimales : 0;
}

void Letras(QByteArray& canal, QStringView texto)
{
    const qsizetype desde = canal.size();
    Ansi::Agregar_Bytes(canal, texto);
    std::replace_if(
        canal.begin() + desde, canal.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
}

QStringView Sin_Blancos(QStringView texto)
{
    while (texto.startsWith(u' '))
        texto = texto.sliced(1);
    while (texto.endsWith(u' '))
        texto.chop(1);
    return texto;
}

} // namespace

Dibujante_DXF::Dibujante_DXF(const Ajustes_DXF& ajustes, Modo_DXF modo)
    : al_lado(ajustes.altura / 2), decimales(Decimales_Cota(ajustes.decimales))
{
    const int en_2d = ajustes.Color(Color_DXF::Punto_2D);
    const int en_3d = ajustes.Color(Color_DXF::Punto_3D);
    switch (modo) {
    case Modo_DXF::Dos_D:
        Poner_Marca(u"PUNTOS", en_2d, false);
        break;
    case Modo_DXF::Tres_D:
        Poner_Marca(u"PUNTOS", en_3d, true);
        break;
    default:
        Poner_Marca(u"PUNTOS_2D", en_2d, false);
        Poner_Marca(u"PUNTOS_3D", en_3d, true);
    }
    const Alturas_Etiquetas lugares = Disposicion_DXF(ajustes.formato);
    const double h = ajustes.altura;
    numero = Hacer_Etiqueta(u"NUMEROS", ajustes.Color(Color_DXF::Numero), lugares.numero * h);
    cota = Hacer_Etiqueta(u"COTAS", ajustes.Color(Color_DXF::Cota), lugares.cota * h);
    codigo = Hacer_Etiqueta(u"CODIGOS", ajustes.Color(Color_DXF::Codigo), lugares.codigo * h);

    QByteArray letra;
    Basico::Agregar_Fijo(letra, h, DECIMALES_ALTURA);
    Grupo_DXF(altura_letra, 40, QString::fromLatin1(letra));
    Codigo_De_Grupo(altura_letra, 1);
    pie = "\r\n";
    Grupo_DXF(pie, 50, u"0");
    Grupo_DXF(
        pie, 51,
        Basico::Formato(QString(ajustes.inclinacion).replace(u'.', u','), QStringLiteral("#0")));
}

void Dibujante_DXF::Poner_Marca(QStringView capa, int color, bool con_cota)
{
    QByteArray cabeza;
    Grupo_DXF(cabeza, 0, u"POINT");
    Grupo_DXF(cabeza, 8, capa);
    Grupo_DXF(cabeza, 62, Color(color));
    Codigo_De_Grupo(cabeza, 10);
    marcas.append({cabeza, con_cota});
}

Dibujante_DXF::Etiqueta Dibujante_DXF::Hacer_Etiqueta(QStringView capa, int color,
                                                      double altura) const
{
    QByteArray cabeza;
    Grupo_DXF(cabeza, 0, u"TEXT");
    Grupo_DXF(cabeza, 8, capa);
    Grupo_DXF(cabeza, 62, Color(color));
    Codigo_De_Grupo(cabeza, 10);
    return {cabeza, altura};
}

void Dibujante_DXF::Punto(QByteArray& canal, QStringView nombre, double x, double y, double z,
                          QStringView texto_codigo) const
{
    for (const Marca& marca : marcas) {
        canal += marca.cabeza;
        Coordenada(canal, x);
        canal += "\r\n 20\r\n";
        Coordenada(canal, y);
        if (marca.con_cota) {
            canal += "\r\n 30\r\n";
            Coordenada(canal, z);
        }
        canal += "\r\n";
    }
    const auto situar = [&](const Etiqueta& etiqueta) {
        canal += etiqueta.cabeza;
        Coordenada(canal, x + al_lado);
        canal += "\r\n 20\r\n";
        Coordenada(canal, y + etiqueta.altura);
        canal += "\r\n";
        canal += altura_letra;
    };
    situar(numero);
    Letras(canal, Sin_Blancos(nombre));
    canal += pie;
    situar(cota);
    Basico::Agregar_Fijo(canal, z, decimales);
    canal += pie;
    situar(codigo);
    Letras(canal, texto_codigo);
    canal += pie;
}

void Grupo_DXF(QByteArray& canal, int codigo, QStringView valor)
{
    Codigo_De_Grupo(canal, codigo);
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
    const double este = Basico::Leer_Numero(x), norte = Basico::Leer_Numero(y);
    const double cota = Basico::Leer_Numero(z);
    Dibujante_DXF(ajustes, modo).Punto(canal, punto, este, norte, cota, codigo);
}

QString Coordenada_DXF(double metros)
{
    QByteArray bytes;
    Coordenada(bytes, metros);
    return QString::fromLatin1(bytes);
}

QString Cota_DXF(double metros, int decimales)
{
    QByteArray bytes;
    Basico::Agregar_Fijo(bytes, metros, Decimales_Cota(decimales));
    return QString::fromLatin1(bytes);
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
