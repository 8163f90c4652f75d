#include "core/Texto_SQL.h"

QString Doblar(const QString& texto)
{
    return QString(texto).replace(QStringLiteral("'"), QStringLiteral("''"));
}
