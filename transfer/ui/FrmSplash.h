#pragma once

#include "core/ui/Ventana.h"
#include "transfer/enlace/Descarga.h"

#include <functional>

class QLabel;

/// Download dialog of all families: shows what its conversation does.
class FrmSplash : public Ventana {
    Q_OBJECT
public:
    FrmSplash() : FrmSplash(QStringLiteral("FrmSplash")) {}

    Descarga& La_Descarga() { return *descarga; }

    /// Makes the port of a dialog that is loaded; another than the machine's for
    /// tests.
    static std::function<std::unique_ptr<Puerto_Serie>()> Hacer_Puerto;

protected:
    explicit FrmSplash(const QString& nombre);
    void Colocar() override;
    bool Consiente_Cerrar() override;
    void Al_Descargar() override;

private:
    void Conectar();

    Descarga* descarga;
    QLabel* Label1;
    QPushButton* BtnIniciar;
};
