#include "tests/apoyo/Prueba.h"
#include "transfer/krt800/Emisor_KRT800.h"

// Character by character, with its pause behind each.
class TestEmisor_KRT800 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void caracter_a_caracter();
    void el_fin_de_transmision_va_una_vez_data();
    void el_fin_de_transmision_va_una_vez();
    void la_barra_va_por_pasos_data();
    void la_barra_va_por_pasos();
    void lo_que_llega_no_se_atiende();
    void a_medias_queda_su_traza();
};

void TestEmisor_KRT800::caracter_a_caracter()
{
    Emisor_KRT800 e({4, {}, "P1,Ñ\r\n"});
    QCOMPARE(e.Plazo(), 0);
    QCOMPARE(e.Maximo(), 6);
    Paso_Envio p = e.Empezar_Envio();
    QCOMPARE(p.etiqueta, QString("Enviando datos"));
    QVERIFY(p.envia.isEmpty());
    QVERIFY(p.encadena);
    for (const char c : QByteArray("P1,\xD1\r\n")) {
        p = e.Seguir();
        QCOMPARE(p.envia, QByteArray(1, c));
        QCOMPARE(p.pausa, 25);
        QVERIFY(p.encadena);
        QVERIFY(p.traza.isEmpty());
        QCOMPARE(p.fin, Fin_Envio::Sigue);
    }
    p = e.Seguir();
    QCOMPARE(p.envia, QByteArray("\4"));
    QCOMPARE(p.barra, 6);
    QCOMPARE(p.fin, Fin_Envio::Hecho);
    QCOMPARE(p.traza, QStringList({QString("P1,Ñ\r\n"), QString("\4")}));
    QCOMPARE(e.Resumen(), QString("Caracteres enviados: 6 de 6"));
}

void TestEmisor_KRT800::el_fin_de_transmision_va_una_vez_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QByteArray>("enviado");
    QTest::newRow("sin el") << "ab" << QByteArray("ab\4");
    QTest::newRow("con el") << "ab\4" << QByteArray("ab\4");
    QTest::newRow("en medio") << "a\4b" << QByteArray("a\4b");
    QTest::newRow("vacio") << "" << QByteArray("\4");
}

void TestEmisor_KRT800::el_fin_de_transmision_va_una_vez()
{
    QFETCH(QString, texto);
    Emisor_KRT800 e({4, {}, texto});
    QByteArray enviado;
    for (Paso_Envio p = e.Empezar_Envio();; p = e.Seguir()) {
        enviado += p.envia;
        if (p.fin == Fin_Envio::Sigue) continue;
        QCOMPARE(p.traza.size(), texto.contains(QChar(4)) ? 1 : 2);
        break;
    }
    QTEST(enviado, "enviado");
}

void TestEmisor_KRT800::la_barra_va_por_pasos_data()
{
    QTest::addColumn<int>("largo");
    QTest::addColumn<int>("movimientos");
    QTest::addColumn<int>("primero");
    QTest::newRow("corto: cada uno") << 50 << 50 << 1;
    QTest::newRow("cien") << 100 << 100 << 1;
    QTest::newRow("de dos en dos") << 250 << 125 << 2;
    QTest::newRow("mil") << 1000 << 100 << 10;
}

void TestEmisor_KRT800::la_barra_va_por_pasos()
{
    QFETCH(int, largo);
    Emisor_KRT800 e({4, {}, QString(largo, 'a')});
    QList<qint64> valores;
    e.Empezar_Envio();
    for (int i = 0; i < largo; ++i)
        if (const Paso_Envio p = e.Seguir(); p.barra >= 0) valores << p.barra;
    QTEST(int(valores.size()), "movimientos");
    QTEST(int(valores.first()), "primero");
    QCOMPARE(valores.last(), qint64(largo));
}

void TestEmisor_KRT800::lo_que_llega_no_se_atiende()
{
    Emisor_KRT800 e({4, {}, "ab"});
    e.Empezar_Envio();
    for (int c = 0; c < 256; ++c) {
        const Paso_Envio p = e.Siguiente_Envio(char(c));
        QVERIFY(p.envia.isEmpty() && p.etiqueta.isEmpty() && !p.encadena);
    }
    QCOMPARE(e.Vencer().fin, Fin_Envio::Sigue);
    QCOMPARE(e.Seguir().envia, QByteArray("a"));
}

void TestEmisor_KRT800::a_medias_queda_su_traza()
{
    Emisor_KRT800 e({4, {}, "abcdef"});
    e.Empezar_Envio();
    e.Seguir();
    e.Seguir();
    QCOMPARE(e.Traza_Pendiente(), QStringList{"ab"});
    QCOMPARE(e.Resumen(), QString("Caracteres enviados: 2 de 6"));
}

PRUEBA(TestEmisor_KRT800)
#include "TestEmisor_KRT800.moc"
