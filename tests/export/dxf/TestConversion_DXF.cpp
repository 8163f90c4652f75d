#include "core/Ficheros.h"
#include "export/Dialogo_Exportar.h"
#include "export/dxf/Conversion_DXF.h"
#include "export/dxf/Dialogo_ExportDXF.h"
#include "export/Peticiones_Exportar.h"
#include "formats/ModFormatos.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QDir>

namespace {

class Etiquetas : public Avance_Exportar {
public:
    void Etiqueta(const QString& texto) override { vistas << texto; }
    QStringList vistas;
};

} // namespace

class TestConversion_DXF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void una_sesion_en_dos_pasadas();
    void los_desplazamientos_llegan_al_dibujo();
    void lo_omitido_se_cuenta();
    void un_formato_sin_coordenadas_se_dice();
    void un_fallo_deja_el_fichero_que_habia();
    void no_se_pisa_la_fuente();
    void un_texto_sin_separador_se_pregunta();
    void la_exportacion_le_da_su_fichero();
    void la_lista_pide_sus_ficheros();
    void los_textos_de_las_cajas_data();
    void los_textos_de_las_cajas();

private:
    bool Dibujar(const Origen_Dibujo& origen, Modo_DXF modo = Modo_DXF::Tres_D)
    {
        return Transformar_DXF(origen, modo, {}, avance);
    }
    QStringList Avisos()
    {
        const QStringList textos = interfaz->Textos();
        interfaz->avisos.clear();
        return textos;
    }
    Trabajo_Exportar Trabajo() const { return {1, "KRT300", 1, "NXYZ", base->Ruta("a.dxf")}; }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    Etiquetas avance;
};

void TestConversion_DXF::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    avance.vistas.clear();
    Poner_Instrumentos(*base);
    Clave_Estacion = "KRT300";
    Poner_Sesion(*base, 1, "KRT300", 1,
                 {{"P1", " x+001234567"},
                  {"P1", " y-000000500"},
                  {"P1", " z+000010250"},
                  {"P1", "cARBOL"},
                  {"P2", " x+000001000"},
                  {"P2", " y+000002000"},
                  {"P2", " z+000000000"}});
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"});
}

void TestConversion_DXF::cleanup()
{
    Peticiones_De_Exportar() = {};
    Peticiones_De_Sesion() = {};
    interfaz.reset();
    base.reset();
}

void TestConversion_DXF::una_sesion_en_dos_pasadas()
{
    QVERIFY(Dibujar(Dibujo_De_Sesion(Trabajo())));
    QCOMPARE(avance.vistas,
             (QStringList{"Formateando Datos... (1 de 2)", "Exportando... (2 de 2)", ""}));
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(interfaz->avisos[0].icono, Icono::Informacion);
    QCOMPARE(Avisos(), QStringList{"Sesión Exportada"});
    const QByteArray dibujo = base->Leer("a.dxf");
    QCOMPARE(dibujo.count("POINT"), 2);
    QVERIFY(dibujo.contains(" 10\r\n-0.500\r\n 20\r\n1234.567\r\n 30\r\n10.250\r\n"));
    QVERIFY(dibujo.contains(" 1\r\nARBOL"));
    // A second time in place of the first.
    QVERIFY(Dibujar(Dibujo_De_Sesion(Trabajo()), Modo_DXF::Ambos));
    QCOMPARE(base->Leer("a.dxf").count("POINT"), 4);
    QCOMPARE(Avisos().size(), 1);
    QCOMPARE(interfaz->cursor, 0);
}

void TestConversion_DXF::los_desplazamientos_llegan_al_dibujo()
{
    Desp_X = "0000100000";
    QVERIFY(Dibujar(Dibujo_De_Sesion(Trabajo())));
    QVERIFY(base->Leer("a.dxf").contains(" 10\r\n99.500\r\n"));
    Avisos();
}

void TestConversion_DXF::lo_omitido_se_cuenta()
{
    Poner_Sesion(*base, 2, "KRT300", 1,
                 {{"P1", " x+001234567"},
                  {"P1", " y-000000500"},
                  {"P1", " z+000010250"},
                  {"P2", " x+000001000"},
                  {"P2", " y+000002000"},
                  {"P3", "cSOLO"}});
    Trabajo_Exportar trabajo = Trabajo();
    trabajo.id = 2;
    QVERIFY(Dibujar(Dibujo_De_Sesion(trabajo)));
    QCOMPARE(Avisos(),
             QStringList{"Sesión Exportada\rPuntos sin coordenadas, que no se han dibujado: 2"});
    QCOMPARE(base->Leer("a.dxf").count("POINT"), 1);
}

void TestConversion_DXF::un_formato_sin_coordenadas_se_dice()
{
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y"});
    QVERIFY(!Dibujar(Dibujo_De_Sesion(Trabajo())));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    QCOMPARE(Avisos(), QStringList{"Se produjo un error al exportar la sesión a formato DXF\r"
                                   "(3265) Falta el campo \"Coordenada Z\""});
    QVERIFY(!QFile::exists(base->Ruta("a.dxf")));
}

void TestConversion_DXF::un_fallo_deja_el_fichero_que_habia()
{
    base->Escribir("a.dxf", "antes");
    Poner_Campos_Exportar({"Punto"});
    QVERIFY(!Dibujar(Dibujo_De_Sesion(Trabajo())));
    QCOMPARE(base->Leer("a.dxf"), QByteArray("antes"));
    Trabajo_Exportar trabajo = Trabajo();
    trabajo.fichero = base->Ruta("no/hay/a.dxf");
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z"});
    QVERIFY(!Dibujar(Dibujo_De_Sesion(trabajo)));
    QVERIFY(Avisos().last().contains("(76)"));
}

void TestConversion_DXF::no_se_pisa_la_fuente()
{
    base->Escribir("l.txt", "Punto,Coordenada X,Coordenada Y,Coordenada Z\r\nP1,1,2,3\r\n");
    QVERIFY(!Dibujar(Dibujo_De_Texto(base->Ruta("l.txt"), base->Ruta("l.txt"))));
    QVERIFY(!Dibujar(Dibujo_De_Texto(base->Ruta("l.txt"), base->Ruta("EstTotal.ini"))));
    QVERIFY(!Dibujar(Dibujo_De_Texto(base->Ruta("falta.txt"), base->Ruta("a.dxf"))));
    const QStringList avisos = Avisos();
    QVERIFY(avisos[0].contains("(70)") && avisos[1].contains("(70)") && avisos[2].contains("(53)"));
    QVERIFY(base->Leer("l.txt").startsWith("Punto"));
}

void TestConversion_DXF::un_texto_sin_separador_se_pregunta()
{
    base->Escribir("l.txt", "Punto;Coordenada X;Coordenada Y;Coordenada Z\r\nP1;1;2;3\r\nP2\r\n");
    const Origen_Dibujo origen = Dibujo_De_Texto(base->Ruta("l.txt"), base->Ruta("a.dxf"));
    // Cancelled: it ends in silence.
    QVERIFY(!Dibujar(origen));
    QVERIFY(!QFile::exists(base->Ruta("a.dxf")));
    QVERIFY(Avisos().isEmpty());
    Peticiones_De_Sesion().Pedir_Separador = [] { return QString(";"); };
    QVERIFY(Dibujar(origen));
    QCOMPARE(Avisos(),
             QStringList{"Sesión Exportada\rLíneas con menos datos que títulos, que no se han "
                         "dibujado: 3"});
    QCOMPARE(base->Leer("a.dxf").count("POINT"), 1);
}

void TestConversion_DXF::la_exportacion_le_da_su_fichero()
{
    Trabajo_Exportar recibido;
    Peticiones_De_Exportar().Abrir_DXF = [&](const Trabajo_Exportar& t) { recibido = t; };
    Dialogo_Exportar dialogo({1, "KRT300", 1, "NXYZ"});
    dialogo.Elegir_Opcion(Salida_De("DXF")->opcion);
    dialogo.fichero = base->Ruta("a.dxf");
    dialogo.Exportar(avance);
    QCOMPARE(recibido.fichero, base->Ruta("a.dxf"));
    QCOMPARE(recibido.formato, QString("NXYZ"));
}

void TestConversion_DXF::la_lista_pide_sus_ficheros()
{
    base->Escribir("hay.dxf", "x");
    Origen_Dibujo recibido;
    Peticiones_De_Exportar().Mostrar_DXF = [&](const Origen_Dibujo& o) { recibido = o; };
    Dialogo_ExportDXF dialogo;
    dialogo.Exportar();
    QCOMPARE(interfaz->pitidos, 1);
    interfaz->ficheros = {Fichero_Elegido{base->Ruta("l.txt")}, std::nullopt,
                          Fichero_Elegido{base->Ruta("hay.dxf")},
                          Fichero_Elegido{base->Ruta("a.dxf")}};
    interfaz->respuestas = {false};
    dialogo.Elegir_Entrada();
    dialogo.Elegir_Entrada();
    QCOMPARE(dialogo.entrada, base->Ruta("l.txt"));
    dialogo.Exportar();
    QCOMPARE(interfaz->pitidos, 2);
    dialogo.Elegir_Salida();
    QCOMPARE(dialogo.salida, base->Ruta("a.dxf"));
    QCOMPARE(Avisos(), QStringList{"El fichero ya existe, ¿ Desea reemplazarlo?"});
    const Peticion_Fichero& entrada = interfaz->peticiones[0];
    QCOMPARE(entrada.titulo, QString("Cargar Fichero ..."));
    QCOMPARE(entrada.filtro, QString("Todos los Archivos (*.*)|*.*"));
    QCOMPARE(entrada.carpeta, base->Ruta("ficheros"));
    const Peticion_Fichero& salida = interfaz->peticiones[2];
    QCOMPARE(salida.titulo, QString("Guardar como ..."));
    QCOMPARE(salida.filtro, QString("Formato Autocad (*.DXF)|*.DXF"));
    QVERIFY(salida.guardar && !entrada.guardar);
    dialogo.Exportar();
    QCOMPARE(recibido.fichero, base->Ruta("a.dxf"));
    QCOMPARE(recibido.fuentes, QStringList{base->Ruta("l.txt")});
}

void TestConversion_DXF::los_textos_de_las_cajas_data()
{
    QTest::addColumn<QStringList>("textos");
    QTest::addColumn<bool>("valen");
    QTest::newRow("como son") << QStringList{"6", "0,5", "-15", "2"} << true;
    QTest::newRow("con punto") << QStringList{"1", "2.5", "15.5", "0"} << true;
    QTest::newRow("formato") << QStringList{"7", "1", "0", "2"} << false;
    QTest::newRow("altura cero") << QStringList{"1", "0", "0", "2"} << false;
    QTest::newRow("altura vacía") << QStringList{"1", "", "0", "2"} << false;
    QTest::newRow("inclinación") << QStringList{"1", "1", "-", "2"} << false;
    QTest::newRow("decimales") << QStringList{"1", "1", "0", "10"} << false;
    QTest::newRow("medios decimales") << QStringList{"1", "1", "0", "1.5"} << false;
}

void TestConversion_DXF::los_textos_de_las_cajas()
{
    QFETCH(QStringList, textos);
    QFETCH(bool, valen);
    Ajustes_DXF ajustes;
    ajustes.colores[0] = 12;
    const Ajustes_DXF antes = ajustes;
    const QString falta = Tomar_Textos({textos[0], textos[1], textos[2], textos[3]}, ajustes);
    QCOMPARE(falta.isEmpty(), valen);
    if (!valen) {
        QCOMPARE(ajustes, antes);
        return;
    }
    QCOMPARE(ajustes.colores, antes.colores);
    QCOMPARE(ajustes.formato, textos[0].toInt());
    QCOMPARE(ajustes.altura, Basico::Leer_Numero(textos[1]));
    QCOMPARE(ajustes.inclinacion, textos[2]);
    // What the boxes show next is read back the same.
    Ajustes_DXF otra = antes;
    QVERIFY(Tomar_Textos(Textos_De(ajustes), otra).isEmpty());
    QCOMPARE(otra, ajustes);
}

PRUEBA(TestConversion_DXF)
#include "TestConversion_DXF.moc"
