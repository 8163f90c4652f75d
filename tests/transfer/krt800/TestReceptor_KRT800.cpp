#include "tests/apoyo/Prueba.h"
#include "transfer/krt800/Receptor_KRT800.h"

// The receiver of a KRT800, byte by byte.
class TestReceptor_KRT800 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void acumula_hasta_eot();

private:
    void Dar(const QByteArray& bytes);

    std::unique_ptr<Receptor_KRT800> receptor;
    QByteArray enviado;
    int finales = 0;
};

void TestReceptor_KRT800::init()
{
    receptor = std::make_unique<Receptor_KRT800>();
    enviado.clear();
    finales = 0;
}

void TestReceptor_KRT800::Dar(const QByteArray& bytes)
{
    for (const char c : bytes) {
        const Respuesta_Recepcion r = receptor->Recibir(c);
        enviado += r.envia;
        finales += r.fin;
    }
}

void TestReceptor_KRT800::acumula_hasta_eot()
{
    Dar("JOB A\r\nSTN 1\xF1\r\n");
    QCOMPARE(receptor->Buffer(), QString("JOB A\r\nSTN 1ñ\r\n"));
    QCOMPARE(finales, 0);
    QCOMPARE(receptor->Rescatable(), receptor->Buffer());
    Dar("\x04");
    QCOMPARE(finales, 1);
    QVERIFY(enviado.isEmpty());
}

PRUEBA(TestReceptor_KRT800)
#include "TestReceptor_KRT800.moc"
