#include "conversions/instrumento/Escritor_Secciones.h"
#include "conversions/secciones/Lectores_Secciones.h"
#include "conversions/secciones/Modelo_Secciones.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

#include <algorithm>
#include <cmath>
#include <QBuffer>
#include <random>

namespace {

const QString NO_HAY_PERFIL = QStringLiteral("El fichero no contiene ningún perfil");

struct Fuente_Secciones {
    const char* funcion;
    QByteArray (*escribir)(const std::vector<Seccion>&);
    Secciones (*leer)(Texto_Fuente&, Informe_Lectura&);
};

// The instrument's form of what `f` reads from `bytes`; nothing when it refuses them.
std::optional<QByteArray> Leido(const Fuente_Secciones& f, const QByteArray& bytes)
{
    QBuffer memoria;
    memoria.setData(bytes);
    memoria.open(QIODevice::ReadOnly);
    Texto_Fuente fuente(memoria);
    Informe_Lectura informe;
    try {
        return Escritor_Secciones::Ssp(f.leer(fuente, informe), {});
    } catch (const Fallo_Conversion& fallo) {
        if (fallo.motivo.isEmpty()) return "un rechazo sin motivo";
        return std::nullopt;
    }
}

QByteArray Num(double x, int decimales = 3)
{
    return QByteArray::number(x, 'f', decimales);
}

// The same sections in each source layout, as the packages write them.
QByteArray En_Bloques(const std::vector<Seccion>& perfiles)
{
    QByteArray s = "*TRV EJE 1\r\n";
    for (const Seccion& p : perfiles) {
        s += Num(p.pk).rightJustified(9) + ',' + QByteArray::number(qsizetype(p.puntos.size())) +
             ",  0  ,  0\r\n";
        for (const Punto_Seccion& q : p.puntos)
            s += Num(q.desplazamiento).rightJustified(9) + ',' + Num(q.cota).rightJustified(10) +
                 "\r\n";
    }
    return s;
}

QByteArray En_Filas(const std::vector<Seccion>& perfiles, const QByteArray& separador)
{
    QByteArray s = separador == "," ? QByteArray("*REP\r\n") : QByteArray("* PK D Z\r\n");
    for (const Seccion& p : perfiles)
        for (const Punto_Seccion& q : p.puntos)
            s += Num(p.pk) + separador + Num(q.desplazamiento) + separador + Num(q.cota) +
                 separador + "TER\r\n";
    return s;
}

QByteArray En_Filas_Con_Comas(const std::vector<Seccion>& p)
{
    return En_Filas(p, ",");
}

QByteArray En_Filas_Con_Blancos(const std::vector<Seccion>& p)
{
    return En_Filas(p, " \t ");
}

QByteArray Con_PK(const std::vector<Seccion>& perfiles)
{
    QByteArray s = "LISTADO DE PERFILES\r\n";
    int numero = 0;
    for (const Seccion& p : perfiles) {
        const double km = std::floor(p.pk / 1000);
        s += "PERFIL " + QByteArray::number(++numero) + "  P.K.= " + Num(km, 0) + '+' +
             Num(p.pk - km * 1000).rightJustified(7, '0') + "\r\n";
        for (const Punto_Seccion& q : p.puntos)
            s += "  " + Num(q.desplazamiento) + "  " + Num(q.cota) + " T\r\n";
    }
    return s;
}

QByteArray Contados(const std::vector<Seccion>& perfiles)
{
    QByteArray s;
    for (const Seccion& p : perfiles) {
        s += Num(p.pk) + ' ' + QByteArray::number(qsizetype(p.puntos.size())) + "\r\n";
        for (const Punto_Seccion& q : p.puntos)
            s += Num(q.desplazamiento).replace('.', ',') + "  " + Num(q.cota) + "\r\n";
    }
    return s;
}

QByteArray De_Mxroad(const std::vector<Seccion>& perfiles)
{
    QByteArray s = "GENIO SECCIONES\r\n";
    for (const Seccion& p : perfiles) {
        s += "SECTION ON MC10 AT CHAINAGE " + Num(p.pk) + "\r\nLABEL OFFSET LEVEL\r\n";
        for (const Punto_Seccion& q : p.puntos)
            s += "G000 " + Num(q.desplazamiento) + ' ' + Num(q.cota) + "\r\n";
    }
    return s + "999\r\n";
}

const Fuente_Secciones FUENTES[] = {
    {"cliptrv2krt", En_Bloques, Lectores_Secciones::Clip_Bloques},
    {"clip2krt", En_Filas_Con_Comas, Lectores_Secciones::Clip_Filas},
    {"qtr2krt", En_Filas_Con_Blancos, Lectores_Secciones::Qsv},
    {"istram2krt", Con_PK, Lectores_Secciones::Por_PK},
    {"htrazado2krt", Contados, Lectores_Secciones::Por_PK},
    {"mxroad2krt", De_Mxroad, Lectores_Secciones::Mxroad},
};

// Sections as a design office makes them: stations in any order, walls, points in any order.
std::vector<Seccion> Al_Azar(unsigned semilla)
{
    std::mt19937 azar(semilla);
    const auto milesimas = [&](int desde, int hasta) {
        return std::uniform_int_distribution<int>(desde, hasta)(azar) / 1000.0;
    };
    std::vector<Seccion> perfiles;
    for (int i = 0; i < 40; ++i) {
        // Stations lie more than the join tolerance apart.
        Seccion p{i * 20 + milesimas(0, 19000), {}};
        const int cuantos = std::uniform_int_distribution<int>(1, 30)(azar);
        for (int k = 0; k < cuantos; ++k) {
            p.puntos.push_back({milesimas(-60000, 60000), milesimas(-5000, 3000000)});
            if (k % 5 == 4) p.puntos.push_back({p.puntos.back().desplazamiento, milesimas(0, 900)});
        }
        perfiles.push_back(p);
    }
    std::shuffle(perfiles.begin(), perfiles.end(), azar);
    return perfiles;
}

QByteArray Esperado(std::vector<Seccion> perfiles)
{
    QByteArray s;
    for (Seccion& p : perfiles) {
        std::stable_sort(p.puntos.begin(), p.puntos.end(), [](const auto& a, const auto& b) {
            return a.desplazamiento < b.desplazamiento;
        });
        for (const Punto_Seccion& q : p.puntos)
            s += Num(p.pk) + ',' + Num(q.desplazamiento) + ',' + Num(q.cota) + "\r\n";
    }
    return s.replace("-0.000", "0.000");
}

} // namespace

class TestSecciones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_forma_sigue_al_contenido();
    void en_landxml_una_seccion_quiere_dos_puntos();
    void formas_data();
    void formas();
    void rechaza_data();
    void rechaza();
    void ajenos();
    void al_azar();
    void por_landxml_y_vuelta();
    void cortado_en_cualquier_punto();
    void cada_byte_danado();
    void sin_origen_o_sin_destino();
    void el_destino_anterior_no_pasa_por_nuevo();

private:
    Banco_Conversion banco;
};

void TestSecciones::la_forma_sigue_al_contenido()
{
    const QByteArray ordenado = Banco_Conversion::Bytes_Muestra("eje1_is.per.ssp");
    for (const auto& [funcion, muestra] :
         {std::pair("clip2krt", "eje1_t.plt"), std::pair("istram2krt", "eje1.trm")}) {
        const auto r = banco.Ejecutar(funcion, {Banco_Conversion::Muestra(muestra), "<salida>"});
        QCOMPARE(r.numero, 1);
        QCOMPARE(*r.salida, ordenado);
        QVERIFY(r.informe.Lineas().isEmpty());
    }
}

void TestSecciones::en_landxml_una_seccion_quiere_dos_puntos()
{
    const auto r = banco.Convertir("traqsv2landxml", "50 1 1\n20 1 2\n20 2 3\n10 5 6\n10 4 5\n");
    QCOMPARE(r.numero, 1);
    QVERIFY(
        r.salida->contains("<Alignment name=\"entrada\" length=\"10.0000\" staStart=\"10.0000\">"));
    QVERIFY(!r.salida->contains("50.0000"));
    QCOMPARE(r.salida->count("<CrossSect "), 2);
    QVERIFY(r.salida->indexOf("sta=\"20.0000\"") < r.salida->indexOf("sta=\"10.0000\""));
    const auto sin = banco.Convertir("traqsv2landxml", "50 1 1\n");
    QCOMPARE(sin.numero, 0);
    QVERIFY(!sin.salida);
    QCOMPARE(sin.Motivo(), QString("No hay ninguna sección de dos puntos o más"));
}

void TestSecciones::formas_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<QByteArray>("salida");
    const auto fila = [](const char* nombre, const char* funcion, const char* entrada,
                         const char* salida) {
        QTest::newRow(nombre) << funcion << QByteArray(entrada) << QByteArray(salida);
    };
    fila("CLIP sin marca: bloques", "cliptrv2krt", "0,1,9\n-1.5,100\n", "0.000,-1.500,100.000\r\n");
    fila("REP sin marca: filas", "clip2krt", "0,-1.5,100\n", "0.000,-1.500,100.000\r\n");
    fila("una marca cambia la forma", "cliptrv2krt",
         "*REP x\n0,2,5\n*Titulo\n0,1,4\n*ter EJE\n20,1\n3,4,COD\n*REP,otra\n40,1,1,EJE\n",
         "0.000,1.000,4.000\r\n0.000,2.000,5.000\r\n20.000,3.000,4.000\r\n40.000,1.000,1.000\r\n");
    fila("un titulo no es una marca", "cliptrv2krt", "*REPLANTEO\n0,1\n2,3\n",
         "0.000,2.000,3.000\r\n");
    fila("titulo dentro de un bloque", "cliptrv2krt", "0,2\n1,1\n* nota\n2,2\n",
         "0.000,1.000,1.000\r\n0.000,2.000,2.000\r\n");
    fila("bloque de cero filas", "cliptrv2krt", "0,0\n20,1\n2,2\n", "20.000,2.000,2.000\r\n");
    fila("kilometros", "clip2krt", "1+250.500,0,1\n", "1250.500,0.000,1.000\r\n");
    fila("estacion repetida se une a la primera", "qtr2krt", "20 1 1\n0 5 5\n20.0005 0 2\n",
         "20.000,0.000,2.000\r\n20.000,1.000,1.000\r\n0.000,5.000,5.000\r\n");
    fila("0.0006 es otra estacion", "qtr2krt", "20 1 1\n20.0006 0 2\n",
         "20.000,1.000,1.000\r\n20.001,0.000,2.000\r\n");
    fila("muro: el orden del fichero", "qtr2krt", "0 1 9\n0 0 5\n0 1 3\n0 0 7\n",
         "0.000,0.000,5.000\r\n0.000,0.000,7.000\r\n0.000,1.000,9.000\r\n0.000,1.000,3.000\r\n");
    fila("comentarios, tabuladores, coma decimal, exponente", "qtr2krt",
         "; nota\n# otra\nPK D Z\n\xC1rea\n  0,5\t-1E1\t1.25D2\tEJE X\n",
         "0.500,-10.000,125.000\r\n");
    fila("cero sin signo", "qtr2krt", "-0.0001 -0.0004 -0\n", "0.000,0.000,0.000\r\n");
    fila("el fin de fichero de DOS", "qtr2krt",
         "0 1 2\r\n\x1A"
         "basura",
         "0.000,1.000,2.000\r\n");
    fila("formas de P.K.", "istram2krt",
         "PK 0\n1 1\nPerfil 2 P.K. : 1+000\n2 2\nP K=2000,5\n3 3\npk:3000;\n4 4\nPK4000\n5 5\n",
         "0.000,1.000,1.000\r\n1000.000,2.000,2.000\r\n2000.500,3.000,3.000\r\n"
         "3000.000,4.000,4.000\r\n4000.000,5.000,5.000\r\n");
    fila("PK sin numero es una cabecera", "htrazado2krt", "PK 10\nPK  DIST COTA\n1 1\n",
         "10.000,1.000,1.000\r\n");
    fila("APK no es PK", "htrazado2krt", "PK 10\nAPK 5\n1 1\n", "10.000,1.000,1.000\r\n");
    fila("contadas y con PK", "istram2krt", "0 2\n1 1\n* nota\n2 2\nPK 5\n3 3\n4 4\n5 5\n",
         "0.000,1.000,1.000\r\n0.000,2.000,2.000\r\n5.000,3.000,3.000\r\n5.000,4.000,4.000\r\n"
         "5.000,5.000,5.000\r\n");
    fila("seccion con PK y sin filas", "istram2krt", "PK 5\nPK 6\n1 1\n", "6.000,1.000,1.000\r\n");
    fila("MXROAD: relleno", "mxroad2krt",
         "G000 1 2\nSection CHAINAGE: 0+100.5 m\nLABEL OFFSET LEVEL\nA 1 2 x\n* n\n; n\n# n\n"
         "STRING MC10\nENDS 5 6\n9990 7 8\nEnd of section\nFINISH\n999\n",
         "100.500,1.000,2.000\r\n100.500,5.000,6.000\r\n100.500,7.000,8.000\r\n");
}

void TestSecciones::formas()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, entrada);
    QFETCH(QByteArray, salida);
    const auto r = banco.Convertir(funcion, entrada);
    QVERIFY2(r.numero == 1, qPrintable(r.informe.Lineas().join(u'\n')));
    QCOMPARE(r.salida.value(), salida);
}

void TestSecciones::rechaza_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<int>("linea");
    QTest::addColumn<QString>("motivo");
    const auto fila = [](const char* nombre, const char* funcion, const char* entrada, int linea,
                         const char* motivo) {
        QTest::newRow(nombre) << funcion << QByteArray(entrada) << linea << QString(motivo);
    };
    fila("bloque sin cuenta", "cliptrv2krt", "*TRV\n0.000\n", 2,
         "Faltan campos separados por comas");
    fila("cuenta con letras", "cliptrv2krt", "0,dos\n", 1,
         "El número de puntos del perfil no es un número entero");
    fila("cuenta con decimales", "cliptrv2krt", "0,1.5\n", 1,
         "El número de puntos del perfil no es un número entero");
    fila("cuenta negativa", "istram2krt", "0 -1\n", 1,
         "El número de puntos del perfil no es un número entero");
    fila("bloque cortado", "cliptrv2krt", "0,1\n1,1\n20,3\n1,1\n", 3, "Faltan 2 puntos del perfil");
    fila("otra forma antes de llenarse", "cliptrv2krt", "0,2\n1,1\n*REP\n0,1,1\n", 1,
         "Faltan 1 puntos del perfil");
    fila("otro bloque antes de llenarse", "cliptrv2krt", "0,2\n1,1\n*TER\n20,0\n", 1,
         "Faltan 1 puntos del perfil");
    fila("contada cortada por PK", "istram2krt", "0 2\n1 1\nPK 5\n1 1\n", 1,
         "Faltan 1 puntos del perfil");
    fila("contada cortada", "istram2krt", "0 2\n1 1\n", 1, "Faltan 1 puntos del perfil");
    fila("desplazamiento con letras", "clip2krt", "0,x,1\n", 1,
         "El desplazamiento del punto no es un número");
    fila("cota con letras", "qtr2krt", "0 1 2\n0 2 1O1.25\n", 2,
         "La cota del punto no es un número");
    fila("cota vacia", "clip2krt", "0,1,\n", 1, "La cota del punto no es un número");
    fila("P.K. con letras", "qtr2krt", "0..5 1 2\n", 1, "El P.K. del perfil no es un número");
    fila("puntos y comas entre comas", "clip2krt", "0,5;1,5\n", 1,
         "El desplazamiento del punto no es un número");
    fila("fila corta", "qtr2krt", "0 1\n", 1, "Faltan campos: P.K., desplazamiento y cota");
    fila("fila de un campo", "istram2krt", "PK 5\n1\n", 2, "Faltan campos en la línea");
    fila("etiqueta sola", "mxroad2krt", "CHAINAGE 5\nG000 1\n", 2,
         "Faltan campos: etiqueta, desplazamiento y cota");
    fila("fila de MXROAD con letras", "mxroad2krt", "CHAINAGE 5\nG000 1 dos\n", 2,
         "La cota del punto no es un número");
    fila("CHAINAGE sin numero dentro", "mxroad2krt", "CHAINAGE 5\nG0 1 1\nSECTION AT CHAINAGE\n", 3,
         "El desplazamiento del punto no es un número");
    fila("sin secciones", "mxroad2krt", "G000 1 2\n", 0, "El fichero no contiene ningún perfil");
    fila("solo cabeceras", "istram2krt", "PK 5\n", 0, "El fichero no contiene ningún perfil");
    fila("numero que no cabe", "qtr2krt", "0 1e300 2\n", 1,
         "El desplazamiento del punto no es un número");
    fila("de otro formato", "clip2krt", "0.000 0.000 100.5\n", 1,
         "Faltan campos separados por comas");
}

void TestSecciones::rechaza()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, entrada);
    QFETCH(int, linea);
    QFETCH(QString, motivo);
    const auto r = banco.Convertir(funcion, entrada);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QVERIFY(r.informe.Fallo());
    QCOMPARE(r.informe.Fallo()->motivo, motivo);
    QCOMPARE(r.informe.Fallo()->linea, linea);
}

void TestSecciones::ajenos()
{
    for (const Fuente_Secciones& f : FUENTES)
        for (const auto& [nombre, bytes] : Banco_Conversion::Ajenos()) {
            const auto r = banco.Convertir(f.funcion, bytes);
            QVERIFY2(r.numero == 0 && !r.salida && !r.Motivo().isEmpty(),
                     qPrintable(QStringLiteral("%1: %2").arg(f.funcion, nombre)));
        }
}

void TestSecciones::al_azar()
{
    for (unsigned semilla = 1; semilla <= 20; ++semilla) {
        const std::vector<Seccion> perfiles = Al_Azar(semilla);
        const QByteArray esperado = Esperado(perfiles);
        for (const Fuente_Secciones& f : FUENTES) {
            const auto r = banco.Convertir(f.funcion, f.escribir(perfiles));
            QVERIFY2(r.numero == 1 && r.salida == esperado,
                     qPrintable(QStringLiteral("%1, semilla %2: %3")
                                    .arg(f.funcion)
                                    .arg(semilla)
                                    .arg(r.informe.Lineas().join(u' '))));
        }
    }
}

void TestSecciones::por_landxml_y_vuelta()
{
    const Fuente_Secciones& qsv = FUENTES[2];
    for (unsigned semilla = 30; semilla < 36; ++semilla) {
        std::vector<Seccion> perfiles = Al_Azar(semilla);
        std::erase_if(perfiles, [](const Seccion& s) { return s.puntos.size() < 2; });
        const QString fuente = banco.Poner("EJE 7.tra", qsv.escribir(perfiles));
        const QString xml = banco.Ruta("eje.xml");
        QCOMPARE(banco.Ejecutar("traqsv2landxml", {fuente, xml}).numero, 1);
        const auto r = banco.Ejecutar("tralandxml2krt", {"EJE 7", "Terreno", xml, "<salida>"});
        QVERIFY2(r.numero == 1, qPrintable(r.Motivo()));
        QCOMPARE(*r.salida, Esperado(perfiles));
    }
}

// A file cut between two bytes gives a rechazal or whole points: never a point that wasn't there.
void TestSecciones::cortado_en_cualquier_punto()
{
    const std::vector<Seccion> perfiles = {{1020, {{-5, 100.125}, {0, 101}}},
                                           {1040, {{2.5, 99.875}}}};
    const QList<QByteArray> puntos = Esperado(perfiles).split('\n');
    for (const Fuente_Secciones& f : FUENTES) {
        const QByteArray entero = f.escribir(perfiles);
        for (qsizetype n = 0; n < entero.size(); ++n) {
            const auto leido = Leido(f, entero.first(n));
            if (!leido) continue;
            // The last point may have lost digits of its height; all before it are whole.
            const QList<QByteArray> leidos = leido->split('\n');
            for (qsizetype i = 0; i + 2 < leidos.size(); ++i)
                QCOMPARE(leidos[i], puntos[i]);
        }
    }
}

void TestSecciones::cada_byte_danado()
{
    const std::vector<Seccion> perfiles = {{0, {{-5, 100.125}, {0, 101}}}, {20, {{2.5, 99.875}}}};
    for (const Fuente_Secciones& f : FUENTES) {
        const QByteArray entero = f.escribir(perfiles);
        for (qsizetype i = 0; i < entero.size(); ++i)
            for (const int byte : {0, 10, 26, 32, 42, 44, 46, 48, 57, 80, 101, 255}) {
                QByteArray roto = entero;
                roto[i] = static_cast<char>(byte);
                const auto leido = Leido(f, roto);
                if (!leido) continue;
                // Whatever is read has three numbers a line.
                QVERIFY(!leido->isEmpty() && leido->endsWith("\r\n"));
                for (const QByteArray& linea : leido->chopped(2).split('\n'))
                    QCOMPARE(linea.count(','), 2);
            }
    }
}

void TestSecciones::sin_origen_o_sin_destino()
{
    const auto r = banco.Ejecutar("qtr2krt", {banco.Ruta("no.tra"), "<salida>"});
    QCOMPARE(r.numero, 0);
    QCOMPARE(r.Motivo(), QString("El fichero de origen no existe"));
    QVERIFY(!r.salida);
    const auto carpeta = banco.Ejecutar("qtr2krt", {banco.Ruta("."), "<salida>"});
    QCOMPARE(carpeta.numero, 0);
    const QString fuente = banco.Poner("a.tra", "0 1 2\n");
    const auto sin_carpeta = banco.Ejecutar("qtr2krt", {fuente, banco.Ruta("no/hay/a.ssp")});
    QCOMPARE(sin_carpeta.numero, 0);
    QVERIFY(sin_carpeta.Motivo().startsWith("No se puede escribir el fichero de destino"));
    const auto encima = banco.Ejecutar("qtr2krt", {fuente, fuente});
    QCOMPARE(encima.numero, 0);
    QCOMPARE(Ficheros::Leer(fuente), QByteArray("0 1 2\n"));
}

void TestSecciones::el_destino_anterior_no_pasa_por_nuevo()
{
    const QString destino = banco.Poner("viejo.ssp", "0.000,1.000,2.000\r\n");
    Informe_Lectura informe;
    QCOMPARE(Ejecutar_Funcion(u"qtr2krt", {banco.Poner("mal.tra", "0 1\n"), destino}, informe), 0);
    QVERIFY(!QFileInfo::exists(destino));
}

PRUEBA(TestSecciones)
#include "TestSecciones.moc"
