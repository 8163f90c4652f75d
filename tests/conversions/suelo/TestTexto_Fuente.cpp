#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Texto_Fuente.h"
#include "tests/apoyo/Prueba.h"

#include <QBuffer>

namespace {

/// "number:text" of every non-empty line; the failure's reason ends the list.
QStringList Lineas(const QByteArray& bytes)
{
    QBuffer b;
    b.setData(bytes);
    b.open(QIODevice::ReadOnly);
    Texto_Fuente f(b);
    QStringList lineas;
    try {
        while (f.Siguiente())
            lineas << QString::number(f.Numero()) + u':' + f.Texto();
    } catch (const Fallo_Conversion& e) {
        lineas << QStringLiteral("%1!%2").arg(e.linea).arg(e.motivo);
    }
    return lineas;
}

} // namespace

class TestTexto_Fuente : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lineas_data();
    void lineas();
    void la_linea_mas_larga_que_se_lee();
    void las_lineas_pasan_de_un_bloque_a_otro();
    void rebobinar_empieza_de_nuevo();
    void un_dispositivo_que_falla_dice_por_que();
    void numeros_data();
    void numeros();
    void la_coma_solo_donde_se_admite();
    void estaciones_data();
    void estaciones();
    void sexagesimales_data();
    void sexagesimales();
    void campos();
    void comentarios();
    void nombre_de_eje();
    void el_informe_corta_y_cuenta();
};

void TestTexto_Fuente::lineas_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("esperado");
    QTest::newRow("vacio") << QByteArray() << QStringList();
    QTest::newRow("sin fin de linea") << QByteArray("a") << QStringList{"1:a"};
    QTest::newRow("CR LF y LF") << QByteArray("a\r\nb\nc\r\n") << QStringList{"1:a", "2:b", "3:c"};
    QTest::newRow("vacias saltadas, contadas")
        << QByteArray("\r\n  \t\r\na\r\n\n\nb") << QStringList{"3:a", "6:b"};
    QTest::newRow("marca UTF-8") << QByteArray("\xEF\xBB\xBF"
                                               "a\r\n")
                                 << QStringList{"1:a"};
    QTest::newRow("marca solo al principio") << QByteArray("a\n\xEF\xBB\xBF"
                                                           "b")
                                             << QStringList{"1:a", "2:\u00EF\u00BB\u00BFb"};
    QTest::newRow("byte 26 acaba") << QByteArray("a\r\nb\x1A"
                                                 "c\r\nd\r\n")
                                   << QStringList{"1:a", "2:b"};
    QTest::newRow("relleno tras 26") << QByteArray("a\r\n\x1A\0\0\0", 7) << QStringList{"1:a"};
    QTest::newRow("pagina 1252") << QByteArray("\xF1\x80") << QStringList{"1:\u00F1\u20AC"};
    QTest::newRow("binario") << QByteArray("a\nb\0c\n", 6)
                             << QStringList{"1:a", "2!El fichero no es un texto de 8 bits "
                                                   "(contiene bytes nulos)"};
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                          "a\0\n\0",
                                          6)
                            << QStringList{"1!El fichero no es un texto de 8 bits "
                                           "(contiene bytes nulos)"};
}

void TestTexto_Fuente::lineas()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, esperado);
    QCOMPARE(Lineas(bytes), esperado);
}

void TestTexto_Fuente::la_linea_mas_larga_que_se_lee()
{
    const QByteArray justa(Texto_Fuente::LINEA_MAXIMA, 'x');
    QCOMPARE(Lineas(justa + "\nb").size(), 2);
    const QStringList larga = Lineas("a\n" + justa + "x\nb");
    QCOMPARE(larga.size(), 2);
    QVERIFY(larga[1].startsWith(u"2!La línea es demasiado larga"));
    QVERIFY(Lineas(QByteArray(5'000'000, 'x'))[0].startsWith(u"1!La línea es demasiado larga"));
}

void TestTexto_Fuente::las_lineas_pasan_de_un_bloque_a_otro()
{
    QByteArray bytes;
    for (int i = 0; i < 60000; ++i)
        bytes += QByteArray::number(i) + "\r\n";
    const QStringList l = Lineas(bytes);
    QCOMPARE(l.size(), 60000);
    for (int i = 0; i < l.size(); ++i)
        QCOMPARE(l[i], QStringLiteral("%1:%2").arg(i + 1).arg(i));
}

void TestTexto_Fuente::rebobinar_empieza_de_nuevo()
{
    QBuffer b;
    b.setData("a\nb\n\x1A");
    b.open(QIODevice::ReadOnly);
    Texto_Fuente f(b);
    while (f.Siguiente()) {
    }
    f.Rebobinar();
    QVERIFY(f.Siguiente());
    QCOMPARE(f.Texto(), u"a");
    QCOMPARE(f.Numero(), 1);
}

void TestTexto_Fuente::un_dispositivo_que_falla_dice_por_que()
{
    class Roto : public QIODevice {
    public:
        Roto() { open(ReadOnly | Unbuffered); }
        qint64 readData(char*, qint64) override
        {
            setErrorString("el disco no responde");
            return -1;
        }
        qint64 writeData(const char*, qint64) override { return -1; }
    } roto;
    Texto_Fuente f(roto);
    try {
        f.Siguiente();
        QFAIL("no falla");
    } catch (const Fallo_Conversion& e) {
        QVERIFY(e.motivo.contains(u"el disco no responde"));
    }
}

void TestTexto_Fuente::numeros_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<bool>("es");
    QTest::addColumn<double>("valor");
    QTest::newRow("entero") << QByteArray("12") << true << 12.0;
    QTest::newRow("punto") << QByteArray("-0.125") << true << -0.125;
    QTest::newRow("coma") << QByteArray("1,5") << true << 1.5;
    QTest::newRow("mas") << QByteArray("+7") << true << 7.0;
    QTest::newRow("blancos") << QByteArray(" \t7 ") << true << 7.0;
    QTest::newRow("sin entera") << QByteArray(".5") << true << 0.5;
    QTest::newRow("sin decimales") << QByteArray("5.") << true << 5.0;
    QTest::newRow("E") << QByteArray("1.5E+03") << true << 1500.0;
    QTest::newRow("D") << QByteArray("1.5d-1") << true << 0.15;
    QTest::newRow("vacio") << QByteArray() << false << 0.0;
    QTest::newRow("signo") << QByteArray("-") << false << 0.0;
    QTest::newRow("mas menos") << QByteArray("+-1") << false << 0.0;
    QTest::newRow("punto solo") << QByteArray(".") << false << 0.0;
    QTest::newRow("dos puntos") << QByteArray("1.2.3") << false << 0.0;
    QTest::newRow("letra") << QByteArray("1x") << false << 0.0;
    QTest::newRow("exponente vacio") << QByteArray("1E") << false << 0.0;
    QTest::newRow("inf") << QByteArray("inf") << false << 0.0;
    QTest::newRow("nan") << QByteArray("nan") << false << 0.0;
    QTest::newRow("hexadecimal") << QByteArray("0x10") << false << 0.0;
    QTest::newRow("enorme") << QByteArray("1e15") << false << 0.0;
    QTest::newRow("grande") << QByteArray("999999999999999") << true << 999999999999999.0;
    QTest::newRow("desborda") << QByteArray("1e999") << false << 0.0;
    QTest::newRow("muchas cifras") << QByteArray("1" + QByteArray(200, '0')) << false << 0.0;
    QTest::newRow("ceros delante") << QByteArray(QByteArray(200, '0') + "1") << true << 1.0;
}

void TestTexto_Fuente::numeros()
{
    QFETCH(QByteArray, texto);
    QFETCH(bool, es);
    QFETCH(double, valor);
    const auto n = Campos_Fuente::Numero(texto);
    QCOMPARE(n.has_value(), es);
    if (es) QCOMPARE(*n, valor);
}

void TestTexto_Fuente::la_coma_solo_donde_se_admite()
{
    using Campos_Fuente::Marca;
    QVERIFY(!Campos_Fuente::Numero("1,5", Marca::Punto));
    QCOMPARE(*Campos_Fuente::Numero("1.5", Marca::Punto), 1.5);
    QVERIFY(!Campos_Fuente::Numero_PK("1+250,5", Marca::Punto));
}

void TestTexto_Fuente::estaciones_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<bool>("es");
    QTest::addColumn<double>("valor");
    QTest::newRow("numero") << QByteArray("1250.5") << true << 1250.5;
    QTest::newRow("kilometro") << QByteArray("1+250.000") << true << 1250.0;
    QTest::newRow("kilometro y coma") << QByteArray("12+000,125") << true << 12000.125;
    QTest::newRow("negativa") << QByteArray("-0+020") << true << -20.0;
    QTest::newRow("exponente") << QByteArray("1E+3") << true << 1000.0;
    QTest::newRow("sin metros") << QByteArray("1+") << false << 0.0;
    QTest::newRow("sin kilometros") << QByteArray("+") << false << 0.0;
    QTest::newRow("dos mas") << QByteArray("1+2+3") << false << 0.0;
    QTest::newRow("decimal delante") << QByteArray("1.5+200") << false << 0.0;
    QTest::newRow("signo detras") << QByteArray("1+-20") << false << 0.0;
}

void TestTexto_Fuente::estaciones()
{
    QFETCH(QByteArray, texto);
    QFETCH(bool, es);
    QFETCH(double, valor);
    const auto n = Campos_Fuente::Numero_PK(texto);
    QCOMPARE(n.has_value(), es);
    if (es) QCOMPARE(*n, valor);
}

void TestTexto_Fuente::sexagesimales_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<bool>("es");
    QTest::addColumn<double>("grados");
    QTest::newRow("completo") << QByteArray("45.3015") << true << 45 + 30 / 60.0 + 15 / 3600.0;
    QTest::newRow("entero") << QByteArray("90") << true << 90.0;
    QTest::newRow("minutos") << QByteArray("45.3") << true << 45.5;
    QTest::newRow("decimas de segundo") << QByteArray("0.000025") << true << 0.25 / 3600;
    QTest::newRow("negativo") << QByteArray("-10.3000") << true << -10.5;
    QTest::newRow("sin entera") << QByteArray(".30") << true << 0.5;
    QTest::newRow("60 minutos") << QByteArray("45.60") << false << 0.0;
    QTest::newRow("60 segundos") << QByteArray("45.0060") << false << 0.0;
    QTest::newRow("letras") << QByteArray("45.3x") << false << 0.0;
    QTest::newRow("exponente") << QByteArray("4E1") << false << 0.0;
}

void TestTexto_Fuente::sexagesimales()
{
    QFETCH(QByteArray, texto);
    QFETCH(bool, es);
    QFETCH(double, grados);
    const auto g = Campos_Fuente::Sexagesimal_A_Gon(texto);
    QCOMPARE(g.has_value(), es);
    if (es)
        QVERIFY2(qAbs(*g - grados * 10 / 9) < 1e-12, QByteArray::number(*g, 'g', 17).constData());
}

void TestTexto_Fuente::campos()
{
    const auto blancos = Campos_Fuente::Por_Blancos("  a \t b\r");
    QCOMPARE(blancos.size(), 2);
    QVERIFY(blancos[0] == "a" && blancos[1] == "b");
    QVERIFY(Campos_Fuente::Por_Blancos(" \t ").isEmpty());
    const auto comas = Campos_Fuente::Por_Separador(" a ,,b,", ',');
    QCOMPARE(comas.size(), 4);
    QVERIFY(comas[0] == "a" && comas[1].isEmpty() && comas[2] == "b" && comas[3].isEmpty());
    QCOMPARE(Campos_Fuente::Por_Separador("", ',').size(), 1);
}

void TestTexto_Fuente::comentarios()
{
    for (const char* si : {"* x", "; x", "# x", "PK", "  z", "\xF1"})
        QVERIFY2(Campos_Fuente::Es_Comentario(si), si);
    for (const char* no : {"1", " -1", ".5", "+1", "(", "", "\xB7"})
        QVERIFY2(!Campos_Fuente::Es_Comentario(no), no);
}

void TestTexto_Fuente::nombre_de_eje()
{
    QCOMPARE(*Campos_Fuente::Nombre_Eje(" EJE :  1 TRONCO "), u"1 TRONCO");
    QCOMPARE(*Campos_Fuente::Nombre_Eje("Eje: \xD1"), u"\u00D1");
    QVERIFY(!Campos_Fuente::Nombre_Eje("EJE 1"));
    QVERIFY(!Campos_Fuente::Nombre_Eje("EJES: 1"));
}

void TestTexto_Fuente::el_informe_corta_y_cuenta()
{
    Informe_Lectura i;
    i.Omitir(3, "1 2\tx", "Número ilegible");
    i.Omitir(0, {}, "Falta el final");
    QCOMPARE(i.Lineas(), (QStringList{"Línea 3: Número ilegible: \"1 2 x\"", "Falta el final"}));
    i.Fallar({"No hay datos", 0, {}});
    QCOMPARE(i.Lineas()[0], u"No hay datos");
    for (size_t n = 0; n < Informe_Lectura::MAXIMO; ++n)
        i.Omitir(9, QString(5000, u'x'), "m");
    QCOMPARE(i.Omisiones().size(), Informe_Lectura::MAXIMO);
    QCOMPARE(i.Lineas().last(), u"... y 2 más");
    QVERIFY(i.Omisiones().back().texto.size() < 200);
}

PRUEBA(TestTexto_Fuente)
#include "TestTexto_Fuente.moc"
