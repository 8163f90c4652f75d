#include "core/ModEstTotal.h"
#include "core/Sumas.h"
#include "core/ui/Dialogos.h"
#include "session/ui/frmDescargas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "tests/apoyo/Sala_Ventanas.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/ui/Dialogos_Transfer.h"
#include "transfer/ui/FrmSplash2.h"

#include <QLabel>
#include <QPushButton>

// The receiving dialog of the libraries.
class TestFrmSplash2 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void lo_que_llega_cuenta_sin_el_boton();
    void con_el_boton_llama();
    void al_cerrar_lo_dice();

private:
    static QByteArray Trama(QByteArray datos);
    FrmSplash2& Abrir();

    std::unique_ptr<Sala_Ventanas> sala;
    QPointer<Puerto_Memoria> puerto;
    QString recibido;
};

namespace {
const QString FIN = "Descarga Finalizada o Abortada";
}

void TestFrmSplash2::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Clave_Estacion = "KRT300";
    Puerto = "COM2";
    recibido.clear();
    Conectar_Dialogos_Transfer();
    Peticiones_De_Transfer().Guardar_Libreria = [this](const Datos_Recepcion& datos) {
        recibido = datos.nombre + QString::number(datos.destino) + datos.buffer.trimmed();
        Resultado_Recepcion r;
        r.completa = true;
        return r;
    };
    FrmSplash::Hacer_Puerto = [this] {
        auto nuevo = std::make_unique<Puerto_Memoria>();
        puerto = nuevo.get();
        return nuevo;
    };
}

void TestFrmSplash2::cleanup()
{
    sala.reset();
}

QByteArray TestFrmSplash2::Trama(QByteArray datos)
{
    datos += '0';
    return '\2' + datos + Suma_XOR(QString::fromLatin1(datos)).toLatin1() + '\3';
}

FrmSplash2& TestFrmSplash2::Abrir()
{
    const Peticiones_Transfer& pide = Peticiones_De_Transfer();
    Descarga* const descarga = pide.Dialogo_Recepcion();
    descarga->Abrir_Puerto();
    descarga->Preparar(2, "LIB", 1);
    pide.Mostrar_Recepcion();
    return Dialogos::Unico<FrmSplash2>();
}

void TestFrmSplash2::lo_que_llega_cuenta_sin_el_boton()
{
    FrmSplash2& frm = Abrir();
    QVERIFY(frm.isVisible());
    QCOMPARE(frm.objectName(), QString("FrmSplash2"));
    puerto->Llegan(Trama("_:001ARBOL     _"));
    QVERIFY(frm.La_Descarga().En_Marcha());
    QVERIFY(!Hijo<QPushButton>(frm, "BtnIniciar").isEnabled());
    QCOMPARE(puerto->Tomar(), QByteArray("\6"));
    puerto->Llegan("\4");
    QCOMPARE(recibido, QString("LIB1_:001ARBOL     _"));
    QTRY_VERIFY(!Dialogos::Cargado<FrmSplash2>());
    QCOMPARE(sala->Tomar_Avisos(), QStringList{FIN});
    // The sessions have nothing to show.
    QVERIFY(!Dialogos::Cargado<frmDescargas>());
}

void TestFrmSplash2::con_el_boton_llama()
{
    FrmSplash2& frm = Abrir();
    QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnIniciar"), Qt::LeftButton);
    QCOMPARE(puerto->Tomar(), QByteArray("\5"));
    sala->interfaz.respuestas = {true};
    QTest::keyClick(&frm, Qt::Key_Escape);
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList({"La transferencia no ha terminado, ¿ Desea abandonarla ?", FIN}));
    QVERIFY(!Dialogos::Cargado<FrmSplash2>());
}

void TestFrmSplash2::al_cerrar_lo_dice()
{
    FrmSplash2& frm = Abrir();
    frm.Descargar();
    QCOMPARE(sala->Tomar_Avisos(), QStringList{FIN});
    QVERIFY(recibido.isEmpty());
}

PRUEBA(TestFrmSplash2)
#include "TestFrmSplash2.moc"
