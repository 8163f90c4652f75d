#include "core/Ansi.h"
#include "core/Familia.h"
#include "core/Ficheros.h"
#include "core/jet/Base.h"
#include "core/Sumas.h"
#include "tests/apoyo/Prueba.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

// Whole roads: the real programs, the real protocol, a pseudo-terminal between them.
class TestCaminos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void cada_familia_descarga_su_libreta_data();
    void cada_familia_descarga_su_libreta();
    void las_averias_que_se_arreglan_no_se_notan_data();
    void las_averias_que_se_arreglan_no_se_notan();
    void eot_en_mitad_de_una_trama_guarda_lo_anterior();
    void el_cable_cortado_deja_un_comienzo_que_se_rescata_data();
    void el_cable_cortado_deja_un_comienzo_que_se_rescata();
    void matado_conserva_lo_de_hace_un_segundo();
    void lo_que_no_se_repite_se_dice_data();
    void lo_que_no_se_repite_se_dice();
    void la_espera_acaba_con_lo_que_se_para();
    void el_nombre_se_mira_antes_de_descargar();
    void una_senal_conserva_lo_recibido_data();
    void una_senal_conserva_lo_recibido();
    void rescatar_no_cambia_de_familia_ni_de_operacion();
    void el_silencio_se_dice();
    void un_puerto_que_no_esta_se_dice();
    void un_puerto_ocupado_se_dice();
    void la_carpeta_puede_tener_blancos_y_acentos();

private:
    struct Salida {
        int estado;
        QString texto, errores;
    };
    Salida Cli(const QStringList& palabras);
    void Simular(const QString& maquina, const QString& libreta, const QStringList& opciones = {});
    Salida Descargar(const QString& modelo, int ope);
    QStringList Registros_De(const QString& libreta, const QString& maquina);
    QStringList Guardados(const QString& sesion);
    static QByteArray En_El_Cable(const QStringList& registros);
    QString Ruta(const QString& relativa) const { return dir + u'/' + relativa; }
    QString Libreta(const QString& nombre) const { return INSTALACION "/ficheros/" + nombre; }
    QStringList Diarios() const;

    std::unique_ptr<QTemporaryDir> carpeta;
    std::unique_ptr<QProcess> simulador;
    QString dir;
};

void TestCaminos::init()
{
    carpeta = std::make_unique<QTemporaryDir>();
    dir = carpeta->path();
    QVERIFY(QDir(dir).mkpath("DAT"));
    QVERIFY(QFile::copy(INSTALACION "/DAT/Database.mdb", Ruta("DAT/Database.mdb")));
    QFile ini(Ruta("EstTotal.ini"));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("VELOCIDAD=9600\r\nBITS=8\r\nPARIDAD=None\r\nSTOP=1\r\nFIJO=True\r\n");
}

void TestCaminos::cleanup()
{
    if (simulador) {
        simulador->kill();
        simulador->waitForFinished();
        simulador.reset();
    }
    carpeta.reset();
}

TestCaminos::Salida TestCaminos::Cli(const QStringList& palabras)
{
    QProcess p;
    p.start(INSTALACION "/miraldos-cli", QStringList{"--dir", dir} + palabras);
    if (!p.waitForFinished(60000)) {
        p.kill();
        p.waitForFinished();
        return {-1, {}, "the program did not end"};
    }
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2,
            QString::fromUtf8(p.readAllStandardOutput()),
            QString::fromUtf8(p.readAllStandardError())};
}

void TestCaminos::Simular(const QString& maquina, const QString& libreta,
                          const QStringList& opciones)
{
    simulador = std::make_unique<QProcess>();
    simulador->start(INSTALACION "/miraldos-sim",
                     QStringList{maquina, "--enlace", Ruta("com1"), "--enviar", libreta} +
                         opciones);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Ruta("com1")), 10000);
}

TestCaminos::Salida TestCaminos::Descargar(const QString& modelo, int ope)
{
    return Cli({"descargar", "--modelo", modelo, "--ope", QString::number(ope), "--puerto",
                Ruta("com1"), "--nombre", "Obra"});
}

// The records of a field book that are stored: neither points nor general records.
QStringList TestCaminos::Registros_De(const QString& libreta, const QString& maquina)
{
    QString texto = QString::fromUtf8(Ficheros::Leer(libreta));
    QStringList registros;
    for (const QString& linea : texto.remove(u'\r').split(u'\n'))
        if (!linea.isEmpty() && !linea.startsWith(u'#')) registros << linea;
    if (Familia_De(maquina).serie != Serie::A) return registros;
    const auto base = Base::Abrir(Ruta("MDB/EstTotal.mdb"));
    QString generales;
    for (Recorrido r = base->Recorrer(
             "SELECT ID FROM Identificadores WHERE tipo = 'G' AND Nombre = ?", {maquina});
         r.Siguiente();)
        generales += r.Texto(0);
    registros.removeIf([&](const QString& r) { return r[0] == u'+' || generales.contains(r[0]); });
    return registros;
}

QStringList TestCaminos::Guardados(const QString& sesion)
{
    const auto base = Base::Abrir(Ruta("MDB/EstTotal.mdb"));
    QStringList lineas;
    for (Recorrido r = base->Recorrer("SELECT Datos FROM Registros WHERE ID = ? ORDER BY Secuencia",
                                      {sesion.trimmed()});
         r.Siguiente();)
        lineas << r.Texto(0);
    return lineas;
}

// What a KRT300 puts on the wire: frames of 128 characters, the last one padded.
QByteArray TestCaminos::En_El_Cable(const QStringList& registros)
{
    const QByteArray libro = Ansi::A_Bytes(u'_' + registros.join(u'_'));
    QByteArray cable;
    for (qsizetype i = 0, n = 0; i < libro.size(); i += 128, ++n) {
        const QByteArray interior = libro.mid(i, 128).leftJustified(128, ' ') + char('0' + n % 10);
        cable += '\x02' + interior + Suma_XOR(Ansi::A_Texto(interior)).toLatin1() + '\x03';
    }
    return cable;
}

QStringList TestCaminos::Diarios() const
{
    QStringList lista;
    for (const QFileInfo& f : QDir(Ruta("LOG")).entryInfoList({"*.dia"}, QDir::Files))
        lista << f.filePath();
    return lista;
}

// A stored record may hold the padding of the last frame.
static void Sin_Relleno(QStringList& lineas)
{
    if (lineas.isEmpty()) return;
    while (lineas.last().endsWith(u' '))
        lineas.last().chop(1);
}

// Of the last one what was acknowledged is there.
static void Es_Comienzo(const QStringList& guardados, const QStringList& esperados)
{
    const qsizetype n = guardados.size() - 1;
    QCOMPARE(guardados.first(n), esperados.first(n));
    QVERIFY(esperados[n].startsWith(guardados.last()));
}

void TestCaminos::cada_familia_descarga_su_libreta_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("libreta");
    QTest::newRow("KRT300") << "KRT300" << 0 << "campo_krt300.txt";
    QTest::newRow("KRT300 coordenadas") << "KRT300" << 1 << "campo_krt300_coordenadas.txt";
    QTest::newRow("KRT300 once") << "KRT300" << 11 << "campo_krt300_coordenadas.txt";
    QTest::newRow("KRT300 una jornada") << "KRT300" << 0 << "jornada_krt300.txt";
    QTest::newRow("PX7") << "PX7" << 0 << "campo_px7.txt";
    QTest::newRow("KRT800 puntos") << "KRT800" << 4 << "campo_krt800_puntos.txt";
    QTest::newRow("NV400") << "NV400" << 0 << "campo_nv400.txt";
}

void TestCaminos::cada_familia_descarga_su_libreta()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, libreta);
    Simular(maquina, Libreta(libreta), {"--retardo", "300"});
    const Salida s = Descargar(maquina, ope);
    QCOMPARE(s.estado, 0);
    QCOMPARE(s.texto, QString("1\n"));
    QStringList guardados = Guardados("1"), esperados = Registros_De(Libreta(libreta), maquina);
    Sin_Relleno(guardados);
    Sin_Relleno(esperados);
    if (Familia_De(maquina).serie == Serie::Nivel)
        for (QString& linea : guardados)
            linea.chop(2); // checksum and its comma stay in the line
    QCOMPARE(guardados, esperados);
    QCOMPARE(Diarios(), QStringList());
}

void TestCaminos::las_averias_que_se_arreglan_no_se_notan_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QString>("libreta");
    QTest::addColumn<QStringList>("averias");
    const QStringList suma{"--fallo", "suma:2", "--fallo", "suma:3x4"};
    QTest::newRow("sumas malas") << "KRT300"
                                 << "campo_krt300.txt" << suma;
    QTest::newRow("byte a byte") << "PX7"
                                 << "campo_px7.txt" << QStringList{"--fallo", "trozos:1"};
    QTest::newRow("ruido") << "KRT300"
                           << "campo_krt300.txt" << QStringList{"--fallo", "ruido:0"};
    QTest::newRow("CR LF") << "KRT300"
                           << "campo_krt300.txt" << QStringList{"--crlf"};
    QTest::newRow("nivel, sumas malas") << "NV400"
                                        << "campo_nv400.txt" << suma;
}

void TestCaminos::las_averias_que_se_arreglan_no_se_notan()
{
    QFETCH(QString, maquina);
    QFETCH(QString, libreta);
    QFETCH(QStringList, averias);
    Simular(maquina, Libreta(libreta), averias);
    QCOMPARE(Descargar(maquina, 0).estado, 0);
    QStringList guardados = Guardados("1");
    Sin_Relleno(guardados);
    if (Familia_De(maquina).serie == Serie::Nivel)
        for (QString& linea : guardados)
            linea.chop(2);
    QStringList esperados = Registros_De(Libreta(libreta), maquina);
    Sin_Relleno(esperados);
    QCOMPARE(guardados, esperados);
}

void TestCaminos::eot_en_mitad_de_una_trama_guarda_lo_anterior()
{
    Simular("KRT300", Libreta("campo_krt300.txt"), {"--fallo", "eot:4"});
    const Salida s = Descargar("KRT300", 0);
    QCOMPARE(s.estado, 1);
    QCOMPARE(s.texto, QString("1\n"));
    QVERIFY2(s.errores.contains("1 trama sin terminar; lo recibido se conserva\n"),
             qPrintable(s.errores));
    QCOMPARE(Diarios().size(), 1);
    const QStringList guardados = Guardados("1");
    const QStringList esperados = Registros_De(Libreta("campo_krt300.txt"), "KRT300");
    QVERIFY(guardados.size() > 5 && guardados.size() < esperados.size());
    QCOMPARE(guardados.first(guardados.size() - 1), esperados.first(guardados.size() - 1));
    QVERIFY(esperados[guardados.size() - 1].startsWith(guardados.last()));
}

void TestCaminos::el_cable_cortado_deja_un_comienzo_que_se_rescata_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("libreta");
    QTest::addColumn<int>("bytes");
    for (const int n : {200, 401, 777, 1300})
        QTest::addRow("KRT300 %d", n) << "KRT300" << 0 << "campo_krt300.txt" << n;
    QTest::newRow("KRT800") << "KRT800" << 4 << "campo_krt800_puntos.txt" << 150;
    QTest::newRow("NV400") << "NV400" << 0 << "campo_nv400.txt" << 300;
}

void TestCaminos::el_cable_cortado_deja_un_comienzo_que_se_rescata()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, libreta);
    QFETCH(int, bytes);
    Simular(maquina, Libreta(libreta),
            // Paced, since what a pseudo-terminal holds when it is cut is lost with it.
            {"--fallo", QStringLiteral("corte:%1").arg(bytes), "--retardo", "300", "--baudios",
             "4800"});
    const Salida s = Descargar(maquina, ope);
    QCOMPARE(s.estado, 1);
    QCOMPARE(s.texto, QString());
    QVERIFY2(s.errores.contains("Se ha perdido la conexión"), qPrintable(s.errores));
    QCOMPARE(Diarios().size(), 1);

    QStringList filas = Cli({"rescates"}).texto.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(filas.size(), 2);
    const Salida r = Cli({"rescatar", filas[1].section(u'\t', 0, 0), "--modelo", maquina, "--ope",
                          QString::number(ope), "--nombre", "Rescatada"});
    QCOMPARE(r.estado, 0);
    QStringList guardados = Guardados(r.texto);
    if (Familia_De(maquina).serie == Serie::Nivel)
        for (QString& linea : guardados)
            linea.chop(2);
    const QStringList esperados = Registros_De(Libreta(libreta), maquina);
    QVERIFY(!guardados.isEmpty() && guardados.size() < esperados.size());
    Es_Comienzo(guardados, esperados);
    QCOMPARE(Diarios(), QStringList());
}

void TestCaminos::matado_conserva_lo_de_hace_un_segundo()
{
    constexpr int BAUDIOS = 4800, MS = 2500;
    Simular("KRT300", Libreta("jornada_krt300.txt"), {"--baudios", QString::number(BAUDIOS)});
    QProcess p;
    p.start(INSTALACION "/miraldos-cli", {"--dir", dir, "descargar", "--modelo", "KRT300", "--ope",
                                          "0", "--puerto", Ruta("com1"), "--nombre", "Obra"});
    QTRY_COMPARE_WITH_TIMEOUT(Diarios().size(), 1, 20000);
    QTest::qWait(MS);
    p.kill();
    QVERIFY(p.waitForFinished());

    QStringList todos;
    const QString texto =
        QString::fromUtf8(Ficheros::Leer(Libreta("jornada_krt300.txt"))).remove(u'\r');
    for (const QString& linea : texto.split(u'\n'))
        if (!linea.isEmpty() && !linea.startsWith(u'#')) todos << linea;
    const QByteArray diario = Ficheros::Leer(Diarios().first());
    QVERIFY2(diario.size() >= BAUDIOS / 10 * (MS - 1000) / 1000,
             qPrintable(QString::number(diario.size())));
    QVERIFY(En_El_Cable(todos).startsWith(diario));

    const Salida r = Cli({"rescatar", Diarios().first(), "--modelo", "KRT300", "--ope", "0",
                          "--nombre", "Rescatada"});
    QCOMPARE(r.estado, 0);
    const QStringList guardados = Guardados(r.texto);
    Es_Comienzo(guardados, Registros_De(Libreta("jornada_krt300.txt"), "KRT300"));
    QVERIFY(guardados.size() > 5);
}

void TestCaminos::lo_que_no_se_repite_se_dice_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QString>("libreta");
    QTest::addColumn<QString>("falta");
    QTest::newRow("KRT300") << "KRT300"
                            << "campo_krt300.txt"
                            << "1 trama rechazada y no repetida";
    QTest::newRow("NV400") << "NV400"
                           << "campo_nv400.txt"
                           << "1 línea rechazada y no repetida";
}

void TestCaminos::lo_que_no_se_repite_se_dice()
{
    QFETCH(QString, maquina);
    QFETCH(QString, libreta);
    QFETCH(QString, falta);
    Simular(maquina, Libreta(libreta), {"--fallo", "suma:3", "--seguir"});
    const Salida s = Descargar(maquina, 0);
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains(falta), qPrintable(s.errores));
    QVERIFY2(s.errores.contains("; lo recibido se conserva\n"), qPrintable(s.errores));
    QCOMPARE(Diarios().size(), 1);
}

void TestCaminos::la_espera_acaba_con_lo_que_se_para()
{
    Simular("KRT300", Libreta("campo_krt300.txt"), {"--fallo", "silencio:2"});
    const Salida s = Cli({"descargar", "--modelo", "KRT300", "--ope", "0", "--puerto", Ruta("com1"),
                          "--nombre", "Obra", "--espera", "1"});
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains("No llega nada desde hace 1 segundos: "), qPrintable(s.errores));
    QVERIFY2(s.errores.contains("lo recibido se conserva"), qPrintable(s.errores));
    QCOMPARE(Diarios().size(), 1);
}

void TestCaminos::el_nombre_se_mira_antes_de_descargar()
{
    for (const QString& nombre : {QString(), QString("  "), QString(51, 'x')}) {
        const Salida s = Cli({"descargar", "--modelo", "KRT300", "--ope", "0", "--puerto",
                              "/no/hay", "--nombre", nombre});
        QCOMPARE(s.estado, 2);
        QVERIFY2(s.errores.startsWith("El nombre de la sesión"), qPrintable(s.errores));
    }
}

void TestCaminos::una_senal_conserva_lo_recibido_data()
{
    QTest::addColumn<int>("senal");
    QTest::newRow("TERM") << SIGTERM;
    QTest::newRow("INT") << SIGINT;
    QTest::newRow("HUP") << SIGHUP;
}

void TestCaminos::una_senal_conserva_lo_recibido()
{
    QFETCH(int, senal);
    Simular("KRT300", Libreta("jornada_krt300.txt"), {"--baudios", "4800"});
    QProcess p;
    p.start(INSTALACION "/miraldos-cli", {"--dir", dir, "descargar", "--modelo", "KRT300", "--ope",
                                          "0", "--puerto", Ruta("com1"), "--nombre", "Obra"});
    QTRY_COMPARE_WITH_TIMEOUT(Diarios().size(), 1, 20000);
    QTest::qWait(300);
    // While it runs nobody else makes a session of it.
    const Salida r = Cli({"rescatar", Diarios().first(), "--modelo", "KRT300", "--nombre", "X"});
    QCOMPARE(r.estado, 1);
    QVERIFY2(r.errores.contains("está en curso"), qPrintable(r.errores));
    QVERIFY(Cli({"rescates"}).texto.contains("\ten curso\n"));
    ::kill(static_cast<pid_t>(p.processId()), senal);
    QVERIFY(p.waitForFinished(20000));
    QCOMPARE(p.exitStatus(), QProcess::NormalExit);
    QCOMPARE(p.exitCode(), 1);
    const QString dicho = QString::fromUtf8(p.readAllStandardError());
    QVERIFY2(dicho.contains("Se ha pedido el fin del programa: "), qPrintable(dicho));
    QVERIFY2(dicho.contains("; lo recibido se conserva"), qPrintable(dicho));
    QCOMPARE(Diarios().size(), 1);
}

void TestCaminos::rescatar_no_cambia_de_familia_ni_de_operacion()
{
    Simular("KRT300", Libreta("campo_krt300.txt"), {"--fallo", "corte:777", "--baudios", "4800"});
    Descargar("KRT300", 0);
    const QString diario = QFileInfo(Diarios().value(0)).fileName();
    const auto rescatar = [&](const QStringList& palabras) {
        return Cli(QStringList{"rescatar", diario, "--nombre", "R"} + palabras);
    };
    Salida s = rescatar({"--modelo", "KRT800"});
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains("La recepción es de un KRT300 y no de un KRT800"),
             qPrintable(s.errores));
    s = rescatar({"--modelo", "KRT300", "--ope", "1"});
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains("es de la operación 0 y no de la 1"), qPrintable(s.errores));
    QCOMPARE(Diarios().size(), 1);
    s = rescatar({"--modelo", "KRT300"});
    QCOMPARE(s.estado, 0);
    QVERIFY2(s.errores.contains("puede estar incompleto"), qPrintable(s.errores));
    QCOMPARE(Diarios().size(), 0);
    QVERIFY(QFile::exists(Ruta("LOG/" + diario + ".rescatada")));
}

void TestCaminos::el_silencio_se_dice()
{
    Simular("KRT300", Libreta("campo_krt300.txt"), {"--fallo", "silencio:0"});
    QElapsedTimer reloj;
    reloj.start();
    const Salida s = Descargar("KRT300", 0);
    QCOMPARE(s.estado, 1);
    QVERIFY(reloj.elapsed() >= 4900);
    QVERIFY(
        s.errores.contains("Error de comunicación ,compruebe que el cable esta bien conectado"));
    QCOMPARE(Diarios(), QStringList());
}

void TestCaminos::un_puerto_que_no_esta_se_dice()
{
    const Salida s = Descargar("KRT300", 0);
    QCOMPARE(s.estado, 1);
    QVERIFY(
        s.errores.startsWith("Se produjo un error al Abrir el Puerto; revise la configuración\n("));
    QVERIFY2(s.errores.contains("No se encuentra el dispositivo " + Ruta("com1")),
             qPrintable(s.errores));
}

void TestCaminos::un_puerto_ocupado_se_dice()
{
    Simular("KRT300", Libreta("jornada_krt300.txt"), {"--baudios", "1200"});
    QProcess primero;
    primero.start(INSTALACION "/miraldos-cli",
                  {"--dir", dir, "descargar", "--modelo", "KRT300", "--ope", "0", "--puerto",
                   Ruta("com1"), "--nombre", "Obra"});
    QTRY_COMPARE_WITH_TIMEOUT(Diarios().size(), 1, 20000);
    const Salida s = Descargar("KRT300", 0);
    QCOMPARE(s.estado, 1);
    QVERIFY2(s.errores.contains("está ocupado por otro programa"), qPrintable(s.errores));
    primero.kill();
    primero.waitForFinished();
}

void TestCaminos::la_carpeta_puede_tener_blancos_y_acentos()
{
    const QString otra = dir + "/Topografía del año 1";
    QVERIFY(QDir().mkpath(otra + "/DAT"));
    QVERIFY(QFile::copy(Ruta("DAT/Database.mdb"), otra + "/DAT/Database.mdb"));
    QVERIFY(QFile::copy(Ruta("EstTotal.ini"), otra + "/EstTotal.ini"));
    dir = otra;
    Simular("KRT300", Libreta("campo_krt300.txt"));
    QCOMPARE(Descargar("KRT300", 0).estado, 0);
    QVERIFY(!Guardados("1").isEmpty());
}

PRUEBA(TestCaminos)
#include "TestCaminos.moc"
