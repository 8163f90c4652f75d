#pragma once

#include <functional>
#include <QtGlobal>

class Base;

/// Rewrites the rows of a session of operation 7 so that those of one profile (same first field)
/// stand together, ordered by their second: each row once, profiles in order of first appearance,
/// sequence numbers untouched. In one pass and one transaction that an error undoes.
/// @param avance  is told now and then how many of all rows have been written; false leaves the
///                rows as they were
/// @return false when `avance` stopped it
/// @throws Error_Ejecucion 3075 when the line that begins a profile holds an apostrophe
bool Ordenar_Perfiles(Base& base, qint64 id,
                      const std::function<bool(qint64 hechas, qint64 todas)>& avance = {});
