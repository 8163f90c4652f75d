#include "rawfiles/Exportar_Datos.h"
#include "rawfiles/Exportar_Puntos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QDir>
#include <QFileInfo>

// The stored lines of a session into a file: series A by points, the others as they are.
class TestExportar_Puntos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void las_dos_formas_data();
    void las_dos_formas();
    void los_generales_en_su_sitio();
    void lo_que_falta_se_cuenta();
    void una_sesion_vacia();
    void lo_partido_se_dice();
    void los_demas_tal_cual();
    void los_fallos_llevan_su_mensaje();
    void un_fallo_deja_lo_de_antes();
    void nunca_sobre_un_fichero_del_programa_data();
    void nunca_sobre_un_fichero_del_programa();

private:
    QByteArray Exportar(const Sesion_Elegida& s, Forma_Bruta forma, bool generales = false)
    {
        falta = {};
        if (!Exportar_Puntos(s.id, banco->Ruta("salida"), forma, generales, falta)) return "failed";
        return banco->Leer("salida");
    }
    std::unique_ptr<Banco_Bruto> banco;
    Falta_En_Bruto falta;
};

void TestExportar_Puntos::las_dos_formas_data()
{
    QTest::addColumn<QList<Linea_De_Prueba>>("filas");
    QTest::addColumn<QByteArray>("maquina");
    QTest::addColumn<QByteArray>("lineas");
    using Filas = QList<Linea_De_Prueba>;
    QTest::newRow("dos puntos") << Filas{{"P1", "h1"}, {"P1", "v2"}, {"P2", "h3"}}
                                << QByteArray("_+P1_h1_v2_+P2_h3_\r\n")
                                << QByteArray("+P1\r\nh1\r\nv2\r\n+P2\r\nh3\r\n");
    QTest::newRow("sin punto al principio")
        << Filas{{"", "h1"}, {"P1", "v2"}, {"", "h3"}} << QByteArray("_h1_+P1_v2_+_h3_\r\n")
        << QByteArray("h1\r\n+P1\r\nv2\r\n+\r\nh3\r\n");
    QTest::newRow("un punto que vuelve")
        << Filas{{"P", "h1"}, {"Q", "h2"}, {"P", "h3"}} << QByteArray("_+P_h1_+Q_h2_+P_h3_\r\n")
        << QByteArray("+P\r\nh1\r\n+Q\r\nh2\r\n+P\r\nh3\r\n");
    QTest::newRow("blancos y altos")
        << Filas{{"Ñ", " cA€  "}} << QByteArray("_+\xd1_ cA\x80  _\r\n")
        << QByteArray("+\xd1\r\n cA\x80  \r\n");
}

void TestExportar_Puntos::las_dos_formas()
{
    QFETCH(QList<Linea_De_Prueba>, filas);
    QFETCH(QByteArray, maquina);
    QFETCH(QByteArray, lineas);
    for (const QString familia : {"KRT300", "PX7"}) {
        const auto sesion = banco->Guardar(familia, 0, filas);
        QCOMPARE(Exportar(sesion, Forma_Bruta::Maquina), maquina);
        QCOMPARE(Exportar(sesion, Forma_Bruta::Lineas), lineas);
        QVERIFY(Texto_Falta(falta, familia).isEmpty());
    }
}

void TestExportar_Puntos::los_generales_en_su_sitio()
{
    const auto sesion = banco->Guardar("KRT300", 0,
                                       QList<Linea_De_Prueba>{{"P1", "h1", "JA\6EE1"},
                                                              {"P1", "v1", "JA\6EE1"},
                                                              {"P2", "h2", "JA\6EE2\6I3"},
                                                              {"P2", "v2", "JA\6EE1\6I3"}});
    QCOMPARE(Exportar(sesion, Forma_Bruta::Lineas, true),
             QByteArray("JA\r\nEE1\r\n+P1\r\nh1\r\nv1\r\nEE2\r\nI3\r\n+P2\r\nh2\r\nEE1\r\nv2\r\n"));
    QVERIFY(Texto_Falta(falta, "KRT300").isEmpty());
    QCOMPARE(Exportar(sesion, Forma_Bruta::Maquina, true),
             QByteArray("_JA_EE1_+P1_h1_v1_EE2_I3_+P2_h2_EE1_v2_\r\n"));
}

void TestExportar_Puntos::lo_que_falta_se_cuenta()
{
    const auto sesion = banco->Guardar(
        "KRT300", 0, QList<Linea_De_Prueba>{{"P1", "h1", "JA\6EE1"}, {"P2", "h2", "JA\6EE2\6Q3"}});
    QCOMPARE(Exportar(sesion, Forma_Bruta::Lineas), QByteArray("+P1\r\nh1\r\n+P2\r\nh2\r\n"));
    QCOMPARE(
        Texto_Falta(falta, "KRT300"),
        QString("El fichero no incluye los registros generales: Clase E (2), Clase J (1), Q (1)"));
}

void TestExportar_Puntos::una_sesion_vacia()
{
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{});
    for (const bool habia : {false, true}) {
        if (habia) banco->Escribir("salida", "lo de antes");
        Exportar(sesion, Forma_Bruta::Lineas);
        QCOMPARE(banco->Avisos(), QStringList{});
        Exportar(sesion, Forma_Bruta::Maquina);
        QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Exclamacion);
        QCOMPARE(banco->Avisos(), QStringList{"La sesión no contenía datos"});
        QVERIFY(Exportar_Datos(sesion.id, banco->Ruta("salida")));
        QVERIFY(Exportar_Datos_Modo(sesion.id, banco->Ruta("salida"), 1));
        QCOMPARE(QFileInfo::exists(banco->Ruta("salida")), habia);
    }
    QCOMPARE(banco->Leer("salida"), QByteArray("lo de antes"));
    QCOMPARE(banco->interfaz.cursor, 0);
}

void TestExportar_Puntos::lo_partido_se_dice()
{
    const auto sesion =
        banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"P1", "cA_B"}, {"P1", "cA\nB"}});
    Exportar(sesion, Forma_Bruta::Maquina);
    QCOMPARE(falta.partidos, 1);
    Exportar(sesion, Forma_Bruta::Lineas);
    QCOMPARE(falta.partidos, 1);
    QVERIFY(Texto_Falta(falta, "KRT300").endsWith("no volverían enteros: 1"));
}

void TestExportar_Puntos::los_demas_tal_cual()
{
    const QStringList lineas{"STN E1,1.5", "", "  con blancos  ", QString("Ñ€") + QChar(0x81),
                             "sin comas"};
    const QByteArray bytes("STN E1,1.5\r\n\r\n  con blancos  \r\n\xd1\x80\x81\r\nsin comas\r\n");
    const auto b = banco->Guardar("KRT800", 0, lineas);
    QVERIFY(Exportar_Datos_Modo(b.id, banco->Ruta("salida"), 1));
    QCOMPARE(banco->Leer("salida"), bytes);
    QVERIFY(Exportar_Datos_Modo(b.id, banco->Ruta("otra"), 2));
    QVERIFY(!QFileInfo::exists(banco->Ruta("otra")));
    QVERIFY(Exportar_Datos(banco->Guardar("NV400", 0, lineas).id, banco->Ruta("otra")));
    QCOMPARE(banco->Leer("otra"), bytes);
}

void TestExportar_Puntos::los_fallos_llevan_su_mensaje()
{
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    const QString ruta = banco->Ruta("no hay/salida");
    QVERIFY(!Exportar_Puntos(sesion.id, ruta, Forma_Bruta::Maquina, false, falta));
    QVERIFY(!Exportar_Puntos(sesion.id, ruta, Forma_Bruta::Lineas, false, falta));
    QVERIFY(!Exportar_Datos_Modo(sesion.id, ruta, 1));
    QVERIFY(!Exportar_Datos(sesion.id, ruta));
    QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Critico);
    const QStringList avisos = banco->Avisos();
    for (int i = 0; i < 3; ++i)
        QVERIFY(avisos[i].startsWith("Se produjo un error al exportar el Fichero en Bruto\r(76) "));
    QVERIFY(avisos[3].startsWith("Se produjo un error al exportar a Fichero Bruto\r(76) "));
    QCOMPARE(banco->interfaz.cursor, 0);
}

// A device is no file that could be written, with or without room.
void TestExportar_Puntos::un_fallo_deja_lo_de_antes()
{
    if (!QFileInfo::exists("/dev/full")) QSKIP("no full device");
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    banco->Escribir("salida", "lo de antes");
    QVERIFY(QFile::link("/dev/full", banco->Ruta("salida.parcial")));
    QCOMPARE(Exportar(sesion, Forma_Bruta::Lineas), QByteArray("failed"));
    const QString aviso = banco->Avisos().value(0);
    QVERIFY2(aviso.contains("(75) "), qPrintable(aviso));
    QCOMPARE(banco->Leer("salida"), QByteArray("lo de antes"));
    QFile::remove(banco->Ruta("salida.parcial"));
    QCOMPARE(Exportar(sesion, Forma_Bruta::Lineas), QByteArray("h1\r\n"));
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida.parcial")));
}

void TestExportar_Puntos::nunca_sobre_un_fichero_del_programa_data()
{
    QTest::addColumn<QString>("relativa");
    for (const char* r : {"MDB/EstTotal.mdb", "MDB/esttotal.bak", "MDB/../MDB/EstTotal.mdb",
                          "DAT/Database.mdb", "EstTotal.ini", "Posicion.ini"})
        QTest::newRow(r) << r;
}

void TestExportar_Puntos::nunca_sobre_un_fichero_del_programa()
{
    QFETCH(QString, relativa);
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    if (!QFileInfo::exists(banco->Ruta(relativa))) banco->Escribir(relativa, "propio");
    const qint64 antes = QFileInfo(banco->Ruta(relativa)).size();
    QVERIFY(!Exportar_Puntos(sesion.id, banco->Ruta(relativa), Forma_Bruta::Lineas, false, falta));
    QVERIFY(!Exportar_Datos(sesion.id, banco->Ruta(relativa)));
    QVERIFY(banco->Avisos().value(0).endsWith("es un fichero del propio programa"));
    QCOMPARE(QFileInfo(banco->Ruta(relativa)).size(), antes);
    QCOMPARE(banco->Filas("1").size(), 1);
}

PRUEBA(TestExportar_Puntos)
#include "TestExportar_Puntos.moc"
