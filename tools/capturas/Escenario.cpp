#include "tools/capturas/Escenario.h"

#include "core/Configuracion.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "core/ui/Ventana.h"
#include "transfer/Proceso_Recepcion.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QTimer>

namespace {

// The pictures show fixed days, so that a new set of them differs where the program does.
QDateTime El_Dia(int dia, int hora, int minuto)
{
    return QDateTime(QDate(2024, 5, dia), QTime(hora, minuto, 5));
}

// A dialog as the desktop shows it: a title bar in the program's own style, and a border.
QPixmap Con_Marco(QWidget& ventana)
{
    const QPixmap dentro = ventana.grab();
    QStyle* const estilo = QApplication::style();
    constexpr int BORDE = 4;
    const int alto_titulo = estilo->pixelMetric(QStyle::PM_TitleBarHeight) + 2;
    QPixmap marco(dentro.width() + 2 * BORDE, dentro.height() + alto_titulo + BORDE);
    marco.fill(ventana.palette().color(QPalette::Window));
    QPainter pintor(&marco);
    QStyleOptionTitleBar titulo;
    titulo.palette = ventana.palette();
    titulo.rect = QRect(0, 0, marco.width(), alto_titulo);
    titulo.text = ventana.windowTitle();
    titulo.icon = QApplication::windowIcon();
    titulo.titleBarState = Qt::WindowActive;
    titulo.titleBarFlags =
        Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    titulo.subControls =
        QStyle::SC_TitleBarLabel | QStyle::SC_TitleBarSysMenu | QStyle::SC_TitleBarCloseButton;
    titulo.state = QStyle::State_Active | QStyle::State_Enabled;
    QFont letra = ventana.font();
    letra.setBold(true);
    pintor.setFont(letra);
    estilo->drawComplexControl(QStyle::CC_TitleBar, &titulo, &pintor);
    pintor.drawPixmap(BORDE, alto_titulo, dentro);
    pintor.setPen(ventana.palette().color(QPalette::Dark));
    pintor.drawRect(marco.rect().adjusted(0, 0, -1, -1));
    return marco;
}

} // namespace

Escenario::Escenario(const QString& instalacion, const QString& donde) : salida(donde)
{
    Copiar(instalacion);
    Poner_Interfaz(&interfaz);
    Ruta_Aplicacion = carpeta.path();
    QApplication::setWindowIcon(QIcon(En_Instalacion("bmp/miraldos.png")));
    Conectar_Dialogos(interfaz);
    principal = std::make_unique<FrmMain>();
    Conectar_Entradas(*principal);
    if (!Cargar_Configuracion(Ruta_Aplicacion)) qFatal("The settings could not be read");
    principal->Poner_Fondo(En_Instalacion("bmp/logo800.bmp"));
    principal->show();
    Descargar_Libro("KRT-310", 0, "campo_krt300.txt", "Valle alto, estaciones", El_Dia(13, 18, 2));
    Descargar_Libro("KRT-310", 1, "campo_krt300_coordenadas.txt", "Valle alto, linderos",
                    El_Dia(13, 18, 10));
    Descargar_Libro("KRT-320", 0, "jornada_krt300.txt", "Camino del molino", El_Dia(14, 17, 38));
    Descargar_Libro("KRT-320", 1, "jornada_krt300_coordenadas.txt", "Replanteo, camino",
                    El_Dia(14, 17, 51));
    Modelo("KRT-310");
    Asentar();
}

Escenario::~Escenario()
{
    while (!Ventana::Cargadas().isEmpty())
        delete Ventana::Cargadas().constLast();
    principal.reset();
    Base_Datos.reset();
    Poner_Reloj(nullptr);
}

void Escenario::Copiar(const QString& instalacion) const
{
    const QDir de(instalacion);
    for (const char* const nombre : {"bmp", "bmphlp", "ficheros", "DAT", "Ayuda", "hlp"}) {
        QDirIterator it(de.filePath(nombre), QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString a = carpeta.filePath(de.relativeFilePath(it.next()));
            QDir().mkpath(QFileInfo(a).path());
            QFile::copy(it.filePath(), a);
        }
    }
    QFile::copy(de.filePath("EstTotal.ini"), carpeta.filePath("EstTotal.ini"));
    QDir().mkpath(carpeta.filePath("LOG"));
}

void Escenario::Modelo(const QString& nombre)
{
    Conjunto_Registros krt = Base_Datos->OpenRecordset("KRT");
    krt.Index("PrimaryKey");
    krt.Seek({nombre});
    if (krt.NoMatch()) qFatal("No model %s", qPrintable(nombre));
    Nombre_Estacion = nombre;
    Clave_Estacion = krt.Texto("Clave");
    Cargar_Estacion(nombre);
    Q_EMIT Sucesos::Unico().modelo_cambiado();
}

// A field book holds one record a line, and remarks.
void Escenario::Descargar_Libro(const QString& modelo, int operacion, const QString& libro,
                                const QString& nombre, const QDateTime& momento)
{
    auto nuevo = std::make_unique<Reloj_Rapido>(1, momento);
    Poner_Reloj(nuevo.get());
    reloj = std::move(nuevo);
    Modelo(modelo);
    QFile fichero(En_Instalacion("ficheros/" + libro));
    if (!fichero.open(QIODevice::ReadOnly)) qFatal("No field book %s", qPrintable(libro));
    QString buffer;
    const auto lineas = QString::fromUtf8(fichero.readAll()).split('\n');
    for (const QString& linea : lineas)
        if (!linea.trimmed().isEmpty() && !linea.startsWith('#')) buffer += '_' + linea.trimmed();
    const auto hecho =
        Procesar_Recepcion({buffer, nombre, operacion, 0, Clave_Estacion, Nombre_Estacion});
    if (!hecho.Completa()) qFatal("The field book %s was not stored", qPrintable(libro));
}

void Escenario::Asentar()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

void Escenario::Guardar(const QPixmap& imagen, const QString& nombre) const
{
    const QString fichero = QDir(salida).filePath(nombre + ".png");
    if (!imagen.save(fichero)) qFatal("Not written: %s", qPrintable(fichero));
}

void Escenario::Retratar(QWidget& widget, const QString& nombre) const
{
    Asentar();
    Guardar(widget.grab(), nombre);
}

void Escenario::Retratar_Modal(const QString& nombre, const std::function<void()>& abrir,
                               const std::function<void(QWidget&)>& preparar) const
{
    bool hecho = false;
    QTimer espera;
    QObject::connect(&espera, &QTimer::timeout, &espera, [&] {
        QWidget* const modal = QApplication::activeModalWidget();
        if (!modal || hecho) return;
        hecho = true;
        if (preparar) preparar(*modal);
        Asentar();
        Guardar(Con_Marco(*modal), nombre);
        modal->close();
    });
    espera.start(20);
    abrir();
    if (!hecho) qFatal("Not opened: %s", qPrintable(nombre));
}
