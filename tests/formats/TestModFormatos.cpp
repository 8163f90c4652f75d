#include "formats/ModFormatos.h"
#include "formats/Nombre_Formato.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestModFormatos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_ids_salen_de_la_sesion();
    void la_operacion_4_es_siempre_punto();
    void el_32_desborda_la_tabla();
    void los_ids_de_una_operacion();
    void la_lista_sql_lleva_los_huecos();
    void la_cadena_de_ids_data();
    void la_cadena_de_ids();
    void el_aviso_de_campos_data();
    void el_aviso_de_campos();
    void con_la_tabla_llena_sobran_los_vacios();
    void la_tabla_de_257_campos();
    void las_marcas_solo_se_levantan();
    void los_campos_que_se_ofrecen();
    void un_apostrofo_en_un_id_se_dobla();
    void un_formato_se_guarda_entero();
    void un_formato_repetido_es_3022_y_nada_cambia();
    void un_formato_de_la_lista_se_reemplaza();
    void cambiar_no_toca_lo_suyo();
    void eliminar_pregunta();
    void un_apostrofo_en_el_nombre_rompe_la_sentencia();
    void las_listas_no_repiten_nombres();
    void de_una_en_una_se_baja_por_la_lista();
    void varias_llegan_al_reves();
    void subir_y_bajar();
};

static const Sesion_Elegida SESION{1, "KRT300", 0, "Datos de medición"};

static QStringList Ids()
{
    QStringList ids = datosexport;
    while (!ids.isEmpty() && ids.last().isEmpty())
        ids.removeLast();
    return ids;
}

void TestModFormatos::los_ids_salen_de_la_sesion()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}, {"1", " y+1"}, {"1", "cB"}, {"2", "H+1"}});
    datosexport[5] = "viejo";
    Sacar_IDs(*Base_Datos, SESION, false);
    QCOMPARE(Ids(), (QStringList{"c", "y", "H"}));
    QCOMPARE(datosexport.size(), 31);
    QVERIFY(esta_en_datosexport("y"));
    QVERIFY(esta_en_datosexport(""));
    QVERIFY(!esta_en_datosexport("x"));
}

void TestModFormatos::la_operacion_4_es_siempre_punto()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Sesion(p, 1, "KRT800", 4, {{"1", "1,2,3"}, {"2", "2,3,4"}});
    Sacar_IDs(*Base_Datos, {1, "KRT800", 4, ""}, false);
    QCOMPARE(Ids(), QStringList{"Punto"});
    Poner_Sesion(p, 2, "KRT800", 7, {{"", "100,2,3"}, {"", "1 20"}});
    // Only the dialog of a new format knows the cross sections' identifier.
    Sacar_IDs(*Base_Datos, {2, "KRT800", 7, ""}, true);
    QCOMPARE(Ids(), QStringList{"Per.Trans"});
    Sacar_IDs(*Base_Datos, {2, "KRT800", 7, ""}, false);
    // The line without a blank has an empty identifier, which any free slot holds already.
    QCOMPARE(Ids(), QStringList{"1"});
}

void TestModFormatos::el_32_desborda_la_tabla()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    QList<Linea_De_Prueba> lineas;
    for (int i = 0; i < 31; ++i)
        lineas << Linea_De_Prueba{"1", QString(QChar(u'A' + i)) + "datos"};
    lineas << lineas.first();
    Poner_Sesion(p, 1, "KRT300", 0, lineas);
    Sacar_IDs(*Base_Datos, SESION, false);
    QCOMPARE(Ids().size(), 31);
    lineas << Linea_De_Prueba{"1", "zzz"};
    Poner_Sesion(p, 2, "KRT300", 0, lineas);
    try {
        Sacar_IDs(*Base_Datos, {2, "KRT300", 0, ""}, false);
        QFAIL("no overrun");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 9);
    }
}

void TestModFormatos::los_ids_de_una_operacion()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Sacar_Ids_Nuevo(*Base_Datos, "KRT300", 0);
    QCOMPARE(Ids(), (QStringList{"x", "y", "z", "c", "H", "E"}));
    Sacar_Ids_Nuevo(*Base_Datos, "KRT300", 9);
    QCOMPARE(Ids(), QStringList());
    for (int i = 0; i < 40; ++i)
        p.Fila("Identificadores", {{"Nombre", "PX7"}, {"OPE", 9}, {"ID", QString::number(i)}});
    Sacar_Ids_Nuevo(*Base_Datos, "PX7", 9);
    QCOMPARE(Ids().size(), 31);
    QCOMPARE(Ids().last(), QStringLiteral("30"));
}

void TestModFormatos::la_lista_sql_lleva_los_huecos()
{
    const Sala_Global sala;
    Limpiar_IDs();
    datosexport[0] = " a ";
    datosexport[1] = "''";
    const QString lista = Lista_Ids_SQL();
    QVERIFY(lista.startsWith("'a' ,'''' ,'' ,'' ,"));
    QCOMPARE(lista.count(','), 30);
    QVERIFY(lista.endsWith("'' "));
}

void TestModFormatos::la_cadena_de_ids_data()
{
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("cadena");
    QTest::newRow("cualquiera") << 0 << "x y " + QString(29, ' ');
    QTest::newRow("puntos") << 4 << "Punto";
}

void TestModFormatos::la_cadena_de_ids()
{
    QFETCH(int, ope);
    const Sala_Global sala;
    Limpiar_IDs();
    datosexport[0] = "x";
    datosexport[1] = "y";
    QTEST(Cadena_Ids(ope), "cadena");
}

void TestModFormatos::el_aviso_de_campos_data()
{
    QTest::addColumn<QString>("ids");
    QTest::addColumn<int>("ope");
    QTest::addColumn<bool>("falta");
    QTest::newRow("todos") << "x y" + QString(29, ' ') << 0 << false;
    QTest::newRow("uno solo") << "y" << 0 << false;
    QTest::newRow("falta uno") << "x q " << 0 << true;
    QTest::newRow("vacio") << "" << 0 << false;
    QTest::newRow("solo blancos") << "     " << 0 << false;
    QTest::newRow("puntos") << "x y" << 4 << true;
    QTest::newRow("mayusculas") << "X" << 0 << true;
}

void TestModFormatos::el_aviso_de_campos()
{
    QFETCH(QString, ids);
    QFETCH(int, ope);
    const Sala_Global sala;
    Limpiar_IDs();
    datosexport[0] = "x";
    datosexport[1] = "y";
    QTEST(Comprobar_IDs(ids, ope), "falta");
    QCOMPARE(
        Aviso_Campos("F1"),
        QStringLiteral("El formato (F1) puede contener campos que no esten en los datos "
                       "transferidos.\r\nSe recomienda crear un formato nuevo o elegir otro de "
                       "los existentes!!"));
}

void TestModFormatos::con_la_tabla_llena_sobran_los_vacios()
{
    const Sala_Global sala;
    for (int i = 0; i < MAX_IDS; ++i)
        datosexport[i] = QString::number(i);
    // The pieces past the last are empty, and no slot is free to match them.
    QVERIFY(Comprobar_IDs("12", 0));
    QVERIFY(!Comprobar_IDs("7", 0));
}

void TestModFormatos::la_tabla_de_257_campos()
{
    QStringList campos;
    for (int i = 0; i < 257; ++i)
        campos << "C" + QString::number(i);
    Poner_Campos_Exportar(campos);
    QCOMPARE(Campos_Exportar, campos);
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion,
                             Poner_Campos_Exportar(campos + QStringList{"uno más"}));
    Poner_Campos_Exportar({"A", "B"});
    QCOMPARE(Campos_Exportar.size(), 257);
    QCOMPARE(Campos_Exportar[1], QStringLiteral("B"));
    QCOMPARE(Campos_Exportar[2], QString());
}

void TestModFormatos::las_marcas_solo_se_levantan()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    p.Fila("Campos", {{"Maquina", "KRT300"},
                      {"ID", "q"},
                      {"Campo", "Minúscula"},
                      {"Orden", 1},
                      {"Marcas", "cx"}});
    const auto banderas = [](const QString& campo) {
        bool x = false, y = false, z = true;
        Comprobar_Marcas_Coordenadas(*Base_Datos, "KRT300", campo, x, y, z);
        return QString("%1%2%3").arg(int(x)).arg(int(y)).arg(int(z));
    };
    QCOMPARE(banderas("Coordenada X"), QStringLiteral("101"));
    QCOMPARE(banderas("Coordenada Y"), QStringLiteral("011"));
    QCOMPARE(banderas("Código"), QStringLiteral("001"));
    QCOMPARE(banderas("Minúscula"), QStringLiteral("101"));
    QCOMPARE(banderas("No existe"), QStringLiteral("001"));
}

void TestModFormatos::los_campos_que_se_ofrecen()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    datosexport[0] = "H";
    datosexport[1] = "c";
    Dos_Listas listas;
    listas.elegidos = {"Distancia", "Punto"};
    Ofrecer_Campos(*Base_Datos, "KRT300", listas, false, Generales::De_La_Familia, 0);
    // In the table's order; neither the chosen ones nor the barred one; the general ones behind.
    QCOMPARE(listas.disponibles, (QStringList{"Código", "Ángulo Horizontal", "Nota", "Estación",
                                              "Altura Instrumento"}));
    QCOMPARE(listas.elegidos, (QStringList{"Distancia", "Punto"}));

    Dos_Listas detras, delante;
    Ofrecer_Campos(*Base_Datos, "PX7", detras, false, Generales::De_La_Operacion, 0);
    QCOMPARE(detras.disponibles.indexOf("Punto"), 4);
    Ofrecer_Campos(*Base_Datos, "PX7", delante, true, Generales::De_La_Operacion, 9);
    QCOMPARE(delante.disponibles.first(), QStringLiteral("Punto"));
    // No general field belongs to operation 9.
    QVERIFY(!delante.disponibles.contains("Estación"));
    QVERIFY(detras.disponibles.contains("Estación"));

    datosexport[0] = "XYZ";
    Dos_Listas krt800;
    Ofrecer_Campos(*Base_Datos, "KRT800", krt800, false, Generales::De_La_Familia, 1);
    QCOMPARE(krt800.disponibles,
             (QStringList{"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código",
                          "Estación", "Altura Instrumento"}));
}

void TestModFormatos::un_apostrofo_en_un_id_se_dobla()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Registro(p, "KRT300", {0}, "'", "Minutos", "C", {{"Minutos", 3}});
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "'123"}});
    Sacar_IDs(*Base_Datos, SESION, false);
    QCOMPARE(datosexport[0], QStringLiteral("''"));
    Dos_Listas listas;
    Ofrecer_Campos(*Base_Datos, "KRT300", listas, false, Generales::De_La_Operacion, 9);
    QCOMPARE(listas.disponibles, (QStringList{"Minutos", "Punto"}));
    // What is stored of it comes back the same.
    const QString cadena = Cadena_Ids(0);
    QVERIFY(!Comprobar_IDs(cadena, 0));
    Rellenar_IDs(cadena, 0);
    QCOMPARE(datosexport[0], QStringLiteral("''"));
    Rellenar_IDs("lo que sea", 4);
    QCOMPARE(Ids(), QStringList{"Punto"});
    Rellenar_IDs(QString(40, 'a').replace("a", "a "), 0);
    QCOMPARE(Ids().size(), 31);
}

static Formato Ejemplo()
{
    Formato f;
    f.nombre = "MÍO";
    f.maquina = "KRT300";
    f.descripcion = "de prueba";
    f.ids = "x y ";
    f.cabeceras = true;
    f.modificable = true;
    f.ope = 1;
    f.campos = QStringList{"Punto", "Coordenada X"};
    return f;
}

static QStringList Guardado(const Base_De_Prueba& p)
{
    return p.Columna("SELECT Nombre || '|' || Maquina || '|' || descripcion || '|' || cabeceras || "
                     "'|' || "
                     "Modificable || '|' || ope || '|' || Ids FROM Formatos1") +
           p.Columna("SELECT sec || '|' || Campo FROM Formatos2 ORDER BY sec");
}

void TestModFormatos::un_formato_se_guarda_entero()
{
    Base_De_Prueba p;
    Guardar_Formato(*Base_Datos, Ejemplo(), true);
    QCOMPARE(Guardado(p),
             (QStringList{"MÍO|KRT300|de prueba|SI|SI|1|x y ", "0|Punto", "1|Coordenada X"}));
    const auto f = Buscar_Formato(*Base_Datos, "KRT300", "MÍO");
    QVERIFY(f && f->cabeceras && f->modificable && f->ope == 1);
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "MÍO"), Ejemplo().campos);
    QVERIFY(!Buscar_Formato(*Base_Datos, "PX7", "MÍO"));
    QVERIFY(!Buscar_Formato(*Base_Datos, "KRT300", "mío"));
    QCOMPARE(Nombres_Formatos(*Base_Datos, "KRT300"), QStringList{"MÍO"});
    QCOMPARE(Nombres_Formatos(*Base_Datos, "KRT300", 1), QStringList{"MÍO"});
    QCOMPARE(Nombres_Formatos(*Base_Datos, "KRT300", 0), QStringList());
}

void TestModFormatos::un_formato_repetido_es_3022_y_nada_cambia()
{
    Base_De_Prueba p;
    Guardar_Formato(*Base_Datos, Ejemplo(), true);
    const QStringList antes = Guardado(p);
    Formato otro = Ejemplo();
    otro.campos = QStringList{"Código"};
    try {
        Guardar_Formato(*Base_Datos, otro, true);
        QFAIL("stored twice");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 3022);
    }
    // A field too long for its column undoes all of it.
    otro.nombre = "OTRO";
    otro.campos = QStringList{"Código", QString(60, 'x')};
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Guardar_Formato(*Base_Datos, otro, true));
    QCOMPARE(Guardado(p), antes);
}

void TestModFormatos::un_formato_de_la_lista_se_reemplaza()
{
    Base_De_Prueba p;
    Guardar_Formato(*Base_Datos, Ejemplo(), true);
    Formato otro = Ejemplo();
    otro.cabeceras = otro.modificable = false;
    otro.ope = 0;
    otro.ids = "c ";
    otro.campos = QStringList{"Código", "Punto", "Nota"};
    Guardar_Formato(*Base_Datos, otro, false);
    QCOMPARE(Guardado(p),
             (QStringList{"MÍO|KRT300|de prueba|NO|NO|0|c ", "0|Código", "1|Punto", "2|Nota"}));
}

void TestModFormatos::cambiar_no_toca_lo_suyo()
{
    Base_De_Prueba p;
    Guardar_Formato(*Base_Datos, Ejemplo(), true);
    Formato cambio = Ejemplo();
    cambio.descripcion = "otra";
    cambio.cabeceras = false;
    cambio.modificable = false;
    cambio.ope = 0;
    cambio.ids = "";
    cambio.campos = QStringList{"Código"};
    QVERIFY(Cambiar_Formato(*Base_Datos, cambio));
    QCOMPARE(Guardado(p), (QStringList{"MÍO|KRT300|otra|NO|SI|1|x y ", "0|Código"}));
    cambio.nombre = "IDO";
    QVERIFY(!Cambiar_Formato(*Base_Datos, cambio));
}

void TestModFormatos::eliminar_pregunta()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Guardar_Formato(*Base_Datos, Ejemplo(), true);
    guion.respuestas = {false, true, true};
    QVERIFY(!Eliminar_Formato(*Base_Datos, "KRT300", "MÍO"));
    QCOMPARE(Guardado(p).size(), 3);
    QVERIFY(Eliminar_Formato(*Base_Datos, "KRT300", "MÍO"));
    QCOMPARE(Guardado(p), QStringList());
    // One that somebody deleted meanwhile is no error.
    QVERIFY(Eliminar_Formato(*Base_Datos, "KRT300", "MÍO"));
    QCOMPARE(guion.Textos()[0], QStringLiteral("¿ Desea Eliminar el Formato ?"));
    QCOMPARE(guion.avisos[0].icono, Icono::Pregunta);
}

void TestModFormatos::un_apostrofo_en_el_nombre_rompe_la_sentencia()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Formato f = Ejemplo();
    f.nombre = "O'Donnell";
    Guardar_Formato(*Base_Datos, f, true);
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Campos_Formato(*Base_Datos, "KRT300", f.nombre));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Guardar_Formato(*Base_Datos, f, false));
    guion.respuestas = {true, true};
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Eliminar_Formato(*Base_Datos, "KRT300", f.nombre));
    // Whatever follows the apostrophe never runs as SQL.
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion,
                             Eliminar_Formato(*Base_Datos, "KRT300", "x' OR '1'='1"));
    QCOMPARE(Guardado(p).size(), 3);
    QCOMPARE(guion.Textos(), QStringList(2, "¿ Desea Eliminar el Formato ?"));
}

void TestModFormatos::las_listas_no_repiten_nombres()
{
    Dos_Listas l;
    l.elegidos = QStringList{"B"};
    for (const char* c : {"A", "B", "A", "C"})
        l.Ofrecer(c);
    QCOMPARE(l.disponibles, (QStringList{"A", "C"}));
    l.Vaciar();
    QVERIFY(l.disponibles.isEmpty() && l.elegidos.isEmpty());
}

void TestModFormatos::de_una_en_una_se_baja_por_la_lista()
{
    Dos_Listas l;
    l.disponibles = {"A", "B", "C", "D"};
    QCOMPARE(l.Agregar({1}), 1);
    QCOMPARE(l.Agregar({1}), 1);
    QCOMPARE(l.Agregar({1}), -1);
    QCOMPARE(l.elegidos, (QStringList{"B", "C", "D"}));
    QCOMPARE(l.disponibles, QStringList{"A"});
    QCOMPARE(l.Quitar({0}), 0);
    QCOMPARE(l.disponibles, (QStringList{"A", "B"}));
    QCOMPARE(l.Agregar({}), -1);
    QCOMPARE(l.elegidos, (QStringList{"C", "D"}));
}

void TestModFormatos::varias_llegan_al_reves()
{
    Dos_Listas l;
    l.disponibles = {"A", "B", "C", "D"};
    l.elegidos = QStringList{"Z"};
    QCOMPARE(l.Agregar({0, 3, 1}), -1);
    QCOMPARE(l.elegidos, (QStringList{"Z", "D", "B", "A"}));
    QCOMPARE(l.disponibles, QStringList{"C"});
    l.Quitar({0, 1, 2, 3});
    QCOMPARE(l.disponibles, (QStringList{"C", "A", "B", "D", "Z"}));
}

void TestModFormatos::subir_y_bajar()
{
    Dos_Listas l;
    l.elegidos = {"A", "B", "C"};
    QCOMPARE(l.Subir({0}), 0);
    QCOMPARE(l.Bajar({2}), 2);
    QCOMPARE(l.elegidos, (QStringList{"A", "B", "C"}));
    QCOMPARE(l.Subir({2}), 1);
    QCOMPARE(l.elegidos, (QStringList{"A", "C", "B"}));
    QCOMPARE(l.Bajar({0}), 1);
    QCOMPARE(l.elegidos, (QStringList{"C", "A", "B"}));
    QCOMPARE(l.Subir({1, 2}), -1);
    QCOMPARE(l.Bajar({}), -1);
    QCOMPARE(l.elegidos, (QStringList{"C", "A", "B"}));
}

PRUEBA(TestModFormatos)
#include "TestModFormatos.moc"
