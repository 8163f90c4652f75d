#include "transfer/Series.h"

#include "tests/apoyo/Prueba.h"

// Every family has a series that receives and stores for it.
class TestSeries : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_familia_tiene_su_receptor_data();
    void cada_familia_tiene_su_receptor();
    void cada_una_el_suyo();
    void una_clave_de_nadie_no_tiene_serie();
};

void TestSeries::cada_familia_tiene_su_receptor_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QByteArray>("fin");
    QTest::addColumn<QByteArray>("respuesta");
    QTest::newRow("KRT300") << "KRT300" << QByteArray("\x04") << QByteArray("\x06");
    QTest::newRow("PX7") << "PX7" << QByteArray("\x04") << QByteArray("\x06");
    QTest::newRow("KRT800") << "KRT800" << QByteArray("\x04") << QByteArray();
    QTest::newRow("NV400") << "NV400" << QByteArray("Z,&,\r\n") << QByteArray("\x06,R,\r\n");
}

// What ends the data of one family ends it for no other.
void TestSeries::cada_familia_tiene_su_receptor()
{
    QFETCH(QString, clave);
    QFETCH(QByteArray, fin);
    QFETCH(QByteArray, respuesta);
    const Serie_En_Linea* const serie = Serie_De(Familia_De(clave));
    QVERIFY(serie);
    const std::unique_ptr<Receptor> receptor = serie->receptor();
    QByteArray enviado;
    for (qsizetype i = 0; i < fin.size(); ++i) {
        const Respuesta_Recepcion r = receptor->Recibir(fin[i]);
        enviado += r.envia;
        QCOMPARE(r.fin, i + 1 == fin.size());
    }
    QCOMPARE(enviado, respuesta);
}

// The state of a receiver is its own.
void TestSeries::cada_una_el_suyo()
{
    for (const Familia& familia : Familias()) {
        const Serie_En_Linea* const serie = Serie_De(familia);
        QVERIFY2(serie && serie->guardar, qPrintable(familia.clave));
        const auto uno = serie->receptor(), otro = serie->receptor();
        for (const char c : QByteArray("\x02_A10113\x03g,'\r\n"))
            uno->Recibir(c);
        QCOMPARE(otro->Buffer(), QString());
        QCOMPARE(otro->Rescatable(), QString());
    }
}

void TestSeries::una_clave_de_nadie_no_tiene_serie()
{
    QVERIFY(!Serie_De(Familia_De(u"OTRA")));
    QVERIFY(!Serie_De(Familia_De(u"")));
}

PRUEBA(TestSeries)
#include "TestSeries.moc"
