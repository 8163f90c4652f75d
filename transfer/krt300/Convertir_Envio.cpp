#include "transfer/krt300/Convertir_Envio.h"

#include "core/ModEstTotal.h"
#include "transfer/enlace/Emisor.h"
#include "transfer/krt300/Puntos_KRT300.h"
#include "transfer/krt300/Tramas_KRT300.h"
#include "transfer/Lineas_Envio.h"

#include <algorithm>
#include <optional>

namespace {

// Above this a file takes long enough to show how far it is.
constexpr qint64 LARGO_CON_PROGRESO = 4096;
constexpr qsizetype PASOS_BARRA = 25;

constexpr qsizetype MAX_CODIGOS = 50;
constexpr qsizetype CIFRAS_NUMERO = 3;
constexpr qsizetype LARGO_CODIGO = 10;
constexpr QChar MARCA_REGISTRO = u'_';

const QString ERROR = QString::fromUtf16(ENVIO_CON_ERROR);

QString Convertir_Puntos(const QString& separador, const QString& fichero, QString& cabecera,
                         QString& datos)
{
    Proceso_Cancelado = false;
    std::optional<Proceso> proceso;
    if (const qint64 largo = QFileInfo(fichero).size(); largo > LARGO_CON_PROGRESO)
        proceso.emplace("Convirtiendo a formato KRT (1 de 2)...", largo);
    QList<Punto_Envio> puntos;
    if (!Leer_Puntos(fichero, separador, puntos) || Proceso_Cancelado) return ERROR;
    QString malos = Comprobar_Puntos(puntos);
    if (!malos.isEmpty()) return malos;

    if (proceso)
        Interfaz_Actual().Proceso_Etiqueta("Preparando paquetes de datos (2 de 2)...",
                                           puntos.size());
    cabecera = Tramas_KRT300::Cabecera();
    const qsizetype paso = std::max<qsizetype>(puntos.size() / PASOS_BARRA, 1);
    for (qsizetype i = 0; i < puntos.size() && !Proceso_Cancelado; ++i) {
        datos += Registro_Punto(puntos[i]);
        if (proceso && (i + 1) % paso == 0) Interfaz_Actual().Proceso_Avanzar(i + 1);
    }
    return Proceso_Cancelado ? ERROR : QString();
}

QString Convertir_Libreria(const QString& fichero, QString& datos)
{
    QStringList codigos;
    if (!Leer_Libreria(fichero, codigos)) return ERROR;
    // All places go out, so that codes of an older and longer library don't stay in the instrument.
    for (qsizetype n = 1; n <= MAX_CODIGOS; ++n)
        datos += QStringLiteral("_:") + Rellenar_Ceros(QString::number(n), CIFRAS_NUMERO) +
                 codigos.value(n - 1).leftJustified(LARGO_CODIGO);
    return {};
}

void Critico(const QString& texto)
{
    Interfaz_Actual().Mensaje(texto, Icono::Critico);
}

// @return false after the box of a line that doesn't fit
bool Leer_Codigo(const QString& linea, qsizetype cuenta, QString& codigo)
{
    const QString numero = linea.left(CIFRAS_NUMERO);
    codigo = Basico::Mid(linea, CIFRAS_NUMERO + 1, LARGO_CODIGO);
    bool vale = Basico::IsNumeric(numero);
    if (!vale)
        Critico("El archivo contiene el registro \r'" + linea +
                "'El cual no contiene un código de tipo numérico\r(" + numero + ')');
    const QString cual = "El código nº" + QString::number(cuenta) + " (" + codigo + ')';
    if (const QString malo = Primero_No_Aceptado(codigo); !malo.isEmpty()) {
        Critico(cual + " contiene el carácter '" + malo + "' que no es aceptado por el aparato");
        vale = false;
    } else if (codigo.contains(MARCA_REGISTRO)) {
        // It would end the record on the wire.
        Critico(cual + ": El carácter '_' es reservado");
        vale = false;
    }
    return vale;
}

} // namespace

QString Convertir_Envio(int tipo, const QString& separador, const QString& fichero,
                        QString& cabecera, QString& datos)
try {
    cabecera.clear();
    datos.clear();
    return tipo == ENVIO_LIBRERIA ? Convertir_Libreria(fichero, datos)
                                  : Convertir_Puntos(separador, fichero, cabecera, datos);
} catch (...) {
    Informe_Error("Se produjo un error al Procesar el Fichero", Error_En_Curso());
    return ERROR;
}

bool Leer_Libreria(const QString& fichero, QStringList& codigos)
{
    if (!FileExist(fichero)) {
        Interfaz_Actual().Mensaje("El Fichero especificado no existe", Icono::Exclamacion);
        return false;
    }
    const QStringList lineas = Leer_Lineas_Envio(fichero);
    bool vale = true;
    for (qsizetype i = 0; i < lineas.size(); ++i) {
        if (lineas[i].trimmed().isEmpty()) continue;
        if (codigos.size() == MAX_CODIGOS)
            throw Error_De_Linea(
                9, i + 1, lineas[i],
                QStringLiteral("El fichero tiene más de %1 códigos").arg(MAX_CODIGOS));
        QString codigo;
        vale = Leer_Codigo(lineas[i], codigos.size() + 1, codigo) && vale;
        codigos << codigo;
    }
    const bool hay =
        std::ranges::any_of(codigos, [](const QString& c) { return !Basico::Trim(c).isEmpty(); });
    // An instrument is not emptied by mistake.
    if (vale && !hay)
        Interfaz_Actual().Mensaje("El fichero no contiene códigos", Icono::Exclamacion);
    return vale && hay;
}
