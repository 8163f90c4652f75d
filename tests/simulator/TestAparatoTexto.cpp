#include "simulator/Aparato_Texto.h"
#include "tests/apoyo/Prueba.h"
#include "tests/simulator/Sonda.h"

using namespace simulador;

class TestAparatoTexto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void envia_tras_el_retardo();
    void sin_abrir_no_envia();
    void fallos_data();
    void fallos();
    void un_byte_del_pc_lo_hace_carga();
    void la_carga_dura_hasta_el_eot();
    void dos_cargas_seguidas();

private:
    Aparato_Texto::Ajustes Tres() const
    {
        Aparato_Texto::Ajustes a;
        a.libreta = QList<QByteArray>{"JOB A", "STN E1,1.500", "SS 1,1.300"};
        a.retardo = 100;
        return a;
    }
};

void TestAparatoTexto::envia_tras_el_retardo()
{
    Sonda s;
    Aparato_Texto a(Tres(), s.Salida(), s.Nota());
    a.Abrir();
    a.Pasar(60);
    a.Pasar(39);
    QCOMPARE(s.Tomar(), QByteArray());
    a.Pasar(1);
    QCOMPARE(s.Tomar(), QByteArray("JOB A\r\nSTN E1,1.500\r\nSS 1,1.300\r\n\x04"));
    QVERIFY(a.Terminado());
    a.Pasar(1000);
    QCOMPARE(s.Tomar(), QByteArray());
    a.Abrir();
    QVERIFY(!a.Terminado());
    a.Pasar(100);
    QVERIFY(s.Tomar().endsWith('\x04'));
}

void TestAparatoTexto::sin_abrir_no_envia()
{
    Sonda s;
    Aparato_Texto a(Tres(), s.Salida(), s.Nota());
    a.Pasar(1000);
    QCOMPARE(s.Tomar(), QByteArray());
}

void TestAparatoTexto::fallos_data()
{
    QTest::addColumn<QString>("fallo");
    QTest::addColumn<QByteArray>("salida");
    QTest::addColumn<bool>("terminado");
    QTest::newRow("fin") << "fin:1" << QByteArray("JOB A\r\n\x04") << true;
    QTest::newRow("fin al principio") << "fin:0" << QByteArray("\x04") << true;
    QTest::newRow("eot") << "eot:2" << QByteArray("JOB A\r\nSTN E1\x04") << true;
    QTest::newRow("silencio") << "silencio:2" << QByteArray("JOB A\r\nSTN E1,1.500\r\n") << false;
    QTest::newRow("silencio total") << "silencio:0" << QByteArray() << false;
    QTest::newRow("ruido") << "ruido:2"
                           << QByteArray("JOB A\r\n\x7f~?\x01STN E1,1.500\r\nSS 1,1.300\r\n\x04")
                           << true;
}

void TestAparatoTexto::fallos()
{
    QFETCH(QString, fallo);
    QFETCH(QByteArray, salida);
    QFETCH(bool, terminado);
    Sonda s;
    Aparato_Texto::Ajustes ajustes = Tres();
    QCOMPARE(Leer_Fallo(fallo, ajustes.fallos), QString());
    Aparato_Texto a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    a.Pasar(100);
    QCOMPARE(s.Tomar(), salida);
    QCOMPARE(a.Terminado(), terminado);
}

void TestAparatoTexto::un_byte_del_pc_lo_hace_carga()
{
    Sonda s;
    Aparato_Texto a(Tres(), s.Salida(), s.Nota());
    a.Abrir();
    a.Pasar(50);
    a.Recibir('P');
    a.Pasar(1000);
    QCOMPARE(s.Tomar(), QByteArray());
}

void TestAparatoTexto::la_carga_dura_hasta_el_eot()
{
    Sonda s;
    Aparato_Texto a({}, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "P1,1.000,2.000,3.000,ARB\r\nP2,1,2,3,\r\n");
    QVERIFY(!a.Terminado());
    QCOMPARE(Dar(a, s, "\x04"), QByteArray());
    QVERIFY(a.Terminado());
    QCOMPARE(a.Registros_Recibidos(), (QList<QByteArray>{"P1,1.000,2.000,3.000,ARB", "P2,1,2,3,"}));
    QCOMPARE(a.Recibido(), QByteArray("P1,1.000,2.000,3.000,ARB\r\nP2,1,2,3,\r\n"));
}

void TestAparatoTexto::dos_cargas_seguidas()
{
    Sonda s;
    Aparato_Texto a({}, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s,
        "A\r\n\x04"
        "B\r\n\x04");
    QCOMPARE(a.Registros_Recibidos(), QList<QByteArray>{"B"});
}

PRUEBA(TestAparatoTexto)
#include "TestAparatoTexto.moc"
