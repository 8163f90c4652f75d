#include "export/Dialogo_Exportar.h"
#include "export/Peticiones_Exportar.h"
#include "formats/ModFormatos.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestDialogoExportar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { Peticiones_De_Exportar() = {}; }
    void cleanup() { Peticiones_De_Exportar() = {}; }
    void empieza_en_texto_formateado();
    void el_dibujo_solo_con_sus_formatos_data();
    void el_dibujo_solo_con_sus_formatos();
    void lo_que_no_se_escribe_no_se_ofrece();
    void cada_opcion_muestra_lo_suyo();
    void excel_2000_deja_la_version_que_habia();
    void el_fichero_se_pide_hasta_que_vale();
    void el_filtro_es_el_de_la_opcion_data();
    void el_filtro_es_el_de_la_opcion();
    void sin_fichero_pita();
    void exportar_escribe_y_muestra();
    void exportar_con_fallo_tambien_muestra();
    void el_separador_sale_del_tag_data();
    void el_separador_sale_del_tag();
    void el_dibujo_va_a_su_dialogo();
};

static const Trabajo_Exportar TRABAJO{1, "KRT300", 1, "NXYZ"};

static int Opcion(const char* tipo)
{
    return Salida_De(tipo)->opcion;
}

void TestDialogoExportar::empieza_en_texto_formateado()
{
    const Sala_Global sala;
    const Dialogo_Exportar d(TRABAJO);
    QCOMPARE(d.opcion, 0);
    QCOMPARE(d.Elegida().tipo, QStringLiteral("TxF"));
    QVERIFY(d.caracter_visible && !d.version_visible && d.elegir_activo && d.fichero.isEmpty());
    QCOMPARE(d.caracteres, (QStringList{" Espacio ( )", " Coma (,)", " Tabulación (|)"}));
    QCOMPARE(d.caracter, 0);
    QCOMPARE(d.tag_caracteres, QStringLiteral(" \u0006,\u0006\t"));
}

void TestDialogoExportar::el_dibujo_solo_con_sus_formatos_data()
{
    QTest::addColumn<QString>("formato");
    QTest::addColumn<bool>("dibujo");
    for (const char* nombre : {"NXYZ", "NXYZCOD", "NPXYZ", "NXYZREPLANTEO"})
        QTest::newRow(nombre) << nombre << true;
    for (const char* nombre : {"nxyz", "NXYZ ", "MÍO", ""})
        QTest::newRow(qPrintable("no: " + QString(nombre))) << nombre << false;
}

void TestDialogoExportar::el_dibujo_solo_con_sus_formatos()
{
    QFETCH(QString, formato);
    const Sala_Global sala;
    Peticiones_De_Exportar().Abrir_DXF = [](const Trabajo_Exportar&) {};
    const Dialogo_Exportar d({1, "KRT300", 1, formato});
    QTEST(d.activa[Opcion("DXF")], "dibujo");
    QTEST(Tipo_Ficheros_Puntos, "dibujo");
}

void TestDialogoExportar::lo_que_no_se_escribe_no_se_ofrece()
{
    const Sala_Global sala;
    for (const char* clave : {"KRT300", "NV400"}) {
        Clave_Estacion = clave;
        const Dialogo_Exportar d(TRABAJO);
        for (const Salida_Exportar& salida : Salidas_Exportar())
            if (salida.opcion >= 0 && !salida.dialogo)
                QCOMPARE(d.activa[salida.opcion], Escritor_De(salida.tipo) != nullptr);
        QVERIFY(!d.activa[Opcion("DXF")]);
    }
    Clave_Estacion = "KRT300";
    QVERIFY(Escritor_De("TxF") && Escritor_De("TXT"));
}

void TestDialogoExportar::cada_opcion_muestra_lo_suyo()
{
    const Sala_Global sala;
    Dialogo_Exportar d(TRABAJO);
    d.fichero = "algo";
    d.caracter = 2;
    d.Elegir_Opcion(Opcion("Txt"));
    QVERIFY(d.caracter_visible && !d.version_visible && d.fichero.isEmpty());
    QCOMPARE(d.caracter, 0);
    d.Elegir_Opcion(Opcion("Xls"));
    QVERIFY(!d.caracter_visible && d.version_visible);
    QCOMPARE(d.versiones,
             (QStringList{"Excel 3.0", "Excel 4.0", "Excel 95", "Excel 97", "Excel 2000"}));
    QCOMPARE(d.versiones[d.version], QStringLiteral("Excel 97"));
    QCOMPARE(d.version_excel, QStringLiteral("Excel 8.0"));
    d.Elegir_Opcion(Opcion("DXF"));
    QVERIFY(!d.caracter_visible && !d.version_visible && d.elegir_activo);
}

void TestDialogoExportar::excel_2000_deja_la_version_que_habia()
{
    const Sala_Global sala;
    Dialogo_Exportar d(TRABAJO);
    d.Elegir_Opcion(Opcion("Xls"));
    QStringList conexiones;
    for (const int i : {0, 1, 2, 4, 3, 4}) {
        d.Elegir_Version(i);
        conexiones << d.version_excel;
    }
    QCOMPARE(conexiones, (QStringList{"Excel 3.0", "Excel 4.0", "Excel 5.0", "Excel 5.0",
                                      "Excel 8.0", "Excel 8.0"}));
}

void TestDialogoExportar::el_fichero_se_pide_hasta_que_vale()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    p.Escribir("ficheros/hay.txt", "x");
    Dialogo_Exportar d(TRABAJO);
    guion.ficheros = {Fichero_Elegido{p.Ruta("ficheros/hay.txt")},
                      Fichero_Elegido{p.Ruta("ficheros/sin")}};
    guion.respuestas = {false};
    d.Elegir_Fichero();
    // The name comes back as typed.
    QCOMPARE(d.fichero, p.Ruta("ficheros/sin"));
    QCOMPARE(guion.peticiones.size(), 2);
    QCOMPARE(guion.Textos(), QStringList{"El fichero ya existe, ¿ Desea reemplazarlo?"});
    QCOMPARE(guion.avisos[0].icono, Icono::Exclamacion);

    guion.ficheros = {Fichero_Elegido{p.Ruta("ficheros/hay.txt")}};
    guion.respuestas = {true};
    d.Elegir_Fichero();
    QCOMPARE(d.fichero, p.Ruta("ficheros/hay.txt"));
    QCOMPARE(guion.avisos.size(), 2);
    guion.ficheros = {std::nullopt};
    d.Elegir_Fichero();
    QCOMPARE(d.fichero, p.Ruta("ficheros/hay.txt"));
}

void TestDialogoExportar::el_filtro_es_el_de_la_opcion_data()
{
    QTest::addColumn<int>("opcion");
    QTest::addColumn<QString>("filtro");
    QTest::newRow("formateado") << 0 << "Archivos Texto(*.Txt)|*.Txt| Todos los Archivos (*.*)|*.*";
    QTest::newRow("texto") << 1 << "Archivos Texto(*.Txt)|*.Txt| Todos los Archivos (*.*)|*.*";
    QTest::newRow("excel") << 2 << "Archivos Excel(*.xls)|*.xls| Todos los Archivos (*.*)|*.*";
    QTest::newRow("dxf") << 3 << "Archivos Autocad(*.dxf)|*.dxf| Todos los Archivos (*.*)|*.*";
    QTest::newRow("access") << 4 << "Archivos Access(*.mdb)|*.mdb| Todos los Archivos (*.*)|*.*";
}

void TestDialogoExportar::el_filtro_es_el_de_la_opcion()
{
    QFETCH(int, opcion);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Dialogo_Exportar d(TRABAJO);
    d.Elegir_Opcion(opcion);
    guion.ficheros = {std::nullopt};
    d.Elegir_Fichero();
    const Peticion_Fichero& peticion = guion.peticiones.last();
    QTEST(peticion.filtro, "filtro");
    QCOMPARE(peticion.titulo, QStringLiteral("Guardar como ..."));
    QCOMPARE(peticion.carpeta, p.Ruta("ficheros"));
    QVERIFY(peticion.guardar && peticion.extension.isEmpty());
}

void TestDialogoExportar::sin_fichero_pita()
{
    const Sala_Global sala;
    Interfaz_Guion guion;
    Dialogo_Exportar d(TRABAJO);
    Avance_Exportar avance;
    QVERIFY(!d.Exportar(avance));
    QCOMPARE(guion.pitidos, 1);
    QVERIFY(guion.vistos.isEmpty() && guion.avisos.isEmpty());
}

void TestDialogoExportar::exportar_escribe_y_muestra()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 1, {{"1", " y+001000000"}, {"2", "cA"}});
    Poner_Campos_Exportar({"Punto", "Coordenada X"});
    Incluir_Cabeceras = true;
    Dialogo_Exportar d(TRABAJO);
    QVERIFY(d.Proponer_Fichero(p.Ruta("ficheros/s.txt")));
    Avance_Exportar avance;
    QVERIFY(d.Exportar(avance));
    QCOMPARE(p.Leer("ficheros/s.txt"),
             QByteArray("Punto Coordenada X\r\n\r\n1     1000.000    \r\n2                 \r\n"));
    QCOMPARE(guion.vistos, QStringList{p.Ruta("ficheros/s.txt")});
    QCOMPARE(guion.cursor, 0);
    Incluir_Cabeceras = false;
}

void TestDialogoExportar::exportar_con_fallo_tambien_muestra()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Campos_Exportar({"Punto"});
    Dialogo_Exportar d(TRABAJO);
    d.fichero = p.Ruta("no/hay/s.txt");
    Avance_Exportar avance;
    QVERIFY(!d.Exportar(avance));
    QVERIFY(guion.avisos[0].texto.contains("\r(76) "));
    QCOMPARE(guion.vistos.size(), 1);
    QCOMPARE(guion.cursor, 0);
}

void TestDialogoExportar::el_separador_sale_del_tag_data()
{
    QTest::addColumn<int>("caracter");
    QTest::addColumn<QByteArray>("linea");
    QTest::newRow("espacio") << 0 << QByteArray("1 A\r\n");
    QTest::newRow("coma") << 1 << QByteArray("1,A\r\n");
    QTest::newRow("tabulacion") << 2 << QByteArray("1\tA\r\n");
}

void TestDialogoExportar::el_separador_sale_del_tag()
{
    QFETCH(int, caracter);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 1, {{"1", "cA"}});
    Poner_Campos_Exportar({"Punto", "Código"});
    Incluir_Cabeceras = false;
    Dialogo_Exportar d(TRABAJO);
    d.Elegir_Opcion(Opcion("Txt"));
    d.caracter = caracter;
    d.fichero = p.Ruta("ficheros/s.txt");
    Avance_Exportar avance;
    QVERIFY(d.Exportar(avance));
    QTEST(p.Leer("ficheros/s.txt"), "linea");
}

void TestDialogoExportar::el_dibujo_va_a_su_dialogo()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    QStringList dibujados;
    Peticiones_De_Exportar().Abrir_DXF = [&](const Trabajo_Exportar& t) { dibujados << t.formato; };
    Dialogo_Exportar d(TRABAJO);
    d.Elegir_Opcion(Opcion("DXF"));
    d.fichero = p.Ruta("ficheros/s.dxf");
    Avance_Exportar avance;
    d.Exportar(avance);
    QCOMPARE(dibujados, QStringList{"NXYZ"});
    QVERIFY(guion.vistos.isEmpty() && guion.avisos.isEmpty() && !QFile::exists(d.fichero));
}

PRUEBA(TestDialogoExportar)
#include "TestDialogoExportar.moc"
