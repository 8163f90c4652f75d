#include "app/cli/Ordenes.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QBuffer>
#include <QFileInfo>

// exportar-bruto and importar-bruto, run in this process.
class TestOrdenesBrutos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { banco.reset(); }
    void mal_uso_data();
    void mal_uso();
    void cada_patron_data();
    void cada_patron();
    void el_patron_que_no_es_suyo();
    void los_cinco_datos_del_nivel();
    void varias_en_un_fichero();
    void varias_en_uno_cada_una();
    void dos_del_mismo_nombre();
    void todas_las_que_lo_ofrecen();
    void un_fallo_da_estado_uno();
    void importar_da_su_numero_data();
    void importar_da_su_numero();
    void importar_varios();
    void importar_otra_familia_pide_permiso();
    void importar_lo_que_no_esta();
    void importar_lo_que_no_cabe();

private:
    int Correr(const QStringList& palabras, bool si = false);
    int Exportar(const QStringList& palabras)
    {
        return Correr(QStringList{"exportar-bruto"} + palabras);
    }
    int Importar(const QStringList& palabras, const QString& modelo, int ope, bool si = false)
    {
        return Correr(QStringList{"importar-bruto"} + palabras +
                          QStringList{"--modelo", modelo, "--ope", QString::number(ope), "--nombre",
                                      "Vuelta"},
                      si);
    }
    QString Salida() const { return banco->Ruta("salida"); }
    std::unique_ptr<Banco_Bruto> banco;
    QString texto, mensajes;
};

void TestOrdenesBrutos::init()
{
    banco = std::make_unique<Banco_Bruto>();
    for (const char* clave : {"KRT300", "KRT800", "NV400", "PX7"})
        banco->Fila("KRT",
                    {{"Nombre", QString(clave) + "-1"}, {"Clave", clave}, {"VelPuerto", "9600"}});
    banco->Escribir("EstTotal.ini", "KRTNOM=KRT300-1\r\nKRT=KRT300\r\nFIJO=True\r\n");
    banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"P", "h1", "EE1"}, {"P", "v2", "EE1"}});
    banco->Guardar("KRT800", 0, QStringList{"STN E,1.5", "SS 1,1.3,C", "SD 1,2,3"});
    banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"Q", "h3"}});
    banco->Guardar("KRT800", 7, QStringList{"5,1,2"});
}

int TestOrdenesBrutos::Correr(const QStringList& palabras, bool si)
{
    QBuffer s, e;
    s.open(QIODevice::WriteOnly);
    e.open(QIODevice::WriteOnly);
    Contexto c;
    c.dir = Ruta_Aplicacion;
    c.si = si;
    c.salida = &s;
    c.errores = &e;
    const int estado = Ejecutar_Orden(c, palabras);
    texto = QString::fromUtf8(s.data());
    mensajes = QString::fromUtf8(e.data());
    // An order closes the database that it opened.
    Base_Datos = Base::Abrir(Fichero_MDB);
    return estado;
}

void TestOrdenesBrutos::mal_uso_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::newRow("sin id") << QStringList{"exportar-bruto", "--patron", "*.hd6", "--salida", "x"};
    QTest::newRow("id y todas") << QStringList{"exportar-bruto", "1",        "--todas", "--patron",
                                               "*.hd6",          "--salida", "x"};
    QTest::newRow("id con letras")
        << QStringList{"exportar-bruto", "uno", "--patron", "*.hd6", "--salida", "x"};
    QTest::newRow("sin patron") << QStringList{"exportar-bruto", "1", "--salida", "x"};
    QTest::newRow("sin salida") << QStringList{"exportar-bruto", "1", "--patron", "*.hd6"};
    QTest::newRow("salida vacia") << QStringList{"exportar-bruto", "1",        "--patron",
                                                 "*.hd6",          "--salida", ""};
    QTest::newRow("otro separador") << QStringList{"exportar-bruto", "1", "--patron",    "*.hd6",
                                                   "--salida",       "x", "--separador", "punto"};
    QTest::newRow("importar sin fichero")
        << QStringList{"importar-bruto", "--modelo", "m", "--ope", "0", "--nombre", "n"};
    QTest::newRow("importar sin modelo")
        << QStringList{"importar-bruto", "f", "--ope", "0", "--nombre", "n"};
    QTest::newRow("importar sin ope")
        << QStringList{"importar-bruto", "f", "--modelo", "m", "--nombre", "n"};
    QTest::newRow("importar sin nombre")
        << QStringList{"importar-bruto", "f", "--modelo", "m", "--ope", "0"};
    QTest::newRow("importar nombre vacio")
        << QStringList{"importar-bruto", "f", "--modelo", "m", "--ope", "0", "--nombre", ""};
    QTest::newRow("importar otro formato") << QStringList{
        "importar-bruto", "f", "--modelo", "m", "--ope", "0", "--nombre", "n", "--formato", "hd6"};
}

void TestOrdenesBrutos::mal_uso()
{
    QFETCH(QStringList, palabras);
    QCOMPARE(Correr(palabras), int(MAL_USO));
    QVERIFY(mensajes.contains("Uso: miraldos-cli " + palabras[0]));
}

void TestOrdenesBrutos::cada_patron_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<QByteArray>("salida");
    QTest::addColumn<QString>("mensajes");
    const QString fin = "Exportación a Fichero Finalizada\n";
    QTest::newRow("maquina") << QStringList{"1", "--patron", "*.hd6"}
                             << QByteArray("_+P_h1_v2_\r\n")
                             << fin +
                                    "El fichero no incluye los registros generales: Clase E (1)\n";
    QTest::newRow("generales") << QStringList{"1", "--patron", "*.hd6", "--generales"}
                               << QByteArray("_EE1_+P_h1_v2_\r\n") << fin;
    QTest::newRow("lineas") << QStringList{"1", "--patron", "*.txt", "--generales"}
                            << QByteArray("EE1\r\n+P\r\nh1\r\nv2\r\n") << fin;
    QTest::newRow("bronex") << QStringList{"2", "--patron", "*.top"}
                            << QByteArray("E 1 1.0000 2.0000 3.000 1.3 1.5\r\n")
                            << "Exportación a Formato Bronex finalizada\n";
    QTest::newRow("bronex con comas")
        << QStringList{"2", "--patron", "*.top", "--separador", "coma"}
        << QByteArray("E,1,1.0000,2.0000,3.000,1.3,1.5\r\n")
        << "Exportación a Formato Bronex finalizada\n";
    QTest::newRow("angulos") << QStringList{"2", "--patron", "*.ang", "--separador=tabulacion"}
                             << QByteArray("1\t1.0000\t2.0000\t3.000\t1.3\tC\r\n")
                             << "Exportación a Formato Angulos y Distancias finalizada\n";
    QTest::newRow("perfiles")
        << QStringList{"4", "--patron", "*.ter"}
        << QByteArray("*TER\r\n        5,       1,  0  ,  0\r\n        1,         2\r\n")
        << "Exportación a Fichero CLIP finalizada\n";
}

void TestOrdenesBrutos::cada_patron()
{
    QFETCH(QStringList, palabras);
    QFETCH(QByteArray, salida);
    QFETCH(QString, mensajes);
    QCOMPARE(Exportar(palabras + QStringList{"--salida", Salida()}), int(HECHO));
    QCOMPARE(banco->Leer("salida"), salida);
    QCOMPARE(this->mensajes, mensajes);
    QCOMPARE(texto, QString());
}

void TestOrdenesBrutos::el_patron_que_no_es_suyo()
{
    QCOMPARE(Exportar({"1", "--patron", "*.top", "--salida", Salida()}), int(RECHAZADO));
    QCOMPARE(mensajes,
             QString("La sesión 1 (KRT300, Datos de Medición) no se exporta como *.top; se "
                     "exporta como *.hd6, *.txt\n"));
    QCOMPARE(Exportar({"9", "--patron", "*.top", "--salida", Salida()}), int(RECHAZADO));
    QVERIFY(mensajes.startsWith("No existe la sesión 9"));
    QVERIFY(!QFileInfo::exists(Salida()));
}

void TestOrdenesBrutos::los_cinco_datos_del_nivel()
{
    banco->Guardar("NV400", 0,
                   QStringList{"b,03,OBRA,RN1,1000000,1,", "g,03,115384,33135,6123456,RN1,1,1,1,x,",
                               "i,03,105683,26714,6124426,P1,1,1,1,x,"});
    QCOMPARE(Exportar({"5", "--patron", "*.txt", "--salida", Salida(), "--serie", "S1", "--mira1",
                       "M1", "--mira2", "M2", "--operador", "OP", "--empresa", "EM"}),
             int(HECHO));
    const QByteArray salida = banco->Leer("salida");
    for (const char* dato : {"INSTRUMENTO: S1\r\n", "MIRA 1: M1\r\n", "MIRA 2: M2\r\n",
                             "OPERADOR: OP\r\n", "EMPRESA: EM\r\n"})
        QVERIFY(salida.contains(dato));
}

void TestOrdenesBrutos::varias_en_un_fichero()
{
    QCOMPARE(Exportar({"1", "3", "--patron", "*.txt", "--salida", Salida()}), int(HECHO));
    QCOMPARE(banco->Leer("salida"), QByteArray("+P\r\nh1\r\nv2\r\n+Q\r\nh3\r\n"));
}

void TestOrdenesBrutos::varias_en_uno_cada_una()
{
    QCOMPARE(
        Exportar({"1", "3", "--patron", "*.txt", "--salida", banco->Ruta("s{id}-{nombre}.txt")}),
        int(HECHO));
    QCOMPARE(banco->Leer("s1-Obra 1.txt"), QByteArray("+P\r\nh1\r\nv2\r\n"));
    QCOMPARE(banco->Leer("s3-Obra 3.txt"), QByteArray("+Q\r\nh3\r\n"));
    Base_Datos->Execute("UPDATE Sesiones SET NFichero = '../a:b' WHERE ID = 3");
    QCOMPARE(Exportar({"3", "--patron", "*.txt", "--salida", banco->Ruta("{nombre}.txt")}),
             int(HECHO));
    QCOMPARE(banco->Leer(".._a_b.txt"), QByteArray("+Q\r\nh3\r\n"));
}

void TestOrdenesBrutos::dos_del_mismo_nombre()
{
    Base_Datos->Execute("UPDATE Sesiones SET NFichero = 'Obra'");
    QCOMPARE(Exportar({"1", "3", "--patron", "*.txt", "--salida", banco->Ruta("{nombre}.txt")}),
             int(RECHAZADO));
    QVERIFY(mensajes.contains("{id}"));
    QVERIFY(!QFileInfo::exists(banco->Ruta("Obra.txt")));
}

void TestOrdenesBrutos::todas_las_que_lo_ofrecen()
{
    QCOMPARE(Exportar({"--todas", "--patron", "*.txt", "--salida", Salida()}), int(HECHO));
    QCOMPARE(banco->Leer("salida"), QByteArray("+P\r\nh1\r\nv2\r\n+Q\r\nh3\r\n"));
    QVERIFY(mensajes.contains("La sesión 2 (KRT800"));
    QVERIFY(mensajes.contains("La sesión 4 (KRT800"));
    QCOMPARE(Exportar({"--todas", "--patron", "*.nada", "--salida", Salida()}), int(RECHAZADO));
    QVERIFY(mensajes.endsWith("No hay ninguna sesión que exportar\n"));
}

void TestOrdenesBrutos::un_fallo_da_estado_uno()
{
    for (const QStringList& ids : {QStringList{"1"}, QStringList{"1", "3"}}) {
        QCOMPARE(
            Exportar(ids + QStringList{"--patron", "*.txt", "--salida", banco->Ruta("no hay/x")}),
            int(RECHAZADO));
        QVERIFY(mensajes.contains("(76) "));
        QCOMPARE(Exportar(ids + QStringList{"--patron", "*.txt", "--salida", Fichero_MDB}),
                 int(RECHAZADO));
        QVERIFY(mensajes.contains("(70) "));
    }
    QCOMPARE(Exportar({"2", "--patron", "*.ctm", "--salida", Salida()}), int(RECHAZADO));
    QVERIFY(mensajes.contains("El fichero de entrada especificado no existe"));
}

void TestOrdenesBrutos::importar_da_su_numero_data()
{
    QTest::addColumn<QString>("modelo");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QStringList>("formato");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("filas");
    const QStringList serie_a{"P|h1|EE1"};
    QTest::newRow("maquina") << "KRT300-1" << 0 << QStringList{"--formato", "maquina"}
                             << QByteArray("_EE1_+P_h1_\r\n") << serie_a;
    QTest::newRow("lineas") << "PX7-1" << 0 << QStringList{"--formato", "lineas"}
                            << QByteArray("EE1\r\n+P\r\nh1\r\n") << serie_a;
    QTest::newRow("se reconoce maquina")
        << "KRT300-1" << 0 << QStringList{} << QByteArray("_EE1_+P_h1_\r\n") << serie_a;
    QTest::newRow("se reconocen lineas")
        << "KRT300-1" << 0 << QStringList{} << QByteArray("EE1\n+P\nh1\n") << serie_a;
    QTest::newRow("puntos") << "KRT800-1" << 4 << QStringList{} << QByteArray("P1,1,2,3\r\n")
                            << QStringList{"P1|P1,1,2,3|"};
    QTest::newRow("nivel") << "NV400-1" << 0 << QStringList{} << QByteArray("g,03,1,\r\n")
                           << QStringList{"|g,03,1,|"};
}

void TestOrdenesBrutos::importar_da_su_numero()
{
    QFETCH(QString, modelo);
    QFETCH(int, ope);
    QFETCH(QStringList, formato);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, filas);
    banco->Escribir("entrada", bytes);
    QCOMPARE(Importar(QStringList{banco->Ruta("entrada")} + formato, modelo, ope), int(HECHO));
    QCOMPARE(texto, QString("5\n"));
    QCOMPARE(mensajes, QString("Importación desde Fichero Bruto Finalizada\n"));
    QCOMPARE(banco->Filas("5"), filas);
    QCOMPARE(banco->Columna("SELECT NFichero FROM Sesiones WHERE ID = 5"), QStringList{"Vuelta"});
    QCOMPARE(banco->Columna("SELECT MaqDes FROM Sesiones WHERE ID = 5"), QStringList{modelo});
}

void TestOrdenesBrutos::importar_varios()
{
    banco->Escribir("a", "+P\r\nh1\r\n");
    banco->Escribir("b", "+Q\r\nh2\r\n");
    QCOMPARE(Importar({banco->Ruta("a"), banco->Ruta("no"), banco->Ruta("b")}, "KRT300-1", 0),
             int(RECHAZADO));
    QCOMPARE(texto, QString("5\n6\n"));
    QVERIFY(mensajes.contains("El Fichero especificado no existe: " + banco->Ruta("no")));
    QCOMPARE(banco->Filas("6"), QStringList{"Q|h2|"});
}

void TestOrdenesBrutos::importar_otra_familia_pide_permiso()
{
    banco->Escribir("a", "STN E,1\r\nSD 1,2,3\r\n");
    QCOMPARE(Importar({banco->Ruta("a")}, "KRT300-1", 0), int(RECHAZADO));
    QVERIFY(mensajes.contains("El fichero parece de un KRT800 y no de un KRT300."));
    QCOMPARE(texto, QString());
    QCOMPARE(banco->Columna("SELECT ID FROM Sesiones").size(), 4);
    QCOMPARE(Importar({banco->Ruta("a")}, "KRT300-1", 0, true), int(HECHO));
    QCOMPARE(texto, QString("5\n"));
}

void TestOrdenesBrutos::importar_lo_que_no_esta()
{
    banco->Escribir("vacio", "");
    QCOMPARE(Importar({banco->Ruta("vacio")}, "KRT300-1", 0), int(RECHAZADO));
    QCOMPARE(Importar({banco->Ruta("vacio")}, "OTRO", 0), int(RECHAZADO));
    QCOMPARE(Importar({banco->Ruta("vacio")}, "KRT300-1", 7), int(RECHAZADO));
    QVERIFY(mensajes.contains("no ofrece la operación 7"));
}

void TestOrdenesBrutos::importar_lo_que_no_cabe()
{
    banco->Escribir("a", "SD 1,2,3\r\nSD 1,2," + QByteArray(300, '3') + "\r\n");
    QCOMPARE(Importar({banco->Ruta("a")}, "KRT800-1", 0), int(RECHAZADO));
    QVERIFY(mensajes.contains("(3163) Línea 2: "));
    QCOMPARE(texto, QString("5\n"));
    QCOMPARE(banco->Filas("5"), QStringList{});
}

PRUEBA(TestOrdenesBrutos)
#include "TestOrdenesBrutos.moc"
