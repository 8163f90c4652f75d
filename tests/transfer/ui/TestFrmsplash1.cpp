#include "core/ModEstTotal.h"
#include "core/Reloj.h"
#include "core/Sumas.h"
#include "core/ui/Dialogos.h"
#include "session/ui/Dialogos_Sesion.h"
#include "session/ui/FrmErrCoord.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "tests/apoyo/Sala_Ventanas.h"
#include "transfer/Despacho.h"
#include "transfer/ui/Dialogos_Transfer.h"
#include "transfer/ui/FrmIni.h"
#include "transfer/ui/FrmSplash.h"
#include "transfer/ui/Frmsplash1.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>

// The sending dialog and the windows on its road, clicked and typed.
class TestFrmsplash1 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void unos_puntos_de_principio_a_fin();
    void los_puntos_malos_salen_en_su_arbol();
    void la_serie_b_deja_cerrar_a_medias();
    void cerrar_a_medias_pregunta();
    void los_rechazos_dejan_el_dialogo();
    void sin_puerto_no_queda_nada();
    void solo_con_el_teclado();
    void dos_veces_seguidas();
    void el_rayo_va_por_sus_sitios();

private:
    void Elegir(const QByteArray& fichero)
    {
        sala->Escribir("p.asc", fichero);
        sala->interfaz.ficheros.push_back(Fichero_Elegido{sala->Ruta("p.asc"), 1});
    }
    /// Runs a whole upload: the separator is the comma, then `en_dialogo` has the sending dialog.
    void Subir(int ope, const std::function<void(Frmsplash1&)>& en_dialogo);

    std::unique_ptr<Sala_Ventanas> sala;
    std::unique_ptr<Reloj_Rapido> reloj;
    QPointer<Puerto_Memoria> puerto;
    QByteArray enviado;
    int error_al_abrir = 0;
};

namespace {
const QByteArray APERTURA = "\2F00F000\3\r\n", CIERRE = "\2\4\3\r\n";
const QString LA_PREGUNTA = "La transferencia no ha terminado, ¿ Desea abandonarla ?";

/// A port whose output outlives it.
class Puerto_Escuchado : public Puerto_Memoria {
public:
    explicit Puerto_Escuchado(QByteArray& donde) : copia(donde) {}
    void Enviar(const QByteArray& bytes) override
    {
        Puerto_Memoria::Enviar(bytes);
        copia += bytes;
    }

private:
    QByteArray& copia;
};
} // namespace

void TestFrmsplash1::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    reloj = std::make_unique<Reloj_Rapido>(20);
    Poner_Reloj(reloj.get());
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT300-1";
    Puerto = "COM2";
    Velocidad = "1200";
    Bits_Datos = "8";
    Paridad = "None";
    Bits_Parada = "1";
    error_al_abrir = 0;
    enviado.clear();
    for (const QString maquina : {"KRT300", "KRT800"})
        for (const int ope : {1, 2, 4})
            sala->Fila("KRT2", {{"Nombre", maquina},
                                {"OPE", ope},
                                {"TipOpe", "C"},
                                {"DESOPE", "Carga"},
                                {"Conv", ""}});
    for (const int ope : {1, 2, 4})
        sala->Fila("OPE", {{"OPE", ope}, {"DESOPE", "Carga" + QString::number(ope)}});
    Conectar_Dialogos_Sesion();
    Conectar_Dialogos_Transfer();
    FrmSplash::Hacer_Puerto = [this] {
        auto nuevo = std::make_unique<Puerto_Escuchado>(enviado);
        nuevo->error_al_abrir = error_al_abrir;
        puerto = nuevo.get();
        return nuevo;
    };
}

void TestFrmsplash1::cleanup()
{
    sala.reset();
    Poner_Reloj(nullptr);
}

void TestFrmsplash1::Subir(int ope, const std::function<void(Frmsplash1&)>& en_dialogo)
{
    Al_Abrirse separador(
        [](QWidget& w) {
            Hijo<QComboBox>(w, "Combo1").setCurrentIndex(1);
            QTest::mouseClick(&Hijo<QPushButton>(w, "BtnAce"), Qt::LeftButton);
        },
        "FrmSelSep");
    Al_Abrirse dialogo([&](QWidget& w) { en_dialogo(static_cast<Frmsplash1&>(w)); }, "Frmsplash1");
    Lanzar_Operacion(Clave_Estacion, ope, "C");
    QCOMPARE(dialogo.veces, 1);
}

void TestFrmsplash1::unos_puntos_de_principio_a_fin()
{
    auto& ini = Dialogos::Unico<FrmIni>();
    ini.Mostrar();
    Elegir("P1,400.456,500.123,10.025,ARB\r\nP2,1234.567,-.5,0\r\nP3,1,2,3\r\n");
    QStringList cuentas;
    Subir(1, [&](Frmsplash1& frm) {
        QVERIFY(!ini.isVisible());
        auto& etiqueta = Hijo<QLabel>(frm, "Label1");
        auto& barra = Hijo<QProgressBar>(frm, "ProgressBar1");
        auto& boton = Hijo<QPushButton>(frm, "BtnIniciar");
        auto& casilla = Hijo<QCheckBox>(frm, "Check1");
        QCOMPARE(etiqueta.text(), QString("Pulse &Iniciar para comenzar la comunicación ..."));
        QCOMPARE(etiqueta.buddy(), &boton);
        QCOMPARE(casilla.text(), QString("Fichero Seguimiento"));
        QVERIFY(!casilla.isChecked());
        QVERIFY(Hijo<QLabel>(frm, "Rayo").isHidden());
        QVERIFY(!puerto->abierto);
        connect(&frm.El_Envio(), &Envio::cuenta_cambiada, this,
                [&](const QString& texto) { cuentas << texto; });
        QTest::mouseClick(&casilla, Qt::LeftButton);
        QTest::mouseClick(&boton, Qt::LeftButton);
        QVERIFY(puerto->abierto);
        QVERIFY(!boton.isEnabled() && !casilla.isEnabled());
        QCOMPARE(etiqueta.text(), QString("Inicio de Envío"));
        QCOMPARE(barra.maximum(), 2);
        QCOMPARE(barra.value(), 0);
        puerto->Llegan("\6\6");
        QCOMPARE(etiqueta.text(), QString("Enviando Datos..."));
        QCOMPARE(barra.value(), 1);
        QVERIFY(!Hijo<QLabel>(frm, "Rayo").isHidden());
        QCOMPARE(Hijo<QLabel>(frm, "LblCuenta").text(),
                 QString("Bloques enviados: 1 de 2; rechazos: 0; repeticiones: 0"));
        puerto->Llegan("\6\6");
    });
    QVERIFY(!Dialogos::Cargado<Frmsplash1>());
    QVERIFY(enviado.startsWith(APERTURA));
    QVERIFY(enviado.contains("\2_+P1        _ x+000500123_ y+000400456_ z+000010025_+P2"));
    QVERIFY(enviado.endsWith(CIERRE));
    QVERIFY(cuentas.last().contains("segundos: "));
    QCOMPARE(QDir(sala->Ruta("LOG")).entryList({"KRT300_*.LOG"}).size(), 1);
}

void TestFrmsplash1::los_puntos_malos_salen_en_su_arbol()
{
    Elegir("P1,1,2,3\r\nP2,10000000,2,3\r\n");
    Al_Abrirse separador(
        [](QWidget& w) {
            Hijo<QComboBox>(w, "Combo1").setCurrentIndex(1);
            QTest::mouseClick(&Hijo<QPushButton>(w, "BtnAce"), Qt::LeftButton);
        },
        "FrmSelSep");
    QString arbol;
    Al_Abrirse malos(
        [&](QWidget& w) {
            const QTreeWidgetItem* const raiz = Hijo<QTreeWidget>(w, "TV1").topLevelItem(0);
            arbol = raiz->text(0) + '|' + raiz->child(0)->text(0) + '|' +
                    raiz->child(0)->child(0)->text(0);
            QCOMPARE(raiz->childCount(), 1);
            QTest::mouseClick(&Hijo<QPushButton>(w, "BtnCer"), Qt::LeftButton);
        },
        "FrmErrCoord");
    Lanzar_Operacion("KRT300", 1, "C");
    QCOMPARE(malos.veces, 1);
    QCOMPARE(arbol, QString("Puntos/Coordenadas|P2|X: 10000000"));
    QVERIFY(!Dialogos::Cargado<Frmsplash1>());
    QVERIFY(enviado.isEmpty());
}

void TestFrmsplash1::la_serie_b_deja_cerrar_a_medias()
{
    Clave_Estacion = "KRT800";
    Elegir(QByteArray("P1,1,2,3,A\r\n").repeated(300));
    Poner_Reloj(nullptr); // its own pace: what follows happens in its midst
    sala->interfaz.respuestas = {false, true};
    QElapsedTimer desde;
    Subir(4, [&](Frmsplash1& frm) {
        QTimer::singleShot(300, &frm, [&frm, this] {
            QVERIFY(!enviado.isEmpty());
            QTest::keyClick(&frm, Qt::Key_Escape);
            QVERIFY(frm.isVisible());
            QTest::keyClick(&frm, Qt::Key_Escape);
        });
        desde.start();
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
    });
    QVERIFY(desde.elapsed() < 10000);
    QVERIFY(enviado.size() < 1000);
    QVERIFY(!Dialogos::Cargado<Frmsplash1>());
    QCOMPARE(sala->Tomar_Avisos(), QStringList(2, LA_PREGUNTA));
    QVERIFY(!Transferencia_En_Curso());
    Poner_Reloj(reloj.get());
}

void TestFrmsplash1::cerrar_a_medias_pregunta()
{
    Elegir("P1,1,2,3\r\n");
    sala->interfaz.respuestas = {false, true};
    Subir(1, [&](Frmsplash1& frm) {
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
        QTest::keyClick(&frm, Qt::Key_Escape);
        QVERIFY(frm.isVisible());
        QVERIFY(puerto->abierto);
        puerto->Llegan("\6");
        QVERIFY(frm.El_Envio().En_Marcha());
        frm.close();
        QVERIFY(!puerto->abierto);
    });
    QCOMPARE(sala->Tomar_Avisos(), QStringList(2, LA_PREGUNTA));
    QVERIFY(!Dialogos::Cargado<Frmsplash1>());
    QVERIFY(!Transferencia_En_Curso());
}

void TestFrmsplash1::los_rechazos_dejan_el_dialogo()
{
    Elegir("P1,1,2,3\r\n");
    Subir(1, [&](Frmsplash1& frm) {
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
        puerto->Llegan("\25\25\25\25\25\25");
        QVERIFY(frm.isVisible());
        QCOMPARE(Hijo<QLabel>(frm, "Label1").text(),
                 QString("El aparato rechaza la apertura; no se enviará nada más"));
        QVERIFY(Hijo<QLabel>(frm, "LblCuenta").text().contains("rechazos: 6; repeticiones: 5"));
        // Nothing is under way: it closes without a word.
        QTest::keyClick(&frm, Qt::Key_Escape);
    });
    QVERIFY(!Dialogos::Cargado<Frmsplash1>());
    QCOMPARE(enviado, APERTURA.repeated(6));
}

void TestFrmsplash1::sin_puerto_no_queda_nada()
{
    Elegir("P1,1,2,3\r\n");
    error_al_abrir = 8005;
    Subir(1, [&](Frmsplash1& frm) {
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
    });
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList("Se produjo un error al Abrir el Puerto; revise la configuración\r(8005) "
                         "El puerto ya está abierto"));
    QVERIFY(!Dialogos::Cargado<Frmsplash1>());
}

void TestFrmsplash1::solo_con_el_teclado()
{
    Elegir("001ARBOL\r\n");
    Subir(2, [&](Frmsplash1& frm) {
        QTest::keyClick(&Hijo<QCheckBox>(frm, "Check1"), Qt::Key_Space);
        QTest::keyClick(&frm, Qt::Key_Return);
        QVERIFY(enviado.startsWith("\2_:001ARBOL     "));
        puerto->Llegan("\6\6\6\6\6\6");
    });
    QVERIFY(enviado.endsWith(CIERRE));
    QCOMPARE(QDir(sala->Ruta("LOG")).entryList({"KRT300_*.LOG"}).size(), 1);
}

void TestFrmsplash1::dos_veces_seguidas()
{
    for (int vez = 0; vez < 2; ++vez) {
        enviado.clear();
        Elegir("001ARBOL\r\n");
        Subir(2, [&](Frmsplash1& frm) {
            QVERIFY(!Hijo<QCheckBox>(frm, "Check1").isChecked());
            QCOMPARE(Hijo<QProgressBar>(frm, "ProgressBar1").value(), 0);
            QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
            puerto->Llegan("\6\6\6\6\6\6");
        });
        QCOMPARE(enviado.size(), 6 * 136 + CIERRE.size());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void TestFrmsplash1::el_rayo_va_por_sus_sitios()
{
    Elegir("P1,1,2,3\r\n");
    sala->interfaz.respuestas = {true};
    Subir(1, [&](Frmsplash1& frm) {
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
        auto& rayo = Hijo<QLabel>(frm, "Rayo");
        QList<QPoint> sitios{rayo.mapTo(&frm, QPoint())};
        for (int i = 0; i < 7; ++i) {
            puerto->Llegan("x");
            sitios << rayo.mapTo(&frm, QPoint());
        }
        // One step to the byte, and round again.
        QCOMPARE(sitios, QList<QPoint>({{88, 48},
                                        {104, 50},
                                        {124, 54},
                                        {140, 60},
                                        {152, 64},
                                        {172, 68},
                                        {192, 71},
                                        {88, 48}}));
        frm.close();
    });
    QCOMPARE(sala->Tomar_Avisos(), QStringList{LA_PREGUNTA});
}

PRUEBA(TestFrmsplash1)
#include "TestFrmsplash1.moc"
