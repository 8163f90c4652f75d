#pragma once

#include "core/ui/Ventana.h"

/// Reminder of the port's settings before a transfer.
class FrmRecuerde : public Ventana {
    Q_OBJECT
public:
    FrmRecuerde();
};
