#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"
#include "export/mdb/Base_Jet.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/mdb/Lectura_Jet.h"

#include <QBuffer>

using Lectura_Jet::Celda;

// What is written is what other readers find: the examiner, which tells null from empty, and
// mdbtools.
class TestBaseJet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_celdas_vuelven_iguales_data();
    void las_celdas_vuelven_iguales();
    void nulo_no_es_vacio();
    void lo_que_parece_marca_se_quita();
    void los_pares_vuelven_enteros();
    void los_nombres_admiten_toda_la_pagina();
    void treinta_y_dos_mil_filas();
    void las_columnas_llenan_la_mascara_data();
    void las_columnas_llenan_la_mascara();
    void las_filas_llenan_las_paginas_data();
    void las_filas_llenan_las_paginas();
    void definiciones_de_toda_medida_data();
    void definiciones_de_toda_medida();
    void mapas_de_toda_medida_data();
    void mapas_de_toda_medida();
    void muchas_tablas();
    void una_tabla_de_cada_clase();

private:
    QTemporaryDir carpeta;
    QString Fichero() const { return carpeta.filePath("a.mdb"); }
    QByteArray Leer() const
    {
        QFile f(Fichero());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    Ajustes_Jet Ajustes() const { return {.si_existe = Ajustes_Jet::REEMPLAZAR}; }
};

static QList<Columna_Texto> Columnas(int cuantas, const Columna_Texto& modelo = {})
{
    QList<Columna_Texto> columnas;
    for (int i = 0; i < cuantas; ++i) {
        columnas << modelo;
        columnas.last().nombre = QStringLiteral("C%1").arg(i);
    }
    return columnas;
}

static QString Toda_La_Pagina()
{
    QString texto;
    for (int codigo = 1; codigo < 256; ++codigo)
        texto += Ansi::Caracter(codigo);
    return texto;
}

void TestBaseJet::las_celdas_vuelven_iguales_data()
{
    QTest::addColumn<QString>("texto");
    QString pagina = Toda_La_Pagina(); // but for the marks between cells and rows
    pagina.remove(QChar(0x1E)).remove(QChar(0x1F));
    QTest::newRow("toda la página") << pagina;
    QTest::newRow("Latin-1") << "Código de señal: ¿Ángulo? «ñandú»";
    QTest::newRow("fuera de Latin-1") << "5 € – “Œuvre”…";
    QTest::newRow("comillas") << "\"dos\" 'una' `grave` \"\"";
    QTest::newRow("saltos") << "uno\r\ndos\ntres\ttabulador";
    QTest::newRow("blancos") << "  delante y detrás  ";
    QTest::newRow("un carácter") << "é";
    QTest::newRow("dos, que no se comprimen") << "ab";
    QTest::newRow("tres, que se comprimen") << "abc";
    QTest::newRow("255") << QString(255, u'x');
    QTest::newRow("255 anchos") << QString(255, u'€');
    QTest::newRow("otra escritura") << "Ωμέγα Москва";
    QTest::newRow("otra marca") << QString(QChar(0xFFFE)) + "abc";
}

void TestBaseJet::las_celdas_vuelven_iguales()
{
    QFETCH(QString, texto);
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", {{.nombre = "Comprimida", .tamano = 255},
                               {.nombre = "Llana", .tamano = 255, .comprimida = false},
                               {.nombre = "Tercera"}});
    base.Anadir_Fila({texto, texto, "detrás"});
    base.Anadir_Fila({"", "", ""});
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Exportar(Fichero(), "Datos"),
             (QList<QStringList>{{texto, texto, "detrás"}, {"", "", ""}}));
    QCOMPARE(Lectura_Jet::Cortar(Leer()).first(), (QList<Celda>{texto, texto, "detrás"}));
}

void TestBaseJet::nulo_no_es_vacio()
{
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", Columnas(3));
    const Celda_Jet fila[] = {std::nullopt, QStringView(u""), QStringView(u"x")};
    base.Anadir_Fila(fila);
    base.Anadir_Fila({QString(), "", "y"});
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Cortar(Leer()),
             (QList<QList<Celda>>{{std::nullopt, "", "x"}, {"", "", "y"}}));
}

void TestBaseJet::lo_que_parece_marca_se_quita()
{
    const QString marca(QChar(0xFEFF));
    for (const bool comprimida : {true, false}) {
        Base_Jet base(Fichero(), Ajustes());
        base.Crear_Tabla("Datos", Columnas(3, {.comprimida = comprimida}));
        base.Anadir_Fila({marca + marca + "abc", marca, "a" + marca});
        base.Cerrar();
        QCOMPARE(Revisar_Mdb(Leer()), QStringList());
        QCOMPARE(Lectura_Jet::Cortar(Leer()).first(), (QList<Celda>{"abc", "", "a" + marca}));
    }
}

// mdbtools knows no pairs, so the examiner alone reads these.
void TestBaseJet::los_pares_vuelven_enteros()
{
    const QString mundo = QString::fromUcs4(U"\U0001F30D mundo");
    const QString medio = mundo.mid(1);
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", Columnas(2));
    base.Anadir_Fila({mundo, medio});
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Cortar(Leer()).first(), (QList<Celda>{mundo, medio}));
}

void TestBaseJet::los_nombres_admiten_toda_la_pagina()
{
    // Every character but those that no name may hold, in names as long as can be.
    QString buenos;
    for (const QChar c : Toda_La_Pagina())
        if (c >= u' ' && !QStringLiteral(".!`[]").contains(c)) buenos += c;
    QStringList tablas, columnas, fila;
    for (int i = 0; i < buenos.size(); i += 60)
        tablas << QStringLiteral("T%1%2").arg(tablas.size()).arg(buenos.mid(i, 60));
    for (const QChar c : buenos) {
        columnas << QStringLiteral("%1 %2").arg(columnas.size()).arg(c).rightJustified(64, u'_');
        fila << c;
    }
    Base_Jet base(Fichero(), Ajustes());
    for (const QString& tabla : tablas) {
        QList<Columna_Texto> lista;
        for (const QString& columna : columnas)
            lista.append({.nombre = columna});
        base.Crear_Tabla(tabla, lista);
        base.Anadir_Fila(fila);
    }
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-tables", {"-1", Fichero()}).split('\n', Qt::SkipEmptyParts),
             tablas);
    for (const QString& tabla : tablas)
        QCOMPARE(Lectura_Jet::Exportar(Fichero(), tabla), QList<QStringList>{fila});
    const QString propiedades = Lectura_Jet::Mdbtools("mdb-prop", {Fichero(), tablas.first()});
    QCOMPARE(propiedades.count("AllowZeroLength: yes"), columnas.size());
    const QString esquema = Lectura_Jet::Mdbtools("mdb-schema", {"-T", tablas.last(), Fichero()});
    for (const QString& columna : columnas)
        QVERIFY(esquema.contains("[" + columna + "]"));
}

void TestBaseJet::treinta_y_dos_mil_filas()
{
    constexpr int FILAS = 32768;
    const auto fila = [](int i) {
        QStringList celdas;
        for (int c = 0; c < 10; ++c)
            celdas << (c == 3 && i % 7 == 0 ? QString()
                                            : QStringLiteral("ñ%1·%2").arg(i * 31).arg(c));
        return celdas;
    };
    QFile destino(Fichero());
    QVERIFY(destino.open(QIODevice::WriteOnly));
    Base_Jet base(destino, Ajustes());
    base.Crear_Tabla("Datos", Columnas(10));
    for (int i = 0; i < FILAS; ++i)
        base.Anadir_Fila(fila(i));
    QCOMPARE(base.Filas(), FILAS);
    const qint64 antes = destino.size();
    base.Cerrar();
    destino.close();
    // Rows go to the disk as they come: what is kept for the end doesn't depend on them.
    QVERIFY2(destino.size() - antes < 400'000, qPrintable(QString::number(antes)));
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-ver", {Fichero()}).trimmed(), QStringLiteral("JET4"));
    const QList<QStringList> leidas = Lectura_Jet::Exportar(Fichero(), "Datos");
    QCOMPARE(leidas.size(), FILAS);
    for (int i = 0; i < FILAS; ++i)
        if (leidas[i] != fila(i)) QCOMPARE(leidas[i], fila(i));
}

void TestBaseJet::las_columnas_llenan_la_mascara_data()
{
    QTest::addColumn<int>("cuantas");
    for (const int n : {1, 7, 8, 9, 25, 254, 255})
        QTest::addRow("%d", n) << n;
}

void TestBaseJet::las_columnas_llenan_la_mascara()
{
    QFETCH(int, cuantas);
    QStringList fila, vacia;
    for (int i = 0; i < cuantas; ++i) {
        fila << QString::number(i);
        vacia << "";
    }
    const QList<Celda_Jet> nula(cuantas);
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", Columnas(cuantas));
    base.Anadir_Fila(fila);
    base.Anadir_Fila(vacia);
    base.Anadir_Fila(nula);
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Exportar(Fichero(), "Datos"), (QList<QStringList>{fila, vacia, vacia}));
    QCOMPARE(Lectura_Jet::Cortar(Leer())[2], QList<Celda>(cuantas));
    const QString esquema = Lectura_Jet::Mdbtools("mdb-schema", {Fichero()});
    QCOMPARE(esquema.count("Text (80)"), cuantas);
}

void TestBaseJet::las_filas_llenan_las_paginas_data()
{
    QTest::addColumn<int>("filas");
    QTest::addColumn<int>("paginas");
    QTest::newRow("ninguna") << 0 << 0;
    QTest::newRow("una") << 1 << 1;
    QTest::newRow("una página") << 255 << 1; // the rows are small: their number is the limit
    QTest::newRow("y una más") << 256 << 2;
    QTest::newRow("dos páginas") << 510 << 2;
}

void TestBaseJet::las_filas_llenan_las_paginas()
{
    QFETCH(int, filas);
    QFETCH(int, paginas);
    constexpr int SIN_DATOS = 19; // system, definition, maps and properties
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", Columnas(1));
    for (int i = 0; i < filas; ++i)
        base.Anadir_Fila({QString::number(i % 10)});
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Leer().size(), (SIN_DATOS + paginas) * 4096);
    QCOMPARE(Lectura_Jet::Exportar(Fichero(), "Datos").size(), filas);
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-count", {Fichero(), "Datos"}).trimmed(),
             QString::number(filas));
}

void TestBaseJet::definiciones_de_toda_medida_data()
{
    QTest::addColumn<int>("columnas");
    QTest::addColumn<int>("letras");  // of all names together
    QTest::addColumn<int>("paginas"); // of definition and properties together
    // A definition of n columns takes 65 + 27 n bytes and two a letter.
    const auto definicion = [](int bytes, int columnas, int paginas) {
        QTest::addRow("definición de %d", bytes)
            << columnas << (bytes - 65 - 27 * columnas) / 2 << paginas;
    };
    definicion(4088, 61, 1 + 1);
    definicion(4094, 61, 1 + 1);
    definicion(4096, 61, 1 + 1);
    definicion(4098, 61, 2 + 1);
    definicion(8182, 101, 2 + 2);
    definicion(8184, 101, 2 + 2);
    definicion(8186, 101, 3 + 2);
    // Its properties take 42 + 21 n bytes and two a letter.
    const auto propiedades = [](int bytes, int columnas, int paginas) {
        QTest::addRow("propiedades de %d", bytes)
            << columnas << (bytes - 42 - 21 * columnas) / 2 << paginas;
    };
    propiedades(3814, 50, 2 + 1);
    propiedades(3816, 50, 2 + 1);
    propiedades(3818, 50, 2 + 1); // a chain of one piece
    propiedades(4072, 50, 2 + 1);
    propiedades(4074, 50, 2 + 2);
    propiedades(8144, 100, 3 + 2);
    propiedades(8146, 100, 3 + 3);
}

void TestBaseJet::definiciones_de_toda_medida()
{
    QFETCH(int, columnas);
    QFETCH(int, letras);
    QFETCH(int, paginas);
    QList<Columna_Texto> lista = Columnas(columnas);
    QStringList fila;
    int quedan = letras;
    for (const Columna_Texto& c : lista)
        quedan -= int(c.nombre.size());
    QVERIFY(quedan >= 0);
    for (Columna_Texto& c : lista) {
        const int mas = std::min(quedan, 64 - int(c.nombre.size()));
        c.nombre += QString(mas, u'ñ');
        quedan -= mas;
        fila << c.nombre.left(3);
    }
    QCOMPARE(quedan, 0);
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", lista);
    base.Anadir_Fila(fila);
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Leer().size() / 4096, 16 + 1 + paginas + 1); // maps; one page of data
    QCOMPARE(Lectura_Jet::Exportar(Fichero(), "Datos"), QList<QStringList>{fila});
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-prop", {Fichero(), "Datos"}).count("yes"), columnas);
}

void TestBaseJet::mapas_de_toda_medida_data()
{
    QTest::addColumn<int>("ultima");
    for (const int pagina : {510, 511, 512, 31999, 32031, 32032}) // data page
        QTest::addRow("%d", pagina) << pagina;
}

// Up to page 511 maps have their shortest form; the global one is kept on pages of its own beyond
// 32000 pages, that of the table from page 32032 on.
void TestBaseJet::mapas_de_toda_medida()
{
    QFETCH(int, ultima);
    constexpr int PRIMERA = 19;
    const Columna_Texto ancha = {.tamano = 255, .comprimida = false};
    const QString largo(255, u'€');
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Datos", Columnas(5, ancha)); // over half a page a row
    for (int pagina = PRIMERA; pagina <= ultima; ++pagina)
        base.Anadir_Fila({QString::number(pagina), largo, largo, largo, largo});
    base.Cerrar();
    QFile fichero(Fichero());
    QVERIFY(fichero.open(QIODevice::ReadOnly));
    const uchar* const bytes = fichero.map(0, fichero.size());
    QCOMPARE(Revisar_Mdb({bytes, fichero.size()}), QStringList());
    const int bitmaps = ultima < 32000 ? 0 : ultima < 32032 ? 1 : 2;
    QCOMPARE(fichero.size() / 4096, ultima + 1 + bitmaps);
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-count", {Fichero(), "Datos"}).toInt(),
             ultima - PRIMERA + 1);
}

void TestBaseJet::muchas_tablas()
{
    constexpr int TABLAS = 120;
    QStringList nombres;
    Base_Jet base(Fichero(), Ajustes());
    for (int i = 0; i < TABLAS; ++i) {
        nombres << QStringLiteral("Tabla %1").arg(i);
        base.Crear_Tabla(nombres.last(), Columnas(1 + i % 5));
        for (int f = 0; f < i; ++f)
            base.Anadir_Fila(QStringList(1 + i % 5, QString::number(f)));
    }
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-tables", {"-1", Fichero()}).split('\n', Qt::SkipEmptyParts),
             nombres);
    for (const int i : {0, 1, 60, TABLAS - 1}) {
        const QList<QStringList> filas = Lectura_Jet::Exportar(Fichero(), nombres[i]);
        QCOMPARE(filas.size(), i);
        if (i > 0) QCOMPARE(filas.last(), QStringList(1 + i % 5, QString::number(i - 1)));
    }
}

void TestBaseJet::una_tabla_de_cada_clase()
{
    Base_Jet base(Fichero(), Ajustes());
    base.Crear_Tabla("Sin vacíos", Columnas(2, {.admite_vacio = false}));
    base.Anadir_Fila({"a", "b"});
    base.Crear_Tabla("Mezcla", {{.nombre = "Sí", .tamano = 1},
                                {.nombre = "No", .tamano = 255, .admite_vacio = false}});
    base.Anadir_Fila({"", "x"});
    base.Crear_Tabla("Ancha", Columnas(255)); // properties in a chain
    base.Anadir_Fila(QStringList(255, "1"));
    // Every letter whose place in the order the examiner knows for itself.
    base.Crear_Tabla("ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789 xyz", Columnas(1));
    base.Crear_Tabla("Última", Columnas(3));
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer()), QStringList());
    QVERIFY(!Lectura_Jet::Mdbtools("mdb-prop", {Fichero(), "Sin vacíos"}).contains("yes"));
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-prop", {Fichero(), "Mezcla"}).count("yes"), 1);
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-prop", {Fichero(), "Ancha"}).count("yes"), 255);
    const QString esquema = Lectura_Jet::Mdbtools("mdb-schema", {"-T", "Mezcla", Fichero()});
    QVERIFY(esquema.contains("Text (1)") && esquema.contains("Text (255)"));
    QCOMPARE(Lectura_Jet::Exportar(Fichero(), "Ancha").first(), QStringList(255, "1"));
}

PRUEBA(TestBaseJet)
#include "TestBaseJet.moc"
