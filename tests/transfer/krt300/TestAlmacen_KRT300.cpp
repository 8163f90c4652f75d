#include "tests/apoyo/Prueba.h"
#include "tests/transfer/Banco_Recepcion.h"

// How a KRT300 or PX7 stream becomes rows, general values and a count of points.
class TestAlmacen_KRT300 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Recepcion>(); }
    void cleanup() { banco.reset(); }
    void corta_por_el_subrayado_data();
    void corta_por_el_subrayado();
    void los_globales_valen_desde_que_llegan();
    void un_global_sustituye_al_de_su_letra();
    void un_global_con_blanco_no_cuenta();
    void un_registro_con_blanco_conserva_su_blanco();
    void el_punto_puede_quedar_vacio();
    void lo_desconocido_no_gasta_secuencia();
    void el_relleno_queda_en_el_ultimo();
    void lo_que_no_cabe_se_corta_y_se_cuenta();
    void lo_que_ninguna_fila_lleva_se_cuenta_data();
    void lo_que_ninguna_fila_lleva_se_cuenta();
    void un_fallo_al_guardar_no_cuenta_puntos();
    void sin_numero_de_sesion_se_dice_por_que();
    void el_progreso_solo_en_los_largos_data();
    void el_progreso_solo_en_los_largos();
    void los_lotes_no_pierden_nada();
    void sin_puntos_se_dice();
    void un_punto_vacio_cuenta_como_uno();
    void px7_busca_bajo_su_nombre();

private:
    std::unique_ptr<Banco_Recepcion> banco;
};

void TestAlmacen_KRT300::corta_por_el_subrayado_data()
{
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<QStringList>("filas");
    QTest::newRow("dos") << "_A1_A2" << QStringList{"1/1//A1/", "1/2//A2/"};
    QTest::newRow("antes del primero") << "A0_A1" << QStringList{"1/1//A1/"};
    QTest::newRow("uno solo") << "_A1" << QStringList{"1/1//A1/"};
    QTest::newRow("sin subrayado") << "A1" << QStringList{"1/1//A1/"};
    QTest::newRow("registro vacio") << "_A1__A2_" << QStringList{"1/1//A1/", "1/2//A2/"};
    QTest::newRow("puntos") << "_+P1  _A1_+P2_B1" << QStringList{"1/1/P1/A1/", "1/2/P2/B1/"};
    QTest::newRow("punto que vuelve")
        << "_+P1_A1_+P2_A2_+P1_A3" << QStringList{"1/1/P1/A1/", "1/2/P2/A2/", "1/3/P1/A3/"};
    QTest::newRow("punto con comilla") << "_+O'B_A1" << QStringList{"1/1/O'B/A1/"};
    QTest::newRow("alto") << QStringLiteral("_+Peñón_Añ€")
                          << QStringList{QStringLiteral("1/1/Peñón/Añ€/")};
}

void TestAlmacen_KRT300::corta_por_el_subrayado()
{
    QFETCH(QString, buffer);
    QFETCH(QStringList, filas);
    const Resultado_Recepcion r = banco->Procesar("KRT300", 0, buffer);
    QCOMPARE(banco->Filas(), filas);
    QCOMPARE(r.sesiones, QStringList{"1"});
    QVERIFY(r.guardada);
}

void TestAlmacen_KRT300::los_globales_valen_desde_que_llegan()
{
    banco->Procesar("KRT300", 0, "_+P1_A1_Eest_+P2_A2_Fat_A3");
    QCOMPARE(banco->Filas(), (QStringList{"1/1/P1/A1/", "1/2/P2/A2/Eest", "1/3/P2/A3/Eest|Fat"}));
}

void TestAlmacen_KRT300::un_global_sustituye_al_de_su_letra()
{
    banco->Procesar("KRT300", 0, "_Euno_Fdos_A1_Etres_A2");
    QCOMPARE(banco->Filas(), (QStringList{"1/1//A1/Euno|Fdos", "1/2//A2/Etres|Fdos"}));
}

void TestAlmacen_KRT300::un_global_con_blanco_no_cuenta()
{
    banco->Procesar("KRT300", 0, "_ Euno_A1");
    QCOMPARE(banco->Filas(), QStringList{"1/1//A1/"});
}

void TestAlmacen_KRT300::un_registro_con_blanco_conserva_su_blanco()
{
    banco->Procesar("KRT300", 1, "_+P1_ x+0012345678_   _x1");
    QCOMPARE(banco->Filas(), (QStringList{"1/1/P1/ x+0012345678/", "1/2/P1/x1/"}));
}

void TestAlmacen_KRT300::el_punto_puede_quedar_vacio()
{
    banco->Procesar("KRT300", 0, "_+P1_A1_+_A2");
    QCOMPARE(banco->Filas(), (QStringList{"1/1/P1/A1/", "1/2//A2/"}));
    QCOMPARE(banco->Puntos(), 2);
}

void TestAlmacen_KRT300::lo_desconocido_no_gasta_secuencia()
{
    banco->Procesar("KRT300", 0, "_A1_Z9_A2");
    QCOMPARE(banco->Filas(), (QStringList{"1/1//A1/", "1/2//A2/"}));
    QVERIFY(banco->interfaz.avisos.isEmpty());
}

void TestAlmacen_KRT300::el_relleno_queda_en_el_ultimo()
{
    banco->Procesar("KRT300", 0, "_A1_A2     ");
    QCOMPARE(banco->Filas().last(), QString("1/2//A2     /"));
}

void TestAlmacen_KRT300::lo_que_no_cabe_se_corta_y_se_cuenta()
{
    const Resultado_Recepcion r = banco->Procesar(
        "KRT300", 0, "_+P1_A1_A" + QString(255, 'x') + "_A3_+" + QString(51, 'p') + "_A4");
    QVERIFY(r.guardada && !r.Completa());
    QCOMPARE(r.faltas.cortadas, 2);
    QCOMPARE(r.filas, 4);
    QCOMPARE(banco->Filas(), (QStringList{"1/1/P1/A1/", "1/2/P1/A" + QString(254, 'x') + "/",
                                          "1/3/P1/A3/", "1/4/" + QString(50, 'p') + "/A4/"}));
    QCOMPARE(banco->Puntos(), 2);
    QVERIFY(banco->interfaz.avisos.isEmpty());
    QCOMPARE(banco->Procesar("KRT300", 0, "_A" + QString(254, 'x')).Completa(), true);
}

void TestAlmacen_KRT300::lo_que_ninguna_fila_lleva_se_cuenta_data()
{
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<int>("desconocidas");
    QTest::addColumn<int>("sueltas");
    QTest::newRow("todo") << "_Euno_+P1_A1_Edos_+P2_A2   " << 0 << 0;
    QTest::newRow("desconocido") << "_A1_Z1_Z2" << 2 << 0;
    QTest::newRow("delante de la marca") << "Z_A1" << 1 << 0;
    QTest::newRow("blancos delante") << "  _A1_   " << 0 << 0;
    QTest::newRow("general con blanco") << "_ Euno_A1" << 0 << 1;
    QTest::newRow("general al final") << "_A1_Euno" << 0 << 1;
    QTest::newRow("general pisado") << "_Euno_Edos_A1" << 0 << 1;
    QTest::newRow("general repetido igual") << "_Euno_Euno_A1" << 0 << 0;
    QTest::newRow("general pisado tras su fila") << "_Euno_A1_Edos_A2" << 0 << 0;
    QTest::newRow("punto al final") << "_+P1_A1_+P2" << 0 << 1;
    QTest::newRow("punto pisado") << "_+P1_+P2_A1" << 0 << 1;
    QTest::newRow("punto repetido igual") << "_+P1_+P1_A1" << 0 << 0;
    QTest::newRow("punto sin nombre") << "_+_A1_+" << 0 << 0;
}

void TestAlmacen_KRT300::lo_que_ninguna_fila_lleva_se_cuenta()
{
    QFETCH(QString, buffer);
    QFETCH(int, desconocidas);
    QFETCH(int, sueltas);
    const Resultado_Recepcion r = banco->Procesar("KRT300", 0, buffer);
    QVERIFY(r.guardada);
    QCOMPARE(r.faltas.desconocidas, desconocidas);
    QCOMPARE(r.faltas.sueltas, sueltas);
    QCOMPARE(r.Completa(), desconocidas + sueltas == 0);
}

// The session stays as far as it got, without a count and without the box of an empty file.
void TestAlmacen_KRT300::un_fallo_al_guardar_no_cuenta_puntos()
{
    Base_Datos->Execute("DELETE FROM Identificadores WHERE ID = 'A'");
    Fichero_MDB = banco->base.Ruta("MDB/falta.mdb");
    const Resultado_Recepcion r = banco->Procesar("KRT300", 0, "_+P1_A1");
    QVERIFY(!r.guardada && !r.Completa());
    QVERIFY(r.error);
    QCOMPARE(r.error->numero, 3024);
    QVERIFY(banco->interfaz.avisos.isEmpty());
    Base_Datos = Base::Abrir(banco->base.Ruta("MDB/EstTotal.mdb"));
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(banco->base.Columna("SELECT ID FROM Sesiones WHERE NPuntos IS NULL"),
             QStringList{"1"});
}

void TestAlmacen_KRT300::sin_numero_de_sesion_se_dice_por_que()
{
    banco->base.Fila("Sesiones", {{"ID", 32767}, {"OPE", 0}, {"Maquina", "KRT300"}});
    const Resultado_Recepcion r = banco->Procesar("KRT300", 0, "_+P1_A1");
    QVERIFY(!r.guardada && r.sesiones.isEmpty());
    QCOMPARE(r.error->numero, 6);
    QVERIFY(banco->interfaz.avisos.isEmpty());
}

void TestAlmacen_KRT300::el_progreso_solo_en_los_largos_data()
{
    QTest::addColumn<int>("largo");
    QTest::addColumn<int>("procesos");
    QTest::newRow("justo") << 1096 << 0;
    QTest::newRow("uno mas") << 1097 << 1;
}

void TestAlmacen_KRT300::el_progreso_solo_en_los_largos()
{
    QFETCH(int, largo);
    QFETCH(int, procesos);
    QString buffer;
    while (buffer.size() < largo)
        buffer += "_A1";
    banco->Procesar("KRT300", 0, buffer.left(largo));
    QCOMPARE(banco->interfaz.procesos, QStringList(procesos, "Procesando Datos Recibidos..."));
    QCOMPARE(banco->interfaz.procesos_abiertos, 0);
    if (procesos) QCOMPARE(banco->interfaz.proceso_maximo, largo);
}

void TestAlmacen_KRT300::los_lotes_no_pierden_nada()
{
    QString buffer;
    const int n = 12345; // more than two batches, and not a multiple of one
    for (int i = 0; i < n; ++i)
        buffer += QStringLiteral("_+P%1_A%2").arg(i / 4).arg(i);
    QVERIFY(banco->Procesar("KRT300", 0, buffer).Completa());
    Conjunto_Registros r = Base_Datos->OpenRecordset("SELECT * FROM Registros ORDER BY Secuencia");
    QCOMPARE(r.RecordCount(), n);
    r.MoveLast();
    QCOMPARE(r.Entero("Secuencia"), n);
    QCOMPARE(r.Texto("Datos"), QStringLiteral("A%1").arg(n - 1));
    QCOMPARE(banco->Puntos(), (n + 3) / 4);
}

void TestAlmacen_KRT300::sin_puntos_se_dice()
{
    banco->Procesar("KRT300", 0, "_Z1");
    QCOMPARE(banco->interfaz.Textos(), QStringList{"El Fichero no contenía Puntos"});
    QCOMPARE(banco->interfaz.avisos[0].icono, Icono::Informacion);
    QCOMPARE(banco->Puntos(), 0);
}

void TestAlmacen_KRT300::un_punto_vacio_cuenta_como_uno()
{
    banco->Procesar("KRT300", 0, "_A1_A2");
    QCOMPARE(banco->Puntos(), 1);
}

void TestAlmacen_KRT300::px7_busca_bajo_su_nombre()
{
    Base_Datos->Execute("DELETE FROM Identificadores WHERE Nombre = 'KRT300'");
    banco->Procesar("PX7", 0, "_A1");
    QCOMPARE(banco->Filas(), QStringList{"1/1//A1/"});
    QCOMPARE(Base_Datos->OpenRecordset("Sesiones").Texto("Maquina"), QString("PX7"));
}

PRUEBA(TestAlmacen_KRT300)
#include "TestAlmacen_KRT300.moc"
