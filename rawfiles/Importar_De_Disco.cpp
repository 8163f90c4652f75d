#include "rawfiles/Importar_De_Disco.h"

#include "core/Ficheros.h"
#include "rawfiles/Reconocer_Bruto.h"

#include <QFileInfo>

namespace {

// What a KRT300's dialog opens with: lines, and the third of its downloads.
constexpr int TIPO_KRT300 = 2;
constexpr int OPCION_LINEAS = 1;

} // namespace

Dialogo_Importar Abrir_Importar()
{
    Dialogo_Importar dialogo;
    dialogo.tipos =
        Llenar_Combo("SELECT KRT2.OPE, OPE.DESOPE FROM KRT2 LEFT JOIN OPE ON KRT2.OPE = OPE.OPE "
                     "WHERE Nombre = '" +
                         Clave_Estacion + "' AND TIPOPE='D'",
                     "DesOpe", "Ope");
    if (Familia_Actual().hd6_propio) {
        dialogo.opcion = OPCION_LINEAS;
        dialogo.tipo = TIPO_KRT300;
    }
    return dialogo;
}

std::optional<QString> Elegir_Bruto()
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero(
        {.titulo = QStringLiteral("Seleccione el Fichero a Importar"),
         .filtro = QStringLiteral("Todos los archivos (*.*)|*.*|Archivos de texto (*.txt)|*.txt")});
    if (!elegido) return std::nullopt;
    return elegido->nombre;
}

bool Confirmar_Aspecto(const QByteArray& bytes, Forma_Bruta forma, int ope)
{
    const std::optional<QString> duda = Duda_De_Importar(bytes, Familia_Actual(), forma, ope);
    return !duda || Interfaz_Actual().Preguntar(*duda);
}

Importacion Importar_Por_Familia(const QString& fichero, const QString& nombre, int ope,
                                 Forma_Bruta forma)
{
    switch (Familia_Actual().serie) {
    case Serie::A:
        return Importar_Bruto(fichero, nombre, ope, forma);
    case Serie::B:
        return Importar_KRT800(fichero, nombre, ope);
    case Serie::Nivel:
        return Importar_Nivel(fichero, nombre);
    case Serie::Ninguna:
        break;
    }
    return {};
}

std::optional<Importacion> Importar_De_Disco(const Dialogo_Importar& dialogo)
{
    if (dialogo.fichero.isEmpty()) {
        Interfaz_Actual().Mensaje(QStringLiteral("Debe especificar un nombre de fichero"),
                                  Icono::Exclamacion);
        return std::nullopt;
    }
    if (!FileExist(dialogo.fichero)) {
        Interfaz_Actual().Mensaje(QStringLiteral("El Fichero especificado no existe"),
                                  Icono::Exclamacion);
        return std::nullopt;
    }
    const int ope = int(Basico::Val(Trozo(dialogo.tipo + 1, dialogo.tipos.tag, QChar(SEP_LISTA))));
    const Forma_Bruta forma = dialogo.opcion == 0 ? Forma_Bruta::Maquina : Forma_Bruta::Lineas;
    try {
        if (!Confirmar_Aspecto(Ficheros::Leer(dialogo.fichero), forma, ope)) return std::nullopt;
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al importar el Fichero en Bruto"),
                      Error_En_Curso());
        return std::nullopt;
    }
    const QString nombre =
        dialogo.nombre.isEmpty() ? QFileInfo(dialogo.fichero).completeBaseName() : dialogo.nombre;
    return Importar_Por_Familia(dialogo.fichero, nombre, ope, forma);
}
