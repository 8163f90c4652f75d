#include "conversions/biblioteca/Flujo_Conversion.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Global.h"
#include "tests/conversions/Banco_Conversion.h"

class TestFlujo_Conversion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void extensiones();
    void extension_del_filtro();
    void dialogos_de_landxml_data();
    void dialogos_de_landxml();
    void ramas_de_landxml_data();
    void ramas_de_landxml();
    void lo_que_se_ofrece_sin_rama();
    void lo_omitido_va_detras();
    void la_lista_larga_se_corta();
    void cancelar_calla();
    void puntos();
    void puntos_sobre_su_origen();
    void puntos_no_pisa_sin_preguntar();
    void puntos_malos();

private:
    void Elegir(Interfaz_Guion& guion, const QString& nombre)
    {
        guion.ficheros.push_back(Fichero_Elegido{nombre, 1});
    }

    Sala_Global sala;
    Banco_Conversion banco;
};

void TestFlujo_Conversion::extensiones()
{
    QCOMPARE(Extension_De("/a/b.plt"), QString("PLT"));
    QCOMPARE(Extension_De("a.b.Eje"), QString("EJE"));
    QCOMPARE(Extension_De("plt"), QString("PLT"));
    QCOMPARE(Extension_De("a."), QString());
}

void TestFlujo_Conversion::extension_del_filtro()
{
    const QString filtro = "Uno (*.ssh)|*.ssh|Dos (*.hal)|*.hal";
    QCOMPARE(Con_Extension({"/a.b/eje", 1}, filtro), QString("/a.b/eje.ssh"));
    QCOMPARE(Con_Extension({"/a.b/eje", 2}, filtro), QString("/a.b/eje.hal"));
    QCOMPARE(Con_Extension({"/a.b/eje.txt", 2}, filtro), QString("/a.b/eje.txt"));
}

void TestFlujo_Conversion::dialogos_de_landxml_data()
{
    QTest::addColumn<int>("clase");
    QTest::addColumn<QString>("filtro");
    QTest::newRow("alineaciones")
        << 0
        << "Formato QSV (*.eje)|*.eje|Formato de CLIP (*.plt)|*.plt|Formato de "
           "ISTRAM(*.asc)|*.asc|Formato de MXROAD(*.txt)|*.txt|Formato de HTRAZADO(*.res)|*.res";
    QTest::newRow("rasantes") << 1 << "Formato QSV (*.ras)|*.ras|Formato de ISTRAM(*.txt)|*.txt";
    QTest::newRow("transversales")
        << 2
        << "Formato QSV (*.tra)|*.tra|Formato de CLIP (*.rep)|*.rep|Formato de CLIP "
           "TER(*.ter)|*.ter|"
           "Formato de ISTRAM(*.trm)|*.trm|Formato de MXROAD(*.mxr)|*.mxr|Formato de "
           "HTRAZADO(*.per)|*.per";
}

void TestFlujo_Conversion::dialogos_de_landxml()
{
    QFETCH(int, clase);
    Ruta_Aplicacion = "/programa";
    Interfaz_Guion guion;
    Elegir(guion, "x.eje");
    guion.ficheros.push_back(std::nullopt);
    Convertir_A_LandXML(Clase_Conversion(clase));
    QCOMPARE(guion.peticiones.size(), 2);
    QCOMPARE(guion.peticiones[0].titulo, QString("Seleccione Fichero a convertir"));
    QTEST(guion.peticiones[0].filtro, "filtro");
    QCOMPARE(guion.peticiones[0].carpeta, QString("/programa"));
    QVERIFY(!guion.peticiones[0].guardar);
    QCOMPARE(guion.peticiones[1].titulo, QString("Guardar como ..."));
    QCOMPARE(guion.peticiones[1].filtro, QString("Formato LandXML (*.xml)|*.xml"));
    QVERIFY(guion.peticiones[1].guardar);
    QVERIFY(guion.avisos.isEmpty());
}

void TestFlujo_Conversion::ramas_de_landxml_data()
{
    QTest::addColumn<int>("clase");
    QTest::addColumn<QString>("muestra");
    const auto fila = [](int clase, const char* muestra) {
        QTest::addRow("%d %s", clase, muestra) << clase << muestra;
    };
    for (const char* m : {"eje1.eje", "eje1.plt", "eje1.asc", "eje1.txt", "eje1.res"})
        fila(0, m);
    for (const char* m : {"eje1.ras", "eje1_ras.txt"})
        fila(1, m);
    for (const char* m : {"eje1_t.plt", "eje1.rep", "eje1.tra", "eje1.trm", "eje1_ht.per"})
        fila(2, m);
}

void TestFlujo_Conversion::ramas_de_landxml()
{
    QFETCH(int, clase);
    QFETCH(QString, muestra);
    Interfaz_Guion guion;
    const QString destino = banco.Ruta("salida.xml");
    QFile::remove(destino);
    Elegir(guion, Banco_Conversion::Muestra(muestra));
    Elegir(guion, destino);
    Convertir_A_LandXML(Clase_Conversion(clase));
    QCOMPARE(guion.Textos(), QStringList{"Fichero convertido correctamente"});
    QVERIFY(Ficheros::Leer(destino).contains(clase == 0   ? "<CoordGeom>"
                                             : clase == 1 ? "<ProfAlign"
                                                          : "<CrossSects>"));
}

void TestFlujo_Conversion::lo_que_se_ofrece_sin_rama()
{
    for (const char* nombre : {"a.ter", "a.mxr", "a.tra2", "sin"}) {
        Interfaz_Guion guion;
        Elegir(guion, banco.Poner(nombre, "0 0 1\n0 1 2\n"));
        Elegir(guion, banco.Ruta("nada.xml"));
        Convertir_A_LandXML(Clase_Conversion::Transversales);
        QCOMPARE(guion.Textos()[0], QString("Error en la conversión"));
        QCOMPARE(guion.avisos.size(), 2);
        QVERIFY(!QFile::exists(banco.Ruta("nada.xml")));
    }
}

void TestFlujo_Conversion::lo_omitido_va_detras()
{
    // -1 counts as converted; what was left out follows the box.
    Interfaz_Guion guion;
    Elegir(guion, banco.Poner("a.ras", "0 100\n50 x\n100 101\n"));
    Elegir(guion, banco.Ruta("r.xml"));
    Convertir_A_LandXML(Clase_Conversion::Rasantes);
    QCOMPARE(guion.avisos.size(), 2);
    QCOMPARE(guion.avisos[0].texto, QString("Fichero convertido correctamente"));
    QVERIFY(guion.avisos[1].texto.startsWith("Lo que no se ha podido convertir:\r\nLínea 2: "));
    QCOMPARE(guion.avisos[1].icono, Icono::Informacion);

    Interfaz_Guion otro;
    Elegir(otro, banco.Poner("a.tra", "0 0\n"));
    Elegir(otro, banco.Ruta("t.xml"));
    Convertir_A_LandXML(Clase_Conversion::Transversales);
    QCOMPARE(otro.avisos[0].texto, QString("Error en la conversión"));
    QVERIFY(otro.avisos[1].texto.contains("Faltan campos"));
}

void TestFlujo_Conversion::la_lista_larga_se_corta()
{
    const Interfaz_Guion guion;
    Informe_Lectura informe;
    Mostrar_Omisiones(informe);
    QVERIFY(guion.avisos.isEmpty());
    for (int i = 1; i <= 23; ++i)
        informe.Omitir(i, "x", "y");
    Mostrar_Omisiones(informe);
    const QStringList lineas = guion.avisos[0].texto.split("\r\n");
    QCOMPARE(lineas.size(), 22);
    QCOMPARE(lineas.last(), QString("... y 3 más"));
}

void TestFlujo_Conversion::cancelar_calla()
{
    Interfaz_Guion guion;
    guion.ficheros.push_back(std::nullopt);
    Convertir_A_LandXML(Clase_Conversion::Alineaciones);
    guion.ficheros.push_back(std::nullopt);
    Convertir_Puntos();
    Elegir(guion, "a.asc");
    guion.ficheros.push_back(std::nullopt);
    Convertir_Puntos();
    Convertir_A_LandXML(Clase_Conversion::Puntos);
    QVERIFY(guion.avisos.isEmpty());
    QVERIFY(guion.ficheros.empty());
    QCOMPARE(guion.peticiones.size(), 4);
}

void TestFlujo_Conversion::puntos()
{
    Interfaz_Guion guion;
    const QString destino = banco.Ruta("puntos.krt");
    Elegir(guion, Banco_Conversion::Muestra("puntos.asc"));
    Elegir(guion, destino);
    Convertir_Puntos();
    QCOMPARE(guion.Textos(), QStringList{"Generado correctamente fichero \r\n" + destino});
    QCOMPARE(Ficheros::Leer(destino), Banco_Conversion::Bytes_Muestra("puntos.krt"));
    QCOMPARE(guion.peticiones[0].titulo, QString("Fichero Origen"));
    QCOMPARE(guion.peticiones[0].filtro, QString("Puntos espacios/tab. (*.*)|*.*"));
    QCOMPARE(guion.peticiones[1].titulo, QString("Fichero Destino"));
    QCOMPARE(guion.peticiones[1].filtro, QString("Puntos KRT (*.krt)|*.krt"));
    QCOMPARE(guion.peticiones[1].extension, QString("krt"));
    QVERIFY(guion.peticiones[1].guardar);
}

void TestFlujo_Conversion::puntos_sobre_su_origen()
{
    Interfaz_Guion guion;
    const QString fuente = banco.Poner("mismo.krt", "P 1 2 3\n");
    Elegir(guion, fuente);
    Elegir(guion, fuente);
    Convertir_Puntos();
    QCOMPARE(guion.Textos(), QStringList{"El fichero destino debe ser diferente al origen"});
    QCOMPARE(Ficheros::Leer(fuente), QByteArray("P 1 2 3\n"));
}

void TestFlujo_Conversion::puntos_no_pisa_sin_preguntar()
{
    Interfaz_Guion guion;
    const QString viejo = banco.Poner("viejo.krt", "V,1,2,3,\r\n");
    const QString nuevo = banco.Ruta("nuevo.krt");
    Elegir(guion, banco.Poner("f.asc", "P 1 2 3\n"));
    Elegir(guion, viejo);
    Elegir(guion, nuevo);
    guion.respuestas.push_back(false);
    Convertir_Puntos();
    QCOMPARE(guion.Textos().first(), viejo + " ya existe.\r\n¿Desea reemplazarlo?");
    QCOMPARE(Ficheros::Leer(viejo), QByteArray("V,1,2,3,\r\n"));
    QCOMPARE(Ficheros::Leer(nuevo), QByteArray("P,1,2,3,\r\n"));
}

void TestFlujo_Conversion::puntos_malos()
{
    Interfaz_Guion guion;
    Elegir(guion, Banco_Conversion::Muestra("malos.asc"));
    Elegir(guion, banco.Ruta("malos.krt"));
    Convertir_Puntos();
    QCOMPARE(guion.avisos.size(), 2);
    QCOMPARE(guion.avisos[0].texto, QString("Error en la conversión"));
    QVERIFY(guion.avisos[1].texto.contains("Línea 4: "));
    QVERIFY(!QFile::exists(banco.Ruta("malos.krt")));
}

PRUEBA(TestFlujo_Conversion)
#include "TestFlujo_Conversion.moc"
