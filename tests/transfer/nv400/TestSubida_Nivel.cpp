#include "core/Ficheros.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/nv400/Subida_Nivel.h"

class TestSubida_Nivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void genera_el_fichero();
    void puntos_invalidos_y_fallos();
    void sin_nombre_de_salida_calla();
    void lo_que_no_se_puede_copiar();

private:
    static Fichero_Elegido Muestra(const QString& nombre)
    {
        return {DATOS_PRUEBA "/conversions/" + nombre, 1};
    }
    Base_De_Prueba base;
};

void TestSubida_Nivel::genera_el_fichero()
{
    Interfaz_Guion guion;
    guion.ficheros = {std::nullopt, Muestra("nivel.asc"), Fichero_Elegido{base.Ruta("n.x"), 1}};
    Subir_NV400(1);
    QCOMPARE(guion.peticiones.size(), 3);
    QCOMPARE(guion.peticiones[0].titulo, QString("Datos de coordenada"));
    QCOMPARE(guion.peticiones[0].filtro,
             QString("ASCII (*.asc)|*.asc|Todos los archivos (*.*)|*.*"));
    QCOMPARE(guion.peticiones[0].extension, QString("asc"));
    QCOMPARE(guion.peticiones[2].titulo, QString("Guardar como ..."));
    QCOMPARE(guion.peticiones[2].filtro, QString("Formato Miraldos (*.x)|*.x"));
    QVERIFY(guion.peticiones[2].guardar);
    QCOMPARE(guion.Textos(), QStringList{"Fichero " + base.Ruta("n.x") + " generado."});
    QCOMPARE(base.Leer("n.x"), Ficheros::Leer(Muestra("nivel.x").nombre));
    QCOMPARE(base.Leer("miraldos.$$$"), base.Leer("n.x"));
}

void TestSubida_Nivel::puntos_invalidos_y_fallos()
{
    Interfaz_Guion guion;
    guion.ficheros = {Muestra("nivelmal.asc")};
    Subir_NV400(1);
    QCOMPARE(guion.avisos.size(), 2);
    QCOMPARE(guion.avisos[0].texto, QString("Fichero de puntos inválidos"));
    QVERIFY(guion.avisos[1].texto.contains("Línea 5: "));
    guion.ficheros = {Fichero_Elegido{base.Ruta("no.asc"), 1}};
    Subir_NV400(1);
    QCOMPARE(guion.avisos[2].texto, QString("La carga de Datos no se pudo realizar"));
    QVERIFY(guion.ficheros.empty());
}

void TestSubida_Nivel::sin_nombre_de_salida_calla()
{
    Interfaz_Guion guion;
    guion.ficheros = {Muestra("nivel.asc"), std::nullopt};
    Subir_NV400(1);
    QVERIFY(guion.avisos.isEmpty());
}

void TestSubida_Nivel::lo_que_no_se_puede_copiar()
{
    Interfaz_Guion guion;
    guion.ficheros = {Muestra("nivel.asc"), Fichero_Elegido{base.Ruta("no/hay/n.x"), 1}};
    Subir_NV400(1);
    QCOMPARE(guion.avisos.size(), 1);
    QVERIFY(guion.avisos[0].texto.startsWith("La carga de Datos no se pudo realizar\r(76) "));
}

PRUEBA(TestSubida_Nivel)
#include "TestSubida_Nivel.moc"
