#include "codes/Recepcion_Libreria.h"
#include "codes/Textos_Envio.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

#include <QSignalSpy>

class TestRecepcion_Libreria : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void se_guarda_data();
    void se_guarda();
    void el_ultimo_con_codigo_se_dice();
    void un_codigo_largo_se_guarda_y_se_dice();
    void a_fichero_deja_la_base();
    void lo_que_falla_no_deja_nada();
    void lo_recibido_vuelve_a_salir_igual();
    void la_eleccion_de_destino();
    void el_arranque_sigue_su_orden();
};

void TestRecepcion_Libreria::se_guarda_data()
{
    QTest::addColumn<QString>("recibido");
    QTest::addColumn<QString>("codigos");
    QTest::newRow("dos") << "_:001ARBOL     _:002CASA      _"
                         << "|ARBOL|CASA";
    QTest::newRow("relleno detrás") << "_:001ARBOL     _:002          _:003             "
                                    << "|ARBOL|";
    QTest::newRow("otros registros") << "_+P1_:001A         _ x+0001_:002B         _"
                                     << "|A|B";
    QTest::newRow("acento grave") << "_:001X`Y`ARBOL _:002`        _"
                                  << "|ARBOL|";
    QTest::newRow("delante del primero") << ":009FUERA_:001A         _"
                                         << "|A";
    QTest::newRow("sin ninguno") << "_+P1_ x+001_"
                                 << "";
    QTest::newRow("registro roto") << "_:_:00_:001A         _"
                                   << "|||A";
    QTest::newRow("nada") << ""
                          << "";
    QTest::newRow("sin separador") << "texto suelto"
                                   << "";
}

void TestRecepcion_Libreria::se_guarda()
{
    const Sala_Librerias sala;
    QFETCH(QString, recibido);
    QFETCH(QString, codigos);
    const Libreria_Guardada hecho = Guardar_Libreria(recibido, Destino::Base, "REC");
    QVERIFY(hecho.Completa());
    QCOMPARE(hecho.codigos, int(codigos.count(u'|')));
    QCOMPARE(sala.Columna("SELECT Codigos FROM Lib1 WHERE CoD = 'REC'"),
             QStringList{codigos.replace(u'|', QChar(6))});
    QCOMPARE(sala.Columna("SELECT Nombre FROM Lib1 WHERE CoD = 'REC'"),
             QStringList{"Librería 'REC'"});
    QVERIFY(sala.interfaz.avisos.isEmpty());
}

void TestRecepcion_Libreria::el_ultimo_con_codigo_se_dice()
{
    const Sala_Librerias sala;
    const Libreria_Guardada hecho =
        Guardar_Libreria("_:001ARBOL     _:002CASA      ", Destino::Base, "REC");
    QVERIFY(!hecho.Completa());
    QVERIFY(!hecho.error);
    QCOMPARE(hecho.avisos.size(), 1);
    QVERIFY(hecho.avisos[0].contains("nº002 (CASA)"));
    QCOMPARE(sala.Codigos(Serie::A, "REC"), QStringList{"ARBOL"});
    // One alone is the last, too.
    QVERIFY(!Guardar_Libreria("_:001ARBOL", Destino::Base, "REC2").Completa());
    QVERIFY(sala.Codigos(Serie::A, "REC2").isEmpty());
}

void TestRecepcion_Libreria::un_codigo_largo_se_guarda_y_se_dice()
{
    const Sala_Librerias sala;
    const Libreria_Guardada hecho =
        Guardar_Libreria("_:001ABCDEFGHIJK_:0021234567890_", Destino::Base, "REC");
    QCOMPARE(hecho.avisos.size(), 1);
    QVERIFY(hecho.avisos[0].contains("nº001 (ABCDEFGHIJK)"));
    QCOMPARE(sala.Codigos(Serie::A, "REC"), (QStringList{"ABCDEFGHIJK", "1234567890"}));
}

void TestRecepcion_Libreria::a_fichero_deja_la_base()
{
    const Sala_Librerias sala;
    sala.Escribir("l.txt", "lo de antes, más largo que lo nuevo");
    const QSignalSpy avisos(&Sucesos::Unico(), &Sucesos::librerias_cambiadas);
    QVERIFY(Guardar_Libreria("_:007ARBOL     _:002X`SEÑAL  _", Destino::Fichero, sala.Ruta("l.txt"))
                .Completa());
    QCOMPARE(sala.Leer("l.txt"), QByteArray("007ARBOL\r\n002SE\xD1"
                                            "AL\r\n"));
    QCOMPARE(sala.Claves(Serie::A), (QStringList{"GEN", "VACIA"}));
    QCOMPARE(avisos.size(), 0);
}

void TestRecepcion_Libreria::lo_que_falla_no_deja_nada()
{
    const Sala_Librerias sala;
    const Libreria_Guardada repetida = Guardar_Libreria("_:001X         _", Destino::Base, "GEN");
    QVERIFY(repetida.error);
    QCOMPARE(repetida.error->numero, 3022);
    QCOMPARE(repetida.codigos, 0);
    QCOMPARE(sala.Codigos(Serie::A, "GEN"), (QStringList{"ARBOL", "CASA", "MURO"}));
    QVERIFY(
        !Guardar_Libreria("_:001X         _", Destino::Fichero, sala.Ruta("no/x.txt")).Completa());
    QVERIFY(sala.interfaz.avisos.isEmpty());
}

void TestRecepcion_Libreria::lo_recibido_vuelve_a_salir_igual()
{
    const Sala_Librerias sala;
    const QString enviado = Texto_Libreria("\6ARBOL\6\6CASA GRAN1\6Z9");
    QVERIFY(Guardar_Libreria(enviado + "_", Destino::Base, "REC").Completa());
    // Fifty records went out and fifty came; what the list shows ends with the last code.
    QCOMPARE(sala.Columna("SELECT Codigos FROM Lib1 WHERE CoD = 'REC'")[0].count(QChar(6)), 50);
    QCOMPARE(sala.Codigos(Serie::A, "REC"), (QStringList{"ARBOL", "", "CASA GRAN1", "Z9"}));
    const Serie_Librerias& a = Librerias_De(Serie::A);
    QCOMPARE(a.texto_envio("REC", Leer_Codigos(*Base_Datos, a, "REC")), enviado);
}

void TestRecepcion_Libreria::la_eleccion_de_destino()
{
    Sala_Librerias sala;
    Eleccion_Destino e;
    QCOMPARE(e.rotulo, QString("Librería:"));
    QVERIFY(!e.hay_fichero);
    QVERIFY(!e.Aceptar());
    e.nombre = "GEN";
    QVERIFY(!e.Aceptar());
    QCOMPARE(sala.Tomar_Avisos(),
             (QStringList{"Debe especificar un nombre de fichero",
                          "La Librería de códigos ya existe en la Base de Datos"}));
    QCOMPARE(e.elegido.destino, Destino::Ninguno);
    e.Elegir(Destino::Fichero);
    QCOMPARE(e.rotulo, QString("Fichero:"));
    QVERIFY(e.hay_fichero);
    sala.interfaz.ficheros = {std::nullopt, Fichero_Elegido{sala.Ruta("nuevo.txt")}};
    e.Ubicar_Fichero();
    QCOMPARE(e.nombre, QString("GEN"));
    e.Ubicar_Fichero();
    QVERIFY(sala.interfaz.peticiones[1].guardar);
    QVERIFY(e.Aceptar());
    QCOMPARE(e.elegido.destino, Destino::Fichero);
    QCOMPARE(e.elegido.nombre, sala.Ruta("nuevo.txt"));
    sala.Escribir("nuevo.txt", "x");
    sala.interfaz.respuestas = {false};
    QVERIFY(!e.Aceptar());
    sala.Tomar_Avisos();
    e.nombre = QString(30, u'L');
    e.Elegir(Destino::Base);
    QCOMPARE(e.nombre.size(), 20);
    QVERIFY(e.Aceptar());
    QCOMPARE(e.elegido.destino, Destino::Base);
}

void TestRecepcion_Libreria::el_arranque_sigue_su_orden()
{
    const Sala_Librerias sala;
    QStringList orden;
    Peticiones_De_Transfer().Ocultar_FrmIni = [&] { orden << "oculta"; };
    Peticiones_De_Transfer().Mostrar_Recordatorio = [&] { orden << "recuerda"; };
    Peticiones_De_Transfer().Mostrar_Pasos = [&](const QString& t, const QString& o) {
        orden << t + o;
    };
    Peticiones_De_Codigos().Pedir_Destino = [&] {
        orden << "pide";
        return std::optional<Destino_Libreria>({Destino::Fichero, "f.txt"});
    };
    Ayuda_Recuerde = Ayuda_Visible = true;
    Recibir_Libreria(2);
    QCOMPARE(orden, (QStringList{"oculta", "pide", "recuerda", "D2"}));
    QCOMPARE(sala.en_splash.size(), 1);
    QCOMPARE(sala.en_splash[0].nombre, QString("f.txt"));
    Ayuda_Recuerde = Ayuda_Visible = false;
    orden.clear();
    Recibir_Libreria(2);
    QCOMPARE(orden, (QStringList{"oculta", "pide"}));
    Peticiones_De_Codigos().Pedir_Destino = [] { return std::optional<Destino_Libreria>(); };
    Recibir_Libreria(2);
    QCOMPARE(sala.en_splash.size(), 2);
}

PRUEBA(TestRecepcion_Libreria)
#include "TestRecepcion_Libreria.moc"
