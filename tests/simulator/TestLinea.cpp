#include "simulator/Linea.h"
#include "tests/apoyo/Prueba.h"

using simulador::Linea;

class TestLinea : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sin_ritmo_sale_todo();
    void el_ritmo_es_de_diez_bits_por_caracter();
    void una_linea_parada_no_ahorra();
    void a_trozos_con_pausa();
    void el_corte_cuenta_las_dos_direcciones();
    void lo_devuelto_sale_primero_y_no_cuenta();
};

void TestLinea::sin_ritmo_sale_todo()
{
    Linea l({});
    l.Poner("abc");
    l.Poner("def");
    QCOMPARE(l.Sacar(0), QByteArray("abcdef"));
    QVERIFY(l.Vacia());
}

void TestLinea::el_ritmo_es_de_diez_bits_por_caracter()
{
    Linea::Ajustes ajustes;
    ajustes.baudios = 1200;
    Linea l(ajustes);
    l.Poner(QByteArray(240, 'a'));
    QCOMPARE(l.Sacar(1000), QByteArray());
    QCOMPARE(l.Sacar(1500).size(), 60);
    QCOMPARE(l.Sacar(1500), QByteArray());
    QCOMPARE(l.Sacar(2000).size(), 60);
    QCOMPARE(l.Sacar(9000).size(), 120);
}

void TestLinea::una_linea_parada_no_ahorra()
{
    Linea::Ajustes ajustes;
    ajustes.baudios = 1200;
    Linea l(ajustes);
    l.Poner("a");
    l.Sacar(0);
    QCOMPARE(l.Sacar(10), QByteArray("a"));
    l.Poner(QByteArray(120, 'b'));
    QCOMPARE(l.Sacar(60'000), QByteArray());
    QCOMPARE(l.Sacar(60'500).size(), 60);
}

void TestLinea::a_trozos_con_pausa()
{
    Linea::Ajustes ajustes;
    ajustes.trozo = 2;
    ajustes.pausa = 5;
    Linea l(ajustes);
    l.Poner("abcde");
    QCOMPARE(l.Sacar(0), QByteArray("ab"));
    QCOMPARE(l.Sacar(4), QByteArray());
    QCOMPARE(l.Sacar(5), QByteArray("cd"));
    QCOMPARE(l.Sacar(10), QByteArray("e"));
}

void TestLinea::el_corte_cuenta_las_dos_direcciones()
{
    Linea::Ajustes ajustes;
    ajustes.corte = 5;
    Linea l(ajustes);
    QCOMPARE(l.Llegan(1), 1);
    l.Poner("abcdef");
    QVERIFY(!l.Cortada());
    QCOMPARE(l.Sacar(0), QByteArray("abcd"));
    QVERIFY(l.Cortada());
    QCOMPARE(l.Sacar(1), QByteArray());
    QCOMPARE(l.Llegan(3), 0);

    ajustes.corte = 0;
    QVERIFY(Linea(ajustes).Cortada());
}

void TestLinea::lo_devuelto_sale_primero_y_no_cuenta()
{
    Linea::Ajustes ajustes;
    ajustes.corte = 4;
    Linea l(ajustes);
    l.Poner("abcdef");
    QCOMPARE(l.Sacar(0), QByteArray("abcd"));
    l.Devolver("cd");
    QVERIFY(!l.Cortada());
    QCOMPARE(l.Sacar(0), QByteArray("cd"));
    QVERIFY(l.Cortada());
}

PRUEBA(TestLinea)
#include "TestLinea.moc"
