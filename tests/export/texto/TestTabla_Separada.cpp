#include "core/Error_Ejecucion.h"
#include "export/texto/Tabla_Separada.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestTabla_Separada : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_texto_se_corta_data();
    void un_texto_se_corta();
    void un_texto_malo_dice_la_linea_data();
    void un_texto_malo_dice_la_linea();
    void cada_fila_sabe_su_linea();
    void un_numero_es_un_numero_entero_data();
    void un_numero_es_un_numero_entero();
    void un_numero_se_escribe_y_se_lee_igual_data();
    void un_numero_se_escribe_y_se_lee_igual();
};

void TestTabla_Separada::un_texto_se_corta_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<QChar>("separador");
    QTest::addColumn<QString>("cortado"); // cells with "|", lines with "/"
    const QChar tab = u'\t', coma = u',', blanco = u' ';
    QTest::newRow("tabulación") << QByteArray("a\tb\n1\t2\n") << tab << "a|b/1|2";
    QTest::newRow("CR LF") << QByteArray("a\tb\r\n1\t2\r\n") << tab << "a|b/1|2";
    QTest::newRow("sin fin de línea") << QByteArray("a\n1") << tab << "a/1";
    QTest::newRow("sin fin de línea, CR") << QByteArray("a\n1\r") << tab << "a/1";
    QTest::newRow("CR suelto") << QByteArray("a\n1\r2") << tab << "a/1\r2";
    QTest::newRow("marca") << QByteArray("\xEF\xBB\xBF"
                                         "a\n")
                           << tab << "a";
    QTest::newRow("acentos") << QByteArray("año\t€\n") << tab << "año|€";
    QTest::newRow("coma") << QByteArray("a,b\n1,2\n") << coma << "a|b/1|2";
    QTest::newRow("espacio") << QByteArray("a b\n1 2\n") << blanco << "a|b/1|2";
    QTest::newRow("celdas vacías") << QByteArray("a,b,c\n,,\n1,,3\n") << coma << "a|b|c/||/1||3";
    QTest::newRow("dos blancos") << QByteArray("a b c\n1  3\n") << blanco << "a|b|c/1||3";
    QTest::newRow("fila corta") << QByteArray("a,b,c\n1\n") << coma << "a|b|c/1";
    QTest::newRow("línea vacía") << QByteArray("a\n\n2\n") << tab << "a//2";
    QTest::newRow("sólo títulos") << QByteArray("a,b\n") << coma << "a|b";
    QTest::newRow("título vacío") << QByteArray("\n") << coma << "";
    QTest::newRow("comillas") << QByteArray("a,b\n\"1,5\",\"di \"\"x\"\"\"\r\n") << coma
                              << "a|b/1,5|di \"x\"";
    QTest::newRow("comillas vacías") << QByteArray("a,b\n\"\",\"\"\n") << coma << "a|b/|";
    QTest::newRow("comillas con líneas")
        << QByteArray("a,b\n\"1\r\n2\",3\n") << coma << "a|b/1\r\n2|3";
    QTest::newRow("comillas al final") << QByteArray("a\n\"x\"") << coma << "a/x";
    QTest::newRow("comillas en medio") << QByteArray("a\n5\" tubo\n") << coma << "a/5\" tubo";
    QTest::newRow("comillas con tabulación")
        << QByteArray("a\tb\n\"x\t\"y\"\n") << tab << "a|b/\"x|\"y\"";
}

static QString Unir(const Tabla_Separada& tabla)
{
    QStringList lineas{tabla.titulos.join('|')};
    for (const Tabla_Separada::Fila& fila : tabla.filas)
        lineas << fila.celdas.join('|');
    return lineas.join('/');
}

void TestTabla_Separada::un_texto_se_corta()
{
    QFETCH(QByteArray, texto);
    QFETCH(QChar, separador);
    QFETCH(QString, cortado);
    QCOMPARE(Unir(Leer_Tabla_Separada(texto, separador)), cortado);
}

void TestTabla_Separada::un_texto_malo_dice_la_linea_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("mensaje");
    const auto fila = [](const char* nombre, const QByteArray& texto, const char* mensaje,
                         int error = 13) {
        QTest::newRow(nombre) << texto << error << QString::fromUtf8(mensaje);
    };
    const char* vacio = "El texto está vacío: falta la línea de títulos";
    fila("vacío", "", vacio, 62);
    fila("sólo la marca", "\xEF\xBB\xBF", vacio, 62);
    fila("no es UTF-8", "a\nb\nc\xF1o\n", "Línea 3: el texto no es UTF-8");
    fila("UTF-8 cortado", "a\nb\xC3", "Línea 2: el texto no es UTF-8");
    fila("UTF-16",
         QByteArray("\xFF\xFE"
                    "a\0\n\0",
                    6),
         "Línea 1: el texto no es UTF-8");
    fila("nulo", QByteArray("a\nb\0\n", 5), "Línea 2: el texto tiene un carácter nulo");
    fila("celda de más", "a,b\n1,2\n1,2,3\n", "Línea 3: tiene 3 celdas, y hay 2 títulos");
    fila("comillas sin cerrar", "a\n\"b\nc\n", "Línea 2: las comillas no se cierran");
    fila("texto detrás", "a\n\"b\" c\n", "Línea 2: sobra texto detrás de las comillas");
    fila("texto detrás, más abajo", "a\n\"b\n\"c\n", "Línea 3: sobra texto detrás de las comillas");
}

void TestTabla_Separada::un_texto_malo_dice_la_linea()
{
    QFETCH(QByteArray, texto);
    QFETCH(int, error);
    QFETCH(QString, mensaje);
    try {
        Leer_Tabla_Separada(texto, u',');
        QFAIL("accepted");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, error);
        QCOMPARE(e.descripcion, mensaje);
    }
}

void TestTabla_Separada::cada_fila_sabe_su_linea()
{
    const Tabla_Separada tabla = Leer_Tabla_Separada("a\n\"1\n\n1\"\n2\n", u',');
    QCOMPARE(tabla.filas.size(), 2u);
    QCOMPARE(tabla.filas[0].linea, 2);
    QCOMPARE(tabla.filas[1].linea, 5);
}

void TestTabla_Separada::un_numero_es_un_numero_entero_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("es_numero");
    QTest::addColumn<double>("numero");
    for (const auto& [texto, numero] : {std::pair{"12", 12.0},
                                        {"-0.5", -0.5},
                                        {"+3", 3.0},
                                        {" 7 ", 7.0},
                                        {".5", 0.5},
                                        {"5.", 5.0},
                                        {"1e3", 1000.0},
                                        {"1E-2", 0.01},
                                        {"007", 7.0},
                                        {"4500000.123", 4500000.123}})
        QTest::newRow(texto) << texto << true << numero;
    for (const char* texto : {"", " ", "a", "12a", "1,5", "1 2", "--1", "1e", "e5", ".", "inf",
                              "nan", "0x10", "1e999", "1.2.3", "٣"})
        QTest::newRow(*texto ? texto : "vacío") << QString::fromUtf8(texto) << false << 0.0;
}

void TestTabla_Separada::un_numero_es_un_numero_entero()
{
    QFETCH(QString, texto);
    QFETCH(bool, es_numero);
    QFETCH(double, numero);
    const auto leido = Numero_De_Texto(texto);
    QCOMPARE(leido.has_value(), es_numero);
    if (es_numero) QCOMPARE(*leido, numero);
}

void TestTabla_Separada::un_numero_se_escribe_y_se_lee_igual_data()
{
    QTest::addColumn<double>("numero");
    QTest::addColumn<QString>("texto");
    QTest::newRow("cero") << 0.0 << "0";
    QTest::newRow("menos cero") << -0.0 << "0";
    QTest::newRow("cien mil") << 100000.0 << "100000";
    QTest::newRow("negativo") << -12.5 << "-12.5";
    QTest::newRow("décima") << 0.1 << "0.1";
    QTest::newRow("tercio") << 1.0 / 3 << "0.3333333333333333";
    QTest::newRow("15 cifras") << 999999999999999.0 << "999999999999999";
    QTest::newRow("coordenada") << 4500000.123 << "4500000.123";
    QTest::newRow("enorme") << 1e300 << "1e+300";
    QTest::newRow("menudo") << 2.5e-10 << "2.5e-10";
}

void TestTabla_Separada::un_numero_se_escribe_y_se_lee_igual()
{
    QFETCH(double, numero);
    QFETCH(QString, texto);
    QCOMPARE(Texto_De_Numero(numero), texto);
    QCOMPARE(*Numero_De_Texto(texto), numero);
}

PRUEBA(TestTabla_Separada)
#include "TestTabla_Separada.moc"
