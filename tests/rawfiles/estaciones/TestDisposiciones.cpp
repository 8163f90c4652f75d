#include "rawfiles/estaciones/Angulos.h"
#include "rawfiles/estaciones/Bronex.h"
#include "rawfiles/estaciones/BronexCOD.h"
#include "rawfiles/estaciones/Desplazamientos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QFileInfo>

// The station layouts against files that were worked out apart, and their messages.
class TestDisposiciones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void la_libreta_entera_data();
    void la_libreta_entera();
    void cada_caso_data();
    void cada_caso();
    void sin_separador_no_hace_nada_data();
    void sin_separador_no_hace_nada();
    void sin_registros_avisa_y_deja_el_fichero_data();
    void sin_registros_avisa_y_deja_el_fichero();
    void los_fallos_llevan_su_mensaje_data();
    void los_fallos_llevan_su_mensaje();
    void no_caben_mas_de_32768_data();
    void no_caben_mas_de_32768();
    void el_separador_dentro_se_dice();
    void el_temporal_de_bronexcod_no_queda();
    void nunca_sobre_un_fichero_del_programa();

private:
    using Exportar = bool (*)(qint64, const QString&);
    static void Filas_De_Todas();
    QByteArray Salida() const { return banco->Leer("salida"); }

    std::unique_ptr<Banco_Bruto> banco;
};

Q_DECLARE_METATYPE(bool (*)(qint64, const QString&))

namespace {

struct Fila_De_Prueba {
    const char* extension;
    bool (*exportar)(qint64, const QString&);
    const char* cierre;
    const char* fallo;
};
const Fila_De_Prueba TODAS[] = {
    {"top", Exportar_Bronex, "Exportación a Formato Bronex finalizada",
     "Se produjo un error al Exportar a Bronex"},
    {"tpc", Exportar_BronexCOD, "Exportación a Formato BronexCOD finalizada",
     "Se produjo un error al Exportar a Bronex"},
    {"ang", Exportar_Angulos, "Exportación a Formato Angulos y Distancias finalizada",
     "Se produjo un error al Exportar a Angulos y Distancias"},
    {"lea", Exportar_Desplazamientos, "Exportación a Formato Desplazamientos en Bruto Finalizada",
     "Se produjo un error al Exportar a Angulos y Distancias"},
};
const char SIN_REGISTROS[] =
    "El programa no ha detectado ningún registro susceptible de ser volcado a Bronex";

} // namespace

void TestDisposiciones::Filas_De_Todas()
{
    QTest::addColumn<Exportar>("exportar");
    QTest::addColumn<QString>("fallo");
    for (const Fila_De_Prueba& f : TODAS)
        QTest::newRow(f.extension) << Exportar(f.exportar) << QString(f.fallo);
}

void TestDisposiciones::la_libreta_entera_data()
{
    QTest::addColumn<Exportar>("exportar");
    QTest::addColumn<QString>("separador");
    QTest::addColumn<QString>("esperado");
    QTest::addColumn<QString>("cierre");
    const std::pair<const char*, const char*> separadores[] = {
        {"espacio", " "}, {"coma", ","}, {"tabulacion", "\t"}};
    for (const Fila_De_Prueba& f : TODAS)
        for (const auto& [nombre, separador] : separadores) {
            // The library takes the separator away again; blanks inside a code would part it.
            const bool tpc = QByteArray(f.extension) == "tpc";
            if (tpc && *separador == ' ') continue;
            const QString fichero = tpc ? QString("libreta_b.tpc")
                                        : QString("libreta_b_%1.%2").arg(nombre, f.extension);
            QTest::newRow(qPrintable(QString(f.extension) + u' ' + nombre))
                << Exportar(f.exportar) << separador << fichero << f.cierre;
        }
}

void TestDisposiciones::la_libreta_entera()
{
    QFETCH(Exportar, exportar);
    QFETCH(QString, separador);
    QFETCH(QString, esperado);
    QFETCH(QString, cierre);
    banco->separador = separador;
    const auto sesion =
        banco->Guardar("KRT800", 0, Banco_Bruto::Lineas(Banco_Bruto::Datos("libreta_b.txt")));
    QVERIFY(exportar(sesion.id, banco->Ruta("salida")));
    QCOMPARE(banco->interfaz.avisos[0].icono, Icono::Informacion);
    const QStringList avisos = banco->Avisos();
    QCOMPARE(avisos[0], cierre);
    QCOMPARE(avisos.size() > 1, separador == u" " && esperado.endsWith(u"ang"));
    QCOMPARE(Salida(), Banco_Bruto::Datos(esperado));
}

void TestDisposiciones::cada_caso_data()
{
    QTest::addColumn<Exportar>("exportar");
    QTest::addColumn<QStringList>("lineas");
    QTest::addColumn<QByteArray>("esperado");
    const Exportar top = Exportar_Bronex, tpc = Exportar_BronexCOD, ang = Exportar_Angulos,
                   lea = Exportar_Desplazamientos;
    QTest::newRow("sin estacion, celdas vacias") << top << QStringList{"SS 1,1.5,C", "SD 1,2,3"}
                                                 << QByteArray(",1,1.0000,2.0000,3.000,1.5,\r\n");
    QTest::newRow("el segundo SD repite el punto")
        << top << QStringList{"STN E,1.6", "SS 1,1.5,C", "SD 1,2,3", "SD 4,5,6"}
        << QByteArray("E,1,1.0000,2.0000,3.000,1.5,1.6\r\nE,1,4.0000,5.0000,6.000,1.5,1.6\r\n");
    QTest::newRow("FS es un punto como SS")
        << top << QStringList{"FS 9,2", "SD 1,2,3"} << QByteArray(",9,1.0000,2.0000,3.000,2,\r\n");
    QTest::newRow("una medida que falta queda vacia")
        << top << QStringList{"SS 1,1.5", "SD 1,,3"} << QByteArray(",1,1.0000,,3.000,1.5,\r\n");
    QTest::newRow("BronexCOD sin estacion")
        << tpc << QStringList{"SS 1,1.5,C", "SD 1,2,3"}
        << QByteArray(
               "                    1     1.0000     2.0000      3.000      1.5          C\r\n");
    QTest::newRow("qtr no tapa lo que llega")
        << tpc << QStringList{"SD 1,2,3", "STN E,1.6", "SS 7,1,K", "SD 1,2,3"}
        << QByteArray("                          1.0000     2.0000      3.000                  \r\n"
                      "         E          7     1.0000     2.0000      3.000        1      1.6 "
                      "K\r\n");
    QTest::newRow("los angulos no leen STN")
        << ang << QStringList{"STN E,1.6", "SS 1,1.5,C", "SD 1,2,3"}
        << QByteArray("1,1.0000,2.0000,3.000,1.5,C\r\n");
    QTest::newRow("solo estaciones tienen lineas en desplazamientos")
        << lea << QStringList{"STN A,1.6", "STN BB,1.75"}
        << QByteArray("S,     A,    ,     1.6,     0.0000,    0.000,    0.000\r\n"
                      "S,    BB,    ,    1.75,     0.0000,    0.000,    0.000\r\n");
    // 10 * sin(100.5) = 5.0889..., times sin(100.5 * 3.1416 / 200)
    QTest::newRow("punto con numero, con nombre")
        << lea << QStringList{"SS 7,1.5", "SD 0,100.5,10", "SS A7,1.5", "SD 0,100.5,10"}
        << QByteArray("P,      ,    7,    0.0000,    100.5000,    -0.310,    1.5\r\n"
                      "E,    A7,     ,    0.0000,    100.5000,    -0.310,    1.5\r\n");
    QTest::newRow("sin distancia no se inventa un desplazamiento")
        << lea << QStringList{"SS 7,1.5", "SD 0,100.5,"}
        << QByteArray("P,    ,    7,    0.0000,    100.5000,    ,    1.5\r\n");
    QTest::newRow("la estacion guarda lo de la ultima observacion")
        << lea << QStringList{"SS 7,1.5", "SD 0,100.5,10", "STN E,1.6"}
        << QByteArray("P,     ,    7,    0.0000,    100.5000,    -0.310,    1.5\r\n"
                      "S,    E,    7,       1.6,    100.5000,    -0.310,    1.5\r\n");
}

void TestDisposiciones::cada_caso()
{
    QFETCH(Exportar, exportar);
    QFETCH(QStringList, lineas);
    QFETCH(QByteArray, esperado);
    banco->separador = ",";
    QVERIFY(exportar(banco->Guardar("KRT800", 0, lineas).id, banco->Ruta("salida")));
    QCOMPARE(Salida(), esperado);
    QCOMPARE(banco->Avisos().size(), 1);
}

void TestDisposiciones::sin_separador_no_hace_nada_data()
{
    Filas_De_Todas();
}

void TestDisposiciones::sin_separador_no_hace_nada()
{
    QFETCH(Exportar, exportar);
    banco->separador.clear();
    QVERIFY(
        !exportar(banco->Guardar("KRT800", 0, QStringList{"SD 1,2,3"}).id, banco->Ruta("salida")));
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida")));
}

void TestDisposiciones::sin_registros_avisa_y_deja_el_fichero_data()
{
    Filas_De_Todas();
}

void TestDisposiciones::sin_registros_avisa_y_deja_el_fichero()
{
    QFETCH(Exportar, exportar);
    banco->Escribir("salida", "lo de antes");
    // What an earlier run may have left is not the session's.
    banco->Escribir("miraldos.$$$", "E,P,1,2,3,4,5,C\r\n");
    for (const QStringList& lineas : {QStringList{}, QStringList{"JOB A", "sin coma", ""}}) {
        QVERIFY(!exportar(banco->Guardar("KRT800", 0, lineas).id, banco->Ruta("salida")));
        QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Exclamacion);
        QCOMPARE(banco->Avisos(), QStringList{SIN_REGISTROS});
        QCOMPARE(Salida(), QByteArray("lo de antes"));
    }
}

void TestDisposiciones::los_fallos_llevan_su_mensaje_data()
{
    Filas_De_Todas();
}

void TestDisposiciones::los_fallos_llevan_su_mensaje()
{
    QFETCH(Exportar, exportar);
    QFETCH(QString, fallo);
    const auto sesion = banco->Guardar("KRT800", 0, QStringList{"SS 1,1.5,C", "SD 1,2,3"});
    // The library reports a target that can't be written as one that got nothing.
    if (exportar == Exportar(Exportar_BronexCOD)) {
        QVERIFY(!exportar(sesion.id, banco->Ruta("no hay/salida")));
        QCOMPARE(banco->Avisos().value(0), QString(SIN_REGISTROS));
        Base_Datos.reset();
        QVERIFY(!exportar(sesion.id, banco->Ruta("salida")));
        QVERIFY(banco->Avisos().value(0).startsWith(fallo + "\r\n(91) "));
        return;
    }
    QVERIFY(!exportar(sesion.id, banco->Ruta("no hay/salida")));
    QCOMPARE(banco->interfaz.avisos.value(0).icono, Icono::Critico);
    QVERIFY(banco->Avisos().value(0).startsWith(fallo + "\r\n(76) "));
}

void TestDisposiciones::no_caben_mas_de_32768_data()
{
    Filas_De_Todas();
}

void TestDisposiciones::no_caben_mas_de_32768()
{
    QFETCH(Exportar, exportar);
    QFETCH(QString, fallo);
    QStringList lineas{"SS 1,1.5,C"};
    lineas += QStringList(QList<QString>(32768, "SD 1,2,3"));
    banco->separador = ",";
    QVERIFY(exportar(banco->Guardar("KRT800", 0, lineas).id, banco->Ruta("salida")));
    QCOMPARE(Salida().count('\n'), 32768);
    banco->Avisos();
    lineas << "SD 1,2,3";
    const QByteArray antes = Salida();
    QVERIFY(!exportar(banco->Guardar("KRT800", 0, lineas).id, banco->Ruta("salida")));
    QVERIFY(banco->Avisos().value(0).startsWith(fallo + "\r\n(9) "));
    QVERIFY(Salida() == antes);
}

void TestDisposiciones::el_separador_dentro_se_dice()
{
    banco->separador = ",";
    auto sesion = banco->Guardar("KRT800", 0, QStringList{"SS 1,1.5,A\tB", "SD 1,2,3"});
    QVERIFY(Exportar_Angulos(sesion.id, banco->Ruta("salida")));
    QCOMPARE(banco->Avisos().size(), 1);
    banco->separador = "\t";
    QVERIFY(Exportar_Angulos(sesion.id, banco->Ruta("salida")));
    QCOMPARE(Salida(), QByteArray("1\t1.0000\t2.0000\t3.000\t1.5\tA\tB\r\n"));
    QVERIFY(banco->Avisos().value(1).endsWith("columnas:\r\n2"));
}

void TestDisposiciones::el_temporal_de_bronexcod_no_queda()
{
    const auto sesion = banco->Guardar("KRT800", 0, QStringList{"SS 1,1.5,C", "SD 1,2,3"});
    QVERIFY(Exportar_BronexCOD(sesion.id, banco->Ruta("salida")));
    QVERIFY(!QFileInfo::exists(banco->Ruta("miraldos.$$$")));
    banco->Avisos();
}

void TestDisposiciones::nunca_sobre_un_fichero_del_programa()
{
    const auto sesion = banco->Guardar("KRT800", 0, QStringList{"SS 1,1.5,C", "SD 1,2,3"});
    for (const Fila_De_Prueba& f : TODAS) {
        QVERIFY(!f.exportar(sesion.id, Fichero_MDB));
        QVERIFY(banco->Avisos().value(0).contains("(70) "));
    }
    QCOMPARE(banco->Filas("1").size(), 2);
}

PRUEBA(TestDisposiciones)
#include "TestDisposiciones.moc"
