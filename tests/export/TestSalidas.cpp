#include "core/ModEstTotal.h"
#include "export/Peticiones_Exportar.h"
#include "export/Salidas.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Global.h"

#include <QDir>

class TestSalidas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { Peticiones_De_Exportar() = {}; }
    void cleanup() { Peticiones_De_Exportar() = {}; }
    void las_filas_son_las_que_son();
    void cada_fila_tiene_lo_suyo();
    void cada_escritor_tiene_su_patron();
    void se_hallan_por_tipo_y_por_opcion();
    void la_familia_en_vigor_decide_data();
    void la_familia_en_vigor_decide();
    void se_ofrece_lo_que_se_puede();
};

void TestSalidas::las_filas_son_las_que_son()
{
    QStringList tipos, palabras;
    for (const Salida_Exportar& s : Salidas_Exportar()) {
        tipos << s.tipo;
        palabras << s.palabra;
    }
    QCOMPARE(tipos, (QStringList{"TxF", "Txt", "Xls", "DXF", "mdb", "Papel"}));
    QCOMPARE(palabras, (QStringList{"txf", "txt", "xls", "dxf", "mdb", ""}));
}

void TestSalidas::cada_fila_tiene_lo_suyo()
{
    QSet<QString> tipos, palabras;
    int siguiente = 0;
    for (const Salida_Exportar& s : Salidas_Exportar()) {
        QVERIFY2(!tipos.contains(s.tipo.toLower()), qPrintable(s.tipo));
        tipos << s.tipo.toLower();
        if (!s.palabra.isEmpty()) {
            QVERIFY2(!palabras.contains(s.palabra), qPrintable(s.palabra));
            QCOMPARE(s.palabra, s.palabra.toLower());
            palabras << s.palabra;
        }
        // The list of buttons is that of the rows.
        if (s.opcion >= 0) {
            QCOMPARE(s.opcion, siguiente++);
            QVERIFY2(!s.rotulo.isEmpty() && !s.etiqueta.isEmpty() && !s.extension.isEmpty(),
                     qPrintable(s.tipo));
        }
        QVERIFY2(!(s.dialogo && (s.escribir || s.escribir_nivel)), qPrintable(s.tipo));
        QVERIFY2(!(s.pide_separador && s.pide_version), qPrintable(s.tipo));
    }
    for (const Salida_Exportar* s : Salidas_Por_Palabra())
        QVERIFY2(!s->palabra.isEmpty() && s->opcion >= 0, qPrintable(s->tipo));
}

void TestSalidas::cada_escritor_tiene_su_patron()
{
    const QDir patrones(QString(DATOS_PRUEBA) + "/export");
    const auto hay = [&](const QString& nombre) {
        for (const QFileInfo& fichero : patrones.entryInfoList({nombre}, QDir::Files))
            if (fichero.size() > 0) return true;
        return false;
    };
    int escritores = 0;
    for (const Salida_Exportar& s : Salidas_Exportar()) {
        const QString familia = s.palabra.isEmpty() ? s.tipo.toLower() : s.palabra;
        if (s.escribir)
            QVERIFY2(++escritores && hay(familia + "_*"), qPrintable("no golden file: " + s.tipo));
        if (s.escribir_nivel)
            QVERIFY2(hay("nivel_" + familia + "_*"),
                     qPrintable("no golden file: level, " + s.tipo));
    }
    QVERIFY(escritores >= 2);
}

void TestSalidas::se_hallan_por_tipo_y_por_opcion()
{
    for (const char* tipo : {"TxF", "TXF", "txf"})
        QCOMPARE(Salida_De(tipo), &Salidas_Exportar()[0]);
    for (const char* tipo : {"", "pdf", "tx", "txff", "txf "})
        QVERIFY2(!Salida_De(tipo), tipo);
    QCOMPARE(Salida_De_Opcion(3), Salida_De("dxf"));
    for (const int opcion : {-1, 5, 99})
        QVERIFY(!Salida_De_Opcion(opcion));
}

void TestSalidas::la_familia_en_vigor_decide_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<bool>("nivel");
    for (const Familia& familia : Familias())
        QTest::newRow(qPrintable(familia.clave))
            << familia.clave << (familia.serie == Serie::Nivel);
    QTest::newRow("none") << QString() << false;
}

void TestSalidas::la_familia_en_vigor_decide()
{
    QFETCH(QString, clave);
    QFETCH(bool, nivel);
    const Sala_Global sala;
    Clave_Estacion = clave;
    const Modo_Salida& modo = Modo_En_Vigor();
    QCOMPARE(modo.campos_con_marca, nivel);
    QCOMPARE(modo.letra_fija, nivel);
    QVERIFY(modo.formatear);
    for (const Salida_Exportar& s : Salidas_Exportar())
        QVERIFY2(Escritor_De(s.tipo) == (nivel ? s.escribir_nivel : s.escribir),
                 qPrintable(s.tipo));
    QVERIFY(!Escritor_De("pdf"));
}

void TestSalidas::se_ofrece_lo_que_se_puede()
{
    const Sala_Global sala;
    Clave_Estacion = "KRT300";
    const Salida_Exportar &texto = *Salida_De("TxF"), &dibujo = *Salida_De("DXF");
    QVERIFY(Se_Ofrece(texto, "MÍO") && Se_Ofrece(texto, ""));
    QVERIFY(!Se_Ofrece(dibujo, "NXYZ"));
    Peticiones_De_Exportar().Abrir_DXF = [](const Trabajo_Exportar&) {};
    QVERIFY(Se_Ofrece(dibujo, "NXYZ") && !Se_Ofrece(dibujo, "MÍO"));
}

PRUEBA(TestSalidas)
#include "TestSalidas.moc"
