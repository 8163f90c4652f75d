#include "core/Sucesos.h"
#include "formats/Formato_Existente_Nivel.h"
#include "formats/Formato_Nuevo_Nivel.h"
#include "formats/Mantenimiento_Nivel.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Nivel_De_Prueba.h"
#include "tests/apoyo/Prueba.h"

using namespace Nivel_De_Prueba;

class TestFormatos_Nivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_estilo_data();
    void el_estilo();
    void el_mismo_nombre_en_las_dos_mitades();
    void el_existente_guarda_la_mitad_al_cambiar();
    void el_existente_cerrado_no_guarda();
    void el_existente_acepta_con_sus_casillas();
    void el_existente_sin_puntos_no_sigue();
    void el_existente_sin_elegir_pita();
    void el_nuevo_guarda_las_dos_mitades();
    void el_nuevo_quiere_algun_campo();
    void el_nuevo_no_pisa_con_otras_mayusculas();
    void el_mantenimiento_cambia_las_dos_mitades();
    void el_mantenimiento_crea_y_borra();
    void el_formato_de_otra_familia_queda();

private:
    QStringList Guardados(const QString& maquina = "NV400", const QString& nombre = "F") const
    {
        QStringList campos;
        Recorrido r = Base_Datos->Recorrer(
            "SELECT Campo,sec FROM Formatos2 WHERE Nombre = ? AND Maquina = ? ORDER BY "
            "Right(Campo,2),sec",
            {nombre, maquina});
        while (r.Siguiente())
            campos << r.Texto(0).right(2).left(1) + Nombre_Campo_Nivel(r.Texto(0)) + r.Texto(1);
        return campos;
    }
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> guion;
    Peticiones_Formatos antes;
    QList<Trabajo_Exportar> salidas;
    const Sesion_Elegida sesion{1, "NV400", 0, "Niveles"};
};

void TestFormatos_Nivel::init()
{
    p = std::make_unique<Base_De_Prueba>();
    guion = std::make_unique<Interfaz_Guion>();
    antes = Peticiones_De_Formatos();
    Peticiones_De_Formatos().Abrir_Exportar = [this](const Trabajo_Exportar& t) { salidas << t; };
    salidas.clear();
    Clave_Estacion = "NV400";
    p->Fila("OPE", {{"OPE", 0}, {"DESOPE", "Niveles"}});
    p->Fila("KRT2", {{"Nombre", "NV400"}, {"OPE", 0}, {"TipOpe", "D"}, {"DESOPE", "Niveles"}});
    Poner_Campos(*p);
    Poner_Formato(*p, "F", {"Trabajo", "Hora"}, {"Punto", "Cota"});
    Poner_Sesion(*p, 1, {"b,01,OBRA,", "g,01,1,2,3,P1,", "i,01,1,2,3,P2,"});
}

void TestFormatos_Nivel::cleanup()
{
    Peticiones_De_Formatos() = antes;
    guion.reset();
    p.reset();
}

void TestFormatos_Nivel::el_estilo_data()
{
    QTest::addColumn<QString>("letras");
    QTest::addColumn<QString>("estilo");
    const auto fila = [](const char* letras, const char* estilo) {
        QTest::newRow(letras) << letras << estilo;
    };
    for (const char* letras : {"gigi", "ggig", "giig", "gigg", "gi", "bgivgiwu", "gkigi", "gigif"})
        fila(letras, "Espalda-Frente");
    fila("bghijghij", "Espalda-Espalda-Frente-Frente");
    fila("gijh", "Espalda-Frente-Frente-Espalda");
    for (const char* letras : {"f", "ff", "fff", "ffff", "bfffffu"})
        fila(letras, "Medición Libre");
    for (const char* letras : {"", "b", "kkk", "bvwut"})
        fila(letras, "Fichero Vacío");
    fila("gig", "Otro");
    fila("gggg", "Otro");
}

void TestFormatos_Nivel::el_estilo()
{
    QFETCH(QString, letras);
    QStringList lineas;
    for (const QChar letra : letras)
        lineas << letra + QString(",01,1,");
    Poner_Sesion(*p, 2, lineas);
    QTEST(Estilo_De_Sesion(*Base_Datos, 2), "estilo");
}

void TestFormatos_Nivel::el_mismo_nombre_en_las_dos_mitades()
{
    Guardar_Mitad(*Base_Datos, "NV400", "F", Mitad_Nivel::Detalle, {"Hora", "Punto", "Fecha"});
    QCOMPARE(Guardados(), (QStringList{"0Trabajo0", "0Hora1", "1Hora0", "1Punto1", "1Fecha2"}));
    Guardar_Mitad(*Base_Datos, "NV400", "F", Mitad_Nivel::Cabecera, {"Hora"});
    QCOMPARE(Guardados(), (QStringList{"0Hora0", "1Hora0", "1Punto1", "1Fecha2"}));
    QCOMPARE(Campos_Mitad(*Base_Datos, "NV400", "F", Mitad_Nivel::Detalle),
             (QStringList{"Hora", "Punto", "Fecha"}));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Guardar_Mitad(*Base_Datos, "NV400", "D'Or",
                                                            Mitad_Nivel::Detalle, {"Hora"}));
}

void TestFormatos_Nivel::el_existente_guarda_la_mitad_al_cambiar()
{
    Formato_Existente_Nivel m(sesion, "E");
    QVERIFY(m.Ver());
    QCOMPARE(m.estilo, QString("Espalda-Frente"));
    m.Elegir(0);
    QCOMPARE(m.listas.elegidos, (QStringList{"Trabajo", "Hora"}));
    QCOMPARE(m.listas.disponibles, (QStringList{"Punto Inicial", "Cota Inicial", "Fecha"}));
    int avisos = 0;
    const auto conexion =
        connect(&Sucesos::Unico(), &Sucesos::formatos_cambiados, this, [&] { ++avisos; });
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QCOMPARE(m.listas.elegidos, (QStringList{"Punto", "Cota"}));
    QCOMPARE(avisos, 0); // nothing was changed
    m.listas.Agregar({1});
    m.Elegir_Mitad(Mitad_Nivel::Cabecera);
    QCOMPARE(avisos, 1);
    disconnect(conexion);
    QCOMPARE(Guardados(), (QStringList{"0Trabajo0", "0Hora1", "1Punto0", "1Cota1", "1Lectura2"}));
    // Both halves are as they were left.
    QCOMPARE(m.listas.elegidos, (QStringList{"Trabajo", "Hora"}));
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QCOMPARE(m.listas.elegidos, (QStringList{"Punto", "Cota", "Lectura"}));
}

void TestFormatos_Nivel::el_existente_cerrado_no_guarda()
{
    Base_Datos->Execute("UPDATE Formatos1 SET Modificable = 'NO'");
    Formato_Existente_Nivel m(sesion, "E");
    QVERIFY(m.Ver());
    m.Elegir(0);
    QVERIFY(m.bloqueado);
    m.listas.Quitar({0});
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QVERIFY(m.Aceptar([] {}));
    QCOMPARE(Guardados(), (QStringList{"0Trabajo0", "0Hora1", "1Punto0", "1Cota1"}));
    QCOMPARE(salidas.size(), 1);
}

void TestFormatos_Nivel::el_existente_acepta_con_sus_casillas()
{
    Formato_Existente_Nivel m(sesion, "E");
    QVERIFY(m.Ver());
    m.Elegir(0);
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    m.listas.Quitar({0});
    m.cabeceras = false;
    m.casillas = {true, false};
    int ocultas = 0;
    QVERIFY(m.Aceptar([&] { ++ocultas; }));
    QCOMPARE(ocultas, 1);
    QCOMPARE(salidas.size(), 1);
    QCOMPARE(salidas[0].formato, QString("F"));
    QVERIFY(salidas[0].nivel.anillo && !salidas[0].nivel.nivelacion);
    QVERIFY(!Incluir_Cabeceras);
    QCOMPARE(Campos_Exportar.first(), QString("Cota"));
    // What the report will read is what was in view.
    QCOMPARE(Guardados(), (QStringList{"0Trabajo0", "0Hora1", "1Cota0"}));
}

void TestFormatos_Nivel::el_existente_sin_puntos_no_sigue()
{
    Poner_Sesion(*p, 2, {"b,01,OBRA,", "u,01,"});
    Formato_Existente_Nivel m({2, "NV400", 0, ""}, "E");
    QVERIFY(m.Ver());
    m.Elegir(0);
    QVERIFY(!m.Aceptar([] {}));
    QCOMPARE(guion->Textos().last(), QString("El Fichero no contiene Puntos"));
    QVERIFY(salidas.isEmpty());
}

void TestFormatos_Nivel::el_existente_sin_elegir_pita()
{
    Formato_Existente_Nivel m(sesion, "E");
    QVERIFY(m.Ver());
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QVERIFY(!m.Aceptar([] {}));
    QCOMPARE(guion->pitidos, 1);
    // The half in view is kept over the choice of the format.
    m.Elegir(0);
    QCOMPARE(m.listas.elegidos, (QStringList{"Punto", "Cota"}));
}

void TestFormatos_Nivel::el_nuevo_guarda_las_dos_mitades()
{
    Formato_Nuevo_Nivel m("NV400", sesion);
    m.Crear();
    QCOMPARE(m.listas.disponibles.size(), 5);
    m.Escribir_Nombre("Mío");
    m.descripcion = "Nueva";
    m.listas.Agregar({0});
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QCOMPARE(m.mitades.Rotulo("Punto"), QString("Punto"));
    m.listas.Agregar({4});
    m.listas.Agregar({1});
    m.Elegir_Mitad(Mitad_Nivel::Cabecera);
    QVERIFY(m.Aceptar([] {}));
    QCOMPARE(Guardados("NV400", "Mío"), (QStringList{"0Trabajo0", "1Cota0", "1Punto1"}));
    const auto formato = Buscar_Formato(*Base_Datos, "NV400", "Mío");
    QVERIFY(formato && formato->modificable && formato->ids.isEmpty());
    QCOMPARE(formato->descripcion, QString("Nueva"));
    QCOMPARE(salidas.size(), 1);
    QCOMPARE(salidas[0].formato, QString("Mío"));
}

void TestFormatos_Nivel::el_nuevo_quiere_algun_campo()
{
    Formato_Nuevo_Nivel m("NV400");
    m.Crear();
    m.Escribir_Nombre("Mío");
    QVERIFY(!m.Aceptar([] {}));
    QCOMPARE(guion->Textos(), QStringList{"No se han seleccionado campos para el formato"});
    m.listas.Agregar({0});
    // The other half may stay empty, and it may be the one in view.
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QVERIFY(m.Aceptar([] {}));
    QCOMPARE(Guardados("NV400", "Mío"), QStringList{"0Trabajo0"});
    QVERIFY(salidas.isEmpty());
}

void TestFormatos_Nivel::el_nuevo_no_pisa_con_otras_mayusculas()
{
    Formato_Nuevo_Nivel m("NV400");
    m.Crear();
    m.listas.Agregar({0});
    m.Escribir_Nombre("f");
    QVERIFY(!m.Aceptar([] {}));
    QVERIFY(guion->Textos().first().contains("(3022)"));
    QCOMPARE(Nombres_Formatos(*Base_Datos, "NV400"), QStringList{"F"});
    // Picked from the list it is replaced.
    m.Elegir_Nombre(0);
    QVERIFY(m.Aceptar([] {}));
    QCOMPARE(Guardados(), QStringList{"0Trabajo0"});
}

void TestFormatos_Nivel::el_mantenimiento_cambia_las_dos_mitades()
{
    Mantenimiento_Nivel m;
    m.Cargar();
    m.Elegir("F");
    QCOMPARE(m.tipo, QString("Niveles"));
    QCOMPARE(m.listas.elegidos, (QStringList{"Trabajo", "Hora"}));
    m.listas.Quitar({0});
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    QCOMPARE(Guardados(), (QStringList{"0Hora0", "1Punto0", "1Cota1"}));
    m.listas.Subir({1});
    m.descripcion = "Otra";
    m.Guardar();
    QCOMPARE(Guardados(), (QStringList{"0Hora0", "1Cota0", "1Punto1"}));
    QCOMPARE(Buscar_Formato(*Base_Datos, "NV400", "F")->descripcion, QString("Otra"));
    Base_Datos->Execute("DELETE FROM Formatos1");
    m.Guardar();
    QCOMPARE(guion->Textos(), QStringList{"No se puede guardar; el formato 'F' ha sido eliminado"});
    // A format that is gone gets no fields either.
    m.listas.Quitar({0});
    m.Elegir_Mitad(Mitad_Nivel::Cabecera);
    QCOMPARE(Guardados(), (QStringList{"0Hora0", "1Cota0", "1Punto1"}));
}

void TestFormatos_Nivel::el_mantenimiento_crea_y_borra()
{
    Peticiones_De_Formatos().Mostrar_Nuevo_NV400 = [](Formato_Nuevo_Nivel& nuevo) {
        nuevo.Escribir_Nombre("Z");
        nuevo.listas.Agregar({1});
        QVERIFY(nuevo.Aceptar([] {}));
    };
    Mantenimiento_Nivel m;
    m.Cargar();
    m.Nuevo();
    QCOMPARE(m.nombre, QString("Z"));
    QCOMPARE(m.listas.elegidos, QStringList{"Punto Inicial"});
    guion->respuestas = {true};
    m.Eliminar();
    QCOMPARE(guion->Textos(), QStringList{"¿ Desea Eliminar el Formato ?"});
    QCOMPARE(m.nombres, QStringList{"F"});
    QVERIFY(Guardados("NV400", "Z").isEmpty());
}

void TestFormatos_Nivel::el_formato_de_otra_familia_queda()
{
    Poner_Formato(*p, "F", {"Fecha"}, {"Cota"}, "KRT300");
    Poner_Formato(*p, "M", {"Fecha"}, {"Cota"}, "KRT300");
    Mantenimiento_Nivel m;
    m.Cargar();
    QCOMPARE(m.nombres, QStringList{"F"});
    m.Elegir("F");
    m.Elegir_Mitad(Mitad_Nivel::Detalle);
    m.listas.Vaciar();
    m.Guardar();
    Formato_Nuevo_Nivel nuevo("NV400");
    nuevo.Crear();
    nuevo.listas.Agregar({0});
    nuevo.Escribir_Nombre("M");
    QVERIFY(nuevo.Aceptar([] {}));
    QCOMPARE(Guardados("KRT300", "F"), (QStringList{"0Fecha0", "1Cota0"}));
    QCOMPARE(Guardados("KRT300", "M"), (QStringList{"0Fecha0", "1Cota0"}));
    QCOMPARE(Guardados("NV400", "M"), QStringList{"0Trabajo0"});
}

PRUEBA(TestFormatos_Nivel)
#include "TestFormatos_Nivel.moc"
