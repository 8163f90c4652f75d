#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/enlace/Diario_Recepcion.h"
#include "transfer/enlace/Rescate.h"

#include <QSignalSpy>

// The journal of received bytes.
class TestDiario_Recepcion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_bytes_estan_en_el_disco_en_menos_de_un_segundo();
    void guardada_se_borra();
    void sin_guardar_se_queda();
    void solo_marcas_de_fin_no_dejan_fichero();
    void dos_en_el_mismo_segundo_no_se_pisan();
    void empezar_otra_conserva_la_anterior();
    void sin_carpeta_se_crea();
    void si_no_se_puede_escribir_se_reintenta();
    void lo_entregado_esta_en_el_fichero();
    void sin_pausa_tambien_se_entrega();
    void terminar_dice_si_algo_se_queda_en_memoria();
    void sin_impedimento_no_deja_nada();
    void el_nombre_dice_familia_y_operacion();

private:
    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    const QDateTime momento{QDate(2026, 3, 7), QTime(9, 5, 1)};
};

static QByteArray Leer(const QString& fichero)
{
    QFile f(fichero);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<no file>");
}

static void Anotar(Diario_Recepcion& d, const QByteArray& bytes)
{
    for (const char c : bytes)
        d.Anotar_Byte(c);
}

void TestDiario_Recepcion::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) "
                        "VALUES ('KRT300', 0, 'A', '', 'M')");
}

void TestDiario_Recepcion::cleanup()
{
    interfaz.reset();
    base.reset();
}

void TestDiario_Recepcion::los_bytes_estan_en_el_disco_en_menos_de_un_segundo()
{
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    QVERIFY(Rescates().isEmpty());
    Anotar(d, "\x02"
              "abc");
    QTRY_COMPARE_WITH_TIMEOUT(Leer(d.Fichero()),
                              QByteArray("\x02"
                                         "abc"),
                              1000);
    Anotar(d, "def");
    QTRY_COMPARE_WITH_TIMEOUT(Leer(d.Fichero()),
                              QByteArray("\x02"
                                         "abcdef"),
                              1000);
}

void TestDiario_Recepcion::guardada_se_borra()
{
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "abc");
    QVERIFY(d.Al_Disco());
    QCOMPARE(Rescates().size(), 1);
    d.Terminar(true);
    QVERIFY(Rescates().isEmpty());
}

void TestDiario_Recepcion::sin_guardar_se_queda()
{
    {
        Diario_Recepcion d;
        d.Empezar("KRT300", 0, momento);
        Anotar(d, "abc");
    }
    QCOMPARE(Rescates().size(), 1);
    QCOMPARE(Leer(Rescates()[0].fichero), QByteArray("abc"));
}

void TestDiario_Recepcion::solo_marcas_de_fin_no_dejan_fichero()
{
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "\x04");
    QVERIFY(d.Al_Disco());
    d.Terminar(false);
    QVERIFY(Rescates().isEmpty());
}

void TestDiario_Recepcion::dos_en_el_mismo_segundo_no_se_pisan()
{
    Diario_Recepcion a, b;
    a.Empezar("KRT300", 0, momento);
    b.Empezar("KRT300", 0, momento);
    Anotar(a, "uno");
    Anotar(b, "dos");
    QVERIFY(a.Al_Disco() && b.Al_Disco());
    QVERIFY(a.Fichero() != b.Fichero());
    QCOMPARE(Leer(a.Fichero()), QByteArray("uno"));
    QCOMPARE(Leer(b.Fichero()), QByteArray("dos"));
    QCOMPARE(Rescates().size(), 2);
    QCOMPARE(Rescates()[1].operacion, 0);
}

void TestDiario_Recepcion::empezar_otra_conserva_la_anterior()
{
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "uno");
    d.Empezar("KRT300", 1, momento);
    Anotar(d, "dos");
    d.Terminar(true);
    QCOMPARE(Rescates().size(), 1);
    QCOMPARE(Leer(Rescates()[0].fichero), QByteArray("uno"));
}

void TestDiario_Recepcion::sin_carpeta_se_crea()
{
    QDir(En_Instalacion("LOG")).removeRecursively();
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "uno");
    QVERIFY(d.Al_Disco());
    QCOMPARE(Rescates().size(), 1);
}

void TestDiario_Recepcion::si_no_se_puede_escribir_se_reintenta()
{
    // A file where the folder should be refuses every journal, also to the superuser.
    QDir(En_Instalacion("LOG")).removeRecursively();
    QFile estorbo(En_Instalacion("LOG"));
    QVERIFY(estorbo.open(QIODevice::WriteOnly));
    estorbo.close();
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "uno");
    QVERIFY(!d.Al_Disco());
    Anotar(d, "dos");
    QVERIFY(estorbo.remove());
    QTRY_COMPARE_WITH_TIMEOUT(Leer(d.Fichero()), QByteArray("unodos"), 2000);
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestDiario_Recepcion::lo_entregado_esta_en_el_fichero()
{
    Diario_Recepcion d;
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "abc");
    QVERIFY(d.Entregar());
    QCOMPARE(Leer(d.Fichero()), QByteArray("abc"));
    // A long run without a pause doesn't wait for the loop.
    Anotar(d, QByteArray(5000, 'x'));
    QVERIFY(Leer(d.Fichero()).size() > 4000);
}

void TestDiario_Recepcion::sin_pausa_tambien_se_entrega()
{
    Diario_Recepcion d;
    d.Empezar("KRT800", 0, momento);
    Anotar(d, "abc");
    QCoreApplication::processEvents();
    QCOMPARE(Leer(d.Fichero()), QByteArray("abc"));
}

void TestDiario_Recepcion::terminar_dice_si_algo_se_queda_en_memoria()
{
    QDir(En_Instalacion("LOG")).removeRecursively();
    base->Escribir("LOG", "stands in the way");
    Diario_Recepcion d;
    QSignalSpy cambiado(&d, &Diario_Recepcion::fallo_cambiado);
    QVERIFY(!Diario_Recepcion::Impedimento().isEmpty());
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "uno");
    QVERIFY(!d.Entregar());
    QCOMPARE(cambiado.size(), 1);
    QVERIFY(!d.Fallo().isEmpty());
    QVERIFY(!d.Terminar(false));
    QCOMPARE(d.Conservado(), QString());
    QVERIFY(QDir().mkpath(base->Ruta("otra")));
    const QString f = d.Guardar_En(base->Ruta("otra"));
    QCOMPARE(f, base->Ruta("otra/recepcion_20260307_090501_KRT300_0.dia"));
    QCOMPARE(d.Conservado(), f);
    QCOMPARE(Leer(f), QByteArray("uno"));
    // Stored whole, nothing is missed.
    d.Empezar("KRT300", 0, momento);
    Anotar(d, "dos");
    QVERIFY(d.Terminar(true));
    QCOMPARE(d.Conservado(), QString());
}

void TestDiario_Recepcion::sin_impedimento_no_deja_nada()
{
    QCOMPARE(Diario_Recepcion::Impedimento(), QString());
    QCOMPARE(QDir(En_Instalacion("LOG")).entryList(QDir::Files), QStringList());
}

void TestDiario_Recepcion::el_nombre_dice_familia_y_operacion()
{
    Diario_Recepcion d;
    d.Empezar("NV400", 11, momento);
    Anotar(d, "x");
    QVERIFY(d.Al_Disco());
    QVERIFY(d.Fichero().endsWith("/recepcion_20260307_090501_NV400_11.dia"));
    const Rescate r = Rescates()[0];
    QCOMPARE(r.maquina, QString("NV400"));
    QCOMPARE(r.operacion, 11);
    QCOMPARE(r.momento, momento);
    QCOMPARE(r.bytes, 1);
}

PRUEBA(TestDiario_Recepcion)
#include "TestDiario_Recepcion.moc"
