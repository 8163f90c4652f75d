#include "conversions/instrumento/ModCLIP.h"

#include "core/Ansi.h"
#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/Ficheros.h"
#include "core/Interfaz.h"
#include "core/Trozos.h"

#include <array>
#include <cmath>

namespace {

const QString COMA = QStringLiteral(",");
const QString FIN_LINEA = QStringLiteral("\r\n");

double Numero(QString texto)
{
    const qsizetype punto = texto.indexOf(u'.');
    if (punto >= 0) texto[punto] = u',';
    return Basico::CDbl(texto);
}

// Reads "value+flag"; the value is taken only behind one of the known flags.
QChar Leer_Marcado(const QString& campo, QStringView conocidas, double& valor)
{
    const QChar marca = campo.isEmpty() ? QChar() : campo.back().toUpper();
    if (!marca.isNull() && conocidas.contains(marca)) valor = Numero(campo.chopped(1));
    return marca;
}

QString Con_Decimales(double x)
{
    QString texto = Basico::Formato(x, QStringLiteral("0.000"));
    const qsizetype coma = texto.indexOf(u',');
    if (coma >= 0) texto[coma] = u'.';
    return texto;
}

// The classic errors of a division by zero: 0/0 overflows.
double Dividir(double a, double b)
{
    if (b == 0) throw Error_Ejecucion(a == 0 ? 6 : 11);
    return a / b;
}

// What the curve rules look at: the vertex, its neighbours, and the elevations that were written.
struct Entorno {
    Vertice_CLIP anterior, actual, siguiente;
    double cota = 0, cota_anterior = 0;
};

double Pendiente_Siguiente(const Entorno& v, double cota)
{
    return Dividir(100 * (v.siguiente.valor - cota), v.siguiente.pk - v.actual.pk);
}

double Pendiente_Anterior(const Entorno& v, double cota, double cota_anterior)
{
    return Dividir(100 * (cota - cota_anterior), v.actual.pk - v.anterior.pk);
}

// A length of the sagitta rows is a 16-bit whole number.
double Entera(double largo)
{
    return Basico::CInt(std::fabs(largo));
}

// The rows of one flag differ in which slopes they take and in the division by 100: CLIP files in
// use were made with these lengths, and a corrected one would move their curves.
double Largo_Con_Radio(const Entorno& v, QStringView vecinos)
{
    const double p = v.actual.parametro, z = v.actual.valor;
    const double zp = v.anterior.valor, zn = v.siguiente.valor;
    if (vecinos == u"CC")
        return std::fabs((Pendiente_Siguiente(v, z) - Pendiente_Anterior(v, z, zp)) * p) / 100;
    if (vecinos == u"PC") return std::fabs((Pendiente_Siguiente(v, z) - zp) * p);
    if (vecinos == u"CP") return std::fabs((zn / 100 - z / 100) * p);
    if (vecinos == u"PP")
        return std::fabs((zn / 100 - Pendiente_Anterior(v, v.cota, v.cota_anterior) / 100) * p);
    return p;
}

double Largo_Con_Flecha(const Entorno& v, QStringView vecinos)
{
    const double p = v.actual.parametro, z = v.actual.valor;
    const double zp = v.anterior.valor, zn = v.siguiente.valor;
    if (vecinos == u"CC")
        return Entera(100 * std::fabs(Dividir(8 * p, Pendiente_Siguiente(v, z) -
                                                         Pendiente_Anterior(v, z, zp))));
    double t = 0;
    if (vecinos == u"PC")
        t = Pendiente_Siguiente(v, v.cota) / 100 - z / 100;
    else if (vecinos == u"CP")
        t = zn / 100 - z / 100;
    else if (vecinos == u"PP")
        t = zn / 100 - Pendiente_Anterior(v, v.cota, v.cota_anterior) / 100;
    else
        return p;
    return Entera(t * Dividir(8 * p, t * t));
}

QString Con_Campo(const QString& plantilla, int n, const QString& campo)
{
    QStringList campos = plantilla.split(u',');
    while (campos.size() < n)
        campos.append(QString());
    campos[n - 1] = campo;
    return campos.join(u',');
}

// The file line by line; line numbers count from 1, an empty entry stands behind the last one.
class Conversion_Alz {
public:
    Conversion_Alz(const QStringList& del_fichero, QString& salida) : texto(salida)
    {
        lineas = del_fichero;
        lineas.prepend(QString());
        lineas.append(QString());
    }

    bool Convertir()
    {
        if (lineas.size() < 3) throw Error_Ejecucion(9);
        plantilla = lineas[2];
        const qsizetype primera = Contar_Trozos(Basico::Trim(lineas[2]), COMA) == 3 ? 2 : 3;
        for (linea = primera; linea < lineas.size() - 1; ++linea)
            Convertir_Linea();
        return bien;
    }

    qsizetype linea = 0;

private:
    void Convertir_Linea()
    {
        if (!Leer_Vertice(lineas[linea], v.actual)) {
            Interfaz_Actual().Mensaje(
                QStringLiteral("Número incorrecto de parámetros en la línea ") +
                    QString::number(linea),
                Icono::Critico);
            bien = false;
            return;
        }
        v.cota = v.actual.valor;
        if (v.actual.marca2 == u'P') {
            const double dz = v.actual.valor * (v.actual.pk - pk_anterior) / 100;
            v.cota = Basico::Redondear_Par(dz + v.cota_anterior);
        }
        const double largo = Largo();
        plantilla = Con_Campo(plantilla, 1, Con_Decimales(v.actual.pk));
        plantilla = Con_Campo(plantilla, 2, Con_Decimales(v.cota));
        plantilla = Con_Campo(plantilla, 3, Con_Decimales(largo));
        pk_anterior = v.actual.pk;
        v.cota_anterior = v.cota;
        texto += plantilla + FIN_LINEA;
    }

    double Largo()
    {
        const QChar marca = v.actual.marca3;
        if (marca == u'T') return 2 * v.actual.parametro;
        if (marca != u'R' && marca != u'F') {
            bien = false;
            return v.actual.parametro;
        }
        const bool hay_anterior = Leer_Vertice(lineas[linea - 1], v.anterior);
        const bool hay_siguiente = Leer_Vertice(lineas[linea + 1], v.siguiente);
        if (!hay_anterior || !hay_siguiente) {
            bien = false;
            return v.actual.parametro;
        }
        const std::array<QChar, 2> vecinos = {v.anterior.marca2, v.siguiente.marca2};
        return marca == u'R' ? Largo_Con_Radio(v, vecinos) : Largo_Con_Flecha(v, vecinos);
    }

    QStringList lineas;
    QString& texto;
    QString plantilla;
    Entorno v;
    double pk_anterior = 0;
    bool bien = true;
};

} // namespace

bool Leer_Vertice(const QString& linea, Vertice_CLIP& vertice)
try {
    const QString limpia = Basico::Trim(linea);
    if (Contar_Trozos(limpia, COMA) != 3) return false;
    const auto campo = [&](int n) { return Basico::Trim(Trozo(n, limpia, COMA)); };
    vertice.pk = Numero(campo(1));
    vertice.marca2 = Leer_Marcado(campo(2), u"CP", vertice.valor);
    vertice.marca3 = Leer_Marcado(campo(3), u"RTF", vertice.parametro);
    return true;
} catch (...) {
    Informe_Error(
        QStringLiteral("Se produjo un error al convertir a formato de Al.Verticales en el "
                       "contenido de la línea ") +
            linea,
        Error_En_Curso());
    return false;
}

bool Convertir_Alz(const QString& entrada, QString& texto)
{
    qsizetype linea = 0;
    try {
        Conversion_Alz conversion(Ficheros::Leer_Lineas(entrada), texto);
        const auto guardar_linea = qScopeGuard([&] { linea = conversion.linea; });
        return conversion.Convertir();
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al convertir a formato de Al.Verticales "
                                     "cuando evaluaba la línea ") +
                          QString::number(linea),
                      Error_En_Curso());
        return false;
    }
}

bool Convertir_Ter(const QString& entrada, const QString& salida)
try {
    QString texto, estacion;
    qint64 quedan = 0;
    for (const QString& linea : Ficheros::Leer_Lineas(entrada)) {
        if (quedan > 0) {
            texto += estacion + u',' + linea + FIN_LINEA;
            --quedan;
        } else {
            estacion = Trozo(1, linea, COMA);
            quedan = Basico::CLng(Basico::Val(Trozo(2, linea, COMA)));
        }
    }
    Ficheros::Escribir(salida, Ansi::A_Bytes(texto));
    return true;
} catch (...) {
    Informe_Error(
        QStringLiteral("Se produjo un error al convertir a formato de Perfiles Transversales"),
        Error_En_Curso());
    return false;
}
