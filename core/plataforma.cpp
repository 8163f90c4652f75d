#include "core/plataforma.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <array>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <QSocketNotifier>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
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

bool plataforma::Marcar_En_Uso(const QFileDevice& fichero)
{
#ifdef Q_OS_WIN
    // A byte far behind any data: reading the file stays possible.
    OVERLAPPED lejos{};
    lejos.OffsetHigh = 0x40000000;
    return LockFileEx(reinterpret_cast<HANDLE>(_get_osfhandle(fichero.handle())),
                      LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &lejos) != 0;
#else
    // A file system without marks doesn't know of others either.
    return flock(fichero.handle(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
#endif
}

bool plataforma::Copiar_Permisos(const QString& modelo, const QString& nuevo)
{
#ifdef Q_OS_WIN
    return QFile::setPermissions(nuevo, QFile::permissions(modelo));
#else
    struct stat como {};
    const QByteArray ruta = QFile::encodeName(nuevo);
    if (stat(QFile::encodeName(modelo).constData(), &como) != 0) return false;
    // Only the superuser gives files away; the group may be one of the user's own.
    const bool dado = chown(ruta.constData(), como.st_uid, como.st_gid) == 0 ||
                      chown(ruta.constData(), uid_t(-1), como.st_gid) == 0;
    return chmod(ruta.constData(), como.st_mode & 07777) == 0 && dado;
#endif
}

namespace {

plataforma::Pregunta_Sistema otra_pregunta = nullptr;

QByteArray Sistema_Propio(const QString& fichero)
{
    const QString carpeta = QFileInfo(fichero).absolutePath();
#ifdef Q_OS_WIN
    const QString unidad = QDir::toNativeSeparators(QStorageInfo(carpeta).rootPath());
    if (carpeta.startsWith(QStringLiteral("//")) ||
        GetDriveTypeW(reinterpret_cast<LPCWSTR>(unidad.utf16())) == DRIVE_REMOTE)
        return "red";
#endif
    return QStorageInfo(carpeta).fileSystemType();
}

} // namespace

QByteArray plataforma::Sistema_De_Ficheros(const QString& fichero)
{
    return otra_pregunta ? otra_pregunta(fichero) : Sistema_Propio(fichero);
}

void plataforma::Poner_Sistema_De_Ficheros(Pregunta_Sistema pregunta)
{
    otra_pregunta = pregunta;
}

bool plataforma::Es_De_Red(const QByteArray& sistema)
{
    // "fuse." is a folder served by a program, nearly always another machine's; a local disk that
    // is served so calls itself "fuseblk".
    static constexpr const char* principios[] = {"red",  "nfs",  "cifs",   "smb",    "ncp",   "afs",
                                                 "9p",   "ceph", "coda",   "fuse.",  "dav",   "gfs",
                                                 "ocfs", "gpfs", "lustre", "vboxsf", "prl_fs"};
    for (const char* p : principios)
        if (sistema.startsWith(p)) return true;
    return false;
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

namespace {

plataforma::Peticion_De_Fin* peticion = nullptr;

#ifdef Q_OS_WIN

// Runs on a thread of the system's, which kills the process when it returns: it waits a little for
// the loop to end the program in order.
BOOL WINAPI Al_Pedir_Fin(DWORD)
{
    constexpr DWORD MS_PARA_ACABAR = 4000;
    if (!peticion) return FALSE;
    QMetaObject::invokeMethod(peticion, &plataforma::Peticion_De_Fin::pedido, Qt::QueuedConnection);
    Sleep(MS_PARA_ACABAR);
    return TRUE;
}

#else

constexpr std::array SENALES = {SIGTERM, SIGINT, SIGHUP};
std::array<struct sigaction, SENALES.size()> anteriores;
std::array<int, 2> tubo = {-1, -1};

// All that a handler may do: the loop hears of it through the pipe.
void Al_Pedir_Fin(int)
{
    const int error = errno;
    const char uno = 1;
    [[maybe_unused]] const ssize_t escrito = write(tubo[1], &uno, 1);
    errno = error;
}

#endif

} // namespace

plataforma::Peticion_De_Fin::Peticion_De_Fin(QObject* padre) : QObject(padre)
{
    if (peticion) return;
#ifdef Q_OS_WIN
    peticion = this;
    SetConsoleCtrlHandler(Al_Pedir_Fin, TRUE);
#else
    if (pipe2(tubo.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    peticion = this;
    auto* const aviso = new QSocketNotifier(tubo[0], QSocketNotifier::Read, this);
    connect(aviso, &QSocketNotifier::activated, this, [this] {
        char c;
        while (read(tubo[0], &c, 1) == 1) {
        }
        Q_EMIT pedido();
    });
    struct sigaction accion = {};
    accion.sa_handler = Al_Pedir_Fin;
    accion.sa_flags = SA_RESTART;
    for (size_t i = 0; i < SENALES.size(); ++i)
        sigaction(SENALES[i], &accion, &anteriores[i]);
#endif
}

plataforma::Peticion_De_Fin::~Peticion_De_Fin()
{
    if (peticion != this) return;
    peticion = nullptr;
#ifdef Q_OS_WIN
    SetConsoleCtrlHandler(Al_Pedir_Fin, FALSE);
#else
    for (size_t i = 0; i < SENALES.size(); ++i)
        sigaction(SENALES[i], &anteriores[i], nullptr);
    close(tubo[0]);
    close(tubo[1]);
    tubo = {-1, -1};
#endif
}
