#include "app/ventanas/Ventana_Convert.h"
#include "export/ui/Panel_Plano.h"
#include "export/ui/Visor_Plano.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QAction>

class TestConvert : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void una_lista_se_abre_y_se_guarda_como_dibujo();
    void lo_que_no_se_abre_se_dice();
};

void TestConvert::una_lista_se_abre_y_se_guarda_como_dibujo()
{
    const Base_De_Prueba base;
    Interfaz_Guion interfaz;
    base.Escribir("ficheros/mis puntos.txt",
                  "Punto,Coordenada X,Coordenada Y,Coordenada Z\r\nP1,1,2,3\r\nP2,4,5,6\r\n");
    Ventana_Convert ventana;
    ventana.show();
    QVERIFY(!Hijo<QAction>(ventana, "GuardarDXF").isEnabled());
    interfaz.ficheros = {std::nullopt, Fichero_Elegido{base.Ruta("ficheros/mis puntos.txt")},
                         Fichero_Elegido{base.Ruta("ficheros/b.dxf")}};
    Hijo<QAction>(ventana, "Abrir").trigger();
    Hijo<QAction>(ventana, "Abrir").trigger();
    QCOMPARE(ventana.windowTitle(), QString("mis puntos.txt - Convert"));
    QCOMPARE(Hijo<Visor_Plano>(ventana, "Visor").Mostrado().puntos.size(), std::size_t(2));
    Hijo<QAction>(ventana, "GuardarDXF").trigger();
    QCOMPARE(interfaz.Textos(), QStringList{"Sesión Exportada"});
    interfaz.avisos.clear();
    QVERIFY(ventana.Abrir(base.Ruta("ficheros/b.dxf")));
    QCOMPARE(Hijo<Visor_Plano>(ventana, "Visor").Mostrado().puntos.size(), std::size_t(4));
    QVERIFY(!Hijo<QAction>(ventana, "GuardarDXF").isEnabled());
}

void TestConvert::lo_que_no_se_abre_se_dice()
{
    const Base_De_Prueba base;
    Interfaz_Guion interfaz;
    base.Escribir("bien.dxf",
                  "0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\nA\n10\n1\n20\n2\n0\nENDSEC\n0\nEOF\n");
    base.Escribir("malo.dxf", "0\nSECTION\n2\nENTITIES\n0\nPOINT\n10\nx\n");
    Ventana_Convert ventana;
    QVERIFY(ventana.Abrir(base.Ruta("bien.dxf")));
    QVERIFY(!ventana.Abrir(base.Ruta("malo.dxf")));
    QVERIFY(!ventana.Abrir(base.Ruta("falta.dxf")));
    const QStringList textos = interfaz.Textos();
    interfaz.avisos.clear();
    QCOMPARE(textos.size(), 2);
    QVERIFY2(textos[0].contains("(13) Línea 8: no es un número: x") || textos[0].contains("(62)"),
             qPrintable(textos[0]));
    QVERIFY(textos[1].contains("(53)"));
    // What was shown stays.
    QCOMPARE(Hijo<Visor_Plano>(ventana, "Visor").Mostrado().puntos.size(), std::size_t(1));
}

PRUEBA(TestConvert)
#include "TestConvert.moc"
