#include "core/Ansi.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/nv400/Receptor_NV400.h"

// The receiver of the level, byte by byte.
class TestReceptor_NV400 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void clasifica_lineas_data();
    void clasifica_lineas();
    void contesta_y_acumula();
    void ningun_byte_cambiado_se_acepta();
    void un_lf_que_abre_no_cierra();
    void cuenta_las_no_repetidas_data();
    void cuenta_las_no_repetidas();
    void una_linea_abierta_cuenta();

private:
    void Dar(const QByteArray& bytes);
    static QByteArray Linea(const QByteArray& carga);

    std::unique_ptr<Receptor_NV400> receptor;
    QByteArray enviado;
    int finales = 0;
};

void TestReceptor_NV400::init()
{
    receptor = std::make_unique<Receptor_NV400>();
    enviado.clear();
    finales = 0;
}

void TestReceptor_NV400::Dar(const QByteArray& bytes)
{
    for (const char c : bytes) {
        const Respuesta_Recepcion r = receptor->Recibir(c);
        enviado += r.envia;
        finales += r.fin;
    }
}

QByteArray TestReceptor_NV400::Linea(const QByteArray& carga)
{
    int suma = 0;
    for (const char c : carga)
        suma += static_cast<unsigned char>(c);
    return carga + static_cast<char>((suma & 63) + 32) + ",\r\n";
}

void TestReceptor_NV400::clasifica_lineas_data()
{
    QTest::addColumn<QByteArray>("linea");
    QTest::addColumn<int>("clase");
    QTest::newRow("inicio") << QByteArray("A,01,Z,\r\n") << 1;
    QTest::newRow("fin") << QByteArray("Z,&,\r\n") << 3;
    QTest::newRow("datos") << Linea("g,1,2,") << 2;
    QTest::newRow("suma mala") << QByteArray("g,1,2,#,\r\n") << 0;
    QTest::newRow("solo CR LF") << QByteArray("\r\n") << 0;
    QTest::newRow("cuatro") << QByteArray("a,\r\n") << 0;
    QTest::newRow("cinco") << Linea("g") << 2;
    QTest::newRow("alto") << Linea("g,\xF1,") << 2;
}

void TestReceptor_NV400::clasifica_lineas()
{
    QFETCH(QByteArray, linea);
    QFETCH(int, clase);
    QCOMPARE(int(Clasificar_Linea(Ansi::A_Texto(linea))), clase);
}

void TestReceptor_NV400::contesta_y_acumula()
{
    Dar("A,01,Z,\r\n");
    QCOMPARE(enviado, QByteArray("\x06,R,\r\n"));
    enviado.clear();
    Dar("g,1,2,#,\r\n");
    QCOMPARE(enviado, QByteArray("\x15,!,\r\n"));
    enviado.clear();
    Dar(Linea("g,1,2,") + Linea("h,3,"));
    QCOMPARE(enviado, QByteArray("\x06,R,\r\n\x06,R,\r\n"));
    QCOMPARE(receptor->Buffer(), QString());
    enviado.clear();
    Dar("Z,&,\r\n");
    QCOMPARE(enviado, QByteArray("\x06,R,\r\n"));
    QCOMPARE(finales, 1);
    QCOMPARE(Ansi::A_Bytes(receptor->Buffer()), Linea("g,1,2,") + Linea("h,3,"));
}

void TestReceptor_NV400::ningun_byte_cambiado_se_acepta()
{
    const QByteArray buena = Linea("g,12,34,");
    const qsizetype cubiertos = buena.size() - 3; // behind the checksum nothing is checked
    for (int i = 0; i < cubiertos; ++i)
        for (int bits = 1; bits < 64; ++bits) { // the sum keeps six bits
            init();
            QByteArray rota = buena;
            rota[i] = static_cast<char>(rota[i] ^ bits);
            Dar(rota);
            QVERIFY2(receptor->Rescatable() != Ansi::A_Texto(buena),
                     qPrintable(QString::number(i)));
            if (!rota.chopped(1).contains('\n')) QCOMPARE(enviado, LINEA_NAK);
        }
}

void TestReceptor_NV400::un_lf_que_abre_no_cierra()
{
    Dar("\n");
    QCOMPARE(enviado, QByteArray());
    Dar(Linea("g,1,"));
    QCOMPARE(enviado, LINEA_NAK);
    QCOMPARE(receptor->Rescatable(), QString());
}

void TestReceptor_NV400::cuenta_las_no_repetidas_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("rechazadas");
    const QByteArray a = Linea("g,03,115384,33135,RN1,"), b = Linea("i,03,105683,26714,P1,"),
                     c = Linea("g,03,106218,23639,P1,");
    const auto rota = [](QByteArray linea, qsizetype lugar) {
        linea[lugar] = static_cast<char>(linea[lugar] ^ 1);
        return linea;
    };
    const QByteArray b_dato = rota(b, 6), b_suma = rota(b, b.size() - 4);
    QTest::newRow("ninguna") << a + b + c << 0;
    QTest::newRow("repetida, dato") << a + b_dato + b + c << 0;
    QTest::newRow("repetida, suma") << a + b_suma + b + c << 0;
    QTest::newRow("repetida, dos sitios") << a + rota(rota(b, 2), 18) + b << 0;
    QTest::newRow("parecida y otra") << a + rota(Linea("g,03,106218,23639,P2,"), 6) + c << 1;
    QTest::newRow("repetida a la tercera") << a + b_dato + b_suma + b_dato + b << 0;
    QTest::newRow("no repetida") << a + b_dato + c << 1;
    QTest::newRow("no repetida, tres veces") << a + b_dato + b_dato + b_dato + c << 1;
    QTest::newRow("al final") << a + b_suma << 1;
    QTest::newRow("un byte perdido") << a + b.left(4) + b.mid(5) + b << 0;
    QTest::newRow("fin de línea perdido") << a + b.chopped(1) + b + b << 0;
    QTest::newRow("ruido corto") << QByteArray("~?\r\n") + a << 0;
    QTest::newRow("ruido delante de una línea") << QByteArray("~?~") + a + a << 0;
}

void TestReceptor_NV400::cuenta_las_no_repetidas()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, rechazadas);
    Dar("A,01,Z,\r\n" + bytes + "Z,&,\r\n");
    QCOMPARE(finales, 1);
    QCOMPARE(receptor->Faltas().rechazadas, rechazadas);
    QVERIFY(!receptor->Faltas().sin_acabar);
}

void TestReceptor_NV400::una_linea_abierta_cuenta()
{
    Dar(Linea("g,1,") + "h,2");
    QCOMPARE(receptor->Faltas().abiertas, 1);
    QVERIFY(receptor->Faltas().sin_acabar);
}

PRUEBA(TestReceptor_NV400)
#include "TestReceptor_NV400.moc"
