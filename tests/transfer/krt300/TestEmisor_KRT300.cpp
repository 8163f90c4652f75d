#include "tests/apoyo/Prueba.h"
#include "transfer/krt300/Emisor_KRT300.h"
#include "transfer/krt300/Tramas_KRT300.h"

namespace {

const QByteArray APERTURA = "\x02"
                            "F00F000\x03\r\n";
const QByteArray CABECERA = "\x02"
                            "BARCELONA +123400002.01555510-209999S052\x03\r\n";
const QByteArray CIERRE = "\x02\x04\x03\r\n";

constexpr char ACK = 6, NAK = 21;

// Two points, whose sums were worked out by hand.
const QString DOS_PUNTOS = "_+P1        _ x+000500123_ y+000400456_ z+000010025"
                           "_+P2        _ x-000000500_ y+001234567_ z+000000000";

QByteArray Trama(const QByteArray& datos, char digito, const QByteArray& suma)
{
    return '\x02' + datos.leftJustified(128) + digito + suma + "\x03\r\n";
}

Datos_Envio Puntos(const QString& datos)
{
    return {ENVIO_COORDENADAS, Tramas_KRT300::Cabecera(), datos};
}

} // namespace

class TestEmisor_KRT300 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_puntos_van_trama_a_trama();
    void cuantos_bloques_data();
    void cuantos_bloques();
    void la_secuencia_da_la_vuelta();
    void una_libreria_empieza_por_su_primer_bloque();
    void lo_demas_no_se_atiende();
    void un_rechazo_repite_la_ultima();
    void el_sexto_rechazo_acaba_y_calla();
    void una_aceptacion_borra_la_cuenta();
    void el_silencio_y_los_rechazos_van_en_una_cuenta();
    void el_resumen_cuenta();
};

void TestEmisor_KRT300::los_puntos_van_trama_a_trama()
{
    Emisor_KRT300 e(Puntos(DOS_PUNTOS));
    QCOMPARE(e.Maximo(), 1);
    QCOMPARE(e.Plazo(), 10000);
    Paso_Envio p = e.Empezar_Envio();
    QCOMPARE(p.envia, APERTURA);
    QCOMPARE(p.etiqueta, QString("Inicio de Envío"));
    QCOMPARE(p.traza, QStringList{QString::fromLatin1(APERTURA)});
    p = e.Siguiente_Envio(ACK);
    QCOMPARE(p.envia, CABECERA);
    QCOMPARE(p.etiqueta, QString("Enviando Datos..."));
    QCOMPARE(p.barra, 0);
    p = e.Siguiente_Envio(ACK);
    QCOMPARE(p.envia, Trama(DOS_PUNTOS.toLatin1(), '0', "048"));
    QCOMPARE(p.barra, 1);
    QCOMPARE(p.fin, Fin_Envio::Sigue);
    p = e.Siguiente_Envio(ACK);
    QCOMPARE(p.envia, CIERRE);
    QCOMPARE(p.etiqueta, QString("Envio Finalizado"));
    QCOMPARE(p.fin, Fin_Envio::Hecho);
    QVERIFY(e.Siguiente_Envio(ACK).envia.isEmpty());
}

void TestEmisor_KRT300::cuantos_bloques_data()
{
    QTest::addColumn<int>("largo");
    QTest::addColumn<int>("bloques");
    QTest::addColumn<int>("maximo");
    QTest::newRow("sin datos") << 0 << 1 << 1;
    QTest::newRow("uno") << 1 << 1 << 1;
    QTest::newRow("casi un bloque") << 127 << 1 << 1;
    QTest::newRow("un bloque justo") << 128 << 2 << 2;
    QTest::newRow("uno y algo") << 129 << 2 << 2;
    QTest::newRow("dos justos") << 256 << 3 << 3;
    QTest::newRow("muchos") << 128 * 13 + 5 << 14 << 14;
}

// A text of whole blocks is followed by one of blanks.
void TestEmisor_KRT300::cuantos_bloques()
{
    QFETCH(int, largo);
    QFETCH(int, bloques);
    for (const int tipo : {ENVIO_COORDENADAS, ENVIO_LIBRERIA}) {
        Emisor_KRT300 e({tipo, Tramas_KRT300::Cabecera(), QString(largo, 'a')});
        QTEST(int(e.Maximo()), "maximo");
        QByteArray datos;
        int hay = 0;
        for (Paso_Envio p = e.Empezar_Envio(); p.fin == Fin_Envio::Sigue;
             p = e.Siguiente_Envio(ACK)) {
            QVERIFY(hay < 100);
            if (p.envia.size() != 1 + 128 + 1 + 3 + 3) continue;
            ++hay;
            datos += p.envia.mid(1, 128);
        }
        QCOMPARE(hay, bloques);
        QCOMPARE(datos, QByteArray(largo, 'a').leftJustified(bloques * 128));
    }
}

void TestEmisor_KRT300::la_secuencia_da_la_vuelta()
{
    Emisor_KRT300 e({ENVIO_LIBRERIA, {}, QString(128 * 12, ' ')});
    QByteArray digitos, sumas;
    for (Paso_Envio p = e.Empezar_Envio(); p.fin == Fin_Envio::Sigue; p = e.Siguiente_Envio(ACK)) {
        digitos += p.envia.at(129);
        sumas += p.envia.mid(130, 3) + ' ';
    }
    QCOMPARE(digitos, QByteArray("0123456789012"));
    QVERIFY(sumas.startsWith("048 049 050 051 "));
    QVERIFY(sumas.endsWith("057 048 049 050 "));
}

void TestEmisor_KRT300::una_libreria_empieza_por_su_primer_bloque()
{
    QString texto = "_:001ARBOL     _:002FAROLA    ";
    for (int n = 3; n <= 50; ++n)
        texto += QStringLiteral("_:%1          ").arg(n, 3, 10, QChar('0'));
    Emisor_KRT300 e({ENVIO_LIBRERIA, {}, texto});
    QCOMPARE(e.Maximo(), 6);
    const QList<QByteArray> sumas{"033", "078", "060", "085", "034", "068"};
    Paso_Envio p = e.Empezar_Envio();
    QCOMPARE(p.etiqueta, QString("Inicio de Envío"));
    for (int n = 0; n < 6; ++n) {
        QCOMPARE(p.envia, Trama(texto.mid(n * 128, 128).toLatin1(), char('0' + n), sumas[n]));
        p = e.Siguiente_Envio(ACK);
    }
    QCOMPARE(p.envia, CIERRE);
    QCOMPARE(p.fin, Fin_Envio::Hecho);
}

void TestEmisor_KRT300::lo_demas_no_se_atiende()
{
    Emisor_KRT300 e(Puntos({}));
    e.Empezar_Envio();
    for (int c = 0; c < 256; ++c) {
        if (c == ACK || c == NAK) continue;
        const Paso_Envio p = e.Siguiente_Envio(char(c));
        QVERIFY(p.envia.isEmpty() && p.etiqueta.isEmpty() && p.traza.isEmpty());
        QCOMPARE(p.barra, -1);
    }
    QCOMPARE(e.Siguiente_Envio(ACK).envia, CABECERA);
}

void TestEmisor_KRT300::un_rechazo_repite_la_ultima()
{
    Emisor_KRT300 e(Puntos(DOS_PUNTOS));
    const QByteArray tramas[] = {e.Empezar_Envio().envia, {}, {}};
    Paso_Envio p = e.Siguiente_Envio(NAK);
    QCOMPARE(p.envia, tramas[0]);
    QCOMPARE(p.traza, QStringList{QString::fromLatin1(tramas[0])});
    QCOMPARE(p.pausa, 100);
    QCOMPARE(e.Siguiente_Envio(ACK).envia, CABECERA);
    QCOMPARE(e.Siguiente_Envio(NAK).envia, CABECERA);
    const QByteArray bloque = e.Siguiente_Envio(ACK).envia;
    QCOMPARE(e.Siguiente_Envio(NAK).envia, bloque);
    QCOMPARE(e.Siguiente_Envio(NAK).envia, bloque);
    QCOMPARE(e.Siguiente_Envio(ACK).envia, CIERRE);
}

void TestEmisor_KRT300::el_sexto_rechazo_acaba_y_calla()
{
    Emisor_KRT300 e(Puntos(DOS_PUNTOS));
    e.Empezar_Envio();
    e.Siguiente_Envio(ACK);
    e.Siguiente_Envio(ACK);
    for (int i = 0; i < 5; ++i) {
        const Paso_Envio p = e.Siguiente_Envio(NAK);
        QVERIFY(!p.envia.isEmpty());
        QCOMPARE(p.fin, Fin_Envio::Sigue);
    }
    const Paso_Envio p = e.Siguiente_Envio(NAK);
    QVERIFY(p.envia.isEmpty());
    QCOMPARE(p.fin, Fin_Envio::Rechazado);
    QCOMPARE(p.etiqueta, QString("El aparato rechaza el bloque 1; no se enviará nada más"));
    QVERIFY(e.Siguiente_Envio(ACK).envia.isEmpty());
    QVERIFY(e.Siguiente_Envio(NAK).envia.isEmpty());
    QCOMPARE(e.Vencer().fin, Fin_Envio::Sigue);
}

void TestEmisor_KRT300::una_aceptacion_borra_la_cuenta()
{
    Emisor_KRT300 e(Puntos(QString(1000, 'a')));
    e.Empezar_Envio();
    for (int bloque = 0; bloque < 8; ++bloque) {
        for (int i = 0; i < 5; ++i)
            QCOMPARE(e.Siguiente_Envio(NAK).fin, Fin_Envio::Sigue);
        QCOMPARE(e.Siguiente_Envio(ACK).fin, Fin_Envio::Sigue);
    }
}

void TestEmisor_KRT300::el_silencio_y_los_rechazos_van_en_una_cuenta()
{
    // Five ticks alone.
    Emisor_KRT300 callado(Puntos({}));
    callado.Empezar_Envio();
    for (int i = 0; i < 4; ++i) {
        const Paso_Envio p = callado.Vencer();
        QVERIFY(p.envia.isEmpty());
        QCOMPARE(p.fin, Fin_Envio::Sigue);
    }
    QCOMPARE(callado.Vencer().fin, Fin_Envio::Sin_Respuesta);
    // Four refusals and a tick.
    Emisor_KRT300 terco(Puntos({}));
    terco.Empezar_Envio();
    for (int i = 0; i < 4; ++i)
        terco.Siguiente_Envio(NAK);
    QCOMPARE(terco.Vencer().fin, Fin_Envio::Sin_Respuesta);
    // A tick and five refusals: the fifth finds the count at its top.
    Emisor_KRT300 mixto(Puntos({}));
    mixto.Empezar_Envio();
    mixto.Vencer();
    for (int i = 0; i < 4; ++i)
        QCOMPARE(mixto.Siguiente_Envio(NAK).fin, Fin_Envio::Sigue);
    QCOMPARE(mixto.Siguiente_Envio(NAK).fin, Fin_Envio::Rechazado);
}

void TestEmisor_KRT300::el_resumen_cuenta()
{
    Emisor_KRT300 e(Puntos(QString(200, 'a')));
    e.Empezar_Envio();
    QCOMPARE(e.Resumen(), QString("Bloques enviados: 0 de 2; rechazos: 0; repeticiones: 0"));
    e.Siguiente_Envio(ACK);
    e.Siguiente_Envio(ACK);
    e.Siguiente_Envio(NAK);
    e.Siguiente_Envio(ACK);
    QCOMPARE(e.Resumen(), QString("Bloques enviados: 2 de 2; rechazos: 1; repeticiones: 1"));
    for (int i = 0; i < 6; ++i)
        e.Siguiente_Envio(NAK);
    QCOMPARE(e.Resumen(), QString("Bloques enviados: 2 de 2; rechazos: 7; repeticiones: 6"));
}

PRUEBA(TestEmisor_KRT300)
#include "TestEmisor_KRT300.moc"
