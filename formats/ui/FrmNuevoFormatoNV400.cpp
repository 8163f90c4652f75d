#include "formats/ui/FrmNuevoFormatoNV400.h"

#include "formats/ui/Estructura_Nivel.h"
#include "formats/ui/Panel_Campos.h"

FrmNuevoFormatoNV400::FrmNuevoFormatoNV400() : FrmNuevoformato("FrmNuevoFormatoNV400")
{
    CbEstructura = Hacer_Estructura([this](Mitad_Nivel mitad) {
        if (!Del_Nivel()) return;
        Del_Nivel()->Elegir_Mitad(mitad);
        Mostrar_Datos();
    });
    panel->Rotular([this](const QString& campo) {
        return Del_Nivel() ? Del_Nivel()->mitades.Rotulo(campo) : campo;
    });
    Montar({{"Estructura del Fichero", CbEstructura}});
}

void FrmNuevoFormatoNV400::Mostrar_Datos()
{
    CbEstructura->setCurrentIndex(int(Del_Nivel()->mitades.en_vista));
    FrmNuevoformato::Mostrar_Datos();
}
