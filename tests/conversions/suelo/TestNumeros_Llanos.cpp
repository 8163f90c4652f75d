#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Cifras.h"
#include "tests/apoyo/Prueba.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

// Big files are read and written by short ways; they must give what the long ways give.
class TestNumeros_Llanos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void se_lee_como_la_biblioteca();
    void se_escribe_como_la_biblioteca();
    void los_medios_se_escriben_exactos();
    void varios_de_una_vez_data();
    void varios_de_una_vez();
};

void TestNumeros_Llanos::se_lee_como_la_biblioteca()
{
    std::mt19937_64 azar(11);
    for (int i = 0; i < 20000; ++i) {
        const int cifras = int(azar() % 18) + 1,
                  decimales = int(azar() % std::uint64_t(cifras + 1));
        QByteArray texto;
        for (int k = 0; k < cifras; ++k)
            texto += static_cast<char>('0' + azar() % 10);
        if (decimales > 0 || azar() % 4 == 0) texto.insert(cifras - decimales, '.');
        if (azar() % 3 == 0) texto.prepend(azar() % 2 ? '-' : '+');
        const auto leido = Campos_Fuente::Numero(texto, Campos_Fuente::Marca::Punto);
        const double esperado = std::strtod(texto.constData(), nullptr);
        if (std::fabs(esperado) >= 1e15) {
            QVERIFY(!leido);
            continue;
        }
        QVERIFY2(leido && *leido == esperado, texto.constData());
    }
}

void TestNumeros_Llanos::se_escribe_como_la_biblioteca()
{
    std::mt19937_64 azar(12);
    for (int i = 0; i < 40000; ++i) {
        const int decimales = int(azar() % 6);
        double valor = (double(azar() % 2000000001) - 1e9) / std::pow(10.0, double(azar() % 8));
        if (i % 3 == 0) valor = std::ldexp(double(std::int64_t(azar())), -int(azar() % 70));
        std::array<char, Cifras::FIJO_MAXIMO> esperado{};
        std::snprintf(esperado.data(), esperado.size(), "%.*f", decimales, valor);
        QByteArray sin_signo(esperado.data());
        if (std::strtod(esperado.data(), nullptr) == 0 && sin_signo.startsWith('-'))
            sin_signo.remove(0, 1);
        QCOMPARE(Cifras::Fijo(valor, decimales), sin_signo);
    }
}

void TestNumeros_Llanos::los_medios_se_escriben_exactos()
{
    // Halves of the last place: the binary number decides, not its scaled and rounded value.
    for (int entera = -2000; entera <= 2000; ++entera)
        for (const int decimales : {3, 4}) {
            const double valor = (entera + 0.5) / std::pow(10.0, decimales);
            std::array<char, 64> esperado{};
            std::snprintf(esperado.data(), esperado.size(), "%.*f", decimales, valor);
            QByteArray sin_signo(esperado.data());
            if (std::strtod(esperado.data(), nullptr) == 0 && sin_signo.startsWith('-'))
                sin_signo.remove(0, 1);
            QCOMPARE(Cifras::Fijo(valor, decimales), sin_signo);
        }
}

void TestNumeros_Llanos::varios_de_una_vez_data()
{
    QTest::addColumn<QByteArray>("linea");
    QTest::addColumn<char>("separador");
    QTest::addColumn<int>("cuantos");
    QTest::addColumn<QString>("leido"); // numbers and rest; "-" when the line isn't plain
    QTest::newRow("comas") << QByteArray(" 1.5 , -2,  3.25\t, TER ") << ',' << 3
                           << "1.5 -2 3.25|TER ";
    QTest::newRow("comas, sin mas") << QByteArray("1,2") << ',' << 2 << "1 2|";
    QTest::newRow("comas, campo vacio") << QByteArray("1,,3") << ',' << 3 << "-";
    QTest::newRow("comas, faltan") << QByteArray("1,2") << ',' << 3 << "-";
    QTest::newRow("comas, falta el ultimo") << QByteArray("1,2,") << ',' << 3 << "-";
    QTest::newRow("comas, letras detras") << QByteArray("1,2x,3") << ',' << 2 << "-";
    QTest::newRow("comas, dos palabras") << QByteArray("1 2,3") << ',' << 2 << "-";
    QTest::newRow("blancos") << QByteArray("  1,5\t-2   .5 T x") << ' ' << 3 << "1.5 -2 0.5|T x";
    QTest::newRow("blancos, faltan") << QByteArray("1 2 ") << ' ' << 3 << "-";
    QTest::newRow("blancos, pegado") << QByteArray("1 2T") << ' ' << 2 << "-";
    QTest::newRow("exponente") << QByteArray("1E2 3") << ' ' << 2 << "-";
    QTest::newRow("kilometros") << QByteArray("1+250 3") << ' ' << 2 << "-";
    QTest::newRow("solo signo") << QByteArray("- 3") << ' ' << 2 << "-";
    QTest::newRow("solo punto") << QByteArray(". 3") << ' ' << 2 << "-";
    QTest::newRow("dos puntos") << QByteArray("1.2.3 3") << ' ' << 2 << "-";
    QTest::newRow("16 cifras") << QByteArray("1234567890123456 3") << ' ' << 2 << "-";
    QTest::newRow("vacia") << QByteArray() << ' ' << 1 << "-";
}

void TestNumeros_Llanos::varios_de_una_vez()
{
    QFETCH(QByteArray, linea);
    QFETCH(char, separador);
    QFETCH(int, cuantos);
    std::vector<double> n(static_cast<std::size_t>(cuantos));
    const auto marca =
        separador == ' ' ? Campos_Fuente::Marca::Punto_O_Coma : Campos_Fuente::Marca::Punto;
    const auto resto = Campos_Fuente::Numeros_Llanos(linea, separador, marca, n);
    QString obtenido = "-";
    if (resto) {
        QStringList textos;
        for (const double x : n)
            textos << QString::number(x);
        obtenido = textos.join(u' ') + u'|' + QString::fromLatin1(*resto);
    }
    QTEST(obtenido, "leido");
}

PRUEBA(TestNumeros_Llanos)
#include "TestNumeros_Llanos.moc"
