#include "formats/ui/FrmFormatosNV400.h"

#include "core/Familia.h"
#include "formats/ui/Estructura_Nivel.h"
#include "formats/ui/Panel_Campos.h"

FrmFormatosNV400::FrmFormatosNV400()
    : Frmformatos("FrmFormatosNV400", "Formato del Nivel Digital", "FORMATOSNV400",
                  std::make_unique<Mantenimiento_Nivel>())
{
    CbEstructura = Hacer_Estructura([this](Mitad_Nivel mitad) {
        Del_Nivel().Elegir_Mitad(mitad);
        Mostrar_Datos();
    });
    panel->Rotular([this](const QString& campo) { return Del_Nivel().mitades.Rotulo(campo); });
    Montar({{"Estructura :", CbEstructura}});
}

void FrmFormatosNV400::Mostrar_Datos()
{
    CbEstructura->setCurrentIndex(int(Del_Nivel().mitades.en_vista));
    Frmformatos::Mostrar_Datos();
}

void FrmFormatosNV400::Al_Cambiar_Modelo()
{
    if (Familia_Actual().serie != Serie::Nivel) Descargar();
}
