#pragma once

#include <optional>
#include <QByteArray>
#include <QObject>
#include <QString>

/// A serial port as the program uses it: without handshake, one byte a reception event, events on
/// the interface's loop.
class Puerto_Serie : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Opens port `numero` (from 1) with `ajustes` as "9600,N,8,1".
    /// @throws Error_Ejecucion 8002 no such port, 8005 already in use, 70 no permission (the group
    ///         to join is named), 380 settings that no port takes, 8015 refused by the device
    virtual void Abrir(int numero, const QString& ajustes) = 0;
    virtual void Cerrar() = 0;
    virtual bool Abierto() const = 0;
    /// @throws Error_Ejecucion 8018 when the port is closed, 8021 when the device fails
    virtual void Enviar(const QByteArray& bytes) = 0;
    /// Bytes received and not yet read.
    virtual qint64 Pendientes() const = 0;
    /// Reads one byte; nothing when none is waiting.
    std::optional<char> Leer();

    /// 1 while each byte raises an event, 0 when none does.
    int RThreshold = 1;

    /// Raises one event a waiting byte, also for those that come in while a handler runs, until an
    /// event has read none or the port is closed. A handler may close or destroy the port.
    void Entregar();

Q_SIGNALS:
    /// One byte can be read.
    void evento();
    /// The device has gone (cable pulled, adapter unplugged); `motivo` in plain words.
    void perdido(const QString& motivo);

protected:
    /// The device's own `Leer`.
    virtual std::optional<char> Sacar_Byte() = 0;

private:
    bool entregando = false;
    quint64 leidos = 0;
};
