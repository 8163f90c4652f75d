#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "simulator/Aparato_Nivel.h"
#include "simulator/Aparato_Texto.h"
#include "simulator/Aparato_Tramas.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/enlace/Rescate.h"

// Every fault of the simulated instruments, by every family and size of write: what came stands in
// the sessions or in the journal, and what is said of it is true.
class TestMatriz_Recepcion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void nada_se_pierde_ni_se_dice_mal_data();
    void nada_se_pierde_ni_se_dice_mal();

private:
    std::unique_ptr<simulador::Aparato> Aparato(const QString& clave, const QString& fallo,
                                                bool seguir);
    void Hablar(qsizetype trozo, qsizetype corte);
    QStringList Filas(const QStringList& sesiones) const;
    static QStringList Libro(const QString& clave);
    static QStringList Aceptados(const QString& clave, const QByteArray& bytes);

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Descarga> descarga;
    std::unique_ptr<simulador::Aparato> aparato;
    Puerto_Memoria* puerto = nullptr;
    QByteArray cable, entregado; // on its way to the PC; what has come in
};

void TestMatriz_Recepcion::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Puerto = "COM1";
    for (const QString clave : {"KRT300", "PX7"})
        for (const QString id : {"h", "v", "d"})
            base->Fila("Identificadores",
                       {{"Nombre", clave}, {"OPE", 0}, {"ID", id}, {"NomID", ""}, {"tipo", "P"}});
    cable.clear();
    entregado.clear();
}

void TestMatriz_Recepcion::cleanup()
{
    descarga.reset();
    aparato.reset();
    interfaz.reset();
    base.reset();
}

// Twenty measurements, no two alike.
QStringList TestMatriz_Recepcion::Libro(const QString& clave)
{
    QStringList libro;
    for (int i = 1; i <= 20; ++i) {
        const int n = 1000003 * i % 9999999;
        if (clave == u"KRT800")
            libro << QStringLiteral("SS %1,1.300,COD%2").arg(i).arg(n);
        else if (clave == u"NV400")
            libro << QStringLiteral("g,03,%1,%2,P%3,").arg(n).arg(n / 7).arg(i);
        else
            libro << QStringLiteral("+%1").arg(i)
                  << QStringLiteral("h+%1").arg(n, 7, 10, QChar(u'0'))
                  << QStringLiteral("d+%1").arg(n / 3, 8, 10, QChar(u'0'));
    }
    return libro;
}

// What the instrument was told, or may take, to be received, worked out by the other side's sums.
QStringList TestMatriz_Recepcion::Aceptados(const QString& clave, const QByteArray& bytes)
{
    QByteArray datos;
    if (clave == u"KRT800")
        return QString::fromLatin1(bytes).split("\r\n").mid(0, bytes.count("\r\n"));
    if (clave == u"NV400") {
        QStringList lineas;
        for (const QByteArray& l : bytes.split('\n'))
            if (l.size() > 3 && l.endsWith(",\r") &&
                simulador::Suma_De_Linea(l.chopped(3)) == l[l.size() - 3] && l[0] == 'g')
                lineas << QString::fromLatin1(l.chopped(3));
        return lineas;
    }
    for (qsizetype i = bytes.indexOf('\x02'); i >= 0; i = bytes.indexOf('\x02', i)) {
        const qsizetype fin = bytes.indexOf('\x03', i), eot = bytes.indexOf('\x04', i);
        if (fin < 0 || (eot >= 0 && eot < fin)) break;
        const QByteArray trama = bytes.mid(i + 1, fin - i - 1);
        if (simulador::Suma_De_Trama(trama.chopped(3)) == trama.last(3)) datos += trama.chopped(4);
        i = fin;
    }
    QStringList registros;
    for (const QByteArray& r : datos.split('_').mid(1))
        if (!r.trimmed().isEmpty() && r[0] != '+') registros << QString::fromLatin1(r);
    return registros;
}

std::unique_ptr<simulador::Aparato> TestMatriz_Recepcion::Aparato(const QString& clave,
                                                                  const QString& fallo, bool seguir)
{
    simulador::Fallos fallos;
    for (const QString& uno : fallo.split(u' ', Qt::SkipEmptyParts))
        if (!simulador::Leer_Fallo(uno, fallos).isEmpty()) return nullptr;
    QList<QByteArray> libreta;
    for (const QString& r : Libro(clave))
        libreta << r.toLatin1();
    const auto salida = [this](const QByteArray& bytes) { cable += bytes; };
    const auto nota = [](const QString&) {};
    if (clave == u"KRT800")
        return std::make_unique<simulador::Aparato_Texto>(
            simulador::Aparato_Texto::Ajustes{libreta, 0, fallos}, salida, nota);
    if (clave == u"NV400")
        return std::make_unique<simulador::Aparato_Nivel>(
            simulador::Aparato_Nivel::Ajustes{libreta, !seguir, fallos}, salida, nota);
    return std::make_unique<simulador::Aparato_Tramas>(
        simulador::Aparato_Tramas::Ajustes{libreta, 40, !seguir, false, fallos}, salida, nota);
}

// Moves bytes both ways until nothing moves any more, `trozo` at a time towards the PC (0: all),
// and no more than `corte` of them in all (below 0: no limit).
void TestMatriz_Recepcion::Hablar(qsizetype trozo, qsizetype corte)
{
    aparato->Abrir();
    for (bool movido = true; movido;) {
        const QByteArray del_pc = puerto->Tomar();
        for (const char c : del_pc)
            aparato->Recibir(c);
        aparato->Pasar(10);
        qsizetype n = trozo > 0 ? qMin(trozo, cable.size()) : cable.size();
        if (corte >= 0) n = qMin(n, corte - entregado.size());
        const QByteArray llega = cable.left(n);
        cable.remove(0, n);
        if (puerto->Abierto()) entregado += llega;
        if (!llega.isEmpty()) puerto->Llegan(llega);
        movido = !llega.isEmpty() || !del_pc.isEmpty();
    }
}

QStringList TestMatriz_Recepcion::Filas(const QStringList& sesiones) const
{
    QStringList filas;
    for (const QString& s : sesiones)
        filas +=
            base->Columna("SELECT Datos FROM Registros WHERE ID = " + s + " ORDER BY Secuencia");
    return filas;
}

void TestMatriz_Recepcion::nada_se_pierde_ni_se_dice_mal_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("fallo");
    QTest::addColumn<bool>("seguir");
    QTest::addColumn<int>("corte");
    QTest::addColumn<int>("trozo");
    QTest::addColumn<QString>("falta"); // beginning of what the label says; empty: complete
    struct Caso {
        QString fallo;
        bool seguir;
        int corte;
        QString tramas, texto, nivel; // by series: what is missing
    };
    const QString sin_acabar = "*"; // nothing ends the transfer but the user
    const QList<Caso> casos = {
        {"", false, -1, "", "", ""},
        {"suma:2", false, -1, "", "", ""},
        {"suma:1x3", false, -1, "", "", ""},
        {"suma:3 suma:4", true, -1, "2 tramas rechazadas y no repetidas", "",
         "2 líneas rechazadas y no repetidas"},
        {"suma:1", true, -1, "1 trama rechazada y no repetida", "",
         "1 línea rechazada y no repetida"},
        {"suma:4", true, -1, "1 trama rechazada y no repetida", "",
         "1 línea rechazada y no repetida"},
        {"ruido:0", false, -1, "", "", ""},
        {"ruido:3", false, -1, "", "", ""},
        {"fin:3", false, -1, "", "", ""},
        {"fin:0", false, -1, "", "", ""},
        {"eot:1", false, -1, "1 trama sin terminar", "10 bytes detrás del último fin de línea",
         sin_acabar},
        {"eot:3", false, -1, "1 trama sin terminar", "10 bytes detrás del último fin de línea",
         sin_acabar},
        {"silencio:0", false, -1, sin_acabar, sin_acabar, sin_acabar},
        {"silencio:2", false, -1, sin_acabar, sin_acabar, sin_acabar},
        {"", false, 1, sin_acabar, sin_acabar, sin_acabar},
        {"", false, 100, sin_acabar, sin_acabar, sin_acabar},
        {"", false, 333, sin_acabar, sin_acabar, sin_acabar},
        {"suma:2", false, 150, sin_acabar, sin_acabar, sin_acabar},
    };
    for (const QString& clave : Claves_Familias())
        for (const Caso& c : casos)
            for (const int trozo : {0, 1, 7, 64}) {
                const Serie serie = Familia_De(clave).serie;
                QTest::addRow("%s %s%s corte %d, de %d", qPrintable(clave), qPrintable(c.fallo),
                              c.seguir ? " sigue" : "", c.corte, trozo)
                    << clave << c.fallo << c.seguir << c.corte << trozo
                    << (serie == Serie::A   ? c.tramas
                        : serie == Serie::B ? c.texto
                                            : c.nivel);
            }
}

void TestMatriz_Recepcion::nada_se_pierde_ni_se_dice_mal()
{
    QFETCH(QString, clave);
    QFETCH(QString, fallo);
    QFETCH(bool, seguir);
    QFETCH(int, corte);
    QFETCH(int, trozo);
    QFETCH(QString, falta);
    Clave_Estacion = clave;
    Nombre_Estacion = "Modelo";
    auto p = std::make_unique<Puerto_Memoria>();
    puerto = p.get();
    descarga = std::make_unique<Descarga>(std::move(p));
    QVERIFY(descarga->Abrir_Puerto());
    descarga->Preparar(0, "Obra");
    aparato = Aparato(clave, fallo, seguir);
    QVERIFY(aparato != nullptr);
    descarga->BtnIniciar();
    Hablar(trozo, corte);
    QCOMPARE(descarga->En_Marcha(), falta == u"*");
    descarga->Abandonar();

    const Resultado_Recepcion& r = descarga->Resultado();
    const QString diario = descarga->Conservado();
    const bool algo_vino = entregado.size() > entregado.count('\x04');
    QCOMPARE(diario.isEmpty(), r.Completa() || !algo_vino);
    QStringList filas = Filas(r.sesiones), aceptados = Aceptados(clave, entregado);
    // The padding of the last block and the level's sum stay in their rows.
    const auto llanas = [&](QStringList lineas) {
        for (QString& l : lineas) {
            if (clave == u"NV400" && l.size() > 2 && l.endsWith(u',') && l.count(u',') > 5)
                l.chop(2);
            l = Basico::RTrim(l);
        }
        return lineas;
    };
    if (falta != u"*") QCOMPARE(llanas(filas), llanas(aceptados));
    if (!diario.isEmpty()) QCOMPARE(Ficheros::Leer(diario), entregado);
    if (falta.isEmpty()) {
        QVERIFY(diario.isEmpty());
        return;
    }
    if (falta != u"*") {
        QVERIFY2(descarga->Etiqueta().startsWith(falta), qPrintable(descarga->Etiqueta()));
        QVERIFY(descarga->Etiqueta().endsWith("; lo recibido se conserva"));
    }
    if (diario.isEmpty() || aceptados.isEmpty()) return;
    const Resultado_Recepcion rescatada =
        Rescatar(diario, {QString(), "Rescatada", 0, 0, clave, "Modelo"});
    QVERIFY(rescatada.guardada && !rescatada.error);
    QStringList con_cola = llanas(Filas(rescatada.sesiones));
    // A text instrument that ended without a line's end has a last line all the same.
    QCOMPARE(con_cola.mid(0, aceptados.size()), llanas(aceptados));
    QVERIFY(QFile::exists(diario + ".rescatada"));
    interfaz->avisos.clear();
}

PRUEBA(TestMatriz_Recepcion)
#include "TestMatriz_Recepcion.moc"
