#pragma once

#include <QString>

/// `texto` as it stands between the apostrophes of an SQL text: its own are doubled. For the
/// statements whose text is given; all others bind their values.
QString Doblar(const QString& texto);
