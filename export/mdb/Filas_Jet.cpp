#include "export/mdb/Filas_Jet.h"

namespace Jet {

Filas::Filas(quint32 dueno, Paginas& paginas, quint32 primera) : Filas(dueno, paginas)
{
    Empezar(primera);
}

void Filas::Empezar(quint32 pagina)
{
    actual.Vaciar();
    numero = pagina;
    propias.Marcar(pagina);
}

Filas::Lugar Filas::Anadir(QByteArrayView fila)
{
    if (numero == 0 || !actual.Cabe(fila.size())) {
        Acabar();
        Empezar(salida.Reservar());
    }
    const quint32 lugar = actual.Anadir(fila).value();
    ++cuantas;
    return {numero, lugar};
}

void Filas::Acabar()
{
    if (numero != 0) salida.Escribir(numero, actual.Acabada());
}

Mapa Filas::Libres() const
{
    Mapa libres{{}, Mapa::VENTANA};
    if (numero != 0) libres.Marcar(numero);
    return libres;
}

} // namespace Jet
