#include "simulator/Aparato_Tramas.h"
#include "simulator/Marcha.h"
#include "tests/apoyo/Prueba.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

using namespace simulador;

/// The PC's end of the cable: the port opened through the link, in raw mode.
class Puerto_Pc {
public:
    explicit Puerto_Pc(const QString& enlace)
        : fd(open(qPrintable(enlace), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        termios modo{};
        tcgetattr(fd, &modo);
        cfmakeraw(&modo);
        tcsetattr(fd, TCSANOW, &modo);
    }
    ~Puerto_Pc() { close(fd); }
    Puerto_Pc(const Puerto_Pc&) = delete;
    Puerto_Pc& operator=(const Puerto_Pc&) = delete;

    bool Abierto() const { return fd >= 0; }
    bool Enviar(const QByteArray& bytes) const
    {
        return write(fd, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size();
    }
    /// Reads what there is; nothing and `cortado` when the other end is gone.
    QByteArray Leer()
    {
        QByteArray bytes(4096, 0);
        const ssize_t n = read(fd, bytes.data(), 4096);
        cortado = n == 0 || (n < 0 && errno != EAGAIN);
        bytes.truncate(std::max<ssize_t>(n, 0));
        return bytes;
    }
    bool cortado = false;

private:
    int fd;
};

class TestMarcha : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void descarga_por_el_puerto();
    void sirve_otra_vez_al_abrir_de_nuevo();
    void guarda_una_carga();
    void corta_el_cable();
    void espera_a_que_se_abra_el_puerto();
    void el_enlace_no_pisa_un_fichero();
    void se_cansa_de_esperar();

private:
    QString En(const QString& nombre) const { return carpeta->filePath(nombre); }
    Opciones Pedir(const QStringList& palabras) const;
    /// Turns until `basta`; two seconds at most. @return true when it was met
    bool Girar(Marcha& marcha, const std::function<bool()>& basta);
    /// Turns and reads until a number of bytes has come.
    QByteArray Recoger(Marcha& marcha, Puerto_Pc& pc, qsizetype cuantos);

    std::unique_ptr<QTemporaryDir> carpeta;
};

void TestMarcha::init()
{
    carpeta = std::make_unique<QTemporaryDir>();
    QFile f(En("campo.txt"));
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write("# libreta\n+P1\n x+001\n") > 0);
}

Opciones TestMarcha::Pedir(const QStringList& palabras) const
{
    Opciones o;
    const QString mal = Leer_Opciones(palabras + QStringList{"--enlace", En("com1")}, o);
    if (!mal.isEmpty()) qWarning("%s", qPrintable(mal));
    return o;
}

bool TestMarcha::Girar(Marcha& marcha, const std::function<bool()>& basta)
{
    QElapsedTimer reloj;
    reloj.start();
    while (!basta() && reloj.elapsed() < 2000)
        if (!marcha.Turno()) return basta();
    return basta();
}

QByteArray TestMarcha::Recoger(Marcha& marcha, Puerto_Pc& pc, qsizetype cuantos)
{
    QByteArray bytes;
    Girar(marcha, [&] { return (bytes += pc.Leer()).size() >= cuantos; });
    return bytes;
}

void TestMarcha::descarga_por_el_puerto()
{
    Marcha marcha(Pedir({"KRT300", "--enviar", En("campo.txt"), "--bloque", "8", "--una-vez"}));
    QCOMPARE(marcha.Preparar(), QString());
    QCOMPARE(QFileInfo(En("com1")).symLinkTarget(), marcha.Ruta());
    {
        Puerto_Pc pc(En("com1"));
        QVERIFY(pc.Abierto());
        QVERIFY(pc.Enviar("\x05"));
        QCOMPARE(Recoger(marcha, pc, 14), QByteArray("\x02_+P1_ x+0009\x03"));
        QVERIFY(pc.Enviar("\x06"));
        QCOMPARE(Recoger(marcha, pc, 14), QByteArray("\x02"
                                                     "001     1032\x03"));
        QVERIFY(pc.Enviar("\x06"));
        QCOMPARE(Recoger(marcha, pc, 1), QByteArray("\x04"));
        QVERIFY(pc.Enviar("\x06"));
        QVERIFY(Girar(marcha, [&] { return marcha.Estado() == 0; }));
    }
    QVERIFY(Girar(marcha, [&] { return !marcha.Turno(); }));
}

void TestMarcha::sirve_otra_vez_al_abrir_de_nuevo()
{
    Marcha marcha(Pedir({"NV400", "--enviar", En("campo.txt")}));
    QCOMPARE(marcha.Preparar(), QString());
    for (int vez = 0; vez < 2; ++vez) {
        {
            Puerto_Pc pc(En("com1"));
            QVERIFY(pc.Enviar("\x05"));
            QCOMPARE(Recoger(marcha, pc, 9), QByteArray("A,01,Z,\r\n"));
        }
        for (int i = 0; i < 5; ++i)
            QVERIFY(marcha.Turno());
    }
}

void TestMarcha::guarda_una_carga()
{
    for (const bool crudo : {false, true}) {
        Marcha marcha(
            Pedir({"KRT800", "--guardar", En("carga.txt"), crudo ? "--crudo" : "--seguir"}));
        QCOMPARE(marcha.Preparar(), QString());
        Puerto_Pc pc(En("com1"));
        QVERIFY(pc.Enviar("P1,1.000,2.000\r\nSE\xD1"
                          "AL\r\n\x04"));
        QVERIFY(Girar(marcha, [&] { return marcha.Estado() == 0; }));
        QFile f(En("carga.txt"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), crudo ? QByteArray("P1,1.000,2.000\r\nSE\xD1"
                                                 "AL\r\n")
                                    : QByteArray("P1,1.000,2.000\nSEÑAL\n"));
    }
}

void TestMarcha::corta_el_cable()
{
    Marcha marcha(Pedir({"KRT300", "--enviar", En("campo.txt"), "--fallo", "corte:11"}));
    QCOMPARE(marcha.Preparar(), QString());
    Puerto_Pc pc(En("com1"));
    QVERIFY(pc.Enviar("\x05"));
    QByteArray llegado;
    bool acabada = false;
    QVERIFY(Girar(marcha, [&] {
        acabada = acabada || !marcha.Turno();
        llegado += pc.Leer();
        return acabada && pc.cortado;
    }));
    // One byte went to the instrument, so that ten came from it; a cut may take some of them along.
    QVERIFY(QByteArray("\x02_+P1_ x+0").startsWith(llegado));
    QCOMPARE(marcha.Estado(), 1);
}

void TestMarcha::espera_a_que_se_abra_el_puerto()
{
    Marcha marcha(Pedir({"KRT800", "--enviar", En("campo.txt"), "--retardo", "50"}));
    QCOMPARE(marcha.Preparar(), QString());
    QElapsedTimer reloj;
    reloj.start();
    while (reloj.elapsed() < 150)
        QVERIFY(marcha.Turno());
    Puerto_Pc pc(En("com1"));
    QCOMPARE(pc.Leer(), QByteArray());
    QCOMPARE(Recoger(marcha, pc, 14), QByteArray("+P1\r\n x+001\r\n\x04"));
}

void TestMarcha::el_enlace_no_pisa_un_fichero()
{
    QFile f(En("com1"));
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write("mío") > 0);
    f.close();
    Marcha marcha(Pedir({"PX7", "--enviar", En("campo.txt")}));
    QVERIFY(marcha.Preparar().contains("existe y no es un enlace"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(f.readAll()), QStringLiteral("mío"));

    Marcha sin_libreta(Pedir({"PX7", "--enviar", En("otra.txt")}));
    QVERIFY(sin_libreta.Preparar().startsWith("no se puede leer la libreta"));
}

void TestMarcha::se_cansa_de_esperar()
{
    {
        Marcha marcha(Pedir({"PX7", "--enviar", En("campo.txt"), "--tiempo", "1"}));
        QCOMPARE(marcha.Preparar(), QString());
        QElapsedTimer reloj;
        reloj.start();
        while (marcha.Turno())
            QVERIFY(reloj.elapsed() < 5000);
        QCOMPARE(marcha.Estado(), 1);
        QVERIFY(QFileInfo(En("com1")).isSymLink());
    }
    QVERIFY(!QFileInfo(En("com1")).isSymLink());
}

PRUEBA(TestMarcha)
#include "TestMarcha.moc"
