#include "core/Texto_SQL.h"
#include "tests/apoyo/Prueba.h"

class TestTexto_SQL : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_apostrofos_se_doblan();
};

void TestTexto_SQL::los_apostrofos_se_doblan()
{
    QCOMPARE(Doblar("d'Ors''"), QString("d''Ors''''"));
    QCOMPARE(Doblar("llano"), QString("llano"));
    QCOMPARE(Doblar(""), QString());
}

PRUEBA(TestTexto_SQL)
#include "TestTexto_SQL.moc"
