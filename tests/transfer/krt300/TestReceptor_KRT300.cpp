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
    void lo_rescatable_es_lo_aceptado();
    void cuenta_las_no_repetidas_data();
    void cuenta_las_no_repetidas();
    void eot_dentro_de_una_trama_la_deja_abierta();

private:
    void Dar(const QByteArray& bytes);
    static QByteArray Trama(const QByteArray& datos, char secuencia = '0');
    static QByteArray Rota(QByteArray trama, qsizetype lugar);

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

void TestReceptor_KRT300::lo_rescatable_es_lo_aceptado()
{
    QCOMPARE(receptor->Rescatable(), QString());
    Dar(Trama("_A1_A2") + "\x02_A3");
    QCOMPARE(receptor->Rescatable(), QString("_A1_A2"));
    QCOMPARE(receptor->Faltas().abiertas, 1);
    QVERIFY(receptor->Faltas().sin_acabar);
}

// The same frame with one character of its data or its checksum changed.
QByteArray TestReceptor_KRT300::Rota(QByteArray trama, qsizetype lugar)
{
    trama[lugar] = static_cast<char>(trama[lugar] ^ 1);
    return trama;
}

void TestReceptor_KRT300::cuenta_las_no_repetidas_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("rechazadas");
    const QByteArray a = Trama("_A0001", '0'), b = Trama("_B7732", '1'), c = Trama("_C1958", '2'),
                     d = Trama("_D4414", '3');
    const QByteArray b_dato = Rota(b, 3), b_suma = Rota(b, b.size() - 2), b_cifra = Rota(b, 7);
    QTest::newRow("ninguna") << a + b + c << 0;
    QTest::newRow("repetida, dato") << a + b_dato + b + c << 0;
    QTest::newRow("repetida, suma") << a + b_suma + b + c << 0;
    QTest::newRow("repetida, cifra") << a + b_cifra + b + c << 0;
    QTest::newRow("repetida a la tercera") << a + b_dato + b_suma + b_dato + b + c << 0;
    QTest::newRow("no repetida") << a + b_dato + c + d << 1;
    QTest::newRow("no repetida, cifra rota como la debida") << a + Rota(c, 7) + d << 1;
    QTest::newRow("tres veces mala y se sigue") << a + b_dato + b_suma + b_dato + c << 1;
    QTest::newRow("dos seguidas") << a + b_dato + Rota(c, 4) + d << 2;
    QTest::newRow("la segunda se repite") << a + b_dato + Rota(c, 4) + c + d << 1;
    QTest::newRow("al final") << a + b_dato << 1;
    QTest::newRow("al final, tres veces") << a + b_dato + b_dato + b_dato << 1;
    QTest::newRow("la primera, repetida") << Rota(a, 3) + a << 0;
    QTest::newRow("la primera, repetida, dos roturas")
        << Rota(Rota(a, 3), a.size() - 2) + a + b << 0;
    QTest::newRow("la primera, no repetida") << Rota(a, 3) + b + c << 1;
    QTest::newRow("cifras que no cuentan, repetida")
        << Trama("_A0001") + Rota(Trama("_A0002"), 4) + Trama("_A0002") << 0;
    QTest::newRow("cifras que no cuentan, no repetida")
        << Trama("_A0001") + Rota(Trama("_A0002"), 4) + Trama("_A0003") << 1;
    QTest::newRow("cifras que no cuentan, la primera")
        << Rota(Trama("_A0001"), 3) + Trama("_A0002") << 1;
    QTest::newRow("fin de trama perdido") << a + b.chopped(1) + b + b + c << 0;
    QByteArray vuelta;
    for (char n = 0; n < 25; ++n)
        vuelta += Rota(Trama("_A00", static_cast<char>('0' + n % 10)), 2) +
                  Trama("_A00", static_cast<char>('0' + n % 10));
    QTest::newRow("las cifras dan la vuelta") << vuelta << 0;
    QTest::newRow("ruido corto") << a + "\x02\x03" + b << 0;
}

void TestReceptor_KRT300::cuenta_las_no_repetidas()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, rechazadas);
    Dar(bytes + '\x04');
    QCOMPARE(receptor->Faltas().rechazadas, rechazadas);
    QCOMPARE(receptor->Faltas().abiertas, 0);
    QVERIFY(!receptor->Faltas().sin_acabar);
}

void TestReceptor_KRT300::eot_dentro_de_una_trama_la_deja_abierta()
{
    Dar(Trama("_A0001") + "\x02_A0\x04");
    QCOMPARE(receptor->Faltas().abiertas, 1);
    QVERIFY(!receptor->Faltas().Ninguna());
}

PRUEBA(TestReceptor_KRT300)
#include "TestReceptor_KRT300.moc"
