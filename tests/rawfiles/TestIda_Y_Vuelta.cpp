#include "core/Familia.h"
#include "rawfiles/Importar_Bruto.h"
#include "rawfiles/ModFBruto.h"
#include "rawfiles/Salidas_Brutas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"
#include "transfer/Proceso_Recepcion.h"

// The raw lines are the surveyor's proof: what came over the wire leaves as a file, comes back and
// leaves again, and is the same to the last byte.
class TestIda_Y_Vuelta : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void cada_familia_data();
    void cada_familia();
    void sin_generales_vuelven_los_puntos();
    void la_libreta_de_serie_a();
    void todos_los_caracteres();
    void cien_mil_lineas();

private:
    static QByteArray Cable(const QStringList& registros, const QString& maquina);
    QString Descargar(const QString& maquina, int ope, const QByteArray& cable);
    QByteArray Exportar(const QString& maquina, const QString& id, const QString& patron,
                        bool generales = true);
    QString Importar(const QString& maquina, int ope, Forma_Bruta forma);
    QStringList Datos(const QString& id) const
    {
        return banco->Columna("SELECT Datos FROM Registros WHERE ID = " + id +
                              " ORDER BY Secuencia");
    }
    std::unique_ptr<Banco_Bruto> banco;
};

// What the records are on the wire, frames and their checks taken away.
QByteArray TestIda_Y_Vuelta::Cable(const QStringList& registros, const QString& maquina)
{
    QByteArray cable;
    for (const QString& r : registros) {
        const QByteArray bytes = Ansi::A_Bytes(r);
        cable += Familia_De(maquina).serie == Serie::A ? '_' + bytes : bytes + "\r\n";
    }
    return cable;
}

QString TestIda_Y_Vuelta::Descargar(const QString& maquina, int ope, const QByteArray& cable)
{
    banco->Familia(maquina);
    const Resultado_Recepcion r =
        Procesar_Recepcion({Ansi::A_Texto(cable), "Obra", ope, 0, maquina, maquina + "-1"});
    return r.sesiones.value(0);
}

QByteArray TestIda_Y_Vuelta::Exportar(const QString& maquina, const QString& id,
                                      const QString& patron, bool generales)
{
    QFile::remove(banco->Ruta("bruto"));
    Escribir_Bruto({.id = id.toLongLong(),
                    .maquina = maquina,
                    .patron = patron,
                    .fichero = banco->Ruta("bruto"),
                    .generales = generales,
                    .temporal = Temporal_Bruto()});
    return banco->Leer("bruto");
}

QString TestIda_Y_Vuelta::Importar(const QString& maquina, int ope, Forma_Bruta forma)
{
    const QString fichero = banco->Ruta("bruto");
    switch (Familia_De(maquina).serie) {
    case Serie::A:
        return Importar_Bruto(fichero, "Vuelta", ope, forma).sesion;
    case Serie::B:
        return Importar_KRT800(fichero, "Vuelta", ope).sesion;
    default:
        return Importar_Nivel(fichero, "Vuelta").sesion;
    }
}

void TestIda_Y_Vuelta::cada_familia_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QStringList>("registros");
    QTest::addColumn<QString>("patron");
    QTest::addColumn<int>("forma");
    const int maquina = int(Forma_Bruta::Maquina), lineas = int(Forma_Bruta::Lineas);
    const QStringList a{"JVALLE Ñ",  "EE1",       "I+01483", "h0",        "+101",
                        "h+3294595", "cPOZO €  ", "+",       " d+1",      "EE2",
                        "+P 1",      "v+1019210", "I+01500", "v+1019211", "cFIN     "};
    const QStringList b{"JOB VALLE Ñ", "STN E1,1.5,  ", "SS 1,1.5,POZO €   ", "SD 1,2,3",
                        "sin comas"};
    const QStringList n{"b,03,ANILLO Ñ,RN1,1,K,", "g,03,115384,33135,6123456,RN1,4,x,", "   ",
                        "i,03,1,2,"};
    for (const QString familia : {"KRT300", "PX7"}) {
        QTest::newRow(qPrintable(familia + " maquina")) << familia << 0 << a << "*.hd6" << maquina;
        QTest::newRow(qPrintable(familia + " lineas")) << familia << 0 << a << "*.txt" << lineas;
    }
    QTest::newRow("KRT800 medicion") << "KRT800" << 0 << b << "*.hd6" << lineas;
    QTest::newRow("KRT800 puntos")
        << "KRT800" << 4 << QStringList{"P1,1,2,3,Ñ", "P2 ,4,5,6"} << "*.*" << lineas;
    QTest::newRow("KRT800 perfiles")
        << "KRT800" << 7 << QStringList{"0.0,1,2", "0.0,-1,2", "9.0,1,2"} << "*.hd6" << lineas;
    QTest::newRow("NV400") << "NV400" << 0 << n << "*.dat" << lineas;
}

void TestIda_Y_Vuelta::cada_familia()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QStringList, registros);
    QFETCH(QString, patron);
    QFETCH(int, forma);
    const QByteArray cable = Cable(registros, maquina);
    const QString ida = Descargar(maquina, ope, cable);
    QCOMPARE(ida, QString("1"));
    const QByteArray fichero = Exportar(maquina, ida, patron);
    if (patron == u"*.hd6" && forma == int(Forma_Bruta::Maquina))
        QCOMPARE(fichero, cable + "_\r\n");
    else
        QCOMPARE(fichero, Cable(registros, "KRT800"));
    const QString vuelta = Importar(maquina, ope, Forma_Bruta(forma));
    QCOMPARE(vuelta, QString("2"));
    QCOMPARE(Datos(vuelta), Datos(ida));
    // Series A keeps the point and the general records of each line, too.
    if (Familia_De(maquina).serie == Serie::A) QCOMPARE(banco->Filas(vuelta), banco->Filas(ida));
    QCOMPARE(Exportar(maquina, vuelta, patron), fichero);
    // Neither way lost anything: the two boxes are those of the import and the exports.
    QCOMPARE(banco->Avisos().filter("no guarda").size(), 0);
}

void TestIda_Y_Vuelta::sin_generales_vuelven_los_puntos()
{
    const QString ida = Descargar("KRT300", 0, "_EE1_+P1_h1_EE2_+P2_h2");
    const QByteArray fichero = Exportar("KRT300", ida, "*.hd6", false);
    QCOMPARE(fichero, QByteArray("_+P1_h1_+P2_h2_\r\n"));
    const QString vuelta = Importar("KRT300", 0, Forma_Bruta::Maquina);
    QCOMPARE(banco->Filas(vuelta), (QStringList{"P1|h1|", "P2|h2|"}));
    QCOMPARE(Exportar("KRT300", vuelta, "*.hd6", false), fichero);
    banco->Avisos();
}

void TestIda_Y_Vuelta::la_libreta_de_serie_a()
{
    const QStringList registros = Banco_Bruto::Lineas(Banco_Bruto::Datos("libreta_a.txt"));
    const QString ida = Descargar("PX7", 0, Cable(registros, "PX7"));
    QCOMPARE(Exportar("PX7", ida, "*.hd6", false), Banco_Bruto::Datos("libreta_a.hd6"));
    QCOMPARE(Exportar("PX7", ida, "*.txt", false), Banco_Bruto::Datos("libreta_a.lin"));
    QCOMPARE(Exportar("PX7", ida, "*.txt"), Banco_Bruto::Datos("libreta_a.txt"));
    QCOMPARE(Exportar("PX7", ida, "*.hd6"), Banco_Bruto::Datos("libreta_a_generales.hd6"));
    const QString vuelta = Importar("PX7", 0, Forma_Bruta::Maquina);
    QCOMPARE(banco->Filas(vuelta), banco->Filas(ida));
    banco->Avisos();
}

// Every code of the page but those that separate records and lines.
void TestIda_Y_Vuelta::todos_los_caracteres()
{
    QByteArray todos;
    for (int c = 1; c < 256; ++c)
        if (c != '_' && c != '\r' && c != '\n') todos += char(c);
    for (const QString maquina : {"KRT300", "KRT800", "NV400"}) {
        const QString patron = maquina == u"NV400" ? "*.dat" : "*.hd6";
        const QByteArray registro = 'h' + todos.left(250);
        const QString ida = Descargar(maquina, 0, Cable({Ansi::A_Texto(registro)}, maquina));
        const QByteArray fichero = Exportar(maquina, ida, patron);
        QVERIFY(fichero.contains(registro));
        QCOMPARE(Exportar(maquina, Importar(maquina, 0, Forma_Bruta::Maquina), patron), fichero);
    }
    banco->Avisos();
}

void TestIda_Y_Vuelta::cien_mil_lineas()
{
    QStringList registros;
    for (int i = 0; i < 33334; ++i)
        registros << QString("+%1").arg(i) << QString("h+%1").arg(i, 7, 10, QChar(u'0'))
                  << QString("v+%1").arg(i, 7, 10, QChar(u'0'));
    banco->Familia("KRT300");
    banco->Escribir("bruto", Cable(registros, "KRT800"));
    const QString id = Importar("KRT300", 0, Forma_Bruta::Lineas);
    QCOMPARE(Exportar("KRT300", id, "*.txt"), Cable(registros, "KRT800"));
    QCOMPARE(banco->Columna("SELECT NPuntos FROM Sesiones"), QStringList{"33334"});
    banco->Avisos();
}

PRUEBA(TestIda_Y_Vuelta)
#include "TestIda_Y_Vuelta.moc"
