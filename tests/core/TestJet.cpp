#include "core/Error_Ejecucion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Prueba.h"

class TestJet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void una_fila_va_y_vuelve();
};

void TestJet::una_fila_va_y_vuelve()
{
    Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "KRT305"}, {"Clave", "KRT300"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset("KRT");
    rs.Index("primarykey");
    rs.Seek({"KRT305"});
    QVERIFY(!rs.NoMatch());
    QCOMPARE(rs.Texto("CLAVE"), QStringLiteral("KRT300"));
    Conjunto_Registros q = Base_Datos->OpenRecordset("SELECT * FROM krt WHERE Nombre = 'KRT305'");
    QCOMPARE(q.RecordCount(), 1);
    q.Edit();
    q.Poner("Foto", "a.bmp");
    q.Update();
    QCOMPARE(p.Columna("SELECT Foto FROM KRT"), QStringList{"a.bmp"});
}

PRUEBA(TestJet)
#include "TestJet.moc"
