#include "core/Ficheros.h"
#include "export/excel/Fichero_Excel.h"
#include "tests/apoyo/Prueba.h"
#include "tests/app/Correr.h"
#include "tools/revisar_mdb/Revisor.h"

#include <QProcess>

class TestTabla : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_texto_se_hace_libro_data();
    void un_texto_se_hace_libro();
    void un_libro_se_hace_texto();
    void un_texto_se_hace_base();
    void mal_uso_data();
    void mal_uso();
    void lo_que_falla_no_deja_fichero_data();
    void lo_que_falla_no_deja_fichero();

private:
    QString En(const QString& nombre, const QByteArray& texto = {}) const
    {
        const QString ruta = carpeta.filePath(nombre);
        if (!texto.isNull()) Ficheros::Escribir(ruta, texto);
        return ruta;
    }
    QTemporaryDir carpeta;
};

void TestTabla::un_texto_se_hace_libro_data()
{
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<bool>("numero");
    QTest::addColumn<QByteArray>("vuelto");
    const QByteArray vuelto = "Punto\tCota\nñ€\t12.5\n\tx\n";
    const auto con = [](QByteArray separador) {
        QByteArray t = "Punto|Cota\r\nñ€|12.5\r\n|x\r\n";
        return t.replace('|', separador);
    };
    QTest::newRow("sin opciones") << QStringList{} << con("\t") << false << vuelto;
    QTest::newRow("tabulación") << QStringList{"--separador", "tabulacion"} << con("\t") << false
                                << vuelto;
    QTest::newRow("coma") << QStringList{"--separador=coma"} << con(",") << false << vuelto;
    QTest::newRow("espacio") << QStringList{"--separador=espacio"} << con(" ") << false << vuelto;
    for (const Forma_Excel& f : Formas_Excel()) {
        const QString nombre = QStringView(f.nombre).toString();
        QTest::newRow(nombre.toUtf8().data())
            << QStringList{"--version", nombre, "--numeros"} << con("\t") << true << vuelto;
    }
}

void TestTabla::un_texto_se_hace_libro()
{
    QFETCH(QStringList, opciones);
    QFETCH(QByteArray, texto);
    QFETCH(bool, numero);
    QFETCH(QByteArray, vuelto);
    const QString entrada = En("entrada.txt", texto), libro = En("Salida.XLS"),
                  otra = En("otra.txt");
    const Salida s = Correr(QStringList{"tabla", entrada, libro} + opciones);
    QCOMPARE(s.mensajes, QString());
    QCOMPARE(s.estado, int(HECHO));
    const Libro_Excel leido = Abrir_Libro(libro);
    QCOMPARE(leido.Hoja(0).Leer(1, 1).tipo, numero ? Celda::Tipo::Numero : Celda::Tipo::Texto);
    QCOMPARE(Correr({"tabla", libro, otra}).estado, int(HECHO));
    QCOMPARE(Ficheros::Leer(otra), vuelto);
}

void TestTabla::un_libro_se_hace_texto()
{
    const QString salida = En("salida.dat");
    QCOMPARE(Correr({"tabla", DATOS_PRUEBA "/libros/de_xlwt.xls", salida}).estado, int(HECHO));
    const QList<QByteArray> lineas = Ficheros::Leer(salida).split('\n');
    QCOMPARE(lineas.size(), 11);
    QCOMPARE(lineas[0], QByteArray("Punto\tCota\tDía\t\t"));
    QCOMPARE(lineas[2], QByteArray("P2\t2.5\t46083\t0\t200"));
    QCOMPARE(lineas[6], QByteArray("0.01\t-7\t123456789012\t0.3333333333333333\t0012"));
    QCOMPARE(lineas[7], QByteArray("negro ñ €\t\t\t\t"));
    QCOMPARE(lineas[9], QByteArray("#N/A\t\t\t\t"));
}

void TestTabla::un_texto_se_hace_base()
{
    const QString entrada = En("entrada.txt", "Punto,Descripción\nP1,\"año, 5\"\"\"\nP2\n");
    const QString base = En("salida.mdb");
    for (const QString& tabla : {QString("Datos"), QString("Puntos")}) {
        const QStringList opcion = tabla == "Datos" ? QStringList{} : QStringList{"--tabla", tabla};
        const Salida s =
            Correr(QStringList{"tabla", entrada, base, "--separador", "coma"} + opcion);
        QCOMPARE(s.mensajes, QString());
        QCOMPARE(s.estado, int(HECHO));
        QCOMPARE(Revisar_Mdb(Ficheros::Leer(base)), QStringList());
        QProcess lector;
        lector.start("mdb-export", {base, tabla});
        QVERIFY(lector.waitForFinished());
        QCOMPARE(lector.readAllStandardOutput(),
                 QByteArray("Punto,Descripción\n\"P1\",\"año, 5\"\"\"\n\"P2\",\n"));
    }
}

void TestTabla::mal_uso_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("falta la salida") << QStringList{"a.txt"} << "Faltan argumentos";
    QTest::newRow("sobra uno") << QStringList{"a.txt", "b.xls", "c"} << "Sobra el argumento c";
    QTest::newRow("de texto a texto")
        << QStringList{"a.txt", "b.txt"}
        << "El fichero de salida debe ser .xls o .mdb, o el de entrada .xls";
    QTest::newRow("de libro a libro")
        << QStringList{"a.xls", "b.xls"} << "De un libro sólo se obtiene un texto";
    QTest::newRow("separador") << QStringList{"a.txt", "b.xls", "--separador", "punto"}
                               << "Separador desconocido: punto";
    QTest::newRow("versión") << QStringList{"a.txt", "b.xls", "--version", "Excel 97"}
                             << "Versión desconocida: Excel 97";
    QTest::newRow("tabla en un libro") << QStringList{"a.txt", "b.xls", "--tabla", "T"}
                                       << "La opción --tabla no vale para un libro";
    QTest::newRow("números en una base") << QStringList{"a.txt", "b.mdb", "--numeros"}
                                         << "La opción --numeros no vale para una base de datos";
    QTest::newRow("opción al leer") << QStringList{"a.xls", "b.txt", "--numeros"}
                                    << "La opción --numeros no vale para leer un libro";
}

void TestTabla::mal_uso()
{
    QFETCH(QStringList, palabras);
    QFETCH(QString, mensaje);
    const Salida s = Correr(QStringList{"tabla"} + palabras);
    QCOMPARE(s.estado, int(MAL_USO));
    QCOMPARE(s.mensajes.section('\n', 0, 0), mensaje);
}

void TestTabla::lo_que_falla_no_deja_fichero_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<QString>("salida");
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<QString>("mensaje");
    const QStringList sin;
    QTest::newRow("vacío") << QByteArray("") << "s.xls" << sin << "(62) El texto está vacío";
    QTest::newRow("no es UTF-8") << QByteArray("a\n\xF1\n") << "s.xls" << sin << "(13) Línea 2: ";
    QTest::newRow("celda larga") << QByteArray("a\n") + QByteArray(256, 'x') << "s.xls"
                                 << QStringList{"--version", "Excel 5.0"} << "(3163) ";
    QTest::newRow("filas de más") << QByteArray("a\n") + QByteArray("x\n").repeated(16384)
                                  << "s.xls" << QStringList{"--version", "Excel 4.0"} << "(3437) ";
    QTest::newRow("columnas de más") << QByteArray(256, '\t') << "s.xls" << sin << "(3190) ";
    QTest::newRow("columna repetida") << QByteArray("a\tA\n") << "s.mdb" << sin << "(3191) ";
    QTest::newRow("celda larga en la base")
        << QByteArray("a\nb\n") + QByteArray(81, 'x') << "s.mdb" << sin << "(3163) Línea 3: ";
    QTest::newRow("columna sin título") << QByteArray("a\t\n") << "s.mdb" << sin << "(3125) ";
    QByteArray titulos, fila; // letters beyond Latin-1 take two bytes each
    for (int c = 0; c < 30; ++c)
        titulos += "c" + QByteArray::number(c) + "\t", fila += QByteArray("€").repeated(80) + "\t";
    QTest::newRow("fila larga en la base")
        << titulos.chopped(1) + "\n" + fila.chopped(1) << "s.mdb" << sin << "(3047) Línea 2: ";
    QTest::newRow("columna con punto") << QByteArray("a.b\n") << "s.mdb" << sin << "(3125) ";
    QTest::newRow("columnas de más en la base")
        << QByteArray(256, '\t') << "s.mdb" << sin << "(3190) ";
    QTest::newRow("tabla con corchete")
        << QByteArray("a\n") << "s.mdb" << QStringList{"--tabla", "[T]"} << "(3125) ";
    QTest::newRow("base sin carpeta") << QByteArray("a\n") << "no/s.mdb" << sin << "(3044) ";
    QTest::newRow("nombre de base") << QByteArray("a\n") << "s?.mdb" << sin << "(3055) ";
    QTest::newRow("sin carpeta") << QByteArray("a\n") << "no/s.xls" << sin << "(76) ";
}

void TestTabla::lo_que_falla_no_deja_fichero()
{
    QFETCH(QByteArray, texto);
    QFETCH(QString, salida);
    QFETCH(QStringList, opciones);
    QFETCH(QString, mensaje);
    const QTemporaryDir aparte;
    const QString destino = aparte.filePath(salida);
    const Salida s = Correr(QStringList{"tabla", En("mala.txt", texto), destino} + opciones);
    QCOMPARE(s.estado, int(RECHAZADO));
    QVERIFY2(s.mensajes.startsWith(mensaje), qPrintable(s.mensajes));
    QCOMPARE(QDir(aparte.path()).entryList(QDir::Files), QStringList());
}

PRUEBA(TestTabla)
#include "TestTabla.moc"
