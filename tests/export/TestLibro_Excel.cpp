#include "export/excel/Escritor_Biff.h"
#include "export/excel/Fichero_Excel.h"
#include "export/excel/Lector_Biff.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/Volcado_Libro.h"

class TestLibro_Excel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_escrito_lo_lee_xlrd_data();
    void lo_escrito_lo_lee_xlrd();
};

void TestLibro_Excel::lo_escrito_lo_lee_xlrd_data()
{
    QTest::addColumn<int>("version");
    for (const Forma_Excel& f : Formas_Excel())
        QTest::addRow("%s", qPrintable(QStringView(f.nombre).toString())) << int(f.version);
}

void TestLibro_Excel::lo_escrito_lo_lee_xlrd()
{
    QFETCH(int, version);
    const auto v = Version_Excel(version);
    Libro_Excel libro;
    Hoja_Excel& h = libro.Agregar_Hoja("hoja1");
    h.Poner(0, 0, "Año");
    h.Poner(0, 1, "Ñandú €");
    h.Poner(1, 0, 12.5);
    h.Poner(1, 1, "");
    h.Poner(2, 5, QString(255, u'ü'));
    h.Poner_Negrita({0, 0, 0, 3});
    h.Poner_Como_Texto({5, 0, 40, 3});
    h.Poner_Ancho(1, 20);
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath("libro.xls");
    Guardar_Libro(libro, ruta, v);
    const QString unica = Forma_De(v).compuesto ? "" : "Sheet 1";
    QCOMPARE(Diferencia(Volcar_Con_Xlrd(ruta), Volcar_Libro(libro, unica)), QString());
    QCOMPARE(Diferencia(Volcar_Libro(Abrir_Libro(ruta), "x"), Volcar_Libro(libro, "x")), QString());
}

PRUEBA(TestLibro_Excel)
#include "TestLibro_Excel.moc"
