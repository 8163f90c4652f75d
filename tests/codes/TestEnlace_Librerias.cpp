#include "codes/Enlace_Librerias.h"
#include "core/Sumas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "tests/codes/Sala_Librerias.h"
#include "transfer/Despacho.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Envio.h"

// The libraries and the line between them.
class TestEnlace_Librerias : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void una_libreria_sale_sin_cabecera();
    void una_libreria_llega_a_la_base();
    void una_libreria_llega_a_un_fichero();
    void cancelar_el_destino_no_abre_nada();
    void lo_que_falta_se_dice_y_queda_el_diario();
    void lo_que_falla_se_dice_y_queda_el_diario();
    void otra_transferencia_en_marcha_manda();

private:
    static QByteArray Trama(QByteArray datos);
    QStringList Diarios() const
    {
        return QDir(sala->Ruta("LOG")).entryList({"*.dia"}, QDir::Files);
    }

    std::unique_ptr<Sala_Librerias> sala;
    std::unique_ptr<Descarga> descarga;
    std::unique_ptr<Envio> envio;
    Puerto_Memoria* puerto = nullptr;
    std::optional<Destino_Libreria> destino;
    int mostradas = 0;
};

void TestEnlace_Librerias::init()
{
    sala = std::make_unique<Sala_Librerias>();
    Puerto = "COM1";
    mostradas = 0;
    Conectar_Librerias();
    Peticiones_De_Codigos().Pedir_Destino = [this] { return destino; };
    Peticiones_Transfer& t = Peticiones_De_Transfer();
    t.Dialogo_Descarga = t.Dialogo_Recepcion = [this] {
        auto p = std::make_unique<Puerto_Memoria>();
        puerto = p.get();
        descarga = std::make_unique<Descarga>(std::move(p));
        return descarga.get();
    };
    t.Mostrar_Descarga = t.Mostrar_Recepcion = [this] { ++mostradas; };
    t.Dialogo_Envio = [this] {
        auto p = std::make_unique<Puerto_Memoria>();
        puerto = p.get();
        envio = std::make_unique<Envio>(std::move(p));
        return envio.get();
    };
    t.Mostrar_Envio = [this] { ++mostradas; };
}

void TestEnlace_Librerias::cleanup()
{
    descarga.reset();
    envio.reset();
    sala.reset();
}

QByteArray TestEnlace_Librerias::Trama(QByteArray datos)
{
    datos = datos.leftJustified(128) + '0';
    return '\2' + datos + Suma_XOR(QString::fromLatin1(datos)).toLatin1() + '\3';
}

void TestEnlace_Librerias::una_libreria_sale_sin_cabecera()
{
    Peticiones_De_Codigos().Enviar("_:001ARBOL     ");
    QCOMPARE(mostradas, 1);
    envio->BtnIniciar();
    QVERIFY(puerto->Tomar().startsWith("\2_:001ARBOL     "));
    puerto->Llegan("\6");
    QVERIFY(envio->Resultado().hecho);
}

void TestEnlace_Librerias::una_libreria_llega_a_la_base()
{
    destino = Destino_Libreria{Destino::Base, "NUEVA"};
    Lanzar_Operacion("KRT300", 2, "D");
    QCOMPARE(mostradas, 1);
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_:001PINO      _:002ROBLE     _:003          "));
    puerto->Llegan("\4");
    QCOMPARE(sala->Codigos(Serie::A, "NUEVA"), QStringList({"PINO", "ROBLE"}));
    QVERIFY(descarga->Resultado().completa);
    QCOMPARE(Diarios(), QStringList());
    // No session, and the database was not compacted.
    QCOMPARE(sala->Columna("SELECT ID FROM Sesiones"), QStringList());
    QVERIFY(!QFile::exists(sala->Ruta("MDB/esttotal.bak")));
    QVERIFY(sala->Tomar_Avisos().isEmpty());
}

void TestEnlace_Librerias::una_libreria_llega_a_un_fichero()
{
    Peticiones_De_Codigos().Recibir_En_FrmSplash2({Destino::Fichero, sala->Ruta("l.txt")});
    QCOMPARE(mostradas, 1);
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_:001PINO      _:007ROBLE     _"));
    puerto->Llegan("\4");
    QCOMPARE(sala->Leer("l.txt"), QByteArray("001PINO\r\n007ROBLE\r\n"));
    QVERIFY(sala->Codigos(Serie::A, "l.txt").isEmpty());
    QCOMPARE(Diarios(), QStringList());
}

void TestEnlace_Librerias::cancelar_el_destino_no_abre_nada()
{
    destino.reset();
    Lanzar_Operacion("KRT300", 2, "D");
    QCOMPARE(mostradas, 0);
    QVERIFY(!descarga);
}

void TestEnlace_Librerias::lo_que_falta_se_dice_y_queda_el_diario()
{
    destino = Destino_Libreria{Destino::Base, "NUEVA"};
    Lanzar_Operacion("KRT300", 2, "D");
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_:001PINO      _:002ROBLE"));
    puerto->Llegan("\4");
    QCOMPARE(sala->Codigos(Serie::A, "NUEVA"), QStringList{"PINO"});
    const QStringList avisos = sala->Tomar_Avisos();
    QCOMPARE(avisos.size(), 1);
    QVERIFY2(avisos[0].contains("nº002 (ROBLE)") && avisos[0].contains("se conserva"),
             qPrintable(avisos[0]));
    QCOMPARE(Diarios().size(), 1);
}

void TestEnlace_Librerias::lo_que_falla_se_dice_y_queda_el_diario()
{
    // The key was taken while the library came.
    destino = Destino_Libreria{Destino::Base, "GEN"};
    Lanzar_Operacion("KRT300", 2, "D");
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_:001PINO      _"));
    puerto->Llegan("\4");
    const QStringList avisos = sala->Tomar_Avisos();
    QCOMPARE(avisos.size(), 1);
    QVERIFY2(avisos[0].contains("(3022)"), qPrintable(avisos[0]));
    QCOMPARE(sala->Codigos(Serie::A, "GEN"), QStringList({"ARBOL", "CASA", "MURO"}));
    QCOMPARE(Diarios().size(), 1);
}

void TestEnlace_Librerias::otra_transferencia_en_marcha_manda()
{
    Peticiones_De_Codigos().Enviar("_:001ARBOL     ");
    envio->BtnIniciar();
    Peticiones_De_Codigos().Enviar("_:001OTRO      ");
    Peticiones_De_Codigos().Recibir_En_FrmSplash2({Destino::Base, "NUEVA"});
    Lanzar_Operacion("KRT300", 2, "D");
    QCOMPARE(sala->interfaz.pitidos, 3);
    QCOMPARE(mostradas, 1);
    QVERIFY(!descarga);
}

PRUEBA(TestEnlace_Librerias)
#include "TestEnlace_Librerias.moc"
