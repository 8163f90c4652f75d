#include "core/Ficheros_Propios.h"
#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QDir>
#include <QFile>

class TestFicheros_Propios : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_propio_no_se_pisa();
    void ni_la_fuente_por_otro_camino();
};

void TestFicheros_Propios::lo_propio_no_se_pisa()
{
    const Base_De_Prueba base;
    QDir(Ruta_Aplicacion).mkpath("ficheros");
    for (const char* propio :
         {"MDB/EstTotal.mdb", "MDB/otra.bak", "DAT/Database.mdb", "EstTotal.ini", "esttotal.INI",
          "DXF.Ini", "ficheros/../Posicion.ini"})
        QVERIFY2(Es_Fichero_Propio(base.Ruta(propio)), propio);
    for (const char* ajeno : {"ficheros/a.dxf", "a.dxf", "MDB.dxf", "ficheros/EstTotal.ini"})
        QVERIFY2(!Es_Fichero_Propio(base.Ruta(ajeno)), ajeno);
    QVERIFY(!Es_Fichero_Propio(QDir::tempPath() + "/EstTotal.ini"));
    QVERIFY_ERROR(70, Comprobar_Destino(base.Ruta("EstTotal.ini")));
    Comprobar_Destino(base.Ruta("ficheros/a.dxf"));
}

void TestFicheros_Propios::ni_la_fuente_por_otro_camino()
{
    const Base_De_Prueba base;
    base.Escribir("ficheros/a.txt", "x");
    const QString fuente = base.Ruta("ficheros/a.txt");
    QVERIFY_ERROR(70, Comprobar_Destino(fuente, {fuente}));
    QVERIFY_ERROR(70, Comprobar_Destino(base.Ruta("ficheros/../ficheros/a.txt"), {fuente}));
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(fuente, base.Ruta("ficheros/b.txt")));
    QVERIFY_ERROR(70, Comprobar_Destino(base.Ruta("ficheros/b.txt"), {fuente}));
#endif
    Comprobar_Destino(base.Ruta("ficheros/c.txt"), {fuente});
}

PRUEBA(TestFicheros_Propios)
#include "TestFicheros_Propios.moc"
