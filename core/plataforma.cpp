#include "core/plataforma.h"

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <QFile>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

bool plataforma::Sincronizar(QFileDevice& fichero)
{
    if (!fichero.flush()) return false;
#ifdef Q_OS_WIN
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(fichero.handle()))) != 0;
#else
    return fdatasync(fichero.handle()) == 0;
#endif
}

bool plataforma::Reemplazar(const QString& nuevo, const QString& viejo)
{
#ifdef Q_OS_WIN
    return MoveFileExW(reinterpret_cast<LPCWSTR>(nuevo.utf16()),
                       reinterpret_cast<LPCWSTR>(viejo.utf16()),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
#else
    return rename(QFile::encodeName(nuevo).constData(), QFile::encodeName(viejo).constData()) == 0;
#endif
}

bool plataforma::Sincronizar_Carpeta([[maybe_unused]] const QString& carpeta)
{
#ifdef Q_OS_WIN
    return true; // the file system journals its names
#else
    const int d = open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (d < 0) return false;
    const bool bien = fsync(d) == 0;
    close(d);
    return bien;
#endif
}

bool plataforma::Puerto_Colgado([[maybe_unused]] qintptr descriptor)
{
#ifdef Q_OS_WIN
    return false; // the port's own error tells it
#else
    pollfd estado{int(descriptor), POLLIN, 0};
    if (poll(&estado, 1, 0) < 1 || !(estado.revents & (POLLHUP | POLLERR | POLLNVAL))) return false;
    int pendientes = 0;
    return ioctl(int(descriptor), FIONREAD, &pendientes) != 0 || pendientes == 0;
#endif
}
