#include "export/dxf/Conversion_DXF.h"

#include "core/Ficheros.h"
#include "core/Ficheros_Propios.h"
#include "core/ModEstTotal.h"
#include "export/dxf/Puntos_DXF.h"
#include "export/GuardarN.h"
#include "export/Salidas.h"
#include "session/Peticiones_Sesion.h"

namespace {

constexpr qsizetype LINEAS_NOMBRADAS = 10;

// Titles may hold the names of fields that are no point's; without a database they are words.
QStringList Campos_De_La_Base()
{
    QStringList campos;
    if (!Base_Datos) return campos;
    Recorrido filas = Base_Datos->Recorrer("SELECT DISTINCT Campo FROM Campos", {});
    while (filas.Siguiente())
        campos << filas.Texto(0);
    return campos;
}

std::optional<QChar> Preguntar_Separador()
{
    const QString elegido = Peticiones_De_Sesion().Pedir_Separador();
    if (elegido.isEmpty()) return std::nullopt;
    return elegido.front();
}

QString Texto_Cierre(qint64 omitidos, const QList<int>& cortas)
{
    QString texto = QStringLiteral("Sesión Exportada");
    if (omitidos > 0)
        texto +=
            QStringLiteral("\rPuntos sin coordenadas, que no se han dibujado: %1").arg(omitidos);
    if (cortas.isEmpty()) return texto;
    QStringList numeros;
    for (const int linea : cortas.mid(0, LINEAS_NOMBRADAS))
        numeros << QString::number(linea);
    texto += "\rLíneas con menos datos que títulos, que no se han dibujado: " + numeros.join(", ");
    if (cortas.size() > LINEAS_NOMBRADAS)
        texto += QStringLiteral(" y %1 más").arg(cortas.size() - LINEAS_NOMBRADAS);
    return texto;
}

void Anunciar(Avance_Exportar& avance, const QString& etiqueta)
{
    avance.Valor(0);
    avance.Etiqueta(etiqueta);
    Interfaz_Actual().Repintar();
}

} // namespace

Origen_Dibujo Dibujo_De_Sesion(const Trabajo_Exportar& trabajo)
{
    const auto leer = [trabajo](Avance_Exportar& avance) -> std::optional<Lista_Puntos> {
        const std::shared_ptr<Base> bd = Base::Abrir(Fichero_MDB);
        const Opciones_Exportar opciones;
        const Origen_Exportar origen{*bd,         trabajo.id,      trabajo.maquina,
                                     trabajo.ope, trabajo.formato, Cargar_Campos_Exportar(),
                                     opciones,    avance};
        return Lista_Puntos{Modo_En_Vigor().formatear(origen), {}};
    };
    return {leer, trabajo.fichero};
}

Origen_Dibujo Dibujo_De_Texto(const QString& entrada, const QString& salida,
                              std::optional<QChar> separador)
{
    const auto leer = [entrada, separador](Avance_Exportar&) {
        return Leer_Lista_Puntos(Ficheros::Leer(entrada), Campos_De_La_Base(), separador,
                                 Preguntar_Separador);
    };
    return {leer, salida, {entrada}};
}

bool Transformar_DXF(const Origen_Dibujo& origen, Modo_DXF modo, const Ajustes_DXF& ajustes,
                     Avance_Exportar& avance)
{
    bool hecho = false;
    QString cierre;
    try {
        const Cursor_De_Espera espera;
        Comprobar_Destino(origen.fichero, origen.fuentes);
        Anunciar(avance, "Formateando Datos... (1 de 2)");
        if (const auto lista = origen.leer(avance)) {
            Anunciar(avance, "Exportando... (2 de 2)");
            const Dibujo_DXF dibujo = Dibujar_Tabla(lista->datos, modo, ajustes, avance);
            Ficheros::Escribir(origen.fichero, dibujo.bytes);
            cierre = Texto_Cierre(dibujo.omitidos, lista->lineas_cortas);
            hecho = true;
        }
    } catch (...) {
        Informe_Error("Se produjo un error al exportar la sesión a formato DXF", Error_En_Curso());
    }
    if (hecho) Interfaz_Actual().Mensaje(cierre, Icono::Informacion);
    Anunciar(avance, {});
    return hecho;
}
