#include "transfer/enlace/Puerto_Qt.h"

#include "core/Error_Ejecucion.h"
#include "core/plataforma.h"
#include "core/Trozos.h"
#include "transfer/enlace/Puertos.h"

#include <QFileInfo>

namespace {

constexpr int MS_VIGIA = 250;

Error_Ejecucion Ajuste_Malo(const QString& que, const QString& valor)
{
    return Error_Ejecucion(380, QStringLiteral("%1 no válida: \"%2\"").arg(que, valor));
}

// The reason in plain words: the system's own texts name calls that no surveyor knows.
Error_Ejecucion Motivo_Apertura(const QSerialPort& puerto, const QString& dispositivo)
{
    const QFileInfo fichero(dispositivo);
    switch (puerto.error()) {
    case QSerialPort::DeviceNotFoundError:
        return Error_Ejecucion(
            8002, QStringLiteral("No se encuentra el dispositivo %1; compruebe que el adaptador "
                                 "está conectado")
                      .arg(dispositivo));
    case QSerialPort::PermissionError:
        if (fichero.exists() && !(fichero.isReadable() && fichero.isWritable()))
            return Error_Ejecucion(
                70, QStringLiteral("No tiene permiso para usar el puerto %1; su usuario debe "
                                   "pertenecer al grupo \"%2\"")
                        .arg(dispositivo, fichero.group()));
        [[fallthrough]];
    case QSerialPort::OpenError:
        return Error_Ejecucion(
            8005, QStringLiteral("El puerto %1 está ocupado por otro programa").arg(dispositivo));
    default:
        return Error_Ejecucion(8015, QStringLiteral("El dispositivo %1 no admite la configuración "
                                                    "pedida")
                                         .arg(dispositivo));
    }
}

} // namespace

Ajustes_Serie Leer_Ajustes_Serie(const QString& ajustes)
{
    const QString velocidad = Trozo(1, ajustes, u',');
    const QString paridad = Trozo(2, ajustes, u',').toUpper();
    const QString bits = Trozo(3, ajustes, u',');
    const QString parada = Trozo(4, ajustes, u',');
    bool bien = false;
    Ajustes_Serie a{};
    a.velocidad = velocidad.trimmed().toInt(&bien);
    if (!bien || a.velocidad <= 0) throw Ajuste_Malo("Velocidad", velocidad);

    if (paridad == u"E")
        a.paridad = QSerialPort::EvenParity;
    else if (paridad == u"O")
        a.paridad = QSerialPort::OddParity;
    else if (paridad == u"N")
        a.paridad = QSerialPort::NoParity;
    else
        throw Ajuste_Malo("Paridad", paridad);

    if (bits == u"8")
        a.bits = QSerialPort::Data8;
    else if (bits == u"7")
        a.bits = QSerialPort::Data7;
    else
        throw Ajuste_Malo("Cantidad de bits de datos", bits);

    if (parada == u"1")
        a.parada = QSerialPort::OneStop;
    else if (parada == u"2")
        a.parada = QSerialPort::TwoStop;
    else
        throw Ajuste_Malo("Cantidad de bits de parada", parada);
    return a;
}

Puerto_Qt::Puerto_Qt(QObject* padre) : Puerto_Qt(QString(), padre) {}

Puerto_Qt::Puerto_Qt(const QString& dispositivo, QObject* padre)
    : Puerto_Serie(padre), dispositivo_fijo(dispositivo)
{
    connect(&puerto, &QSerialPort::readyRead, this, &Puerto_Qt::Entregar);
    connect(&puerto, &QSerialPort::errorOccurred, this, &Puerto_Qt::Al_Fallar);
    vigia.setInterval(MS_VIGIA);
    connect(&vigia, &QTimer::timeout, this, &Puerto_Qt::Vigilar);
}

void Puerto_Qt::Abrir(int numero, const QString& ajustes)
{
    const QString dispositivo =
        dispositivo_fijo.isEmpty() ? Dispositivo_De_Puerto(numero) : dispositivo_fijo;
    if (dispositivo.isEmpty())
        throw Error_Ejecucion(8002, QStringLiteral("No existe el puerto COM%1").arg(numero));
    const Ajustes_Serie a = Leer_Ajustes_Serie(ajustes);
    puerto.setPortName(dispositivo);
    if (!puerto.open(QIODevice::ReadWrite)) throw Motivo_Apertura(puerto, dispositivo);
    if (!puerto.setBaudRate(a.velocidad) || !puerto.setParity(a.paridad) ||
        !puerto.setDataBits(a.bits) || !puerto.setStopBits(a.parada) ||
        !puerto.setFlowControl(QSerialPort::NoFlowControl)) {
        const Error_Ejecucion motivo = Motivo_Apertura(puerto, dispositivo);
        puerto.close();
        throw motivo;
    }
    vigia.start();
}

void Puerto_Qt::Cerrar()
{
    vigia.stop();
    if (!puerto.isOpen()) return;
    puerto.waitForBytesWritten(200); // the last acknowledgement must not die with the port
    puerto.close();
}

bool Puerto_Qt::Abierto() const
{
    return puerto.isOpen();
}

void Puerto_Qt::Enviar(const QByteArray& bytes)
{
    if (!puerto.isOpen()) throw Error_Ejecucion(8018);
    if (puerto.write(bytes) != bytes.size()) throw Error_Ejecucion(8021);
    puerto.flush();
}

qint64 Puerto_Qt::Pendientes() const
{
    return puerto.isOpen() ? puerto.bytesAvailable() : 0;
}

std::optional<char> Puerto_Qt::Sacar_Byte()
{
    char c = 0;
    if (!puerto.isOpen() || !puerto.getChar(&c)) return std::nullopt;
    return c;
}

void Puerto_Qt::Al_Fallar(QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::ResourceError) Perder();
}

// Not every device that goes reports an error: some only read as empty for ever.
void Puerto_Qt::Vigilar()
{
    if (!puerto.isOpen() || !plataforma::Puerto_Colgado(puerto.handle())) return;
    Entregar();
    Perder();
}

void Puerto_Qt::Perder()
{
    if (!vigia.isActive()) return;
    vigia.stop();
    // Closed from the loop: the device's own handler may be running.
    QTimer::singleShot(0, this, [this] { puerto.close(); });
    Q_EMIT perdido(QStringLiteral("Se ha perdido la conexión con el puerto; compruebe el cable"));
}
