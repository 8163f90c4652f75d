#pragma once

#include <QString>

/// Device of port `numero`: "COMn" on Windows; elsewhere what section [PUERTOS] of Puertos.ini
/// beside the program says ("COM1=/dev/ttyUSB0"), and without an entry the n-th serial device
/// present.
/// @return empty when there is no such port
QString Dispositivo_De_Puerto(int numero);

/// Settings text of the global state: speed, first letter of the parity, data bits, stop bits.
QString Texto_Ajustes_Puerto();
