#include "transfer/enlace/Receptor.h"

Receptor::~Receptor() = default;

QString Receptor::Rescatable() const
{
    return buffer;
}
