#include "tests/apoyo/Prueba.h"
#include "tests/tools/Tablas_De_Prueba.h"

#include <QProcess>

/// The build's steps as the build runs them.
class TestInstalacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void hacer_base_para_en_una_fila_mala();
    void hacer_base_mal_llamado();
    void los_ajustes_del_usuario_se_respetan();

private:
    struct Resultado {
        int estado = -1;
        QString errores;
    };
    static Resultado Ejecutar(const QString& programa, const QStringList& argumentos);
};

TestInstalacion::Resultado TestInstalacion::Ejecutar(const QString& programa,
                                                     const QStringList& argumentos)
{
    QProcess p;
    p.start(programa, argumentos);
    if (!p.waitForFinished(60'000) || p.exitStatus() != QProcess::NormalExit) return {};
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardError())};
}

void TestInstalacion::hacer_base_para_en_una_fila_mala()
{
    const Tablas_De_Prueba tablas;
    const QString base = tablas.Datos() + "/Database.mdb";
    QCOMPARE(Ejecutar(HACER_BASE, {tablas.Datos(), base}).estado, 0);
    const QDateTime hecha = QFileInfo(base).lastModified();

    const int linea = tablas.Cambiar("KRT2.csv", "NV400,4,C,ASC", "NV400,4,C,ÁSC");
    const Resultado r = Ejecutar(HACER_BASE, {tablas.Datos(), base});
    QCOMPARE(r.estado, 1);
    QCOMPARE(
        r.errores,
        QStringLiteral("KRT2.csv:%1: Conv nombra \"ÁSC\", que no está en CONVERT\n").arg(linea));
    QCOMPARE(QFileInfo(base).lastModified(), hecha);

    const Resultado sin_carpeta = Ejecutar(HACER_BASE, {tablas.Datos() + "/no", base});
    QCOMPARE(sin_carpeta.estado, 1);
    QVERIFY(sin_carpeta.errores.contains("KRT.csv: no se puede leer"));
}

void TestInstalacion::hacer_base_mal_llamado()
{
    QCOMPARE(Ejecutar(HACER_BASE, {"una"}).estado, 2);
}

void TestInstalacion::los_ajustes_del_usuario_se_respetan()
{
    const QTemporaryDir carpeta;
    const QString ini = carpeta.filePath("EstTotal.ini");
    const QStringList orden{"-D", QStringLiteral("DE=" RAIZ_FUENTES "/data/EstTotal.ini"),
                            "-D", "A=" + ini,
                            "-P", QStringLiteral(RAIZ_FUENTES "/data/Copiar_Si_Falta.cmake")};
    QCOMPARE(Ejecutar("cmake", orden).estado, 0);
    QFile copia(ini), original(QStringLiteral(RAIZ_FUENTES "/data/EstTotal.ini"));
    QVERIFY(copia.open(QIODevice::ReadOnly) && original.open(QIODevice::ReadOnly));
    QCOMPARE(copia.readAll(), original.readAll());
    copia.close();

    QVERIFY(copia.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
            copia.write("PORT=COM7\r\n") > 0);
    copia.close();
    QCOMPARE(Ejecutar("cmake", orden).estado, 0);
    QVERIFY(copia.open(QIODevice::ReadOnly));
    QCOMPARE(copia.readAll(), QByteArray("PORT=COM7\r\n"));
}

PRUEBA(TestInstalacion)
#include "TestInstalacion.moc"
