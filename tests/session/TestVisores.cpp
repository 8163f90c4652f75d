#include "core/Sucesos.h"
#include "session/Decodificador.h"
#include "session/Dialogos_Pequenos.h"
#include "session/Lista_Sesion.h"
#include "session/ModVDatos.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QSignalSpy>

class TestVisores : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_ultima_sesion_sale_primera();
    void solo_se_ven_las_de_la_familia();
    void las_columnas_se_escriben_por_su_dibujo();
    void la_bandera_de_puntos_data();
    void la_bandera_de_puntos();
    void cada_linea_sale_una_vez_data();
    void cada_linea_sale_una_vez();
    void ver_sin_sesion_o_sin_datos();
    void los_generales_de_una_linea();
    void un_registro_se_ve_campo_a_campo();
    void la_clase_desconocida_calla();
    void el_visor_no_deja_desplazamientos();
    void el_nivel_se_ve_por_lugares();
    void el_visor_sirve_para_muchas_lineas();
    void la_lista_crece_por_tramos();
    void borrar_pregunta_y_vacia();
    void el_arbol_marca_lo_que_desborda();
    void los_separadores_van_por_orden();
};

static QStringList Filas(const QString& sql, const QStringList& campos)
{
    QStringList filas;
    Conjunto_Registros rs = Base_Datos->OpenRecordset(sql);
    for (; !rs.Es_EOF(); rs.MoveNext()) {
        QStringList celdas;
        for (const QString& campo : campos)
            celdas << rs.Texto(campo);
        filas << celdas.join('|');
    }
    return filas;
}

static QString En_Texto(const QList<Linea_Rejilla>& lineas)
{
    QStringList textos;
    for (const Linea_Rejilla& l : lineas)
        textos << l.campo + '=' + l.valor;
    return textos.join(';');
}

void TestVisores::la_ultima_sesion_sale_primera()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    QCOMPARE(Filas(SQL_Sesiones("KRT300"), {"Id"}), QStringList());
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}});
    Poner_Sesion(p, 2, "KRT300", 1, {{"1", "cA"}, {"2", "cA"}});
    QCOMPARE(Filas(SQL_Sesiones("KRT300"), {"Id", "nOpe", "wOpe", "NFichero", "NPuntos"}),
             (QStringList{"2|1|Datos de coordenadas|Obra 2|2", "1|0|Datos de medición|Obra 1|1"}));
}

void TestVisores::solo_se_ven_las_de_la_familia()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}});
    Poner_Sesion(p, 2, "PX7", 0, {{"1", "cA"}});
    QCOMPARE(Filas(SQL_Sesiones("PX7"), {"Id"}), QStringList{"2"});
    QCOMPARE(Filas(SQL_Sesiones("P'X7"), {"Id"}), QStringList());
}

void TestVisores::las_columnas_se_escriben_por_su_dibujo()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Sesion(p, 7, "KRT300", 0, {{"1", "cA"}});
    const Conjunto_Registros rs = Base_Datos->OpenRecordset(SQL_Sesiones("KRT300"));
    QStringList titulos, celdas;
    for (const Columna_Sesion& c : Columnas_Sesion()) {
        titulos << c.titulo;
        celdas << Texto_Celda(c, rs.Valor(c.campo));
    }
    QCOMPARE(titulos, (QStringList{"Id Sesión", "Fecha", "Hora", "Tipo Fichero", "Nombre de Sesión",
                                   "Aparato", "Nº Puntos"}));
    QCOMPARE(celdas, (QStringList{"7", "29/02/2024", "08:05:09", "Datos de medición", "Obra 7",
                                  "KRT300-1", "1"}));
    QCOMPARE(Texto_Celda(Columnas_Sesion()[1], QVariant()), QString());
    const auto fila = Sesion_De_Fila(rs);
    QVERIFY(fila);
    QCOMPARE(fila->id, 7);
    QCOMPARE(fila->wope, QStringLiteral("Datos de medición"));
    QVERIFY(!Sesion_De_Fila(Base_Datos->OpenRecordset(SQL_Sesiones("KRT800"))));
    QCOMPARE(Buscar_Sesion(*Base_Datos, 7)->wope, QStringLiteral("Datos de medición"));
    QVERIFY(!Buscar_Sesion(*Base_Datos, 8));
}

void TestVisores::la_bandera_de_puntos_data()
{
    QTest::addColumn<QString>("wope");
    QTest::addColumn<bool>("puntos");
    QTest::newRow("puntos") << "Puntos" << true;
    QTest::newRow("dxf") << "dxf" << true;
    QTest::newRow("coordenadas") << "Datos de coordenadas" << true;
    QTest::newRow("medición") << "datos de medición" << true;
    QTest::newRow("perfiles") << "Perfiles" << false;
    QTest::newRow("sin tilde") << "Datos de medicion" << false;
    QTest::newRow("vacio") << "" << false;
}

void TestVisores::la_bandera_de_puntos()
{
    QFETCH(QString, wope);
    QTEST(Es_Fichero_De_Puntos(wope), "puntos");
}

void TestVisores::cada_linea_sale_una_vez_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QStringList>("lineas");
    QTest::addColumn<QStringList>("filas"); // Descr|Datos
    QTest::addColumn<QString>("columnas");  // visible: Punto, Descr
    QTest::newRow("300, dos operaciones con la clase")
        << "KRT300" << 1 << QStringList{" y+001", "cA", "?raro"}
        << QStringList{"Coordenada x| y+001", "Código|cA"} << "si si";
    QTest::newRow("300 medición") << "KRT300" << 0 << QStringList{"cA"} << QStringList{"Código|cA"}
                                  << "no si";
    QTest::newRow("800 por palabra")
        << "KRT800" << 1 << QStringList{"SS 1,2", " XYZ 1,2", "SS", "SSX 1", "STN  E"}
        << QStringList{"Radiación|SS 1,2", "Coordenadas| XYZ 1,2", "Radiación|SS",
                       "Estación|STN  E"}
        << "si si";
    QTest::newRow("800 puntos") << "KRT800" << 4 << QStringList{"1,2,3", "SS 1"}
                                << QStringList{"Punto|1,2,3", "Punto|SS 1"} << "si si";
    QTest::newRow("800 perfiles") << "KRT800" << 7 << QStringList{"1,2,3"}
                                  << QStringList{"Perfil|1,2,3"} << "no si";
    QTest::newRow("800 operación 5")
        << "KRT800" << 5 << QStringList{"lo que sea"} << QStringList{"|lo que sea"} << "no no";
    QTest::newRow("nivel") << "NV400" << 0 << QStringList{"g,1", "w,2", "z"}
                           << QStringList{"Espalda|g,1", "Anillo|w,2"} << "no si";
}

void TestVisores::cada_linea_sale_una_vez()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QStringList, lineas);
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    QList<Linea_De_Prueba> datos;
    for (const QString& l : lineas)
        datos << Linea_De_Prueba{"1", l};
    Poner_Sesion(p, 3, maquina, ope, datos);
    const Vista_Datos vista = Preparar_Vista({3, maquina, ope, "Lo que sea"});
    QTEST(Filas(vista.sql, {"Descr", "Datos"}), "filas");
    Lista_Sesion lista(Base_Datos, {3, maquina, ope, {}});
    lista.Alcanzar(lineas.size());
    QStringList listadas;
    for (qint64 i = 0; i < lista.Conocidas(); ++i)
        listadas << lista.Linea(i).descr + '|' + lista.Linea(i).datos;
    QTEST(listadas, "filas");
    QCOMPARE(vista.titulo, QStringLiteral("Datos de la sesión con id (3)   (Lo que sea)"));
    QTEST(QString(vista.columna_punto ? "si" : "no") + (vista.columna_descr ? " si" : " no"),
          "columnas");
}

void TestVisores::ver_sin_sesion_o_sin_datos()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Interfaz_Guion guion;
    QVERIFY(!Ver_Datos(*Base_Datos, {}));
    QCOMPARE(guion.pitidos, 1);
    QVERIFY(guion.avisos.isEmpty());

    Poner_Sesion(p, 1, "KRT300", 0, {});
    const Sesion_Elegida vacia{1, "KRT300", 0, "Datos de medición"};
    QVERIFY(!Ver_Datos(*Base_Datos, vacia));
    QVERIFY(!Comprobar_Hay_Registros(*Base_Datos, 1));
    QCOMPARE(guion.Textos(),
             (QStringList{"No hay datos disponibles!!!", "No hay datos disponibles!!!"}));

    Poner_Sesion(p, 2, "KRT300", 0, {{"1", "cA"}});
    QVERIFY(Ver_Datos(*Base_Datos, Sesion_Elegida{2, "KRT300", 0, ""}));
    QVERIFY(Comprobar_Hay_Registros(*Base_Datos, 2));
    QCOMPARE(guion.cursor, 0);
}

void TestVisores::los_generales_de_una_linea()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    const QString krt300 =
        QStringLiteral("EE-100   +01500") + QChar(6) + " E  otra" + QChar(6) + "Zrara";
    QCOMPARE(En_Texto(Datos_Generales(*Base_Datos, {1, "KRT300", 0, ""}, krt300)),
             QStringLiteral("Estación=E-100   +01500;Estación=otra;=rara"));
    QCOMPARE(En_Texto(Datos_Generales(*Base_Datos, {1, "KRT300", 0, ""}, "")), QString());
    const QString krt800 =
        QStringLiteral("STN\u0005Estación\u0005E1\u0006STN\u0005Altura\u00051.5");
    QCOMPARE(En_Texto(Datos_Generales(*Base_Datos, {1, "KRT800", 1, ""}, krt800)),
             QStringLiteral("Estación=E1;Altura=1.5"));
}

void TestVisores::un_registro_se_ve_campo_a_campo()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    const auto vista = Ver_Registro("KRT300", 0, "Ángulo", " H+0123456 ", "P1");
    QVERIFY(vista);
    QCOMPARE(vista->punto, QStringLiteral("P1"));
    QVERIFY(vista->con_botones);
    // "Reserva" is marked as not listed.
    QCOMPARE(En_Texto(Llenar_Rejilla(vista->nombres, vista->valores)),
             QStringLiteral("Ángulo Horizontal=12.3456;Distancia=--;Nota=--"));

    Clave_Estacion = "KRT800";
    const auto punto = Ver_Registro("KRT800", 4, "Punto", "7,1,2,*,ARB", "7");
    QCOMPARE(
        En_Texto(Llenar_Rejilla(punto->nombres, punto->valores)),
        QStringLiteral("Punto=7;Coordenada X=1.000;Coordenada Y=2.000;Coordenada Z=--;Código=ARB"));
    QVERIFY(!punto->con_botones);
    QCOMPARE(Ver_Registro("KRT800", 7, "", "100,2", "")->nombres,
             (QStringList{"PK", "Eje", "Cota"}));
    QCOMPARE(Ver_Registro("KRT800", 1, "", " SS 1,2,3,4", "")->valores,
             (QStringList{"1", "2", "4"}));
}

void TestVisores::la_clase_desconocida_calla()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Interfaz_Guion guion;
    QVERIFY(!Ver_Registro("KRT300", 0, "", "?datos", "1"));
    QVERIFY(!Ver_Registro("KRT300", 0, "", "'apóstrofo", "1"));
    QVERIFY(!Ver_Registro("KRT800", 1, "", "ZZZ 1", "1"));
    QVERIFY(guion.avisos.isEmpty());
}

void TestVisores::el_visor_no_deja_desplazamientos()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Desp_X = Desp_Y = Desp_Z = "100";
    const auto vista = Ver_Registro("KRT300", 1, "", " y+001234567", "1");
    QCOMPARE(vista->valores, QStringList{"1234.567"});
    QCOMPARE(QStringList({Desp_X, Desp_Y, Desp_Z}), (QStringList{"0", "0", "0"}));
}

void TestVisores::el_nivel_se_ve_por_lugares()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "NV400";
    const auto vista = Ver_Registro("NV400", 0, "", "g,01,00012345,00001234,00012345,x,A,", "");
    QVERIFY(vista);
    QCOMPARE(vista->nombres, (QStringList{"Punto", "Lectura", "Distancia", "Cota", "Nulo"}));
    QCOMPARE(vista->valores[0], QStringLiteral("01"));
    QCOMPARE(vista->valores[4], QString());
}

void TestVisores::el_visor_sirve_para_muchas_lineas()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Visor_Registros visor(*Base_Datos, "KRT300", 0);
    for (const char* linea : {"cARBOL", "H00123456-0012340 NOTA", "?nada", "cA", "H", " cB"}) {
        const auto uno = Ver_Registro("KRT300", 0, "", linea, "7");
        const auto muchos = visor.Ver(linea, "7");
        QCOMPARE(muchos.has_value(), uno.has_value());
        if (!uno) continue;
        QCOMPARE(muchos->nombres, uno->nombres);
        QCOMPARE(muchos->valores, uno->valores);
        QCOMPARE(muchos->punto, "7");
    }
    // A row changed by hand shows at once.
    Base_Datos->Execute("UPDATE Campos SET Campo = 'Otro' WHERE Maquina = 'KRT300' AND ID = 'c'");
    QCOMPARE(visor.Ver("cA", "")->nombres, QStringList{"Otro"});
}

void TestVisores::la_lista_crece_por_tramos()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Insercion registros = Base_Datos->Preparar_Insercion(
        "Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    const int total = 3000;
    Base_Datos->BeginTrans();
    // Behind gaps, with unknown kinds and with two lines of one number.
    for (int i = 1; i <= total; ++i)
        registros.Anadir(
            {1, i - i % 7, QString::number(i), i % 5 ? "cA" + QString::number(i) : "?", "G"});
    registros.Anadir({2, 1, "", "cOTRA", ""});
    Base_Datos->CommitTrans();
    const Sesion_Elegida sesion{1, "KRT300", 0, ""};
    const QStringList esperadas =
        Filas(Preparar_Vista(sesion).sql, {"Punto", "Descr", "Datos", "DatosG"});

    Lista_Sesion lista(Base_Datos, sesion);
    QCOMPARE(lista.Conocidas(), 0);
    QVERIFY(lista.Hay_Mas());
    QVERIFY(lista.Buscar_Mas() > 0);
    QVERIFY(lista.Conocidas() < esperadas.size() / 4);
    QVERIFY(lista.Alcanzar(1000));
    QVERIFY(lista.Hay_Mas());
    QVERIFY(!lista.Alcanzar(esperadas.size()));
    QVERIFY(!lista.Hay_Mas());
    QCOMPARE(lista.Conocidas(), esperadas.size());
    const auto linea = [&](qint64 fila) {
        const Linea_De_Sesion l = lista.Linea(fila);
        return QStringList{l.punto, l.descr, l.datos, l.datosg}.join('|');
    };
    for (qsizetype i = esperadas.size() - 1; i >= 0; --i)
        QCOMPARE(linea(i), esperadas[i]);
    QCOMPARE(linea(-1), QStringLiteral("|||"));
    QCOMPARE(linea(esperadas.size()), QStringLiteral("|||"));
    // What is deleted meanwhile shows empty, where it isn't in memory any more.
    Base_Datos->Execute("DELETE FROM Registros WHERE ID = 1");
    QCOMPARE(linea(esperadas.size() - 1).size() >= 3, true);
}

void TestVisores::borrar_pregunta_y_vacia()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}, {"2", "cB"}});
    Poner_Sesion(p, 2, "KRT300", 0, {{"1", "cZ"}});
    Interfaz_Guion guion;
    QSignalSpy cambios(&Sucesos::Unico(), &Sucesos::sesiones_cambiadas);
    QVERIFY(!Borrar_Sesion({}));
    QCOMPARE(guion.pitidos, 1);
    guion.respuestas = {false, true};
    const Sesion_Elegida sesion{1, "KRT300", 0, ""};
    QVERIFY(!Borrar_Sesion(sesion));
    QCOMPARE(p.Columna("SELECT ID FROM Sesiones"), (QStringList{"1", "2"}));
    QVERIFY(Borrar_Sesion(sesion));
    QCOMPARE(p.Columna("SELECT ID FROM Sesiones"), QStringList{"2"});
    QCOMPARE(p.Columna("SELECT Datos FROM Registros"), QStringList{"cZ"});
    QCOMPARE(guion.Textos(),
             (QStringList{"Desea Eliminar la Descarga ?", "Desea Eliminar la Descarga ?"}));
    QCOMPARE(guion.avisos[0].icono, Icono::Pregunta);
    QCOMPARE(cambios.count(), 1);
}

void TestVisores::el_arbol_marca_lo_que_desborda()
{
    const auto lista = [](const QList<QStringList>& puntos) {
        QStringList textos;
        for (const QStringList& p : puntos)
            textos << p.join(QChar(5));
        return textos.join(QChar(6));
    };
    const Nodo_Coordenada raiz =
        Arbol_Coordenadas(lista({{"P1", "9999999.999", "10000000", "-10000000"},
                                 {"P2", "-9999999,999", "10000000,5", "x"}}));
    QCOMPARE(raiz.texto, QStringLiteral("Puntos/Coordenadas"));
    QCOMPARE(raiz.imagen, 1);
    QStringList nodos;
    for (const Nodo_Coordenada& punto : raiz.hijos) {
        nodos << punto.texto + '#' + QString::number(punto.imagen);
        for (const Nodo_Coordenada& eje : punto.hijos)
            nodos << eje.texto + '#' + QString::number(eje.imagen);
    }
    QCOMPARE(nodos, (QStringList{"P1#2", "X: 9999999.999#3", "Y: 10000000#4", "Z: -10000000#4",
                                 "P2#2", "X: -9999999,999#3", "Y: 10000000,5#4", "Z: x#3"}));
    QCOMPARE(Arbol_Coordenadas(lista({{"P", "1", "2", "3"}})).hijos.size(), 1);
}

void TestVisores::los_separadores_van_por_orden()
{
    QCOMPARE(Nombres_Separador(), (QStringList{"<Espacio>", "<Coma (,)>", "<Tabulación>"}));
    QCOMPARE(Trozo(1, Tag_Separador(), SEP_LISTA), QStringLiteral(" "));
    QCOMPARE(Trozo(2, Tag_Separador(), SEP_LISTA), QStringLiteral(","));
    QCOMPARE(Trozo(3, Tag_Separador(), SEP_LISTA), QStringLiteral("\t"));
}

PRUEBA(TestVisores)
#include "TestVisores.moc"
