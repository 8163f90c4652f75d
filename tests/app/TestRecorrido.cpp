#include "core/Familia.h"
#include "tests/apoyo/Prueba.h"

#include <QProcess>

// The demonstration of the whole road, family by family.
class TestRecorrido : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void todo_coincide_data();
    void todo_coincide();
};

void TestRecorrido::todo_coincide_data()
{
    QTest::addColumn<QString>("maquina");
    for (const QString& clave : Claves_Familias())
        QTest::newRow(qPrintable(clave)) << clave;
}

void TestRecorrido::todo_coincide()
{
    QFETCH(QString, maquina);
    QProcess recorrido;
    recorrido.start("bash", {RAIZ_FUENTES "/tools/recorrido.sh", INSTALACION, maquina});
    QVERIFY(recorrido.waitForFinished(120000));
    const QByteArray errores = recorrido.readAllStandardError();
    QVERIFY2(recorrido.exitStatus() == QProcess::NormalExit && recorrido.exitCode() == 0,
             errores.constData());
    const QString texto = QString::fromUtf8(recorrido.readAllStandardOutput());
    QCOMPARE(texto.count(": iguales ("), 3);
    QVERIFY(texto.endsWith("Todo coincide.\n"));
}

PRUEBA(TestRecorrido)
#include "TestRecorrido.moc"
