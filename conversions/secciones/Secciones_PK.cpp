#include "conversions/secciones/Lectores_Secciones.h"
#include "conversions/secciones/Secciones_Comun.h"

using namespace Campos_Fuente;

namespace {

bool Es_Letra_O_Cifra(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           static_cast<unsigned char>(c) >= 128;
}

constexpr qsizetype PK_MINIMO = 3; // "PK0"

// Number behind "PK", "P.K." or "P K" where one of them begins at `desde`, ":" or "=" between.
std::optional<double> PK_En(QByteArrayView linea, qsizetype desde)
{
    const auto hay = [&](qsizetype i, const char* cuales) {
        return i < linea.size() && QByteArrayView(cuales).contains(linea[i]);
    };
    qsizetype i = desde;
    if (!hay(i, "Pp")) return {};
    ++i;
    const bool punto = hay(i, ".");
    if (hay(i, ". ")) ++i;
    if (!hay(i, "Kk")) return {};
    ++i;
    if (punto && hay(i, ".")) ++i;
    while (hay(i, " \t"))
        ++i;
    if (hay(i, ":=")) ++i;
    while (hay(i, " \t"))
        ++i;
    qsizetype fin = i;
    while (fin < linea.size() && !hay(fin, " \t"))
        ++fin;
    while (fin > i && hay(fin - 1, ",;)"))
        --fin;
    return Numero_PK(linea.sliced(i, fin - i), Marca::Punto_O_Coma);
}

std::optional<double> PK_De(QByteArrayView linea)
{
    for (qsizetype i = 0; i < linea.size(); ++i) {
        if ((linea[i] | 0x20) != 'p' || (i > 0 && Es_Letra_O_Cifra(linea[i - 1]))) continue;
        if (const auto pk = PK_En(linea, i)) return pk;
    }
    return {};
}

class Lector {
public:
    explicit Lector(Texto_Fuente& f) : fuente(f) {}

    Secciones Leer()
    {
        while (fuente.Siguiente())
            Leer_Linea(fuente.Linea());
        contada.Exigir_Completa();
        return Secciones_Comun::Terminar(std::move(secciones));
    }

private:
    void Leer_Linea(QByteArrayView linea)
    {
        double n[2];
        const auto resto = Numeros_Llanos(linea, ' ', Marca::Punto_O_Coma, n);
        // Nearly every line is a row whose code has no room for the word and its number.
        if (!resto || resto->size() >= PK_MINIMO) {
            if (const auto pk = PK_De(linea)) {
                contada.Exigir_Completa();
                abierta = secciones.Abrir(*pk);
                hasta_la_siguiente = true;
                return;
            }
        }
        const bool hay_seccion = hasta_la_siguiente || contada.Espera_Filas();
        if (hay_seccion && resto) return Anadir({n[0], n[1]});
        if (Es_Comentario(linea)) return;
        const Lista campos = Por_Blancos(linea);
        if (campos.size() < 2) fuente.Fallar(QStringLiteral("Faltan campos en la línea"));
        if (!hay_seccion) {
            const double pk = Secciones_Comun::Leer_PK(fuente, campos[0], Marca::Punto_O_Coma);
            contada.Abrir(fuente, pk, campos[1]);
            abierta = secciones.Abrir(pk);
            return;
        }
        Anadir(Secciones_Comun::Leer_Punto(fuente, campos[0], campos[1], Marca::Punto_O_Coma));
    }

    void Anadir(Punto_Seccion punto)
    {
        secciones.Anadir(abierta, punto);
        if (contada.Espera_Filas()) contada.Fila();
    }

    Texto_Fuente& fuente;
    Secciones secciones;
    Secciones_Comun::Contada contada;
    size_t abierta = 0;
    bool hasta_la_siguiente = false; // the open section was opened by its PK line
};

} // namespace

Secciones Lectores_Secciones::Por_PK(Texto_Fuente& fuente, Informe_Lectura&)
{
    return Lector(fuente).Leer();
}
