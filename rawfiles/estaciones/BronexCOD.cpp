#include "rawfiles/estaciones/BronexCOD.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/ModEstTotal.h"
#include "rawfiles/estaciones/Bronex.h"
#include "rawfiles/Fichero_Destino.h"

#include <QFile>

namespace {

const QString VACIA = QStringLiteral("qtr");

class Lector_BronexCOD : public Lector_Bronex {
public:
    Lector_BronexCOD() { celdas.resize(8); }

    bool Tomar(const Registro_Serie_B& r) override
    {
        const bool fila = Lector_Bronex::Tomar(r);
        if (r.Es_Visado()) celdas.back() = r.Dato(3);
        if (fila)
            for (QString& celda : celdas)
                if (celda.isEmpty()) celda = VACIA;
        return fila;
    }
};

const Disposicion& Disposicion_BronexCOD()
{
    static const Disposicion unica{
        [] { return std::unique_ptr<Lector_Disposicion>(new Lector_BronexCOD); }, Unir_Celdas,
        QStringLiteral("Exportación a Formato BronexCOD finalizada"), Fallo_Bronex()};
    return unica;
}

void Escribir_Temporal(const QString& temporal, const QStringList& lineas)
{
    // What an earlier run left is no session of today.
    QFile::remove(temporal);
    Fichero_Destino destino(temporal);
    for (const QString& linea : lineas)
        destino.Linea(linea);
    destino.Terminar();
}

} // namespace

bool Exportar_BronexCOD(qint64 id, const QString& ruta)
{
    const Disposicion& disposicion = Disposicion_BronexCOD();
    const QString separador = Pedir_Separador_Disposicion();
    if (separador.isEmpty()) return false;
    try {
        Fichero_Destino::Comprobar(ruta);
        const QString temporal = En_Instalacion(QStringLiteral("miraldos.$$$"));
        const auto retirar = qScopeGuard([&] { QFile::remove(temporal); });
        Informe_Lectura informe;
        Lineas_Disposicion lineas;
        {
            const Cursor_De_Espera espera;
            lineas = Disponer(disposicion, id, separador);
            if (!lineas.lineas.isEmpty()) Escribir_Temporal(temporal, lineas.lineas);
        }
        if (lineas.lineas.isEmpty() ||
            Ejecutar_Funcion(u"lectkrt2bronex", {temporal, ruta}, informe) == 0) {
            Decir_Sin_Registros();
            Mostrar_Omisiones(informe);
            return false;
        }
        Interfaz_Actual().Mensaje(disposicion.cierre, Icono::Informacion);
        Decir_Partidas(lineas);
        Mostrar_Omisiones(informe);
        return true;
    } catch (...) {
        Interfaz_Actual().Mensaje(
            Texto_Informe(disposicion.fallo, Error_En_Curso(), QStringLiteral("\r\n")),
            Icono::Critico);
        return false;
    }
}
