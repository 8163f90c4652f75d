#include "core/Reloj.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Muestras.h"

/// The list of samples, each run and compared byte for byte.
class TestMuestras : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { antes = Poner_Reloj(&reloj); }
    void cleanupTestCase() { Poner_Reloj(antes); }
    void muestras_data();
    void muestras();
    void estan_las_39_funciones();

private:
    // The moment that the samples in LandXML were written.
    Reloj_Rapido reloj{1, QDateTime(QDate(2000, 1, 1), QTime(0, 0))};
    Reloj* antes = nullptr;
};

void TestMuestras::muestras_data()
{
    QTest::addColumn<int>("indice");
    const QList<Muestra> lista = Muestras();
    for (int i = 0; i < lista.size(); ++i)
        if (Buscar_Funcion(lista[i].funcion))
            QTest::addRow("%d %s %s", i, qPrintable(lista[i].funcion),
                          qPrintable(lista[i].esperado))
                << i;
}

void TestMuestras::muestras()
{
    QFETCH(int, indice);
    const Muestra m = Muestras()[indice];
    const Funcion* f = Buscar_Funcion(m.funcion);
    QVERIFY(f);
    const Banco_Conversion banco;
    const QStringList nombres =
        QString::fromLatin1(f->argumentos).remove(u'[').remove(u']').split(u' ');
    QStringList argumentos = m.argumentos;
    argumentos.removeAll("...");
    while (m.funcion == u"MyDll_anivel2ing" && argumentos.size() < 6)
        argumentos << "x";
    if (!argumentos.contains("<target>") && nombres.contains("SALIDA"))
        argumentos.insert(nombres.indexOf("SALIDA"), "<target>");
    const QString destino = m.esperado.endsWith(u".hal") ? "salida.HAL" : "salida.xyz";
    for (QString& a : argumentos) {
        if (a == u"<target>") {
            a = "<salida>";
        } else if (QFile::exists(Banco_Conversion::Muestra(a))) {
            a = Banco_Conversion::Muestra(a);
        }
    }
    const auto r = banco.Ejecutar(m.funcion, argumentos, destino);
    const int resultado =
        m.lista ? int(Banco_Conversion::Bytes_Muestra(m.esperado).count('\n')) : m.resultado;
    QVERIFY2(r.numero == resultado, qPrintable(r.informe.Lineas().join(u'\n')));
    QCOMPARE(r.salida.has_value(), m.esperado != u"-");
    QCOMPARE(r.informe.Fallo().has_value(), resultado == 0);
    if (resultado == -1) QVERIFY(r.informe.Hay_Omisiones());
    if (!r.salida) return;
    const QByteArrayList obtenido = r.salida->split('\n');
    const QByteArrayList esperado = Banco_Conversion::Bytes_Muestra(m.esperado).split('\n');
    for (qsizetype i = 0; i < std::min(obtenido.size(), esperado.size()); ++i)
        QCOMPARE(obtenido[i], esperado[i]);
    QCOMPARE(obtenido.size(), esperado.size());
}

void TestMuestras::estan_las_39_funciones()
{
    QCOMPARE(Tabla_Funciones().size(), size_t(39));
}

PRUEBA(TestMuestras)
#include "TestMuestras.moc"
