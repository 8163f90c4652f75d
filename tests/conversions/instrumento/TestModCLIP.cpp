#include "conversions/instrumento/ModCLIP.h"
#include "core/Ficheros.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestModCLIP : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void vertice_data();
    void vertice();
    void vertice_con_letras_avisa();
    void un_campo_sin_marca_deja_lo_que_habia();
    void largo_de_la_curva_data();
    void largo_de_la_curva();
    void la_primera_pendiente_parte_de_cero();
    void la_cota_de_una_pendiente_se_redondea_al_par();
    void la_linea_2_es_vertice_solo_con_tres_campos();
    void los_campos_de_mas_de_la_plantilla_quedan();
    void el_ultimo_con_radio_queda_como_esta();
    void linea_de_dos_campos_avisa_y_no_sale();
    void marca_desconocida_anota_y_sigue();
    void vecinos_sin_marca_dejan_el_parametro();
    void fallos_de_cuentas_data();
    void fallos_de_cuentas();
    void lo_convertido_se_anade();
    void alz_sin_fichero();
    void ter_data();
    void ter();
    void ter_con_errores_no_toca_la_salida();

private:
    QString Fichero(const QByteArray& bytes);
    QTemporaryDir dir;
};

QString TestModCLIP::Fichero(const QByteArray& bytes)
{
    const QString ruta = dir.filePath(QStringLiteral("entrada.dat"));
    Ficheros::Escribir(ruta, bytes);
    return ruta;
}

void TestModCLIP::vertice_data()
{
    QTest::addColumn<QString>("linea");
    QTest::addColumn<bool>("bien");
    QTest::addColumn<double>("pk");
    QTest::addColumn<double>("valor");
    QTest::addColumn<double>("parametro");
    QTest::addColumn<QString>("marcas");
    QTest::newRow("cota y radio") << "0.000,100.500C,1000R" << true << 0.0 << 100.5 << 1000.0
                                  << "CR";
    QTest::newRow("pendiente y tangente")
        << "120,-3.25P,45.5T" << true << 120.0 << -3.25 << 45.5 << "PT";
    QTest::newRow("minusculas y flecha") << "1,2c,3f" << true << 1.0 << 2.0 << 3.0 << "CF";
    QTest::newRow("blancos") << "  1 , 2C , 3R  " << true << 1.0 << 2.0 << 3.0 << "CR";
    QTest::newRow("dos campos") << "1,2C" << false << 0.0 << 0.0 << 0.0 << "";
    QTest::newRow("coma decimal son mas campos") << "1,5,2C,3R" << false << 0.0 << 0.0 << 0.0 << "";
    QTest::newRow("vacia") << "" << false << 0.0 << 0.0 << 0.0 << "";
}

void TestModCLIP::vertice()
{
    QFETCH(QString, linea);
    QFETCH(bool, bien);
    const Interfaz_Guion guion;
    Vertice_CLIP v;
    QCOMPARE(Leer_Vertice(linea, v), bien);
    QTEST(v.pk, "pk");
    QTEST(v.valor, "valor");
    QTEST(v.parametro, "parametro");
    const QString marcas = v.marca2.isNull() ? QString() : QString(v.marca2) + v.marca3;
    QTEST(marcas, "marcas");
    QVERIFY(guion.avisos.isEmpty());
}

void TestModCLIP::vertice_con_letras_avisa()
{
    const Interfaz_Guion guion;
    Vertice_CLIP v;
    QVERIFY(!Leer_Vertice(QStringLiteral("1,xC,3R"), v));
    QCOMPARE(
        guion.Textos(),
        QStringList{"Se produjo un error al convertir a formato de Al.Verticales en el contenido "
                    "de la línea 1,xC,3R\r(13) No coinciden los tipos"});
    QCOMPARE(guion.avisos[0].icono, Icono::Critico);
}

void TestModCLIP::un_campo_sin_marca_deja_lo_que_habia()
{
    const Interfaz_Guion guion;
    Vertice_CLIP v;
    QVERIFY(Leer_Vertice(QStringLiteral("1,2C,3R"), v));
    QVERIFY(Leer_Vertice(QStringLiteral("10,20,30X"), v));
    QCOMPARE(v.pk, 10.0);
    QCOMPARE(v.valor, 2.0);
    QCOMPARE(v.parametro, 3.0);
    QCOMPARE(v.marca2, QChar(u'0'));
    QCOMPARE(v.marca3, QChar(u'X'));
    QVERIFY(guion.avisos.isEmpty());
}

void TestModCLIP::largo_de_la_curva_data()
{
    QTest::addColumn<QByteArray>("anterior");
    QTest::addColumn<QByteArray>("actual");
    QTest::addColumn<QByteArray>("siguiente");
    QTest::addColumn<QString>("linea");
    // T: twice the tangent, whatever the neighbours.
    QTest::newRow("T C C") << QByteArray("0,100C,0T") << QByteArray("100,102C,45.5T")
                           << QByteArray("200,101C,0T") << "100.000,102.000,91.000";
    QTest::newRow("T sin vecinos") << QByteArray("titulo") << QByteArray("100,102C,45.5T")
                                   << QByteArray("otro") << "100.000,102.000,91.000";
    // out = -1 %, in = 2 %: t = -3.
    QTest::newRow("R C C") << QByteArray("0,100C,0T") << QByteArray("100,102C,1000R")
                           << QByteArray("200,101C,0T") << "100.000,102.000,30.000";
    // in is the slope of the vertex before; no division by 100.
    QTest::newRow("R P C") << QByteArray("0,2P,0T") << QByteArray("100,102C,1000R")
                           << QByteArray("200,101C,0T") << "100.000,102.000,3000.000";
    // in is the vertex's own elevation: t = -0.01 - 1.02.
    QTest::newRow("R C P") << QByteArray("0,100C,0T") << QByteArray("100,102C,1000R")
                           << QByteArray("200,-1P,0T") << "100.000,102.000,1030.000";
    // The vertex before lies 1 m high (2 % of 50 m): in = 101 %.
    QTest::newRow("R P P") << QByteArray("50,2P,0T") << QByteArray("150,102C,1000R")
                           << QByteArray("200,-1P,0T") << "150.000,102.000,1020.000";
    // R with a slope of its own: z is the slope in C C (out = 99 %, in = -98 %).
    QTest::newRow("R C C con P propio") << QByteArray("0,100C,0T") << QByteArray("100,2P,1000R")
                                        << QByteArray("200,101C,0T") << "100.000,102.000,1970.000";
    // 100 |8p / t| with t = -3.
    QTest::newRow("F C C") << QByteArray("0,100C,0T") << QByteArray("100,102C,1.1F")
                           << QByteArray("200,101C,0T") << "100.000,102.000,293.000";
    // t = -0.01 - 1.02: 12 / 1.03 = 11.65.
    QTest::newRow("F P C") << QByteArray("0,2P,0T") << QByteArray("100,102C,1.5F")
                           << QByteArray("200,101C,0T") << "100.000,102.000,12.000";
    // The elevation of step P (2 m) counts in out, the slope itself in in: out = -1 %.
    QTest::newRow("F P C con P propio") << QByteArray("0,0P,0T") << QByteArray("100,2P,1.5F")
                                        << QByteArray("200,1C,0T") << "100.000,2.000,400.000";
    QTest::newRow("F C P") << QByteArray("0,100C,0T") << QByteArray("100,102C,1.5F")
                           << QByteArray("200,-1P,0T") << "100.000,102.000,12.000";
    // t = -0.01 - 1.01: 80 / 1.02 = 78.43.
    QTest::newRow("F P P") << QByteArray("50,2P,0T") << QByteArray("150,102C,10F")
                           << QByteArray("200,-1P,0T") << "150.000,102.000,78.000";
    // 80 / 1.28 = 62.5 goes to the even number.
    QTest::newRow("F al par") << QByteArray("0,100C,0T") << QByteArray("100,127C,10F")
                              << QByteArray("200,-1P,0T") << "100.000,127.000,62.000";
}

void TestModCLIP::largo_de_la_curva()
{
    QFETCH(QByteArray, anterior);
    QFETCH(QByteArray, actual);
    QFETCH(QByteArray, siguiente);
    QFETCH(QString, linea);
    Interfaz_Guion guion;
    QString texto;
    Convertir_Alz(Fichero("*ALZ\r\n" + anterior + "\r\n" + actual + "\r\n" + siguiente + "\r\n"),
                  texto);
    const QStringList lineas = texto.split(QStringLiteral("\r\n"));
    const bool titulos = anterior == "titulo";
    QVERIFY2(lineas.size() == (titulos ? 2 : 4), qPrintable(texto));
    QCOMPARE(lineas[titulos ? 0 : 1], linea);
    // A heading where a vertex should stand is told, and passed over.
    QCOMPARE(guion.avisos.size(), qsizetype(titulos));
}

void TestModCLIP::la_primera_pendiente_parte_de_cero()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(Convertir_Alz(Fichero("*ALZ\r\n400,3P,0T\r\n500,-2P,10t"), texto));
    QCOMPARE(texto, QString("400.000,12.000,0.000\r\n500.000,10.000,20.000\r\n"));
    QVERIFY(guion.avisos.isEmpty());
}

void TestModCLIP::la_cota_de_una_pendiente_se_redondea_al_par()
{
    const Interfaz_Guion guion;
    QString texto;
    // 12.5 goes to 12; the next vertex builds on 12, not on 12.5.
    QVERIFY(Convertir_Alz(Fichero("*ALZ\n500,2.5P,0T\n600,1.4P,0T\n"), texto));
    QCOMPARE(texto, QString("500.000,12.000,0.000\r\n600.000,13.000,0.000\r\n"));
}

void TestModCLIP::la_linea_2_es_vertice_solo_con_tres_campos()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(Convertir_Alz(Fichero("*ALZ\r\nEJE 1\r\n0,100C,0T\r\n10,101C,0T\r\n"), texto));
    QCOMPARE(texto, QString("0.000,100.000,0.000\r\n10.000,101.000,0.000\r\n"));
}

void TestModCLIP::los_campos_de_mas_de_la_plantilla_quedan()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(Convertir_Alz(Fichero("*ALZ\r\na,b,c,d,e\r\n0,100C,0T\r\n10,101C,0T\r\n"), texto));
    QCOMPARE(texto, QString("0.000,100.000,0.000,d,e\r\n10.000,101.000,0.000,d,e\r\n"));
}

void TestModCLIP::el_ultimo_con_radio_queda_como_esta()
{
    const Interfaz_Guion guion;
    for (const QByteArray marca : {"R", "F"}) {
        QString texto;
        QVERIFY(
            !Convertir_Alz(Fichero("*ALZ\r\n0,100C,0T\r\n10,101C,250" + marca + "\r\n"), texto));
        QCOMPARE(texto, QString("0.000,100.000,0.000\r\n10.000,101.000,250.000\r\n"));
    }
    // So does the first, whose neighbour is the title.
    QString texto;
    QVERIFY(!Convertir_Alz(Fichero("*ALZ\r\n0,100C,7R\r\n10,101C,0T\r\n"), texto));
    QCOMPARE(texto, QString("0.000,100.000,7.000\r\n10.000,101.000,0.000\r\n"));
    QVERIFY(guion.avisos.isEmpty());
}

void TestModCLIP::linea_de_dos_campos_avisa_y_no_sale()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(!Convertir_Alz(Fichero("*ALZ\r\n0,100C,0T\r\n5,100C\r\n10,1P,0T\r\n"), texto));
    QCOMPARE(texto, QString("0.000,100.000,0.000\r\n10.000,100.000,0.000\r\n"));
    QCOMPARE(guion.Textos(), QStringList{"Número incorrecto de parámetros en la línea 3"});
    QCOMPARE(guion.avisos[0].icono, Icono::Critico);
}

void TestModCLIP::marca_desconocida_anota_y_sigue()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(!Convertir_Alz(Fichero("*ALZ\r\n0,100C,8T\r\n10,101C,5X\r\n20,102C,1T\r\n"), texto));
    QCOMPARE(texto,
             QString("0.000,100.000,16.000\r\n10.000,101.000,8.000\r\n20.000,102.000,2.000\r\n"));
    QVERIFY(guion.avisos.isEmpty());
}

void TestModCLIP::vecinos_sin_marca_dejan_el_parametro()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(Convertir_Alz(Fichero("*ALZ\r\n0,100C,0T\r\n10,101C,55R\r\n20,102,1T\r\n"), texto));
    QCOMPARE(texto.split(QStringLiteral("\r\n"))[1], QString("10.000,101.000,55.000"));
    // A field 2 without its flag keeps the elevation of the vertex before.
    QCOMPARE(texto.split(QStringLiteral("\r\n"))[2], QString("20.000,101.000,2.000"));
}

void TestModCLIP::fallos_de_cuentas_data()
{
    QTest::addColumn<QByteArray>("actual");
    QTest::addColumn<QByteArray>("siguiente");
    QTest::addColumn<QString>("error");
    QTest::newRow("mismo punto kilometrico")
        << QByteArray("100,102C,10R") << QByteArray("100,101C,0T") << "(11) División por cero";
    QTest::newRow("el mismo vertice")
        << QByteArray("100,102C,10R") << QByteArray("100,102C,0T") << "(6) Desbordamiento";
    QTest::newRow("flecha sin quiebro")
        << QByteArray("100,102C,10F") << QByteArray("200,104C,0T") << "(11) División por cero";
    QTest::newRow("mas de 16 bits")
        << QByteArray("100,102C,100F") << QByteArray("200,104.001C,0T") << "(6) Desbordamiento";
}

void TestModCLIP::fallos_de_cuentas()
{
    QFETCH(QByteArray, actual);
    QFETCH(QByteArray, siguiente);
    QFETCH(QString, error);
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(!Convertir_Alz(Fichero("*ALZ\r\n0,100C,0T\r\n" + actual + "\r\n" + siguiente + "\r\n"),
                           texto));
    QCOMPARE(texto, QString("0.000,100.000,0.000\r\n"));
    QCOMPARE(guion.Textos(),
             QStringList{"Se produjo un error al convertir a formato de Al.Verticales "
                         "cuando evaluaba la línea 3\r" +
                         error});
}

void TestModCLIP::lo_convertido_se_anade()
{
    const Interfaz_Guion guion;
    QString texto = QStringLiteral("antes\r\n");
    QVERIFY(Convertir_Alz(Fichero("*ALZ\n1,2C,3T"), texto));
    QCOMPARE(texto, QString("antes\r\n1.000,2.000,6.000\r\n"));
}

void TestModCLIP::alz_sin_fichero()
{
    const Interfaz_Guion guion;
    QString texto;
    QVERIFY(!Convertir_Alz(dir.filePath(QStringLiteral("no.alz")), texto));
    QVERIFY(texto.isEmpty());
    QCOMPARE(guion.avisos.size(), 1);
    QVERIFY(guion.Textos()[0].startsWith(QStringLiteral(
        "Se produjo un error al convertir a formato de Al.Verticales cuando evaluaba "
        "la línea 0\r(53) ")));
}

void TestModCLIP::ter_data()
{
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<QByteArray>("salida");
    QTest::newRow("dos perfiles")
        << QByteArray("*TER\r\n    0.000,       2,  0  ,  0\r\n   5.250,   100.100\r\n"
                      "  -10.000,   101.250\r\n20,1\r\n0,1\r\n")
        << QByteArray(
               "    0.000,   5.250,   100.100\r\n    0.000,  -10.000,   101.250\r\n20,0,1\r\n");
    QTest::newRow("faltan filas") << QByteArray("0,5\n1,2\n") << QByteArray("0,1,2\r\n");
    QTest::newRow("linea vacia dentro")
        << QByteArray("7,2\n\n1,2\n") << QByteArray("7,\r\n7,1,2\r\n");
    QTest::newRow("cuenta que falta") << QByteArray("7\n8,1\n1,2") << QByteArray("8,1,2\r\n");
    QTest::newRow("cuenta negativa") << QByteArray("7,-2\n8,1\n1,2") << QByteArray("8,1,2\r\n");
    QTest::newRow("vacio") << QByteArray() << QByteArray();
    QTest::newRow("pagina") << QByteArray("7,1\n1,2,\xD1\x80") << QByteArray("7,1,2,\xD1\x80\r\n");
}

void TestModCLIP::ter()
{
    QFETCH(QByteArray, entrada);
    const Interfaz_Guion guion;
    const QString salida = dir.filePath(QStringLiteral("salida.ssp"));
    QVERIFY(Convertir_Ter(Fichero(entrada), salida));
    const QByteArray hecho = Ficheros::Leer(salida);
    QTEST(hecho, "salida");
    QVERIFY(guion.avisos.isEmpty());
}

void TestModCLIP::ter_con_errores_no_toca_la_salida()
{
    const Interfaz_Guion guion;
    const QString salida = dir.filePath(QStringLiteral("vieja.ssp"));
    Ficheros::Escribir(salida, "vieja");
    QVERIFY(!Convertir_Ter(dir.filePath(QStringLiteral("no.ter")), salida));
    QVERIFY(!Convertir_Ter(Fichero("1,1e15\n2,3\n"), salida));
    QCOMPARE(Ficheros::Leer(salida), QByteArray("vieja"));
    QCOMPARE(guion.avisos.size(), 2);
    QVERIFY(guion.Textos()[0].startsWith(QStringLiteral(
        "Se produjo un error al convertir a formato de Perfiles Transversales\r(53) ")));
    QCOMPARE(guion.Textos()[1],
             QString("Se produjo un error al convertir a formato de Perfiles Transversales\r(6) "
                     "Desbordamiento"));
}

PRUEBA(TestModCLIP)
#include "TestModCLIP.moc"
