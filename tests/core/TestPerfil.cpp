#include "core/Perfil.h"
#include "core/Posicion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sin_Privilegios.h"

class TestPerfil : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void se_lee_sin_distinguir_mayusculas_data();
    void se_lee_sin_distinguir_mayusculas();
    void el_valor_se_corta_a_lo_pedido();
    void un_fichero_que_no_se_lee_es_como_si_faltara();
    void se_escribe_y_lo_demas_queda();
    void una_seccion_nueva_va_al_final();
    void una_clave_nueva_va_tras_la_ultima_de_su_seccion();
    void quitar_una_clave();
    void un_salto_de_linea_no_hace_otra_clave();
    void los_acentos_van_en_su_pagina();
    void varias_claves_de_una_vez();
    void varias_claves_o_ninguna();
    void no_se_escribe_sin_permiso();

    void sin_seccion_la_ventana_queda_donde_esta();
    void los_modos_de_lectura_data();
    void los_modos_de_lectura();
    void un_valor_que_no_cabe_avisa_y_para_data();
    void un_valor_que_no_cabe_avisa_y_para();
    void un_estado_que_no_existe_avisa();
    void una_maximizada_no_lee_su_sitio();
    void una_maximizada_escribe_solo_su_estado();
    void los_modos_de_escritura();
    void un_fallo_al_escribir_avisa_una_vez();

private:
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestPerfil::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
}

void TestPerfil::cleanup()
{
    interfaz.reset();
    p.reset();
}

void TestPerfil::se_lee_sin_distinguir_mayusculas_data()
{
    QTest::addColumn<QString>("seccion");
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("valor");
    QTest::newRow("tal cual") << "UNO"
                              << "a"
                              << "1";
    QTest::newRow("otra caja") << "uno"
                               << "A"
                               << "1";
    QTest::newRow("blancos") << "UNO"
                             << "b"
                             << "con blancos dentro";
    QTest::newRow("vacio") << "UNO"
                           << "vacia"
                           << "";
    QTest::newRow("comentario") << "UNO"
                                << "c"
                                << "defecto";
    QTest::newRow("de otra seccion") << "UNO"
                                     << "d"
                                     << "defecto";
    QTest::newRow("seccion con blancos") << "DOS"
                                         << "d"
                                         << "4=5";
    QTest::newRow("la primera vale") << "DOS"
                                     << "e"
                                     << "primero";
    QTest::newRow("falta la seccion") << "TRES"
                                      << "a"
                                      << "defecto";
    QTest::newRow("linea sin igual") << "DOS"
                                     << "suelta"
                                     << "defecto";
}

void TestPerfil::se_lee_sin_distinguir_mayusculas()
{
    QFETCH(QString, seccion);
    QFETCH(QString, clave);
    QFETCH(QString, valor);
    p->Escribir("x.ini",
                "antes=0\r\n[UNO]\r\na=1\r\n  B  =  con blancos dentro \r\nvacia=\r\n;c=3\n"
                "\n [DOS] \nd=4=5\nsuelta\ne=primero\nE=segundo");
    QCOMPARE(Perfil::Leer(p->Ruta("x.ini"), seccion, clave, "defecto"), valor);
}

void TestPerfil::el_valor_se_corta_a_lo_pedido()
{
    p->Escribir("x.ini", "[A]\r\nk=" + QByteArray(80, 'x'));
    QCOMPARE(Perfil::Leer(p->Ruta("x.ini"), "A", "k", "", 50), QString(50, u'x'));
    QCOMPARE(Perfil::Leer(p->Ruta("x.ini"), "A", "k", "").size(), 80);
}

void TestPerfil::un_fichero_que_no_se_lee_es_como_si_faltara()
{
    QCOMPARE(Perfil::Leer(p->Ruta("nada.ini"), "A", "k", "defecto"), QStringLiteral("defecto"));
    QCOMPARE(Perfil::Leer(p->Ruta("MDB"), "A", "k", "defecto"), QStringLiteral("defecto"));
}

void TestPerfil::se_escribe_y_lo_demas_queda()
{
    p->Escribir("x.ini",
                "; cabecera\r\n[A]\r\n;nota\r\nK = viejo\r\nlinea rara\r\n\r\n[B]\r\nk=b\r\n");
    Perfil::Escribir(p->Ruta("x.ini"), "a", "K", "nuevo");
    QCOMPARE(p->Leer("x.ini"),
             QByteArray("; cabecera\r\n[A]\r\n;nota\r\nK=nuevo\r\nlinea rara\r\n\r\n"
                        "[B]\r\nk=b\r\n"));
}

void TestPerfil::una_seccion_nueva_va_al_final()
{
    Perfil::Escribir(p->Ruta("x.ini"), "A", "k", "1");
    Perfil::Escribir(p->Ruta("x.ini"), "B", "k", "");
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=1\r\n[B]\r\nk=\r\n"));
}

void TestPerfil::una_clave_nueva_va_tras_la_ultima_de_su_seccion()
{
    p->Escribir("x.ini", "[A]\nk=1\n\n[B]\n");
    Perfil::Escribir(p->Ruta("x.ini"), "A", "l", "2");
    Perfil::Escribir(p->Ruta("x.ini"), "B", "m", "3");
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=1\r\nl=2\r\n\r\n[B]\r\nm=3\r\n"));
}

void TestPerfil::quitar_una_clave()
{
    p->Escribir("x.ini", "[A]\r\nHARD=1\r\nk=2\r\n");
    Perfil::Escribir(p->Ruta("x.ini"), "A", "HARD", QString());
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=2\r\n"));
    Perfil::Escribir(p->Ruta("x.ini"), "A", "HARD", QString());
    Perfil::Escribir(p->Ruta("nada.ini"), "A", "HARD", QString());
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=2\r\n"));
    QVERIFY(!QFile::exists(p->Ruta("nada.ini")));
}

void TestPerfil::un_salto_de_linea_no_hace_otra_clave()
{
    Perfil::Escribir(p->Ruta("x.ini"), "A", "k", "uno\r\nFIJO=True");
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=uno\r\n"));
}

void TestPerfil::los_acentos_van_en_su_pagina()
{
    Perfil::Escribir(p->Ruta("x.ini"), "A", "k", QString::fromUtf8("Señal €"));
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=Se\xF1"
                                          "al \x80\r\n"));
    QCOMPARE(Perfil::Leer(p->Ruta("x.ini"), "A", "k", ""), QString::fromUtf8("Señal €"));
}

void TestPerfil::varias_claves_de_una_vez()
{
    p->Escribir("P.ini", "; nota\r\n[A]\r\nuno=1\r\nfuera=9\r\n[B]\r\ndos=2\r\n");
    Perfil::Escribir_Todas(p->Ruta("P.ini"), {{"b", "dos", "22"},
                                              {"C", "tres", "3"},
                                              {"A", "fuera", QString()},
                                              {"A", "otra", QString()},
                                              {"C", "cuatro", ""},
                                              {"A", "uno", "11"},
                                              {"C", "tres", "33"}});
    QCOMPARE(p->Leer("P.ini"), QByteArray("; nota\r\n[A]\r\nuno=11\r\n[B]\r\ndos=22\r\n[C]\r\n"
                                          "tres=33\r\ncuatro=\r\n"));
    // Nothing to take out: the file is not even touched.
    Perfil::Escribir_Todas(p->Ruta("Q.ini"), {{"A", "uno", QString()}, {"B", "dos", QString()}});
    Perfil::Escribir_Todas(p->Ruta("Q.ini"), {});
    QVERIFY(!QFile::exists(p->Ruta("Q.ini")));
}

void TestPerfil::varias_claves_o_ninguna()
{
    p->Escribir("P.ini", "[A]\r\nuno=1\r\n");
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        QCOMPARE(
            Numero_De_Error([&] {
                Perfil::Escribir_Todas(p->Ruta("P.ini"), {{"A", "uno", "2"}, {"A", "dos", "2"}});
            }),
            70);
    }
    QCOMPARE(p->Leer("P.ini"), QByteArray("[A]\r\nuno=1\r\n"));
}

void TestPerfil::no_se_escribe_sin_permiso()
{
    p->Escribir("x.ini", "[A]\r\nk=1\r\n");
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        QVERIFY_ERROR(70, Perfil::Escribir(p->Ruta("x.ini"), "A", "k", "2"));
    }
    QCOMPARE(p->Leer("x.ini"), QByteArray("[A]\r\nk=1\r\n"));
    QVERIFY_ERROR(76, Perfil::Escribir(p->Ruta("nada/x.ini"), "A", "k", "2"));
}

static Posicion_Ventana Ventana()
{
    return {0, 10, 20, 300, 200};
}

static QList<int> Valores(const Posicion_Ventana& v)
{
    return {v.estado, v.top, v.left, v.width, v.height};
}

void TestPerfil::sin_seccion_la_ventana_queda_donde_esta()
{
    Posicion_Ventana v = Ventana();
    v.estado = 2;
    Leer_Posicion(v, Fichero_Posicion(), "DESCARGAS", 2);
    QCOMPARE(Valores(v), (QList<int>{0, 10, 20, 300, 200}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestPerfil::los_modos_de_lectura_data()
{
    QTest::addColumn<int>("modo");
    QTest::addColumn<QList<int>>("valores");
    QTest::newRow("0") << 0 << QList<int>{0, 10, 20, 300, 200};
    QTest::newRow("1") << 1 << QList<int>{0, 1, -2, 300, 200};
    QTest::newRow("2") << 2 << QList<int>{0, 1, -2, 4, 3};
}

void TestPerfil::los_modos_de_lectura()
{
    QFETCH(int, modo);
    QFETCH(QList<int>, valores);
    p->Escribir("Posicion.ini", "[X]\r\nstate=0\r\ntop= 1 \r\nleft=-2\r\nheight=3\r\nwidth=4\r\n");
    Posicion_Ventana v = Ventana();
    Leer_Posicion(v, Fichero_Posicion(), "X", modo);
    QCOMPARE(Valores(v), valores);
}

void TestPerfil::un_valor_que_no_cabe_avisa_y_para_data()
{
    QTest::addColumn<QByteArray>("valor");
    QTest::addColumn<QString>("cola");
    QTest::newRow("40000") << QByteArray("40000") << "(6)Desbordamiento";
    QTest::newRow("-40000") << QByteArray("-40000") << "(6)Desbordamiento";
    QTest::newRow("letras") << QByteArray("abc") << "(13)No coinciden los tipos";
    QTest::newRow("vacio") << QByteArray("") << "(13)No coinciden los tipos";
    QTest::newRow("enorme") << QByteArray(200, '9') << "(6)Desbordamiento";
}

void TestPerfil::un_valor_que_no_cabe_avisa_y_para()
{
    QFETCH(QByteArray, valor);
    QFETCH(QString, cola);
    p->Escribir("Posicion.ini",
                "[X]\r\nstate=0\r\ntop=" + valor + "\r\nleft=1\r\nheight=2\r\nwidth=3\r\n");
    Posicion_Ventana v = Ventana();
    Leer_Posicion(v, Fichero_Posicion(), "X", 2);
    QCOMPARE(Valores(v), (QList<int>{0, 10, 20, 300, 200}));
    QCOMPARE(interfaz->Textos(), QStringList{"Se produjo un error al leer del fichero " +
                                             Fichero_Posicion() + "\r\n" + cola});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
}

void TestPerfil::un_estado_que_no_existe_avisa()
{
    p->Escribir("Posicion.ini", "[X]\r\nstate=7\r\ntop=1\r\n");
    Posicion_Ventana v = Ventana();
    Leer_Posicion(v, Fichero_Posicion(), "X", 1);
    QCOMPARE(Valores(v), Valores(Ventana()));
    QCOMPARE(interfaz->avisos.size(), 1);
}

void TestPerfil::una_maximizada_no_lee_su_sitio()
{
    p->Escribir("Posicion.ini", "[X]\r\nstate=2\r\ntop=40000\r\n");
    Posicion_Ventana v = Ventana();
    Leer_Posicion(v, Fichero_Posicion(), "X", 2);
    QCOMPARE(Valores(v), (QList<int>{2, 10, 20, 300, 200}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestPerfil::una_maximizada_escribe_solo_su_estado()
{
    p->Escribir("Posicion.ini", "[X]\r\nstate=0\r\ntop=1\r\nleft=2\r\nwidth=3\r\nheight=4\r\n");
    Posicion_Ventana v = Ventana();
    v.estado = 2;
    Guardar_Posicion(v, Fichero_Posicion(), "X", 2);
    QCOMPARE(p->Leer("Posicion.ini"),
             QByteArray("[X]\r\nstate=2\r\ntop=1\r\nleft=2\r\nwidth=3\r\nheight=4\r\n"));
}

void TestPerfil::los_modos_de_escritura()
{
    Guardar_Posicion(Ventana(), Fichero_Posicion(), "A", 0);
    Guardar_Posicion(Ventana(), Fichero_Posicion(), "B", 1);
    Guardar_Posicion(Ventana(), Fichero_Posicion(), "C", 2);
    QCOMPARE(
        p->Leer("Posicion.ini"),
        QByteArray("[A]\r\nstate=0\r\n[B]\r\nstate=0\r\ntop=10\r\nleft=20\r\n[C]\r\nstate=0\r\n"
                   "top=10\r\nleft=20\r\nwidth=300\r\nheight=200\r\n"));
}

void TestPerfil::un_fallo_al_escribir_avisa_una_vez()
{
    QVERIFY(QDir(Ruta_Aplicacion).mkdir("Posicion.ini"));
    Guardar_Posicion(Ventana(), Fichero_Posicion(), "A", 2);
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->Textos()[0].startsWith("Se produjo un error al escribir en el fichero " +
                                             Fichero_Posicion() + "\r\n(75)"));
}

PRUEBA(TestPerfil)
#include "TestPerfil.moc"
