#include "core/Sesiones.h"
#include "tests/apoyo/Otro_Proceso.h"
#include "tests/apoyo/Prueba.h"
#include "tests/transfer/Banco_Recepcion.h"

// Two and three programs on one installation: real processes that begin at once.
class TestDos_Programas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { banco.reset(); }
    void dos_que_guardan_cincuenta_veces_data();
    void dos_que_guardan_cincuenta_veces();
    void uno_compacta_otro_guarda_y_otro_lee();

private:
    static constexpr int REGISTROS = 800;
    static QString Buffer(const QString& maquina, int n);
    static int Guardar(const QString& maquina, const QString& nombre);
    static void Comprobar_Sesiones(int esperadas);
    std::unique_ptr<Banco_Recepcion> banco;
};

void TestDos_Programas::init()
{
    banco = std::make_unique<Banco_Recepcion>();
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT300";
}

QString TestDos_Programas::Buffer(const QString& maquina, int n)
{
    QString b;
    for (int i = 1; i <= n; ++i)
        b += maquina == u"KRT800" ? QStringLiteral("SS %1,1.5\r\n").arg(i)
                                  : QStringLiteral("_+P%1_A%1").arg(i);
    return b;
}

int TestDos_Programas::Guardar(const QString& maquina, const QString& nombre)
{
    const Resultado_Recepcion r =
        Procesar_Recepcion({Buffer(maquina, REGISTROS), nombre, 0, 0, maquina, "Modelo"});
    return r.sesiones.size() == 1 ? 0 : 1;
}

// Every session has a number of its own and the lines that its row speaks of.
void TestDos_Programas::Comprobar_Sesiones(int esperadas)
{
    Base_Datos = Base::Abrir(Fichero_MDB);
    Recorrido sesiones = Base_Datos->Recorrer(
        "SELECT ID, NPuntos, (SELECT count(*) FROM Registros R WHERE R.ID = Sesiones.ID) "
        "FROM Sesiones ORDER BY ID");
    int n = 0;
    while (sesiones.Siguiente()) {
        QCOMPARE(sesiones.Entero(0), ++n);
        QCOMPARE(sesiones.Entero(1), REGISTROS);
        QCOMPARE(sesiones.Entero(2), REGISTROS);
    }
    QCOMPARE(n, esperadas);
    Recorrido sana = Base_Datos->Recorrer("PRAGMA integrity_check");
    QVERIFY(sana.Siguiente());
    QCOMPARE(sana.Texto(0), QStringLiteral("ok"));
}

void TestDos_Programas::dos_que_guardan_cincuenta_veces_data()
{
    QTest::addColumn<QStringList>("maquinas");
    QTest::newRow("KRT300") << QStringList{"KRT300", "KRT300"};
    QTest::newRow("KRT800") << QStringList{"KRT800", "KRT800"};
    QTest::newRow("una y otra") << QStringList{"KRT300", "KRT800"};
}

void TestDos_Programas::dos_que_guardan_cincuenta_veces()
{
    constexpr int VECES = 50;
    QFETCH(QStringList, maquinas);
    Base_Datos.reset();
    for (int vez = 0; vez < VECES; ++vez) {
        Otros_Procesos procesos;
        for (const QString& m : maquinas)
            procesos.Empezar([&m] { return Guardar(m, "Obra"); });
        QCOMPARE(procesos.Esperar(), (QList<int>{0, 0}));
    }
    Comprobar_Sesiones(2 * VECES);
}

void TestDos_Programas::uno_compacta_otro_guarda_y_otro_lee()
{
    constexpr int VECES = 30;
    Base_Datos.reset();
    Otros_Procesos procesos;
    procesos.Empezar([] {
        for (int i = 0; i < VECES; ++i)
            if (Guardar(i % 2 ? "KRT800" : "KRT300", "Obra") != 0) return 1;
        return 0;
    });
    procesos.Empezar([] {
        int hechas = 0;
        for (int i = 0; i < 4 * VECES; ++i) {
            hechas += Compactar_BD() ? 1 : 0;
            if (!Base_Datos) return 2;
            // A program that is there but idle would keep the others from it for ever.
            Base_Datos.reset();
            usleep(5000);
        }
        return hechas > 0 ? 0 : 3;
    });
    procesos.Empezar([] {
        qint64 antes = 0;
        for (int i = 0; i < 4 * VECES; ++i) {
            Base_Datos = Base::Abrir(Fichero_MDB);
            qint64 lineas = 0;
            for (Recorrido r = Base_Datos->Recorrer("SELECT Datos FROM Registros"); r.Siguiente();)
                lineas += r.Texto(0).isEmpty() ? 0 : 1;
            if (lineas < antes) return 4;
            antes = lineas;
            Base_Datos.reset();
            usleep(3000);
        }
        return 0;
    });
    QCOMPARE(procesos.Esperar(), (QList<int>{0, 0, 0}));
    Comprobar_Sesiones(VECES);
}

PRUEBA(TestDos_Programas)
#include "TestDos_Programas.moc"
