#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/enlace/Emisor.h"
#include "transfer/krt300/Convertir_Envio.h"

class TestConvertir_Envio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_puntos_y_su_cabecera();
    void un_fichero_en_blanco_no_da_registros();
    void los_malos_no_dan_datos();
    void un_fallo_se_informa();
    void el_progreso_data();
    void el_progreso();
    void cancelar_da_error_data();
    void cancelar_da_error();
    void una_libreria_son_cincuenta_registros_data();
    void una_libreria_son_cincuenta_registros();
    void cada_linea_mala_tiene_su_aviso();
    void cincuenta_y_una_lineas_no_caben();
    void sin_codigos_no_se_envia_data();
    void sin_codigos_no_se_envia();

private:
    QString Convertir(int tipo, const QByteArray& fichero)
    {
        base->Escribir("f.asc", fichero);
        return Convertir_Envio(tipo, ",", base->Ruta("f.asc"), cabecera, datos);
    }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    QString cabecera, datos;
    QStringList avisos;
};

void TestConvertir_Envio::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    cabecera = datos = "de antes";
    avisos.clear();
}

// Each test names the boxes that it expects.
void TestConvertir_Envio::cleanup()
{
    const QStringList quedan = interfaz->Textos();
    const int abiertos = interfaz->procesos_abiertos;
    interfaz.reset();
    base.reset();
    QCOMPARE(quedan, avisos);
    QCOMPARE(abiertos, 0);
}

void TestConvertir_Envio::los_puntos_y_su_cabecera()
{
    QCOMPARE(Convertir(ENVIO_COORDENADAS, "P1,400.456,500.123,10.025,ARB\r\nP2,1234.567,-.5,0\r\n"),
             QString());
    QCOMPARE(cabecera, QString("\2BARCELONA +123400002.01555510-209999S052\3\r\n"));
    QCOMPARE(datos, QString("_+P1        _ x+000500123_ y+000400456_ z+000010025"
                            "_+P2        _ x-000000500_ y+001234567_ z+000000000"));
    QVERIFY(interfaz->procesos.isEmpty());
}

void TestConvertir_Envio::un_fichero_en_blanco_no_da_registros()
{
    QCOMPARE(Convertir(ENVIO_COORDENADAS, "\r\n  \r\n"), QString());
    QCOMPARE(datos, QString());
    QVERIFY(!cabecera.isEmpty());
}

void TestConvertir_Envio::los_malos_no_dan_datos()
{
    QCOMPARE(Convertir(ENVIO_COORDENADAS, "A,1,1,1\nB,1,2,9999999.999\n"),
             QString("B\0051\0052\0059999999,999"));
    QCOMPARE(datos, QString());
}

void TestConvertir_Envio::un_fallo_se_informa()
{
    QCOMPARE(Convertir(ENVIO_COORDENADAS, "A,1,1,z\n"), QString("ERROR"));
    QCOMPARE(datos, QString());
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    avisos << "Se produjo un error al Procesar el Fichero\r(13) No coinciden los tipos (línea 1: "
              "A,1,1,z)";
}

void TestConvertir_Envio::el_progreso_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<bool>("se_ve");
    QTest::newRow("cuatro mil") << 4096 << false;
    QTest::newRow("uno mas") << 4097 << true;
}

void TestConvertir_Envio::el_progreso()
{
    QFETCH(int, bytes);
    QFETCH(bool, se_ve);
    QByteArray fichero = QByteArray("PUNTO,1,2,3\r\n").repeated(1000).left(bytes / 13 * 13);
    fichero = fichero.leftJustified(bytes, '\n');
    qint64 mayor = 0;
    interfaz->al_pasar = [&] { mayor = qMax(mayor, interfaz->proceso_maximo); };
    QCOMPARE(Convertir(ENVIO_COORDENADAS, fichero), QString());
    QCOMPARE(interfaz->procesos, se_ve ? QStringList({"Convirtiendo a formato KRT (1 de 2)...",
                                                      "Preparando paquetes de datos (2 de 2)..."})
                                       : QStringList());
    if (!se_ve) return;
    QCOMPARE(mayor, qint64(bytes));
    QCOMPARE(interfaz->proceso_maximo, qint64(bytes / 13));
}

void TestConvertir_Envio::cancelar_da_error_data()
{
    QTest::addColumn<int>("fase");
    QTest::newRow("leyendo") << 1;
    QTest::newRow("preparando") << 2;
}

void TestConvertir_Envio::cancelar_da_error()
{
    QFETCH(int, fase);
    Proceso_Cancelado = true; // left by an earlier one: it is cleared
    interfaz->al_pasar = [&] {
        if (interfaz->procesos.size() == fase) Proceso_Cancelado = true;
    };
    const QByteArray fichero = QByteArray("PUNTO,1,2,3\r\n").repeated(5000);
    QCOMPARE(Convertir(ENVIO_COORDENADAS, fichero), QString("ERROR"));
    QCOMPARE(interfaz->procesos.size(), fase);
    interfaz->al_pasar = {};
    QCOMPARE(Convertir(ENVIO_COORDENADAS, fichero), QString());
    QCOMPARE(datos.size(), 5000 * 51);
}

void TestConvertir_Envio::una_libreria_son_cincuenta_registros_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("primeros");
    QTest::newRow("corta") << QByteArray("001ARBOL\r\n002FAROLA\r\n")
                           << "_:001ARBOL     _:002FAROLA    ";
    QTest::newRow("numeros sin orden")
        << QByteArray("009ARBOL\r\n003FAROLA\r\n") << "_:001ARBOL     _:002FAROLA    ";
    QTest::newRow("en blanco entre medias")
        << QByteArray("001ARBOL\n\n  \n002FAROLA\n") << "_:001ARBOL     _:002FAROLA    ";
    QTest::newRow("codigo vacio") << QByteArray("001\r\n002FAROLA\r\n")
                                  << "_:001          _:002FAROLA    ";
    QTest::newRow("diez y lo que sobra")
        << QByteArray("001DIEZLETRASMAS\r\n002A B\r\n") << "_:001DIEZLETRAS_:002A B       ";
}

void TestConvertir_Envio::una_libreria_son_cincuenta_registros()
{
    QFETCH(QByteArray, fichero);
    QFETCH(QString, primeros);
    QCOMPARE(Convertir(ENVIO_LIBRERIA, fichero), QString());
    QCOMPARE(datos.size(), 750);
    QCOMPARE(datos.left(30), primeros);
    QCOMPARE(datos.mid(30, 15), QString("_:003          "));
    QCOMPARE(datos.right(15), QString("_:050          "));
    QCOMPARE(cabecera, QString());
}

void TestConvertir_Envio::cada_linea_mala_tiene_su_aviso()
{
    QCOMPARE(Convertir(ENVIO_LIBRERIA, "001ARBOL\r\nxx2FAROLA\r\n003CA\xD1O\r\n004A_B\r\n12\r\n"),
             QString("ERROR"));
    avisos << "El archivo contiene el registro \r'xx2FAROLA'El cual no contiene un código de tipo "
              "numérico\r(xx2)"
           << "El código nº3 (CAÑO) contiene el carácter 'Ñ' que no es aceptado por el aparato"
           << "El código nº4 (A_B): El carácter '_' es reservado";
}

void TestConvertir_Envio::cincuenta_y_una_lineas_no_caben()
{
    QByteArray fichero;
    for (int i = 1; i <= 50; ++i)
        fichero +=
            QByteArray::number(i).rightJustified(3, '0') + "C" + QByteArray::number(i) + "\r\n";
    QCOMPARE(Convertir(ENVIO_LIBRERIA, fichero), QString());
    QVERIFY(datos.endsWith("_:050C50       "));
    QCOMPARE(Convertir(ENVIO_LIBRERIA, fichero + "051OTRO\r\n"), QString("ERROR"));
    QCOMPARE(datos, QString());
    avisos << "Se produjo un error al Procesar el Fichero\r(9) El fichero tiene más de 50 códigos "
              "(línea 51: 051OTRO)";
}

void TestConvertir_Envio::sin_codigos_no_se_envia_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("aviso");
    QTest::newRow("sin un byte") << QByteArray() << "El Fichero especificado no existe";
    QTest::newRow("lineas en blanco") << QByteArray("\r\n\r\n") << "El fichero no contiene códigos";
    QTest::newRow("numeros solos")
        << QByteArray("001\r\n002   \r\n") << "El fichero no contiene códigos";
}

void TestConvertir_Envio::sin_codigos_no_se_envia()
{
    QFETCH(QByteArray, fichero);
    QFETCH(QString, aviso);
    QCOMPARE(Convertir(ENVIO_LIBRERIA, fichero), QString("ERROR"));
    QCOMPARE(datos, QString());
    avisos << aviso;
}

PRUEBA(TestConvertir_Envio)
#include "TestConvertir_Envio.moc"
