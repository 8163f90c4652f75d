#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/Despacho.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/Peticiones_Transfer.h"

// Which operation starts what, and the common order of a download.
class TestDespacho : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void las_listas_salen_de_la_base();
    void el_orden_de_una_descarga_data();
    void el_orden_de_una_descarga();
    void que_arranca_cada_operacion_data();
    void que_arranca_cada_operacion();
    void sin_nombre_no_se_abre_el_puerto();
    void el_puerto_que_falla_no_muestra_el_dialogo();
    void el_nivel_no_pide_nombre();
    void una_segunda_pita_y_muestra_la_que_corre();
    void sin_fila_termina_el_programa();
    void la_carga_desconocida_se_dice();
    void el_recordatorio_tiene_sus_cuatro_lineas();

private:
    void Fila(const QString& maquina, int ope, const QString& tipo, const QString& conv);

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Descarga> descarga;
    Puerto_Memoria* puerto = nullptr;
    Peticiones_Transfer antes;
    Peticiones_Sesion antes_sesion;
    QStringList pasos;
    QString nombre;
};

void TestDespacho::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    antes = Peticiones_De_Transfer();
    antes_sesion = Peticiones_De_Sesion();
    Peticiones_De_Sesion().Pedir_Separador = [] { return ","; };
    pasos.clear();
    nombre = "Obra";
    Puerto = "COM1";
    Ayuda_Recuerde = Ayuda_Visible = true;
    Peticiones_Transfer& p = Peticiones_De_Transfer();
    p.Ocultar_FrmIni = [this] { pasos << "ocultar"; };
    p.Mostrar_Recordatorio = [this] { pasos << "recuerde"; };
    p.Pedir_Nombre_Sesion = [this] {
        pasos << "nombre";
        return nombre;
    };
    p.Recibir_Libreria = [this](int ope) { pasos << "libreria " + QString::number(ope); };
    p.Mostrar_Pasos = [this](const QString& tipo, const QString& ope) {
        pasos << "ayuda " + tipo + ope + " paso " + QString::number(Paso_Ayuda);
    };
    p.Dialogo_Descarga = [this]() -> Descarga* {
        if (!descarga) {
            auto nuevo = std::make_unique<Puerto_Memoria>();
            puerto = nuevo.get();
            descarga = std::make_unique<Descarga>(std::move(nuevo));
            connect(descarga.get(), &Descarga::reclamada, this, [this] { pasos << "reclamada"; });
        }
        return descarga.get();
    };
    p.Mostrar_Descarga = [this] {
        pasos << (puerto->Abierto() ? "abierto, descarga" : "descarga");
    };
    for (const QString maquina : {"KRT300", "PX7", "KRT800", "NV400"})
        for (const QString tipo : {"D", "C"})
            for (int ope = 0; ope < 12; ++ope)
                Fila(maquina, ope, tipo, "");
}

void TestDespacho::cleanup()
{
    Peticiones_De_Transfer() = antes;
    Peticiones_De_Sesion() = antes_sesion;
    descarga.reset();
    puerto = nullptr;
    interfaz.reset();
    base.reset();
}

void TestDespacho::Fila(const QString& maquina, int ope, const QString& tipo, const QString& conv)
{
    Base_Datos->Execute(
        "INSERT INTO KRT2 (Nombre, OPE, TipOpe, DESOPE, Conv) VALUES (?, ?, ?, ?, ?)",
        {maquina, ope, tipo, "Operación " + QString::number(ope), conv});
}

void TestDespacho::las_listas_salen_de_la_base()
{
    Base_Datos->Execute("DELETE FROM KRT2");
    Base_Datos->Execute("INSERT INTO OPE (OPE, DESOPE) VALUES (1, 'Coordenadas')");
    Base_Datos->Execute("INSERT INTO OPE (OPE, DESOPE) VALUES (0, 'Datos brutos')");
    Fila("KRT300", 1, "D", "");
    Fila("KRT300", 0, "D", "");
    Fila("KRT300", 1, "C", "");
    Fila("PX7", 0, "D", "");
    Clave_Estacion = "KRT300";
    const auto bajadas = Operaciones_Ofrecidas("D");
    QCOMPARE(bajadas.size(), 2);
    QCOMPARE(bajadas[0].texto, QString("Coordenadas"));
    QCOMPARE(bajadas[0].ope, 1);
    QCOMPARE(bajadas[1].ope, 0);
    QCOMPARE(Operaciones_Ofrecidas("C").size(), 1);
    Clave_Estacion = "NV400";
    QVERIFY(Operaciones_Ofrecidas("D").isEmpty());
}

void TestDespacho::el_orden_de_una_descarga_data()
{
    QTest::addColumn<bool>("recuerde");
    QTest::addColumn<bool>("ayuda");
    QTest::addColumn<QStringList>("esperados");
    QTest::newRow("todo") << true << true
                          << QStringList{"ocultar", "recuerde", "nombre", "ayuda D0 paso 1",
                                         "abierto, descarga"};
    QTest::newRow("sin avisos") << false << false
                                << QStringList{"ocultar", "nombre", "abierto, descarga"};
}

void TestDespacho::el_orden_de_una_descarga()
{
    QFETCH(bool, recuerde);
    QFETCH(bool, ayuda);
    QFETCH(QStringList, esperados);
    Ayuda_Recuerde = recuerde;
    Ayuda_Visible = ayuda;
    Paso_Ayuda = 7;
    Lanzar_Operacion("KRT300", 0, "D");
    QCOMPARE(pasos, esperados);
}

void TestDespacho::que_arranca_cada_operacion_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<QString>("ayuda"); // empty: no download starts
    QTest::addColumn<int>("avisos");
    QTest::newRow("KRT300 0") << "KRT300" << 0 << "D"
                              << "ayuda D0 paso 1" << 0;
    QTest::newRow("KRT300 1") << "KRT300" << 1 << "D"
                              << "ayuda D1 paso 1" << 0;
    QTest::newRow("KRT300 11 es 1") << "KRT300" << 11 << "D"
                                    << "ayuda D1 paso 1" << 0;
    QTest::newRow("PX7 0") << "PX7" << 0 << "D"
                           << "ayuda D0 paso 1" << 0;
    QTest::newRow("KRT300 5 nada") << "KRT300" << 5 << "D"
                                   << "" << 0;
    QTest::newRow("KRT300 libreria") << "KRT300" << 2 << "D"
                                     << "libreria 2" << 0;
    // An upload asks for its file, and tells that this one isn't there and why.
    QTest::newRow("KRT300 puntos") << "KRT300" << 1 << "C"
                                   << "" << 1;
    QTest::newRow("PX7 puntos") << "PX7" << 1 << "C"
                                << "" << 1;
    QTest::newRow("KRT300 carga de libreria") << "KRT300" << 2 << "C"
                                              << "" << 1;
    QTest::newRow("KRT300 carga rara") << "KRT300" << 5 << "C"
                                       << "" << 0;
    QTest::newRow("KRT800 5") << "KRT800" << 5 << "D"
                              << "ayuda D5 paso 1" << 0;
    QTest::newRow("KRT800 libreria") << "KRT800" << 2 << "C"
                                     << "" << 1;
    QTest::newRow("KRT800 puntos") << "KRT800" << 4 << "C"
                                   << "" << 1;
    QTest::newRow("KRT800 replanteo") << "KRT800" << 9 << "C"
                                      << "" << 1;
    QTest::newRow("KRT800 alineaciones") << "KRT800" << 6 << "C"
                                         << "" << 2;
    QTest::newRow("KRT800 transversales") << "KRT800" << 7 << "C"
                                          << "" << 2;
    QTest::newRow("KRT800 rasantes") << "KRT800" << 8 << "C"
                                     << "" << 2;
    QTest::newRow("KRT800 de proyecto") << "KRT800" << 10 << "C"
                                        << "" << 2;
    QTest::newRow("NV400 0") << "NV400" << 0 << "D"
                             << "ayuda D0 paso 1" << 0;
    QTest::newRow("NV400 1 nada") << "NV400" << 1 << "D"
                                  << "" << 0;
    QTest::newRow("NV400 carga") << "NV400" << 1 << "C"
                                 << "" << 2;
    QTest::newRow("otra") << "OTRA" << 0 << "D"
                          << "" << 0;
    QTest::newRow("tipo raro") << "KRT800" << 0 << "X"
                               << "" << 0;
}

void TestDespacho::que_arranca_cada_operacion()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, tipo);
    QFETCH(QString, ayuda);
    QFETCH(int, avisos);
    Clave_Estacion = maquina;
    // An upload that there is asks for its file.
    const bool pide_fichero = tipo == u"C" && avisos > 0;
    if (pide_fichero) interfaz->ficheros = {Fichero_Elegido{base->Ruta("no.asc"), 1}};
    Lanzar_Operacion(maquina, ope, tipo);
    QCOMPARE(interfaz->peticiones.size(), qsizetype(pide_fichero));
    QCOMPARE(pasos.filter(QRegularExpression("ayuda|libreria")).join(""), ayuda);
    QCOMPARE(pasos.contains("abierto, descarga"), ayuda.startsWith("ayuda"));
    QCOMPARE(interfaz->avisos.size(), avisos);
}

void TestDespacho::sin_nombre_no_se_abre_el_puerto()
{
    nombre.clear();
    Lanzar_Operacion("KRT300", 0, "D");
    QCOMPARE(pasos, (QStringList{"ocultar", "recuerde", "nombre"}));
    QVERIFY(!descarga);
}

void TestDespacho::el_puerto_que_falla_no_muestra_el_dialogo()
{
    Peticiones_De_Transfer().Dialogo_Descarga();
    puerto->error_al_abrir = 8002;
    Lanzar_Operacion("KRT300", 0, "D");
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(pasos.last(), QString("ayuda D0 paso 1"));
}

void TestDespacho::el_nivel_no_pide_nombre()
{
    Clave_Estacion = "NV400";
    Lanzar_Operacion("NV400", 0, "D");
    QCOMPARE(pasos, (QStringList{"ocultar", "recuerde", "ayuda D0 paso 1", "abierto, descarga"}));
}

void TestDespacho::una_segunda_pita_y_muestra_la_que_corre()
{
    Lanzar_Operacion("KRT300", 0, "D");
    descarga->BtnIniciar();
    pasos.clear();
    Lanzar_Operacion("KRT300", 1, "D");
    QCOMPARE(interfaz->pitidos, 1);
    QCOMPARE(pasos, QStringList{"reclamada"});
    QVERIFY(descarga->En_Marcha());
}

void TestDespacho::sin_fila_termina_el_programa()
{
    Base_Datos->Execute("DELETE FROM KRT2");
    for (const QString maquina : {"NV400", "KRT300", "PX7", "KRT800"}) {
        interfaz->avisos.clear();
        interfaz->terminado.clear();
        Lanzar_Operacion(maquina, 1, "C");
        // That is the end: nothing of the upload comes behind it.
        QCOMPARE(interfaz->Textos(),
                 QStringList{"No hay extensiones definidas para esta operación"});
        QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
        QCOMPARE(interfaz->terminado.size(), 1);
    }
}

void TestDespacho::la_carga_desconocida_se_dice()
{
    Lanzar_Operacion("KRT800", 3, "C");
    QCOMPARE(interfaz->Textos(), QStringList{"El tipo de Carga no existe"});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
}

void TestDespacho::el_recordatorio_tiene_sus_cuatro_lineas()
{
    Puerto = "COM3";
    Velocidad = "9600";
    Bits_Datos = "8";
    Paridad = "None";
    Bits_Parada = "1";
    const Texto_Recordatorio t = Leer_Recordatorio();
    QCOMPARE(
        t.frase,
        QString("Conecte el aparato al puerto COM3 y configúrelo con los siguientes parámetros:"));
    QCOMPARE(t.datos[0], QString("Velocidad: 9600"));
    QCOMPARE(t.datos[3], QString("Bit de Parada: 1"));
}

PRUEBA(TestDespacho)
#include "TestDespacho.moc"
