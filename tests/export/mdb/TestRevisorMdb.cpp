#include "export/mdb/Base_Jet.h"
#include "tests/apoyo/Prueba.h"
#include "tools/revisar_mdb/Revisor.h"

#include <QBuffer>

// The examiner must complain of damage anywhere, or its silence over our files says nothing.
class TestRevisorMdb : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void se_queja_de_cada_byte_tocado_data();
    void se_queja_de_cada_byte_tocado();
    void se_queja_de_un_fichero_cortado();
    void se_queja_de_paginas_cambiadas();
    void nada_roto_lo_hace_caer();
};

static constexpr int PAGINA = 4096;

static QByteArray Escribir(const QList<Columna_Texto>& columnas, const QList<QStringList>& filas)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino);
    base.Crear_Tabla("Datos", columnas);
    for (const QStringList& fila : filas)
        base.Anadir_Fila(fila);
    base.Cerrar();
    return destino.data();
}

static QByteArray Pequena()
{
    return Escribir({{.nombre = "Punto"}, {.nombre = "Cota", .comprimida = false}},
                    {{"Esquina", "abc"}, {"12", ""}, {"Pozo €", "100.5"}});
}

// Properties in a chain, a definition of several pages.
static QByteArray Ancha()
{
    QList<Columna_Texto> columnas;
    QStringList fila;
    for (int i = 0; i < 70; ++i) {
        columnas.append({.nombre = QStringLiteral("Columna número %1").arg(i)});
        fila << QString();
    }
    return Escribir(columnas, {fila});
}

void TestRevisorMdb::se_queja_de_cada_byte_tocado_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<int>("desde");
    QTest::addColumn<int>("hasta");
    const QByteArray pequena = Pequena(), ancha = Ancha();
    for (int p = 0; p < pequena.size() / PAGINA - 1; ++p)
        QTest::addRow("página %d", p) << pequena << p * PAGINA << (p + 1) * PAGINA;
    QTest::newRow("datos") << pequena << 19 * PAGINA << 19 * PAGINA + 20;
    for (int p = 17; p < ancha.size() / PAGINA - 1; ++p)
        QTest::addRow("ancha %d", p) << ancha << p * PAGINA << (p + 1) * PAGINA;
}

void TestRevisorMdb::se_queja_de_cada_byte_tocado()
{
    QFETCH(QByteArray, fichero);
    QFETCH(int, desde);
    QFETCH(int, hasta);
    constexpr int ENTRE_CEROS = 97; // bytes without use are tried now and then
    for (int i = desde; i < hasta; ++i) {
        if (fichero[i] == 0 && i % ENTRE_CEROS != 0) continue;
        fichero[i] = char(fichero[i] ^ 1);
        QVERIFY2(!Revisar_Mdb(fichero).isEmpty(),
                 qPrintable(QStringLiteral("byte %1").arg(i - desde, 0, 16)));
        fichero[i] = char(fichero[i] ^ 1);
    }
}

void TestRevisorMdb::se_queja_de_un_fichero_cortado()
{
    const QByteArray entero = Pequena();
    QCOMPARE(Revisar_Mdb(entero), QStringList());
    for (const qsizetype largo : {qsizetype(0), qsizetype(1), qsizetype(PAGINA), entero.size() - 1,
                                  entero.size() - PAGINA, entero.size() / 2})
        QVERIFY(!Revisar_Mdb(entero.first(largo)).isEmpty());
    QVERIFY(!Revisar_Mdb(entero + QByteArray(PAGINA, '\0')).isEmpty());
}

void TestRevisorMdb::se_queja_de_paginas_cambiadas()
{
    const QByteArray entero = Pequena();
    const qsizetype paginas = entero.size() / PAGINA;
    for (qsizetype a = 0; a < paginas; ++a)
        for (qsizetype b = a + 1; b < paginas; ++b) {
            const QByteArray de_a = entero.mid(a * PAGINA, PAGINA);
            const QByteArray de_b = entero.mid(b * PAGINA, PAGINA);
            if (de_a == de_b) continue;
            QByteArray roto = entero;
            roto.replace(a * PAGINA, PAGINA, de_b).replace(b * PAGINA, PAGINA, de_a);
            QVERIFY2(!Revisar_Mdb(roto).isEmpty(), qPrintable(QString::number(a * 100 + b)));
        }
}

// Whatever stands in the file, the examiner ends, and with complaints. The damage is the same in
// every run.
void TestRevisorMdb::nada_roto_lo_hace_caer()
{
    for (const QByteArray& entero : {Pequena(), Ancha()}) {
        quint32 azar = 12345;
        const auto siguiente = [&azar](quint32 tope) {
            azar = azar * 1664525 + 1013904223;
            return (azar >> 8) % tope;
        };
        for (int vez = 0; vez < 300; ++vez) {
            QByteArray roto = entero;
            for (int k = 0; k < 20; ++k) {
                const qsizetype pagina = siguiente(quint32(entero.size() / PAGINA));
                const qsizetype lugar = siguiente(vez % 2 ? 0x100 : PAGINA);
                roto[pagina * PAGINA + lugar] = char(siguiente(256));
            }
            QVERIFY(!Revisar_Mdb(roto).isEmpty());
        }
    }
}

PRUEBA(TestRevisorMdb)
#include "TestRevisorMdb.moc"
