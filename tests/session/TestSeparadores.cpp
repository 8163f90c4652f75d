#include "session/Separadores.h"
#include "tests/apoyo/Prueba.h"

class TestSeparadores : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void una_lista_para_todos();
};

void TestSeparadores::una_lista_para_todos()
{
    QCOMPARE(Tag_Separador(), QStringLiteral(" \u0006,\u0006\t"));
    QStringList textos, preguntas, palabras;
    for (const Fila_Separador& fila : Separadores()) {
        textos << fila.texto;
        preguntas << fila.pregunta;
        QCOMPARE(Indice_Separador(fila.palabra), int(palabras.size()));
        palabras << fila.palabra;
    }
    QCOMPARE(textos, (QStringList{" Espacio ( )", " Coma (,)", " Tabulación (|)"}));
    QCOMPARE(preguntas, (QStringList{"<Espacio>", "<Coma (,)>", "<Tabulación>"}));
    QCOMPARE(palabras, (QStringList{"espacio", "coma", "tabulacion"}));
    for (const QStringView otra : {u"", u"Coma", u"coma ", u"punto"})
        QCOMPARE(Indice_Separador(otra), -1);
}

PRUEBA(TestSeparadores)
#include "TestSeparadores.moc"
