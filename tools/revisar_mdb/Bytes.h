#pragma once

#include <QByteArrayView>
#include <QString>
#include <QtEndian>

namespace Revision_Mdb {

/// What stands where can't be read any further.
struct Rotura {
    QString texto;
};

/// Bytes of a file, read with their bounds kept.
class Bytes {
public:
    Bytes() = default;
    Bytes(QByteArrayView v) : vista(v) {}

    qsizetype Largo() const { return vista.size(); }
    QByteArrayView Vista() const { return vista; }

    quint8 U8(qsizetype donde) const { return Leer<quint8>(donde); }
    quint16 U16(qsizetype donde) const { return Leer<quint16>(donde); }
    quint32 U32(qsizetype donde) const { return Leer<quint32>(donde); }

    Bytes Parte(qsizetype desde, qsizetype largo) const
    {
        if (desde < 0 || largo < 0 || desde > Largo() || largo > Largo() - desde)
            throw Rotura{QStringLiteral("%1 bytes desde %2 se salen de %3")
                             .arg(largo)
                             .arg(desde)
                             .arg(Largo())};
        return vista.sliced(desde, largo);
    }
    Bytes Desde(qsizetype desde) const { return Parte(desde, Largo() - desde); }

    /// Whether all are zero.
    bool Ceros() const
    {
        for (const char c : vista)
            if (c != 0) return false;
        return true;
    }
    bool operator==(QByteArrayView otra) const { return vista == otra; }
    /// UTF-16 text that fills all the bytes.
    QString Utf16() const
    {
        QString texto(Largo() / 2, Qt::Uninitialized);
        for (qsizetype i = 0; i < texto.size(); ++i)
            texto[i] = QChar(U16(2 * i));
        return texto;
    }

private:
    template <class Numero> Numero Leer(qsizetype donde) const
    {
        return qFromLittleEndian<Numero>(Parte(donde, sizeof(Numero)).vista.data());
    }

    QByteArrayView vista;
};

/// Reads fields one behind the other.
class Cursor {
public:
    explicit Cursor(Bytes b) : bytes(b) {}
    quint8 U8() { return bytes.U8(Avanzar(1)); }
    quint16 U16() { return bytes.U16(Avanzar(2)); }
    quint32 U32() { return bytes.U32(Avanzar(4)); }
    Bytes Parte(qsizetype largo) { return bytes.Parte(Avanzar(largo), largo); }
    qsizetype Lugar() const { return lugar; }
    bool Acabado() const { return lugar >= bytes.Largo(); }

private:
    qsizetype Avanzar(qsizetype largo)
    {
        const qsizetype antes = lugar;
        lugar += largo;
        return antes;
    }

    Bytes bytes;
    qsizetype lugar = 0;
};

} // namespace Revision_Mdb
