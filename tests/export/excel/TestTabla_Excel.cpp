#include "core/Error_Ejecucion.h"
#include "export/excel/Fichero_Excel.h"
#include "export/excel/Tabla_Excel.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/excel/Volcado_Libro.h"

class TestTabla_Excel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_primera_fila_nombra_las_columnas();
    void se_recorre_hasta_el_final();
    void lo_que_no_se_actualiza_se_pierde();
    void un_campo_de_mas_es_el_3265();
    void sin_registro_es_el_3021();
    void un_registro_nuevo_va_al_final();
    void una_hoja_sin_nada();
    void la_hoja_llena_es_el_3437();
    void la_plantilla_tiene_columnas_y_filas();
    void lo_nuevo_lleva_el_aspecto_de_lo_ultimo_preparado();
    void las_columnas_sin_uso_se_quitan();
    void la_plantilla_retocada_conserva_sus_filas();
    void la_plantilla_se_llena_en_cada_forma_data();
    void la_plantilla_se_llena_en_cada_forma();
};

static Libro_Excel Libro_De_Prueba()
{
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    h.Poner(1, 2, "A");
    h.Poner(1, 4, "C");
    h.Poner(2, 2, "a1");
    h.Poner(2, 3, 5.0);
    h.Poner_Como_Texto({3, 2, 4, 4});
    return libro;
}

void TestTabla_Excel::la_primera_fila_nombra_las_columnas()
{
    Libro_Excel libro = Libro_De_Prueba();
    libro.Hoja(0).Poner(1, 9, "");
    const Tabla_Excel tabla(libro, "HOJA1$");
    QCOMPARE(tabla.Columnas(), (QStringList{"A", "", "C"}));
    QCOMPARE(tabla.RecordCount(), 3);
    QCOMPARE(tabla.Valor(0).texto, QString("a1"));
    QCOMPARE(tabla.Valor(1).numero, 5.0);
    QCOMPARE(Tabla_Excel(libro, "hoja1").RecordCount(), 3);
    QCOMPARE(Numero_De_Error([&] { Tabla_Excel(libro, "hoja2$"); }), 3011);
}

void TestTabla_Excel::se_recorre_hasta_el_final()
{
    Libro_Excel libro = Libro_De_Prueba();
    Tabla_Excel tabla(libro, "hoja1$");
    int n = 0;
    for (; !tabla.Es_EOF(); tabla.MoveNext(), ++n) {
        tabla.Edit();
        tabla.Poner(2, QString::number(n));
        tabla.Update();
    }
    QCOMPARE(n, 3);
    QCOMPARE(Numero_De_Error([&] { tabla.MoveNext(); }), 3021);
    tabla.MoveFirst();
    QCOMPARE(tabla.Valor(2).texto, QString("0"));
    QVERIFY(libro.Hoja(0).Leer(4, 4).como_texto);
    QCOMPARE(libro.Hoja(0).Leer(4, 4).texto, QString("2"));
}

void TestTabla_Excel::lo_que_no_se_actualiza_se_pierde()
{
    Libro_Excel libro = Libro_De_Prueba();
    Tabla_Excel tabla(libro, "hoja1$");
    QCOMPARE(Numero_De_Error([&] { tabla.Poner(0, "x"); }), 3020);
    QCOMPARE(Numero_De_Error([&] { tabla.Update(); }), 3020);
    tabla.Edit();
    tabla.Poner(0, "x");
    tabla.MoveNext();
    QCOMPARE(Numero_De_Error([&] { tabla.Update(); }), 3020);
    tabla.AddNew();
    tabla.Poner(0, "y");
    tabla.CancelUpdate();
    QCOMPARE(Numero_De_Error([&] { tabla.Update(); }), 3020);
    QCOMPARE(Diferencia(Volcar_Libro(libro), Volcar_Libro(Libro_De_Prueba())), QString());
}

void TestTabla_Excel::un_campo_de_mas_es_el_3265()
{
    Libro_Excel libro = Libro_De_Prueba();
    Tabla_Excel tabla(libro, "hoja1$");
    tabla.Edit();
    QCOMPARE(Numero_De_Error([&] { tabla.Poner(3, "x"); }), 3265);
    QCOMPARE(Numero_De_Error([&] { tabla.Poner(-1, "x"); }), 3265);
    QCOMPARE(Numero_De_Error([&] { tabla.Valor(3); }), 3265);
    tabla.Poner(2, 1.5);
    tabla.Update();
    QCOMPARE(tabla.Valor(2).numero, 1.5);
    tabla.Edit();
    QCOMPARE(Numero_De_Error([&] { tabla.Poner(0, std::nan("")); }), 5);
}

void TestTabla_Excel::sin_registro_es_el_3021()
{
    Libro_Excel libro = Libro_De_Prueba();
    Tabla_Excel tabla(libro, "hoja1$");
    while (!tabla.Es_EOF())
        tabla.MoveNext();
    QCOMPARE(Numero_De_Error([&] { tabla.Edit(); }), 3021);
    QCOMPARE(Numero_De_Error([&] { tabla.Valor(0); }), 3021);
}

void TestTabla_Excel::lo_nuevo_lleva_el_aspecto_de_lo_ultimo_preparado()
{
    Libro_Excel libro = Libro_De_Prueba();
    libro.Hoja(0).Poner_Negrita({4, 3, 4, 3});
    Tabla_Excel tabla(libro, "hoja1$");
    const auto anadir = [&](const std::optional<Celda>& numero) {
        tabla.AddNew();
        tabla.Poner(0, "t");
        if (numero)
            tabla.Poner(1, *numero);
        else
            tabla.Poner(1, "t");
        tabla.Update();
    };
    Celda numero = Celda::De(1.5);
    numero.decimales = 3;
    anadir(numero);
    anadir(std::nullopt);
    const Hoja_Excel& h = libro.Hoja(0);
    for (const int fila : {5, 6}) {
        QVERIFY(h.Leer(fila, 2).como_texto && !h.Leer(fila, 2).negrita);
        QVERIFY(h.Leer(fila, 3).como_texto && h.Leer(fila, 3).negrita);
    }
    QCOMPARE(h.Leer(5, 3).decimales, qint8(3));
    // The number's own picture goes no further.
    QCOMPARE(h.Leer(6, 3).decimales, qint8(-1));
    QCOMPARE(h.Leer(5, 4), Celda());
}

void TestTabla_Excel::las_columnas_sin_uso_se_quitan()
{
    Libro_Excel libro = Libro_De_Prueba();
    Tabla_Excel tabla(libro, "hoja1$");
    tabla.Quitar_Columnas_Desde(1);
    QCOMPARE(tabla.Columnas(), QStringList{"A"});
    QCOMPARE(libro.Hoja(0).Leer(1, 2).texto, QString("A"));
    QCOMPARE(libro.Hoja(0).Leer(1, 4), Celda());
    QCOMPARE(libro.Hoja(0).Leer(2, 3).numero, 5.0);
    tabla.Quitar_Columnas_Desde(1);
    tabla.Quitar_Columnas_Desde(7);
    QCOMPARE(tabla.Columnas().size(), 1);
    tabla.Imprimir(2, 1);
    QCOMPARE(libro.Hoja(0).Area_Impresion(), std::optional<Rango>({2, 2, 3, 2}));
    tabla.Quitar_Columnas_Desde(0);
    QCOMPARE(libro.Hoja(0).Fila(1).size(), std::size_t(0));
}

void TestTabla_Excel::un_registro_nuevo_va_al_final()
{
    Libro_Excel libro = Libro_De_Prueba();
    Tabla_Excel tabla(libro, "hoja1$");
    tabla.AddNew();
    tabla.Poner(0, "nuevo");
    tabla.Update();
    QCOMPARE(tabla.RecordCount(), 4);
    QCOMPARE(tabla.Valor(0).texto, QString("a1"));
    QCOMPARE(libro.Hoja(0).Leer(5, 2).texto, QString("nuevo"));
    while (!tabla.Es_EOF())
        tabla.MoveNext();
    for (int n = 0; n < 2; ++n) {
        tabla.AddNew();
        if (n) tabla.Poner(1, "otro");
        tabla.Update();
        QVERIFY(tabla.Es_EOF());
    }
    QCOMPARE(libro.Hoja(0).Leer(7, 3).texto, QString("otro"));
    QCOMPARE(Tabla_Excel(libro, "hoja1$").RecordCount(), 6);
}

void TestTabla_Excel::una_hoja_sin_nada()
{
    Libro_Excel libro;
    libro.Agregar_Hoja("hoja1");
    Tabla_Excel tabla(libro, "hoja1$");
    QVERIFY(tabla.Columnas().isEmpty() && tabla.Es_EOF());
    QCOMPARE(tabla.RecordCount(), 0);
    QCOMPARE(Numero_De_Error([&] { tabla.MoveFirst(); }), 3021);
}

void TestTabla_Excel::la_hoja_llena_es_el_3437()
{
    Libro_Excel libro = Libro_De_Prueba();
    libro.Hoja(0).Poner(65535, 2, "el final");
    Tabla_Excel tabla(libro, "hoja1$");
    tabla.AddNew();
    tabla.Poner(0, "x");
    QCOMPARE(Numero_De_Error([&] { tabla.Update(); }), 3437);
}

static QString Plantilla()
{
    return INSTALACION "/DAT/plantilla.xls";
}

void TestTabla_Excel::la_plantilla_tiene_columnas_y_filas()
{
    Libro_Excel libro = Abrir_Libro(Plantilla());
    QCOMPARE(libro.Numero_Hojas(), 1);
    QCOMPARE(libro.Hoja(0).nombre, QString("hoja1"));
    const Tabla_Excel tabla(libro, "hoja1$");
    QCOMPARE(tabla.Columnas().size(), 256);
    QCOMPARE(QSet<QString>(tabla.Columnas().begin(), tabla.Columnas().end()).size(), 256);
    QVERIFY(tabla.RecordCount() >= 2);
    QCOMPARE(libro.Hoja(0).Rango_Con_Valores(), (Rango{0, 0, 0, 255}));
    QCOMPARE(Diferencia(Volcar_Con_Xlrd(Plantilla()), Volcar_Libro(libro)), QString());
}

// Saved by LibreOffice, which makes looks of whole rows out of those of their cells.
void TestTabla_Excel::la_plantilla_retocada_conserva_sus_filas()
{
    Libro_Excel libro = Abrir_Libro(Plantilla());
    Libro_Excel retocado = Abrir_Libro(DATOS_PRUEBA "/libros/plantilla_libreoffice.xls");
    const Tabla_Excel tabla(libro, "hoja1$"), otra(retocado, "hoja1$");
    QCOMPARE(otra.Columnas(), tabla.Columnas());
    QCOMPARE(otra.RecordCount(), tabla.RecordCount());
}

void TestTabla_Excel::la_plantilla_se_llena_en_cada_forma_data()
{
    QTest::addColumn<QString>("conexion");
    for (const Forma_Excel& f : Formas_Excel())
        QTest::newRow(QStringView(f.nombre).toUtf8().data()) << QStringView(f.nombre).toString();
}

// The road of an export: titles in the first record, one left blank, then a row a record, those of
// the template first.
void TestTabla_Excel::la_plantilla_se_llena_en_cada_forma()
{
    QFETCH(QString, conexion);
    const Forma_Excel& forma = Forma_De(conexion);
    const QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath("libro.xls");
    QVERIFY(QFile::copy(Plantilla(), fichero));
    Libro_Excel libro = Abrir_Libro(fichero);
    Tabla_Excel tabla(libro, "hoja1$");
    const int preparadas = tabla.RecordCount(), filas = preparadas + 50;
    tabla.MoveFirst();
    tabla.Edit();
    for (int c = 0; c < 4; ++c)
        tabla.Poner(c, QString("título %1").arg(c));
    tabla.Update();
    tabla.MoveNext();
    tabla.MoveNext();
    for (int f = 0; f < filas; ++f) {
        if (tabla.Es_EOF())
            tabla.AddNew();
        else
            tabla.Edit();
        for (int c = 0; c < 4; ++c)
            tabla.Poner(c, QString("%1,%2   ").arg(f).arg(c));
        tabla.Update();
        if (!tabla.Es_EOF()) tabla.MoveNext();
    }
    Guardar_Libro(libro, fichero, forma.version);

    Libro_Excel leido = Abrir_Libro(fichero);
    const Hoja_Excel& h = leido.Hoja(0);
    QCOMPARE(h.Leer(1, 3).texto, QString("título 3"));
    QCOMPARE(h.Leer(2, 0).tipo, Celda::Tipo::Nada);
    for (int f = 0; f < filas; ++f)
        for (int c = 0; c < 4; ++c)
            QCOMPARE(h.Leer(f + 3, c).texto, QString("%1,%2   ").arg(f).arg(c));
    QCOMPARE(h.Rango_Usado(), (Rango{0, 0, filas + 2, 255}));
    QCOMPARE(
        Diferencia(Volcar_Con_Xlrd(fichero), Volcar_Libro(leido, forma.compuesto ? "" : "Sheet 1")),
        QString());
}

PRUEBA(TestTabla_Excel)
#include "TestTabla_Excel.moc"
