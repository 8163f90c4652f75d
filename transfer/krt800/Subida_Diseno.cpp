#include "transfer/krt800/Subida_Diseno.h"

#include "conversions/biblioteca/Flujo_Diseno.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "transfer/Lineas_Envio.h"

#include <algorithm>
#include <optional>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");
const QString SEPARADOR = QStringLiteral(",");

// Above this a file takes long enough to show how far it is.
constexpr qsizetype POCOS_BLOQUES = 4096;

void Subir_Diseno(Clase_Conversion clase, const QString& filtro, int guardar,
                  const Envio_Diseno& envio)
{
    const auto convertido = Convertir_Diseno(clase, filtro, guardar, envio.operacion);
    QString texto;
    if (!convertido || !Leer_Fichero_Envio(*convertido, texto, SEPARADOR, false, ENVIO_CONVERTIDO))
        return;
    if (guardar != 1 && envio.enviar) envio.enviar(texto);
}

constexpr int CAMPOS_MINIMOS = 4;

// A point line for the instrument; nothing when the line has too few fields.
// @param numero  of the line, for the report
std::optional<QString> Linea_De_Punto(QString linea, const QString& separador, bool offsets,
                                      qint64 numero)
try {
    if (separador == u" ") linea = Quitar_Espacios_Dobles(linea);
    if (Contar_Trozos(linea, separador) < CAMPOS_MINIMOS) return std::nullopt;
    const QString sin = QStringLiteral("0");
    const QString* const desplazamientos[] = {&Desp_X, &Desp_Y, &Desp_Z};
    QStringList campos = {Trozo(1, linea, separador)};
    for (int i = 0; i < 3; ++i)
        campos << Formato_Coordenada(offsets ? *desplazamientos[i] : sin,
                                     QString::fromUtf16(FORMATO_COORDENADA),
                                     Trozo(i + 2, linea, separador), QStringLiteral("6,3"));
    campos << Trozo(5, linea, separador);
    for (const QString& campo : {campos.first(), campos.last()})
        Comprobar_Campo(campo, u',', numero, linea);
    return campos.join(u',');
} catch (const Error_Ejecucion& e) {
    if (e.numero == 5) throw;
    throw Error_De_Linea(e.numero, numero, linea);
}

// The lines of a point file, those that hold nothing left out of the sending.
QStringList Leer_Lineas_Puntos(const QString& fichero, const QString& separador)
{
    QStringList lineas = Leer_Lineas_Envio(fichero);
    const auto tiene_punto = [&](const QString& linea) {
        return Contar_Trozos(separador == u" " ? Quitar_Espacios_Dobles(linea) : linea,
                             separador) >= CAMPOS_MINIMOS;
    };
    // Short lines repeat the one before; where all are short the separator is another.
    if (std::ranges::any_of(lineas, tiene_punto)) return lineas;
    lineas.removeIf([](const QString& linea) { return linea.trimmed().isEmpty(); });
    Avisar_Separador(lineas.value(0));
    return {};
}

} // namespace

void Subir_Alineaciones(const QString& filtro, int Guardar, const Envio_Diseno& envio)
{
    Subir_Diseno(Clase_Conversion::Alineaciones, filtro, Guardar, envio);
}

void Subir_Rasantes(const QString& filtro, int Guardar, const Envio_Diseno& envio)
{
    Subir_Diseno(Clase_Conversion::Rasantes, filtro, Guardar, envio);
}

void Subir_Transversales(const QString& filtro, int Guardar, const Envio_Diseno& envio)
{
    Subir_Diseno(Clase_Conversion::Transversales, filtro, Guardar, envio);
}

bool Leer_Fichero_Envio(const QString& fichero, QString& texto, const QString& separador,
                        bool offsets, int tipo)
try {
    const QStringList lineas = tipo == ENVIO_PUNTOS ? Leer_Lineas_Puntos(fichero, separador)
                                                    : Ficheros::Leer_Lineas(fichero);
    if (tipo == ENVIO_PUNTOS && lineas.isEmpty()) return false;
    qint64 largo = 0;
    for (const QString& linea : lineas)
        largo += linea.size() + FIN_LINEA.size();
    std::optional<Proceso> proceso;
    Proceso_Cancelado = false;
    if (largo > POCOS_BLOQUES)
        proceso.emplace(QStringLiteral("Procesando Fichero de Puntos..."), largo);

    qint64 hecho = 0;
    QString salida;
    for (qsizetype i = 0; i < lineas.size(); ++i) {
        if (Proceso_Cancelado) return false;
        const QString& linea = lineas[i];
        hecho += linea.size() + FIN_LINEA.size();
        if (tipo == ENVIO_CONVERTIDO)
            salida = linea;
        else if (linea.trimmed().isEmpty())
            continue;
        else
            salida = Linea_De_Punto(linea, separador, offsets, i + 1).value_or(salida);
        texto += salida + FIN_LINEA;
        if (proceso) Interfaz_Actual().Proceso_Avanzar(hecho);
    }
    return true;
} catch (...) {
    Informe_Error(QStringLiteral("Se produjo un error al Procesar el Fichero"), Error_En_Curso());
    return false;
}

QString Formato_Coordenada(const QString& offset, const QString& formatoOffset,
                           const QString& valor, const QString& formatoSalida)
{
    const auto numero = Decimal::Leer(valor);
    if (!numero) throw Error_Ejecucion(13);
    const Decimal suma = *numero + Valor_Desplazamiento(offset, formatoOffset);
    const int cuantos = Anchos_Numero::Leer(formatoSalida).decimales;
    QString decimales = suma.Decimales(cuantos);
    const bool redondea_a_la_unidad =
        decimales == QString(cuantos, u'0') && suma.Decimales(18).startsWith(u'9');
    if (redondea_a_la_unidad) decimales = QString(u'1' + decimales).left(cuantos);
    return (suma.Negativo() ? QStringLiteral("-") : QString()) + QString::number(suma.Entera()) +
           u'.' + decimales;
}
