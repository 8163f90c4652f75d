#include "export/mdb/Escritor_MDB.h"

#include "core/Error_Ejecucion.h"
#include "export/Destino_Exportar.h"
#include "export/Filas_Marcadas.h"
#include "export/mdb/Base_Jet.h"
#include "export/Renglon.h"
#include "export/Trampa_Escritor.h"

namespace {

constexpr Aviso_De_Fallo SIN_NOMBRE[] = {
    {3055, u"Debe especificar un nombre de fichero válido", Icono::Exclamacion}};
constexpr Fallos_Escritor FALLOS = {u"Se produjo un error al Exportar los Datos a .MDB",
                                    SIN_NOMBRE};
const QString TABLA = QStringLiteral("Datos");

QList<Columna_Texto> Columnas(const Tarea_Exportar& tarea)
{
    QList<Columna_Texto> columnas;
    for (const QString& campo : tarea.datos.campos) {
        QString nombre = tarea.campos_con_marca ? Titulo_De(campo) : campo;
        // The engine refuses points in the names of columns.
        columnas << Columna_Texto{nombre.replace(u'.', u' ')};
    }
    return columnas;
}

void Escribir_Filas(const Tarea_Exportar& tarea, Base_Jet& base)
{
    const Filas_Exportar& filas = tarea.datos.filas;
    const std::size_t total = tarea.datos.Numero_De_Filas();
    Marcador marcador(tarea.origen.avance, qint64(total));
    std::vector<QString> textos(filas.size());
    std::vector<Celda_Jet> celdas(filas.size());
    for (std::size_t r = 0; r < total; ++r) {
        for (std::size_t c = 0; c < filas.size(); ++c) {
            textos[c] = filas[c].Celda(r);
            celdas[c] = QStringView(textos[c]);
        }
        if (Es_Fila_Marcada(*celdas.front())) celdas.front() = celdas.front()->sliced(1);
        base.Anadir_Fila(celdas);
        marcador.Paso();
    }
    marcador.Terminar();
}

// The rows before the one that was refused stay.
void Conservar(Base_Jet& base)
{
    try {
        base.Cerrar();
    } catch (const Error_Ejecucion&) {
        // The refusal itself is told; a disk that fails here as well has told it already.
    }
}

void Escribir(const Tarea_Exportar& tarea)
{
    const Destino_Exportar destino(tarea.fichero);
    Ajustes_Jet ajustes;
    ajustes.si_existe = Ajustes_Jet::REEMPLAZAR;
    Base_Jet base(destino.Ruta(), ajustes);
    base.Crear_Tabla(TABLA, Columnas(tarea));
    try {
        Escribir_Filas(tarea, base);
    } catch (...) {
        const Error_Ejecucion error = Error_En_Curso();
        Conservar(base);
        throw error;
    }
    base.Cerrar();
    destino.Terminar();
}

} // namespace

bool Escribir_MDB(const Tarea_Exportar& tarea)
{
    return Con_Trampa(FALLOS, [&] { Escribir(tarea); });
}
