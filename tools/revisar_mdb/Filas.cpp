#include "tools/revisar_mdb/Filas.h"

#include "tools/revisar_mdb/Mapas.h"

namespace Revision_Mdb {

namespace {

constexpr qsizetype CABECERA = 0x0E;
constexpr int FILAS_MAXIMAS = 255;
constexpr qsizetype REGISTRO_MAXIMO = 4060; // the engine can't read a longer one
constexpr quint8 COMPRIMIDA = 1;

void Revisar_Texto(Revision& r, quint32 pagina, const Columna& c, Bytes valor)
{
    const auto mal = [&](const QString& que) { r.Queja(pagina, c.nombre + ": " + que); };
    qsizetype letras = valor.Largo() / 2;
    if (valor.Largo() >= 2 && valor.U16(0) == 0xFEFF) {
        letras = valor.Largo() - 2;
        if ((c.ampliadas & COMPRIMIDA) == 0) mal("texto comprimido donde no se admite");
        if (letras < 3) mal("texto comprimido de menos de tres letras");
        if (valor.Vista().contains('\0')) mal("cambio de modo en un texto comprimido");
    } else {
        if (valor.Largo() % 2 != 0) mal("texto de medio carácter");
        bool ancho = letras < 3;
        for (const QChar u : valor.Utf16())
            ancho = ancho || u.unicode() == 0 || u.unicode() > 0xFF;
        if ((c.ampliadas & COMPRIMIDA) != 0 && !ancho) mal("texto que se podía comprimir");
    }
    if (2 * letras > c.largo) mal("texto más largo que su columna");
}

// Offsets stand at the record's end, the last one first.
void Cortar_Variables(Revision& r, quint32 pagina, const Definicion& tabla, Bytes fila,
                      qsizetype fin, Registro& registro)
{
    const qsizetype cola = fin - 2 * (tabla.variables + 1);
    const auto inicio = [&](int variable) {
        return fila.U16(cola + 2 * (tabla.variables - variable));
    };
    r.Igual(inicio(0), quint64(2 + tabla.Bytes_Fijos()), pagina, "comienzo de las variables");
    r.Igual(inicio(tabla.variables), quint64(cola), pagina, "final de las variables");
    for (const Columna& c : tabla.columnas) {
        if (c.Fija()) continue;
        const qsizetype desde = inicio(c.variable);
        const Bytes valor = fila.Parte(desde, inicio(c.variable + 1) - desde);
        std::optional<Bytes>& celda = registro[c.id];
        if (!celda && valor.Largo() > 0) r.Queja(pagina, c.nombre + ": valor en un nulo");
        if (!celda) continue;
        celda = valor;
        if (c.tipo == TEXTO)
            Revisar_Texto(r, pagina, c, valor);
        else if (!c.Larga())
            r.Exigir(valor.Largo() <= c.largo, pagina, c.nombre + ": valor demasiado largo");
    }
}

} // namespace

QList<Bytes> Filas_De_Pagina(Revision& r, quint32 pagina, quint32 dueno, quint32 sello)
{
    const Bytes b = r.Pagina(pagina);
    r.Igual(b.U8(0), DATOS, pagina, "clase de página");
    r.Igual(b.U8(1), 1, pagina, "marca de página");
    r.Igual(b.U32(4), dueno, pagina, "dueño de la página");
    r.Igual(b.U32(8), sello, pagina, "sello de la página");
    const quint16 cuantas = b.U16(0x0C);
    r.Exigir(cuantas >= 1 && cuantas <= FILAS_MAXIMAS, pagina, "cuenta de filas");
    QList<Bytes> filas;
    qsizetype fin = PAGINA;
    for (quint16 k = 0; k < cuantas; ++k) {
        const qsizetype inicio = b.U16(CABECERA + 2 * k);
        if (inicio >= fin || inicio < CABECERA + 2 * cuantas)
            throw Rotura{QStringLiteral("la fila %1 no está en su orden o pisa a otra").arg(k)};
        filas << b.Parte(inicio, fin - inicio);
        fin = inicio;
    }
    const Bytes hueco = b.Parte(CABECERA + 2 * cuantas, fin - CABECERA - 2 * cuantas);
    r.Igual(b.U16(2), quint64(hueco.Largo()), pagina, "bytes libres");
    r.Exigir(hueco.Ceros(), pagina, "bytes sin uso que no son cero");
    return filas;
}

Bytes Fila_En(const Revision& r, Puntero puntero)
{
    const Bytes b = r.Pagina(puntero.pagina);
    if (puntero.fila >= b.U16(0x0C))
        throw Rotura{QStringLiteral("no hay fila %1").arg(puntero.fila)};
    const qsizetype lugar = CABECERA + 2 * qsizetype(puntero.fila);
    const qsizetype fin = puntero.fila == 0 ? PAGINA : b.U16(lugar - 2);
    return b.Parte(b.U16(lugar), fin - b.U16(lugar));
}

Registro Cortar_Registro(Revision& r, quint32 pagina, const Definicion& tabla, Bytes fila)
{
    const qsizetype columnas = tabla.columnas.size();
    const qsizetype mascara = (columnas + 7) / 8;
    r.Exigir(fila.Largo() <= REGISTRO_MAXIMO, pagina, "registro demasiado largo");
    r.Igual(fila.U16(0), quint64(columnas), pagina, "columnas del registro");
    const Bytes bits = fila.Parte(fila.Largo() - mascara, mascara);
    for (qsizetype bit = columnas; bit < 8 * mascara; ++bit)
        r.Exigir((bits.U8(bit / 8) >> (bit % 8) & 1) == 0, pagina, "bits de más en la máscara");
    const qsizetype fin = fila.Largo() - mascara - 2;
    r.Igual(fila.U16(fin), tabla.variables, pagina, "variables del registro");
    Registro registro(columnas);
    for (const Columna& c : tabla.columnas) {
        if (c.id >= columnas) throw Rotura{"número de columna de más"};
        if ((bits.U8(c.id / 8) >> (c.id % 8) & 1) == 0) {
            r.Exigir(!c.Fija() || c.tipo == LOGICO || fila.Parte(2 + c.lugar, c.largo).Ceros(),
                     pagina, c.nombre + ": valor en un nulo");
            continue;
        }
        registro[c.id] = c.Fija() && c.tipo != LOGICO ? fila.Parte(2 + c.lugar, c.largo) : Bytes();
    }
    Cortar_Variables(r, pagina, tabla, fila, fin, registro);
    return registro;
}

void Revisar_Filas(Revision& r, const Definicion& tabla, const Cada_Fila& cada)
{
    const Mapa propias = Leer_Mapa(r, Puntero(tabla.propias));
    Revisar_Libres(r, propias, Leer_Mapa(r, Puntero(tabla.libres)));
    quint32 filas = 0;
    for (const quint32 pagina : propias.paginas) {
        r.Reclamar(pagina, "los datos de " + tabla.nombre);
        r.Paso_Sobre(pagina, [&] {
            quint32 numero = 0;
            for (const Bytes fila : Filas_De_Pagina(r, pagina, tabla.pagina)) {
                r.Paso_Sobre(
                    pagina, [&] { cada(Cortar_Registro(r, pagina, tabla, fila), pagina, numero); });
                ++numero;
            }
            filas += numero;
        });
    }
    r.Igual(tabla.filas, filas, tabla.pagina, "filas de " + tabla.nombre);
}

} // namespace Revision_Mdb
