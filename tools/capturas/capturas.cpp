// Takes the pictures of the documentation: every dialog, with delivered data.
// Usage: capturas DIRECTORIO_INSTALADO CARPETA_SALIDA

#include "app/ventanas/Aplicacion.h"
#include "app/ventanas/Ventana_Convert.h"
#include "app/ventanas/Visor_Ayuda.h"
#include "codes/Peticiones_Codigos.h"
#include "codes/ui/Dialogos_Codigos.h"
#include "codes/ui/FrmCodigos.h"
#include "codes/ui/frmCodigos800.h"
#include "conversions/ui/Dialogos_Conversion.h"
#include "conversions/ui/frmConvEst.h"
#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "core/ui/About.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Estilo.h"
#include "core/ui/FrmAyuda.h"
#include "core/ui/FrmKRT.h"
#include "core/ui/frmPantalla.h"
#include "core/ui/FrmProc.h"
#include "core/ui/Frmutils.h"
#include "export/GuardarN.h"
#include "export/impresion/Dialogo_Imprimir.h"
#include "export/Peticiones_Exportar.h"
#include "export/ui/ExportDXF.h"
#include "export/ui/FrmExportar.h"
#include "formats/Formato_Existente.h"
#include "formats/Formato_Nuevo.h"
#include "formats/ModFormatos.h"
#include "formats/ui/Frmformatos.h"
#include "rawfiles/Peticiones_Rawfiles.h"
#include "session/Peticiones_Sesion.h"
#include "session/ui/FrmDatos.h"
#include "session/ui/frmDescargas.h"
#include "session/ui/FrmEditar.h"
#include "session/ui/FrmTxt.h"
#include "tools/capturas/Escenario.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/ui/FrmIni.h"
#include "transfer/ui/FrmSplash.h"
#include "transfer/ui/Frmsplash1.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

namespace {

template <typename T> T& De(const QObject& ventana, const char* nombre)
{
    T* const hijo = ventana.findChild<T*>(nombre);
    if (!hijo) qFatal("No child %s", nombre);
    return *hijo;
}

void Arranque(Escenario& e)
{
    auto& portada = Dialogos::Unico<frmPantalla>();
    portada.show();
    e.Retratar(portada, "frmPantalla");
    portada.Descargar();
    e.Retratar_Modal(
        "FrmKRT", [] { Dialogos::Unico<FrmKRT>().Mostrar_Modal(); },
        [](QWidget& w) { De<QListWidget>(w, "List1").setCurrentRow(1); });
    e.Retratar_Modal("About", [] { Dialogos::Unico<About>().Mostrar_Modal(); });
    e.Retratar_Modal("aviso", [] {
        Interfaz_Actual().Preguntar("Desea Eliminar la Descarga ?", Icono::Pregunta);
    });
}

void Ajustes_Y_Ayuda(Escenario& e)
{
    for (const int pestana : {0, 1})
        e.Retratar_Modal("Frmutils_" + QString::number(pestana + 1), [pestana] {
            auto& frm = Dialogos::Unico<Frmutils>();
            frm.Pestana(pestana);
            frm.Mostrar_Modal();
        });
    Paso_Ayuda = 1;
    e.Retratar_Modal("FrmAyuda", [] { Dialogos::Unico<FrmAyuda>().Cargar("D", "0"); });
    Visor_Ayuda visor;
    visor.Abrir(En_Instalacion("Ayuda/descarg.htm"));
    visor.show();
    e.Retratar(visor, "ayudaweb");
}

void Transferencias(Escenario& e)
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    De<QListWidget>(frm, "LVI").setCurrentRow(0);
    e.Retratar(*frm.Marco(), "FrmIni");
    frm.Descargar();
    const Peticiones_Transfer& pide = Peticiones_De_Transfer();
    e.Retratar_Modal("FrmRecuerde", [&] { pide.Mostrar_Recordatorio(); });
    e.Retratar_Modal(
        "FrmFic", [&] { pide.Pedir_Nombre_Sesion(); },
        [](QWidget& w) { De<QLineEdit>(w, "Txt").setText("Valle alto"); });
    auto& splash = Dialogos::Unico<FrmSplash>();
    splash.Mostrar();
    De<QLabel>(splash, "Label1").setText("Recibiendo datos ...");
    De<QPushButton>(splash, "BtnIniciar").setEnabled(false);
    De<QLabel>(splash, "Rayo").show();
    e.Retratar(*splash.Marco(), "FrmSplash");
    splash.Descargar();
    auto& envio = Dialogos::Unico<Frmsplash1>();
    envio.Mostrar();
    De<QLabel>(envio, "Label1").setText("Enviando Datos...");
    De<QLabel>(envio, "LblCuenta")
        .setText("Bloques enviados: 8 de 12; rechazos: 1; repeticiones: 1");
    De<QProgressBar>(envio, "ProgressBar1").setRange(0, 12);
    De<QProgressBar>(envio, "ProgressBar1").setValue(8);
    De<QPushButton>(envio, "BtnIniciar").setEnabled(false);
    De<QLabel>(envio, "Rayo").show();
    e.Retratar(*envio.Marco(), "Frmsplash1");
    envio.Descargar();
}

void Sesiones(Escenario& e)
{
    auto& frm = Dialogos::Unico<frmDescargas>();
    frm.Mostrar();
    e.Retratar(*frm.Marco(), "frmDescargas");
    frm.Marco()->setGeometry(60, 40, 888, 330);
    e.Retratar(e.Principal(), "principal");
    De<QTableView>(frm, "DBGrid1").selectRow(3);
    QPushButton& ver = De<QPushButton>(frm, "BtnVerdatos");
    e.Retratar_Modal(
        "FrmDatos", [&] { ver.click(); },
        [](QWidget& w) { De<QTableView>(w, "DBGrid1").selectRow(6); });
    e.Retratar_Modal("FrmEditar", [&] {
        QTimer::singleShot(0, [&] {
            auto& datos = Dialogos::Unico<FrmDatos>();
            De<QTableView>(datos, "DBGrid1").selectRow(6);
            datos.BtnOperaciones_Click();
            datos.Ocultar();
        });
        ver.click();
    });
    frm.Descargar();
}

void Pequenos(Escenario& e)
{
    const Peticiones_Sesion& pide = Peticiones_De_Sesion();
    e.Retratar_Modal("FrmSelSep", [&] { pide.Pedir_Separador(); });
    e.Retratar_Modal(
        "FrmOffset", [&] { pide.Pedir_Desplazamientos(true, true, false, "7,3"); },
        [](QWidget& w) { De<QLineEdit>(w, "TxtCx").setText("-456000"); });
    e.Retratar_Modal("FrmErrCoord", [&] {
        pide.Mostrar_Puntos_Malos("P101\00510456191.339\0054478320.433\005617.438\6"
                                  "P102\005456204.118\00544783331.02\005617.951");
    });
    e.Retratar_Modal("FrmProc", [] {
        const Proceso proceso("Procesando Datos... Por favor espere", 100);
        auto& frm = Dialogos::Unico<FrmProc>();
        De<QProgressBar>(frm, "PB1").setValue(620);
        QEventLoop trabajo;
        QTimer::singleShot(300, &trabajo, &QEventLoop::quit);
        trabajo.exec();
    });
}

void Formatos(Escenario& e)
{
    const auto sesion = Buscar_Sesion(*Base_Datos, 2);
    if (!sesion) qFatal("No session");
    e.Retratar_Modal(
        "FrmExistformato", [&] { Exporta_o_Imprime_Formato_Existente(sesion, "E"); },
        [](QWidget& w) {
            auto& combo = De<QComboBox>(w, "CbFormatos");
            combo.setCurrentIndex(0);
            Q_EMIT combo.activated(0);
        });
    e.Retratar_Modal(
        "FrmNuevoformato", [&] { Exporta_Formato_Nuevo(sesion); },
        [](QWidget& w) {
            De<QLineEdit>(w, "TxtDes").setText("Puntos con su código");
            De<QListWidget>(w, "List1").setCurrentRow(0);
            De<QPushButton>(w, "BtnAgregar").click();
            De<QPushButton>(w, "BtnAgregar").click();
        });
    auto& frm = Dialogos::Unico<Frmformatos>();
    frm.Mostrar();
    auto& combo = De<QComboBox>(frm, "DBCombo1");
    combo.setCurrentIndex(0);
    Q_EMIT combo.activated(0);
    e.Retratar(*frm.Marco(), "Frmformatos");
    frm.Descargar();
}

void Exportar(Escenario& e)
{
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"});
    Incluir_Cabeceras = true;
    e.Retratar_Modal("FrmExportar", [] {
        Peticiones_De_Formatos().Abrir_Exportar({2, "KRT300", 1, "NXYZCOD"});
    });
    const QString fichero = En_Instalacion("ficheros/linderos.txt");
    Avance_Exportar callado;
    Exportar_Sesion(2, "KRT300", 1, "TxF", "NXYZCOD", fichero, {" \6S"}, callado);
    auto& frm = Dialogos::Unico<FrmTxt>();
    frm.Ver(fichero, false);
    // The folder is this run's; the picture shows the name alone.
    frm.setWindowTitle("Fichero : linderos.txt");
    e.Retratar(*frm.Marco(), "FrmTxt");
    frm.Descargar();
}

void Dibujos(Escenario& e)
{
    const auto sesion = Buscar_Sesion(*Base_Datos, 2);
    if (!sesion) qFatal("No session");
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"});
    Trabajo_Exportar trabajo{2, "KRT300", 1, "NXYZCOD"};
    trabajo.fichero = En_Instalacion("ficheros/linderos.dxf");
    e.Retratar_Modal(
        "FrmDXF", [&] { Peticiones_De_Exportar().Abrir_DXF(trabajo); },
        [](QWidget& w) { De<QComboBox>(w, "CbFormato").setCurrentIndex(1); });
    auto& lista = Dialogos::Unico<ExportDXF>();
    lista.Mostrar();
    e.Retratar(*lista.Marco(), "ExportDXF");
    lista.Descargar();
    e.Retratar_Modal(
        "FrmImpFormato", [&] { Peticiones_De_Formatos().Abrir_Imprimir(trabajo); },
        [](QWidget& w) {
            De<QCheckBox>(w, "Check1").setChecked(true);
            De<QLineEdit>(w, "Text1").setText("Linderos del valle alto");
            De<QCheckBox>(w, "Check2").setChecked(true);
            De<QCheckBox>(w, "Check5").setChecked(true);
        });
    e.Retratar_Modal("FrmImpEdtCol", [] {
        Peticiones_De_Impresion().Editar_Columnas({"Punto", "Coordenada X", "Coordenada Y"});
    });
    e.Retratar_Modal("FrmImpDat", [] {
        Peticiones_De_Impresion().Pedir_Trabajo({"Presa", "Ana"});
    });
    e.Retratar_Modal("FrmPlano", [&] { Puertas_De_Descargas().Ver_Plano(*sesion); });
    Avance_Exportar callado;
    Transformar_DXF(Dibujo_De_Sesion(trabajo), Modo_DXF::Tres_D, {}, callado);
    Ventana_Convert visor;
    visor.show();
    visor.Abrir(trabajo.fichero);
    e.Retratar(visor, "Convert");
}

void Conversiones(Escenario& e)
{
    Mostrar_frmConvEst(1);
    auto* const frm = Dialogos::Cargado<frmConvEst>();
    e.Retratar(*frm->Marco(), "frmConvEst");
    frm->Descargar();
}

void Codigos(Escenario& e)
{
    Escenario::Modelo("KRT-310");
    Mostrar_Librerias();
    auto& serie_a = Dialogos::Unico<FrmCodigos>();
    De<QLineEdit>(serie_a, "TxtBuscar").setText("bor");
    Q_EMIT De<QLineEdit>(serie_a, "TxtBuscar").textEdited("bor");
    e.Retratar(*serie_a.Marco(), "FrmCodigos");
    e.Retratar_Modal(
        "FrmCREDLib1", [&] { De<QPushButton>(serie_a, "BtnNueLib").click(); },
        [](QWidget& w) {
            De<QLineEdit>(w, "Text1").setText("VALLE");
            De<QLineEdit>(w, "Text2").setText("Valle alto, camino y linderos");
        });
    serie_a.Descargar();
    e.Retratar_Modal(
        "FrmCodRecibir", [] { Peticiones_De_Codigos().Pedir_Destino(); },
        [](QWidget& w) {
            w.findChildren<QRadioButton*>("OptDes")[1]->click();
            De<QLineEdit>(w, "Text1").setText("ficheros/recibida.txt");
        });
    Escenario::Modelo("KRT-810");
    Mostrar_Librerias();
    auto& serie_b = Dialogos::Unico<frmCodigos800>();
    e.Retratar(*serie_b.Marco(), "frmCodigos800");
    e.Retratar_Modal("FrmCodMan800", [&] { De<QPushButton>(serie_b, "BtnEdiCod").click(); });
    e.Retratar_Modal("frmCodCrear800", [&] { De<QPushButton>(serie_b, "BtnEdi").click(); });
    serie_b.Descargar();
    Escenario::Modelo("KRT-310");
}

void Ficheros_Brutos(Escenario& e)
{
    const auto sesion = Buscar_Sesion(*Base_Datos, 2);
    if (!sesion) qFatal("No session");
    Puertas_Descargas& puertas = Puertas_De_Descargas();
    e.Retratar_Modal("FrmExpBruto", [&] { puertas.Exportar_En_Bruto(*sesion); });
    e.Retratar_Modal("FrmExpBrut", [&] { puertas.Exportar_A_Disco(*sesion); });
    e.Retratar_Modal(
        "FrmImpBru", [&] { puertas.Importar_Bruto(); },
        [](QWidget& w) {
            De<QLineEdit>(w, "Text1").setText("ficheros/campo_krt300.txt");
            De<QLineEdit>(w, "Text2").setText("Valle alto");
            De<QComboBox>(w, "CbTipo").setCurrentIndex(0);
        });
    e.Retratar_Modal(
        "Peticion", [] { Peticiones_De_Rawfiles().Pedir_Datos_IGN(); },
        [](QWidget& w) {
            De<QLineEdit>(w, "dato1").setText("NV-40217");
            De<QLineEdit>(w, "dato4").setText("Brigada 1");
        });
}

} // namespace

int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    Aplicar_Estilo(aplicacion);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 3) qFatal("usage: capturas DIRECTORIO_INSTALADO CARPETA_SALIDA");
    Escenario escenario(argumentos[1], argumentos[2]);
    Arranque(escenario);
    Ajustes_Y_Ayuda(escenario);
    Transferencias(escenario);
    Sesiones(escenario);
    Pequenos(escenario);
    Formatos(escenario);
    Exportar(escenario);
    Dibujos(escenario);
    Conversiones(escenario);
    Codigos(escenario);
    Ficheros_Brutos(escenario);
    return 0;
}
