#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"

// One event a byte, whatever happens while one is heard.
class TestPuerto_Serie : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void un_suceso_por_byte();
    void lo_que_llega_mientras_se_atiende_se_entrega();
    void lo_que_llega_en_cada_suceso_se_entrega();
    void lo_que_no_se_lee_espera();
    void cerrado_a_medias_no_entrega_mas();
    void sin_umbral_no_hay_sucesos();
    void el_que_atiende_puede_destruirlo();

private:
    std::unique_ptr<Puerto_Memoria> puerto;
    QByteArray leido;
};

void TestPuerto_Serie::init()
{
    puerto = std::make_unique<Puerto_Memoria>();
    puerto->Abrir(1, "9600,N,8,1");
    leido.clear();
}

void TestPuerto_Serie::un_suceso_por_byte()
{
    int sucesos = 0;
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] {
        ++sucesos;
        leido += *puerto->Leer();
    });
    puerto->Llegan("abc");
    QCOMPARE(leido, QByteArray("abc"));
    QCOMPARE(sucesos, 3);
}

// 24 bytes came in while the first was heard, and used to wait there for the next one.
void TestPuerto_Serie::lo_que_llega_mientras_se_atiende_se_entrega()
{
    bool primero = true;
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] {
        leido += *puerto->Leer();
        if (std::exchange(primero, false)) puerto->Llegan(QByteArray(24, 'x'));
    });
    puerto->Llegan("a");
    QCOMPARE(leido, 'a' + QByteArray(24, 'x'));
    QCOMPARE(puerto->Pendientes(), 0);
}

void TestPuerto_Serie::lo_que_llega_en_cada_suceso_se_entrega()
{
    int quedan = 50;
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] {
        leido += *puerto->Leer();
        if (quedan-- > 0) puerto->Llegan("bc");
    });
    puerto->Llegan("a");
    QCOMPARE(leido.size(), 101);
}

void TestPuerto_Serie::lo_que_no_se_lee_espera()
{
    int sucesos = 0;
    bool atiende = false;
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] {
        ++sucesos;
        if (atiende) leido += *puerto->Leer();
        // Also when more comes in meanwhile: nobody reads.
        else if (puerto->recibido.size() < 5)
            puerto->recibido += 'z';
    });
    puerto->Llegan("abc");
    QCOMPARE(sucesos, 1);
    QCOMPARE(puerto->Pendientes(), 4);
    atiende = true;
    puerto->Entregar();
    QCOMPARE(leido, QByteArray("abcz"));
}

void TestPuerto_Serie::cerrado_a_medias_no_entrega_mas()
{
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] {
        leido += *puerto->Leer();
        if (leido.size() == 2) puerto->Cerrar();
    });
    puerto->Llegan("abc");
    QCOMPARE(leido, QByteArray("ab"));
}

void TestPuerto_Serie::sin_umbral_no_hay_sucesos()
{
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] { leido += *puerto->Leer(); });
    puerto->RThreshold = 0;
    puerto->Llegan("a");
    QCOMPARE(leido, QByteArray());
    puerto->RThreshold = 1;
    puerto->Entregar();
    QCOMPARE(leido, QByteArray("a"));
}

void TestPuerto_Serie::el_que_atiende_puede_destruirlo()
{
    connect(puerto.get(), &Puerto_Serie::evento, this, [&] { puerto.reset(); });
    puerto->Llegan("abc");
    QVERIFY(!puerto);
}

PRUEBA(TestPuerto_Serie)
#include "TestPuerto_Serie.moc"
