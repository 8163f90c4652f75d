#include "core/ModEstTotal.h"
#include "core/Sumas.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/enlace/Rescate.h"

// The sessions rescued from journals of received bytes.
class TestRescate : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void rescatado_en_cualquier_corte_es_un_comienzo();
    void rescatado_entero_guarda_tambien_el_ultimo();
    void krt800_rescata_las_lineas_completas();
    void nv400_rescata_las_lineas_aceptadas();
    void nv400_rescatado_en_cualquier_corte_no_pierde_lineas();
    void rescatar_guarda_y_quita_el_diario();
    void rescatar_lo_vacio_dice_por_que();
    void familia_desconocida_no_rescata_nada();

private:
    QString Escribir(const QByteArray& bytes);
    static QByteArray Bajo_Tramas(const QByteArray& libro);

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestRescate::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) "
                        "VALUES ('KRT300', 0, 'A', '', 'M')");
}

void TestRescate::cleanup()
{
    interfaz.reset();
    base.reset();
}

QString TestRescate::Escribir(const QByteArray& bytes)
{
    const QString ruta = En_Instalacion("LOG/recepcion_20260307_090501_KRT300_0.dia");
    QFile f(ruta);
    if (!QDir().mkpath(En_Instalacion("LOG")) || !f.open(QIODevice::WriteOnly)) return {};
    f.write(bytes);
    return ruta;
}

// The field book as frames of ten characters.
QByteArray TestRescate::Bajo_Tramas(const QByteArray& libro)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < libro.size(); i += 10) {
        const QByteArray interior = libro.mid(i, 10) + char('0' + (i / 10) % 10);
        int suma = 0;
        for (const char c : interior)
            suma ^= static_cast<unsigned char>(c);
        bytes += "\x02" + interior + QByteArray::number(suma).rightJustified(3, '0') + "\x03\r\n";
    }
    return bytes;
}

void TestRescate::rescatado_en_cualquier_corte_es_un_comienzo()
{
    const QByteArray libro = "_+P1_A0001_A0002_+P2_A0003_A0004";
    const QList<QByteArray> registros = libro.mid(1).split('_');
    const QByteArray bytes = Bajo_Tramas(libro);
    for (qsizetype n = 0; n <= bytes.size(); ++n) {
        const QString buffer = Leer_Diario(Escribir(bytes.left(n)), "KRT300");
        if (buffer.isEmpty()) continue;
        QVERIFY(buffer.startsWith(u'_'));
        const QStringList hallados = buffer.mid(1).split(u'_');
        for (qsizetype i = 0; i < hallados.size(); ++i)
            QCOMPARE(hallados[i], QString::fromLatin1(registros[i]));
    }
}

void TestRescate::rescatado_entero_guarda_tambien_el_ultimo()
{
    const QByteArray libro = "_+P1_A0001_A0002";
    QCOMPARE(Leer_Diario(Escribir(Bajo_Tramas(libro) + "\x04ruido"), "PX7"), QString(libro));
}

void TestRescate::krt800_rescata_las_lineas_completas()
{
    const QString f = Escribir("JOB 1\r\nSTN E1,1\r\nSS 1,");
    QCOMPARE(Leer_Diario(f, "KRT800"), QString("JOB 1\r\nSTN E1,1\r\nSS 1,"));
}

void TestRescate::nv400_rescata_las_lineas_aceptadas()
{
    const QString f = Escribir("A,01,Z,\r\ng,1,#,\r\n" + QByteArray("g,") +
                               char(((103 + 44) & 63) + 32) + ",\r\nh,");
    QCOMPARE(Leer_Diario(f, "NV400"), QString("g,") + QChar(((103 + 44) & 63) + 32) + ",\r\n");
}

// Two jobs, cut behind each of their lines: every accepted line is in a session that can be seen.
void TestRescate::nv400_rescatado_en_cualquier_corte_no_pierde_lineas()
{
    const QByteArrayList lineas = {"a,012UNO,", "g,1,", "t,9,", "a,012DOS,",
                                   "h,2,",      "t,9,", "u,1,"};
    QByteArray bytes = "A,01,Z,\r\n";
    for (qsizetype n = 1; n <= lineas.size(); ++n) {
        const QByteArray& linea = lineas[n - 1];
        bytes += linea + Suma_Nivel(QString::fromLatin1(linea)).toLatin1() + ",\r\n";
        // What a storing that failed left behind is in the journal too.
        Base_Datos->Execute("INSERT INTO Registros_Temp (Secuencia, Datos) VALUES (1, 'resto')");
        const QString f = Escribir(bytes);
        const Resultado_Recepcion r = Rescatar(f, {QString(), "", 0, 0, "NV400", "Modelo"});
        QVERIFY(r.completa);
        QVERIFY(!QFile::exists(f));
        QCOMPARE(r.sesiones.size(), n <= 3 ? 1 : n <= 6 ? 2 : 3);
        const QStringList guardadas =
            base->Columna("SELECT Datos FROM Registros,Sesiones WHERE Registros.ID = Sesiones.ID "
                          "ORDER BY Registros.ID,Secuencia");
        QCOMPARE(guardadas.size(), n);
        for (qsizetype i = 0; i < n; ++i)
            QVERIFY(guardadas[i].startsWith(QString::fromLatin1(lineas[i])));
        Base_Datos->Execute("DELETE FROM Sesiones");
        Base_Datos->Execute("DELETE FROM Registros");
    }
    // Ended by the level, it is stored as a download is.
    const Resultado_Recepcion r =
        Rescatar(Escribir(bytes + "Z,&,\r\n"), {QString(), "", 0, 0, "NV400", "Modelo"});
    QCOMPARE(r.sesiones, (QStringList{"1", "2"}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestRescate::rescatar_guarda_y_quita_el_diario()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_+P2_A0002_A00"));
    const Resultado_Recepcion r = Rescatar(f, {QString(), "Rescatada", 0, 0, "KRT300", "Modelo"});
    QCOMPARE(r.sesiones, QStringList{"1"});
    QVERIFY(r.completa);
    QVERIFY(!QFile::exists(f));
    Conjunto_Registros filas =
        Base_Datos->OpenRecordset("SELECT * FROM Registros ORDER BY Secuencia");
    QCOMPARE(filas.RecordCount(), 2);
    QCOMPARE(Base_Datos->OpenRecordset("Sesiones").Texto("NFichero"), QString("Rescatada"));
}

void TestRescate::rescatar_lo_vacio_dice_por_que()
{
    const QString f = Escribir("\x02_A0");
    try {
        Rescatar(f, {QString(), "Rescatada", 0, 0, "KRT300", "Modelo"});
        QFAIL("nothing to rescue must be said");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 62);
        QVERIFY(e.descripcion.contains(f));
    }
    QVERIFY(QFile::exists(f));
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
}

void TestRescate::familia_desconocida_no_rescata_nada()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001"));
    QCOMPARE(Leer_Diario(f, "OTRA"), QString());
    QVERIFY(QFile::exists(f));
}

PRUEBA(TestRescate)
#include "TestRescate.moc"
