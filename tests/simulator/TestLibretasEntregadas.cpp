#include "simulator/Libreta.h"
#include "tests/apoyo/Prueba.h"
#include "tools/base/Comprobaciones.h"

#include <QRegularExpression>

#include <cmath>
#include <numbers>

/// The delivered field books against the delivered record kinds, and against each other.
class TestLibretasEntregadas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void los_registros_de_columnas_son_conocidos_data();
    void los_registros_de_columnas_son_conocidos();
    void las_lineas_de_fichas_son_conocidas_data();
    void las_lineas_de_fichas_son_conocidas();
    void un_dia_tiene_ochocientos_puntos();
    void las_observaciones_dan_las_coordenadas();
    void las_dos_series_miden_lo_mismo();
    void la_libreta_del_nivel_cierra();

private:
    QStringList Leer(const QString& nombre) const;
    int Ancho(const QString& familia, int ope, const QString& id) const;

    Juego juego;
};

static void Columnas()
{
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<QString>("familia");
    QTest::addColumn<int>("ope");
}

struct Xyz {
    double x = 0, y = 0, z = 0;
};

/// Points of a book of operation 1, by name.
static QMap<QString, Xyz> Coordenadas(const QStringList& registros)
{
    QMap<QString, Xyz> puntos;
    QString punto;
    for (const QString& r : registros) {
        if (r.startsWith('+')) punto = r.mid(1);
        const double v = r.trimmed().mid(1).toDouble() / 1000;
        // The instrument's x is the north.
        if (r.startsWith(" x")) puntos[punto].y = v;
        if (r.startsWith(" y")) puntos[punto].x = v;
        if (r.startsWith(" z")) puntos[punto].z = v;
    }
    return puntos;
}

/// Points of a book of operation 0, reduced from the observations.
static QMap<QString, Xyz> Reducir(const QStringList& registros)
{
    constexpr double GON = std::numbers::pi / 200;
    QMap<QString, Xyz> puntos;
    QString punto;
    Xyz base;
    double altura = 0, orientacion = 0, h = 0, v = 0, d = 0;
    for (const QString& r : registros) {
        const double n = r.mid(1).toDouble();
        switch (r[0].toLatin1()) {
        case '+':
            punto = r.mid(1);
            break;
        case 'I':
            altura = n / 1e3;
            break;
        case 'O':
            orientacion = n / 1e4;
            break;
        case 'S':
            base = {r.mid(12, 11).trimmed().toDouble() / 1e3,
                    r.mid(1, 11).trimmed().toDouble() / 1e3,
                    r.mid(23, 11).trimmed().toDouble() / 1e3};
            break;
        case 'h':
            h = (n / 1e4 + orientacion) * GON;
            break;
        case 'v':
            v = n / 1e4 * GON;
            break;
        case 'd':
            d = n / 1e3;
            break;
        case 'p':
            puntos[punto] = {base.x + d * std::sin(v) * std::sin(h),
                             base.y + d * std::sin(v) * std::cos(h),
                             base.z + altura + d * std::cos(v) - n / 1e3};
            break;
        default:
            break;
        }
    }
    return puntos;
}

static bool Cerca(const Xyz& a, const Xyz& b)
{
    constexpr double TOLERANCIA = 0.002; // the last digit of the readings, at 75 metres
    return std::abs(a.x - b.x) < TOLERANCIA && std::abs(a.y - b.y) < TOLERANCIA &&
           std::abs(a.z - b.z) < TOLERANCIA;
}

void TestLibretasEntregadas::initTestCase()
{
    QList<Falta> faltas;
    juego = Leer_Tablas(QStringLiteral(RAIZ_FUENTES "/data/DAT/tablas"), faltas);
    QVERIFY(faltas.isEmpty());
}

QStringList TestLibretasEntregadas::Leer(const QString& nombre) const
{
    const simulador::Libreta libreta =
        simulador::Leer_Libreta(QStringLiteral(RAIZ_FUENTES "/data/ficheros/") + nombre);
    QStringList registros;
    for (const QByteArray& r : libreta.registros)
        registros << QString::fromLatin1(r);
    return registros;
}

int TestLibretasEntregadas::Ancho(const QString& familia, int ope, const QString& id) const
{
    const Tabla& t = juego.at("Identificadores");
    for (qsizetype i = 0; i < t.Filas(); ++i)
        if (t.Celda(i, "Nombre") == familia && t.Numero(i, "OPE") == ope && t.Celda(i, "ID") == id)
            return t.Numero(i, "Ancho");
    return 0;
}

void TestLibretasEntregadas::los_registros_de_columnas_son_conocidos_data()
{
    Columnas();
    QTest::newRow("krt300") << "campo_krt300.txt"
                            << "KRT300" << 0;
    QTest::newRow("krt300 coordenadas") << "campo_krt300_coordenadas.txt"
                                        << "KRT300" << 1;
    QTest::newRow("krt300 calculadas") << "campo_krt300_coordenadas.txt"
                                       << "KRT300" << 11;
    QTest::newRow("px7") << "campo_px7.txt"
                         << "PX7" << 0;
    QTest::newRow("jornada") << "jornada_krt300.txt"
                             << "KRT300" << 0;
    QTest::newRow("jornada coordenadas") << "jornada_krt300_coordenadas.txt"
                                         << "KRT300" << 1;
}

void TestLibretasEntregadas::los_registros_de_columnas_son_conocidos()
{
    QFETCH(QString, fichero);
    QFETCH(QString, familia);
    QFETCH(int, ope);
    const QStringList registros = Leer(fichero);
    QVERIFY(!registros.isEmpty());
    for (const QString& r : registros) {
        if (r.startsWith('+')) continue;
        const int ancho = Ancho(familia, ope, r.trimmed().left(1));
        QVERIFY2(ancho > 0, qPrintable(r));
        QVERIFY2(r.trimmed().size() > 1 && r.trimmed().size() <= ancho, qPrintable(r));
    }
}

void TestLibretasEntregadas::las_lineas_de_fichas_son_conocidas_data()
{
    Columnas();
    QTest::newRow("krt800") << "campo_krt800.txt"
                            << "KRT800" << 0;
    QTest::newRow("krt800 trabajo") << "campo_krt800.txt"
                                    << "KRT800" << 5;
    QTest::newRow("krt800 puntos") << "campo_krt800_puntos.txt"
                                   << "KRT800" << 4;
    QTest::newRow("krt800 ejes") << "campo_krt800_ejes.txt"
                                 << "KRT800" << 6;
    QTest::newRow("krt800 transversales") << "campo_krt800_transversales.txt"
                                          << "KRT800" << 7;
    QTest::newRow("krt800 rasantes") << "campo_krt800_rasantes.txt"
                                     << "KRT800" << 8;
    QTest::newRow("jornada krt800") << "jornada_krt800.txt"
                                    << "KRT800" << 0;
    QTest::newRow("jornada krt800 puntos") << "jornada_krt800_puntos.txt"
                                           << "KRT800" << 4;
    QTest::newRow("nv400") << "campo_nv400.txt"
                           << "NV400" << 0;
    QTest::newRow("nv400 libre") << "campo_nv400_libre.txt"
                                 << "NV400" << 0;
    QTest::newRow("jornada nv400") << "jornada_nv400.txt"
                                   << "NV400" << 0;
}

void TestLibretasEntregadas::las_lineas_de_fichas_son_conocidas()
{
    QFETCH(QString, fichero);
    QFETCH(QString, familia);
    QFETCH(int, ope);
    const QStringList registros = Leer(fichero);
    QVERIFY(!registros.isEmpty());
    for (const QString& r : registros) {
        const bool nivel = familia == "NV400";
        const QString id = nivel      ? r.left(1)
                           : ope == 4 ? QString("Punto")
                           : ope == 7 ? QString("Per.Trans")
                                      : r.section(' ', 0, 0);
        QVERIFY2(Registros_De(juego, familia, ope).contains(id), qPrintable(r));
        const QString valores = ope == 4 || ope == 7 ? r : r.mid(id.size() + 1);
        // A level's line ends in a comma and its kind in a spare field: as many commas as fields.
        QCOMPARE(valores.split(ope == 6 ? ' ' : ',').size(), Campos_De(juego, familia, id).size());
    }
}

void TestLibretasEntregadas::un_dia_tiene_ochocientos_puntos()
{
    QCOMPARE(Reducir(Leer("jornada_krt300.txt")).size(), 800);
    QCOMPARE(Coordenadas(Leer("jornada_krt300_coordenadas.txt")).size(), 800);
    QCOMPARE(Leer("jornada_krt800.txt").filter(QRegularExpression("^SS ")).size(), 800);
    QCOMPARE(Leer("jornada_krt800_puntos.txt").size(), 800);
}

void TestLibretasEntregadas::las_observaciones_dan_las_coordenadas()
{
    for (const QString& libro :
         {QStringLiteral("campo_krt300"), QStringLiteral("jornada_krt300")}) {
        const QMap<QString, Xyz> reducidas = Reducir(Leer(libro + ".txt"));
        const QMap<QString, Xyz> dadas = Coordenadas(Leer(libro + "_coordenadas.txt"));
        QCOMPARE(reducidas.keys(), dadas.keys());
        for (const QString& p : dadas.keys())
            QVERIFY2(Cerca(reducidas[p], dadas[p]), qPrintable(libro + " " + p));
    }
}

void TestLibretasEntregadas::las_dos_series_miden_lo_mismo()
{
    const QMap<QString, Xyz> dadas = Coordenadas(Leer("jornada_krt300_coordenadas.txt"));
    for (const QString& r : Leer("jornada_krt800_puntos.txt")) {
        const QStringList c = r.split(',');
        QVERIFY2(Cerca(dadas[c[0]], {c[1].toDouble(), c[2].toDouble(), c[3].toDouble()}),
                 qPrintable(r));
    }
}

void TestLibretasEntregadas::la_libreta_del_nivel_cierra()
{
    for (const char* libro : {"campo_nv400.txt", "jornada_nv400.txt"}) {
        double altura = 0, longitud = 0;
        QStringList anillo;
        for (const QString& r : Leer(QLatin1String(libro))) {
            const QStringList c = r.split(',');
            if (c[0] == "g") altura += c[2].toDouble() / 1e5;
            if (c[0] == "i") altura -= c[2].toDouble() / 1e5;
            if (c[0] == "g" || c[0] == "i") longitud += c[3].toDouble() / 1e3;
            if (c[0] == "w") anillo = c;
        }
        QCOMPARE(anillo.value(3), QString("RN1"));
        QVERIFY(std::abs(altura) < 0.005);
        QVERIFY(std::abs(anillo.value(6).toDouble() / 1e4 - altura) < 1e-4);
        QVERIFY(std::abs(anillo.value(8).toDouble() / 1e3 - longitud) < 1e-3);
    }
}

PRUEBA(TestLibretasEntregadas)
#include "TestLibretasEntregadas.moc"
