#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int FILAS_POR_LOTE = 40;

// No file of the process grows beyond `bytes` while it lives: a disk that fills up.
class Disco_Lleno {
public:
    explicit Disco_Lleno(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &antes);
        const rlimit ahora{bytes, antes.rlim_max};
        setrlimit(RLIMIT_FSIZE, &ahora);
    }
    ~Disco_Lleno() { setrlimit(RLIMIT_FSIZE, &antes); }
    Disco_Lleno(const Disco_Lleno&) = delete;
    Disco_Lleno& operator=(const Disco_Lleno&) = delete;

private:
    rlimit antes{};
};

void Guardar_Lote(int lote)
{
    Transaccion t(*Base_Datos);
    Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
    for (int k = 0; k < FILAS_POR_LOTE; ++k)
        i.Anadir({1, lote * FILAS_POR_LOTE + k, QString(200, QChar('a' + lote % 26))});
    t.Confirmar();
}

// Stores and compacts without end, telling each batch that lies on the disk.
[[noreturn]] void Trabajar(int aviso)
{
    Base_Datos = Base::Abrir(Fichero_MDB);
    int lote = int(Base_Datos->OpenRecordset("Registros").RecordCount() / FILAS_POR_LOTE);
    for (;; ++lote) {
        Guardar_Lote(lote);
        Base_Datos->Sincronizar();
        const int hechos = lote + 1;
        if (write(aviso, &hechos, sizeof hechos) != sizeof hechos) _exit(1);
        if (lote % 2 == 1 && !Compactar_BD()) _exit(2);
    }
}

} // namespace

class TestCortes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_proceso_matado_no_pierde_lo_confirmado();
    void con_el_disco_lleno_no_se_compacta_y_la_base_queda();
    void con_el_disco_lleno_no_se_guarda_a_medias();
    void con_el_disco_lleno_los_ajustes_quedan();
};

void TestCortes::un_proceso_matado_no_pierde_lo_confirmado()
{
    const Base_De_Prueba p;
    Base_Datos.reset();
    int confirmados = 0;
    for (int vez = 0; vez < 25; ++vez) {
        int tubo[2];
        QCOMPARE(pipe(tubo), 0);
        const pid_t hijo = fork();
        if (hijo == 0) Trabajar(tubo[1]);
        QVERIFY(hijo > 0);
        close(tubo[1]);
        // Some batches pass, then the blow falls at another moment of the next ones each time.
        int leido = 0;
        for (int n = 0; n < 1 + vez % 3; ++n)
            if (read(tubo[0], &leido, sizeof leido) == sizeof leido) confirmados = leido;
        QTest::qSleep(1);
        usleep(useconds_t(vez * 700));
        QCOMPARE(kill(hijo, SIGKILL), 0);
        int estado = 0;
        waitpid(hijo, &estado, 0);
        QVERIFY2(WIFSIGNALED(estado), "the work ended by itself");
        while (read(tubo[0], &leido, sizeof leido) == sizeof leido)
            confirmados = leido;
        close(tubo[0]);

        Base_Datos = Base::Abrir(Fichero_MDB);
        QCOMPARE(p.Columna("PRAGMA integrity_check"), QStringList{"ok"});
        const qint64 filas = Base_Datos->OpenRecordset("Registros").RecordCount();
        QVERIFY2(filas >= qint64(confirmados) * FILAS_POR_LOTE, qPrintable(QString::number(vez)));
        QCOMPARE(filas % FILAS_POR_LOTE, 0);
        Base_Datos.reset();
    }
    QVERIFY(confirmados > 25);
}

void TestCortes::con_el_disco_lleno_no_se_compacta_y_la_base_queda()
{
    const Base_De_Prueba p;
    for (int lote = 0; lote < 40; ++lote)
        Guardar_Lote(lote);
    p.Escribir("MDB/esttotal.bak", "la vieja");
    for (const rlim_t limite : {rlim_t(1000), rlim_t(60000), rlim_t(250000)}) {
        {
            const Disco_Lleno lleno(limite);
            QVERIFY(!Compactar_BD());
        }
        QVERIFY(!QFile::exists(p.Ruta("MDB/esttotal.pak")));
        QCOMPARE(p.Leer("MDB/esttotal.bak"), QByteArray("la vieja"));
        if (!Base_Datos) Base_Datos = Base::Abrir(Fichero_MDB);
        QCOMPARE(Base_Datos->OpenRecordset("Registros").RecordCount(), 40 * FILAS_POR_LOTE);
        QCOMPARE(p.Columna("PRAGMA integrity_check"), QStringList{"ok"});
    }
    QVERIFY(Compactar_BD());
    QCOMPARE(Base_Datos->OpenRecordset("Registros").RecordCount(), 40 * FILAS_POR_LOTE);
}

void TestCortes::con_el_disco_lleno_no_se_guarda_a_medias()
{
    const Base_De_Prueba p;
    Guardar_Lote(0);
    const qint64 diario = QFileInfo(Fichero_MDB + "-wal").size();
    int numero = 0;
    {
        const Disco_Lleno lleno(rlim_t(diario) + 5000);
        numero = Numero_De_Error([] {
            for (int lote = 1; lote < 100; ++lote)
                Guardar_Lote(lote);
        });
    }
    QVERIFY2(numero == 3026 || numero == 3043, qPrintable(QString::number(numero)));
    QCOMPARE(Base_Datos->OpenRecordset("Registros").RecordCount() % FILAS_POR_LOTE, 0);
    QCOMPARE(p.Columna("PRAGMA integrity_check"), QStringList{"ok"});
    Guardar_Lote(200);
}

void TestCortes::con_el_disco_lleno_los_ajustes_quedan()
{
    const Base_De_Prueba p;
    p.Escribir("x.txt", "lo que había");
    p.Escribir("grande.txt", QByteArray(5000, 'x'));
    {
        const Disco_Lleno lleno(100);
        QVERIFY_ERROR(61, Ficheros::Copiar(p.Ruta("grande.txt"), p.Ruta("x.txt")));
        QVERIFY_ERROR(61, Ficheros::Escribir(p.Ruta("x.txt"), QByteArray(5000, 'y')));
    }
    QCOMPARE(p.Leer("x.txt"), QByteArray("lo que había"));
    QCOMPARE(QDir(Ruta_Aplicacion).entryList(QDir::Files, QDir::Name),
             (QStringList{"grande.txt", "x.txt"}));
}

PRUEBA(TestCortes)
#include "TestCortes.moc"
