#include "app/cli/Camino_Formato.h"
#include "app/cli/Instalacion.h"
#include "app/cli/Opciones_Comunes.h"
#include "app/cli/Ordenes_Export.h"
#include "export/dxf/Conversion_DXF.h"
#include "session/Separadores.h"

#include <algorithm>
#include <QFile>

namespace {

struct Palabra_Modo {
    QString palabra;
    Modo_DXF modo;
};
const QList<Palabra_Modo>& Modos()
{
    static const QList<Palabra_Modo> modos = {
        {"2d", Modo_DXF::Dos_D}, {"3d", Modo_DXF::Tres_D}, {"ambos", Modo_DXF::Ambos}};
    return modos;
}

QStringList Palabras_De_Modo()
{
    QStringList palabras;
    for (const Palabra_Modo& fila : Modos())
        palabras << fila.palabra;
    return palabras;
}

QStringList Palabras_De_Separador()
{
    QStringList palabras;
    for (const Fila_Separador& fila : Separadores())
        palabras << fila.palabra;
    return palabras;
}

// The words that both orders have in common.
const QStringList DE_DIBUJO = {"modo",        "salida",    "altura", "etiquetas",
                               "inclinacion", "decimales", "colores"};

QString Uso_De_Dibujo()
{
    return "--modo " + Palabras_De_Modo().join('|') +
           " --salida FICHERO [--altura A] [--etiquetas 1..6] [--inclinacion I] [--decimales D] "
           "[--colores P2D,P3D,CODIGO,NUMERO,COTA]";
}

Modo_DXF Leer_Modo(const Argumentos& a)
{
    const QString palabra = a.Obligada("modo");
    for (const Palabra_Modo& fila : Modos())
        if (fila.palabra.compare(palabra, Qt::CaseInsensitive) == 0) return fila.modo;
    throw Error_Uso{"El modo es " + Enumerar(Palabras_De_Modo()) + ": " + palabra};
}

void Leer_Colores(const QString& texto, Ajustes_DXF& ajustes)
{
    const QStringList numeros = texto.split(u',');
    if (numeros.size() != COLORES_DXF)
        throw Error_Uso{"Los colores se escriben P2D,P3D,CODIGO,NUMERO,COTA: " + texto};
    for (std::size_t i = 0; i < std::size_t(COLORES_DXF); ++i) {
        ajustes.colores[i] = Numero_De(numeros[qsizetype(i)], "color");
        if (ajustes.colores[i] < 1 || ajustes.colores[i] > COLOR_TOPE)
            throw Error_Uso{QStringLiteral("Los colores van de 1 a %1: ").arg(COLOR_TOPE) + texto};
    }
}

// What the words change in the settings of the installation, which stay as they are.
Ajustes_DXF Leer_Ajustes(const Argumentos& a)
{
    Ajustes_DXF ajustes = Leer_Ajustes_DXF();
    Textos_DXF textos = Textos_De(ajustes);
    textos.formato = a.Opcion("etiquetas", textos.formato);
    textos.altura = a.Opcion("altura", textos.altura);
    textos.inclinacion = a.Opcion("inclinacion", textos.inclinacion);
    textos.decimales = a.Opcion("decimales", textos.decimales);
    for (const QString& texto : {textos.formato, textos.altura, textos.decimales})
        if (!Basico::Numero_O_Nada(texto)) throw Error_Uso{"No es un número: " + texto};
    if (const QString falta = Tomar_Textos(textos, ajustes); !falta.isEmpty())
        throw Error_Uso{falta};
    if (a.Hay("colores")) Leer_Colores(a.Opcion("colores"), ajustes);
    return ajustes;
}

QString Leer_Salida(const Argumentos& a)
{
    QString fichero = a.Obligada("salida");
    if (fichero.isEmpty()) throw Error_Uso{"Falta el nombre del fichero de salida"};
    return fichero;
}

int Dibujar(const Origen_Dibujo& origen, Modo_DXF modo, const Ajustes_DXF& ajustes)
{
    if (QFile::exists(origen.fichero) &&
        !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                     Icono::Exclamacion))
        return RECHAZADO;
    Avance_Exportar callado;
    return Transformar_DXF(origen, modo, ajustes, callado) ? HECHO : RECHAZADO;
}

} // namespace

QString Uso_DXF()
{
    return "dxf ID --formato NOMBRE " + Uso_De_Dibujo() + " [--desplazamiento X,Y,Z]";
}

QString Uso_DXF_Fichero()
{
    return "dxf-fichero ENTRADA --separador " + Palabras_De_Separador().join('|') + ' ' +
           Uso_De_Dibujo();
}

int Orden_DXF(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, DE_DIBUJO + QStringList{"formato", "desplazamiento"});
    const int id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    Camino_Formato camino{{}, a.Obligada("formato"), "E", Leer_Desplazamiento(a)};
    const Modo_DXF modo = Leer_Modo(a);
    const QString fichero = Leer_Salida(a);
    const Instalacion instalacion(c);
    const Ajustes_DXF ajustes = Leer_Ajustes(a);
    camino.sesion = instalacion.Elegir_Sesion(id);
    int estado = RECHAZADO;
    camino.abrir = [&](Trabajo_Exportar trabajo) {
        trabajo.fichero = fichero;
        estado = Dibujar(Dibujo_De_Sesion(trabajo), modo, ajustes);
    };
    return Recorrer(camino, c) ? estado : int(RECHAZADO);
}

int Orden_DXF_Fichero(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, DE_DIBUJO + QStringList{"separador"});
    const QString entrada = a.Sueltos(1, 1).first(), separador = a.Obligada("separador");
    const int indice = Indice_Separador(separador);
    if (indice < 0)
        throw Error_Uso{"El separador es " + Enumerar(Palabras_De_Separador()) + ": " + separador};
    const Modo_DXF modo = Leer_Modo(a);
    const QString fichero = Leer_Salida(a);
    const Instalacion instalacion(c);
    const Ajustes_DXF ajustes = Leer_Ajustes(a);
    return Dibujar(Dibujo_De_Texto(entrada, fichero, Separadores()[std::size_t(indice)].caracter),
                   modo, ajustes);
}
