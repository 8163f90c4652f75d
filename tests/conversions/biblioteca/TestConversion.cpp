#include "conversions/biblioteca/Conversion.h"
#include "tests/apoyo/Prueba.h"

namespace {

QByteArray Leer(const QString& ruta)
{
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(no existe)");
}

void Poner(const QString& ruta, const QByteArray& bytes)
{
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

} // namespace

class TestConversion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void con_cero_no_queda_destino();
    void el_destino_no_puede_ser_el_origen();
    void una_carpeta_no_es_origen_ni_destino();
    void la_tabla_sabe_sus_argumentos();
};

void TestConversion::con_cero_no_queda_destino()
{
    QTemporaryDir d;
    const Peticion_Funcion p{d.filePath("a.txt"), d.filePath("a.ssh"), {}};
    Poner(p.entrada, "x");
    const auto bien = [] { return QByteArray("nuevo"); };
    const auto mal = []() -> QByteArray { throw Fallo_Conversion{"roto", 7, "x"}; };
    Informe_Lectura informe;
    QCOMPARE(Conversion::Convertir(p, informe, Conversion::Omisiones::Dan_Menos_Uno, bien), 1);
    QCOMPARE(Leer(p.salida), "nuevo");
    QCOMPARE(Conversion::Convertir(p, informe, Conversion::Omisiones::Dan_Menos_Uno, mal), 0);
    QVERIFY(!QFile::exists(p.salida));
    QCOMPARE(informe.Lineas(), QStringList{"Línea 7: roto: \"x\""});

    Informe_Lectura con_omision;
    con_omision.Omitir(1, "x", "m");
    QCOMPARE(Conversion::Convertir(p, con_omision, Conversion::Omisiones::Dan_Menos_Uno, bien), -1);
    QCOMPARE(Conversion::Convertir(p, con_omision, Conversion::Omisiones::No_Cuentan, bien), 1);
}

void TestConversion::el_destino_no_puede_ser_el_origen()
{
    QTemporaryDir d;
    const QString ruta = d.filePath("a.plt");
    Poner(ruta, "del proyectista");
    QVERIFY(QFile::link(ruta, d.filePath("b.plt")));
    for (const char* otro : {"a.plt", "./a.plt", "b.plt"}) {
        Informe_Lectura informe;
        const Peticion_Funcion p{ruta, d.path() + u'/' + QLatin1String(otro), {}};
        QCOMPARE(Conversion::Convertir(p, informe, Conversion::Omisiones::No_Cuentan,
                                       [] { return QByteArray("x"); }),
                 0);
        QCOMPARE(
            informe.Lineas(),
            QStringList{"El fichero destino debe ser diferente al origen: \"" + p.salida + "\""});
        QCOMPARE(Leer(ruta), "del proyectista");
    }
}

void TestConversion::una_carpeta_no_es_origen_ni_destino()
{
    QTemporaryDir d;
    for (const QString& ruta : {d.path(), d.filePath("no_hay"), QString()}) {
        QFile f(ruta);
        QVERIFY_EXCEPTION_THROWN(Conversion::Abrir(f), Fallo_Conversion);
    }
    Informe_Lectura informe;
    QDir(d.path()).mkdir("salida");
    QCOMPARE(Conversion::Convertir({d.filePath("x"), d.filePath("salida"), {}}, informe,
                                   Conversion::Omisiones::No_Cuentan,
                                   [] { return QByteArray("x"); }),
             0);
    QVERIFY(QDir(d.filePath("salida")).exists());
}

void TestConversion::la_tabla_sabe_sus_argumentos()
{
    const Funcion f{"prueba", "INDICE ENTRADA SALIDA [APLICACION]",
                    [](const Peticion_Funcion& p, Informe_Lectura&) {
                        return p.entrada == u"e" && p.salida == u"s" ? int(p.datos.size()) : -9;
                    }};
    QCOMPARE(Argumentos_De(f).minimo, 3);
    QCOMPARE(Argumentos_De(f).maximo, 4);
    Informe_Lectura informe;
    QCOMPARE(Ejecutar_Funcion(f, {"7", "e", "s"}, informe), 1);
    QCOMPARE(Ejecutar_Funcion(f, {"7", "e", "s", "a"}, informe), 2);
    QVERIFY(!informe.Fallo());
    QCOMPARE(Ejecutar_Funcion(f, {"7", "e"}, informe), 0);
    QVERIFY(informe.Fallo());
    QCOMPARE(Ejecutar_Funcion(u"MyDll_no_hay", {}, informe), 0);
    QVERIFY(informe.Lineas()[0].contains(u"Función desconocida"));
}

PRUEBA(TestConversion)
#include "TestConversion.moc"
