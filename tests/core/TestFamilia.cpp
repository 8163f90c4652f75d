#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Global.h"

class TestFamilia : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void una_fila_cada_familia_data();
    void una_fila_cada_familia();
    void una_clave_ajena_no_es_de_nadie_data();
    void una_clave_ajena_no_es_de_nadie();
    void la_actual_sigue_a_la_clave();
    void las_claves_en_su_orden();
    void la_once_es_la_uno_en_la_serie_a_data();
    void la_once_es_la_uno_en_la_serie_a();
    void que_operaciones_acaban_en_las_sesiones();
    void los_identificadores_fijos();
};

void TestFamilia::una_fila_cada_familia_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<int>("serie");
    QTest::addColumn<QByteArray>("arranque");
    QTest::addColumn<QByteArray>("sondeo");
    QTest::addColumn<bool>("punto");
    QTest::addColumn<bool>("fijo");
    QTest::addColumn<bool>("nombre");
    const QByteArray enq(1, 5);
    const QByteArray repita = QByteArray(1, 21) + ",!,\r\n";
    QTest::newRow("KRT300") << "KRT300" << int(Serie::A) << enq << enq << true << true << true;
    QTest::newRow("PX7") << "PX7" << int(Serie::A) << enq << enq << true << false << true;
    QTest::newRow("KRT800") << "KRT800" << int(Serie::B) << QByteArray() << QByteArray() << false
                            << false << true;
    QTest::newRow("NV400") << "NV400" << int(Serie::Nivel) << enq << repita << false << false
                           << false;
}

void TestFamilia::una_fila_cada_familia()
{
    QFETCH(QString, clave);
    const Familia& familia = Familia_De(clave);
    QCOMPARE(familia.clave, clave);
    QTEST(int(familia.serie), "serie");
    QTEST(familia.arranque, "arranque");
    QTEST(familia.sondeo, "sondeo");
    QTEST(familia.ofrece_punto, "punto");
    QTEST(familia.desplazamiento_fijo, "fijo");
    QTEST(familia.pide_nombre, "nombre");
}

void TestFamilia::una_clave_ajena_no_es_de_nadie_data()
{
    QTest::addColumn<QString>("clave");
    for (const char* clave : {"", "krt300", "KRT30", "KRT3000", "KRT300 ", "Otra"})
        QTest::newRow(clave) << QString(clave);
}

void TestFamilia::una_clave_ajena_no_es_de_nadie()
{
    QFETCH(QString, clave);
    const Familia& familia = Familia_De(clave);
    QCOMPARE(familia.serie, Serie::Ninguna);
    QVERIFY(familia.clave.isEmpty());
    QVERIFY(familia.arranque.isEmpty());
    QCOMPARE(familia.librerias, Serie::Ninguna);
    QCOMPARE(familia.carga, Carga::Ninguna);
}

void TestFamilia::la_actual_sigue_a_la_clave()
{
    const Sala_Global sala;
    QCOMPARE(Familia_Actual().serie, Serie::Ninguna);
    Clave_Estacion = "NV400";
    QCOMPARE(Familia_Actual().serie, Serie::Nivel);
}

void TestFamilia::las_claves_en_su_orden()
{
    QCOMPARE(Claves_Familias(), QStringList({"KRT300", "KRT800", "NV400", "PX7"}));
}

void TestFamilia::la_once_es_la_uno_en_la_serie_a_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<int>("operacion");
    QTest::addColumn<int>("viaja");
    QTest::newRow("KRT300, 11") << "KRT300" << 11 << 1;
    QTest::newRow("PX7, 11") << "PX7" << 11 << 1;
    QTest::newRow("KRT300, 1") << "KRT300" << 1 << 1;
    QTest::newRow("KRT300, 0") << "KRT300" << 0 << 0;
    QTest::newRow("KRT800, 11") << "KRT800" << 11 << 11;
    QTest::newRow("NV400, 11") << "NV400" << 11 << 11;
    QTest::newRow("ajena, 11") << "" << 11 << 11;
}

void TestFamilia::la_once_es_la_uno_en_la_serie_a()
{
    QFETCH(QString, clave);
    QFETCH(int, operacion);
    QTEST(Operacion_En_El_Enlace(Familia_De(clave), operacion), "viaja");
}

void TestFamilia::que_operaciones_acaban_en_las_sesiones()
{
    QList<int> muestran;
    for (int n = -1; n <= 20; ++n)
        if (Fila_De(Operacion(n)).muestra_sesiones) muestran << n;
    QCOMPARE(muestran, QList<int>({0, 1, 3, 4, 6, 7, 11}));
}

void TestFamilia::los_identificadores_fijos()
{
    QCOMPARE(Fila_De(Operacion::Puntos).id_fijo, QString("Punto"));
    QCOMPARE(Fila_De(Operacion::Perfiles).id_fijo, QString("Per.Trans"));
    for (int n : {0, 1, 2, 3, 5, 6, 8, 9, 10, 11, 12})
        QVERIFY(Fila_De(Operacion(n)).id_fijo.isEmpty());
}

PRUEBA(TestFamilia)
#include "TestFamilia.moc"
