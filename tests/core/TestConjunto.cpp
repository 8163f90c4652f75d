#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

// Moves, searches and edits of the three kinds of recordset.
class TestConjunto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_vacio_esta_antes_y_despues_data();
    void el_vacio_esta_antes_y_despues();
    void los_movimientos_data();
    void los_movimientos();
    void la_tabla_es_viva();
    void los_miembros_quedan_fijos_al_abrir_data();
    void los_miembros_quedan_fijos_al_abrir();
    void un_miembro_borrado_por_otro_es_3167();
    void la_instantanea_guarda_sus_valores();
    void el_indice_ordena_y_busca();
    void se_busca_por_las_primeras_columnas();
    void buscar_sin_indice_o_de_mas_es_un_error();
    void tras_no_hallar_no_hay_fila();
    void find_first_halla_la_primera_en_su_orden();
    void find_first_sin_fruto_no_se_mueve();
    void borrar_deja_el_sitio_antes_de_la_siguiente_data();
    void borrar_deja_el_sitio_antes_de_la_siguiente();
    void editar_y_dar_de_alta_por_una_consulta();
    void update_sin_empezar_es_3020();
    void moverse_deja_lo_que_se_escribia();
    void un_ancho_pasado_no_cambia_nada();
    void la_clave_repetida_es_3022();
    void una_columna_desconocida_es_3265();
    void los_anchos_de_las_columnas_data();
    void los_anchos_de_las_columnas();
    void requery_vuelve_a_la_primera();
    void move_last_de_sesiones_es_la_mayor();
    void los_valores_conservan_su_clase();
    void una_union_grande_se_guarda_entera();

private:
    QStringList Recorrer(Conjunto_Registros& rs, const QString& campo);
    void Lineas(int n);
    std::unique_ptr<Base_De_Prueba> p;
};

void TestConjunto::init()
{
    p = std::make_unique<Base_De_Prueba>();
}

void TestConjunto::cleanup()
{
    p.reset();
}

QStringList TestConjunto::Recorrer(Conjunto_Registros& rs, const QString& campo)
{
    QStringList valores;
    for (; !rs.Es_EOF(); rs.MoveNext())
        valores << rs.Texto(campo);
    return valores;
}

void TestConjunto::Lineas(int n)
{
    for (int i = 1; i <= n; ++i)
        p->Fila("Registros", {{"ID", 1}, {"Secuencia", i}, {"Datos", QString::number(i)}});
}

static const char* const CONSULTA = "SELECT * FROM Registros WHERE ID = 1 ORDER BY Secuencia";

// The three kinds over the same rows; the join gives a set kept in memory.
static void Clases()
{
    QTest::addColumn<QString>("fuente");
    QTest::addColumn<bool>("fija");
    QTest::newRow("tabla") << "Registros" << false;
    QTest::newRow("consulta") << CONSULTA << false;
    QTest::newRow("instantanea") << CONSULTA << true;
    QTest::newRow("union") << "SELECT * FROM Registros LEFT JOIN KRT ON Datos = Nombre" << false;
}

static Conjunto_Registros Abrir(const QString& fuente, bool fija)
{
    return fija ? Base_Datos->OpenRecordset(fuente, Tipo_Conjunto::Instantanea)
                : Base_Datos->OpenRecordset(fuente);
}

void TestConjunto::el_vacio_esta_antes_y_despues_data()
{
    Clases();
}

void TestConjunto::el_vacio_esta_antes_y_despues()
{
    QFETCH(QString, fuente);
    QFETCH(bool, fija);
    Conjunto_Registros rs = Abrir(fuente, fija);
    QVERIFY(rs.Es_BOF() && rs.Es_EOF());
    QCOMPARE(rs.RecordCount(), 0);
    QCOMPARE(rs.Posicion(), -1);
    QVERIFY_ERROR(3021, rs.MoveFirst());
    QVERIFY_ERROR(3021, rs.MoveLast());
    QVERIFY_ERROR(3021, rs.MoveNext());
    QVERIFY_ERROR(3021, rs.MovePrevious());
    QVERIFY_ERROR(3021, rs.Texto("Datos"));
    QVERIFY_ERROR(3021, rs.Ir_A(0));
}

void TestConjunto::los_movimientos_data()
{
    Clases();
}

void TestConjunto::los_movimientos()
{
    QFETCH(QString, fuente);
    QFETCH(bool, fija);
    Lineas(3);
    Conjunto_Registros rs = Abrir(fuente, fija);
    QCOMPARE(rs.RecordCount(), 3);
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("1"));
    QCOMPARE(rs.Posicion(), 0);
    rs.MovePrevious();
    QVERIFY(rs.Es_BOF() && !rs.Es_EOF());
    QVERIFY_ERROR(3021, rs.MovePrevious());
    QVERIFY_ERROR(3021, rs.Texto("Datos"));
    QCOMPARE(rs.Posicion(), -1);
    rs.MoveNext();
    QCOMPARE(Recorrer(rs, "Datos"), (QStringList{"1", "2", "3"}));
    QVERIFY(rs.Es_EOF() && !rs.Es_BOF());
    QVERIFY_ERROR(3021, rs.MoveNext());
    rs.MovePrevious();
    QCOMPARE(rs.Entero("Datos"), 3);
    rs.MovePrevious();
    QCOMPARE(rs.Entero("Datos"), 2);
    QCOMPARE(rs.Posicion(), 1);
    rs.MoveLast();
    QCOMPARE(rs.Posicion(), 2);
    rs.Ir_A(1);
    QCOMPARE(rs.Entero("datos"), 2);
    QVERIFY_ERROR(3021, rs.Ir_A(3));
    QVERIFY_ERROR(3021, rs.Ir_A(-1));
    rs.MoveFirst();
    QCOMPARE(rs.Entero("Datos"), 1);
}

void TestConjunto::la_tabla_es_viva()
{
    Lineas(1);
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Registros");
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 2}, {"Datos", "nueva"}});
    QCOMPARE(rs.RecordCount(), 2);
    rs.MoveNext();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("nueva"));
}

void TestConjunto::los_miembros_quedan_fijos_al_abrir_data()
{
    QTest::addColumn<QString>("fuente");
    QTest::addColumn<bool>("fija");
    QTest::newRow("consulta") << CONSULTA << false;
    QTest::newRow("instantanea") << CONSULTA << true;
    QTest::newRow("union") << "SELECT * FROM Registros LEFT JOIN KRT ON Datos = Nombre" << false;
}

void TestConjunto::los_miembros_quedan_fijos_al_abrir()
{
    QFETCH(QString, fuente);
    QFETCH(bool, fija);
    Lineas(2);
    Conjunto_Registros rs = Abrir(fuente, fija);
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 0}, {"Datos", "nueva"}});
    // A row that ceases to meet the condition stays a member.
    Base_Datos->Execute("UPDATE Registros SET ID = 2 WHERE Secuencia = 2");
    QCOMPARE(Recorrer(rs, "Datos"), (QStringList{"1", "2"}));
    QCOMPARE(rs.RecordCount(), 2);
}

void TestConjunto::un_miembro_borrado_por_otro_es_3167()
{
    Lineas(2);
    Conjunto_Registros rs = Base_Datos->OpenRecordset(CONSULTA);
    Base_Datos->Execute("DELETE FROM Registros WHERE Secuencia = 1");
    QVERIFY_ERROR(3167, rs.Texto("Datos"));
    QVERIFY_ERROR(3167, rs.Edit());
    rs.MoveNext();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("2"));
}

void TestConjunto::la_instantanea_guarda_sus_valores()
{
    Lineas(1);
    Conjunto_Registros fija = Base_Datos->OpenRecordset(CONSULTA, Tipo_Conjunto::Instantanea);
    Conjunto_Registros viva = Base_Datos->OpenRecordset(CONSULTA);
    Base_Datos->Execute("UPDATE Registros SET Datos = 'otro'");
    QCOMPARE(fija.Texto("Datos"), QStringLiteral("1"));
    QCOMPARE(viva.Texto("Datos"), QStringLiteral("otro"));
    QVERIFY_ERROR(3251, fija.Edit());
    QVERIFY_ERROR(3251, fija.AddNew());
    QVERIFY_ERROR(3251, fija.Delete());
    QVERIFY_ERROR(3251, fija.Seek({1}));
}

void TestConjunto::el_indice_ordena_y_busca()
{
    for (int i : {3, 1, 2})
        p->Fila("Registros", {{"ID", 1}, {"Secuencia", i}, {"Datos", QString::number(i)}});
    p->Fila("Registros", {{"ID", 0}, {"Secuencia", 9}, {"Datos", "0"}});
    p->Fila("Registros", {{"ID", 1}, {"Secuencia", 2}, {"Datos", "2b"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Registros");
    QCOMPARE(Recorrer(rs, "Datos"), (QStringList{"3", "1", "2", "0", "2b"}));
    rs.Index("IDX_PRIM");
    QCOMPARE(Recorrer(rs, "Datos"), (QStringList{"0", "1", "2", "2b", "3"}));
    rs.Seek({1, 2});
    QVERIFY(!rs.NoMatch());
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("2"));
    QCOMPARE(rs.Posicion(), 2);
    rs.MoveNext();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("2b"));
    rs.MovePrevious();
    rs.MovePrevious();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("1"));
}

void TestConjunto::se_busca_por_las_primeras_columnas()
{
    for (int ope : {4, 1})
        p->Fila("KRT2", {{"Nombre", "PX7"}, {"OPE", ope}, {"TipOpe", "D"}, {"Conv", "HD6"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset("KRT2");
    rs.Index("PrimaryKey");
    rs.Seek({"PX7"});
    QVERIFY(!rs.NoMatch());
    QCOMPARE(rs.Entero("OPE"), 1);
    rs.Seek({"PX7", 4, "D"});
    QCOMPARE(rs.Entero("OPE"), 4);
    rs.Seek({"PX7", 4, "C"});
    QVERIFY(rs.NoMatch());
    rs.Seek({"px7"});
    QVERIFY(rs.NoMatch());
}

void TestConjunto::buscar_sin_indice_o_de_mas_es_un_error()
{
    Conjunto_Registros rs = Base_Datos->OpenRecordset("KRT");
    QVERIFY_ERROR(3019, rs.Seek({"a"}));
    QVERIFY_ERROR(3015, rs.Index("Nada"));
    rs.Index("PrimaryKey");
    QVERIFY_ERROR(3001, rs.Seek({"a", "b"}));
    QVERIFY_ERROR(3001, rs.Seek({}));
    QVERIFY_ERROR(3251, Base_Datos->OpenRecordset("SELECT * FROM KRT").Index("PrimaryKey"));
    QVERIFY_ERROR(3078, Base_Datos->OpenRecordset("Nada"));
    QVERIFY_ERROR(3061, Base_Datos->OpenRecordset("SELECT Nada FROM KRT"));
}

void TestConjunto::tras_no_hallar_no_hay_fila()
{
    Lineas(2);
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Registros");
    rs.Index("Idx_Prim");
    rs.Seek({5});
    QVERIFY(rs.NoMatch());
    QVERIFY_ERROR(3021, rs.Texto("Datos"));
    QVERIFY_ERROR(3021, rs.Delete());
    QVERIFY_ERROR(3021, rs.MoveNext());
    rs.MoveLast();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("2"));
}

void TestConjunto::find_first_halla_la_primera_en_su_orden()
{
    Lineas(4);
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT * FROM Registros WHERE ID = 1 AND Secuencia <> 4 ORDER BY Secuencia DESC");
    rs.FindFirst("Secuencia > 1 AND Datos <> 'x'");
    QVERIFY(!rs.NoMatch());
    QCOMPARE(rs.Entero("Secuencia"), 3);
    Conjunto_Registros tabla = Base_Datos->OpenRecordset("Registros");
    tabla.MoveLast();
    tabla.FindFirst("ID = 1 AND Secuencia > 1");
    QVERIFY(!tabla.NoMatch());
    QCOMPARE(tabla.Entero("Secuencia"), 2);
    tabla.FindFirst("Datos = 'd''Ors'");
    QVERIFY(tabla.NoMatch());
}

void TestConjunto::find_first_sin_fruto_no_se_mueve()
{
    Lineas(3);
    for (const char* fuente : {"Registros", CONSULTA}) {
        Conjunto_Registros rs = Base_Datos->OpenRecordset(QString::fromLatin1(fuente));
        rs.MoveLast();
        rs.FindFirst("Secuencia = 99");
        QVERIFY(rs.NoMatch());
        QCOMPARE(rs.Entero("Secuencia"), 3);
        QVERIFY_ERROR(3061, rs.FindFirst("Nada = 1"));
        QVERIFY_ERROR(3075, rs.FindFirst("Secuencia ="));
    }
}

void TestConjunto::borrar_deja_el_sitio_antes_de_la_siguiente_data()
{
    QTest::addColumn<QString>("fuente");
    QTest::newRow("tabla") << "Registros";
    QTest::newRow("consulta") << CONSULTA;
}

void TestConjunto::borrar_deja_el_sitio_antes_de_la_siguiente()
{
    QFETCH(QString, fuente);
    Lineas(4);
    Conjunto_Registros rs = Base_Datos->OpenRecordset(fuente);
    rs.MoveNext();
    rs.Delete();
    QCOMPARE(rs.RecordCount(), 3);
    QVERIFY(!rs.Es_EOF());
    QVERIFY_ERROR(3167, rs.Texto("Datos"));
    QVERIFY_ERROR(3167, rs.Delete());
    rs.MoveNext();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("3"));
    rs.Delete();
    rs.MovePrevious();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("1"));
    // The usual loop empties the set.
    for (; !rs.Es_EOF(); rs.MoveNext())
        rs.Delete();
    QVERIFY(rs.Es_EOF());
    QCOMPARE(rs.RecordCount(), 0);
    QCOMPARE(p->Columna("SELECT Datos FROM Registros"), QStringList{});
}

void TestConjunto::editar_y_dar_de_alta_por_una_consulta()
{
    Lineas(2);
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT Secuencia, Datos, ID FROM Registros WHERE ID = 1 ORDER BY Secuencia");
    rs.Edit();
    rs.Poner("datos", "uno");
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("uno"));
    QCOMPARE(rs.Texto("Secuencia"), QStringLiteral("1"));
    rs.Update();
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("uno"));
    rs.AddNew();
    QVERIFY(rs.Valor("Datos").isNull());
    rs.Poner("ID", 1);
    rs.Poner("Secuencia", 0);
    rs.Poner("Datos", "cero");
    rs.Update();
    // The current row is the one that was; the new one is a member behind the others.
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("uno"));
    QCOMPARE(Recorrer(rs, "Datos"), (QStringList{"uno", "2", "cero"}));
    QVERIFY_ERROR(3265, rs.Poner("Punto", "x"));
}

void TestConjunto::update_sin_empezar_es_3020()
{
    Lineas(1);
    for (const char* fuente : {"Registros", CONSULTA}) {
        Conjunto_Registros rs = Base_Datos->OpenRecordset(QString::fromLatin1(fuente));
        QVERIFY_ERROR(3020, rs.Update());
        QVERIFY_ERROR(3020, rs.Poner("Datos", "x"));
        QVERIFY_ERROR(3020, rs.CancelUpdate());
        rs.Edit();
        rs.Poner("Datos", "x");
        rs.CancelUpdate();
        QCOMPARE(rs.Texto("Datos"), QStringLiteral("1"));
        QVERIFY_ERROR(3020, rs.Update());
    }
}

void TestConjunto::moverse_deja_lo_que_se_escribia()
{
    Lineas(2);
    for (const char* fuente : {"Registros", CONSULTA}) {
        Conjunto_Registros rs = Base_Datos->OpenRecordset(QString::fromLatin1(fuente));
        rs.Edit();
        rs.Poner("Datos", "x");
        rs.MoveNext();
        QCOMPARE(rs.Texto("Datos"), QStringLiteral("2"));
        QVERIFY_ERROR(3020, rs.Update());
    }
    QCOMPARE(p->Columna("SELECT Datos FROM Registros"), (QStringList{"1", "2"}));
}

void TestConjunto::un_ancho_pasado_no_cambia_nada()
{
    Lineas(1);
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Registros");
    rs.Edit();
    rs.Poner("Secuencia", 7);
    rs.Poner("Datos", QString(256, u'a'));
    QVERIFY_ERROR(3163, rs.Update());
    QCOMPARE(p->Columna("SELECT Secuencia FROM Registros"), QStringList{"1"});
    rs.Poner("Datos", QString(255, u'ñ'));
    rs.Update();
    QCOMPARE(rs.Texto("Datos").size(), 255);
    QCOMPARE(rs.Entero("Secuencia"), 7);
    Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
    QVERIFY_ERROR(3163, i.Anadir({1, 2, QString(256, u'a')}));
    QVERIFY_ERROR(3001, i.Anadir({1, 2}));
    i.Anadir({1, 2, QString()});
    i.Poner(1, qint64(3));
    i.Poner(2, u"tres");
    i.Anadir();
    QCOMPARE(p->Columna("SELECT Datos FROM Registros WHERE Secuencia > 1 AND Secuencia < 7"),
             (QStringList{"", "tres"}));
}

void TestConjunto::la_clave_repetida_es_3022()
{
    p->Fila("Formatos1", {{"Nombre", "F"}, {"Maquina", "PX7"}, {"descripcion", "vieja"}});
    p->Fila("Formatos1", {{"Nombre", "F"}, {"Maquina", "KRT300"}});
    QVERIFY_ERROR(3022, p->Fila("Formatos1", {{"Nombre", "F"}, {"Maquina", "PX7"}}));
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Formatos1");
    rs.MoveLast();
    rs.Edit();
    rs.Poner("Maquina", "PX7");
    QVERIFY_ERROR(3022, rs.Update());
    rs.CancelUpdate();
    QCOMPARE(rs.Texto("Maquina"), QStringLiteral("KRT300"));
    QVERIFY_ERROR(3058, p->Fila("Formatos1", {{"Nombre", "G"}}));
    // The level's halves each count from 0.
    for (const char* campo : {"a", "b"})
        p->Fila("Formatos2", {{"Nombre", "F"}, {"Maquina", "NV400"}, {"sec", 0}, {"Campo", campo}});
    QCOMPARE(p->Columna("SELECT sec FROM Formatos2"), (QStringList{"0", "0"}));
}

void TestConjunto::una_columna_desconocida_es_3265()
{
    Lineas(1);
    Conjunto_Registros rs = Base_Datos->OpenRecordset("SELECT Punto FROM Registros");
    QVERIFY_ERROR(3265, rs.Texto("Datos"));
    rs.Edit();
    QVERIFY_ERROR(3265, rs.Poner("Nada", 1));
}

void TestConjunto::los_anchos_de_las_columnas_data()
{
    QTest::addColumn<QString>("tabla");
    QTest::addColumn<QString>("columna");
    QTest::addColumn<int>("ancho");
    QTest::newRow("Datos") << "Registros"
                           << "Datos" << 255;
    QTest::newRow("Punto") << "Registros"
                           << "Punto" << 50;
    QTest::newRow("NFichero") << "Sesiones"
                              << "NFichero" << 50;
    QTest::newRow("codigo") << "LIB800_2"
                            << "CODIGO" << 20;
    QTest::newRow("temporal") << "Registros_Temp"
                              << "Datos" << 255;
    QTest::newRow("campo") << "Formatos2"
                           << "Campo" << 50;
    QTest::newRow("DatosG") << "Registros"
                            << "DatosG" << 0;
    QTest::newRow("Ids") << "Formatos1"
                         << "Ids" << 0;
    QTest::newRow("Codigos") << "Lib1"
                             << "Codigos" << 0;
}

void TestConjunto::los_anchos_de_las_columnas()
{
    QFETCH(QString, tabla);
    QFETCH(QString, columna);
    QFETCH(int, ancho);
    const QList<std::pair<QString, QVariant>> claves =
        tabla == u"Registros" ? QList<std::pair<QString, QVariant>>{{"ID", 1}, {"Secuencia", 1}}
        : tabla == u"Registros_Temp" ? QList<std::pair<QString, QVariant>>{{"Secuencia", 1}}
        : tabla == u"LIB800_2"
            ? QList<std::pair<QString, QVariant>>{{"CodLibreria", "a"}, {"SECUENCIA", 1}}
        : tabla == u"Lib1"     ? QList<std::pair<QString, QVariant>>{{"CoD", "a"}}
        : tabla == u"Sesiones" ? QList<std::pair<QString, QVariant>>{{"ID", 1}}
        : tabla == u"Formatos2"
            ? QList<std::pair<QString, QVariant>>{{"Nombre", "a"}, {"Maquina", "b"}, {"sec", 1}}
            : QList<std::pair<QString, QVariant>>{{"Nombre", "a"}, {"Maquina", "b"}};
    const auto con = [&](int n) {
        return claves + QList<std::pair<QString, QVariant>>{{columna, QString(n, u'ñ')}};
    };
    if (ancho > 0) QVERIFY_ERROR(3163, p->Fila(tabla, con(ancho + 1)));
    const int cabe = ancho > 0 ? ancho : 100000;
    p->Fila(tabla, con(cabe));
    QCOMPARE(Base_Datos->OpenRecordset(tabla).Texto(columna).size(), cabe);
}

void TestConjunto::requery_vuelve_a_la_primera()
{
    Lineas(2);
    for (const char* fuente : {"Registros", CONSULTA}) {
        Conjunto_Registros rs = Base_Datos->OpenRecordset(QString::fromLatin1(fuente));
        rs.MoveLast();
        const qint64 antes = rs.RecordCount();
        p->Fila("Registros", {{"ID", 1}, {"Secuencia", antes + 1}});
        rs.Requery();
        QCOMPARE(rs.RecordCount(), antes + 1);
        QCOMPARE(rs.Entero("Secuencia"), 1);
    }
}

void TestConjunto::move_last_de_sesiones_es_la_mayor()
{
    for (int id : {5, 9, 2})
        p->Fila("Sesiones", {{"ID", id}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset("Sesiones");
    rs.MoveLast();
    QCOMPARE(rs.Entero("ID"), 9);
    rs.Index("ID");
    rs.Seek({5});
    rs.Edit();
    rs.Poner("NPuntos", 12);
    rs.Update();
    QCOMPARE(p->Columna("SELECT NPuntos FROM Sesiones WHERE ID = 5"), QStringList{"12"});
    QVERIFY_ERROR(6, p->Fila("Sesiones", {{"ID", 40000}}));
}

void TestConjunto::los_valores_conservan_su_clase()
{
    p->Fila("KRT", {{"Nombre", "a"}, {"Foto", ""}});
    p->Fila("OPE", {{"OPE", 3}, {"DESOPE", "x"}});
    for (const auto tipo : {Tipo_Conjunto::Dinamico, Tipo_Conjunto::Instantanea}) {
        Conjunto_Registros rs =
            Base_Datos->OpenRecordset("SELECT KRT.*, OPE, Val('1.5') AS v FROM KRT, OPE", tipo);
        QCOMPARE(rs.Valor("OPE"), QVariant(3));
        QCOMPARE(rs.Valor("v"), QVariant(1.5));
        QCOMPARE(rs.Entero("v"), 2);
        QVERIFY(rs.Valor("Clave").isNull());
        QVERIFY(!rs.Valor("Foto").isNull());
        QCOMPARE(rs.Valor("Foto"), QVariant(QString("")));
        QCOMPARE(rs.Entero("Nombre"), 0);
        QCOMPARE(rs.Texto("Clave"), QString());
    }
}

void TestConjunto::una_union_grande_se_guarda_entera()
{
    constexpr int FILAS = 20000;
    {
        Transaccion t(*Base_Datos);
        Insercion i = Base_Datos->Preparar_Insercion("Registros", {"ID", "Secuencia", "Datos"});
        for (int k = 0; k < FILAS; ++k)
            i.Anadir({1, k, QStringLiteral("A%1").arg(k)});
        t.Confirmar();
    }
    p->Fila("Identificadores", {{"Nombre", "PX7"}, {"OPE", 0}, {"ID", "A"}, {"NomID", "n"}});
    Conjunto_Registros rs = Base_Datos->OpenRecordset(
        "SELECT Datos, NomID FROM Registros,Identificadores WHERE Mid(Datos,1,1) = "
        "Identificadores.ID ORDER BY Secuencia");
    QCOMPARE(rs.RecordCount(), FILAS);
    rs.Ir_A(FILAS - 1);
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("A19999"));
    rs.Ir_A(12345);
    QCOMPARE(rs.Texto("Datos"), QStringLiteral("A12345"));
    QCOMPARE(rs.Texto("NomID"), QStringLiteral("n"));
}

PRUEBA(TestConjunto)
#include "TestConjunto.moc"
