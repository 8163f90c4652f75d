#include "export/excel/Escritor_Excel.h"

#include "export/excel/Fichero_Excel.h"
#include "export/excel/Libro_De_Plantilla.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/excel/Volcado_Libro.h"
#include "tests/export/Tabla_De_Exportar.h"

using namespace Tabla_De_Exportar;

class TestEscritor_Excel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_libro_es_el_de_siempre_data();
    void el_libro_es_el_de_siempre();
    void detras_de_lo_preparado_se_anade();
    void las_filas_marcadas_del_nivel();
    void una_tabla_sin_filas();
    void lo_que_no_cabe_es_el_mensaje_general();
    void los_fallos_se_dicen_data();
    void los_fallos_se_dicen();
    void un_fallo_deja_lo_que_habia();

private:
    static Opciones_Exportar Opciones(const QString& conexion, bool titulos, bool numeros = false)
    {
        return {.texto = Opciones_Libro{titulos, conexion}.Unir(), .numeros = numeros};
    }
    QString Ruta() const { return p->Ruta("ficheros/s.xls"); }
    /// Lines of xlrd without those of cells that are only prepared.
    QStringList Leido(bool con_nombre = true) const
    {
        QStringList lineas;
        for (QString linea : Volcar_Con_Xlrd(Ruta(), {"areas"})) {
            if (linea.section('\t', 3, 3) == u"V" || linea.startsWith("ancho")) continue;
            if (!con_nombre) linea.replace("Sheet 1\t", "hoja1\t");
            lineas << linea;
        }
        return lineas;
    }
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> guion;
};

void TestEscritor_Excel::init()
{
    p = std::make_unique<Base_De_Prueba>();
    guion = std::make_unique<Interfaz_Guion>();
    Clave_Estacion = "KRT300";
    QVERIFY(QFile::copy(INSTALACION "/DAT/plantilla.xls", p->Ruta("DAT/plantilla.xls")));
}

void TestEscritor_Excel::cleanup()
{
    guion.reset();
    p.reset();
}

void TestEscritor_Excel::el_libro_es_el_de_siempre_data()
{
    QTest::addColumn<QString>("conexion");
    QTest::addColumn<bool>("numeros");
    for (const Forma_Excel& f : Formas_Excel())
        for (const bool numeros : {false, true})
            QTest::newRow(
                qPrintable(QStringView(f.nombre).toString() + (numeros ? ", numbers" : "")))
                << QStringView(f.nombre).toString() << numeros;
}

void TestEscritor_Excel::el_libro_es_el_de_siempre()
{
    QFETCH(QString, conexion);
    QFETCH(bool, numeros);
    QVERIFY(Escribir("XLS", Ruta(), Datos(FILAS), Opciones(conexion, numeros, numeros)));
    QFile patron(QString(DATOS_PRUEBA) + "/export/" +
                 (numeros ? "xls_numeros_titulos.txt" : "xls_textos.txt"));
    QVERIFY(patron.open(QIODevice::ReadOnly));
    QStringList esperado = QString::fromUtf8(patron.readAll()).chopped(1).split('\n');
    // xlrd tells what is printed of the later forms alone.
    if (!Forma_De(conexion).compuesto) esperado.removeFirst();
    QCOMPARE(Leido(Forma_De(conexion).compuesto), esperado);
}

void TestEscritor_Excel::detras_de_lo_preparado_se_anade()
{
    QList<QStringList> muchas;
    for (int i = 0; i < 450; ++i)
        muchas << QStringList{QString::number(i), "0.50", "x"};
    QVERIFY(Escribir("XLS", Ruta(), Datos(muchas), Opciones("Excel 8.0", true, true)));
    const Libro_Excel libro = Abrir_Libro(Ruta());
    const Hoja_Excel& h = libro.Hoja(0);
    for (int i = 0; i < 450; ++i) {
        QCOMPARE(h.Leer(i + 3, 0).numero, double(i));
        QCOMPARE(h.Leer(i + 3, 1).decimales, qint8(2));
        QVERIFY(h.Leer(i + 3, 2).como_texto);
    }
    QCOMPARE(h.Rango_Con_Valores().fila_hasta, 452);
    QVERIFY(Leido().contains("area\thoja1\t1\t0\t452\t2"));
}

void TestEscritor_Excel::las_filas_marcadas_del_nivel()
{
    Poner_Instrumentos(*p);
    Datos_Formateados datos = Datos({{"\6x", "a", "b"}, {"1", "2", "3"}, {"\5y", "c", "d"}});
    datos.lineas_especiales = {"t,01,A,B,", "w,01,P9,"};
    QVERIFY(Escribir("XLS", Ruta(), datos, Opciones("Excel 8.0", false)));
    const Libro_Excel libro = Abrir_Libro(Ruta());
    const Hoja_Excel& h = libro.Hoja(0);
    QCOMPARE(h.Leer(1, 0).texto, QString("Cabecera."));
    QCOMPARE(h.Leer(1, 1).texto, QString("a"));
    QCOMPARE(h.Leer(3, 0).texto, QString("Resumen.Punto:01 "));
}

void TestEscritor_Excel::una_tabla_sin_filas()
{
    QVERIFY(Escribir("XLS", Ruta(), Datos({}), Opciones("Excel 8.0", false)));
    QCOMPARE(Leido(), QStringList());
    // An empty list of fields has no columns and its rows no cells.
    QVERIFY(Escribir("XLS", Ruta(), Datos({{}, {}}, {}), Opciones("Excel 8.0", true)));
    QCOMPARE(Leido(), QStringList());
}

void TestEscritor_Excel::lo_que_no_cabe_es_el_mensaje_general()
{
    const QStringList campos(257, "c"), fila(257, "x");
    QVERIFY(!Escribir("XLS", Ruta(), Datos({fila}, campos), Opciones("Excel 8.0", false)));
    QVERIFY(guion->avisos[0].texto.startsWith(
        "Se produjo un error al realizar la exportación a Formato 'EXCEL'\r(3265) "));
    QCOMPARE(guion->avisos[0].icono, Icono::Critico);
    const QList<QStringList> muchas(16384, {"x"});
    QVERIFY(!Escribir("XLS", Ruta(), Datos(muchas, {"c"}), Opciones("Excel 4.0", false)));
    QVERIFY(guion->avisos[1].texto.contains("\r(3437) "));
}

void TestEscritor_Excel::los_fallos_se_dicen_data()
{
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<QString>("conexion");
    QTest::addColumn<bool>("plantilla");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<Icono>("icono");
    const QString general = "Se produjo un error al realizar la exportación a Formato 'EXCEL'\r(";
    const QString sin_nombre = "Debe especificar un nombre de fichero válido";
    QTest::newRow("name") << "a*b.xls"
                          << "Excel 8.0" << true << sin_nombre << Icono::Exclamacion;
    QTest::newRow("template") << "s.xls"
                              << "Excel 8.0" << false << sin_nombre << Icono::Exclamacion;
    QTest::newRow("no version") << "s.xls"
                                << "" << true
                                << "El fichero 'plantilla.xls' no ha sido encontrado,asegurese "
                                   "de\r\nque exista en el directorio 'DAT' de su aplicación."
                                << Icono::Critico;
    QTest::newRow("version") << "s.xls"
                             << "Excel 9" << true << general + "3170) " << Icono::Critico;
    QTest::newRow("folder") << "no/s.xls"
                            << "Excel 8.0" << true << general + "76) " << Icono::Critico;
}

void TestEscritor_Excel::los_fallos_se_dicen()
{
    QFETCH(QString, fichero);
    QFETCH(QString, conexion);
    QFETCH(bool, plantilla);
    if (!plantilla) QVERIFY(QFile::remove(p->Ruta("DAT/plantilla.xls")));
    QVERIFY(
        !Escribir("XLS", p->Ruta("ficheros/" + fichero), Datos(FILAS), Opciones(conexion, false)));
    QCOMPARE(guion->avisos.size(), 1);
    QFETCH(QString, texto);
    QVERIFY2(guion->avisos[0].texto.startsWith(texto), qPrintable(guion->avisos[0].texto));
    QTEST(guion->avisos[0].icono, "icono");
}

void TestEscritor_Excel::un_fallo_deja_lo_que_habia()
{
    p->Escribir("ficheros/s.xls", "antes");
    const Opciones_Exportar opciones = Opciones("Excel 8.0", false);
    Avance_Exportar avance;
    const Datos_Formateados datos = Datos(FILAS);
    const Origen_Exportar origen{*Base_Datos, 1, "KRT300", 0, "F", {}, opciones, avance};
    const Tarea_Exportar tarea{origen, datos, Ruta()};
    const auto a_medias = [&](const QString& motivo) {
        return !Con_Trampa(FALLOS_DE_LIBRO, [&] {
            Libro_De_Plantilla libro(tarea);
            libro.Llenar_Y_Guardar([&] {
                libro.Fila(std::vector<QString>{"uno", "dos"});
                throw Error_Ejecucion(51, motivo);
            });
        });
    };
    QVERIFY(a_medias("rota"));
    QVERIFY(guion->avisos[0].texto.endsWith("(51) rota"));
    QCOMPARE(p->Leer("ficheros/s.xls"), QByteArray("antes"));
    QCOMPARE(Abrir_Libro(Ruta() + ".parcial").Hoja(0).Leer(1, 1).texto, QString("dos"));
    // Where nothing stood, what there is stays under the name.
    QVERIFY(QFile::remove(Ruta()) && QFile::remove(Ruta() + ".parcial"));
    QVERIFY(a_medias("otra"));
    QCOMPARE(guion->avisos.size(), 2);
    QCOMPARE(Abrir_Libro(Ruta()).Hoja(0).Leer(1, 0).texto, QString("uno"));
}

PRUEBA(TestEscritor_Excel)
#include "TestEscritor_Excel.moc"
