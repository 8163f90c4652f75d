#include "core/ui/Modelo_Conjunto.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Prueba.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTableView>

class TestModelo_Conjunto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void ensena_las_filas_por_columnas();
    void la_fila_actual_no_cambia_al_pintar();
    void refresh_ve_lo_nuevo_y_va_a_la_primera();
    void vacio_no_tiene_fila();
    void la_rejilla_y_el_modelo_van_juntos();
    void una_columna_escondida_no_estorba();
    void lo_movido_por_otro_se_toma();
    void muchas_filas_se_abren_al_momento();

private:
    std::unique_ptr<Base_De_Prueba> sala;
    static inline const QString SQL = "SELECT Id,NFichero,Ope FROM Sesiones ORDER BY Id DESC";
    void Sesion(int id, const QString& nombre)
    {
        sala->Fila("Sesiones", {{"ID", id}, {"NFichero", nombre}, {"OPE", id % 3}});
    }
};

void TestModelo_Conjunto::init()
{
    sala = std::make_unique<Base_De_Prueba>();
    Sesion(1, "uno");
    Sesion(2, "dos");
    Sesion(3, "tres");
}

void TestModelo_Conjunto::cleanup()
{
    sala.reset();
}

void TestModelo_Conjunto::ensena_las_filas_por_columnas()
{
    Modelo_Conjunto modelo;
    const QAbstractItemModelTester comprobador(&modelo);
    modelo.Poner_Columnas(
        {{"Nº", "id"}, {"Nombre", "nfichero", [](const QString& v) { return v.toUpper(); }}});
    modelo.Abrir(Base_Datos, SQL);
    QCOMPARE(modelo.rowCount(), 3);
    QCOMPARE(modelo.columnCount(), 2);
    QCOMPARE(modelo.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QString("Nombre"));
    QCOMPARE(modelo.index(0, 0).data().toString(), QString("3"));
    QCOMPARE(modelo.index(2, 1).data().toString(), QString("UNO"));
}

void TestModelo_Conjunto::la_fila_actual_no_cambia_al_pintar()
{
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "NFichero"}});
    modelo.Abrir(Base_Datos, SQL);
    modelo.Ir_A(1);
    QCOMPARE(modelo.index(2, 0).data().toString(), QString("uno"));
    QCOMPARE(modelo.Texto("NFichero"), QString("dos"));
    QCOMPARE(modelo.Entero("Ope"), 2);
    QCOMPARE(modelo.Conjunto().Posicion(), 1);
    modelo.Ir_A(7);
    modelo.Ir_A(-1);
    QCOMPARE(modelo.Fila_Actual(), 1);
}

void TestModelo_Conjunto::refresh_ve_lo_nuevo_y_va_a_la_primera()
{
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "NFichero"}});
    modelo.Abrir(Base_Datos, SQL);
    modelo.Ir_A(2);
    Sesion(4, "cuatro");
    QCOMPARE(modelo.rowCount(), 3);
    QSignalSpy cambios(&modelo, &Modelo_Conjunto::reposicion);
    modelo.Refresh();
    QCOMPARE(modelo.rowCount(), 4);
    QCOMPARE(modelo.Texto("NFichero"), QString("cuatro"));
    QCOMPARE(cambios.size(), 1);
    QCOMPARE(cambios[0][0].toInt(), 0);
}

void TestModelo_Conjunto::vacio_no_tiene_fila()
{
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "NFichero"}});
    QCOMPARE(modelo.Fila_Actual(), -1);
    modelo.Abrir(Base_Datos, "SELECT * FROM Sesiones WHERE ID = 99");
    QVERIFY(modelo.Vacio());
    QCOMPARE(modelo.Fila_Actual(), -1);
    QCOMPARE(modelo.Texto("NFichero"), QString());
    QCOMPARE(modelo.Entero("Ope"), 0);
    QVERIFY(!modelo.index(0, 0).isValid());
    modelo.Cerrar();
    QVERIFY(modelo.Vacio());
}

void TestModelo_Conjunto::la_rejilla_y_el_modelo_van_juntos()
{
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "Id"}, {"", "NFichero"}});
    QTableView rejilla;
    Atar_Rejilla(&rejilla, &modelo);
    modelo.Abrir(Base_Datos, SQL);
    rejilla.show();
    QCOMPARE(rejilla.currentIndex().row(), 0);
    QTest::keyClick(&rejilla, Qt::Key_Down);
    QCOMPARE(modelo.Texto("NFichero"), QString("dos"));
    QTest::mouseClick(rejilla.viewport(), Qt::LeftButton, {},
                      rejilla.visualRect(modelo.index(2, 1)).center());
    QCOMPARE(modelo.Texto("NFichero"), QString("uno"));
    modelo.Ir_A(0);
    QCOMPARE(rejilla.currentIndex().row(), 0);
    QCOMPARE(rejilla.selectionModel()->selectedRows().size(), 1);
    modelo.Ir_A(2);
    modelo.Refresh();
    QCOMPARE(rejilla.currentIndex().row(), 0);
}

void TestModelo_Conjunto::una_columna_escondida_no_estorba()
{
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "Id"}, {"", "NFichero"}});
    QTableView rejilla;
    Atar_Rejilla(&rejilla, &modelo);
    rejilla.setColumnHidden(0, true);
    modelo.Abrir(Base_Datos, SQL);
    rejilla.show();
    QCOMPARE(rejilla.currentIndex(), modelo.index(0, 1));
    QTest::keyClick(&rejilla, Qt::Key_Down);
    QCOMPARE(modelo.Fila_Actual(), 1);
}

void TestModelo_Conjunto::lo_movido_por_otro_se_toma()
{
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "NFichero"}});
    modelo.Abrir(Base_Datos, SQL);
    QSignalSpy cambios(&modelo, &Modelo_Conjunto::reposicion);
    modelo.Tomar_Fila();
    QCOMPARE(cambios.size(), 0);
    modelo.Conjunto().Ir_A(2);
    modelo.Tomar_Fila();
    QCOMPARE(modelo.Fila_Actual(), 2);
    QCOMPARE(cambios.size(), 1);
    QCOMPARE(modelo.index(0, 0).data().toString(), QString("tres"));
    QCOMPARE(modelo.Texto("NFichero"), QString("uno"));
}

void TestModelo_Conjunto::muchas_filas_se_abren_al_momento()
{
    Base_Datos->BeginTrans();
    {
        Insercion filas = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
        for (int i = 1; i <= 30000; ++i)
            filas.Anadir({1, i, QString::number(i)});
    }
    Base_Datos->CommitTrans();
    Modelo_Conjunto modelo;
    modelo.Poner_Columnas({{"", "Datos"}});
    modelo.Abrir(Base_Datos, "SELECT Datos FROM Registros WHERE ID = 1 ORDER BY Secuencia");
    QCOMPARE(modelo.rowCount(), 30000);
    QTableView rejilla;
    Atar_Rejilla(&rejilla, &modelo);
    QElapsedTimer reloj;
    reloj.start();
    rejilla.show();
    rejilla.scrollToBottom();
    rejilla.grab();
    QCOMPARE(modelo.index(29999, 0).data().toString(), QString("30000"));
    // Only what is seen is read; a grid that read all its rows would take many times this.
    QVERIFY(reloj.elapsed() < 3000);
}

PRUEBA(TestModelo_Conjunto)
#include "TestModelo_Conjunto.moc"
