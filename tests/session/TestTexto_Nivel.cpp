#include "core/ModEstTotal.h"
#include "session/Texto_Nivel.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"

class TestTexto_Nivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void el_texto_de_una_linea_data();
    void el_texto_de_una_linea();
};

void TestTexto_Nivel::el_texto_de_una_linea_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("texto");
    QTest::newRow("en orden") << "t"
                              << "t0,A,z,M,=,"
                              << "Obra:A Mira:M ";
    // What is called "Nulo" has its place in the line all the same.
    QTest::newRow("faltan") << "t"
                            << "t0,A"
                            << "Obra:A Mira: ";
    QTest::newRow("mayúscula no es la letra") << "T"
                                              << "t0,A,z,M,=,"
                                              << "";
    QTest::newRow("sin campos") << "z"
                                << "z0,A,"
                                << "";
    QTest::newRow("apóstrofo") << "'"
                               << "'0,A,"
                               << "Nota:A ";
    QTest::newRow("otra familia") << "k"
                                  << "k0,A,"
                                  << "";
}

void TestTexto_Nivel::el_texto_de_una_linea()
{
    QFETCH(QString, id);
    QFETCH(QString, linea);
    Base_De_Prueba p;
    Poner_Registro(p, "NV400", {0}, "t", "Trabajo", "M", {{"Obra"}, {"Nulo"}, {"Mira"}, {"Nulo"}});
    Poner_Registro(p, "NV400", {0}, "'", "Nota", "M", {{"Nota"}});
    Poner_Registro(p, "KRT300", {0}, "k", "Ajena", "M", {{"Ajena"}});
    QTEST(Texto_Campos(*Base_Datos, id, linea), "texto");
}

PRUEBA(TestTexto_Nivel)
#include "TestTexto_Nivel.moc"
