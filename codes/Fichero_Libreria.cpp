#include "codes/Fichero_Libreria.h"

#include "codes/Codigos.h"
#include "core/Ansi.h"
#include "core/Configuracion.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/Posicion.h"

#include <QFileInfo>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");
constexpr int FALTAS_VISIBLES = 10;

// A file that an editor saved as Unicode is told as such: its lines would look like rubbish.
QString Motivo_De_Bytes(const QByteArray& bytes)
{
    if (bytes.contains('\0'))
        return QStringLiteral("no es texto del aparato (guárdelo como texto ANSI)");
    return {};
}

// The lines of a file, whatever ends them; a byte order mark of UTF-8 isn't text.
QStringList Lineas_De(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF")) bytes.remove(0, 3);
    QString texto = Ansi::A_Texto(bytes);
    texto.replace(FIN_LINEA, QStringLiteral("\n")).replace(u'\r', u'\n');
    return texto.split(u'\n');
}

// A line that is quoted to the user, without what a box can't show.
QString Citada(const QString& linea)
{
    constexpr int LARGO = 40;
    QString cita = linea.left(LARGO);
    for (QChar& c : cita)
        if (!c.isPrint()) c = u'?';
    return linea.size() > LARGO ? cita + QStringLiteral("...") : cita;
}

QString Nota(qsizetype linea, const QString& motivo)
{
    return QStringLiteral("Línea %1: %2").arg(QString::number(linea), motivo);
}

// Takes one line that isn't blank into what was read.
void Leer_Linea(const Serie_Librerias& serie, const QString& linea, qsizetype numero,
                const QList<Entidad>& entidades, Lectura_Libreria& lectura)
{
    QString motivo;
    auto codigo = serie.leer_linea(linea, motivo);
    if (codigo && serie.maximo > 0 && codigo->codigo.size() > serie.largo_codigo) {
        const QString corto = Basico::RTrim(codigo->codigo.left(serie.largo_codigo));
        lectura.avisos << Nota(
            numero,
            QStringLiteral("el código '%1' queda en '%2'").arg(Citada(codigo->codigo), corto));
        codigo->codigo = corto;
    }
    if (codigo) motivo = Motivo_De_Codigo(serie, *codigo, entidades);
    if (motivo.isEmpty())
        lectura.codigos.append(*codigo);
    else
        lectura.faltas << Nota(numero, QStringLiteral("'%1' ").arg(Citada(linea)) + motivo);
}

QString Lista_Corta(QStringList lineas)
{
    if (lineas.size() > FALTAS_VISIBLES) {
        const qsizetype resto = lineas.size() - FALTAS_VISIBLES;
        lineas.resize(FALTAS_VISIBLES);
        lineas << QStringLiteral("... y %1 más").arg(resto);
    }
    return lineas.join(FIN_LINEA);
}

bool Es_Del_Programa(const QString& fichero)
{
    const QFileInfo destino(fichero);
    for (const QString& propio :
         {Fichero_MDB, En_Instalacion("MDB/esttotal.bak"), En_Instalacion("DAT/Database.mdb"),
          En_Instalacion("EstTotal.ini"), Fichero_Posicion()})
        if (const QFileInfo otro(propio);
            destino.absoluteFilePath() == otro.absoluteFilePath() ||
            (destino.exists() && destino.canonicalFilePath() == otro.canonicalFilePath()))
            return true;
    return false;
}

} // namespace

Lectura_Libreria Leer_Fichero_Libreria(Base& bd, const Serie_Librerias& serie,
                                       const QString& fichero)
{
    Lectura_Libreria lectura;
    const QByteArray bytes = Ficheros::Leer(fichero);
    if (const QString motivo = Motivo_De_Bytes(bytes); !motivo.isEmpty()) {
        lectura.faltas << Nota(1, motivo);
        return lectura;
    }
    const QList<Entidad> entidades = Leer_Entidades(bd);
    const QStringList lineas = Lineas_De(bytes);
    for (qsizetype i = 0; i < lineas.size(); ++i)
        if (!lineas[i].trimmed().isEmpty()) Leer_Linea(serie, lineas[i], i + 1, entidades, lectura);
    while (!lectura.codigos.isEmpty() && lectura.codigos.last().codigo.isEmpty())
        lectura.codigos.removeLast();
    if (serie.maximo > 0 && lectura.codigos.size() > serie.maximo)
        lectura.faltas << QStringLiteral("Hay %1 códigos y el aparato sólo guarda %2")
                              .arg(lectura.codigos.size())
                              .arg(serie.maximo);
    return lectura;
}

std::optional<Lista_De_Codigos> Abrir_Fichero_Libreria(const Serie_Librerias& serie,
                                                       const QString& fichero)
{
    Interfaz& interfaz = Interfaz_Actual();
    if (!FileExist(fichero)) {
        interfaz.Mensaje("El Fichero especificado no existe", Icono::Exclamacion);
        return std::nullopt;
    }
    Lectura_Libreria lectura;
    try {
        lectura = Leer_Fichero_Libreria(*Base_Datos, serie, fichero);
    } catch (...) {
        Informe_Error("Se produjo un error al leer el fichero", Error_En_Curso());
        return std::nullopt;
    }
    if (!lectura.faltas.isEmpty()) {
        interfaz.Mensaje("El fichero no contiene una librería de códigos de la serie " +
                             serie.letra + ':' + FIN_LINEA + Lista_Corta(lectura.faltas),
                         Icono::Critico);
        return std::nullopt;
    }
    if (lectura.codigos.isEmpty()) {
        interfaz.Mensaje("El fichero no contiene códigos", Icono::Exclamacion);
        return std::nullopt;
    }
    if (!lectura.avisos.isEmpty())
        interfaz.Mensaje("El aparato sólo admite códigos de " +
                             QString::number(serie.largo_codigo) + " caracteres:" + FIN_LINEA +
                             Lista_Corta(lectura.avisos),
                         Icono::Informacion);
    return lectura.codigos;
}

QStringList Lineas_Libreria(const Serie_Librerias& serie, const Lista_De_Codigos& codigos)
{
    QStringList lineas;
    for (const Codigo_Libreria& c : codigos)
        lineas << serie.linea(int(lineas.size()) + 1, c);
    return lineas;
}

void Escribir_Lineas(const QString& fichero, const QStringList& lineas)
{
    if (Es_Del_Programa(fichero))
        throw Error_Ejecucion(75, "El fichero " + fichero + " es del propio programa");
    QByteArray bytes;
    for (const QString& linea : lineas)
        Ansi::Agregar_Bytes(bytes, linea + FIN_LINEA);
    Ficheros::Escribir(fichero, bytes);
}

bool Permiso_Para_Escribir(const QString& fichero)
{
    return !QFileInfo::exists(fichero) ||
           Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                       Icono::Exclamacion);
}

bool Exportar_Libreria(const Serie_Librerias& serie, const Lista_De_Codigos& codigos,
                       const QString& fichero)
{
    if (!Permiso_Para_Escribir(fichero)) return false;
    try {
        Escribir_Lineas(fichero, Lineas_Libreria(serie, codigos));
        return true;
    } catch (...) {
        Informe_Error("Se produjo un error al escribir el fichero", Error_En_Curso());
        return false;
    }
}

bool Importar_Libreria(const Serie_Librerias& serie, const QString& libreria,
                       const QString& descripcion, const QString& fichero)
{
    if (Basico::Trim(libreria).isEmpty() || Basico::Trim(descripcion).isEmpty()) {
        Interfaz_Actual().Mensaje(Basico::Trim(libreria).isEmpty() ? serie.sin_codigo
                                                                   : serie.sin_descripcion,
                                  Icono::Exclamacion);
        return false;
    }
    const auto codigos = Abrir_Fichero_Libreria(serie, fichero);
    if (!codigos) return false;
    try {
        if (!Buscar_Libreria(*Base_Datos, serie, libreria)) {
            Crear_Libreria(*Base_Datos, serie, libreria, descripcion, *codigos);
            return true;
        }
        return Interfaz_Actual().Preguntar("La librería '" + libreria +
                                           "' ya existe, ¿ Desea reemplazarla ?") &&
               Guardar_Codigos(*Base_Datos, serie, libreria, *codigos, descripcion);
    } catch (...) {
        Informe_Error("Se produjo un error al guardar la librería", Error_En_Curso());
        return false;
    }
}
