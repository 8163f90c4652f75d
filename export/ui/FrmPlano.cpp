#include "export/ui/FrmPlano.h"

#include "core/Estado_Global.h"
#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"
#include "export/plano/Plano_De_Datos.h"
#include "export/ui/Panel_Plano.h"
#include "export/ui/Visor_Plano.h"

#include <QPushButton>
#include <QVBoxLayout>

FrmPlano::FrmPlano() : Ventana(QStringLiteral("FrmPlano")), panel(new Panel_Plano)
{
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cerrar");
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(panel, 1);
    caja->addLayout(Piezas::Fila_De_Botones({BtnCan}));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(820, 540);
    Poner_Botones(nullptr, BtnCan);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmPlano::Ver(const Sesion_Elegida& sesion)
{
    try {
        const Cursor_De_Espera espera;
        const Plano_Hecho hecho = Plano_De_Sesion(*Base_Datos, sesion);
        setWindowTitle(QStringLiteral("Plano de la sesión %1").arg(sesion.id));
        panel->Poner(hecho, windowTitle());
        if (hecho.plano.Vacio()) {
            Interfaz_Actual().Mensaje("La sesión no tiene puntos con coordenadas que dibujar",
                                      Icono::Informacion);
            Descargar();
            return;
        }
    } catch (...) {
        Informe_Error("No se ha podido dibujar el plano", Error_En_Curso());
        Descargar();
        return;
    }
    Mostrar_Modal();
}
