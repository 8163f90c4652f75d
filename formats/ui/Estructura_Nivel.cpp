#include "formats/ui/Estructura_Nivel.h"

#include "core/ui/Piezas.h"

QComboBox* Hacer_Estructura(const std::function<void(Mitad_Nivel)>& al_elegir)
{
    QComboBox* const combo = Piezas::Combo("CbEstructura");
    combo->addItem("Encabezado del Archivo", Clave_De(Mitad_Nivel::Cabecera));
    combo->addItem("Detalle del Archivo", Clave_De(Mitad_Nivel::Detalle));
    QObject::connect(combo, &QComboBox::activated, combo,
                     [al_elegir](int indice) { al_elegir(Mitad_Nivel(indice)); });
    return combo;
}
