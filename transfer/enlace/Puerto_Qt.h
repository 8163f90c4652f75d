#pragma once

#include "transfer/enlace/Puerto_Serie.h"

#include <QSerialPort>
#include <QTimer>

/// The machine's serial port.
class Puerto_Qt : public Puerto_Serie {
    Q_OBJECT
public:
    explicit Puerto_Qt(QObject* padre = nullptr);
    /// A port that opens `dispositivo` whatever number it is given.
    explicit Puerto_Qt(const QString& dispositivo, QObject* padre = nullptr);

    void Abrir(int numero, const QString& ajustes) override;
    void Cerrar() override;
    bool Abierto() const override;
    void Enviar(const QByteArray& bytes) override;
    qint64 Pendientes() const override;

protected:
    std::optional<char> Sacar_Byte() override;

private:
    void Al_Fallar(QSerialPort::SerialPortError error);
    void Vigilar();
    void Perder();

    QString dispositivo_fijo;
    QSerialPort puerto;
    QTimer vigia;
};

/// Serial settings cut into their parts. @throws Error_Ejecucion 380 when one of them is unknown
struct Ajustes_Serie {
    qint32 velocidad;
    QSerialPort::Parity paridad;
    QSerialPort::DataBits bits;
    QSerialPort::StopBits parada;
};
Ajustes_Serie Leer_Ajustes_Serie(const QString& ajustes);
