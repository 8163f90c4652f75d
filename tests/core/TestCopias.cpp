#include "core/Copias.h"
#include "core/jet/Examen.h"
#include "core/plataforma.h"
#include "core/Reloj.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sin_Privilegios.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <sqlite3.h>

namespace {

// A clock that stands on one day of March.
class Dia {
public:
    explicit Dia(int dia) : reloj(1, QDateTime(QDate(2026, 3, dia), QTime(10, 32)))
    {
        Poner_Reloj(&reloj);
    }
    ~Dia() { Poner_Reloj(nullptr); }
    Dia(const Dia&) = delete;
    Dia& operator=(const Dia&) = delete;

private:
    Reloj_Rapido reloj;
};

} // namespace

class TestCopias : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void una_al_dia_durante_una_semana();
    void la_del_dia_no_pierde_sesiones();
    void una_copia_de_solo_lectura_no_estorba();
    void examinar_no_toca_nada();
    void recuperar_pone_la_copia_y_aparta_la_otra();
    void recuperar_conserva_lo_que_quedo_al_lado();
    void recuperar_lo_que_no_sirve_deja_todo_igual();
    void recuperar_con_otro_programa_es_3045();
    void recuperar_preguntando();
    void los_conjuntos_abiertos_siguen_en_la_recuperada();
    void el_aviso_sale_una_vez_por_base();
    void el_aviso_sin_copia_lo_dice();
    void la_revision_encuentra_el_dano();
    void sesenta_y_cuatro_danos_al_azar();
    void donde_esta_la_base();

private:
    QStringList Dias() const
    {
        return QDir(Ruta_MDB + "/copias").entryList(QDir::Files, QDir::Name);
    }
    void Llenar(int lineas) const;
    void Danar(qsizetype desde) const;
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestCopias::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Clave_Estacion = "KRT300";
}

void TestCopias::cleanup()
{
    p.reset();
    interfaz.reset();
}

void TestCopias::Llenar(int lineas) const
{
    Transaccion t(*Base_Datos);
    Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
    for (int k = 0; k < lineas; ++k)
        i.Anadir({1, k, QString(200, u'x')});
    t.Confirmar();
}

// Overwrites the beginning of every page from `desde` on.
void TestCopias::Danar(qsizetype desde) const
{
    Base_Datos.reset();
    QByteArray bytes = p->Leer("MDB/EstTotal.mdb");
    for (qsizetype pagina = desde; pagina < bytes.size(); pagina += 4096)
        bytes.replace(pagina, 64, QByteArray(64, '\x7F'));
    p->Escribir("MDB/EstTotal.mdb", bytes);
    Base_Datos = Base::Abrir(Fichero_MDB);
}

void TestCopias::una_al_dia_durante_una_semana()
{
    for (int dia = 1; dia <= 9; ++dia) {
        const Dia hoy(dia);
        Nueva_Sesion("Obra", 0);
        QVERIFY(Compactar_BD());
        QVERIFY(Compactar_BD());
    }
    QCOMPARE(Dias(), (QStringList{"EstTotal_2026-03-03.mdb", "EstTotal_2026-03-04.mdb",
                                  "EstTotal_2026-03-05.mdb", "EstTotal_2026-03-06.mdb",
                                  "EstTotal_2026-03-07.mdb", "EstTotal_2026-03-08.mdb",
                                  "EstTotal_2026-03-09.mdb"}));
    QCOMPARE(Examinar_Base(p->Ruta("MDB/copias/EstTotal_2026-03-05.mdb"), true).sesiones, 5);
    QCOMPARE(Examinar_Base(p->Ruta("MDB/esttotal.bak"), true).sesiones, 9);
    const QList<Copias::Copia> lista = Copias::Lista();
    QCOMPARE(lista.size(), 8);
    for (const Copias::Copia& c : lista)
        QVERIFY2(c.sana, qPrintable(c.fichero));
    QVERIFY(lista.first().momento >= lista.last().momento);
}

void TestCopias::la_del_dia_no_pierde_sesiones()
{
    const Dia hoy(1);
    for (int i = 0; i < 3; ++i)
        Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Eliminar_Sesion(3);
    QVERIFY(Compactar_BD());
    const QString del_dia = p->Ruta("MDB/copias/EstTotal_2026-03-01.mdb");
    QCOMPARE(Examinar_Base(del_dia, true).sesiones, 3);
    QCOMPARE(Examinar_Base(p->Ruta("MDB/esttotal.bak"), true).sesiones, 2);
    // As many are no loss, and a damaged copy is none to keep.
    Nueva_Sesion("Otra", 0);
    QVERIFY(Compactar_BD());
    QCOMPARE(p->Leer("MDB/copias/EstTotal_2026-03-01.mdb"), p->Leer("MDB/esttotal.bak"));
    p->Escribir("MDB/copias/EstTotal_2026-03-01.mdb", "rota");
    QVERIFY(Compactar_BD());
    QCOMPARE(Examinar_Base(del_dia, true).sesiones, 3);
}

void TestCopias::una_copia_de_solo_lectura_no_estorba()
{
    QVERIFY(Compactar_BD());
    Nueva_Sesion("Obra", 0);
    QVERIFY(QFile::setPermissions(p->Ruta("MDB/esttotal.bak"), QFile::ReadOwner));
    QVERIFY(QDir(p->Ruta("MDB/copias")).removeRecursively());
    p->Escribir("MDB/copias", "un fichero en su sitio");
    const Resultado_Compactacion r = Compactar_BD();
    QVERIFY(r);
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
    QVERIFY(p->Leer("LOG/Miraldos.log").contains("Copias::Guardar: ("));
}

void TestCopias::examinar_no_toca_nada()
{
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    const QStringList antes = QDir(Ruta_MDB).entryList(QDir::Files);
    const QByteArray bytes = p->Leer("MDB/esttotal.bak");
    {
        const Sin_Privilegios nadie(p->Ruta("."));
        const Examen e = Examinar_Base(p->Ruta("MDB/esttotal.bak"), true);
        QVERIFY(e.Sana());
        QCOMPARE(e.sesiones, 1);
    }
    QCOMPARE(p->Leer("MDB/esttotal.bak"), bytes);
    QCOMPARE(QDir(Ruta_MDB).entryList(QDir::Files), antes);
    p->Escribir("MDB/otra.bak", QByteArray("Otra cosa").repeated(1000));
    QVERIFY(!Examinar_Base(p->Ruta("MDB/otra.bak"), false).Sana());
    p->Escribir("MDB/otra.bak", "");
    QVERIFY(!Examinar_Base(p->Ruta("MDB/otra.bak"), false).Sana());
    QVERIFY(!Examinar_Base(p->Ruta("MDB/no está.bak"), false).Sana());
    p->Escribir("MDB/otra.bak", bytes.left(bytes.size() / 2));
    QVERIFY(!Examinar_Base(p->Ruta("MDB/otra.bak"), true).Sana());
}

void TestCopias::recuperar_pone_la_copia_y_aparta_la_otra()
{
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Nueva_Sesion("Después", 0);
    const QSignalSpy reabierta(&Sucesos::Unico(), &Sucesos::base_reabierta);
    const QString aparte = Copias::Recuperar(p->Ruta("MDB/esttotal.bak"));
    QCOMPARE(reabierta.count(), 1);
    QCOMPARE(p->Columna("SELECT NFichero FROM Sesiones"), QStringList{"Obra"});
    QCOMPARE(p->Columna("PRAGMA journal_mode"), QStringList{"wal"});
    Nueva_Sesion("Otra", 0);
    // The replaced one can be taken back as well.
    Copias::Recuperar(aparte);
    QCOMPARE(p->Columna("SELECT NFichero FROM Sesiones"), (QStringList{"Obra", "Después"}));
    QVERIFY(!QFile::exists(p->Ruta("MDB/esttotal.pak")));
}

void TestCopias::recuperar_conserva_lo_que_quedo_al_lado()
{
    QVERIFY(Compactar_BD());
    Nueva_Sesion("Obra", 0);
    const QByteArray diario = p->Leer("MDB/EstTotal.mdb-wal");
    QVERIFY(!diario.isEmpty());
    Base_Datos.reset();
    p->Escribir("MDB/EstTotal.mdb", QByteArray("nada que se pueda leer ").repeated(400));
    p->Escribir("MDB/EstTotal.mdb-wal", diario);
    const QString aparte = Copias::Recuperar(p->Ruta("MDB/esttotal.bak"));
    QFile guardado(aparte + "-wal");
    QVERIFY(guardado.open(QIODevice::ReadOnly));
    QCOMPARE(guardado.readAll(), diario);
    // And it isn't taken for the recovered one's.
    QCOMPARE(p->Columna("SELECT ID FROM Sesiones"), QStringList{});
    QCOMPARE(p->Columna("PRAGMA integrity_check"), QStringList{"ok"});
}

void TestCopias::recuperar_lo_que_no_sirve_deja_todo_igual()
{
    Nueva_Sesion("Obra", 0);
    p->Escribir("MDB/mala.bak", QByteArray("Otra cosa").repeated(1000));
    QVERIFY_ERROR(3343, Copias::Recuperar(p->Ruta("MDB/mala.bak")));
    QVERIFY_ERROR(53, Copias::Recuperar(p->Ruta("MDB/nada.bak")));
    Base_Datos->BeginTrans();
    QVERIFY(!Compactar_BD());
    Base_Datos->CommitTrans();
    QVERIFY(Compactar_BD());
    {
        Conjunto_Registros sesiones = Base_Datos->OpenRecordset("Sesiones");
        const Transaccion t(*Base_Datos);
        QVERIFY_ERROR(3045, Copias::Recuperar(p->Ruta("MDB/esttotal.bak")));
        QVERIFY(Base_Datos);
    }
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
    QVERIFY(QDir(Ruta_MDB).entryList({"EstTotal_apartada*"}).isEmpty());
}

void TestCopias::recuperar_con_otro_programa_es_3045()
{
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    sqlite3* ajena = nullptr;
    QCOMPARE(sqlite3_open(Fichero_MDB.toUtf8().constData(), &ajena), SQLITE_OK);
    QCOMPARE(sqlite3_exec(ajena, "SELECT * FROM KRT", nullptr, nullptr, nullptr), SQLITE_OK);
    QVERIFY_ERROR(3045, Copias::Recuperar(p->Ruta("MDB/esttotal.bak")));
    sqlite3_close(ajena);
    QCOMPARE(Nueva_Sesion("Otra", 0), QStringLiteral("2"));
    QVERIFY(QDir(Ruta_MDB).entryList({"EstTotal_apartada*"}).isEmpty());
}

void TestCopias::recuperar_preguntando()
{
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Eliminar_Sesion(1);
    const Copias::Copia copia = Copias::Lista().first();
    interfaz->respuestas = {false};
    QVERIFY(!Copias::Recuperar_Preguntando(copia));
    QCOMPARE(Ultima_Sesion(), QString());
    interfaz->respuestas = {true};
    QVERIFY(Copias::Recuperar_Preguntando(copia));
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
    QVERIFY(interfaz->Textos()[2].contains("EstTotal_apartada_"));
    QFile::remove(copia.fichero);
    interfaz->respuestas = {true};
    QVERIFY(!Copias::Recuperar_Preguntando(copia));
    QVERIFY(interfaz->Textos()[4].startsWith("No se ha podido volver a la copia\r(53)"));
}

void TestCopias::los_conjuntos_abiertos_siguen_en_la_recuperada()
{
    for (const char* n : {"a", "b"})
        Nueva_Sesion(n, 0);
    QVERIFY(Compactar_BD());
    Base_Datos->Execute("UPDATE Sesiones SET NFichero = 'c' WHERE ID = 2");
    const auto otra = Base::Abrir(Fichero_MDB);
    Conjunto_Registros tabla = otra->OpenRecordset("Sesiones");
    Copias::Recuperar(p->Ruta("MDB/esttotal.bak"));
    tabla.MoveNext();
    QCOMPARE(tabla.Texto("NFichero"), QStringLiteral("b"));
}

void TestCopias::el_aviso_sale_una_vez_por_base()
{
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Copias::Avisar_Base_Danada("Lo recibido se conserva");
    Copias::Avisar_Base_Danada();
    QCOMPARE(interfaz->avisos.size(), 1);
    const QString texto = interfaz->avisos[0].texto;
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    for (const QString& parte :
         {"La base de datos está dañada:\r\n" + Fichero_MDB, QString("Lo recibido se conserva"),
          QString(", 1 sesión"), QString("\"Recuperar de la copia\""), QString("recuperar")})
        QVERIFY2(texto.contains(parte), qPrintable(texto));
    Copias::Recuperar(p->Ruta("MDB/esttotal.bak"));
    Copias::Avisar_Base_Danada();
    QCOMPARE(interfaz->avisos.size(), 2);
}

void TestCopias::el_aviso_sin_copia_lo_dice()
{
    p->Escribir("MDB/esttotal.bak", "rota");
    Copias::Avisar_Base_Danada();
    QVERIFY(interfaz->avisos[0].texto.endsWith("\r\nNo hay ninguna copia de la que recuperarla"));
}

void TestCopias::la_revision_encuentra_el_dano()
{
    Llenar(2000);
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Revision_Base sana;
    while (sana.Paso()) {
    }
    QVERIFY(interfaz->avisos.isEmpty());
    QVERIFY(!sana.Paso());

    Danar(QFileInfo(Fichero_MDB).size() - 8 * 4096);
    Revision_Base rota;
    while (rota.Paso()) {
    }
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY(interfaz->avisos[0].texto.startsWith("La base de datos está dañada:"));
    Base_Datos.reset();
    QVERIFY(!Revision_Base().Paso());
}

// Whatever is damaged: either it is told at some step between opening and compaction, or nothing
// of the user's is missing.
void TestCopias::sesenta_y_cuatro_danos_al_azar()
{
    constexpr int LINEAS = 800;
    Nueva_Sesion("Obra", 0);
    Llenar(LINEAS);
    QVERIFY(Compactar_BD());
    Base_Datos.reset();
    const QByteArray entera = p->Leer("MDB/EstTotal.mdb");
    QRandomGenerator azar(20261121);
    int dichos = 0;
    for (int vez = 0; vez < 64; ++vez) {
        QByteArray rota = entera;
        const int donde = azar.bounded(int(rota.size()) - 64);
        for (int i = 0; i < 64; ++i)
            rota[donde + i] = char(azar.bounded(256));
        p->Escribir("MDB/EstTotal.mdb", rota);
        for (const char* resto : {"-wal", "-shm", "-journal"})
            QFile::remove(Fichero_MDB + QLatin1String(resto));
        bool dicho = false;
        try {
            Base_Datos = Base::Abrir(Fichero_MDB);
            const auto antes = interfaz->avisos.size();
            for (Revision_Base revision; revision.Paso();) {
            }
            dicho = interfaz->avisos.size() > antes || !Compactar_BD();
            if (!dicho) {
                QCOMPARE(p->Columna("SELECT count(*) FROM Registros"),
                         QStringList{QString::number(LINEAS)});
                QCOMPARE(p->Columna("SELECT count(*) FROM Sesiones"), QStringList{"1"});
            }
        } catch (const Error_Ejecucion& e) {
            dicho = true;
            QVERIFY2(e.numero == 3343 || e.numero == 3041, e.what());
        }
        dichos += dicho ? 1 : 0;
        // And the way back is open.
        if (dicho) {
            Base_Datos.reset();
            const auto copia = Copias::Ultima();
            QVERIFY(copia);
            Copias::Recuperar(copia->fichero);
            QCOMPARE(p->Columna("SELECT count(*) FROM Registros"),
                     QStringList{QString::number(LINEAS)});
        }
        Base_Datos.reset();
    }
    // What falls into the texts of rows changes no page's order, and nobody can tell it.
    QVERIFY2(dichos >= 10, qPrintable(QString::number(dichos)));
}

void TestCopias::donde_esta_la_base()
{
    QCOMPARE(Lugar_De_La_Base(), "Base de datos: " + Fichero_MDB);
    plataforma::Poner_Sistema_De_Ficheros([](const QString&) { return QByteArray("cifs"); });
    const QString en_red = Lugar_De_La_Base();
    plataforma::Poner_Sistema_De_Ficheros(nullptr);
    QCOMPARE(en_red, "Base de datos: " + Fichero_MDB + " (unidad de red, cifs)");
}

PRUEBA(TestCopias)
#include "TestCopias.moc"
