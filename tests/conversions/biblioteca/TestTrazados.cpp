#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"
#include "tests/conversions/Camino_Azar.h"

namespace {

using Camino_Azar::Camino;
using Camino_Azar::Elemento;
using Camino_Azar::Punto;

/// What a stationed point may be off, metres.
constexpr double TOLERANCIA = 0.001;

/// A source layout that roads are written in.
struct Origen {
    const char* nombre;
    const char* funcion;
    const char* a_landxml;
    Camino_Azar::Clase clase;
    QByteArray (*escribir)(const Camino&);
};
const Origen ORIGENES[] = {
    {"QSV", "aqtr2krt", "aQSV2LandXML", Camino_Azar::Clase::Con_Puntas, Camino_Azar::Qsv},
    {"ISTRAM", "aistramList2krt", "aistram2LandXML", Camino_Azar::Clase::Con_Puntas,
     Camino_Azar::Istram},
    {"ISPOL", "aispol2krt", "aispol2LandXML", Camino_Azar::Clase::Corriente, Camino_Azar::Ispol},
    {"HTRAZADO", "ahtrazado2krt", "aispol2LandXML", Camino_Azar::Clase::Con_Puntas,
     [](const Camino& c) { return Camino_Azar::Htrazado(c, false); }},
    {"HTRAZADO sexagesimal", "ahtrazado2krt", "aQSV2LandXML", Camino_Azar::Clase::Con_Puntas,
     [](const Camino& c) { return Camino_Azar::Htrazado(c, true); }},
    {"MXROAD doble", "amxroad2krt", "aistramList2LandXML", Camino_Azar::Clase::Corriente,
     [](const Camino& c) { return Camino_Azar::Mxroad(c, true); }},
};

/// The elements of a ".hal" file, and its end.
Camino Leer_Hal(const QByteArray& bytes)
{
    Camino c;
    for (const QByteArray& linea : bytes.split('\n')) {
        if (linea.isEmpty()) continue;
        const QByteArrayList f = linea.trimmed().split(',');
        const auto n = [&](int i) { return f[i].toDouble(); };
        const auto k = [&](int i) { return n(i) == 0 ? 0 : 1 / n(i); };
        if (n(0) == 9) {
            c.pk_fin = n(1);
            c.fin = {n(2), n(3), n(4) * Camino_Azar::GON};
        } else {
            c.elementos.push_back(
                {" RCK"[int(n(0))], n(1), n(2), n(3), n(4) * Camino_Azar::GON, n(5), k(6), k(7)});
        }
    }
    return c;
}

QByteArray Describir(const char* que, size_t elemento, double s, double error)
{
    return QByteArray(que) + ": elemento " + QByteArray::number(qint64(elemento)) + " a " +
           QByteArray::number(s) + " m, error " + QByteArray::number(error * 1000) + " mm";
}

/// Compares every stationed point of `obtenido` with the road. @return what is off, or nothing
QByteArray Comparar(const Camino& esperado, const Camino& obtenido)
{
    if (esperado.elementos.size() != obtenido.elementos.size())
        return "elementos: " + QByteArray::number(qint64(obtenido.elementos.size()));
    for (size_t i = 0; i < esperado.elementos.size(); ++i) {
        const Elemento& e = esperado.elementos[i];
        const Elemento& o = obtenido.elementos[i];
        if (e.clase != o.clase) return Describir("clase", i, 0, 0);
        if (std::abs(e.pk - o.pk) > TOLERANCIA) return Describir("pk", i, 0, e.pk - o.pk);
        for (int paso = 0; paso <= 4; ++paso) {
            const double s = e.longitud * paso / 4;
            const Punto a = Camino_Azar::En(e, s), b = Camino_Azar::En(o, s);
            const double error = std::hypot(a.x - b.x, a.y - b.y);
            if (!(error <= TOLERANCIA)) return Describir("punto", i, s, error);
        }
    }
    const double error =
        std::hypot(esperado.fin.x - obtenido.fin.x, esperado.fin.y - obtenido.fin.y);
    if (!(error <= TOLERANCIA)) return Describir("fin", 0, 0, error);
    return {};
}

/// Checks a ".ssh" against the ".hal" of the same road: the same elements in the other form.
QByteArray Comparar_Ssh(const QByteArray& ssh, const Camino& hal)
{
    const QByteArrayList lineas = ssh.split('\n');
    if (lineas.size() != qsizetype(hal.elementos.size()) + 3) return "lineas";
    for (size_t i = 0; i < hal.elementos.size(); ++i) {
        const Elemento& e = hal.elementos[i];
        const QByteArrayList f = lineas[qsizetype(i) + 1].trimmed().split(' ');
        const auto igual = [&](int campo, double valor, double margen) {
            return std::abs(f[campo].toDouble() - valor) <= margen;
        };
        const auto radio = [](double k) { return k == 0 ? 0 : 1 / k; };
        const QByteArray id = e.clase == 'R' ? "REC" : e.clase == 'C' ? "CIR" : "CLO";
        bool bien =
            f[0] == id && igual(1, e.azimut / Camino_Azar::GON, 1e-7) && igual(2, e.longitud, 1e-7);
        if (e.clase == 'C') bien = bien && igual(3, radio(e.k1), 1e-6);
        if (e.clase == 'K')
            bien = bien && igual(3, e.A(), 0.02) && igual(4, radio(e.k1), 1e-6) &&
                   igual(5, radio(e.k2), 1e-6);
        if (!bien) return lineas[qsizetype(i) + 1];
    }
    return {};
}

} // namespace

class TestTrazados : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_origen_da_el_mismo_camino_data();
    void cada_origen_da_el_mismo_camino();
    void mxroad_al_milimetro();
    void de_landxml_al_instrumento_data();
    void de_landxml_al_instrumento();
    void las_poligonales_cierran();

private:
    static constexpr quint32 CAMINOS = 15;
    Banco_Conversion banco;
};

void TestTrazados::cada_origen_da_el_mismo_camino_data()
{
    QTest::addColumn<int>("origen");
    for (int i = 0; i < int(std::size(ORIGENES)); ++i)
        QTest::newRow(ORIGENES[i].nombre) << i;
}

/// Straight to the instrument, and by way of LandXML.
void TestTrazados::cada_origen_da_el_mismo_camino()
{
    QFETCH(int, origen);
    const Origen& o = ORIGENES[origen];
    for (quint32 semilla = 1; semilla <= CAMINOS; ++semilla) {
        const Camino camino =
            Camino_Azar::Constructor(semilla * 100 + quint32(origen), o.clase).Hacer(6);
        const QString fuente = banco.Poner("camino.txt", o.escribir(camino));
        const auto hal = banco.Ejecutar(o.funcion, {fuente, "<salida>"}, "camino.hal");
        QVERIFY2(hal.numero == 1, qPrintable(hal.informe.Lineas().join(u'\n')));
        const Camino obtenido = Leer_Hal(*hal.salida);
        const QByteArray error = Comparar(camino, obtenido);
        QVERIFY2(error.isEmpty(),
                 ("camino " + QByteArray::number(semilla) + ", " + error).constData());
        const auto ssh = banco.Ejecutar(o.funcion, {fuente, "<salida>"}, "camino.ssh");
        QCOMPARE(Comparar_Ssh(*ssh.salida, obtenido), QByteArray());

        const auto xml = banco.Ejecutar(o.a_landxml, {fuente, "<salida>"}, "camino.xml");
        QCOMPARE(xml.numero, 1);
        const auto vuelta =
            banco.Ejecutar("alandxml2krt", {"0", banco.Ruta("camino.xml"), "<salida>"}, "v.hal");
        QVERIFY2(vuelta.numero == 1, qPrintable(vuelta.informe.Lineas().join(u'\n')));
        const QByteArray error_xml = Comparar(camino, Leer_Hal(*vuelta.salida));
        QVERIFY2(error_xml.isEmpty(),
                 ("LandXML " + QByteArray::number(semilla) + ", " + error_xml).constData());
    }
}

/// The format of three decimals says no more of a road than its millimetres: its own points are the
/// road then.
void TestTrazados::mxroad_al_milimetro()
{
    for (quint32 semilla = 1; semilla <= CAMINOS; ++semilla) {
        const Camino camino =
            Camino_Azar::Constructor(semilla + 7000, Camino_Azar::Clase::Corriente).Hacer(4);
        const QString fuente = banco.Poner("camino.txt", Camino_Azar::Mxroad(camino, false));
        const auto hal = banco.Ejecutar("amxroad2krt", {fuente, "<salida>"}, "camino.hal");
        QVERIFY2(hal.numero == 1, qPrintable(hal.informe.Lineas().join(u'\n')));
        const Camino obtenido = Leer_Hal(*hal.salida);
        QCOMPARE(obtenido.elementos.size(), camino.elementos.size());
        for (size_t i = 0; i < camino.elementos.size(); ++i) {
            const Elemento& e = camino.elementos[i];
            const Elemento& o = obtenido.elementos[i];
            QVERIFY(std::abs(e.x - o.x) < 0.00051 && std::abs(e.y - o.y) < 0.00051);
            QVERIFY(std::abs(e.longitud - o.longitud) < 0.00151);
            QVERIFY(std::abs(e.k1 - o.k1) < 1e-12 && std::abs(e.k2 - o.k2) < 1e-12);
        }
    }
}

void TestTrazados::de_landxml_al_instrumento_data()
{
    QTest::addColumn<QByteArray>("prefijo");
    QTest::addColumn<QByteArray>("unidad");
    QTest::addColumn<double>("metros");
    QTest::addColumn<bool>("referencias");
    QTest::newRow("metros") << QByteArray() << QByteArray("meter") << 1.0 << false;
    QTest::newRow("prefijo y referencias")
        << QByteArray("lx:") << QByteArray("meter") << 1.0 << true;
    QTest::newRow("pies") << QByteArray() << QByteArray("foot") << 0.3048 << true;
    QTest::newRow("pies de EE UU")
        << QByteArray("n:") << QByteArray("USSurveyFoot") << 1200.0 / 3937 << false;
    QTest::newRow("milimetros") << QByteArray() << QByteArray("millimeter") << 0.001 << true;
}

void TestTrazados::de_landxml_al_instrumento()
{
    QFETCH(QByteArray, prefijo);
    QFETCH(QByteArray, unidad);
    QFETCH(double, metros);
    QFETCH(bool, referencias);
    for (quint32 semilla = 1; semilla <= CAMINOS; ++semilla) {
        const Camino camino =
            Camino_Azar::Constructor(semilla + 9000, Camino_Azar::Clase::Con_Puntas).Hacer(5);
        const QString fuente = banco.Poner(
            "camino.xml", Camino_Azar::LandXML(camino, prefijo, unidad, metros, referencias));
        const auto hal = banco.Ejecutar("alandxml2krt", {"0", fuente, "<salida>"}, "camino.hal");
        QVERIFY2(hal.numero == 1, qPrintable(hal.informe.Lineas().join(u'\n')));
        const QByteArray error = Comparar(camino, Leer_Hal(*hal.salida));
        QVERIFY2(error.isEmpty(),
                 ("camino " + QByteArray::number(semilla) + ", " + error).constData());
    }
}

/// Polygons of any turn: every element begins where the one before ends, in its direction, the
/// straights lie on the legs and the road ends on the last vertex.
void TestTrazados::las_poligonales_cierran()
{
    using Camino_Azar::N;
    for (quint32 semilla = 1; semilla <= 4 * CAMINOS; ++semilla) {
        QRandomGenerator azar(semilla);
        double x = azar.bounded(700000.0), y = azar.bounded(4800000.0);
        double azimut = azar.bounded(400.0) * Camino_Azar::GON;
        QByteArray plt = "*PLT\r\n100.000\r\n" + N(x) + ',' + N(y) + ",0,0,0\r\n";
        const int vertices = 2 + azar.bounded(5);
        for (int i = 0; i < vertices; ++i) {
            const double lado = 600 + azar.bounded(400.0);
            x += lado * std::sin(azimut);
            y += lado * std::cos(azimut);
            plt += N(x) + ',' + N(y);
            const double giro = (10 + azar.bounded(100.0)) * Camino_Azar::GON;
            const double radio = (50 + azar.bounded(100.0)) / std::tan(giro / 2);
            // A clothoid turns at most a third of the vertex.
            const auto parametro = [&] {
                return azar.bounded(3) ? radio * std::sqrt(azar.bounded(2 * giro / 3)) : 0;
            };
            if (i + 1 < vertices)
                plt += ',' + N(radio, 9) + ',' + N(parametro(), 9) + ',' + N(parametro(), 9);
            plt += "\r\n";
            azimut += azar.bounded(2) ? giro : -giro;
        }
        const QString fuente = banco.Poner("poligonal.plt", plt);
        const auto r = banco.Ejecutar("aclipplt2LandXML", {fuente, "<salida>"}, "p.xml");
        QVERIFY2(r.numero == 1, (plt + qPrintable(r.informe.Lineas().join(u'\n'))).constData());
        // Lines, curves and spirals are closed by their own points when read back.
        const auto hal =
            banco.Ejecutar("alandxml2krt", {"0", banco.Ruta("p.xml"), "<salida>"}, "p.hal");
        QVERIFY2(hal.numero == 1, qPrintable(hal.informe.Lineas().join(u'\n')));
        const auto directo = banco.Ejecutar("aclipplt2krt", {fuente, "<salida>"}, "d.hal");
        const Camino c = Leer_Hal(*directo.salida);
        for (size_t i = 0; i < c.elementos.size(); ++i) {
            const Elemento& e = c.elementos[i];
            const Punto fin = Camino_Azar::En(e, e.longitud);
            const bool ultimo = i + 1 == c.elementos.size();
            const Punto sigue = ultimo ? c.fin
                                       : Punto{c.elementos[i + 1].x, c.elementos[i + 1].y,
                                               c.elementos[i + 1].azimut};
            // The file's own rounding: a point each side, an azimuth over the length, a radius.
            QVERIFY2(
                std::hypot(fin.x - sigue.x, fin.y - sigue.y) < 0.004,
                (plt + *directo.salida + Describir("salto", i, 0, fin.x - sigue.x)).constData());
            QVERIFY(std::abs(std::remainder(fin.azimut - sigue.azimut, 400 * Camino_Azar::GON)) <
                    0.002 * Camino_Azar::GON);
        }
        QVERIFY(std::hypot(c.fin.x - x, c.fin.y - y) < TOLERANCIA);
    }
}

PRUEBA(TestTrazados)
#include "TestTrazados.moc"
