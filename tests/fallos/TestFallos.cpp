#include "core/Configuracion.h"
#include "core/Copias.h"
#include "core/jet/Esquema.h"
#include "core/jet/Examen.h"
#include "core/Sesiones.h"
#include "formats/ModFormatos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/fallos/Llamadas.h"
#include "tests/transfer/Banco_Recepcion.h"

#include <cerrno>
#include <cstring>
#include <functional>

namespace {

constexpr int REGISTROS = 40;

// A piece of work, what has to hold after it failed or went well, and what it begins with.
struct Trabajo {
    std::function<void()> preparar;
    /// @return true when the work says that it is done
    std::function<bool()> hacer;
    /// @param dicho  what `hacer` has returned
    std::function<void(bool dicho)> comprobar;
};

struct Averia {
    const char* nombre;
    unsigned clase;
};

constexpr Averia AVERIAS[] = {{"abrir", Llamadas::ABRIR},
                              {"escribir", Llamadas::ESCRIBIR},
                              {"sincronizar", Llamadas::SINCRONIZAR},
                              {"renombrar", Llamadas::RENOMBRAR}};

const Ajustes VIEJOS = [] {
    Ajustes a;
    a.puerto = "COM1";
    a.nombre = "KRT305";
    a.clave = "KRT300";
    return a;
}();

} // namespace

// The n-th open, write, sync or rename of a piece of work fails, for every n. Afterwards the user's
// data are those of before or those of after, what is called done is done, and the program works.
class TestFallos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_trampa_caza();
    void cada_llamada_que_falla_data();
    void cada_llamada_que_falla();

private:
    Trabajo El_Trabajo(const QString& nombre);
    void Empezar();
    void Una_Vez(const Trabajo& trabajo, unsigned clase, int n, int error, bool seguidas);
    static void Abrir_De_Nuevo();
    std::unique_ptr<Banco_Recepcion> banco;
    QByteArray ini_viejo, ini_nuevo;
};

void TestFallos::Empezar()
{
    banco.reset();
    banco = std::make_unique<Banco_Recepcion>();
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT305";
    Nueva_Sesion("La de antes", 0);
    banco->base.Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Datos", "Aantes"}});
    Guardar_Formato(*Base_Datos, {"Mi formato", "KRT300", "", "A ", true, true, 0, {"Punto"}},
                    true);
}

// The database opens, is sound and holds what it held.
void TestFallos::Abrir_De_Nuevo()
{
    Base_Datos.reset();
    Base_Datos = Base::Abrir(Fichero_MDB);
    Recorrido sana = Base_Datos->Recorrer("PRAGMA integrity_check");
    QVERIFY(sana.Siguiente());
    QCOMPARE(sana.Texto(0), QStringLiteral("ok"));
    Recorrido antes = Base_Datos->Recorrer("SELECT Datos FROM Registros WHERE ID = 1");
    QVERIFY(antes.Siguiente());
    QCOMPARE(antes.Texto(0), QStringLiteral("Aantes"));
}

Trabajo TestFallos::El_Trabajo(const QString& nombre)
{
    const auto nada = [] {};
    const auto guardar = [](const QString& maquina) {
        QString buffer;
        for (int i = 1; i <= REGISTROS; ++i)
            buffer += maquina == u"KRT800" ? QStringLiteral("SS %1,1\r\n").arg(i)
                                           : QStringLiteral("_+P%1_A%1").arg(i);
        try {
            return Banco_Recepcion::Procesar(maquina, 0, buffer).completa;
        } catch (const Error_Ejecucion&) {
            return false; // who drives the transfer keeps the journal
        }
    };
    const auto guardada = [](bool dicho) {
        Abrir_De_Nuevo();
        Recorrido r = Base_Datos->Recorrer("SELECT count(*) FROM Registros WHERE ID = 2");
        QVERIFY(r.Siguiente());
        if (dicho) QCOMPARE(r.Entero(0), REGISTROS);
        QVERIFY(r.Entero(0) <= REGISTROS);
        if (dicho) QCOMPARE(Banco_Recepcion::Puntos(2), REGISTROS);
    };
    if (nombre == u"guardar KRT300")
        return {nada, [guardar] { return guardar("KRT300"); }, guardada};
    if (nombre == u"guardar KRT800")
        return {nada, [guardar] { return guardar("KRT800"); }, guardada};
    if (nombre == u"compactar")
        return {nada, [] { return bool(Compactar_BD()); },
                [](bool) {
                    Abrir_De_Nuevo();
                    QVERIFY(!QFile::exists(Ruta_MDB + "/esttotal.pak") || Compactar_BD());
                    for (const Copias::Copia& c : Copias::Lista())
                        QVERIFY2(c.sana, qPrintable(c.fichero));
                }};
    if (nombre == u"ajustes")
        return {[this] {
                    Guardar_Configuracion(VIEJOS);
                    ini_viejo = banco->base.Leer("EstTotal.ini");
                },
                [] {
                    Ajustes nuevos = VIEJOS;
                    nuevos.puerto = "COM9";
                    nuevos.velocidad = QString(3000, u'9');
                    return Guardar_Configuracion(nuevos);
                },
                [this](bool dicho) {
                    const QByteArray ahora = banco->base.Leer("EstTotal.ini");
                    if (dicho) {
                        QVERIFY(ahora.contains("PORT=COM9\r\n"));
                        QVERIFY(ahora.contains(QByteArray(3000, '9') + "\r\n"));
                        QVERIFY(ahora.contains("KRT=KRT300\r\n"));
                    } else {
                        QCOMPARE(ahora, ini_viejo);
                        QCOMPARE(banco->interfaz.avisos.size(), 1);
                    }
                }};
    if (nombre == u"formato")
        return {nada,
                [] {
                    try {
                        Guardar_Formato(*Base_Datos,
                                        {"Mi formato",
                                         "KRT300",
                                         "otra",
                                         "A ",
                                         false,
                                         true,
                                         0,
                                         {"Punto", "Coordenada X", "Coordenada Y"}},
                                        false);
                        return true;
                    } catch (const Error_Ejecucion&) {
                        return false; // the dialog shows it
                    }
                },
                [](bool dicho) {
                    Abrir_De_Nuevo();
                    const auto f = Buscar_Formato(*Base_Datos, "KRT300", "Mi formato");
                    QVERIFY(f);
                    const bool nuevo = f->descripcion == u"otra";
                    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "Mi formato").size(),
                             nuevo ? 3 : 1);
                    if (dicho) QVERIFY(nuevo);
                }};
    if (nombre == u"recuperar")
        return {[] { QVERIFY(Compactar_BD()); },
                [] {
                    try {
                        Copias::Recuperar(Ruta_MDB + "/esttotal.bak");
                        return true;
                    } catch (const Error_Ejecucion&) {
                        return false;
                    }
                },
                [](bool) { Abrir_De_Nuevo(); }};
    // "migrar": a database without the tables that this version has added.
    return {[this] {
                Base_Datos->Execute("DROP TABLE Entregadas");
                Base_Datos->Execute("DROP TABLE Propiedades");
                Base_Datos->Recorrer("PRAGMA user_version=0").Siguiente();
                Base_Datos.reset();
            },
            [] {
                try {
                    Base_Datos = Base::Abrir(Fichero_MDB);
                    return true;
                } catch (const Error_Ejecucion&) {
                    return false;
                }
            },
            [](bool) {
                Abrir_De_Nuevo();
                QVERIFY(Buscar_Formato(*Base_Datos, "KRT300", "Mi formato"));
                Base_Datos.reset();
                QCOMPARE(Examinar_Base(Fichero_MDB, true).version, Esquema::VERSION);
            }};
}

void TestFallos::Una_Vez(const Trabajo& trabajo, unsigned clase, int n, int error, bool seguidas)
{
    Empezar();
    trabajo.preparar();
    Llamadas::Armar(Ruta_Aplicacion + u'/', clase, n, error, seguidas);
    const bool dicho = trabajo.hacer();
    Llamadas::Desarmar();
    trabajo.comprobar(dicho);
    if (!QTest::currentTestFailed()) (void)banco->interfaz.avisos.size();
    banco.reset();
}

void TestFallos::la_trampa_caza()
{
    Empezar();
    Llamadas::Armar(Ruta_Aplicacion + u'/', Llamadas::ESCRIBIR, 1, ENOSPC, false);
    QFile f(Ruta_Aplicacion + u'/');
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(f.write("a"), -1);
    QCOMPARE(f.write("a"), 1);
    QCOMPARE(Llamadas::Desarmar(), 2);
    Llamadas::Armar(Ruta_Aplicacion + u'/', Llamadas::ABRIR, 0, EIO, false);
    QVERIFY(QFile::exists(f.fileName()));
    QVERIFY(f.open(QIODevice::ReadOnly) || f.isOpen());
    Llamadas::Desarmar();
    // Every kind of call is seen where a download is stored: a trap that counts nothing proves
    // nothing.
    for (const Averia& a : AVERIAS) {
        Empezar();
        Llamadas::Armar(Ruta_Aplicacion + u'/', a.clase, 0, 0, false);
        QVERIFY(El_Trabajo("guardar KRT300").hacer());
        QVERIFY2(Llamadas::Desarmar() > 0, a.nombre);
    }
    banco.reset();
}

void TestFallos::cada_llamada_que_falla_data()
{
    QTest::addColumn<QString>("trabajo");
    QTest::addColumn<unsigned>("clase");
    for (const char* trabajo : {"guardar KRT300", "guardar KRT800", "compactar", "ajustes",
                                "formato", "recuperar", "migrar"})
        for (const Averia& a : AVERIAS)
            QTest::addRow("%s, %s", trabajo, a.nombre) << QString::fromLatin1(trabajo) << a.clase;
}

void TestFallos::cada_llamada_que_falla()
{
    QFETCH(QString, trabajo);
    QFETCH(unsigned, clase);
    const Trabajo t = El_Trabajo(trabajo);
    Empezar();
    t.preparar();
    Llamadas::Armar(Ruta_Aplicacion + u'/', clase, 0, 0, false);
    QVERIFY(t.hacer());
    const int llamadas = Llamadas::Desarmar();
    t.comprobar(true);
    banco.reset();
    // With a full disk all that follows fails too; the other causes come and go.
    for (int n = 1; n <= llamadas; ++n)
        for (const auto& [error, seguidas] :
             {std::pair{EIO, false}, std::pair{ENOSPC, true}, std::pair{EACCES, false}}) {
            Una_Vez(t, clase, n, error, seguidas);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("call %1 of %2, %3")
                                     .arg(n)
                                     .arg(llamadas)
                                     .arg(QLatin1String(std::strerror(error)))));
        }
}

PRUEBA(TestFallos)
#include "TestFallos.moc"
