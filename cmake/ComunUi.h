// Precompiled for the dialogs.
#pragma once
#include "Comun.h"
#include <QtWidgets>
