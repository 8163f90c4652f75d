#include "conversions/secciones/Lectores_Secciones.h"
#include "conversions/secciones/Secciones_Comun.h"

using namespace Campos_Fuente;

namespace {

enum class Forma { Bloques, Filas };

// Form that a "*" line switches to; nothing for a title.
std::optional<Forma> Forma_De(QByteArrayView linea)
{
    const Lista palabras = Por_Blancos(linea);
    const QByteArrayView palabra = Por_Separador(palabras[0], ',')[0];
    if (Iguales(palabra, "*TER") || Iguales(palabra, "*TRV")) return Forma::Bloques;
    if (Iguales(palabra, "*REP")) return Forma::Filas;
    return {};
}

class Lector {
public:
    Lector(Texto_Fuente& f, Forma inicial) : fuente(f), forma(inicial) {}

    Secciones Leer()
    {
        while (fuente.Siguiente())
            Leer_Linea(Recortar(fuente.Linea()));
        contada.Exigir_Completa();
        return Secciones_Comun::Terminar(std::move(secciones));
    }

private:
    void Leer_Linea(QByteArrayView linea)
    {
        if (linea.startsWith('*')) {
            const auto nueva = Forma_De(linea);
            if (!nueva) return;
            contada.Exigir_Completa();
            forma = *nueva;
            return;
        }
        if (forma == Forma::Filas)
            Leer_Fila(linea);
        else if (contada.Espera_Filas())
            Leer_Fila_De_Bloque(linea);
        else
            Leer_Cabecera(Por_Separador(linea, ','));
    }

    void Leer_Fila(QByteArrayView linea)
    {
        double n[3];
        if (Numeros_Llanos(linea, ',', Marca::Punto, n)) {
            secciones.Anadir(secciones.Abrir(n[0]), {n[1], n[2]});
            return;
        }
        const Lista campos = Por_Separador(linea, ',');
        Exigir(campos, 3);
        const double pk = Secciones_Comun::Leer_PK(fuente, campos[0], Marca::Punto);
        const Punto_Seccion punto =
            Secciones_Comun::Leer_Punto(fuente, campos[1], campos[2], Marca::Punto);
        secciones.Anadir(secciones.Abrir(pk), punto);
    }

    void Leer_Cabecera(const Lista& campos)
    {
        Exigir(campos, 2);
        const double pk = Secciones_Comun::Leer_PK(fuente, campos[0], Marca::Punto);
        contada.Abrir(fuente, pk, campos[1]);
        abierta = secciones.Abrir(pk);
    }

    void Leer_Fila_De_Bloque(QByteArrayView linea)
    {
        contada.Fila();
        double n[2];
        if (Numeros_Llanos(linea, ',', Marca::Punto, n)) {
            secciones.Anadir(abierta, {n[0], n[1]});
            return;
        }
        const Lista campos = Por_Separador(linea, ',');
        Exigir(campos, 2);
        secciones.Anadir(abierta,
                         Secciones_Comun::Leer_Punto(fuente, campos[0], campos[1], Marca::Punto));
    }

    void Exigir(const Lista& campos, qsizetype cuantos) const
    {
        if (campos.size() < cuantos)
            fuente.Fallar(QStringLiteral("Faltan campos separados por comas"));
    }

    Texto_Fuente& fuente;
    Forma forma;
    Secciones secciones;
    Secciones_Comun::Contada contada;
    size_t abierta = 0;
};

} // namespace

Secciones Lectores_Secciones::Clip_Bloques(Texto_Fuente& fuente, Informe_Lectura&)
{
    return Lector(fuente, Forma::Bloques).Leer();
}

Secciones Lectores_Secciones::Clip_Filas(Texto_Fuente& fuente, Informe_Lectura&)
{
    return Lector(fuente, Forma::Filas).Leer();
}
