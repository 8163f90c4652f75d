#include "rawfiles/Importar_Bruto.h"
#include "rawfiles/Importar_De_Disco.h"
#include "rawfiles/Lineas_Brutas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

// Files to sessions.
class TestImportar_Bruto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void las_lineas_de_un_fichero_data();
    void las_lineas_de_un_fichero();
    void serie_a_las_dos_formas_data();
    void serie_a_las_dos_formas();
    void serie_a_la_sesion();
    void serie_a_sin_puntos();
    void serie_a_corta_y_lo_dice();
    void serie_a_dice_lo_que_no_guarda();
    void serie_a_un_fallo_lleva_su_mensaje();
    void krt800_una_fila_por_linea_data();
    void krt800_una_fila_por_linea();
    void nivel_una_fila_por_linea();
    void un_fichero_vacio_da_una_sesion_vacia();
    void una_linea_que_no_cabe_se_nombra();
    void una_linea_de_un_mega();
    void el_nombre_se_corta_a_su_columna();
    void demasiadas_sesiones();

    void el_dialogo_de_cada_familia_data();
    void el_dialogo_de_cada_familia();
    void sin_fichero_avisa_y_se_queda();
    void la_opcion_elige_la_forma();
    void la_operacion_sale_de_su_lista();
    void sin_nombre_lleva_el_del_fichero();
    void otra_familia_se_pregunta();
    void elegir_el_fichero();

private:
    QString Fichero(const QByteArray& bytes)
    {
        banco->Escribir("entrada.txt", bytes);
        return banco->Ruta("entrada.txt");
    }
    QString Sesion(const QString& columna, const QString& id = "1")
    {
        return banco->Columna("SELECT " + columna + " FROM Sesiones WHERE ID = " + id).value(0);
    }
    std::unique_ptr<Banco_Bruto> banco;
};

static const QString HECHA = "Importación desde Fichero Bruto Finalizada";

void TestImportar_Bruto::las_lineas_de_un_fichero_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lineas");
    QTest::newRow("nada") << QByteArray() << QStringList{};
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << QStringList{"a", "b"};
    QTest::newRow("LF") << QByteArray("a\nb\n") << QStringList{"a", "b"};
    QTest::newRow("CR") << QByteArray("a\rb\r") << QStringList{"a", "b"};
    QTest::newRow("sin fin") << QByteArray("a\r\nb") << QStringList{"a", "b"};
    QTest::newRow("vacias") << QByteArray("\r\na\r\n\r\n") << QStringList{"", "a", ""};
    QTest::newRow("un CR dentro es de la linea") << QByteArray("a\rb\r\n") << QStringList{"a\rb"};
    QTest::newRow("altos") << QByteArray("\xd1\x80\x81\n")
                           << QStringList{QString("Ñ€") + QChar(0x81)};
}

void TestImportar_Bruto::las_lineas_de_un_fichero()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lineas);
    QCOMPARE(Lineas_Brutas(bytes), lineas);
}

void TestImportar_Bruto::serie_a_las_dos_formas_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("forma");
    const int maquina = int(Forma_Bruta::Maquina), lineas = int(Forma_Bruta::Lineas);
    QTest::newRow("maquina") << QByteArray("_JA_EE1_+P1 _h1_ v2  _+Ñ_h3_\r\n") << maquina;
    QTest::newRow("maquina en varias lineas")
        << QByteArray("_JA_E\r\nE1_+P1_h1_ v\r\n2  _+Ñ_h3_") << maquina;
    QTest::newRow("lineas") << QByteArray("JA\r\nEE1\r\n+P1\r\nh1\r\n v2  \r\n\r\n+Ñ\r\nh3\r\n")
                            << lineas;
}

void TestImportar_Bruto::serie_a_las_dos_formas()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, forma);
    // The source is UTF-8: into the page.
    const QString fichero = Fichero(Ansi::A_Bytes(QString::fromUtf8(bytes)));
    const Importacion hecho = Importar_Bruto(fichero, "Obra", 0, Forma_Bruta(forma));
    QCOMPARE(banco->Avisos(), QStringList{HECHA});
    QVERIFY(hecho.completa);
    QCOMPARE(hecho.sesion, QString("1"));
    QCOMPARE(banco->Filas("1"), (QStringList{"P1|h1|JA^EE1", "P1| v2  |JA^EE1", "Ñ|h3|JA^EE1"}));
    QCOMPARE(banco->interfaz.cursor, 0);
}

void TestImportar_Bruto::serie_a_la_sesion()
{
    banco->Familia("PX7");
    Importar_Bruto(Fichero("_+P_x1_y2_+Q_x1_"), "Obra", 1, Forma_Bruta::Maquina);
    QCOMPARE(Sesion("Npuntos"), QString("2"));
    QCOMPARE(Sesion("NFichero"), QString("Obra"));
    QCOMPARE(Sesion("OPE"), QString("1"));
    QCOMPARE(Sesion("Maquina"), QString("PX7"));
    QCOMPARE(Sesion("MaqDes"), QString("PX7-1"));
    QCOMPARE(banco->Avisos(), QStringList{HECHA});
    Importar_Bruto(Fichero("_+P_x1_"), "Otra", 1, Forma_Bruta::Maquina);
    QCOMPARE(Sesion("NFichero", "2"), QString("Otra"));
    banco->Avisos();
}

void TestImportar_Bruto::serie_a_sin_puntos()
{
    const auto hecho = Importar_Bruto(Fichero("h1\r\n"), "Obra", 2, Forma_Bruta::Lineas);
    QVERIFY(hecho.completa);
    const QStringList avisos = banco->Avisos();
    QCOMPARE(avisos.mid(0, 2), (QStringList{"El Fichero no contenía Puntos", HECHA}));
    QVERIFY(avisos[2].contains("1: h1"));
    QCOMPARE(Sesion("Npuntos"), QString("0"));
    // A machine file read as lines is one unknown record.
    Importar_Bruto(Fichero("_+P_h1_"), "Obra", 0, Forma_Bruta::Lineas);
    QCOMPARE(banco->Avisos().value(0), QString("El Fichero no contenía Puntos"));
    QCOMPARE(banco->Filas("2"), QStringList{});
}

void TestImportar_Bruto::serie_a_corta_y_lo_dice()
{
    const QByteArray largo = "c" + QByteArray(300, 'x'), punto = "+" + QByteArray(60, 'p');
    const auto hecho = Importar_Bruto(Fichero(punto + "\r\n" + largo + "\r\nh2\r\n"), "Obra", 0,
                                      Forma_Bruta::Lineas);
    QVERIFY(hecho.completa);
    const QString p(50, u'p');
    QCOMPARE(banco->Filas("1"), (QStringList{p + "|c" + QString(254, u'x') + "|", p + "|h2|"}));
    const QStringList avisos = banco->Avisos();
    QCOMPARE(avisos[0], HECHA);
    QVERIFY(avisos[1].startsWith("Registros cortados al ancho de su columna (2):\r\n1: +ppp"));
    QVERIFY(avisos[1].contains("\r\n2: cxxx"));
}

void TestImportar_Bruto::serie_a_dice_lo_que_no_guarda()
{
    Importar_Bruto(Fichero("basura_+P_h1_Zx_ EE9_+P_v1_EE5_"), "Obra", 0, Forma_Bruta::Maquina);
    QCOMPARE(banco->Filas("1"), (QStringList{"P|h1|", "P|v1|"}));
    const QStringList avisos = banco->Avisos();
    QCOMPARE(avisos.value(1), QString("Registros que la base de datos no guarda (4); siguen en el "
                                      "fichero:\r\nbasura\r\n3: Zx\r\n4:  EE9\r\n7: EE5"));
    QVERIFY(banco->aviso.endsWith("guardados una vez: 1"));
    Importar_Bruto(Fichero("_+P_h1_"), "Obra", 0, Forma_Bruta::Maquina);
    QVERIFY(banco->aviso.isEmpty());
    banco->Avisos();
}

void TestImportar_Bruto::serie_a_un_fallo_lleva_su_mensaje()
{
    QVERIFY(!Importar_Bruto(banco->Ruta("no hay"), "Obra", 0, Forma_Bruta::Lineas).completa);
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error al importar el Fichero en Bruto\r(53) "));
    QCOMPARE(banco->Columna("SELECT ID FROM Sesiones"), QStringList{});
    QCOMPARE(banco->interfaz.cursor, 0);
}

void TestImportar_Bruto::krt800_una_fila_por_linea_data()
{
    QTest::addColumn<int>("ope");
    QTest::addColumn<QStringList>("filas");
    QTest::newRow("puntos") << 4
                            << QStringList{"P1|P1,1,2,3|", "||", "sin comas|sin comas|",
                                           "Ñ |Ñ ,4 |"};
    QTest::newRow("medicion") << 0 << QStringList{"|P1,1,2,3|", "||", "|sin comas|", "|Ñ ,4 |"};
    QTest::newRow("perfiles") << 7 << QStringList{"|P1,1,2,3|", "||", "|sin comas|", "|Ñ ,4 |"};
}

void TestImportar_Bruto::krt800_una_fila_por_linea()
{
    QFETCH(int, ope);
    QFETCH(QStringList, filas);
    banco->Familia("KRT800");
    const auto hecho =
        Importar_KRT800(Fichero("P1,1,2,3\r\n\r\nsin comas\r\n\xd1 ,4 "), "Obra", ope);
    QVERIFY(hecho.completa);
    QCOMPARE(banco->Avisos(), QStringList{HECHA});
    QCOMPARE(banco->Filas("1"), filas);
    QCOMPARE(Sesion("Npuntos"), QString("4"));
    QCOMPARE(Sesion("OPE"), QString::number(ope));
    QCOMPARE(banco->Columna("SELECT Secuencia FROM Registros"), (QStringList{"1", "2", "3", "4"}));
}

void TestImportar_Bruto::nivel_una_fila_por_linea()
{
    banco->Familia("NV400");
    QVERIFY(Importar_Nivel(Fichero("b,03,OBRA,1,\r\ng,03,2,3,\r\n"), "Obra").completa);
    QCOMPARE(banco->Avisos(), QStringList{HECHA});
    QCOMPARE(banco->Filas("1"), (QStringList{"|b,03,OBRA,1,|", "|g,03,2,3,|"}));
    QCOMPARE(Sesion("Npuntos"), QString("2"));
    QCOMPARE(Sesion("Maquina"), QString("NV400"));
    QCOMPARE(Sesion("OPE"), QString("0"));
}

void TestImportar_Bruto::un_fichero_vacio_da_una_sesion_vacia()
{
    banco->Familia("KRT800");
    QVERIFY(Importar_KRT800(Fichero(""), "Obra", 4).completa);
    banco->Familia("NV400");
    QVERIFY(Importar_Nivel(Fichero(""), "Obra").completa);
    QCOMPARE(banco->Avisos(), (QStringList{HECHA, HECHA}));
    QCOMPARE(Sesion("Npuntos"), QString("0"));
    QCOMPARE(Sesion("Npuntos", "2"), QString("0"));
}

void TestImportar_Bruto::una_linea_que_no_cabe_se_nombra()
{
    banco->Familia("KRT800");
    const auto hecho =
        Importar_KRT800(Fichero("P1,1\r\nP2," + QByteArray(300, '1') + "\r\nP3,1\r\n"), "Obra", 0);
    QVERIFY(!hecho.completa);
    QCOMPARE(hecho.sesion, QString("1"));
    QString aviso = banco->Avisos().value(0);
    QVERIFY(aviso.startsWith("Se produjo un error al importar un fichero bruto\r(3163) Línea 2: "));
    QCOMPARE(banco->Filas("1"), QStringList{});
    QCOMPARE(Sesion("NFichero"), QString("Obra"));
    QCOMPARE(Sesion("Npuntos"), QString());
    QVERIFY(!Importar_KRT800(Fichero(QByteArray(60, 'P') + ",1\r\n"), "Obra", 4).completa);
    QVERIFY(banco->Avisos().value(0).contains("(3163) Línea 1: "));
    QCOMPARE(banco->interfaz.cursor, 0);
}

void TestImportar_Bruto::una_linea_de_un_mega()
{
    const QString fichero = Fichero(QByteArray(1 << 20, 'h') + "\r\nh1\r\n");
    QVERIFY(Importar_Bruto(fichero, "Obra", 0, Forma_Bruta::Lineas).completa);
    QCOMPARE(banco->Filas("1"), (QStringList{"|" + QString(255, u'h') + "|", "|h1|"}));
    QVERIFY(banco->Avisos().value(1).size() < 200);
    banco->Familia("NV400");
    QVERIFY(!Importar_Nivel(fichero, "Obra").completa);
    QVERIFY(banco->Avisos().value(0).contains("(3163) Línea 1: "));
}

void TestImportar_Bruto::el_nombre_se_corta_a_su_columna()
{
    QVERIFY(Importar_Bruto(Fichero("h1\r\n"), QString(80, u'n'), 0, Forma_Bruta::Lineas).completa);
    QCOMPARE(Sesion("NFichero"), QString(50, u'n'));
    banco->Avisos();
}

void TestImportar_Bruto::demasiadas_sesiones()
{
    Poner_Sesion(*banco, 32767, "KRT300", 0, {});
    QVERIFY(!Importar_Bruto(Fichero("h1\r\n"), "Obra", 0, Forma_Bruta::Lineas).completa);
    QVERIFY(banco->Avisos().value(0).startsWith(
        "Se produjo un error al importar el Fichero en Bruto\r(6) "));
    QCOMPARE(banco->Columna("SELECT ID FROM Registros"), QStringList{});
}

void TestImportar_Bruto::el_dialogo_de_cada_familia_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QStringList>("tipos");
    QTest::addColumn<int>("tipo");
    QTest::addColumn<int>("opcion");
    QTest::newRow("KRT300") << "KRT300"
                            << QStringList{"Datos de Medición", "Datos de Coordenadas",
                                           "Librería de Códigos"}
                            << 2 << 1;
    QTest::newRow("PX7") << "PX7" << QStringList{"Datos de Medición"} << 0 << 0;
    QTest::newRow("KRT800") << "KRT800"
                            << QStringList{"Datos de Medición", "Puntos", "Perfiles Transversales"}
                            << 0 << 0;
    QTest::newRow("NV400") << "NV400" << QStringList{"Datos de Medición"} << 0 << 0;
}

void TestImportar_Bruto::el_dialogo_de_cada_familia()
{
    QFETCH(QString, maquina);
    QFETCH(QStringList, tipos);
    QFETCH(int, tipo);
    QFETCH(int, opcion);
    banco->Familia(maquina);
    const Dialogo_Importar d = Abrir_Importar();
    QCOMPARE(d.tipos.textos, tipos);
    QCOMPARE(Contar_Trozos(d.tipos.tag, QString(QChar(SEP_LISTA))), tipos.size());
    QCOMPARE(d.tipo, tipo);
    QCOMPARE(d.opcion, opcion);
}

void TestImportar_Bruto::sin_fichero_avisa_y_se_queda()
{
    Dialogo_Importar d = Abrir_Importar();
    QVERIFY(!Importar_De_Disco(d));
    QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Exclamacion);
    QCOMPARE(banco->Avisos(), QStringList{"Debe especificar un nombre de fichero"});
    for (const QString& ruta : {banco->Ruta("no hay"), Fichero("")}) {
        d.fichero = ruta;
        QVERIFY(!Importar_De_Disco(d));
        QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Exclamacion);
        QCOMPARE(banco->Avisos(), QStringList{"El Fichero especificado no existe"});
    }
    QCOMPARE(banco->Columna("SELECT ID FROM Sesiones"), QStringList{});
}

void TestImportar_Bruto::la_opcion_elige_la_forma()
{
    Dialogo_Importar d = Abrir_Importar();
    d.tipo = 0;
    d.nombre = "Obra";
    for (const int opcion : {1, 2}) {
        d.opcion = opcion;
        d.fichero = Fichero("+P\r\nh+1\r\n");
        QVERIFY(Importar_De_Disco(d)->completa);
    }
    d.opcion = 0;
    d.fichero = Fichero("_+P_h+1_\r\n");
    QVERIFY(Importar_De_Disco(d)->completa);
    for (const char* id : {"1", "2", "3"})
        QCOMPARE(banco->Filas(id), QStringList{"P|h+1|"});
    QCOMPARE(banco->Avisos(), (QStringList{HECHA, HECHA, HECHA}));
}

void TestImportar_Bruto::la_operacion_sale_de_su_lista()
{
    banco->Familia("KRT800");
    Dialogo_Importar d = Abrir_Importar();
    d.tipo = 1;
    d.fichero = Fichero("P1,1,2,3\r\n");
    QVERIFY(Importar_De_Disco(d)->completa);
    QCOMPARE(Sesion("OPE"), QString("4"));
    QCOMPARE(banco->Filas("1"), QStringList{"P1|P1,1,2,3|"});
    banco->Avisos();
}

void TestImportar_Bruto::sin_nombre_lleva_el_del_fichero()
{
    Dialogo_Importar d = Abrir_Importar();
    d.tipo = 0;
    d.fichero = Fichero("+P\r\nh+1\r\n");
    QVERIFY(Importar_De_Disco(d));
    QCOMPARE(Sesion("NFichero"), QString("entrada"));
    banco->Avisos();
}

void TestImportar_Bruto::otra_familia_se_pregunta()
{
    Dialogo_Importar d = Abrir_Importar();
    d.tipo = 0;
    d.fichero = Fichero("STN E1,1.5,V\r\nSS 1,1.5,C\r\nSD 1,2,3\r\n");
    banco->interfaz.respuestas = {false};
    QVERIFY(!Importar_De_Disco(d));
    QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Pregunta);
    QCOMPARE(banco->Avisos(), QStringList{"El fichero parece de un KRT800 y no de un KRT300. "
                                          "¿ Desea importarlo de todas formas ?"});
    QCOMPARE(banco->Columna("SELECT ID FROM Sesiones"), QStringList{});
    banco->interfaz.respuestas = {true};
    QVERIFY(Importar_De_Disco(d));
    QCOMPARE(banco->Columna("SELECT ID FROM Sesiones"), QStringList{"1"});
    banco->Avisos();
}

void TestImportar_Bruto::elegir_el_fichero()
{
    banco->interfaz.ficheros.push_back(std::nullopt);
    QVERIFY(!Elegir_Bruto());
    banco->interfaz.ficheros.push_back(Fichero_Elegido{"/x", 2});
    QCOMPARE(Elegir_Bruto().value_or(""), QString("/x"));
    const Peticion_Fichero& p = banco->interfaz.peticiones.value(0);
    QCOMPARE(p.titulo, QString("Seleccione el Fichero a Importar"));
    QCOMPARE(p.filtro, QString("Todos los archivos (*.*)|*.*|Archivos de texto (*.txt)|*.txt"));
    QCOMPARE(p.indice_filtro, 1);
    QVERIFY(!p.guardar);
}

PRUEBA(TestImportar_Bruto)
#include "TestImportar_Bruto.moc"
