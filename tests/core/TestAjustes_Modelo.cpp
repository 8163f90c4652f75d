#include "core/Ajustes_Modelo.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QSignalSpy>

class TestAjustes_Modelo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void la_carga_llena_cada_lista();
    void un_modelo_sin_fila_acaba_la_carga();
    void aceptar_tras_un_modelo_sin_fila_guarda_no();
    void un_valor_fuera_de_su_lista_acaba_la_carga_data();
    void un_valor_fuera_de_su_lista_acaba_la_carga();
    void sin_modelos_se_informa_del_ini();
    void las_velocidades_del_modelo_data();
    void las_velocidades_del_modelo();
    void elegir_otro_modelo_cambia_solo_las_velocidades();
    void aceptar_toma_la_clave_por_su_lugar();
    void el_segundo_com10_guarda_com10();
    void la_lista_de_estaciones_va_en_su_orden();
    void la_foto_de_una_entrada();
    void aceptar_sin_entrada_pita();
    void aceptar_una_estacion_dura_lo_que_el_programa();
    void la_foto_inicial_se_busca_por_nombre();

private:
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestAjustes_Modelo::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    const QList<QStringList> modelos{{"PX7-2", "PX7", "px.png", "pxi.png", "1200,2400"},
                                     {"KRT305", "KRT300", "k.png", "ki.png", "1200,9600"},
                                     {"NV410", "NV400", "", "", "9600"}};
    for (const QStringList& m : modelos)
        p->Fila("KRT", {{"Nombre", m[0]},
                        {"Clave", m[1]},
                        {"Foto", m[2]},
                        {"Fotoini", m[3]},
                        {"VelPuerto", m[4]}});
    Puerto = "COM3";
    Velocidad = "9600";
    Bits_Datos = "8";
    Paridad = "None";
    Bits_Parada = "1";
    Nombre_Estacion = "KRT305";
    Clave_Estacion = "KRT300";
    Vel_Puerto = "1200,9600";
    Modelo_Fijo = Ayuda_Visible = Offset_Exportar = true;
}

void TestAjustes_Modelo::cleanup()
{
    interfaz.reset();
    p.reset();
}

void TestAjustes_Modelo::la_carga_llena_cada_lista()
{
    Carga_Frmutils c = Cargar_Frmutils();
    QVERIFY(interfaz->avisos.isEmpty());
    QCOMPARE(
        (QStringList{c.combos["Combo5"].texto, c.combos["Combo1"].texto, c.combos["Combo2"].texto,
                     c.combos["Combo3"].texto, c.combos["Combo4"].texto, c.combos["Combo6"].texto}),
        (QStringList{"COM3", "9600", "8", "None", "1", "KRT305"}));
    QCOMPARE(c.combos["Combo5"].lista, Lista_Puertos());
    QCOMPARE(c.combos["Combo6"].lista, (QStringList{"KRT305", "NV410", "PX7-2"}));
    QCOMPARE(c.claves, QStringLiteral("KRT300\u0006NV400\u0006PX7"));
    QVERIFY(c.casillas.fijo && c.casillas.ayuda && c.casillas.exportar && !c.casillas.recuerde &&
            !c.casillas.cargas && !c.casillas.cabeceras);
    QCOMPARE(c.animacion, p->Ruta("bmp/verifica.gif"));
}

void TestAjustes_Modelo::un_modelo_sin_fila_acaba_la_carga()
{
    Nombre_Estacion = "Otro";
    Carga_Frmutils c = Cargar_Frmutils();
    QCOMPARE(interfaz->Textos(),
             QStringList{"Se ha encontrado en el fichero ini una máquina no definida"});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    QCOMPARE(c.combos["Combo6"].texto, QStringLiteral("KRT305"));
    QVERIFY(c.casillas.fijo);
    QVERIFY(!c.casillas.ayuda && !c.casillas.exportar);
    QCOMPARE(c.animacion, QString());
}

void TestAjustes_Modelo::aceptar_tras_un_modelo_sin_fila_guarda_no()
{
    Nombre_Estacion = "Otro";
    Carga_Frmutils c = Cargar_Frmutils();
    QCOMPARE(interfaz->avisos.size(), 1);
    Ajustes a;
    a.nombre = c.combos["Combo6"].texto;
    a.ayuda = c.casillas.ayuda;
    a.exportar = c.casillas.exportar;
    QVERIFY(Aceptar_Frmutils(a, c.claves, 0));
    const QByteArray ini = p->Leer("EstTotal.ini");
    QVERIFY(ini.contains("Visible=NO\r\n") && ini.contains("Exportar=NO\r\n"));
    QVERIFY(ini.contains("KRTNOM=KRT305\r\nKRT=KRT300\r\n"));
}

void TestAjustes_Modelo::un_valor_fuera_de_su_lista_acaba_la_carga_data()
{
    QTest::addColumn<int>("cual");
    QTest::addColumn<int>("llenas");
    QTest::newRow("puerto") << 0 << 1;
    QTest::newRow("bits") << 1 << 2;
    QTest::newRow("paridad") << 2 << 3;
    QTest::newRow("parada") << 3 << 4;
}

void TestAjustes_Modelo::un_valor_fuera_de_su_lista_acaba_la_carga()
{
    QFETCH(int, cual);
    QFETCH(int, llenas);
    QString* const globales[] = {&Puerto, &Bits_Datos, &Paridad, &Bits_Parada};
    *globales[cual] = "even";
    Carga_Frmutils c = Cargar_Frmutils();
    QCOMPARE(
        interfaz->Textos(),
        QStringList{"Se produjo un error al leer el fichero de inicialización\rProbablemente el "
                    "fichero tenga un formato incorrecto o haya sido manipulado"});
    const Combo_Ajustes* const combos[] = {&c.combos["Combo5"], &c.combos["Combo2"],
                                           &c.combos["Combo3"], &c.combos["Combo4"]};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(combos[i]->lista.isEmpty(), i >= llenas);
    QCOMPARE(combos[cual]->texto, QString());
    QVERIFY(c.combos["Combo6"].lista.isEmpty());
    QVERIFY(!c.casillas.fijo && !c.casillas.ayuda);
}

void TestAjustes_Modelo::sin_modelos_se_informa_del_ini()
{
    Base_Datos->Execute("DELETE FROM KRT");
    Cargar_Frmutils();
    QCOMPARE(interfaz->avisos.size(), 2);
    QVERIFY(interfaz->Textos()[1].startsWith("Se produjo un error al leer el fichero de"));
}

void TestAjustes_Modelo::las_velocidades_del_modelo_data()
{
    QTest::addColumn<QString>("lista");
    QTest::addColumn<QStringList>("entradas");
    QTest::addColumn<QString>("texto");
    QTest::newRow("esta") << "1200,9600" << QStringList{"1200", "9600"} << "9600";
    QTest::newRow("no esta") << "1200,2400" << QStringList{"1200", "2400"} << "1200";
    QTest::newRow("una") << "300" << QStringList{"300"} << "300";
    QTest::newRow("ninguna") << "" << QStringList{""} << "";
}

void TestAjustes_Modelo::las_velocidades_del_modelo()
{
    QFETCH(QString, lista);
    QFETCH(QStringList, entradas);
    QFETCH(QString, texto);
    const Combo_Ajustes c = Lista_Velocidades(lista);
    QCOMPARE(c.lista, entradas);
    QCOMPARE(c.texto, texto);
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestAjustes_Modelo::elegir_otro_modelo_cambia_solo_las_velocidades()
{
    const auto c = Elegir_Modelo("PX7-2");
    QVERIFY(c.has_value());
    QCOMPARE(c->lista, (QStringList{"1200", "2400"}));
    QVERIFY(!Elegir_Modelo("Otro").has_value());
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,9600"));
    QCOMPARE(Nombre_Estacion, QStringLiteral("KRT305"));
}

void TestAjustes_Modelo::aceptar_toma_la_clave_por_su_lugar()
{
    const QSignalSpy cambiado(&Sucesos::Unico(), &Sucesos::modelo_cambiado);
    const QSignalSpy guardados(&Sucesos::Unico(), &Sucesos::ajustes_guardados);
    Carga_Frmutils c = Cargar_Frmutils();
    Ajustes a = Ajustes_Actuales();
    a.nombre = "PX7-2";
    a.fijo = false;
    QVERIFY(Aceptar_Frmutils(a, c.claves, 2));
    QCOMPARE(Clave_Estacion, QStringLiteral("PX7"));
    QCOMPARE(Nombre_Estacion, QStringLiteral("PX7-2"));
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,2400"));
    QVERIFY(!Modelo_Fijo);
    QVERIFY(p->Leer("EstTotal.ini").contains("KRTNOM=PX7-2\r\nKRT=PX7\r\n[INI]\r\nFIJO=False\r\n"));
    QCOMPARE(cambiado.count(), 1);
    QCOMPARE(guardados.count(), 1);
}

void TestAjustes_Modelo::el_segundo_com10_guarda_com10()
{
    Carga_Frmutils c = Cargar_Frmutils();
    for (const int lugar : {9, 10}) {
        Ajustes a = Ajustes_Actuales();
        a.puerto = c.combos["Combo5"].lista[lugar];
        QVERIFY(Aceptar_Frmutils(a, c.claves, 0));
        QVERIFY(p->Leer("EstTotal.ini").contains("PORT=COM10\r\n"));
        QCOMPARE(Numero_Puerto(Puerto), 0);
    }
}

void TestAjustes_Modelo::la_lista_de_estaciones_va_en_su_orden()
{
    const Lista_FrmKRT l = Leer_Estaciones();
    QCOMPARE(l.nombres, (QStringList{"PX7-2", "KRT305", "NV410"}));
    QCOMPARE(l.claves, (QStringList{"PX7", "KRT300", "NV400"}));
    QCOMPARE(l.fotos, QStringLiteral("px.png\u0006k.png\u0006"));
}

void TestAjustes_Modelo::la_foto_de_una_entrada()
{
    const Lista_FrmKRT l = Leer_Estaciones();
    QCOMPARE(Foto_De_Entrada(l, 1), QString());
    p->Escribir("bmphlp/k.png", "x");
    QCOMPARE(Foto_De_Entrada(l, 1), p->Ruta("bmphlp/k.png"));
    QCOMPARE(Foto_De_Entrada(l, 2), QString());
    QCOMPARE(Foto_De_Entrada(l, 9), QString());
}

void TestAjustes_Modelo::aceptar_sin_entrada_pita()
{
    const Lista_FrmKRT l = Leer_Estaciones();
    QVERIFY(!Aceptar_FrmKRT(l, -1));
    QCOMPARE(interfaz->pitidos, 1);
    QCOMPARE(Nombre_Estacion, QStringLiteral("KRT305"));
}

void TestAjustes_Modelo::aceptar_una_estacion_dura_lo_que_el_programa()
{
    const QSignalSpy estacion(&Sucesos::Unico(), &Sucesos::estacion_cargada);
    const QSignalSpy cambiado(&Sucesos::Unico(), &Sucesos::modelo_cambiado);
    QVERIFY(Aceptar_FrmKRT(Leer_Estaciones(), 2));
    QCOMPARE(Nombre_Estacion, QStringLiteral("NV410"));
    QCOMPARE(Clave_Estacion, QStringLiteral("NV400"));
    // Called with the key: no row has that name, the speeds stay, and "Códigos" learns the family.
    QCOMPARE(estacion.count(), 1);
    QCOMPARE(estacion[0][0].toString(), QStringLiteral("NV400"));
    QCOMPARE(cambiado.count(), 1);
    QCOMPARE(Vel_Puerto, QStringLiteral("1200,9600"));
    QVERIFY(!QFile::exists(p->Ruta("EstTotal.ini")));
}

void TestAjustes_Modelo::la_foto_inicial_se_busca_por_nombre()
{
    QCOMPARE(Cargar_Foto_Estacion("KRT305"), QString());
    p->Escribir("bmphlp/ini/ki.png", "x");
    QCOMPARE(Cargar_Foto_Estacion("KRT305"), p->Ruta("bmphlp/ini/ki.png"));
    QCOMPARE(Cargar_Foto_Estacion("KRT300"), QString());
    QCOMPARE(Cargar_Foto_Estacion("NV410"), QString());
}

PRUEBA(TestAjustes_Modelo)
#include "TestAjustes_Modelo.moc"
