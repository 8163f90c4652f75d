#include "core/Estado_Global.h"
#include "core/ModEstTotal.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Global.h"

#include <QString>

class TestEstado_Global : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_unico_es_uno();
    void la_sala_devuelve_lo_anunciado();
    void la_sala_reinicia_lo_que_no_habia();
    void la_sala_devuelve_los_globales();
};

namespace {

struct Preguntas {
    std::function<int()> Contar = [] { return 7; };
};
struct Otras_Preguntas {
    std::function<int()> Contar;
};
Otras_Preguntas Con_Ocho()
{
    return {[] { return 8; }};
}

} // namespace

void TestEstado_Global::lo_unico_es_uno()
{
    QCOMPARE(&Estado_Global::Unico<Preguntas>(), &Estado_Global::Unico<Preguntas>());
    QCOMPARE(Estado_Global::Unico<Preguntas>().Contar(), 7);
    const std::size_t antes = Estado_Global::Piezas().size();
    Estado_Global::Unico<Preguntas>();
    QCOMPARE(Estado_Global::Piezas().size(), antes);
}

void TestEstado_Global::la_sala_devuelve_lo_anunciado()
{
    Preguntas& preguntas = Estado_Global::Unico<Preguntas>();
    preguntas.Contar = [] { return 1; };
    {
        const Sala_Global sala;
        QCOMPARE(preguntas.Contar(), 1);
        preguntas.Contar = [] { return 2; };
    }
    QCOMPARE(preguntas.Contar(), 1);
    preguntas = Preguntas();
}

void TestEstado_Global::la_sala_reinicia_lo_que_no_habia()
{
    {
        const Sala_Global sala;
        Otras_Preguntas& otras = Estado_Global::Unico(Con_Ocho);
        QCOMPARE(otras.Contar(), 8);
        otras.Contar = [] { return 3; };
    }
    QCOMPARE(Estado_Global::Unico(Con_Ocho).Contar(), 8);
}

void TestEstado_Global::la_sala_devuelve_los_globales()
{
    Puerto = "COM3";
    Desp_X = "5";
    {
        const Sala_Global sala;
        QVERIFY(Puerto.isEmpty());
        QCOMPARE(Desp_X, QString("0"));
        Puerto = "COM4";
        Ayuda_Visible = true;
    }
    QCOMPARE(Puerto, QString("COM3"));
    QCOMPARE(Desp_X, QString("5"));
    QVERIFY(!Ayuda_Visible);
    Puerto.clear();
    Desp_X = "0";
}

PRUEBA(TestEstado_Global)
#include "TestEstado_Global.moc"
