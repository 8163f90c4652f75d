#include "codes/ui/FrmCREDLib1.h"

FrmCREDLib1::FrmCREDLib1()
    : Dialogo_Ficha({QStringLiteral("FrmCREDLib1"),
                     QStringLiteral("Crear/Editar Librería de códigos"), QStringLiteral("Text1"),
                     QStringLiteral("Nombre :"), QStringLiteral("Text2"),
                     QStringLiteral("Descripción:")})
{
}
