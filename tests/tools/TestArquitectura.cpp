#include "core/Sumas.h"
#include "tests/apoyo/Prueba.h"

#include <QDirIterator>
#include <QRegularExpression>

/// The house's papers against the house: what they name exists, what exists is named, and the frames
/// that they draw carry the sums that the program computes.
class TestArquitectura : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lo_nombrado_existe_data();
    void lo_nombrado_existe();
    void los_enlaces_llevan_a_una_pagina_data();
    void los_enlaces_llevan_a_una_pagina();
    void cada_carpeta_esta_nombrada_data();
    void cada_carpeta_esta_nombrada();
    void cada_pagina_esta_en_el_indice();
    void las_paginas_que_nombran_las_fuentes_existen();
    void las_sumas_dibujadas_son_ciertas();

private:
    static QString Raiz() { return QStringLiteral(RAIZ_FUENTES "/"); }
    static QString Leer(const QString& pagina);
    static QStringList Paginas();
    static QStringList Carpetas();
    static bool Existe(const QString& nombrado);
};

QString TestArquitectura::Leer(const QString& pagina)
{
    QFile f(Raiz() + pagina);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

/// The papers, as paths from the root.
QStringList TestArquitectura::Paginas()
{
    QStringList paginas{QStringLiteral("README.md")};
    for (const char* carpeta : {"docs", "docs/formas"})
        for (const QString& f : QDir(Raiz() + carpeta).entryList({"*.md"}, QDir::Files))
            paginas << carpeta + ('/' + f);
    return paginas;
}

/// Folders of the tree and their rooms, those aside that hold no sources and no data.
QStringList TestArquitectura::Carpetas()
{
    static const QStringList FUERA{"build", "docs", "Testing"};
    QStringList carpetas;
    const auto hijas = [](const QString& de) {
        return QDir(Raiz() + de).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    };
    for (const QString& carpeta : hijas({})) {
        if (FUERA.contains(carpeta)) continue;
        carpetas << carpeta;
        for (const QString& sala : hijas(carpeta)) {
            // Dialogs lie in a folder of one name on each floor; tests mirror the folders; the
            // delivered pictures are named with what uses them.
            const bool callada = sala == u"ui" || sala == u"__pycache__" || carpeta == u"data" ||
                                 (carpeta == u"tests" && QDir(Raiz() + sala).exists());
            if (!callada && sala != u"tools") carpetas << carpeta + '/' + sala;
        }
    }
    return carpetas;
}

/// A file, a folder, or a unit named without its ending.
bool TestArquitectura::Existe(const QString& nombrado)
{
    return QFileInfo::exists(Raiz() + nombrado) || QFileInfo::exists(Raiz() + nombrado + ".h") ||
           QFileInfo::exists(Raiz() + nombrado + ".cpp");
}

void TestArquitectura::lo_nombrado_existe_data()
{
    QTest::addColumn<QString>("pagina");
    for (const QString& pagina : Paginas())
        QTest::newRow(qPrintable(pagina)) << pagina;
}

void TestArquitectura::lo_nombrado_existe()
{
    QFETCH(const QString, pagina);
    static const QRegularExpression NOMBRE(
        QStringLiteral("`((?:\\./)?[\\w.][\\w./-]*/[\\w./-]*)`"));
    QStringList faltan;
    int vistos = 0;
    for (const auto& m : NOMBRE.globalMatch(Leer(pagina))) {
        const QString nombrado = QDir::cleanPath(m.captured(1));
        // Only what begins with a folder of the root is a path of the sources.
        if (!QDir(Raiz() + nombrado.section('/', 0, 0)).exists() || nombrado.startsWith(u"build"))
            continue;
        ++vistos;
        if (!Existe(nombrado)) faltan << nombrado;
    }
    QVERIFY2(faltan.isEmpty(), qPrintable(faltan.join(QStringLiteral(", "))));
    if (pagina.endsWith(u"architecture.md")) QVERIFY(vistos > 40);
}

void TestArquitectura::los_enlaces_llevan_a_una_pagina_data()
{
    lo_nombrado_existe_data();
}

void TestArquitectura::los_enlaces_llevan_a_una_pagina()
{
    QFETCH(const QString, pagina);
    static const QRegularExpression ENLACE(QStringLiteral("\\]\\(([^)#:]+)\\)"));
    const QString carpeta = QFileInfo(Raiz() + pagina).path();
    QStringList faltan;
    for (const auto& m : ENLACE.globalMatch(Leer(pagina)))
        if (!QFileInfo::exists(carpeta + '/' + m.captured(1))) faltan << m.captured(1);
    QVERIFY2(faltan.isEmpty(), qPrintable(faltan.join(QStringLiteral(", "))));
}

void TestArquitectura::cada_carpeta_esta_nombrada_data()
{
    QTest::addColumn<QString>("carpeta");
    for (const QString& carpeta : Carpetas())
        QTest::newRow(qPrintable(carpeta)) << carpeta;
}

void TestArquitectura::cada_carpeta_esta_nombrada()
{
    QFETCH(const QString, carpeta);
    QVERIFY2(Leer(QStringLiteral("docs/architecture.md")).contains('`' + carpeta + "/`"),
             qPrintable(carpeta));
}

void TestArquitectura::cada_pagina_esta_en_el_indice()
{
    const QString indice = Leer(QStringLiteral("docs/formas/README.md"));
    int vistas = 0;
    for (const QString& pagina : Paginas()) {
        if (!pagina.startsWith(u"docs/formas/") || pagina.endsWith(u"README.md")) continue;
        ++vistas;
        const QString nombre = QFileInfo(pagina).fileName();
        QVERIFY2(indice.contains('(' + nombre + ')'), qPrintable(nombre));
    }
    QVERIFY(vistas > 10);
}

void TestArquitectura::las_paginas_que_nombran_las_fuentes_existen()
{
    static const QRegularExpression PAGINA(QStringLiteral("docs/[\\w/-]+\\.md"));
    int fuentes = 0;
    for (const QString& carpeta : Carpetas()) {
        for (const QString& f : QDir(Raiz() + carpeta).entryList({"*.h", "*.cpp"}, QDir::Files)) {
            ++fuentes;
            for (const auto& m : PAGINA.globalMatch(Leer(carpeta + '/' + f)))
                QVERIFY2(QFileInfo::exists(Raiz() + m.captured(0)),
                         qPrintable(f + ": " + m.captured(0)));
        }
    }
    QVERIFY(fuentes > 200);
}

void TestArquitectura::las_sumas_dibujadas_son_ciertas()
{
    // A frame holds its sum as the last three characters, a level line as the last but one.
    static const QRegularExpression TRAMA(QStringLiteral("<STX>([^<]+)(\\d{3})<ETX>(.*)"));
    static const QRegularExpression LINEA(QStringLiteral("^(?:`?)([A-Za-z],(?:\\d\\d,.*|))(.),`?$"),
                                          QRegularExpression::MultilineOption);
    int tramas = 0, lineas = 0;
    for (const QString& pagina : Paginas()) {
        if (!pagina.startsWith(u"docs/formas/")) continue;
        const QString texto = Leer(pagina);
        for (const auto& m : TRAMA.globalMatch(texto)) {
            if (m.captured(3).contains(u"no sum")) continue;
            ++tramas;
            QVERIFY2(Suma_XOR(m.captured(1)) == m.captured(2), qPrintable(m.captured(0)));
        }
        for (const auto& m : LINEA.globalMatch(texto)) {
            ++lineas;
            QVERIFY2(Suma_Nivel(m.captured(1)) == m.captured(2).at(0), qPrintable(m.captured(0)));
        }
    }
    QVERIFY2(tramas >= 3 && lineas >= 10, qPrintable(QString("%1 %2").arg(tramas).arg(lineas)));
}

PRUEBA(TestArquitectura)
#include "TestArquitectura.moc"
