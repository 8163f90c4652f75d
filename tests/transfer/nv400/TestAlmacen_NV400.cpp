#include "tests/apoyo/Prueba.h"
#include "tests/transfer/Banco_Recepcion.h"
#include "transfer/nv400/Almacen_NV400.h"

// How the jobs of a level become sessions.
class TestAlmacen_NV400 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Recepcion>(); }
    void cleanup() { banco.reset(); }
    void cada_trabajo_su_sesion();
    void sin_cierre_una_sesion();
    void el_cierre_al_final_acaba_bien();
    void lo_que_dejo_un_fallo_no_se_mezcla();
    void un_fallo_avisa_y_no_es_completo();
    void lo_que_no_cabe_se_corta_y_se_cuenta();
    void nombre_de_trabajo_data();
    void nombre_de_trabajo();

private:
    std::unique_ptr<Banco_Recepcion> banco;
};

// Each job its session, also the last one, which was not closed.
void TestAlmacen_NV400::cada_trabajo_su_sesion()
{
    const Resultado_Recepcion r =
        banco->Procesar("NV400", 0,
                        "a,012UNO,x,\r\ng,1,\r\nt,9,\r\na,012DOS,x,\r\nh,2,\r\nt,9,\r\n"
                        "a,012TRES,x,\r\nu,1,\r\n");
    QVERIFY(r.Completa());
    QCOMPARE(r.sesiones, (QStringList{"1", "2", "3"}));
    QCOMPARE(r.filas, 8);
    QCOMPARE(banco->base.Columna("SELECT NFichero FROM Sesiones ORDER BY ID"),
             (QStringList{"UNO", "DOS", "TRES"}));
    QCOMPARE(banco->base.Columna("SELECT NPuntos FROM Sesiones ORDER BY ID"),
             (QStringList{"4", "4", "3"}));
    QCOMPARE(banco->Filas(), (QStringList{"1/1/ /a,012UNO,x,/ ", "1/2/ /g,1,/ ", "1/3/ /t,9,/ ",
                                          "2/1/ /a,012DOS,x,/ ", "2/2/ /h,2,/ ", "2/3/ /t,9,/ ",
                                          "3/1/ /a,012TRES,x,/ ", "3/2/ /u,1,/ "}));
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

void TestAlmacen_NV400::el_cierre_al_final_acaba_bien()
{
    const Resultado_Recepcion r =
        banco->Procesar("NV400", 0, "a,012UNO,x,\r\nt,9,\r\na,012DOS,x,\r\nt,9,\r\n");
    QVERIFY(r.Completa());
    QCOMPARE(r.sesiones, (QStringList{"1", "2"}));
    QVERIFY(banco->interfaz.avisos.isEmpty());
    // The next one begins with nothing of it.
    QCOMPARE(banco->Procesar("NV400", 0, "a,012TRES,x,\r\ng,1,\r\n").sesiones, QStringList{"3"});
    QCOMPARE(banco->Filas().size(), 6);
}

void TestAlmacen_NV400::lo_que_dejo_un_fallo_no_se_mezcla()
{
    Base_Datos->Execute("INSERT INTO Registros_Temp (Secuencia, Datos) VALUES (1, 'a,012VIEJO,')");
    Base_Datos->Execute("INSERT INTO Registros_Temp (Secuencia, Datos) VALUES (2, 't,')");
    const Resultado_Recepcion r = banco->Procesar("NV400", 0, "a,012UNO,x,\r\ng,1,\r\n");
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(banco->Filas(), (QStringList{"1/1/ /a,012UNO,x,/ ", "1/2/ /g,1,/ "}));
}

void TestAlmacen_NV400::un_fallo_avisa_y_no_es_completo()
{
    Base_Datos->Execute("DROP TABLE Registros");
    const Resultado_Recepcion r = banco->Procesar("NV400", 0, "a,012UNO,x,\r\nt,9,\r\n");
    QVERIFY(!r.guardada && !r.Completa());
    QCOMPARE(r.faltas.sin_sesion, 2);
    QVERIFY(banco->interfaz.avisos[0].texto.startsWith(
        "Se produjo un error al guardar los datos de Medición\r("));
    QCOMPARE(banco->interfaz.avisos.size(), 2);
    QVERIFY(banco->interfaz.avisos[1].texto.startsWith("La base de datos está dañada:"));
}

void TestAlmacen_NV400::lo_que_no_cabe_se_corta_y_se_cuenta()
{
    const Resultado_Recepcion r = banco->Procesar(
        "NV400", 0, "a,012" + QString(60, 'n') + ",x,\r\ng," + QString(300, '1') + ",\r\nt,\r\n");
    QCOMPARE(r.faltas.cortadas, 2);
    QVERIFY(r.guardada);
    QCOMPARE(banco->base.Columna("SELECT NFichero FROM Sesiones"), QStringList{QString(50, 'n')});
    QCOMPARE(banco->base.Columna("SELECT Datos FROM Registros WHERE Secuencia = 2"),
             QStringList{"g," + QString(253, '1')});
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
