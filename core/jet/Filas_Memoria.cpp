#include "core/jet/Filas_Memoria.h"

#include "core/jet/Conexion.h"

#include <cstring>
#include <sqlite3.h>

namespace {

// A value is its type's byte and eight bytes: the number itself, or the length of the text behind.
enum Marca : char { Nulo, Entero, Real, Texto };

template <class T> void Escribir(QByteArray& a, Marca marca, T valor)
{
    static_assert(sizeof(T) == 8);
    char octeto[9] = {marca};
    std::memcpy(octeto + 1, &valor, 8);
    a.append(octeto, 9);
}

template <class T> T Leer(const char* p)
{
    T valor;
    std::memcpy(&valor, p, 8);
    return valor;
}

} // namespace

void Filas_Memoria::Anadir(const Sentencia& s)
{
    inicios.push_back(bytes.size());
    for (int i = 0; i < s.Columnas(); ++i) {
        switch (s.Tipo(i)) {
        case SQLITE_NULL:
            Escribir(bytes, Nulo, qint64(0));
            break;
        case SQLITE_INTEGER:
            Escribir(bytes, Entero, s.Entero(i));
            break;
        case SQLITE_FLOAT:
            Escribir(bytes, Real, s.Real(i));
            break;
        default: {
            const QByteArrayView texto = s.Bytes(i);
            Escribir(bytes, Texto, qint64(texto.size()));
            bytes.append(texto.data(), texto.size());
        }
        }
    }
}

std::vector<QVariant> Filas_Memoria::Fila(qint64 n) const
{
    const auto lugar = std::size_t(n);
    const qsizetype fin = lugar + 1 < inicios.size() ? inicios[lugar + 1] : bytes.size();
    std::vector<QVariant> fila;
    for (qsizetype i = inicios[lugar]; i < fin;) {
        const char* const p = bytes.constData() + i;
        i += 9;
        switch (*p) {
        case Entero:
            fila.emplace_back(Leer<qlonglong>(p + 1));
            break;
        case Real:
            fila.emplace_back(Leer<double>(p + 1));
            break;
        case Texto: {
            const auto largo = Leer<qint64>(p + 1);
            fila.emplace_back(QString::fromUtf8(bytes.constData() + i, largo));
            i += largo;
            break;
        }
        default:
            fila.emplace_back();
        }
    }
    return fila;
}

void Filas_Memoria::Vaciar()
{
    bytes.clear();
    inicios.clear();
}
