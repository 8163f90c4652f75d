#include "core/Error_Ejecucion.h"
#include "export/excel/Libro_Excel.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <limits>

class TestLibro_Excel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void una_celda_guarda_valor_y_aspecto();
    void el_rango_usado_abarca_las_celdas();
    void las_celdas_llegan_en_cualquier_orden();
    void los_nombres_de_hoja_tienen_reglas_data();
    void los_nombres_de_hoja_tienen_reglas();
    void las_hojas_se_buscan_sin_mayusculas();
    void lo_que_no_cabe_es_un_error_data();
    void lo_que_no_cabe_es_un_error();
    void las_formas_se_llaman_por_su_conexion();
};

void TestLibro_Excel::una_celda_guarda_valor_y_aspecto()
{
    Hoja_Excel h("hoja1");
    h.Poner_Negrita({0, 0, 1, 1});
    h.Poner(0, 0, "a");
    h.Poner(0, 1, 2.5);
    h.Poner_Como_Texto({0, 1, 0, 1});
    QCOMPARE(h.Leer(0, 0).tipo, Celda::Tipo::Texto);
    QCOMPARE(h.Leer(0, 0).texto, QString("a"));
    QVERIFY(h.Leer(0, 0).negrita);
    QCOMPARE(h.Leer(0, 1).tipo, Celda::Tipo::Numero);
    QCOMPARE(h.Leer(0, 1).numero, 2.5);
    QVERIFY(h.Leer(0, 1).negrita && h.Leer(0, 1).como_texto);
    QCOMPARE(h.Leer(1, 1).tipo, Celda::Tipo::Nada);
    QVERIFY(h.Leer(1, 1).negrita);
    h.Poner(0, 0, 7.0);
    QCOMPARE(h.Leer(0, 0).tipo, Celda::Tipo::Numero);
    QVERIFY(h.Leer(0, 0).texto.isEmpty() && h.Leer(0, 0).negrita);
    h.Poner(0, 0, Celda());
    QCOMPARE(h.Leer(0, 0), Celda());
    QCOMPARE(h.Leer(100, 200), Celda());
    QCOMPARE(h.Leer(-1, -1), Celda());
}

void TestLibro_Excel::el_rango_usado_abarca_las_celdas()
{
    Hoja_Excel h("hoja1");
    QVERIFY(h.Rango_Usado().Vacio());
    QVERIFY(h.Rango_Con_Valores().Vacio());
    h.Poner(3, 7, "x");
    h.Poner(5, 2, 1.0);
    h.Poner_Negrita({9, 1, 9, 1});
    QCOMPARE(h.Rango_Usado(), (Rango{3, 1, 9, 7}));
    QCOMPARE(h.Rango_Con_Valores(), (Rango{0, 0, 5, 7}));
    h.Ampliar_Uso({1, 4, 70000, 5});
    QCOMPARE(h.Rango_Usado(), (Rango{1, 1, 65535, 7}));
    h.Ampliar_Uso({});
    QCOMPARE(h.Rango_Usado(), (Rango{1, 1, 65535, 7}));
    QCOMPARE(h.Rango_Con_Valores(), (Rango{0, 0, 5, 7}));
}

void TestLibro_Excel::las_celdas_llegan_en_cualquier_orden()
{
    Hoja_Excel h("hoja1");
    for (const int c : {7, 3, 9, 0, 3, 8})
        h.Poner(0, c, double(c));
    QList<int> columnas;
    for (const Celda_Situada& c : h.Fila(0)) {
        columnas << c.columna;
        QCOMPARE(c.numero, double(c.columna));
    }
    QCOMPARE(columnas, (QList<int>{0, 3, 7, 8, 9}));
}

void TestLibro_Excel::los_nombres_de_hoja_tienen_reglas_data()
{
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<int>("error");
    QTest::newRow("normal") << "hoja1" << 0;
    QTest::newRow("acentos") << "Año 2026 €" << 0;
    QTest::newRow("31") << QString(31, 'x') << 0;
    QTest::newRow("32") << QString(32, 'x') << 3125;
    QTest::newRow("vacío") << "" << 3125;
    for (const QChar c : QString(":\\/?*[]"))
        QTest::addRow("con %c", c.toLatin1()) << QString("a%1b").arg(c) << 3125;
    QTest::newRow("control") << "a\nb" << 3125;
    QTest::newRow("apóstrofo delante") << "'a" << 3125;
    QTest::newRow("apóstrofo detrás") << "a'" << 3125;
    QTest::newRow("apóstrofo en medio") << "a'b" << 0;
    QTest::newRow("repetido") << "OTRA" << 3010;
}

void TestLibro_Excel::los_nombres_de_hoja_tienen_reglas()
{
    QFETCH(QString, nombre);
    QFETCH(int, error);
    Libro_Excel libro;
    libro.Agregar_Hoja("otra");
    QCOMPARE(Numero_De_Error([&] { libro.Agregar_Hoja(nombre); }), error);
    QCOMPARE(libro.Numero_Hojas(), error ? 1 : 2);
    // A name that was read is examined when it is to be written.
    const Libro_Excel leido(std::deque<Hoja_Excel>{Hoja_Excel("otra"), Hoja_Excel(nombre)});
    const auto& forma = Forma_De(Version_Excel::Excel_8);
    QCOMPARE(Numero_De_Error([&] { leido.Comprobar(forma); }), error);
}

void TestLibro_Excel::las_hojas_se_buscan_sin_mayusculas()
{
    Libro_Excel libro;
    Hoja_Excel& una = libro.Agregar_Hoja("hoja1");
    Hoja_Excel& otra = libro.Agregar_Hoja("Año");
    QCOMPARE(&libro.Hoja("HOJA1"), &una);
    QCOMPARE(&libro.Hoja("AÑO"), &otra);
    QCOMPARE(&libro.Hoja(1), &otra);
    QCOMPARE(Numero_De_Error([&] { libro.Hoja("no"); }), 3011);
    QCOMPARE(Numero_De_Error([&] { libro.Hoja(2); }), 9);
    QCOMPARE(Numero_De_Error([&] { libro.Hoja(-1); }), 9);
}

void TestLibro_Excel::lo_que_no_cabe_es_un_error_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("fila");
    QTest::addColumn<int>("columna");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("error");
    for (const Forma_Excel& f : Formas_Excel()) {
        const int v = int(f.version);
        const QByteArray n = QStringView(f.nombre).toUtf8();
        const int filas = f.version == Version_Excel::Excel_8 ? 65536 : 16384;
        const int letras = f.version == Version_Excel::Excel_8 ? 32767 : 255;
        QTest::addRow("%s última fila", n.data()) << v << filas - 1 << 0 << "x" << 0;
        QTest::addRow("%s fila de más", n.data()) << v << filas << 0 << "x" << 3437;
        QTest::addRow("%s última columna", n.data()) << v << 0 << 255 << "x" << 0;
        QTest::addRow("%s columna de más", n.data()) << v << 0 << 256 << "x" << 3190;
        QTest::addRow("%s texto más largo", n.data()) << v << 0 << 0 << QString(letras, u'á') << 0;
        QTest::addRow("%s letra de más", n.data())
            << v << 0 << 0 << QString(letras + 1, u'á') << 3163;
    }
    // A character beyond the page is one "?", though it takes two places in memory.
    const QString caras = QString::fromUtf8("\U0001F600").repeated(255);
    QTest::newRow("sustitutos") << int(Version_Excel::Excel_3) << 0 << 0 << caras << 0;
    QTest::newRow("fila negativa") << int(Version_Excel::Excel_8) << -1 << 0 << "x" << 9;
    QTest::newRow("columna negativa") << int(Version_Excel::Excel_8) << 0 << -1 << "x" << 9;
}

void TestLibro_Excel::lo_que_no_cabe_es_un_error()
{
    QFETCH(int, version);
    QFETCH(int, fila);
    QFETCH(int, columna);
    QFETCH(QString, texto);
    QFETCH(int, error);
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    QCOMPARE(Numero_De_Error([&] {
                 h.Poner(fila, columna, texto);
                 libro.Comprobar(Forma_De(Version_Excel(version)));
             }),
             error);
}

void TestLibro_Excel::las_formas_se_llaman_por_su_conexion()
{
    for (const char* nombre : {"Excel 3.0", "Excel 4.0", "Excel 5.0", "Excel 8.0"})
        QCOMPARE(QStringView(Forma_De(QString(nombre)).nombre), QString(nombre));
    QCOMPARE(Numero_De_Error([] { Forma_De(QString("Excel 2000")); }), 3170);
    const auto& antigua = Forma_De(Version_Excel::Excel_4);
    const auto& de_1995 = Forma_De(Version_Excel::Excel_5);
    Libro_Excel libro;
    QCOMPARE(Numero_De_Error([&] { libro.Comprobar(de_1995); }), 3251);
    libro.Agregar_Hoja("una");
    QCOMPARE(Numero_De_Error([&] { libro.Comprobar(antigua); }), 0);
    libro.Agregar_Hoja("Ω"); // would be written "?"
    QCOMPARE(Numero_De_Error([&] { libro.Comprobar(antigua); }), 3251);
    QCOMPARE(Numero_De_Error([&] { libro.Comprobar(de_1995); }), 3125);
    QCOMPARE(Numero_De_Error([&] { libro.Comprobar(Forma_De(Version_Excel::Excel_8)); }), 0);
    while (libro.Numero_Hojas() <= 4096)
        libro.Agregar_Hoja(QString::number(libro.Numero_Hojas()));
    QCOMPARE(Numero_De_Error([&] { libro.Comprobar(Forma_De(Version_Excel::Excel_8)); }), 3251);
    const double infinito = std::numeric_limits<double>::infinity();
    QCOMPARE(Numero_De_Error([&] { libro.Hoja(0).Poner(0, 0, infinito); }), 5);
}

PRUEBA(TestLibro_Excel)
#include "TestLibro_Excel.moc"
