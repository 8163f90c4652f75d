#include "app/cli/Ordenes.h"
#include "tests/apoyo/Prueba.h"

#include <QBuffer>

class TestOrdenes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void el_mal_uso_da_estado_2_data();
    void el_mal_uso_da_estado_2();
    void la_ayuda_lista_cada_orden();
    void los_argumentos_se_cortan();
};

static int Correr(const QStringList& palabras, QByteArray* salida = nullptr,
                  QByteArray* errores = nullptr)
{
    QBuffer s, e;
    s.open(QIODevice::WriteOnly);
    e.open(QIODevice::WriteOnly);
    Contexto c;
    c.dir = QStringLiteral("/no/existe");
    c.salida = &s;
    c.errores = &e;
    const int estado = Ejecutar_Orden(c, palabras);
    if (salida) *salida = s.data();
    if (errores) *errores = e.data();
    return estado;
}

void TestOrdenes::el_mal_uso_da_estado_2_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::newRow("nada") << QStringList{};
    QTest::newRow("desconocida") << QStringList{"bailar"};
    QTest::newRow("dir sin valor") << QStringList{"ayuda", "--dir"};
}

void TestOrdenes::el_mal_uso_da_estado_2()
{
    QFETCH(QStringList, palabras);
    QByteArray salida, errores;
    QCOMPARE(Correr(palabras, &salida, &errores), int(MAL_USO));
    QVERIFY(salida.isEmpty());
    QVERIFY(!errores.isEmpty());
}

void TestOrdenes::la_ayuda_lista_cada_orden()
{
    QByteArray salida;
    QCOMPARE(Correr({"--dir", "/x", "ayuda", "--si"}, &salida), int(HECHO));
    for (const Orden& o : Ordenes())
        QVERIFY(salida.contains(o.uso.toUtf8()));
    // The kinds and the separators are those of their tables.
    QVERIFY(salida.contains("  exportar ID --formato NOMBRE --tipo txf|txt|xls|mdb --salida "
                            "FICHERO [--separador espacio|coma|tabulacion] "
                            "[--version \"Excel 3.0\"|\"Excel 4.0\"|\"Excel 95\"|\"Excel 97\"] "
                            "[--numeros] [--titulos si|no] [--desplazamiento X,Y,Z] [--anillo] "
                            "[--nivelacion]\n"));
}

void TestOrdenes::los_argumentos_se_cortan()
{
    const Argumentos a({"uno", "--n", "3", "--t", "--x=a=b", "--", "--dos"}, {"n", "x"}, {"t"});
    QCOMPARE(a.Sueltos(0, 9), (QStringList{"uno", "--dos"}));
    QCOMPARE(a.Numero("n"), 3);
    QVERIFY(a.Hay("t"));
    QCOMPARE(a.Opcion("x"), QStringLiteral("a=b"));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, a.Obligada("z"));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, a.Sueltos(0, 1));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, a.Sueltos(3, 3));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, Argumentos({"--n"}, {"n"}));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, Argumentos({"--q"}, {"n"}));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, Argumentos({"--n", "1", "--n", "2"}, {"n"}));
    QVERIFY_THROWS_EXCEPTION(Error_Uso, Numero_De("3x", "ID"));
}

PRUEBA(TestOrdenes)
#include "TestOrdenes.moc"
