#pragma once

#include "tools/revisar_mdb/Revision.h"

namespace Revision_Mdb {

/// What the header tells the rest of the file.
struct Cabecera {
    QByteArray fecha;     ///< creation date as it is stored
    QByteArray serie_sid; ///< with which the account numbers are obfuscated

    /// @return "Admin", "Users", "Engine", "Creator" or nothing
    QString Cuenta(QByteArrayView sid) const;
};

Cabecera Revisar_Cabecera(Revision& revision);

} // namespace Revision_Mdb
