#include "export/nivel/Escritor_Nivel.h"

#include "core/Ansi.h"
#include "export/excel/Fichero_Excel.h"
#include "export/GuardarN.h"
#include "export/Salidas.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Nivel_De_Prueba.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/mdb/Lectura_Jet.h"

using namespace Nivel_De_Prueba;

/// The delivered field books through the whole engine, against the reports that informe.py beside
/// this file calculates from them.
class TestEscritor_Nivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_texto_es_el_calculado_data();
    void el_texto_es_el_calculado();
    void el_libro_es_el_calculado();
    void el_libro_con_numeros();
    void la_base_es_la_calculada();
    void las_casillas_quitan_sus_lineas_data();
    void las_casillas_quitan_sus_lineas();
    void sin_anillos_no_hay_sus_titulos();
    void cada_estilo_sale_igual_data();
    void cada_estilo_sale_igual();
    void un_valor_largo_pierde_su_principio();
    void sin_detalle_sale_la_cabecera();
    void sin_cabecera_sale_el_detalle();
    void un_campo_sin_sitio_queda_vacio();
    void el_formato_de_otra_familia_no_se_mezcla();
    void el_fin_se_halla_por_sus_cifras();
    void los_fallos_se_dicen();

private:
    bool Exportar(const QString& tipo, const Opciones_Exportar& opciones,
                  const QString& formato = "F", qint64 id = 1)
    {
        Avance_Exportar avance;
        return Exportar_Sesion(id, "NV400", 0, tipo, formato, Ruta(), opciones, avance);
    }
    QString Texto(const Opciones_Exportar& opciones, const QString& formato = "F", qint64 id = 1)
    {
        if (!Exportar("TxF", opciones, formato, id)) return "fallo";
        return Ansi::A_Texto(p->Leer("ficheros/s"));
    }
    QString Ruta() const { return p->Ruta("ficheros/s"); }
    static QByteArray Patron(const QString& nombre)
    {
        QFile f(DATOS_PRUEBA "/export/" + nombre);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("no golden file");
    }
    static QString Filas_Del_Libro(const Libro_Excel& libro)
    {
        const Hoja_Excel& h = libro.Hoja(0);
        QString filas;
        for (int f = 1; f <= h.Rango_Con_Valores().fila_hasta; ++f) {
            QStringList celdas;
            for (const Celda_Situada& c : h.Fila(f))
                if (c.tipo == Celda::Tipo::Texto) celdas << c.texto;
            filas += celdas.join('|') + '\n';
        }
        return filas;
    }
    static constexpr Opciones_Nivel ENTERO{true, true};
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> guion;
};

void TestEscritor_Nivel::init()
{
    p = std::make_unique<Base_De_Prueba>();
    guion = std::make_unique<Interfaz_Guion>();
    Clave_Estacion = "NV400";
    Poner_Campos(*p);
    Poner_Formato(*p, "F", {"Trabajo", "Punto Inicial", "Cota Inicial", "Fecha", "Hora"},
                  {"Tipo", "Punto", "Lectura", "Distancia", "Cota", "Hora"});
    Poner_Sesion(*p, 1, Libreta("campo_nv400.txt"));
    QVERIFY(QFile::copy(INSTALACION "/DAT/plantilla.xls", p->Ruta("DAT/plantilla.xls")));
}

void TestEscritor_Nivel::cleanup()
{
    guion.reset();
    p.reset();
}

void TestEscritor_Nivel::el_texto_es_el_calculado_data()
{
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<QString>("opciones");
    QTest::addColumn<bool>("casillas");
    QTest::addColumn<QString>("patron");
    for (const char* tipo : {"TxF", "Txt"}) {
        QTest::addRow("%s, all", tipo) << tipo << " \6S" << true << "nivel_txf_espacio.txt";
        QTest::addRow("%s, bare", tipo) << tipo << ",\6N" << false << "nivel_txt_coma.txt";
    }
}

void TestEscritor_Nivel::el_texto_es_el_calculado()
{
    QFETCH(QString, tipo);
    QFETCH(QString, opciones);
    QFETCH(bool, casillas);
    QFETCH(QString, patron);
    QVERIFY(Exportar(tipo, {.texto = opciones, .nivel = {casillas, casillas}}));
    QCOMPARE(p->Leer("ficheros/s"), Patron(patron));
}

void TestEscritor_Nivel::el_libro_es_el_calculado()
{
    for (const Forma_Excel& forma : Formas_Excel()) {
        const QString conexion = QStringView(forma.nombre).toString();
        QVERIFY(Exportar("Xls", {.texto = Opciones_Libro{true, conexion}.Unir(), .nivel = ENTERO}));
        QCOMPARE(Filas_Del_Libro(Abrir_Libro(Ruta())),
                 QString::fromUtf8(Patron("nivel_xls_filas.txt")));
    }
}

void TestEscritor_Nivel::el_libro_con_numeros()
{
    QVERIFY(Exportar("Xls", {.texto = Opciones_Libro{true, "Excel 8.0"}.Unir(), .numeros = true}));
    const Libro_Excel libro = Abrir_Libro(Ruta());
    const Hoja_Excel& h = libro.Hoja(0);
    QCOMPARE(h.Leer(1, 2).texto, QString("Cota Inicial"));
    QCOMPARE(h.Leer(2, 2).numero, 612.3456);
    QCOMPARE(h.Leer(6, 2).numero, 1.15384);
    QCOMPARE(h.Leer(6, 2).decimales, qint8(5));
    QCOMPARE(h.Leer(6, 5).texto, QString("08:31"));
    // Rows 2 to the last, six columns: what is printed.
    QCOMPARE(h.Leer(0, 5).texto, QString("F6"));
    QCOMPARE(h.Leer(0, 6), Celda());
}

void TestEscritor_Nivel::la_base_es_la_calculada()
{
    QVERIFY(Exportar("mdb", {.nivel = ENTERO}));
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-export", {"-Q", "-d", "|", Ruta(), "Datos"}),
             QString::fromUtf8(Patron("nivel_mdb_filas.txt")));
}

void TestEscritor_Nivel::las_casillas_quitan_sus_lineas_data()
{
    QTest::addColumn<bool>("anillo");
    QTest::addColumn<bool>("nivelacion");
    QTest::newRow("none") << false << false;
    QTest::newRow("ChkAnillo: change points") << true << false;
    QTest::newRow("ChkNivelacion: rings") << false << true;
}

void TestEscritor_Nivel::las_casillas_quitan_sus_lineas()
{
    QFETCH(bool, anillo);
    QFETCH(bool, nivelacion);
    const QString texto = Texto({.texto = " \6N", .nivel = {anillo, nivelacion}});
    QCOMPARE(texto.contains("Nº Señal P.Cambio"), anillo);
    QCOMPARE(texto.contains("     P10 12/03/24 08:55     -0.17576"), false);
    QCOMPARE(texto.contains("      10      P10 12/03/24 08:55  "), anillo);
    QCOMPARE(texto.contains("Nº Señal  Fecha y Hora"), nivelacion);
    QCOMPARE(texto.contains("CIERRE"), nivelacion);
    QVERIFY(texto.contains("Fin de Nivelacion     Fecha    Hora  \r\n"));
}

void TestEscritor_Nivel::sin_anillos_no_hay_sus_titulos()
{
    Poner_Sesion(*p, 2, Libreta("campo_nv400_libre.txt"));
    const QString texto = Texto({.texto = " \6S", .nivel = ENTERO}, "F", 2);
    QVERIFY(!texto.contains("Señal") && !texto.contains("Fin de"));
    QVERIFY(texto.contains("   f      CL1   1.20415    18.731      0.0000 09:06\r\n"));
}

void TestEscritor_Nivel::cada_estilo_sale_igual_data()
{
    QTest::addColumn<QString>("letras");
    for (const char* letras : {"gigi", "ghij", "gijh", "ffff", "gkki", "k"})
        QTest::newRow(letras) << letras;
}

void TestEscritor_Nivel::cada_estilo_sale_igual()
{
    QFETCH(QString, letras);
    QStringList lineas{"b,01,OBRA,RN1,1000,010224,0800,"};
    QString esperado;
    for (qsizetype i = 0; i < letras.size(); ++i) {
        lineas << QString("%1,01,%2,2500,1250,P%3,4,010224,081%3,C,")
                      .arg(letras[i])
                      .arg(1000 + i)
                      .arg(i);
        // Unit 1: thousandths, hundredths, thousandths.
        esperado += QString("   %1       P%2   1.%3    25.000      1.2500 08:1%2\r\n")
                        .arg(letras[i])
                        .arg(i)
                        .arg(i * 100, 5, 10, QChar('0'));
    }
    Poner_Sesion(*p, 2, lineas);
    QCOMPARE(Texto({.texto = " \6N", .nivel = ENTERO}, "F", 2),
             "OBRA             RN1      1.0000      01/02/24 08:00\r\n\r\n" + esperado);
}

void TestEscritor_Nivel::un_valor_largo_pierde_su_principio()
{
    Poner_Formato(*p, "G", {"Trabajo"}, {"Punto", "Fecha", "Hora"});
    Poner_Sesion(
        *p, 2,
        {"b,01,UN TRABAJO DE NOMBRE LARGO,RN1,", "g,01,1000,2500,1250,PUNTO12345,4,1/2/24,9,C,"});
    // Left-aligned the end goes, right-aligned the beginning; a date of another form stays.
    QCOMPARE(Texto({.texto = ";\6N"}, "G", 2),
             QString("UN TRABAJO DE NO\r\n\r\nNTO12345;  1/2/24;    9\r\n"));
}

void TestEscritor_Nivel::sin_detalle_sale_la_cabecera()
{
    Poner_Formato(*p, "G", {"Trabajo"}, {});
    QCOMPARE(Texto({.texto = " \6S", .nivel = ENTERO}, "G"),
             QString("Trabajo         \r\nANILLO A        \r\n\r\n"));
}

void TestEscritor_Nivel::sin_cabecera_sale_el_detalle()
{
    Poner_Formato(*p, "G", {}, {"Punto"});
    QVERIFY(Texto({.texto = " \6N"}, "G").startsWith("     RN1\r\n      P1\r\n"));
    QCOMPARE(Texto({.texto = " \6N"}, "NINGUNO"), QString());
    QCOMPARE(Texto({.texto = " \6N"}, "F", 77), QString());
}

void TestEscritor_Nivel::un_campo_sin_sitio_queda_vacio()
{
    Poner_Formato(*p, "G", {}, {"Punto", "Sin sitio", "Desconocido", "Lectura"});
    QVERIFY(Texto({.texto = ";\6S"}, "G")
                .startsWith("   Punto;Sin s;  Lectura\r\n\r\n     RN1;     ;  1.15384\r\n") ||
            Texto({.texto = ";\6S"}, "G")
                .startsWith("   Punto;sitio;  Lectura\r\n\r\n     RN1;     ;  1.15384\r\n"));
}

void TestEscritor_Nivel::el_formato_de_otra_familia_no_se_mezcla()
{
    Poner_Formato(*p, "F", {"Hora"}, {"Cota"}, "KRT300");
    p->Fila("Campos", {{"Maquina", "KRT300"},
                       {"ID", "1"},
                       {"Campo", "Cota"},
                       {"Orden", 1},
                       {"Digitos", 3},
                       {"Caracter", "9"}});
    QCOMPARE(Texto({.texto = " \6S", .nivel = ENTERO}),
             Ansi::A_Texto(Patron("nivel_txf_espacio.txt")));
}

void TestEscritor_Nivel::el_fin_se_halla_por_sus_cifras()
{
    Poner_Formato(*p, "G", {}, {"Punto"});
    Poner_Sesion(*p, 2, {"u,02,2111261030,NOTA,"});
    QCOMPARE(Texto({.texto = " \6N"}, "G", 2),
             QString("\r\nFin de Nivelacion     Fecha    Hora  \r\n" + QString(21, ' ') +
                     "21/11/26 10:30\r\n"));
    QVERIFY(Exportar("Xls",
                     {.texto = "N\6"
                               "Excel 8.0"},
                     "G", 2));
    QCOMPARE(Filas_Del_Libro(Abrir_Libro(Ruta())),
             QString("\nFin de Nivelacion|Fecha   Hora  ||Comentario\n|21/11/26|10:30|NOTA\n"));
}

void TestEscritor_Nivel::los_fallos_se_dicen()
{
    Avance_Exportar avance;
    const auto exportar = [&](const QString& tipo, const QString& fichero) {
        return Exportar_Sesion(1, "NV400", 0, tipo, "F", p->Ruta("ficheros/" + fichero),
                               {.texto = tipo == u"Xls" ? "N\6"
                                                          "Excel 8.0"
                                                        : " \6N"},
                               avance);
    };
    for (const char* tipo : {"TxF", "Txt"}) {
        guion->avisos.clear();
        QVERIFY(!exportar(tipo, "no/s"));
        QVERIFY(guion->avisos[0].texto.startsWith(
            "Se produjo un error al Guardar un Fichero de Texto formateado\r(76) "));
        QVERIFY(!exportar(tipo, "a?"));
        QCOMPARE(guion->avisos[1].titulo, QString("Atención"));
    }
    guion->avisos.clear();
    QVERIFY(!exportar("Xls", "no/s"));
    QVERIFY(guion->avisos[0].texto.startsWith(
        "Se produjo un error al realizar la exportación a Formato 'EXCEL'"));
}

PRUEBA(TestEscritor_Nivel)
#include "TestEscritor_Nivel.moc"
