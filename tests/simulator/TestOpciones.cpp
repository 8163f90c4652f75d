#include "simulator/Opciones.h"
#include "tests/apoyo/Prueba.h"

using namespace simulador;

class TestOpciones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lee_las_opciones();
    void dice_lo_que_esta_mal_data();
    void dice_lo_que_esta_mal();
    void la_ayuda_nombra_todo();
};

void TestOpciones::lee_las_opciones()
{
    Opciones o;
    QCOMPARE(Leer_Opciones({"KRT800", "--enlace", "com1", "--enviar=c.txt", "--guardar", "g.txt",
                            "--retardo", "0", "--baudios", "1200", "--una-vez", "--seguir",
                            "--fallo", "suma:3x2", "--fallo", "corte:500", "--fallo=trozos:4"},
                           o),
             QString());
    QCOMPARE(o.aparato, QString("KRT800"));
    QCOMPARE(o.enlace, QString("com1"));
    QCOMPARE(o.enviar, QString("c.txt"));
    QCOMPARE(o.guardar, QString("g.txt"));
    QCOMPARE(o.retardo, 0);
    QCOMPARE(o.baudios, 1200);
    QVERIFY(o.una_vez && o.seguir && !o.fin_linea && !o.crudo);
    QCOMPARE(o.fallos.sumas.value(3), 2);
    QCOMPARE(o.fallos.corte.value_or(-1), 500);
    QCOMPARE(o.fallos.trozo, 4);
}

void TestOpciones::dice_lo_que_esta_mal_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<QString>("motivo");
    const QStringList bien{"KRT300", "--enlace", "c", "--enviar", "f"};
    QTest::newRow("nada") << QStringList() << "falta el aparato";
    QTest::newRow("aparato") << QStringList{"KRT400"} << "\"KRT400\" no es un aparato";
    QTest::newRow("dos aparatos") << bien + QStringList{"PX7"} << "\"PX7\" no es un aparato";
    QTest::newRow("sin enlace") << QStringList{"KRT300", "--enviar", "f"} << "falta --enlace";
    QTest::newRow("sin trabajo") << QStringList{"KRT300", "--enlace", "c"}
                                 << "falta --enviar o --guardar";
    QTest::newRow("sin valor") << QStringList{"KRT300", "--enlace"} << "--enlace necesita un valor";
    QTest::newRow("valor vacío") << QStringList{"KRT300", "--enlace="} << "--enlace: está vacío";
    QTest::newRow("desconocida") << bien + QStringList{"--prisa"} << "no hay una opción --prisa";
    QTest::newRow("letras") << bien + QStringList{"--baudios", "mil"}
                            << "--baudios: debe ser un número desde 1";
    QTest::newRow("cero") << bien + QStringList{"--bloque", "0"}
                          << "--bloque: debe ser un número desde 1";
    QTest::newRow("valor de más") << bien + QStringList{"--una-vez=si"}
                                  << "--una-vez no lleva valor";
    QTest::newRow("fallo") << bien + QStringList{"--fallo", "rayo:1"}
                           << "no hay un fallo \"rayo:1\"";
    QTest::newRow("fallo sin número")
        << bien + QStringList{"--fallo", "suma"} << "no hay un fallo \"suma\"";
    QTest::newRow("fallo de letras")
        << bien + QStringList{"--fallo", "suma:x"} << "no tiene la forma suma:N[xK]";
    QTest::newRow("fallo cero") << bien + QStringList{"--fallo", "suma:0"}
                                << "no tiene la forma suma:N[xK]";
    QTest::newRow("fallo repetido")
        << bien + QStringList{"--fallo", "fin:1x2"} << "no tiene la forma fin:N";
}

void TestOpciones::dice_lo_que_esta_mal()
{
    QFETCH(QStringList, palabras);
    QFETCH(QString, motivo);
    Opciones o;
    const QString dicho = Leer_Opciones(palabras, o);
    QVERIFY2(dicho.contains(motivo), qPrintable(dicho));
}

void TestOpciones::la_ayuda_nombra_todo()
{
    Opciones o;
    QCOMPARE(Leer_Opciones({"--ayuda"}, o), QString());
    QVERIFY(o.ayuda);
    for (const char* palabra :
         {"--enlace", "--enviar", "--guardar", "--fallo", "suma:N[xK]", "rechazo:N[xK]",
          "silencio:N", "fin:N", "eot:N", "ruido:N", "corte:N", "trozos:N", "--baudios"})
        QVERIFY2(Texto_Ayuda().contains(QLatin1String(palabra)), palabra);
}

PRUEBA(TestOpciones)
#include "TestOpciones.moc"
