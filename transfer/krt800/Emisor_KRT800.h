#pragma once

// The form: docs/formas/krt800.md

#include "transfer/enlace/Emisor.h"

/// Sends to a KRT800: one character after another with a pause behind each, which is all the flow
/// control there is, and an EOT at the end unless the text holds one. Nothing is read, nothing
/// times out.
class Emisor_KRT800 : public Emisor {
public:
    explicit Emisor_KRT800(const Datos_Envio& datos);

    qint64 Maximo() const override;
    Paso_Envio Empezar_Envio() override;
    Paso_Envio Seguir() override;
    QString Resumen() const override;
    QStringList Traza_Pendiente() const override;
    QString Mensaje_De_Fallo() const override;

private:
    Paso_Envio Acabar() const;

    QString texto;
    QByteArray bytes;
    qsizetype enviados = 0;
    qsizetype desde_barra = 0; ///< characters since the bar moved
};
