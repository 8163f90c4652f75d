#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"
#include "export/dxf/ModDXF.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

namespace {

struct Grupo {
    int codigo;
    QString valor;
    bool operator==(const Grupo&) const = default;
};

// The lines two by two; a number that is not behind exactly one blank is -1.
QList<Grupo> Grupos(const QByteArray& bytes)
{
    QStringList lineas = Ansi::A_Texto(bytes).split("\r\n");
    lineas.removeLast();
    QList<Grupo> grupos;
    for (qsizetype i = 0; i + 1 < lineas.size(); i += 2) {
        bool bien = false;
        const int codigo = lineas[i].mid(1).toInt(&bien);
        const bool forma = bien && lineas[i] == ' ' + QString::number(codigo);
        grupos.append({forma ? codigo : -1, lineas[i + 1]});
    }
    return grupos;
}

QStringList Valores(const QList<Grupo>& grupos, int codigo)
{
    QStringList valores;
    for (const Grupo& grupo : grupos)
        if (grupo.codigo == codigo) valores << grupo.valor;
    return valores;
}

QList<Grupo> Punto(Modo_DXF modo, const Ajustes_DXF& ajustes = {}, const QString& codigo = "ARBOL")
{
    QByteArray canal;
    Guardar_DXF_Sesion(canal, "  P1 ", "1000.5", "2000,25", "-3.14159", codigo, modo, ajustes);
    return Grupos(canal);
}

} // namespace

class TestModDXF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_grupo_son_dos_lineas();
    void la_seccion();
    void un_punto_en_2d();
    void la_marca_en_cada_modo_data();
    void la_marca_en_cada_modo();
    void las_seis_disposiciones_data();
    void las_seis_disposiciones();
    void la_cota_con_sus_decimales_data();
    void la_cota_con_sus_decimales();
    void una_coordenada_data();
    void una_coordenada();
    void la_altura_mueve_las_etiquetas();
    void un_codigo_vacio_tambien_se_escribe();
    void lo_que_no_es_numero_no_se_dibuja_data();
    void lo_que_no_es_numero_no_se_dibuja();
};

void TestModDXF::un_grupo_son_dos_lineas()
{
    QByteArray canal = "antes";
    Grupo_DXF(canal, 8, u"CÓDIGO 中");
    QCOMPARE(canal, QByteArray("antes 8\r\nC\xD3"
                               "DIGO ?\r\n"));
    canal.clear();
    Grupo_DXF(canal, 62, u" 3");
    QCOMPARE(canal, QByteArray(" 62\r\n 3\r\n"));
}

void TestModDXF::la_seccion()
{
    QByteArray canal;
    Abrir_DXF(canal);
    QCOMPARE(canal, QByteArray(" 0\r\nSECTION\r\n 2\r\nENTITIES\r\n"));
    canal.clear();
    Cerrar_DXF(canal);
    QCOMPARE(canal, QByteArray(" 0\r\nENDSEC\r\n 0\r\nEOF\r\n"));
}

void TestModDXF::un_punto_en_2d()
{
    const QList<Grupo> esperados = {
        {0, "POINT"},  {8, "PUNTOS"},    {62, " 7"},       {10, "1000.500"}, {20, "2000.250"},
        {0, "TEXT"},   {8, "NUMEROS"},   {62, " 1"},       {10, "1001.500"}, {20, "2000.250"},
        {40, "2.00"},  {1, "P1"},        {50, "0"},        {51, "0"},        {0, "TEXT"},
        {8, "COTAS"},  {62, " 2"},       {10, "1001.500"}, {20, "2003.250"}, {40, "2.00"},
        {1, "-3.142"}, {50, "0"},        {51, "0"},        {0, "TEXT"},      {8, "CODIGOS"},
        {62, " 5"},    {10, "1001.500"}, {20, "1997.250"}, {40, "2.00"},     {1, "ARBOL"},
        {50, "0"},     {51, "0"},
    };
    const QList<Grupo> grupos = Punto(Modo_DXF::Dos_D);
    for (qsizetype i = 0; i < qMin(grupos.size(), esperados.size()); ++i)
        QVERIFY2(
            grupos[i] == esperados[i],
            qPrintable(QString("%1: %2 %3").arg(i).arg(grupos[i].codigo).arg(grupos[i].valor)));
    QCOMPARE(grupos.size(), esperados.size());
}

void TestModDXF::la_marca_en_cada_modo_data()
{
    QTest::addColumn<int>("modo");
    QTest::addColumn<QStringList>("capas");
    QTest::addColumn<QStringList>("colores");
    QTest::addColumn<QStringList>("alturas");
    const QStringList nada;
    QTest::newRow("2D") << 0 << QStringList{"PUNTOS"} << QStringList{" 11"} << nada;
    QTest::newRow("3D") << 1 << QStringList{"PUNTOS"} << QStringList{" 12"}
                        << QStringList{"-3.142"};
    QTest::newRow("ambos") << 2 << QStringList{"PUNTOS_2D", "PUNTOS_3D"}
                           << QStringList{" 11", " 12"} << QStringList{"-3.142"};
    QTest::newRow("otro") << 7 << QStringList{"PUNTOS_2D", "PUNTOS_3D"} << QStringList{" 11", " 12"}
                          << QStringList{"-3.142"};
}

void TestModDXF::la_marca_en_cada_modo()
{
    QFETCH(int, modo);
    Ajustes_DXF ajustes;
    ajustes.colores = {11, 12, 13, 14, 255};
    const QList<Grupo> grupos = Punto(Modo_DXF(modo), ajustes);
    QFETCH(QStringList, capas);
    QFETCH(QStringList, colores);
    QCOMPARE(Valores(grupos, 8), capas + QStringList({"NUMEROS", "COTAS", "CODIGOS"}));
    QCOMPARE(Valores(grupos, 62), colores + QStringList({" 14", " 255", " 13"}));
    QTEST(Valores(grupos, 30), "alturas");
    const QStringList clases = Valores(grupos, 0);
    QCOMPARE(clases.count("POINT"), capas.size());
    QCOMPARE(clases.mid(capas.size()), QStringList({"TEXT", "TEXT", "TEXT"}));
}

void TestModDXF::las_seis_disposiciones_data()
{
    QTest::addColumn<int>("formato");
    QTest::addColumn<QStringList>("lugares"); // number, elevation, code, over a point at 2000.25
    QTest::newRow("1") << 1 << QStringList{"2000.250", "2003.250", "1997.250"};
    QTest::newRow("2") << 2 << QStringList{"1997.250", "2003.250", "2000.250"};
    QTest::newRow("3") << 3 << QStringList{"1997.250", "2000.250", "2003.250"};
    QTest::newRow("4") << 4 << QStringList{"2000.250", "1997.250", "2003.250"};
    QTest::newRow("5") << 5 << QStringList{"2003.250", "1997.250", "2000.250"};
    QTest::newRow("6") << 6 << QStringList{"2003.250", "2000.250", "1997.250"};
    for (const int otro : {-1, 0, 7})
        QTest::newRow(qPrintable(QString::number(otro)))
            << otro << QStringList{"2000.250", "2000.250", "2000.250"};
}

void TestModDXF::las_seis_disposiciones()
{
    QFETCH(int, formato);
    Ajustes_DXF ajustes;
    ajustes.formato = formato;
    const QList<Grupo> grupos = Punto(Modo_DXF::Dos_D, ajustes);
    QTEST(Valores(grupos, 20).mid(1), "lugares");
    QCOMPARE(Valores(grupos, 10), QStringList({"1000.500", "1001.500", "1001.500", "1001.500"}));
}

void TestModDXF::la_cota_con_sus_decimales_data()
{
    QTest::addColumn<double>("cota");
    QTest::addColumn<int>("decimales");
    QTest::addColumn<QString>("texto");
    QTest::newRow("3") << 12.3455 << 3 << "12.346";
    QTest::newRow("2") << 12.345 << 2 << "12.35";
    QTest::newRow("1") << 12.25 << 1 << "12.3";
    QTest::newRow("0") << 12.5 << 0 << "13";
    QTest::newRow("4 es 0") << 12.5 << 4 << "13";
    QTest::newRow("negativa es 0") << 12.5 << -1 << "13";
    QTest::newRow("bajo cero") << -0.05 << 1 << "-0.1";
    QTest::newRow("cero") << 0.0 << 3 << "0.000";
    QTest::newRow("grande") << 12345678.5 << 2 << "12345678.50";
}

void TestModDXF::la_cota_con_sus_decimales()
{
    QFETCH(double, cota);
    QFETCH(int, decimales);
    QTEST(Cota_DXF(cota, decimales), "texto");
}

void TestModDXF::una_coordenada_data()
{
    QTest::addColumn<double>("metros");
    QTest::addColumn<QString>("texto");
    QTest::newRow("entera") << 4500000.0 << "4500000.000";
    QTest::newRow("mitad") << 0.0005 << "0.001";
    QTest::newRow("mitad negativa") << -0.0005 << "-0.001";
    QTest::newRow("no binaria") << 456191.3385 << "456191.339";
    QTest::newRow("menor que uno") << 0.25 << "0.250";
}

void TestModDXF::una_coordenada()
{
    QFETCH(double, metros);
    QTEST(Coordenada_DXF(metros), "texto");
}

void TestModDXF::la_altura_mueve_las_etiquetas()
{
    Ajustes_DXF ajustes;
    ajustes.altura = 0.5;
    ajustes.inclinacion = "15,6";
    ajustes.decimales = 1;
    const QList<Grupo> grupos = Punto(Modo_DXF::Tres_D, ajustes);
    QCOMPARE(Valores(grupos, 10), QStringList({"1000.500", "1000.750", "1000.750", "1000.750"}));
    QCOMPARE(Valores(grupos, 20), QStringList({"2000.250", "2000.250", "2001.000", "1999.500"}));
    QCOMPARE(Valores(grupos, 40), QStringList(QList<QString>(3, "0.50")));
    QCOMPARE(Valores(grupos, 51), QStringList(QList<QString>(3, "16")));
    QCOMPARE(Valores(grupos, 1), QStringList({"P1", "-3.1", "ARBOL"}));
}

void TestModDXF::un_codigo_vacio_tambien_se_escribe()
{
    const QList<Grupo> grupos = Punto(Modo_DXF::Dos_D, {}, QString());
    QCOMPARE(Valores(grupos, 8).last(), QString("CODIGOS"));
    QCOMPARE(Valores(grupos, 1), QStringList({"P1", "-3.142", ""}));
    // Its blanks are the cell's, and stay.
    QCOMPARE(Valores(Punto(Modo_DXF::Dos_D, {}, "A  "), 1).last(), QString("A  "));
}

void TestModDXF::lo_que_no_es_numero_no_se_dibuja_data()
{
    QTest::addColumn<QStringList>("xyz");
    QTest::newRow("x vacía") << QStringList{"", "1", "1"};
    QTest::newRow("y con letras") << QStringList{"1", "1a", "1"};
    QTest::newRow("z en blanco") << QStringList{"1", "1", "   "};
}

void TestModDXF::lo_que_no_es_numero_no_se_dibuja()
{
    QFETCH(QStringList, xyz);
    QByteArray canal;
    QCOMPARE(Numero_De_Error([&] {
                 Guardar_DXF_Sesion(canal, "1", xyz[0], xyz[1], xyz[2], "", Modo_DXF::Ambos, {});
             }),
             13);
    QVERIFY(canal.isEmpty());
}

PRUEBA(TestModDXF)
#include "TestModDXF.moc"
