#pragma once

#include "transfer/ui/FrmSplash.h"

/// Receiving dialog of a code library that is asked for among the libraries: as `FrmSplash`, but
/// what comes counts before the button too, it is unloaded when the reception has ended, and it
/// says so whichever way it goes.
class FrmSplash2 : public FrmSplash {
    Q_OBJECT
public:
    FrmSplash2();

protected:
    void Al_Descargar() override;
};
