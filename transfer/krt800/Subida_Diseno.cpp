#include "transfer/krt800/Subida_Diseno.h"

#include "conversions/biblioteca/Flujo_Diseno.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"

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

// A point line for the instrument; nothing when the line has too few fields.
std::optional<QString> Linea_De_Punto(QString linea, const QString& separador, bool offsets)
{
    if (separador == u" ") linea = Quitar_Espacios_Dobles(linea);
    if (Contar_Trozos(linea, separador) < 4) return std::nullopt;
    const QString sin = QStringLiteral("0");
    const QString* const desplazamientos[] = {&Desp_X, &Desp_Y, &Desp_Z};
    QStringList campos = {Trozo(1, linea, separador)};
    for (int i = 0; i < 3; ++i)
        campos << Formato_Coordenada(offsets ? *desplazamientos[i] : sin,
                                     QString::fromUtf16(FORMATO_COORDENADA),
                                     Trozo(i + 2, linea, separador), QStringLiteral("6,3"));
    campos << Trozo(5, linea, separador);
    return campos.join(u',');
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
    const QStringList lineas = Ficheros::Leer_Lineas(fichero);
    qint64 largo = 0;
    for (const QString& linea : lineas)
        largo += linea.size() + FIN_LINEA.size();
    std::optional<Proceso> proceso;
    Proceso_Cancelado = false;
    if (largo > POCOS_BLOQUES)
        proceso.emplace(QStringLiteral("Procesando Fichero de Puntos..."), largo);

    qint64 hecho = 0;
    QString salida;
    for (const QString& linea : lineas) {
        if (Proceso_Cancelado) return false;
        if (tipo == ENVIO_PUNTOS)
            salida = Linea_De_Punto(linea, separador, offsets).value_or(salida);
        else
            salida = linea;
        texto += salida + FIN_LINEA;
        hecho += linea.size() + FIN_LINEA.size();
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
