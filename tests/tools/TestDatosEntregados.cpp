#include "core/Configuracion.h"
#include "session/Decodificador.h"
#include "session/ModVDatos.h"
#include "session/Nivel.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tools/base/Comprobaciones.h"
#include "tools/base/Escritura.h"

#include <QRegularExpression>

static const QString DATOS = QStringLiteral(RAIZ_FUENTES "/data");

/// What the program makes of the delivered rows: lines as the instruments send them, decoded.
class TestDatosEntregados : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void no_falta_nada();
    void una_linea_da_su_valor_data();
    void una_linea_da_su_valor();
    void los_generales_de_columnas_valen_para_cada_punto();
    void los_generales_de_krt800_valen_para_lo_que_sigue();
    void una_linea_del_nivel_data();
    void una_linea_del_nivel();
    void las_mitades_del_nivel_dicen_su_lugar();
    void los_formatos_con_nombre();
    void cada_serie_tiene_sus_modelos();
    void cada_modelo_tiene_su_ayuda();
    void los_primeros_ajustes();
    void cada_pagina_de_ayuda_esta_y_enlaza();

private:
    QStringList Valores(const QString& maquina, int ope, const QString& linea,
                        const QString& datosg, const QStringList& nombres);
    std::unique_ptr<Base_De_Prueba> p;
};

void TestDatosEntregados::initTestCase()
{
    p = std::make_unique<Base_De_Prueba>();
    QList<Falta> faltas;
    const Juego juego = Leer_Tablas(DATOS + "/DAT/tablas", faltas);
    QVERIFY(Escribir_Base(juego, p->Ruta("DAT/Database.mdb"), faltas));
    Base_Datos = Base::Abrir(p->Ruta("DAT/Database.mdb"));
    Desp_X = Desp_Y = Desp_Z = "0";
}

void TestDatosEntregados::cleanupTestCase()
{
    Base_Datos.reset();
    p.reset();
}

void TestDatosEntregados::no_falta_nada()
{
    QList<Falta> faltas;
    Comprobar_Todo(Leer_Tablas(DATOS + "/DAT/tablas", faltas), DATOS, faltas);
    QStringList textos;
    for (const Falta& f : faltas)
        textos << f.Texto();
    QCOMPARE(textos, QStringList());
}

QStringList TestDatosEntregados::Valores(const QString& maquina, int ope, const QString& linea,
                                         const QString& datosg, const QStringList& nombres)
{
    Clave_Estacion = maquina;
    QStringList valores(nombres.size());
    Decodificar_Linea(*Base_Datos, linea, QString(), maquina, ope, nombres, valores);
    Decodificar_General(*Base_Datos, datosg, maquina, nombres, valores, ope);
    return valores;
}

void TestDatosEntregados::una_linea_da_su_valor_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("valores"); // "campo=valor|..."
    for (const Familia& familia : Familias()) {
        if (familia.serie != Serie::A) continue;
        const auto caso = [m = familia.clave](int ope, const char* linea, const QString& valores) {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(m, linea)))
                << m << ope << QString(linea) << valores;
        };
        caso(0, "h+3294595", "Ángulo Horizontal=329.4595");
        caso(0, "h+0000007", "Ángulo Horizontal=0.0007");
        caso(0, "v+1019210", "Ángulo Vertical=101.9210");
        caso(0, "d+00029798", "Distancia Geométrica=29.798");
        caso(0, "d+12345678", "Distancia Geométrica=12345.678");
        caso(0, "p+01300", "Altura Prisma=1.300");
        caso(0, "p-00050", "Altura Prisma=-0.050");
        caso(0, "cARQUETA", "Código=ARQUETA");
        caso(0, "c12`ARQUETA", "Código=ARQUETA");
        caso(1, " x+4478296086", "Coordenada Y=4478296.086");
        caso(1, " y+456174183 ", "Coordenada X=456174.183");
        caso(1, " y-000000500", "Coordenada X=-0.500");
        caso(11, " z+000616722", "Coordenada Z=616.722");
        caso(2, ":001ARBOL     ", "Número de Código=001|Texto de Código=ARBOL");
    }
    const auto caso = [](int ope, const char* linea, const QString& valores) {
        QTest::newRow(linea) << QString("KRT800") << ope << QString(linea) << valores;
    };
    caso(0, "JOB VALLE ALTO", "Trabajo=VALLE ALTO");
    caso(0, "STN E1,1.483,VERTICE", "Estación=E1|Altura Instrumento=1.483|Código Estación=VERTICE");
    caso(0, "XYZ 456191.339,4478320.433,617.438",
         "Coordenada X Estación=456191.339|Coordenada Y Estación=4478320.433|Coordenada Z "
         "Estación=617.438");
    caso(0, "BKB BASE0,252.2536,342.6350",
         "Punto Atrás=BASE0|Acimut Atrás=252.2536|Lectura Atrás=342.6350");
    caso(0, "SS 101,1.300,TERRENO", "Punto Visado=101|Altura Prisma=1.300|Código Visado=TERRENO");
    caso(0, "FS E2,1.500,BASE", "Punto Frente=E2|Altura Prisma Frente=1.500|Código Frente=BASE");
    caso(0, "SD 329.4595,101.9210,29.798",
         "Ángulo Horizontal=329.4595|Ángulo Vertical=101.9210|Distancia Geométrica=29.798");
    caso(5, "NOT tapa rota", "Nota=tapa rota");
    caso(4, "P1,456012.345,-20.5,612.3,ARB",
         "Punto=P1|Coordenada X=456012.345|Coordenada Y=-20.500|Coordenada Z=612.300|Código=ARB");
    caso(6, "INI 0.000 456200.000 4478300.000",
         "PK=0.000|Coordenada X=456200.000|Coordenada Y=4478300.000");
    caso(6, "REC 62.5000 80.000", "Acimut=62.5000|Longitud=80.000");
    caso(6, "CIR 69.8339 90.000 -250.000", "Acimut=69.8339|Longitud=90.000|Radio=-250.000");
    caso(
        6, "CLO 62.5000 57.600 120.000 0.000 250.000",
        "Acimut=62.5000|Longitud=57.600|Parámetro=120.000|Radio Inicial=0.000|Radio Final=250.000");
    caso(6, "FIN 345.200 456518.779 4478402.544 100.0860",
         "PK=345.200|Coordenada X=456518.779|Coordenada Y=4478402.544|Acimut=100.0860");
    caso(7, "20.000,-3.500,613.680", "PK=20.000|Desplazamiento=-3.500|Cota=613.680");
    caso(8, "VER 150.000,616.800,80.000", "PK=150.000|Cota=616.800|Longitud Acuerdo=80.000");
}

void TestDatosEntregados::una_linea_da_su_valor()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, linea);
    QFETCH(QString, valores);
    QStringList nombres, esperados;
    for (const QString& par : valores.split('|')) {
        nombres << par.section('=', 0, 0);
        esperados << par.section('=', 1);
    }
    QCOMPARE(Valores(maquina, ope, linea, {}, nombres), esperados);
    // The viewer shows the same fields, all of them and no other.
    const auto vista = Ver_Registro(maquina, ope, {}, linea, {});
    QVERIFY(vista);
    QCOMPARE(vista->nombres, nombres);
    QCOMPARE(vista->valores, esperados);
}

void TestDatosEntregados::los_generales_de_columnas_valen_para_cada_punto()
{
    const QString generales =
        QStringList{"JVALLE ALTO", "EE1",      "I+01483", "S+4478320433+456191339 -000617438",
                    "R9`BASE0",    "O+3096186"}
            .join(QChar(6));
    for (const Familia& familia : Familias())
        if (familia.serie == Serie::A)
            QCOMPARE(Valores(familia.clave, 0, "h+3294595", generales,
                             {"Trabajo", "Estación", "Altura Instrumento", "Coordenada X Estación",
                              "Coordenada Y Estación", "Coordenada Z Estación", "Punto Atrás",
                              "Orientación", "Ángulo Horizontal"}),
                     (QStringList{"VALLE ALTO", "E1", "1.483", "456191.339", "4478320.433",
                                  "-617.438", "BASE0", "309.6186", "329.4595"}));
}

void TestDatosEntregados::los_generales_de_krt800_valen_para_lo_que_sigue()
{
    const auto item = [](const QString& id, const QString& campo, const QString& valor) {
        return QStringList{id, campo, valor}.join(QChar(5));
    };
    const QString generales =
        QStringList{item("STN", "Estación", "E1"), item("SS", "Punto Visado", "101"),
                    item("SS", "Código Visado", "TERRENO"), item("FS", "Punto Frente", "E2")}
            .join(QChar(6));
    QCOMPARE(Valores("KRT800", 0, "SD 329.4595,101.9210,29.798", generales,
                     {"Estación", "Punto Visado", "Código Visado", "Punto Frente",
                      "Distancia Geométrica"}),
             (QStringList{"E1", "101", "TERRENO", "E2", "29.798"}));
}

void TestDatosEntregados::una_linea_del_nivel_data()
{
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QStringList>("valores");
    QTest::newRow("b") << "b,03,ANILLO A,RN1,61234560,120324,0830,BRIGADA 1,X,"
                       << QStringList{"03",     "ANILLO A", "RN1",       "612.3456",
                                      "120324", "0830",     "BRIGADA 1", ""};
    QTest::newRow("g") << "g,03,115384,33135,6123456,RN1,4,120324,0831,RN,X,"
                       << QStringList{"03",  "1.15384", "33.135", "612.3456", "RN1",
                                      "0.4", "120324",  "0831",   "RN",       ""};
    QTest::newRow("v") << "v,03,10,P10,1203240850,-15120,-15120,420000,420000,6108336,PASO,X,"
                       << QStringList{"03",        "10",       "P10",     "1203240850",
                                      "-1.51200",  "-1.51200", "420.000", "420.000",
                                      "610.83360", "PASO",     ""};
    QTest::newRow("w") << "w,03,1,RN1,1203240859,8,8,595024,595024,6123464,CIERRE,X,"
                       << QStringList{"03",        "1",       "RN1",     "1203240859",
                                      "0.00080",   "0.00080", "595.024", "595.024",
                                      "612.34640", "CIERRE",  ""};
    QTest::newRow("u") << "u,03,1,12,1203240859,X,"
                       << QStringList{"03", "1", "12", "1203240859", ""};
    QTest::newRow("t") << "t,03,O," << QStringList{"03", ""};
    QTest::newRow("c")
        << "c,03,OBRA,A1,2,120324,0830,YO,M1,10000,12,950,gi,3,5,400,3,40,RN1,61234560,X,"
        << QStringList{"03",  "OBRA", "A1", "2", "120324", "0830", "YO", "M1",  "10000",    "12",
                       "950", "gi",   "3",  "5", "400",    "3",    "40", "RN1", "612.3456", ""};
}

void TestDatosEntregados::una_linea_del_nivel()
{
    QFETCH(QString, linea);
    QFETCH(QStringList, valores);
    Clave_Estacion = "NV400";
    const auto vista = Ver_Registro("NV400", 0, {}, linea, {});
    QVERIFY(vista);
    QCOMPARE(vista->valores, valores);
    QCOMPARE(vista->nombres.last(), QStringLiteral("Nulo"));
}

void TestDatosEntregados::las_mitades_del_nivel_dicen_su_lugar()
{
    const QString b = "b,03,ANILLO A,RN1,61234560,120324,0830,BRIGADA 1,X,";
    const QString g = "g,03,115384,33135,6123456,RN1,4,120324,0831,RN,X,";
    QMap<QString, QString> valores;
    Recorrido r = Base_Datos->Recorrer(
        "SELECT ID,Campo,Caracter FROM Campos WHERE Maquina = 'NV400' AND ID IN ('0','1')");
    while (r.Siguiente())
        valores[r.Texto(0) + r.Texto(1)] =
            Campo_NV400(r.Texto(0) == "0" ? b : g, r.Texto(2).toInt());
    QCOMPARE(valores["0Trabajo"], QStringLiteral("ANILLO A"));
    QCOMPARE(valores["0Punto Inicial"], QStringLiteral("RN1"));
    QCOMPARE(valores["0Cota Inicial"], QStringLiteral("612.3456"));
    QCOMPARE(valores["0Fecha"], QStringLiteral("120324"));
    QCOMPARE(valores["0Hora"], QStringLiteral("0830"));
    QCOMPARE(valores["0Operador"], QStringLiteral("BRIGADA 1"));
    QCOMPARE(valores["1Tipo"], QStringLiteral("g"));
    QCOMPARE(valores["1Punto"], QStringLiteral("RN1"));
    QCOMPARE(valores["1Lectura"], QStringLiteral("1.15384"));
    QCOMPARE(valores["1Distancia"], QStringLiteral("33.135"));
    QCOMPARE(valores["1Cota"], QStringLiteral("612.3456"));
    QCOMPARE(valores["1Desviación"], QStringLiteral("0.4"));
    QCOMPARE(valores["1Fecha"], QStringLiteral("120324"));
    QCOMPARE(valores["1Hora"], QStringLiteral("0831"));
    QCOMPARE(valores["1Código"], QStringLiteral("RN"));
    QCOMPARE(valores["1Unidad"], QStringLiteral("03"));
    QCOMPARE(valores.size(), 16);
}

void TestDatosEntregados::los_formatos_con_nombre()
{
    const QMap<QString, QStringList> campos{
        {"NXYZ", {"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z"}},
        {"NXYZCOD", {"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"}},
        {"NPXYZ", {"Punto", "Código", "Coordenada X", "Coordenada Y", "Coordenada Z"}},
        {"NXYZREPLANTEO", {"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"}}};
    for (const auto& [familia, ope] : {std::pair{"KRT300", 1}, {"PX7", 1}, {"KRT800", 4}})
        for (auto f = campos.begin(); f != campos.end(); ++f) {
            Conjunto_Registros cabecera = Base_Datos->OpenRecordset("Formatos1");
            cabecera.Index("PrimaryKey");
            cabecera.Seek({f.key(), familia});
            QVERIFY(!cabecera.NoMatch());
            QCOMPARE(cabecera.Entero("ope"), ope);
            QStringList lista;
            Recorrido r = Base_Datos->Recorrer(
                "SELECT Campo FROM Formatos2 WHERE Nombre = ? AND Maquina = ? ORDER BY sec",
                {f.key(), familia});
            while (r.Siguiente())
                lista << r.Texto(0);
            QCOMPARE(lista, f.value());
        }
}

void TestDatosEntregados::cada_serie_tiene_sus_modelos()
{
    QMap<QString, int> modelos;
    bool x13 = false;
    Recorrido r = Base_Datos->Recorrer("SELECT Nombre,Clave FROM KRT");
    while (r.Siguiente()) {
        ++modelos[r.Texto(1)];
        x13 = x13 || (r.Texto(1) == "KRT300" && r.Texto(0).contains("X13"));
    }
    QVERIFY(modelos["KRT300"] >= 3 && modelos["KRT800"] >= 3);
    QVERIFY(modelos["PX7"] >= 2 && modelos["NV400"] >= 2);
    QVERIFY(x13);
    // The model picker hands the family's key to a search by name: a model of that name answers.
    for (const QString& familia : Claves_Familias()) {
        Vel_Puerto.clear();
        Cargar_Estacion(familia);
        QVERIFY2(!Vel_Puerto.isEmpty(), qPrintable(familia));
    }
}

void TestDatosEntregados::cada_modelo_tiene_su_ayuda()
{
    Recorrido r = Base_Datos->Recorrer(
        "SELECT KRT.Nombre,KRT2.OPE,KRT2.TipOpe,(SELECT COUNT(*) FROM Ayudas WHERE "
        "Ayudas.Maquina = KRT.Nombre AND Ayudas.OPE = KRT2.OPE AND Ayudas.TipOpe = KRT2.TipOpe) "
        "FROM KRT,KRT2 WHERE KRT2.Nombre = KRT.Clave");
    int parejas = 0;
    for (; r.Siguiente(); ++parejas)
        QVERIFY2(r.Entero(3) >= 2, qPrintable(r.Texto(0) + ' ' + r.Texto(1) + r.Texto(2)));
    QVERIFY(parejas > 50);
}

void TestDatosEntregados::los_primeros_ajustes()
{
    Interfaz_Guion guion;
    QFile ini(DATOS + "/EstTotal.ini");
    QVERIFY(ini.open(QIODevice::ReadOnly));
    const QByteArray texto = ini.readAll();
    QCOMPARE(texto.count('\n'), texto.count("\r\n"));
    for (const char* clave :
         {"PORT", "VELOCIDAD", "BITS", "PARIDAD", "STOP", "HARD", "KRTNOM", "KRT", "FIJO",
          "Visible", "Recuerde", "Cargas", "Exportar", "Mostrar"})
        QVERIFY2(texto.count(QByteArray("\n") + clave + '=') == 1, clave);

    Base_Datos.reset();
    p->Escribir("EstTotal.ini", texto);
    QVERIFY(QFile::remove(p->Ruta("MDB/EstTotal.mdb")));
    QVERIFY(Cargar_Configuracion(p->Ruta("")));
    QCOMPARE(guion.Textos(), QStringList());
    QCOMPARE(Nombre_Estacion, QStringLiteral("KRT-310"));
    QCOMPARE(Clave_Estacion, QStringLiteral("KRT300"));
    QVERIFY(Vel_Puerto.split(',').contains(Velocidad));
    QVERIFY(Lista_Puertos().contains(Puerto) && Lista_Bits().contains(Bits_Datos));
    QVERIFY(Lista_Paridades().contains(Paridad) && Lista_Paradas().contains(Bits_Parada));
    QVERIFY(Ayuda_Visible && Ayuda_Recuerde && !Modelo_Fijo);
}

void TestDatosEntregados::cada_pagina_de_ayuda_esta_y_enlaza()
{
    const QDir ayuda(DATOS + "/Ayuda");
    for (const char* clave : {"transfer", "config", "descarg", "vdatos", "formatos", "expexist",
                              "expnuevo", "imprimir", "codigos", "index"}) {
        QFile f(ayuda.filePath(QLatin1String(clave) + ".htm"));
        QVERIFY2(f.open(QIODevice::ReadOnly), clave);
        const QString pagina = QString::fromUtf8(f.readAll());
        QVERIFY2(!pagina.contains(QChar(0xFFFD)) && pagina.contains("charset=\"utf-8\""), clave);
        static const QRegularExpression ENLACE("href=\"([^\"]+)\"");
        int enlaces = 0;
        for (const auto& m : ENLACE.globalMatch(pagina)) {
            ++enlaces;
            QVERIFY2(ayuda.exists(m.captured(1)), qPrintable(m.captured(1)));
        }
        QVERIFY(enlaces >= 2);
    }
}

PRUEBA(TestDatosEntregados)
#include "TestDatosEntregados.moc"
