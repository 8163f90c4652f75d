#pragma once

#include "codes/ui/Dialogo_Ficha.h"

/// Header of a library of series A.
class FrmCREDLib1 : public Dialogo_Ficha {
    Q_OBJECT
public:
    FrmCREDLib1();
};
