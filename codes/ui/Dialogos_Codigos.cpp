#include "codes/ui/Dialogos_Codigos.h"

#include "codes/Enlace_Librerias.h"
#include "codes/Peticiones_Codigos.h"
#include "codes/ui/frmCodCrear800.h"
#include "codes/ui/FrmCodigos.h"
#include "codes/ui/frmCodigos800.h"
#include "codes/ui/FrmCodMan800.h"
#include "codes/ui/FrmCodRecibir.h"
#include "codes/ui/FrmCREDLib1.h"
#include "core/ui/Dialogos.h"

namespace {

template <typename Dialogo> void Mostrar_Mantenimiento()
{
    auto& frm = Dialogos::Unico<Dialogo>();
    frm.setWindowTitle(QStringLiteral("Mantenimiento de Librerías de Códigos"));
    frm.Mostrar();
}

void Mostrar_Ficha(Ficha_Libreria& ficha)
{
    if (ficha.Serie_Suya().serie == Serie::B)
        Dialogos::Unico<frmCodCrear800>().Mostrar_Con(ficha);
    else
        Dialogos::Unico<FrmCREDLib1>().Mostrar_Con(ficha);
}

} // namespace

void Conectar_Dialogos_Codigos()
{
    Peticiones_Codigos& pide = Peticiones_De_Codigos();
    pide.Mostrar_Ficha = Mostrar_Ficha;
    pide.Mostrar_Codigo = [](Ficha_Codigo& ficha) {
        Dialogos::Unico<FrmCodMan800>().Mostrar_Con(ficha);
    };
    pide.Pedir_Destino = Pedir_Destino_Libreria;
    Conectar_Librerias();
}

void Mostrar_Librerias()
{
    if (Familia_Actual().librerias == Serie::B)
        Mostrar_Mantenimiento<frmCodigos800>();
    else
        Mostrar_Mantenimiento<FrmCodigos>();
}
