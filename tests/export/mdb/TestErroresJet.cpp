#include "core/Error_Ejecucion.h"
#include "export/mdb/Base_Jet.h"
#include "export/mdb/Paginas_Jet.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/mdb/Lectura_Jet.h"

#include <QBuffer>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using Lectura_Jet::Celda;

// What is refused, with which number, and what is left behind.
class TestErroresJet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tablas_que_se_rechazan_data();
    void tablas_que_se_rechazan();
    void nombres_que_son_uno_data();
    void nombres_que_son_uno();
    void filas_que_se_rechazan();
    void la_fila_mas_larga();
    void el_catalogo_se_llena();
    void destinos_que_se_rechazan_data();
    void destinos_que_se_rechazan();
    void ajustes_que_se_rechazan_data();
    void ajustes_que_se_rechazan();
    void sin_cerrar_no_aparece_nada();
    void lo_que_habia_cambia_al_cerrar();
    void lo_que_aparece_entretanto_se_respeta();
    void carpeta_sin_permiso();
    void disco_lleno_en_cualquier_byte();
    void aparato_que_falla();
    void el_fichero_no_puede_crecer();
    void no_hay_paginas_mas_alla_de_dos_gigas();
    void cerrada_no_admite_nada();

private:
    QTemporaryDir carpeta;
    QString Fichero(const QString& nombre = "a.mdb") const { return carpeta.filePath(nombre); }
};

// Number of the failure that `accion` ends in; 0 for none.
template <class Accion> static int Numero(Accion accion)
{
    try {
        accion();
    } catch (const Error_Ejecucion& e) {
        return e.descripcion.isEmpty() ? -1 : e.numero;
    }
    return 0;
}

static QByteArray Leer(const QString& ruta)
{
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

static QList<Columna_Texto> Columnas(int cuantas)
{
    QList<Columna_Texto> columnas;
    for (int i = 0; i < cuantas; ++i)
        columnas.append({.nombre = QStringLiteral("C%1").arg(i)});
    return columnas;
}

void TestErroresJet::tablas_que_se_rechazan_data()
{
    QTest::addColumn<QString>("tabla");
    QTest::addColumn<QList<Columna_Texto>>("columnas");
    QTest::addColumn<int>("numero");
    const QList<Columna_Texto> buena = {{.nombre = "a"}};
    const QPair<const char*, QString> malos[] = {
        {"vacío", ""},
        {"punto", "a.b"},
        {"admiración", "a!"},
        {"grave", "a`b"},
        {"abrir", "[a"},
        {"cerrar", "a]"},
        {"blanco delante", " a"},
        {"control", "a\tb"},
        {"nulo", QString(QChar(0))},
        {"65 letras", QString(65, u'a')},
    };
    for (const auto& [que, nombre] : malos) {
        QTest::addRow("tabla: %s", que) << nombre << buena << 3125;
        QTest::addRow("columna: %s", que)
            << "T" << QList<Columna_Texto>{{.nombre = "a"}, {.nombre = nombre}} << 3125;
    }
    QTest::newRow("64 letras") << QString(64, u'a')
                               << QList<Columna_Texto>{{.nombre = QString(64, u'a')}} << 0;
    QTest::newRow("tabla fuera de la página") << "Таблица" << buena << 3125;
    QTest::newRow("columna fuera de la página")
        << "T" << QList<Columna_Texto>{{.nombre = "Ω"}} << 0;
    QTest::newRow("tabla que existe") << "Hay" << buena << 3010;
    QTest::newRow("con otras letras") << "hAY" << buena << 3010;
    QTest::newRow("tabla del sistema") << "msysobjects" << buena << 3010;
    QTest::newRow("con acento es otra") << "Háy" << buena << 0;
    QTest::newRow("sin columnas") << "T" << QList<Columna_Texto>{} << 3264;
    QTest::newRow("255 columnas") << "T" << Columnas(255) << 0;
    QTest::newRow("256 columnas") << "T" << Columnas(256) << 3190;
    QTest::newRow("medida 0") << "T" << QList<Columna_Texto>{{.nombre = "a", .tamano = 0}} << 3001;
    QTest::newRow("medida 256") << "T" << QList<Columna_Texto>{{.nombre = "a", .tamano = 256}}
                                << 3001;
}

void TestErroresJet::tablas_que_se_rechazan()
{
    QFETCH(QString, tabla);
    QFETCH(QList<Columna_Texto>, columnas);
    QFETCH(int, numero);
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino);
    base.Crear_Tabla("Hay", {{.nombre = "x"}});
    base.Anadir_Fila({"1"});
    QCOMPARE(Numero([&] { base.Crear_Tabla(tabla, columnas); }), numero);
    if (numero != 0) base.Anadir_Fila({"2"}); // the table before is still open
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(destino.data()), QStringList());
    QCOMPARE(Lectura_Jet::Cortar(destino.data()).size(), numero == 0 ? 1 : 2);
}

void TestErroresJet::nombres_que_son_uno_data()
{
    QTest::addColumn<QString>("uno");
    QTest::addColumn<QString>("otro");
    QTest::addColumn<bool>("repetida");
    QTest::newRow("iguales") << "Cota"
                             << "Cota" << true;
    QTest::newRow("mayúsculas") << "Cota"
                                << "COTA" << true;
    QTest::newRow("eñe") << "Señal"
                         << "SEÑAL" << true;
    QTest::newRow("diéresis del final de la página") << "ÿ"
                                                     << "Ÿ" << true;
    QTest::newRow("acento") << "Codigo"
                            << "Código" << false;
    QTest::newRow("ese doble") << "Strasse"
                               << "Straße" << true;
    QTest::newRow("blanco en vez de punto") << "a b"
                                            << "a  b" << false;
    QTest::newRow("guión") << "a-b"
                           << "ab" << false;
    QTest::newRow("guión en otro sitio") << "a-bc"
                                         << "ab-c" << false;
    QTest::newRow("apóstrofo") << "a'b"
                               << "a-b" << false;
    QTest::newRow("fuera de la página") << "Ω"
                                        << "Δ" << false;
    QTest::newRow("fuera de la página, mayúscula") << "Ω"
                                                   << "ω" << true;
}

void TestErroresJet::nombres_que_son_uno()
{
    QFETCH(QString, uno);
    QFETCH(QString, otro);
    QFETCH(bool, repetida);
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino);
    const QList<Columna_Texto> columnas = {
        {.nombre = uno}, {.nombre = "en medio"}, {.nombre = otro}};
    QCOMPARE(Numero([&] { base.Crear_Tabla("T", columnas); }), repetida ? 3191 : 0);
}

void TestErroresJet::filas_que_se_rechazan()
{
    Base_Jet base(Fichero());
    base.Crear_Tabla("Datos",
                     {{.nombre = "a"}, {.nombre = "b", .tamano = 3, .admite_vacio = false}});
    base.Anadir_Fila({QString(80, u'é'), "abc"});
    QCOMPARE(Numero([&] { base.Anadir_Fila({QString(81, u'é'), "abc"}); }), 3163);
    QCOMPARE(Numero([&] { base.Anadir_Fila({"", "abcd"}); }), 3163);
    QCOMPARE(Numero([&] { base.Anadir_Fila({"x", ""}); }), 3315);
    QCOMPARE(Numero([&] { base.Anadir_Fila({"x", QString()}); }), 3315);
    QCOMPARE(Numero([&] { base.Anadir_Fila(QStringList{"x"}); }), 3265);
    QCOMPARE(Numero([&] { base.Anadir_Fila({"x", "y", "z"}); }), 3265);
    const Celda_Jet nula[] = {QStringView(u""), std::nullopt};
    base.Anadir_Fila(nula);
    QCOMPARE(base.Filas(), 2);
    base.Cerrar(); // what was refused has left no trace
    QCOMPARE(Revisar_Mdb(Leer(Fichero())), QStringList());
    QCOMPARE(Lectura_Jet::Cortar(Leer(Fichero())),
             (QList<QList<Celda>>{{QString(80, u'é'), "abc"}, {"", std::nullopt}}));
    QFile::remove(Fichero());
}

// 25 columns of 80 plain letters take exactly what the engine can read.
void TestErroresJet::la_fila_mas_larga()
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino);
    QList<Columna_Texto> columnas = Columnas(25);
    for (Columna_Texto& c : columnas)
        c.comprimida = false;
    base.Crear_Tabla("Datos", columnas);
    const QStringList llena(25, QString(80, u'x'));
    base.Anadir_Fila(llena);

    columnas.append({.nombre = "Sobra", .comprimida = false});
    base.Crear_Tabla("Otra", columnas);
    QCOMPARE(Numero([&] { base.Anadir_Fila(llena + QStringList("")); }), 3047);
    QCOMPARE(Numero([&] { base.Anadir_Fila(llena + QStringList("x")); }), 3047);
    base.Anadir_Fila(llena.first(24) + QStringList{"", ""});

    // Compressed letters take half the room: no page limit for the same texts.
    for (Columna_Texto& c : columnas)
        c.comprimida = true;
    base.Crear_Tabla("Comprimida", columnas);
    base.Anadir_Fila(llena + QStringList("abc"));

    // Too long already before its end, as the widest table can be.
    base.Crear_Tabla("Ancha", Columnas(255));
    QCOMPARE(Numero([&] { base.Anadir_Fila(QStringList(255, QString(80, u'€'))); }), 3047);
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(destino.data()), QStringList());
    QCOMPARE(Lectura_Jet::Cortar(destino.data()).size(), 1);
}

void TestErroresJet::el_catalogo_se_llena()
{
    for (const QString& nombre : {QString("T%1"), QString(58, u'Ñ') + "%1", QString("%1")}) {
        Base_Jet base(Fichero());
        int tablas = 0;
        int numero = 0;
        while (numero == 0) {
            numero = Numero([&] { base.Crear_Tabla(nombre.arg(tablas), Columnas(1)); });
            if (numero == 0) base.Anadir_Fila({QString::number(tablas++)});
        }
        QCOMPARE(numero, 3014);
        QVERIFY(tablas >= 20);
        base.Cerrar();
        QCOMPARE(Revisar_Mdb(Leer(Fichero())), QStringList());
        QCOMPARE(Lectura_Jet::Exportar(Fichero(), nombre.arg(tablas - 1)),
                 QList<QStringList>{{QString::number(tablas - 1)}});
        QFile::remove(Fichero());
    }
}

void TestErroresJet::destinos_que_se_rechazan_data()
{
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<int>("numero");
    QTest::newRow("sin nombre") << "" << 75; // of the folder itself
    QTest::newRow("asterisco") << "a*.mdb" << 3055;
    QTest::newRow("interrogación") << "¿a?.mdb" << 3055;
    QTest::newRow("menor") << "a<.mdb" << 3055;
    QTest::newRow("control") << "a\nb.mdb" << 3055;
    QTest::newRow("muy largo") << QString(250, u'a') + ".mdb" << 3055;
    QTest::newRow("sin carpeta") << "no hay/a.mdb" << 3044;
    QTest::newRow("ya existe") << "hay.mdb" << 3204;
    QTest::newRow("es una carpeta") << "carpeta.mdb" << 75;
    QTest::newRow("acentos y blancos") << "Año ñ 1.mdb" << 0;
    QTest::newRow("sin extensión") << "datos" << 0;
}

void TestErroresJet::destinos_que_se_rechazan()
{
    QFETCH(QString, nombre);
    QFETCH(int, numero);
    QFile hay(Fichero("hay.mdb"));
    QVERIFY(hay.open(QIODevice::WriteOnly) && hay.write("intacto") == 7);
    hay.close();
    QVERIFY(QDir(carpeta.path()).mkpath("carpeta.mdb"));
    QCOMPARE(Numero([&] { Base_Jet(Fichero(nombre)).Cerrar(); }), numero);
    QCOMPARE(Leer(Fichero("hay.mdb")), QByteArray("intacto"));
    if (numero == 0) QCOMPARE(Revisar_Mdb(Leer(Fichero(nombre))), QStringList());
    QCOMPARE(Numero([&] { Base_Jet base{QString()}; }), 3055);
}

void TestErroresJet::ajustes_que_se_rechazan_data()
{
    QTest::addColumn<QString>("localizacion");
    QTest::addColumn<double>("fecha");
    QTest::addColumn<int>("numero");
    const double hoy = Base_Jet::Fecha(QDateTime(QDate(2024, 2, 29), QTime(12, 0)));
    QCOMPARE(hoy, 45351.5);
    QTest::newRow("buena") << ";LANGID=0x0409;CP=1252;COUNTRY=0" << hoy << 0;
    QTest::newRow("minúsculas") << ";langid=0x0409;cp=1252;country=0" << hoy << 0;
    QTest::newRow("vacía") << "" << hoy << 0;
    QTest::newRow("otro orden") << ";LANGID=0x040A;CP=1252;COUNTRY=0" << hoy << 3001;
    QTest::newRow("otra página") << ";LANGID=0x0409;CP=1250;COUNTRY=0" << hoy << 3001;
    QTest::newRow("otra cosa") << ";PWD=secreto" << hoy << 3001;
    QTest::newRow("sin sentido") << "=" << hoy << 3001;
    QTest::newRow("fecha cero") << "" << 0.0 << 3001;
    QTest::newRow("fecha lejana") << "" << 1e7 << 3001;
    QTest::newRow("fecha que no es") << "" << std::nan("") << 3001;
}

void TestErroresJet::ajustes_que_se_rechazan()
{
    QFETCH(QString, localizacion);
    QFETCH(double, fecha);
    QFETCH(int, numero);
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    QCOMPARE(Numero([&] {
                 Base_Jet base(destino, {.localizacion = localizacion, .fecha = fecha});
                 base.Cerrar();
             }),
             numero);
    if (numero == 0) QCOMPARE(Revisar_Mdb(destino.data()), QStringList());
}

void TestErroresJet::sin_cerrar_no_aparece_nada()
{
    const QTemporaryDir otra;
    {
        Base_Jet base(otra.filePath("a.mdb"));
        base.Crear_Tabla("Datos", Columnas(3));
        for (int i = 0; i < 20000; ++i)
            base.Anadir_Fila({"uno", "dos", "tres"});
        QVERIFY(!QFile::exists(otra.filePath("a.mdb")));
    }
    QCOMPARE(QDir(otra.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void TestErroresJet::lo_que_habia_cambia_al_cerrar()
{
    QFile hay(Fichero());
    QVERIFY(hay.open(QIODevice::WriteOnly) && hay.write("viejo") == 5);
    hay.close();
    const Ajustes_Jet ajustes = {.si_existe = Ajustes_Jet::REEMPLAZAR};
    {
        Base_Jet base(Fichero(), ajustes);
        base.Crear_Tabla("Datos", Columnas(1));
    }
    QCOMPARE(Leer(Fichero()), QByteArray("viejo"));
    Base_Jet base(Fichero(), ajustes);
    QCOMPARE(Leer(Fichero()), QByteArray("viejo"));
    base.Cerrar();
    QCOMPARE(Revisar_Mdb(Leer(Fichero())), QStringList());
    QFile::remove(Fichero());
}

void TestErroresJet::lo_que_aparece_entretanto_se_respeta()
{
    Base_Jet base(Fichero());
    QFile otro(Fichero());
    QVERIFY(otro.open(QIODevice::WriteOnly) && otro.write("ajeno") == 5);
    otro.close();
    QCOMPARE(Numero([&] { base.Cerrar(); }), 3204);
    QCOMPARE(Leer(Fichero()), QByteArray("ajeno"));
    QFile::remove(Fichero());
}

void TestErroresJet::carpeta_sin_permiso()
{
    QTemporaryDir cerrada;
    QString donde = cerrada.path();
    QVERIFY(QFile::setPermissions(donde, QFile::ReadOwner | QFile::ExeOwner));
    QFile prueba(donde + "/x");
    if (prueba.open(QIODevice::WriteOnly)) {
        // Nothing is closed to the superuser but what the kernel itself shows.
        prueba.close();
        donde = QStringLiteral("/proc");
    }
    const int numero = Numero([&] { Base_Jet base(donde + "/a.mdb"); });
    QFile::setPermissions(cerrada.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY2(numero == 70 || numero == 75, qPrintable(QString::number(numero)));
    QVERIFY(!QFile::exists(donde + "/a.mdb"));
}

// A device that can seek, full after `cabe` bytes, or failing there with a message.
class Aparato : public QIODevice {
public:
    Aparato(qint64 cabe, bool falla) : cabe_(cabe), falla_(falla) { open(WriteOnly | Unbuffered); }
    bool seek(qint64 lugar) override { return QIODevice::seek(lugar); }
    qint64 size() const override { return 1 << 30; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 largo) override
    {
        const qint64 toma = std::min(largo, cabe_);
        cabe_ -= toma;
        if (toma == largo || !falla_) return toma;
        setErrorString("se ha roto");
        return -1;
    }

private:
    qint64 cabe_;
    bool falla_;
};

static void Escribir_Mediana(Base_Jet& base)
{
    base.Crear_Tabla("Datos", Columnas(4));
    for (int i = 0; i < 8000; ++i)
        base.Anadir_Fila({"Punto", QString::number(i), "4500000.123", "Esquina"});
    base.Crear_Tabla("Otra", Columnas(255));
    base.Cerrar();
}

void TestErroresJet::disco_lleno_en_cualquier_byte()
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet completa(destino);
    Escribir_Mediana(completa);
    const qint64 todo = destino.size();
    QCOMPARE(Revisar_Mdb(destino.data()), QStringList());
    constexpr qint64 SALTO = 13 * 1024 + 1;
    for (qint64 cabe = 0; cabe < todo; cabe += SALTO) {
        Aparato aparato(cabe, false);
        Base_Jet base(aparato);
        QCOMPARE(Numero([&] { Escribir_Mediana(base); }), 3026);
        QCOMPARE(Numero([&] { base.Cerrar(); }), 3026); // nothing more can be had from it
        QCOMPARE(Numero([&] { base.Crear_Tabla("Más", Columnas(1)); }), 3026);
    }
    Aparato justo(todo, false);
    Base_Jet base(justo);
    QCOMPARE(Numero([&] { Escribir_Mediana(base); }), 0);
}

void TestErroresJet::aparato_que_falla()
{
    Aparato aparato(100'000, true);
    Base_Jet base(aparato);
    try {
        Escribir_Mediana(base);
        QFAIL("no ha fallado");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 57);
        QVERIFY(e.descripcion.contains("se ha roto"));
    }
}

// The system itself refuses to let a file grow: as on a full disk, nothing is left behind.
void TestErroresJet::el_fichero_no_puede_crecer()
{
#ifdef Q_OS_UNIX
    const QTemporaryDir otra;
    rlimit antes;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &antes), 0);
    const auto senal = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit corto = {300'000, antes.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &corto), 0);
    const int numero = Numero([&] {
        Base_Jet base(otra.filePath("a.mdb"));
        Escribir_Mediana(base);
    });
    setrlimit(RLIMIT_FSIZE, &antes);
    std::signal(SIGXFSZ, senal);
    QCOMPARE(numero, 3026);
    QCOMPARE(QDir(otra.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
#else
    QSKIP("no limit to set here");
#endif
}

void TestErroresJet::no_hay_paginas_mas_alla_de_dos_gigas()
{
    QBuffer destino;
    Jet::Paginas paginas(destino);
    QCOMPARE(paginas.Reservar(Jet::PAGINAS_MAXIMAS - 1), 0U);
    QCOMPARE(paginas.Reservar(), 0x80000U - 1);
    QCOMPARE(Numero([&] { paginas.Reservar(); }), 3049);
    QCOMPARE(Numero([&] { paginas.Reservar(0xFFFFFFFF); }), 3049);
    QCOMPARE(paginas.Total(), 0x80000U);
}

void TestErroresJet::cerrada_no_admite_nada()
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino);
    QCOMPARE(Numero([&] { base.Anadir_Fila({"x"}); }), 3420); // no table yet
    QCOMPARE(base.Filas(), 0);
    base.Cerrar();
    QCOMPARE(Numero([&] { base.Cerrar(); }), 3420);
    QCOMPARE(Numero([&] { base.Anadir_Fila({"x"}); }), 3420);
    QCOMPARE(Numero([&] { base.Crear_Tabla("T", Columnas(1)); }), 3420);
    QCOMPARE(base.Filas(), 0);
}

PRUEBA(TestErroresJet)
#include "TestErroresJet.moc"
