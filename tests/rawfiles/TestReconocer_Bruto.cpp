#include "rawfiles/Reconocer_Bruto.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

// Whose a file seems to be, and what is asked before it is stored.
class TestReconocer_Bruto : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { banco = std::make_unique<Banco_Bruto>(); }
    void cleanup() { banco.reset(); }
    void el_aspecto_data();
    void el_aspecto();
    void la_duda_data();
    void la_duda();
    void cien_mil_lineas();

private:
    std::unique_ptr<Banco_Bruto> banco;
};

void TestReconocer_Bruto::el_aspecto_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("serie");
    QTest::addColumn<int>("forma");
    const int a = int(Serie::A), b = int(Serie::B), n = int(Serie::Nivel),
              nada = int(Serie::Ninguna);
    const int maquina = int(Forma_Bruta::Maquina), lineas = int(Forma_Bruta::Lineas);
    const auto nivel = [](const QByteArray& carga) {
        int suma = 0;
        for (const char c : carga)
            suma += uchar(c);
        return carga + char((suma & 63) + 32) + ",\r\n";
    };
    QTest::newRow("serie A en lineas") << Banco_Bruto::Datos("libreta_a.txt") << a << lineas;
    QTest::newRow("serie A en maquina") << Banco_Bruto::Datos("libreta_a.hd6") << a << maquina;
    QTest::newRow("serie B") << Banco_Bruto::Datos("libreta_b.txt") << b << lineas;
    QTest::newRow("perfiles") << Banco_Bruto::Datos("perfiles.txt") << b << lineas;
    QTest::newRow("puntos") << QByteArray("P1,456.1,447.2,6,COD\r\n7,-1,.5,2\r\n") << b << lineas;
    QTest::newRow("nivel con sumas")
        << nivel("g,03,115384,33135,6123456,RN1,4,") + nivel("t,") << n << lineas;
    QTest::newRow("nivel con otra letra y suma") << nivel("Q,x,9,") << n << lineas;
    QTest::newRow("nivel sin sumas")
        << QByteArray("b,03,ANILLO A,RN1,\r\ni,03,1,2,\r\n") << n << lineas;
    QTest::newRow("letras de A demasiado largas")
        << QByteArray("esto no es una libreta\r\nhay que leer las lineas\r\n") << nada << lineas;
    QTest::newRow("nada") << QByteArray() << nada << lineas;
    QTest::newRow("blancos") << QByteArray("\r\n   \r\n") << nada << lineas;
    QTest::newRow("la mitad no basta") << QByteArray("SS 1,2,3\r\n????????\r\n") << nada << lineas;
    QTest::newRow("mas de la mitad")
        << QByteArray("SS 1,2,3\r\nSD 1,2,3\r\n????????\r\n") << b << lineas;
}

void TestReconocer_Bruto::el_aspecto()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, serie);
    QFETCH(int, forma);
    const Aspecto_Bruto aspecto = Reconocer_Bruto(bytes);
    QCOMPARE(int(aspecto.serie), serie);
    QCOMPARE(int(aspecto.forma), forma);
    QVERIFY(aspecto.defecto.isEmpty());
}

void TestReconocer_Bruto::la_duda_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("forma");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("duda");
    const int maquina = int(Forma_Bruta::Maquina), lineas = int(Forma_Bruta::Lineas);
    const QByteArray a("+P\r\nh+1\r\n"), a_maquina("_+P_h+1_"), b("SS 1,2\r\n"), n("g,03,1,\r\n"),
        puntos("P1,1,2,3\r\n");
    const QString sin_duda;
    QTest::newRow("la suya") << a << "KRT300" << lineas << 0 << sin_duda;
    QTest::newRow("la de PX7") << a_maquina << "PX7" << maquina << 0 << sin_duda;
    QTest::newRow("KRT800 a KRT300")
        << b << "KRT300" << lineas << 0 << "El fichero parece de un KRT800 y no de un KRT300.";
    QTest::newRow("nivel a PX7") << n << "PX7" << lineas << 0
                                 << "El fichero parece de un NV400 y no de un PX7.";
    QTest::newRow("KRT300 a KRT800") << a_maquina << "KRT800" << lineas << 0
                                     << "El fichero parece de un KRT300 o PX7 y no de un KRT800.";
    QTest::newRow("KRT300 a nivel")
        << a << "NV400" << lineas << 0 << "El fichero parece de un KRT300 o PX7 y no de un NV400.";
    QTest::newRow("otra forma")
        << a << "KRT300" << maquina << 0
        << "El fichero parece estar en Formato Lineas y no en Formato Máquina.";
    QTest::newRow("otra forma, al reves")
        << a_maquina << "KRT300" << lineas << 0
        << "El fichero parece estar en Formato Máquina y no en Formato Lineas.";
    QTest::newRow("la forma no cuenta en serie B") << b << "KRT800" << maquina << 0 << sin_duda;
    QTest::newRow("otra operacion")
        << a << "KRT300" << lineas << 2
        << "Ningún registro del fichero parece de \"Librería de Códigos\".";
    QTest::newRow("puntos como medicion")
        << puntos << "KRT800" << lineas << 0
        << "Ningún registro del fichero parece de \"Datos de Medición\".";
    QTest::newRow("medicion como puntos")
        << b << "KRT800" << lineas << 4 << "Ningún registro del fichero parece de \"Puntos\".";
    QTest::newRow("puntos") << puntos << "KRT800" << lineas << 4 << sin_duda;
    QTest::newRow("lo desconocido pasa")
        << QByteArray("?????\r\n") << "KRT800" << lineas << 0 << sin_duda;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfeS\0S\0", 6) << "KRT800" << lineas << 0
                            << "El fichero está en UTF-16 y no en la página del aparato.";
    QTest::newRow("UTF-16 al reves") << QByteArray("\xfe\xff\0S", 4) << "NV400" << lineas << 0
                                     << "El fichero está en UTF-16 y no en la página del aparato.";
    QTest::newRow("basura") << QByteArray("SS 1,2\r\n\0\1\2", 11) << "KRT800" << lineas << 0
                            << "El fichero contiene caracteres nulos: no es un texto del aparato.";
    QTest::newRow("UTF-8") << QByteArray("SS 1,2,POZO Ñ\r\n") << "KRT800" << lineas << 0
                           << "El fichero está en UTF-8 y no en la página del aparato: sus acentos "
                              "quedarían alterados.";
    QTest::newRow("UTF-8 con marca")
        << QByteArray("\xef\xbb\xbfSS 1,2\r\n") << "KRT800" << lineas << 0
        << "El fichero está en UTF-8 y no en la página del aparato: sus "
           "acentos quedarían alterados.";
    QTest::newRow("la pagina") << QByteArray("SS 1,2,POZO \xd1\r\n") << "KRT800" << lineas << 0
                               << sin_duda;
}

void TestReconocer_Bruto::la_duda()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, maquina);
    QFETCH(int, forma);
    QFETCH(int, ope);
    QFETCH(QString, duda);
    banco->Familia(maquina);
    const auto hay = Duda_De_Importar(bytes, Familia_De(maquina), Forma_Bruta(forma), ope);
    QCOMPARE(hay.value_or(QString()),
             duda.isEmpty() ? duda : duda + " ¿ Desea importarlo de todas formas ?");
}

void TestReconocer_Bruto::cien_mil_lineas()
{
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += "SD 1.0,2.0,3.0\r\n";
    QCOMPARE(int(Reconocer_Bruto(bytes).serie), int(Serie::B));
}

PRUEBA(TestReconocer_Bruto)
#include "TestReconocer_Bruto.moc"
