#include "core/Error_Ejecucion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Prueba.h"

#include <sqlite3.h>

class TestJet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void una_fila_va_y_vuelve();
    void la_version_crece_con_cada_escritura();
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

void TestJet::la_version_crece_con_cada_escritura()
{
    Base_De_Prueba p;
    const quint64 vacia = Base_Datos->Version();
    QCOMPARE(Base_Datos->Version(), vacia);
    p.Fila("KRT", {{"Nombre", "KRT305"}, {"Clave", "KRT300"}});
    const quint64 con_una = Base_Datos->Version();
    QVERIFY(con_una > vacia);
    QCOMPARE(Base::Abrir(Fichero_MDB)->Version(), con_una);

    // Rows written by hand, with another program, count as well.
    sqlite3* ajena = nullptr;
    QCOMPARE(sqlite3_open(Fichero_MDB.toUtf8().constData(), &ajena), SQLITE_OK);
    QCOMPARE(sqlite3_exec(ajena, "UPDATE KRT SET Foto='x'", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(ajena);
    const quint64 tocada = Base_Datos->Version();
    QVERIFY(tocada > con_una);
    QCOMPARE(Base_Datos->Version(), tocada);
}

PRUEBA(TestJet)
#include "TestJet.moc"
