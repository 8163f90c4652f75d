#include "core/Perfil.h"
#include "rawfiles/Exportar_En_Bruto.h"
#include "rawfiles/ModFBruto.h"
#include "rawfiles/Salidas_Brutas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QFileInfo>

// "Guardar Como..." and the two plain raw dialogs: every branch, what it writes and what it says.
class TestModFBruto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void el_dialogo_por_familia_data();
    void el_dialogo_por_familia();
    void una_operacion_sin_tipos_ofrece_el_bruto();
    void una_operacion_sin_fila_acaba_el_programa();
    void insiste_hasta_que_hay_nombre();
    void cancelar_calla();
    void cada_rama_data();
    void cada_rama();
    void plt_prepara_y_ctm_recoge();
    void ter_no_recoge_lo_de_otro_dia();
    void el_resto_entrega_el_temporal();
    void las_disposiciones_retiran_el_temporal();
    void el_nivel_pide_sus_cinco_datos();
    void los_generales_se_recuerdan();
    void sin_generales_se_dice_detras();
    void cada_fila_tiene_su_prueba();

    void bruto_las_opciones_de_cada_familia();
    void bruto_escribe_y_se_esconde_data();
    void bruto_escribe_y_se_esconde();
    void bruto_pregunta_antes_de_reemplazar();
    void bruto_sin_nombre_y_cancelado();
    void bruto_los_fallos();

private:
    void Elegir(const QString& nombre, int indice = 1)
    {
        banco->interfaz.ficheros.push_back(Fichero_Elegido{nombre, indice});
    }
    /// Exports a session by its pattern. @return the boxes shown
    QStringList Exportar(const Sesion_Elegida& sesion, const QString& patron)
    {
        Elegir(banco->Ruta("salida"), int(Patrones_Brutos(sesion).indexOf(patron)) + 1);
        Exportar_Fichero_Bruto(sesion);
        return banco->Avisos();
    }
    std::unique_ptr<Banco_Bruto> banco;
};

void TestModFBruto::el_dialogo_por_familia_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QString>("filtro");
    QTest::newRow("KRT300") << "KRT300"
                            << "Forma HD6|*.hd6|Forma LIN|*.txt";
    QTest::newRow("PX7") << "PX7"
                         << "Forma HD6|*.hd6|Forma LIN|*.txt|Formato en Bruto (*.*)|*.*";
    QTest::newRow("NV400") << "NV400"
                           << "Forma IGN|*.txt|Forma NIV|*.dat|Formato en Bruto (*.*)|*.*";
    QTest::newRow("KRT800") << "KRT800"
                            << "Forma HD6|*.hd6|Forma PLT|*.plt|Forma CTM|*.ctm|Forma TOP|*.top|"
                               "Forma TPC|*.tpc|Forma ANG|*.ang|Forma LEA|*.lea|Forma OTR|*.otr|"
                               "Formato en Bruto (*.*)|*.*";
}

void TestModFBruto::el_dialogo_por_familia()
{
    QFETCH(QString, maquina);
    QFETCH(QString, filtro);
    banco->interfaz.ficheros.push_back(std::nullopt);
    Exportar_Fichero_Bruto(banco->Guardar(maquina, 0, QStringList{"h1"}));
    const Peticion_Fichero& p = banco->interfaz.peticiones.value(0);
    QCOMPARE(p.titulo, QString("Exportar Datos de Medición a Fichero"));
    QCOMPARE(p.filtro, filtro);
    QCOMPARE(p.carpeta, Ruta_Aplicacion);
    QVERIFY(!p.guardar);
}

void TestModFBruto::una_operacion_sin_tipos_ofrece_el_bruto()
{
    Base_Datos->Execute("UPDATE KRT2 SET Conv = ''");
    QCOMPARE(Patrones_Brutos(banco->Guardar("NV400", 0, QStringList{"g"})), QStringList{"*.*"});
    QCOMPARE(Patrones_Brutos(banco->Guardar("KRT300", 0, QStringList{"h"})), QStringList{});
}

void TestModFBruto::una_operacion_sin_fila_acaba_el_programa()
{
    Exportar_Fichero_Bruto(banco->Guardar("NV400", 4, QStringList{"g"}));
    QCOMPARE(banco->Avisos(), QStringList{"No hay extensiones definidas para esta operación"});
    QCOMPARE(banco->interfaz.terminado, QList<int>{1});
    QVERIFY(banco->interfaz.peticiones.isEmpty());
}

void TestModFBruto::insiste_hasta_que_hay_nombre()
{
    Elegir("");
    Elegir("");
    QCOMPARE(Exportar(banco->Guardar("KRT300", 0, QStringList{"h1"}), "*.hd6"),
             QStringList{"Exportación a Fichero Finalizada"});
    QCOMPARE(banco->interfaz.peticiones.size(), 3);
}

void TestModFBruto::cancelar_calla()
{
    banco->interfaz.ficheros.push_back(std::nullopt);
    Exportar_Fichero_Bruto(banco->Guardar("KRT300", 0, QStringList{"h1"}));
    QCOMPARE(banco->Avisos(), QStringList{});
}

void TestModFBruto::cada_rama_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("patron");
    QTest::addColumn<QStringList>("lineas");
    QTest::addColumn<QByteArray>("salida");
    QTest::addColumn<QString>("cierre");
    const QString fin = "Exportación a Fichero Finalizada";
    const QStringList b{"STN E,1.5", "SS 1,1.3,C", "SD 1,2,3"};
    const QByteArray tal_cual("STN E,1.5\r\nSS 1,1.3,C\r\nSD 1,2,3\r\n");
    QTest::newRow("KRT300 hd6") << "KRT300" << 0 << "*.hd6" << QStringList{"h1", "v2"}
                                << QByteArray("_h1_v2_\r\n") << fin;
    QTest::newRow("KRT300 txt") << "KRT300" << 0 << "*.txt" << QStringList{"h1", "v2"}
                                << QByteArray("h1\r\nv2\r\n") << fin;
    QTest::newRow("PX7 hd6") << "PX7" << 0 << "*.hd6" << QStringList{"h1"} << QByteArray("_h1_\r\n")
                             << fin;
    QTest::newRow("PX7 bruto") << "PX7" << 0 << "*.*" << QStringList{"h1"} << QByteArray("h1\r\n")
                               << fin;
    QTest::newRow("KRT800 hd6") << "KRT800" << 0 << "*.hd6" << b << tal_cual << fin;
    QTest::newRow("KRT800 bruto") << "KRT800" << 0 << "*.*" << b << tal_cual << fin;
    QTest::newRow("KRT800 top") << "KRT800" << 0 << "*.top" << b
                                << QByteArray("E 1 1.0000 2.0000 3.000 1.3 1.5\r\n")
                                << "Exportación a Formato Bronex finalizada";
    QTest::newRow("KRT800 tpc") << "KRT800" << 0 << "*.tpc" << b
                                << QByteArray(
                                       "         E          1     1.0000     2.0000      3.000"
                                       "      1.3      1.5 C\r\n")
                                << "Exportación a Formato BronexCOD finalizada";
    QTest::newRow("KRT800 ang") << "KRT800" << 0 << "*.ang" << b
                                << QByteArray("1 1.0000 2.0000 3.000 1.3 C\r\n")
                                << "Exportación a Formato Angulos y Distancias finalizada";
    QTest::newRow("KRT800 lea") << "KRT800" << 0 << "*.lea" << QStringList{"STN E,1.5"}
                                << QByteArray(
                                       "S     E          1.5      0.0000     0.000     0.000\r\n")
                                << "Exportación a Formato Desplazamientos en Bruto Finalizada";
    QTest::newRow("KRT800 ter") << "KRT800" << 7 << "*.ter" << QStringList{"5,1,2"}
                                << QByteArray("*TER\r\n        5,       1,  0  ,  0\r\n"
                                              "        1,         2\r\n")
                                << "Exportación a Fichero CLIP finalizada";
    QTest::newRow("NV400 dat") << "NV400" << 0 << "*.dat" << QStringList{"g,03,1,", ""}
                               << QByteArray("g,03,1,\r\n\r\n") << fin;
    QTest::newRow("NV400 bruto") << "NV400" << 0 << "*.*" << QStringList{"g,03,1,"}
                                 << QByteArray("g,03,1,\r\n") << fin;
}

void TestModFBruto::cada_rama()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, patron);
    QFETCH(QStringList, lineas);
    QFETCH(QByteArray, salida);
    QFETCH(QString, cierre);
    QCOMPARE(Exportar(banco->Guardar(maquina, ope, lineas), patron), QStringList{cierre});
    QCOMPARE(banco->Leer("salida"), salida);
    QVERIFY(!QFileInfo::exists(Temporal_Bruto()));
}

void TestModFBruto::plt_prepara_y_ctm_recoge()
{
    const auto sesion = banco->Guardar("KRT800", 0, QStringList{"JOB A", "SS 1,1,C", "SD 1,2,3"});
    QCOMPARE(Exportar(sesion, "*.ctm").size(), 2);
    banco->Escribir("Miraldos.$$$", "lo de otro día");
    QCOMPARE(Exportar(sesion, "*.plt"), QStringList{"Exportación a Fichero PLT finalizada"});
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida")));
    QCOMPARE(banco->Leer("Miraldos.$$$"), QByteArray("JOB A\r\nSS 1,1,C\r\nSD 1,2,3\r\n"));
    QVERIFY(!banco->aviso.isEmpty());
    QCOMPARE(Exportar(sesion, "*.ctm"), QStringList{"Exportación a Fichero CVT finalizada"});
    QCOMPARE(banco->Leer("salida"), QByteArray("0,A\r\n2,1,1,2,3,1,C\r\n"));
    QVERIFY(!QFileInfo::exists(Temporal_Bruto()));
    // An empty session prepares nothing, and nothing of before it.
    banco->Escribir("Miraldos.$$$", "JOB DE ANTES\r\n");
    Exportar(banco->Guardar("KRT800", 0, QStringList{}), "*.plt");
    QVERIFY(!QFileInfo::exists(Temporal_Bruto()));
    QCOMPARE(Exportar(sesion, "*.ctm").size(), 2);
}

void TestModFBruto::ter_no_recoge_lo_de_otro_dia()
{
    banco->Escribir("Miraldos.$$$", "lo de otro día");
    QCOMPARE(Exportar(banco->Guardar("KRT800", 7, QStringList{}), "*.ter"),
             QStringList{"Exportación a Fichero CLIP finalizada"});
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida")));
    Elegir(banco->Ruta("no hay/salida"), 1);
    Exportar_Fichero_Bruto(banco->Guardar("KRT800", 7, QStringList{"5,1,2"}));
    QVERIFY(
        banco->Avisos().value(0).startsWith("Se produjo un error al exportar un Fichero\r(76) "));
}

void TestModFBruto::el_resto_entrega_el_temporal()
{
    const auto sesion = banco->Guardar("KRT800", 0, QStringList{"h1"});
    banco->Escribir("salida", "lo de antes");
    const QStringList sin_nada = Exportar(sesion, "*.otr");
    QCOMPARE(sin_nada.size(), 1);
    QVERIFY(sin_nada[0].startsWith("Se produjo un error al exportar un Fichero\r(53) "));
    QCOMPARE(banco->Leer("salida"), QByteArray("lo de antes"));
    banco->Escribir("Miraldos.$$$", "preparado");
    Elegir(Temporal_Bruto(), int(Patrones_Brutos(sesion).indexOf("*.otr")) + 1);
    Exportar_Fichero_Bruto(sesion);
    QVERIFY(banco->Avisos().value(0).contains("(70) "));
    QCOMPARE(Exportar(sesion, "*.otr"), QStringList{"Exportación a Fichero finalizada"});
    QCOMPARE(banco->Leer("salida"), QByteArray("preparado"));
    QVERIFY(!QFileInfo::exists(Temporal_Bruto()));
}

void TestModFBruto::las_disposiciones_retiran_el_temporal()
{
    const auto sesion = banco->Guardar("KRT800", 0, QStringList{"SS 1,1,C", "SD 1,2,3"});
    for (const char* patron : {"*.top", "*.tpc", "*.ang", "*.lea"}) {
        banco->Escribir("Miraldos.$$$", "lo de otro día");
        QCOMPARE(Exportar(sesion, patron).size(), 1);
        QVERIFY(!QFileInfo::exists(Temporal_Bruto()));
    }
    for (const char* patron : {"*.hd6", "*.*"}) {
        banco->Escribir("Miraldos.$$$", "lo de otro día");
        QCOMPARE(Exportar(sesion, patron).size(), 1);
        QVERIFY(QFileInfo::exists(Temporal_Bruto()));
    }
}

void TestModFBruto::el_nivel_pide_sus_cinco_datos()
{
    QFile libreta(DATOS_PRUEBA "/conversions/nivel.lin");
    QVERIFY(libreta.open(QIODevice::ReadOnly));
    QFile libro(DATOS_PRUEBA "/conversions/nivel_ign.txt");
    QVERIFY(libro.open(QIODevice::ReadOnly));
    QString texto = Ansi::A_Texto(libreta.readAll());
    QStringList lineas = texto.remove(u'\r').split(u'\n');
    lineas.removeLast();
    const auto sesion = banco->Guardar("NV400", 0, lineas);
    banco->Escribir("temp.$$$", "lo de otro día");
    QCOMPARE(Exportar(sesion, "*.txt"), QStringList{}); // closed without accepting
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida")));
    banco->datos_ign = QStringList{"S1", "M1", "M2", "OP", "EM"};
    const QStringList avisos = Exportar(sesion, "*.txt");
    QCOMPARE(avisos.last(), QString("Exportación a Fichero Finalizada"));
    const QByteArray salida = banco->Leer("salida");
    for (const char* dato : {"INSTRUMENTO: S1\r\n", "MIRA 1: M1\r\n", "MIRA 2: M2\r\n",
                             "OPERADOR: OP\r\n", "EMPRESA: EM\r\n"})
        QVERIFY(salida.contains(dato));
    // Behind the heading the book is the one that the converter's sample has.
    const QByteArray esperado = libro.readAll();
    QCOMPARE(salida.mid(salida.indexOf("EST ")), esperado.mid(esperado.indexOf("EST ")));
    QVERIFY(QFileInfo::exists(banco->Ruta("temp.$$$")));

    const auto vacia = banco->Guardar("NV400", 0, QStringList{});
    QCOMPARE(Exportar(vacia, "*.txt").value(0), QString("Formato no soportado"));
    QVERIFY(!QFileInfo::exists(banco->Ruta("temp.$$$")));
}

void TestModFBruto::los_generales_se_recuerdan()
{
    QVERIFY(!Incluir_Generales());
    Poner_Incluir_Generales(true);
    QVERIFY(Incluir_Generales());
    const auto sesion = banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"", "h1", "EE1"}});
    Exportar(sesion, "*.hd6");
    QCOMPARE(banco->Leer("salida"), QByteArray("_EE1_h1_\r\n"));
    QVERIFY(banco->aviso.isEmpty());
    Poner_Incluir_Generales(false);
    Exportar(sesion, "*.hd6");
    QCOMPARE(banco->Leer("salida"), QByteArray("_h1_\r\n"));
}

void TestModFBruto::sin_generales_se_dice_detras()
{
    QString al_cerrar = "no box";
    banco->interfaz.al_avisar = [&](const Interfaz_Guion::Aviso&) { al_cerrar = banco->aviso; };
    Exportar(banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"", "h1", "EE1"}}), "*.hd6");
    QCOMPARE(al_cerrar, QString());
    QCOMPARE(banco->aviso, QString("El fichero no incluye los registros generales: Clase E (1)"));
    Exportar(banco->Guardar("KRT300", 0, QStringList{"h1"}), "*.hd6");
    QVERIFY(banco->aviso.isEmpty());
    banco->interfaz.al_avisar = {};
}

// The rows of `cada_rama` and the tests around it reach every way out.
void TestModFBruto::cada_fila_tiene_su_prueba()
{
    QStringList filas;
    for (const Salida_Bruta& s : Salidas_Brutas())
        filas << QString::number(int(s.serie)) + s.patron;
    const QString a = QString::number(int(Serie::A)), b = QString::number(int(Serie::B)),
                  n = QString::number(int(Serie::Nivel));
    QCOMPARE(filas, (QStringList{a + "*.hd6", a, b + "*.ctm", b + "*.top", b + "*.ang", b + "*.plt",
                                 b + "*.hd6", b + "*.*", b + "*.lea", b + "*.ter", b + "*.tpc", b,
                                 n + "*.txt", n}));
    QVERIFY(!Salida_Bruta_De(Familia_De(u"OTRA"), "*.hd6"));
}

void TestModFBruto::bruto_las_opciones_de_cada_familia()
{
    const auto activas = [](const Dialogo_Bruto& d) {
        QStringList claves;
        for (const ::Familia& f : Familias())
            if (d.segunda(f)) claves << f.clave;
        return claves;
    };
    QCOMPARE(activas(Dialogo_FrmExpBruto()), (QStringList{"KRT300", "KRT800", "PX7"}));
    QCOMPARE(activas(Dialogo_FrmExpBrut()), QStringList{"KRT300"});
}

void TestModFBruto::bruto_escribe_y_se_esconde_data()
{
    QTest::addColumn<bool>("disco");
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("opcion");
    QTest::addColumn<QByteArray>("salida");
    for (const bool disco : {false, true}) {
        const QByteArray d = disco ? "disco " : "bruto ";
        QTest::newRow((d + "KRT300 primera").constData())
            << disco << "KRT300" << 0 << QByteArray("_h1_\r\n");
        QTest::newRow((d + "KRT300 segunda").constData())
            << disco << "KRT300" << 1 << QByteArray("h1\r\n");
        QTest::newRow((d + "PX7 primera").constData())
            << disco << "PX7" << 0 << QByteArray("_h1_\r\n");
        QTest::newRow((d + "KRT800 segunda").constData())
            << disco << "KRT800" << 1 << QByteArray("h1\r\n");
        QTest::newRow((d + "NV400").constData()) << disco << "NV400" << 0 << QByteArray("h1\r\n");
    }
}

void TestModFBruto::bruto_escribe_y_se_esconde()
{
    QFETCH(bool, disco);
    QFETCH(QString, maquina);
    QFETCH(int, opcion);
    QFETCH(QByteArray, salida);
    Elegir(banco->Ruta("salida"));
    bool escondido = false;
    const Dialogo_Bruto& dialogo = disco ? Dialogo_FrmExpBrut() : Dialogo_FrmExpBruto();
    Exportar_En_Bruto(dialogo, banco->Guardar(maquina, 0, QStringList{"h1"}), opcion, false,
                      [&] { escondido = true; });
    const Peticion_Fichero& p = banco->interfaz.peticiones.value(0);
    QCOMPARE(p.titulo, QString("Introduzca el nombre del Fichero a Exportar"));
    QCOMPARE(p.filtro, disco
                           ? QString("Todos los archivos (*.*)|*.*|Archivos de texto (*.txt)|*.txt|"
                                     "Archivos hd6 (*.hd6)|*.hd6")
                           : QString("Todos los archivos (*.*)|*.*|"
                                     "Archivos Formato Bruto (*.HD6)|*.HD6"));
    QCOMPARE(p.indice_filtro, 2);
    QCOMPARE(p.carpeta, Ruta_Aplicacion);
    QVERIFY(p.guardar);
    QCOMPARE(banco->Avisos(), QStringList{"Exportación a Fichero en Bruto Finalizada"});
    QVERIFY(escondido);
    QCOMPARE(banco->interfaz.pasos, 1);
    QCOMPARE(banco->Leer("salida"), salida);
}

void TestModFBruto::bruto_pregunta_antes_de_reemplazar()
{
    const QString pregunta = "El Fichero existe, ¿ Desea Reemplazarlo ?";
    const QString fin = "Exportación a Fichero en Bruto Finalizada";
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    banco->Escribir("salida", "lo de antes");
    Elegir(banco->Ruta("salida"));
    Elegir(banco->Ruta("otra"));
    banco->interfaz.respuestas = {false};
    Exportar_En_Bruto(Dialogo_FrmExpBruto(), sesion, 1, false, [] {});
    QCOMPARE(banco->Avisos(), (QStringList{pregunta, fin}));
    QCOMPARE(banco->Leer("salida"), QByteArray("lo de antes"));
    QCOMPARE(banco->Leer("otra"), QByteArray("h1\r\n"));
    Elegir(banco->Ruta("salida"));
    banco->interfaz.respuestas = {true};
    Exportar_En_Bruto(Dialogo_FrmExpBruto(), sesion, 1, false, [] {});
    QCOMPARE(banco->Avisos(), (QStringList{pregunta, fin}));
    QCOMPARE(banco->Leer("salida"), QByteArray("h1\r\n"));
    // Of an empty session nothing is left under the name.
    Elegir(banco->Ruta("salida"));
    banco->interfaz.respuestas = {true};
    Exportar_En_Bruto(Dialogo_FrmExpBruto(), banco->Guardar("KRT300", 0, QStringList{}), 1, false,
                      [] {});
    QCOMPARE(banco->Avisos(), (QStringList{pregunta, fin}));
    QVERIFY(!QFileInfo::exists(banco->Ruta("salida")));
}

void TestModFBruto::bruto_sin_nombre_y_cancelado()
{
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    for (const bool disco : {false, true}) {
        const Dialogo_Bruto& dialogo = disco ? Dialogo_FrmExpBrut() : Dialogo_FrmExpBruto();
        int escondido = 0;
        banco->interfaz.ficheros.push_back(std::nullopt);
        Exportar_En_Bruto(dialogo, sesion, 0, false, [&] { ++escondido; });
        QCOMPARE(banco->Avisos(), QStringList{});
        QCOMPARE(escondido, 0);
        Elegir("");
        Exportar_En_Bruto(dialogo, sesion, 0, false, [&] { ++escondido; });
        QCOMPARE(banco->Avisos(),
                 disco ? QStringList{"Exportación a Fichero en Bruto Finalizada"} : QStringList{});
        QCOMPARE(escondido, 1);
    }
}

void TestModFBruto::bruto_los_fallos()
{
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    Elegir(banco->Ruta("no hay/salida"));
    Exportar_En_Bruto(Dialogo_FrmExpBruto(), sesion, 0, false, [] {});
    QStringList avisos = banco->Avisos();
    QCOMPARE(avisos.size(), 1);
    QVERIFY(avisos[0].startsWith("Se produjo un error al exportar el Fichero en Bruto\r(76) "));
    Elegir(Fichero_MDB);
    banco->interfaz.respuestas = {true};
    Exportar_En_Bruto(Dialogo_FrmExpBruto(), sesion, 0, false, [] {});
    avisos = banco->Avisos();
    QVERIFY(
        avisos.value(1).startsWith("Se produjo un error al exportar el fichero en bruto\r(70) "));
    QVERIFY(QFileInfo::exists(Fichero_MDB));
}

PRUEBA(TestModFBruto)
#include "TestModFBruto.moc"
