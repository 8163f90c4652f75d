#include "core/Basico.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/krt800/Perfiles_KRT800.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSet>

class TestPerfiles_KRT800 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { p = std::make_unique<Base_De_Prueba>(); }
    void cleanup() { p.reset(); }
    void el_orden_es_el_de_las_consultas();
    void las_otras_sesiones_no_se_tocan();
    void un_apostrofo_al_principio_lo_deja_todo();
    void se_puede_parar_y_queda_como_estaba();
    void cien_mil_lineas_cuestan_lo_que_guardarlas();

private:
    void Guardar(qint64 id, const QStringList& lineas) const;
    QStringList Guardadas(qint64 id) const;
    static QStringList Por_Consultas(const QStringList& lineas);
    std::unique_ptr<Base_De_Prueba> p;
};

void TestPerfiles_KRT800::Guardar(qint64 id, const QStringList& lineas) const
{
    Transaccion t(*Base_Datos);
    Insercion i = Base_Datos->Preparar_Insercion("Registros",
                                                 {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    qint64 secuencia = 0;
    for (const QString& linea : lineas)
        i.Anadir({id, ++secuencia, "P", linea, secuencia < 3 ? "uno" : "dos"});
    t.Confirmar();
}

QStringList TestPerfiles_KRT800::Guardadas(qint64 id) const
{
    QStringList filas;
    for (Recorrido r = Base_Datos->Recorrer(
             "SELECT Secuencia, Datos, Punto, DatosG FROM Registros WHERE ID = ?", {id});
         r.Siguiente();)
        filas << r.Texto(0) + '/' + r.Texto(1) + '/' + r.Texto(2) + '/' + r.Texto(3);
    return filas;
}

// A query a profile, in the words that fix the order: what one pass has to come to as well.
QStringList TestPerfiles_KRT800::Por_Consultas(const QStringList& lineas)
{
    QStringList filas;
    QSet<qint64> copiadas;
    for (qsizetype i = 0; i < lineas.size(); ++i) {
        if (copiadas.contains(i + 1)) continue;
        const qint64 p = Basico::InStr(1, lineas[i], u",");
        const qint64 q = Basico::InStr(p + 1, lineas[i], u",");
        Recorrido r = Base_Datos->Recorrer(
            QStringLiteral("SELECT * FROM REGISTROS WHERE ID = 1 AND Mid(Datos, 1, %1) = "
                           "Mid('%2', 1,%1) ORDER BY val(Mid(Datos, %3,%4)) ASC")
                .arg(QString::number(p), lineas[i], QString::number(p + 1),
                     QString::number(qMax<qint64>(q - 1, 0))));
        while (r.Siguiente())
            if (!copiadas.contains(r.Entero(1))) {
                copiadas.insert(r.Entero(1));
                filas << r.Texto(1) + '/' + r.Texto(3) + '/' + r.Texto(2) + '/' + r.Texto(4);
            }
    }
    return filas;
}

void TestPerfiles_KRT800::el_orden_es_el_de_las_consultas()
{
    QRandomGenerator azar(800);
    const QStringList perfiles{"100", "10", "1", "120.5", "", "á", "100%1"};
    const QStringList distancias{"5", "-5",  "0",   "12.5",  "125", "1e2",   " 3",
                                 "",  "abc", "007", "12345", "-.5", "1 000", "5"};
    for (int vez = 0; vez < 60; ++vez) {
        QStringList lineas;
        for (int n = azar.bounded(1, 30); n > 0; --n) {
            QString linea = perfiles[azar.bounded(int(perfiles.size()))];
            const int campos = azar.bounded(8);
            if (campos > 0) linea += ',' + distancias[azar.bounded(int(distancias.size()))];
            if (campos > 2) linea += ",a" + QString::number(n);
            lineas << linea;
        }
        Base_Datos->Execute("DELETE FROM Registros");
        Guardar(1, lineas);
        const QStringList esperadas = Por_Consultas(lineas);
        QVERIFY(Ordenar_Perfiles(*Base_Datos, 1));
        QCOMPARE(Guardadas(1), esperadas);
        QCOMPARE(esperadas.size(), lineas.size());
        // Sorted already, it stays so.
        QVERIFY(Ordenar_Perfiles(*Base_Datos, 1));
        QCOMPARE(Guardadas(1).size(), lineas.size());
    }
}

void TestPerfiles_KRT800::las_otras_sesiones_no_se_tocan()
{
    Guardar(1, {"2,5,a", "1,1,b", "2,4,c"});
    Guardar(2, {"2,5,a", "1,1,b", "2,4,c"});
    Guardar(0, {"suelta"});
    QVERIFY(Ordenar_Perfiles(*Base_Datos, 1));
    QCOMPARE(Guardadas(1), (QStringList{"3/2,4,c/P/dos", "1/2,5,a/P/uno", "2/1,1,b/P/uno"}));
    QCOMPARE(Guardadas(2), (QStringList{"1/2,5,a/P/uno", "2/1,1,b/P/uno", "3/2,4,c/P/dos"}));
    QCOMPARE(Guardadas(0), QStringList{"1/suelta/P/uno"});
    QVERIFY(Ordenar_Perfiles(*Base_Datos, 99));
}

void TestPerfiles_KRT800::un_apostrofo_al_principio_lo_deja_todo()
{
    const QStringList lineas{"2,5,a", "2,4,b", "1,1,o'c"};
    Guardar(1, lineas);
    const QStringList antes = Guardadas(1);
    QVERIFY_ERROR(3075, Ordenar_Perfiles(*Base_Datos, 1));
    QCOMPARE(Guardadas(1), antes);
}

void TestPerfiles_KRT800::se_puede_parar_y_queda_como_estaba()
{
    QStringList lineas;
    for (int i = 0; i < 3000; ++i)
        lineas << QStringLiteral("%1,%2,x").arg(i % 3).arg(-i);
    Guardar(1, lineas);
    const QStringList antes = Guardadas(1);
    QList<qint64> avances;
    QVERIFY(!Ordenar_Perfiles(*Base_Datos, 1, [&](qint64 hechas, qint64 todas) {
        avances << hechas << todas;
        return hechas < 2000;
    }));
    QCOMPARE(avances, (QList<qint64>{1000, 3000, 2000, 3000}));
    QCOMPARE(Guardadas(1), antes);
}

void TestPerfiles_KRT800::cien_mil_lineas_cuestan_lo_que_guardarlas()
{
    constexpr int LINEAS = 100000, POR_PERFIL = 20;
    QStringList lineas;
    for (int i = 0; i < LINEAS; ++i)
        lineas << QStringLiteral("%1,%2,5.25,ARBOL")
                      .arg(i / POR_PERFIL)
                      .arg(POR_PERFIL - i % POR_PERFIL);
    QElapsedTimer reloj;
    reloj.start();
    Guardar(1, lineas);
    const qint64 guardar = reloj.restart();
    QVERIFY(Ordenar_Perfiles(*Base_Datos, 1));
    const qint64 ordenar = reloj.elapsed();
    qInfo("store %lld ms, sort %lld ms", static_cast<long long>(guardar),
          static_cast<long long>(ordenar));
    QVERIFY2(ordenar < 5 * guardar + 500, "sorting is no pass through the rows");
    QVERIFY(Guardadas(1)[0].startsWith("20/0,1,"));
}

PRUEBA(TestPerfiles_KRT800)
#include "TestPerfiles_KRT800.moc"
