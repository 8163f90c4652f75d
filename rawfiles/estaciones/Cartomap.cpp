#include "rawfiles/estaciones/Cartomap.h"

#include "core/Decimal.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "rawfiles/estaciones/Redondeo.h"
#include "rawfiles/estaciones/Registro_Serie_B.h"
#include "rawfiles/Fichero_Destino.h"

#include <vector>

namespace {

constexpr std::size_t PARES_MAXIMOS = 65535;
constexpr int VUELTA = 400;

struct Par {
    QString clave, valores;
    QString Dato(int n) const { return Basico::Trim(Trozo(n, valores, u',')); }
};

QString Unidos(std::initializer_list<QString> campos)
{
    return QStringList(campos).join(u',');
}

// The look-ahead goes two pairs further than the last one.
std::vector<Par> Leer_Pares(const QString& entrada)
{
    std::vector<Par> pares;
    const QStringList lineas = Ficheros::Leer_Lineas(entrada);
    for (const QString& linea : lineas) {
        const qsizetype blanco = linea.indexOf(u' ');
        if (blanco < 1) continue;
        if (pares.size() == PARES_MAXIMOS) throw Error_Ejecucion(9);
        pares.push_back({linea.left(blanco), Basico::LTrim(linea.mid(blanco))});
    }
    pares.resize(pares.size() + 2);
    return pares;
}

QString Azimut(const Par& atras)
{
    const Decimal diferencia = Decimal::Prefijo(atras.Dato(2)) - Decimal::Prefijo(atras.Dato(3));
    const Decimal azimut =
        diferencia.Negativo() ? diferencia + Decimal::De_Miles(VUELTA * 1000) : diferencia;
    return Redondeo::Redondear(azimut.Texto(), 4);
}

QString Linea_Estacion(const Par& s, const Par& b)
{
    return Unidos({QStringLiteral("1"), s.Dato(1), s.Dato(2), b.Dato(1), Azimut(b),
                   QStringLiteral("1"), QString()});
}

QString Linea_Observacion(const Par& o, const Par& d)
{
    return Unidos(
        {QStringLiteral("2"), o.Dato(1), d.Dato(1), d.Dato(2), d.Dato(3), o.Dato(2), o.Dato(3)});
}

QString Linea_Coordenadas(const Par& s, const Par& x)
{
    return Unidos({QStringLiteral("3"), s.Dato(1), x.Dato(1), x.Dato(2), x.Dato(3), s.Dato(3)});
}

// Writes what stands at pair i, which moves on over a pair that was taken with it.
// @return what ends the run; empty when it goes on
QString Escribir_Par(const std::vector<Par>& pares, std::size_t& i, Fichero_Destino& destino)
{
    const Par& par = pares[i];
    const Par& siguiente = pares[i + 1];
    if (par.clave == u"JOB") {
        destino.Linea(Unidos({QStringLiteral("0"), par.Dato(1)}));
    } else if (par.clave == u"STN") {
        const bool con_coordenadas = siguiente.clave == u"XYZ" && pares[i + 2].clave == u"BKB";
        if (!con_coordenadas && siguiente.clave != u"BKB")
            return QStringLiteral("Se encontró una estación sin coordenadas ni Azimut/Punto atrás");
        if (con_coordenadas) destino.Linea(Linea_Coordenadas(par, siguiente));
        destino.Linea(Linea_Estacion(par, con_coordenadas ? pares[i + 2] : siguiente));
        if (con_coordenadas) ++i;
    } else if (par.clave == u"SS") {
        if (siguiente.clave != u"SD")
            return QStringLiteral("Se encontró un Registro SS sin SD Posterior");
        destino.Linea(Linea_Observacion(par, siguiente));
        ++i;
    }
    return {};
}

void Convertir(const std::vector<Par>& pares, Fichero_Destino& destino)
{
    for (std::size_t i = 0; i + 2 < pares.size(); ++i) {
        const QString fin = Escribir_Par(pares, i, destino);
        if (fin.isEmpty()) continue;
        Interfaz_Actual().Mensaje(fin, Icono::Critico);
        break;
    }
    destino.Terminar();
}

} // namespace

bool Exportar_Cartomap(const QString& entrada, const QString& ruta)
{
    if (!FileExist(entrada)) {
        // The quote that stays open is the box's own.
        Interfaz_Actual().Mensaje(
            QStringLiteral("El fichero de Entrada '%1 no existe").arg(entrada), Icono::Critico);
        Interfaz_Actual().Mensaje(QStringLiteral("El fichero de entrada especificado no existe"),
                                  Icono::Critico);
        return false;
    }
    QString mensaje = QStringLiteral("Se produjo un error al convertir a Formato CARTOMAP");
    try {
        const Cursor_De_Espera espera;
        const std::vector<Par> pares = Leer_Pares(entrada);
        std::optional<Fichero_Destino> destino;
        try {
            Fichero_Destino::Comprobar_Distinto(entrada, ruta);
            destino.emplace(ruta);
        } catch (...) {
            mensaje = QStringLiteral("Se produjo un error al abrir el Fichero de Salida");
            throw;
        }
        Convertir(pares, *destino);
        return true;
    } catch (...) {
        Informe_Error(mensaje, Error_En_Curso());
        return false;
    }
}
