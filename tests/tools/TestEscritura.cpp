#include "core/Error_Ejecucion.h"
#include "core/jet/Base.h"
#include "tests/apoyo/Prueba.h"
#include "tests/tools/Tablas_De_Prueba.h"

class TestEscritura : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_fila_llega_a_su_tabla();
    void lo_que_se_escribe_corto_se_guarda_entero();
    void lo_que_la_base_rechaza_se_dice_y_no_queda_fichero();
    void sustituye_la_base_anterior();

private:
    std::shared_ptr<Base> Hacer(const Tablas_De_Prueba& tablas);
};

std::shared_ptr<Base> TestEscritura::Hacer(const Tablas_De_Prueba& tablas)
{
    QList<Falta> faltas;
    const Juego juego = Leer_Tablas(tablas.Tablas(), faltas);
    const QString fichero = tablas.Datos() + "/Database.mdb";
    if (!Escribir_Base(juego, fichero, faltas)) return nullptr;
    return Base::Abrir(fichero);
}

void TestEscritura::cada_fila_llega_a_su_tabla()
{
    const Tablas_De_Prueba tablas;
    const auto base = Hacer(tablas);
    QVERIFY(base);
    QList<Falta> faltas;
    const Juego juego = Leer_Tablas(tablas.Tablas(), faltas);
    for (const Definicion_Tabla& d : Definiciones()) {
        if (d.nombre == "Ayudas") continue;
        Conjunto_Registros filas = base->OpenRecordset(d.nombre);
        const Tabla& t = juego.at(d.nombre);
        QCOMPARE(filas.RecordCount(), t.Filas());
        for (qsizetype i = 0; i < t.Filas(); ++i, filas.MoveNext())
            QCOMPARE(filas.Texto(d.clave.first()), t.Celda(i, d.clave.first()));
    }
    for (const char* vacia : {"Sesiones", "Registros", "Registros_Temp"})
        QCOMPARE(base->OpenRecordset(QLatin1String(vacia)).RecordCount(), 0);
}

void TestEscritura::lo_que_se_escribe_corto_se_guarda_entero()
{
    const Tablas_De_Prueba tablas;
    const auto base = Hacer(tablas);
    QVERIFY(base);

    Conjunto_Registros krt2 = base->OpenRecordset("KRT2");
    krt2.Index("PrimaryKey");
    krt2.Seek({"NV400", 4, "C"});
    QCOMPARE(krt2.Texto("DESOPE"), QStringLiteral("Puntos"));

    // A family's help stands once for each of its models, in the models' order.
    Conjunto_Registros ayudas =
        base->OpenRecordset("SELECT DISTINCT Maquina FROM Ayudas WHERE OPE = 4 AND TipOpe = 'C'");
    QStringList modelos;
    for (; !ayudas.Es_EOF(); ayudas.MoveNext())
        modelos << ayudas.Texto("Maquina");
    modelos.sort();
    QCOMPARE(modelos, (QStringList{"KRT-810", "KRT-820", "KRT-850R", "KRT800", "NV-410", "NV400"}));

    Conjunto_Registros nivel = base->OpenRecordset(
        "SELECT Campo FROM Formatos2 WHERE Maquina = 'NV400' AND Nombre = 'MEDICIONLIBRE'");
    QCOMPARE(nivel.Texto("Campo"), QStringLiteral("Trabajo").leftJustified(40) + "00");
    nivel.MoveNext();
    QCOMPARE(nivel.Texto("Campo"), QStringLiteral("Punto").leftJustified(40) + "10");

    const QStringList codigos =
        base->OpenRecordset("SELECT Codigos FROM Lib1 WHERE CoD = 'GENERAL'")
            .Texto("Codigos")
            .split(QChar(6));
    QCOMPARE(codigos[0], QString());
    QCOMPARE(codigos[1], QStringLiteral("ARBOL"));

    Conjunto_Registros campos = base->OpenRecordset("Campos");
    campos.Index("MaqCam");
    campos.Seek({"KRT300", "Estación"});
    QVERIFY(campos.Valor("Caracter").isNull());
    QVERIFY(!campos.Valor("Marcas").isNull());
    campos.Seek({"KRT300", "Orientación"});
    QCOMPARE(campos.Texto("Caracter"), QStringLiteral("."));
}

void TestEscritura::lo_que_la_base_rechaza_se_dice_y_no_queda_fichero()
{
    const Tablas_De_Prueba tablas;
    // Two rows whose keys differ for the files and not for the database.
    const int linea = tablas.Cambiar("OPE.csv", "9,Puntos de Replanteo", "9,Puntos");
    QList<Falta> faltas;
    const Juego juego = Leer_Tablas(tablas.Tablas(), faltas);
    const QString fichero = tablas.Datos() + "/Database.mdb";
    QVERIFY(!Escribir_Base(juego, fichero, faltas));
    QCOMPARE(faltas.size(), 1);
    QVERIFY(faltas[0].Texto().startsWith(QStringLiteral("OPE.csv:%1: (3022)").arg(linea)));
    QCOMPARE(QDir(tablas.Datos()).entryList({"Database*"}), QStringList());
}

void TestEscritura::sustituye_la_base_anterior()
{
    const Tablas_De_Prueba tablas;
    const QString fichero = tablas.Datos() + "/Database.mdb";
    QFile vieja(fichero);
    QVERIFY(vieja.open(QIODevice::WriteOnly) && vieja.write("no es una base") > 0);
    vieja.close();
    QVERIFY(Hacer(tablas));
    QCOMPARE(QDir(tablas.Datos()).entryList({"Database.mdb.nueva*"}), QStringList());
}

PRUEBA(TestEscritura)
#include "TestEscritura.moc"
