#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/plataforma.h"
#include "core/Reloj.h"
#include "core/Sumas.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/enlace/Diario_Recepcion.h"
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
    void krt800_rescata_los_otros_fines_de_linea();
    void nv400_rescata_las_lineas_aceptadas();
    void nv400_rescatado_en_cualquier_corte_no_pierde_lineas();
    void rescatar_guarda_y_aparta_el_diario();
    void lo_apartado_se_barre_a_los_treinta_dias();
    void fuera_de_log_solo_se_lee();
    void otra_familia_se_rechaza();
    void otra_operacion_hay_que_forzarla();
    void el_que_esta_en_curso_se_rechaza();
    void lo_ya_rescatado_hay_que_forzarlo();
    void un_torso_se_ofrece_sustituir();
    void lo_que_no_es_su_torso_no_se_toca();
    void si_no_se_puede_guardar_el_diario_sigue();
    void quitar_borra_solo_lo_parado();
    void rescatar_lo_vacio_dice_por_que();
    void familia_desconocida_no_rescata_nada();

private:
    QString Escribir(const QByteArray& bytes, const QString& clave = "KRT300");
    static QByteArray Bajo_Tramas(const QByteArray& libro);
    static Datos_Recepcion Datos(const QString& maquina = "KRT300", int ope = 0);
    QStringList En_Log() const
    {
        return QDir(En_Instalacion("LOG")).entryList({"rec*"}, QDir::Files);
    }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

Datos_Recepcion TestRescate::Datos(const QString& maquina, int ope)
{
    return {QString(), "Rescatada", ope, 0, maquina, "Modelo"};
}

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

QString TestRescate::Escribir(const QByteArray& bytes, const QString& clave)
{
    const QString ruta = En_Instalacion("LOG/recepcion_20260307_090501_" + clave + "_0.dia");
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
        // Of the last one what was acknowledged is there.
        for (qsizetype i = 0; i < hallados.size() - 1; ++i)
            QCOMPARE(hallados[i], QString::fromLatin1(registros[i]));
        QVERIFY(registros[hallados.size() - 1].startsWith(hallados.last().toLatin1()));
        const qsizetype tramas = bytes.left(n).count('\x03');
        QCOMPARE(buffer, QString::fromLatin1(libro.left(10 * tramas)));
    }
}

void TestRescate::rescatado_entero_guarda_tambien_el_ultimo()
{
    const QByteArray libro = "_+P1_A0001_A0002";
    QCOMPARE(Leer_Diario(Escribir(Bajo_Tramas(libro) + "\x04ruido"), "PX7"), QString(libro));
}

void TestRescate::krt800_rescata_las_lineas_completas()
{
    const QString f = Escribir("JOB 1\r\nSTN E1,1\r\nSS 1,", "KRT800");
    const Contenido_Diario c = Leer_Contenido(f, "KRT800");
    QCOMPARE(c.buffer, QString("JOB 1\r\nSTN E1,1\r\n"));
    QCOMPARE(c.registros, 2);
    QCOMPARE(c.faltas.sin_fin, 5);
    QVERIFY(c.falta.startsWith("5 bytes detrás del último fin de línea, el aparato no dio"));
}

// A journal that a download could make nothing of.
void TestRescate::krt800_rescata_los_otros_fines_de_linea()
{
    for (const QByteArray fin : {"\r", "\n"}) {
        const Resultado_Recepcion r = Rescatar(
            Escribir("JOB 1" + fin + "STN E1,1" + fin + "SS 1,2\x04", "KRT800"), Datos("KRT800"));
        QVERIFY(r.Completa());
        QCOMPARE(base->Columna("SELECT Datos FROM Registros WHERE ID = " + r.sesiones.first()),
                 (QStringList{"JOB 1", "STN E1,1", "SS 1,2"}));
    }
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
        const QString f = Escribir(bytes, "NV400");
        const Resultado_Recepcion r = Rescatar(f, Datos("NV400"));
        QVERIFY(r.guardada && !r.error && r.faltas.sin_acabar);
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
    const Resultado_Recepcion r = Rescatar(Escribir(bytes + "Z,&,\r\n", "NV400"), Datos("NV400"));
    QVERIFY(r.Completa());
    QCOMPARE(r.sesiones, (QStringList{"1", "2", "3"}));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestRescate::rescatar_guarda_y_aparta_el_diario()
{
    const QByteArray bytes = Bajo_Tramas("_+P1_A0001_+P2_A0002_A00");
    const QString f = Escribir(bytes);
    const Resultado_Recepcion r = Rescatar(f, Datos());
    QCOMPARE(r.sesiones, QStringList{"1"});
    QVERIFY(r.guardada && !r.error);
    QVERIFY(r.faltas.sin_acabar);
    QVERIFY(!QFile::exists(f));
    QVERIFY(Rescates().isEmpty());
    QCOMPARE(Ficheros::Leer(f + ".rescatada"), bytes);
    QCOMPARE(base->Columna("SELECT Datos FROM Registros ORDER BY Secuencia"),
             (QStringList{"A0001", "A0002", "A00"}));
    QCOMPARE(Base_Datos->OpenRecordset("Sesiones").Texto("NFichero"), QString("Rescatada"));
    // Another of the same name is set aside beside it.
    Rescatar(Escribir(bytes), Datos());
    QCOMPARE(En_Log().size(), 2);
}

void TestRescate::lo_apartado_se_barre_a_los_treinta_dias()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    Rescatar(f, Datos());
    QFile apartada(f + ".rescatada");
    const auto envejecer = [&](int dias) {
        QVERIFY(apartada.open(QIODevice::ReadWrite));
        apartada.setFileTime(Reloj_Actual().Ahora().addDays(-dias).addSecs(60),
                             QFileDevice::FileModificationTime);
        apartada.close();
    };
    QVERIFY(QFileInfo(apartada).lastModified().secsTo(QDateTime::currentDateTime()) < 60);
    envejecer(30);
    Rescates();
    QVERIFY(apartada.exists());
    envejecer(31);
    Rescates();
    QVERIFY(!apartada.exists());
}

void TestRescate::fuera_de_log_solo_se_lee()
{
    const QString f = En_Instalacion("recepcion_20260307_090501_KRT300_0.dia");
    const QByteArray bytes = Bajo_Tramas("_+P1_A0001_A0002");
    Ficheros::Escribir(f, bytes);
    QVERIFY(Rescatar(f, Datos()).guardada);
    QCOMPARE(Ficheros::Leer(f), bytes);
    QVERIFY(!QFile::exists(f + ".rescatada"));
}

void TestRescate::otra_familia_se_rechaza()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    for (const bool forzar : {false, true})
        QCOMPARE(Numero_De_Error([&] { Rescatar(f, Datos("KRT800"), forzar); }), 5);
    QVERIFY(QFile::exists(f));
    QVERIFY(Base_Datos->OpenRecordset("Sesiones").Es_EOF());
}

void TestRescate::otra_operacion_hay_que_forzarla()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    QCOMPARE(Numero_De_Error([&] { Rescatar(f, Datos("KRT300", 1)); }), 5);
    QVERIFY(QFile::exists(f));
    const Resultado_Recepcion r = Rescatar(f, Datos("KRT300", 1), true);
    QVERIFY(r.guardada);
    QCOMPARE(r.faltas.desconocidas, 2);
    interfaz->avisos.clear();
}

void TestRescate::el_que_esta_en_curso_se_rechaza()
{
    Diario_Recepcion diario;
    diario.Empezar("KRT300", 0, {QDate(2026, 3, 7), QTime(9, 5, 1)});
    for (const char c : Bajo_Tramas("_+P1_A0001"))
        diario.Anotar_Byte(c);
    QVERIFY(diario.Entregar());
    QCOMPARE(Rescates().size(), 1);
    QVERIFY(Rescates()[0].en_curso);
    const QString f = Rescates()[0].fichero;
    QCOMPARE(Numero_De_Error([&] { Rescatar(f, Datos()); }), 70);
    QCOMPARE(Numero_De_Error([&] { Quitar_Diario(f); }), 70);
    QVERIFY(QFile::exists(f));
    diario.Terminar(false);
    QVERIFY(!Rescates()[0].en_curso);
    QVERIFY(Rescatar(f, Datos()).guardada);
}

void TestRescate::lo_ya_rescatado_hay_que_forzarlo()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    Rescatar(f, Datos());
    QCOMPARE(Numero_De_Error([&] { Rescatar(f + ".rescatada", Datos()); }), 5);
    QVERIFY(Rescatar(f + ".rescatada", Datos(), true).guardada);
    QVERIFY(QFile::exists(f + ".rescatada"));
}

// A program killed in the middle of its storing left two of the rows.
void TestRescate::un_torso_se_ofrece_sustituir()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002_A0003"));
    const QDateTime despues(QDate(2026, 3, 7), QTime(9, 9));
    base->Fila("Sesiones", {{"ID", 4}, {"Fecha", despues}, {"OPE", 0}, {"Maquina", "KRT300"}});
    base->Fila("Registros", {{"ID", 4}, {"Secuencia", 1}, {"Punto", "P1"}, {"Datos", "A0001"}});
    base->Fila("Registros", {{"ID", 4}, {"Secuencia", 2}, {"Punto", "P1"}, {"Datos", "A0002"}});
    interfaz->respuestas = {true};
    const Resultado_Recepcion r = Rescatar(f, Datos());
    QCOMPARE(r.sesiones, QStringList{"5"});
    QCOMPARE(
        interfaz->Textos(),
        QStringList{"La sesión 4 quedó a medias de esta misma recepción (2 registros), ¿ Desea "
                    "eliminarla ?"});
    QCOMPARE(base->Columna("SELECT ID FROM Sesiones"), QStringList{"5"});
    QCOMPARE(base->Columna("SELECT DISTINCT ID FROM Registros"), QStringList{"5"});
}

void TestRescate::lo_que_no_es_su_torso_no_se_toca()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    const QDateTime antes(QDate(2026, 3, 7), QTime(9, 0)), despues(QDate(2026, 3, 7), QTime(9, 9));
    base->Fila("Sesiones", {{"ID", 1}, {"Fecha", antes}, {"OPE", 0}, {"Maquina", "KRT300"}});
    base->Fila("Sesiones", {{"ID", 2}, {"Fecha", despues}, {"OPE", 1}, {"Maquina", "KRT300"}});
    base->Fila("Sesiones", {{"ID", 3}, {"Fecha", despues}, {"OPE", 0}, {"Maquina", "PX7"}});
    base->Fila("Sesiones", {{"ID", 4}, {"Fecha", despues}, {"OPE", 0}, {"Maquina", "KRT300"}});
    base->Fila("Registros", {{"ID", 4}, {"Secuencia", 1}, {"Punto", "P1"}, {"Datos", "A9999"}});
    base->Fila("Sesiones",
               {{"ID", 5}, {"Fecha", despues}, {"OPE", 0}, {"Maquina", "KRT300"}, {"NPuntos", 1}});
    Rescatar(f, Datos());
    QVERIFY(interfaz->avisos.isEmpty());
    QCOMPARE(base->Columna("SELECT ID FROM Sesiones").size(), 6);
}

void TestRescate::si_no_se_puede_guardar_el_diario_sigue()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    base->Fila("Sesiones", {{"ID", 32767}, {"OPE", 0}, {"Maquina", "PX7"}});
    const Resultado_Recepcion r = Rescatar(f, Datos());
    QVERIFY(!r.guardada);
    QCOMPARE(r.error->numero, 6);
    QVERIFY(QFile::exists(f));
}

void TestRescate::quitar_borra_solo_lo_parado()
{
    const QString f = Escribir(Bajo_Tramas("_+P1_A0001_A0002"));
    Quitar_Diario(f);
    QVERIFY(!QFile::exists(f));
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
