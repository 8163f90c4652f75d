#include "codes/Ficha_Codigo.h"
#include "codes/Mantenimiento_B.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

class TestMantenimiento_B : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void la_rejilla_es_la_consulta();
    void nuevo_codigo_va_detras();
    void editar_cambia_el_suyo();
    void lo_que_no_vale_se_queda();
    void lo_borrado_entretanto();
    void eliminar_codigo_pregunta();
    void sin_codigos_pita();
    void ordenar_pregunta_y_numera();
    void eliminar_libreria_se_lleva_los_codigos();
    void copiar_lleva_entidad_y_capa();
    void enviar();

private:
    std::unique_ptr<Sala_Librerias> sala;
    std::unique_ptr<Mantenimiento_B> m;
};

void TestMantenimiento_B::init()
{
    sala = std::make_unique<Sala_Librerias>();
    Clave_Estacion = "KRT800";
    m = std::make_unique<Mantenimiento_B>();
    m->Cargar();
}

void TestMantenimiento_B::cleanup()
{
    m.reset();
    sala.reset();
}

void TestMantenimiento_B::la_rejilla_es_la_consulta()
{
    Conjunto_Registros filas = Base_Datos->OpenRecordset(m->SQL_Codigos());
    QCOMPARE(filas.RecordCount(), qint64(2));
    QCOMPARE(filas.Texto("CODIGO") + filas.Texto("DESCRIPCION") + filas.Texto("CAPA"),
             QString("EJELíneaEJES"));
    Crear_Libreria(*Base_Datos, Librerias_De(Serie::B), "L'A", "x", {{"Q", 9, "C"}});
    m->Actualizar();
    m->Elegir(2);
    Conjunto_Registros otra = Base_Datos->OpenRecordset(m->SQL_Codigos());
    QCOMPARE(otra.RecordCount(), qint64(1));
    QCOMPARE(otra.Texto("DESCRIPCION"), QString());
}

void TestMantenimiento_B::nuevo_codigo_va_detras()
{
    Peticiones_De_Codigos().Mostrar_Codigo = [](Ficha_Codigo& f) {
        QCOMPARE(f.titulo, QString("Crear código"));
        QCOMPARE(f.nombres, (QStringList{"Punto", "Línea"}));
        QCOMPARE(f.tag, QString("1\0062"));
        QCOMPARE(f.entidad, 0);
        f.codigo = " PIE ";
        f.entidad = 1;
        f.capa = "TALUDES";
        QVERIFY(f.Aceptar());
    };
    m->Nuevo_Codigo();
    QCOMPARE(sala->Codigos(Serie::B, "CAR").last(), QString("3:PIE,2,TALUDES"));
    QCOMPARE(m->fila, 2);
    m->Elegir(1);
    m->Nuevo_Codigo();
    QCOMPARE(sala->Codigos(Serie::B, "NADA"), QStringList{"1:PIE,2,TALUDES"});
}

void TestMantenimiento_B::editar_cambia_el_suyo()
{
    m->fila = 1;
    Peticiones_De_Codigos().Mostrar_Codigo = [](Ficha_Codigo& f) {
        QCOMPARE(f.titulo, QString("Editar código"));
        QCOMPARE(f.codigo + f.nombres[f.entidad] + f.capa, QString("BORDEPuntoCALZADA"));
        f.codigo = "ARCEN";
        QVERIFY(f.Aceptar());
    };
    m->Editar_Codigo();
    QCOMPARE(sala->Codigos(Serie::B, "CAR"), (QStringList{"1:EJE,2,EJES", "2:ARCEN,1,CALZADA"}));
    QCOMPARE(m->fila, 1);
    Peticiones_De_Codigos().Mostrar_Codigo = [](Ficha_Codigo&) {};
    m->Editar_Codigo();
    QCOMPARE(m->fila, 1);
}

void TestMantenimiento_B::lo_que_no_vale_se_queda()
{
    Ficha_Codigo f("CAR");
    f.codigo = "";
    QVERIFY(!f.Aceptar());
    f.codigo = "A,B";
    QVERIFY(!f.Aceptar());
    f.codigo = "AB";
    f.capa = "SEÑALES";
    QVERIFY(!f.Aceptar());
    f.capa = "";
    f.entidad = -1;
    QVERIFY(!f.Aceptar());
    QCOMPARE(
        sala->Tomar_Avisos(),
        (QStringList{"El código no se puede dejar en blanco", "El carácter ',' es reservado",
                     "El carácter 'Ñ' no es aceptado por el aparato", "Debe elegir una entidad"}));
    QCOMPARE(f.Guardado(), qint64(0));
    QCOMPARE(sala->Codigos(Serie::B, "CAR").size(), 2);
    // An entity that the list doesn't know isn't silently another one.
    const Ficha_Codigo ajena("CAR", Codigo_Libreria{"X", 77, "", 1});
    QCOMPARE(ajena.entidad, -1);
}

void TestMantenimiento_B::lo_borrado_entretanto()
{
    Ficha_Codigo nueva("CAR");
    nueva.codigo = "X";
    Ficha_Codigo vieja("CAR", Codigo_Libreria{"EJE", 2, "EJES", 1});
    Eliminar_Libreria(*Base_Datos, Librerias_De(Serie::B), "CAR");
    QVERIFY(!nueva.Aceptar());
    QVERIFY(!vieja.Aceptar());
    QCOMPARE(sala->Tomar_Avisos(),
             (QStringList{"No se puede guardar; la librería ha sido eliminada",
                          "No se puede guardar; el código ha sido eliminado"}));
    QVERIFY(sala->Columna("SELECT CODIGO FROM LIB800_2").isEmpty());
    // A key of 0 is a key like any other.
    sala->Fila("LIB800_2",
               {{"CodLibreria", "NADA"}, {"SECUENCIA", 0}, {"CODIGO", "C"}, {"ENTIDAD", 1}});
    Ficha_Codigo cero("NADA", Codigo_Libreria{"C", 1, "", 0});
    cero.codigo = "D";
    QVERIFY(cero.Aceptar());
    QCOMPARE(sala->Codigos(Serie::B, "NADA"), QStringList{"0:D,1,"});
}

void TestMantenimiento_B::eliminar_codigo_pregunta()
{
    m->fila = 1;
    sala->interfaz.respuestas = {false, true, true};
    m->Eliminar_Codigo();
    QCOMPARE(m->codigos.size(), 2);
    m->Eliminar_Codigo();
    QCOMPARE(sala->Codigos(Serie::B, "CAR"), QStringList{"1:EJE,2,EJES"});
    QCOMPARE(m->fila, 0);
    m->Eliminar_Codigo();
    QCOMPARE(m->fila, -1);
    QCOMPARE(sala->Tomar_Avisos(), QStringList(3, "¿Desea eliminar el código seleccionado?"));
}

void TestMantenimiento_B::sin_codigos_pita()
{
    m->Elegir(1);
    m->Editar_Codigo();
    m->Eliminar_Codigo();
    QCOMPARE(sala->interfaz.pitidos, 2);
    Base_Datos->Execute("DELETE FROM LIB800");
    m->Cargar();
    m->Nuevo_Codigo();
    m->Ordenar();
    QCOMPARE(sala->interfaz.pitidos, 4);
}

void TestMantenimiento_B::ordenar_pregunta_y_numera()
{
    sala->interfaz.respuestas = {false, true};
    m->Ordenar();
    QCOMPARE(sala->Codigos(Serie::B, "CAR")[0], QString("1:EJE,2,EJES"));
    m->Ordenar();
    QCOMPARE(sala->Codigos(Serie::B, "CAR"), (QStringList{"1:BORDE,1,CALZADA", "2:EJE,2,EJES"}));
    m->Ordenar();
    QCOMPARE(sala->Tomar_Avisos().size(), 2);
}

void TestMantenimiento_B::eliminar_libreria_se_lleva_los_codigos()
{
    sala->interfaz.respuestas = {true};
    m->Eliminar();
    QCOMPARE(sala->Claves(Serie::B), QStringList{"NADA"});
    QVERIFY(sala->Columna("SELECT CODIGO FROM LIB800_2").isEmpty());
    QCOMPARE(m->Codigo(), QString("NADA"));
    sala->Tomar_Avisos();
}

void TestMantenimiento_B::copiar_lleva_entidad_y_capa()
{
    sala->interfaz.textos = {QString("CAR2")};
    m->Copiar();
    QCOMPARE(sala->Codigos(Serie::B, "CAR2"), sala->Codigos(Serie::B, "CAR"));
    QCOMPARE(m->Descripcion(), QString("Copia de Obra lineal"));
}

void TestMantenimiento_B::enviar()
{
    sala->interfaz.respuestas = {true};
    m->Enviar();
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"¿ Enviar la librería 'CAR' a la máquina ?"});
    QCOMPARE(sala->enviados, QStringList{"EJE,2,EJES\r\nBORDE,1,CALZADA\r\n"});
    m->Elegir(1);
    m->Enviar();
    Clave_Estacion = "PX7";
    m->Elegir(0);
    m->Enviar();
    QCOMPARE(
        sala->Tomar_Avisos(),
        (QStringList{"No hay ninguna librería seleccionada o \r\nla librería no contiene códigos",
                     "El modelo KRT300-1 no admite librerías de códigos de la serie B"}));
    QCOMPARE(sala->enviados.size(), 1);
}

PRUEBA(TestMantenimiento_B)
#include "TestMantenimiento_B.moc"
