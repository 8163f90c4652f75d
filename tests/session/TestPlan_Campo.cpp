#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/Familia.h"
#include "session/Blancos.h"
#include "session/Decodificador.h"
#include "session/Plan_Campo.h"
#include "tests/apoyo/Prueba.h"

#include <QRandomGenerator>

/// The short ways of the decoder against its plain ones.
class TestPlan_Campo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_cifras_copiadas_son_las_del_dibujo();
    void las_cifras_copiadas_al_azar();
    void las_sumas_al_azar_data();
    void las_sumas_al_azar();
    void los_ceros_de_un_dibujo_data();
    void los_ceros_de_un_dibujo();
    void un_token_sin_dato_deja_lo_que_habia();
};

// The value by the routines on one text, step by step; nothing when the field can't be converted.
static std::optional<QString> Paso_A_Paso(const QString& corte, const Fila_Campo& campo)
{
    try {
        Plan_Digitos(campo.posdigit, campo.caracter).Exigir_Cifras(corte);
        QString v = Aplicar_Digitos(campo.posdigit, corte, campo.caracter).replace(u'.', u',');
        if (!Basico::IsNumeric(v)) return std::nullopt;
        v = Basico::Formato(v, campo.forsalida).replace(u',', u'.');
        return Aplicar_Especial(v, campo.especial);
    } catch (const Error_Ejecucion&) {
        return std::nullopt;
    }
}

static std::optional<QString> De_Una_Vez(const QString& corte, const Fila_Campo& campo)
{
    QString valor = "lo de antes";
    try {
        Plan_Campo(campo, std::nullopt).De_Columnas("A" + corte, 2, valor);
    } catch (const Error_Ejecucion&) {
        return std::nullopt;
    }
    return valor;
}

static Fila_Campo Campo(const QString& posdigit, const QString& forsalida)
{
    Fila_Campo campo;
    campo.digitos = 40;
    campo.posdigit = posdigit;
    campo.forsalida = forsalida;
    campo.caracter = ".";
    return campo;
}

void TestPlan_Campo::las_cifras_copiadas_son_las_del_dibujo()
{
    const Fila_Campo campo = Campo("7,3", "0.000");
    const QList<std::pair<QString, QString>> casos = {{"+0012345678", "12345.678"},
                                                      {"-0012345678", "-12345.678"},
                                                      {"0012345678", "12345.678"},
                                                      {"-0000000000", "0.000"},
                                                      {"+0000000000", "0.000"},
                                                      {"-0000000004", "-0.004"},
                                                      {"5", "0.005"},
                                                      {"+5", "0.005"},
                                                      {"-5", "-0.005"},
                                                      {"99912345678901", "2345678.901"}};
    for (const auto& [corte, valor] : casos) {
        QCOMPARE(De_Una_Vez(corte, campo), valor);
        QCOMPARE(Paso_A_Paso(corte, campo), valor);
    }
    QCOMPARE(De_Una_Vez("00A2345678", campo), std::nullopt);
    QCOMPARE(De_Una_Vez("123.5", campo), Paso_A_Paso("123.5", campo));
}

void TestPlan_Campo::las_cifras_copiadas_al_azar()
{
    QRandomGenerator azar(1945);
    const QStringList dibujos = {"0.000",  "0.0000", "00.00", "0000.000",
                                 "#0.000", "0.0##",  "0",     "0.0"};
    const QStringList especiales = {"", "CD", "CI", "CD,CI"};
    const QString letras = "0123456789000+-. A";
    int copiadas = 0;
    for (int i = 0; i < 40000; ++i) {
        const int e = azar.bounded(14), d = azar.bounded(6);
        Fila_Campo campo = Campo(QString("%1,%2").arg(e).arg(d),
                                 azar.bounded(2) ? "0." + QString(qMax(1, d), u'0')
                                                 : dibujos[azar.bounded(dibujos.size())]);
        campo.especial = especiales[azar.bounded(especiales.size())];
        if (azar.bounded(8) == 0) campo.caracter = azar.bounded(2) ? "" : ",";
        // Nearly all are a sign and digits, the rest anything.
        const bool limpia = azar.bounded(5) != 0;
        QString corte = azar.bounded(3) ? QString(letras[13 + azar.bounded(2)]) : QString();
        for (int n = azar.bounded(18); n > 0; --n)
            corte += letras[azar.bounded(limpia ? 13 : int(letras.size()))];
        corte = Sin_Blancos(corte).toString();
        if (corte.isEmpty()) continue;
        const auto esperado = Paso_A_Paso(corte, campo), obtenido = De_Una_Vez(corte, campo);
        QVERIFY2(obtenido == esperado,
                 qPrintable(QString("\"%1\" %2 %3 %4: %5, no %6")
                                .arg(corte, campo.posdigit, campo.forsalida, campo.especial,
                                     obtenido.value_or("(nada)"), esperado.value_or("(nada)"))));
        copiadas += limpia && esperado;
    }
    QVERIFY(copiadas > 10000);
}

void TestPlan_Campo::las_sumas_al_azar_data()
{
    QTest::addColumn<QString>("familia");
    QTest::newRow("KRT300") << "KRT300";
    QTest::newRow("KRT800") << "KRT800";
    QTest::newRow("NV400") << "NV400";
}

void TestPlan_Campo::las_sumas_al_azar()
{
    QFETCH(const QString, familia);
    QRandomGenerator azar(300);
    const QStringList desplazamientos = {
        "0",       "12",  "-0.5",    "4500000.5", "0.0004",
        "-0.0006", "1e3", "0000500", "9999999",   "-1234567891234567.25"};
    const QStringList posdigits = {"7,3", "7,3", "6,4", "8,2", "0,3"};
    const QString letras = "0123456789000.+- e";
    for (int i = 0; i < 40000; ++i) {
        const Sumador sumador(Familia_De(familia),
                              desplazamientos[azar.bounded(desplazamientos.size())], "7,3",
                              posdigits[azar.bounded(posdigits.size())], "7,3");
        const int limite = azar.bounded(6) ? 14 : int(letras.size());
        QString valor = azar.bounded(3) ? QString(azar.bounded(2) ? u'+' : u'-') : QString();
        for (int n = azar.bounded(15); n > 0; --n)
            valor += letras[azar.bounded(azar.bounded(4) ? 13 : limite)];
        std::optional<QString> esperado, obtenido;
        try {
            esperado = sumador.Sumar(valor);
        } catch (const Error_Ejecucion&) {
        }
        try {
            QString texto = "lo de antes";
            sumador.Sumar(valor, texto);
            obtenido = texto;
        } catch (const Error_Ejecucion&) {
        }
        QVERIFY2(obtenido == esperado, qPrintable(QString("\"%1\": %2, no %3")
                                                      .arg(valor, obtenido.value_or("(nada)"),
                                                           esperado.value_or("(nada)"))));
    }
}

void TestPlan_Campo::los_ceros_de_un_dibujo_data()
{
    QTest::addColumn<QString>("dibujo");
    QTest::addColumn<QString>("ceros");
    QTest::newRow("de ceros") << "0.000"
                              << "1,3";
    QTest::newRow("con enteros fijos") << "000.0"
                                       << "3,1";
    QTest::newRow("almohadilla delante") << "#0.000"
                                         << "";
    QTest::newRow("almohadilla detrás") << "0.0#"
                                        << "";
    QTest::newRow("sin marca") << "0"
                               << "";
    QTest::newRow("sin enteros") << ".00"
                                 << "";
    QTest::newRow("con letras") << "0.00 m"
                                << "";
    QTest::newRow("vacío") << ""
                           << "";
}

void TestPlan_Campo::los_ceros_de_un_dibujo()
{
    QFETCH(const QString, dibujo);
    const auto ceros = Dibujo_Numero(dibujo).De_Ceros();
    QTEST(ceros ? QString("%1,%2").arg(ceros->enteros).arg(ceros->decimales) : QString(), "ceros");
}

void TestPlan_Campo::un_token_sin_dato_deja_lo_que_habia()
{
    Fila_Campo campo;
    campo.posdigit = "*";
    const Plan_Campo plan(campo, std::nullopt);
    QString valor = "12";
    plan.De_Token(u"*", valor);
    QCOMPARE(valor, "12");
    plan.De_Token(u"", valor);
    QCOMPARE(valor, "");
    plan.De_Token(u"7.50", valor);
    QCOMPARE(valor, "7.50");
}

PRUEBA(TestPlan_Campo)
#include "TestPlan_Campo.moc"
