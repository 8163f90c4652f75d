#pragma once

#include "codes/ui/Dialogo_Ficha.h"

/// Header of a library of series B.
class frmCodCrear800 : public Dialogo_Ficha {
    Q_OBJECT
public:
    frmCodCrear800();
};
