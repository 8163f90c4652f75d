#include "conversions/biblioteca/CVZENDRA.h"
#include "conversions/biblioteca/Fichero_Lista.h"
#include "core/Ansi.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

#include <QLibrary>
#include <QRegularExpression>

/// The border in C: linked in, and as the shared library beside the program.
class TestCVZENDRA : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_cabecera_es_de_c();
    void la_cabecera_dice_lo_que_la_tabla();
    void cada_funcion_de_la_tabla_esta_en_la_biblioteca();
    void por_la_biblioteca_cargada();
    void enlazada();
    void textos_nulos();
    void los_argumentos_no_cambian();
    void nombres_en_la_pagina_de_los_ficheros();
    void rutas_en_la_pagina_de_los_ficheros();

private:
    Banco_Conversion banco;
    static QString Biblioteca() { return QStringLiteral(INSTALACION "/CVZENDRA"); }
};

void TestCVZENDRA::la_cabecera_es_de_c()
{
    const QByteArray cabecera = Ficheros::Leer(QStringLiteral(INSTALACION "/CVZENDRA.h"));
    QCOMPARE(cabecera,
             Ficheros::Leer(QStringLiteral(RAIZ_FUENTES "/conversions/biblioteca/CVZENDRA.h")));
    QCOMPARE(cabecera.count("\nCVZENDRA_FUNCION("), 39);
}

/// Each function stands in the header once and with the arguments of its row: paths, other texts
/// and the index in the same order, optional ones included.
void TestCVZENDRA::la_cabecera_dice_lo_que_la_tabla()
{
    const QString cabecera = QString::fromLatin1(
        Ficheros::Leer(QStringLiteral(RAIZ_FUENTES "/conversions/biblioteca/CVZENDRA.h")));
    static const QRegularExpression declaracion(
        QStringLiteral("^CVZENDRA_FUNCION\\((\\w+)\\)\\s*\\(([^)]*)\\);"),
        QRegularExpression::MultilineOption);
    QMap<QString, QStringList> declaradas;
    for (auto i = declaracion.globalMatch(cabecera); i.hasNext();) {
        const auto m = i.next();
        QVERIFY2(!declaradas.contains(m.captured(1)), qPrintable(m.captured(1)));
        for (const QString& argumento : m.captured(2).split(u','))
            declaradas[m.captured(1)] << argumento.simplified();
    }
    const QHash<QString, QString> PALABRAS = {{"ENTRADA", "const char* in"},
                                              {"SALIDA", "const char* out"},
                                              {"[APLICACION]", "const char* app"},
                                              {"INDICE", "int32_t index"}};
    for (const Funcion& f : Tabla_Funciones()) {
        const QStringList hay = declaradas.take(QString::fromLatin1(f.nombre));
        QStringList nombres = QString::fromLatin1(f.argumentos).split(u' ');
        // The list functions write to the list file for a caller in C.
        nombres.removeAll(QStringLiteral("[SALIDA]"));
        QVERIFY2(hay.size() == nombres.size(), f.nombre);
        for (qsizetype i = 0; i < hay.size(); ++i)
            QVERIFY2(PALABRAS.contains(nombres[i])
                         ? hay[i] == PALABRAS[nombres[i]]
                         : hay[i].startsWith("const char* ") && !PALABRAS.values().contains(hay[i]),
                     f.nombre);
    }
    QVERIFY2(declaradas.isEmpty(), qPrintable(declaradas.keys().join(u' ')));
}

void TestCVZENDRA::cada_funcion_de_la_tabla_esta_en_la_biblioteca()
{
    QLibrary biblioteca(Biblioteca());
    QVERIFY2(biblioteca.load(), qPrintable(biblioteca.errorString()));
    for (const Funcion& f : Tabla_Funciones())
        QVERIFY2(biblioteca.resolve((QByteArray("MyDll_") + f.nombre).constData()), f.nombre);
    QVERIFY(!biblioteca.resolve("MyDll_no_hay"));
    biblioteca.unload();
}

void TestCVZENDRA::por_la_biblioteca_cargada()
{
    QLibrary biblioteca(Biblioteca());
    QVERIFY2(biblioteca.load(), qPrintable(biblioteca.errorString()));
    using Tres = int32_t(CVZENDRA_LLAMADA*)(const char*, const char*, const char*);
    const auto convertir = reinterpret_cast<Tres>(biblioteca.resolve("MyDll_aclipplt2krt"));
    const QByteArray de = QFile::encodeName(Banco_Conversion::Muestra("eje1.plt"));
    const QByteArray a = QFile::encodeName(banco.Ruta("ñ.ssh"));
    QCOMPARE(convertir(de.constData(), a.constData(), "/app"), 1);
    QCOMPARE(Ficheros::Leer(banco.Ruta("ñ.ssh")), Banco_Conversion::Bytes_Muestra("eje1.plt.ssh"));
    QCOMPARE(convertir("no hay", a.constData(), nullptr), 0);
    QVERIFY(!QFile::exists(banco.Ruta("ñ.ssh")));
    biblioteca.unload();
}

void TestCVZENDRA::enlazada()
{
    const auto muestra = [](const char* n) {
        return QFile::encodeName(Banco_Conversion::Muestra(n));
    };
    const QByteArray a = QFile::encodeName(banco.Ruta("a.ssh"));
    QCOMPARE(MyDll_alandxml2krt(0, muestra("eje1_mal.xml").constData(), a.constData(), ""), -1);
    QCOMPARE(Ficheros::Leer(banco.Ruta("a.ssh")),
             Banco_Conversion::Bytes_Muestra("eje1_mal.xml.ssh"));
    QCOMPARE(MyDll_alandxml2krt(1, muestra("eje1.xml").constData(), a.constData(), ""), 0);
    QCOMPARE(
        MyDll_tralandxml2krt("EJE A", "PROYECTO", muestra("eje1_t.xml").constData(), a.constData()),
        1);
    QCOMPARE(Ficheros::Leer(banco.Ruta("a.ssh")), Banco_Conversion::Bytes_Muestra("eje1_t_P.ssp"));
    Mover_Fichero_Lista(banco.Ruta("lista"));
    QCOMPARE(MyDll_seleccionaTransverLandXML(muestra("eje1_t.xml").constData()), 2);
    QCOMPARE(Ficheros::Leer(banco.Ruta("lista")), Banco_Conversion::Bytes_Muestra("eje1_tra.lst"));
    Mover_Fichero_Lista({});
    QCOMPARE(MyDll_anivel2ing(muestra("nivel.lin").constData(), a.constData(), "NV-1234", "MIRA A",
                              "MIRA B", "J. PEREZ", "TOPO SL"),
             1);
    QCOMPARE(Ficheros::Leer(banco.Ruta("a.ssh")), Banco_Conversion::Bytes_Muestra("nivel_ign.txt"));
    QCOMPARE(MyDll_procesaRobotizada(muestra("lecturas.dat").constData(),
                                     muestra("coord.xyz").constData(), a.constData(), "PRESA",
                                     "Coronaci\xF3n", "J. PEREZ", "18.5", "12/03/2004", "10:30"),
             1);
    QCOMPARE(Ficheros::Leer(banco.Ruta("a.ssh")),
             Banco_Conversion::Bytes_Muestra("resultados.txt"));
}

void TestCVZENDRA::textos_nulos()
{
    QCOMPARE(MyDll_aclipplt2krt(nullptr, nullptr, nullptr), 0);
    QCOMPARE(MyDll_rqsv2krt("", ""), 0);
    QCOMPARE(MyDll_rlandxml2krt(nullptr, nullptr, nullptr), 0);
    QCOMPARE(MyDll_tralandxml2krt(nullptr, nullptr, nullptr, nullptr), 0);
    QCOMPARE(MyDll_anivel2ing(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
    QCOMPARE(MyDll_procesaRobotizada(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                     nullptr, nullptr),
             0);
    QCOMPARE(MyDll_puntos2krt(nullptr, nullptr), 0);
}

void TestCVZENDRA::los_argumentos_no_cambian()
{
    QByteArray de = QFile::encodeName(Banco_Conversion::Muestra("eje1.ras"));
    QByteArray a = QFile::encodeName(banco.Ruta("b.ssv"));
    const QByteArray de_antes(de.constData(), de.size()), a_antes(a.constData(), a.size());
    QCOMPARE(MyDll_rqsv2krt(de.data(), a.data()), 1);
    QCOMPARE(de, de_antes);
    QCOMPARE(a, a_antes);
}

/// A choice comes back from the list file in its bytes.
void TestCVZENDRA::nombres_en_la_pagina_de_los_ficheros()
{
    const QString f = banco.Poner(
        "a.xml",
        "<LandXML><Alignments><Alignment name=\"Traza Ñ Ω\"><Profile><ProfAlign>"
        "<PVI>0 1</PVI><PVI>9 2</PVI></ProfAlign></Profile></Alignment></Alignments></LandXML>");
    Mover_Fichero_Lista(banco.Ruta("lista"));
    QCOMPARE(MyDll_seleccionaRasanteLandXML(QFile::encodeName(f).constData()), 1);
    const QByteArray eleccion = Ficheros::Leer(banco.Ruta("lista")).trimmed();
    QCOMPARE(eleccion, "Traza \xD1 ?");
    QCOMPARE(MyDll_rlandxml2krt(eleccion.constData(), QFile::encodeName(f).constData(),
                                QFile::encodeName(banco.Ruta("c.ssv")).constData()),
             1);
    Mover_Fichero_Lista({});
}

/// A caller whose texts are all in one page names its files in that page too.
void TestCVZENDRA::rutas_en_la_pagina_de_los_ficheros()
{
    banco.Poner("diseño.ras", Banco_Conversion::Bytes_Muestra("eje1.ras"));
    const QByteArray de = Ansi::A_Bytes(banco.Ruta("diseño.ras"));
    const QByteArray a = Ansi::A_Bytes(banco.Ruta("señal.ssv"));
    QCOMPARE(MyDll_rqsv2krt(de.constData(), a.constData()), 1);
    QCOMPARE(Ficheros::Leer(banco.Ruta("señal.ssv")),
             Banco_Conversion::Bytes_Muestra("eje1.ras.ssv"));
}

PRUEBA(TestCVZENDRA)
#include "TestCVZENDRA.moc"
