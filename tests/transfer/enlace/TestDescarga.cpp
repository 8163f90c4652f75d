#include "core/ModEstTotal.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"
#include "core/Sumas.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Puertos.h"
#include "transfer/enlace/Rescate.h"

#include <QSignalSpy>

// The conversation of a download, with a port in memory and the ticks by hand.
class TestDescarga : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void iniciar_sondea_salvo_en_krt800_data();
    void iniciar_sondea_salvo_en_krt800();
    void los_bytes_esperan_hasta_iniciar();
    void el_decimo_tic_avisa_una_vez();
    void los_intentos_no_se_borran_entre_transferencias();
    void tras_el_primer_byte_no_hay_plazo();
    void el_rayo_avanza_cada_46_sucesos();
    void eot_solo_no_guarda_nada();
    void una_descarga_entera_guarda_y_salta();
    void las_operaciones_sin_sesion_no_saltan();
    void un_puerto_abierto_se_reutiliza();
    void el_fallo_al_abrir_se_dice();
    void el_ajuste_del_puerto_es_el_texto_clasico();
    void solo_cuenta_la_ultima_cifra_del_puerto_data();
    void solo_cuenta_la_ultima_cifra_del_puerto();
    void guardar_la_configuracion_cierra_el_puerto();
    void la_familia_es_la_del_comienzo();
    void el_puerto_perdido_se_dice_en_la_etiqueta();
    void abandonada_deja_el_diario();
    void el_aviso_detiene_tics_y_bytes();
    void nivel_espera_y_sondea_con_nak();
    void nada_queda_de_la_transferencia_anterior_data();
    void nada_queda_de_la_transferencia_anterior();
    void leer_un_diario_no_toca_la_descarga_data();
    void leer_un_diario_no_toca_la_descarga();
    void el_rescate_entero_tampoco();
    void lo_que_falta_conserva_y_se_dice_data();
    void lo_que_falta_conserva_y_se_dice();
    void un_fallo_al_guardar_se_dice_data();
    void un_fallo_al_guardar_se_dice();
    void lo_aceptado_esta_escrito_antes_de_contestar();
    void sin_carpeta_se_avisa_antes_y_se_ofrece_otra();
    void sin_carpeta_y_completa_no_se_pregunta();
    void si_no_se_elige_carpeta_va_a_la_temporal();
    void la_configuracion_a_medias_acaba_y_se_dice();
    void lo_que_llega_con_el_aviso_puesto_no_se_pierde();
    void un_puerto_que_no_envia_se_dice();
    void lo_guardado_se_comprueba();
    void sin_permiso_de_otra_no_empieza();

private:
    void Nueva(const QString& clave = "KRT300");
    static QByteArray Trama(const QByteArray& datos, char secuencia = '0');
    QStringList Diarios() const;

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Descarga> descarga;
    Puerto_Memoria* puerto = nullptr;
};

void TestDescarga::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Puerto = "COM1";
    Velocidad = "9600";
    Paridad = "None";
    Bits_Datos = "8";
    Bits_Parada = "1";
    Base_Datos->Execute("INSERT INTO OPE (OPE, DESOPE) VALUES (0, 'Datos')");
    Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) VALUES "
                        "('KRT300', 0, 'A', 'Medida', 'M')");
    Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) VALUES "
                        "('KRT300', 0, 'E', 'Estación', 'G')");
}

void TestDescarga::cleanup()
{
    descarga.reset();
    interfaz.reset();
    base.reset();
}

void TestDescarga::Nueva(const QString& clave)
{
    Clave_Estacion = clave;
    Nombre_Estacion = "Modelo";
    auto p = std::make_unique<Puerto_Memoria>();
    puerto = p.get();
    descarga = std::make_unique<Descarga>(std::move(p));
    QVERIFY(descarga->Abrir_Puerto());
    descarga->Preparar(0, "Obra");
}

QByteArray TestDescarga::Trama(const QByteArray& datos, char secuencia)
{
    const QByteArray interior = datos + secuencia;
    int suma = 0;
    for (const char c : interior)
        suma ^= static_cast<unsigned char>(c);
    return "\x02" + interior + QByteArray::number(suma).rightJustified(3, '0') + "\x03";
}

QStringList TestDescarga::Diarios() const
{
    return QDir(En_Instalacion("LOG")).entryList({"*.dia"}, QDir::Files);
}

void TestDescarga::iniciar_sondea_salvo_en_krt800_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QByteArray>("al_iniciar");
    QTest::addColumn<QByteArray>("al_tic");
    QTest::newRow("KRT300") << "KRT300" << QByteArray("\x05") << QByteArray("\x05");
    QTest::newRow("PX7") << "PX7" << QByteArray("\x05") << QByteArray("\x05");
    QTest::newRow("KRT800") << "KRT800" << QByteArray() << QByteArray();
    QTest::newRow("NV400") << "NV400" << QByteArray("\x05") << QByteArray("\x15,!,\r\n");
}

void TestDescarga::iniciar_sondea_salvo_en_krt800()
{
    QFETCH(QString, clave);
    QFETCH(QByteArray, al_iniciar);
    QFETCH(QByteArray, al_tic);
    Nueva(clave);
    descarga->BtnIniciar();
    QVERIFY(!descarga->Iniciar_Habilitado());
    QCOMPARE(descarga->Etiqueta(), QString("Esperando Datos..."));
    QCOMPARE(puerto->Tomar(), al_iniciar);
    descarga->Tic();
    QCOMPARE(puerto->Tomar(), al_tic);
    QCOMPARE(descarga->Intentos(), 1);
}

void TestDescarga::los_bytes_esperan_hasta_iniciar()
{
    Nueva();
    QCOMPARE(descarga->Etiqueta(), QString("Pulse [&Iniciar] para comenzar la comunicación..."));
    puerto->Llegan(Trama("_A1"));
    QCOMPARE(puerto->Pendientes(), Trama("_A1").size());
    QCOMPARE(descarga->Recibido(), QString());
    descarga->BtnIniciar();
    QTRY_COMPARE(descarga->Recibido(), QString("_A1"));
    QCOMPARE(puerto->Tomar(), QByteArray("\x05\x06"));
}

void TestDescarga::el_decimo_tic_avisa_una_vez()
{
    Nueva();
    QSignalSpy cerrar(descarga.get(), &Descarga::cerrar);
    descarga->BtnIniciar();
    for (int i = 0; i < 9; ++i)
        descarga->Tic();
    QVERIFY(interfaz->avisos.isEmpty());
    descarga->Tic();
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(
        interfaz->avisos[0].texto,
        QString("Error de comunicación ,compruebe que el cable esta bien conectado a su PC \r\n y "
                "que la configuración de Comunicaciones es correcta"));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Exclamacion);
    QCOMPARE(cerrar.size(), 1);
    QCOMPARE(descarga->Intentos(), 1);
    QVERIFY(!puerto->Abierto());
    QVERIFY(!descarga->En_Marcha());
    QCOMPARE(Diarios(), QStringList());
}

void TestDescarga::los_intentos_no_se_borran_entre_transferencias()
{
    Nueva();
    descarga->BtnIniciar();
    for (int i = 0; i < 8; ++i)
        descarga->Tic();
    puerto->Llegan("\x04");
    QCOMPARE(descarga->Intentos(), 8);
    QVERIFY(descarga->Abrir_Puerto());
    descarga->BtnIniciar();
    descarga->Tic();
    descarga->Tic();
    QCOMPARE(interfaz->avisos.size(), 1);
}

void TestDescarga::tras_el_primer_byte_no_hay_plazo()
{
    Reloj_Rapido rapido(500);
    Poner_Reloj(&rapido);
    Nueva();
    descarga->BtnIniciar();
    puerto->Llegan("x");
    QTest::qWait(60); // sixty intervals of the fast clock
    QCOMPARE(descarga->Intentos(), 0);
    QCOMPARE(descarga->Etiqueta(), QString("Recibiendo datos ..."));
    QVERIFY(descarga->Rayo_Visible());
}

void TestDescarga::el_rayo_avanza_cada_46_sucesos()
{
    Nueva();
    QSignalSpy movido(descarga.get(), &Descarga::rayo_movido);
    descarga->BtnIniciar();
    puerto->Llegan(QByteArray(45, 'x'));
    QCOMPARE(movido.size(), 0);
    puerto->Llegan("x");
    QCOMPARE(movido.size(), 1);
    QCOMPARE(movido.last().first().toInt(), 1);
    puerto->Llegan(QByteArray(46 * 6, 'x'));
    QCOMPARE(movido.size(), 7);
    QCOMPARE(movido.last().first().toInt(), 0);
}

void TestDescarga::eot_solo_no_guarda_nada()
{
    Nueva();
    QSignalSpy terminada(descarga.get(), &Descarga::terminada);
    QSignalSpy ocultar(descarga.get(), &Descarga::ocultar);
    descarga->BtnIniciar();
    puerto->Tomar();
    puerto->Llegan("\x04");
    QCOMPARE(puerto->enviado, QByteArray("\x06"));
    QCOMPARE(terminada.size(), 1);
    QCOMPARE(ocultar.size(), 0);
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
    QVERIFY(interfaz->avisos.isEmpty());
    QCOMPARE(Diarios(), QStringList());
}

void TestDescarga::una_descarga_entera_guarda_y_salta()
{
    Nueva();
    QSignalSpy ocultar(descarga.get(), &Descarga::ocultar);
    QSignalSpy mostrar(descarga.get(), &Descarga::mostrar_sesiones);
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_Eest1_+P1_A11_+P2_A22"));
    QVERIFY(descarga->En_Marcha());
    puerto->Llegan("\x04");
    QCOMPARE(ocultar.size(), 1);
    QCOMPARE(mostrar.size(), 1);
    QVERIFY(!puerto->Abierto());
    QCOMPARE(descarga->Etiqueta(), QString("Pulse &Iniciar para empezar la descarga"));
    QVERIFY(!descarga->Rayo_Visible());
    QCOMPARE(descarga->Resultado().sesiones, QStringList{"1"});
    QVERIFY(descarga->Resultado().Completa());
    QCOMPARE(Diarios(), QStringList());

    Conjunto_Registros s = Base_Datos->OpenRecordset("Sesiones");
    QCOMPARE(s.Texto("NFichero"), QString("Obra"));
    QCOMPARE(s.Texto("Maquina"), QString("KRT300"));
    QCOMPARE(s.Texto("MaqDes"), QString("Modelo"));
    QCOMPARE(s.Entero("NPuntos"), 2);
    Conjunto_Registros r = Base_Datos->OpenRecordset("SELECT * FROM Registros ORDER BY Secuencia");
    QCOMPARE(r.RecordCount(), 2);
    QCOMPARE(r.Texto("Datos"), QString("A11"));
    QCOMPARE(r.Texto("DatosG"), QString("Eest1"));
    QVERIFY(interfaz->avisos.isEmpty());
    QCOMPARE(interfaz->procesos_abiertos, 0);
}

void TestDescarga::las_operaciones_sin_sesion_no_saltan()
{
    Nueva();
    descarga->Preparar(2, "Obra");
    QSignalSpy mostrar(descarga.get(), &Descarga::mostrar_sesiones);
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_:001ARBOL") + "\x04");
    QCOMPARE(mostrar.size(), 0);
    QCOMPARE(Diarios().size(), 1); // nothing was stored, so the bytes stay
}

void TestDescarga::un_puerto_abierto_se_reutiliza()
{
    Nueva();
    Puerto = "COM7";
    QVERIFY(descarga->Abrir_Puerto());
    QCOMPARE(puerto->aperturas, 1);
    QCOMPARE(puerto->numero, 1);
}

void TestDescarga::el_fallo_al_abrir_se_dice()
{
    Nueva();
    descarga->Cerrar_Puerto();
    puerto->error_al_abrir = 8005;
    QVERIFY(!descarga->Abrir_Puerto());
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(interfaz->avisos[0].texto,
             "Se produjo un error al Abrir el Puerto; revise la configuración\r(8005) " +
                 Descripcion_Error(8005));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
}

void TestDescarga::el_ajuste_del_puerto_es_el_texto_clasico()
{
    Paridad = "Even";
    Velocidad = "1200";
    Bits_Datos = "7";
    Bits_Parada = "2";
    Nueva();
    QCOMPARE(puerto->ajustes, QString("1200,E,7,2"));
}

void TestDescarga::solo_cuenta_la_ultima_cifra_del_puerto_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("numero");
    QTest::newRow("COM1") << "COM1" << 1;
    QTest::newRow("COM9") << "COM9" << 9;
    QTest::newRow("COM10") << "COM10" << 0;
    QTest::newRow("COM11") << "COM11" << 1;
    QTest::newRow("COM12") << "COM12" << 2;
    QTest::newRow("vacio") << "" << 0;
}

void TestDescarga::solo_cuenta_la_ultima_cifra_del_puerto()
{
    QFETCH(QString, texto);
    QFETCH(int, numero);
    QCOMPARE(Numero_Puerto(texto), numero);
    Puerto = texto;
    Nueva();
    QCOMPARE(puerto->numero, numero);
}

void TestDescarga::guardar_la_configuracion_cierra_el_puerto()
{
    Nueva();
    Q_EMIT Sucesos::Unico().ajustes_guardados();
    QVERIFY(!puerto->Abierto());
}

void TestDescarga::la_familia_es_la_del_comienzo()
{
    Nueva();
    descarga->BtnIniciar();
    Clave_Estacion = "KRT800";
    Nombre_Estacion = "Otro";
    puerto->Llegan(Trama("_+P1_A11") + "\x04");
    Conjunto_Registros s = Base_Datos->OpenRecordset("Sesiones");
    QCOMPARE(s.Texto("Maquina"), QString("KRT300"));
    QCOMPARE(s.Texto("MaqDes"), QString("Modelo"));
    QCOMPARE(Base_Datos->OpenRecordset("Registros").RecordCount(), 1);
}

void TestDescarga::el_puerto_perdido_se_dice_en_la_etiqueta()
{
    Nueva();
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_+P1_A11"));
    Q_EMIT puerto->perdido("Se ha perdido el puerto");
    QCOMPARE(descarga->Etiqueta(), QString("Se ha perdido el puerto"));
    QVERIFY(descarga->En_Marcha());
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestDescarga::abandonada_deja_el_diario()
{
    Nueva();
    descarga->BtnIniciar();
    const QByteArray bytes = Trama("_+P1_A11") + "\x02_A2";
    puerto->Llegan(bytes);
    descarga->Abandonar();
    QVERIFY(!puerto->Abierto());
    const QList<Rescate> quedan = Rescates();
    QCOMPARE(quedan.size(), 1);
    QCOMPARE(quedan[0].maquina, QString("KRT300"));
    QCOMPARE(quedan[0].operacion, 0);
    QCOMPARE(quedan[0].bytes, bytes.size());
    QFile f(quedan[0].fichero);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.readAll(), bytes);
}

void TestDescarga::el_aviso_detiene_tics_y_bytes()
{
    Nueva();
    descarga->BtnIniciar();
    for (int i = 0; i < 9; ++i)
        descarga->Tic();
    interfaz->al_avisar = [&](const Interfaz_Guion::Aviso&) {
        descarga->Tic();
        puerto->Llegan("\x02");
        QCOMPARE(puerto->Pendientes(), 1);
    };
    puerto->Tomar();
    descarga->Tic();
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(puerto->Tomar(), QByteArray("\x05"));
    QVERIFY(!descarga->Rayo_Visible()); // the byte was not even looked at
}

void TestDescarga::nivel_espera_y_sondea_con_nak()
{
    Clave_Estacion = "NV400";
    Nueva("NV400");
    QCOMPARE(descarga->Etiqueta(), QString("Esperando Datos..."));
    QVERIFY(descarga->Iniciar_Habilitado());
}

// A transfer abandoned inside a frame or line leaves nothing to the next of the same dialog.
void TestDescarga::nada_queda_de_la_transferencia_anterior_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QByteArray>("cortada");
    QTest::addColumn<QByteArray>("entera");
    QTest::addColumn<QStringList>("filas");
    const auto linea = [](const QByteArray& carga) {
        return carga + Suma_Nivel(QString::fromLatin1(carga)).toLatin1() + ",\r\n";
    };
    QTest::newRow("KRT300") << "KRT300" << Trama("_+P1_A11") + "\x02_A2"
                            << Trama("_+P2_A22") + "\x04" << QStringList{"A22"};
    QTest::newRow("KRT800") << "KRT800" << QByteArray("JOB 1\r\nSS") << QByteArray("JOB 2\r\n\x04")
                            << QStringList{"JOB 2"};
    QTest::newRow("NV400") << "NV400" << linea("g,1,") + "h" << linea("i,2,") + "Z,&,\r\n"
                           << QStringList{QString::fromLatin1(linea("i,2,")).chopped(2)};
}

void TestDescarga::nada_queda_de_la_transferencia_anterior()
{
    QFETCH(QString, clave);
    QFETCH(QByteArray, cortada);
    QFETCH(QByteArray, entera);
    QFETCH(QStringList, filas);
    Nueva(clave);
    descarga->BtnIniciar();
    puerto->Llegan(cortada);
    descarga->Abandonar();
    QCOMPARE(descarga->Recibido(), QString());
    QVERIFY(descarga->Abrir_Puerto());
    descarga->Preparar(0, "Otra");
    descarga->BtnIniciar();
    puerto->Llegan(entera);
    QCOMPARE(base->Columna("SELECT Datos FROM Registros"), filas);
}

void TestDescarga::leer_un_diario_no_toca_la_descarga_data()
{
    QTest::addColumn<QString>("clave");
    for (const QString& clave : Claves_Familias())
        QTest::newRow(qPrintable(clave)) << clave;
}

// A journal of any family is read between two bytes of a frame.
void TestDescarga::leer_un_diario_no_toca_la_descarga()
{
    QFETCH(QString, clave);
    QFile diario(En_Instalacion("otro.dia"));
    QVERIFY(diario.open(QIODevice::WriteOnly));
    diario.write(Trama("_+PX_A99_A98") + "\x02_A9");
    diario.close();
    Nueva();
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_+P1_A11_A12") + "\x02_+P2");
    const QString antes = descarga->Recibido();
    QCOMPARE(antes, QString("_+P1_A11_A12"));
    Leer_Diario(diario.fileName(), clave);
    QCOMPARE(descarga->Recibido(), antes);
    puerto->Llegan(Trama("_+P2_A22").mid(5) + "\x04");
    QCOMPARE(base->Columna("SELECT Datos FROM Registros ORDER BY Secuencia"),
             (QStringList{"A11", "A12", "A22"}));
}

void TestDescarga::el_rescate_entero_tampoco()
{
    QFile diario(En_Instalacion("otro.dia"));
    QVERIFY(diario.open(QIODevice::WriteOnly));
    diario.write(Trama("_+PX_A99_A98"));
    diario.close();
    Nueva();
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_+P1_A11_A1") + "\x02_A1");
    const Resultado_Recepcion r =
        Rescatar(diario.fileName(), {QString(), "Rescatada", 0, 0, "KRT300", "Modelo"});
    QCOMPARE(r.sesiones, QStringList{"1"});
    QCOMPARE(descarga->Recibido(), QString("_+P1_A11_A1"));
    puerto->Llegan(Trama("_A12").mid(4) + "\x04");
    QCOMPARE(descarga->Resultado().sesiones, QStringList{"2"});
    QCOMPARE(base->Columna("SELECT Datos FROM Registros WHERE ID = 2 ORDER BY Secuencia"),
             (QStringList{"A11", "A1", "A12"}));
}

void TestDescarga::lo_que_falta_conserva_y_se_dice_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("falta"); // empty: complete
    QTest::addColumn<int>("filas");
    const auto linea = [](const QByteArray& carga) {
        return carga + Suma_Nivel(QString::fromLatin1(carga)).toLatin1() + ",\r\n";
    };
    const QByteArray mala = "\x02_A33"
                            "1999\x03",
                     eot = "\x04";
    const QByteArray a = Trama("_+P1_A11"), b = Trama("_A22", '1'), c = Trama("_A33", '2');
    QTest::newRow("KRT300 entero") << "KRT300" << 0 << a + b + eot << "" << 2;
    QTest::newRow("KRT300 EOT en una trama")
        << "KRT300" << 0 << a + b.chopped(3) + eot << "1 trama sin terminar" << 1;
    QTest::newRow("KRT300 no repetida")
        << "KRT300" << 0 << a + mala + c + eot << "1 trama rechazada y no repetida" << 2;
    QTest::newRow("KRT300 repetida") << "KRT300" << 0 << a + mala + b + eot << "" << 2;
    QTest::newRow("KRT300 sólo rechazadas")
        << "KRT300" << 0 << mala + eot << "1 trama rechazada y no repetida" << 0;
    QTest::newRow("KRT300 otra operación")
        << "KRT300" << 1 << a + b + eot
        << "2 registros desconocidos, 1 registro sin ninguna medición detrás" << 0;
    QTest::newRow("KRT300 largo") << "KRT300" << 0 << Trama("_A" + QByteArray(300, '1')) + eot
                                  << "1 registro cortado al ancho de su columna" << 1;
    QTest::newRow("PX7 EOT en una trama")
        << "PX7" << 0 << Trama("_B1") + "\x02" + eot << "1 trama sin terminar" << 1;
    QTest::newRow("KRT800 entero") << "KRT800" << 0 << "JOB 1\r\nSS 1,2\r\n" + eot << "" << 2;
    QTest::newRow("KRT800 sólo LF") << "KRT800" << 0 << "JOB 1\nSS 1,2\n" + eot
                                    << "13 bytes detrás del último fin de línea" << 0;
    QTest::newRow("KRT800 sólo CR") << "KRT800" << 0 << "JOB 1\rSS 1,2\r" + eot
                                    << "13 bytes detrás del último fin de línea" << 0;
    QTest::newRow("KRT800 sin el último fin") << "KRT800" << 0 << "JOB 1\r\nSS 1,2" + eot
                                              << "6 bytes detrás del último fin de línea" << 1;
    QTest::newRow("NV400 entero") << "NV400" << 0 << linea("g,1,") + "Z,&,\r\n"
                                  << "" << 1;
    QTest::newRow("NV400 no repetida") << "NV400" << 0 << linea("g,1,") + "i,2,#,\r\nZ,&,\r\n"
                                       << "1 línea rechazada y no repetida" << 1;
    QTest::newRow("NV400 todas rechazadas") << "NV400" << 0 << QByteArray("i,2,#,\r\nZ,&,\r\n")
                                            << "1 línea rechazada y no repetida" << 0;
}

void TestDescarga::lo_que_falta_conserva_y_se_dice()
{
    QFETCH(QString, clave);
    QFETCH(int, ope);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, falta);
    QFETCH(int, filas);
    Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) VALUES "
                        "('PX7', 0, 'B', '', 'M')");
    Nueva(clave);
    descarga->Preparar(ope, "Obra");
    QSignalSpy ocultar(descarga.get(), &Descarga::ocultar);
    QSignalSpy reclamada(descarga.get(), &Descarga::reclamada);
    descarga->BtnIniciar();
    puerto->Llegan(bytes);
    QVERIFY(!descarga->En_Marcha());
    QCOMPARE(base->Columna("SELECT Datos FROM Registros").size(), filas);
    QCOMPARE(descarga->Resultado().Completa(), falta.isEmpty());
    if (falta.isEmpty()) {
        QCOMPARE(Diarios(), QStringList());
        QCOMPARE(ocultar.size(), 1);
        return;
    }
    QCOMPARE(descarga->Etiqueta(), falta + "; lo recibido se conserva");
    QCOMPARE(ocultar.size(), 0);
    QCOMPARE(Diarios().size(), 1);
    QCOMPARE(base->Leer("LOG/" + Diarios()[0]), bytes);
    // The box of a file without points is the program's own; no other comes.
    for (const auto& aviso : interfaz->avisos)
        QVERIFY2(aviso.texto.startsWith("El Fichero no"), qPrintable(aviso.texto));
    QCOMPARE(reclamada.size(), filas > 0 || ope == 1 || clave == u"KRT800" ? 1 : 0);
}

void TestDescarga::un_fallo_al_guardar_se_dice_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("KRT300") << "KRT300" << Trama("_+P1_A11") + "\x04";
    QTest::newRow("KRT800") << "KRT800" << QByteArray("JOB 1\r\n\x04");
    QTest::newRow("NV400") << "NV400"
                           << QByteArray("g,1,") + Suma_Nivel(u"g,1,").toLatin1() +
                                  QByteArray(",\r\nZ,&,\r\n");
}

void TestDescarga::un_fallo_al_guardar_se_dice()
{
    QFETCH(QString, clave);
    QFETCH(QByteArray, bytes);
    base->Fila("Sesiones", {{"ID", 32767}, {"OPE", 0}, {"Maquina", "PX7"}});
    Nueva(clave);
    descarga->BtnIniciar();
    puerto->Llegan(bytes);
    // The level's lines were counted before the session was refused.
    const QString faltan = Familia_De(clave).serie == Serie::Nivel ? ": 1 línea sin sesión" : "";
    QCOMPARE(descarga->Etiqueta(),
             "La descarga no se ha guardado" + faltan + "; lo recibido se conserva");
    QCOMPARE(interfaz->avisos.last().texto,
             "No se ha podido guardar la descarga; lo recibido se conserva\r(6) " +
                 Descripcion_Error(6));
    QCOMPARE(interfaz->avisos.last().icono, Icono::Critico);
    QVERIFY(!interfaz->Textos().contains("El Fichero no contenía Puntos"));
    QCOMPARE(Diarios().size(), 1);
    QCOMPARE(base->Columna("SELECT ID FROM Sesiones"), QStringList{"32767"});
}

// What the instrument hears to be received stands in a file at that moment.
void TestDescarga::lo_aceptado_esta_escrito_antes_de_contestar()
{
    class Puerto_Que_Mira : public Puerto_Memoria {
    public:
        void Enviar(const QByteArray& bytes) override
        {
            if (bytes[0] == '\x06') escrito << al_contestar();
            Puerto_Memoria::Enviar(bytes);
        }
        std::function<QByteArray()> al_contestar;
        QByteArrayList escrito;
    };
    Nueva();
    auto p = std::make_unique<Puerto_Que_Mira>();
    Puerto_Que_Mira& mira = *p;
    mira.al_contestar = [this] {
        return Diarios().isEmpty() ? QByteArray() : base->Leer("LOG/" + Diarios()[0]);
    };
    descarga = std::make_unique<Descarga>(std::move(p));
    QVERIFY(descarga->Abrir_Puerto());
    descarga->Preparar(0, "Obra");
    descarga->BtnIniciar();
    const QByteArray uno = Trama("_+P1_A11"), dos = Trama("_A22", '1');
    mira.Llegan(uno + dos);
    QCOMPARE(mira.escrito, (QByteArrayList{uno, uno + dos}));
}

void TestDescarga::sin_carpeta_se_avisa_antes_y_se_ofrece_otra()
{
    QDir(En_Instalacion("LOG")).removeRecursively();
    base->Escribir("LOG", "a file where the folder should be");
    QVERIFY(QDir().mkpath(base->Ruta("otra")));
    Nueva();
    descarga->BtnIniciar();
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->avisos[0].texto.startsWith("No se puede escribir en la carpeta LOG ("));
    QCOMPARE(puerto->Tomar(), QByteArray("\x05"));
    const QByteArray bytes = Trama("_+P1_A11") + "\x02_A2";
    puerto->Llegan(bytes);
    QVERIFY2(descarga->Etiqueta().startsWith(
                 "Recibiendo datos ... No se puede escribir lo recibido, que queda en memoria: "),
             qPrintable(descarga->Etiqueta()));
    interfaz->ficheros = {Fichero_Elegido{base->Ruta("otra/lo que sea.dia"), 1}};
    puerto->Llegan("\x04");
    QCOMPARE(interfaz->peticiones.size(), 1);
    QVERIFY(interfaz->peticiones[0].guardar);
    const QStringList otros = QDir(base->Ruta("otra")).entryList(QDir::Files);
    QCOMPARE(otros.size(), 1);
    QCOMPARE(base->Leer("otra/" + otros[0]), bytes + "\x04");
    QCOMPARE(descarga->Conservado(), base->Ruta("otra/" + otros[0]));
    QCOMPARE(descarga->Etiqueta(), QString("1 trama sin terminar; lo recibido se conserva"));
    QCOMPARE(interfaz->avisos.last().texto,
             "Lo recibido se ha guardado en " + base->Ruta("otra/" + otros[0]));
}

void TestDescarga::sin_carpeta_y_completa_no_se_pregunta()
{
    QDir(En_Instalacion("LOG")).removeRecursively();
    base->Escribir("LOG", "a file where the folder should be");
    Nueva();
    descarga->BtnIniciar();
    interfaz->avisos.clear();
    puerto->Llegan(Trama("_+P1_A11") + "\x04");
    QVERIFY(descarga->Resultado().Completa());
    QVERIFY(interfaz->peticiones.isEmpty() && interfaz->avisos.isEmpty());
}

void TestDescarga::si_no_se_elige_carpeta_va_a_la_temporal()
{
    QDir(En_Instalacion("LOG")).removeRecursively();
    base->Escribir("LOG", "a file where the folder should be");
    Nueva();
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_+P1_A11"));
    interfaz->ficheros = {std::nullopt};
    descarga->Abandonar();
    const QString f = descarga->Conservado();
    QVERIFY(f.startsWith(QDir::tempPath()));
    QFile fichero(f);
    QVERIFY(fichero.open(QIODevice::ReadOnly));
    QCOMPARE(fichero.readAll(), Trama("_+P1_A11"));
    QVERIFY(interfaz->avisos.last().texto.contains(f));
    QVERIFY(fichero.remove());
}

void TestDescarga::la_configuracion_a_medias_acaba_y_se_dice()
{
    Nueva();
    descarga->BtnIniciar();
    puerto->Llegan(Trama("_+P1_A11"));
    Q_EMIT Sucesos::Unico().ajustes_guardados();
    QVERIFY(!descarga->En_Marcha() && !puerto->Abierto());
    QVERIFY2(descarga->Etiqueta().startsWith(
                 "La configuración ha cambiado y la transferencia se ha interrumpido: "),
             qPrintable(descarga->Etiqueta()));
    QVERIFY(descarga->Etiqueta().endsWith("; lo recibido se conserva"));
    QCOMPARE(Diarios().size(), 1);
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestDescarga::lo_que_llega_con_el_aviso_puesto_no_se_pierde()
{
    Nueva("KRT800");
    QSignalSpy cerrar(descarga.get(), &Descarga::cerrar);
    descarga->BtnIniciar();
    for (int i = 0; i < 9; ++i)
        descarga->Tic();
    interfaz->al_avisar = [&](const Interfaz_Guion::Aviso&) { puerto->Llegan("JOB 1\r\nSS"); };
    descarga->Tic();
    QCOMPARE(interfaz->avisos.size(), 1);
    QTRY_COMPARE(descarga->Recibido(), QString("JOB 1\r\nSS"));
    QCOMPARE(cerrar.size(), 0);
    QVERIFY(descarga->En_Marcha() && puerto->Abierto());
    puerto->Llegan(" 1,2\r\n\x04");
    QVERIFY(descarga->Resultado().Completa());
    QCOMPARE(base->Columna("SELECT Datos FROM Registros"), (QStringList{"JOB 1", "SS 1,2"}));
}

void TestDescarga::un_puerto_que_no_envia_se_dice()
{
    Nueva();
    puerto->falla_tras = 0;
    descarga->BtnIniciar();
    QCOMPARE(descarga->Etiqueta(), QString("No se puede enviar por el puerto; compruebe el cable"));
    QVERIFY(interfaz->avisos.isEmpty());
}

// What the compaction wrote is not what was stored: nothing is called stored.
void TestDescarga::lo_guardado_se_comprueba()
{
    Nueva();
    descarga->BtnIniciar();
    connect(&Sucesos::Unico(), &Sucesos::base_reabierta, puerto,
            [] { Base_Datos->Execute("DELETE FROM Registros WHERE Secuencia = 2"); });
    puerto->Llegan(Trama("_+P1_A11_A12") + "\x04");
    QVERIFY(!descarga->Resultado().Completa());
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->avisos[0].texto.startsWith(
        "No se ha podido guardar la descarga; lo recibido se conserva\r(3343) "));
    QCOMPARE(Diarios().size(), 1);
}

void TestDescarga::sin_permiso_de_otra_no_empieza()
{
    Nueva();
    descarga->BtnIniciar();
    auto p = std::make_unique<Puerto_Memoria>();
    Puerto_Memoria& otro = *p;
    Descarga segunda(std::move(p));
    QSignalSpy reclamada(descarga.get(), &Descarga::reclamada);
    segunda.Preparar(0, "Segunda");
    segunda.BtnIniciar();
    QCOMPARE(interfaz->pitidos, 1);
    QCOMPARE(reclamada.size(), 1);
    QVERIFY(!segunda.En_Marcha() && segunda.Iniciar_Habilitado());
    QCOMPARE(otro.enviado, QByteArray());
    descarga->Abandonar();
    QVERIFY(segunda.Abrir_Puerto());
    segunda.BtnIniciar();
    QVERIFY(segunda.En_Marcha());
    QCOMPARE(otro.enviado, QByteArray("\x05"));
}

PRUEBA(TestDescarga)
#include "TestDescarga.moc"
