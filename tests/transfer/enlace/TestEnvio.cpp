#include "core/ModEstTotal.h"
#include "core/Reloj.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Envio.h"
#include "transfer/krt300/Tramas_KRT300.h"

#include <QElapsedTimer>
#include <QSignalSpy>

// The conversation of an upload, with a port in memory and a fast clock.
class TestEnvio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void unos_puntos_de_principio_a_fin();
    void una_libreria_va_sin_cabecera();
    void lo_que_esperaba_en_el_puerto_no_cuenta();
    void sin_puerto_se_cierra_el_dialogo();
    void el_boton_no_empieza_dos_veces();
    void los_rechazos_acaban_sin_aviso();
    void tras_los_rechazos_se_puede_volver_a_empezar();
    void cinco_silencios_avisan_y_cierran();
    void un_byte_vuelve_a_dar_plazo();
    void la_serie_b_va_de_un_tiron();
    void la_serie_b_guarda_su_ritmo();
    void un_fallo_al_enviar_se_dice();
    void la_traza_de_los_puntos();
    void la_traza_de_la_serie_b();
    void la_traza_de_lo_abandonado();
    void sin_casilla_no_hay_traza();
    void una_traza_que_falla_avisa_y_se_sigue();
    void cerrar_a_medias_pregunta_data();
    void cerrar_a_medias_pregunta();
    void mientras_se_pregunta_se_espera();
    void cerrar_en_la_espera_no_manda_mas();
    void el_rayo_da_un_paso_por_byte();
    void nunca_dos_en_un_puerto();
    void otro_dialogo_con_el_puerto_se_muestra();
    void la_familia_es_la_del_principio();

private:
    void Hacer(const QString& maquina);
    void Empezar(int tipo, const QString& datos);
    QByteArray Log() const;

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Reloj_Rapido> reloj;
    std::unique_ptr<Envio> envio;
    Puerto_Memoria* puerto = nullptr;
    QStringList etiquetas;
};

namespace {
const QByteArray APERTURA = "\2F00F000\3\r\n", CIERRE = "\2\4\3\r\n";
const QByteArray BLOQUE_EN_BLANCO = '\2' + QByteArray(128, ' ') + "0048\3\r\n";
const QString LA_PREGUNTA = "La transferencia no ha terminado, ¿ Desea abandonarla ?";
} // namespace

void TestEnvio::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    reloj = std::make_unique<Reloj_Rapido>(1000, QDateTime({2024, 5, 13}, {18, 2, 5}));
    Poner_Reloj(reloj.get());
    Puerto = "COM3";
    Velocidad = "9600";
    Paridad = "None";
    Bits_Datos = "8";
    Bits_Parada = "1";
    Hacer("KRT300");
}

void TestEnvio::cleanup()
{
    envio.reset();
    Poner_Reloj(nullptr);
    interfaz.reset();
    base.reset();
    QVERIFY(!Transferencia_En_Curso());
}

void TestEnvio::Hacer(const QString& maquina)
{
    Clave_Estacion = maquina;
    auto p = std::make_unique<Puerto_Memoria>();
    puerto = p.get();
    envio = std::make_unique<Envio>(std::move(p));
    etiquetas.clear();
    connect(envio.get(), &Envio::etiqueta_cambiada, this,
            [this](const QString& texto) { etiquetas << texto; });
}

void TestEnvio::Empezar(int tipo, const QString& datos)
{
    envio->Preparar(tipo == ENVIO_COORDENADAS ? Tramas_KRT300::Cabecera() : QString(), datos);
    envio->Inicia_Envio(tipo);
    envio->BtnIniciar();
}

QByteArray TestEnvio::Log() const
{
    const QStringList hay = QDir(base->Ruta("LOG")).entryList({"KRT*.LOG"}, QDir::Files);
    return hay.size() == 1 ? base->Leer("LOG/" + hay[0]) : QByteArray::number(hay.size());
}

void TestEnvio::unos_puntos_de_principio_a_fin()
{
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    QSignalSpy terminada(envio.get(), &Conversacion::terminada);
    QSignalSpy barra(envio.get(), &Envio::barra_cambiada);
    envio->Preparar(Tramas_KRT300::Cabecera(), QString(130, 'a'));
    envio->Inicia_Envio(ENVIO_COORDENADAS);
    QCOMPARE(etiquetas, QStringList{"Pulse &Iniciar para comenzar la comunicación ..."});
    QVERIFY(!puerto->Abierto());
    envio->BtnIniciar();
    QVERIFY(puerto->Abierto());
    QCOMPARE(puerto->numero, 3);
    QCOMPARE(puerto->ajustes, QString("9600,N,8,1"));
    QVERIFY(!envio->Iniciar_Habilitado());
    QVERIFY(envio->En_Marcha());
    QCOMPARE(puerto->Tomar(), APERTURA);
    puerto->Llegan("\6");
    QCOMPARE(puerto->Tomar(), Tramas_KRT300::Cabecera().toLatin1());
    puerto->Llegan("\6");
    QCOMPARE(puerto->Tomar(), '\2' + QByteArray(128, 'a') + "0048\3\r\n");
    QVERIFY(envio->Rayo_Visible());
    puerto->Llegan("\6");
    QCOMPARE(puerto->Tomar(), "\2aa" + QByteArray(126, ' ') + "1049\3\r\n");
    QVERIFY(cerrar.isEmpty());
    puerto->Llegan("\6");
    QCOMPARE(puerto->Tomar(), CIERRE);
    QVERIFY(!puerto->Abierto());
    QCOMPARE(cerrar.size(), 1);
    QCOMPARE(terminada.size(), 1);
    QVERIFY(envio->Resultado().hecho);
    QVERIFY2(envio->Resultado().resumen.startsWith(
                 "Bloques enviados: 2 de 2; rechazos: 0; repeticiones: 0; segundos: 0,"),
             qPrintable(envio->Resultado().resumen));
    QCOMPARE(etiquetas.mid(1), QStringList({"Abriendo comunicación", "Inicio de Envío",
                                            "Enviando Datos...", "Envio Finalizado"}));
    QStringList valores;
    for (const auto& b : barra)
        valores << b[0].toString() + '/' + b[1].toString();
    QCOMPARE(valores, QStringList({"0/2", "0/2", "1/2", "2/2"}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestEnvio::una_libreria_va_sin_cabecera()
{
    Empezar(ENVIO_LIBRERIA, {});
    QCOMPARE(puerto->Tomar(), BLOQUE_EN_BLANCO);
    puerto->Llegan("\6");
    QCOMPARE(puerto->Tomar(), CIERRE);
    QVERIFY(envio->Resultado().hecho);
}

void TestEnvio::lo_que_esperaba_en_el_puerto_no_cuenta()
{
    puerto->recibido = "\6\6\25";
    Empezar(ENVIO_COORDENADAS, {});
    QCoreApplication::processEvents();
    QCOMPARE(puerto->Tomar(), APERTURA);
}

void TestEnvio::sin_puerto_se_cierra_el_dialogo()
{
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    puerto->error_al_abrir = 8005;
    Empezar(ENVIO_COORDENADAS, {});
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->avisos[0].texto.startsWith(
        "Se produjo un error al Abrir el Puerto; revise la configuración\r(8005) "));
    QCOMPARE(cerrar.size(), 1);
    QVERIFY(!envio->En_Marcha());
    QVERIFY(puerto->Tomar().isEmpty());
    QVERIFY(!envio->Resultado().hecho);
}

void TestEnvio::el_boton_no_empieza_dos_veces()
{
    Empezar(ENVIO_COORDENADAS, {});
    puerto->Llegan("\6");
    puerto->Tomar();
    envio->BtnIniciar();
    QVERIFY(puerto->Tomar().isEmpty());
}

void TestEnvio::los_rechazos_acaban_sin_aviso()
{
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    QSignalSpy terminada(envio.get(), &Conversacion::terminada);
    Empezar(ENVIO_LIBRERIA, {});
    puerto->Tomar();
    for (int i = 0; i < 5; ++i) {
        puerto->Llegan("\25");
        QCOMPARE(puerto->Tomar(), BLOQUE_EN_BLANCO);
    }
    puerto->Llegan("\25");
    QVERIFY(puerto->Tomar().isEmpty());
    QVERIFY(interfaz->avisos.isEmpty());
    QVERIFY(cerrar.isEmpty());
    QCOMPARE(terminada.size(), 1);
    QCOMPARE(envio->Etiqueta(), QString("El aparato rechaza el bloque 1; no se enviará nada más"));
    QVERIFY(!envio->Resultado().hecho);
    QVERIFY(envio->Resultado().resumen.contains("rechazos: 6; repeticiones: 5"));
    puerto->Llegan("\6");
    QTest::qWait(60);
    QVERIFY(puerto->Tomar().isEmpty());
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestEnvio::tras_los_rechazos_se_puede_volver_a_empezar()
{
    Empezar(ENVIO_LIBRERIA, {});
    puerto->Llegan("\25\25\25\25\25\25");
    puerto->Tomar();
    QVERIFY(envio->Iniciar_Habilitado());
    envio->BtnIniciar();
    QCOMPARE(puerto->Tomar(), BLOQUE_EN_BLANCO);
    puerto->Llegan("\6");
    QVERIFY(envio->Resultado().hecho);
}

void TestEnvio::cinco_silencios_avisan_y_cierran()
{
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    int al_avisar = 0;
    interfaz->al_avisar = [&](const Interfaz_Guion::Aviso&) {
        ++al_avisar;
        // While the box stands, bytes and ticks wait.
        puerto->Llegan("\6");
        envio->Tic();
        QCOMPARE(puerto->Tomar(), QByteArray());
    };
    Empezar(ENVIO_COORDENADAS, {});
    QCOMPARE(puerto->Tomar(), APERTURA);
    QTRY_COMPARE_WITH_TIMEOUT(cerrar.size(), 1, 5000);
    QCOMPARE(al_avisar, 1);
    QCOMPARE(puerto->Tomar(), QByteArray());
    QCOMPARE(interfaz->Textos(),
             QStringList{"Se superó el tiempo de espera de comunicación, la transferencia se "
                         "abortará\rQuizá hay algún problema en el cable o \rel instrumento no "
                         "está preparado para la transmisión"});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Exclamacion);
    QVERIFY(!puerto->Abierto());
    QVERIFY(!envio->En_Marcha());
}

// Each byte, whatever it is, gives the whole time anew.
void TestEnvio::un_byte_vuelve_a_dar_plazo()
{
    Reloj_Rapido lento(50);
    Poner_Reloj(&lento);
    Empezar(ENVIO_COORDENADAS, {});
    for (int i = 0; i < 20; ++i) {
        QTest::qWait(60); // of 200
        puerto->Llegan("x");
    }
    QVERIFY(interfaz->avisos.isEmpty());
    QVERIFY(envio->En_Marcha());
    Poner_Reloj(reloj.get());
}

void TestEnvio::la_serie_b_va_de_un_tiron()
{
    Hacer("KRT800");
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    QSignalSpy barra(envio.get(), &Envio::barra_cambiada);
    Empezar(4, "P1,1.000,2.000,3.000,A\r\n");
    QCOMPARE(puerto->Tomar(), QByteArray("P1,1.000,2.000,3.000,A\r\n\4"));
    QCOMPARE(cerrar.size(), 1);
    QVERIFY(!puerto->Abierto());
    QVERIFY(envio->Resultado().hecho);
    QCOMPARE(barra.last()[0].toInt(), 24);
    QCOMPARE(barra.last()[1].toInt(), 24);
    QCOMPARE(etiquetas.mid(1), QStringList({"Abriendo comunicación", "Enviando datos"}));
    QTest::qWait(60);
    QVERIFY(interfaz->avisos.isEmpty());
}

// On a true clock: no character sooner than 25 ms behind the one before.
void TestEnvio::la_serie_b_guarda_su_ritmo()
{
    Hacer("KRT800");
    Poner_Reloj(nullptr);
    QList<qint64> cuando;
    QElapsedTimer desde;
    desde.start();
    QTimer mira;
    qsizetype vistos = 0;
    connect(&mira, &QTimer::timeout, this, [&] {
        if (puerto->enviado.size() > vistos) cuando << desde.elapsed();
        vistos = puerto->enviado.size();
    });
    mira.setTimerType(Qt::PreciseTimer);
    mira.start(1);
    Empezar(4, QString(40, 'a'));
    QVERIFY2(desde.elapsed() >= 1000, qPrintable(QString::number(desde.elapsed())));
    // The window lived meanwhile: the timer saw the characters come one by one.
    QVERIFY(cuando.size() > 20);
    Poner_Reloj(reloj.get());
}

void TestEnvio::un_fallo_al_enviar_se_dice()
{
    Hacer("KRT800");
    puerto->falla_tras = 3;
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    Empezar(4, "abcdef");
    QCOMPARE(puerto->Tomar(), QByteArray("abc"));
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(
        interfaz->avisos[0].texto.startsWith("Se produjo un error en la comunicación\r(8021) "));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    QVERIFY(cerrar.isEmpty());
    QVERIFY(!envio->En_Marcha());
    QVERIFY(!envio->Resultado().hecho);
    // Series A hears it as silence.
    Hacer("KRT300");
    puerto->falla_tras = 0;
    Empezar(ENVIO_COORDENADAS, {});
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(envio->En_Marcha());
}

void TestEnvio::la_traza_de_los_puntos()
{
    envio->Poner_Seguimiento(true);
    Empezar(ENVIO_COORDENADAS, {});
    puerto->Llegan("\6\25\6\6");
    QVERIFY(envio->Resultado().hecho);
    QVERIFY(QFile::exists(base->Ruta("LOG/KRT300_130524_1802.LOG")));
    const QByteArray cabecera = Tramas_KRT300::Cabecera().toLatin1();
    QByteArray traza = Log();
    const QByteArray fijo = "\r\n" + APERTURA + "\r\n" + cabecera + "\r\n" + cabecera + "\r\n" +
                            BLOQUE_EN_BLANCO + "\r\n" + CIERRE + "\r\n";
    QCOMPARE(traza.left(fijo.size()), fijo);
    QVERIFY2(
        traza.mid(fijo.size())
            .startsWith("Bloques enviados: 1 de 1; rechazos: 1; repeticiones: 1; segundos: 0,"),
        traza.constData());
    QVERIFY(traza.endsWith("\r\n"));
}

void TestEnvio::la_traza_de_la_serie_b()
{
    Hacer("KRT800");
    envio->Poner_Seguimiento(true);
    Empezar(4, "P1,1,2,3,\r\n");
    QVERIFY(QFile::exists(base->Ruta("LOG/KRT800_130524_1802.LOG")));
    QVERIFY2(
        Log().startsWith("\r\nP1,1,2,3,\r\n\r\n\4\r\nCaracteres enviados: 11 de 11; segundos: 0,"),
        Log().constData());
}

void TestEnvio::la_traza_de_lo_abandonado()
{
    Hacer("KRT800");
    envio->Poner_Seguimiento(true);
    connect(envio.get(), &Envio::barra_cambiada, this, [this](qint64 valor) {
        if (valor == 3) QTimer::singleShot(0, this, [this] { envio->Abandonar(); });
    });
    Poner_Reloj(nullptr);
    Empezar(4, "abcdef");
    Poner_Reloj(reloj.get());
    QCOMPARE(puerto->Tomar(), QByteArray("abc"));
    QVERIFY(!puerto->Abierto());
    QVERIFY2(Log().startsWith("\r\nabc\r\nCaracteres enviados: 3 de 6; segundos: 0,"),
             Log().constData());
}

void TestEnvio::sin_casilla_no_hay_traza()
{
    Empezar(ENVIO_COORDENADAS, {});
    puerto->Llegan("\6\6\6");
    QVERIFY(envio->Resultado().hecho);
    QCOMPARE(Log(), QByteArray("0"));
}

void TestEnvio::una_traza_que_falla_avisa_y_se_sigue()
{
    QDir(base->Ruta("LOG")).removeRecursively();
    base->Escribir("LOG", "no es una carpeta");
    envio->Poner_Seguimiento(true);
    Empezar(ENVIO_COORDENADAS, {});
    QCOMPARE(puerto->Tomar(), APERTURA);
    QCOMPARE(interfaz->avisos.size(), 2);
    QVERIFY(interfaz->avisos[0].texto.startsWith(
        "Proceso Miraldos ABORTADO - No se puede crear el Fichero LOG - "));
    puerto->Llegan("\6\6\6");
    QVERIFY(envio->Resultado().hecho);
    // A line, a box: the frames and what closes the trace.
    QCOMPARE(interfaz->avisos.size(), 6);
}

void TestEnvio::cerrar_a_medias_pregunta_data()
{
    QTest::addColumn<bool>("si");
    QTest::newRow("si") << true;
    QTest::newRow("no") << false;
}

void TestEnvio::cerrar_a_medias_pregunta()
{
    QFETCH(bool, si);
    QVERIFY(envio->Confirmar_Cierre());
    Empezar(ENVIO_COORDENADAS, {});
    interfaz->respuestas = {si};
    QCOMPARE(envio->Confirmar_Cierre(), si);
    QCOMPARE(interfaz->Textos(), QStringList{LA_PREGUNTA});
    puerto->Llegan("\6\6\6");
    QVERIFY(envio->Resultado().hecho);
    QVERIFY(envio->Confirmar_Cierre());
    QCOMPARE(interfaz->avisos.size(), 1);
}

void TestEnvio::mientras_se_pregunta_se_espera()
{
    Empezar(ENVIO_COORDENADAS, {});
    puerto->Tomar();
    interfaz->respuestas = {false};
    interfaz->al_avisar = [this](const Interfaz_Guion::Aviso&) {
        puerto->Llegan("\6");
        QCOMPARE(puerto->Tomar(), QByteArray());
        for (int i = 0; i < 10; ++i)
            envio->Tic();
        QVERIFY(!envio->Confirmar_Cierre()); // it is being asked already
    };
    QVERIFY(!envio->Confirmar_Cierre());
    QTRY_COMPARE(puerto->enviado, Tramas_KRT300::Cabecera().toLatin1());
    QVERIFY(envio->En_Marcha());
    QCOMPARE(interfaz->avisos.size(), 1);
    interfaz->al_avisar = {};
}

void TestEnvio::cerrar_en_la_espera_no_manda_mas()
{
    Hacer("KRT800");
    Poner_Reloj(nullptr);
    QTimer::singleShot(60, this, [this] {
        envio->Abandonar();
        envio.reset();
    });
    QElapsedTimer desde;
    desde.start();
    Empezar(4, QString(5000, 'a'));
    QVERIFY(desde.elapsed() < 5000);
    QVERIFY(!envio);
    Poner_Reloj(reloj.get());
    // In the pause behind a refusal as well.
    Hacer("KRT300");
    Empezar(ENVIO_COORDENADAS, {});
    Poner_Reloj(nullptr);
    QTimer::singleShot(0, this, [this] { envio.reset(); });
    puerto->Llegan("\25\6");
    QVERIFY(!envio);
    Poner_Reloj(reloj.get());
}

void TestEnvio::el_rayo_da_un_paso_por_byte()
{
    Empezar(ENVIO_COORDENADAS, {});
    QSignalSpy movido(envio.get(), &Conversacion::rayo_movido);
    QVERIFY(!envio->Rayo_Visible());
    puerto->Llegan("xxxxxxxx");
    QVERIFY(envio->Rayo_Visible());
    QCOMPARE(movido.size(), 8);
    QCOMPARE(movido.first()[0].toInt(), 1);
    QCOMPARE(movido.last()[0].toInt(), 1);
    // The places of the picture are this dialog's own.
    QCOMPARE(LUGARES_RAYO_ENVIO[0].izquierda, 1320);
    QCOMPARE(LUGARES_RAYO_ENVIO[6].arriba, 1070);
}

void TestEnvio::nunca_dos_en_un_puerto()
{
    auto otro = std::make_unique<Puerto_Memoria>();
    Puerto_Memoria* const el_otro = otro.get();
    Descarga descarga(std::move(otro));
    descarga.Preparar(0, "Obra");
    QVERIFY(descarga.Abrir_Puerto());
    descarga.BtnIniciar();
    el_otro->Tomar();
    QSignalSpy reclamada(&descarga, &Conversacion::reclamada);
    Empezar(ENVIO_COORDENADAS, {});
    QCOMPARE(interfaz->pitidos, 1);
    QCOMPARE(reclamada.size(), 1);
    QVERIFY(!puerto->Abierto());
    QVERIFY(puerto->Tomar().isEmpty());
    descarga.Abandonar();
    envio->BtnIniciar();
    QCOMPARE(puerto->Tomar(), APERTURA);
    // And the other way about.
    QSignalSpy del_envio(envio.get(), &Conversacion::reclamada);
    QVERIFY(!descarga.Abrir_Puerto());
    descarga.BtnIniciar();
    QVERIFY(el_otro->Tomar().isEmpty());
    QVERIFY(del_envio.size() >= 1);
    QVERIFY(!descarga.En_Marcha());
}

// A download that waits for its button holds the port as well.
void TestEnvio::otro_dialogo_con_el_puerto_se_muestra()
{
    Descarga descarga(std::make_unique<Puerto_Memoria>());
    descarga.Preparar(0, "Obra");
    QVERIFY(descarga.Abrir_Puerto());
    QSignalSpy reclamada(&descarga, &Conversacion::reclamada);
    QSignalSpy cerrar(envio.get(), &Conversacion::cerrar);
    Empezar(ENVIO_COORDENADAS, {});
    QCOMPARE(reclamada.size(), 1);
    QCOMPARE(cerrar.size(), 1);
    QCOMPARE(interfaz->pitidos, 1);
    QVERIFY(!puerto->Abierto());
    QVERIFY(!envio->En_Marcha());
    QVERIFY(interfaz->avisos.isEmpty());
    descarga.Cerrar_Puerto();
    envio->BtnIniciar();
    QVERIFY(envio->En_Marcha());
}

void TestEnvio::la_familia_es_la_del_principio()
{
    envio->Preparar(Tramas_KRT300::Cabecera(), {});
    envio->Inicia_Envio(ENVIO_COORDENADAS);
    Clave_Estacion = "KRT800";
    envio->BtnIniciar();
    QCOMPARE(puerto->Tomar(), APERTURA);
}

PRUEBA(TestEnvio)
#include "TestEnvio.moc"
