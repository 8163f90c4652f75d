#include "core/Configuracion.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sin_Privilegios.h"

#include <QSignalSpy>

namespace {

const QByteArray INI =
    "; Ajustes\r\n[COMUNICACIONES]\r\nPORT=COM3\r\nVELOCIDAD=9600\r\nBITS=8\r\n"
    "PARIDAD=None\r\nSTOP=1\r\nHARD=x\r\n[ESTACION]\r\nKRTNOM=KRT305\r\n"
    "KRT=KRT300\r\n[INI]\r\nFIJO=True\r\n[AYUDA]\r\nVisible=SI\r\nRecuerde=SI\r\n"
    "[OFFSET]\r\nCargas=SI\r\nExportar=SI\r\n[CABECERAS]\r\nMostrar=SI\r\n";

} // namespace

class TestConfiguracion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void todas_las_claves();
    void una_linea_suelta_data();
    void una_linea_suelta();
    void sin_claves_todo_queda_vacio();
    void el_modelo_se_lee_en_su_linea();
    void un_modelo_desconocido_no_avisa_al_arrancar();
    void los_caminos_del_arranque();
    void los_finales_de_linea_data();
    void los_finales_de_linea();
    void sin_ini_se_acaba();
    void un_ini_que_es_carpeta_se_acaba();
    void la_base_que_falta_sale_de_la_plantilla();
    void una_base_vacia_es_una_danada();
    void de_una_danada_se_ofrece_la_copia_data();
    void de_una_danada_se_ofrece_la_copia();
    void los_restos_de_la_base_perdida_no_cuentan();
    void sin_plantilla_se_acaba();
    void la_base_ajena_se_informa_como_mal_ini_data();
    void la_base_ajena_se_informa_como_mal_ini();
    void la_plantilla_ajena_se_informa_como_base();
    void un_ini_que_falta_tras_copiar_se_informa_como_base();
    void una_carpeta_de_solo_lectura_se_acaba();
    void cargar_estacion_busca_por_nombre();
    void guardar_escribe_todo_en_orden();
    void guardar_quita_hard_y_conserva_lo_ajeno();
    void cada_ajuste_tiene_su_fila();
    void guardar_y_volver_a_leer();
    void guardar_sin_permiso_avisa_y_conserva();
    void la_lista_de_puertos_con_su_doble_y_su_hueco();
    void el_panel_de_la_estacion();
    void los_avisos_se_guardan_en_el_acto();

private:
    bool Cargar(const QByteArray& ini);
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestConfiguracion::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    p->Fila("KRT", {{"Nombre", "KRT305"},
                    {"Clave", "KRT300"},
                    {"VelPuerto", "1200,9600"},
                    {"FormatoCoord", "7,3"}});
}

void TestConfiguracion::cleanup()
{
    interfaz.reset();
    p.reset();
}

bool TestConfiguracion::Cargar(const QByteArray& ini)
{
    p->Escribir("EstTotal.ini", ini);
    return Cargar_Configuracion(Ruta_Aplicacion);
}

void TestConfiguracion::todas_las_claves()
{
    QVERIFY(Cargar(INI));
    QCOMPARE((QStringList{Puerto, Velocidad, Bits_Datos, Paridad, Bits_Parada, Hard,
                          Nombre_Estacion, Clave_Estacion}),
             (QStringList{"COM3", "9600", "8", "None", "1", "x", "KRT305", "KRT300"}));
    QVERIFY(Modelo_Fijo && Ayuda_Visible && Ayuda_Recuerde && Offset_Cargas && Offset_Exportar &&
            Mostrar_Cabeceras);
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,9600"));
    QCOMPARE(Formato_Coord, QStringLiteral("7,3"));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestConfiguracion::una_linea_suelta_data()
{
    QTest::addColumn<QByteArray>("lineas");
    QTest::addColumn<QString>("puerto");
    QTest::addColumn<QString>("velocidad");
    QTest::addColumn<bool>("ayuda");
    QTest::addColumn<bool>("fijo");
    const QString nada, c3 = "COM3";
    QTest::newRow("comentario") << QByteArray(";PORT=COM3") << nada << nada << false << false;
    QTest::newRow("blanco en la clave")
        << QByteArray("PORT = COM3") << nada << nada << false << false;
    QTest::newRow("blanco delante") << QByteArray(" PORT=COM3") << nada << nada << false << false;
    QTest::newRow("vacio") << QByteArray("PORT=COM3\r\nPORT=") << nada << nada << false << false;
    QTest::newRow("valor sin recortar")
        << QByteArray("PORT= COM3 ") << " COM3 " << nada << false << false;
    QTest::newRow("en otra seccion")
        << QByteArray("[INI]\r\nVELOCIDAD=9600") << nada << "9600" << false << false;
    QTest::newRow("minusculas") << QByteArray("port=COM3") << nada << nada << false << false;
    QTest::newRow("si minusculo") << QByteArray("Visible=si") << nada << nada << false << false;
    QTest::newRow("SI") << QByteArray("Visible=SI") << nada << nada << true << false;
    QTest::newRow("SI y blanco") << QByteArray("Visible=SI ") << nada << nada << false << false;
    QTest::newRow("SI y luego No")
        << QByteArray("Visible=SI\nVisible=No") << nada << nada << false << false;
    QTest::newRow("True") << QByteArray("FIJO=True") << nada << nada << false << true;
    QTest::newRow("true") << QByteArray("FIJO=true") << nada << nada << false << false;
    QTest::newRow("SI no es True") << QByteArray("FIJO=SI") << nada << nada << false << false;
    QTest::newRow("la ultima vale")
        << QByteArray("PORT=COM1\r\n[OTRA]\r\nPORT=COM3") << c3 << nada << false << false;
    QTest::newRow("dos iguales") << QByteArray("PORT=A=B") << "A=B" << nada << false << false;
    QTest::newRow("igual delante")
        << QByteArray("=COM3\r\nPORT=COM3") << c3 << nada << false << false;
    QTest::newRow("sin igual") << QByteArray("PORT\r\n\r\nVELOCIDAD=1") << nada << "1" << false
                               << false;
    QTest::newRow("seccion con igual")
        << QByteArray("[PORT=COM3") << nada << nada << false << false;
    QTest::newRow("linea enorme") << QByteArray("PORT=COM3\r\nX=") + QByteArray(3000000, 'y') << c3
                                  << nada << false << false;
    QTest::newRow("binario") << QByteArray("\0\1\xFF=\x80\r\nPORT=COM3", 16) << c3 << nada << false
                             << false;
}

void TestConfiguracion::una_linea_suelta()
{
    QFETCH(QByteArray, lineas);
    QFETCH(QString, puerto);
    QFETCH(QString, velocidad);
    QFETCH(bool, ayuda);
    QFETCH(bool, fijo);
    QVERIFY(Cargar(lineas));
    QCOMPARE(Puerto, puerto);
    QCOMPARE(Velocidad, velocidad);
    QCOMPARE(Ayuda_Visible, ayuda);
    QCOMPARE(Modelo_Fijo, fijo);
}

void TestConfiguracion::sin_claves_todo_queda_vacio()
{
    QVERIFY(Cargar("[COMUNICACIONES]\r\n"));
    QVERIFY(Puerto.isEmpty() && Nombre_Estacion.isEmpty() && Clave_Estacion.isEmpty());
    QVERIFY(!Modelo_Fijo && !Ayuda_Recuerde);
    QVERIFY(Vel_Puerto.isEmpty());
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestConfiguracion::el_modelo_se_lee_en_su_linea()
{
    QSignalSpy estacion(&Sucesos::Unico(), &Sucesos::estacion_cargada);
    QStringList vistos;
    const auto conexion = connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado, this, [&] {
        vistos << Nombre_Estacion + u'/' + Clave_Estacion + u'/' + Puerto;
    });
    QVERIFY(Cargar("KRT=KRT300\r\nKRTNOM=KRT305\r\nPORT=COM1\r\nKRTNOM=Otro\r\n"));
    disconnect(conexion);
    QCOMPARE(vistos, (QStringList{"KRT305/KRT300/", "Otro/KRT300/COM1"}));
    QCOMPARE(estacion.count(), 2);
    QCOMPARE(estacion[0][0].toString(), QStringLiteral("KRT305"));
    QCOMPARE(estacion[1][0].toString(), QStringLiteral("Otro"));
}

void TestConfiguracion::un_modelo_desconocido_no_avisa_al_arrancar()
{
    Vel_Puerto = "300";
    QVERIFY(Cargar("KRTNOM=Otro\r\n"));
    QCOMPARE(Nombre_Estacion, QStringLiteral("Otro"));
    QCOMPARE(Vel_Puerto, QStringLiteral("300"));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestConfiguracion::los_caminos_del_arranque()
{
    QVERIFY(Cargar(INI));
    QCOMPARE(Fichero_Ayuda, Ruta_Aplicacion + "/hlp/EstTotal.hlp");
    QCOMPARE(Ruta_MDB, Ruta_Aplicacion + "/MDB");
    QCOMPARE(Fichero_MDB, Ruta_Aplicacion + "/MDB/EstTotal.mdb");
    QVERIFY(Base_Datos && Base_Datos->Abierta());
}

void TestConfiguracion::los_finales_de_linea_data()
{
    QTest::addColumn<QByteArray>("fin");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR") << QByteArray("\r");
}

void TestConfiguracion::los_finales_de_linea()
{
    QFETCH(QByteArray, fin);
    QVERIFY(Cargar(QByteArray(INI).replace("\r\n", fin)));
    QCOMPARE(Puerto, QStringLiteral("COM3"));
    QVERIFY(Mostrar_Cabeceras);
}

void TestConfiguracion::sin_ini_se_acaba()
{
    QVERIFY(!Cargar_Configuracion(Ruta_Aplicacion));
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(
        interfaz->Textos()[0].startsWith("Se Produjo un error al leer el Fichero .ini "
                                         "EstTotal.ini\r\n(53) No se ha encontrado el archivo"));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    QVERIFY(!Base_Datos);
}

void TestConfiguracion::un_ini_que_es_carpeta_se_acaba()
{
    QVERIFY(QDir(Ruta_Aplicacion).mkdir("EstTotal.ini"));
    QVERIFY(!Cargar_Configuracion(Ruta_Aplicacion));
    QVERIFY(interfaz->Textos()[0].startsWith(
        "Se Produjo un error al leer el Fichero .ini EstTotal.ini\r\n(75)"));
}

void TestConfiguracion::la_base_que_falta_sale_de_la_plantilla()
{
    Base_Datos.reset();
    QVERIFY(QFile::rename(Fichero_MDB, p->Ruta("DAT/Database.mdb")));
    const QByteArray plantilla = p->Leer("DAT/Database.mdb");
    QVERIFY(QDir(Ruta_MDB).removeRecursively());
    QVERIFY(Cargar(INI));
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,9600"));
    p->Fila("KRT", {{"Nombre", "Mio"}});
    Base_Datos.reset();
    QCOMPARE(p->Leer("DAT/Database.mdb"), plantilla);
    // The factory state is one deletion away.
    QVERIFY(QFile::remove(Fichero_MDB));
    QVERIFY(Cargar(INI));
    QCOMPARE(p->Columna("SELECT Nombre FROM KRT"), QStringList{"KRT305"});
}

void TestConfiguracion::una_base_vacia_es_una_danada()
{
    Base_Datos.reset();
    QVERIFY(QFile::rename(Fichero_MDB, p->Ruta("DAT/Database.mdb")));
    p->Escribir("MDB/EstTotal.mdb", "");
    // An empty one in its place would pass for the user's, and his sessions for never stored.
    QVERIFY(!Cargar(INI));
    QVERIFY(interfaz->Textos()[0].startsWith(
        "Se Produjo un error al leer el Fichero .ini EstTotal.ini\r\n(3343)"));
    QCOMPARE(QFileInfo(Fichero_MDB).size(), 0);
}

void TestConfiguracion::de_una_danada_se_ofrece_la_copia_data()
{
    QTest::addColumn<bool>("si");
    QTest::newRow("sí") << true;
    QTest::newRow("no") << false;
}

void TestConfiguracion::de_una_danada_se_ofrece_la_copia()
{
    QFETCH(bool, si);
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Base_Datos.reset();
    const QByteArray mala = p->Leer("MDB/EstTotal.mdb").left(3000);
    p->Escribir("MDB/EstTotal.mdb", mala);
    interfaz->respuestas = {si};
    QCOMPARE(Cargar(INI), si);
    QVERIFY(interfaz->Textos()[0].contains("Hay una copia del "));
    QVERIFY(interfaz->Textos()[0].contains(", 1 sesión"));
    QCOMPARE(interfaz->avisos.size(), si ? 1 : 2);
    const QStringList apartadas =
        QDir(Ruta_MDB).entryList({"EstTotal_apartada_*.mdb"}, QDir::Files);
    if (si) {
        QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
        QCOMPARE(apartadas.size(), 1);
        QCOMPARE(p->Leer("MDB/" + apartadas[0]), mala);
    } else {
        QVERIFY(apartadas.isEmpty());
        QCOMPARE(p->Leer("MDB/EstTotal.mdb"), mala);
    }
}

void TestConfiguracion::los_restos_de_la_base_perdida_no_cuentan()
{
    QFile::copy(Fichero_MDB, p->Ruta("DAT/Database.mdb"));
    p->Fila("KRT", {{"Nombre", "Perdido"}});
    const QByteArray diario = p->Leer("MDB/EstTotal.mdb-wal");
    QVERIFY(!diario.isEmpty());
    Base_Datos.reset();
    QFile::copy(Fichero_MDB, p->Ruta("DAT/Database2.mdb"));
    QFile::remove(p->Ruta("DAT/Database.mdb"));
    QFile::rename(p->Ruta("DAT/Database2.mdb"), p->Ruta("DAT/Database.mdb"));
    QFile::remove(Fichero_MDB);
    p->Escribir("MDB/EstTotal.mdb-wal", diario);
    p->Escribir("MDB/EstTotal.mdb-journal", "resto");
    QVERIFY(Cargar(INI));
    QVERIFY(!QFile::exists(Fichero_MDB + "-journal"));
    QCOMPARE(p->Columna("PRAGMA integrity_check"), QStringList{"ok"});
    QCOMPARE(p->Columna("SELECT Nombre FROM KRT"), (QStringList{"KRT305", "Perdido"}));
}

void TestConfiguracion::sin_plantilla_se_acaba()
{
    Base_Datos.reset();
    QFile::remove(Fichero_MDB);
    QVERIFY(!Cargar(INI));
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->Textos()[0].startsWith(
        "Se produjo un error al iniciar la Base de Datos\r(53) No se ha encontrado el archivo"));
    QVERIFY(!QFile::exists(Fichero_MDB));
}

void TestConfiguracion::la_base_ajena_se_informa_como_mal_ini_data()
{
    QTest::addColumn<int>("corte");
    QTest::newRow("ajena") << -1;
    QTest::newRow("truncada") << 5000;
    QTest::newRow("un byte") << 1;
}

void TestConfiguracion::la_base_ajena_se_informa_como_mal_ini()
{
    QFETCH(int, corte);
    Base_Datos.reset();
    const QByteArray mala = corte < 0 ? QByteArray("Otra cosa").repeated(1000)
                                      : p->Leer("MDB/EstTotal.mdb").left(corte);
    p->Escribir("MDB/EstTotal.mdb", mala);
    QVERIFY(!Cargar(INI));
    QCOMPARE(
        interfaz->Textos(),
        QStringList{
            "Se Produjo un error al leer el Fichero .ini EstTotal.ini\r\n(3343) Formato de base "
            "de datos no reconocido: " +
            Fichero_MDB});
    QCOMPARE(p->Leer("MDB/EstTotal.mdb"), mala);
}

void TestConfiguracion::la_plantilla_ajena_se_informa_como_base()
{
    Base_Datos.reset();
    QFile::remove(Fichero_MDB);
    p->Escribir("DAT/Database.mdb", "Otra cosa");
    QVERIFY(!Cargar(INI));
    QVERIFY(interfaz->Textos()[0].startsWith(
        "Se produjo un error al iniciar la Base de Datos\r(3343)"));
    // Nor does the next start take the copy for the user's database.
    QVERIFY(!QFile::exists(Fichero_MDB));
    QVERIFY(!Cargar(INI));
    QVERIFY(interfaz->Textos()[1].startsWith("Se produjo un error al iniciar la Base de Datos\r"));
}

void TestConfiguracion::un_ini_que_falta_tras_copiar_se_informa_como_base()
{
    Base_Datos.reset();
    QVERIFY(QFile::rename(Fichero_MDB, p->Ruta("DAT/Database.mdb")));
    QVERIFY(!Cargar_Configuracion(Ruta_Aplicacion));
    QVERIFY(
        interfaz->Textos()[0].startsWith("Se produjo un error al iniciar la Base de Datos\r(53)"));
}

void TestConfiguracion::una_carpeta_de_solo_lectura_se_acaba()
{
    p->Escribir("EstTotal.ini", INI);
    Base_Datos.reset();
    const QByteArray antes = p->Leer("MDB/EstTotal.mdb");
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        QVERIFY(!Cargar_Configuracion(Ruta_Aplicacion));
    }
    QVERIFY(interfaz->Textos()[0].startsWith(
        "Se Produjo un error al leer el Fichero .ini EstTotal.ini\r\n(3051)"));
    QCOMPARE(p->Leer("MDB/EstTotal.mdb"), antes);
    QFile::remove(Fichero_MDB);
    p->Escribir("DAT/Database.mdb", antes);
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        QVERIFY(!Cargar_Configuracion(Ruta_Aplicacion));
    }
    QVERIFY(
        interfaz->Textos()[1].startsWith("Se produjo un error al iniciar la Base de Datos\r(70)"));
    QVERIFY(!QFile::exists(Fichero_MDB));
}

void TestConfiguracion::cargar_estacion_busca_por_nombre()
{
    const QSignalSpy estacion(&Sucesos::Unico(), &Sucesos::estacion_cargada);
    Cargar_Estacion("KRT305");
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,9600"));
    // The model dialog hands in the key: no row has that name, and what was loaded stays.
    Cargar_Estacion("KRT300");
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,9600"));
    QCOMPARE(estacion.count(), 2);
}

static Ajustes Otros_Ajustes()
{
    Ajustes a;
    a.puerto = "COM10";
    a.velocidad = "1200";
    a.bits = "7";
    a.paridad = "Odd";
    a.parada = "2";
    a.nombre = "KRT305";
    a.clave = "KRT300";
    a.recuerde = a.exportar = true;
    return a;
}

void TestConfiguracion::guardar_escribe_todo_en_orden()
{
    const QSignalSpy guardados(&Sucesos::Unico(), &Sucesos::ajustes_guardados);
    QVERIFY(Guardar_Configuracion(Otros_Ajustes()));
    QCOMPARE(p->Leer("EstTotal.ini"),
             QByteArray(
                 "[COMUNICACIONES]\r\nPORT=COM10\r\nVELOCIDAD=1200\r\nBITS=7\r\nPARIDAD=Odd\r\n"
                 "STOP=2\r\n[ESTACION]\r\nKRTNOM=KRT305\r\nKRT=KRT300\r\n[INI]\r\nFIJO=False\r\n"
                 "[AYUDA]\r\nVisible=NO\r\nRecuerde=SI\r\n[OFFSET]\r\nCargas=NO\r\nExportar=SI\r\n"
                 "[CABECERAS]\r\nMostrar=NO\r\n"));
    QCOMPARE(Puerto, QStringLiteral("COM10"));
    QVERIFY(Ayuda_Recuerde && Offset_Exportar && !Ayuda_Visible);
    QCOMPARE(guardados.count(), 1);
}

void TestConfiguracion::guardar_quita_hard_y_conserva_lo_ajeno()
{
    QVERIFY(Cargar(INI + "[MIA]\r\notra=1\r\n"));
    QVERIFY(Guardar_Configuracion(Ajustes_Actuales()));
    QCOMPARE(p->Leer("EstTotal.ini"),
             QByteArray(INI).replace("HARD=x\r\n", "") + "[MIA]\r\notra=1\r\n");
}

void TestConfiguracion::cada_ajuste_tiene_su_fila()
{
    QStringList claves, controles;
    QSet<const void*> globales;
    for (const Ajuste& fila : Tabla_Ajustes()) {
        claves << QString::fromLatin1(fila.clave);
        if (*fila.control != 0) controles << QString::fromLatin1(fila.control);
        globales << std::visit([](const auto& l) { return static_cast<const void*>(l.global); },
                               fila.lugar);
    }
    QCOMPARE(claves.join(u' '),
             QString("PORT VELOCIDAD BITS PARIDAD STOP HARD KRTNOM KRT FIJO Visible "
                     "Recuerde Cargas Exportar Mostrar"));
    QCOMPARE(globales.size(), claves.size());
    QCOMPARE(controles.join(u' '),
             QString("Combo5 Combo1 Combo2 Combo3 Combo4 Combo6 Check1 Check2 "
                     "Check3 Check4 Check5 Check6"));
    // Each row, on and off, goes to its own global and key and to no other.
    for (const Ajuste& fila : Tabla_Ajustes()) {
        const auto* const marca = std::get_if<Ajuste_Marca>(&fila.lugar);
        if (!marca) continue;
        for (const bool puesta : {true, false}) {
            Ajustes a;
            a.*marca->valor = puesta;
            QVERIFY(Guardar_Configuracion(a));
            QCOMPARE(*marca->global, puesta);
            QCOMPARE(int(Modelo_Fijo) + Ayuda_Visible + Ayuda_Recuerde + Offset_Cargas +
                         Offset_Exportar + Mostrar_Cabeceras,
                     int(puesta));
            QCOMPARE(p->Leer("EstTotal.ini").count("=SI") + p->Leer("EstTotal.ini").count("=True"),
                     qsizetype(puesta));
            QVERIFY(p->Leer("EstTotal.ini")
                        .contains(QByteArray(fila.clave) + '=' + (puesta ? marca->si : marca->no)));
        }
    }
}

void TestConfiguracion::guardar_y_volver_a_leer()
{
    Ajustes a = Otros_Ajustes();
    a.velocidad = QString(); // a model without speeds
    a.fijo = true;
    p->Escribir("EstTotal.ini", INI);
    QVERIFY(Guardar_Configuracion(a));
    Velocidad = "x";
    Modelo_Fijo = false;
    QVERIFY(Cargar_Configuracion(Ruta_Aplicacion));
    QCOMPARE(Velocidad, QString());
    QCOMPARE(Puerto, QStringLiteral("COM10"));
    QVERIFY(Modelo_Fijo);
}

void TestConfiguracion::guardar_sin_permiso_avisa_y_conserva()
{
    const QSignalSpy guardados(&Sucesos::Unico(), &Sucesos::ajustes_guardados);
    p->Escribir("EstTotal.ini", INI);
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        QVERIFY(!Guardar_Configuracion(Otros_Ajustes()));
    }
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(
        interfaz->Textos()[0].startsWith("Ocurrió un error al guardar la configuración\r\n(70) "));
    QCOMPARE(p->Leer("EstTotal.ini"), INI);
    QCOMPARE(guardados.count(), 0);
}

void TestConfiguracion::la_lista_de_puertos_con_su_doble_y_su_hueco()
{
    QCOMPARE(
        Lista_Puertos().join(u' '),
        QStringLiteral("COM1 COM2 COM3 COM4 COM5 COM6 COM7 COM8 COM9 COM10 COM10 COM12 COM11 COM14 "
                       "COM15 COM16"));
    QCOMPARE(Lista_Bits(), (QStringList{"8", "7"}));
    QCOMPARE(Lista_Paridades(), (QStringList{"Even", "Odd", "None"}));
    QCOMPARE(Lista_Paradas(), (QStringList{"1", "2"}));
}

void TestConfiguracion::el_panel_de_la_estacion()
{
    Nombre_Estacion = "KRT305";
    QCOMPARE(Texto_Panel_Estacion(), QStringLiteral("Modelo Estación : KRT305  "));
}

void TestConfiguracion::los_avisos_se_guardan_en_el_acto()
{
    p->Escribir("EstTotal.ini", "[AYUDA]\r\nVisible=SI\r\nRecuerde=SI\r\n");
    Ayuda_Visible = Ayuda_Recuerde = true;
    Guardar_Aviso("Visible", false, "No");
    QCOMPARE(p->Leer("EstTotal.ini"), QByteArray("[AYUDA]\r\nVisible=No\r\nRecuerde=SI\r\n"));
    QVERIFY(!Ayuda_Visible && Ayuda_Recuerde);
    Guardar_Aviso("Recuerde", false, "NO");
    Guardar_Aviso("Visible", true, "No");
    QCOMPARE(p->Leer("EstTotal.ini"), QByteArray("[AYUDA]\r\nVisible=SI\r\nRecuerde=NO\r\n"));
    QVERIFY(Ayuda_Visible && !Ayuda_Recuerde);
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        Guardar_Aviso("Visible", false, "No");
    }
    QVERIFY(!Ayuda_Visible);
    QVERIFY(interfaz->avisos.isEmpty());
}

PRUEBA(TestConfiguracion)
#include "TestConfiguracion.moc"
