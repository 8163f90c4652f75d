#include "tests/apoyo/Prueba.h"
#include "tests/transfer/Banco_Recepcion.h"
#include "transfer/nv400/Almacen_NV400.h"

// How the jobs of a level become sessions.
class TestAlmacen_NV400 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Recepcion>(); }
    void cleanup() { banco.reset(); }
    void dos_trabajos_dos_sesiones();
    void sin_cierre_una_sesion();
    void el_cierre_al_final_avisa();
    void nombre_de_trabajo_data();
    void nombre_de_trabajo();

private:
    std::unique_ptr<Banco_Recepcion> banco;
};

void TestAlmacen_NV400::dos_trabajos_dos_sesiones()
{
    const Resultado_Recepcion r = banco->Procesar(
        "NV400", 0, "a,012UNO,x,\r\ng,1,\r\nt,9,\r\na,012DOS,x,\r\nh,2,\r\nt,9,\r\nu,1,\r\n");
    QCOMPARE(r.sesiones, (QStringList{"1", "2"}));
    Conjunto_Registros s = Base_Datos->OpenRecordset("SELECT * FROM Sesiones ORDER BY ID");
    QCOMPARE(s.Texto("NFichero"), QString("UNO"));
    QCOMPARE(s.Entero("NPuntos"), 4);
    s.MoveNext();
    QCOMPARE(s.Texto("NFichero"), QString("DOS"));
    QCOMPARE(banco->Filas(),
             (QStringList{"1/1/ /a,012UNO,x,/ ", "1/2/ /g,1,/ ", "1/3/ /t,9,/ ",
                          "2/1/ /a,012DOS,x,/ ", "2/2/ /h,2,/ ", "2/3/ /t,9,/ ", "3/1/ /u,1,/ "}));
    QVERIFY(Base_Datos->OpenRecordset("Registros_Temp").Es_EOF());
    QVERIFY(banco->interfaz.avisos.isEmpty());
}

void TestAlmacen_NV400::sin_cierre_una_sesion()
{
    const Resultado_Recepcion r = banco->Procesar("NV400", 0, "a,012UNO,x,\r\ng,1,\r\n");
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(banco->Filas().size(), 2);
    QCOMPARE(banco->Puntos(), 3);
}

void TestAlmacen_NV400::el_cierre_al_final_avisa()
{
    const Resultado_Recepcion r = banco->Procesar("NV400", 0, "a,012UNO,x,\r\nt,9,\r\n");
    QVERIFY(!r.completa);
    QCOMPARE(banco->interfaz.avisos.size(), 1);
    QVERIFY(banco->interfaz.avisos[0].texto.startsWith(
        "Se produjo un error al guardar los datos de Medición\r(3021) "));
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
    QCOMPARE(Base_Datos->OpenRecordset("Registros_Temp").RecordCount(), 2);
}

void TestAlmacen_NV400::nombre_de_trabajo_data()
{
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("nombre");
    QTest::newRow("desde el sexto") << "a,012OBRA1,x,"
                                    << "OBRA1";
    QTest::newRow("sin coma") << "a,012OBRA1"
                              << "";
    QTest::newRow("vacio") << "a,012,x,"
                           << "";
    QTest::newRow("corta") << "a"
                           << "";
}

void TestAlmacen_NV400::nombre_de_trabajo()
{
    QFETCH(QString, linea);
    QFETCH(QString, nombre);
    QCOMPARE(Nombre_Trabajo(linea), nombre);
}

PRUEBA(TestAlmacen_NV400)
#include "TestAlmacen_NV400.moc"
