#include "core/Error_Ejecucion.h"
#include "export/excel/Archivo_Ole.h"
#include "export/excel/Escritor_Biff.h"
#include "export/excel/Fichero_Excel.h"
#include "export/excel/Lector_Biff.h"
#include "export/excel/Salida_Biff.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/excel/Volcado_Libro.h"

#include <bit>
#include <QRandomGenerator>

using namespace Biff;

/// Streams made record by record, files of other programs, and files that were damaged.
class TestLector_Biff : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_de_otros_programas_se_lee_como_xlrd_data();
    void lo_de_otros_programas_se_lee_como_xlrd();
    void cada_clase_de_celda_data();
    void cada_clase_de_celda();
    void el_numero_abreviado_data();
    void el_numero_abreviado();
    void el_valor_de_una_formula();
    void el_texto_de_una_formula_sigue_en_otro_registro();
    void los_textos_compartidos_con_tramos();
    void los_textos_de_la_forma_de_1995();
    void un_dibujo_en_la_hoja_se_salta();
    void las_hojas_que_no_son_de_calculo_se_saltan();
    void lo_que_no_es_un_libro_se_rechaza_data();
    void lo_que_no_es_un_libro_se_rechaza();
    void un_registro_danado_se_rechaza_data();
    void un_registro_danado_se_rechaza();
    void hojas_que_se_solapan();
    void cada_corte_data();
    void cada_corte();
    void bits_cambiados_data();
    void bits_cambiados();
    void los_hallazgos_no_vuelven();
};

namespace {

/// A stream of the form of 1997 whose sheet's records are those of `celdas`, or of 1995.
QByteArray Libro(const std::function<void(Salida_Biff&)>& celdas,
                 const std::function<void(Salida_Biff&)>& globales = {}, bool de_1995 = false,
                 quint8 clase_hoja = HOJA_NORMAL)
{
    const auto bof = [&](Salida_Biff& s, quint16 contenido) {
        if (de_1995)
            s.Escribir_Como(BOF_BIFF58, Bof_5{VERSION_BIFF5, contenido, quint16(0), quint16(0)});
        else
            s.Escribir_Como(BOF_BIFF58, Bof_8{VERSION_BIFF8, contenido, quint16(0), quint16(0),
                                              quint32(0), quint32(0)});
    };
    Salida_Biff s;
    bof(s, GLOBALES);
    const qsizetype hueco = s.Posicion() + qsizetype(sizeof(Cabeza));
    s.Escribir(BoundSheet{quint32(0), 0, clase_hoja},
               de_1995 ? QByteArrayView("\x01h") : QByteArrayView("\x01\0h", 3));
    if (globales) globales(s);
    s.Escribir_Bytes(END_OF_FILE);
    s.bytes.replace(hueco, 4, Bytes_De(U32(quint32(s.Posicion()))));
    bof(s, HOJA_DE_CALCULO);
    celdas(s);
    s.Escribir_Bytes(END_OF_FILE);
    return s.bytes;
}

Celda Leida(const QByteArray& libro, int fila = 0, int columna = 0)
{
    return Leer_Libro(libro, "").Hoja(0).Leer(fila, columna);
}

constexpr Lugar_Celda ORIGEN{};

QByteArray Valor_De_Clase(quint8 clase, quint8 valor)
{
    QByteArray bytes("\0\0\0\0\0\0\xFF\xFF", 8);
    bytes[0] = char(clase);
    bytes[2] = char(valor);
    return bytes;
}

} // namespace

void TestLector_Biff::lo_de_otros_programas_se_lee_como_xlrd_data()
{
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<int>("hojas");
    QTest::newRow("LibreOffice") << "de_libreoffice.xls" << 2;
    QTest::newRow("Gnumeric, forma de 1995") << "de_gnumeric_5.xls" << 2;
    QTest::newRow("Gnumeric, las dos formas") << "de_gnumeric_doble.xls" << 2;
    QTest::newRow("xlwt") << "de_xlwt.xls" << 2;
    QTest::newRow("plantilla retocada") << "plantilla_libreoffice.xls" << 1;
}

void TestLector_Biff::lo_de_otros_programas_se_lee_como_xlrd()
{
    QFETCH(QString, fichero);
    QFETCH(int, hojas);
    const QString ruta = DATOS_PRUEBA "/libros/" + fichero;
    const Libro_Excel libro = Abrir_Libro(ruta);
    QCOMPARE(libro.Numero_Hojas(), hojas);
    QVERIFY(Volcar_Libro(libro).size() > 40);
    QCOMPARE(Diferencia(Volcar_Libro(libro), Volcar_Con_Xlrd(ruta)), QString());
}

void TestLector_Biff::cada_clase_de_celda_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("cuerpo");
    QTest::addColumn<QString>("lineas");
    const QByteArray lugar =
        Bytes_De(Lugar_Celda{quint16(2), quint16(1), quint16(0)}).toByteArray();
    const auto fila = [](const char* nombre, int id, const QByteArray& cuerpo, const char* lineas) {
        QTest::newRow(nombre) << id << cuerpo << QString::fromUtf8(lineas);
    };
    fila("BLANK", Blank::ID, lugar, "h 2 1 V -");
    fila("NUMBER", Number::ID, lugar + Bytes_De(F64(2.5)).toByteArray(),
         "h 2 1 N 4004000000000000");
    fila("LABEL", Label::ID, lugar + QByteArray("\x02\0\0\xF1!", 5), "h 2 1 T ñ!");
    fila("LABEL ancha", Label::ID, lugar + QByteArray("\x01\0\x01\xAC\x20", 5), "h 2 1 T €");
    fila("RSTRING", RSTRING, lugar + QByteArray("\x02\0\0ab\x01\0\0\0\0\0", 11), "h 2 1 T ab");
    fila("verdadero", BoolErr::ID, lugar + QByteArray("\x01\0", 2), "h 2 1 N 3ff0000000000000");
    fila("falso", BoolErr::ID, lugar + QByteArray("\0\0", 2), "h 2 1 N 0000000000000000");
    for (const auto& [codigo, texto] : {std::pair{0x00, "#NULL!"},
                                        {0x07, "#DIV/0!"},
                                        {0x0F, "#VALUE!"},
                                        {0x17, "#REF!"},
                                        {0x1D, "#NAME?"},
                                        {0x24, "#NUM!"},
                                        {0x2A, "#N/A"}})
        fila(texto, BoolErr::ID, lugar + char(codigo) + '\x01',
             qPrintable(QString("h 2 1 T %1").arg(texto)));
    fila("MULBLANK", MULBLANK, QByteArray("\x02\0\x03\0\0\0\0\0\x04\0", 10), "h 2 3 V -|h 2 4 V -");
    fila("MULRK", MULRK, QByteArray("\x02\0\x03\0\0\0\x06\0\0\0\0\0\x02\0\0\0\x04\0", 18),
         "h 2 3 N 3ff0000000000000|h 2 4 N 0000000000000000");
    fila("una que no se conoce", 0x0999, lugar, "");
}

void TestLector_Biff::cada_clase_de_celda()
{
    QFETCH(int, id);
    QFETCH(QByteArray, cuerpo);
    QFETCH(QString, lineas);
    const QByteArray libro = Libro([&](Salida_Biff& s) { s.Escribir_Bytes(quint16(id), cuerpo); });
    QStringList obtenidas;
    for (const QString& linea : Volcar_Libro(Leer_Libro(libro, ""))) {
        QStringList trozos = linea.split('\t');
        if (trozos[4].isEmpty()) trozos[4] = "-";
        obtenidas << trozos.mid(0, 5).join(' ');
    }
    QCOMPARE(obtenidas.join('|'), lineas);
}

void TestLector_Biff::el_numero_abreviado_data()
{
    QTest::addColumn<quint32>("rk");
    QTest::addColumn<double>("numero");
    QTest::newRow("doble") << 0x3FF00000u << 1.0;
    QTest::newRow("doble en centésimas") << 0x40EBA9C1u << 566.5400390625 / 1;
    QTest::newRow("entero") << (1234u << 2 | 2) << 1234.0;
    QTest::newRow("entero negativo") << (quint32(-5) << 2 | 2) << -5.0;
    QTest::newRow("entero en centésimas") << (1234u << 2 | 3) << 12.34;
    QTest::newRow("el mayor") << 0x7FFFFFFEu << 536870911.0;
    QTest::newRow("el menor") << 0x80000002u << -536870912.0;
}

void TestLector_Biff::el_numero_abreviado()
{
    QFETCH(quint32, rk);
    QFETCH(double, numero);
    if (rk == 0x40EBA9C1u) // upper half of 56654.0039..., hundredths
        numero = std::bit_cast<double>(0x40EBA9C000000000ull) / 100;
    QCOMPARE(Leida(Libro([&](Salida_Biff& s) { s.Escribir(Rk{ORIGEN, rk}); })).numero, numero);
}

void TestLector_Biff::el_valor_de_una_formula()
{
    const auto formula = [](const QByteArray& valor,
                            const std::function<void(Salida_Biff&)>& sigue = {}) {
        return Leida(Libro([&](Salida_Biff& s) {
            s.Escribir_Como(FORMULA_BIFF58, ORIGEN, valor + QByteArray(8, '\0'));
            if (sigue) sigue(s);
        }));
    };
    QCOMPARE(formula(Bytes_De(F64(-7.5)).toByteArray()), Celda::De(-7.5));
    QCOMPARE(formula(Valor_De_Clase(LOGICO, 1)), Celda::De(1.0));
    QCOMPARE(formula(Valor_De_Clase(Clase_Valor::ERROR, 0x2A)), Celda::De("#N/A"));
    QCOMPARE(formula(Valor_De_Clase(VACIO, 0)), Celda::De(""));
    QCOMPARE(formula(Valor_De_Clase(TEXTO, 0)), Celda::De(""));
    constexpr quint16 SHRFMLA = 0x04BC;
    QCOMPARE(formula(Valor_De_Clase(TEXTO, 0),
                     [](Salida_Biff& s) {
                         s.Escribir_Bytes(SHRFMLA, "loquesea");
                         s.Escribir_Bytes(STRING, QByteArray("\x02\0\0ok", 5));
                     }),
             Celda::De("ok"));
    // A text that no formula waits for belongs to nothing.
    QCOMPARE(formula(Bytes_De(F64(1)).toByteArray(),
                     [](Salida_Biff& s) { s.Escribir_Bytes(STRING, QByteArray("\x02\0\0no", 5)); }),
             Celda::De(1.0));
}

void TestLector_Biff::el_texto_de_una_formula_sigue_en_otro_registro()
{
    const QByteArray libro = Libro([](Salida_Biff& s) {
        s.Escribir_Como(FORMULA_BIFF58, ORIGEN, Valor_De_Clase(TEXTO, 0));
        s.Escribir_Bytes(STRING, QByteArray("\x06\0\0ab", 5));
        s.Escribir_Bytes(CONTINUE, QByteArray("\x01\xAC\x20", 3));
        s.Escribir_Bytes(CONTINUE, QByteArray());
        s.Escribir_Bytes(CONTINUE, QByteArray("\0xyz", 4));
    });
    QCOMPARE(Leida(libro).texto, QString("ab€xyz"));
}

void TestLector_Biff::los_textos_compartidos_con_tramos()
{
    // A rich text whose runs go on in the next record, one with Asian settings, a plain one.
    QByteArray tabla = Bytes_De(Sst{quint32(3), quint32(3)}).toByteArray();
    tabla += QByteArray("\x03\0\x08\x01\0abc\x01", 9);
    QByteArray sigue("\0\x01\0", 3);
    sigue += QByteArray("\x02\0\x05\x03\0\0\0\x61\0\xAC\x20@@@", 14);
    sigue += QByteArray("\x01\0\0z", 4);
    const QByteArray libro = Libro(
        [](Salida_Biff& s) {
            for (quint16 c = 0; c < 3; ++c)
                s.Escribir(LabelSst{{quint16(0), c, quint16(0)}, quint32(c)});
        },
        [&](Salida_Biff& s) {
            s.Escribir_Bytes(Sst::ID, tabla);
            s.Escribir_Bytes(CONTINUE, sigue);
        });
    QCOMPARE(Leida(libro, 0, 0).texto, QString("abc"));
    QCOMPARE(Leida(libro, 0, 1).texto, QString("a€"));
    QCOMPARE(Leida(libro, 0, 2).texto, QString("z"));
}

void TestLector_Biff::los_textos_de_la_forma_de_1995()
{
    const auto con_pagina = [](quint16 pagina, const QByteArray& texto) {
        return Libro(
            [&](Salida_Biff& s) {
                s.Escribir(Label{ORIGEN, quint16(texto.size())}, texto);
            },
            [&](Salida_Biff& s) { s.Escribir_Como(CODEPAGE, U16(pagina)); }, true);
    };
    QCOMPARE(Leida(con_pagina(1252, "a\xF1o \x80")).texto, QString("año €"));
    QCOMPARE(Leida(con_pagina(0x8001, "a\xF1o")).texto, QString("año"));
    QCOMPARE(Leida(con_pagina(437, "llano")).texto, QString("llano"));
    QCOMPARE(Numero_De_Error([&] { Leida(con_pagina(437, "a\xA4o")); }), 3274);
    const QByteArray con_tramos = Libro(
        [](Salida_Biff& s) {
            s.Escribir_Como(RSTRING, ORIGEN, QByteArray("\x02\0ab\x01\0\0", 7));
            s.Escribir_Como(FORMULA_BIFF58, Lugar_Celda{quint16(0), quint16(1), quint16(0)},
                            Valor_De_Clase(TEXTO, 0));
            s.Escribir_Bytes(STRING, QByteArray("\x02\0\xD1!", 4));
        },
        {}, true);
    QCOMPARE(Leida(con_tramos).texto, QString("ab"));
    QCOMPARE(Leida(con_tramos, 0, 1).texto, QString("Ñ!"));
}

void TestLector_Biff::un_dibujo_en_la_hoja_se_salta()
{
    constexpr quint16 DIBUJO = 0x0020;
    const QByteArray libro = Libro([](Salida_Biff& s) {
        s.Escribir_Como(BOF_BIFF58, Bof_8{VERSION_BIFF8, DIBUJO, quint16(0), quint16(0), quint32(0),
                                          quint32(0)});
        s.Escribir(Number{ORIGEN, 99.0});
        s.Escribir_Bytes(END_OF_FILE);
        s.Escribir(Number{{quint16(0), quint16(1), quint16(0)}, 5.0});
    });
    QCOMPARE(Leida(libro, 0, 0), Celda());
    QCOMPARE(Leida(libro, 0, 1).numero, 5.0);
}

void TestLector_Biff::las_hojas_que_no_son_de_calculo_se_saltan()
{
    constexpr quint8 GRAFICO = 2;
    const QByteArray libro = Libro([](Salida_Biff&) {}, {}, false, GRAFICO);
    try {
        Leer_Libro(libro, "");
        QFAIL("accepted");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 3274);
        QCOMPARE(e.descripcion, QString("El libro no tiene hojas de cálculo"));
    }
}

void TestLector_Biff::lo_que_no_es_un_libro_se_rechaza_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("mensaje");
    const QString otro = "El fichero no es un libro de Excel 3.0 a 2003";
    QTest::newRow("nada") << QByteArray() << otro;
    QTest::newRow("tres bytes") << QByteArray("abc") << otro;
    QTest::newRow("texto") << QByteArray("Punto\tCota\r\n1\t2\r\n") << otro;
    QTest::newRow("BIFF2") << QByteArray("\x09\0\x04\0\x02\0\x10\0", 8) << otro;
    QTest::newRow("hoja de macros") << QByteArray("\x09\x02\x06\0\0\0\x40\0\0\0", 10) << otro;
    QTest::newRow("zip") << QByteArray("PK\3\4....")
                         << "El fichero es un libro comprimido (.xlsx, .ods): guárdelo antes como "
                            "libro de Excel 97-2003";
    QTest::newRow("otro OLE") << Escribir_Ole("WordDocument", QByteArray(5000, 'x'), {})
                              << "El fichero no contiene ningún libro de Excel";
    QTest::newRow("con contraseña")
        << Libro([](Salida_Biff&) {}, [](Salida_Biff& s) { s.Escribir_Bytes(FILEPASS, "......"); })
        << "El libro está protegido con una contraseña";
}

void TestLector_Biff::lo_que_no_es_un_libro_se_rechaza()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, mensaje);
    try {
        Leer_Libro(bytes, "");
        QFAIL("accepted");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 3274);
        QCOMPARE(e.descripcion, mensaje);
    }
}

void TestLector_Biff::un_registro_danado_se_rechaza_data()
{
    QTest::addColumn<QByteArray>("libro");
    const auto hoja = [](const char* nombre, quint16 id, const QByteArray& cuerpo) {
        QTest::newRow(nombre) << Libro([&](Salida_Biff& s) { s.Escribir_Bytes(id, cuerpo); });
    };
    const auto global = [](const char* nombre, quint16 id, const QByteArray& cuerpo) {
        QTest::newRow(nombre) << Libro([](Salida_Biff&) {},
                                       [&](Salida_Biff& s) { s.Escribir_Bytes(id, cuerpo); });
    };
    const QByteArray lugar(6, '\0');
    hoja("NUMBER corto", Number::ID, lugar + "1234567");
    hoja("NUMBER infinito", Number::ID, lugar + QByteArray("\0\0\0\0\0\0\xF0\x7F", 8));
    hoja("columna 257", Number::ID, QByteArray("\0\0\0\x01\0\0", 6) + QByteArray(8, '\0'));
    hoja("LABEL sin texto", Label::ID, lugar);
    hoja("LABEL más largo que el registro", Label::ID, lugar + QByteArray("\xFF\xFF\0abc", 6));
    hoja("LABEL ancho impar", Label::ID, lugar + QByteArray("\x01\0\x01\x61", 4));
    hoja("texto que no existe", LabelSst::ID, lugar + QByteArray(4, '\0'));
    hoja("MULRK corto", MULRK, QByteArray("\0\0\0\0\0\0\0\0\0\0\xFF\0", 12));
    hoja("MULRK vacío", MULRK, QByteArray("\0", 1));
    hoja("MULBLANK corto", MULBLANK, QByteArray("\0\0\0\0\xFF\0", 6));
    hoja("error desconocido", BoolErr::ID, lugar + QByteArray("\x55\x01", 2));
    hoja("fórmula sin valor", FORMULA_BIFF58, lugar + "1234567");
    hoja("fórmula de clase desconocida", FORMULA_BIFF58, lugar + Valor_De_Clase(9, 0));
    hoja("DIMENSIONS corto", Dimensions_8::ID, QByteArray(13, '\0'));
    hoja("COLINFO corto", ColInfo::ID, QByteArray(9, '\0'));
    global("BOUNDSHEET fuera", BoundSheet::ID, QByteArray("\0\0\x01\0\0\0\x01\0x", 9));
    global("BOUNDSHEET sobre otro registro", BoundSheet::ID,
           QByteArray("\x04\0\0\0\0\0\x01\0x", 9));
    global("nombre de hoja cortado", BoundSheet::ID, QByteArray("\0\0\0\0\0\0\x09\0x", 9));
    global("SST cortada", Sst::ID, QByteArray("\x02\0\0\0\x02\0\0\0\x01\0\0x", 12));
    global("SST con un número imposible", Sst::ID, QByteArray("\0\0\0\0\xFF\xFF\xFF\xFF", 8));
    global("FONT corto", Font_58::ID, QByteArray(5, '\0'));
    global("XF corto", Xf_8::ID, QByteArray(3, '\0'));
    global("CODEPAGE corto", CODEPAGE, QByteArray(1, '\0'));
    QByteArray sin_fin = Libro([](Salida_Biff&) {});
    sin_fin.chop(4);
    QTest::newRow("sin EOF") << sin_fin;
    QTest::newRow("registro más largo que el fichero")
        << sin_fin + QByteArray("\x03\x02\xFF\x7F", 4);
}

void TestLector_Biff::un_registro_danado_se_rechaza()
{
    QFETCH(QByteArray, libro);
    try {
        Leer_Libro(libro, "");
        QFAIL("accepted");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 3274);
        QVERIFY2(e.descripcion.startsWith("El libro está dañado: "), e.what());
    }
}

void TestLector_Biff::hojas_que_se_solapan()
{
    // Thousands of sheets that are all the same place would be read for hours.
    Salida_Biff cabeza;
    cabeza.Escribir_Como(BOF_BIFF58, Bof_5{VERSION_BIFF5, GLOBALES, quint16(0), quint16(0)});
    constexpr int HOJAS = 20000, LARGO_ANUNCIO = 12;
    const quint32 lugar = quint32(cabeza.Posicion()) + HOJAS * LARGO_ANUNCIO + 4;
    for (int i = 0; i < HOJAS; ++i)
        cabeza.Escribir(BoundSheet{lugar, 0, HOJA_NORMAL}, QByteArrayView("\x01h"));
    cabeza.Escribir_Bytes(END_OF_FILE);
    QCOMPARE(quint32(cabeza.Posicion()), lugar);
    cabeza.Escribir_Como(BOF_BIFF58, Bof_5{VERSION_BIFF5, HOJA_DE_CALCULO, quint16(0), quint16(0)});
    for (int i = 0; i < 20000; ++i)
        cabeza.Escribir(Number{ORIGEN, 1.0});
    cabeza.Escribir_Bytes(END_OF_FILE);
    try {
        Leer_Libro(cabeza.bytes, "");
        QFAIL("accepted");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.descripcion, QString("El libro está dañado: las hojas se solapan"));
    }
}

static Libro_Excel Libro_Pequeno()
{
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    for (int f = 0; f < 6; ++f)
        for (int c = 0; c < 4; ++c)
            if (c == 2)
                h.Poner(f, c, f * 1.25);
            else
                h.Poner(f, c, QString("%1 ñ %2").arg(f).arg(c));
    h.Poner_Negrita({0, 0, 0, 5});
    return libro;
}

void TestLector_Biff::cada_corte_data()
{
    QTest::addColumn<int>("version");
    for (const Forma_Excel& f : Formas_Excel())
        QTest::newRow(QStringView(f.nombre).toUtf8().data()) << int(f.version);
}

void TestLector_Biff::cada_corte()
{
    QFETCH(int, version);
    const Libro_Excel libro = Libro_Pequeno();
    const QStringList entero = Volcar_Libro(libro);
    const QByteArray fichero = Escribir_Libro(libro, Version_Excel(version));
    int rechazados = 0;
    for (qsizetype n = 0; n < fichero.size(); ++n)
        try {
            const Libro_Excel leido = Leer_Libro(QByteArrayView(fichero).first(n), "hoja1");
            QCOMPARE(Diferencia(Volcar_Libro(leido), entero), QString());
        } catch (const Error_Ejecucion& e) {
            QCOMPARE(e.numero, 3274);
            ++rechazados;
        }
    QVERIFY(rechazados > fichero.size() / 2);
}

void TestLector_Biff::bits_cambiados_data()
{
    cada_corte_data();
}

void TestLector_Biff::bits_cambiados()
{
    QFETCH(int, version);
    const QByteArray fichero = Escribir_Libro(Libro_Pequeno(), Version_Excel(version));
    QRandomGenerator azar(20031117u + quint32(version));
    int rechazados = 0;
    for (int vuelta = 0; vuelta < 4000; ++vuelta) {
        QByteArray roto = fichero;
        for (int k = 0; k <= vuelta % 3; ++k) {
            const qsizetype donde = azar.bounded(quint32(roto.size()));
            roto[donde] = char(roto[donde] ^ (1 << azar.bounded(8)));
        }
        try {
            const Libro_Excel leido = Leer_Libro(roto, "hoja1");
            QVERIFY(leido.Numero_Hojas() == 1);
            Volcar_Libro(leido);
        } catch (const Error_Ejecucion& e) {
            QCOMPARE(e.numero, 3274);
            QVERIFY(!e.descripcion.isEmpty());
            ++rechazados;
        }
    }
    QVERIFY(rechazados > 100);
}

// Inputs that a random search found to reach far into the reader.
void TestLector_Biff::los_hallazgos_no_vuelven()
{
    const QDir carpeta(DATOS_PRUEBA "/libros/hallazgos");
    const QStringList nombres = carpeta.entryList(QDir::Files);
    QVERIFY(!nombres.isEmpty());
    for (const QString& nombre : nombres) {
        QFile fichero(carpeta.filePath(nombre));
        QVERIFY(fichero.open(QIODevice::ReadOnly));
        const QByteArray bytes = fichero.readAll();
        const int error = Numero_De_Error([&] { Leer_Libro(bytes, ""); });
        QVERIFY2(error == 0 || error == 3274, qPrintable(nombre));
    }
}

PRUEBA(TestLector_Biff)
#include "TestLector_Biff.moc"
