#include "core/jet/Conexion.h"
#include "core/ModEstTotal.h"
#include "core/Reloj.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QSignalSpy>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

class TestSesiones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void la_primera_es_la_1();
    void la_fila_de_la_sesion();
    void el_numero_de_la_ultima_borrada_vuelve();
    void un_hueco_no_se_rellena();
    void la_nueva_no_hereda_lineas();
    void mas_alla_de_32767_es_un_desbordamiento();
    void un_nombre_que_no_cabe_no_hace_sesion();
    void un_apostrofo_se_guarda_como_se_escribio();
    void compactar_deja_la_copia_y_la_base();
    void compactar_sustituye_la_copia_vieja();
    void compactar_no_deja_rastros();
    void compactar_conserva_los_conjuntos_abiertos();
    void compactar_con_otro_programa_no_hace_nada();
    void compactar_en_una_transaccion_no_hace_nada();
    void compactar_sin_sitio_para_la_copia_compacta();
    void compactar_una_base_que_no_esta();
    void compactar_reclama_espacio();
    void compactar_conserva_permisos_y_grupo();
    void compactar_lo_danado_lo_dice();

private:
    qint64 Anotado() const { return p->Leer("LOG/Miraldos.log").count("Compactar_BD: ("); }
    std::unique_ptr<Base_De_Prueba> p;
};

void TestSesiones::init()
{
    p = std::make_unique<Base_De_Prueba>();
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT305";
}

void TestSesiones::cleanup()
{
    p.reset();
}

void TestSesiones::la_primera_es_la_1()
{
    QCOMPARE(Ultima_Sesion(), QString());
    QCOMPARE(Siguiente_ID(), 1);
    QCOMPARE(Nueva_Sesion("a", 0), QStringLiteral("1"));
    QCOMPARE(Nueva_Sesion("b", 0), QStringLiteral("2"));
    QCOMPARE(Ultima_Sesion(), QStringLiteral("2"));
}

void TestSesiones::la_fila_de_la_sesion()
{
    Reloj_Rapido reloj(1, QDateTime(QDate(2026, 3, 7), QTime(23, 59, 58)));
    Poner_Reloj(&reloj);
    Nueva_Sesion("Obra", 11);
    Poner_Reloj(nullptr);
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Sesiones");
    QStringList fila;
    for (const QString& c : rs.Columnas())
        fila << rs.Texto(c);
    QCOMPARE(fila, (QStringList{"1", "2026-03-07 23:59:58", "Obra", "11", "KRT300", "KRT305", ""}));
    QVERIFY(rs.Valor("NPuntos").isNull());
}

void TestSesiones::el_numero_de_la_ultima_borrada_vuelve()
{
    for (const char* n : {"a", "b", "c"})
        Nueva_Sesion(QString::fromLatin1(n), 0);
    p->Fila("Registros", {{"ID", 3}, {"Secuencia", 1}, {"Datos", "vieja"}});
    p->Fila("Registros", {{"ID", 2}, {"Secuencia", 1}, {"Datos", "otra"}});
    const QSignalSpy cambios(&Sucesos::Unico(), &Sucesos::sesiones_cambiadas);
    Eliminar_Sesion(3);
    QCOMPARE(cambios.count(), 1);
    QCOMPARE(Siguiente_ID(), 3);
    QCOMPARE(Nueva_Sesion("d", 0), QStringLiteral("3"));
    QCOMPARE(p->Columna("SELECT Datos FROM Registros"), QStringList{"otra"});
}

void TestSesiones::un_hueco_no_se_rellena()
{
    for (const char* n : {"a", "b", "c"})
        Nueva_Sesion(QString::fromLatin1(n), 0);
    Eliminar_Sesion(1);
    QCOMPARE(Nueva_Sesion("d", 0), QStringLiteral("4"));
    for (int id : {2, 3, 4})
        Eliminar_Sesion(id);
    QCOMPARE(Siguiente_ID(), 1);
}

void TestSesiones::la_nueva_no_hereda_lineas()
{
    // Left by a deletion that failed half-way.
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Datos", "suelta"}});
    Nueva_Sesion("a", 0);
    QCOMPARE(p->Columna("SELECT Datos FROM Registros"), QStringList{});
}

void TestSesiones::mas_alla_de_32767_es_un_desbordamiento()
{
    p->Fila("Sesiones", {{"ID", 32766}});
    QCOMPARE(Nueva_Sesion("a", 0), QStringLiteral("32767"));
    QVERIFY_ERROR(6, Siguiente_ID());
    QCOMPARE(Nueva_Sesion("b", 0), QString());
    QCOMPARE(Ultima_Sesion(), QStringLiteral("32767"));
}

void TestSesiones::un_nombre_que_no_cabe_no_hace_sesion()
{
    QCOMPARE(Nueva_Sesion(QString(51, u'a'), 0), QString());
    QCOMPARE(Siguiente_ID(), 1);
    QVERIFY(p->Leer("LOG/Miraldos.log").contains("Nueva_Sesion: (3163)"));
    QCOMPARE(Nueva_Sesion(QString(50, u'a'), 0), QStringLiteral("1"));
}

void TestSesiones::un_apostrofo_se_guarda_como_se_escribio()
{
    Nueva_Sesion("L'Hospitalet", 0);
    QCOMPARE(p->Columna("SELECT NFichero FROM Sesiones WHERE NFichero = 'L''Hospitalet'"),
             QStringList{"L'Hospitalet"});
}

void TestSesiones::compactar_deja_la_copia_y_la_base()
{
    Nueva_Sesion("a", 0);
    const QSignalSpy reabierta(&Sucesos::Unico(), &Sucesos::base_reabierta);
    QVERIFY(Compactar_BD());
    QCOMPARE(reabierta.count(), 1);
    QVERIFY(Base_Datos && Base_Datos->Abierta());
    QCOMPARE(Nueva_Sesion("b", 0), QStringLiteral("2"));
    // The copy is the compacted database, not the one before.
    const auto copia = Base::Abrir(p->Ruta("MDB/esttotal.bak"));
    QCOMPARE(copia->OpenRecordset("Sesiones").RecordCount(), 1);
    QCOMPARE(Anotado(), 0);
}

void TestSesiones::compactar_sustituye_la_copia_vieja()
{
    p->Escribir("MDB/esttotal.bak", "una copia vieja");
    p->Escribir("MDB/esttotal.pak", "un resto de otra vez");
    QVERIFY(Compactar_BD());
    QVERIFY(p->Leer("MDB/esttotal.bak").startsWith("SQLite format 3"));
    QVERIFY(!QFile::exists(p->Ruta("MDB/esttotal.pak")));
}

void TestSesiones::compactar_no_deja_rastros()
{
    Nueva_Sesion("a", 0);
    QVERIFY(Compactar_BD());
    Base_Datos.reset();
    QCOMPARE(QDir(Ruta_MDB).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase),
             (QStringList{"esttotal.bak", "EstTotal.mdb"}));
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
}

void TestSesiones::compactar_conserva_los_conjuntos_abiertos()
{
    for (const char* n : {"a", "b", "c"})
        Nueva_Sesion(QString::fromLatin1(n), 0);
    const auto otra = Base::Abrir(Fichero_MDB);
    Conjunto_Registros tabla = otra->OpenRecordset("Sesiones");
    Conjunto_Registros consulta = otra->OpenRecordset("SELECT * FROM Sesiones ORDER BY ID DESC");
    tabla.MoveNext();
    consulta.MoveNext();
    QVERIFY(Compactar_BD());
    tabla.MoveNext();
    consulta.MoveNext();
    QCOMPARE(tabla.Texto("NFichero"), QStringLiteral("c"));
    QCOMPARE(consulta.Texto("NFichero"), QStringLiteral("a"));
    // What they write is in the new file.
    consulta.Edit();
    consulta.Poner("NPuntos", 7);
    consulta.Update();
    QCOMPARE(p->Columna("SELECT NPuntos FROM Sesiones WHERE ID = 1"), QStringList{"7"});
}

void TestSesiones::compactar_con_otro_programa_no_hace_nada()
{
    Nueva_Sesion("a", 0);
    p->Escribir("MDB/esttotal.bak", "vieja");
    sqlite3* ajena = nullptr;
    QCOMPARE(sqlite3_open(Fichero_MDB.toUtf8().constData(), &ajena), SQLITE_OK);
    QCOMPARE(sqlite3_exec(ajena, "SELECT * FROM KRT", nullptr, nullptr, nullptr), SQLITE_OK);
    QVERIFY(!Compactar_BD());
    sqlite3_close(ajena);
    QVERIFY(Anotado() == 1);
    QCOMPARE(p->Leer("MDB/esttotal.bak"), QByteArray("vieja"));
    QVERIFY(!QFile::exists(p->Ruta("MDB/esttotal.pak")));
    QCOMPARE(Nueva_Sesion("b", 0), QStringLiteral("2"));
}

void TestSesiones::compactar_en_una_transaccion_no_hace_nada()
{
    Base_Datos->BeginTrans();
    Nueva_Sesion("a", 0);
    QVERIFY(!Compactar_BD());
    Base_Datos->CommitTrans();
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
}

void TestSesiones::compactar_sin_sitio_para_la_copia_compacta()
{
    Nueva_Sesion("a", 0);
    QVERIFY(QDir(Ruta_MDB).mkdir("esttotal.bak"));
    QVERIFY(Compactar_BD());
    QCOMPARE(Anotado(), 0);
    QCOMPARE(p->Leer("LOG/Miraldos.log").count("Copias::Guardar: ("), 1);
    QVERIFY(!QFile::exists(p->Ruta("MDB/esttotal.pak")));
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
    QCOMPARE(Nueva_Sesion("b", 0), QStringLiteral("2"));
    QCOMPARE(p->Columna("PRAGMA journal_mode"), QStringList{"wal"});
}

void TestSesiones::compactar_una_base_que_no_esta()
{
    Base_Datos.reset();
    QFile::remove(Fichero_MDB);
    QVERIFY(!Compactar_BD());
    QVERIFY(!Base_Datos);
    QVERIFY_ERROR(91, Siguiente_ID());
    QCOMPARE(Nueva_Sesion("a", 0), QString());
}

void TestSesiones::compactar_reclama_espacio()
{
    Transaccion t(*Base_Datos);
    Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
    for (int k = 0; k < 5000; ++k)
        i.Anadir({1, k, QString(200, u'x')});
    t.Confirmar();
    Eliminar_Sesion(1);
    QVERIFY(Compactar_BD());
    QVERIFY(QFileInfo(Fichero_MDB).size() < 300 * 1024);
}

void TestSesiones::compactar_conserva_permisos_y_grupo()
{
    constexpr gid_t OTRO_GRUPO = 65534;
    const QByteArray ruta = QFile::encodeName(Fichero_MDB);
    QCOMPARE(chmod(ruta.constData(), 0660), 0);
    const bool otro = chown(ruta.constData(), uid_t(-1), OTRO_GRUPO) == 0;
    QVERIFY(Compactar_BD());
    for (const char* f : {"MDB/EstTotal.mdb", "MDB/esttotal.bak"}) {
        struct stat como {};
        QCOMPARE(stat(QFile::encodeName(p->Ruta(f)).constData(), &como), 0);
        QCOMPARE(como.st_mode & 0777, mode_t(0660));
        if (otro) QCOMPARE(como.st_gid, OTRO_GRUPO);
    }
}

void TestSesiones::compactar_lo_danado_lo_dice()
{
    Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
    for (int k = 0; k < 500; ++k)
        i.Anadir({1, k, QString(200, u'x')});
    QVERIFY(Compactar_BD());
    const QByteArray copia = p->Leer("MDB/esttotal.bak");
    Base_Datos.reset();
    QByteArray rota = p->Leer("MDB/EstTotal.mdb");
    for (qsizetype pagina = rota.size() - 8 * 4096; pagina < rota.size(); pagina += 4096)
        rota.replace(pagina, 64, QByteArray(64, '\x7F'));
    p->Escribir("MDB/EstTotal.mdb", rota);
    Base_Datos = Base::Abrir(Fichero_MDB);
    const Resultado_Compactacion r = Compactar_BD();
    QVERIFY(!r);
    QVERIFY(r.Danada());
    QVERIFY(!r.descripcion.isEmpty());
    // Neither the database nor the good copy has been touched.
    QCOMPARE(p->Leer("MDB/esttotal.bak"), copia);
    Base_Datos.reset();
    QCOMPARE(p->Leer("MDB/EstTotal.mdb"), rota);
}

PRUEBA(TestSesiones)
#include "TestSesiones.moc"
