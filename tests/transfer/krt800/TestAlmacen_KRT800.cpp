#include "tests/apoyo/Prueba.h"
#include "tests/transfer/Banco_Recepcion.h"

// How KRT800 text becomes rows, general values and sorted profiles.
class TestAlmacen_KRT800 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Recepcion>(); }
    void cleanup() { banco.reset(); }
    void una_fila_por_linea();
    void los_globales_de_cada_linea();
    void un_blanco_delante_acorta_el_identificador();
    void la_operacion_4_toma_el_punto();
    void sin_fin_de_linea_no_hay_registros();
    void una_linea_larga_se_corta_y_avisa_del_formato();
    void un_fallo_lo_deshace_todo();
    void cancelada_conserva_lo_guardado();
    void operacion_7_junta_los_perfiles();
    void operacion_7_con_comilla_avisa();
    void operacion_7_lineas_sin_coma();

private:
    std::unique_ptr<Banco_Recepcion> banco;
};

void TestAlmacen_KRT800::una_fila_por_linea()
{
    const Resultado_Recepcion r = banco->Procesar("KRT800", 0, "JOB uno\r\n\r\nSTN a,b\r\nresto");
    QCOMPARE(banco->Filas(), (QStringList{"1/1//JOB uno/", "1/3//STN a,b/"}));
    QCOMPARE(banco->Puntos(), 3); // blank lines count
    QVERIFY(r.Completa());
    QCOMPARE(r.sesiones, QStringList{"1"});
}

void TestAlmacen_KRT800::los_globales_de_cada_linea()
{
    banco->Campo("STN", "Estación", 1, "GE");
    banco->Campo("STN", "Nula", 2, "NL");
    banco->Campo("STN", "Altura", 3, "GE");
    banco->Campo("SS", "Nombre", 1, "");
    banco->Procesar("KRT800", 0,
                    "SS 1,2\r\nSTN  E1,x,1.50\r\nSS 3,4\r\nSTN E2,x,1.60\r\nSS 5,6\r\n");
    QCOMPARE(banco->Filas(),
             (QStringList{"1/1//SS 1,2/", "1/2//STN  E1,x,1.50/STN=Estación=E1|STN=Altura=1.50",
                          "1/3//SS 3,4/STN=Estación=E1|STN=Altura=1.50",
                          "1/4//STN E2,x,1.60/STN=Estación=E2|STN=Altura=1.60",
                          "1/5//SS 5,6/STN=Estación=E2|STN=Altura=1.60"}));
}

// The blank is looked for in the line as it came, and the cut falls on the trimmed one.
void TestAlmacen_KRT800::un_blanco_delante_acorta_el_identificador()
{
    banco->Campo("STN", "Estación", 1, "GE");
    banco->Campo("S", "Letra", 1, "GE");
    banco->Procesar("KRT800", 0, " STN E1,x\r\n");
    QCOMPARE(banco->Filas(), QStringList{"1/1// STN E1,x/S=Letra=TN E1"});
}

void TestAlmacen_KRT800::la_operacion_4_toma_el_punto()
{
    banco->Campo("Punto", "Punto", 1, "");
    banco->Campo("Punto", "Zona", 5, "GE");
    banco->Procesar("KRT800", 4, "P1,1.0,2.0,3.0,ARBOL\r\nP2,1.5,2.5\r\n");
    QCOMPARE(banco->Filas(), (QStringList{"1/1/P1/P1,1.0,2.0,3.0,ARBOL/Punto=Zona=1.0",
                                          "1/2/P2/P2,1.5,2.5/Punto=Zona=1.5"}));
}

void TestAlmacen_KRT800::sin_fin_de_linea_no_hay_registros()
{
    const Resultado_Recepcion r = banco->Procesar("KRT800", 0, "JOB uno");
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(banco->Filas(), QStringList());
    QCOMPARE(banco->Puntos(), 0);
}

// The box of the wrong output format stays; the lines are stored as far as their column goes.
void TestAlmacen_KRT800::una_linea_larga_se_corta_y_avisa_del_formato()
{
    const Resultado_Recepcion r =
        banco->Procesar("KRT800", 0, "JOB uno\r\n" + QString(256, 'x') + "\r\nJOB dos\r\n");
    QVERIFY(r.guardada && !r.Completa());
    QCOMPARE(r.faltas.cortadas, 1);
    QCOMPARE(banco->Filas(),
             (QStringList{"1/1//JOB uno/", "1/2//" + QString(255, 'x') + "/", "1/3//JOB dos/"}));
    QCOMPARE(banco->interfaz.avisos.size(), 1);
    QCOMPARE(banco->interfaz.avisos[0].titulo, QString("Error de Formato"));
    QCOMPARE(banco->interfaz.avisos[0].icono, Icono::Critico);
    QCOMPARE(
        banco->interfaz.avisos[0].texto,
        QString("Error en el formato de Datos.Posiblemente tenga mal configurado el formato de "
                "salida en la Estación. Asegurese que tenga configurado en el Menú Configuración "
                "- OPC SIST - SALIDA el formato KRT-4"));
    const Resultado_Recepcion puntos =
        banco->Procesar("KRT800", 4, QString(51, 'p') + ",1,2\r\nP2,3,4\r\n");
    QCOMPARE(puntos.faltas.cortadas, 1);
    QCOMPARE(banco->interfaz.avisos.last().titulo, QString("Error de Formato"));
    QCOMPARE(banco->base.Columna("SELECT Punto FROM Registros WHERE ID = 2"),
             (QStringList{QString(50, 'p'), "P2"}));
}

void TestAlmacen_KRT800::un_fallo_lo_deshace_todo()
{
    banco->base.Fila("Sesiones", {{"ID", 32767}, {"OPE", 0}, {"Maquina", "PX7"}});
    const Resultado_Recepcion r = banco->Procesar("KRT800", 0, "JOB uno\r\n");
    QVERIFY(!r.guardada && r.sesiones.isEmpty());
    QCOMPARE(r.error->numero, 6);
    QCOMPARE(banco->base.Columna("SELECT ID FROM Sesiones"), QStringList{"32767"});
    QCOMPARE(banco->interfaz.avisos.size(), 1);
    QVERIFY(banco->interfaz.avisos[0].texto.startsWith(
        "Se produjo un error al guardar los datos descargados\r(6) "));
}

void TestAlmacen_KRT800::cancelada_conserva_lo_guardado()
{
    QString buffer;
    for (int i = 1; i <= 500; ++i)
        buffer += QStringLiteral("SS %1,1\r\n").arg(i);
    banco->interfaz.al_pasar = [] { Proceso_Cancelado = true; };
    const Resultado_Recepcion r = banco->Procesar("KRT800", 0, buffer);
    QVERIFY(!r.Completa() && r.faltas.interrumpida);
    QCOMPARE(r.sesiones, QStringList{"1"});
    const qsizetype filas = banco->Filas().size();
    QVERIFY(filas > 0 && filas < 500);
    QCOMPARE(banco->Puntos(), filas);
    QCOMPARE(banco->interfaz.procesos_abiertos, 0);
}

void TestAlmacen_KRT800::operacion_7_junta_los_perfiles()
{
    banco->Procesar("KRT800", 7, "100,5,a\r\n100,-5,b\r\n120,3,c\r\n100,0,d\r\n120,-10,e\r\n");
    QCOMPARE(banco->Filas(), (QStringList{"1/2//100,-5,b/", "1/4//100,0,d/", "1/1//100,5,a/",
                                          "1/5//120,-10,e/", "1/3//120,3,c/"}));
    QVERIFY(banco->interfaz.avisos.isEmpty());

    // A line's own "%" and figure is text like any other.
    Base_Datos->Execute("DELETE FROM Registros");
    banco->Procesar("KRT800", 7, "100%4,5,%1\r\n100%4,2,%5\r\n");
    QCOMPARE(banco->Filas(), (QStringList{"2/2//100%4,2,%5/", "2/1//100%4,5,%1/"}));
    QVERIFY(banco->interfaz.avisos.isEmpty());
}

void TestAlmacen_KRT800::operacion_7_con_comilla_avisa()
{
    const Resultado_Recepcion r =
        banco->Procesar("KRT800", 7, "100,5,a\r\n100,4,o'b\r\n90,1,z\r\n");
    QVERIFY(r.Completa());
    QCOMPARE(banco->Filas(), (QStringList{"1/2//100,4,o'b/", "1/1//100,5,a/", "1/3//90,1,z/"}));
    QVERIFY(
        banco->interfaz.avisos.isEmpty()); // the quote stands behind the text that begins its group

    Base_Datos->Execute("DELETE FROM Registros");
    banco->Procesar("KRT800", 7, "100,5,o'a\r\n100,4,b\r\n");
    QCOMPARE(banco->interfaz.avisos.size(), 1);
    QVERIFY(banco->interfaz.avisos[0].texto.startsWith(
        "Se produjo un error al guardar los datos descargados\r("));
    QCOMPARE(banco->Filas(), (QStringList{"2/1//100,5,o'a/", "2/2//100,4,b/"}));
}

void TestAlmacen_KRT800::operacion_7_lineas_sin_coma()
{
    banco->Procesar("KRT800", 7, "*TER\r\n100,2,a\r\n100,1,b\r\n");
    QCOMPARE(banco->Filas().size(), 3);
    QVERIFY(banco->interfaz.avisos.isEmpty());
}

PRUEBA(TestAlmacen_KRT800)
#include "TestAlmacen_KRT800.moc"
