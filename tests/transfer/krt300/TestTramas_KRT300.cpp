#include "tests/apoyo/Prueba.h"
#include "transfer/krt300/Tramas_KRT300.h"

// The frames, byte for byte.
class TestTramas_KRT300 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_fijas()
    {
        QCOMPARE(Tramas_KRT300::Apertura(), QString("\2F00F000\3\r\n"));
        QCOMPARE(Tramas_KRT300::Cabecera(),
                 QString("\2BARCELONA +123400002.01555510-209999S052\3\r\n"));
        QCOMPARE(Tramas_KRT300::Cierre(), QString("\2\4\3\r\n"));
    }
    void los_bloques()
    {
        const QString texto = QString(128, 'a') + "b";
        // An even number of equal codes cancels out: what is left is the digit, or "b", 127 blanks
        // and the digit.
        QCOMPARE(Tramas_KRT300::Bloque(texto, 1), '\2' + QString(128, 'a') + "0048\3\r\n");
        QCOMPARE(Tramas_KRT300::Bloque(texto, 2), "\2b" + QString(127, ' ') + "1115\3\r\n");
        QCOMPARE(Tramas_KRT300::Bloque(texto, 3), '\2' + QString(128, ' ') + "2050\3\r\n");
        QCOMPARE(Tramas_KRT300::Bloque({}, 1), '\2' + QString(128, ' ') + "0048\3\r\n");
        QCOMPARE(Tramas_KRT300::Bloque({}, 11), '\2' + QString(128, ' ') + "0048\3\r\n");
    }
};

PRUEBA(TestTramas_KRT300)
#include "TestTramas_KRT300.moc"
