#include "core/Ficheros.h"
#include "tests/apoyo/Prueba.h"

#include <QDirIterator>
#include <QRegularExpression>

/// The rooms of the converters stand one above the other: what a reader needs of another kind's
/// room would tie two forms together that change apart.
class TestSalas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ninguna_flecha_hacia_arriba();
};

void TestSalas::ninguna_flecha_hacia_arriba()
{
    // Rooms of one height don't see each other.
    const QHash<QString, int> ALTURAS = {{"suelo", 0},       {"ejes", 1},       {"rasantes", 1},
                                         {"secciones", 1},   {"puntos", 1},     {"landxml", 2},
                                         {"instrumento", 2}, {"biblioteca", 3}, {"ui", 4}};
    static const QRegularExpression incluye(
        QStringLiteral("#include \"(\\w+)/(?:(\\w+)/)?[^\"]+\""));
    const QDir raiz(QStringLiteral(RAIZ_FUENTES "/conversions"));
    int flechas = 0;
    for (QDirIterator i(raiz.path(), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
         i.hasNext();) {
        const QString fichero = raiz.relativeFilePath(i.next());
        const QString sala = fichero.section(u'/', 0, 0);
        QVERIFY2(ALTURAS.contains(sala), qPrintable(fichero));
        const QString texto = QString::fromUtf8(Ficheros::Leer(raiz.filePath(fichero)));
        for (auto m = incluye.globalMatch(texto); m.hasNext();) {
            const auto cual = m.next();
            const QString otra = cual.captured(2);
            if (cual.captured(1) != u"conversions" || otra == sala) continue;
            QVERIFY2(ALTURAS.contains(otra) && ALTURAS[otra] < ALTURAS[sala],
                     qPrintable(fichero + " incluye " + cual.captured()));
            ++flechas;
        }
    }
    QVERIFY(flechas > 50);
}

PRUEBA(TestSalas)
#include "TestSalas.moc"
