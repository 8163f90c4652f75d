#pragma once

#include <QByteArrayView>
#include <QtEndian>

#include <array>
#include <cstring>
#include <optional>
#include <type_traits>

/// A little-endian number as it stands in a binary file. It has no alignment, so a struct made only
/// of these is a record's layout byte for byte, to be copied from and to the file.
template <class T> class Campo_LE {
public:
    constexpr Campo_LE() = default;
    Campo_LE(T valor) { qToLittleEndian(valor, bytes.data()); }
    operator T() const { return qFromLittleEndian<T>(bytes.data()); }

private:
    std::array<uchar, sizeof(T)> bytes{};
};

using U8 = quint8;
using U16 = Campo_LE<quint16>;
using U32 = Campo_LE<quint32>;
using U64 = Campo_LE<quint64>;
using F64 = Campo_LE<double>;

/// The bytes of a layout.
template <class Trazado> QByteArrayView Bytes_De(const Trazado& trazado)
{
    static_assert(std::is_trivially_copyable_v<Trazado> && alignof(Trazado) == 1);
    return {reinterpret_cast<const char*>(&trazado), qsizetype(sizeof(Trazado))};
}

/// The layout that stands at `desde`, or nothing when the bytes end before it does.
template <class Trazado>
std::optional<Trazado> Leer_Trazado(QByteArrayView bytes, qsizetype desde = 0)
{
    static_assert(std::is_trivially_copyable_v<Trazado> && alignof(Trazado) == 1);
    if (desde < 0 || desde > bytes.size() || bytes.size() - desde < qsizetype(sizeof(Trazado)))
        return std::nullopt;
    Trazado trazado;
    std::memcpy(&trazado, bytes.data() + desde, sizeof(Trazado));
    return trazado;
}
