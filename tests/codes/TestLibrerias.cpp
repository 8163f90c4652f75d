#include "core/Sucesos.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

#include <QSignalSpy>

// The store of both series.
class TestLibrerias : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_familia_tiene_su_serie();
    void listar_cuenta_los_codigos();
    void crear_dos_veces_no_pisa();
    void crear_entera_o_nada();
    void guardar_cambia_y_numera();
    void guardar_lo_borrado_dice_que_no();
    void borrar_se_lleva_los_codigos();
    void codigo_a_codigo();
    void un_apostrofo_es_un_nombre();
    void cada_cambio_se_anuncia();
    void borrar_pregunta();

private:
    const Serie_Librerias& a = Librerias_De(Serie::A);
    const Serie_Librerias& b = Librerias_De(Serie::B);
};

void TestLibrerias::cada_familia_tiene_su_serie()
{
    QCOMPARE(Series_De_Librerias().size(), size_t(2));
    for (const Familia& f : Familias())
        if (f.librerias != Serie::Ninguna) QCOMPARE(Librerias_De(f.librerias).serie, f.librerias);
    // Texts stand where they do, with the capitals they have.
    QCOMPARE(a.titulo_nueva, QString("Crear Librería de Códigos"));
    QCOMPARE(a.titulo_editar, QString("Editar Librería de Códigos"));
    QCOMPARE(b.titulo_nueva, QString("Crear librería de códigos"));
    QCOMPARE(b.titulo_editar, QString("Editar librería de códigos"));
}

void TestLibrerias::listar_cuenta_los_codigos()
{
    const Sala_Librerias sala;
    QCOMPARE(sala.Claves(Serie::A), (QStringList{"GEN", "VACIA"}));
    QCOMPARE(sala.Claves(Serie::B), (QStringList{"CAR", "NADA"}));
    QList<qint64> cuentas;
    for (const Serie_Librerias* s : {&a, &b})
        for (const Cabecera_Libreria& l : Listar_Librerias(*Base_Datos, *s))
            cuentas << l.codigos;
    QCOMPARE(cuentas, (QList<qint64>{3, 0, 2, 0}));
    QCOMPARE(sala.Columna("SELECT Codigos FROM Lib1"), (QStringList{"\6ARBOL\6CASA\6MURO", ""}));
}

void TestLibrerias::crear_dos_veces_no_pisa()
{
    const Sala_Librerias sala;
    QVERIFY_ERROR(3022, Crear_Libreria(*Base_Datos, a, "GEN", "Otra", Como_Libreria({"X"})));
    QVERIFY_ERROR(3022, Crear_Libreria(*Base_Datos, b, "CAR", "Otra", {{"X", 1, ""}}));
    QCOMPARE(sala.Codigos(Serie::A, "GEN"), (QStringList{"ARBOL", "CASA", "MURO"}));
    QCOMPARE(sala.Codigos(Serie::B, "CAR"), (QStringList{"1:EJE,2,EJES", "2:BORDE,1,CALZADA"}));
}

void TestLibrerias::crear_entera_o_nada()
{
    const Sala_Librerias sala;
    // The second code doesn't fit its column: the header must not stay alone.
    QVERIFY_ERROR(3163, Crear_Libreria(*Base_Datos, b, "ROTA", "x",
                                       {{"A", 1, ""}, {QString(21, u'X'), 1, ""}}));
    QCOMPARE(sala.Claves(Serie::B), (QStringList{"CAR", "NADA"}));
    QVERIFY(sala.Columna("SELECT CODIGO FROM LIB800_2 WHERE CodLibreria = 'ROTA'").isEmpty());
    QVERIFY_ERROR(3163, Guardar_Codigos(*Base_Datos, b, "CAR", {{QString(21, u'X'), 1, ""}}, "z"));
    QCOMPARE(sala.Codigos(Serie::B, "CAR").size(), 2);
    QCOMPARE(Buscar_Libreria(*Base_Datos, b, "CAR")->descripcion, QString("Obra lineal"));
}

void TestLibrerias::guardar_cambia_y_numera()
{
    const Sala_Librerias sala;
    QVERIFY(Guardar_Codigos(*Base_Datos, a, "GEN", Como_Libreria({"B", "", "A"})));
    QCOMPARE(sala.Codigos(Serie::A, "GEN"), (QStringList{"B", "", "A"}));
    QCOMPARE(Buscar_Libreria(*Base_Datos, a, "GEN")->descripcion, QString("De GEN"));
    QVERIFY(Guardar_Codigos(*Base_Datos, b, "CAR", {{"Z", 1, "", 9}, {"Y", 2, "C", 4}}, "Nueva"));
    QCOMPARE(sala.Codigos(Serie::B, "CAR"), (QStringList{"1:Z,1,", "2:Y,2,C"}));
    QCOMPARE(Buscar_Libreria(*Base_Datos, b, "CAR")->descripcion, QString("Nueva"));
    QVERIFY(Describir_Libreria(*Base_Datos, a, "GEN", "Otra"));
    QCOMPARE(Buscar_Libreria(*Base_Datos, a, "GEN")->descripcion, QString("Otra"));
    QCOMPARE(sala.Codigos(Serie::A, "GEN").size(), 3);
}

void TestLibrerias::guardar_lo_borrado_dice_que_no()
{
    const Sala_Librerias sala;
    for (const Serie_Librerias* s : {&a, &b}) {
        QVERIFY(!Guardar_Codigos(*Base_Datos, *s, "NO", {{"X", 1, ""}}));
        QVERIFY(!Describir_Libreria(*Base_Datos, *s, "NO", "x"));
        QVERIFY(!Buscar_Libreria(*Base_Datos, *s, "NO"));
        QVERIFY(Leer_Codigos(*Base_Datos, *s, "NO").isEmpty());
        Eliminar_Libreria(*Base_Datos, *s, "NO");
    }
    QVERIFY(!Cambiar_Codigo(*Base_Datos, "CAR", {"X", 1, "", 7}));
    Eliminar_Codigo(*Base_Datos, "CAR", 7);
    QCOMPARE(sala.Columna("SELECT CODIGO FROM LIB800_2"), (QStringList{"EJE", "BORDE"}));
}

void TestLibrerias::borrar_se_lleva_los_codigos()
{
    const Sala_Librerias sala;
    Crear_Libreria(*Base_Datos, b, "OTRA", "x", {{"Q", 1, ""}});
    Eliminar_Libreria(*Base_Datos, b, "CAR");
    QCOMPARE(sala.Claves(Serie::B), (QStringList{"NADA", "OTRA"}));
    QCOMPARE(sala.Columna("SELECT CODIGO FROM LIB800_2"), QStringList{"Q"});
    Eliminar_Libreria(*Base_Datos, a, "GEN");
    QCOMPARE(sala.Claves(Serie::A), QStringList{"VACIA"});
}

void TestLibrerias::codigo_a_codigo()
{
    const Sala_Librerias sala;
    QCOMPARE(Anadir_Codigo(*Base_Datos, "CAR", {"PIE", 1, "T"}), qint64(3));
    QCOMPARE(Anadir_Codigo(*Base_Datos, "NADA", {"UNO", 1, ""}), qint64(1));
    QVERIFY(Cambiar_Codigo(*Base_Datos, "CAR", {"CUNETA", 2, "D", 1}));
    Eliminar_Codigo(*Base_Datos, "CAR", 2);
    QCOMPARE(sala.Codigos(Serie::B, "CAR"), (QStringList{"1:CUNETA,2,D", "3:PIE,1,T"}));
    // One past the last row, not into the gap.
    QCOMPARE(Anadir_Codigo(*Base_Datos, "CAR", {"FIN", 1, ""}), qint64(4));
    QCOMPARE(sala.Codigos(Serie::B, "NADA"), QStringList{"1:UNO,1,"});
}

void TestLibrerias::un_apostrofo_es_un_nombre()
{
    const Sala_Librerias sala;
    const QString nombre = "L'ALT";
    for (const Serie_Librerias* s : {&a, &b}) {
        Crear_Libreria(*Base_Datos, *s, nombre, "d'obra", {{"A'B", 1, ""}});
        QCOMPARE(Solo_Codigos(Leer_Codigos(*Base_Datos, *s, nombre)), QStringList{"A'B"});
        Eliminar_Libreria(*Base_Datos, *s, nombre);
        QVERIFY(!Buscar_Libreria(*Base_Datos, *s, nombre));
    }
}

void TestLibrerias::cada_cambio_se_anuncia()
{
    const Sala_Librerias sala;
    const QSignalSpy avisos(&Sucesos::Unico(), &Sucesos::librerias_cambiadas);
    Crear_Libreria(*Base_Datos, a, "N", "n");
    Guardar_Codigos(*Base_Datos, a, "N", Como_Libreria({"X"}));
    Describir_Libreria(*Base_Datos, a, "N", "m");
    Eliminar_Libreria(*Base_Datos, a, "N");
    Anadir_Codigo(*Base_Datos, "CAR", {"X", 1, ""});
    Cambiar_Codigo(*Base_Datos, "CAR", {"Y", 1, "", 3});
    Eliminar_Codigo(*Base_Datos, "CAR", 3);
    QCOMPARE(avisos.size(), 7);
}

void TestLibrerias::borrar_pregunta()
{
    Sala_Librerias sala;
    sala.interfaz.respuestas = {false, true};
    QVERIFY(!Borrar_Libreria(a, "GEN"));
    QCOMPARE(sala.Claves(Serie::A).size(), 2);
    QVERIFY(Borrar_Libreria(a, "GEN"));
    QCOMPARE(sala.Claves(Serie::A), QStringList{"VACIA"});
    QCOMPARE(sala.Tomar_Avisos(), QStringList(2, "¿ Desea eliminar la librería de códigos ?"));
}

PRUEBA(TestLibrerias)
#include "TestLibrerias.moc"
