#include "simulator/Aparato_Nivel.h"
#include "tests/apoyo/Prueba.h"
#include "tests/simulator/Sonda.h"

using namespace simulador;

static const QByteArray SI_PC = "\x06,R,\r\n", NO_PC = "\x15,!,\r\n";
static const QByteArray PRINCIPIO = "A,01,Z,\r\n", FIN = "Z,&,\r\n";

class TestAparatoNivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void suma();
    void conversacion_entera();
    void empieza_tambien_con_el_sondeo();
    void repite_la_linea_rechazada();
    void fallos();
    void tras_un_rechazo_puede_seguir();
    void el_ruido_espera_su_rechazo();
    void una_respuesta_que_no_se_entiende_se_pasa();

private:
    Aparato_Nivel::Ajustes Dos() const
    {
        Aparato_Nivel::Ajustes a;
        a.libreta = QList<QByteArray>{"b,03,OBRA1,RN1,10000000,", "g,03,152345,25120,0,RN1,3"};
        return a;
    }
    const QByteArray linea_1 = "b,03,OBRA1,RN1,10000000,(,\r\n";
    const QByteArray linea_2 = "g,03,152345,25120,0,RN1,3,@,\r\n";
};

void TestAparatoNivel::suma()
{
    QCOMPARE(Suma_De_Linea("A,01,"), 'Z');
    QCOMPARE(Suma_De_Linea("Z,"), '&');
    QCOMPARE(Suma_De_Linea("\x06,"), 'R');
    QCOMPARE(Suma_De_Linea("\x15,"), '!');
    QCOMPARE(Suma_De_Linea(""), ' ');
    QCOMPARE(Suma_De_Linea("\xF1"), 'Q');
}

void TestAparatoNivel::conversacion_entera()
{
    Sonda s;
    Aparato_Nivel a(Dos(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x05"), PRINCIPIO);
    QCOMPARE(Dar(a, s, SI_PC), linea_1);
    QCOMPARE(Dar(a, s, SI_PC), linea_2);
    QCOMPARE(Dar(a, s, SI_PC), FIN);
    QVERIFY(!a.Terminado());
    QCOMPARE(Dar(a, s, SI_PC), QByteArray());
    QVERIFY(a.Terminado());
}

void TestAparatoNivel::empieza_tambien_con_el_sondeo()
{
    Sonda s;
    Aparato_Nivel a(Dos(), s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, SI_PC), QByteArray());
    QCOMPARE(Dar(a, s, NO_PC), PRINCIPIO);
}

void TestAparatoNivel::repite_la_linea_rechazada()
{
    Sonda s;
    Aparato_Nivel a(Dos(), s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    QCOMPARE(Dar(a, s, NO_PC), PRINCIPIO);
    QCOMPARE(Dar(a, s, SI_PC), linea_1);
    QCOMPARE(Dar(a, s, NO_PC), linea_1);
    QCOMPARE(Dar(a, s, NO_PC), linea_1);
    QCOMPARE(Dar(a, s, SI_PC), linea_2);
}

void TestAparatoNivel::fallos()
{
    Sonda s;
    Aparato_Nivel::Ajustes ajustes = Dos();
    QCOMPARE(Leer_Fallo("suma:1", ajustes.fallos), QString());
    QCOMPARE(Leer_Fallo("eot:2", ajustes.fallos), QString());
    Aparato_Nivel a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    const QByteArray mala = Dar(a, s, SI_PC);
    QVERIFY(mala != linea_1);
    QCOMPARE(mala.size(), linea_1.size());
    QCOMPARE(mala.chopped(4), linea_1.chopped(4));
    QCOMPARE(Dar(a, s, NO_PC), linea_1);
    QVERIFY(Dar(a, s, SI_PC).endsWith('\x04'));
    QCOMPARE(Dar(a, s, SI_PC + NO_PC), QByteArray());

    for (const int n : {0, 1}) {
        Sonda t;
        Aparato_Nivel::Ajustes mudo = Dos();
        mudo.fallos.silencio = n;
        Aparato_Nivel b(mudo, t.Salida(), t.Nota());
        b.Abrir();
        QCOMPARE(Dar(b, t, "\x05"), n == 0 ? QByteArray() : PRINCIPIO);
        QCOMPARE(Dar(b, t, SI_PC), n == 0 ? QByteArray() : linea_1);
        QCOMPARE(Dar(b, t, SI_PC), QByteArray());
    }

    Sonda t;
    Aparato_Nivel::Ajustes corto = Dos();
    corto.fallos.fin = 1;
    Aparato_Nivel b(corto, t.Salida(), t.Nota());
    b.Abrir();
    Dar(b, t, "\x05" + SI_PC);
    QCOMPARE(Dar(b, t, SI_PC), FIN);
}

void TestAparatoNivel::tras_un_rechazo_puede_seguir()
{
    Sonda s;
    Aparato_Nivel::Ajustes ajustes = Dos();
    ajustes.repetir = false;
    ajustes.fallos.ruido = 2;
    Aparato_Nivel a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    // The start line has nothing behind it to go on with.
    QCOMPARE(Dar(a, s, NO_PC), PRINCIPIO);
    QCOMPARE(Dar(a, s, SI_PC), linea_1);
    QCOMPARE(Dar(a, s, NO_PC), QByteArray("~?\r\n"));
    QCOMPARE(Dar(a, s, NO_PC), linea_2);
    QCOMPARE(Dar(a, s, NO_PC), FIN);
    QCOMPARE(Dar(a, s, NO_PC), FIN);
}

void TestAparatoNivel::el_ruido_espera_su_rechazo()
{
    Sonda s;
    Aparato_Nivel::Ajustes ajustes = Dos();
    ajustes.fallos.ruido = 0;
    Aparato_Nivel a(ajustes, s.Salida(), s.Nota());
    a.Abrir();
    QCOMPARE(Dar(a, s, "\x05"), PRINCIPIO);
    QCOMPARE(Dar(a, s, SI_PC), QByteArray("~?\r\n"));
    QCOMPARE(Dar(a, s, NO_PC), linea_1);
    QCOMPARE(Dar(a, s, SI_PC), QByteArray("~?\r\n"));
    QCOMPARE(Dar(a, s, NO_PC), linea_2);
    QCOMPARE(Dar(a, s, SI_PC), FIN);
}

void TestAparatoNivel::una_respuesta_que_no_se_entiende_se_pasa()
{
    Sonda s;
    Aparato_Nivel a(Dos(), s.Salida(), s.Nota());
    a.Abrir();
    Dar(a, s, "\x05");
    QCOMPARE(Dar(a, s, "\x06,S,\r\n"), QByteArray());
    QCOMPARE(s.notas.size(), 1);
    QCOMPARE(Dar(a, s, SI_PC), linea_1);
}

PRUEBA(TestAparatoNivel)
#include "TestAparatoNivel.moc"
