#include "rawfiles/Exportar_Ter_Plt.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QFileInfo>

class TestExportar_Ter_Plt : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void la_libreta_entera_data();
    void la_libreta_entera();
    void cada_caso_data();
    void cada_caso();
    void el_grupo_sigue_el_orden_guardado();
    void otro_patron_copia_las_lineas();
    void una_sesion_vacia_no_hace_fichero();
    void una_comilla_lo_rompe_con_su_mensaje();
    void cien_mil_filas_de_una_pasada();

private:
    QByteArray Ter(const QStringList& lineas)
    {
        const auto s = banco->Guardar("KRT800", 7, lineas);
        return Exportar_Ter_Plt(s.id, banco->Ruta("salida"), "*.ter") ? banco->Leer("salida")
                                                                      : QByteArray("failed");
    }
    std::unique_ptr<Banco_Bruto> banco;
};

void TestExportar_Ter_Plt::la_libreta_entera_data()
{
    QTest::addColumn<QString>("libreta");
    QTest::newRow("perfiles") << "perfiles";
    QTest::newRow("con su cabecera") << "perfiles_cabecera";
}

void TestExportar_Ter_Plt::la_libreta_entera()
{
    QFETCH(QString, libreta);
    QCOMPARE(Ter(Banco_Bruto::Lineas(Banco_Bruto::Datos(libreta + ".txt"))),
             Banco_Bruto::Datos(libreta + ".ter"));
}

void TestExportar_Ter_Plt::cada_caso_data()
{
    QTest::addColumn<QStringList>("lineas");
    QTest::addColumn<QByteArray>("esperado");
    QTest::newRow("un perfil se ordena por desplazamiento")
        << QStringList{"20.000,3.5,600.1", "20.000,-3.5,600.2", "20.000,0,600.3"}
        << QByteArray("*TER\r\n       20,       3,  0  ,  0\r\n     -3.5,     600.2\r\n"
                      "        0,     600.3\r\n      3.5,     600.1\r\n");
    QTest::newRow("el pk 0 repite su cabecera")
        << QStringList{"0.0,1,5", "0,2,6"}
        << QByteArray("*TER\r\n        0,       1,  0  ,  0\r\n        1,         5\r\n"
                      "        0,       1,  0  ,  0\r\n        2,         6\r\n");
    QTest::newRow("el mismo pk escrito de otro modo no la repite")
        << QStringList{"10.0,1,5", "10,2,6"}
        << QByteArray("*TER\r\n       10,       1,  0  ,  0\r\n        1,         5\r\n"
                      "        2,         6\r\n");
    QTest::newRow("un pk que empieza como otro cae en su grupo")
        << QStringList{"10.0,1,5", "10.00,2,6"}
        << QByteArray("*TER\r\n       10,       2,  0  ,  0\r\n        2,         6\r\n"
                      "        1,         5\r\n");
    QTest::newRow("el segundo grupo se busca con la coma del primero")
        << QStringList{"5.0,1,7", "100.000,1,8", "100.5,2,9"}
        << QByteArray("*TER\r\n        5,       1,  0  ,  0\r\n        1,         7\r\n"
                      "      100,       2,  0  ,  0\r\n        1,         8\r\n");
    QTest::newRow("lo largo pierde lo de delante")
        << QStringList{"1234567890.5,12345678901,123456789012"}
        << QByteArray("*TER\r\n4567890.5,       1,  0  ,  0\r\n345678901,3456789012\r\n");
    QTest::newRow("cabecera propia: un solo grupo")
        << QStringList{"*TER", "0.0,2,3", "7.0,4,5"}
        << QByteArray(
               "        0,       3,  0  ,  0\r\n        0,          \r\n        2,         3\r\n");
    QTest::newRow("sin coma ninguna")
        << QStringList{"abc", "def"}
        << QByteArray("*TER\r\n        0,       2,  0  ,  0\r\n        0,          \r\n"
                      "        0,          \r\n");
    QTest::newRow("una coma sola") << QStringList{"7,3"}
                                   << QByteArray("*TER\r\n        7,       1,  0  ,  0\r\n"
                                                 "        3,          \r\n");
    QTest::newRow("pk con decimales y sin cero")
        << QStringList{".5,1,2"}
        << QByteArray("*TER\r\n      0.5,       1,  0  ,  0\r\n"
                      "        1,         2\r\n");
}

void TestExportar_Ter_Plt::cada_caso()
{
    QFETCH(QStringList, lineas);
    QFETCH(QByteArray, esperado);
    QCOMPARE(Ter(lineas), esperado);
}

// Rows of equal offset, and the group without an order, come as they are stored; the walk goes by
// the sequence.
void TestExportar_Ter_Plt::el_grupo_sigue_el_orden_guardado()
{
    const auto s = banco->Guardar("KRT800", 7, QStringList{"5,1,a", "5,1,b", "9,0,c"});
    Base_Datos->Execute("UPDATE Registros SET Secuencia = 10 - Secuencia WHERE ID = ?", {s.id});
    QVERIFY(Exportar_Ter_Plt(s.id, banco->Ruta("salida"), "*.ter"));
    QCOMPARE(
        banco->Leer("salida"),
        QByteArray(
            "*TER\r\n        9,       1,  0  ,  0\r\n        0,         c\r\n"
            "        5,       2,  0  ,  0\r\n        1,         a\r\n        1,         b\r\n"));
}

void TestExportar_Ter_Plt::otro_patron_copia_las_lineas()
{
    const auto s = banco->Guardar("KRT800", 7, QStringList{"5,1,a", "", "*TER"});
    QVERIFY(Exportar_Ter_Plt(s.id, banco->Ruta("salida"), "*.plt"));
    QCOMPARE(banco->Leer("salida"), QByteArray("5,1,a\r\n\r\n*TER\r\n"));
}

void TestExportar_Ter_Plt::una_sesion_vacia_no_hace_fichero()
{
    Ter({});
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida")));
}

void TestExportar_Ter_Plt::una_comilla_lo_rompe_con_su_mensaje()
{
    QCOMPARE(Ter({"5,1,a'"}), QByteArray("failed"));
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error en el proceso de exportación del Fichero\r(3075) "));
    QCOMPARE(banco->interfaz.cursor, 0);
    const auto s = banco->Guardar("KRT800", 7, QStringList{"5,1,a"});
    QVERIFY(!Exportar_Ter_Plt(s.id, banco->Ruta("no hay/x"), "*.plt"));
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error en el proceso de exportación del Fichero\r(76) "));
}

// One pass: a query a row would still be at it when the test's time is over.
void TestExportar_Ter_Plt::cien_mil_filas_de_una_pasada()
{
    QStringList lineas;
    for (int pk = 0; pk < 10000; ++pk)
        for (int d = 0; d < 10; ++d)
            lineas << QString("%1.000,%2,600.000").arg(1000 + pk).arg(9 - d);
    const auto s = banco->Guardar("KRT800", 7, lineas);
    QVERIFY(Exportar_Ter_Plt(s.id, banco->Ruta("salida"), "*.ter"));
    const QByteArray salida = banco->Leer("salida");
    QCOMPARE(salida.count('\n'), 110001);
    QVERIFY(salida.endsWith("    10999,      10,  0  ,  0\r\n" + [] {
        QByteArray fin;
        for (int d = 0; d < 10; ++d)
            fin += "        " + QByteArray::number(d) + ",   600.000\r\n";
        return fin;
    }()));
}

PRUEBA(TestExportar_Ter_Plt)
#include "TestExportar_Ter_Plt.moc"
