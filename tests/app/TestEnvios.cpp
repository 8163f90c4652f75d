#include "tests/apoyo/Prueba.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

// Uploads from the command line to an instrument that keeps what it gets: the real programs, the
// real protocol and pace, a pseudo-terminal between them.
class TestEnvios : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_puntos_llegan_uno_a_uno_data();
    void los_puntos_llegan_uno_a_uno();
    void los_rechazos_que_se_arreglan_se_cuentan();
    void los_que_no_se_arreglan_acaban_con_su_razon();
    void una_libreria_llega_entera_data();
    void una_libreria_llega_entera();
    void una_libreria_va_vuelve_y_va_igual();
    void una_libreria_guardada_va_al_KRT800();
    void una_libreria_se_recibe_en_un_fichero();
    void las_librerias_que_no_pueden_se_dicen_data();
    void las_librerias_que_no_pueden_se_dicen();
    void el_nivel_escribe_un_fichero();
    void la_traza_queda_en_su_carpeta();
    void lo_que_no_vale_no_se_envia_data();
    void lo_que_no_vale_no_se_envia();
    void los_puntos_malos_van_uno_por_linea();
    void el_mal_uso_se_dice_data();
    void el_mal_uso_se_dice();
    void el_cable_cortado_se_dice();

private:
    struct Salida {
        int estado;
        QString texto, errores;
    };
    Salida Cli(const QStringList& palabras);
    void Simular(const QString& maquina, const QStringList& opciones = {});
    /// What the instrument kept, once it has ended; its records as a field book.
    QStringList Guardado();
    QString Fichero(const QByteArray& contenido, const QString& nombre = "p.asc");
    QString Ruta(const QString& relativa) const { return dir + u'/' + relativa; }
    Salida Enviar(const QString& modelo, int ope, const QString& fichero,
                  const QStringList& opciones = {});

    std::unique_ptr<QTemporaryDir> carpeta;
    std::unique_ptr<QProcess> simulador;
    QString dir;
};

void TestEnvios::init()
{
    carpeta = std::make_unique<QTemporaryDir>();
    dir = carpeta->path();
    QVERIFY(QDir(dir).mkpath("DAT"));
    QVERIFY(QFile::copy(INSTALACION "/DAT/Database.mdb", Ruta("DAT/Database.mdb")));
    QFile ini(Ruta("EstTotal.ini"));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("VELOCIDAD=9600\r\nBITS=8\r\nPARIDAD=None\r\nSTOP=1\r\nFIJO=True\r\n");
}

void TestEnvios::cleanup()
{
    if (simulador) {
        simulador->kill();
        simulador->waitForFinished();
        simulador.reset();
    }
    carpeta.reset();
}

TestEnvios::Salida TestEnvios::Cli(const QStringList& palabras)
{
    QProcess p;
    p.start(INSTALACION "/miraldos-cli", QStringList{"--dir", dir} + palabras);
    if (!p.waitForFinished(120000)) {
        p.kill();
        p.waitForFinished();
        return {-1, {}, "the program did not end"};
    }
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2,
            QString::fromUtf8(p.readAllStandardOutput()),
            QString::fromUtf8(p.readAllStandardError())};
}

void TestEnvios::Simular(const QString& maquina, const QStringList& opciones)
{
    simulador = std::make_unique<QProcess>();
    simulador->start(INSTALACION "/miraldos-sim",
                     QStringList{maquina, "--enlace", Ruta("com1"), "--guardar", Ruta("tiene.txt"),
                                 "--una-vez"} +
                         opciones);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Ruta("com1")), 10000);
}

QStringList TestEnvios::Guardado()
{
    if (!simulador->waitForFinished(20000)) return {"the instrument did not end"};
    QFile f(Ruta("tiene.txt"));
    if (!f.open(QIODevice::ReadOnly)) return {"nothing was kept"};
    QStringList lineas = QString::fromUtf8(f.readAll()).split('\n');
    while (!lineas.isEmpty() && lineas.last().isEmpty())
        lineas.removeLast();
    return lineas;
}

QString TestEnvios::Fichero(const QByteArray& contenido, const QString& nombre)
{
    QFile f(Ruta(nombre));
    if (!f.open(QIODevice::WriteOnly)) return {};
    f.write(contenido);
    return f.fileName();
}

TestEnvios::Salida TestEnvios::Enviar(const QString& modelo, int ope, const QString& fichero,
                                      const QStringList& opciones)
{
    return Cli(QStringList{"enviar", "--modelo", modelo, "--ope", QString::number(ope), "--puerto",
                           Ruta("com1"), "--fichero", fichero} +
               opciones);
}

void TestEnvios::los_puntos_llegan_uno_a_uno_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<QStringList>("tiene");
    const QByteArray comas = "P1,400.456,500.123,10.025,ARB\r\nP2,1234.567,-.5,0\r\n";
    QTest::newRow("KRT300") << "KRT300"
                            << "KRT-310" << 1 << comas << QStringList{"--separador", "coma"}
                            << QStringList{"+P1        ",  " x+000500123", " y+000400456",
                                           " z+000010025", "+P2        ",  " x-000000500",
                                           " y+001234567", " z+000000000"};
    QTest::newRow("KRT300 desplazado")
        << "KRT300"
        << "KRT-310" << 1 << QByteArray("P1 1,5  2 3\r\n")
        << QStringList{"--desplazamiento", "1000,-0.5,.001"}
        << QStringList{"+P1        ", " x+000001500", " y+001001500", " z+000003001"};
    QTest::newRow("X13") << "KRT300"
                         << "KRT-330X13" << 1 << QByteArray("P1\t4478296.086\t456191.339\t1\r\n")
                         << QStringList{"--separador", "tabulacion"}
                         << QStringList{"+P1        ", " x+456191339", " y+478296086",
                                        " z+000001000"};
    QTest::newRow("PX7") << "PX7"
                         << "PX7" << 1 << comas << QStringList{"--separador=coma"}
                         << QStringList{"+P1        ",  " x+000500123", " y+000400456",
                                        " z+000010025", "+P2        ",  " x-000000500",
                                        " y+001234567", " z+000000000"};
    QTest::newRow("KRT800") << "KRT800"
                            << "KRT-810" << 4 << comas
                            << QStringList{"--separador", "coma", "--desplazamiento", "0,0,-0.5"}
                            << QStringList{"P1,400.456,500.123,9.525,ARB",
                                           "P2,1234.567,-0.500,-0.500,"};
    QTest::newRow("KRT800 replanteo") << "KRT800"
                                      << "KRT800" << 9 << QByteArray("P 1 2 3\r\n") << QStringList()
                                      << QStringList{"P,1.000,2.000,3.000,"};
}

void TestEnvios::los_puntos_llegan_uno_a_uno()
{
    QFETCH(QString, maquina);
    QFETCH(QString, modelo);
    QFETCH(int, ope);
    QFETCH(QByteArray, fichero);
    QFETCH(QStringList, opciones);
    QFETCH(QStringList, tiene);
    Simular(maquina);
    const Salida s = Enviar(modelo, ope, Fichero(fichero), opciones);
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QVERIFY2(s.texto.contains("; segundos: "), qPrintable(s.texto));
    QCOMPARE(Guardado(), tiene);
}

void TestEnvios::los_rechazos_que_se_arreglan_se_cuentan()
{
    Simular("KRT300", {"--fallo", "rechazo:2x5", "--fallo", "rechazo:4"});
    QByteArray fichero;
    for (int i = 0; i < 10; ++i)
        fichero += "P" + QByteArray::number(i) + " 1 2 3\r\n";
    const Salida s = Enviar("KRT300", 1, Fichero(fichero));
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QVERIFY2(
        s.texto.startsWith("Bloques enviados: 4 de 4; rechazos: 6; repeticiones: 6; segundos: "),
        qPrintable(s.texto));
    QVERIFY(s.errores.contains("Envio Finalizado"));
    const QStringList tiene = Guardado();
    QCOMPARE(tiene.size(), 40);
    QCOMPARE(tiene.filter("+P").size(), 10);
}

void TestEnvios::los_que_no_se_arreglan_acaban_con_su_razon()
{
    Simular("KRT300", {"--fallo", "rechazo:1x6"});
    const Salida s = Enviar("KRT300", 1, Fichero("P1 1 2 3\r\n"));
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.endsWith("El aparato rechaza el bloque 1; no se enviará nada más\n"),
             qPrintable(s.errores));
    QVERIFY2(s.texto.contains("rechazos: 6; repeticiones: 5"), qPrintable(s.texto));
}

void TestEnvios::una_libreria_llega_entera_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QStringList>("primeras");
    QTest::addColumn<int>("cuantas");
    QTest::newRow("KRT300") << "KRT300" << QByteArray("001ARBOL\r\n007FAROLA\r\n")
                            << QStringList{":001ARBOL     ", ":002FAROLA    ", ":003          "}
                            << 50;
    QTest::newRow("PX7") << "PX7" << QByteArray("001ARBOL\r\n") << QStringList{":001ARBOL     "}
                         << 50;
    QTest::newRow("KRT800") << "KRT800" << QByteArray("ARBOL,1,VEGETACION\nBORDILLO,2,VIALES\n")
                            << QStringList{"ARBOL,1,VEGETACION", "BORDILLO,2,VIALES"} << 2;
}

void TestEnvios::una_libreria_llega_entera()
{
    QFETCH(QString, maquina);
    QFETCH(QByteArray, fichero);
    QFETCH(QStringList, primeras);
    QFETCH(int, cuantas);
    Simular(maquina);
    const Salida s = Enviar(maquina, 2, Fichero(fichero, "l.txt"));
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    const QStringList tiene = Guardado();
    QCOMPARE(tiene.mid(0, primeras.size()), primeras);
    QCOMPARE(tiene.size(), cuantas);
}

// A library that is sent, received and sent again gives the same bytes.
void TestEnvios::una_libreria_va_vuelve_y_va_igual()
{
    Simular("KRT300");
    Salida s = Cli({"enviar-libreria", "GENERAL", "--modelo", "KRT-310", "--puerto", Ruta("com1")});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QVERIFY2(s.texto.startsWith("Bloques enviados: 6 de 6; "), qPrintable(s.texto));
    const QStringList tiene = Guardado();
    QCOMPARE(tiene.size(), 50);
    QCOMPARE(tiene[0], QString(":001ARBOL     "));
    // The instrument's book is what it sends back.
    QVERIFY(QFile::rename(Ruta("tiene.txt"), Ruta("libro.txt")));
    Simular("KRT300", {"--enviar", Ruta("libro.txt")});
    s = Cli({"recibir-libreria", "--modelo", "KRT-310", "--puerto", Ruta("com1"), "--destino",
             "base", "--nombre", "VUELTA"});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QCOMPARE(s.texto, QString("VUELTA\n"));
    QVERIFY(simulador->waitForFinished(20000));
    Simular("KRT300");
    s = Cli({"enviar-libreria", "VUELTA", "--modelo", "KRT-310", "--puerto", Ruta("com1")});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QCOMPARE(Guardado(), tiene);
    // The name is taken now.
    s = Cli({"recibir-libreria", "--modelo", "KRT-310", "--puerto", Ruta("com1"), "--destino",
             "base", "--nombre", "VUELTA"});
    QCOMPARE(s.estado, 1);
    QVERIFY(s.errores.contains("La Librería de códigos ya existe en la Base de Datos"));
}

void TestEnvios::una_libreria_guardada_va_al_KRT800()
{
    const QString fichero = Fichero("A,1,X\nB,2,Y\n", "l.txt");
    Salida s = Cli({"libreria-guardar", "CORTA", "--serie", "B", "--descripcion", "Corta",
                    "--fichero", fichero});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    Simular("KRT800");
    s = Cli({"enviar-libreria", "CORTA", "--modelo", "KRT-810", "--puerto", Ruta("com1"),
             "--seguimiento"});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QCOMPARE(Guardado(), QStringList({"A,1,X", "B,2,Y"}));
    QCOMPARE(QDir(Ruta("LOG")).entryList({"KRT800_*.LOG"}).size(), 1);
}

void TestEnvios::una_libreria_se_recibe_en_un_fichero()
{
    const QString libro = Fichero(":001ARBOL     \n:002FAROLA    \n:003          \n", "libro.txt");
    Simular("PX7", {"--enviar", libro});
    const Salida s = Cli({"recibir-libreria", "--modelo", "PX7", "--puerto", Ruta("com1"),
                          "--destino", "fichero", "--nombre", Ruta("recibida.txt")});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QFile f(Ruta("recibida.txt"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.readAll(), QByteArray("001ARBOL\r\n002FAROLA\r\n"));
    // The file is what an upload reads.
    QVERIFY(simulador->waitForFinished(20000));
    Simular("PX7");
    QCOMPARE(Enviar("PX7", 2, Ruta("recibida.txt")).estado, 0);
    QCOMPARE(Guardado().mid(0, 2), QStringList({":001ARBOL     ", ":002FAROLA    "}));
}

void TestEnvios::las_librerias_que_no_pueden_se_dicen_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<int>("estado");
    QTest::addColumn<QString>("razon");
    QTest::newRow("no existe") << QStringList{"enviar-libreria", "NO",       "--modelo",
                                              "KRT300",          "--puerto", "p"}
                               << 1 << "No existe la librería NO de la serie A";
    QTest::newRow("la del otro") << QStringList{"enviar-libreria", "URBANA",   "--modelo",
                                                "KRT800",          "--puerto", "p"}
                                 << 1 << "No existe la librería URBANA de la serie B";
    QTest::newRow("el nivel") << QStringList{"enviar-libreria", "GENERAL",  "--modelo",
                                             "NV400",           "--puerto", "p"}
                              << 1 << "no tiene librerías de códigos";
    QTest::newRow("sin puerto") << QStringList{"enviar-libreria", "GENERAL", "--modelo", "KRT300"}
                                << 2 << "puerto";
    QTest::newRow("el KRT800 no la da")
        << QStringList{"recibir-libreria", "--modelo", "KRT800",   "--puerto", "p",
                       "--destino",        "base",     "--nombre", "X"}
        << 1 << "no ofrece la operación 2";
    QTest::newRow("destino")
        << QStringList{"recibir-libreria", "--modelo", "KRT300",   "--puerto", "p",
                       "--destino",        "papel",    "--nombre", "X"}
        << 2 << "El destino es base o fichero";
    QTest::newRow("como descarga") << QStringList{"descargar", "--modelo", "KRT300",   "--ope", "2",
                                                  "--puerto",  "p",        "--nombre", "X"}
                                   << 1 << "recibir-libreria";
}

void TestEnvios::las_librerias_que_no_pueden_se_dicen()
{
    QFETCH(QStringList, palabras);
    QFETCH(int, estado);
    QFETCH(QString, razon);
    const Salida s = Cli(palabras);
    QCOMPARE(s.estado, estado);
    QVERIFY2(s.errores.contains(razon), qPrintable(s.errores));
    QCOMPARE(s.texto, QString());
}

void TestEnvios::el_nivel_escribe_un_fichero()
{
    const QString origen = Fichero("RN1,500.1234,CLAVO\r\n");
    const Salida s = Cli({"enviar", "--modelo", "NV400", "--ope", "4", "--fichero", origen,
                          "--salida", Ruta("nivel.x")});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    QFile f(Ruta("nivel.x"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QVERIFY(f.readAll().startsWith("A,01,Z,\r\nb,02,RN1,CLAVO,5001234,%,\r\n"));
    const Salida mal = Cli({"enviar", "--modelo", "NV400", "--ope", "4", "--fichero",
                            Fichero("nada\r\n"), "--salida", Ruta("otro.x")});
    QCOMPARE(mal.estado, 1);
    QVERIFY(!QFile::exists(Ruta("otro.x")));
}

void TestEnvios::la_traza_queda_en_su_carpeta()
{
    Simular("KRT300");
    const Salida s = Enviar("KRT300", 1, Fichero("P1 1 2 3\r\n"), {"--seguimiento"});
    QVERIFY2(s.estado == 0, qPrintable(s.errores));
    const QStringList trazas = QDir(Ruta("LOG")).entryList({"KRT300_??????_????.LOG"});
    QCOMPARE(trazas.size(), 1);
    QFile f(Ruta("LOG/" + trazas[0]));
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QByteArray traza = f.readAll();
    QVERIFY(traza.startsWith("\r\n\2F00F000\3\r\n\r\n\2BARCELONA "));
    QVERIFY(traza.contains("_+P1        _ x+000002000_ y+000001000_ z+000003000"));
    QVERIFY(traza.contains("Bloques enviados: 1 de 1; rechazos: 0; repeticiones: 0; segundos: "));
}

void TestEnvios::lo_que_no_vale_no_se_envia_data()
{
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("razon");
    QTest::newRow("sin un byte") << "KRT300" << 1 << QByteArray()
                                 << "El Fichero especificado no existe";
    QTest::newRow("otro separador") << "KRT300" << 1 << QByteArray("P1,1,2,3\r\n")
                                    << "Probablemente el separador especificado no sea válido";
    QTest::newRow("utf-16") << "KRT300" << 1 << QByteArray("\xFF\xFEP\0", 4) << "UTF-16";
    QTest::newRow("letras") << "PX7" << 1 << QByteArray("P1 1 2 3\r\nP2 1 x 3\r\n") << "línea 2";
    QTest::newRow("once letras") << "KRT300" << 1 << QByteArray("ONCELETRAS0 1 2 3\r\n")
                                 << "línea 1";
    QTest::newRow("8193 puntos") << "KRT300" << 1 << QByteArray("P 1 2 3\r\n").repeated(8193)
                                 << "línea 8193";
    QTest::newRow("51 codigos") << "KRT300" << 2 << QByteArray("001A\r\n").repeated(51)
                                << "línea 51";
    QTest::newRow("codigo con enye")
        << "KRT300" << 2 << QByteArray("001CA\xD1O\r\n") << "que no es aceptado por el aparato";
    QTest::newRow("sin codigos") << "KRT300" << 2 << QByteArray("\r\n") << "no contiene códigos";
    QTest::newRow("KRT800 separador") << "KRT800" << 4 << QByteArray("P1,1,2,3\r\n")
                                      << "Probablemente el separador especificado no sea válido";
    QTest::newRow("KRT800 letras") << "KRT800" << 4 << QByteArray("P1 1 2 z\r\n") << "línea 1";
    QTest::newRow("KRT800 libreria") << "KRT800" << 2 << QByteArray("A,1\r\n") << "en la línea 1";
    QTest::newRow("KRT800 diseno")
        << "KRT800" << 6 << QByteArray("nada\r\n") << "La carga de Datos no se pudo realizar";
}

void TestEnvios::lo_que_no_vale_no_se_envia()
{
    QFETCH(QString, modelo);
    QFETCH(int, ope);
    QFETCH(QByteArray, fichero);
    QFETCH(QString, razon);
    // There is no port at all: none is asked for.
    const Salida s = Enviar(modelo, ope, Fichero(fichero, ope == 6 ? "d.eje" : "p.asc"));
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains(razon), qPrintable(s.errores));
    QVERIFY2(!s.errores.contains("Abrir el Puerto"), qPrintable(s.errores));
    QCOMPARE(s.texto, QString());
}

void TestEnvios::los_puntos_malos_van_uno_por_linea()
{
    const Salida s =
        Enviar("KRT300", 1, Fichero("A 1 2 3\r\nB 10000000 2 3\r\nC 1 -9999999.999 3\r\n"));
    QCOMPARE(s.estado, 1);
    QCOMPARE(s.errores.count('\n'), 2);
    QVERIFY2(s.errores.contains("B X: 10000000 Y: 2 Z: 3\n"), qPrintable(s.errores));
    QVERIFY2(s.errores.contains("C X: 1 Y: -9999999,999 Z: 3\n"), qPrintable(s.errores));
}

void TestEnvios::el_mal_uso_se_dice_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<int>("estado");
    const QString f = "p.asc";
    QTest::newRow("sin puerto") << QStringList{"--modelo", "KRT300", "--ope", "1", "--fichero", f}
                                << 2;
    QTest::newRow("el nivel sin salida")
        << QStringList{"--modelo", "NV400", "--ope", "4", "--fichero", f} << 2;
    QTest::newRow("el nivel con puerto")
        << QStringList{"--modelo", "NV400",    "--ope", "4",        "--fichero",
                       f,          "--salida", "x.x",   "--puerto", "p"}
        << 2;
    QTest::newRow("separador") << QStringList{"--modelo",    "KRT300", "--ope",    "1",
                                              "--fichero",   f,        "--puerto", "p",
                                              "--separador", "raya"}
                               << 2;
    QTest::newRow("desplazamiento")
        << QStringList{"--modelo", "KRT300",           "--ope", "1", "--fichero", f, "--puerto",
                       "p",        "--desplazamiento", "1,2"}
        << 2;
    QTest::newRow("velocidad") << QStringList{"--modelo",    "KRT300", "--ope",    "1",
                                              "--fichero",   f,        "--puerto", "p",
                                              "--velocidad", "300"}
                               << 2;
    QTest::newRow("modelo") << QStringList{"--modelo",  "OTRO", "--ope",    "1",
                                           "--fichero", f,      "--puerto", "p"}
                            << 1;
    QTest::newRow("operacion") << QStringList{"--modelo",  "KRT300", "--ope",    "6",
                                              "--fichero", f,        "--puerto", "p"}
                               << 1;
}

void TestEnvios::el_mal_uso_se_dice()
{
    QFETCH(QStringList, palabras);
    QFETCH(int, estado);
    const Salida s = Cli(QStringList{"enviar"} + palabras);
    QCOMPARE(s.estado, estado);
    QVERIFY(!s.errores.isEmpty());
    QVERIFY(s.texto.isEmpty());
}

void TestEnvios::el_cable_cortado_se_dice()
{
    Simular("KRT800", {"--fallo", "corte:20"});
    const Salida s = Enviar("KRT800", 4, Fichero(QByteArray("P1 1 2 3\r\n").repeated(20)));
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains("Se ha perdido la conexión") ||
                 s.errores.contains("Se produjo un error en la comunicación"),
             qPrintable(s.errores));
    QVERIFY2(s.texto.contains("Caracteres enviados: "), qPrintable(s.texto));
}

PRUEBA(TestEnvios)
#include "TestEnvios.moc"
