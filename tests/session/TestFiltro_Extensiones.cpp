#include "session/Filtro_Extensiones.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestFiltro_Extensiones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sale_de_conv_data();
    void sale_de_conv();
    void sin_fila_termina_el_programa();

private:
    Base_De_Prueba base;
};

void TestFiltro_Extensiones::sale_de_conv_data()
{
    QTest::addColumn<QString>("conv");
    QTest::addColumn<QString>("filtro");
    QTest::newRow("dos") << "ASC,TXT"
                         << "ASCII (*.asc)|*.asc|Texto (*.txt)|*.txt";
    QTest::newRow("una desconocida") << "NADA,TXT"
                                     << "Texto (*.txt)|*.txt";
    QTest::newRow("vacio") << ""
                           << "";
}

void TestFiltro_Extensiones::sale_de_conv()
{
    QFETCH(QString, conv);
    const Interfaz_Guion guion;
    base.Columna("DELETE FROM KRT2");
    base.Columna("DELETE FROM CONVERT");
    base.Fila("CONVERT", {{"Clave", "ASC"}, {"descripcion", " ASCII (*.asc) "}, {"ext", "*.asc "}});
    base.Fila("CONVERT", {{"Clave", "TXT"}, {"descripcion", "Texto (*.txt)"}, {"ext", " *.txt"}});
    base.Fila("KRT2",
              {{"Nombre", "KRT300"}, {"OPE", 1}, {"TipOpe", "C"}, {"DESOPE", "x"}, {"Conv", conv}});
    const QString filtro = Filtro_Extensiones("KRT300", 1, "C");
    QTEST(filtro, "filtro");
    QVERIFY(!filtro.isNull());
    QVERIFY(guion.avisos.isEmpty() && guion.terminado.isEmpty());
}

void TestFiltro_Extensiones::sin_fila_termina_el_programa()
{
    const Interfaz_Guion guion;
    base.Columna("DELETE FROM KRT2");
    base.Fila("KRT2", {{"Nombre", "KRT300"}, {"OPE", 1}, {"TipOpe", "D"}, {"DESOPE", "x"}});
    QVERIFY(Filtro_Extensiones("KRT300", 1, "C").isNull());
    QCOMPARE(guion.terminado, QList<int>{1});
    QCOMPARE(guion.avisos.size(), 1);
    QCOMPARE(guion.avisos[0].texto, QString("No hay extensiones definidas para esta operación"));
    QCOMPARE(guion.avisos[0].icono, Icono::Critico);
}

PRUEBA(TestFiltro_Extensiones)
#include "TestFiltro_Extensiones.moc"
