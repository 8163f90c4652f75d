#include "export/Filas_Marcadas.h"
#include "export/GuardarN.h"
#include "formats/ModFormatos.h"
#include "session/Decodificador.h"
#include "session/Desplazamiento.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <random>

namespace {

Datos_Formateados Datos(int id, const QString& maquina, int ope, const QStringList& campos)
{
    Avance_Exportar avance;
    return Formatear_Datos({*Base_Datos, id, maquina, ope, {}, campos, {}, avance});
}

// The rows as text, cells parted by "|".
QStringList Filas(const Filas_Exportar& filas)
{
    QStringList lineas;
    for (std::size_t r = 0; !filas.empty() && r < filas.front().size(); ++r) {
        QStringList celdas;
        for (const auto& columna : filas)
            celdas << columna.Celda(r);
        lineas << celdas.join('|');
    }
    return lineas;
}

QStringList Formatear(int id, const QString& maquina, int ope, const QStringList& campos)
{
    return Filas(Datos(id, maquina, ope, campos).filas);
}

struct Avance_De_Prueba : Avance_Exportar {
    QStringList hechos;
    void Etiqueta(const QString& texto) override { hechos << texto; }
    void Maximo(qint64 n) override { hechos << "max " + QString::number(n); }
    void Valor(qint64 n) override { hechos << QString::number(n); }
};

} // namespace

class TestGuardarN : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cada_corrida_es_una_fila();
    void un_solo_punto_da_una_fila_con_lo_ultimo();
    void un_punto_que_vuelve_da_otra_fila();
    void la_primera_fila_abre_corrida_aunque_no_tenga_nombre();
    void los_generales_y_el_sufijo();
    void una_columna_sin_datos_y_una_fila_sin_nada();
    void los_desplazamientos_llegan_a_las_celdas();
    void sin_campos_no_hay_columnas();
    void las_columnas_se_hallan_por_su_nombre();
    void igual_que_punto_a_punto_data();
    void igual_que_punto_a_punto();
    void mas_corridas_que_la_tabla_es_el_error_9();
    void de_krt800_cada_registro_es_una_fila();
    void el_nivel_con_otra_familia_en_uso();
    void la_sesion_de_otra_familia();
    void los_campos_acaban_en_el_primer_hueco();
    void el_avance_va_en_dos_tiempos();
    void un_tipo_desconocido_da_falso();
    void una_clase_nueva_entra_por_filas_data();
    void una_clase_nueva_entra_por_filas();
    void las_columnas_se_rellenan_por_la_derecha();
};

void TestGuardarN::init()
{
    Quitar_Desplazamientos();
}

void TestGuardarN::cada_corrida_es_una_fila()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 1,
                 {{"1", " y+001000000"}, {"1", "cARB"}, {"2", " y-000020500"}, {"3", "cLINDE"}});
    QCOMPARE(Formatear(1, "KRT300", 1, {"Punto", "Coordenada X", "Código"}),
             (QStringList{"1|1000.000|ARB  ", "2|-20.500 |     ", "3|        |LINDE"}));
}

void TestGuardarN::un_solo_punto_da_una_fila_con_lo_ultimo()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"A", "cUNO"}, {"A", "H+0100000"}, {"A", "cDOS"}});
    QCOMPARE(Formatear(1, "KRT300", 0, {"Código", "Ángulo Horizontal"}),
             QStringList{"DOS|10.0000"});
}

void TestGuardarN::un_punto_que_vuelve_da_otra_fila()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0,
                 {{"1", "cA"}, {"1", "H+0100000"}, {"2", "cB"}, {"1", "cC"}, {"1", "cD"}});
    // Nothing is carried over from one run to the next.
    QCOMPARE(Formatear(1, "KRT300", 0, {"Punto", "Código", "Ángulo Horizontal"}),
             (QStringList{"1|A|10.0000", "2|B|       ", "1|D|       "}));
    const auto corridas = Buscar_Corridas(*Base_Datos, 1);
    QCOMPARE(corridas.size(), std::size_t(3));
    QCOMPARE(corridas[0].secuencia_desde, 1);
    QCOMPARE(corridas[0].secuencia_hasta, 2);
    QCOMPARE(corridas[2].secuencia_hasta, 999999);
    QVERIFY(Buscar_Corridas(*Base_Datos, 2).empty());
}

void TestGuardarN::la_primera_fila_abre_corrida_aunque_no_tenga_nombre()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"", "cA"}, {"", "cB"}, {"1", "cC"}});
    QCOMPARE(Formatear(1, "KRT300", 0, {"Punto", "Código"}), (QStringList{" |B", "1|C"}));
}

void TestGuardarN::los_generales_y_el_sufijo()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "PX7";
    Poner_Sesion(
        p, 1, "PX7", 0,
        {{"E1`5", "cA", "EE-1     +01500"}, {"E1`5", "cB", "EE-1     +01600"}, {"6", "cC", ""}});
    QCOMPARE(Formatear(1, "PX7", 0, {"Punto", "Estación", "Altura Instrumento", "Código"}),
             (QStringList{"5|E-1|1.600|B", "6|   |     |C"}));
}

void TestGuardarN::una_columna_sin_datos_y_una_fila_sin_nada()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}, {"2", "H+0100000"}, {"3", "cB"}});
    QCOMPARE(Formatear(1, "KRT300", 0, {"Código", "Inventado"}), (QStringList{"A|", "B|"}));
    // When every row is empty they all stay.
    QCOMPARE(Formatear(1, "KRT300", 0, {"Inventado"}), (QStringList{"", "", ""}));
}

void TestGuardarN::los_desplazamientos_llegan_a_las_celdas()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 1, {{"1", " y+001000000"}, {"1", " x+000000000"}});
    Poner_Desplazamientos("-2000", ".125", "", "7,3");
    QCOMPARE(Formatear(1, "KRT300", 1, {"Coordenada X", "Coordenada Y"}),
             QStringList{"-1000.000|0.125"});
    Clave_Estacion = "KRT800";
    Poner_Sesion(p, 2, "KRT800", 4, {{"1", "1,10,20,30,A"}});
    Poner_Desplazamientos("5", "0", "-30", "7,3");
    QCOMPARE(Formatear(2, "KRT800", 4, {"Coordenada X", "Coordenada Z"}),
             QStringList{"15.000|0.000"});
}

void TestGuardarN::sin_campos_no_hay_columnas()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}});
    QCOMPARE(Formatear(1, "KRT300", 0, {}), QStringList());
    QCOMPARE(Formatear(9, "KRT300", 0, {"Código"}), QStringList());
}

void TestGuardarN::las_columnas_se_hallan_por_su_nombre()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}});
    const Datos_Formateados datos = Datos(1, "KRT300", 0, {"Inventado", "Código", "Punto"});
    QCOMPARE(datos.campos, (QStringList{"Inventado", "Código", "Punto"}));
    QCOMPARE(datos.Numero_De_Filas(), std::size_t(1));
    QCOMPARE(datos.filas[*datos.Columna({u"Código"})].Celda(0), QStringLiteral("A"));
    QCOMPARE(datos.Columna({u"Coordenada Z", u"Punto", u"Código"}), std::optional<std::size_t>(2));
    QCOMPARE(datos.Columna({u"Inventado", u"Punto"}), std::optional<std::size_t>(0));
    QVERIFY(!datos.Columna({u"código", u"Punt"}) && !datos.Columna({}));
}

void TestGuardarN::igual_que_punto_a_punto_data()
{
    QTest::addColumn<int>("semilla");
    for (int s = 1; s <= 12; ++s)
        QTest::addRow("sesión %d", s) << s;
}

// The one pass through the lines against one query a run, on sessions made by chance: points that
// return, gaps and doubles in the sequence, damaged lines, general records that change.
void TestGuardarN::igual_que_punto_a_punto()
{
    QFETCH(int, semilla);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Desplazamientos("1.5", "0", "0", "7,3");
    std::mt19937 azar{unsigned(semilla)};
    const auto dado = [&](int n) { return int(azar() % unsigned(n)); };
    const QStringList puntos = {"1", "2", "P`1", "O'N", "", "Ñ"};
    const QStringList lineas = {
        " y+001234567",      " x-00A", "cARB", "c",     "H+01234561234", "?", " z+1",
        "H-0000001-0000500", "'",      " y",   "cñandú"};
    Insercion registros = Base_Datos->Preparar_Insercion(
        "Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    qint64 secuencia = 0;
    const int total = 30 + dado(60);
    for (int i = 0; i < total; ++i) {
        secuencia += dado(8) == 0 ? dado(400) : dado(12) == 0 ? 0 : 1;
        const QString general =
            dado(2) ? "EE-" + QString::number(dado(3)) + "     +01500" : QString();
        registros.Anadir(
            {1, secuencia, puntos[dado(3) ? dado(2) : dado(6)], lineas[dado(11)], general});
    }
    // The last run ends at its ceiling.
    if (semilla % 3 == 0) registros.Anadir({1, 1000000, puntos[0], "cFUERA", ""});

    const QStringList campos = {
        "Código",       "Coordenada X",       "Estación",  "Punto",    "Ángulo Horizontal",
        "Coordenada Y", "Altura Instrumento", "Inventado", "Distancia"};
    const std::vector<Corrida_Punto> corridas = Buscar_Corridas(*Base_Datos, 1);
    Filas_Exportar esperadas(std::size_t(campos.size()));
    for (const Corrida_Punto& corrida : corridas) {
        QStringList valores(campos.size());
        Extraer_Punto(*Base_Datos, 1, "KRT300", 0, corrida.punto, corrida.secuencia_desde,
                      corrida.secuencia_hasta, campos, valores);
        for (qsizetype c = 0; c < campos.size(); ++c)
            esperadas[std::size_t(c)].push_back(valores[c]);
    }
    Ajustar_Filas(esperadas);
    Igualar_Columnas(esperadas);
    QCOMPARE(Formatear(1, "KRT300", 0, campos), Filas(esperadas));
}

void TestGuardarN::mas_corridas_que_la_tabla_es_el_error_9()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Base_Datos->BeginTrans();
    Insercion registros = Base_Datos->Preparar_Insercion(
        "Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    for (int i = 1; i <= 32768; ++i)
        registros.Anadir({1, i, QString::number(i), "cA", ""});
    Base_Datos->CommitTrans();
    QCOMPARE(Buscar_Corridas(*Base_Datos, 1).size(), MAX_FILAS);
    registros.Anadir({1, 32769, "otro", "cA", ""});

    Poner_Campos_Exportar({"Código"});
    Avance_Exportar avance;
    const QString fichero = p.Ruta("ficheros/s.txt");
    QVERIFY(!Exportar_Sesion(1, "KRT300", 0, "TxF", "F", fichero, {" \u0006N"}, avance));
    QCOMPARE(guion.avisos.size(), 1);
    QVERIFY(guion.avisos[0].texto.contains("\r(9) "));
    QCOMPARE(guion.avisos[0].icono, Icono::Critico);
    QVERIFY(!QFile::exists(fichero));
}

void TestGuardarN::de_krt800_cada_registro_es_una_fila()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT800";
    const QString general = "STN\u0005Estación\u0005E1\u0006STN\u0005Altura Instrumento\u00051.50";
    Poner_Sesion(p, 1, "KRT800", 1,
                 {{"", "STN E1,1.50", general},
                  {"", "XYZ 7,1,2,3,ARB", general},
                  {"", "NADA 1", ""},
                  {"", "XYZ 7,*,5,6,*", general}});
    // Nothing is carried from one record to the next, and the records without a field go.
    QCOMPARE(Formatear(1, "KRT800", 1, {"Estación", "Punto", "Coordenada X", "Código"}),
             (QStringList{"E1| |     |   ", "E1|7|1.000|ARB", "E1|7|     |   "}));
    QCOMPARE(Formatear(1, "KRT800", 1, {"Altura Instrumento"}), (QStringList{"1.5", "1.5", "1.5"}));
}

void TestGuardarN::el_nivel_con_otra_familia_en_uso()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "NV400", 0,
                 {{" ", "b,01,0,0,"},
                  {" ", "g,01,A,"},
                  {" ", "g,\u0006x,B,"},
                  {" ", "f,02,C,"},
                  {" ", "k,\u0005y,D,"}});
    const Datos_Formateados datos = Datos(1, "NV400", 0, {"uno", "dos", "reserva"});
    QCOMPARE(Filas(datos.filas).size(), 3);
    QVERIFY(Filas(datos.filas)[0].startsWith("01|"));
    QVERIFY(Es_Fila_Marcada(datos.filas[0].Celda(1)));
    QCOMPARE(datos.lineas_especiales, (QStringList{"g,\u0006x,B,", "k,\u0005y,D,"}));
}

void TestGuardarN::la_sesion_de_otra_familia()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Poner_Sesion(p, 1, "KRT300", 1, {{"1", "cARB"}, {"1", " y+001000000"}});
    // The record kinds are the session's, the form of its coordinates that of the family in force.
    Clave_Estacion = "NV400";
    QCOMPARE(Formatear(1, "KRT300", 1, {"Código", "Coordenada X"}), QStringList{"|"});
    Clave_Estacion = "PX7";
    QCOMPARE(Formatear(1, "KRT300", 1, {"Código", "Coordenada X"}), QStringList{"ARB|1000.000"});
}

void TestGuardarN::los_campos_acaban_en_el_primer_hueco()
{
    Poner_Campos_Exportar({"A", "B"});
    Campos_Exportar[5] = "Z";
    QCOMPARE(Cargar_Campos_Exportar(), (QStringList{"A", "B"}));
    QStringList llena;
    for (int i = 0; i < MAX_CAMPOS; ++i)
        llena << QString::number(i);
    Poner_Campos_Exportar(llena);
    QCOMPARE(Cargar_Campos_Exportar(), llena);
    Poner_Campos_Exportar({});
    QCOMPARE(Cargar_Campos_Exportar(), QStringList());
}

void TestGuardarN::el_avance_va_en_dos_tiempos()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    QList<Linea_De_Prueba> lineas;
    for (int i = 0; i < 1100; ++i)
        lineas << Linea_De_Prueba{QString::number(i), "cA"};
    Poner_Sesion(p, 1, "KRT300", 0, lineas);
    Poner_Campos_Exportar({"Punto"});
    Avance_De_Prueba avance;
    QVERIFY(Exportar_Sesion(1, "KRT300", 0, "txf", "F", p.Ruta("ficheros/s.txt"), {" \u0006N"},
                            avance));
    QCOMPARE(avance.hechos,
             (QStringList{"Formateando Datos... (1 de 2)", "max 1100", "1024", "1100", "0",
                          "Exportando... (2 de 2)", "max 1100", "1024", "1100", "0"}));
    QVERIFY(guion.repintados >= 4);
    QVERIFY(guion.avisos.isEmpty());
}

void TestGuardarN::un_tipo_desconocido_da_falso()
{
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Avance_Exportar avance;
    QVERIFY(!Exportar_Sesion(1, "KRT300", 0, "pdf", "F", p.Ruta("ficheros/s.txt"), {}, avance));
    QVERIFY(!QFile::exists(p.Ruta("ficheros/s.txt")));
}

void TestGuardarN::una_clase_nueva_entra_por_filas_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("filas");
    QTest::newRow("KRT300") << "KRT300" << 0 << "T"
                            << "T+0215990001"
                            << "21.5|0001";
    QTest::newRow("PX7") << "PX7" << 1 << "T"
                         << " T-0215990001"
                         << "-21.5|0001";
    QTest::newRow("KRT800") << "KRT800" << 1 << "TMP"
                            << "TMP 21.50,0001"
                            << "21.5|0001";
}

// A model and a record kind that the program never heard of, by rows alone.
void TestGuardarN::una_clase_nueva_entra_por_filas()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, id);
    QFETCH(QString, linea);
    Base_De_Prueba p;
    Interfaz_Guion guion;
    Poner_Instrumentos(p);
    Clave_Estacion = maquina;
    Poner_Sesion(p, 1, maquina, ope, {{"1", linea}});
    QCOMPARE(Formatear(1, maquina, ope, {"Temperatura", "Sonda"}), QStringList{"|"});
    p.Fila("KRT", {{"Nombre", "TERMO-9"}, {"Clave", maquina}, {"VelPuerto", "9600"}});
    Poner_Registro(p, maquina, {ope}, id, "Temperatura", "C",
                   {{"Temperatura", 5, "3,1", ".", "0.0", "CD"}, {"Fecha", 2}, {"Sonda", 4}});
    QList<Campo_De_Prueba> de_800 = {{"Temperatura", 5, "*", "", "", "CD"}, {"Sonda", 4}};
    if (maquina == u"KRT800") {
        Base_Datos->Execute("DELETE FROM Campos WHERE ID = 'TMP'");
        Base_Datos->Execute("DELETE FROM Identificadores WHERE ID = 'TMP'");
        Poner_Registro(p, maquina, {ope}, id, "Temperatura", "C", de_800);
    }
    QTEST(Formatear(1, maquina, ope, {"Temperatura", "Sonda"}).join(';'), "filas");
}

void TestGuardarN::las_columnas_se_rellenan_por_la_derecha()
{
    Filas_Exportar filas = {{"a", "", "ccc"}, {"", "", ""}};
    Igualar_Columnas(filas);
    QCOMPARE(filas, (Filas_Exportar{{"a  ", "   ", "ccc"}, {"", "", ""}}));
}

PRUEBA(TestGuardarN)
#include "TestGuardarN.moc"
