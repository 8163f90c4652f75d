#include "export/impresion/Lector_RTF.h"
#include "export/impresion/Texto_RTF.h"
#include "tests/apoyo/Prueba.h"

#include <random>

class TestLector_RTF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_escapado_vuelve_como_era();
    void parrafos_y_tramos();
    void una_palabra_se_come_un_blanco();
    void pard_quita_el_centrado();
    void un_texto_roto_no_lo_rompe();
};

static QByteArray Con_Cabeza(const QByteArray& cuerpo)
{
    return QByteArray(RTF::ABRIR) + "\r\n" + RTF::COLORES + "\r\n" + cuerpo + "\\par }\r\n";
}

void TestLector_RTF::lo_escapado_vuelve_como_era()
{
    const QString datos = "a\\b{c}Ñandú º € fin";
    QByteArray rtf;
    RTF::Agregar(rtf, datos);
    QCOMPARE(rtf, QByteArray("a\\\\b\\{c\\}\\'d1and\\'fa \\'ba \\'80 fin"));
    QCOMPARE(Leer_RTF(Con_Cabeza(rtf)).first().Texto(), datos);
    rtf.clear();
    RTF::Agregar(rtf, u"\r\n\t中");
    QCOMPARE(rtf, QByteArray("   ?"));
    for (int c = ' '; c < 256; ++c) {
        if (c == 127) continue;
        QByteArray uno;
        RTF::Agregar(uno, QString(QChar(c < 128 || c > 159 ? c : 'x')));
        QCOMPARE(Leer_RTF(Con_Cabeza(uno)).first().Texto().size(), 1);
    }
}

void TestLector_RTF::parrafos_y_tramos()
{
    const auto parrafos =
        Leer_RTF(Con_Cabeza("\\deflang1034\\pard\\qc\\plain\\f2\\fs28\\b Hola\r\n"
                            "\\par \\pard\\plain\\f2\\fs16\\b\\ul X\\plain\\f2\\fs16\\b    Y\r\n"
                            "\\par \\par \\pard\\plain\\f0\\fs0\\b \r\n"));
    QCOMPARE(parrafos.size(), 4);
    QVERIFY(parrafos[0].centrado && !parrafos[1].centrado);
    QCOMPARE(parrafos[0].tramos, (QList<Tramo_RTF>{{"Hola", "Courier New", 28, true, false}}));
    QCOMPARE(parrafos[1].tramos, (QList<Tramo_RTF>{{"X", "Courier New", 16, true, true},
                                                   {"   Y", "Courier New", 16, true, false}}));
    QVERIFY(parrafos[1].Subrayado() && !parrafos[0].Subrayado());
    QVERIFY(parrafos[2].tramos.isEmpty());
    QCOMPARE(parrafos[2].medios_puntos, 16);
    QCOMPARE(parrafos[3].medios_puntos, 0);
}

void TestLector_RTF::una_palabra_se_come_un_blanco()
{
    const auto parrafos = Leer_RTF(Con_Cabeza("\\pard\\plain\\f2\\fs16  A\\b  B\\b0C \\{"));
    QCOMPARE(parrafos.size(), 1);
    QCOMPARE(parrafos[0].Texto(), QString(" A BC {"));
    QVERIFY(!parrafos[0].tramos.last().negrita);
}

void TestLector_RTF::pard_quita_el_centrado()
{
    const auto parrafos = Leer_RTF(Con_Cabeza("\\pard\\qc A\\par B\\par \\pard C"));
    QCOMPARE(parrafos.size(), 3);
    QVERIFY(parrafos[0].centrado && parrafos[1].centrado && !parrafos[2].centrado);
}

void TestLector_RTF::un_texto_roto_no_lo_rompe()
{
    const QByteArray entero = Con_Cabeza("\\pard\\plain\\f2\\fs16 A\\'d1\\{\\}\\\\ B");
    for (qsizetype n = 0; n <= entero.size(); ++n)
        Leer_RTF(entero.left(n));
    std::mt19937 azar(3);
    for (int v = 0; v < 3000; ++v) {
        QByteArray roto = entero;
        roto[qsizetype(azar() % quint32(roto.size()))] = char(azar());
        Leer_RTF(roto);
    }
    QVERIFY(Leer_RTF({}).isEmpty());
}

PRUEBA(TestLector_RTF)
#include "TestLector_RTF.moc"
