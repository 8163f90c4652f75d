#include "rawfiles/Exportar_Puntos.h"

#include "core/Ansi.h"
#include "core/ModEstTotal.h"
#include "rawfiles/Fichero_Destino.h"

namespace {

bool Cabe_En_Una_Linea(const QString& registro)
{
    return !registro.contains(u'\n') && !registro.contains(u'\r');
}

void Escribir_Lineas(Registros_Serie_A& registros, const QString& ruta, qint64& partidos)
{
    if (!registros.Siguiente()) return;
    Fichero_Destino destino(ruta);
    do {
        destino.Linea(registros.Registro());
        if (!Cabe_En_Una_Linea(registros.Registro())) ++partidos;
    } while (registros.Siguiente());
    destino.Terminar();
}

void Escribir_Maquina(Registros_Serie_A& registros, const QString& ruta, qint64& partidos)
{
    QString imagen;
    while (registros.Siguiente()) {
        imagen += SEPARADOR_MAQUINA + registros.Registro();
        if (registros.Registro().contains(SEPARADOR_MAQUINA)) ++partidos;
    }
    if (imagen.isEmpty()) {
        Interfaz_Actual().Mensaje(QStringLiteral("La sesión no contenía datos"),
                                  Icono::Exclamacion);
        return;
    }
    Fichero_Destino destino(ruta);
    destino.Linea(imagen + SEPARADOR_MAQUINA);
    destino.Terminar();
}

// "Estación (2), Código (1)": the kinds by their names in the tables.
QString Nombres_De(const Generales_Omitidos& omitidos, const QString& maquina)
{
    QStringList clases;
    for (auto it = omitidos.cbegin(); it != omitidos.cend(); ++it) {
        Recorrido fila = Base_Datos->Recorrer(
            QStringLiteral("SELECT NomID FROM Identificadores WHERE Nombre = ? AND ID = ?"),
            {maquina, QString(it.key())});
        const QString nombre = fila.Siguiente() ? fila.Texto(0) : QString(it.key());
        clases << QStringLiteral("%1 (%2)").arg(nombre).arg(it.value());
    }
    return clases.join(QStringLiteral(", "));
}

} // namespace

bool Exportar_Puntos(qint64 id, const QString& ruta, Forma_Bruta forma, bool generales,
                     Falta_En_Bruto& falta)
{
    const Cursor_De_Espera espera;
    try {
        Registros_Serie_A registros(id, generales);
        if (forma == Forma_Bruta::Maquina)
            Escribir_Maquina(registros, ruta, falta.partidos);
        else
            Escribir_Lineas(registros, ruta, falta.partidos);
        falta.generales = registros.Omitidos();
        return true;
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al exportar el Fichero en Bruto"),
                      Error_En_Curso());
        return false;
    }
}

QString Texto_Falta(const Falta_En_Bruto& falta, const QString& maquina)
{
    QStringList frases;
    if (!falta.generales.isEmpty())
        frases << QStringLiteral("El fichero no incluye los registros generales: ") +
                      Nombres_De(falta.generales, maquina);
    if (falta.partidos > 0)
        frases << QStringLiteral("Registros que contienen el separador de registros y no volverían "
                                 "enteros: %1")
                      .arg(falta.partidos);
    return frases.join(QStringLiteral(". "));
}
