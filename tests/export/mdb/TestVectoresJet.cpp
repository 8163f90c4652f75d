#include "export/mdb/Base_Jet.h"
#include "tests/apoyo/Prueba.h"
#include "tools/revisar_mdb/Revisor.h"

#include <bit>
#include <QBuffer>

// Check sums of every page of three small databases of one creation date: they hold each byte of
// the form fast. The first agrees with a file of the engine's own making, but for the bytes that
// the engine leaves to chance, which are zero here.
class TestVectoresJet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sin_tablas();
    void tres_columnas();
    void todas_las_columnas();
};

static Ajustes_Jet Ajustes()
{
    Ajustes_Jet ajustes;
    ajustes.fecha = std::bit_cast<double>(quint64(0x40E4AB3E3BD3853E));
    return ajustes;
}

static quint32 Crc32(QByteArrayView bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char b : bytes) {
        crc ^= static_cast<uchar>(b);
        for (int k = 0; k < 8; ++k)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

static void Comparar(const QByteArray& fichero, const QMap<int, quint32>& esperadas)
{
    constexpr int PAGINA = 4096;
    QCOMPARE(Revisar_Mdb(fichero), QStringList());
    for (auto it = esperadas.begin(); it != esperadas.end(); ++it) {
        const quint32 crc = Crc32(QByteArrayView(fichero).sliced(it.key() * PAGINA, PAGINA));
        QVERIFY2(
            crc == it.value(),
            qPrintable(
                QStringLiteral("page %1: %2").arg(it.key()).arg(crc, 8, 16, QLatin1Char('0'))));
    }
}

static QList<Columna_Texto> Columnas(const QStringList& nombres)
{
    QList<Columna_Texto> columnas;
    for (const QString& nombre : nombres)
        columnas.append({.nombre = nombre, .comprimida = false});
    return columnas;
}

static const QMap<int, quint32> SIN_TABLAS = {
    {0, 0x69AAABE6},  {1, 0xF627D4C0},  {2, 0xBB9CC2EC},  {3, 0x5A5DA9A2},
    {4, 0xCC462A2A},  {5, 0xBC028C0A},  {6, 0xD2088285},  {7, 0xEAA9FDE4},
    {8, 0xF4C8CFC5},  {9, 0x589E9DA0},  {10, 0x40EF71E4}, {11, 0x5313D8FA},
    {12, 0x5313D8FA}, {13, 0x5313D8FA}, {14, 0xD34D04F7}, {15, 0x8F1821FE}};

void TestVectoresJet::sin_tablas()
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino, Ajustes());
    base.Cerrar();
    QCOMPARE(destino.size(), 16 * 4096);
    Comparar(destino.data(), SIN_TABLAS);
}

void TestVectoresJet::tres_columnas()
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino, Ajustes());
    base.Crear_Tabla("Datos", Columnas({"Punto", "Cota", "Código"}));
    base.Anadir_Fila({"1", "100.5", "Esquina"});
    const Celda_Jet segunda[] = {QStringView(u"2"), QStringView(u""), std::nullopt};
    base.Anadir_Fila(segunda);
    QCOMPARE(base.Filas(), 2);
    base.Cerrar();
    QCOMPARE(destino.size(), 20 * 4096);
    QMap<int, quint32> esperadas = {
        {1, 0xF20E6955},  {2, 0x78AAF812},  {3, 0x7CD3C493},  {6, 0x0F368CF5},  {7, 0xD084DDD3},
        {8, 0x305A5A35},  {9, 0xE5CCFEAD},  {14, 0x1D3F052F}, {15, 0x35B2BD4D}, {16, 0x2BEE1457},
        {17, 0x9962CD4C}, {18, 0x0AF78C17}, {19, 0x3827FC32}};
    for (const int igual : {0, 4, 5, 10, 11, 12, 13})
        esperadas[igual] = SIN_TABLAS[igual];
    Comparar(destino.data(), esperadas);
}

void TestVectoresJet::todas_las_columnas()
{
    QStringList nombres, celdas;
    for (int i = 0; i < 255; ++i) {
        nombres << "Campo" + QString::number(i + 1);
        celdas << QString::number(i);
    }
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    Base_Jet base(destino, Ajustes());
    base.Crear_Tabla("Datos", Columnas(nombres));
    base.Anadir_Fila(celdas);
    base.Cerrar();
    QCOMPARE(destino.size(), 24 * 4096);
    Comparar(destino.data(), {{16, 0x0DEBC011},
                              {17, 0x47ADD060},
                              {18, 0xB2CAB7A3},
                              {19, 0x60707103},
                              {20, 0x8C7C4243},
                              {21, 0xF6D07F6A},
                              {22, 0x92D439B3},
                              {23, 0xDEA4E9FC}});
}

PRUEBA(TestVectoresJet)
#include "TestVectoresJet.moc"
