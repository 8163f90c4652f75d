#include "export/Destino_Exportar.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QFile>
#include <QTemporaryDir>

class TestDestino_Exportar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_nuevo_va_a_su_sitio();
    void lo_que_habia_espera();
    void el_enlace_queda();
    void lo_que_no_es_un_fichero_no_se_pisa();
    void los_nombres();

private:
    static void Escribir(const QString& ruta, const QByteArray& bytes)
    {
        QFile f(ruta);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    static QByteArray Leer(const QString& ruta)
    {
        QFile f(ruta);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    QTemporaryDir carpeta;
};

void TestDestino_Exportar::lo_nuevo_va_a_su_sitio()
{
    const QString ruta = carpeta.filePath("nuevo.txt");
    const Destino_Exportar destino(ruta);
    QCOMPARE(destino.Ruta(), ruta);
    Escribir(destino.Ruta(), "uno");
    destino.Terminar();
    QCOMPARE(Leer(ruta), QByteArray("uno"));
}

void TestDestino_Exportar::lo_que_habia_espera()
{
    const QString ruta = carpeta.filePath("hay.txt");
    Escribir(ruta, "antes");
    {
        const Destino_Exportar destino(ruta);
        QCOMPARE(destino.Ruta(), ruta + ".parcial");
        Escribir(destino.Ruta(), "a med");
    }
    QCOMPARE(Leer(ruta), QByteArray("antes"));
    QCOMPARE(Leer(ruta + ".parcial"), QByteArray("a med"));
    const Destino_Exportar destino(ruta);
    Escribir(destino.Ruta(), "entero");
    QCOMPARE(Leer(ruta), QByteArray("antes"));
    destino.Terminar();
    QCOMPARE(Leer(ruta), QByteArray("entero"));
    QVERIFY(!QFile::exists(ruta + ".parcial"));
}

void TestDestino_Exportar::el_enlace_queda()
{
    const QString ruta = carpeta.filePath("de_verdad.txt"), enlace = carpeta.filePath("enlace.txt");
    Escribir(ruta, "antes");
    QVERIFY(QFile::link(ruta, enlace));
    const Destino_Exportar destino(enlace);
    Escribir(destino.Ruta(), "nuevo");
    destino.Terminar();
    QVERIFY(QFileInfo(enlace).isSymLink());
    QCOMPARE(Leer(ruta), QByteArray("nuevo"));
}

void TestDestino_Exportar::lo_que_no_es_un_fichero_no_se_pisa()
{
    QVERIFY_ERROR(75, Destino_Exportar(carpeta.path()));
    if (QFileInfo::exists("/dev/null")) QVERIFY_ERROR(75, Destino_Exportar("/dev/null"));
    const QString ruta = carpeta.filePath("cerrado.txt");
    Escribir(ruta, "antes");
    QVERIFY(QFile::setPermissions(ruta, QFileDevice::ReadOwner));
    if (!QFileInfo(ruta).isWritable()) QVERIFY_ERROR(70, Destino_Exportar(ruta));
}

void TestDestino_Exportar::los_nombres()
{
    for (const char* nombre : {"", " ", "a*.txt", "c/a?", "a\nb"})
        QVERIFY2(!Es_Nombre_De_Fichero(nombre), nombre);
    for (const char* nombre : {"a", "Año nuevo.txt", "c/d e"})
        QVERIFY2(Es_Nombre_De_Fichero(nombre), nombre);
}

PRUEBA(TestDestino_Exportar)
#include "TestDestino_Exportar.moc"
