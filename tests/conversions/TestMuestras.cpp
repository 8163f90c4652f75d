#include "core/Ansi.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

#include <QRegularExpression>

namespace {

/// One row of the list of samples: what is called, on what, and what must come out.
struct Muestra {
    QString funcion;
    QStringList argumentos; ///< target left out
    QString esperado;       ///< file; "-" when none must be left
    int resultado = 1;      ///< 0 also for a list function, whose result is its lines
    bool lista = false;     ///< the result is the number of lines
};

/// Arguments are parted by blanks; quotes hold one that has blanks itself.
QStringList Partir(const QString& texto)
{
    static const QRegularExpression palabra("\"([^\"]*)\"|(\\S+)");
    QStringList partes;
    for (auto i = palabra.globalMatch(texto); i.hasNext();) {
        const auto m = i.next();
        partes << (m.captured(2).isEmpty() ? m.captured(1) : m.captured(2));
    }
    return partes;
}

QList<Muestra> Muestras()
{
    QList<Muestra> lista;
    const QString texto = Ansi::A_Texto(Banco_Conversion::Bytes_Muestra("manifest.txt"));
    const QStringList lineas = texto.split("\r\n", Qt::SkipEmptyParts);
    for (const QString& linea : lineas.mid(1)) {
        const QStringList campos = linea.split(u'|');
        lista << Muestra{campos[0], Partir(campos[1]), campos[2], campos[3].toInt(),
                         campos[3] == u"-"};
    }
    return lista;
}

/// The clock's attributes are left out of comparisons.
QByteArray Sin_Reloj(const QByteArray& xml)
{
    static const QRegularExpression reloj(" date=\"[^\"]*\" time=\"[^\"]*\"");
    return QString::fromUtf8(xml).remove(reloj).toUtf8();
}

} // namespace

class TestMuestras : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void muestras_data();
    void muestras();
    void estan_las_39_funciones();
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
    const QByteArrayList obtenido = Sin_Reloj(*r.salida).split('\n');
    const QByteArrayList esperado =
        Sin_Reloj(Banco_Conversion::Bytes_Muestra(m.esperado)).split('\n');
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
