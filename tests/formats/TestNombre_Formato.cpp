#include "core/Error_Ejecucion.h"
#include "formats/Nombre_Formato.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestNombre_Formato : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_nombre_en_blanco_no_vale();
    void un_apostrofo_rompe_la_sentencia();
};

void TestNombre_Formato::un_nombre_en_blanco_no_vale()
{
    Interfaz_Guion guion;
    QVERIFY(Depura(" a "));
    QVERIFY(guion.avisos.isEmpty());
    QVERIFY(!Depura("   "));
    QVERIFY(!Depura(""));
    const QString aviso = QStringLiteral("El Nombre del formato no puede quedar en blanco!!");
    QCOMPARE(guion.Textos(), (QStringList{aviso, aviso}));
    QCOMPARE(guion.avisos[0].icono, Icono::Informacion);
}

void TestNombre_Formato::un_apostrofo_rompe_la_sentencia()
{
    QCOMPARE(Literal_Formato("Mío 1"), QStringLiteral("'Mío 1'"));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Literal_Formato("O'Neil"));
}

PRUEBA(TestNombre_Formato)
#include "TestNombre_Formato.moc"
