#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"
#include "export/dxf/Lista_Puntos.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

namespace {

struct Respuesta {
    std::optional<QChar> separador;
    int veces = 0;
};

Lista_Puntos Leer(const QString& texto, const QStringList& conocidos = {},
                  std::optional<QChar> separador = std::nullopt)
{
    auto lista = Leer_Lista_Puntos(Ansi::A_Bytes(texto), conocidos, separador, [] {
        qFatal("asked for the separator");
        return std::optional<QChar>();
    });
    return *lista;
}

QStringList Fila(const Lista_Puntos& lista, std::size_t fila)
{
    QStringList celdas;
    for (const auto& columna : lista.datos.filas)
        celdas << columna.Celda(fila);
    return celdas;
}

const QStringList CAMPOS = {"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Codigo"};

} // namespace

class TestLista_Puntos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void el_separador_sale_de_los_titulos_data();
    void el_separador_sale_de_los_titulos();
    void entre_blancos_el_nombre_mas_largo_primero();
    void se_pregunta_cuando_ninguno_vale();
    void las_lineas_cortas_se_nombran();
    void lo_que_sobra_es_de_la_ultima();
    void lo_que_no_se_lee_se_dice_data();
    void lo_que_no_se_lee_se_dice();
    void un_texto_en_utf8_tambien_vale();
};

void TestLista_Puntos::el_separador_sale_de_los_titulos_data()
{
    QTest::addColumn<QString>("texto");
    QTest::newRow("tabulación")
        << "Punto\tCoordenada X\tCoordenada Y\tCoordenada Z\tCodigo\r\nP1\t1,5\t2\t3\tA B\r\n";
    QTest::newRow("coma, rellena")
        << "Punto,Coordenada X,Coordenada Y,Coordenada Z,Codigo\r\n\r\n"
           "P1   ,1,5         \r\nP1   ,1.5         ,2           ,3           ,A B   \r\n";
    QTest::newRow("blancos") << "\r\n  \r\nPunto Coordenada X Coordenada Y Coordenada Z Codigo\n"
                                "P1    1,5          2            3            A B\n";
}

void TestLista_Puntos::el_separador_sale_de_los_titulos()
{
    QFETCH(QString, texto);
    const Lista_Puntos lista = Leer(texto);
    QCOMPARE(lista.datos.campos, CAMPOS);
    QCOMPARE(lista.datos.Numero_De_Filas(), std::size_t(1));
    QCOMPARE(Fila(lista, 0).replaceInStrings(",", "."),
             (QStringList{"P1", "1.5", "2", "3", "A B"}));
}

void TestLista_Puntos::entre_blancos_el_nombre_mas_largo_primero()
{
    const Lista_Puntos lista =
        Leer("COORDENADA Z / COTA Altura Prisma raro Coordenada Y PUNTO Coordenada X Código\r\n"
             "3 1.5 r 2 P1 1 A\r\n",
             {"Altura", "Altura Prisma"});
    QCOMPARE(lista.datos.campos, (QStringList{"COORDENADA Z / COTA", "Altura Prisma", "raro",
                                              "Coordenada Y", "PUNTO", "Coordenada X", "Código"}));
    QCOMPARE(Fila(lista, 0), (QStringList{"3", "1.5", "r", "2", "P1", "1", "A"}));
}

void TestLista_Puntos::se_pregunta_cuando_ninguno_vale()
{
    const QByteArray texto = "Punto;Coordenada X;Coordenada Y;Coordenada Z\r\nP1;1;2;3\r\n";
    int veces = 0;
    QVERIFY(!Leer_Lista_Puntos(texto, {}, std::nullopt, [&] {
        ++veces;
        return std::optional<QChar>();
    }));
    const auto lista =
        Leer_Lista_Puntos(texto, {}, std::nullopt, [&] { return std::optional<QChar>(u';'); });
    QCOMPARE(veces, 1);
    QCOMPARE(Fila(*lista, 0), (QStringList{"P1", "1", "2", "3"}));
    QVERIFY_ERROR(3265, Leer_Lista_Puntos(texto, {}, std::nullopt,
                                          [&] { return std::optional<QChar>(u','); }));
}

void TestLista_Puntos::las_lineas_cortas_se_nombran()
{
    const Lista_Puntos lista = Leer("Punto Coordenada X Coordenada Y Coordenada Z Codigo\r\n\r\n"
                                    "P1 1 2 3 A\r\nP2 1 2 3\r\n\r\nP3\r\nP4 x y z B\r\n");
    QCOMPARE(lista.lineas_cortas, (QList<int>{4, 6}));
    QCOMPARE(lista.datos.Numero_De_Filas(), std::size_t(2));
    QCOMPARE(Fila(lista, 1), (QStringList{"P4", "x", "y", "z", "B"}));
    // With a comma an empty cell stands, and is none too few.
    QVERIFY(Leer("Punto,Coordenada X,Coordenada Y,Coordenada Z,Codigo\r\nP1,1,2,3,\r\n")
                .lineas_cortas.isEmpty());
}

void TestLista_Puntos::lo_que_sobra_es_de_la_ultima()
{
    const Lista_Puntos lista =
        Leer("Punto,Coordenada X,Coordenada Y,Coordenada Z,Codigo\r\nP1,1,2,3,A,B\r\n");
    QCOMPARE(Fila(lista, 0).last(), QString("A,B"));
}

void TestLista_Puntos::lo_que_no_se_lee_se_dice_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("numero");
    QTest::newRow("vacío") << QByteArray() << 62;
    QTest::newRow("en blanco") << QByteArray("\r\n  \r\n\t\r\n") << 62;
    QTest::newRow("sin títulos") << QByteArray("P1,1,2,3\r\n") << 3265;
    QTest::newRow("títulos desconocidos") << QByteArray("N,E,N,H\r\nP1,1,2,3\r\n") << 3265;
    QTest::newRow("no es texto") << QByteArray("Punto\0Coordenada X", 18) << 13;
}

void TestLista_Puntos::lo_que_no_se_lee_se_dice()
{
    QFETCH(QByteArray, bytes);
    QTEST(Numero_De_Error([&] { Leer_Lista_Puntos(bytes, {}, u',', {}); }), "numero");
    try {
        Leer_Lista_Puntos("\r\nP1,1,2,3\r\n", {}, u',', {});
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.descripcion, QString("Línea 2: falta el título \"Coordenada X\""));
    }
}

void TestLista_Puntos::un_texto_en_utf8_tambien_vale()
{
    const QString texto =
        "Punto,Coordenada X,Coordenada Y,Coordenada Z,Código\r\nÑ1,1,2,3,Árbol\r\n";
    for (const QByteArray& bytes :
         {texto.toUtf8(), "\xEF\xBB\xBF" + texto.toUtf8(), Ansi::A_Bytes(texto)}) {
        const auto lista = Leer_Lista_Puntos(bytes, {}, u',', {});
        QCOMPARE(Fila(*lista, 0), (QStringList{"Ñ1", "1", "2", "3", "Árbol"}));
        QCOMPARE(lista->datos.campos.first(), QString("Punto"));
    }
}

PRUEBA(TestLista_Puntos)
#include "TestLista_Puntos.moc"
