#pragma once

#include <QStringList>

/// Lines of a raw file in the page of the wire, as they stand: ended by CR LF or LF, or by CR where
/// the file has no LF at all; behind the last end there is no line.
QStringList Lineas_Brutas(const QByteArray& bytes);
