#include "core/jet/Conexion.h"
#include "core/jet/Esquema.h"
#include "core/ModEstTotal.h"
#include "core/plataforma.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QRandomGenerator>
#include <sqlite3.h>

namespace {

// Another program on the file: a connection that knows nothing of the store.
class Otro_Programa {
public:
    explicit Otro_Programa(const QString& fichero)
    {
        sqlite3_open(fichero.toUtf8().constData(), &base);
    }
    ~Otro_Programa() { sqlite3_close(base); }
    Otro_Programa(const Otro_Programa&) = delete;
    Otro_Programa& operator=(const Otro_Programa&) = delete;
    int Ejecutar(const char* sql) { return sqlite3_exec(base, sql, nullptr, nullptr, nullptr); }

private:
    sqlite3* base = nullptr;
};

} // namespace

class TestConexion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_que_falta_es_3024();
    void lo_ajeno_es_3343_data();
    void lo_ajeno_es_3343();
    void lo_truncado_es_3343();
    void lo_danado_da_un_error_y_no_cae();
    void no_se_crea_encima_ni_sin_carpeta();
    void sin_permiso_es_3051();
    void las_bases_de_un_fichero_comparten_conexion();
    void cerrada_es_3420();
    void las_transacciones_se_anidan();
    void una_transaccion_sin_confirmar_se_deshace();
    void sin_transaccion_es_3034();
    void otro_programa_que_escribe_es_3045();
    void el_disco_lleno_es_3026_y_no_estropea();
    void al_cerrar_no_queda_nada_al_lado();
    void lo_confirmado_sobrevive_al_corte();
    void compactar_escribe_otra_y_la_deja_en_uso();
    void compactar_con_otro_programa_es_3045();
    void compactar_en_medio_de_algo_es_3045();
    void compactar_sobre_un_fichero_es_3204();
    void un_recorrido_abandonado_no_estorba();
    void las_sentencias_prestadas_se_preparan_de_nuevo();
    void un_recorrido_pasa_una_vez();
    void la_version_crece_con_cada_escritura();
    void una_carpeta_con_blancos_y_acentos();
    void en_la_red_sin_diario();
    void en_la_red_no_se_escribe_en_la_sustituida();
    void los_sistemas_de_red_data();
    void los_sistemas_de_red();
};

void TestConexion::lo_que_falta_es_3024()
{
    const QTemporaryDir d;
    QVERIFY_ERROR(3024, Base::Abrir(d.filePath("nada.mdb")));
    QVERIFY_ERROR(3024, Base::Abrir(d.path()));
    QVERIFY(!QFile::exists(d.filePath("nada.mdb")));
}

void TestConexion::lo_ajeno_es_3343_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("vacio") << QByteArray();
    QTest::newRow("un byte") << QByteArray("x");
    QTest::newRow("texto") << QByteArray("Esto no es una base de datos.\r\n").repeated(200);
    QTest::newRow("cabecera de otro motor")
        << QByteArray("\0\1\0\0Standard Jet DB\0", 20).repeated(300);
    QTest::newRow("solo la marca") << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("la marca y ruido")
        << QByteArray("SQLite format 3\0", 16) + QByteArray(8176, '\x5A');
}

void TestConexion::lo_ajeno_es_3343()
{
    QFETCH(QByteArray, bytes);
    const Base_De_Prueba p;
    p.Escribir("otra.mdb", bytes);
    QVERIFY_ERROR(3343, Base::Abrir(p.Ruta("otra.mdb")));
    QCOMPARE(p.Leer("otra.mdb"), bytes);
}

void TestConexion::lo_truncado_es_3343()
{
    const Base_De_Prueba p;
    for (int i = 0; i < 200; ++i)
        p.Fila("Registros", {{"ID", 1}, {"Secuencia", i}, {"Datos", QString(250, u'a')}});
    Base_Datos.reset();
    const QByteArray entera = p.Leer("MDB/EstTotal.mdb");
    QVERIFY(entera.size() > 100000);
    QList<qsizetype> cortes{1, 15, 16, 99, 100, 101, 511, 512, 4095, 4096, 4097};
    for (qsizetype c = 9000; c < entera.size(); c += 7321)
        cortes << c;
    cortes << entera.size() - 4096 << entera.size() - 1;
    for (const qsizetype corte : cortes) {
        p.Escribir("cortada.mdb", entera.left(corte));
        int numero = 0;
        try {
            Base::Abrir(p.Ruta("cortada.mdb"));
        } catch (const Error_Ejecucion& e) {
            numero = e.numero;
        }
        QVERIFY2(numero == 3343, qPrintable(QString::number(corte)));
    }
    // A database of another program: a table is missing.
    Otro_Programa otro(p.Ruta("ajena.mdb"));
    QCOMPARE(otro.Ejecutar("CREATE TABLE KRT(Nombre TEXT)"), SQLITE_OK);
    QVERIFY_ERROR(3343, Base::Abrir(p.Ruta("ajena.mdb")));
}

void TestConexion::lo_danado_da_un_error_y_no_cae()
{
    const Base_De_Prueba p;
    for (int i = 0; i < 300; ++i)
        p.Fila("Registros", {{"ID", i % 3}, {"Secuencia", i}, {"Datos", QString(100, u'a')}});
    Base_Datos.reset();
    const QByteArray entera = p.Leer("MDB/EstTotal.mdb");
    QRandomGenerator azar(20260307);
    int avisadas = 0;
    for (int vez = 0; vez < 60; ++vez) {
        QByteArray rota = entera;
        const qsizetype pagina = 4096 * qsizetype(azar.bounded(int(rota.size() / 4096)));
        for (int i = 0; i < 40; ++i)
            rota[pagina + azar.bounded(vez % 2 ? 4096 : 64)] = char(azar.bounded(256));
        p.Escribir("rota.mdb", rota);
        try {
            const auto base = Base::Abrir(p.Ruta("rota.mdb"));
            for (const Esquema::Tabla& t : Esquema::Tablas()) {
                Conjunto_Registros rs = base->OpenRecordset("SELECT * FROM " + t.nombre);
                for (; !rs.Es_EOF(); rs.MoveNext())
                    rs.Valor(t.columnas[0].nombre);
            }
            base->Execute("DELETE FROM Registros WHERE ID = 1");
        } catch (const Error_Ejecucion& e) {
            QVERIFY2(!e.descripcion.isEmpty(), e.what());
            ++avisadas;
        }
        QFile::remove(p.Ruta("rota.mdb"));
    }
    QVERIFY(avisadas > 10);
}

void TestConexion::no_se_crea_encima_ni_sin_carpeta()
{
    const Base_De_Prueba p;
    QVERIFY_ERROR(3204, Base::Crear(Fichero_MDB));
    QVERIFY_ERROR(3044, Base::Crear(p.Ruta("nada/x.mdb")));
}

void TestConexion::sin_permiso_es_3051()
{
    const Base_De_Prueba p;
    Base_Datos.reset();
    // Where its log belongs stands something else: the file can't be used, whoever asks.
    QVERIFY(QDir().mkpath(Fichero_MDB + "-wal/x"));
    QVERIFY_ERROR(3051, Base::Abrir(Fichero_MDB));
}

void TestConexion::las_bases_de_un_fichero_comparten_conexion()
{
    const Base_De_Prueba p;
    const auto segunda = Base::Abrir(p.Ruta("MDB/../MDB/EstTotal.mdb"));
    Base_Datos->BeginTrans();
    p.Fila("KRT", {{"Nombre", "a"}});
    QCOMPARE(segunda->OpenRecordset("KRT").RecordCount(), 1);
    segunda->Execute("INSERT INTO KRT (Nombre) VALUES ('b')");
    Base_Datos->Rollback();
    QCOMPARE(segunda->OpenRecordset("KRT").RecordCount(), 0);
}

void TestConexion::cerrada_es_3420()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "a"}});
    const auto otra = Base::Abrir(Fichero_MDB);
    Conjunto_Registros rs = otra->OpenRecordset("KRT");
    QVERIFY(otra->Abierta());
    otra->Close();
    QVERIFY(!otra->Abierta());
    QVERIFY_ERROR(3420, otra->OpenRecordset("KRT"));
    QVERIFY_ERROR(3420, otra->Execute("DELETE FROM KRT"));
    QVERIFY_ERROR(3420, otra->Recorrer("SELECT * FROM KRT"));
    QVERIFY_ERROR(3420, otra->Preparar_Insercion("KRT", {"Nombre"}));
    QVERIFY_ERROR(3420, otra->BeginTrans());
    QVERIFY_ERROR(3420, otra->Fichero());
    // What was open goes on, and so does the other handle.
    QCOMPARE(rs.Texto("Nombre"), QStringLiteral("a"));
    QCOMPARE(Base_Datos->OpenRecordset("KRT").RecordCount(), 1);
}

void TestConexion::las_transacciones_se_anidan()
{
    const Base_De_Prueba p;
    Base_Datos->BeginTrans();
    p.Fila("KRT", {{"Nombre", "a"}});
    Base_Datos->BeginTrans();
    p.Fila("KRT", {{"Nombre", "b"}});
    Base_Datos->Rollback();
    Base_Datos->BeginTrans();
    p.Fila("KRT", {{"Nombre", "c"}});
    Base_Datos->CommitTrans();
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), (QStringList{"a", "c"}));
    Base_Datos->CommitTrans();
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), (QStringList{"a", "c"}));
    Base_Datos->BeginTrans();
    Base_Datos->BeginTrans();
    Base_Datos->Execute("DELETE FROM KRT");
    Base_Datos->CommitTrans();
    Base_Datos->Rollback();
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), (QStringList{"a", "c"}));
}

void TestConexion::una_transaccion_sin_confirmar_se_deshace()
{
    const Base_De_Prueba p;
    {
        const Transaccion t(*Base_Datos);
        p.Fila("KRT", {{"Nombre", "a"}});
    }
    {
        Transaccion t(*Base_Datos);
        p.Fila("KRT", {{"Nombre", "b"}});
        t.Confirmar();
    }
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), QStringList{"b"});
    QVERIFY_ERROR(3034, Base_Datos->Rollback());
}

void TestConexion::sin_transaccion_es_3034()
{
    const Base_De_Prueba p;
    QVERIFY_ERROR(3034, Base_Datos->CommitTrans());
    QVERIFY_ERROR(3034, Base_Datos->Rollback());
}

void TestConexion::otro_programa_que_escribe_es_3045()
{
    const Base_De_Prueba p;
    Otro_Programa otro(Fichero_MDB);
    sqlite3_busy_timeout(Conexion::De(Fichero_MDB)->Manejador(), 100);
    QCOMPARE(otro.Ejecutar("BEGIN IMMEDIATE"), SQLITE_OK);
    QVERIFY_ERROR(3045, p.Fila("KRT", {{"Nombre", "a"}}));
    QCOMPARE(Base_Datos->OpenRecordset("KRT").RecordCount(), 0);
    QCOMPARE(otro.Ejecutar("COMMIT"), SQLITE_OK);
    p.Fila("KRT", {{"Nombre", "a"}});
    QCOMPARE(Base_Datos->OpenRecordset("KRT").RecordCount(), 1);
}

void TestConexion::el_disco_lleno_es_3026_y_no_estropea()
{
    const Base_De_Prueba p;
    p.Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Datos", "primera"}});
    Conexion::De(Fichero_MDB)->Ejecutar("PRAGMA max_page_count=1");
    int numero = 0;
    try {
        Transaccion t(*Base_Datos);
        Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
        for (int k = 0; k < 5000; ++k)
            i.Anadir({2, k, QString(255, u'x')});
        t.Confirmar();
    } catch (const Error_Ejecucion& e) {
        numero = e.numero;
    }
    QCOMPARE(numero, 3026);
    QCOMPARE(p.Columna("SELECT Datos FROM Registros"), QStringList{"primera"});
    QVERIFY_ERROR(3034, Base_Datos->CommitTrans());
    Conexion::De(Fichero_MDB)->Ejecutar("PRAGMA max_page_count=1000000");
    p.Fila("Registros", {{"ID", 1}, {"Secuencia", 2}, {"Datos", "segunda"}});
    QCOMPARE(p.Columna("PRAGMA integrity_check"), QStringList{"ok"});
}

void TestConexion::al_cerrar_no_queda_nada_al_lado()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "a"}});
    QVERIFY(QFile::exists(Fichero_MDB + "-wal"));
    Base_Datos.reset();
    QCOMPARE(QDir(Ruta_MDB).entryList(QDir::Files), QStringList{"EstTotal.mdb"});
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), QStringList{"a"});
}

void TestConexion::lo_confirmado_sobrevive_al_corte()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "a"}});
    Base_Datos->BeginTrans();
    p.Fila("KRT", {{"Nombre", "b"}});
    Base_Datos->Sincronizar();
    // What a killed process leaves: the file and its log, as they stand now.
    for (const char* resto : {"", "-wal"})
        QVERIFY(QFile::copy(Fichero_MDB + QLatin1String(resto),
                            p.Ruta("copia.mdb") + QLatin1String(resto)));
    Base_Datos->Rollback();
    const auto copia = Base::Abrir(p.Ruta("copia.mdb"));
    Conjunto_Registros rs = copia->OpenRecordset("KRT");
    QCOMPARE(rs.RecordCount(), 1);
    QCOMPARE(rs.Texto("Nombre"), QStringLiteral("a"));
}

void TestConexion::compactar_escribe_otra_y_la_deja_en_uso()
{
    const Base_De_Prueba p;
    for (int i = 0; i < 2000; ++i)
        p.Fila("Registros", {{"ID", i % 2}, {"Secuencia", i}, {"Datos", QString(200, u'a')}});
    Base_Datos->Execute("DELETE FROM Registros WHERE ID = 1");
    Conjunto_Registros abierta = Base_Datos->OpenRecordset("SELECT * FROM Registros");
    abierta.MoveLast();
    Base::Compactar(Fichero_MDB, p.Ruta("MDB/otra.mdb"));
    QVERIFY(QFileInfo(p.Ruta("MDB/otra.mdb")).size() < 400 * 1024);
    const auto otra = Base::Abrir(p.Ruta("MDB/otra.mdb"));
    QCOMPARE(otra->OpenRecordset("Registros").RecordCount(), 1000);
    // Row numbers survive, holes and all: recordsets find their rows in a compacted file.
    Recorrido r = otra->Recorrer("SELECT max(rowid) FROM Registros");
    QVERIFY(r.Siguiente());
    QCOMPARE(r.Entero(0), 1999);
    QCOMPARE(abierta.Entero("Secuencia"), 1998);
    p.Fila("KRT", {{"Nombre", "a"}});
    QCOMPARE(p.Columna("PRAGMA journal_mode"), QStringList{"wal"});
}

void TestConexion::compactar_con_otro_programa_es_3045()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "a"}});
    {
        Otro_Programa otro(Fichero_MDB);
        QCOMPARE(otro.Ejecutar("SELECT * FROM KRT"), SQLITE_OK);
        QVERIFY_ERROR(3045, Base::Compactar(Fichero_MDB, p.Ruta("x.mdb")));
        QVERIFY(!QFile::exists(p.Ruta("x.mdb")));
        p.Fila("KRT", {{"Nombre", "b"}});
        QCOMPARE(otro.Ejecutar("INSERT INTO KRT (Nombre) VALUES ('c')"), SQLITE_OK);
    }
    // The last row was written by the other program behind the back of this one's page cache.
    Base::Compactar(Fichero_MDB, p.Ruta("x.mdb"));
    const auto x = Base::Abrir(p.Ruta("x.mdb"));
    QCOMPARE(x->OpenRecordset("KRT").RecordCount(), 3);
}

void TestConexion::compactar_en_medio_de_algo_es_3045()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "a"}});
    p.Fila("KRT", {{"Nombre", "b"}});
    {
        const Transaccion t(*Base_Datos);
        QVERIFY_ERROR(3045, Base::Compactar(Fichero_MDB, p.Ruta("x.mdb")));
    }
    Recorrido r = Base_Datos->Recorrer("SELECT Nombre FROM KRT");
    QVERIFY(r.Siguiente());
    QVERIFY_ERROR(3045, Base::Compactar(Fichero_MDB, p.Ruta("x.mdb")));
    QVERIFY(r.Siguiente());
    QCOMPARE(r.Texto(0), QStringLiteral("b"));
    QVERIFY(!r.Siguiente());
    Base::Compactar(Fichero_MDB, p.Ruta("x.mdb"));
}

void TestConexion::compactar_sobre_un_fichero_es_3204()
{
    const Base_De_Prueba p;
    p.Escribir("x.mdb", "mío");
    QVERIFY_ERROR(3204, Base::Compactar(Fichero_MDB, p.Ruta("x.mdb")));
    QCOMPARE(p.Leer("x.mdb"), QByteArray("mío"));
    QVERIFY_ERROR(3051, Base::Compactar(Fichero_MDB, p.Ruta("nada/x.mdb")));
    p.Fila("KRT", {{"Nombre", "a"}});
}

void TestConexion::un_recorrido_abandonado_no_estorba()
{
    const Base_De_Prueba p;
    for (const char* n : {"a", "b"})
        p.Fila("KRT", {{"Nombre", n}});
    {
        Recorrido r = Base_Datos->Recorrer("SELECT Nombre FROM KRT");
        QVERIFY(r.Siguiente());
    }
    Base::Compactar(Fichero_MDB, p.Ruta("x.mdb"));
}

void TestConexion::las_sentencias_prestadas_se_preparan_de_nuevo()
{
    const Base_De_Prueba p;
    Insercion i = Base_Datos->Preparar_Insercion("KRT", {"Nombre"});
    i.Anadir({"a"});
    Base::Compactar(Fichero_MDB, p.Ruta("x.mdb"));
    i.Anadir({"b"});
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), (QStringList{"a", "b"}));
}

void TestConexion::un_recorrido_pasa_una_vez()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", QString::fromUtf8("ñ€")}, {"Foto", ""}});
    Recorrido r =
        Base_Datos->Recorrer("SELECT Nombre, Foto, Clave FROM KRT WHERE Nombre <> ?", {"z"});
    QVERIFY(r.Siguiente());
    QCOMPARE(r.Texto(0), QString::fromUtf8("ñ€"));
    QCOMPARE(r.Bytes(0).toByteArray(), QByteArray("ñ€"));
    QVERIFY(!r.Es_Nulo(1));
    QVERIFY(r.Es_Nulo(2));
    QCOMPARE(r.Texto(2), QString());
    QCOMPARE(r.Entero(2), 0);
    QVERIFY(!r.Siguiente());
}

void TestConexion::la_version_crece_con_cada_escritura()
{
    const Base_De_Prueba p;
    const quint64 vacia = Base_Datos->Version();
    QCOMPARE(Base_Datos->Version(), vacia);
    p.Fila("KRT", {{"Nombre", "KRT305"}, {"Clave", "KRT300"}});
    const quint64 con_una = Base_Datos->Version();
    QVERIFY(con_una > vacia);
    QCOMPARE(Base::Abrir(Fichero_MDB)->Version(), con_una);

    // Rows written by hand, with another program, count as well.
    QCOMPARE(Otro_Programa(Fichero_MDB).Ejecutar("UPDATE KRT SET Foto='x'"), SQLITE_OK);
    const quint64 tocada = Base_Datos->Version();
    QVERIFY(tocada > con_una);
    QCOMPARE(Base_Datos->Version(), tocada);

    // What a transaction wrote and took back was another state.
    Base_Datos->BeginTrans();
    Base_Datos->Execute("DELETE FROM KRT");
    const quint64 borrada = Base_Datos->Version();
    Base_Datos->Rollback();
    QVERIFY(Base_Datos->Version() > borrada);
}

void TestConexion::una_carpeta_con_blancos_y_acentos()
{
    const Base_De_Prueba p;
    const QString carpeta = p.Ruta(QString::fromUtf8("Año nuevo (Ж) 100%?"));
    QVERIFY(QDir().mkpath(carpeta));
    auto base = Base::Crear(carpeta + "/EstTotal.mdb");
    base->Execute("INSERT INTO KRT (Nombre) VALUES ('a')");
    base.reset();
    Base::Compactar(carpeta + "/EstTotal.mdb", carpeta + "/otra.mdb");
    QCOMPARE(Base::Abrir(carpeta + "/otra.mdb")->OpenRecordset("KRT").RecordCount(), 1);
    QCOMPARE(QDir(carpeta).entryList(QDir::Files), (QStringList{"EstTotal.mdb", "otra.mdb"}));
    QVERIFY(plataforma::Reemplazar(carpeta + "/otra.mdb", carpeta + "/EstTotal.mdb"));
    QCOMPARE(Base::Abrir(carpeta + "/EstTotal.mdb")->OpenRecordset("KRT").RecordCount(), 1);
    QVERIFY(!plataforma::Reemplazar(carpeta + "/otra.mdb", carpeta + "/EstTotal.mdb"));
}

namespace {

// The temporary folder passes for another machine's.
class En_La_Red {
public:
    En_La_Red()
    {
        plataforma::Poner_Sistema_De_Ficheros([](const QString&) { return QByteArray("nfs4"); });
    }
    ~En_La_Red() { plataforma::Poner_Sistema_De_Ficheros(nullptr); }
    En_La_Red(const En_La_Red&) = delete;
    En_La_Red& operator=(const En_La_Red&) = delete;
};

} // namespace

void TestConexion::en_la_red_sin_diario()
{
    const Base_De_Prueba p;
    p.Fila("KRT", {{"Nombre", "a"}});
    Base_Datos.reset();
    const En_La_Red red;
    // A file that a program of this machine has left with its log.
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(p.Columna("PRAGMA journal_mode"), QStringList{"delete"});
    QCOMPARE(p.Columna("PRAGMA synchronous"), QStringList{"2"});
    p.Fila("KRT", {{"Nombre", "b"}});
    QCOMPARE(QDir(Ruta_MDB).entryList(QDir::Files), QStringList{"EstTotal.mdb"});
    // Nobody is kept out between two transactions.
    QCOMPARE(Otro_Programa(Fichero_MDB).Ejecutar("INSERT INTO KRT (Nombre) VALUES ('c')"),
             SQLITE_OK);
    QCOMPARE(p.Columna("SELECT Nombre FROM KRT"), (QStringList{"a", "b", "c"}));
    Base::Compactar(Fichero_MDB, p.Ruta("x.mdb"));
    QCOMPARE(p.Columna("PRAGMA journal_mode"), QStringList{"delete"});
    QCOMPARE(Base::Abrir(p.Ruta("x.mdb"))->OpenRecordset("KRT").RecordCount(), 3);
}

void TestConexion::en_la_red_no_se_escribe_en_la_sustituida()
{
    const Base_De_Prueba p;
    Base_Datos.reset();
    const En_La_Red red;
    Base_Datos = Base::Abrir(Fichero_MDB);
    // Another program compacts meanwhile: nothing keeps it from that there.
    QVERIFY(QFile::copy(Fichero_MDB, p.Ruta("MDB/otra.mdb")));
    QVERIFY(plataforma::Reemplazar(p.Ruta("MDB/otra.mdb"), Fichero_MDB));
    p.Fila("KRT", {{"Nombre", "a"}});
    Base_Datos->Execute("INSERT INTO KRT (Nombre) VALUES ('b')");
    Base_Datos.reset();
    QCOMPARE(Base::Abrir(Fichero_MDB)->OpenRecordset("KRT").RecordCount(), 2);
}

void TestConexion::los_sistemas_de_red_data()
{
    QTest::addColumn<bool>("de_red");
    for (const char* s : {"nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "fuse.sshfs", "afs", "red"})
        QTest::newRow(s) << true;
    for (const char* s : {"ext4", "xfs", "btrfs", "NTFS", "fuseblk", "vfat", "exfat", "tmpfs",
                          "overlay", "apfs", ""})
        QTest::newRow(s) << false;
}

void TestConexion::los_sistemas_de_red()
{
    QFETCH(bool, de_red);
    QCOMPARE(plataforma::Es_De_Red(QTest::currentDataTag()), de_red);
}

PRUEBA(TestConexion)
#include "TestConexion.moc"
