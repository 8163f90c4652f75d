#include "core/Ficheros.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QSaveFile>

class TestFicheros : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_escrito_se_lee();
    void lineas_de_un_texto();
    void un_fallo_da_su_numero_data();
    void un_fallo_da_su_numero();
    void el_disco_lleno_es_el_61();
    void lo_anterior_queda_si_falla();
};

void TestFicheros::lo_escrito_se_lee()
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath("años.txt");
    Ficheros::Escribir(ruta, "uno");
    Ficheros::Escribir(ruta, QByteArray("dos\0\r\n", 6));
    QCOMPARE(Ficheros::Leer(ruta), QByteArray("dos\0\r\n", 6));
    QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files), QStringList{"años.txt"});
}

void TestFicheros::lineas_de_un_texto()
{
    const QTemporaryDir dir;
    const QString ruta = dir.filePath("a.txt");
    const auto lineas = [&](const QByteArray& bytes) {
        Ficheros::Escribir(ruta, bytes);
        return Ficheros::Leer_Lineas(ruta);
    };
    QCOMPARE(lineas(""), QStringList());
    QCOMPARE(lineas("a\r\nb\n\r\nc"), (QStringList{"a", "b", "", "c"}));
    QCOMPARE(lineas("a\n\n"), (QStringList{"a", ""}));
    QCOMPARE(lineas("\xD1\r\r\n"), QStringList{QStringLiteral("Ñ\r")});
}

void TestFicheros::un_fallo_da_su_numero_data()
{
    QTest::addColumn<QString>("ruta");
    QTest::addColumn<int>("al_leer");
    QTest::addColumn<int>("al_escribir");
    QTest::newRow("sin nombre") << "" << 53 << 52;
    QTest::newRow("carpeta") << "%1" << 75 << 75;
    QTest::newRow("sin carpeta") << "%1/no/existe.txt" << 53 << 76;
}

void TestFicheros::un_fallo_da_su_numero()
{
    QFETCH(QString, ruta);
    QFETCH(int, al_leer);
    QFETCH(int, al_escribir);
    const QTemporaryDir carpeta;
    const QString donde = ruta.contains("%1") ? ruta.arg(carpeta.path()) : ruta;
    QCOMPARE(Numero_De_Error([&] { Ficheros::Leer(donde); }), al_leer);
    QCOMPARE(Numero_De_Error([&] { Ficheros::Escribir(donde, "x"); }), al_escribir);
}

void TestFicheros::el_disco_lleno_es_el_61()
{
    QFile lleno("/dev/full");
    if (!lleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) QSKIP("no /dev/full here");
    QCOMPARE(lleno.write("x"), -1);
    QCOMPARE(Ficheros::Error_De(lleno).numero, 61);
}

void TestFicheros::lo_anterior_queda_si_falla()
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath("a.txt");
    Ficheros::Escribir(ruta, "antes");
    QFile::setPermissions(carpeta.path(), QFile::ReadOwner | QFile::ExeOwner);
    const int numero = Numero_De_Error([&] { Ficheros::Escribir(ruta, "despues"); });
    QFile::setPermissions(carpeta.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // The superuser is above permissions: then the new text stands there whole.
    QVERIFY(numero == 70 || numero == 0);
    QCOMPARE(Ficheros::Leer(ruta), numero == 0 ? "despues" : "antes");
}

PRUEBA(TestFicheros)
#include "TestFicheros.moc"
