#include "codes/Textos_Envio.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

class TestTextos_Envio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void salen_siempre_cincuenta_data();
    void salen_siempre_cincuenta();
    void un_caracter_malo_no_deja_nada();
    void un_codigo_largo_es_el_error_5();
    void serie_b_son_lineas();
    void serie_b_no_manda_lo_que_rompe_la_linea();
};

void TestTextos_Envio::salen_siempre_cincuenta_data()
{
    QTest::addColumn<QString>("lista");
    QTest::addColumn<QString>("principio");
    QTest::newRow("vacía") << ""
                           << "";
    QTest::newRow("sólo el primero") << "A"
                                     << "";
    QTest::newRow("uno vacío") << "\6"
                               << "_:001          _:002          ";
    QTest::newRow("tres") << "\6ARBOL\6\6CASA GRAN1"
                          << "_:001ARBOL     _:002          _:003CASA GRAN1_:004 ";
    QTest::newRow("el primero no viaja") << "X\6Y"
                                         << "_:001Y         _:002 ";
    QTest::newRow("cincuenta y uno")
        << QString("\6Z").repeated(51) << "_:001Z         _:002Z         ";
}

void TestTextos_Envio::salen_siempre_cincuenta()
{
    const Sala_Librerias sala;
    QFETCH(QString, lista);
    QFETCH(QString, principio);
    const QString texto = Texto_Libreria(lista);
    QCOMPARE(texto.left(principio.size()), principio);
    QCOMPARE(texto.size(), principio.isEmpty() ? 0 : 50 * 15);
    if (!texto.isEmpty()) QCOMPARE(texto.mid(49 * 15, 5), QString("_:050"));
    QVERIFY(sala.interfaz.avisos.isEmpty());
}

void TestTextos_Envio::un_caracter_malo_no_deja_nada()
{
    Sala_Librerias sala;
    QCOMPARE(Texto_Libreria("\6ARBOL\6SEÑAL\6ÑU"), QString());
    QCOMPARE(sala.interfaz.avisos.size(), 1);
    QCOMPARE(sala.interfaz.avisos[0].texto, QString("El código nº2 (SEÑAL) contiene el carácter "
                                                    "'Ñ' el cual no es aceptado por el aparato"));
    QCOMPARE(sala.interfaz.avisos[0].titulo, QString("Atención"));
    QCOMPARE(sala.interfaz.avisos[0].icono, Icono::Critico);
    // What lies behind the fiftieth is never sent, so it harms nobody.
    sala.interfaz.avisos.clear();
    QCOMPARE(Texto_Libreria(QString("\6Z").repeated(50) + "\6Ñ").size(), 750);
    QVERIFY(sala.interfaz.avisos.isEmpty());
}

void TestTextos_Envio::un_codigo_largo_es_el_error_5()
{
    const Sala_Librerias sala;
    QVERIFY_ERROR(5, Texto_Libreria("\6A\00612345678901"));
    QCOMPARE(Texto_Libreria("\0061234567890").left(15), QString("_:0011234567890"));
}

void TestTextos_Envio::serie_b_son_lineas()
{
    const Sala_Librerias sala;
    QCOMPARE(Codigos_KRT800("CAR"), QString("EJE,2,EJES\r\nBORDE,1,CALZADA\r\n"));
    QCOMPARE(Codigos_KRT800("NADA"), QString());
    QCOMPARE(Codigos_KRT800("NO"), QString());
    // The order is that of the key, whenever a row was added.
    sala.Fila("LIB800_2",
              {{"CodLibreria", "CAR"}, {"SECUENCIA", 0}, {"CODIGO", "CERO"}, {"ENTIDAD", 1}});
    QVERIFY(Codigos_KRT800("CAR").startsWith("CERO,1,\r\nEJE,"));
}

void TestTextos_Envio::serie_b_no_manda_lo_que_rompe_la_linea()
{
    Sala_Librerias sala;
    const Serie_Librerias& b = Librerias_De(Serie::B);
    const Lista_De_Codigos mala = {{"EJE", 2, "EJES"}, {"A,B", 1, ""}};
    Guardar_Codigos(*Base_Datos, b, "CAR", mala);
    QCOMPARE(b.texto_envio("CAR", mala), QString());
    QCOMPARE(sala.Tomar_Avisos(), QStringList{"El código nº2 (A,B): El carácter ',' es reservado"});
}

PRUEBA(TestTextos_Envio)
#include "TestTextos_Envio.moc"
