#include "export/Renglon.h"
#include "tests/apoyo/Prueba.h"

class TestRenglon : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_celdas_van_separadas_y_rellenas();
    void los_titulos();
    void los_anchos();
};

void TestRenglon::las_celdas_van_separadas_y_rellenas()
{
    Renglon r("||");
    QVERIFY(r.Vacio() && r.Texto().isEmpty());
    // A cell without text is a cell: the next one has its separator.
    r.Poner(u"");
    QVERIFY(!r.Vacio());
    r.Poner(u"abc", 5);
    r.Poner(u"abc", 3);
    r.Poner(u"abcd", 3);
    r.Poner(u"", 2);
    QCOMPARE(r.Texto(), QStringLiteral("||abc  ||abc||abcd||  "));
    r.Vaciar();
    QVERIFY(r.Vacio() && r.Texto().isEmpty());
    r.Poner(u"x");
    QCOMPARE(r.Texto(), QStringLiteral("x"));
}

void TestRenglon::los_titulos()
{
    const QString marcado = QStringLiteral(" Cota ").leftJustified(40) + "10";
    QCOMPARE(Titulo_De(marcado), QStringLiteral("Cota"));
    Renglon r(",");
    const std::vector<qsizetype> anchos = {4, 6};
    r.Poner_Titulos({"P", marcado}, anchos, true);
    QCOMPARE(r.Texto(), QStringLiteral("P   ,Cota  "));
    r.Vaciar();
    r.Poner_Titulos({"P", "X "});
    QCOMPARE(r.Texto(), QStringLiteral("P,X "));
}

void TestRenglon::los_anchos()
{
    const Filas_Exportar filas = {{"a", "bb"}, {"123456789", ""}};
    const QStringList campos = {"Punto", " X "};
    std::vector<qsizetype> anchos;
    Anchos_Columna(campos, filas, anchos, true);
    QCOMPARE(anchos, (std::vector<qsizetype>{5, 9}));
    Anchos_Columna(campos, filas, anchos, false);
    QCOMPARE(anchos, (std::vector<qsizetype>{2, 9}));
    Anchos_Titulos(campos, filas, anchos, true);
    QCOMPARE(anchos, (std::vector<qsizetype>{5, 1}));
    Anchos_Titulos(campos, filas, anchos, false);
    QCOMPARE(anchos, (std::vector<qsizetype>{0, 0}));
}

PRUEBA(TestRenglon)
#include "TestRenglon.moc"
