#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/Proceso_Recepcion.h"

// What becomes of a finished reception: sessions, rows, general values, counts.
class TestProceso_Recepcion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void krt300_corta_por_el_subrayado_data();
    void krt300_corta_por_el_subrayado();
    void krt300_los_globales_valen_desde_que_llegan();
    void krt300_un_global_sustituye_al_de_su_letra();
    void krt300_un_global_con_blanco_no_cuenta();
    void krt300_un_registro_con_blanco_conserva_su_blanco();
    void krt300_el_punto_puede_quedar_vacio();
    void krt300_lo_desconocido_no_gasta_secuencia();
    void krt300_el_relleno_queda_en_el_ultimo();
    void krt300_un_registro_largo_deja_lo_escrito();
    void krt300_el_progreso_solo_en_los_largos_data();
    void krt300_el_progreso_solo_en_los_largos();
    void krt300_los_lotes_no_pierden_nada();
    void sin_puntos_se_dice();
    void un_punto_vacio_cuenta_como_uno();
    void px7_busca_bajo_su_nombre();
    void otras_operaciones_no_hacen_nada();

    void krt800_una_fila_por_linea();
    void krt800_los_globales_de_cada_linea();
    void krt800_la_operacion_4_toma_el_punto();
    void krt800_sin_fin_de_linea_no_hay_registros();
    void krt800_un_campo_largo_lo_deshace_todo();
    void krt800_cancelada_conserva_lo_guardado();
    void krt800_operacion_7_junta_los_perfiles();
    void krt800_operacion_7_con_comilla_avisa();
    void krt800_operacion_7_lineas_sin_coma();

    void nv400_dos_trabajos_dos_sesiones();
    void nv400_sin_cierre_una_sesion();
    void nv400_el_cierre_al_final_avisa();

private:
    void Identificador(const QString& maquina, int ope, const QString& id, const QString& tipo);
    void Campo(const QString& id, const QString& campo, int orden, const QString& marcas);
    Resultado_Recepcion Procesar(const QString& maquina, int ope, const QString& buffer);
    QStringList Filas() const;
    qint64 Puntos(qint64 id = 1) const;

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestProceso_Recepcion::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    for (const QString maquina : {"KRT300", "PX7"}) {
        Identificador(maquina, 0, "A", "M");
        Identificador(maquina, 0, "B", "M");
        Identificador(maquina, 0, "E", "G");
        Identificador(maquina, 0, "F", "G");
    }
    Identificador("KRT300", 1, "x", "M");
}

void TestProceso_Recepcion::cleanup()
{
    interfaz.reset();
    base.reset();
}

void TestProceso_Recepcion::Identificador(const QString& maquina, int ope, const QString& id,
                                          const QString& tipo)
{
    Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) "
                        "VALUES (?, ?, ?, '', ?)", {maquina, ope, id, tipo});
}

void TestProceso_Recepcion::Campo(const QString& id, const QString& campo, int orden,
                                  const QString& marcas)
{
    Base_Datos->Execute("INSERT INTO Campos (Maquina, ID, Campo, Orden, Digitos, PosDigit, Forsalida, "
                        "Especial, Marcas) VALUES ('KRT800', ?, ?, ?, 0, '*', '', '', ?)",
                        {id, campo, orden, marcas});
}

Resultado_Recepcion TestProceso_Recepcion::Procesar(const QString& maquina, int ope,
                                                    const QString& buffer)
{
    return Procesar_Recepcion({buffer, "Obra", ope, 0, maquina, "Modelo"});
}

// The stored rows in physical order, as "session/sequence/point/line/general"; 6 and 5 are | and =.
QStringList TestProceso_Recepcion::Filas() const
{
    QStringList lista;
    for (Recorrido r = Base_Datos->Recorrer("SELECT ID, Secuencia, Punto, Datos, DatosG FROM Registros");
         r.Siguiente();) {
        QStringList campos;
        for (int c = 0; c < 5; ++c) campos << r.Texto(c);
        lista << campos.join(u'/').replace(QChar(6), u'|').replace(QChar(5), u'=');
    }
    return lista;
}

qint64 TestProceso_Recepcion::Puntos(qint64 id) const
{
    Conjunto_Registros s = Base_Datos->OpenRecordset("Sesiones");
    s.Index("PrimaryKey");
    s.Seek({id});
    return s.NoMatch() ? -1 : s.Entero("NPuntos");
}

void TestProceso_Recepcion::krt300_corta_por_el_subrayado_data()
{
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<QStringList>("filas");
    QTest::newRow("dos") << "_A1_A2" << QStringList{"1/1//A1/", "1/2//A2/"};
    QTest::newRow("antes del primero") << "A0_A1" << QStringList{"1/1//A1/"};
    QTest::newRow("uno solo") << "_A1" << QStringList{"1/1//A1/"};
    QTest::newRow("sin subrayado") << "A1" << QStringList{"1/1//A1/"};
    QTest::newRow("registro vacio") << "_A1__A2_" << QStringList{"1/1//A1/", "1/2//A2/"};
    QTest::newRow("puntos") << "_+P1  _A1_+P2_B1" << QStringList{"1/1/P1/A1/", "1/2/P2/B1/"};
    QTest::newRow("punto que vuelve") << "_+P1_A1_+P2_A2_+P1_A3"
                                      << QStringList{"1/1/P1/A1/", "1/2/P2/A2/", "1/3/P1/A3/"};
    QTest::newRow("punto con comilla") << "_+O'B_A1" << QStringList{"1/1/O'B/A1/"};
    QTest::newRow("alto") << QStringLiteral("_+Peñón_Añ€") << QStringList{QStringLiteral("1/1/Peñón/Añ€/")};
}

void TestProceso_Recepcion::krt300_corta_por_el_subrayado()
{
    QFETCH(QString, buffer);
    QFETCH(QStringList, filas);
    const Resultado_Recepcion r = Procesar("KRT300", 0, buffer);
    QCOMPARE(Filas(), filas);
    QCOMPARE(r.sesiones, QStringList{"1"});
    QVERIFY(r.completa);
}

void TestProceso_Recepcion::krt300_los_globales_valen_desde_que_llegan()
{
    Procesar("KRT300", 0, "_+P1_A1_Eest_+P2_A2_Fat_A3");
    QCOMPARE(Filas(), (QStringList{"1/1/P1/A1/", "1/2/P2/A2/Eest", "1/3/P2/A3/Eest|Fat"}));
}

void TestProceso_Recepcion::krt300_un_global_sustituye_al_de_su_letra()
{
    Procesar("KRT300", 0, "_Euno_Fdos_A1_Etres_A2");
    QCOMPARE(Filas(), (QStringList{"1/1//A1/Euno|Fdos", "1/2//A2/Etres|Fdos"}));
}

void TestProceso_Recepcion::krt300_un_global_con_blanco_no_cuenta()
{
    Procesar("KRT300", 0, "_ Euno_A1");
    QCOMPARE(Filas(), QStringList{"1/1//A1/"});
}

void TestProceso_Recepcion::krt300_un_registro_con_blanco_conserva_su_blanco()
{
    Procesar("KRT300", 1, "_+P1_ x+0012345678_   _x1");
    QCOMPARE(Filas(), (QStringList{"1/1/P1/ x+0012345678/", "1/2/P1/x1/"}));
}

void TestProceso_Recepcion::krt300_el_punto_puede_quedar_vacio()
{
    Procesar("KRT300", 0, "_+P1_A1_+_A2");
    QCOMPARE(Filas(), (QStringList{"1/1/P1/A1/", "1/2//A2/"}));
    QCOMPARE(Puntos(), 2);
}

void TestProceso_Recepcion::krt300_lo_desconocido_no_gasta_secuencia()
{
    Procesar("KRT300", 0, "_A1_Z9_A2");
    QCOMPARE(Filas(), (QStringList{"1/1//A1/", "1/2//A2/"}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestProceso_Recepcion::krt300_el_relleno_queda_en_el_ultimo()
{
    Procesar("KRT300", 0, "_A1_A2     ");
    QCOMPARE(Filas().last(), QString("1/2//A2     /"));
}

void TestProceso_Recepcion::krt300_un_registro_largo_deja_lo_escrito()
{
    const Resultado_Recepcion r = Procesar("KRT300", 0, "_+P1_A1_A" + QString(255, 'x') + "_A3");
    QVERIFY(!r.completa);
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(Filas(), QStringList{"1/1/P1/A1/"});
    QVERIFY(interfaz->avisos.isEmpty());
    QCOMPARE(interfaz->procesos_abiertos, 0);
    QCOMPARE(Procesar("KRT300", 0, "_A" + QString(254, 'x')).completa, true);
}

void TestProceso_Recepcion::krt300_el_progreso_solo_en_los_largos_data()
{
    QTest::addColumn<int>("largo");
    QTest::addColumn<int>("procesos");
    QTest::newRow("justo") << 1096 << 0;
    QTest::newRow("uno mas") << 1097 << 1;
}

void TestProceso_Recepcion::krt300_el_progreso_solo_en_los_largos()
{
    QFETCH(int, largo);
    QFETCH(int, procesos);
    QString buffer;
    while (buffer.size() < largo) buffer += "_A1";
    Procesar("KRT300", 0, buffer.left(largo));
    QCOMPARE(interfaz->procesos, QStringList(procesos, "Procesando Datos Recibidos..."));
    QCOMPARE(interfaz->procesos_abiertos, 0);
    if (procesos) QCOMPARE(interfaz->proceso_maximo, largo);
}

void TestProceso_Recepcion::krt300_los_lotes_no_pierden_nada()
{
    QString buffer;
    const int n = 12345; // more than two batches, and not a multiple of one
    for (int i = 0; i < n; ++i) buffer += QStringLiteral("_+P%1_A%2").arg(i / 4).arg(i);
    QVERIFY(Procesar("KRT300", 0, buffer).completa);
    Conjunto_Registros r = Base_Datos->OpenRecordset("SELECT * FROM Registros ORDER BY Secuencia");
    QCOMPARE(r.RecordCount(), n);
    r.MoveLast();
    QCOMPARE(r.Entero("Secuencia"), n);
    QCOMPARE(r.Texto("Datos"), QStringLiteral("A%1").arg(n - 1));
    QCOMPARE(Puntos(), (n + 3) / 4);
}

void TestProceso_Recepcion::sin_puntos_se_dice()
{
    Procesar("KRT300", 0, "_Z1");
    QCOMPARE(interfaz->Textos(), QStringList{"El Fichero no contenía Puntos"});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Informacion);
    QCOMPARE(Puntos(), 0);
}

void TestProceso_Recepcion::un_punto_vacio_cuenta_como_uno()
{
    Procesar("KRT300", 0, "_A1_A2");
    QCOMPARE(Puntos(), 1);
}

void TestProceso_Recepcion::px7_busca_bajo_su_nombre()
{
    Base_Datos->Execute("DELETE FROM Identificadores WHERE Nombre = 'KRT300'");
    Procesar("PX7", 0, "_A1");
    QCOMPARE(Filas(), QStringList{"1/1//A1/"});
    QCOMPARE(Base_Datos->OpenRecordset("Sesiones").Texto("Maquina"), QString("PX7"));
}

void TestProceso_Recepcion::otras_operaciones_no_hacen_nada()
{
    const Resultado_Recepcion r = Procesar("KRT300", 5, "_A1");
    QVERIFY(r.sesiones.isEmpty());
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
    QVERIFY(Procesar("OTRA", 0, "_A1").sesiones.isEmpty());
}

void TestProceso_Recepcion::krt800_una_fila_por_linea()
{
    const Resultado_Recepcion r = Procesar("KRT800", 0, "JOB uno\r\n\r\nSTN a,b\r\nresto");
    QCOMPARE(Filas(), (QStringList{"1/1//JOB uno/", "1/3//STN a,b/"}));
    QCOMPARE(Puntos(), 3); // blank lines count
    QVERIFY(r.completa);
    QCOMPARE(r.sesiones, QStringList{"1"});
}

void TestProceso_Recepcion::krt800_los_globales_de_cada_linea()
{
    Campo("STN", "Estación", 1, "GE");
    Campo("STN", "Nula", 2, "NL");
    Campo("STN", "Altura", 3, "GE");
    Campo("SS", "Nombre", 1, "");
    Procesar("KRT800", 0, "SS 1,2\r\nSTN  E1,x,1.50\r\nSS 3,4\r\nSTN E2,x,1.60\r\nSS 5,6\r\n");
    QCOMPARE(Filas(), (QStringList{"1/1//SS 1,2/",
                                   "1/2//STN  E1,x,1.50/STN=Estación=E1|STN=Altura=1.50",
                                   "1/3//SS 3,4/STN=Estación=E1|STN=Altura=1.50",
                                   "1/4//STN E2,x,1.60/STN=Estación=E2|STN=Altura=1.60",
                                   "1/5//SS 5,6/STN=Estación=E2|STN=Altura=1.60"}));
}

void TestProceso_Recepcion::krt800_la_operacion_4_toma_el_punto()
{
    Campo("Punto", "Punto", 1, "");
    Campo("Punto", "Zona", 5, "GE");
    Procesar("KRT800", 4, "P1,1.0,2.0,3.0,ARBOL\r\nP2,1.5,2.5\r\n");
    QCOMPARE(Filas(), (QStringList{"1/1/P1/P1,1.0,2.0,3.0,ARBOL/Punto=Zona=1.0",
                                   "1/2/P2/P2,1.5,2.5/Punto=Zona=1.5"}));
}

void TestProceso_Recepcion::krt800_sin_fin_de_linea_no_hay_registros()
{
    const Resultado_Recepcion r = Procesar("KRT800", 0, "JOB uno");
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(Filas(), QStringList());
    QCOMPARE(Puntos(), 0);
}

void TestProceso_Recepcion::krt800_un_campo_largo_lo_deshace_todo()
{
    const Resultado_Recepcion r =
        Procesar("KRT800", 0, "JOB uno\r\n" + QString(256, 'x') + "\r\nJOB dos\r\n");
    QVERIFY(!r.completa);
    QVERIFY(r.sesiones.isEmpty());
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
    QCOMPARE(Filas(), QStringList());
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(interfaz->avisos[0].titulo, QString("Error de Formato"));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    QCOMPARE(interfaz->avisos[0].texto,
             QString("Error en el formato de Datos.Posiblemente tenga mal configurado el formato de "
                     "salida en la Estación. Asegurese que tenga configurado en el Menú Configuración "
                     "- OPC SIST - SALIDA el formato KRT-4"));
}

void TestProceso_Recepcion::krt800_cancelada_conserva_lo_guardado()
{
    QString buffer;
    for (int i = 1; i <= 500; ++i) buffer += QStringLiteral("SS %1,1\r\n").arg(i);
    interfaz->al_pasar = [] { Proceso_Cancelado = true; };
    const Resultado_Recepcion r = Procesar("KRT800", 0, buffer);
    QVERIFY(!r.completa);
    QCOMPARE(r.sesiones, QStringList{"1"});
    const qsizetype filas = Filas().size();
    QVERIFY(filas > 0 && filas < 500);
    QCOMPARE(Puntos(), filas);
    QCOMPARE(interfaz->procesos_abiertos, 0);
}

void TestProceso_Recepcion::krt800_operacion_7_junta_los_perfiles()
{
    Procesar("KRT800", 7, "100,5,a\r\n100,-5,b\r\n120,3,c\r\n100,0,d\r\n120,-10,e\r\n");
    QCOMPARE(Filas(), (QStringList{"1/2//100,-5,b/", "1/4//100,0,d/", "1/1//100,5,a/",
                                   "1/5//120,-10,e/", "1/3//120,3,c/"}));
    QVERIFY(interfaz->avisos.isEmpty());

    // A line's own "%" and figure is text like any other.
    Base_Datos->Execute("DELETE FROM Registros");
    Procesar("KRT800", 7, "100%4,5,%1\r\n100%4,2,%5\r\n");
    QCOMPARE(Filas(), (QStringList{"2/2//100%4,2,%5/", "2/1//100%4,5,%1/"}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestProceso_Recepcion::krt800_operacion_7_con_comilla_avisa()
{
    const Resultado_Recepcion r = Procesar("KRT800", 7, "100,5,a\r\n100,4,o'b\r\n90,1,z\r\n");
    QVERIFY(r.completa);
    QCOMPARE(Filas(), (QStringList{"1/2//100,4,o'b/", "1/1//100,5,a/", "1/3//90,1,z/"}));
    QVERIFY(interfaz->avisos.isEmpty()); // the quote stands behind the text that begins its group

    Base_Datos->Execute("DELETE FROM Registros");
    Procesar("KRT800", 7, "100,5,o'a\r\n100,4,b\r\n");
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->avisos[0].texto.startsWith("Se produjo un error al guardar los datos descargados\r("));
    QCOMPARE(Filas(), (QStringList{"2/1//100,5,o'a/", "2/2//100,4,b/"}));
}

void TestProceso_Recepcion::krt800_operacion_7_lineas_sin_coma()
{
    Procesar("KRT800", 7, "*TER\r\n100,2,a\r\n100,1,b\r\n");
    QCOMPARE(Filas().size(), 3);
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestProceso_Recepcion::nv400_dos_trabajos_dos_sesiones()
{
    const Resultado_Recepcion r =
        Procesar("NV400", 0, "a,012UNO,x,\r\ng,1,\r\nt,9,\r\na,012DOS,x,\r\nh,2,\r\nt,9,\r\nu,1,\r\n");
    QCOMPARE(r.sesiones, (QStringList{"1", "2"}));
    Conjunto_Registros s = Base_Datos->OpenRecordset("SELECT * FROM Sesiones ORDER BY ID");
    QCOMPARE(s.Texto("NFichero"), QString("UNO"));
    QCOMPARE(s.Entero("NPuntos"), 4);
    s.MoveNext();
    QCOMPARE(s.Texto("NFichero"), QString("DOS"));
    QCOMPARE(Filas(), (QStringList{"1/1/ /a,012UNO,x,/ ", "1/2/ /g,1,/ ", "1/3/ /t,9,/ ",
                                   "2/1/ /a,012DOS,x,/ ", "2/2/ /h,2,/ ", "2/3/ /t,9,/ ",
                                   "3/1/ /u,1,/ "}));
    QVERIFY(Base_Datos->OpenRecordset("Registros_Temp").Es_EOF());
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestProceso_Recepcion::nv400_sin_cierre_una_sesion()
{
    const Resultado_Recepcion r = Procesar("NV400", 0, "a,012UNO,x,\r\ng,1,\r\n");
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(Filas().size(), 2);
    QCOMPARE(Puntos(), 3);
}

void TestProceso_Recepcion::nv400_el_cierre_al_final_avisa()
{
    const Resultado_Recepcion r = Procesar("NV400", 0, "a,012UNO,x,\r\nt,9,\r\n");
    QVERIFY(!r.completa);
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->avisos[0].texto.startsWith(
        "Se produjo un error al guardar los datos de Medición\r(3021) "));
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
    QCOMPARE(Base_Datos->OpenRecordset("Registros_Temp").RecordCount(), 2);
}

PRUEBA(TestProceso_Recepcion)
#include "TestProceso_Recepcion.moc"
