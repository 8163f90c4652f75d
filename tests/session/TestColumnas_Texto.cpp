#include "session/Columnas_Texto.h"
#include "tests/apoyo/Prueba.h"

class TestColumnas_Texto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_columnas_se_igualan_por_la_izquierda();
    void menos_uno_deja_la_ultima_columna_y_fila();
    void las_filas_vacias_se_van();
    void sin_contenido_o_sin_huecos_nada_cambia();
};

static const Columnas_Texto TABLA = {{"a", "", "ccc"}, {"", "", "d"}};

void TestColumnas_Texto::las_columnas_se_igualan_por_la_izquierda()
{
    Columnas_Texto t = TABLA;
    Igualar_Ancho(t);
    QCOMPARE(t, (Columnas_Texto{{"  a", "   ", "ccc"}, {" ", " ", "d"}}));
}

void TestColumnas_Texto::menos_uno_deja_la_ultima_columna_y_fila()
{
    Columnas_Texto t = {{"a", "bb", "ccc"}, {"", "", "d"}};
    Igualar_Ancho_Menos_Uno(t);
    QCOMPARE(t, (Columnas_Texto{{" a", "bb", "ccc"}, {"", "", "d"}}));
    Columnas_Texto vacia = {{}, {}};
    Igualar_Ancho_Menos_Uno(vacia);
    QCOMPARE(vacia, (Columnas_Texto{{}, {}}));
}

void TestColumnas_Texto::las_filas_vacias_se_van()
{
    Columnas_Texto t = {{"a", "", "c", "", ""}, {"", "", "", "d", ""}};
    Quitar_Vacios(t);
    QCOMPARE(t, (Columnas_Texto{{"a", "c", ""}, {"", "", "d"}}));
}

void TestColumnas_Texto::sin_contenido_o_sin_huecos_nada_cambia()
{
    const Columnas_Texto vacia = {{"", ""}, {"", ""}}, llena = {{"a", ""}, {"", "b"}};
    for (Columnas_Texto t : {vacia, llena, Columnas_Texto{}, Columnas_Texto{{}}}) {
        const Columnas_Texto antes = t;
        Quitar_Vacios(t);
        QCOMPARE(t, antes);
    }
}

PRUEBA(TestColumnas_Texto)
#include "TestColumnas_Texto.moc"
