#include "formats/Campo_Nivel.h"
#include "tests/apoyo/Prueba.h"

class TestCampo_Nivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_marca_va_detras_de_cuarenta();
};

void TestCampo_Nivel::la_marca_va_detras_de_cuarenta()
{
    const QString campo = Marcar_Campo_Nivel("Cota Inicial", Mitad_Nivel::Detalle);
    QCOMPARE(campo, QString("Cota Inicial").leftJustified(40) + "10");
    QCOMPARE(Nombre_Campo_Nivel(campo), QString("Cota Inicial"));
    QCOMPARE(Nombre_Campo_Nivel("Cota"), QString("Cota"));
    const QString largo(50, u'x');
    QCOMPARE(Marcar_Campo_Nivel(largo, Mitad_Nivel::Cabecera), largo.left(40) + "00");
    QCOMPARE(Clave_De(Mitad_Nivel::Cabecera), QString("0"));
    QCOMPARE(Clave_De(Mitad_Nivel::Detalle), QString("1"));
}

PRUEBA(TestCampo_Nivel)
#include "TestCampo_Nivel.moc"
