#include "core/Error_Ejecucion.h"
#include "export/excel/Archivo_Ole.h"
#include "export/excel/Estructura_Ole.h"
#include "tests/apoyo/Prueba.h"

#include <cstddef>

class TestArchivo_Ole : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_flujo_va_y_vuelve_data();
    void un_flujo_va_y_vuelve();
    void los_sectores_grandes_se_leen();
    void un_nombre_se_busca_sin_mayusculas();
    void lo_danado_se_rechaza_data();
    void lo_danado_se_rechaza();
    void un_fichero_cortado_se_rechaza_o_esta_entero();
};

static constexpr Clase_Ole SIN_CLASE{};

static QByteArray Flujo(qsizetype largo)
{
    QByteArray flujo(largo, 0);
    for (qsizetype i = 0; i < largo; ++i)
        flujo[i] = char(i * 7 + i / 251);
    return flujo;
}

void TestArchivo_Ole::un_flujo_va_y_vuelve_data()
{
    QTest::addColumn<int>("largo");
    // Around the mini sector, the sector, the mini stream's limit, a full table sector (128 links)
    // and the 109 table sectors that the header can name.
    for (const int largo : {0, 1, 63, 64, 65, 511, 512, 513, 4095, 4096, 4097, 127 * 512, 128 * 512,
                            129 * 512, 109 * 128 * 512, 110 * 128 * 512, 250 * 128 * 512})
        QTest::addRow("%d", largo) << largo;
}

void TestArchivo_Ole::un_flujo_va_y_vuelve()
{
    QFETCH(int, largo);
    const QByteArray flujo = Flujo(largo);
    const QByteArray fichero = Escribir_Ole("Libro", flujo, SIN_CLASE);
    QVERIFY(Lector_Ole::Es_Ole(fichero));
    QCOMPARE(fichero.size() % Ole::SECTOR, 0);
    QVERIFY(Lector_Ole(fichero).Leer("Libro") == flujo);
}

void TestArchivo_Ole::los_sectores_grandes_se_leen()
{
    constexpr qsizetype GRANDE = 4096;
    const auto pequeno = Escribir_Ole("Libro", Flujo(GRANDE), SIN_CLASE);
    auto cabecera = *Leer_Trazado<Ole::Cabecera>(pequeno);
    cabecera.major_version = Ole::VERSION_4;
    cabecera.sector_shift = Ole::BITS_SECTOR_V4;
    cabecera.first_dir_sector = 1;
    cabecera.difat[0] = 2;
    const auto en_sector = [](QByteArray bytes) { return bytes.leftJustified(GRANDE, '\0', true); };
    const QByteArray directorio =
        pequeno.mid((1 + GRANDE / Ole::SECTOR) * Ole::SECTOR, Ole::SECTOR);
    QByteArray fat;
    for (const quint32 enlace : {Ole::ENDOFCHAIN, Ole::ENDOFCHAIN, Ole::FATSECT})
        fat += Bytes_De(U32(enlace)).toByteArray();
    const QByteArray fichero = en_sector(Bytes_De(cabecera).toByteArray()) + Flujo(GRANDE) +
                               en_sector(directorio) + fat.leftJustified(GRANDE, char(0xFF));
    QVERIFY(Lector_Ole(fichero).Leer("Libro") == Flujo(GRANDE));
}

void TestArchivo_Ole::un_nombre_se_busca_sin_mayusculas()
{
    const QByteArray fichero = Escribir_Ole("Workbook", Flujo(100), SIN_CLASE);
    const Lector_Ole lector(fichero);
    QVERIFY(lector.Hay("WORKBOOK"));
    QVERIFY(!lector.Hay("Book"));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, lector.Leer("Book"));
}

// Where the parts of a file of one stream of 40 sectors lie: header, stream, directory, table.
static constexpr int SECTORES = 40;
static constexpr qsizetype LUGAR_DIRECTORIO = (1 + SECTORES) * Ole::SECTOR;
static constexpr qsizetype LUGAR_FAT = LUGAR_DIRECTORIO + Ole::SECTOR;
static constexpr qsizetype LUGAR_ENTRADA = LUGAR_DIRECTORIO + sizeof(Ole::Entrada_Directorio);

void TestArchivo_Ole::lo_danado_se_rechaza_data()
{
    QTest::addColumn<int>("lugar");
    QTest::addColumn<quint32>("valor");
    const auto en_cabecera = [](std::size_t campo) { return int(campo); };
    QTest::newRow("firma") << 0 << 0u;
    QTest::newRow("tamaño de sector")
        << en_cabecera(offsetof(Ole::Cabecera, sector_shift)) << 0x0006001Fu;
    QTest::newRow("directorio fuera")
        << en_cabecera(offsetof(Ole::Cabecera, first_dir_sector)) << 99u;
    QTest::newRow("tabla fuera") << en_cabecera(offsetof(Ole::Cabecera, difat)) << 77777u;
    QTest::newRow("DIFAT en círculo")
        << en_cabecera(offsetof(Ole::Cabecera, first_difat_sector)) << 3u;
    QTest::newRow("DIFAT fuera") << en_cabecera(offsetof(Ole::Cabecera, first_difat_sector))
                                 << 500u;
    QTest::newRow("cadena en círculo") << int(LUGAR_FAT) + 4 * 20 << 3u;
    QTest::newRow("cadena a sí misma") << int(LUGAR_FAT) + 4 * 20 << 20u;
    QTest::newRow("cadena fuera") << int(LUGAR_FAT) + 4 * 20 << 5000u;
    QTest::newRow("cadena a un sector libre") << int(LUGAR_FAT) + 4 * 20 << Ole::FREESECT;
    QTest::newRow("cadena corta") << int(LUGAR_FAT) + 4 * 20 << Ole::ENDOFCHAIN;
    QTest::newRow("directorio en círculo") << int(LUGAR_FAT) + 4 * SECTORES << quint32(SECTORES);
    QTest::newRow("sin nombre") << int(LUGAR_ENTRADA) << 0u;
    QTest::newRow("sin clase") << int(LUGAR_ENTRADA) +
                                      int(offsetof(Ole::Entrada_Directorio, object_type))
                               << 0u;
    QTest::newRow("mayor que el fichero")
        << int(LUGAR_ENTRADA) + int(offsetof(Ole::Entrada_Directorio, stream_size)) << 0x7FFFFFFFu;
    QTest::newRow("mayor que su cadena")
        << int(LUGAR_ENTRADA) + int(offsetof(Ole::Entrada_Directorio, stream_size))
        << quint32(SECTORES * 512 + 1);
    QTest::newRow("menudo sin sectores menudos")
        << int(LUGAR_ENTRADA) + int(offsetof(Ole::Entrada_Directorio, stream_size)) << 100u;
}

void TestArchivo_Ole::lo_danado_se_rechaza()
{
    QFETCH(int, lugar);
    QFETCH(quint32, valor);
    QByteArray fichero = Escribir_Ole("Libro", Flujo(SECTORES * Ole::SECTOR), SIN_CLASE);
    if (QByteArrayView(QTest::currentDataTag()) == "DIFAT en círculo") {
        // The sector that goes on with the DIFAT names itself as the next.
        fichero.replace((1 + 3) * Ole::SECTOR, Ole::SECTOR, QByteArray(Ole::SECTOR, char(0xFF)));
        fichero.replace((1 + 4) * Ole::SECTOR - 4, 4, Bytes_De(U32(3)).toByteArray());
    }
    fichero.replace(lugar, 4, Bytes_De(U32(valor)).toByteArray());
    try {
        Lector_Ole(fichero).Leer("Libro");
        QFAIL("accepted");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 3274);
        QVERIFY2(e.descripcion.startsWith("El libro está dañado: "), e.what());
    }
}

void TestArchivo_Ole::un_fichero_cortado_se_rechaza_o_esta_entero()
{
    for (const qsizetype largo : {qsizetype(100), qsizetype(4500)}) {
        const QByteArray flujo = Flujo(largo);
        const QByteArray fichero = Escribir_Ole("Libro", flujo, SIN_CLASE);
        for (qsizetype n = 0; n < fichero.size(); ++n)
            try {
                QVERIFY(Lector_Ole(QByteArrayView(fichero).first(n)).Leer("Libro") == flujo);
            } catch (const Error_Ejecucion& e) {
                QCOMPARE(e.numero, 3274);
            }
    }
}

PRUEBA(TestArchivo_Ole)
#include "TestArchivo_Ole.moc"
