#include "core/Ansi.h"
#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "tests/apoyo/Prueba.h"

#include <cmath>
#include <random>
#include <set>

class TestBasico : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void val_lee_el_prefijo_numerico_data();
    void val_lee_el_prefijo_numerico();
    void formato_redondea_sobre_la_lectura_decimal_data();
    void formato_redondea_sobre_la_lectura_decimal();
    void el_camino_corto_escribe_lo_mismo();
    void un_numero_guardado_se_lee_igual();
    void enteros_de_16_bits_desbordan();
    void el_medio_va_al_par();
    void textos_de_numero_a_la_espanola();
    void la_pagina_es_uno_a_uno();
    void lo_que_no_cabe_es_interrogacion();
    void las_posiciones_cuentan_desde_uno();
    void las_fechas_se_escriben_por_su_dibujo();
    void los_errores_no_se_repiten();
};

void TestBasico::val_lee_el_prefijo_numerico_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<double>("valor");
    QTest::newRow("entero") << "12" << 12.0;
    QTest::newRow("punto") << "12.5abc" << 12.5;
    QTest::newRow("coma corta") << "12,5" << 12.0;
    QTest::newRow("dos puntos") << "0000012.500.000" << 12.5;
    QTest::newRow("blancos dentro") << " 1 2 . 5" << 12.5;
    QTest::newRow("vacio") << "" << 0.0;
    QTest::newRow("letras") << "abc" << 0.0;
    QTest::newRow("signo") << "-7.25" << -7.25;
    QTest::newRow("exponente") << "1e3x" << 1000.0;
    QTest::newRow("exponente sin cifras") << "2e+" << 2.0;
    QTest::newRow("solo signo") << "-" << 0.0;
    QTest::newRow("punto delante") << ".5" << 0.5;
    QTest::newRow("punto solo") << "." << 0.0;
    QTest::newRow("dos signos") << "--5" << 0.0;
}

void TestBasico::val_lee_el_prefijo_numerico()
{
    QFETCH(QString, texto);
    QFETCH(double, valor);
    QCOMPARE(Basico::Val(texto), valor);
}

void TestBasico::formato_redondea_sobre_la_lectura_decimal_data()
{
    QTest::addColumn<double>("numero");
    QTest::addColumn<QString>("dibujo");
    QTest::addColumn<QString>("texto");
    QTest::newRow("tres") << 12345.678 << "0.000"
                          << "12345,678";
    QTest::newRow("1.005 sube") << 1.005 << "0.00"
                                << "1,01";
    QTest::newRow("2.5 sube") << 2.5 << "0"
                              << "3";
    QTest::newRow("-2.5 sube") << -2.5 << "0"
                               << "-3";
    QTest::newRow("acarreo") << 9.9999 << "0.000"
                             << "10,000";
    QTest::newRow("0.9999") << 0.9999 << "0.000"
                            << "1,000";
    QTest::newRow("nivel") << 12.34567 << "##0.0000"
                           << "12,3457";
    QTest::newRow("almohadillas") << 0.5 << "#0.0000"
                                  << "0,5000";
    QTest::newRow("sin entera") << 0.5 << "#.00"
                                << ",50";
    QTest::newRow("ceros") << 1234.567 << "000000.000"
                           << "001234,567";
    QTest::newRow("entero") << 7.0 << "#0"
                            << "7";
    QTest::newRow("cero") << 0.0 << "0.000"
                          << "0,000";
    QTest::newRow("signo del cero") << -0.0004 << "0.000"
                                    << "-0,000";
    QTest::newRow("chico") << 0.00004 << "0.0000"
                           << "0,0000";
    QTest::newRow("chico sube") << 0.00005 << "0.0000"
                                << "0,0001";
    QTest::newRow("grande") << 1e15 << "0.000"
                            << "1000000000000000,000";
    QTest::newRow("literal") << 5.0 << "0.0 m"
                             << "5,0 m";
    QTest::newRow("opcional") << 5.25 << "0.0##"
                              << "5,25";
}

void TestBasico::formato_redondea_sobre_la_lectura_decimal()
{
    QFETCH(double, numero);
    QFETCH(QString, dibujo);
    QFETCH(QString, texto);
    QCOMPARE(Basico::Formato(numero, dibujo), texto);
}

void TestBasico::el_camino_corto_escribe_lo_mismo()
{
    std::mt19937_64 azar(20240513);
    QList<double> numeros = {
        0.0,     -0.0,      0.0005,     -0.0004,      0.9995,   999.9995,
        1.005,   2.5,       -2.5,       456191.3385,  1e12,     1e13 + 0.5,
        1e15,    -1e15,     1e300,      -1e-300,      0.499999, 123456789012.345,
        1e9 - 1, 9999999.5, 0.49999999, 999999999.95, 1e13 - 1};
    for (int i = 0; i < 20000; ++i) {
        const double a = std::uniform_real_distribution<double>(-8, 8)(azar);
        const double x = std::pow(10, a) * std::uniform_real_distribution<double>(-1, 1)(azar);
        numeros << x << std::round(x * 1000) / 1000 << std::round(x * 10000) / 10000
                << (std::floor(x) + 0.5) / 1000 << std::nextafter((std::floor(x) + 0.5) / 1000, 0);
    }
    const QString dibujos[] = {"0", "0.0", "0.00", "0.000", "0.0000"};
    for (qsizetype i = 0; i < numeros.size(); ++i) {
        const int decimales = int(i % 5);
        QByteArray bytes = "=";
        Basico::Agregar_Fijo(bytes, numeros[i], decimales);
        const QString lento = Basico::Formato(numeros[i], dibujos[decimales]).replace(u',', u'.');
        if (QString::fromLatin1(bytes) != u'=' + lento)
            QFAIL(qPrintable(QStringLiteral("%1, %2: %3")
                                 .arg(numeros[i], 0, 'g', 17)
                                 .arg(lento, QString::fromLatin1(bytes))));
    }
    QByteArray muchos;
    Basico::Agregar_Fijo(muchos, 1.25, 9);
    QCOMPARE(muchos, QByteArray("1.250000000"));
}

void TestBasico::un_numero_guardado_se_lee_igual()
{
    const auto por_lo_largo = [](const QString& texto) {
        return Basico::CDbl(QString(texto).replace(u'.', u','));
    };
    std::mt19937_64 azar(7);
    for (int i = 0; i < 10000; ++i) {
        const double x = std::uniform_real_distribution<double>(-1e7, 1e7)(azar);
        const QString texto = QString::number(x, 'f', int(azar() % 9));
        QCOMPARE(Basico::Leer_Numero(texto), por_lo_largo(texto));
        QCOMPARE(Basico::Leer_Numero(" " + texto + "  "), por_lo_largo(texto));
    }
    for (const char* texto : {"12,5", "-0.5", "+3", "7", "7.", "1e3", "00012", "123456789012345678",
                              "0.1234567890123456", "- 5", "4500000.5"})
        QCOMPARE(Basico::Leer_Numero(QString(texto)), por_lo_largo(texto));
    for (const char* texto : {"", " ", "-", ".", ",5x", "1a", "1.2.3", "1,2,3", "--1", "1-"}) {
        const auto numero = [](auto&& leer) {
            try {
                leer();
            } catch (const Error_Ejecucion& e) {
                return e.numero;
            }
            return 0;
        };
        QCOMPARE(numero([&] { Basico::Leer_Numero(QString(texto)); }),
                 numero([&] { por_lo_largo(texto); }));
        QCOMPARE(numero([&] { Basico::Leer_Numero(QString(texto)); }), 13);
    }
}

void TestBasico::enteros_de_16_bits_desbordan()
{
    QCOMPARE(Basico::CInt(32767.4), 32767);
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Basico::CInt(32767.5));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Basico::CInt(QStringLiteral("40000")));
    QCOMPARE(Basico::CInt(QStringLiteral("-32768")), -32768);
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Basico::CInt(QStringLiteral("a")));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Basico::CInt(QString()));
}

void TestBasico::el_medio_va_al_par()
{
    QCOMPARE(Basico::CInt(0.5), 0);
    QCOMPARE(Basico::CInt(1.5), 2);
    QCOMPARE(Basico::CInt(2.5), 2);
    QCOMPARE(Basico::CInt(-1.5), -2);
    QCOMPARE(Basico::CInt(-0.5), 0);
}

void TestBasico::textos_de_numero_a_la_espanola()
{
    QCOMPARE(Basico::CDbl(QStringLiteral(" 1.234,5 ")), 1234.5);
    QCOMPARE(Basico::CDbl(QStringLiteral("-0,5")), -0.5);
    QVERIFY(Basico::IsNumeric(QStringLiteral("12,5")));
    QVERIFY(!Basico::IsNumeric(QStringLiteral("12a")));
    QVERIFY(!Basico::IsNumeric(QString()));
    QVERIFY(!Basico::IsNumeric(QStringLiteral("1,2,3")));
    QCOMPARE(Basico::Texto_Numero(1234.5), QStringLiteral("1234,5"));
    QCOMPARE(Basico::Texto_Numero(0.5, false), QStringLiteral(".5"));
    QCOMPARE(Basico::Formato(QStringLiteral("abc"), QStringLiteral("0.00")), QStringLiteral("abc"));
    QCOMPARE(Basico::Formato(QStringLiteral("12,345"), QStringLiteral("0.00")),
             QStringLiteral("12,35"));
}

void TestBasico::la_pagina_es_uno_a_uno()
{
    QByteArray todos;
    for (int b = 0; b < 256; ++b)
        todos += static_cast<char>(b);
    const QString texto = Ansi::A_Texto(todos);
    QCOMPARE(texto.size(), 256);
    QCOMPARE(Ansi::A_Bytes(texto), todos);
    std::set<char16_t> distintos;
    for (const QChar c : texto)
        distintos.insert(c.unicode());
    QCOMPARE(distintos.size(), std::size_t(256));
    QCOMPARE(Ansi::Codigo(QChar(0x20AC)), 128);
    QCOMPARE(Ansi::Codigo(QChar(0x81)), 129);
}

void TestBasico::lo_que_no_cabe_es_interrogacion()
{
    QCOMPARE(Ansi::A_Bytes(QStringLiteral("a\u0416b")), QByteArray("a?b"));
    QCOMPARE(Ansi::A_Bytes(QString::fromUtf8("a\xF0\x9F\x98\x80"
                                             "b")),
             QByteArray("a?b"));
    QVERIFY(!Ansi::Cabe(QStringLiteral("\u0416")));
    QVERIFY(Ansi::Cabe(QStringLiteral("ñÑ€")));
}

void TestBasico::las_posiciones_cuentan_desde_uno()
{
    const QString t = QStringLiteral("abcdef");
    QCOMPARE(Basico::Mid(t, 2, 3), QStringLiteral("bcd"));
    QCOMPARE(Basico::Mid(t, 9), QString());
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Basico::Mid(t, 0, 1));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Basico::Left(t, -1));
    QCOMPARE(Basico::Right(t, 2), QStringLiteral("ef"));
    QCOMPARE(Basico::InStr(1, t, u"cd"), 3);
    QCOMPARE(Basico::InStr(4, t, u"cd"), 0);
    QCOMPARE(Basico::Trim(QStringLiteral("  a\t ")), QStringLiteral("a\t"));
}

void TestBasico::las_fechas_se_escriben_por_su_dibujo()
{
    const QDateTime f(QDate(2026, 3, 7), QTime(9, 5, 1));
    QCOMPARE(Basico::Formato_Fecha(f, QStringLiteral("DD/MM/YYYY")), QStringLiteral("07/03/2026"));
    QCOMPARE(Basico::Formato_Fecha(f, QStringLiteral("HH:MM:SS")), QStringLiteral("09:05:01"));
    QCOMPARE(Basico::Formato_Fecha(f, QStringLiteral("ddmmyy_hhmm")),
             QStringLiteral("070326_0905"));
}

void TestBasico::los_errores_no_se_repiten()
{
    std::set<int> vistos;
    for (const int n : Numeros_Error()) {
        QVERIFY2(vistos.insert(n).second, qPrintable(QString::number(n)));
        QVERIFY(!Descripcion_Error(n).isEmpty());
    }
}

PRUEBA(TestBasico)
#include "TestBasico.moc"
