#pragma once

// The form: docs/formas/access.md

#include <array>
#include <QByteArray>
#include <QStringView>
#include <QtEndian>

/// What all layers of a Jet 4 file share: the page, its kinds and the order of its bytes.
/// Numbers are little-endian, except inside index entries.
namespace Jet {

constexpr int TAMANO_PAGINA = 4096;
using Pagina = std::array<uchar, TAMANO_PAGINA>;

/// First byte of every page but the header; the second is always `MARCA_PAGINA`.
enum class Clase_Pagina : uchar { DATOS = 1, DEFINICION = 2, HOJA_INDICE = 4, MAPA = 5 };
constexpr uchar MARCA_PAGINA = 1;

/// Offsets that every kind of page has in common.
enum Cabecera_Pagina { PAG_CLASE = 0x00, PAG_MARCA = 0x01, PAG_LIBRE = 0x02, PAG_DUENO = 0x04 };

/// Version stamp in front of table, column and logical-index definitions, and that of real indexes.
constexpr quint32 SELLO_DEFINICION = 0x659;
constexpr quint32 SELLO_INDICE = 0x783;

/// Longest name of a table or column, and most columns of a table: beyond, the engine refuses the
/// whole file.
constexpr qsizetype LARGO_NOMBRE = 64;
constexpr qsizetype COLUMNAS_MAXIMAS = 255;

template <class Numero> void Poner(Pagina& pagina, int donde, Numero valor)
{
    qToLittleEndian<Numero>(valor, pagina.data() + donde);
}

/// A fresh page of zeros with its kind set.
inline Pagina Pagina_Nueva(Clase_Pagina clase)
{
    Pagina pagina{};
    pagina[PAG_CLASE] = static_cast<uchar>(clase);
    pagina[PAG_MARCA] = MARCA_PAGINA;
    return pagina;
}

/// Row `fila` of page `pagina`, as rows of usage maps and long values are pointed at.
constexpr quint32 Puntero(quint32 pagina, quint32 fila)
{
    return pagina << 8 | fila;
}

/// Bytes written one behind the other, so that a layout reads as the list of its fields.
class Tira {
public:
    Tira& U8(quint8 v) { return Numero(v); }
    Tira& U16(quint16 v) { return Numero(v); }
    Tira& U32(quint32 v) { return Numero(v); }
    Tira& Ceros(qsizetype cuantos)
    {
        bytes.append(cuantos, '\0');
        return *this;
    }
    Tira& Bytes(QByteArrayView v)
    {
        bytes.append(v);
        return *this;
    }
    /// UTF-16, without a length.
    Tira& Texto(QStringView v)
    {
        if (v.isEmpty()) return *this;
        const qsizetype donde = bytes.size();
        bytes.resize(donde + 2 * v.size());
        qToLittleEndian<char16_t>(v.utf16(), v.size(), bytes.data() + donde);
        return *this;
    }
    /// A name: its length in bytes, then its UTF-16.
    Tira& Nombre(QStringView v) { return U16(static_cast<quint16>(2 * v.size())).Texto(v); }

    qsizetype Largo() const { return bytes.size(); }
    const QByteArray& Hecha() const { return bytes; }

private:
    template <class T> Tira& Numero(T v)
    {
        char cruda[sizeof(T)];
        qToLittleEndian<T>(v, cruda);
        bytes.append(cruda, sizeof(T));
        return *this;
    }

    QByteArray bytes;
};

} // namespace Jet
