#include "core/ModEstTotal.h"
#include "session/Identificador.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"

// One row a line of data, one column a routine: what they read differs on purpose.
class TestIdentificador : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_rutina_a_su_modo_data();
    void cada_rutina_a_su_modo();
    void los_identificadores_en_un_texto();
};

// What the grid's condition finds for the line: the identifiers of its rows, joined.
static QString Id_De_La_Rejilla(const Base_De_Prueba& p, const QString& maquina, int ope)
{
    return p
        .Columna("SELECT Identificadores.Id FROM Registros,Identificadores WHERE " +
                 Condicion_Descripcion(Familia_De(maquina), ope))
        .join('|');
}

void TestIdentificador::cada_rutina_a_su_modo_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("linea");
    QTest::addColumn<QString>("decodificador");
    QTest::addColumn<QString>("visor");
    QTest::addColumn<QString>("rejilla");
    QTest::addColumn<QString>("formatos");
    QTest::addColumn<QString>("fila");
    QTest::addColumn<QString>("guardar"); // asked for series B alone
    const auto fila = [](const char* maquina, int ope, const char* linea, const char* decodificador,
                         const char* visor, const char* rejilla, const char* formatos,
                         const char* de_fila, const char* guardar) {
        QTest::addRow("%s %d [%s]", maquina, ope, linea)
            << maquina << ope << linea << decodificador << visor << rejilla << formatos << de_fila
            << guardar;
    };
    fila("KRT300", 0, "A123", "A", "A", "A", "A", "A", "");
    fila("KRT300", 0, "  xy", "x", "x", "x", "x", "x", "");
    fila("KRT300", 4, "1,2", "1", "1", "1", "1", "1", "");
    fila("KRT300", 7, "1 2", "1", "1", "1", "1", "1", "");
    fila("KRT300", 0, "   ", "", "", "", "", "", "");
    fila("KRT300", 0, "", "", "", "", "", "", "");
    fila("KRT300", 0, "\tA", "\t", "\t", "", "\t", "\t", "");
    fila("PX7", 1, " y+1 ", "y", "y", "y", "y", "y", "");
    fila("KRT800", 1, "STN 1,2", "STN", "STN", "STN", "STN", "STN", "STN");
    fila("KRT800", 1, " STN 1,2", "STN", "STN", "STN", "", "STN", "S");
    fila("KRT800", 1, "STN", "STN", "STN", "STN", "", "STN", "");
    fila("KRT800", 1, "", "", "", "", "", "", "");
    fila("KRT800", 1, "   ", "", "", "", "", "", "");
    fila("KRT800", 1, "STNX 1", "STNX", "STNX", "", "STNX", "STNX", "STNX");
    fila("KRT800", 4, " P 1 ,5,6", "Punto", "Punto", "Punto", "P 1 ", "P 1", "Punto");
    fila("KRT800", 4, "12", "Punto", "Punto", "Punto", "12", "12", "Punto");
    fila("KRT800", 7, "100,2 3", "Per.Trans", "Per.Trans", "Per.Trans", "100,2", "100,2",
         "Per.Trans");
    fila("KRT800", 7, "100,2,3", "Per.Trans", "Per.Trans", "Per.Trans", "", "100,2,3", "Per.Trans");
    fila("NV400", 0, "g,1 2", "1", "g", "g", "g", "g", "");
    fila("NV400", 4, " g0,1", "1", "g", "g", "g", "g", "");
    // A key that no family has is read like series A.
    fila("XX", 4, " g0,1", "g", "g", "g", "g", "g", "");
}

void TestIdentificador::cada_rutina_a_su_modo()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, linea);
    const Familia& familia = Familia_De(maquina);
    Base_De_Prueba p;
    for (const char* id : {"A", "x", "y", "g", "1", "STN", "Punto", "Per.Trans"})
        p.Fila("Identificadores", {{"Nombre", maquina}, {"OPE", ope}, {"ID", id}});
    p.Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Datos", linea}});
    QTEST(Id_De_Linea(linea, familia, ope).toString(), "decodificador");
    QTEST(Id_Del_Visor(linea, familia, ope).toString(), "visor");
    QTEST(Id_De_La_Rejilla(p, maquina, ope), "rejilla");
    QTEST(Leer_Id_Registro(linea, maquina, ope), "formatos");
    QTEST(Extraer_ID(Base_Datos->OpenRecordset("Registros"), maquina, ope), "fila");
    if (familia.serie == Serie::B) QTEST(Id_Al_Guardar(linea, ope), "guardar");
}

void TestIdentificador::los_identificadores_en_un_texto()
{
    QCOMPARE(Token_ID("A B C", 2, 1), QStringLiteral("B"));
    QCOMPARE(Token_ID("A B C", 4, 1), QString());
    QCOMPARE(Token_ID("A B C", 2, 4), QStringLiteral("Punto"));
    // Only the points have one identifier here: sections were stored by their lines' own.
    QCOMPARE(Token_ID("A B C", 2, 7), QStringLiteral("B"));
    QStringList ids = QList<QString>(MAX_IDS);
    ids[30] = "Z";
    QCOMPARE(Todos_Los_IDs(4, ids), QStringLiteral("Punto"));
    QCOMPARE(Todos_Los_IDs(1, ids), QString(30, u' ') + "Z ");
    QCOMPARE(Todos_Los_IDs(7, {"A", "B"}), "A B " + QString(29, u' '));
}

PRUEBA(TestIdentificador)
#include "TestIdentificador.moc"
