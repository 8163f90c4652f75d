#include "export/impresion/Paginas.h"
#include "tests/apoyo/Prueba.h"

namespace {

Parrafo_RTF Linea(const QString& texto, bool subrayado = false, int medios = 16)
{
    Parrafo_RTF parrafo;
    if (!texto.isEmpty()) parrafo.tramos = {{texto, "Courier New", medios, false, subrayado}};
    parrafo.medios_puntos = medios;
    return parrafo;
}

QString Texto(const Renglon_Pagina& renglon)
{
    QString texto;
    for (const Tramo_RTF& tramo : renglon.tramos)
        texto += tramo.texto;
    return texto;
}

} // namespace

class TestPaginas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_fila_una_vez_y_los_titulos_en_cada_hoja();
    void ningun_renglon_se_sale_del_papel();
    void lo_ancho_sigue_en_el_siguiente();
    void lo_centrado_queda_en_medio();
    void sin_nada_hay_una_hoja();
    void cien_caracteres_caben_de_pie();
};

void TestPaginas::cada_fila_una_vez_y_los_titulos_en_cada_hoja()
{
    QList<Parrafo_RTF> documento = {Linea("TÍTULO", false, 28), Linea("CAB", true)};
    for (int i = 0; i < 500; ++i)
        documento << Linea(QString::number(i));
    documento << Linea("RESUMEN", true);
    const QList<Pagina> paginas = Cortar_Paginas(documento, Papel::A4(false));
    QVERIFY(paginas.size() > 3);
    QStringList filas;
    for (qsizetype p = 0; p < paginas.size(); ++p) {
        int cabeceras = 0;
        for (const Renglon_Pagina& renglon : paginas[p]) {
            if (Texto(renglon) == "CAB")
                ++cabeceras;
            else
                filas << Texto(renglon);
        }
        QCOMPARE(cabeceras, 1);
        if (p > 0) QCOMPARE(Texto(paginas[p].first()), QString("CAB"));
    }
    QCOMPARE(filas.size(), 502);
    for (int i = 0; i < 500; ++i)
        QCOMPARE(filas[i + 1], QString::number(i));
}

void TestPaginas::ningun_renglon_se_sale_del_papel()
{
    for (const bool apaisado : {false, true}) {
        const Papel papel = Papel::A4(apaisado);
        QCOMPARE(papel.ancho > papel.alto, apaisado);
        QList<Parrafo_RTF> documento;
        for (int i = 0; i < 300; ++i)
            documento << Linea(QString(i, u'x'), false, 12 + i % 20);
        for (const Pagina& pagina : Cortar_Paginas(documento, papel))
            for (const Renglon_Pagina& r : pagina) {
                QVERIFY(r.y >= papel.margen && r.y + r.alto <= papel.alto - papel.margen + 0.01);
                double ancho = 0;
                for (const Tramo_RTF& t : r.tramos)
                    ancho += double(t.texto.size()) * t.medios_puntos / 2 * ANCHO_LETRA;
                QVERIFY(r.x + ancho <= papel.ancho - papel.margen + 0.5);
            }
    }
}

void TestPaginas::lo_ancho_sigue_en_el_siguiente()
{
    QString larga;
    for (int i = 0; i < 250; ++i)
        larga += QChar(u'a' + i % 26);
    const QList<Pagina> paginas = Cortar_Paginas({Linea(larga)}, Papel::A4(false));
    QCOMPARE(paginas.size(), 1);
    QCOMPARE(paginas[0].size(), 3);
    QCOMPARE(Texto(paginas[0][0]) + Texto(paginas[0][1]) + Texto(paginas[0][2]), larga);
    QVERIFY(paginas[0][1].y > paginas[0][0].y);
}

void TestPaginas::lo_centrado_queda_en_medio()
{
    Parrafo_RTF parrafo = Linea("ABCD", false, 20);
    parrafo.centrado = true;
    const Papel papel = Papel::A4(false);
    const Pagina pagina = Cortar_Paginas({parrafo}, papel).first();
    QCOMPARE(pagina[0].x + 4 * 10 * ANCHO_LETRA / 2, papel.ancho / 2);
}

void TestPaginas::sin_nada_hay_una_hoja()
{
    const QList<Pagina> paginas = Cortar_Paginas({}, Papel::A4(false));
    QCOMPARE(paginas.size(), 1);
    QVERIFY(paginas[0].isEmpty());
}

void TestPaginas::cien_caracteres_caben_de_pie()
{
    // What isn't wide enough to lie on its side has to fit upright.
    QCOMPARE(Cortar_Paginas({Linea(QString(110, u'x'))}, Papel::A4(false))[0].size(), 1);
    QCOMPARE(Cortar_Paginas({Linea(QString(160, u'x'))}, Papel::A4(true))[0].size(), 1);
}

PRUEBA(TestPaginas)
#include "TestPaginas.moc"
