#include "core/Numero_Escrito.h"
#include "tests/apoyo/Prueba.h"

class TestNumero_Escrito : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void se_lee_hasta_donde_llega_el_numero_data();
    void se_lee_hasta_donde_llega_el_numero();
};

static constexpr Grafia LLANA{};
static constexpr Grafia SUELTA{.blancos = true};
static constexpr Grafia ESPANOLA{
    .marca = u',', .blancos_tras_signo = true, .puntos_de_miles = true};

void TestNumero_Escrito::se_lee_hasta_donde_llega_el_numero_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<Grafia>("grafia");
    QTest::addColumn<QByteArray>("llano");
    QTest::addColumn<int>("leidos");
    const auto caso = [](const QString& texto, const Grafia& grafia, const char* llano,
                         int leidos) {
        QTest::addRow("%s %c%d", qPrintable(texto), char(grafia.marca), int(grafia.blancos))
            << texto << grafia << QByteArray(llano) << leidos;
    };
    caso("", LLANA, "", 0);
    caso("12.50x", LLANA, "12.50", 5);
    caso("-.5", LLANA, "-.5", 3);
    caso("+7.", LLANA, "7", 3);
    caso("1.2.3", LLANA, "1.2", 3);
    caso("1,5", LLANA, "1", 1);
    caso(" 1", LLANA, "", 0);
    caso("+-1", LLANA, "", 1);
    caso("1e5", LLANA, "1e5", 3);
    caso("1D-05z", LLANA, "1e-05", 5);
    caso("1e", LLANA, "1", 1);
    caso("1e+", LLANA, "1", 1);
    caso("e5", LLANA, "", 0);
    caso("1e5.5", LLANA, "1e5", 3);
    caso(" - 1 \t2\n. 5 e - 3 x", SUELTA, "-12.5e-3", 18);
    caso("1.234.567,5", ESPANOLA, "1234567.5", 11);
    caso("- 5", ESPANOLA, "-5", 3);
    caso("5 ", ESPANOLA, "5", 1);
    caso("1 2", ESPANOLA, "1", 1);
    caso(".5", ESPANOLA, "", 0);
    caso("1,5.2", ESPANOLA, "1.5", 3);
    caso("1e.5", ESPANOLA, "1", 1);
    caso(",5", ESPANOLA, ".5", 2);
}

void TestNumero_Escrito::se_lee_hasta_donde_llega_el_numero()
{
    QFETCH(QString, texto);
    QFETCH(Grafia, grafia);
    const Numero_Escrito n = Leer_Numero(texto, grafia);
    QTEST(n.Llano(), "llano");
    QTEST(int(n.leidos), "leidos");
    QFETCH(QByteArray, llano);
    QCOMPARE(n.Hay(), llano.contains('0') ||
                          std::ranges::any_of(llano, [](char c) { return c >= '1' && c <= '9'; }));
}

PRUEBA(TestNumero_Escrito)
#include "TestNumero_Escrito.moc"
