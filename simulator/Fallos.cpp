#include "simulator/Fallos.h"

#include <QStringList>

namespace {

using simulador::Fallos;

struct Clase_Fallo {
    QString nombre;
    QString forma;
    QString ayuda;
    /// Takes the number, and the repetitions behind an "x" (1 without them).
    void (*poner)(Fallos&, int, int);
    int minimo;
    bool repetible = false;
};

const QList<Clase_Fallo>& Clases()
{
    static const QList<Clase_Fallo> lista{
        {"suma", "suma:N[xK]", "la trama o línea N sale K veces (1) con la suma equivocada",
         [](Fallos& f, int n, int k) { f.sumas[n] = k; }, 1, true},
        {"rechazo", "rechazo:N[xK]", "el bloque N de una carga se rechaza K veces (1)",
         [](Fallos& f, int n, int k) { f.rechazos[n] = k; }, 1, true},
        {"silencio", "silencio:N", "calla después de la trama o línea N; con 0 no contesta nunca",
         [](Fallos& f, int n, int) { f.silencio = n; }, 0},
        {"fin", "fin:N", "da por acabados los datos después de la trama o línea N",
         [](Fallos& f, int n, int) { f.fin = n; }, 0},
        {"eot", "eot:N", "EOT en mitad de la trama o línea N, y ahí acaba",
         [](Fallos& f, int n, int) { f.eot = n; }, 1},
        {"ruido", "ruido:N", "ruido delante de la trama o línea N; con 0, delante de todas",
         [](Fallos& f, int n, int) { f.ruido = n; }, 0},
        {"corte", "corte:N", "el cable se corta tras N bytes, enviados o recibidos",
         [](Fallos& f, int n, int) { f.corte = n; }, 0},
        {"trozos", "trozos:N", "escribe los bytes de N en N, con una pausa",
         [](Fallos& f, int n, int) { f.trozo = n; }, 1},
    };
    return lista;
}

} // namespace

QString simulador::Leer_Fallo(const QString& texto, Fallos& fallos)
{
    const QStringList partes = texto.split(':');
    for (const Clase_Fallo& c : Clases()) {
        if (partes.size() != 2 || partes[0] != c.nombre) continue;
        const QStringList cifras = partes[1].split('x');
        bool bien_n = false, bien_k = true;
        const int n = cifras[0].toInt(&bien_n);
        const int k = cifras.size() > 1 ? cifras[1].toInt(&bien_k) : 1;
        const bool sobra = cifras.size() > (c.repetible ? 2 : 1);
        if (!bien_n || !bien_k || sobra || n < c.minimo || k < 1)
            return QStringLiteral("el fallo \"%1\" no tiene la forma %2").arg(texto, c.forma);
        c.poner(fallos, n, k);
        return {};
    }
    return QStringLiteral("no hay un fallo \"%1\"").arg(texto);
}

QString simulador::Ayuda_Fallos()
{
    QString ayuda;
    for (const Clase_Fallo& c : Clases())
        ayuda += QStringLiteral("      %1 %2\n").arg(c.forma, -16).arg(c.ayuda);
    return ayuda;
}
