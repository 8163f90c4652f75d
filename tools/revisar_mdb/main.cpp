#include "tools/revisar_mdb/Revisor.h"

#include <QFile>

#include <cstdio>

// Status: 0 sound, 1 complaints, 2 wrong usage or a file that can't be read.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("Uso: revisar_mdb FICHERO\n", stderr);
        return 2;
    }
    QFile fichero(QFile::decodeName(argv[1]));
    if (!fichero.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(fichero.errorString()));
        return 2;
    }
    const qint64 largo = fichero.size();
    const uchar* const bytes = fichero.map(0, largo);
    const QStringList quejas = Revisar_Mdb(QByteArrayView(bytes, bytes ? largo : 0));
    for (const QString& queja : quejas)
        std::puts(qUtf8Printable(queja));
    return quejas.isEmpty() ? 0 : 1;
}
