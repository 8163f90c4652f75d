#include "core/ui/Traductor_Qt.h"

#include "core/ModLOG.h"

#include <QHash>
#include <QLibraryInfo>

namespace {

struct Par {
    const char* texto;
    const char16_t* espanol;
};

// The same English words mean the same in every context, so the table has none.
constexpr Par PARES[] = {
    // Lacking
    {"Choose", u"Elegir"},
    {"Open Files", u"Abrir archivos"},
    // Wrong: without its first letter, and the words of the button that makes a new one
    {"Go to the parent directory", u"Ir al directorio superior"},
    {"File Folder", u"Carpeta de archivos"},
};

QHash<QByteArray, QString> Tabla()
{
    QHash<QByteArray, QString> tabla;
    for (const auto& [texto, espanol] : PARES)
        tabla.insert(texto, QString::fromUtf16(espanol));
    return tabla;
}

} // namespace

Traductor_Qt::Traductor_Qt(const QString& carpeta, QObject* padre) : QTranslator(padre)
{
    const QString fichero = QStringLiteral("qtbase_es.qm");
    if (!load(fichero, carpeta) &&
        !load(fichero, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        Anotar(QStringLiteral("Traductor_Qt"), QStringLiteral("Falta ") + fichero);
}

QString Traductor_Qt::translate(const char* contexto, const char* texto, const char* aclaracion,
                                int n) const
{
    static const QHash<QByteArray, QString> tabla = Tabla();
    const auto propio = tabla.constFind(QByteArray::fromRawData(texto, qsizetype(qstrlen(texto))));
    return propio != tabla.constEnd() ? *propio
                                      : QTranslator::translate(contexto, texto, aclaracion, n);
}
