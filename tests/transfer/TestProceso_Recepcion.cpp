#include "core/Sucesos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/transfer/Banco_Recepcion.h"

#include <QSignalSpy>

// Which receptions are stored, and what the program hears of it.
class TestProceso_Recepcion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Recepcion>(); }
    void cleanup() { banco.reset(); }
    void otras_operaciones_no_hacen_nada();
    void lo_guardado_se_compacta_y_se_anuncia_data();
    void lo_guardado_se_compacta_y_se_anuncia();
    void sin_base_es_un_error();

private:
    std::unique_ptr<Banco_Recepcion> banco;
};

void TestProceso_Recepcion::otras_operaciones_no_hacen_nada()
{
    const Resultado_Recepcion r = banco->Procesar("KRT300", 5, "_A1");
    QVERIFY(r.sesiones.isEmpty());
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
    QVERIFY(banco->Procesar("OTRA", 0, "_A1").sesiones.isEmpty());
}

void TestProceso_Recepcion::lo_guardado_se_compacta_y_se_anuncia_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<int>("anuncios");
    QTest::newRow("KRT300") << "KRT300" << 0 << 1;
    QTest::newRow("PX7") << "PX7" << 1 << 1;
    QTest::newRow("KRT300 11") << "KRT300" << 11 << 1;
    QTest::newRow("KRT800") << "KRT800" << 9 << 1;
    QTest::newRow("NV400") << "NV400" << 0 << 1;
    QTest::newRow("KRT300, otra operación") << "KRT300" << 5 << 0;
    QTest::newRow("PX7, librería") << "PX7" << 2 << 0;
    QTest::newRow("otra familia") << "OTRA" << 0 << 0;
}

void TestProceso_Recepcion::lo_guardado_se_compacta_y_se_anuncia()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(int, anuncios);
    QSignalSpy cambiadas(&Sucesos::Unico(), &Sucesos::sesiones_cambiadas);
    QSignalSpy reabierta(&Sucesos::Unico(), &Sucesos::base_reabierta);
    Banco_Recepcion::Procesar(maquina, ope, "_+P1_A1\r\n");
    // A new session tells the lists too.
    QCOMPARE(cambiadas.isEmpty(), anuncios == 0);
    QCOMPARE(reabierta.size(), anuncios);
    // A session of one record of no kind has no points, which is told.
    for (const auto& aviso : banco->interfaz.avisos)
        QCOMPARE(aviso.texto, QString("El Fichero no contenía Puntos"));
}

void TestProceso_Recepcion::sin_base_es_un_error()
{
    const auto antes = Base_Datos;
    Base_Datos.reset();
    int numero = 0;
    try {
        Banco_Recepcion::Procesar("KRT300", 0, "_A1");
    } catch (const Error_Ejecucion& e) {
        numero = e.numero;
    }
    Base_Datos = antes;
    QCOMPARE(numero, 91);
}

PRUEBA(TestProceso_Recepcion)
#include "TestProceso_Recepcion.moc"
