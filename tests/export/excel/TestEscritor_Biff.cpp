#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"
#include "export/excel/Archivo_Ole.h"
#include "export/excel/Escritor_Biff.h"
#include "export/excel/Fichero_Excel.h"
#include "export/excel/Flujo_Biff.h"
#include "export/excel/Lector_Biff.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/excel/Volcado_Libro.h"

/// What is written is read back by the program itself and by xlrd, cell by cell.
class TestEscritor_Biff : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_libro_corriente_data() { Versiones(); }
    void un_libro_corriente();
    void la_pagina_entera_data() { Versiones(); }
    void la_pagina_entera();
    void los_limites_data() { Versiones(); }
    void los_limites();
    void una_fila_demasiado_larga_para_el_indice();
    void cadenas_cortadas_en_cada_sitio();
    void una_tabla_larga();
    void varias_hojas_data() { Versiones(); }
    void varias_hojas();
    void los_decimales_data() { Versiones(); }
    void los_decimales();
    void lo_que_se_imprime_data() { Versiones(); }
    void lo_que_se_imprime();
    void una_hoja_vacia_data() { Versiones(); }
    void una_hoja_vacia();
    void el_indice_lleva_a_las_filas_data() { Versiones(true); }
    void el_indice_lleva_a_las_filas();
    void patron_data() { Versiones(); }
    void patron();
    void lo_anterior_queda_si_no_cabe();

private:
    static void Versiones(bool solo_compuestas = false)
    {
        QTest::addColumn<int>("version");
        for (const Forma_Excel& f : Formas_Excel())
            if (f.compuesto || !solo_compuestas)
                QTest::newRow(QStringView(f.nombre).toUtf8().data()) << int(f.version);
    }
    static QString Comparar(const Libro_Excel& libro, Version_Excel version)
    {
        const QTemporaryDir carpeta;
        const QString ruta = carpeta.filePath("libro.xls");
        Guardar_Libro(libro, ruta, version);
        // xlrd has a name of its own for the sheet of a plain file, the program the file's.
        const bool con_nombres = Forma_De(version).compuesto;
        const QString de_xlrd = con_nombres ? "" : "Sheet 1", propio = con_nombres ? "" : "libro";
        const QString d = Diferencia(Volcar_Con_Xlrd(ruta), Volcar_Libro(libro, de_xlrd));
        if (!d.isEmpty()) return "xlrd: " + d;
        return Diferencia(Volcar_Libro(Abrir_Libro(ruta)), Volcar_Libro(libro, propio));
    }
};

static Libro_Excel Libro_Corriente()
{
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    const QStringList titulos = {"Punto", "X", "Descripción", "Ñandú €", ""};
    for (int c = 0; c < titulos.size(); ++c)
        h.Poner(0, c, titulos[c]);
    h.Poner_Negrita({0, 0, 0, 9});
    const double numeros[] = {0, -0.0, 1, -1, 12.5, 1e300, -1e-300, 4500000.123, 0.1, 1.0 / 3};
    for (int f = 0; f < 70; ++f) {
        if (f % 33 == 5) continue;
        h.Poner(f + 2, 0, QString("P%1").arg(f));
        h.Poner(f + 2, 1, numeros[f % 10]);
        if (f % 2) h.Poner(f + 2, 4, QString("áéí\tóú\n\"%1\"").arg(f));
        if (f % 7 == 0) h.Poner(f + 2, 5, QString());
    }
    h.Poner_Como_Texto({90, 3, 95, 20});
    h.Poner_Negrita({94, 0, 94, 5});
    h.Poner_Ancho(0, 12);
    h.Poner_Ancho(2, 30.5);
    h.Poner_Ancho(255, 255);
    return libro;
}

void TestEscritor_Biff::un_libro_corriente()
{
    QFETCH(int, version);
    QCOMPARE(Comparar(Libro_Corriente(), Version_Excel(version)), QString());
}

void TestEscritor_Biff::la_pagina_entera()
{
    QFETCH(int, version);
    // The null character and the five that xlrd's page lacks are left to the reader here.
    Libro_Excel libro, libro_propio;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    Hoja_Excel& p = libro_propio.Agregar_Hoja("hoja1");
    for (int i = 0; i < 256; ++i) {
        const QChar c = Ansi::Caracter(i);
        const QString texto = QString("%1<%2>").arg(i).arg(c);
        p.Poner(i / 16, i % 16, texto);
        if (i != 0 && (c.unicode() < 0x80 || c.unicode() > 0x9F)) h.Poner(i / 16, i % 16, texto);
    }
    QCOMPARE(Comparar(libro, Version_Excel(version)), QString());
    const Libro_Excel leido =
        Leer_Libro(Escribir_Libro(libro_propio, Version_Excel(version)), "hoja1");
    QCOMPARE(Diferencia(Volcar_Libro(leido), Volcar_Libro(libro_propio)), QString());

    Libro_Excel griego;
    griego.Agregar_Hoja("hoja1").Poner(0, 0, QString::fromUtf8("αβ 漢字 \U0001F600"));
    const Libro_Excel vuelto = Leer_Libro(Escribir_Libro(griego, Version_Excel(version)), "hoja1");
    QCOMPARE(vuelto.Hoja(0).Leer(0, 0).texto, Forma_De(Version_Excel(version)).unicode
                                                  ? griego.Hoja(0).Leer(0, 0).texto
                                                  : QString("?? ?? ?"));
    if (Forma_De(Version_Excel(version)).unicode)
        QCOMPARE(Comparar(griego, Version_Excel(version)), QString());
}

void TestEscritor_Biff::los_limites()
{
    QFETCH(int, version);
    const Forma_Excel& forma = Forma_De(Version_Excel(version));
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    for (int c = 0; c < forma.columnas; ++c)
        h.Poner(0, c, QString("columna %1").arg(c));
    h.Poner(1, 0, QString(forma.caracteres, u'a'));
    h.Poner(1, 1, QString(forma.caracteres, forma.unicode ? u'Ω' : u'€'));
    h.Poner(2, 255, QString(forma.caracteres - 1, u'é'));
    h.Poner(forma.filas - 1, 255, "el final");
    h.Poner(forma.filas - 1, 0, 1.0);
    // Between them lie thousands of rows without a cell.
    QCOMPARE(Comparar(libro, Version_Excel(version)), QString());
}

void TestEscritor_Biff::una_fila_demasiado_larga_para_el_indice()
{
    // 256 texts of 255 characters are more than a 16-bit place can tell.
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    for (int f = 0; f < 3; ++f)
        for (int c = 0; c < 256; ++c)
            h.Poner(f, c, QString(255, QChar('a' + c % 26)));
    QCOMPARE(Comparar(libro, Version_Excel::Excel_5), QString());
}

// The records of the one stream of a written file.
static QList<Registro_Biff> Registros(QByteArrayView flujo)
{
    QList<Registro_Biff> registros;
    for (Flujo_Biff f(flujo, 0); f.Posicion() < flujo.size();)
        registros << f.Siguiente();
    return registros;
}

void TestEscritor_Biff::cadenas_cortadas_en_cada_sitio()
{
    // A first text of every length about a record's end moves the cut over each byte of the next
    // ones, in narrow and wide characters.
    const int cabeza = 8 + 3, registro = 8224;
    for (const char16_t letra : {u'a', u'Ω'}) {
        const int por_letra = letra < 256 ? 1 : 2;
        for (int sobra = 0; sobra < 24; ++sobra) {
            Libro_Excel libro;
            Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
            h.Poner(0, 0, QString((registro - cabeza - sobra) / por_letra, letra));
            h.Poner(0, 1, "");
            h.Poner(0, 2, "ñ1");
            h.Poner(0, 3, QString::fromUtf8("Ω2"));
            h.Poner(0, 4, QString(20000, u'€') + QString(9, u'x'));
            h.Poner(0, 5, QString(20000, u'y'));
            const QByteArray fichero = Escribir_Libro(libro, Version_Excel::Excel_8);
            const Libro_Excel leido = Leer_Libro(fichero, "");
            QCOMPARE(Diferencia(Volcar_Libro(leido), Volcar_Libro(libro)), QString());
            const QByteArray flujo = Lector_Ole(fichero).Leer("Workbook");
            for (const Registro_Biff& r : Registros(flujo))
                QVERIFY(r.cuerpo.size() <= registro);
            if (sobra % 4 == 1) QCOMPARE(Comparar(libro, Version_Excel::Excel_8), QString());
        }
    }
}

void TestEscritor_Biff::una_tabla_larga()
{
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    for (int f = 0; f < 32768; ++f)
        for (int c = 0; c < 10; ++c)
            if (c == 9)
                h.Poner(f, c, f / 8.0);
            else
                h.Poner(f, c, QString("Año %1, %2").arg(c).arg(c % 3 ? f : f % 100));
    QCOMPARE(Comparar(libro, Version_Excel::Excel_8), QString());
    QCOMPARE(Numero_De_Error([&] { Escribir_Libro(libro, Version_Excel::Excel_5); }), 3437);
}

void TestEscritor_Biff::varias_hojas()
{
    QFETCH(int, version);
    Libro_Excel libro = Libro_Corriente();
    Hoja_Excel& otra = libro.Agregar_Hoja("Año 'A' & más");
    otra.Poner(40, 3, "Punto"); // a text that the first sheet has too
    libro.Agregar_Hoja("vacía");
    libro.Agregar_Hoja("última").Poner(0, 0, 3.0);
    if (Forma_De(Version_Excel(version)).compuesto)
        QCOMPARE(Comparar(libro, Version_Excel(version)), QString());
    else
        QCOMPARE(Numero_De_Error([&] { Escribir_Libro(libro, Version_Excel(version)); }), 3251);
}

void TestEscritor_Biff::los_decimales()
{
    QFETCH(int, version);
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    for (const int d : {3, 0, 2, 15, 30, 1}) {
        Celda celda = Celda::De(1.25);
        celda.decimales = qint8(d);
        h.Poner(d, 0, celda);
        celda.negrita = true;
        h.Poner(d, 1, celda);
        h.Poner(d, 2, "texto");
    }
    QCOMPARE(Comparar(libro, Version_Excel(version)), QString());
}

void TestEscritor_Biff::lo_que_se_imprime()
{
    QFETCH(int, version);
    const bool varias = Forma_De(Version_Excel(version)).compuesto;
    Libro_Excel libro;
    for (const QString& nombre : {QString("hoja1"), QString("Año 2"), QString("otra")}) {
        Hoja_Excel& h = libro.Agregar_Hoja(nombre);
        h.Poner(700, 9, "x");
        if (nombre != u"otra") h.Poner_Area_Impresion({1, libro.Numero_Hojas(), 300, 7});
        if (!varias) break;
    }
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath("libro.xls");
    Guardar_Libro(libro, ruta, Version_Excel(version));
    if (varias) {
        QCOMPARE(Diferencia(Volcar_Con_Xlrd(ruta, {"areas"}), Volcar_Libro(libro)), QString());
        return;
    }
    // xlrd knows no names of the plain forms: the record is a built-in name of one character, whose
    // formula of seven bytes is the area, rows before columns.
    const QByteArray bytes = Escribir_Libro(libro, Version_Excel(version));
    QVERIFY(bytes.contains(QByteArray::fromHex("1802"
                                               "0e00"
                                               "2000"
                                               "00"
                                               "01"
                                               "0700"
                                               "06"
                                               "25"
                                               "0100"
                                               "2c01"
                                               "01"
                                               "07")));
}

void TestEscritor_Biff::una_hoja_vacia()
{
    QFETCH(int, version);
    Libro_Excel libro;
    libro.Agregar_Hoja("hoja1");
    QCOMPARE(Comparar(libro, Version_Excel(version)), QString());
}

void TestEscritor_Biff::el_indice_lleva_a_las_filas()
{
    QFETCH(int, version);
    const Forma_Excel& forma = Forma_De(Version_Excel(version));
    const QByteArray fichero = Escribir_Libro(Libro_Corriente(), forma.version);
    const QByteArray flujo = Lector_Ole(fichero).Leer(forma.unicode ? "Workbook" : "Book");
    int bloques = 0;
    for (const Registro_Biff& r : Registros(flujo)) {
        if (r.id != Biff::INDEX) continue;
        const qsizetype cabeza =
            qsizetype(forma.unicode ? sizeof(Biff::Index_8) : sizeof(Biff::Index_5));
        const quint32 ancho = r.Como<U32>(cabeza - qsizetype(sizeof(U32)));
        QCOMPARE(Flujo_Biff(flujo, ancho).Siguiente().id, Biff::DefColWidth::ID);
        for (qsizetype i = cabeza; i < r.cuerpo.size(); i += 4, ++bloques) {
            const qsizetype lugar = quint32(r.Como<U32>(i));
            const Registro_Biff dbcell = Flujo_Biff(flujo, lugar).Siguiente();
            QCOMPARE(dbcell.id, quint16(Biff::DBCELL));
            Flujo_Biff filas(flujo, lugar - quint32(dbcell.Como<Biff::DbCell>().db_rt_rw));
            const Registro_Biff primera = filas.Siguiente();
            QCOMPARE(primera.id, Biff::Row::ID);
            const int fila = primera.Como<Biff::Row>().rw;
            QCOMPARE(fila, bloques * Biff::FILAS_POR_BLOQUE);
            qsizetype celda = filas.Posicion();
            int siguiente = fila;
            for (qsizetype k = 4; k < dbcell.cuerpo.size(); k += 2, ++siguiente) {
                celda += quint16(dbcell.Como<U16>(k));
                const Registro_Biff registro = Flujo_Biff(flujo, celda).Siguiente();
                if (registro.id == Biff::DBCELL) continue; // rows without cells end the block
                QVERIFY(registro.Como<Biff::Lugar_Celda>().rw >= siguiente);
            }
        }
    }
    QCOMPARE(bloques, 3);
}

void TestEscritor_Biff::patron()
{
    QFETCH(int, version);
    const QString ruta =
        QString(DATOS_PRUEBA "/libros/patron_excel_%1.xls").arg(version == 3 ? 8 : version + 3);
    const QByteArray obtenido = Escribir_Libro(Libro_Corriente(), Version_Excel(version));
    QFile patron(ruta);
    const bool igual = patron.open(QIODevice::ReadOnly) && patron.readAll() == obtenido;
    if (!igual) {
        QFile otro(ruta + ".obtenido");
        QVERIFY(otro.open(QIODevice::WriteOnly));
        otro.write(obtenido);
    }
    QVERIFY2(igual, qPrintable(ruta));
}

void TestEscritor_Biff::lo_anterior_queda_si_no_cabe()
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath("libro.xls");
    Guardar_Libro(Libro_Corriente(), ruta, Version_Excel::Excel_3);
    Libro_Excel grande;
    grande.Agregar_Hoja("hoja1").Poner(0, 0, QString(256, u'x'));
    QCOMPARE(Numero_De_Error([&] { Guardar_Libro(grande, ruta, Version_Excel::Excel_3); }), 3163);
    QVERIFY(Abrir_Libro(ruta).Hoja(0).Leer(0, 0).texto == "Punto");
    QCOMPARE(Numero_De_Error([&] {
                 Guardar_Libro(grande, carpeta.filePath("no/x.xls"), Version_Excel::Excel_8);
             }),
             76);
}

PRUEBA(TestEscritor_Biff)
#include "TestEscritor_Biff.moc"
