#include "core/Ansi.h"
#include "core/Decimal.h"
#include "core/Familia.h"
#include "core/Reloj.h"
#include "session/Decodificador.h"
#include "session/Desplazamiento.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/krt300/Convertir_Envio.h"
#include "transfer/krt800/Subida_Diseno.h"
#include "transfer/Proceso_Recepcion.h"
#include "transfer/Series.h"

#include <QRandomGenerator>

// A point that is sent and downloaded again is the same point.
class TestIdaYVuelta : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void diez_mil_puntos_data();
    void diez_mil_puntos();

private:
    /// What the instrument has behind an upload that it accepts throughout, as it would send it.
    static QString En_El_Aparato(const Familia& familia, const Datos_Envio& datos);
    static Datos_Envio Convertir(const Familia& familia, const QString& fichero);
};

namespace {

constexpr int PUNTOS = 5000; // twice, since an upload to series A takes 8192 at most
constexpr int VUELTAS = 2;

struct Punto {
    QString nombre;
    qint64 miles[3];
};

// All lengths of numbers are as likely, both signs too, and what is near a round number.
qint64 Coordenada_Al_Azar(QRandomGenerator& azar)
{
    qint64 tope = 10;
    for (int i = azar.bounded(10); i > 0; --i)
        tope *= 10;
    qint64 n = qint64(azar.generate64() % quint64(tope)) % 4999999999;
    if (azar.bounded(5) == 0) n = n / 1000 * 1000 + (azar.bounded(2) ? 999 : 1);
    return azar.bounded(2) ? n : -n;
}

QString Con_Tres(qint64 miles)
{
    return Decimal::De_Miles(miles).Texto_Fijo(3);
}

} // namespace

Datos_Envio TestIdaYVuelta::Convertir(const Familia& familia, const QString& fichero)
{
    Datos_Envio datos;
    if (familia.serie == Serie::B) {
        datos.tipo = 4;
        Leer_Fichero_Envio(fichero, datos.datos, ";", true, ENVIO_PUNTOS);
    } else {
        datos.tipo = ENVIO_COORDENADAS;
        Convertir_Envio(datos.tipo, ";", fichero, datos.cabecera, datos.datos);
    }
    return datos;
}

QString TestIdaYVuelta::En_El_Aparato(const Familia& familia, const Datos_Envio& datos)
{
    constexpr char ACK = 6;
    constexpr qsizetype TRAMA = 136;
    const auto emisor = Serie_De(familia)->emisor(datos);
    QByteArray tiene;
    for (Paso_Envio p = emisor->Empezar_Envio();;
         p = p.encadena ? emisor->Seguir() : emisor->Siguiente_Envio(ACK)) {
        if (familia.serie == Serie::B)
            tiene += p.envia;
        else if (p.envia.size() == TRAMA)
            tiene += p.envia.mid(1, 128);
        if (p.fin != Fin_Envio::Sigue) break;
    }
    if (tiene.endsWith('\4')) tiene.chop(1);
    return Ansi::A_Texto(tiene);
}

void TestIdaYVuelta::diez_mil_puntos_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<QStringList>("desplazamiento");
    QTest::addColumn<int>("semilla");
    const QStringList ninguno{"0", "0", "0"};
    QTest::newRow("KRT300") << "KRT300" << ninguno << 1;
    QTest::newRow("KRT300 desplazado")
        << "KRT300" << QStringList{"12.5", "-4500000.123", ".001"} << 2;
    QTest::newRow("PX7") << "PX7" << QStringList{"-0.999", "4999999", "-1"} << 3;
    QTest::newRow("KRT800") << "KRT800" << ninguno << 4;
    QTest::newRow("KRT800 desplazado")
        << "KRT800" << QStringList{"1000000", "-.5", "-123.456"} << 5;
}

void TestIdaYVuelta::diez_mil_puntos()
{
    QFETCH(QString, maquina);
    QFETCH(QStringList, desplazamiento);
    QFETCH(int, semilla);
    Base_De_Prueba base;
    Interfaz_Guion interfaz;
    Poner_Instrumentos(base);
    Clave_Estacion = maquina;
    Nombre_Estacion = maquina + "-1";
    const Familia& familia = Familia_De(maquina);
    const int ope = familia.serie == Serie::B ? 4 : 1;
    qint64 suma[3];
    for (int i = 0; i < 3; ++i)
        suma[i] = qRound64(desplazamiento[i].toDouble() * 1000);
    const QStringList nombres{"Coordenada X", "Coordenada Y", "Coordenada Z"};
    QRandomGenerator azar(static_cast<quint32>(semilla));
    for (int vuelta = 0; vuelta < VUELTAS; ++vuelta) {
        QList<Punto> puntos;
        QByteArray fichero;
        for (int i = 0; i < PUNTOS; ++i) {
            Punto p{QStringLiteral("P%1").arg(i), {}};
            fichero += p.nombre.toLatin1();
            for (qint64& m : p.miles) {
                m = Coordenada_Al_Azar(azar);
                QByteArray texto = Con_Tres(m).toLatin1();
                if (azar.bounded(2)) texto.replace('.', ',');
                fichero += ';' + texto;
            }
            fichero += "\r\n";
            puntos << p;
        }
        base.Escribir("p.asc", fichero);
        Poner_Desplazamientos(desplazamiento[0], desplazamiento[1], desplazamiento[2], "7,3");
        const Datos_Envio datos = Convertir(familia, base.Ruta("p.asc"));
        QCOMPARE(interfaz.Textos(), QStringList());
        QVERIFY(!datos.datos.isEmpty());
        Quitar_Desplazamientos();
        const Resultado_Recepcion r =
            Procesar_Recepcion({En_El_Aparato(familia, datos), "Vuelta", ope, 0, maquina, maquina});
        QCOMPARE(r.sesiones.size(), 1);
        Decodificador decodificador(*Base_Datos, maquina, ope, nombres);
        QHash<QString, QStringList> vueltos;
        for (Recorrido filas = Base_Datos->Recorrer(
                 "SELECT Punto, Datos FROM Registros WHERE ID = ? ORDER BY Secuencia",
                 {r.sesiones.first().toInt()});
             filas.Siguiente();) {
            QStringList& valores = vueltos[filas.Texto(0)];
            if (valores.isEmpty()) valores = QStringList{"", "", ""};
            decodificador.Linea(filas.Texto(1), valores);
        }
        QCOMPARE(vueltos.size(), PUNTOS);
        for (const Punto& p : std::as_const(puntos)) {
            const QStringList valores = vueltos.value(p.nombre);
            for (int eje = 0; eje < 3; ++eje) {
                const auto vuelto = Decimal::Leer(valores.value(eje));
                if (vuelto != Decimal::De_Miles(p.miles[eje] + suma[eje]))
                    QFAIL(qPrintable(
                        QStringLiteral("%1 eje %2: %3 + %4 -> %5")
                            .arg(p.nombre)
                            .arg(eje)
                            .arg(Con_Tres(p.miles[eje]), desplazamiento[eje], valores.value(eje))));
            }
        }
    }
}

PRUEBA(TestIdaYVuelta)
#include "TestIdaYVuelta.moc"
