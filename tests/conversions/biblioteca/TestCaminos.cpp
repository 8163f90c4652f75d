#include "conversions/biblioteca/Caminos.h"
#include "core/Ansi.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Muestras.h"

#include <set>

namespace {

QStringList Argumentos(const Muestra& m)
{
    return QString::fromLatin1(Buscar_Funcion(m.funcion)->argumentos).split(u' ');
}

QString Fuente(const Muestra& m)
{
    return m.argumentos.value(Argumentos(m).indexOf(QStringLiteral("ENTRADA")));
}

QString Extension(const QString& nombre)
{
    return nombre.mid(nombre.lastIndexOf(u'.') + 1);
}

/// What a function converts, by the rows that name it; nothing for one that is no row's.
std::optional<Clase_Conversion> Clase_De_Funcion(const QString& nombre)
{
    for (const Camino& c : Caminos())
        if (c.funcion && nombre == "MyDll_" + QString::fromLatin1(c.funcion)) return c.clase;
    return {};
}

QString Describir(const Camino& c)
{
    return QStringLiteral("%1 %2 a %3 por %4")
        .arg(QString::fromLatin1(Clase_De(c.clase).palabra), QString::fromUtf16(c.extension),
             QString::fromLatin1(c.salidas),
             QString::fromLatin1(c.funcion ? c.funcion : "sí misma"));
}

// Rows of a delivered table, the heading left out; a cell with commas stands in quotes.
QList<QStringList> Filas_Entregadas(const QString& tabla)
{
    static const QRegularExpression celda(QStringLiteral("(?:^|,)(?:\"([^\"]*)\"|([^,]*))"));
    QList<QStringList> filas;
    const QString ruta = QStringLiteral(RAIZ_FUENTES "/data/DAT/tablas/") + tabla + ".csv";
    const QStringList lineas =
        QString::fromUtf8(Ficheros::Leer(ruta)).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    for (const QString& linea : lineas.mid(1)) {
        QStringList celdas;
        for (auto i = celda.globalMatch(linea); i.hasNext();) {
            const auto m = i.next();
            celdas << m.captured(1) + m.captured(2);
        }
        filas << celdas;
    }
    return filas;
}

} // namespace

/// The rows of the ways hold together, and each has its sample.
class TestCaminos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_clases_estan_en_su_orden();
    void las_funciones_existen_y_toman_lo_suyo();
    void cada_camino_tiene_una_muestra_data();
    void cada_camino_tiene_una_muestra();
    void cada_funcion_que_convierte_es_un_camino();
    void ninguno_tapa_a_otro();
    void se_busca_sin_mirar_mayusculas();
    void los_filtros_ofrecen_lo_que_hay();
    void las_tablas_ofrecen_enviar_lo_que_hay();

private:
    Banco_Conversion banco;
};

void TestCaminos::las_clases_estan_en_su_orden()
{
    QCOMPARE(Clases_De_Conversion().size(), size_t(4));
    std::set<QByteArray> palabras;
    for (size_t i = 0; i < Clases_De_Conversion().size(); ++i) {
        QCOMPARE(size_t(Clases_De_Conversion()[i].clase), i);
        QCOMPARE(&Clase_De(Clase_Conversion(i)), &Clases_De_Conversion()[i]);
        palabras.insert(Clases_De_Conversion()[i].palabra);
    }
    QCOMPARE(palabras.size(), size_t(4));
}

void TestCaminos::las_funciones_existen_y_toman_lo_suyo()
{
    for (const Camino& c : Caminos()) {
        QVERIFY2(bool(c.funcion) != bool(c.propio), qPrintable(Describir(c)));
        QVERIFY2(c.lugares != 0 && *c.salidas, qPrintable(Describir(c)));
        QVERIFY(QString::fromUtf16(c.extension) == QString::fromUtf16(c.extension).toLower());
        if (!c.funcion) continue;
        const Funcion* const f = Buscar_Funcion(QString::fromLatin1(c.funcion));
        QVERIFY2(f, c.funcion);
        using Forma = Parte_LandXML::Forma;
        const qsizetype delante = !c.parte ? 0 : c.parte->forma == Forma::Dos_Nombres ? 2 : 1;
        QVERIFY2(Argumentos_De(*f).minimo == delante + 2, c.funcion);
        QCOMPARE(QLatin1String(f->argumentos).startsWith(QLatin1String("INDICE")),
                 c.parte && c.parte->forma == Forma::Indice);
        if (c.parte) QVERIFY2(Buscar_Funcion(QString::fromLatin1(c.parte->lista)), c.parte->lista);
    }
}

void TestCaminos::cada_camino_tiene_una_muestra_data()
{
    QTest::addColumn<int>("fila");
    for (int i = 0; i < int(Caminos().size()); ++i)
        QTest::addRow("%d %s", i, qPrintable(Describir(Caminos()[size_t(i)]))) << i;
}

/// A delivered source of its class and extension goes the way, into each of its targets.
void TestCaminos::cada_camino_tiene_una_muestra()
{
    QFETCH(int, fila);
    const Camino& c = Caminos()[size_t(fila)];
    const QString extension = QString::fromUtf16(c.extension);
    int halladas = 0;
    for (const Muestra& m : Muestras()) {
        const bool la_misma = c.funcion && m.funcion == "MyDll_" + QString::fromLatin1(c.funcion);
        const bool sirve =
            extension.isEmpty() || c.parte
                ? la_misma
                : Clase_De_Funcion(m.funcion) == c.clase && Argumentos(m).first() == u"ENTRADA";
        if (!sirve || m.resultado != 1 || m.lista) continue;
        if (!extension.isEmpty() && Extension(Fuente(m)) != extension) continue;
        ++halladas;
        for (const QString& destino : QString::fromLatin1(c.salidas).split(u' ')) {
            const QString fuente = Banco_Conversion::Muestra(Fuente(m));
            if (c.propio) {
                QVERIFY(c.propio(fuente, banco.Ruta("salida." + destino)));
                QVERIFY(!Ficheros::Leer(banco.Ruta("salida." + destino)).isEmpty());
                continue;
            }
            QStringList argumentos = m.argumentos;
            argumentos[argumentos.indexOf(Fuente(m))] = fuente;
            const auto r =
                banco.Ejecutar(QString::fromLatin1(c.funcion), argumentos + QStringList{"<salida>"},
                               "salida." + destino);
            QVERIFY2(r.numero == 1, qPrintable(Fuente(m) + u'\n' + r.informe.Lineas().join(u'\n')));
            QVERIFY(!r.salida->isEmpty());
        }
    }
    QVERIFY2(halladas > 0, "falta su muestra en tests/datos/conversions");
}

/// What turns a file into another stands in the rows; the others list, or are asked by a dialog of
/// their own.
void TestCaminos::cada_funcion_que_convierte_es_un_camino()
{
    const QStringList DE_SU_DIALOGO = {"anivel2ing", "procesaCabecera", "procesaRobotizada"};
    for (const Funcion& f : Tabla_Funciones()) {
        const QString nombre = QString::fromLatin1(f.nombre);
        QCOMPARE(Clase_De_Funcion("MyDll_" + nombre).has_value(),
                 !nombre.startsWith("selecciona") && !DE_SU_DIALOGO.contains(nombre));
    }
}

/// At one place a class and an extension lead to one function for each form.
void TestCaminos::ninguno_tapa_a_otro()
{
    std::set<std::tuple<unsigned, int, QString, QString>> vistos;
    for (const Camino& c : Caminos())
        for (const unsigned lugar : {EN_LANDXML, EN_ENVIO, EN_CONSOLA})
            if (c.lugares & lugar)
                QVERIFY2(vistos
                             .insert({lugar, int(c.clase), QString::fromUtf16(c.extension),
                                      QString::fromLatin1(c.salidas)})
                             .second,
                         qPrintable(Describir(c)));
}

void TestCaminos::se_busca_sin_mirar_mayusculas()
{
    const Camino* const eje = Buscar_Camino(EN_ENVIO, Clase_Conversion::Alineaciones, u"EJE");
    QVERIFY(eje);
    QCOMPARE(QByteArray(eje->funcion), QByteArray("aqtr2krt"));
    QCOMPARE(Buscar_Camino(EN_ENVIO, Clase_Conversion::Alineaciones, u"eje"), eje);
    QVERIFY(!Buscar_Camino(EN_ENVIO, Clase_Conversion::Rasantes, u"eje"));
    QVERIFY(!Buscar_Camino(EN_ENVIO, Clase_Conversion::Alineaciones, u""));
    QVERIFY(!Buscar_Camino(EN_LANDXML, Clase_Conversion::Alineaciones, u"ali"));
    QVERIFY(Escribe(*eje, "hal") && Escribe(*eje, "ssh"));
    QVERIFY(!Escribe(*eje, "ss") && !Escribe(*eje, "") && !Escribe(*eje, "ssh hal"));
}

/// What a LandXML dialog offers has its row, save the two cross sections that never had.
void TestCaminos::los_filtros_ofrecen_lo_que_hay()
{
    for (const Fila_Clase& clase : Clases_De_Conversion()) {
        const QStringList trozos =
            QString::fromUtf16(clase.filtro_landxml).split(u'|', Qt::SkipEmptyParts);
        for (qsizetype i = 1; i < trozos.size(); i += 2) {
            const bool sin_fila = clase.clase == Clase_Conversion::Transversales &&
                                  QStringList{"*.ter", "*.mxr"}.contains(trozos[i]);
            QCOMPARE(Buscar_Camino(EN_LANDXML, clase.clase, trozos[i].sliced(2)) == nullptr,
                     sin_fila);
        }
    }
}

/// The delivered tables offer for sending exactly what has a row.
void TestCaminos::las_tablas_ofrecen_enviar_lo_que_hay()
{
    QHash<QString, QString> patrones;
    for (const QStringList& f : Filas_Entregadas("CONVERT"))
        patrones[f[0]] = f[2];
    QHash<QString, QStringList> ofrecidos;
    for (const QStringList& f : Filas_Entregadas("KRT2"))
        for (const QString& clave : f.last().split(u','))
            if (f[0] == u"KRT800" && f[2] == u"C") ofrecidos[f[1]] << patrones.value(clave);
    for (const Fila_Clase& clase : Clases_De_Conversion()) {
        QStringList con_fila;
        for (const Camino& c : Caminos())
            if ((c.lugares & EN_ENVIO) && c.clase == clase.clase)
                con_fila << "*." + QString::fromUtf16(c.extension);
        if (con_fila.isEmpty()) continue;
        QStringList lista = ofrecidos.value(QString::number(int(clase.operacion)));
        lista.sort();
        con_fila.sort();
        QCOMPARE(lista, con_fila);
    }
}

PRUEBA(TestCaminos)
#include "TestCaminos.moc"
