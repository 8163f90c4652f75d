#include "core/Configuracion.h"
#include "core/jet/Esquema.h"
#include "core/jet/Examen.h"
#include "core/Renovacion.h"
#include "core/Sesiones.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <sqlite3.h>

// Databases of other versions of the program. EstTotal_version0.mdb was written by the one before
// tables had a version: two sessions, a format and libraries of the user's, a model of his own.
class TestMigracion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void la_de_antes_se_abre_con_todo();
    void la_copia_es_la_de_antes();
    void se_migra_una_vez();
    void un_fallo_la_deja_como_estaba();
    void los_numeros_de_fila_se_conservan();
    void lo_que_la_de_antes_dejaba_pasar();
    void una_mas_nueva_no_se_abre();
    void sin_una_tabla_de_su_version_es_ajena();
    void las_tablas_quedan_como_las_de_una_nueva();
    void las_filas_entregadas_se_renuevan();
    void lo_propio_se_conserva();
    void sin_sumas_se_conserva_lo_que_ya_no_se_entrega();
    void una_plantilla_que_no_es_mas_nueva_no_cambia_nada();
    void una_plantilla_rota_no_estorba();
    void al_arrancar_se_renueva();

private:
    static int Ejecutar(const QString& fichero, const QByteArray& sql);
    void Poner_Vieja() const;
    QString Plantilla(const QString& sello, const std::function<void(Base&)>& llenar) const;
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestMigracion::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
}

void TestMigracion::cleanup()
{
    p.reset();
    interfaz.reset();
}

// As another program would, without the store.
int TestMigracion::Ejecutar(const QString& fichero, const QByteArray& sql)
{
    sqlite3* base = nullptr;
    int r = sqlite3_open(fichero.toUtf8().constData(), &base);
    if (r == SQLITE_OK) r = sqlite3_exec(base, sql.constData(), nullptr, nullptr, nullptr);
    sqlite3_close(base);
    return r;
}

void TestMigracion::Poner_Vieja() const
{
    Base_Datos.reset();
    QFile::remove(Fichero_MDB);
    QVERIFY(QFile::copy(DATOS_PRUEBA "/core/EstTotal_version0.mdb", Fichero_MDB));
    QFile::setPermissions(Fichero_MDB, QFile::ReadOwner | QFile::WriteOwner);
}

void TestMigracion::la_de_antes_se_abre_con_todo()
{
    Poner_Vieja();
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(p->Columna("SELECT ID || '/' || Fecha || '/' || NFichero || '/' || NPuntos FROM "
                        "Sesiones"),
             (QStringList{"1/2026-11-21 23:38:02/L'Hospitalet/3",
                          "2/2026-03-07 10:20:30/Obra vieja/2"}));
    QCOMPARE(p->Columna("SELECT Datos FROM Registros"),
             (QStringList{"JOB obra", "STN 1,1.500,", "SS 10,1.6,100.0,50.0,20.0,ARBOL",
                          " x000100000", " y000200000"}));
    QVERIFY(p->Columna("SELECT DatosG FROM Registros WHERE ID = 1")[2].contains("ARBOL") ||
            p->Columna("SELECT DatosG FROM Registros WHERE ID = 1")[2].contains("Punto Visado"));
    QCOMPARE(p->Columna("SELECT Campo FROM Formatos2 WHERE Nombre = 'Mi formato' ORDER BY sec"),
             (QStringList{"Punto", "Coordenada X"}));
    QCOMPARE(p->Columna("SELECT Codigos FROM Lib1 WHERE CoD = '7'"),
             QStringList{QString("A") + QChar(6) + "B"});
    QCOMPARE(p->Columna("SELECT CODIGO FROM LIB800_2 WHERE CodLibreria = 'MIA'"),
             QStringList{"C1"});
    QCOMPARE(p->Columna("SELECT Clave FROM KRT WHERE Nombre = 'Mi modelo'"), QStringList{"KRT300"});
    QCOMPARE(p->Columna("SELECT count(*) FROM Campos"), QStringList{"217"});
    QCOMPARE(p->Columna("PRAGMA integrity_check"), QStringList{"ok"});
    QCOMPARE(Nueva_Sesion("Otra", 0), QStringLiteral("3"));
    QVERIFY(Compactar_BD());
}

void TestMigracion::la_copia_es_la_de_antes()
{
    Poner_Vieja();
    Base_Datos = Base::Abrir(Fichero_MDB);
    const Examen copia = Examinar_Base(p->Ruta("MDB/esttotal_version0.bak"), true);
    QVERIFY(copia.Sana());
    QCOMPARE(copia.version, 0);
    QCOMPARE(copia.sesiones, 2);
    // Put back by hand and opened again, the first copy stays.
    Poner_Vieja();
    Base_Datos = Base::Abrir(Fichero_MDB);
    QVERIFY(QFile::exists(p->Ruta("MDB/esttotal_version0_2.bak")));
}

void TestMigracion::se_migra_una_vez()
{
    Poner_Vieja();
    Base_Datos = Base::Abrir(Fichero_MDB);
    Base_Datos.reset();
    const QStringList antes = QDir(Ruta_MDB).entryList(QDir::Files);
    QCOMPARE(Examinar_Base(Fichero_MDB, false).version, Esquema::VERSION);
    Base_Datos = Base::Abrir(Fichero_MDB);
    Base_Datos.reset();
    QCOMPARE(QDir(Ruta_MDB).entryList(QDir::Files), antes);
}

void TestMigracion::un_fallo_la_deja_como_estaba()
{
    Poner_Vieja();
    // Two rows that the new table has no room for together.
    QCOMPARE(Ejecutar(Fichero_MDB, "DROP INDEX KRT_PrimaryKey; INSERT INTO KRT(Nombre) "
                                   "SELECT Nombre FROM KRT WHERE Nombre='Mi modelo'"),
             SQLITE_OK);
    const QByteArray antes = p->Leer("MDB/EstTotal.mdb");
    QVERIFY_ERROR(3022, Base::Abrir(Fichero_MDB));
    QCOMPARE(p->Leer("MDB/EstTotal.mdb"), antes);
    QCOMPARE(QDir(Ruta_MDB).entryList(QDir::Files), QStringList{"EstTotal.mdb"});
}

void TestMigracion::los_numeros_de_fila_se_conservan()
{
    Poner_Vieja();
    QCOMPARE(Ejecutar(Fichero_MDB, "UPDATE Registros SET rowid = 100 - rowid"), SQLITE_OK);
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(p->Columna("SELECT Datos FROM Registros")[0], QStringLiteral(" y000200000"));
    QCOMPARE(p->Columna("SELECT max(rowid) FROM Registros"), QStringList{"99"});
}

void TestMigracion::lo_que_la_de_antes_dejaba_pasar()
{
    Poner_Vieja();
    QCOMPARE(Ejecutar(Fichero_MDB,
                      "UPDATE Sesiones SET Fecha = 'ayer' WHERE ID = 1;"
                      "UPDATE KRT SET FormatoCoord = 'ab' || char(0) || printf('%.100c','x') "
                      "WHERE Nombre = 'Mi modelo'"),
             SQLITE_OK);
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(p->Columna("SELECT ID FROM Sesiones WHERE Fecha IS NULL"), QStringList{"1"});
    const QString cortado =
        p->Columna("SELECT FormatoCoord FROM KRT WHERE Nombre = 'Mi modelo'")[0];
    QCOMPARE(cortado.size(), 50);
    QCOMPARE(cortado[2], QChar(0));
}

void TestMigracion::una_mas_nueva_no_se_abre()
{
    Base_Datos.reset();
    QCOMPARE(
        Ejecutar(Fichero_MDB, "PRAGMA user_version=" + QByteArray::number(Esquema::VERSION + 1)),
        SQLITE_OK);
    const QByteArray antes = p->Leer("MDB/EstTotal.mdb");
    p->Escribir("EstTotal.ini", "PORT=COM1\r\n");
    QVERIFY(!Cargar_Configuracion(Ruta_Aplicacion));
    const QString texto = interfaz->Textos()[0];
    QVERIFY2(texto.contains("(3041) La base de datos es de una versión más nueva de Miraldos"),
             qPrintable(texto));
    QCOMPARE(p->Leer("MDB/EstTotal.mdb"), antes);
}

void TestMigracion::sin_una_tabla_de_su_version_es_ajena()
{
    Poner_Vieja();
    QCOMPARE(Ejecutar(Fichero_MDB, "DROP TABLE Lib1"), SQLITE_OK);
    QVERIFY_ERROR(3343, Base::Abrir(Fichero_MDB));
    // With the number of this version it has to have this version's tables.
    Poner_Vieja();
    QCOMPARE(Ejecutar(Fichero_MDB, "PRAGMA user_version=1"), SQLITE_OK);
    QVERIFY_ERROR(3343, Base::Abrir(Fichero_MDB));
}

void TestMigracion::las_tablas_quedan_como_las_de_una_nueva()
{
    const QString sql = "SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY sql";
    QStringList nuevas = p->Columna(sql);
    Poner_Vieja();
    Base_Datos = Base::Abrir(Fichero_MDB);
    QStringList migradas = p->Columna(sql);
    nuevas.replaceInStrings("\"", "");
    migradas.replaceInStrings("\"", "");
    QCOMPARE(migradas, nuevas);
}

QString TestMigracion::Plantilla(const QString& sello,
                                 const std::function<void(Base&)>& llenar) const
{
    const QString fichero = p->Ruta("DAT/Database.mdb");
    QFile::remove(fichero);
    const auto base = Base::Crear(fichero);
    llenar(*base);
    Sellar_Entregadas(*base, sello);
    return fichero;
}

namespace {

void Modelo(Base& base, const QString& nombre, const QString& foto)
{
    base.Execute("INSERT INTO KRT (Nombre, Clave, Foto) VALUES (?, 'KRT300', ?)", {nombre, foto});
}

void Operacion_De(Base& base, int ope, const QString& palabras)
{
    base.Execute("INSERT INTO OPE (OPE, DESOPE) VALUES (?, ?)", {ope, palabras});
}

} // namespace

void TestMigracion::las_filas_entregadas_se_renuevan()
{
    QVERIFY(Renovar_Entregadas(*Base_Datos, Plantilla("2026", [](Base& b) {
        Modelo(b, "A", "a1");
        Modelo(b, "B", "b1");
    })));
    QVERIFY(Renovar_Entregadas(*Base_Datos, Plantilla("2027", [](Base& b) {
        Modelo(b, "C", "c2");
        Modelo(b, "A", "a2");
    })));
    QCOMPARE(p->Columna("SELECT Foto FROM KRT"), (QStringList{"c2", "a2"}));
    QCOMPARE(p->Columna("SELECT count(*) FROM Entregadas"), QStringList{"2"});
}

void TestMigracion::lo_propio_se_conserva()
{
    Renovar_Entregadas(*Base_Datos, Plantilla("2026", [](Base& b) {
        Modelo(b, "A", "a1");
        Modelo(b, "B", "b1");
        Operacion_De(b, 1, "Una");
    }));
    Modelo(*Base_Datos, "Mio", "m");
    Base_Datos->Execute("UPDATE KRT SET Foto = 'mia' WHERE Nombre = 'B'");
    Operacion_De(*Base_Datos, 90, "La mía");
    p->Fila("Formatos1", {{"Nombre", "F"}, {"Maquina", "KRT300"}});
    Nueva_Sesion("Obra", 0);
    QVERIFY(Renovar_Entregadas(*Base_Datos, Plantilla("2027", [](Base& b) {
        Modelo(b, "A", "a2");
        Modelo(b, "B", "b2");
        Modelo(b, "Mio", "ajena");
        Operacion_De(b, 1, "Una");
        // The same words under another number.
        Operacion_De(b, 2, "La mía");
    })));
    QCOMPARE(p->Columna("SELECT Nombre || Foto FROM KRT"), (QStringList{"Aa2", "Bmia", "Miom"}));
    QCOMPARE(p->Columna("SELECT OPE FROM OPE"), (QStringList{"1", "90"}));
    QCOMPARE(p->Columna("SELECT Nombre FROM Formatos1"), QStringList{"F"});
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
    // And what he takes back to the delivered form is delivered again.
    Base_Datos->Execute("UPDATE KRT SET Foto = 'b2' WHERE Nombre = 'B'");
    QVERIFY(
        Renovar_Entregadas(*Base_Datos, Plantilla("2028", [](Base& b) { Modelo(b, "B", "b3"); })));
    QCOMPARE(p->Columna("SELECT Nombre || Foto FROM KRT"), (QStringList{"Bb3", "Miom"}));
}

void TestMigracion::sin_sumas_se_conserva_lo_que_ya_no_se_entrega()
{
    Modelo(*Base_Datos, "A", "a0");
    Modelo(*Base_Datos, "Mio", "m");
    QVERIFY(
        Renovar_Entregadas(*Base_Datos, Plantilla("2026", [](Base& b) { Modelo(b, "A", "a1"); })));
    QCOMPARE(p->Columna("SELECT Nombre || Foto FROM KRT"), (QStringList{"Aa1", "Miom"}));
}

void TestMigracion::una_plantilla_que_no_es_mas_nueva_no_cambia_nada()
{
    Renovar_Entregadas(*Base_Datos, Plantilla("2026", [](Base& b) { Modelo(b, "A", "a1"); }));
    Base_Datos->Execute("DELETE FROM KRT");
    const QString misma = Plantilla("2026", [](Base& b) { Modelo(b, "A", "a2"); });
    QVERIFY(!Renovar_Entregadas(*Base_Datos, misma));
    QVERIFY(
        !Renovar_Entregadas(*Base_Datos, Plantilla("2025", [](Base& b) { Modelo(b, "A", "a2"); })));
    QVERIFY(!Renovar_Entregadas(*Base_Datos, p->Ruta("DAT/no está.mdb")));
    QVERIFY(!Renovar_Entregadas(*Base_Datos, DATOS_PRUEBA "/core/EstTotal_version0.mdb"));
    QCOMPARE(p->Columna("SELECT count(*) FROM KRT"), QStringList{"0"});
}

void TestMigracion::una_plantilla_rota_no_estorba()
{
    Modelo(*Base_Datos, "A", "a0");
    const QString fichero = Plantilla("2026", [](Base& b) {
        for (int i = 0; i < 400; ++i)
            Modelo(b, QString::number(i), QString(200, u'x'));
    });
    QByteArray bytes = p->Leer("DAT/Database.mdb");
    // A leaf in the midst of the models.
    bytes.replace(bytes.indexOf(QByteArray(200, 'x')) / 4096 * 4096, 64, QByteArray(64, '\x7F'));
    p->Escribir("DAT/Database.mdb", bytes);
    QVERIFY(!Renovar_Entregadas(*Base_Datos, fichero));
    QCOMPARE(p->Columna("SELECT Nombre FROM KRT"), QStringList{"A"});
    QVERIFY(p->Leer("LOG/Miraldos.log").contains("Renovar_Entregadas: "));
}

void TestMigracion::al_arrancar_se_renueva()
{
    Poner_Vieja();
    Plantilla("2026", [](Base& b) { Modelo(b, "KRT305", "nueva"); });
    p->Escribir("EstTotal.ini", "KRTNOM=KRT305\r\n");
    QVERIFY(Cargar_Configuracion(Ruta_Aplicacion));
    QCOMPARE(p->Columna("SELECT Foto FROM KRT WHERE Nombre = 'KRT305'"), QStringList{"nueva"});
    QCOMPARE(p->Columna("SELECT Nombre FROM KRT WHERE Nombre = 'Mi modelo'").size(), 1);
    QCOMPARE(p->Columna("SELECT ID FROM Sesiones").size(), 2);
}

PRUEBA(TestMigracion)
#include "TestMigracion.moc"
