#include "core/Ansi.h"
#include "export/Formatear_Datos.h"
#include "export/Renglon.h"
#include "export/Salidas.h"
#include "export/texto/Escritor_Texto.h"
#include "session/Separadores.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <csignal>
#include <QFileInfo>
#include <QScopeGuard>
#include <sys/resource.h>

namespace {

// A table as stage 1 leaves it: columns of one length.
Datos_Formateados Datos(const QList<QStringList>& filas, const QStringList& especiales = {})
{
    Datos_Formateados datos;
    datos.lineas_especiales = especiales;
    const qsizetype columnas = filas.isEmpty() ? 0 : filas.first().size();
    datos.filas.resize(std::size_t(columnas));
    for (const QStringList& fila : filas)
        for (qsizetype c = 0; c < columnas; ++c)
            datos.filas[std::size_t(c)].push_back(fila[c]);
    Igualar_Columnas(datos.filas);
    return datos;
}

const QStringList CAMPOS = {"Punto", "Coordenada X", "Cód"};
const QList<QStringList> FILAS = {
    {"1", "-1000.500", "ÁRBOL"}, {"PUNTO22", "", "€"}, {"3", "20.000", ""}};

} // namespace

class TestEscritorTexto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_ficheros_son_los_de_siempre_data();
    void los_ficheros_son_los_de_siempre();
    void una_tabla_sin_filas_data();
    void una_tabla_sin_filas();
    void un_fichero_que_estaba_se_reemplaza();
    void las_filas_marcadas_del_nivel();
    void con_el_nivel_en_uso_mandan_los_titulos();
    void los_fallos_se_dicen_data();
    void los_fallos_se_dicen();
    void lo_escrito_se_queda();
    void un_dispositivo_no_se_pisa();
    void la_pagina_y_los_finales_de_linea();

private:
    bool Escribir(const QString& tipo, const QString& fichero, const QString& sep, bool titulos,
                  Datos_Formateados datos, const QStringList& campos = CAMPOS)
    {
        Avance_Exportar avance;
        datos.campos = campos;
        const Opciones_Exportar opciones{sep + QChar(6) + (titulos ? "S" : "N")};
        const Origen_Exportar origen{*Base_Datos, 1, "KRT300", 0, "F", campos, opciones, avance};
        const Modo_Salida& modo = Modo_En_Vigor();
        return Salida_De(tipo)->escribir({origen, datos, fichero, modo.campos_con_marca});
    }
};

void TestEscritorTexto::los_ficheros_son_los_de_siempre_data()
{
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<QString>("separador");
    QTest::addColumn<bool>("titulos");
    for (const Salida_Exportar& salida : Salidas_Exportar())
        for (const Fila_Separador& separador : Separadores())
            for (const bool titulos : {false, true})
                if (salida.pide_separador)
                    QTest::newRow(qPrintable(salida.palabra + '_' + separador.palabra +
                                             (titulos ? "_titulos" : "")))
                        << salida.tipo << QString(separador.caracter) << titulos;
}

void TestEscritorTexto::los_ficheros_son_los_de_siempre()
{
    QFETCH(QString, tipo);
    QFETCH(QString, separador);
    QFETCH(bool, titulos);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    QVERIFY(Escribir(tipo, p.Ruta("ficheros/s.txt"), separador, titulos, Datos(FILAS)));
    const QString patron = QString(DATOS_PRUEBA) + "/export/" + QTest::currentDataTag() + ".txt";
    QFile esperado(patron);
    const QByteArray obtenido = p.Leer("ficheros/s.txt");
    QVERIFY2(esperado.open(QIODevice::ReadOnly), qPrintable(patron));
    QCOMPARE(obtenido, esperado.readAll());
}

void TestEscritorTexto::una_tabla_sin_filas_data()
{
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<bool>("titulos");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("txf") << "TXF" << false << QByteArray();
    QTest::newRow("txt") << "TXT" << false << QByteArray();
    QTest::newRow("txf con títulos") << "TXF" << true
                                     << QByteArray("Punto,Coordenada X,C\xF3"
                                                   "d\r\n\r\n");
    QTest::newRow("txt con títulos") << "TXT" << true
                                     << QByteArray("Punto,Coordenada X,C\xF3"
                                                   "d\r\n\r\n");
}

void TestEscritorTexto::una_tabla_sin_filas()
{
    QFETCH(QString, tipo);
    QFETCH(bool, titulos);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    Datos_Formateados vacios;
    vacios.filas.resize(3);
    QVERIFY(Escribir(tipo, p.Ruta("ficheros/s.txt"), ",", titulos, vacios));
    QTEST(p.Leer("ficheros/s.txt"), "bytes");
    // Rows whose cells are all empty leave no trace in the one, and their separators in the other.
    QVERIFY(Escribir(tipo, p.Ruta("ficheros/s.txt"), ",", false, Datos({{"", "", ""}})));
    QCOMPARE(p.Leer("ficheros/s.txt"), QByteArray(tipo == u"TXF" ? ",,\r\n" : ""));
}

void TestEscritorTexto::un_fichero_que_estaba_se_reemplaza()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    p.Escribir("ficheros/s.txt", QByteArray(10000, 'x'));
    QVERIFY(Escribir("TXT", p.Ruta("ficheros/s.txt"), ",", false, Datos({{"1", "2", "3"}})));
    QCOMPARE(p.Leer("ficheros/s.txt"), QByteArray("1,2,3\r\n"));
}

void TestEscritorTexto::las_filas_marcadas_del_nivel()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    Poner_Registro(p, "NV400", {0}, "t", "Trabajo", "M", {{"Obra"}, {"Nulo"}, {"Mira"}});
    Poner_Registro(p, "NV400", {0}, "w", "Anillo", "M", {{"Cota"}});
    const Datos_Formateados datos =
        Datos({{"\u0006", "x"}, {"1", "A"}, {"\u0005", "y"}, {"\u0006", "z"}},
              {"t01,ZUERA,9,M4,Q,", "w01,12345,", "t01,OTRA,9,M5,Q,"});
    QVERIFY(Escribir("TXF", p.Ruta("ficheros/f.txt"), ",", false, datos, {"uno", "dos"}));
    QCOMPARE(p.Leer("ficheros/f.txt"),
             QByteArray("Cabecera:\r\nObra:ZUERA Mira:M4 \r\n,x\r\n1,A\r\nResumen:\r\nCota:12345 "
                        "\r\n,y\r\nCabecera:\r\nObra:OTRA Mira:M5 \r\n,z\r\n"));
    QVERIFY(Escribir("TXT", p.Ruta("ficheros/t.txt"), ",", false, datos, {"uno", "dos"}));
    QCOMPARE(p.Leer("ficheros/t.txt"),
             QByteArray("Cabecera:\r\nObra:ZUERA Mira:M4 \r\n\r\n1,A\r\nResumen:\r\nCota:12345 "
                        "\r\n\r\nCabecera:\r\nObra:OTRA Mira:M5 \r\n\r\n"));
}

void TestEscritorTexto::con_el_nivel_en_uso_mandan_los_titulos()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "NV400";
    const QString lectura = QString("Lectura").leftJustified(40) + "10";
    // The cells count for nothing, and no cell is cut. The width is the stored name's, mark and
    // all.
    QVERIFY(Escribir("TXF", p.Ruta("ficheros/f.txt"), ",", true, Datos({{"1.23456789", "A"}}),
                     {"Pto", lectura}));
    QCOMPARE(p.Leer("ficheros/f.txt"), "Pto,Lectura" + QByteArray(35, ' ') +
                                           "\r\n\r\n1.23456789,A" + QByteArray(41, ' ') + "\r\n");
}

void TestEscritorTexto::los_fallos_se_dicen_data()
{
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<int>("numero");
    for (const char* tipo : {"TXF", "TXT"}) {
        QTest::addRow("%s sin carpeta", tipo) << tipo << "ficheros/no/hay/s.txt" << 76;
        QTest::addRow("%s carpeta", tipo) << tipo << "ficheros" << 75;
        QTest::addRow("%s comodín", tipo) << tipo << "ficheros/*.txt" << 53;
    }
}

void TestEscritorTexto::los_fallos_se_dicen()
{
    QFETCH(QString, tipo);
    QFETCH(QString, fichero);
    QFETCH(int, numero);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    QVERIFY(!Escribir(tipo, p.Ruta(fichero), ",", false, Datos(FILAS)));
    QCOMPARE(guion.avisos.size(), 1);
    const Interfaz_Guion::Aviso& aviso = guion.avisos[0];
    if (numero == 53) {
        QCOMPARE(aviso.texto,
                 QStringLiteral("Debe especificar un nombre correcto para el Fichero de Salida"));
        QCOMPARE(aviso.titulo, QStringLiteral("Atención"));
        QCOMPARE(aviso.icono, Icono::Exclamacion);
        return;
    }
    const QString mensaje =
        tipo == u"TXF" ? "Se produjo un error al Guardar un Fichero de Texto formateado\r(%1) "
                       : "Se produjo un error al Guardar un Fichero de Texto\r(%1) ";
    QVERIFY2(aviso.texto.startsWith(mensaje.arg(numero)), qPrintable(aviso.texto));
    QCOMPARE(aviso.icono, Icono::Critico);
}

void TestEscritorTexto::lo_escrito_se_queda()
{
    // Under a bound of 100 kB for any file, the second block doesn't fit.
    rlimit antes{};
    getrlimit(RLIMIT_FSIZE, &antes);
    rlimit corto = antes;
    corto.rlim_cur = 100000;
    const auto senal = std::signal(SIGXFSZ, SIG_IGN);
    const auto fin = qScopeGuard([&] {
        setrlimit(RLIMIT_FSIZE, &antes);
        std::signal(SIGXFSZ, senal);
    });
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    const QList<QStringList> muchas(3000, {QString(80, u'x')});
    const QByteArray principio = QByteArray(80, 'x') + "\r\n";
    p.Escribir("ficheros/hay.txt", "lo de antes");
    setrlimit(RLIMIT_FSIZE, &corto);
    QVERIFY(!Escribir("TXF", p.Ruta("ficheros/s.txt"), ",", false, Datos(muchas)));
    QVERIFY(!Escribir("TXF", p.Ruta("ficheros/hay.txt"), ",", false, Datos(muchas)));
    for (const auto& aviso : guion.avisos)
        QVERIFY2(aviso.texto.contains("\r(61) "), qPrintable(aviso.texto));
    QVERIFY(p.Leer("ficheros/s.txt").startsWith(principio));
    QVERIFY(!QFile::exists(p.Ruta("ficheros/s.txt.parcial")));
    QCOMPARE(p.Leer("ficheros/hay.txt"), QByteArray("lo de antes"));
    QVERIFY(p.Leer("ficheros/hay.txt.parcial").startsWith(principio));
}

void TestEscritorTexto::un_dispositivo_no_se_pisa()
{
    if (!QFileInfo::exists("/dev/full")) QSKIP("no such device here");
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    QVERIFY(!Escribir("TXF", "/dev/full", ",", false, Datos(FILAS)));
    QVERIFY(guion.avisos[0].texto.contains("\r(75) "));
}

void TestEscritorTexto::la_pagina_y_los_finales_de_linea()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Clave_Estacion = "KRT300";
    QVERIFY(Escribir("TXT", p.Ruta("ficheros/s.txt"), ";", false, Datos({{"€ñ\u0081", "Ж", "😀"}})));
    QCOMPARE(p.Leer("ficheros/s.txt"), QByteArray("\x80\xF1\x81;?;?\r\n"));
}

PRUEBA(TestEscritorTexto)
#include "TestEscritorTexto.moc"
