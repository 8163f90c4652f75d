#include "codes/Recepcion_Libreria.h"

#include "codes/Codigos.h"
#include "codes/Fichero_Libreria.h"
#include "codes/Peticiones_Codigos.h"
#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "transfer/Peticiones_Transfer.h"

namespace {

const Serie_Librerias& Serie_Recibida()
{
    return Librerias_De(Serie::A);
}

/// A received record ":", number, code.
struct Registro_Codigo {
    QString numero, codigo;
};

std::optional<Registro_Codigo> Leer_Registro(const QString& registro)
{
    if (!registro.startsWith(u':')) return std::nullopt;
    const QString codigo = Basico::Mid(registro, 5);
    return Registro_Codigo{Basico::Mid(registro, 2, 3),
                           Basico::RTrim(codigo.mid(codigo.lastIndexOf(u'`') + 1))};
}

QString Aviso_De(const Registro_Codigo& registro, const QString& motivo)
{
    return QStringLiteral("El código nº%1 (%2) %3").arg(registro.numero, registro.codigo, motivo);
}

// The codes of a reception, in order.
QList<Registro_Codigo> Codigos_De(const QString& buffer, QStringList& avisos)
{
    QStringList registros = buffer.split(u'_');
    const auto ultimo = Leer_Registro(registros.takeLast());
    if (ultimo && !ultimo->codigo.isEmpty())
        avisos << Aviso_De(*ultimo, QStringLiteral("llegó detrás del último registro y no se ha "
                                                   "guardado"));
    // Text ahead of the first "_" is no record.
    if (!registros.isEmpty()) registros.removeFirst();
    QList<Registro_Codigo> codigos;
    for (const QString& registro : std::as_const(registros)) {
        const auto codigo = Leer_Registro(registro);
        if (!codigo) continue;
        codigos.append(*codigo);
        if (codigo->codigo.size() > LARGO_CODIGO)
            avisos << Aviso_De(*codigo, QStringLiteral("tiene más de %1 caracteres: hay que "
                                                       "acortarlo antes de enviarlo")
                                            .arg(LARGO_CODIGO));
    }
    return codigos;
}

} // namespace

Eleccion_Destino::Eleccion_Destino()
{
    Elegir(Destino::Base);
}

void Eleccion_Destino::Elegir(Destino nueva)
{
    opcion = nueva;
    hay_fichero = nueva == Destino::Fichero;
    rotulo = hay_fichero ? QStringLiteral("Fichero:") : QStringLiteral("Librería:");
    largo_maximo = hay_fichero ? 0 : Serie_Recibida().ancho_codigo;
    if (largo_maximo > 0) nombre.truncate(largo_maximo);
}

void Eleccion_Destino::Ubicar_Fichero()
{
    const auto fichero =
        Interfaz_Actual().Pedir_Fichero({.titulo = QStringLiteral("Ubicar Fichero"),
                                         .filtro = QString::fromUtf16(FILTRO_LIBRERIAS),
                                         .carpeta = En_Instalacion("ficheros"),
                                         .extension = QStringLiteral("txt"),
                                         .guardar = true});
    if (fichero && !fichero->nombre.isEmpty()) nombre = fichero->nombre;
}

bool Eleccion_Destino::Aceptar()
{
    Interfaz& interfaz = Interfaz_Actual();
    nombre = Basico::Trim(nombre);
    if (nombre.isEmpty()) {
        interfaz.Mensaje("Debe especificar un nombre de fichero", Icono::Exclamacion);
        return false;
    }
    if (opcion == Destino::Base && Buscar_Libreria(*Base_Datos, Serie_Recibida(), nombre)) {
        interfaz.Mensaje("La Librería de códigos ya existe en la Base de Datos",
                         Icono::Exclamacion);
        return false;
    }
    if (opcion == Destino::Fichero && !Permiso_Para_Escribir(nombre)) return false;
    elegido = {opcion, nombre};
    return true;
}

void Recibir_Libreria(int operacion)
{
    const Peticiones_Transfer& transfer = Peticiones_De_Transfer();
    transfer.Ocultar_FrmIni();
    const auto destino = Peticiones_De_Codigos().Pedir_Destino();
    if (!destino) return;
    if (Ayuda_Recuerde) transfer.Mostrar_Recordatorio();
    Paso_Ayuda = 1;
    if (Ayuda_Visible) transfer.Mostrar_Pasos("D", QString::number(operacion));
    Peticiones_De_Codigos().Recibir_En_FrmSplash(*destino);
}

Libreria_Guardada Guardar_Libreria(const QString& buffer, Destino destino, const QString& nombre)
{
    Libreria_Guardada hecho;
    const QList<Registro_Codigo> codigos = Codigos_De(buffer, hecho.avisos);
    try {
        if (destino == Destino::Base) {
            Lista_De_Codigos lista;
            for (const Registro_Codigo& c : codigos)
                lista.append({.codigo = c.codigo, .capa = {}});
            Crear_Libreria(*Base_Datos, Serie_Recibida(), nombre, "Librería '" + nombre + "'",
                           lista);
        } else if (destino == Destino::Fichero) {
            QStringList lineas;
            for (const Registro_Codigo& c : codigos)
                lineas << c.numero + c.codigo;
            Escribir_Lineas(nombre, lineas);
        }
        hecho.codigos = int(codigos.size());
    } catch (...) {
        hecho.error = Error_En_Curso();
    }
    return hecho;
}
