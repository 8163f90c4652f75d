#include "export/Columna_Exportar.h"
#include "tests/apoyo/Prueba.h"

#include <QRandomGenerator>

class TestColumna_Exportar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_celdas_salen_como_entraron();
    void igualada_llega_a_la_mas_larga();
    void las_de_muchas_letras_al_azar();
    void se_queda_con_unas_filas();
};

void TestColumna_Exportar::las_celdas_salen_como_entraron()
{
    const QStringList celdas = {
        "P1",     "P1", "",     "",        "Código",           "€uro",
        "\u0081", "  ", "€uro", "a\u0006", QString(300, u'x'), QString(300, u'€'),
        "fin"};
    Columna_Exportar columna;
    for (const QString& celda : celdas)
        columna.push_back(celda);
    QCOMPARE(columna.size(), std::size_t(celdas.size()));
    QCOMPARE(columna.Ancho(), 300);
    for (qsizetype i = 0; i < celdas.size(); ++i) {
        const Vista_Celda vista = columna.Vista(std::size_t(i));
        QCOMPARE(columna.Celda(std::size_t(i)), celdas[i]);
        QCOMPARE(vista.Largo(), celdas[i].size());
        QCOMPARE(vista.Primera(), celdas[i].isEmpty() ? QChar() : celdas[i].front());
        QCOMPARE(vista.Blanca(), celdas[i].trimmed().isEmpty());
    }
}

void TestColumna_Exportar::igualada_llega_a_la_mas_larga()
{
    Columna_Exportar columna = {"a", "", "ccc"};
    QVERIFY(!columna.Igualada());
    QCOMPARE(columna.Relleno(1), 0);
    columna.Igualar();
    QCOMPARE(columna, (Columna_Exportar{"a  ", "   ", "ccc"}));
    QVERIFY(!(columna == Columna_Exportar{"a  ", "   "}));
    QVERIFY(!(columna == Columna_Exportar{"a  ", "   ", "ccd"}));
    QCOMPARE(columna.Relleno(1), 3);
    columna.push_back(u"dddd");
    QCOMPARE(columna.Celda(0), "a   ");
}

void TestColumna_Exportar::las_de_muchas_letras_al_azar()
{
    QRandomGenerator azar(9);
    const QString letras =
        QStringLiteral("aZ09 .ñÁ\u00A0\u0085€\u0081漢") + QChar(0) + QChar(0xD800);
    QStringList celdas;
    Columna_Exportar columna;
    for (int i = 0; i < 5000; ++i) {
        QString celda;
        const int tope = azar.bounded(3) ? 8 : int(letras.size());
        for (int n = azar.bounded(40) ? azar.bounded(12) : azar.bounded(600); n > 0; --n)
            celda += letras[azar.bounded(tope)];
        for (int veces = azar.bounded(4); veces >= 0; --veces) {
            celdas << celda;
            columna.push_back(celda);
        }
    }
    for (qsizetype i = 0; i < celdas.size(); ++i)
        QCOMPARE(columna.Celda(std::size_t(i)), celdas[i]);
}

void TestColumna_Exportar::se_queda_con_unas_filas()
{
    Columna_Exportar columna = {"uno", "dos", "dos", "€", "cinco"};
    columna.Igualar();
    columna.Quedarse_Con({1, 3});
    QCOMPARE(columna, (Columna_Exportar{"dos", "€  "}));
    columna.Quedarse_Con({});
    QCOMPARE(columna.size(), 0u);
}

PRUEBA(TestColumna_Exportar)
#include "TestColumna_Exportar.moc"
