#include "export/dxf/Puntos_DXF.h"

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"

namespace {

// A part of a point, the names that its field may have, and whether there is no point without it.
struct Parte_Punto {
    std::optional<std::size_t> Columnas_Punto::*columna;
    QStringList nombres;
    bool obligada;
};
const QList<Parte_Punto>& Partes()
{
    static const QList<Parte_Punto> partes = {
        {&Columnas_Punto::nombre, {"Punto"}, false},
        {&Columnas_Punto::x, {"Coordenada X"}, true},
        {&Columnas_Punto::y, {"Coordenada Y"}, true},
        {&Columnas_Punto::z, {"Coordenada Z", "Coordenada Z / Cota"}, true},
        {&Columnas_Punto::codigo, {"Código"}, false},
    };
    return partes;
}

// Bytes of a point in the longest mode, so that the drawing grows in one go.
constexpr qsizetype BYTES_POR_PUNTO = 620;

} // namespace

QString Nombre_Llano(const QString& nombre)
{
    QString llano;
    for (const QChar c : nombre.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing) llano += c.toLower();
    return llano.simplified();
}

QStringList Campos_De_Punto()
{
    QStringList campos;
    for (const Parte_Punto& parte : Partes())
        campos += parte.nombres;
    return campos;
}

Columnas_Punto Columnas_Punto::De(const QStringList& campos)
{
    QStringList llanos;
    for (const QString& campo : campos)
        llanos << Nombre_Llano(campo);
    Columnas_Punto columnas;
    for (const Parte_Punto& parte : Partes())
        for (const QString& nombre : parte.nombres) {
            const qsizetype c = llanos.indexOf(Nombre_Llano(nombre));
            if (c >= 0 && !(columnas.*parte.columna)) columnas.*parte.columna = std::size_t(c);
        }
    return columnas;
}

QString Columnas_Punto::Falta() const
{
    for (const Parte_Punto& parte : Partes())
        if (parte.obligada && !(this->*parte.columna)) return parte.nombres.first();
    return {};
}

qint64 Para_Cada_Punto(const Datos_Formateados& datos, Avance_Exportar& avance,
                       const std::function<void(const Punto_Medido&)>& hacer)
{
    const Columnas_Punto columnas = Columnas_Punto::De(datos.campos);
    if (const QString falta = columnas.Falta(); !falta.isEmpty())
        throw Error_Ejecucion(3265, "Falta el campo \"" + falta + '"');
    const auto celda = [&](std::optional<std::size_t> columna, std::size_t fila) {
        return columna ? datos.filas[*columna].Celda(fila) : QString();
    };
    const std::size_t total = datos.Numero_De_Filas();
    Marcador marcador(avance, qint64(total));
    qint64 omitidos = 0;
    for (std::size_t fila = 0; fila < total; ++fila) {
        const QString nombre = celda(columnas.nombre, fila), codigo = celda(columnas.codigo, fila);
        Punto_Medido punto{nombre, 0, 0, 0, codigo};
        bool bien = true;
        const auto leer = [&](std::optional<std::size_t> columna) {
            const auto numero = Basico::Numero_O_Nada(celda(columna, fila));
            bien = bien && numero.has_value();
            return numero.value_or(0);
        };
        punto.x = leer(columnas.x);
        punto.y = leer(columnas.y);
        punto.z = leer(columnas.z);
        if (bien)
            hacer(punto);
        else
            ++omitidos;
        marcador.Paso();
    }
    marcador.Terminar();
    return omitidos;
}

Dibujo_DXF Dibujar_Tabla(const Datos_Formateados& datos, Modo_DXF modo, const Ajustes_DXF& ajustes,
                         Avance_Exportar& avance)
{
    Dibujo_DXF dibujo;
    dibujo.bytes.reserve(qsizetype(datos.Numero_De_Filas()) * BYTES_POR_PUNTO + 100);
    Abrir_DXF(dibujo.bytes);
    const Dibujante_DXF dibujante(ajustes, modo);
    dibujo.omitidos = Para_Cada_Punto(datos, avance, [&](const Punto_Medido& p) {
        dibujante.Punto(dibujo.bytes, p.nombre, p.x, p.y, p.z, p.codigo);
    });
    Cerrar_DXF(dibujo.bytes);
    return dibujo;
}
