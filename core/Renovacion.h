#pragma once

#include "core/jet/Base.h"

/// Stamps a database made for delivery: `sello` says how new its rows are (texts that sort in the
/// order of time), and a sum of each delivered row is kept, by which a later renewal tells them
/// from the user's own.
void Sellar_Entregadas(Base& base, const QString& sello);

/// Renews the reference tables of `base` from the delivered database `plantilla` when that has a
/// newer stamp: what was delivered once and has not been touched makes room for what is delivered
/// now; rows that the user added or changed stay, and so does everything of the user's tables. One
/// transaction. Never fails: what goes wrong is noted in the run log, and the old rows serve on.
/// @return true when rows were renewed
bool Renovar_Entregadas(Base& base, const QString& plantilla);
