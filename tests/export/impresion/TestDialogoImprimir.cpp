#include "export/impresion/Dialogo_Imprimir.h"
#include "formats/ModFormatos.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestDialogoImprimir : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void las_filas_son_las_de_la_exportacion();
    void los_datos_del_trabajo_entran_en_la_cabeza();
    void las_cabeceras_se_editan();
    void con_impresora_va_a_ella_data();
    void con_impresora_va_a_ella();
    void sin_impresora_se_ofrece_un_pdf();
    void lo_que_falla_se_dice();
    void guardar_segun_la_extension();

private:
    Dialogo_Imprimir Hacer() { return Dialogo_Imprimir({1, "KRT300", 1, "NXYZ"}, {}, callado); }
    Peticiones_Impresion& Pide() { return Peticiones_De_Impresion(); }

    Avance_Exportar callado;
    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestDialogoImprimir::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Pide() = {};
    Poner_Instrumentos(*base);
    Clave_Estacion = "KRT300";
    Poner_Sesion(*base, 1, "KRT300", 1,
                 {{"P1", " x+001234567"}, {"P1", " y-000000500"}, {"P2", " x+000001000"}});
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y"});
    Incluir_Cabeceras = true;
}

void TestDialogoImprimir::cleanup()
{
    Pide() = {};
    interfaz.reset();
    base.reset();
}

void TestDialogoImprimir::las_filas_son_las_de_la_exportacion()
{
    const Dialogo_Imprimir dialogo = Hacer();
    QVERIFY(dialogo.parametros.cabeceras);
    const auto parrafos = Leer_RTF(dialogo.Renderizar());
    QCOMPARE(parrafos.size(), 4);
    QCOMPARE(parrafos[2].Texto(), QString("P1    -0.500       1234.567    "));
    QCOMPARE(parrafos[3].Texto().left(2), QString("P2"));
    // The lists are its own: another export's fields change nothing.
    Poner_Campos_Exportar({"Punto"});
    QCOMPARE(Leer_RTF(dialogo.Renderizar()), parrafos);
}

void TestDialogoImprimir::los_datos_del_trabajo_entran_en_la_cabeza()
{
    Dialogo_Imprimir dialogo = Hacer();
    const QByteArray antes = dialogo.Renderizar();
    QVERIFY(!dialogo.Pedir_Trabajo());
    QCOMPARE(dialogo.Renderizar(), antes);
    QList<Datos_Trabajo> propuestos;
    Pide().Pedir_Trabajo = [&](const Datos_Trabajo& d) {
        propuestos << d;
        return Datos_Trabajo{"Río", "Ana"};
    };
    QVERIFY(dialogo.Pedir_Trabajo() && dialogo.Pedir_Trabajo());
    QVERIFY(dialogo.Renderizar().contains("Trabajo:  R\\'edo   Nombre:  Ana   \r\n"));
    QCOMPARE(propuestos, (QList<Datos_Trabajo>{{}, {"Río", "Ana"}}));
}

void TestDialogoImprimir::las_cabeceras_se_editan()
{
    Dialogo_Imprimir dialogo = Hacer();
    QVERIFY(!dialogo.Editar_Columnas());
    QCOMPARE(dialogo.Columnas(), (QStringList{"Punto", "Coordenada X", "Coordenada Y"}));
    Pide().Editar_Columnas = [](QStringList titulos) {
        titulos[1] = "Este";
        return std::optional(titulos);
    };
    QVERIFY(dialogo.Editar_Columnas());
    QCOMPARE(dialogo.Columnas()[1], QString("Este"));
    QVERIFY(dialogo.Renderizar().contains("Este\\plain"));
}

void TestDialogoImprimir::con_impresora_va_a_ella_data()
{
    QTest::addColumn<int>("anchura");
    QTest::addColumn<bool>("apaisado");
    QTest::newRow("110") << 110 << false;
    QTest::newRow("111") << 111 << true;
}

void TestDialogoImprimir::con_impresora_va_a_ella()
{
    QFETCH(int, anchura);
    Dialogo_Imprimir dialogo = Hacer();
    dialogo.parametros.anchura = anchura;
    QList<Impreso> impresos;
    Pide().Hay_Impresora = [] { return true; };
    Pide().Imprimir = [&](const Impreso& i) { impresos << i; };
    QVERIFY(dialogo.Imprimir());
    QCOMPARE(impresos.size(), 1);
    QTEST(impresos[0].apaisado, "apaisado");
    // The printer gets what the preview shows.
    const QList<Pagina> vistas = dialogo.Paginas(dialogo.Renderizar());
    QCOMPARE(impresos[0].paginas.size(), vistas.size());
    for (qsizetype r = 0; r < vistas[0].size(); ++r)
        QCOMPARE(impresos[0].paginas[0][r].tramos, vistas[0][r].tramos);
}

void TestDialogoImprimir::sin_impresora_se_ofrece_un_pdf()
{
    base->Escribir("hay.pdf", "x");
    const Dialogo_Imprimir dialogo = Hacer();
    QStringList guardados;
    Pide().Guardar_PDF = [&](const Impreso&, const QString& f) { guardados << f; };
    interfaz->ficheros = {std::nullopt, Fichero_Elegido{base->Ruta("hay.pdf")},
                          Fichero_Elegido{base->Ruta("a.pdf")}};
    interfaz->respuestas = {false};
    QVERIFY(!dialogo.Imprimir());
    QVERIFY(guardados.isEmpty());
    QVERIFY(dialogo.Imprimir());
    QCOMPARE(guardados, QStringList{base->Ruta("a.pdf")});
    QVERIFY(interfaz->peticiones[0].filtro.contains("*.pdf") && interfaz->peticiones[0].guardar);
    interfaz->avisos.clear();
}

void TestDialogoImprimir::lo_que_falla_se_dice()
{
    Dialogo_Imprimir dialogo = Hacer();
    Pide().Hay_Impresora = [] { return true; };
    Pide().Imprimir = [](const Impreso&) { throw Error_Ejecucion(482); };
    QVERIFY(!dialogo.Imprimir());
    QVERIFY(interfaz->avisos[0].texto.contains("(482) Error de impresora"));
    dialogo.parametros.anchura = 0;
    QVERIFY(!dialogo.Imprimir());
    QVERIFY(interfaz->avisos[1].texto.contains("La anchura de página debe ser mayor que cero"));
    QVERIFY_ERROR(5, dialogo.Guardar(base->Ruta("a.rtf")));
    QVERIFY(!QFile::exists(base->Ruta("a.rtf")));
    interfaz->avisos.clear();
}

void TestDialogoImprimir::guardar_segun_la_extension()
{
    const Dialogo_Imprimir dialogo = Hacer();
    QStringList guardados;
    Pide().Guardar_PDF = [&](const Impreso&, const QString& f) { guardados << f; };
    dialogo.Guardar(base->Ruta("a.RTF"));
    QCOMPARE(base->Leer("a.RTF"), dialogo.Renderizar());
    dialogo.Guardar(base->Ruta("a.PDF"));
    QCOMPARE(guardados, QStringList{base->Ruta("a.PDF")});
    QVERIFY_ERROR(70, dialogo.Guardar(base->Ruta("EstTotal.ini")));
}

PRUEBA(TestDialogoImprimir)
#include "TestDialogoImprimir.moc"
