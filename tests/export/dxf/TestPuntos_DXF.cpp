#include "core/Ansi.h"
#include "export/dxf/Puntos_DXF.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <random>

namespace {

using Fila = QStringList; // name, x, y, z, code

Datos_Formateados Tabla(const QList<Fila>& filas, const QString& cota = "Coordenada Z")
{
    Datos_Formateados datos;
    datos.campos = {"Código", "Punto", cota, "Coordenada Y", "Coordenada X"};
    datos.filas.resize(5);
    for (const Fila& f : filas) {
        const QStringList celdas = {f[4], f[0], f[3], f[2], f[1]};
        for (std::size_t c = 0; c < 5; ++c)
            datos.filas[c].push_back(celdas[qsizetype(c)]);
    }
    return datos;
}

QString Decimal_Al_Azar(std::mt19937& azar, int enteros)
{
    QString texto = azar() % 4 == 0 ? "-" : "";
    texto += QString::number(azar() % quint32(std::pow(10, enteros)));
    const int decimales = int(azar() % 6);
    if (decimales > 0) texto += azar() % 3 == 0 ? ',' : '.';
    for (int i = 0; i < decimales; ++i)
        texto += QString::number(i + 1 == decimales && azar() % 2 ? 5 : azar() % 10);
    return texto;
}

const QList<Fila> POCOS = {{" P1 ", "1000.5", "2000,25", "-3.14159", "ÁRBOL  "},
                           {"2", "456191.3385", "4478320.4335", "617.0005", ""},
                           {"ñ-3", "-0.0004", "0", "0.05", "A B"}};

} // namespace

class TestPuntos_DXF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_campos_se_hallan_por_su_nombre_data();
    void los_campos_se_hallan_por_su_nombre();
    void sin_coordenadas_no_hay_dibujo();
    void lo_que_no_es_numero_se_cuenta();
    void una_tabla_vacia_es_un_dibujo_vacio();
    void el_patron_es_el_que_era();
    void otra_cuenta_da_lo_mismo_data();
    void otra_cuenta_da_lo_mismo();
    void un_salto_de_linea_no_rompe_el_dibujo();

private:
    Avance_Exportar callado;
    Interfaz_Guion interfaz;
};

void TestPuntos_DXF::los_campos_se_hallan_por_su_nombre_data()
{
    QTest::addColumn<QStringList>("campos");
    QTest::addColumn<int>("cota");
    QTest::addColumn<int>("codigo");
    QTest::newRow("propios") << QStringList{"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z",
                                            "Código"}
                             << 3 << 4;
    QTest::newRow("cota") << QStringList{"Coordenada Z / Cota", "Coordenada X", "Coordenada Y"} << 0
                          << -1;
    QTest::newRow("las dos") << QStringList{"Coordenada Z / Cota", "Coordenada Z", "Coordenada X",
                                            "Coordenada Y"}
                             << 1 << -1;
    QTest::newRow("sin acento ni mayúsculas")
        << QStringList{"CODIGO", "coordenada x", "COORDENADA Y", "coordenada  z"} << 3 << 0;
}

void TestPuntos_DXF::los_campos_se_hallan_por_su_nombre()
{
    QFETCH(QStringList, campos);
    const Columnas_Punto columnas = Columnas_Punto::De(campos);
    const auto indice = [](std::optional<std::size_t> c) { return c ? int(*c) : -1; };
    QTEST(indice(columnas.z), "cota");
    QTEST(indice(columnas.codigo), "codigo");
    QVERIFY(columnas.Falta().isEmpty());
}

void TestPuntos_DXF::sin_coordenadas_no_hay_dibujo()
{
    Datos_Formateados datos;
    datos.campos = QStringList{"Punto", "Coordenada X", "Coordenada Z", "Cota"};
    datos.filas.resize(4);
    QCOMPARE(Columnas_Punto::De(datos.campos).Falta(), QString("Coordenada Y"));
    QVERIFY_ERROR(3265, Dibujar_Tabla(datos, Modo_DXF::Dos_D, {}, callado));
}

void TestPuntos_DXF::lo_que_no_es_numero_se_cuenta()
{
    QList<Fila> filas = POCOS;
    filas.insert(1, {"5", "", "1", "1", ""});
    filas.insert(2, {"6", "1", "12a", "1", ""});
    filas << Fila{"7", "1", "1", "    ", ""} << Fila{"8", "1", "2", "3", "X"};
    const Dibujo_DXF dibujo = Dibujar_Tabla(Tabla(filas), Modo_DXF::Dos_D, {}, callado);
    QCOMPARE(dibujo.omitidos, 3);
    QCOMPARE(dibujo.bytes.count("POINT"), 4);
    QVERIFY(dibujo.bytes.endsWith(" 0\r\nENDSEC\r\n 0\r\nEOF\r\n"));
}

void TestPuntos_DXF::una_tabla_vacia_es_un_dibujo_vacio()
{
    const Dibujo_DXF dibujo = Dibujar_Tabla(Tabla({}), Modo_DXF::Ambos, {}, callado);
    QCOMPARE(dibujo.bytes,
             QByteArray(" 0\r\nSECTION\r\n 2\r\nENTITIES\r\n 0\r\nENDSEC\r\n 0\r\nEOF\r\n"));
    QCOMPARE(dibujo.omitidos, 0);
}

void TestPuntos_DXF::el_patron_es_el_que_era()
{
    const std::pair<Modo_DXF, const char*> patrones[] = {{Modo_DXF::Dos_D, "dxf_2d.dxf"},
                                                         {Modo_DXF::Tres_D, "dxf_3d.dxf"},
                                                         {Modo_DXF::Ambos, "dxf_ambos.dxf"}};
    Ajustes_DXF ajustes;
    ajustes.formato = 4;
    ajustes.inclinacion = "15";
    ajustes.decimales = 2;
    for (const auto& [modo, nombre] : patrones) {
        const QByteArray bytes = Dibujar_Tabla(Tabla(POCOS), modo, ajustes, callado).bytes;
        QFile patron(QString(DATOS_PRUEBA) + "/export/" + nombre);
        QVERIFY2(patron.open(QIODevice::ReadOnly), nombre);
        QCOMPARE(bytes, patron.readAll());
    }
}

void TestPuntos_DXF::otra_cuenta_da_lo_mismo_data()
{
    QTest::addColumn<int>("modo");
    QTest::addColumn<int>("formato");
    QTest::addColumn<double>("altura");
    QTest::addColumn<QString>("inclinacion");
    QTest::addColumn<int>("decimales");
    for (int formato = 0; formato <= 7; ++formato)
        for (int modo = 0; modo < 3; ++modo)
            QTest::addRow("%d, %d", modo, formato)
                << modo << formato << (formato % 2 ? 2.0 : 0.75) << (modo == 1 ? "-15.5" : "0")
                << (formato + modo) % 5;
}

void TestPuntos_DXF::otra_cuenta_da_lo_mismo()
{
    QFETCH(int, modo);
    QFETCH(int, formato);
    QFETCH(double, altura);
    QFETCH(QString, inclinacion);
    QFETCH(int, decimales);
    Ajustes_DXF ajustes;
    ajustes.colores = {11, 12, 13, 14, 255};
    ajustes.formato = formato;
    ajustes.altura = altura;
    ajustes.inclinacion = inclinacion;
    ajustes.decimales = decimales;
    std::mt19937 azar(quint32(formato * 3 + modo));
    QList<Fila> filas = POCOS;
    for (int i = 0; i < 300; ++i)
        filas << Fila{QString::number(i), Decimal_Al_Azar(azar, 6), Decimal_Al_Azar(azar, 7),
                      Decimal_Al_Azar(azar, 3), "C" + QString::number(azar() % 50)};
    QTemporaryDir carpeta;
    const auto guardar = [&](const QString& nombre, const QByteArray& bytes) {
        QFile fichero(carpeta.filePath(nombre));
        if (!fichero.open(QIODevice::WriteOnly)) qFatal("not written");
        fichero.write(bytes);
    };
    QByteArray tabla;
    for (const Fila& fila : filas)
        tabla += Ansi::A_Bytes(fila.join('\t')) + '\n';
    guardar("tabla.txt", tabla);
    guardar("dibujo.dxf", Dibujar_Tabla(Tabla(filas), Modo_DXF(modo), ajustes, callado).bytes);
    QProcess otra;
    otra.start("/usr/bin/python3",
               {QString(RAIZ_FUENTES) + "/tests/export/dxf/comprobar_dxf.py",
                carpeta.filePath("dibujo.dxf"), carpeta.filePath("tabla.txt"),
                QStringList{"2d", "3d", "ambos"}[modo], QString::number(formato),
                QString::number(altura), inclinacion, QString::number(decimales), "11,12,13,14,255",
                formato == 1 ? "audit" : ""});
    QVERIFY2(otra.waitForFinished(60000), "python3 did not run");
    QVERIFY2(otra.exitCode() == 0,
             (otra.readAllStandardOutput() + otra.readAllStandardError()).constData());
}

void TestPuntos_DXF::un_salto_de_linea_no_rompe_el_dibujo()
{
    const Dibujo_DXF dibujo =
        Dibujar_Tabla(Tabla({{"A\r\nB", "1", "2", "3", "C\tD\xE9"}}), Modo_DXF::Dos_D, {}, callado);
    QVERIFY(dibujo.bytes.contains("\r\nA  B\r\n"));
    QVERIFY(dibujo.bytes.contains("\r\nC D"));
    QCOMPARE(dibujo.bytes.count("\r\n") % 2, 0);
}

PRUEBA(TestPuntos_DXF)
#include "TestPuntos_DXF.moc"
