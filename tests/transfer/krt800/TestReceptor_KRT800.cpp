#include "tests/apoyo/Prueba.h"
#include "transfer/krt800/Receptor_KRT800.h"

// The receiver of a KRT800, byte by byte.
class TestReceptor_KRT800 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void acumula_hasta_eot();
    void lo_que_queda_tras_el_ultimo_fin_data();
    void lo_que_queda_tras_el_ultimo_fin();

private:
    void Dar(const QByteArray& bytes);

    std::unique_ptr<Receptor_KRT800> receptor;
    QByteArray enviado;
    int finales = 0;
};

void TestReceptor_KRT800::init()
{
    receptor = std::make_unique<Receptor_KRT800>();
    enviado.clear();
    finales = 0;
}

void TestReceptor_KRT800::Dar(const QByteArray& bytes)
{
    for (const char c : bytes) {
        const Respuesta_Recepcion r = receptor->Recibir(c);
        enviado += r.envia;
        finales += r.fin;
    }
}

void TestReceptor_KRT800::acumula_hasta_eot()
{
    Dar("JOB A\r\nSTN 1\xF1\r\n");
    QCOMPARE(receptor->Buffer(), QString("JOB A\r\nSTN 1ñ\r\n"));
    QCOMPARE(finales, 0);
    Dar("\x04");
    QCOMPARE(finales, 1);
    QVERIFY(enviado.isEmpty());
}

void TestReceptor_KRT800::lo_que_queda_tras_el_ultimo_fin_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("sin_fin");
    QTest::addColumn<QString>("rescatable");
    QTest::addColumn<int>("sin_rescatar");
    QTest::newRow("entero") << QByteArray("a\r\nb\r\n\x04") << 0 << "a\r\nb\r\n" << 0;
    QTest::newRow("sin el último fin") << QByteArray("a\r\nbc\x04") << 2 << "a\r\nbc\r\n" << 0;
    QTest::newRow("sólo LF") << QByteArray("a\nb\n\x04") << 4 << "a\r\nb\r\n" << 0;
    QTest::newRow("sólo CR") << QByteArray("a\rb\r\x04") << 4 << "a\r\nb\r\n" << 0;
    QTest::newRow("blancos detrás") << QByteArray("a\r\n \x1A\x04") << 0 << "a\r\n \x1A\r\n" << 0;
    QTest::newRow("cortado") << QByteArray("a\r\nP2,1.5") << 6 << "a\r\n" << 6;
    QTest::newRow("cortado, LF") << QByteArray("a\nb\nP2,1.5") << 10 << "a\r\nb\r\n" << 6;
}

void TestReceptor_KRT800::lo_que_queda_tras_el_ultimo_fin()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, sin_fin);
    QFETCH(QString, rescatable);
    QFETCH(int, sin_rescatar);
    Dar(bytes);
    QCOMPARE(receptor->Faltas().sin_fin, sin_fin);
    QCOMPARE(receptor->Faltas().sin_acabar, !bytes.endsWith('\x04'));
    QCOMPARE(receptor->Rescatable(), rescatable);
    QCOMPARE(receptor->Faltas_De_Rescate().sin_fin, sin_rescatar);
}

PRUEBA(TestReceptor_KRT800)
#include "TestReceptor_KRT800.moc"
