#include "app/cli/Ordenes.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

#include <QBuffer>

// The orders over the code libraries, run in this process on an installation of the tests' own.
class TestOrdenesLibrerias : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void librerias_lista_las_dos_series();
    void ver_cada_serie();
    void guardar_exportar_y_volver();
    void guardar_pregunta_antes_de_reemplazar();
    void exportar_pregunta_antes_de_pisar();
    void lo_malo_se_dice_y_no_cambia_nada_data();
    void lo_malo_se_dice_y_no_cambia_nada();
    void borrar_con_permiso();
    void mal_uso_data();
    void mal_uso();

private:
    int Correr(const QStringList& palabras);
    QStringList Lineas() const
    {
        return QString::fromUtf8(salida).split(u'\n', Qt::SkipEmptyParts);
    }
    // The order closes the database when it ends.
    void Volver_A_Abrir() const { Base_Datos = Base::Abrir(sala->Ruta("MDB/EstTotal.mdb")); }

    std::unique_ptr<Sala_Librerias> sala;
    QByteArray salida, errores;
};

void TestOrdenesLibrerias::init()
{
    sala = std::make_unique<Sala_Librerias>();
    sala->Fila("KRT", {{"Nombre", "KRT300-1"}, {"Clave", "KRT300"}, {"VelPuerto", "9600"}});
    sala->Escribir("EstTotal.ini", "KRTNOM=KRT300-1\r\nKRT=KRT300\r\nFIJO=True\r\n");
}

void TestOrdenesLibrerias::cleanup()
{
    sala.reset();
}

int TestOrdenesLibrerias::Correr(const QStringList& palabras)
{
    QBuffer s, e;
    s.open(QIODevice::WriteOnly);
    e.open(QIODevice::WriteOnly);
    Contexto c;
    c.dir = Ruta_Aplicacion;
    c.salida = &s;
    c.errores = &e;
    const int estado = Ejecutar_Orden(c, palabras);
    salida = s.data();
    errores = e.data();
    Volver_A_Abrir();
    return estado;
}

void TestOrdenesLibrerias::librerias_lista_las_dos_series()
{
    const QStringList titulos = {"Serie\tCódigo\tDescripción\tNº Códigos"};
    const QStringList a = {"A\tGEN\tDe GEN\t3", "A\tVACIA\tDe VACIA\t0"};
    const QStringList b = {"B\tCAR\tObra lineal\t2", "B\tNADA\tSin códigos\t0"};
    QCOMPARE(Correr({"librerias"}), int(HECHO));
    QCOMPARE(Lineas(), titulos + a + b);
    QCOMPARE(Correr({"librerias", "--serie", "A"}), int(HECHO));
    QCOMPARE(Lineas(), titulos + a);
    QCOMPARE(Correr({"librerias", "--serie=B"}), int(HECHO));
    QCOMPARE(Lineas(), titulos + b);
    QVERIFY(errores.isEmpty());
}

void TestOrdenesLibrerias::ver_cada_serie()
{
    QCOMPARE(Correr({"libreria-ver", "GEN", "--serie", "A"}), int(HECHO));
    QCOMPARE(Lineas(), (QStringList{"Número\tCódigo", "1\tARBOL", "2\tCASA", "3\tMURO"}));
    QCOMPARE(Correr({"libreria-ver", "CAR", "--serie", "B"}), int(HECHO));
    QCOMPARE(Lineas(), (QStringList{"Secuencia\tCódigo\tEntidad\tCapa", "1\tEJE\t2\tEJES",
                                    "2\tBORDE\t1\tCALZADA"}));
    QCOMPARE(Correr({"libreria-ver", "NADA", "--serie", "B"}), int(HECHO));
    QCOMPARE(Lineas().size(), 1);
    QCOMPARE(Correr({"libreria-ver", "CAR", "--serie", "A"}), int(RECHAZADO));
    QVERIFY(errores.contains("No existe la librería CAR de la serie A"));
}

void TestOrdenesLibrerias::guardar_exportar_y_volver()
{
    sala->Escribir("a.txt", "001PIE\r\n002\r\n003EJE\r\n");
    QCOMPARE(Correr({"libreria-guardar", "OBRA", "--serie", "A", "--descripcion", "La obra",
                     "--fichero", sala->Ruta("a.txt")}),
             int(HECHO));
    QCOMPARE(sala->Codigos(Serie::A, "OBRA"), (QStringList{"PIE", "", "EJE"}));
    QCOMPARE(
        Correr({"libreria-exportar", "OBRA", "--serie", "A", "--salida", sala->Ruta("a2.txt")}),
        int(HECHO));
    QCOMPARE(sala->Leer("a2.txt"), sala->Leer("a.txt"));
    QCOMPARE(Correr({"libreria-exportar", "CAR", "--serie", "B", "--salida", sala->Ruta("b.txt")}),
             int(HECHO));
    QCOMPARE(Correr({"libreria-guardar", "CAR2", "--serie", "B", "--descripcion", "Copia",
                     "--fichero", sala->Ruta("b.txt")}),
             int(HECHO));
    QCOMPARE(sala->Codigos(Serie::B, "CAR2"), sala->Codigos(Serie::B, "CAR"));
    QVERIFY2(errores.isEmpty(), errores.constData());
    QVERIFY(salida.isEmpty());
}

void TestOrdenesLibrerias::guardar_pregunta_antes_de_reemplazar()
{
    sala->Escribir("b.txt", "X,1,C\r\n");
    QStringList orden = {"libreria-guardar", "CAR",  "--serie",   "B",
                         "--descripcion",    "Otra", "--fichero", sala->Ruta("b.txt")};
    QCOMPARE(Correr(orden), int(RECHAZADO));
    QVERIFY(errores.contains("ya existe"));
    QCOMPARE(sala->Codigos(Serie::B, "CAR").size(), 2);
    QCOMPARE(Correr(orden << "--si"), int(HECHO));
    QCOMPARE(sala->Codigos(Serie::B, "CAR"), QStringList{"1:X,1,C"});
}

void TestOrdenesLibrerias::exportar_pregunta_antes_de_pisar()
{
    sala->Escribir("b.txt", "lo de antes");
    QStringList orden = {"libreria-exportar", "CAR", "--serie", "B", "--salida",
                         sala->Ruta("b.txt")};
    QCOMPARE(Correr(orden), int(RECHAZADO));
    QCOMPARE(sala->Leer("b.txt"), QByteArray("lo de antes"));
    QCOMPARE(Correr(orden << "--si"), int(HECHO));
    QCOMPARE(sala->Leer("b.txt"), QByteArray("EJE,2,EJES\r\nBORDE,1,CALZADA\r\n"));
    QCOMPARE(Correr({"libreria-exportar", "CAR", "--serie", "B", "--si", "--salida", Fichero_MDB}),
             int(RECHAZADO));
    QVERIFY(errores.contains("es del propio programa"));
    QCOMPARE(sala->Claves(Serie::B).size(), 2);
}

void TestOrdenesLibrerias::lo_malo_se_dice_y_no_cambia_nada_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("dice");
    QTest::newRow("vacío") << QByteArray() << QByteArray("El Fichero especificado no existe");
    QTest::newRow("sin códigos") << QByteArray("001\r\n")
                                 << QByteArray("El fichero no contiene códigos");
    QTest::newRow("dos líneas")
        << QByteArray("001A\r\nXX\r\n003\xD1\r\n")
        << QByteArray("Línea 2: 'XX' no contiene un código de tipo numérico (XX)\n"
                      "Línea 3: '003Ñ' El carácter 'Ñ' no es aceptado por el aparato");
    QTest::newRow("demasiados") << QByteArray("001A\r\n").repeated(51)
                                << QByteArray("Hay 51 códigos");
}

void TestOrdenesLibrerias::lo_malo_se_dice_y_no_cambia_nada()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, dice);
    sala->Escribir("a.txt", bytes);
    QCOMPARE(Correr({"libreria-guardar", "GEN", "--serie", "A", "--descripcion", "x", "--fichero",
                     sala->Ruta("a.txt"), "--si"}),
             int(RECHAZADO));
    QVERIFY2(errores.contains(dice), errores.constData());
    QVERIFY(salida.isEmpty());
    QCOMPARE(sala->Codigos(Serie::A, "GEN"), (QStringList{"ARBOL", "CASA", "MURO"}));
}

void TestOrdenesLibrerias::borrar_con_permiso()
{
    QCOMPARE(Correr({"libreria-borrar", "CAR", "--serie", "B"}), int(RECHAZADO));
    QCOMPARE(sala->Claves(Serie::B).size(), 2);
    QCOMPARE(Correr({"libreria-borrar", "CAR", "--serie", "B", "--si"}), int(HECHO));
    QCOMPARE(sala->Claves(Serie::B), QStringList{"NADA"});
    QVERIFY(sala->Columna("SELECT CODIGO FROM LIB800_2").isEmpty());
    QCOMPARE(Correr({"libreria-borrar", "CAR", "--serie", "B", "--si"}), int(RECHAZADO));
    QVERIFY(errores.contains("No existe la librería CAR"));
}

void TestOrdenesLibrerias::mal_uso_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::newRow("otra serie") << QStringList{"librerias", "--serie", "C"};
    QTest::newRow("minúscula") << QStringList{"librerias", "--serie", "a"};
    QTest::newRow("palabra de más") << QStringList{"librerias", "GEN"};
    QTest::newRow("sin serie") << QStringList{"libreria-ver", "GEN"};
    QTest::newRow("sin librería") << QStringList{"libreria-ver", "--serie", "A"};
    QTest::newRow("sin fichero") << QStringList{"libreria-guardar", "X", "--serie", "A",
                                                "--descripcion",    "d"};
    QTest::newRow("sin descripción")
        << QStringList{"libreria-guardar", "X", "--serie", "A", "--fichero", "f"};
    QTest::newRow("sin salida") << QStringList{"libreria-exportar", "GEN", "--serie", "A"};
    QTest::newRow("borrar sin serie") << QStringList{"libreria-borrar", "GEN"};
}

void TestOrdenesLibrerias::mal_uso()
{
    QFETCH(QStringList, palabras);
    QCOMPARE(Correr(palabras), int(MAL_USO));
    QVERIFY(errores.contains("Uso: miraldos-cli " + palabras[0].toUtf8()));
    QVERIFY(salida.isEmpty());
}

PRUEBA(TestOrdenesLibrerias)
#include "TestOrdenesLibrerias.moc"
