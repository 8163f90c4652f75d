#include "conversions/biblioteca/Fichero_Lista.h"
#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Peticiones_Conversion.h"
#include "core/Ansi.h"
#include "core/Ficheros.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/krt800/Subida_Diseno.h"

namespace {

const QString FILTRO_ALINEACIONES = "QSV (*.eje)|*.eje|CLIP (*.plt)|*.plt";
const QString FILTRO_TRANSVERSALES =
    "CLIP TER (*.ter)|*.ter|CLIP TRV (*.trv)|*.trv|QSV (*.tra)|*.tra|CLIP REP (*.rep)|*.rep|"
    "ISTRAM (*.per)|*.per|HTRAZADO (*.asc)|*.asc|MXROAD (*.mxr)|*.mxr|LandXML (*.xml)|*.xml|"
    "Todos (*.*)|*.*";

QString Muestra(const QString& nombre)
{
    return DATOS_PRUEBA "/conversions/" + nombre;
}

} // namespace

class TestSubida_Diseno : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        Mover_Fichero_Lista({});
        Peticiones_De_Conversion() = {};
    }
    void coordenadas_data();
    void coordenadas();
    void coordenada_con_letras();
    void alineaciones_data();
    void alineaciones();
    void rasantes_data();
    void rasantes();
    void transversales_data();
    void transversales();
    void landxml_data();
    void landxml();
    void landxml_sin_eleccion_calla();
    void landxml_con_invalidos();
    void lo_omitido_se_dice_al_convertir_y_se_calla_al_enviar();
    void al_terminar_no_se_insiste();
    void la_extension_manda_en_la_forma();
    void dialogos_de_guardar();
    void dialogos_de_enviar();
    void un_fallo_no_envia();
    void invalidos_data();
    void invalidos();
    void cancelar_termina_la_conversion();
    void puntos_de_envio_data();
    void puntos_de_envio();
    void puntos_con_desplazamientos();
    void puntos_con_letras_no_se_envian();
    void convertido_pasa_como_esta();
    void cancelar_no_da_texto();

private:
    void Elegir(Interfaz_Guion& guion, const QString& nombre, int indice = 1)
    {
        guion.ficheros.push_back(Fichero_Elegido{nombre, indice});
    }
    using Rutina = void (*)(const QString&, int, const Envio_Diseno&);
    // Runs a routine that sends. @return what was sent, "(nada)" when nothing was
    QString Enviado(Rutina rutina, const QString& filtro, const QString& origen, int indice = 1)
    {
        Interfaz_Guion guion;
        Elegir(guion, origen, indice);
        QString texto = "(nada)";
        rutina(filtro, 0, {6, [&](const QString& t) { texto = t; }});
        textos = guion.Textos();
        return texto;
    }

    // Answers the choice with line `indice` of the list file; below 0 with none.
    void Elegir_Linea(int indice)
    {
        Mover_Fichero_Lista(base.Ruta("$$$$.EJE"));
        Peticiones_De_Conversion().Elegir_De_Lista = [this, indice] {
            lista = Tomar_Lista();
            return Eleccion_LandXML{indice, lista.value(indice)};
        };
    }

    Base_De_Prueba base;
    QStringList textos, lista;
};

void TestSubida_Diseno::coordenadas_data()
{
    QTest::addColumn<QString>("offset");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("texto");
    QTest::newRow("sin") << "0"
                         << "1234.5678"
                         << "1234.568";
    QTest::newRow("coma decimal") << "0"
                                  << "1234,5"
                                  << "1234.500";
    QTest::newRow("forma fija") << "0000012500"
                                << "1"
                                << "13.500";
    QTest::newRow("forma fija negativa") << "-0000012500"
                                         << "1"
                                         << "-11.500";
    QTest::newRow("su propio valor") << "12.5"
                                     << "1"
                                     << "13.500";
    QTest::newRow("exacta") << "0.2"
                            << "0.1"
                            << "0.300";
    QTest::newRow("el signo es de la suma") << "0"
                                            << "-0.0004"
                                            << "-0.000";
    QTest::newRow("la suma es cero") << "5"
                                     << "-5"
                                     << "0.000";
    QTest::newRow("el acarreo se corta") << "0"
                                         << "0.9996"
                                         << "0.100";
    QTest::newRow("el acarreo se corta, negativo") << "0"
                                                   << "-7.9999"
                                                   << "-7.100";
    QTest::newRow("medio al par de abajo") << "0"
                                           << "1.0005"
                                           << "1.000";
    QTest::newRow("medio al par de arriba") << "0"
                                            << "1.0015"
                                            << "1.002";
    QTest::newRow("entera grande") << "0"
                                   << "12345678.9"
                                   << "12345678.900";
    QTest::newRow("novecientas milesimas") << "0"
                                           << "0.9"
                                           << "0.900";
    QTest::newRow("entero") << "0"
                            << "9"
                            << "9.000";
}

void TestSubida_Diseno::coordenadas()
{
    QFETCH(QString, offset);
    QFETCH(QString, valor);
    QFETCH(QString, texto);
    QCOMPARE(Formato_Coordenada(offset, "7,3", valor, "6,3"), texto);
}

void TestSubida_Diseno::coordenada_con_letras()
{
    for (const char* valor : {"", "1O.5", "1.2.3", "abc"})
        QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Formato_Coordenada("0", "7,3", valor, "6,3"));
}

void TestSubida_Diseno::alineaciones_data()
{
    QTest::addColumn<QString>("muestra");
    for (const char* m :
         {"eje1.plt", "eje1.eje", "eje1.asc", "eje1.res", "eje1.htr", "eje1.txt", "eje1.ali"})
        QTest::newRow(m) << m;
}

void TestSubida_Diseno::alineaciones()
{
    QFETCH(QString, muestra);
    const QString esperado = Ansi::A_Texto(Ficheros::Leer(Muestra(muestra + ".ssh")));
    QCOMPARE(Enviado(Subir_Alineaciones, FILTRO_ALINEACIONES, Muestra(muestra)), esperado);
    QVERIFY(textos.isEmpty());
    // The temporary file stays behind, and the next conversion overwrites it.
    QCOMPARE(Ansi::A_Texto(base.Leer("miraldos.$$$")), esperado);
}

void TestSubida_Diseno::rasantes_data()
{
    QTest::addColumn<QString>("muestra");
    // A ".txt" is MXROAD's among the alignments and ISTRAM's here.
    for (const char* m : {"eje1.alz", "eje1_ras.txt", "eje1.ras"})
        QTest::newRow(m) << m;
}

void TestSubida_Diseno::rasantes()
{
    QFETCH(QString, muestra);
    QCOMPARE(Enviado(Subir_Rasantes, "x|*.x", Muestra(muestra)),
             Ansi::A_Texto(Ficheros::Leer(Muestra(muestra + ".ssv"))));
    QVERIFY(textos.isEmpty());
}

void TestSubida_Diseno::transversales_data()
{
    QTest::addColumn<int>("indice");
    QTest::addColumn<QString>("muestra");
    QTest::newRow("trv") << 2 << "eje1.trv";
    QTest::newRow("tra") << 3 << "eje1.tra";
    QTest::newRow("rep") << 4 << "eje1.rep";
    QTest::newRow("per") << 5 << "eje1_is.per";
    QTest::newRow("asc") << 6 << "eje1_ht.asc";
    QTest::newRow("mxr") << 7 << "eje1.mxr";
}

void TestSubida_Diseno::transversales()
{
    QFETCH(int, indice);
    QFETCH(QString, muestra);
    QCOMPARE(Enviado(Subir_Transversales, FILTRO_TRANSVERSALES, Muestra(muestra), indice),
             Ansi::A_Texto(Ficheros::Leer(Muestra(muestra + ".ssp"))));
    QVERIFY(textos.isEmpty());
    // The chosen pattern decides, not the name: the terrain routine flattens without sorting.
    QCOMPARE(Enviado(Subir_Transversales, FILTRO_TRANSVERSALES, Muestra("eje1_t.plt"), 1)
                 .split("\r\n")[0],
             QString("    0.000,  -10.000,   101.250"));
    QCOMPARE(Enviado(Subir_Transversales, FILTRO_TRANSVERSALES, Muestra(muestra), 9),
             QString("(nada)"));
    QCOMPARE(textos[0], QString("La carga de Datos no se pudo realizar"));
}

void TestSubida_Diseno::landxml_data()
{
    QTest::addColumn<int>("clase");
    QTest::addColumn<QString>("entrada");
    QTest::addColumn<QString>("lista_esperada");
    QTest::addColumn<int>("linea");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("eje") << 0 << "eje1.xml"
                         << "eje1_ejes.lst" << 0 << "eje1.xml.ssh";
    QTest::newRow("rasante") << 1 << "eje1_v.xml"
                             << "eje1_ras.lst" << 0 << "eje1_v_A.ssv";
    QTest::newRow("terreno") << 2 << "eje1_t.xml"
                             << "eje1_tra.lst" << 0 << "eje1_t_T.ssp";
    QTest::newRow("proyecto") << 2 << "eje1_t.xml"
                              << "eje1_tra.lst" << 1 << "eje1_t_P.ssp";
}

void TestSubida_Diseno::landxml()
{
    QFETCH(int, clase);
    QFETCH(QString, entrada);
    QFETCH(QString, lista_esperada);
    QFETCH(int, linea);
    QFETCH(QString, esperado);
    Elegir_Linea(linea);
    const Rutina rutinas[] = {Subir_Alineaciones, Subir_Rasantes, Subir_Transversales};
    QCOMPARE(Enviado(rutinas[clase], FILTRO_TRANSVERSALES, Muestra(entrada), 8),
             Ansi::A_Texto(Ficheros::Leer(Muestra(esperado))));
    QVERIFY(textos.isEmpty());
    QCOMPARE(lista, Ficheros::Leer_Lineas(Muestra(lista_esperada)));
    QVERIFY(!QFile::exists(base.Ruta("$$$$.EJE")));
    QVERIFY(Tomar_Lista().isEmpty());
}

void TestSubida_Diseno::landxml_sin_eleccion_calla()
{
    for (const Rutina rutina : {Subir_Alineaciones, Subir_Rasantes, Subir_Transversales}) {
        Elegir_Linea(-1);
        QCOMPARE(Enviado(rutina, FILTRO_TRANSVERSALES, Muestra("eje1.xml"), 8), QString("(nada)"));
        QVERIFY(textos.isEmpty());
        // A file that can't be read has an empty list.
        Elegir_Linea(0);
        base.Escribir("malo.xml", "<LandXML><Alignments>");
        QCOMPARE(Enviado(rutina, FILTRO_TRANSVERSALES, base.Ruta("malo.xml"), 8),
                 QString("(nada)"));
        QVERIFY(textos.isEmpty() && lista.isEmpty());
    }
}

void TestSubida_Diseno::landxml_con_invalidos()
{
    Elegir_Linea(0);
    QCOMPARE(Enviado(Subir_Alineaciones, "A|*.a", Muestra("eje1_mal.xml")),
             Ansi::A_Texto(Ficheros::Leer(Muestra("eje1_mal.xml.ssh"))));
    QCOMPARE(textos[0], QString("Existen alineaciones no válidas"));
    Elegir_Linea(Ficheros::Leer_Lineas(Muestra("eje1_ras.lst")).indexOf("EJE B/R2"));
    QCOMPARE(Enviado(Subir_Rasantes, "A|*.a", Muestra("eje1_v.xml")),
             Ansi::A_Texto(Ficheros::Leer(Muestra("eje1_v_B2.ssv"))));
    QCOMPARE(textos[0], QString("Existen vértices de rasantes no válidos"));
}

void TestSubida_Diseno::lo_omitido_se_dice_al_convertir_y_se_calla_al_enviar()
{
    base.Escribir("roto.eje", "0 0 0 0 0 0 10\r\n5 x 2 3\r\n10 0 10 0\r\n");
    QVERIFY(Enviado(Subir_Alineaciones, "A|*.a", base.Ruta("roto.eje")).startsWith(u"INI"));
    QVERIFY(textos.isEmpty());
    Interfaz_Guion guion;
    Elegir(guion, base.Ruta("roto.eje"));
    Elegir(guion, base.Ruta("roto.ssh"));
    Subir_Alineaciones("A|*.a", 1, {6});
    QVERIFY(QFile::exists(base.Ruta("roto.ssh")));
    QCOMPARE(guion.Textos(), QStringList{"Lo que no se ha podido convertir:\r\n"
                                         "Línea 2: Fila ilegible, se omite: \"5 x 2 3\""});
}

void TestSubida_Diseno::al_terminar_no_se_insiste()
{
    Interfaz_Guion guion;
    guion.Terminar(0);
    bool enviado = false;
    Subir_Rasantes("A|*.a", 0, {8, [&](const QString&) { enviado = true; }});
    QVERIFY(!enviado && guion.peticiones.isEmpty());
}

void TestSubida_Diseno::la_extension_manda_en_la_forma()
{
    const auto guardado = [&](const QString& nombre, int indice) {
        Interfaz_Guion guion;
        Elegir(guion, Muestra("eje1.eje"));
        Elegir(guion, base.Ruta(nombre), indice);
        Subir_Alineaciones(FILTRO_ALINEACIONES, 1, {6, {}});
    };
    guardado("a.ssh", 1);
    QCOMPARE(base.Leer("a.ssh"), Ficheros::Leer(Muestra("eje1.eje.ssh")));
    guardado("a.HAL", 1);
    QCOMPARE(base.Leer("a.HAL"), Ficheros::Leer(Muestra("eje1.eje.hal")));
    // A name typed without extension takes that of the chosen form.
    guardado("b", 2);
    QCOMPARE(base.Leer("b.hal"), Ficheros::Leer(Muestra("eje1.eje.hal")));
}

void TestSubida_Diseno::dialogos_de_guardar()
{
    base.Fila("OPE", {{"OPE", 6}, {"DESOPE", "Alineaciones"}});
    base.Fila("KRT2",
              {{"Nombre", "KRT800"}, {"OPE", 6}, {"TipOpe", "C"}, {"DESOPE", "Alineaciones"}});
    const std::pair<Rutina, const char*> casos[] = {
        {Subir_Alineaciones,
         "Formato Miraldos (*.ssh)|*.ssh|Formato Miraldos 640/6000 (*.hal)|*.hal"},
        {Subir_Rasantes, "Formato Miraldos (*.ssv)|*.ssv"},
        {Subir_Transversales, "Formato Miraldos (*.ssp)|*.ssp"},
    };
    for (const auto& [rutina, filtro] : casos) {
        Interfaz_Guion guion;
        Elegir(guion, "no-existe.eje");
        Elegir(guion, base.Ruta("nada.ssh"));
        rutina("A|*.a|B|*.b", 1, {6, {}});
        QCOMPARE(guion.peticiones.size(), 2);
        QCOMPARE(guion.peticiones[0].titulo, QString("Alineaciones Seleccione Fichero"));
        QCOMPARE(guion.peticiones[0].filtro, QString("A|*.a|B|*.b"));
        QVERIFY(!guion.peticiones[0].guardar);
        QCOMPARE(guion.peticiones[1].titulo, QString("Guardar como ..."));
        QCOMPARE(guion.peticiones[1].filtro, QString(filtro));
        QVERIFY(guion.peticiones[1].guardar);
        QCOMPARE(guion.Textos()[0], QString("La carga de Datos no se pudo realizar"));
        QVERIFY(!QFile::exists(base.Ruta("nada.ssh")));
    }
}

void TestSubida_Diseno::dialogos_de_enviar()
{
    // Cancel and an empty name keep asking.
    Interfaz_Guion guion;
    guion.ficheros.push_back(std::nullopt);
    Elegir(guion, "");
    Elegir(guion, Muestra("eje1.ras"));
    int veces = 0;
    Subir_Rasantes("A|*.a", 0, {8, [&](const QString&) { ++veces; }});
    QCOMPARE(guion.peticiones.size(), 3);
    QCOMPARE(veces, 1);
}

void TestSubida_Diseno::un_fallo_no_envia()
{
    base.Escribir("miraldos.$$$", "de la vez anterior\r\n");
    QCOMPARE(Enviado(Subir_Rasantes, "A|*.a", Muestra("eje1.eje")), QString("(nada)"));
    QCOMPARE(textos.size(), 2);
    QCOMPARE(textos[0], QString("La carga de Datos no se pudo realizar"));
    QVERIFY(textos[1].contains("No hay conversión para los ficheros de este tipo"));
    QCOMPARE(Enviado(Subir_Alineaciones, "A|*.a", Muestra("puntos.krt")), QString("(nada)"));
    base.Escribir("vacio.plt", "");
    QCOMPARE(Enviado(Subir_Alineaciones, "A|*.a", base.Ruta("vacio.plt")), QString("(nada)"));
    QCOMPARE(textos[0], QString("La carga de Datos no se pudo realizar"));
}

void TestSubida_Diseno::invalidos_data()
{
    QTest::addColumn<bool>("rasante");
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("aviso"); // empty: passes without a word
    const QByteArray eje = "0 0 0 100 0 0 10\nmala\n1 x x x\n10 10 0 100 0 0 0\n";
    QTest::newRow("PLT") << false << "a.plt" << Ficheros::Leer(Muestra("eje1_mal.plt"))
                         << "Existen alineaciones no válidas";
    QTest::newRow("RAS") << true << "a.ras" << Ficheros::Leer(Muestra("eje1_mal.ras"))
                         << "Existen vértices de rasantes no válidos";
    QTest::newRow("EJE") << false << "a.eje" << eje << "";
    QTest::newRow("ALZ") << true << "a.alz" << QByteArray("*ALZ\n0,1C,0R\n5,5\n10,2C,0R\n") << "";
}

void TestSubida_Diseno::invalidos()
{
    QFETCH(bool, rasante);
    QFETCH(QString, nombre);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, aviso);
    base.Escribir(nombre, bytes);
    Interfaz_Guion guion;
    Elegir(guion, base.Ruta(nombre));
    QString texto;
    (rasante ? Subir_Rasantes : Subir_Alineaciones)("A|*.a", 0,
                                                    {6, [&](const QString& t) { texto = t; }});
    // What could be converted is sent all the same.
    QVERIFY(texto.contains("\r\n"));
    QCOMPARE(guion.avisos.isEmpty(), aviso.isEmpty());
    if (aviso.isEmpty()) return;
    QCOMPARE(guion.avisos.size(), 2);
    QCOMPARE(guion.avisos[0].texto, aviso);
    QCOMPARE(guion.avisos[0].icono, Icono::Exclamacion);
    QVERIFY(guion.avisos[1].texto.startsWith("Lo que no se ha podido convertir:"));
}

void TestSubida_Diseno::cancelar_termina_la_conversion()
{
    Interfaz_Guion guion;
    guion.ficheros.push_back(std::nullopt);
    Subir_Alineaciones("A|*.a", 1, {6, {}});
    Elegir(guion, Muestra("eje1.eje"));
    guion.ficheros.push_back(std::nullopt);
    Subir_Alineaciones("A|*.a", 1, {6, {}});
    QCOMPARE(guion.peticiones.size(), 3);
    QVERIFY(guion.avisos.isEmpty());
}

void TestSubida_Diseno::puntos_de_envio_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("separador");
    QTest::addColumn<QString>("texto");
    QTest::newRow("comas") << QByteArray("P1,1,2,3,ARB\r\nP2,-1.5,0,.25\r\n") << ","
                           << "P1,1.000,2.000,3.000,ARB\r\nP2,-1.500,0.000,0.250,\r\n";
    QTest::newRow("blancos seguidos") << QByteArray("  P1   1,5  2 3   ARB X\n") << " "
                                      << "P1,1.500,2.000,3.000,ARB\r\n";
    QTest::newRow("campos de mas") << QByteArray("P1;1;2;3;C;X\n") << ";"
                                   << "P1,1.000,2.000,3.000,C\r\n";
    QTest::newRow("linea corta repite la anterior")
        << QByteArray("P1,1,2,3,A\nP2,1,2\n\nP3,1,1,1,\n") << ","
        << "P1,1.000,2.000,3.000,A\r\nP1,1.000,2.000,3.000,A\r\nP3,1.000,1.000,1.000,\r\n";
    QTest::newRow("linea corta al principio") << QByteArray("P1\nP2,1,2,3\n") << ","
                                              << "\r\nP2,1.000,2.000,3.000,\r\n";
    QTest::newRow("lineas en blanco") << QByteArray("\n  \nP1,1,2,3\n\t\n") << ","
                                      << "P1,1.000,2.000,3.000,\r\n";
}

void TestSubida_Diseno::puntos_de_envio()
{
    QFETCH(QByteArray, fichero);
    QFETCH(QString, separador);
    const Interfaz_Guion guion;
    Desp_X = Desp_Y = Desp_Z = "1000";
    base.Escribir("p.asc", fichero);
    QString obtenido;
    QVERIFY(Leer_Fichero_Envio(base.Ruta("p.asc"), obtenido, separador, false, ENVIO_PUNTOS));
    QTEST(obtenido, "texto");
    QVERIFY(guion.avisos.isEmpty() && guion.procesos.isEmpty());
}

void TestSubida_Diseno::puntos_con_desplazamientos()
{
    const Interfaz_Guion guion;
    Desp_X = "10";
    Desp_Y = "-0000012500";
    Desp_Z = "0";
    base.Escribir("p.asc", "P1,1,2,3,A\n");
    QString texto;
    QVERIFY(Leer_Fichero_Envio(base.Ruta("p.asc"), texto, ",", true, ENVIO_PUNTOS));
    QCOMPARE(texto, QString("P1,11.000,-10.500,3.000,A\r\n"));
}

void TestSubida_Diseno::puntos_con_letras_no_se_envian()
{
    const Interfaz_Guion guion;
    base.Escribir("p.asc", "P1,1,2,3,A\nP2,1,x,3,A\n");
    QString texto;
    QVERIFY(!Leer_Fichero_Envio(base.Ruta("p.asc"), texto, ",", true, ENVIO_PUNTOS));
    QVERIFY(!Leer_Fichero_Envio(base.Ruta("no.asc"), texto, ",", true, ENVIO_PUNTOS));
    QCOMPARE(guion.avisos.size(), 2);
    QCOMPARE(guion.avisos[0].texto,
             QString("Se produjo un error al Procesar el Fichero\r(13) No coinciden los tipos "
                     "(línea 2: P2,1,x,3,A)"));
    QCOMPARE(guion.avisos[0].icono, Icono::Critico);
    QVERIFY(guion.avisos[1].texto.startsWith("Se produjo un error al Procesar el Fichero\r(53) "));
}

void TestSubida_Diseno::convertido_pasa_como_esta()
{
    const Interfaz_Guion guion;
    base.Escribir("t.ssp", "  a , b\n\nc\xD1");
    QString texto;
    QVERIFY(Leer_Fichero_Envio(base.Ruta("t.ssp"), texto, ",", false, ENVIO_CONVERTIDO));
    QCOMPARE(texto, QStringLiteral("  a , b\r\n\r\ncÑ\r\n"));
}

void TestSubida_Diseno::cancelar_no_da_texto()
{
    Interfaz_Guion guion;
    base.Escribir("t.asc", QByteArray("P1,1,2,3,A\r\n").repeated(1000));
    guion.al_pasar = [&] {
        if (guion.proceso_valor > guion.proceso_maximo / 2) Proceso_Cancelado = true;
    };
    QString texto;
    QVERIFY(!Leer_Fichero_Envio(base.Ruta("t.asc"), texto, ",", false, ENVIO_PUNTOS));
    QCOMPARE(guion.procesos, QStringList{"Procesando Fichero de Puntos..."});
    QCOMPARE(guion.procesos_abiertos, 0);
    QCOMPARE(guion.proceso_maximo, 12000);
    guion.al_pasar = {};
    texto.clear();
    QVERIFY(Leer_Fichero_Envio(base.Ruta("t.asc"), texto, ",", false, ENVIO_PUNTOS));
    QCOMPARE(guion.proceso_valor, 12000);
    QVERIFY(guion.avisos.isEmpty());
}

PRUEBA(TestSubida_Diseno)
#include "TestSubida_Diseno.moc"
