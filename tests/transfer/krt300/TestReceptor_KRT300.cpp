#include "core/Ansi.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/krt300/Receptor_KRT300.h"

// The receiver of a KRT300 or PX7, byte by byte.
class TestReceptor_KRT300 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void una_trama_buena_se_guarda_y_se_acepta();
    void el_relleno_y_la_secuencia_no_se_guardan();
    void una_suma_mala_se_rechaza_con_si();
    void una_trama_corta_se_rechaza_data();
    void una_trama_corta_se_rechaza();
    void eot_termina_tambien_dentro_de_una_trama();
    void dos_stx_seguidos_data();
    void dos_stx_seguidos();
    void lo_que_hay_entre_tramas_se_ignora();
    void un_byte_alto_entra_en_la_suma();
    void ningun_byte_cambiado_se_acepta();
    void cortada_en_cualquier_punto_no_se_guarda();
    void lo_rescatable_es_lo_entero();

private:
    void Dar(const QByteArray& bytes);
    static QByteArray Trama(const QByteArray& datos, char secuencia = '0');

    std::unique_ptr<Receptor_KRT300> receptor;
    QByteArray enviado;
    int finales = 0;
};

void TestReceptor_KRT300::init()
{
    receptor = std::make_unique<Receptor_KRT300>();
    enviado.clear();
    finales = 0;
}

void TestReceptor_KRT300::Dar(const QByteArray& bytes)
{
    for (const char c : bytes) {
        const Respuesta_Recepcion r = receptor->Recibir(c);
        enviado += r.envia;
        finales += r.fin;
    }
}

QByteArray TestReceptor_KRT300::Trama(const QByteArray& datos, char secuencia)
{
    const QByteArray interior = datos + secuencia;
    int suma = 0;
    for (const char c : interior)
        suma ^= static_cast<unsigned char>(c);
    return "\x02" + interior + QByteArray::number(suma).rightJustified(3, '0') + "\x03";
}

void TestReceptor_KRT300::una_trama_buena_se_guarda_y_se_acepta()
{
    Dar(Trama("_+P1_A0001") + Trama("_A0002", '1'));
    QCOMPARE(receptor->Buffer(), QString("_+P1_A0001_A0002"));
    QCOMPARE(enviado, QByteArray("\x06\x06"));
    QCOMPARE(finales, 0);
}

void TestReceptor_KRT300::el_relleno_y_la_secuencia_no_se_guardan()
{
    Dar(Trama("_A   ", '9'));
    QCOMPARE(receptor->Buffer(), QString("_A   "));
}

void TestReceptor_KRT300::una_suma_mala_se_rechaza_con_si()
{
    Dar("\x02_A00010999\x03");
    QCOMPARE(receptor->Buffer(), QString());
    QCOMPARE(enviado, QByteArray("\x0F"));
    Dar(Trama("_A0002"));
    QCOMPARE(receptor->Buffer(), QString("_A0002"));
    QCOMPARE(enviado, QByteArray("\x0F\x06"));
}

void TestReceptor_KRT300::una_trama_corta_se_rechaza_data()
{
    QTest::addColumn<QByteArray>("interior");
    QTest::newRow("vacia") << QByteArray();
    QTest::newRow("una") << QByteArray("0");
    QTest::newRow("tres ceros") << QByteArray("000"); // the check value of the empty text
    QTest::newRow("dos") << QByteArray("00");
}

void TestReceptor_KRT300::una_trama_corta_se_rechaza()
{
    QFETCH(QByteArray, interior);
    Dar("\x02" + interior + "\x03");
    QCOMPARE(enviado, QByteArray("\x0F"));
    QCOMPARE(receptor->Buffer(), QString());
    // The frame is over: the next one opens afresh.
    Dar(Trama("_A1"));
    QCOMPARE(receptor->Buffer(), QString("_A1"));
}

void TestReceptor_KRT300::eot_termina_tambien_dentro_de_una_trama()
{
    Dar(QByteArray("\x02_A00") + "\x04");
    QCOMPARE(finales, 1);
    QCOMPARE(enviado, QByteArray("\x06"));
    QCOMPARE(receptor->Buffer(), QString());
}

void TestReceptor_KRT300::dos_stx_seguidos_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("buffer");
    QTest::newRow("dentro es dato") << Trama("\x02_A1") << QString("\x02_A1");
    QTest::newRow("fuera abre") << QByteArray("xx") + Trama("_A1") << QString("_A1");
}

void TestReceptor_KRT300::dos_stx_seguidos()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, buffer);
    Dar(bytes);
    QCOMPARE(receptor->Buffer(), buffer);
}

void TestReceptor_KRT300::lo_que_hay_entre_tramas_se_ignora()
{
    Dar(Trama("_A1") + "\r\n\x03zz\x06" + Trama("_A2", '1') + "\r\n");
    QCOMPARE(receptor->Buffer(), QString("_A1_A2"));
    QCOMPARE(enviado, QByteArray("\x06\x06"));
}

void TestReceptor_KRT300::un_byte_alto_entra_en_la_suma()
{
    QByteArray todos;
    for (int b = 128; b < 256; ++b)
        todos += static_cast<char>(b);
    Dar(Trama(todos));
    QCOMPARE(enviado, QByteArray("\x06"));
    QCOMPARE(Ansi::A_Bytes(receptor->Buffer()), todos);
}

void TestReceptor_KRT300::ningun_byte_cambiado_se_acepta()
{
    const QByteArray buena = Trama("_A12345");
    for (int i = 1; i + 1 < buena.size(); ++i)
        for (int bits = 1; bits < 256; ++bits) {
            init();
            QByteArray rota = buena;
            rota[i] = static_cast<char>(rota[i] ^ bits);
            Dar(rota);
            QVERIFY2(receptor->Buffer() != u"_A12345",
                     qPrintable(QString("%1 %2").arg(i).arg(bits)));
            // The frame behind a broken one is taken.
            if (finales) continue;
            Dar(Trama("_B", '1'));
            QVERIFY(receptor->Buffer().endsWith(u"_B"));
        }
}

void TestReceptor_KRT300::cortada_en_cualquier_punto_no_se_guarda()
{
    const QByteArray buena = Trama("_A12345");
    for (int n = 0; n < buena.size(); ++n) {
        init();
        Dar(buena.left(n));
        QCOMPARE(receptor->Buffer(), QString());
        QCOMPARE(enviado, QByteArray());
        Dar(buena.mid(n));
        QCOMPARE(receptor->Buffer(), QString("_A12345"));
    }
}

void TestReceptor_KRT300::lo_rescatable_es_lo_entero()
{
    QCOMPARE(receptor->Rescatable(), QString());
    Dar(Trama("sin marca"));
    QCOMPARE(receptor->Rescatable(), QString());
    Dar(Trama("_A1_A2", '1') + "\x02_A3");
    QCOMPARE(receptor->Rescatable(), QString("sin marca_A1"));
    QCOMPARE(receptor->Buffer(), QString("sin marca_A1_A2"));
}

PRUEBA(TestReceptor_KRT300)
#include "TestReceptor_KRT300.moc"
