#include "session/Tablas.h"
#include "tests/apoyo/Prueba.h"

class TestTablas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_columnas_se_igualan_por_la_izquierda();
    void menos_uno_deja_la_ultima_columna_y_fila();
    void las_filas_vacias_se_van();
    void sin_contenido_o_sin_huecos_nada_cambia();
};

static const Tabla_Textos TABLA = {{"a", "", "ccc"}, {"", "", "d"}};

void TestTablas::las_columnas_se_igualan_por_la_izquierda()
{
    Tabla_Textos t = TABLA;
    Igualar_Ancho(t);
    QCOMPARE(t, (Tabla_Textos{{"  a", "   ", "ccc"}, {" ", " ", "d"}}));
}

void TestTablas::menos_uno_deja_la_ultima_columna_y_fila()
{
    Tabla_Textos t = {{"a", "bb", "ccc"}, {"", "", "d"}};
    Igualar_Ancho_Menos_Uno(t);
    QCOMPARE(t, (Tabla_Textos{{" a", "bb", "ccc"}, {"", "", "d"}}));
    Tabla_Textos vacia = {{}, {}};
    Igualar_Ancho_Menos_Uno(vacia);
    QCOMPARE(vacia, (Tabla_Textos{{}, {}}));
}

void TestTablas::las_filas_vacias_se_van()
{
    Tabla_Textos t = {{"a", "", "c", "", ""}, {"", "", "", "d", ""}};
    Quitar_Vacios(t);
    QCOMPARE(t, (Tabla_Textos{{"a", "c", ""}, {"", "", "d"}}));
}

void TestTablas::sin_contenido_o_sin_huecos_nada_cambia()
{
    const Tabla_Textos vacia = {{"", ""}, {"", ""}}, llena = {{"a", ""}, {"", "b"}};
    for (Tabla_Textos t : {vacia, llena, Tabla_Textos{}, Tabla_Textos{{}}}) {
        const Tabla_Textos antes = t;
        Quitar_Vacios(t);
        QCOMPARE(t, antes);
    }
}

PRUEBA(TestTablas)
#include "TestTablas.moc"
