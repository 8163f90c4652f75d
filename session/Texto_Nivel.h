#pragma once

// The form: docs/formas/nv400.md

#include "core/jet/Base.h"

/// Display text of a level record: "field:value " for each listed field of its kind, the values as
/// the line has them; fields called "Nulo" are left out.
/// @param id  type letter whose fields are listed
QString Texto_Campos(Base& bd, const QString& id, const QString& linea);
