#include "core/ModEstTotal.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/enlace/Conversacion.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

namespace {

// A conversation that hears bytes and does what the test wants.
class Charla : public Conversacion {
public:
    using Conversacion::Acabar;
    using Conversacion::Conversacion;
    using Conversacion::Empezar;
    using Conversacion::Enviar;
    using Conversacion::Esperar;
    using Conversacion::Mover_Rayo;
    using Conversacion::Situar_Rayo;
    ~Charla() override { Charla::Abandonar(); }

    QByteArray oido;
    std::function<void()> al_oir = [] {};

protected:
    void Evento() override
    {
        if (const auto c = El_Puerto().Leer()) oido += *c;
        al_oir();
    }
};

} // namespace

// The port half of a transfer, with a port in memory.
class TestConversacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void una_sola_transferencia_a_la_vez();
    void el_puerto_de_otra_no_se_abre();
    void cerrar_a_medias_pregunta();
    void destruida_deja_sitio();
    void abandonar_cierra_y_acaba_una_vez();
    void un_error_al_atender_calla();
    void un_envio_que_falla_calla();
    void guardar_la_configuracion_cierra_el_puerto();
    void la_perdida_se_dice_solo_en_marcha();
    void el_rayo_da_la_vuelta();
    void la_espera_dura_lo_suyo();
    void la_espera_deja_pasar_bytes();
    void la_espera_acaba_al_cerrar();
    void la_espera_acaba_al_destruir();
    void sin_transferencia_no_se_espera();

private:
    std::unique_ptr<Charla> Nueva();

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Charla> charla;
    Puerto_Memoria* puerto = nullptr;
};

void TestConversacion::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Puerto = "COM1";
    charla = Nueva();
}

void TestConversacion::cleanup()
{
    charla.reset();
    interfaz.reset();
    base.reset();
    QVERIFY(!Transferencia_En_Curso());
}

std::unique_ptr<Charla> TestConversacion::Nueva()
{
    auto p = std::make_unique<Puerto_Memoria>();
    puerto = p.get();
    auto nueva = std::make_unique<Charla>(std::move(p));
    nueva->Abrir_Puerto();
    return nueva;
}

void TestConversacion::una_sola_transferencia_a_la_vez()
{
    charla->Cerrar_Puerto();
    const auto otra = Nueva();
    QSignalSpy reclamada(charla.get(), &Conversacion::reclamada);
    QVERIFY(!Reclamar_La_En_Curso());
    QVERIFY(charla->Empezar());
    QCOMPARE(Transferencia_En_Curso(), charla.get());
    QVERIFY(!otra->Empezar());
    QVERIFY(!otra->En_Marcha());
    QCOMPARE(interfaz->pitidos, 1);
    QCOMPARE(reclamada.size(), 1);
    QVERIFY(Reclamar_La_En_Curso());
    QCOMPARE(reclamada.size(), 2);
    // What isn't its own a conversation doesn't end.
    otra->Abandonar();
    QVERIFY(charla->En_Marcha());
    charla->Acabar();
    QVERIFY(otra->Empezar());
    QCOMPARE(Transferencia_En_Curso(), otra.get());
}

// A dialog that waits for its button holds the port as well.
void TestConversacion::el_puerto_de_otra_no_se_abre()
{
    QSignalSpy reclamada(charla.get(), &Conversacion::reclamada);
    Puerto_Memoria* const el_suyo = puerto;
    const auto otra = Nueva();
    QVERIFY(!puerto->Abierto());
    QVERIFY(!otra->Abrir_Puerto());
    QCOMPARE(interfaz->pitidos, 2);
    QCOMPARE(reclamada.size(), 2);
    QVERIFY(charla->Abrir_Puerto());
    charla->Cerrar_Puerto();
    QVERIFY(otra->Abrir_Puerto());
    QVERIFY(puerto->Abierto() && !el_suyo->Abierto());
}

// Before its dialog is closed the user is asked, and what comes waits.
void TestConversacion::cerrar_a_medias_pregunta()
{
    QVERIFY(charla->Confirmar_Cierre());
    QVERIFY(charla->Empezar());
    interfaz->respuestas = {false, true};
    interfaz->al_avisar = [this](const Interfaz_Guion::Aviso&) {
        QVERIFY(!charla->Confirmar_Cierre());
    };
    QVERIFY(!charla->Confirmar_Cierre());
    QVERIFY(charla->Confirmar_Cierre());
    QCOMPARE(interfaz->Textos(),
             QStringList(2, "La transferencia no ha terminado, ¿ Desea abandonarla ?"));
    QVERIFY(charla->En_Marcha());
    interfaz->Terminar(0);
    QVERIFY(charla->Confirmar_Cierre());
}

void TestConversacion::destruida_deja_sitio()
{
    QVERIFY(charla->Empezar());
    charla.reset();
    QVERIFY(!Transferencia_En_Curso());
    charla = Nueva();
    QVERIFY(charla->Empezar());
}

void TestConversacion::abandonar_cierra_y_acaba_una_vez()
{
    QSignalSpy terminada(charla.get(), &Conversacion::terminada);
    QVERIFY(charla->Empezar());
    charla->Abandonar();
    charla->Abandonar();
    QVERIFY(!puerto->Abierto());
    QVERIFY(!charla->En_Marcha());
    QCOMPARE(terminada.size(), 1);
}

void TestConversacion::un_error_al_atender_calla()
{
    charla->al_oir = [] { throw Error_Ejecucion(999); };
    puerto->Llegan("ab");
    QCOMPARE(charla->oido, QByteArray("ab"));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestConversacion::un_envio_que_falla_calla()
{
    puerto->falla_tras = 1;
    charla->Enviar("a");
    charla->Enviar("b");
    QCOMPARE(puerto->enviado, QByteArray("a"));
    charla->Cerrar_Puerto();
    charla->Enviar("c");
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestConversacion::guardar_la_configuracion_cierra_el_puerto()
{
    Q_EMIT Sucesos::Unico().ajustes_guardados();
    QVERIFY(!puerto->Abierto());
    QCOMPARE(puerto->RThreshold, 0);
    QVERIFY(charla->Abrir_Puerto());
    QCOMPARE(puerto->RThreshold, 1);
}

void TestConversacion::la_perdida_se_dice_solo_en_marcha()
{
    Q_EMIT puerto->perdido("Perdido");
    QCOMPARE(charla->Etiqueta(), QString());
    QVERIFY(charla->Empezar());
    Q_EMIT puerto->perdido("Perdido");
    QCOMPARE(charla->Etiqueta(), QString("Perdido"));
}

void TestConversacion::el_rayo_da_la_vuelta()
{
    QSignalSpy movido(charla.get(), &Conversacion::rayo_movido);
    for (int i = 0; i < LUGARES_RAYO; ++i)
        charla->Mover_Rayo();
    QCOMPARE(movido.size(), 7);
    QCOMPARE(movido.first().first().toInt(), 1);
    QCOMPARE(movido.last().first().toInt(), 0);
    charla->Mover_Rayo();
    charla->Situar_Rayo();
    charla->Mover_Rayo();
    QCOMPARE(movido.last().first().toInt(), 1);
}

void TestConversacion::la_espera_dura_lo_suyo()
{
    QVERIFY(charla->Empezar());
    QElapsedTimer reloj;
    reloj.start();
    QVERIFY(charla->Esperar(60));
    QVERIFY(reloj.elapsed() >= 59);
    Reloj_Rapido rapido(1000);
    Reloj* const antes = Poner_Reloj(&rapido);
    reloj.start();
    const bool sigue = charla->Esperar(20000);
    Poner_Reloj(antes);
    QVERIFY(sigue);
    QVERIFY(reloj.elapsed() < 10000);
}

void TestConversacion::la_espera_deja_pasar_bytes()
{
    QVERIFY(charla->Empezar());
    QTimer::singleShot(5, this, [this] { puerto->Llegan("abc"); });
    QVERIFY(charla->Esperar(100));
    QCOMPARE(charla->oido, QByteArray("abc"));
    // Also in a handler: what comes in meanwhile is delivered behind it.
    bool primero = true;
    charla->al_oir = [&] {
        if (!std::exchange(primero, false)) return;
        QTimer::singleShot(0, this, [this] { puerto->Llegan("efg"); });
        QVERIFY(charla->Esperar(20));
        QCOMPARE(charla->oido, QByteArray("abcd"));
    };
    puerto->Llegan("d");
    QCOMPARE(charla->oido, QByteArray("abcdefg"));
}

void TestConversacion::la_espera_acaba_al_cerrar()
{
    QVERIFY(charla->Empezar());
    QTimer::singleShot(0, this, [this] { charla->Abandonar(); });
    QElapsedTimer reloj;
    reloj.start();
    QVERIFY(!charla->Esperar(30000));
    QVERIFY(reloj.elapsed() < 10000);
    QVERIFY(!charla->Esperar(30000));
    QVERIFY(reloj.elapsed() < 10000);
}

void TestConversacion::la_espera_acaba_al_destruir()
{
    QVERIFY(charla->Empezar());
    QTimer::singleShot(0, this, [this] { charla.reset(); });
    QElapsedTimer reloj;
    reloj.start();
    Charla* const fija = charla.get();
    QVERIFY(!fija->Esperar(30000));
    QVERIFY(reloj.elapsed() < 10000);
}

void TestConversacion::sin_transferencia_no_se_espera()
{
    QVERIFY(!charla->Esperar(30000));
}

PRUEBA(TestConversacion)
#include "TestConversacion.moc"
