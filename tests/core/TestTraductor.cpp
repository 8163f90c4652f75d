#include "core/jet/Traductor.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestTraductor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_gramatica_se_adapta_data();
    void la_gramatica_se_adapta();
    void los_literales_se_elevan();
    void dos_textos_con_otros_literales_son_una_sentencia();
    void un_byte_cero_no_corta_el_texto();
    void se_sabe_si_las_filas_son_de_una_tabla_data();
    void se_sabe_si_las_filas_son_de_una_tabla();
    void lo_incompleto_pasa_como_esta();
    void lo_que_se_entenderia_mal_se_rechaza_data();
    void lo_que_se_entenderia_mal_se_rechaza();
};

void TestTraductor::la_gramatica_se_adapta_data()
{
    QTest::addColumn<QString>("de");
    QTest::addColumn<QString>("a");
    QTest::newRow("left llamada")
        << "SELECT left(Campo,40) FROM Formatos2 ORDER BY sec"
        << "SELECT \"left\"(Campo,40) FROM Formatos2 ORDER BY sec,Formatos2.rowid";
    QTest::newRow("left de union")
        << "SELECT KRT2.OPE FROM KRT2 LEFT JOIN OPE ON KRT2.OPE = OPE.OPE"
        << "SELECT KRT2.OPE FROM KRT2 LEFT JOIN OPE ON KRT2.OPE = OPE.OPE "
           "ORDER BY KRT2.rowid,OPE.rowid";
    QTest::newRow("right dentro de left")
        << "DELETE FROM Formatos2 WHERE Left(right(Campo,2),1)='1'"
        << "DELETE FROM Formatos2 WHERE \"Left\"(\"right\"(Campo,?),?)=?";
    QTest::newRow("isnull") << "SELECT Campo FROM Campos WHERE (isnull(Marcas) or Marcas <> 'NL')"
                            << "SELECT Campo FROM Campos WHERE (\"isnull\"(Marcas) or Marcas <> ?) "
                               "ORDER BY Campos.rowid";
    QTest::newRow("comillas dobles son texto") << "UPDATE KRT SET Foto = \"a''b\"\"c\""
                                               << "UPDATE KRT SET Foto = ?";
    QTest::newRow("sin orden, por insercion") << "select * from registros where id=5"
                                              << "select * from registros where id=? "
                                                 "ORDER BY registros.rowid";
    QTest::newRow("alias") << "SELECT F.Campo from Campos C,Formatos2 F"
                           << "SELECT F.Campo from Campos C,Formatos2 F ORDER BY C.rowid,F.rowid";
    QTest::newRow("distintas, por aparicion")
        << "SELECT DISTINCT Campo,Marcas FROM Campos WHERE Maquina='A'"
        << "SELECT Campo,Marcas FROM Campos WHERE Maquina=? GROUP BY Campo,Marcas "
           "ORDER BY min(Campos.rowid)";
    QTest::newRow("distintas con nombre puesto")
        << "SELECT DISTINCT Mid(Campo,1,2) AS c, 'x' as k FROM Campos"
        << "SELECT Mid(Campo,1,2) AS c, 'x' as k FROM Campos GROUP BY Mid(Campo,1,2) "
           "ORDER BY min(Campos.rowid)";
    QTest::newRow("distintas con orden")
        << "SELECT DISTINCT Secuencia,Punto FROM Registros WHERE  ID = 3 ORDER BY Secuencia"
        << "SELECT DISTINCT Secuencia,Punto FROM Registros WHERE ID = ? ORDER BY Secuencia,"
           "Registros.rowid";
    QTest::newRow("agrupada pasa igual")
        << "SELECT f.Campo FROM Formatos2 F Group by f.Campo Order by f.Campo"
        << "SELECT f.Campo FROM Formatos2 F Group by f.Campo Order by f.Campo";
    QTest::newRow("cuenta pasa igual") << "SELECT count(*) FROM Registros"
                                       << "SELECT count(*) FROM Registros";
    QTest::newRow("subconsulta en la lista")
        << "SELECT CODIGO,(SELECT TAB2.DESCRIPCION FROM TAB2  WHERE TIPO = 'ENTIDADES' AND INDICE "
           "= "
           "L5.ENTIDAD) as D FROM Lib800_2 AS l5 WHERE Codlibreria = 'A' ORDER BY SECUENCIA"
        << "SELECT CODIGO,(SELECT TAB2.DESCRIPCION FROM TAB2 WHERE TIPO = 'ENTIDADES' AND INDICE = "
           "L5.ENTIDAD) as D FROM Lib800_2 AS l5 WHERE Codlibreria = ? ORDER BY SECUENCIA,l5.rowid";
    QTest::newRow("tabla ajena pasa igual") << "SELECT name FROM sqlite_schema"
                                            << "SELECT name FROM sqlite_schema";
    QTest::newRow("limite") << "SELECT * FROM KRT LIMIT 1"
                            << "SELECT * FROM KRT ORDER BY KRT.rowid LIMIT 1";
    QTest::newRow("corchetes") << "SELECT * FROM [KRT] WHERE [Nombre]='a'"
                               << "SELECT * FROM [KRT] WHERE [Nombre]=? ORDER BY [KRT].rowid";
}

void TestTraductor::la_gramatica_se_adapta()
{
    QFETCH(QString, de);
    QFETCH(QString, a);
    QCOMPARE(QString::fromUtf8(Traducir(de).completa.sql), a);
}

void TestTraductor::los_literales_se_elevan()
{
    const Traduccion t = Traducir(
        "UPDATE Sesiones SET NFichero = 'd''Ors', NPuntos = 12 WHERE ID = ? AND OPE = 1.5");
    QCOMPARE(t.completa.valores.size(), std::size_t(4));
    QCOMPARE(t.completa.valores[0].texto, QByteArray("d'Ors"));
    QCOMPARE(t.completa.valores[1].entero, 12);
    QCOMPARE(int(t.completa.valores[2].tipo), int(Valor_Sql::Tipo::Hueco));
    QCOMPARE(t.completa.valores[3].real, 1.5);
}

void TestTraductor::dos_textos_con_otros_literales_son_una_sentencia()
{
    const auto sql = [](const QString& punto) {
        return Traducir("SELECT * FROM Registros WHERE ID = 1 AND Punto = '" + punto + "'")
            .completa.sql;
    };
    QCOMPARE(sql("A"), sql("B''C"));
}

void TestTraductor::un_byte_cero_no_corta_el_texto()
{
    const Traduccion elevado =
        Traducir(QStringLiteral("DELETE FROM KRT WHERE Nombre='a%1b'").arg(QChar(0)));
    QCOMPARE(elevado.completa.valores[0].texto, QByteArray("a\0b", 3));
    const Traduccion fijo = Traducir(QStringLiteral("SELECT 'a%1b' FROM KRT").arg(QChar(0)));
    QVERIFY(fijo.completa.sql.contains("x'610062'"));
}

void TestTraductor::se_sabe_si_las_filas_son_de_una_tabla_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<bool>("una");
    QTest::newRow("una") << "SELECT Punto FROM Registros WHERE ID=1" << true;
    QTest::newRow("union") << "SELECT * FROM KRT2,OPE WHERE OPE.OPE = KRT2.OPE" << false;
    QTest::newRow("distintas") << "SELECT DISTINCT Punto FROM Registros" << false;
    QTest::newRow("agrupada") << "SELECT Punto FROM Registros GROUP BY Punto" << false;
    QTest::newRow("suma") << "SELECT max(Secuencia) FROM Registros" << false;
    QTest::newRow("suma en subconsulta")
        << "SELECT Nombre,(SELECT max(OPE) FROM OPE) AS m FROM KRT" << true;
}

void TestTraductor::se_sabe_si_las_filas_son_de_una_tabla()
{
    QFETCH(QString, sql);
    QFETCH(bool, una);
    QCOMPARE(Traducir(sql).de_una_tabla, una);
}

void TestTraductor::lo_incompleto_pasa_como_esta()
{
    for (const char* sql :
         {"", "SELECT", "SELECT * FROM", "SELECT * FROM KRT,", "'", "\"abc", "[", "(", ")",
          "SELECT DISTINCT FROM KRT", "SELECT * FROM KRT ORDER", "?", "1e",
          "SELECT * FROM KRT LEFT", "SELECT * FROM KRT WHERE Nombre = 'abc"})
        QVERIFY2(Traducir(QString::fromLatin1(sql)).completa.sql.size() >= 0, sql);
    QCOMPARE(Traducir("DELETE FROM KRT WHERE Nombre = 'abc").completa.sql,
             QByteArray("DELETE FROM KRT WHERE Nombre = 'abc"));
}

void TestTraductor::lo_que_se_entenderia_mal_se_rechaza_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("numero");
    const auto fila = [](const char* sql, int numero) {
        QTest::newRow(sql) << QString::fromLatin1(sql) << numero;
    };
    fila("UPDATE OPE SET OPE=OPE--1 WHERE OPE=1", 3075);
    fila("SELECT * FROM KRT -- WHERE Nombre='a'", 3075);
    fila("DELETE FROM KRT /* WHERE Nombre='a' */", 3075);
    fila("SELECT Nombre & Foto FROM KRT", 3075);
    fila("SELECT * FROM KRT WHERE Nombre='a'&'b'", 3075);
    fila("SELECT 'a' + Nombre FROM KRT", 3075);
    fila("SELECT Nombre+'a' FROM KRT", 3075);
    fila("SELECT hex(Nombre) FROM KRT", 3085);
    fila("SELECT * FROM KRT WHERE Nombre = randomblob(3)", 3085);
    fila("DELETE FROM KRT WHERE random() > 0", 3085);
    fila("UPDATE KRT SET Foto = lower(Foto)", 3085);
    fila("SELECT * FROM KRT WHERE total(Nombre) = 1", 3085);
    // And what only looks like it.
    fila("UPDATE OPE SET OPE=OPE - -1 WHERE OPE=1", 0);
    fila("SELECT * FROM KRT WHERE Nombre='a--b' AND Foto='/*&' OR Foto=\"x & y\"", 0);
    fila("SELECT OPE+1 FROM OPE WHERE OPE*2/(1)=3", 0);
    fila("SELECT * FROM [KRT] WHERE (Nombre) IN('a','b') AND NOT(Foto='')", 0);
    fila("INSERT INTO KRT(Nombre) VALUES('a')", 0);
    fila("INSERT INTO Lib1 (CoD) SELECT DISTINCT(Nombre) FROM KRT", 0);
    fila("select MID(Foto,1,2),trim(Foto),Ucase(ltrim(Foto)) from KRT where "
         "len(Foto)=InStr(1,Foto,'a')",
         0);
    fila("SELECT * FROM KRT WHERE EXISTS(SELECT * FROM OPE) OR Val(Foto) BETWEEN(1) AND(2)", 0);
    fila("SELECT CASE WHEN(OPE=1) THEN(2) ELSE(3) END FROM OPE", 0);
    fila("PRAGMA quick_check(1)", 0);
}

void TestTraductor::lo_que_se_entenderia_mal_se_rechaza()
{
    QFETCH(QString, sql);
    QFETCH(int, numero);
    QVERIFY_ERROR(numero, Traducir(sql));
    // What passes is SQL to the engine as well.
    if (numero == 0) {
        const Base_De_Prueba p;
        QVERIFY_ERROR(0, Base_Datos->Recorrer(sql));
    }
}

PRUEBA(TestTraductor)
#include "TestTraductor.moc"
