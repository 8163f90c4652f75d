#include "core/Ansi.h"
#include "export/Formatear_Datos.h"
#include "export/impresion/Lector_RTF.h"
#include "export/impresion/Renderiza_Pagina.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

Datos_Formateados Tabla()
{
    Datos_Formateados datos;
    datos.campos = QStringList{"Punto", "Coordenada X", "Código"};
    datos.filas = {{"P1", "PUNTO22", "3"}, {"-1000.500", "", "20.000"}, {"ÁRBOL{1}", "a\\b", "Ñ"}};
    Igualar_Columnas(datos.filas);
    return datos;
}

} // namespace

class TestRenderiza_Pagina : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { base = std::make_unique<Base_De_Prueba>(); }
    void cleanup() { base.reset(); }
    void otra_cuenta_escribe_lo_mismo_data();
    void otra_cuenta_escribe_lo_mismo();
    void un_titulo_vacio_deja_su_linea();
    void sin_cabeceras_falta_solo_su_linea();
    void el_margen_va_al_par();
    void una_fila_marcada_va_en_negrita();
    void las_columnas_se_renombran();
    void la_hoja_se_tumba_desde_111();

private:
    QByteArray Render(const Parametros_Hoja& p, const Datos_Formateados& datos = Tabla())
    {
        return Renderiza_Pagina(*Base_Datos, datos, p, false);
    }
    std::unique_ptr<Base_De_Prueba> base;
};

void TestRenderiza_Pagina::otra_cuenta_escribe_lo_mismo_data()
{
    QTest::addColumn<QString>("que");
    QTest::addColumn<int>("anchura");
    for (const char* que : {"", "t", "s", "j", "c", "m", "cm", "tsjcm", "tsjc"})
        for (const int anchura : {10, 57, 80, 81, 82, 83})
            QTest::addRow("%s %d", que, anchura) << que << anchura;
}

void TestRenderiza_Pagina::otra_cuenta_escribe_lo_mismo()
{
    QFETCH(QString, que);
    QFETCH(int, anchura);
    Parametros_Hoja p;
    p.con_titulo = que.contains('t');
    p.con_subtitulo = que.contains('s');
    p.cabeceras = que.contains('c');
    p.centrar = que.contains('m');
    p.anchura = anchura;
    p.titulo = "Peñón {7} \\";
    p.subtitulo = "Año 2024 €";
    if (que.contains('j')) p.trabajo = Datos_Trabajo{"Río", "José"};
    const Datos_Formateados datos = Tabla();
    QByteArray tabla = Ansi::A_Bytes(datos.campos.join('\t')) + '\n';
    for (std::size_t f = 0; f < datos.Numero_De_Filas(); ++f) {
        QStringList celdas;
        for (const auto& columna : datos.filas)
            celdas << columna.Celda(f);
        tabla += Ansi::A_Bytes(celdas.join('\t')) + '\n';
    }
    base->Escribir("tabla.txt", tabla);
    QProcess otra;
    otra.start("/usr/bin/python3",
               {QString(RAIZ_FUENTES) + "/tests/export/impresion/comprobar_rtf.py",
                base->Ruta("tabla.txt"), base->Ruta("otra.rtf"), QString::number(anchura), que,
                p.titulo, p.subtitulo, "Río", "José"});
    QVERIFY2(otra.waitForFinished(60000), "python3 did not run");
    QVERIFY2(otra.exitCode() == 0, otra.readAllStandardError().constData());
    QCOMPARE(Render(p), base->Leer("otra.rtf"));
}

void TestRenderiza_Pagina::un_titulo_vacio_deja_su_linea()
{
    Parametros_Hoja p;
    p.con_titulo = true;
    const auto parrafos = Leer_RTF(Render(p));
    QCOMPARE(parrafos.size(), 4);
    QVERIFY(parrafos[0].centrado && parrafos[0].tramos.isEmpty());
    QCOMPARE(parrafos[0].medios_puntos, 28);
}

void TestRenderiza_Pagina::sin_cabeceras_falta_solo_su_linea()
{
    Parametros_Hoja p;
    p.con_titulo = true;
    p.titulo = "T";
    p.columnas = QStringList{"A", "B", "C"};
    p.cabeceras = true;
    QList<QByteArray> con = Render(p).split('\n');
    p.cabeceras = false;
    con.removeAt(3);
    QCOMPARE(Render(p).split('\n'), con);
}

void TestRenderiza_Pagina::el_margen_va_al_par()
{
    Parametros_Hoja p;
    p.centrar = true;
    for (const auto& [anchura, blancos] : QList<std::pair<int, int>>{
             {24, 0}, {23, 0}, {25, 0}, {27, 2}, {26, 1}, {29, 2}, {31, 4}, {1, 0}}) {
        p.anchura = anchura; // the columns take 7 + 9 + 8
        const QString fila = Leer_RTF(Render(p))[1].Texto();
        QVERIFY2(fila.startsWith(QString(blancos, ' ') + "P1"),
                 qPrintable(QString("%1: %2").arg(anchura).arg(fila)));
    }
}

void TestRenderiza_Pagina::una_fila_marcada_va_en_negrita()
{
    Poner_Instrumentos(*base);
    Datos_Formateados datos = Tabla();
    datos.filas[0] = {"P1", QString(QChar(6)) + "resto", "3"};
    datos.lineas_especiales = QStringList{"t1 2"};
    const QByteArray rtf = Render({}, datos);
    QCOMPARE(rtf.count("\\par \\par \\pard\\plain\\f2\\fs16\\b Cabecera"), 1);
    QVERIFY(!rtf.contains("resto"));
}

void TestRenderiza_Pagina::las_columnas_se_renombran()
{
    Parametros_Hoja p;
    p.cabeceras = true;
    p.columnas = QStringList{"Nº", "Una cabecera más larga que sus celdas", ""};
    const auto parrafos = Leer_RTF(Render(p));
    QVERIFY(parrafos[1].Texto().trimmed().startsWith("Nº"));
    QVERIFY(parrafos[1].Subrayado());
    // Its column is as wide as the new title.
    QCOMPARE(parrafos[2].Texto().indexOf("ÁRBOL"), 7 + 1 + p.columnas[1].size() + 1);
}

void TestRenderiza_Pagina::la_hoja_se_tumba_desde_111()
{
    Parametros_Hoja p;
    p.anchura = 110;
    QVERIFY(!p.Apaisada());
    p.anchura = 111;
    QVERIFY(p.Apaisada());
}

PRUEBA(TestRenderiza_Pagina)
#include "TestRenderiza_Pagina.moc"
