#pragma once

#include "core/Error_Ejecucion.h"
#include "transfer/enlace/Puerto_Serie.h"

/// A serial port in memory: the test puts bytes in and looks at what was sent.
class Puerto_Memoria : public Puerto_Serie {
public:
    void Abrir(int numero_, const QString& ajustes_) override
    {
        numero = numero_;
        ajustes = ajustes_;
        if (error_al_abrir) throw Error_Ejecucion(error_al_abrir);
        abierto = true;
        ++aperturas;
    }
    void Cerrar() override { abierto = false; }
    bool Abierto() const override { return abierto; }
    void Enviar(const QByteArray& bytes) override
    {
        if (!abierto) throw Error_Ejecucion(8018);
        if (falla_tras >= 0 && enviado.size() >= falla_tras) throw Error_Ejecucion(8021);
        enviado += bytes;
    }
    qint64 Pendientes() const override { return abierto ? recibido.size() : 0; }

    /// Bytes come in over the wire and raise their events.
    void Llegan(const QByteArray& bytes)
    {
        recibido += bytes;
        Entregar();
    }
    /// What was sent since the last call.
    QByteArray Tomar() { return std::exchange(enviado, {}); }

    int numero = -1;
    QString ajustes;
    bool abierto = false;
    int aperturas = 0;
    int error_al_abrir = 0;
    qsizetype falla_tras = -1;
    QByteArray enviado, recibido;

protected:
    std::optional<char> Sacar_Byte() override
    {
        if (recibido.isEmpty()) return std::nullopt;
        const char c = recibido[0];
        recibido.remove(0, 1);
        return c;
    }
};
