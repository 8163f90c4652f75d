#include "core/Trozos.h"
#include "tests/apoyo/Prueba.h"

class TestTrozos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void trozo_corta_por_el_separador_data();
    void trozo_corta_por_el_separador();
    void contar_y_buscar();
    void sacar_cambiar_insertar_quitar();
    void reemplazar_no_busca_lo_nuevo();
    void rellenos_y_espacios();
    void valores_tras_caracter();
    void lista_sql_deja_el_ultimo();
};

void TestTrozos::trozo_corta_por_el_separador_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("cadena");
    QTest::addColumn<QString>("trozo");
    QTest::newRow("segundo") << 2 << "a,b"
                             << "b";
    QTest::newRow("tercero") << 3 << "a,b"
                             << "";
    QTest::newRow("sin separador") << 1 << "abc"
                                   << "abc";
    QTest::newRow("sin separador, segundo") << 2 << "abc"
                                            << "";
    QTest::newRow("vacio") << 1 << ""
                           << "";
    QTest::newRow("hueco") << 2 << "a,,c"
                           << "";
    QTest::newRow("tras hueco") << 3 << "a,,c"
                                << "c";
    QTest::newRow("cero") << 0 << "a,b"
                          << "";
}

void TestTrozos::trozo_corta_por_el_separador()
{
    QFETCH(int, n);
    QFETCH(QString, cadena);
    QFETCH(QString, trozo);
    QCOMPARE(Trozo(n, cadena, QStringLiteral(",")), trozo);
    QCOMPARE(Trozo(n, cadena, QChar(u',')), trozo);
}

void TestTrozos::contar_y_buscar()
{
    QCOMPARE(Contar_Trozos("", ","), 1);
    QCOMPARE(Contar_Trozos("a,b,", ","), 3);
    QCOMPARE(Buscar_Trozo("a,b,b", "b", ","), 2);
    QCOMPARE(Buscar_Trozo("a,b", "c", ","), 0);
    QCOMPARE(Buscar_Trozo("a,,b", "", ","), 2);
}

void TestTrozos::sacar_cambiar_insertar_quitar()
{
    QString t = "a,b,c";
    QCOMPARE(Sacar_Trozo(1, t, ","), QString("a"));
    QCOMPARE(t, QString("a,b,c"));
    QCOMPARE(Sacar_Trozo(2, t, ","), QString("a"));
    QCOMPARE(t, QString("b,c"));
    QString ultimo = "x";
    QCOMPARE(Sacar_Trozo(0, ultimo, ","), QString("x"));
    QCOMPARE(ultimo, QString());

    QCOMPARE(Cambiar_Trozo("a,b,c", "X", 2, ","), QString("a,X,c"));
    QCOMPARE(Cambiar_Trozo("a,b", "X", 3, ","), QString());
    QCOMPARE(Insertar_Trozo("a,b", "X", 1, ","), QString("X,a,b"));
    QCOMPARE(Insertar_Trozo("a,b", "X", 5, ","), QString("a,b,X"));
    QCOMPARE(Quitar_Trozo("a,b,c", 1, ","), QString("b,c"));
    QCOMPARE(Quitar_Trozo("a,b,c", 3, ","), QString("a,b"));
    QCOMPARE(Quitar_Trozo("a", 1, ","), QString());
    QCOMPARE(Quitar_Trozo("a,b", 3, ","), QString());
}

void TestTrozos::reemplazar_no_busca_lo_nuevo()
{
    QCOMPARE(Reemplazar("aaa", "a", "aa"), QString("aaaaaa"));
    QCOMPARE(Reemplazar("abc", "", "x"), QString("abc"));
}

void TestTrozos::rellenos_y_espacios()
{
    QCOMPARE(Rellenar_Ceros("7", 3), QString("007"));
    QCOMPARE(Rellenar_Ceros("12345", 3), QString("345"));
    QCOMPARE(Quitar_Espacios_Dobles("  a   b "), QString("a b"));
    QVERIFY(Contiene_Caracter("b", "abc"));
    QVERIFY(!Contiene_Caracter("bc", "abc"));
}

void TestTrozos::valores_tras_caracter()
{
    QCOMPARE(Valor_Tras_Caracter("#", "ab#123"), 12);
    QCOMPARE(Valor_Tras_Caracter("#", "ab"), 99);
    QCOMPARE(Valor_Tras_Caracter("#", "ab#"), 0);
}

void TestTrozos::lista_sql_deja_el_ultimo()
{
    QCOMPARE(Lista_SQL({" a ", "b", "c"}), QString("'a' ,'b' "));
    QCOMPARE(Lista_SQL({"a"}), QString());
}

PRUEBA(TestTrozos)
#include "TestTrozos.moc"
