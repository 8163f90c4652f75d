#include "conversions/biblioteca/Flujo_Monitorizar.h"

#include "conversions/puntos/Libro_Resultados.h"
#include "core/Ansi.h"
#include "export/excel/Fichero_Excel.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestFlujo_Monitorizar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void pide_sus_dos_ficheros();
    void cancelar_no_sigue();
    void la_cabecera_llena_sus_cajas();
    void el_texto_es_el_de_la_muestra();
    void el_libro_es_el_texto();
    void lo_que_habia_espera_permiso();
    void lo_que_no_se_puede_deja_el_destino();
    void mas_de_cien_lineas_no_caben();

private:
    static QString Muestra(const QString& nombre) { return DATOS_PRUEBA "/conversions/" + nombre; }
    static QByteArray Bytes(const QString& ruta)
    {
        QFile f(ruta);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    Flujo_Monitorizar De_Muestra() const
    {
        Flujo_Monitorizar f;
        f.Tomar(Muestra("lecturas.dat"), Muestra("coord.xyz"));
        f.textos = {"PRESA", "Coronación", "J. PEREZ", "18.5", "12/03/2004", "10:30"};
        return f;
    }
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> guion;
};

void TestFlujo_Monitorizar::init()
{
    p = std::make_unique<Base_De_Prueba>();
    guion = std::make_unique<Interfaz_Guion>();
}

void TestFlujo_Monitorizar::cleanup()
{
    QVERIFY(!QFile::exists(p->Ruta("temp.dat")));
    guion.reset();
    p.reset();
}

void TestFlujo_Monitorizar::pide_sus_dos_ficheros()
{
    guion->ficheros = {Fichero_Elegido{Muestra("lecturas.dat")},
                       Fichero_Elegido{Muestra("coord.xyz")}};
    Flujo_Monitorizar f;
    QVERIFY(f.Abrir());
    QCOMPARE(guion->peticiones.size(), 2);
    QCOMPARE(guion->peticiones[0].titulo, QString("Seleccione Fichero de Lecturas"));
    QCOMPARE(guion->peticiones[0].filtro,
             QString("ASCII (*.dat)|*.dat|Todos los archivos (*.*)|*.*"));
    QCOMPARE(guion->peticiones[1].titulo, QString("Seleccione Fichero de Coordenadas"));
    QCOMPARE(guion->peticiones[1].filtro,
             QString("ASCII (*.xyz)|*.xyz|Todos los archivos (*.*)|*.*"));
    const QStringList cabecera = Ansi::A_Texto(Bytes(Muestra("cabecera.dat"))).split("\r\n");
    QVERIFY(!cabecera[0].isEmpty());
    QCOMPARE((QStringList{f.textos.temperatura, f.textos.fecha, f.textos.hora}),
             cabecera.mid(0, 3));
}

void TestFlujo_Monitorizar::cancelar_no_sigue()
{
    Flujo_Monitorizar f;
    guion->ficheros = {std::nullopt};
    QVERIFY(!f.Abrir());
    guion->ficheros = {Fichero_Elegido{"l.dat"}, std::nullopt};
    QVERIFY(!f.Abrir());
    guion->ficheros = {std::nullopt};
    QVERIFY(!De_Muestra().Aceptar());
}

void TestFlujo_Monitorizar::la_cabecera_llena_sus_cajas()
{
    p->Escribir("l.dat", "FEC 1/2/2003\r\n");
    Flujo_Monitorizar f;
    f.textos.hora = "antes";
    f.Tomar(p->Ruta("l.dat"), "c.xyz");
    QCOMPARE(f.textos.fecha, QString("1/2/2003"));
    // An empty line leaves its box alone.
    QCOMPARE(f.textos.hora, QString("antes"));
    f.Tomar(p->Ruta("no.dat"), "c.xyz");
    QCOMPARE(f.textos.fecha, QString("1/2/2003"));
}

void TestFlujo_Monitorizar::el_texto_es_el_de_la_muestra()
{
    guion->ficheros = {Fichero_Elegido{p->Ruta("r.txt")}};
    QVERIFY(De_Muestra().Aceptar());
    QCOMPARE(guion->peticiones[0].titulo, QString("Seleccione Fichero de Resultados"));
    QCOMPARE(guion->peticiones[0].filtro,
             QString("ASCII (*.txt)|*.txt|Todos los archivos (*.*)|*.*"));
    QVERIFY(guion->peticiones[0].guardar);
    QCOMPARE(guion->Textos(), QStringList{"Fichero generado correctamente"});
    QCOMPARE(p->Leer("r.txt"), Bytes(Muestra("resultados.txt")));
}

void TestFlujo_Monitorizar::el_libro_es_el_texto()
{
    guion->ficheros = {Fichero_Elegido{p->Ruta("r.xls")}};
    Flujo_Monitorizar f = De_Muestra();
    f.salida = Salida_Monitorizar::Excel;
    QVERIFY(f.Aceptar());
    QCOMPARE(guion->peticiones[0].filtro,
             QString("Fichero de Excel (*.xls)|*.xls|Todos los archivos (*.*)|*.*"));
    QCOMPARE(guion->Textos(), QStringList{"Fichero generado correctamente"});
    const Libro_Excel libro = Abrir_Libro(p->Ruta("r.xls"));
    const Hoja_Excel& h = libro.Hoja(0);
    QStringList lineas = Ansi::A_Texto(Bytes(Muestra("resultados.txt"))).split("\r\n");
    lineas.removeLast();
    QVERIFY(lineas.size() > 9);
    QVERIFY(h.Fila(0).empty());
    for (int l = 0; l < lineas.size(); ++l) {
        const QStringList campos = lineas[l].split(';');
        for (int c = 0; c < campos.size(); ++c)
            QCOMPARE(h.Leer(l + 1, c).texto, campos[c]);
    }
    for (const int fila : {1, 99})
        QVERIFY(h.Leer(fila, 0).negrita);
    QVERIFY(!h.Leer(100, 0).negrita && !h.Leer(1, 1).negrita);
}

void TestFlujo_Monitorizar::lo_que_habia_espera_permiso()
{
    p->Escribir("r.txt", "antes");
    guion->ficheros = {Fichero_Elegido{p->Ruta("r.txt")}, std::nullopt};
    guion->respuestas = {false};
    QVERIFY(!De_Muestra().Aceptar());
    QVERIFY(guion->Textos().first().endsWith("ya existe.\r\n¿Desea reemplazarlo?"));
    QCOMPARE(p->Leer("r.txt"), QByteArray("antes"));
}

void TestFlujo_Monitorizar::lo_que_no_se_puede_deja_el_destino()
{
    for (const Salida_Monitorizar salida : {Salida_Monitorizar::Ascii, Salida_Monitorizar::Excel}) {
        guion->avisos.clear();
        p->Escribir("l.dat", "nada\r\n");
        Flujo_Monitorizar f;
        f.Tomar(p->Ruta("l.dat"), Muestra("coord.xyz"));
        f.salida = salida;
        guion->ficheros = {Fichero_Elegido{p->Ruta("nuevo")}};
        QVERIFY(f.Aceptar());
        QCOMPARE(guion->Textos().first(), QString("ERROR: Fichero no generado"));
        QCOMPARE(guion->Textos().size(), 2); // and the reason
        QVERIFY(!QFile::exists(p->Ruta("nuevo")));
    }
}

void TestFlujo_Monitorizar::mas_de_cien_lineas_no_caben()
{
    const auto con = [&](int lineas, const QByteArray& linea) {
        p->Escribir("t.txt", QByteArray(linea + "\r\n").repeated(lineas));
        return Numero_De_Error(
            [&] { Escribir_Libro_Resultados(p->Ruta("t.txt"), p->Ruta("t.xls")); });
    };
    QCOMPARE(con(100, "a;b"), 0);
    QCOMPARE(Abrir_Libro(p->Ruta("t.xls")).Hoja(0).Rango_Con_Valores().fila_hasta, 100);
    const QByteArray antes = p->Leer("t.xls");
    QCOMPARE(con(101, "a;b"), 9);
    QCOMPARE(con(1, QByteArray(256, ';')), 9);
    QCOMPARE(p->Leer("t.xls"), antes);
    QCOMPARE(con(0, ""), 0);
}

PRUEBA(TestFlujo_Monitorizar)
#include "TestFlujo_Monitorizar.moc"
