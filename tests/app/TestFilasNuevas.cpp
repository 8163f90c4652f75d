#include "core/Familia.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/app/Correr.h"

#include <QLocale>

#include <clocale>
#include <ctime>

// What the database says rules: models and record kinds that the program never heard of, and the
// same bytes on every machine.
class TestFilasNuevas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_modelo_y_una_clase_entran_por_filas_data();
    void un_modelo_y_una_clase_entran_por_filas();
    void los_mismos_bytes_en_todas_partes_data();
    void los_mismos_bytes_en_todas_partes();

private:
    static void Poner_Formato(const Base_De_Prueba& p, const QString& maquina, int ope,
                              const QStringList& campos);
    Salida Orden(const Base_De_Prueba& p, const QStringList& palabras)
    {
        const Salida s = Correr(QStringList{"--dir", p.Ruta("")} + palabras);
        // An order closes the database behind it.
        Base_Datos = Base::Abrir(p.Ruta("MDB/EstTotal.mdb"));
        return s;
    }
};

void TestFilasNuevas::Poner_Formato(const Base_De_Prueba& p, const QString& maquina, int ope,
                                    const QStringList& campos)
{
    p.Fila("Formatos1", {{"Nombre", "MÍO"},
                         {"Maquina", maquina},
                         {"cabeceras", "NO"},
                         {"Modificable", "SI"},
                         {"ope", ope},
                         {"Ids", ""}});
    for (qsizetype i = 0; i < campos.size(); ++i)
        p.Fila("Formatos2",
               {{"Nombre", "MÍO"}, {"Maquina", maquina}, {"sec", i}, {"Campo", campos[i]}});
}

void TestFilasNuevas::un_modelo_y_una_clase_entran_por_filas_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("visto");
    QTest::addColumn<QByteArray>("exportado");
    QTest::newRow("KRT300") << "KRT300" << 0 << "T"
                            << "T+0215S-1 9"
                            << "21.5|S-1" << QByteArray("P1,21.5,S-1\r\n");
    QTest::newRow("PX7") << "PX7" << 1 << "T"
                         << " T-0215S-1 9"
                         << "-21.5|S-1" << QByteArray("P1,-21.5,S-1\r\n");
    QTest::newRow("KRT800") << "KRT800" << 1 << "TMP"
                            << "TMP 21.50,S-1"
                            << "21.5|S-1" << QByteArray("21.5,S-1\r\n");
    QTest::newRow("NV400") << "NV400" << 0 << "q"
                           << "q,21.5,S-1,A,"
                           << "21.5|S-1" << QByteArray();
}

void TestFilasNuevas::un_modelo_y_una_clase_entran_por_filas()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, id);
    QFETCH(QString, linea);
    QFETCH(QString, visto);
    QFETCH(QByteArray, exportado);
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    p.Escribir("EstTotal.ini", "KRT=KRT300\r\nKRTNOM=KRT300-1\r\nFIJO=True\r\n");
    Poner_Sesion(p, 1, maquina, ope, {{"P1", linea}});
    QVERIFY(!Orden(p, {"ver", "1", "--campos"}).texto.contains("Temperatura"));

    p.Fila("KRT", {{"Nombre", "TERMO-9"}, {"Clave", maquina}, {"VelPuerto", "9600"}});
    if (Familia_De(maquina).serie == Serie::A)
        Poner_Registro(p, maquina, {ope}, id, "Temperatura", "C",
                       {{"Temperatura", 5, "3,1", ".", "0.0"}, {"Sonda", 4}});
    else
        Poner_Registro(p, maquina, {ope}, id, "Temperatura", "C",
                       {{"Temperatura", 5, "*", "", "", "CD"}, {"Sonda", 4}, {"Nulo", 1}});
    Poner_Formato(p, maquina, ope, {"Punto", "Temperatura", "Sonda"});

    QVERIFY(Orden(p, {"modelos"}).texto.contains("TERMO-9\t" + maquina + "\t9600\n"));
    QCOMPARE(Orden(p, {"operaciones", "--modelo", "TERMO-9"}).estado, int(HECHO));
    QVERIFY(Orden(p, {"ver", "1", "--campos"})
                .texto.contains(QString("1\tP1\tTemperatura\t%1\n1\tP1\tSonda\t%2\n")
                                    .arg(visto.section('|', 0, 0), visto.section('|', 1))));
    const Salida s = Orden(p, {"exportar", "1", "--formato", "MÍO", "--tipo", "txt", "--separador",
                               "coma", "--salida", p.Ruta("s.txt")});
    // The level's own layouts aren't written by this road.
    QCOMPARE(s.estado, int(exportado.isEmpty() ? RECHAZADO : HECHO));
    QCOMPARE(p.Leer("s.txt"), exportado);
}

void TestFilasNuevas::los_mismos_bytes_en_todas_partes_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("zona");
    for (const char* locale : {"C", "es_ES.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8"})
        for (const char* zona : {"Europe/Madrid", "America/Bogota"})
            QTest::addRow("%s %s", locale, zona) << QByteArray(locale) << QByteArray(zona);
}

void TestFilasNuevas::los_mismos_bytes_en_todas_partes()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, zona);
    const QLocale antes;
    const QByteArray zona_antes = qgetenv("TZ");
    QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
    // Where the system hasn't the locale, Qt's alone is changed.
    std::setlocale(LC_ALL, locale.constData());
    qputenv("TZ", zona);
    tzset();

    Base_De_Prueba p;
    Poner_Instrumentos(p);
    p.Escribir("EstTotal.ini", "KRT=KRT300\r\nKRTNOM=KRT300-1\r\nFIJO=True\r\n");
    const QString general = "EE-1     +01500";
    Poner_Sesion(p, 1, "KRT300", 1,
                 {{"1", " y+001000000", general},
                  {"1", " x-000000500", general},
                  {"1", "cÁRBOL II", general},
                  {"1", "H+0123456+0001500", general},
                  {"P`2", " y+002000125", ""}});
    Poner_Formato(p, "KRT300", 1,
                  {"Punto", "Coordenada X", "Coordenada Y", "Código", "Ángulo Horizontal",
                   "Distancia", "Altura Instrumento"});
    const Salida s = Orden(p, {"exportar", "1", "--formato", "MÍO", "--tipo", "txf", "--separador",
                               "coma", "--titulos", "si", "--desplazamiento", "123456789.5,,",
                               "--salida", p.Ruta("s.txt")});
    const QString sesiones = Orden(p, {"sesiones", "--maquina", "KRT300"}).texto;
    std::setlocale(LC_ALL, "C");
    QLocale::setDefault(antes);
    zona_antes.isNull() ? qunsetenv("TZ") : qputenv("TZ", zona_antes);
    tzset();

    QCOMPARE(s.estado, int(HECHO));
    // The offset's fixed form keeps seven integer digits.
    QFile patron(DATOS_PRUEBA "/export/mismos_bytes.txt");
    QVERIFY(patron.open(QIODevice::ReadOnly));
    QCOMPARE(p.Leer("s.txt"), patron.readAll());
    QVERIFY(sesiones.contains("\t29/02/2024\t08:05:09\t"));
}

PRUEBA(TestFilasNuevas)
#include "TestFilasNuevas.moc"
