#include "core/Sucesos.h"
#include "session/Decodificador.h"
#include "session/Desplazamiento.h"
#include "session/Identificador.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"

#include <QRandomGenerator>
#include <sqlite3.h>

class TestDecodificador : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_cifras_se_parten_data();
    void las_cifras_se_parten();
    void los_tratamientos_van_en_su_orden_data();
    void los_tratamientos_van_en_su_orden();
    void las_columnas_se_cortan_data();
    void las_columnas_se_cortan();
    void las_letras_solo_vacian_su_campo();
    void una_linea_de_krt300_da_sus_campos();
    void un_nombre_que_nadie_da_queda_vacio();
    void gana_el_ultimo_registro_del_punto();
    void el_punto_pierde_su_sufijo();
    void el_rango_y_el_punto_acotan();
    void las_marcas_suman_el_desplazamiento();
    void la_marca_elige_su_desplazamiento_data();
    void la_marca_elige_su_desplazamiento();
    void el_modelo_en_uso_decide_tres_cosas();
    void las_columnas_no_listadas_se_decodifican();
    void los_generales_llegan_a_cada_linea();
    void la_posicion_general_es_de_la_familia_en_uso();
    void una_linea_de_krt800_data();
    void una_linea_de_krt800();
    void los_generales_de_krt800_casan_registro_y_campo();
    void los_generales_seguidos_son_los_de_cada_uno_data();
    void los_generales_seguidos_son_los_de_cada_uno();
    void el_nivel_llena_por_lugares();
    void una_fila_a_mano_se_ve_al_momento();
    void la_base_reabierta_vacia_la_cache();
    void una_base_rota_calla();
    void las_filas_absurdas_vacian_lo_suyo();
};

void TestDecodificador::las_cifras_se_parten_data()
{
    QTest::addColumn<QString>("posdigit");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("caracter");
    QTest::addColumn<QString>("partido");
    QTest::newRow("diez cifras") << "7,3"
                                 << "0012345678"
                                 << "."
                                 << "0012345.678";
    QTest::newRow("mas es un cero") << "7,3"
                                    << "+012345678"
                                    << "."
                                    << "0012345.678";
    QTest::newRow("mas que sobra") << "7,3"
                                   << "+0012345678"
                                   << "."
                                   << "0012345.678";
    QTest::newRow("menos delante") << "7,3"
                                   << "-0012345678"
                                   << "."
                                   << "-0012345.678";
    QTest::newRow("sobra por la izquierda") << "3,2"
                                            << "9912345"
                                            << "."
                                            << "123.45";
    QTest::newRow("coma") << "7,3"
                          << "0012345678"
                          << ","
                          << "0012345,678";
    QTest::newRow("sin marca no se parte") << "7,3"
                                           << "0012345678"
                                           << ""
                                           << "0012345678";
    QTest::newRow("sin marca el mas es cero") << "7,3"
                                              << "+12"
                                              << ""
                                              << "012";
    QTest::newRow("sin marca el menos vuelve") << "7,3"
                                               << "-12"
                                               << ""
                                               << "-12";
    QTest::newRow("asterisco") << "*"
                               << "+12A"
                               << "."
                               << "+12A";
    QTest::newRow("asterisco con blancos") << " * "
                                           << "+12A"
                                           << "."
                                           << "+12A";
    QTest::newRow("faltan cifras") << "7,3"
                                   << "5"
                                   << "."
                                   << ".005";
    QTest::newRow("faltan cifras, negativo") << "7,3"
                                             << "-5"
                                             << "."
                                             << "-.005";
    QTest::newRow("sin decimales") << "4,0"
                                   << "1234"
                                   << "."
                                   << "1234.";
    QTest::newRow("vacio queda vacio") << "7,3"
                                       << ""
                                       << "."
                                       << "";
}

void TestDecodificador::las_cifras_se_parten()
{
    QFETCH(QString, posdigit);
    QFETCH(QString, valor);
    QFETCH(QString, caracter);
    QTEST(Aplicar_Digitos(posdigit, valor, caracter), "partido");
}

void TestDecodificador::los_tratamientos_van_en_su_orden_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("lista");
    QTest::addColumn<QString>("tratado");
    QTest::newRow("CD,CI") << "0012.3400"
                           << "CD,CI"
                           << "12.34";
    QTest::newRow("CD deja un decimal") << "12.000"
                                        << "CD"
                                        << "12.0";
    QTest::newRow("CD sin punto") << "1200"
                                  << "CD"
                                  << "1200";
    QTest::newRow("CD punto al final") << "12."
                                       << "CD"
                                       << "12.";
    QTest::newRow("CI todo ceros") << "000.500"
                                   << "CI"
                                   << "0.500";
    QTest::newRow("CI negativo menor que uno") << "-0.500"
                                               << "CI"
                                               << "-0.500";
    QTest::newRow("CI negativo") << "-0012.500"
                                 << "CI"
                                 << "-12.500";
    QTest::newRow("CI mas") << "+0012.5"
                            << "CI"
                            << "12.5";
    QTest::newRow("CI sin punto") << "0012"
                                  << "CI"
                                  << "0012";
    QTest::newRow("CI sin entera") << ".005"
                                   << "CI"
                                   << "0.005";
    QTest::newRow("ED") << "P7`12"
                        << "ED"
                        << "12";
    QTest::newRow("ED con dos marcas") << "P7`A`12"
                                       << "ED"
                                       << "12";
    QTest::newRow("ED sin marca") << "P7"
                                  << "ED"
                                  << "P7";
    QTest::newRow("ED,CD en orden") << "9`12.00"
                                    << "ED,CD"
                                    << "12.0";
    QTest::newRow("blancos en la lista") << "0012.3400"
                                         << "CD, CI"
                                         << "12.34";
    QTest::newRow("desconocido") << "0012.30"
                                 << "XX"
                                 << "0012.30";
}

void TestDecodificador::los_tratamientos_van_en_su_orden()
{
    QFETCH(QString, valor);
    QFETCH(QString, lista);
    QTEST(Aplicar_Especial(valor, lista), "tratado");
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Aplicar_Especial("1A.5", "CI"));
}

void TestDecodificador::las_columnas_se_cortan_data()
{
    QTest::addColumn<QString>("linea");
    QTest::addColumn<int>("posicion");
    QTest::addColumn<int>("digitos");
    QTest::addColumn<QString>("posdigit");
    QTest::addColumn<QString>("caracter");
    QTest::addColumn<QString>("forsalida");
    QTest::addColumn<QString>("especial");
    QTest::addColumn<QString>("valor");
    const auto fila = [](const char* nombre, const char* linea, int posicion, int digitos,
                         const char* posdigit, const char* caracter, const char* forsalida,
                         const char* especial, const char* valor) {
        QTest::newRow(nombre) << linea << posicion << digitos << posdigit << caracter << forsalida
                              << especial << valor;
    };
    const char* const mas = "A0001   +0012345678";
    const char* const menos = "A0001   -0012345678";
    fila("partido", mas, 9, 11, "7,3", ".", "", "", "0012345.678");
    fila("negativo", menos, 9, 11, "7,3", ".", "", "", "-0012345.678");
    fila("con dibujo", mas, 9, 11, "7,3", ".", "0.000", "", "12345.678");
    fila("dibujo de un decimal", menos, 9, 11, "7,3", ".", "0.0", "", "-12345.7");
    fila("texto", mas, 2, 7, "*", "", "", "", "0001");
    fila("texto con dibujo", mas, 2, 7, "*", "", "0.00", "", "1.00");
    fila("letras con dibujo", "AB12C  ", 2, 7, "*", "", "0.00", "", "B12C");
    fila("texto con tratamiento", "A01.50", 2, 5, "*", "", "", "CD,CI", "1.5");
    fila("corta", "A00", 9, 11, "7,3", ".", "0.000", "", "");
    fila("cortada a medias", "A0001   +00123", 9, 11, "7,3", ".", "0.000", "", "0.123");
    fila("blancos no son cero", "A0001           ", 9, 8, "7,3", ".", "0.000", "", "");
    fila("ancho cero", mas, 9, 0, "7,3", ".", "0.000", "", "");
    fila("ED con acento grave", "AEST`P7  `12", 2, 3, "*", "", "", "ED", "12");
    fila("ED con dos acentos graves", "AEST`P7`12 ", 2, 3, "*", "", "", "ED", "12 ");
    fila("ED sin acento grave", "AP7 ", 2, 3, "*", "", "", "ED", "P7");
    fila("acento grave sin ED", "AEST`P7  `12", 2, 3, "*", "", "", "", "EST");
    fila("acento grave con otro tratamiento", "A1`2.50", 2, 5, "*", "", "", "CD", "1`2.5");
    fila("sin partir y sin dibujo", "A+123", 2, 4, "7,3", "", "", "", "0123");
}

void TestDecodificador::las_columnas_se_cortan()
{
    QFETCH(QString, linea);
    QFETCH(int, posicion);
    QFETCH(int, digitos);
    QFETCH(QString, posdigit);
    QFETCH(QString, caracter);
    QFETCH(QString, forsalida);
    QFETCH(QString, especial);
    const Fila_Campo campo{"KRT300", "A",       "Campo",  1,  digitos,
                           posdigit, forsalida, especial, "", caracter};
    const Suma suma{Familia_De(u"KRT300"), {}};
    QStringList valores = {"x", "y"};
    Cortar_Campo(suma, linea, posicion, campo, {"Otro", "Campo"}, valores);
    QCOMPARE(valores[0], QStringLiteral("x"));
    QTEST(valores[1], "valor");
    QStringList ajenos = {"x"};
    Cortar_Campo(suma, linea, posicion, campo, {"Otro"}, ajenos);
    QCOMPARE(ajenos, QStringList{"x"});
}

void TestDecodificador::las_letras_solo_vacian_su_campo()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    const QStringList nombres = {"Ángulo Horizontal", "Distancia", "Nota"};
    QStringList valores(3);
    Decodificar_Linea(*Base_Datos, "H+00A45670001234599NOTA", "1", "KRT300", 0, nombres, valores);
    QCOMPARE(valores, (QStringList{"", "12.345", "NOTA"}));
    Decodificar_Linea(*Base_Datos, "H+0012345001-345099NOTA", "1", "KRT300", 0, nombres, valores);
    QCOMPARE(valores, (QStringList{"1.2345", "", "NOTA"}));
    const QStringList coordenada = {"Coordenada X"};
    QStringList una = {"antes"};
    Decodificar_Linea(*Base_Datos, " y+00A234567", "1", "KRT300", 0, coordenada, una);
    QCOMPARE(una, QStringList{""});
}

void TestDecodificador::una_linea_de_krt300_da_sus_campos()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    for (const QString& maquina : {QStringLiteral("KRT300"), QStringLiteral("PX7")}) {
        Clave_Estacion = maquina;
        // The names come in any order, a field not asked for still takes its columns, and the
        // blanks around the line don't count.
        const QStringList nombres = {"Nota", "Ángulo Horizontal"};
        QStringList valores(2);
        Decodificar_Linea(*Base_Datos, "  H+0123456000123450 nota  ", "1", maquina, 0, nombres,
                          valores);
        QCOMPARE(valores, (QStringList{"nota", "12.3456"}));
    }
}

void TestDecodificador::un_nombre_que_nadie_da_queda_vacio()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cARBOL"}});
    QStringList valores = {"viejo", "viejo", "viejo"};
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "1", 1, 999999,
                  {"Código", "Inventado", "Coordenada X"}, valores);
    QCOMPARE(valores, (QStringList{"ARBOL", "", ""}));
    // The fields of a kind follow `Orden`, whatever the order of their rows.
    for (const int orden : {3, 1, 2})
        p.Fila("Campos", {{"Maquina", "KRT300"},
                          {"ID", "o"},
                          {"Campo", QString::number(orden)},
                          {"Orden", orden},
                          {"Digitos", 2},
                          {"PosDigit", "*"}});
    QStringList ordenados(3);
    Decodificar_Linea(*Base_Datos, "oAABBCC", "1", "KRT300", 0, {"1", "2", "3"}, ordenados);
    QCOMPARE(ordenados, (QStringList{"AA", "BB", "CC"}));
    // A kind that no row describes is skipped.
    QStringList otros = {"viejo"};
    Decodificar_Linea(*Base_Datos, "?ARBOL", "1", "KRT300", 0, {"Código"}, otros);
    QCOMPARE(otros, QStringList{"viejo"});
}

void TestDecodificador::gana_el_ultimo_registro_del_punto()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0,
                 {{"1", "cUNO"}, {"1", "H+0100000"}, {"1", "cDOS"}, {"2", "cTRES"}});
    QStringList valores(3);
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "1", 1, 999999,
                  {"Código", "Ángulo Horizontal", "Punto"}, valores);
    QCOMPARE(valores, (QStringList{"DOS", "10.0000", "1"}));
    // A later record of the kind also wins when its field is empty.
    p.Fila("Registros",
           {{"ID", 1}, {"Secuencia", 9}, {"Punto", "1"}, {"Datos", "c"}, {"DatosG", ""}});
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "1", 1, 999999,
                  {"Código", "Ángulo Horizontal", "Punto"}, valores);
    QCOMPARE(valores, (QStringList{"", "10.0000", "1"}));
}

void TestDecodificador::el_punto_pierde_su_sufijo()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"P7`12", "cUNO"}, {"O'Neil", "cDOS"}});
    QStringList valores(3), uno(1);
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "P7`12", 1, 999999, {"Punto", "PUNTO", "Código"},
                  valores);
    QCOMPARE(valores, (QStringList{"12", "12", "UNO"}));
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "P7`A`3", 1, 999999, {"Punto"}, uno);
    QCOMPARE(uno, QStringList{"3"});
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "O'Neil", 1, 999999, {"punto", "x", "Código"},
                  valores);
    QCOMPARE(valores, (QStringList{"O'Neil", "", "DOS"}));
}

void TestDecodificador::el_rango_y_el_punto_acotan()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cA"}, {"2", "cB"}, {"1", "cC"}, {"1", "cD"}});
    Poner_Sesion(p, 2, "KRT300", 0, {{"1", "cZ"}});
    const auto codigo = [](qint64 desde, qint64 hasta) {
        QStringList valores(1);
        Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "1", desde, hasta, {"Código"}, valores);
        return valores[0];
    };
    QCOMPARE(codigo(1, 2), QStringLiteral("A"));
    QCOMPARE(codigo(1, 3), QStringLiteral("C"));
    QCOMPARE(codigo(4, 999999), QStringLiteral("D"));
    QCOMPARE(codigo(5, 999999), QString());
}

void TestDecodificador::las_marcas_suman_el_desplazamiento()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    Poner_Desplazamientos("10", "-5.5", "1000", "7,3");
    Poner_Sesion(p, 1, "KRT300", 1,
                 {{"1", " y+001234567"}, {"1", " x-000000500"}, {"1", " z+1234567890"}});
    const QStringList nombres = {"Coordenada X", "Coordenada Y", "Coordenada Z"};
    QStringList valores(3);
    Extraer_Punto(*Base_Datos, 1, "KRT300", 1, "1", 1, 9, nombres, valores);
    QCOMPARE(valores, (QStringList{"1244.567", "-6.000", "1235567.890"}));
    // A coordinate cut empty stays empty, whatever the offset; its first place is its sign's.
    Decodificar_Linea(*Base_Datos, " y", "1", "KRT300", 1, nombres, valores);
    QCOMPARE(valores[0], QString());
    Decodificar_Linea(*Base_Datos, " y9001234567", "1", "KRT300", 1, nombres, valores);
    QCOMPARE(valores[0], QStringLiteral("1244.567"));
}

void TestDecodificador::la_marca_elige_su_desplazamiento_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("modo");
    QTest::addColumn<QString>("marca");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("suma");
    const auto fila = [](const char* nombre, const char* clave, const char* modo, const char* marca,
                         const char* valor, const char* suma) {
        QTest::newRow(nombre) << clave << modo << marca << valor << suma;
    };
    fila("x", "KRT300", "D", "CX", "+001234567", "1244.567");
    fila("y", "KRT300", "D", "CY", "+001234567", "1334.567");
    fila("z", "KRT300", "D", "CZ", "+001234567", "2234.567");
    fila("minúsculas", "KRT300", "D", "cz", "+001234567", "2234.567");
    fila("de cable", "KRT300", "C", "CX", "+001234567", "+001244567");
    fila("no listado", "KRT300", "D", "NL", "+001234567", "+001234567");
    fila("global", "KRT300", "D", "GE", "abc", "abc");
    fila("sin marca", "KRT300", "D", "", "7", "7");
    fila("800", "KRT800", "D", "CY", "1.5", "101.500");
    // A family that has no coordinates gives none, whatever the session's.
    fila("nivel", "NV400", "D", "CX", "+001234567", "");
}

void TestDecodificador::la_marca_elige_su_desplazamiento()
{
    QFETCH(QString, clave);
    QFETCH(QString, modo);
    QFETCH(QString, marca);
    QFETCH(QString, valor);
    const Suma suma{Familia_De(clave), {"10", "100", "1000"}};
    QTEST(Aplicar_Marca(suma, modo, marca, valor, "7,3"), "suma");
}

void TestDecodificador::los_generales_llegan_a_cada_linea()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    const QString datosg =
        QStringLiteral("Bxxxx") + QChar(6) + "EE-100   +01500" + QChar(6) + "EE-200";
    const QStringList nombres = {"Altura Instrumento", "Código", "Estación"};
    QStringList valores(3);
    Decodificar_General(*Base_Datos, datosg, "KRT300", nombres, valores, 0);
    QCOMPARE(valores, (QStringList{"1.500", "", "E-100"}));
    // The case of an identifier counts, and so does a blank in front of the item.
    for (const char* otro : {"eE-100   +01500", " EE-100   +01500"}) {
        valores = QStringList(3);
        Decodificar_General(*Base_Datos, otro, "KRT300", nombres, valores, 0);
        QCOMPARE(valores, QStringList(QList<QString>(3)));
    }
    // Of an ordinary record nothing is taken from the general data, nor for another operation.
    valores = QStringList(3);
    Decodificar_General(*Base_Datos, "cARBOL", "KRT300", nombres, valores, 0);
    QCOMPARE(valores, QStringList(QList<QString>(3)));
    Decodificar_General(*Base_Datos, datosg, "KRT300", nombres, valores, 5);
    QCOMPARE(valores, QStringList(QList<QString>(3)));

    Poner_Sesion(p, 1, "KRT300", 0, {{"1", "cUNO", datosg}, {"1", "cDOS", ""}});
    Extraer_Punto(*Base_Datos, 1, "KRT300", 0, "1", 1, 9, nombres, valores);
    QCOMPARE(valores, (QStringList{"1.500", "DOS", "E-100"}));
}

void TestDecodificador::el_modelo_en_uso_decide_tres_cosas()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Poner_Registro(p, "KRT300", {0}, "1", "Uno", "C", {{"Código", 3}});
    const auto codigo = [](const QString& linea) {
        QStringList valores = {"v"};
        Decodificar_Linea(*Base_Datos, linea, "", "KRT300", 0, {"Código"}, valores);
        return valores[0];
    };
    // While the level is in force every line is of kind "1", whatever the session's family.
    for (const char* modelo : {"KRT300", "PX7", "KRT800", ""}) {
        Clave_Estacion = modelo;
        QCOMPARE(codigo("cARBOL"), QStringLiteral("ARBOL"));
    }
    Clave_Estacion = "NV400";
    QCOMPARE(codigo("cARBOL"), QStringLiteral("ARB"));
    QCOMPARE(codigo("?XYZ"), QStringLiteral("XYZ"));

    // Coordinates are added in its form.
    const auto x = [] {
        QStringList valores = {"v"};
        Decodificar_Linea(*Base_Datos, " y+001234567", "", "KRT300", 1, {"Coordenada X"}, valores);
        return valores[0];
    };
    Clave_Estacion = "PX7";
    QCOMPARE(x(), QStringLiteral("1234.567"));
    Clave_Estacion = "KRT800";
    QCOMPARE(x(), QStringLiteral("1234567.000"));
    // The decoder itself asks for nothing but what it is given.
    Clave_Estacion = "NV400";
    const Familia& krt300 = Familia_De(u"KRT300");
    QStringList valores = {"v"};
    Decodificador(*Base_Datos, krt300, 1, {"Coordenada X"}, {krt300, {.x = "1000"}})
        .Linea(u" y+001234567", valores);
    QCOMPARE(valores[0], QStringLiteral("2234.567"));
}

void TestDecodificador::las_columnas_no_listadas_se_decodifican()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    QStringList valores = {"v", "v"};
    // "Reserva" is marked "NL": it is no coordinate, and its sign place is treated as one's.
    Decodificar_Linea(*Base_Datos, "H+012345600012345-7nota", "1", "KRT300", 0, {"Reserva", "Nota"},
                      valores);
    QCOMPARE(valores, (QStringList{"-7", "nota"}));
    Decodificar_Linea(*Base_Datos, "H+01234560001234507nota", "1", "KRT300", 0, {"Reserva", "Nota"},
                      valores);
    QCOMPARE(valores, (QStringList{"+7", "nota"}));

    // A general field with a coordinate's mark gets no offset: it is cut as any other.
    Poner_Registro(p, "KRT300", {0}, "G", "Base", "G",
                   {{"Base X", 10, "7,3", ".", "0.000", "", "CX"}});
    Desp_X = "100";
    QStringList base = {"v"};
    Decodificar_General(*Base_Datos, "G+001234567", "KRT300", {"Base X"}, base, 0);
    QCOMPARE(base[0], QStringLiteral("1234.567"));
    Poner_Registro(
        p, "KRT800", {1}, "BAS", "Base", "G",
        {{"Base X", 10, "7,3", "", "", "", "GE"}, {"Base Y", 10, "7,3", "", "", "", "CY"}});
    Clave_Estacion = "KRT800";
    Desp_Y = "100";
    const auto item = [](const char* campo) {
        return QStringList{"BAS", campo, "5"}.join(QChar(SEP_CAMPO));
    };
    QStringList dos = {"v", "v"};
    // Only what is marked "GE" travels in the general data of a KRT800.
    Decodificar_General(*Base_Datos, item("Base X") + QChar(SEP_LISTA) + item("Base Y"), "KRT800",
                        {"Base X", "Base Y"}, dos, 1);
    QCOMPARE(dos, (QStringList{"5", "v"}));
}

void TestDecodificador::la_posicion_general_es_de_la_familia_en_uso()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    const Familia &krt300 = Familia_De(u"KRT300"), &krt800 = Familia_De(u"KRT800");
    QCOMPARE(Posicion_Campo(*Base_Datos, krt300, "E", 1), 1);
    QCOMPARE(Posicion_Campo(*Base_Datos, krt300, "E", 2), 9);
    QCOMPARE(Posicion_Campo(*Base_Datos, krt800, "E", 2), 1);
    QVERIFY(Buscar_Campo_G(*Base_Datos, "Estación", krt300, 0));
    QVERIFY(!Buscar_Campo_G(*Base_Datos, "Código", krt300, 0));
    QVERIFY(!Buscar_Campo_G(*Base_Datos, "Inventado", krt300, 0));

    // With another model in force the columns before the field count for nothing.
    const QString datosg = "EE-100   +01500";
    QStringList valores = {""};
    Clave_Estacion = "KRT300";
    Decodificar_General(*Base_Datos, datosg, "KRT300", {"Altura Instrumento"}, valores, 0);
    QCOMPARE(valores[0], QStringLiteral("1.500"));
    Clave_Estacion = "KRT800";
    Decodificar_General(*Base_Datos, datosg, "KRT300", {"Altura Instrumento"}, valores, 0);
    QCOMPARE(valores[0], QString());
}

void TestDecodificador::una_linea_de_krt800_data()
{
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QStringList>("nombres");
    QTest::addColumn<QStringList>("valores");
    const QStringList xyz = {"Punto", "Coordenada X", "Código"};
    const QStringList ss = {"Punto", "Reserva", "Distancia"};
    QTest::newRow("palabra") << 1 << "XYZ 7,100.5,200,3,ARB" << xyz
                             << QStringList{"7", "101.500", "ARB"};
    QTest::newRow("blanco delante")
        << 1 << " XYZ 7,100.5,200,3,ARB" << xyz << QStringList{"7", "101.500", "ARB"};
    QTest::newRow("blancos detrás de la palabra")
        << 1 << "XYZ   7,100.5,200,3,ARB" << xyz << QStringList{"7", "101.500", "ARB"};
    QTest::newRow("ejes: blancos detrás de la palabra")
        << 6 << "EJE  0+000 45.5" << QStringList{"Inicio", "Azimut"}
        << QStringList{"0+000", "45.5"};
    QTest::newRow("sin palabra") << 1 << "XYZ" << xyz << QStringList{"v", "v", "v"};
    QTest::newRow("asterisco deja lo anterior")
        << 1 << "XYZ 7,*,200,3,*" << xyz << QStringList{"7", "v", "v"};
    QTest::newRow("asterisco y más deja lo anterior")
        << 1 << "XYZ *7,**,200,3,* A" << xyz << QStringList{"v", "v", "v"};
    QTest::newRow("asterisco dentro es dato")
        << 1 << "XYZ 7*,1,200,3, *A" << xyz << QStringList{"7*", "2.000", " *A"};
    QTest::newRow("vacio vacia") << 1 << "XYZ 7,,200,3" << xyz << QStringList{"7", "", ""};
    QTest::newRow("negativa") << 1 << "XYZ 7,-100.5,0,0,A" << xyz
                              << QStringList{"7", "-99.500", "A"};
    QTest::newRow("no listado no se toma")
        << 1 << "SS 9,1.5,RR,12.300" << ss << QStringList{"9", "v", "12.3"};
    QTest::newRow("puntos: linea entera")
        << 4 << "7,100.5,200,3,ARB" << xyz << QStringList{"7", "101.500", "ARB"};
    QTest::newRow("perfiles: linea entera")
        << 7 << "100,1.5,20" << QStringList{"PK", "Eje", "Cota"} << QStringList{"100", "1.5", "20"};
    QTest::newRow("ejes: por blancos")
        << 6 << "EJE 0+000 45.5" << QStringList{"Inicio", "Azimut"} << QStringList{"0+000", "45.5"};
    QTest::newRow("desconocida") << 1 << "ZZZ 1,2" << xyz << QStringList{"v", "v", "v"};
}

void TestDecodificador::una_linea_de_krt800()
{
    QFETCH(int, ope);
    QFETCH(QString, linea);
    QFETCH(QStringList, nombres);
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT800";
    Desp_X = "1";
    QStringList valores(nombres.size(), "v");
    Decodificar_Linea(*Base_Datos, linea, "", "KRT800", ope, nombres, valores);
    QTEST(valores, "valores");

    // The single cut does the same, field by field.
    const Familia& krt800 = Familia_De(u"KRT800");
    const Suma suma{krt800, Desplazamientos::En_Vigor()};
    QStringList sueltos(nombres.size(), "v");
    int i = 0;
    for (const Fila_Campo& campo :
         *Campos_De(*Base_Datos, "KRT800", Id_De_Linea(linea, krt800, ope).toString()))
        Cortar_Token_800(suma, ope, linea, ++i, campo, nombres, sueltos);
    QTEST(sueltos, "valores");
}

void TestDecodificador::los_generales_de_krt800_casan_registro_y_campo()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT800";
    const auto item = [](const char* id, const char* campo, const char* valor) {
        return QStringList{id, campo, valor}.join(QChar(5));
    };
    const QString datosg =
        QStringList{item("XX", "Estación", "NO"), item("STN", "Estación", "E1"),
                    item("STN", "Altura Instrumento", "01.500"), item("STN", "Código", "NUNCA")}
            .join(QChar(6));
    const QStringList nombres = {"Altura Instrumento", "Estación", "Código"};
    QStringList valores(3);
    Decodificar_General(*Base_Datos, datosg, "KRT800", nombres, valores, 1);
    QCOMPARE(valores, (QStringList{"1.5", "E1", ""}));
    Decodificar_General(*Base_Datos, item("STN", "Estación", "*"), "KRT800", nombres, valores, 1);
    QCOMPARE(valores[1], QStringLiteral("E1"));
    Decodificar_General(*Base_Datos, item("STN", "Estación", "E2"), "KRT800", nombres, valores, 4);
    QCOMPARE(valores[1], QStringLiteral("E1"));
}

void TestDecodificador::los_generales_seguidos_son_los_de_cada_uno_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QStringList>("piezas");
    QTest::newRow("KRT300") << "KRT300"
                            << QStringList{
                                   "EEST1   +01500", "EEST2   +01A00", "E", "JOBRA", "", "EÑ"};
    const QString campo = QChar(SEP_CAMPO);
    const QString estacion = "STN" + campo + "Estación",
                  altura = "STN" + campo + "Altura Instrumento";
    QTest::newRow("KRT800") << "KRT800"
                            << QStringList{estacion + campo + "E1",
                                           estacion + campo + "E2",
                                           estacion + campo + "*",
                                           estacion,
                                           altura + campo + "1.50",
                                           altura + campo + "1.60" + campo + "9",
                                           altura + campo,
                                           altura + campo + "-.x0",
                                           "SS" + campo + "Punto" + campo + "7",
                                           "STN",
                                           ""};
}

// A decoder kept over many lines gives what one made anew for each of them gives.
void TestDecodificador::los_generales_seguidos_son_los_de_cada_uno()
{
    QFETCH(const QString, maquina);
    QFETCH(const QStringList, piezas);
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = maquina;
    const QStringList nombres = {"Altura Instrumento", "Estación", "Punto", "Estación"};
    QRandomGenerator azar(800);
    Decodificador seguido(*Base_Datos, maquina, 1, nombres);
    QStringList lista;
    int llenas = 0;
    for (int i = 0; i < 3000; ++i) {
        // Mostly one item changes; now and then one comes, goes or moves.
        if (lista.isEmpty() || azar.bounded(6) == 0)
            lista.insert(azar.bounded(int(lista.size()) + 1), piezas[azar.bounded(piezas.size())]);
        else if (azar.bounded(6) == 0)
            lista.removeAt(azar.bounded(lista.size()));
        else
            lista[azar.bounded(lista.size())] = piezas[azar.bounded(piezas.size())];
        if (lista.size() > 5) lista.removeFirst();
        const QString datosg = lista.join(QChar(SEP_LISTA));
        QStringList de_seguido = {"a", "b", "c", "d"}, de_uno = de_seguido;
        seguido.General(datosg, de_seguido);
        Decodificar_General(*Base_Datos, datosg, maquina, nombres, de_uno, 1);
        QCOMPARE(de_seguido, de_uno);
        llenas += de_uno[0] != u"a" && de_uno[1] != u"b";
    }
    QVERIFY(llenas > 100);
}

void TestDecodificador::el_nivel_llena_por_lugares()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "NV400";
    const QString linea = "g,0133,00012345,00001234,00012345,x,A,";
    const QStringList nombres = {"uno", "dos", "tres", "cuatro", "reserva"};
    QStringList valores(5, "v");
    Decodificar_Linea(*Base_Datos, linea, "", "NV400", 0, nombres, valores);
    // Whatever the names say; the last place is spare.
    QCOMPARE(valores.size(), 5);
    QCOMPARE(valores[0], QStringLiteral("0133"));
    QCOMPARE(valores[4], QStringLiteral("v"));
    QStringList directo(5, "v");
    Cortar_NV400(linea, nombres, directo);
    QCOMPARE(directo, valores);

    // The unit digit is the line's fourth character.
    const QString c = QString("c,x3") + QString(18, u',') + "1234567,9,";
    QStringList lista(25, "");
    Cortar_NV400(c, QStringList(25, "n"), lista);
    QCOMPARE(lista[18], QStringLiteral("12.3457"));
}

void TestDecodificador::una_fila_a_mano_se_ve_al_momento()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    QStringList valores = {""};
    Decodificar_Linea(*Base_Datos, "Q00042", "1", "KRT300", 0, {"Temperatura"}, valores);
    QCOMPARE(valores[0], QString());

    // With another program on the same file.
    sqlite3* ajena = nullptr;
    QCOMPARE(sqlite3_open(Fichero_MDB.toUtf8().constData(), &ajena), SQLITE_OK);
    QCOMPARE(sqlite3_exec(ajena,
                          "INSERT INTO Campos(Maquina,ID,Campo,Orden,Digitos,PosDigit,Caracter,"
                          "Forsalida,Especial,Marcas) VALUES('KRT300','Q','Temperatura',1,5,'3,1',"
                          "'.','0.0','','')",
                          nullptr, nullptr, nullptr),
             SQLITE_OK);
    sqlite3_close(ajena);
    Decodificar_Linea(*Base_Datos, "Q00042", "1", "KRT300", 0, {"Temperatura"}, valores);
    QCOMPARE(valores[0], QStringLiteral("4.2"));

    Base_Datos->Execute("UPDATE Campos SET Forsalida = '0.000' WHERE Campo = 'Temperatura'");
    Decodificar_Linea(*Base_Datos, "Q00042", "1", "KRT300", 0, {"Temperatura"}, valores);
    QCOMPARE(valores[0], QStringLiteral("4.200"));
}

void TestDecodificador::la_base_reabierta_vacia_la_cache()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    const Filas_Campo antes = Campos_De(*Base_Datos, "KRT300", "H");
    QCOMPARE(Campos_De(*Base_Datos, "KRT300", "H"), antes);
    QCOMPARE(antes->size(), std::size_t(4));
    Q_EMIT Sucesos::Unico().base_reabierta();
    QVERIFY(Campos_De(*Base_Datos, "KRT300", "H") != antes);
}

void TestDecodificador::una_base_rota_calla()
{
    Base_De_Prueba p;
    Poner_Instrumentos(p);
    Clave_Estacion = "KRT300";
    const std::shared_ptr<Base> cerrada = Base::Abrir(Fichero_MDB);
    cerrada->Close();
    QStringList valores = {"v"};
    Decodificar_Linea(*cerrada, "cARBOL", "1", "KRT300", 0, {"Código"}, valores);
    QCOMPARE(valores, QStringList{"v"});
    Extraer_Punto(*cerrada, 1, "KRT300", 0, "1", 1, 9, {"Código"}, valores);
    QCOMPARE(valores, QStringList{""});
    QVERIFY(p.Leer("LOG/Miraldos.log").contains("Extraer_Punto"));
}

void TestDecodificador::las_filas_absurdas_vacian_lo_suyo()
{
    Base_De_Prueba p;
    for (const QString maquina : {"KRT300", "KRT800"}) {
        const bool por_columnas = maquina == u"KRT300";
        Clave_Estacion = maquina;
        for (const char* id : {"A", "B"})
            p.Fila("Identificadores", {{"Nombre", maquina}, {"OPE", 0}, {"ID", id}, {"tipo", "G"}});
        const auto campo = [&](const char* id, const QString& nombre, const QVariant& orden,
                               const QVariant& digitos, const QVariant& posdigit,
                               const QVariant& caracter) {
            p.Fila("Campos", {{"Maquina", maquina},
                              {"ID", id},
                              {"Campo", nombre},
                              {"Orden", orden},
                              {"Digitos", digitos},
                              {"PosDigit", posdigit},
                              {"Caracter", caracter},
                              {"Forsalida", nombre == u"Mal" ? "0.#0.##" : ""}});
        };
        // What is wrong with a row empties its own field.
        campo("A", "Bueno", 1, 3, "*", QVariant());
        campo("A", "Nulo", 2, QVariant(), QVariant(), QVariant());
        campo("A", "Mal", 3, 4, "siete,tres", ".");
        campo("A", "Ancho", 4, 2147483647, "999999999,9999999999", ".");
        campo("A", "Ancho 2", 5, 2147483647, "7,3", ".");
        campo("A", "Ancho 3", qint64(1) << 40, 2147483647, "7,3", ".");
        const QStringList nombres = {"Bueno", "Nulo", "Mal", "Ancho", "Ancho 2", "Ancho 3"};
        const QStringList por_anchos = {"abc", "", "", ".000000000000000099", "", ""};
        QStringList valores(nombres.size(), "v");
        Decodificar_Linea(*Base_Datos, por_columnas ? "Aabc123499" : "A abc,,1 x,99", "1", maquina,
                          0, nombres, valores);
        QCOMPARE(valores,
                 por_columnas ? por_anchos : QStringList({"abc", "", "1 x", "99", "", ""}));
        QStringList generales(nombres.size(), "v");
        Decodificar_General(*Base_Datos, "Aabc123499", maquina, nombres, generales, 0);
        QCOMPARE(generales, por_columnas ? por_anchos : QStringList(nombres.size(), "v"));
        QCOMPARE(Posicion_Campo(*Base_Datos, Familia_Actual(), "A", 6), 1 + 3 + 4 + 2 * 32767);

        // A width below nothing moves all that follow out of the line.
        campo("B", "Atrás", -1, -2147483647, "-3,-3", ".");
        campo("B", "Atrás 2", -1, -2147483647, "*", ".");
        campo("B", "Detrás", 1, 3, "*", QVariant());
        QStringList fuera(3, "v");
        Decodificar_Linea(*Base_Datos, "B abc,99,7", "1", maquina, 0,
                          {"Atrás", "Atrás 2", "Detrás"}, fuera);
        QCOMPARE(fuera, por_columnas ? QStringList({"", "", ""}) : QStringList({"abc", "99", "7"}));
        QCOMPARE(Posicion_Campo(*Base_Datos, Familia_Actual(), "B", 6), 1 - 2 * 32767 + 3);
    }
}

PRUEBA(TestDecodificador)
#include "TestDecodificador.moc"
