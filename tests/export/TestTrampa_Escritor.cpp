#include "core/Error_Ejecucion.h"
#include "export/Trampa_Escritor.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestTrampa_Escritor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_numero_dice_lo_suyo_data();
    void cada_numero_dice_lo_suyo();
    void sin_fallo_no_dice_nada();
};

void TestTrampa_Escritor::cada_numero_dice_lo_suyo_data()
{
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("titulo");
    QTest::addColumn<Icono>("icono");
    QTest::newRow("with a row") << 53 << "Sin nombre"
                                << "Atención" << Icono::Exclamacion;
    QTest::newRow("with a row, no title") << 3001 << "Sin libro"
                                          << "" << Icono::Critico;
    QTest::newRow("any other") << 76 << "Se produjo\r(76) " + Descripcion_Error(76) << ""
                               << Icono::Critico;
}

void TestTrampa_Escritor::cada_numero_dice_lo_suyo()
{
    static constexpr Aviso_De_Fallo PROPIOS[] = {
        {53, u"Sin nombre", Icono::Exclamacion, u"Atención"}, {3001, u"Sin libro", Icono::Critico}};
    QFETCH(int, numero);
    Interfaz_Guion guion;
    QVERIFY(!Con_Trampa({u"Se produjo", PROPIOS}, [&] { throw Error_Ejecucion(numero); }));
    QCOMPARE(guion.avisos.size(), 1);
    QTEST(guion.avisos[0].texto, "texto");
    QTEST(guion.avisos[0].titulo, "titulo");
    QTEST(guion.avisos[0].icono, "icono");
}

void TestTrampa_Escritor::sin_fallo_no_dice_nada()
{
    Interfaz_Guion guion;
    int veces = 0;
    QVERIFY(Con_Trampa({u"Se produjo", {}}, [&] { ++veces; }));
    QCOMPARE(veces, 1);
    QVERIFY(guion.avisos.isEmpty());
}

PRUEBA(TestTrampa_Escritor)
#include "TestTrampa_Escritor.moc"
