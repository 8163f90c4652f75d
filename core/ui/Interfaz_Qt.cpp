#include "core/ui/Interfaz_Qt.h"

#include "core/Error_Ejecucion.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmProc.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QProcess>

namespace {

const QString NOMBRE_PROGRAMA = QStringLiteral("Miraldos");

QWidget* Ventana_De_Delante()
{
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* const activa = QApplication::activeWindow()) return activa;
    return Ventana::Area() ? Ventana::Area()->window() : nullptr;
}

// A box asks in the midst of work: the hourglass makes way for the arrow while it stands.
class Cursor_De_Caja {
public:
    Cursor_De_Caja() : puesto(QApplication::overrideCursor())
    {
        if (puesto) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~Cursor_De_Caja()
    {
        if (puesto) QApplication::restoreOverrideCursor();
    }
    Cursor_De_Caja(const Cursor_De_Caja&) = delete;
    Cursor_De_Caja& operator=(const Cursor_De_Caja&) = delete;

private:
    bool puesto;
};

QMessageBox::Icon Dibujo(Icono icono)
{
    switch (icono) {
    case Icono::Critico:
        return QMessageBox::Critical;
    case Icono::Pregunta:
        return QMessageBox::Question;
    case Icono::Exclamacion:
        return QMessageBox::Warning;
    case Icono::Informacion:
        return QMessageBox::Information;
    case Icono::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

// Every box of the program is shown here.
int Mostrar_Caja(const QString& texto, Icono icono, const QString& titulo,
                 QMessageBox::StandardButtons botones)
{
    const Cursor_De_Caja cursor;
    QString lineas = texto;
    lineas.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    QMessageBox caja(Dibujo(icono), titulo.isEmpty() ? NOMBRE_PROGRAMA : titulo, lineas, botones,
                     Ventana_De_Delante());
    caja.setObjectName(QStringLiteral("Caja"));
    caja.setTextFormat(Qt::PlainText);
    caja.setWindowModality(Qt::ApplicationModal);
    return caja.exec();
}

// The name of another program as this platform has it.
QString Programa_Del_Sistema(const QString& programa)
{
    if (QFileInfo(programa).isFile()) return programa;
    const QString sufijo = QStringLiteral(".exe");
    const QString otro = programa.endsWith(sufijo, Qt::CaseInsensitive)
                             ? programa.chopped(sufijo.size())
                             : programa + sufijo;
    return QFileInfo(otro).isFile() ? otro : programa;
}

} // namespace

QStringList Filtros_De_Dialogo(const QString& filtro)
{
    QStringList filtros;
    const QStringList piezas = filtro.split(u'|');
    for (qsizetype i = 0; i + 1 < piezas.size(); i += 2) {
        QString patron = piezas[i + 1].trimmed();
        QString descripcion = piezas[i].trimmed();
        const QString entre_parentesis = u'(' + patron + u')';
        if (descripcion.endsWith(entre_parentesis)) descripcion.chop(entre_parentesis.size());
        patron.replace(u';', u' ').replace(QLatin1String("*.*"), QLatin1String("*"));
        filtros << descripcion.trimmed() + QStringLiteral(" (") + patron + u')';
    }
    if (filtros.isEmpty()) filtros << QStringLiteral(" (/)");
    return filtros;
}

Interfaz_Qt::Interfaz_Qt() = default;
Interfaz_Qt::~Interfaz_Qt() = default;

void Interfaz_Qt::Mensaje(const QString& texto, Icono icono, const QString& titulo)
{
    if (!terminada) Mostrar_Caja(texto, icono, titulo, QMessageBox::Ok);
}

bool Interfaz_Qt::Preguntar(const QString& texto, Icono icono, const QString& titulo)
{
    return !terminada && Mostrar_Caja(texto, icono, titulo, QMessageBox::Yes | QMessageBox::No) ==
                             QMessageBox::Yes;
}

std::optional<QString> Interfaz_Qt::Pedir_Texto(const QString& titulo, const QString& texto,
                                                const QString& inicial)
{
    if (terminada) return std::nullopt;
    const Cursor_De_Caja cursor;
    QInputDialog caja(Ventana_De_Delante());
    caja.setObjectName(QStringLiteral("CajaTexto"));
    caja.setWindowTitle(titulo.isEmpty() ? NOMBRE_PROGRAMA : titulo);
    caja.setLabelText(texto);
    caja.setTextValue(inicial);
    caja.setWindowModality(Qt::ApplicationModal);
    if (caja.exec() != QDialog::Accepted) return std::nullopt;
    return caja.textValue();
}

std::optional<Fichero_Elegido> Interfaz_Qt::Pedir_Fichero(const Peticion_Fichero& peticion)
{
    if (terminada) return std::nullopt;
    const Cursor_De_Caja cursor;
    QFileDialog caja(Ventana_De_Delante(), peticion.titulo);
    caja.setObjectName(QStringLiteral("CDLG"));
#ifndef Q_OS_WIN
    // The desktop's own dialog would speak the desktop's language.
    caja.setOption(QFileDialog::DontUseNativeDialog);
#endif
    caja.setOption(QFileDialog::DontConfirmOverwrite);
    caja.setWindowModality(Qt::ApplicationModal);
    caja.setFileMode(QFileDialog::AnyFile);
    caja.setAcceptMode(peticion.guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (peticion.titulo.isEmpty())
        caja.setWindowTitle(peticion.guardar ? QStringLiteral("Guardar como")
                                             : QStringLiteral("Abrir"));
    const QStringList filtros = Filtros_De_Dialogo(peticion.filtro);
    caja.setNameFilters(filtros);
    caja.selectNameFilter(filtros.value(peticion.indice_filtro - 1, filtros.first()));
    caja.setDefaultSuffix(peticion.extension);
    if (QFileInfo(peticion.carpeta).isDir())
        caja.setDirectory(peticion.carpeta);
    else if (QFileInfo(ultima_carpeta).isDir())
        caja.setDirectory(ultima_carpeta);
    if (caja.exec() != QDialog::Accepted || caja.selectedFiles().isEmpty()) return std::nullopt;
    Fichero_Elegido elegido;
    elegido.nombre = QDir::toNativeSeparators(caja.selectedFiles().constFirst());
    elegido.indice_filtro = qMax(1, int(filtros.indexOf(caja.selectedNameFilter())) + 1);
    ultima_carpeta = QFileInfo(elegido.nombre).absolutePath();
    return elegido;
}

void Interfaz_Qt::Pitar()
{
    QApplication::beep();
}

void Interfaz_Qt::Cursor_Ocupado(bool ocupado)
{
    if (ocupado)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void Interfaz_Qt::Proceso_Abrir(const QString& etiqueta, qint64 maximo)
{
    ++procesos;
    Dialogos::Unico<FrmProc>().Abrir(etiqueta, maximo);
}

void Interfaz_Qt::Proceso_Etiqueta(const QString& etiqueta, qint64 maximo)
{
    if (FrmProc* const frm = Dialogos::Cargado<FrmProc>()) frm->Etiqueta(etiqueta, maximo);
}

void Interfaz_Qt::Proceso_Avanzar(qint64 valor)
{
    if (FrmProc* const frm = Dialogos::Cargado<FrmProc>()) frm->Avanzar(valor);
}

void Interfaz_Qt::Proceso_Cerrar()
{
    if (--procesos > 0) return;
    procesos = 0;
    if (FrmProc* const frm = Dialogos::Cargado<FrmProc>()) {
        frm->Ocultar();
        frm->Descargar();
    }
}

void Interfaz_Qt::Repintar()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
}

void Interfaz_Qt::Dejar_Pasar()
{
    QCoreApplication::processEvents();
}

void Interfaz_Qt::Arrancar(const QString& programa, const QStringList& argumentos)
{
    const QString existente = Programa_Del_Sistema(programa);
    if (!QFileInfo(existente).isExecutable() || !QProcess::startDetached(existente, argumentos))
        throw Error_Ejecucion(53);
}

void Interfaz_Qt::Ver_Texto(const QString& fichero, bool fija)
{
    if (visor) visor(fichero, fija);
}

void Interfaz_Qt::Terminar(int estado)
{
    if (!terminada) estado_final = estado;
    terminada = true;
    Proceso_Cancelado = true;
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    for (QWidget* const ventana : ventanas)
        ventana->hide();
    QCoreApplication::exit(estado_final);
}
