#include "tests/apoyo/Sin_Privilegios.h"

#include <QDirIterator>
#include <QFile>
#include <unistd.h>

namespace {

constexpr uid_t NADIE = 65534;
constexpr auto LEER = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto ENTRAR = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

void Permitir(const QString& carpeta, QFile::Permissions escribir)
{
    QFile::setPermissions(carpeta, LEER | ENTRAR | escribir);
    QDirIterator it(carpeta, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        QFile::setPermissions(it.filePath(),
                              LEER | escribir |
                                  (it.fileInfo().isDir() ? ENTRAR : QFile::Permissions()));
    }
}

} // namespace

Sin_Privilegios::Sin_Privilegios(const QString& c) : carpeta(c), superusuario(geteuid() == 0)
{
    Permitir(carpeta, {});
    if (superusuario && seteuid(NADIE) != 0) qFatal("The user can't be changed");
}

Sin_Privilegios::~Sin_Privilegios()
{
    if (superusuario && seteuid(0) != 0) qFatal("The user can't be changed back");
    Permitir(carpeta, QFile::WriteOwner);
}
