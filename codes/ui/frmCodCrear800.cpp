#include "codes/ui/frmCodCrear800.h"

frmCodCrear800::frmCodCrear800()
    : Dialogo_Ficha({QStringLiteral("frmCodCrear800"), QStringLiteral("Crear código"),
                     QStringLiteral("txtCod"), QStringLiteral("Nombre:"), QStringLiteral("txtDes"),
                     QStringLiteral("Descripción:")})
{
}
