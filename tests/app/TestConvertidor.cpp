#include "core/Ficheros.h"
#include "tests/apoyo/Prueba.h"
#include "tests/app/Correr.h"

namespace {

QString Muestra(const char* nombre)
{
    return QStringLiteral(DATOS_PRUEBA "/conversions/") + QLatin1String(nombre);
}

} // namespace

class TestConvertidor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void convertidor_llama_por_el_nombre();
    void convertidor_da_los_motivos();
    void convertidor_lista_donde_se_le_dice();
    void mal_uso_data();
    void mal_uso();
    void convertir_elige_por_las_extensiones_data();
    void convertir_elige_por_las_extensiones();
    void convertir_no_adivina_el_eje();

private:
    QTemporaryDir dir;
};

void TestConvertidor::convertidor_llama_por_el_nombre()
{
    const QString destino = dir.filePath("a.ssh");
    for (const char* nombre : {"aclipplt2krt", "MyDll_aclipplt2krt"}) {
        const Salida s = Correr({"convertidor", nombre, Muestra("eje1.plt"), destino});
        QCOMPARE(s.estado, int(HECHO));
        QCOMPARE(s.texto, u"1\n");
        QVERIFY(s.mensajes.isEmpty());
        QCOMPARE(Ficheros::Leer(destino), Ficheros::Leer(Muestra("eje1.plt.ssh")));
    }
    QCOMPARE(Correr({"convertidor", "aqtr2krt", Muestra("eje1.eje"), destino, dir.path()}).texto,
             u"1\n");
    QCOMPARE(Correr({"convertidor", "alandxml2krt", "0", Muestra("eje1.xml"), destino}).texto,
             u"1\n");
    QCOMPARE(Ficheros::Leer(destino), Ficheros::Leer(Muestra("eje1.xml.ssh")));
}

void TestConvertidor::convertidor_da_los_motivos()
{
    const QString destino = dir.filePath("b.ssh");
    const Salida parcial =
        Correr({"convertidor", "aclipplt2krt", Muestra("eje1_mal.plt"), destino});
    QCOMPARE(parcial.estado, int(HECHO));
    QCOMPARE(parcial.texto, u"-1\n");
    QVERIFY2(parcial.mensajes.startsWith(u"Línea 4: Las clotoides giran más que el vértice") ||
                 parcial.mensajes.startsWith(u"Línea 4: Las tangentes no caben"),
             qPrintable(parcial.mensajes));
    QVERIFY(parcial.mensajes.contains(u"1184.191,2184.191,5000,120,120"));
    const Salida fallo = Correr({"convertidor", "aclipplt2krt", dir.filePath("no_hay"), destino});
    QCOMPARE(fallo.estado, int(RECHAZADO));
    QCOMPARE(fallo.texto, u"0\n");
    QVERIFY(fallo.mensajes.startsWith(u"El fichero de origen no existe"));
    QVERIFY(!QFile::exists(destino));
}

void TestConvertidor::convertidor_lista_donde_se_le_dice()
{
    const QString lista = dir.filePath("lista");
    const Salida s =
        Correr({"convertidor", "seleccionaRasanteLandXML", Muestra("eje1_v.xml"), lista});
    QCOMPARE(s.estado, int(HECHO));
    QCOMPARE(s.texto, u"3\n");
    QCOMPARE(Ficheros::Leer(lista), Ficheros::Leer(Muestra("eje1_ras.lst")));
    const Salida nada = Correr({"convertidor", "seleccionaEjeLandXML", Muestra("eje1.plt"), lista});
    QCOMPARE(nada.estado, int(RECHAZADO));
    QCOMPARE(nada.texto, u"0\n");
    QCOMPARE(Ficheros::Leer(lista), "");
}

void TestConvertidor::mal_uso_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::newRow("sin funcion") << QStringList{"convertidor"};
    QTest::newRow("desconocida") << QStringList{"convertidor", "acad2krt", "a", "b"};
    QTest::newRow("faltan") << QStringList{"convertidor", "aclipplt2krt", "a"};
    QTest::newRow("sobran") << QStringList{"convertidor", "rqsv2krt", "a", "b", "c"};
    QTest::newRow("nueve") << QStringList{"convertidor", "procesaRobotizada", "a", "b", "c"};
    QTest::newRow("indice") << QStringList{"convertidor", "alandxml2krt", "x", "a", "b"};
    QTest::newRow("convertir sin destino") << QStringList{"convertir", "a.plt"};
    QTest::newRow("sin camino") << QStringList{"convertir", "a.doc", "b.ssh"};
    QTest::newRow("clase que no va")
        << QStringList{"convertir", "a.plt", "b.ssh", "--clase", "rasante"};
    QTest::newRow("clase rara") << QStringList{"convertir", "a.plt", "b.ssh", "--clase", "cosas"};
    QTest::newRow("eje de mas") << QStringList{"convertir", "a.plt", "b.ssh", "--eje", "1"};
    QTest::newRow("eje no numero") << QStringList{"convertir", "a.xml", "b.ssh", "--eje", "uno"};
    QTest::newRow("seccion sin dos puntos")
        << QStringList{"convertir", "a.xml", "b.ssp", "--seccion", "uno"};
}

void TestConvertidor::mal_uso()
{
    QFETCH(QStringList, palabras);
    const Salida s = Correr(palabras);
    QCOMPARE(s.estado, int(MAL_USO));
    QVERIFY(s.texto.isEmpty());
    QVERIFY(s.mensajes.contains(u"Uso: miraldos-cli"));
}

void TestConvertidor::convertir_elige_por_las_extensiones_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QString>("esperado");
    const auto fila = [](const char* entrada, const char* salida, const char* funcion,
                         const char* esperado, const QStringList& opciones = {}) {
        QTest::newRow(esperado) << QStringList{entrada, salida} + opciones << funcion << esperado;
    };
    fila("eje1.plt", "a.ssh", "aclipplt2krt", "eje1.plt.ssh");
    fila("eje1.eje", "a.HAL", "aqtr2krt", "eje1.eje.hal");
    fila("eje1.txt", "a.ssh", "amxroad2krt", "eje1.txt.ssh");
    fila("eje1_ras.txt", "a.ssv", "ristram2krt", "eje1_ras.txt.ssv");
    fila("eje1_ras.txt", "a.ssv", "ristram2krt", "eje1.alz.ssv", {"--clase", "rasante"});
    fila("eje1_ht.asc", "a.ssp", "htrazado2krt", "eje1_ht.asc.ssp");
    fila("eje1.trm", "a.ssp", "istram2krt", "eje1_is.per.ssp");
    fila("eje1.xml", "a.ssh", "alandxml2krt", "eje1.xml.ssh");
    fila("eje1_v.xml", "a.ssv", "rlandxml2krt", "eje1_v_A.ssv", {"--perfil", "EJE A"});
    fila("eje1_t.xml", "a.ssp", "tralandxml2krt", "eje1_t_P.ssp", {"--seccion", "EJE A:PROYECTO"});
    fila("puntos.asc", "a.krt", "puntos2krt", "puntos.krt");
    fila("nivel.asc", "a.x", "puntos2nivel", "nivel.x");
    fila("cod.dat", "a.tpc", "lectkrt2bronex", "cod.tpc");
}

void TestConvertidor::convertir_elige_por_las_extensiones()
{
    QFETCH(QStringList, palabras);
    QFETCH(QString, funcion);
    QFETCH(QString, esperado);
    const QString destino = dir.filePath(palabras[1]);
    palabras[0] = Muestra(qPrintable(palabras[0]));
    palabras[1] = destino;
    palabras.prepend("convertir");
    const Salida s = Correr(palabras);
    QVERIFY2(s.estado == HECHO, qPrintable(s.mensajes));
    QCOMPARE(s.texto, "MyDll_" + funcion + "\n1\n");
    QCOMPARE(Ficheros::Leer(destino), Ficheros::Leer(Muestra(qPrintable(esperado))));
}

void TestConvertidor::convertir_no_adivina_el_eje()
{
    const QString destino = dir.filePath("c.ssv");
    const Salida s = Correr({"convertir", Muestra("eje1_v.xml"), destino});
    QCOMPARE(s.estado, int(RECHAZADO));
    QCOMPARE(s.mensajes, u"Elija con --perfil:\nEJE A\nEJE B/R1\nEJE B/R2\n");
    QVERIFY(!QFile::exists(destino));
    const Salida sin_ejes = Correr({"convertir", Muestra("eje1_t.xml"), dir.filePath("c.ssh")});
    QCOMPARE(sin_ejes.estado, int(RECHAZADO));
    QVERIFY(sin_ejes.mensajes.contains(u"no tiene nada"));
}

PRUEBA(TestConvertidor)
#include "TestConvertidor.moc"
