#include "core/Error_Ejecucion.h"
#include "core/jet/Esquema.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <QRandomGenerator>

// The SQL of the program, on data that tells right from wrong.
class TestJet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void un_byte_cero_no_esconde_el_ancho();
    void una_fecha_es_una_fecha();
    void cada_tabla_tiene_sus_columnas_y_claves();
    void los_nombres_no_distinguen_mayusculas_y_los_textos_si();
    void un_numero_entre_comillas_es_su_numero();
    void las_marcas_nulas_y_vacias_se_listan();
    void los_campos_generales_por_union();
    void las_distintas_salen_por_aparicion();
    void sin_orden_se_sigue_la_insercion();
    void lo_que_un_orden_deja_igual_sigue_la_insercion();
    void los_nombres_dobles_llevan_su_tabla();
    void la_sesion_se_lista_una_vez();
    void las_funciones_del_motor_data();
    void las_funciones_del_motor();
    void una_funcion_fuera_de_limites_es_error_5();
    void el_visor_une_por_el_primer_caracter();
    void la_reordenacion_cambia_el_orden_fisico();
    void las_mitades_del_nivel_se_borran_aparte();
    void los_formatos_del_nivel_se_agrupan();
    void las_librerias_800_con_su_entidad();
    void los_apostrofos_doblados_van_y_vuelven();
    void un_numero_en_columna_de_texto_es_su_texto();
    void las_fechas_son_texto_local();
    void los_errores_tienen_su_numero_data();
    void los_errores_tienen_su_numero();
    void los_valores_de_los_huecos_se_cuentan();
    void un_texto_con_byte_cero_va_y_vuelve();
    void un_texto_estropeado_da_un_error_y_no_cae();

private:
    void Campo(const QString& maquina, const QString& id, const QString& campo, int orden,
               const QVariant& marcas = QString());
    std::unique_ptr<Base_De_Prueba> p;
};

void TestJet::init()
{
    p = std::make_unique<Base_De_Prueba>();
}

void TestJet::cleanup()
{
    p.reset();
}

void TestJet::Campo(const QString& maquina, const QString& id, const QString& campo, int orden,
                    const QVariant& marcas)
{
    p->Fila("Campos", {{"Maquina", maquina},
                       {"ID", id},
                       {"Campo", campo},
                       {"Orden", orden},
                       {"Digitos", 8},
                       {"Marcas", marcas}});
}

void TestJet::cada_tabla_tiene_sus_columnas_y_claves()
{
    QCOMPARE(Esquema::Tablas().size(), 18);
    for (const Esquema::Tabla& t : Esquema::Tablas()) {
        QStringList nombres;
        for (const Esquema::Columna& c : t.columnas)
            nombres << c.nombre;
        QCOMPARE(Base_Datos->OpenRecordset(t.nombre.toUpper()).Columnas(), nombres);
        for (const Esquema::Indice& i : t.indices)
            for (const QString& c : i.columnas)
                QVERIFY2(t.Buscar_Columna(c), qPrintable(t.nombre));
    }
    QCOMPARE(Esquema::Buscar_Tabla("formatos1")->Buscar_Indice("Primarykey")->columnas,
             (QStringList{"Nombre", "Maquina"}));
    QCOMPARE(Esquema::Buscar_Tabla("Sesiones")->Buscar_Indice("ID")->columnas, QStringList{"ID"});
}

void TestJet::un_byte_cero_no_esconde_el_ancho()
{
    const QString corto = QStringLiteral("a%1b").arg(QChar(0));
    QVERIFY_ERROR(3163, p->Fila("KRT", {{"Nombre", corto + QString(50, u'x')}}));
    QVERIFY_ERROR(3163, Base_Datos->Execute("INSERT INTO KRT (Nombre) VALUES (?)",
                                            {corto + QString(300, u'x')}));
    p->Fila("KRT", {{"Nombre", corto}});
    p->Fila("KRT", {{"Nombre", corto + QString(47, u'x')}});
    // Letters of two bytes are one character each.
    p->Fila("KRT", {{"Nombre", QString(50, QChar(0xF1))}});
    QVERIFY_ERROR(3163, p->Fila("KRT", {{"Nombre", QString(51, QChar(0xF1))}}));
    QCOMPARE(p->Columna("SELECT Nombre FROM KRT")[1].size(), 50);
}

void TestJet::una_fecha_es_una_fecha()
{
    int id = 0;
    for (const char* mala : {"", "ayer", "2026-02-30 10:00:00", "2026-03-07", "7/3/2026 10:00:00",
                             "2026-03-07 25:00:00", "2026-03-07 10:00:00.5", "now", "12"})
        QVERIFY_ERROR(3421, p->Fila("Sesiones", {{"ID", ++id}, {"Fecha", mala}}));
    p->Fila("Sesiones", {{"ID", ++id}, {"Fecha", "2026-03-07 23:59:59"}});
    p->Fila("Sesiones", {{"ID", ++id}, {"Fecha", QVariant()}});
    p->Fila("Sesiones", {{"ID", ++id}, {"Fecha", QDateTime(QDate(2024, 2, 29), QTime(0, 0))}});
    QCOMPARE(p->Columna("SELECT Fecha FROM Sesiones"),
             (QStringList{"2026-03-07 23:59:59", "", "2024-02-29 00:00:00"}));
}

void TestJet::los_nombres_no_distinguen_mayusculas_y_los_textos_si()
{
    p->Fila("Lib1", {{"cod", "A"}, {"NOMBRE", "x"}});
    p->Fila("LIB1", {{"CoD", "a"}, {"Nombre", "y"}});
    QCOMPARE(p->Columna("select NOMBRE from lib1 where COD = 'a'"), QStringList{"y"});
    QCOMPARE(p->Columna("SELECT CoD FROM Lib1 ORDER BY CoD"), (QStringList{"A", "a"}));
    QVERIFY_ERROR(3022, p->Fila("Lib1", {{"CoD", "a"}}));
}

void TestJet::un_numero_entre_comillas_es_su_numero()
{
    p->Fila("Formatos1", {{"Nombre", "F"}, {"Maquina", "KRT300"}, {"ope", 0}});
    QCOMPARE(p->Columna("SELECT Nombre FROM formatos1 WHERE OPE='0' AND Maquina = 'KRT300'"),
             QStringList{"F"});
    QCOMPARE(p->Columna("SELECT Nombre FROM formatos1 WHERE OPE='1' AND Maquina = 'KRT300'"),
             QStringList{});
    p->Fila("Identificadores", {{"Nombre", "PX7"}, {"OPE", "11"}, {"ID", 7}, {"tipo", "P"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Identificadores");
    rs.Index("PrimaryKey");
    rs.Seek({"PX7", "11", "7"});
    QVERIFY(!rs.NoMatch());
    QCOMPARE(rs.Valor("OPE"), QVariant(11));
    QCOMPARE(rs.Valor("ID"), QVariant("7"));
}

void TestJet::las_marcas_nulas_y_vacias_se_listan()
{
    Campo("KRT300", "A", "Nula", 1, QVariant());
    Campo("KRT300", "A", "Vacia", 2, "");
    Campo("KRT300", "A", "Oculta", 3, "NL");
    Campo("KRT300", "A", "Marcada", 4, "CX");
    QCOMPARE(
        p->Columna("SELECT DISTINCT Campo FROM Campos WHERE id IN ('A' ,'' ,'' ) AND Maquina = "
                   "'KRT300' AND (isnull(Marcas) OR Marcas <> 'NL')"),
        (QStringList{"Nula", "Vacia", "Marcada"}));
}

void TestJet::los_campos_generales_por_union()
{
    p->Fila("OPE", {{"OPE", 1}, {"DESOPE", "Medidas"}});
    p->Fila("Identificadores", {{"Nombre", "KRT300"}, {"OPE", 1}, {"ID", "E"}, {"tipo", "G"}});
    p->Fila("Identificadores", {{"Nombre", "KRT300"}, {"OPE", 1}, {"ID", "A"}, {"tipo", "P"}});
    Campo("KRT300", "E", "Estacion", 1);
    Campo("KRT300", "A", "Horizontal", 1);
    Campo("KRT300", "E", "Escondido", 2, "NL");
    const QString sql =
        "SELECT Campo FROM Campos LEFT JOIN identificadores ON campos.maquina = "
        "identificadores.nombre AND campos.id = identificadores.id WHERE Tipo = 'G' and maquina = "
        "'KRT300' AND Marcas <> 'NL'";
    QCOMPARE(p->Columna(sql), QStringList{"Estacion"});
    QCOMPARE(p->Columna(sql + " AND OPE = (SELECT OPE FROM OPE WHERE DESOPE = 'Medidas')"),
             QStringList{"Estacion"});
    QCOMPARE(p->Columna(sql + " AND OPE = (SELECT OPE FROM OPE WHERE DESOPE = 'Otra')"),
             QStringList{});
}

void TestJet::las_distintas_salen_por_aparicion()
{
    // The index on (Maquina, Campo) would give them by name.
    for (const char* c : {"Zeta", "Beta", "Zeta", "Alfa", "Beta"})
        Campo("PX7", QString::fromLatin1(c).left(1), QString::fromLatin1(c), 1);
    QCOMPARE(p->Columna("SELECT DISTINCT Campo,Marcas FROM Campos WHERE id IN ('A','B','Z') and "
                        "Maquina = 'PX7' "),
             (QStringList{"Zeta", "Beta", "Alfa"}));
}

void TestJet::sin_orden_se_sigue_la_insercion()
{
    for (const char* n : {"KRT9", "KRT1", "KRT5"})
        p->Fila("KRT", {{"Nombre", n}, {"Clave", "KRT300"}});
    const QStringList orden{"KRT9", "KRT1", "KRT5"};
    QCOMPARE(p->Columna("SELECT Nombre FROM KRT"), orden);
    QCOMPARE(p->Columna("SELECT * FROM KRT WHERE Nombre > ''"), orden);
    QCOMPARE(p->Columna("SELECT * FROM KRT ORDER BY NOMBRE"),
             (QStringList{"KRT1", "KRT5", "KRT9"}));
    for (const auto tipo :
         {Tipo_Conjunto::Tabla, Tipo_Conjunto::Dinamico, Tipo_Conjunto::Instantanea}) {
        QStringList nombres;
        Conjunto_Registros rs = Base_Datos->OpenRecordset("KRT", tipo);
        for (; !rs.Es_EOF(); rs.MoveNext())
            nombres << rs.Texto("Nombre");
        QCOMPARE(nombres, orden);
    }
}

void TestJet::lo_que_un_orden_deja_igual_sigue_la_insercion()
{
    for (const char* n : {"C", "A", "B"})
        Campo("PX7", "x", QString::fromLatin1(n), 1);
    QCOMPARE(p->Columna("SELECT Campo FROM Campos WHERE Maquina = 'PX7' ORDER BY Orden"),
             (QStringList{"C", "A", "B"}));
}

void TestJet::los_nombres_dobles_llevan_su_tabla()
{
    p->Fila("OPE", {{"OPE", 1}, {"DESOPE", "General"}});
    p->Fila("KRT2", {{"Nombre", "KRT300"}, {"OPE", 1}, {"TipOpe", "D"}, {"DESOPE", "Propia"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT * From KRT2,OPE WHERE OPE.OPE = KRT2.OPE AND Nombre = 'KRT300' AND TipOpe = 'D'");
    QCOMPARE(rs.RecordCount(), 1);
    QCOMPARE(rs.Columnas(), (QStringList{"Nombre", "KRT2.OPE", "TipOpe", "KRT2.DESOPE", "Conv",
                                         "OPE.OPE", "OPE.DESOPE"}));
    QCOMPARE(rs.Texto("krt2.desope"), QStringLiteral("Propia"));
    QCOMPARE(rs.Texto("OPE.DESOPE"), QStringLiteral("General"));
    QCOMPARE(rs.Entero("KRT2.OPE"), 1);
    QVERIFY_ERROR(3265, rs.Texto("DESOPE"));
    Conjunto_Registros sola = Base_Datos->OpenRecordset(
        "SELECT KRT2.OPE, OPE.DESOPE FROM KRT2 LEFT JOIN OPE ON KRT2.OPE = OPE.OPE WHERE Nombre = "
        "'KRT300' AND TIPOPE='D'");
    QCOMPARE(sola.Texto("DesOpe"), QStringLiteral("General"));
    QCOMPARE(sola.Texto("Ope"), QStringLiteral("1"));
    QCOMPARE(sola.Texto("KRT2.OPE"), QStringLiteral("1"));
    Conjunto_Registros nombrada =
        Base_Datos->OpenRecordset("SELECT OPE.DesOPE as dOpe,OPE.OPE as NOpe from KRT2,OPE WHERE "
                                  "KRT2.OPE = OPE.OPE AND Nombre "
                                  "= 'KRT300' AND TIPOPE = 'D' ORDER BY OPE.DesOPE");
    QCOMPARE(nombrada.Columnas(), (QStringList{"dOpe", "NOpe"}));
}

void TestJet::la_sesion_se_lista_una_vez()
{
    p->Fila("OPE", {{"OPE", 4}, {"DESOPE", "Coordenadas"}});
    for (const char* tipo : {"C", "D"})
        p->Fila("KRT2", {{"Nombre", "KRT300"}, {"OPE", 4}, {"TipOpe", tipo}});
    for (int id : {1, 2})
        p->Fila("Sesiones", {{"ID", id}, {"OPE", 4}, {"Maquina", "KRT300"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT Id,Sesiones.Ope as nOpe,Ope.Desope as wOpe,Nfichero,NPuntos,Fecha,Maquina,MaqDes "
        "FROM Sesiones,OPE WHERE Maquina = 'KRT300' AND OPE.Ope = Sesiones.OPE ORDER BY Id DESC");
    QCOMPARE(rs.RecordCount(), 2);
    QCOMPARE(rs.Entero("Id"), 2);
    QCOMPARE(rs.Texto("wOPE"), QStringLiteral("Coordenadas"));
    QVERIFY(rs.Valor("NPuntos").isNull());
}

void TestJet::las_funciones_del_motor_data()
{
    QTest::addColumn<QString>("expresion");
    QTest::addColumn<QString>("valor");
    QTest::newRow("mid") << "Mid('abcdef',2,3)"
                         << "bcd";
    QTest::newRow("mid sin largo") << "Mid('abcdef',3)"
                                   << "cdef";
    QTest::newRow("mid de nada") << "Mid('abc',1,0)"
                                 << "";
    QTest::newRow("mid detras") << "Mid('abc',9,2)"
                                << "";
    QTest::newRow("mid con acentos")
        << QString::fromUtf8("Mid('ñandú',2,4)") << QString::fromUtf8("andú");
    QTest::newRow("instr desde") << "InSTR(3,'a b c',' ')"
                                 << "4";
    QTest::newRow("instr corto") << "InStr('abc','c')"
                                 << "3";
    QTest::newRow("instr exacto") << "InStr(1,'abc','C')"
                                  << "0";
    QTest::newRow("val") << "Val(' 12.5abc')"
                         << "12.5";
    QTest::newRow("val de letras") << "Val('abc')"
                                   << "0.0";
    QTest::newRow("left") << "left('abc',2)"
                          << "ab";
    QTest::newRow("right") << "right('abc',2)"
                           << "bc";
    QTest::newRow("right largo") << "right('abc',9)"
                                 << "abc";
    QTest::newRow("anidadas") << "left(right('nombre1x',2),1)"
                              << "1";
    QTest::newRow("trim") << "trim('  a  ')"
                          << "a";
    QTest::newRow("ltrim") << "LTRIM('  a ')"
                           << "a ";
    QTest::newRow("ucase") << QString::fromUtf8("ucase('añi')") << QString::fromUtf8("AÑI");
    QTest::newRow("len") << QString::fromUtf8("len('añi')") << "3";
    QTest::newRow("nulo") << "Mid(null,1,1)"
                          << "";
    QTest::newRow("isnull no") << "isnull('')"
                               << "0";
    QTest::newRow("isnull si") << "isnull(null)"
                               << "1";
}

void TestJet::las_funciones_del_motor()
{
    QFETCH(QString, expresion);
    QFETCH(QString, valor);
    p->Fila("KRT", {{"Nombre", "x"}});
    QCOMPARE(p->Columna("SELECT " + expresion + " FROM KRT"), QStringList{valor});
}

void TestJet::una_funcion_fuera_de_limites_es_error_5()
{
    p->Fila("KRT", {{"Nombre", "x"}});
    for (const char* e :
         {"Mid('a',0,1)", "Mid('a',1,-1)", "left('a',-1)", "right('a',-1)", "instr(0,'a','a')"})
        QVERIFY_ERROR(
            5, p->Columna(QStringLiteral("SELECT * FROM KRT WHERE %1 = ''").arg(QLatin1String(e))));
}

void TestJet::el_visor_une_por_el_primer_caracter()
{
    p->Fila("Identificadores", {{"Nombre", "KRT300"}, {"OPE", 0}, {"ID", "x"}, {"NomID", "Ejes"}});
    p->Fila("Identificadores",
            {{"Nombre", "KRT300"}, {"OPE", 0}, {"ID", "A"}, {"NomID", "Angulo"}});
    const QStringList lineas{" x+001", "A0002", "Zzz", "A0003"};
    for (int i = 0; i < lineas.size(); ++i)
        p->Fila("Registros",
                {{"ID", 7}, {"Secuencia", i + 1}, {"Punto", "P"}, {"Datos", lineas[i]}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT Punto,NomID as Descr,Datos,DatosG FROM Registros,Identificadores WHERE "
        "Registros.id=7 AND Mid(LTRIM(Datos),1,1) = Mid(Identificadores.Id,1,1)  AND "
        "Identificadores.Nombre = 'KRT300' ORDER BY Secuencia");
    QStringList filas;
    for (; !rs.Es_EOF(); rs.MoveNext())
        filas << rs.Texto("Descr") + u'|' + rs.Texto("Datos");
    QCOMPARE(filas, (QStringList{"Ejes| x+001", "Angulo|A0002", "Angulo|A0003"}));
    QVERIFY_ERROR(3251, rs.AddNew());
    QCOMPARE(p->Columna("SELECT '' as Descr,Punto,Datos,DatosG FROM Registros WHERE Registros.id=7 "
                        "ORDER BY Secuencia"),
             (QStringList{"", "", "", ""}));
}

void TestJet::la_reordenacion_cambia_el_orden_fisico()
{
    const QStringList lineas{"P1,30.5,a", "P1,4,b", "P1,100,c"};
    for (int i = 0; i < lineas.size(); ++i)
        p->Fila("Registros", {{"ID", 5}, {"Secuencia", i + 1}, {"Datos", lineas[i]}});
    Conjunto_Registros grupo =
        Base_Datos->OpenRecordset("SELECT * FROM REGISTROS WHERE ID = 5 AND Mid(Datos, 1, 3) = "
                                  "Mid('P1,30.5,a', 1,3) ORDER BY "
                                  "val(Mid(Datos, 4,5)) ASC");
    Conjunto_Registros nuevas = Base_Datos->OpenRecordset("Registros");
    for (; !grupo.Es_EOF(); grupo.MoveNext()) {
        nuevas.AddNew();
        nuevas.Poner("ID", 0);
        for (const char* c : {"Punto", "Secuencia", "Datos", "DatosG"})
            nuevas.Poner(QString::fromLatin1(c), grupo.Valor(QString::fromLatin1(c)));
        nuevas.Update();
    }
    QCOMPARE(Base_Datos->Execute("DELETE FROM Registros WHERE ID = 5"), 3);
    QCOMPARE(Base_Datos->Execute("UPDATE Registros SET ID = 5 Where Id=0"), 3);
    QCOMPARE(p->Columna("SELECT Datos FROM Registros WHERE ID = 5"),
             (QStringList{"P1,4,b", "P1,30.5,a", "P1,100,c"}));
    QCOMPARE(p->Columna("SELECT Datos FROM Registros WHERE ID = 5 ORDER BY Secuencia"), lineas);
}

void TestJet::las_mitades_del_nivel_se_borran_aparte()
{
    for (const char* mitad : {"0", "1"})
        Base_Datos->Execute(
            QStringLiteral("Insert Into Formatos2 (Maquina,Nombre,Sec,Campo) VALUES "
                           "('NV400','F',0,'%1%2 ')")
                .arg("Cota", -40)
                .arg(QLatin1String(mitad)));
    QCOMPARE(p->Columna("select Campo From Formatos2 Where Left(Right(Campo,2),1)='1' and Nombre = "
                        "'F' order by Sec")
                 .size(),
             1);
    QCOMPARE(Base_Datos->Execute(
                 "Delete From Formatos2 where Left(right(Campo,2),1)='0' and Nombre = 'F'"),
             1);
    QCOMPARE(p->Columna("SELECT right(Campo,2) FROM Formatos2"), QStringList{"1 "});
    QCOMPARE(p->Columna("Select * from Formatos1 where ucase(nombre)='F'"), QStringList{});
}

void TestJet::los_formatos_del_nivel_se_agrupan()
{
    for (const char* id : {"0", "1"})
        for (const char* c : {"Cota", "Punto"})
            p->Fila("Campos", {{"Maquina", "NV400"},
                               {"ID", id},
                               {"Campo", c},
                               {"Digitos", 9},
                               {"Caracter", QString::fromLatin1(id) + "4"}});
    const QStringList campos{"1Punto", "1Cota", "0Cota"};
    for (int i = 0; i < campos.size(); ++i)
        p->Fila("Formatos2", {{"Maquina", "NV400"},
                              {"Nombre", "F"},
                              {"sec", i},
                              {"Campo", campos[i].mid(1).leftJustified(40) + campos[i][0] + u' '}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT F.Campo,F.Sec,C.Digitos,C.Caracter from Campos C,Formatos2 F Where "
        "trim(C.Campo)=trim(left(F.Campo,40)) AND c.ID=left(right(F.campo,2),1) AND F.Maquina = "
        "'NV400' AND F.Nombre = 'F' Group by f.Campo,c.caracter,c.Digitos,f.sec Order by "
        "left(right(F.campo,2),1),F.Sec");
    QStringList filas;
    for (; !rs.Es_EOF(); rs.MoveNext())
        filas << rs.Texto("Campo").right(2).left(1) + rs.Texto("Campo").left(40).trimmed() + u'/' +
                     rs.Texto("caracter");
    QCOMPARE(filas, (QStringList{"0Cota/04", "1Punto/14", "1Cota/14"}));
}

void TestJet::las_librerias_800_con_su_entidad()
{
    p->Fila("TAB2", {{"TIPO", "ENTIDADES"}, {"INDICE", 2}, {"DESCRIPCION", "Linea"}});
    p->Fila("LIB800_2", {{"CodLibreria", "L"}, {"SECUENCIA", 2}, {"CODIGO", "b"}, {"ENTIDAD", 9}});
    p->Fila("LIB800_2", {{"CodLibreria", "L"}, {"SECUENCIA", 1}, {"CODIGO", "a"}, {"ENTIDAD", 2}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT SECUENCIA,CODIGO,(SELECT TAB2.DESCRIPCION FROM TAB2  WHERE TIPO = 'ENTIDADES' AND "
        "INDICE = L5.ENTIDAD) as DESCRIPCION, ENTIDAD, CAPA  FROM Lib800_2 AS l5 WHERE Codlibreria "
        "= "
        "'L'  ORDER BY SECUENCIA");
    QCOMPARE(rs.Texto("CODIGO"), QStringLiteral("a"));
    QCOMPARE(rs.Texto("DESCRIPCION"), QStringLiteral("Linea"));
    rs.MoveNext();
    QVERIFY(rs.Valor("DESCRIPCION").isNull());
    rs.Edit();
    rs.Poner("CAPA", "c9");
    QVERIFY_ERROR(3164, rs.Poner("DESCRIPCION", "x"));
    rs.Update();
    QCOMPARE(p->Columna("SELECT CAPA FROM LIB800_2 WHERE SECUENCIA=2"), QStringList{"c9"});
}

void TestJet::los_apostrofos_doblados_van_y_vuelven()
{
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Punto", "d'Ors"}, {"Datos", "x"}});
    QCOMPARE(
        p->Columna("SELECT Datos FROM Registros WHERE ID = 1 AND Punto = 'd''Ors' AND Secuencia "
                   "BETWEEN 1 AND 999999 ORDER BY Secuencia"),
        QStringList{"x"});
    QVERIFY_ERROR(3075, p->Columna("SELECT Datos FROM Registros WHERE Punto = 'd'Ors'"));
}

void TestJet::un_numero_en_columna_de_texto_es_su_texto()
{
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Punto", "007"}, {"Datos", "1.50"}});
    QCOMPARE(p->Columna("SELECT Punto FROM Registros WHERE Punto = '007'"), QStringList{"007"});
    QCOMPARE(p->Columna("SELECT Datos FROM Registros WHERE Punto = '7'"), QStringList{});
    QCOMPARE(Base_Datos->OpenRecordset("Registros").Valor("Datos"), QVariant("1.50"));
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 2}, {"Punto", 7}});
    QCOMPARE(p->Columna("SELECT Secuencia FROM Registros WHERE Punto = '7'"), QStringList{"2"});
}

void TestJet::las_fechas_son_texto_local()
{
    const QDateTime cuando(QDate(2026, 3, 29), QTime(2, 30, 5));
    p->Fila("Sesiones", {{"ID", 1}, {"Fecha", cuando}});
    QCOMPARE(p->Columna("SELECT Fecha FROM Sesiones"), QStringList{"2026-03-29 02:30:05"});
    QCOMPARE(Base_Datos->OpenRecordset("Sesiones").Momento("fecha"), cuando);
    p->Fila("Formatos1",
            {{"Nombre", "F"}, {"Maquina", "M"}, {"cabeceras", true}, {"Modificable", false}});
    QCOMPARE(p->Columna("SELECT cabeceras FROM Formatos1"), QStringList{"SI"});
    Conjunto_Registros f = Base_Datos->OpenRecordset("Formatos1");
    QVERIFY(f.Es_Si("cabeceras"));
    QVERIFY(!f.Es_Si("Modificable"));
}

void TestJet::los_errores_tienen_su_numero_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("numero");
    QTest::newRow("columna") << "DELETE FROM KRT WHERE Nada = 1" << 3061;
    QTest::newRow("columna a poner") << "UPDATE KRT SET Nada = 1" << 3061;
    QTest::newRow("columna a meter") << "INSERT INTO KRT (Nada) VALUES (1)" << 3061;
    QTest::newRow("tabla") << "DELETE FROM Nada" << 3078;
    QTest::newRow("sintaxis") << "DELETE KRT FROM WHERE" << 3075;
    QTest::newRow("vacio") << "" << 3075;
    QTest::newRow("comilla abierta") << "DELETE FROM KRT WHERE Nombre = 'a" << 3075;
    QTest::newRow("seleccion") << "SELECT * FROM KRT" << 3065;
    QTest::newRow("dos instrucciones")
        << "DELETE FROM KRT WHERE Nombre='x'; DELETE FROM OPE" << 3142;
    QTest::newRow("funcion") << "DELETE FROM KRT WHERE Nada(Nombre) = 1" << 3085;
    QTest::newRow("ambigua") << "DELETE FROM KRT WHERE Nombre = (SELECT OPE FROM OPE,KRT2)" << 3079;
    QTest::newRow("ancho") << "UPDATE KRT SET Clave = '123456789012345678901'" << 3163;
    QTest::newRow("letras") << "UPDATE Campos SET Digitos = 'abc'" << 3421;
    QTest::newRow("nulo en indice") << "UPDATE KRT SET Nombre = null" << 3058;
    QTest::newRow("16 bits") << "INSERT INTO Sesiones (ID) VALUES (32768)" << 6;
    QTest::newRow("clave") << "INSERT INTO KRT (Nombre) VALUES ('x')" << 3022;
    QTest::newRow("descripcion repetida") << "INSERT INTO OPE VALUES (2,'Uno')" << 3022;
}

void TestJet::los_errores_tienen_su_numero()
{
    QFETCH(QString, sql);
    QFETCH(int, numero);
    p->Fila("KRT", {{"Nombre", "x"}, {"Clave", "PX7"}});
    p->Fila("OPE", {{"OPE", 1}, {"DESOPE", "Uno"}});
    Campo("PX7", "A", "c", 1);
    QVERIFY_ERROR(numero, Base_Datos->Execute(sql));
    QCOMPARE(p->Columna("SELECT Clave FROM KRT"), QStringList{"PX7"});
    QCOMPARE(p->Columna("SELECT OPE FROM OPE"), QStringList{"1"});
}

void TestJet::los_valores_de_los_huecos_se_cuentan()
{
    QVERIFY_ERROR(3061,
                  Base_Datos->Execute("DELETE FROM KRT WHERE Nombre = ? AND Clave = ?", {"a"}));
    QVERIFY_ERROR(3001, Base_Datos->Execute("DELETE FROM KRT WHERE Nombre = ?", {"a", "b"}));
    p->Fila("KRT", {{"Nombre", "d'Ors"}, {"Clave", "PX7"}});
    QCOMPARE(Base_Datos->Execute("DELETE FROM KRT WHERE Clave = 'PX7' AND Nombre = ?", {"d'Ors"}),
             1);
}

void TestJet::un_texto_con_byte_cero_va_y_vuelve()
{
    const QString texto = QStringLiteral("a%1b").arg(QChar(0));
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Punto", texto}, {"Datos", "x"}});
    QCOMPARE(p->Columna("SELECT Punto FROM Registros"), QStringList{texto});
    QCOMPARE(p->Columna("SELECT Datos FROM Registros WHERE Punto = '" + texto + "'"),
             QStringList{"x"});
    QCOMPARE(p->Columna("SELECT Datos FROM Registros WHERE Punto = 'a'"), QStringList{});
}

void TestJet::un_texto_estropeado_da_un_error_y_no_cae()
{
    const QStringList textos{
        "SELECT DISTINCT Campo,Marcas FROM Campos WHERE id IN ('A' ,'' ) and Maquina = 'PX7' ",
        "SELECT KRT2.OPE, OPE.DESOPE FROM KRT2 LEFT JOIN OPE ON KRT2.OPE = OPE.OPE WHERE Nombre = "
        "'a'",
        "SELECT F.Campo,F.Sec from Campos C,Formatos2 F Where trim(C.Campo)=trim(left(F.Campo,40)) "
        "Group by f.Campo Order by left(right(F.campo,2),1),F.Sec",
        "SELECT CODIGO,(SELECT TAB2.DESCRIPCION FROM TAB2 WHERE TIPO = 'E') as D FROM Lib800_2 AS "
        "l5 "
        "WHERE Codlibreria = \"x\" ORDER BY SECUENCIA LIMIT 3",
        "UPDATE Registros SET ID = 1.5e3 Where [Id]=-0"};
    QRandomGenerator azar(40);
    int bien = 0, mal = 0;
    for (int vez = 0; vez < 4000; ++vez) {
        QString sql = textos[azar.bounded(int(textos.size()))];
        for (int n = azar.bounded(4); n > 0; --n) {
            const auto lugar = azar.bounded(int(sql.size()));
            const auto largo = azar.bounded(12);
            if (azar.bounded(2))
                sql.remove(lugar, largo);
            else
                sql.insert(lugar, sql.mid(azar.bounded(int(sql.size())), largo));
        }
        try {
            if (sql.startsWith(u"SELECT"))
                Base_Datos->OpenRecordset(sql);
            else
                Base_Datos->Execute(sql);
            ++bien;
        } catch (const Error_Ejecucion& e) {
            QVERIFY2(e.numero != 51 && !e.descripcion.isEmpty(), qPrintable(sql));
            ++mal;
        }
    }
    QVERIFY(bien > 500 && mal > 500);
}

PRUEBA(TestJet)
#include "TestJet.moc"
