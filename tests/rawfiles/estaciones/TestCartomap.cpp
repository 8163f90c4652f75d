#include "rawfiles/estaciones/Cartomap.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QFileInfo>

class TestCartomap : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void la_libreta_entera_data();
    void la_libreta_entera();
    void cada_caso_data();
    void cada_caso();
    void sin_entrada_dos_avisos();
    void una_salida_imposible();
    void mas_de_65535_pares();

private:
    std::unique_ptr<Banco_Bruto> banco;
};

static const char SIN_ESTACION[] = "Se encontró una estación sin coordenadas ni Azimut/Punto atrás";
static const char SIN_SD[] = "Se encontró un Registro SS sin SD Posterior";

void TestCartomap::la_libreta_entera_data()
{
    QTest::addColumn<QString>("libreta");
    QTest::addColumn<QStringList>("avisos");
    QTest::newRow("acaba mal") << "libreta_b" << QStringList{SIN_ESTACION};
    QTest::newRow("acaba bien") << "libreta_b_limpia" << QStringList{};
}

void TestCartomap::la_libreta_entera()
{
    QFETCH(QString, libreta);
    QFETCH(QStringList, avisos);
    QVERIFY(Exportar_Cartomap(Banco_Bruto::Ruta_Datos(libreta + ".txt"), banco->Ruta("salida")));
    QCOMPARE(banco->Avisos(), avisos);
    QCOMPARE(banco->Leer("salida"), Banco_Bruto::Datos(libreta + ".ctm"));
}

void TestCartomap::cada_caso_data()
{
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<QByteArray>("salida");
    QTest::addColumn<QStringList>("avisos");
    const QStringList nada;
    QTest::newRow("solo el trabajo")
        << QByteArray("JOB  VALLE , x\r\n") << QByteArray("0,VALLE\r\n") << nada;
    QTest::newRow("sin blanco se deja")
        << QByteArray("JOB\r\n JOB A\r\n\r\n") << QByteArray() << nada;
    QTest::newRow("estacion con todo")
        << QByteArray("STN E,1.5,V\r\nXYZ 1,2,3\r\nBKB B,10,300.5\r\n")
        << QByteArray("3,E,1,2,3,V\r\n1,E,1.5,B,109.5000,1,\r\n") << nada;
    QTest::newRow("estacion solo con punto atras") << QByteArray("STN E,1.5\r\nBKB B,10,3\r\n")
                                                   << QByteArray("1,E,1.5,B,7.0000,1,\r\n") << nada;
    QTest::newRow("coordenadas sin punto atras")
        << QByteArray("JOB A\r\nSTN E,1.5\r\nXYZ 1,2,3\r\nSS 1,1\r\n") << QByteArray("0,A\r\n")
        << QStringList{SIN_ESTACION};
    QTest::newRow("estacion la ultima")
        << QByteArray("STN E,1.5\r\n") << QByteArray() << QStringList{SIN_ESTACION};
    QTest::newRow("visado sin medida") << QByteArray("SS 1,1,C\r\nSS 2,1,C\r\nSD 1,2,3\r\n")
                                       << QByteArray() << QStringList{SIN_SD};
    QTest::newRow("visado el ultimo") << QByteArray("SS 1,1,C\r\nSD 1,2,3\r\nSS 2,1,C\r\n")
                                      << QByteArray("2,1,1,2,3,1,C\r\n") << QStringList{SIN_SD};
    QTest::newRow("FS y SD sueltos no son nada")
        << QByteArray("FS 1,1,C\r\nSD 1,2,3\r\n") << QByteArray() << nada;
    QTest::newRow("el azimut redondea la mitad") << QByteArray("STN E,1\r\nBKB B,0.00005,0\r\n")
                                                 << QByteArray("1,E,1,B,0.0001,1,\r\n") << nada;
    QTest::newRow("negativo y mitad") << QByteArray("STN E,1\r\nBKB B,0,0.00005\r\n")
                                      << QByteArray("1,E,1,B,400.0000,1,\r\n") << nada;
    QTest::newRow("angulos que faltan")
        << QByteArray("STN E,1\r\nBKB B\r\n") << QByteArray("1,E,1,B,0.0000,1,\r\n") << nada;
}

void TestCartomap::cada_caso()
{
    QFETCH(QByteArray, entrada);
    QFETCH(QByteArray, salida);
    QFETCH(QStringList, avisos);
    banco->Escribir("entrada", entrada);
    QVERIFY(Exportar_Cartomap(banco->Ruta("entrada"), banco->Ruta("salida")));
    QCOMPARE(banco->Avisos(), avisos);
    QVERIFY(QFileInfo::exists(banco->Ruta("salida")));
    QCOMPARE(banco->Leer("salida"), salida);
}

void TestCartomap::sin_entrada_dos_avisos()
{
    banco->Escribir("salida", "lo de antes");
    QVERIFY(!Exportar_Cartomap(banco->Ruta("no"), banco->Ruta("salida")));
    QCOMPARE(banco->interfaz.avisos.value(1).icono, Icono::Critico);
    QCOMPARE(banco->Avisos(),
             (QStringList{"El fichero de Entrada '" + banco->Ruta("no") + " no existe",
                          "El fichero de entrada especificado no existe"}));
    QCOMPARE(banco->Leer("salida"), QByteArray("lo de antes"));
}

void TestCartomap::una_salida_imposible()
{
    banco->Escribir("entrada", "JOB A\r\n");
    QVERIFY(!Exportar_Cartomap(banco->Ruta("entrada"), banco->Ruta("no hay/salida")));
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error al abrir el Fichero de Salida\r(76) "));
    QVERIFY(!Exportar_Cartomap(banco->Ruta("entrada"), banco->Ruta("./entrada")));
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error al abrir el Fichero de Salida\r(70) "));
    QCOMPARE(banco->Leer("entrada"), QByteArray("JOB A\r\n"));
}

void TestCartomap::mas_de_65535_pares()
{
    QByteArray libreta;
    for (int i = 0; i < 65535; ++i)
        libreta += "NOT x\r\n";
    banco->Escribir("entrada", libreta);
    QVERIFY(Exportar_Cartomap(banco->Ruta("entrada"), banco->Ruta("salida")));
    banco->Escribir("entrada", libreta + "NOT x\r\n");
    QVERIFY(!Exportar_Cartomap(banco->Ruta("entrada"), banco->Ruta("salida")));
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error al convertir a Formato CARTOMAP\r(9) "));
}

PRUEBA(TestCartomap)
#include "TestCartomap.moc"
