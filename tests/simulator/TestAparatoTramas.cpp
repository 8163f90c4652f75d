#include "simulator/Aparato_Tramas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/simulator/Sonda.h"

using namespace simulador;

class TestAparatoTramas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void suma_data();
    void suma();
    void envia_la_libreta_trama_a_trama();
    void un_bloque_justo_no_lleva_otro_de_blancos();
    void la_secuencia_vuelve_a_cero();
    void espera_a_que_lo_llamen();
    void sin_registros_acaba_en_seguida();
    void repite_la_trama_rechazada();
    void o_pasa_a_la_siguiente();
    void una_apertura_empieza_de_nuevo();
    void fallo_suma();
    void fallo_silencio();
    void fallo_fin();
    void fallo_eot();
    void fallo_ruido();
    void cr_lf_tras_la_trama();
    void recibe_una_carga_de_puntos();
    void recibe_una_libreria();
    void un_bloque_danado_se_rechaza();
    void un_bloque_repetido_se_guarda_una_vez();
    void un_salto_de_secuencia_se_rechaza();
    void rechaza_a_peticion();
    void calla_en_una_carga();

private:
    Aparato_Tramas::Ajustes Pocos() const
    {
        Aparato_Tramas::Ajustes a;
        a.libreta = QList<QByteArray>{"+P1", " x+001"};
        a.bloque = 8;
        return a;
    }
    Aparato_Tramas::Ajustes Nada() const { return {}; }
    static QByteArray Bloque(const QByteArray& datos, int n)
    {
        const QByteArray cuerpo = datos.leftJustified(128, ' ') + QByteArray::number((n - 1) % 10);
        return '\x02' + cuerpo + Suma_De_Trama(cuerpo) + "\x03\r\n";
    }
};

static const QByteArray APERTURA = "\x02"
                                   "F00F000\x03\r\n";
static const QByteArray CABECERA_TEXTO = "BARCELONA +123400002.01555510-209999S";
static const QByteArray CIERRE = "\x02\x04\x03\r\n";

void TestAparatoTramas::suma_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("suma");
    QTest::newRow("vacía") << QByteArray() << QByteArray("000");
    QTest::newRow("A") << QByteArray("A") << QByteArray("065");
    QTest::newRow("se anula") << QByteArray("AA") << QByteArray("000");
    QTest::newRow("por encima de 127") << QByteArray("\xF1") << QByteArray("241");
}

void TestAparatoTramas::suma()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, suma);
    QCOMPARE(Suma_De_Trama(bytes), suma);
}

// The checksums here were worked out by hand from the characters.
void TestAparatoTramas::envia_la_libreta_trama_a_trama()
{
    Sonda s;
    Aparato_Tramas a(Pocos(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x05"), QByteArray("\x02_+P1_ x+0009\x03"));
    QVERIFY(!a.Terminado());
    QCOMPARE(Dar(a, s, "\x06"), QByteArray("\x02"
                                           "001     1032\x03"));
    QCOMPARE(Dar(a, s, "\x06"), QByteArray("\x04"));
    QVERIFY(!a.Terminado());
    QCOMPARE(Dar(a, s, "\x06"), QByteArray());
    QVERIFY(a.Terminado());
}

void TestAparatoTramas::un_bloque_justo_no_lleva_otro_de_blancos()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes;
    ajustes.libreta = QList<QByteArray>{QByteArray(127, 'A')};
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x05").size(), 1 + 128 + 1 + 3 + 1);
    QCOMPARE(Dar(a, s, "\x06"), QByteArray("\x04"));
}

void TestAparatoTramas::la_secuencia_vuelve_a_cero()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes;
    ajustes.libreta = QList<QByteArray>{QByteArray(11, 'A')};
    ajustes.bloque = 1;
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    QByteArray cifras(1, Dar(a, s, "\x05").at(2));
    for (int n = 2; n <= 12; ++n)
        cifras += Dar(a, s, "\x06").at(2);
    QCOMPARE(cifras, QByteArray("012345678901"));
}

void TestAparatoTramas::espera_a_que_lo_llamen()
{
    Sonda s;
    Aparato_Tramas a(Pocos(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x06\x0f\x15hola\r\n\x04"), QByteArray());
    QVERIFY(!Dar(a, s, "\x05").isEmpty());
    // The PC polls until the first byte reaches it: a call under way is no new one.
    QCOMPARE(Dar(a, s, "\x05\x05"), QByteArray());
}

void TestAparatoTramas::sin_registros_acaba_en_seguida()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes;
    ajustes.libreta = QList<QByteArray>{};
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x05"), QByteArray("\x04"));
    Dar(a, s, "\x06");
    QVERIFY(a.Terminado());
    Sonda t;
    Aparato_Tramas sin_libreta(Nada(), t.Salida(), t.Nota());
    sin_libreta.Abrir();
    QCOMPARE(Dar(sin_libreta, t, "\x05"), QByteArray());
}

void TestAparatoTramas::repite_la_trama_rechazada()
{
    Sonda s;
    Aparato_Tramas a(Pocos(), s.Salida(), s.Nota());
    a.Abrir();
    const QByteArray primera = Dar(a, s, "\x05");
    QCOMPARE(Dar(a, s, "\x0f"), primera);
    QCOMPARE(Dar(a, s, "\x0f"), primera);
    QVERIFY(Dar(a, s, "\x06")
                .startsWith("\x02"
                            "001"));
    // The answer to a bad frame is the code 15 alone.
    QCOMPARE(Dar(a, s, "\x15"), QByteArray());
}

void TestAparatoTramas::o_pasa_a_la_siguiente()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes = Pocos();
    ajustes.repetir = false;
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    QVERIFY(Dar(a, s, "\x0f")
                .startsWith("\x02"
                            "001"));
    QCOMPARE(Dar(a, s, "\x0f"), QByteArray("\x04"));
}

void TestAparatoTramas::una_apertura_empieza_de_nuevo()
{
    Sonda s;
    Aparato_Tramas a(Pocos(), s.Salida(), s.Nota());
    a.Abrir();
    const QByteArray primera = Dar(a, s, "\x05");
    Dar(a, s, "\x06");
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x06"), QByteArray());
    QCOMPARE(Dar(a, s, "\x05"), primera);
}

void TestAparatoTramas::fallo_suma()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes = Pocos();
    QCOMPARE(Leer_Fallo("suma:1x2", ajustes.fallos), QString());
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    const auto buena = [](const QByteArray& trama) {
        return Suma_De_Trama(trama.mid(1, trama.size() - 5)) == trama.mid(trama.size() - 4, 3);
    };
    const QByteArray mala = Dar(a, s, "\x05");
    QVERIFY(!buena(mala));
    QVERIFY(!buena(Dar(a, s, "\x0f")));
    const QByteArray tercera = Dar(a, s, "\x0f");
    QVERIFY(buena(tercera));
    QCOMPARE(tercera.chopped(4), mala.chopped(4));
    QVERIFY(buena(Dar(a, s, "\x06")));
}

void TestAparatoTramas::fallo_silencio()
{
    for (const int n : {0, 1, 2}) {
        Sonda s;
        Aparato_Tramas::Ajustes ajustes = Pocos();
        ajustes.fallos.silencio = n;
        Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
        a.Abrir();
        int tramas = 0;
        for (QByteArray r = Dar(a, s, "\x05"); !r.isEmpty(); r = Dar(a, s, "\x06"))
            ++tramas;
        QCOMPARE(tramas, n);
        QVERIFY(!a.Terminado());
        QCOMPARE(Dar(a, s, "\x05\x06\x0f"), QByteArray());
    }
}

void TestAparatoTramas::fallo_fin()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes = Pocos();
    ajustes.fallos.fin = 1;
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    QCOMPARE(Dar(a, s, "\x06"), QByteArray("\x04"));
}

void TestAparatoTramas::fallo_eot()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes = Pocos();
    ajustes.fallos.eot = 2;
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    QCOMPARE(Dar(a, s, "\x06"), QByteArray("\x02"
                                           "001 \x04"));
    Dar(a, s, "\x06");
    QVERIFY(a.Terminado());
}

void TestAparatoTramas::fallo_ruido()
{
    for (const int n : {0, 2}) {
        Sonda s;
        Aparato_Tramas::Ajustes ajustes = Pocos();
        ajustes.fallos.ruido = n;
        Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
        a.Abrir();
        const QByteArray primera = Dar(a, s, "\x05"), segunda = Dar(a, s, "\x06");
        QCOMPARE(primera.indexOf('\x02') > 0, n == 0);
        QVERIFY(segunda.indexOf('\x02') > 0);
        // Noise that held a control character of the link would be another fault.
        for (const char c : {'\x03', '\x04', '\x05', '\x06', '\x0f'})
            QVERIFY(!segunda.left(segunda.indexOf('\x02')).contains(c));
    }
}

void TestAparatoTramas::cr_lf_tras_la_trama()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes = Pocos();
    ajustes.fin_linea = true;
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    QVERIFY(Dar(a, s, "\x05").endsWith("\x03\r\n"));
}

void TestAparatoTramas::recibe_una_carga_de_puntos()
{
    Sonda s;
    Aparato_Tramas a(Nada(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, APERTURA), QByteArray("\x06"));
    QCOMPARE(Dar(a, s, '\x02' + CABECERA_TEXTO + Suma_De_Trama(CABECERA_TEXTO) + "\x03\r\n"),
             QByteArray("\x06"));
    const QByteArray punto = "_+P1        _ x+002000000_ y+001000000_ z-000000500";
    const QByteArray datos = punto + punto + punto;
    QCOMPARE(Dar(a, s, Bloque(datos.left(128), 1)), QByteArray("\x06"));
    QCOMPARE(Dar(a, s, Bloque(datos.mid(128), 2)), QByteArray("\x06"));
    QVERIFY(!a.Terminado());
    Dar(a, s, CIERRE);
    QVERIFY(a.Terminado());
    QCOMPARE(a.Recibido(), datos.leftJustified(256, ' '));
    const QList<QByteArray> uno{"+P1        ", " x+002000000", " y+001000000", " z-000000500"};
    QCOMPARE(a.Registros_Recibidos(), uno + uno + uno);
}

void TestAparatoTramas::recibe_una_libreria()
{
    Sonda s;
    Aparato_Tramas a(Nada(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, Bloque("_:001ARBOL     _:002          ", 1)), QByteArray("\x06"));
    Dar(a, s, CIERRE);
    QCOMPARE(a.Registros_Recibidos(), (QList<QByteArray>{":001ARBOL     ", ":002"}));
}

void TestAparatoTramas::un_bloque_danado_se_rechaza()
{
    const QByteArray buena = Bloque("_+P1        _ x+002000000", 1);
    for (qsizetype i = 1; i < buena.size() - 3; ++i) {
        Sonda s;
        Aparato_Tramas a(Nada(), s.Salida(), s.Nota());
        a.Abrir();
        QByteArray rota = buena;
        rota[i] = static_cast<char>(rota[i] ^ 0x40);
        QCOMPARE(Dar(a, s, rota), QByteArray("\x15"));
        QCOMPARE(a.Recibido(), QByteArray());
        QCOMPARE(Dar(a, s, buena), QByteArray("\x06"));
        QCOMPARE(a.Recibido().size(), 128);
    }
}

void TestAparatoTramas::un_bloque_repetido_se_guarda_una_vez()
{
    Sonda s;
    Aparato_Tramas a(Nada(), s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, Bloque("_+P1", 1));
    QCOMPARE(Dar(a, s, Bloque("_+P1", 1)), QByteArray("\x06"));
    QCOMPARE(Dar(a, s, Bloque("_+P1", 2)), QByteArray("\x06"));
    QCOMPARE(a.Recibido().size(), 2 * 128);
}

void TestAparatoTramas::un_salto_de_secuencia_se_rechaza()
{
    Sonda s;
    Aparato_Tramas a(Nada(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, Bloque("_+P1", 2)), QByteArray("\x15"));
    QCOMPARE(Dar(a, s, Bloque("_+P1", 1)), QByteArray("\x06"));
    QCOMPARE(Dar(a, s, Bloque("_+P3", 3)), QByteArray("\x15"));
}

void TestAparatoTramas::rechaza_a_peticion()
{
    Sonda s;
    Aparato_Tramas::Ajustes ajustes;
    QCOMPARE(Leer_Fallo("rechazo:2x3", ajustes.fallos), QString());
    Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, Bloque("_+P1", 1)), QByteArray("\x06"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(Dar(a, s, Bloque("_+P2", 2)), QByteArray("\x15"));
    QCOMPARE(Dar(a, s, Bloque("_+P2", 2)), QByteArray("\x06"));
}

void TestAparatoTramas::calla_en_una_carga()
{
    for (const int n : {0, 1}) {
        Sonda s;
        Aparato_Tramas::Ajustes ajustes;
        ajustes.fallos.silencio = n;
        Aparato_Tramas a(ajustes, s.Salida(), s.Nota());
        a.Abrir();
        QCOMPARE(Dar(a, s, Bloque("_+P1", 1)), QByteArray(n == 0 ? "" : "\x06"));
        QCOMPARE(Dar(a, s, Bloque("_+P2", 2)), QByteArray());
        QCOMPARE(Dar(a, s, CIERRE), QByteArray());
    }
}

PRUEBA(TestAparatoTramas)
#include "TestAparatoTramas.moc"
