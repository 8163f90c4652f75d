#include "simulator/Terminal.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr int PASO_CERRADA = 20; // milliseconds between looks at a port that nobody has open

QString Motivo(const QString& que)
{
    return que + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

simulador::Terminal::~Terminal()
{
    if (!enlace.isEmpty() && QFileInfo(enlace).symLinkTarget() == ruta) QFile::remove(enlace);
    Cortar();
}

QString simulador::Terminal::Crear(const QString& nombre)
{
    const QString motivo = Abrir_Par();
    return motivo.isEmpty() ? Enlazar(nombre) : motivo;
}

QString simulador::Terminal::Abrir_Par()
{
    maestro = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (maestro < 0 || grantpt(maestro) != 0 || unlockpt(maestro) != 0)
        return Motivo(QStringLiteral("no se puede crear el puerto"));
    ruta = QString::fromLocal8Bit(ptsname(maestro));
    termios modo{};
    if (tcgetattr(maestro, &modo) != 0)
        return Motivo(QStringLiteral("no se puede preparar el puerto"));
    // Without this the system would echo and rewrite bytes until the PC's program sets its own
    // mode.
    cfmakeraw(&modo);
    if (tcsetattr(maestro, TCSANOW, &modo) != 0 || fcntl(maestro, F_SETFL, O_NONBLOCK) != 0)
        return Motivo(QStringLiteral("no se puede preparar el puerto"));
    // Once opened and closed, the port reports whether a program has it open.
    const int esclavo = open(qPrintable(ruta), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (esclavo < 0) return Motivo(QStringLiteral("no se puede abrir %1").arg(ruta));
    close(esclavo);
    return {};
}

QString simulador::Terminal::Enlazar(const QString& nombre)
{
    const QFileInfo viejo(nombre);
    if (viejo.isSymLink())
        QFile::remove(nombre);
    else if (viejo.exists())
        return QStringLiteral("%1 existe y no es un enlace").arg(nombre);
    if (!QFile::link(ruta, nombre))
        return Motivo(QStringLiteral("no se puede crear el enlace %1").arg(nombre));
    enlace = nombre;
    return {};
}

bool simulador::Terminal::Abierta()
{
    if (maestro < 0) return false;
    pollfd p{maestro, POLLIN, 0};
    return poll(&p, 1, 0) >= 0 && (p.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

void simulador::Terminal::Esperar(int ms, bool por_escribir)
{
    if (!Abierta()) {
        poll(nullptr, 0, std::min(ms, PASO_CERRADA));
        return;
    }
    pollfd p{maestro, static_cast<short>(POLLIN | (por_escribir ? POLLOUT : 0)), 0};
    poll(&p, 1, ms);
}

QByteArray simulador::Terminal::Leer()
{
    QByteArray bytes(4096, 0);
    const ssize_t n =
        maestro < 0 ? 0 : read(maestro, bytes.data(), static_cast<size_t>(bytes.size()));
    bytes.truncate(std::max<ssize_t>(n, 0));
    return bytes;
}

qsizetype simulador::Terminal::Escribir(const QByteArray& bytes)
{
    if (maestro < 0 || bytes.isEmpty()) return 0;
    return std::max<ssize_t>(write(maestro, bytes.constData(), static_cast<size_t>(bytes.size())),
                             0);
}

void simulador::Terminal::Cortar()
{
    if (maestro >= 0) close(maestro);
    maestro = -1;
}
