#include "conversions/rasantes/Lectores_Rasante.h"
#include "conversions/rasantes/Resolver_Rasante.h"
#include "conversions/suelo/Campos_Fuente.h"

using namespace Campos_Fuente;

namespace {

constexpr qsizetype CAMPOS = 3;

struct Valor_Marcado {
    double valor;
    char marca; ///< upper case
};

/// A number with a letter behind it.
std::optional<Valor_Marcado> Leer_Marcado(QByteArrayView campo, QByteArrayView marcas)
{
    if (campo.isEmpty()) return {};
    const char marca = char(campo.back() & ~0x20);
    const auto valor = Numero(campo.chopped(1), Marca::Punto);
    if (!valor || !marcas.contains(marca)) return {};
    return Valor_Marcado{*valor, marca};
}

/// The curve's value; 0 or none, with or without its mark, is no curve.
bool Leer_Acuerdo(QByteArrayView campo, Vertice_Fuente& v)
{
    constexpr QByteArrayView MARCAS = "RTF";
    const bool sin_valor = campo.size() == 1 && MARCAS.contains(char(campo[0] & ~0x20));
    if (campo.isEmpty() || sin_valor) return true;
    if (const auto sin_marca = Numero(campo, Marca::Punto)) return *sin_marca == 0;
    const auto acuerdo = Leer_Marcado(campo, MARCAS);
    if (!acuerdo) return false;
    v.valor = acuerdo->valor;
    v.dato = acuerdo->marca == 'R'   ? Dato_Acuerdo::Kv
             : acuerdo->marca == 'T' ? Dato_Acuerdo::Tangente
                                     : Dato_Acuerdo::Bisectriz;
    return true;
}

/// @param anterior  the vertex before, from which a slope counts; null for the first
/// @return why the line can't be read, or an empty text
QString Leer_Vertice(const Lista& campos, const Vertice_Fuente* anterior, Vertice_Fuente& v)
{
    if (campos.size() != CAMPOS) return QStringLiteral("La línea no tiene tres campos, se omite");
    const auto pk = Numero_PK(campos[0], Marca::Punto);
    const auto altura = Leer_Marcado(campos[1], "CP");
    if (!pk || !altura || !Leer_Acuerdo(campos[2], v))
        return QStringLiteral("Vértice ilegible, se omite");
    v.pk = *pk;
    v.cota = altura->valor;
    if (altura->marca == 'P') {
        if (!anterior) return QStringLiteral("Pendiente en el primer vértice, se omite");
        v.cota = anterior->cota + altura->valor / 100 * (v.pk - anterior->pk);
    }
    return {};
}

bool Es_Alz(Texto_Fuente& fuente)
{
    bool es = false;
    while (!es && fuente.Siguiente()) {
        const Lista campos = Por_Separador(fuente.Linea(), ',');
        es = campos.size() == CAMPOS && Leer_Marcado(campos[1], "CP");
    }
    fuente.Rebobinar();
    return es;
}

} // namespace

Rasante Leer_Rasante_Alz(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    std::vector<Vertice_Fuente> vertices;
    // Index of the vertex that slopes count from: one whose station goes back will be left out.
    std::optional<size_t> anterior;
    for (int n = 1; fuente.Siguiente(); ++n) {
        const Lista campos = Por_Separador(fuente.Linea(), ',');
        if (n == 1 || (n == 2 && campos.size() != CAMPOS)) continue;
        Vertice_Fuente v;
        v.linea = fuente.Numero();
        v.texto = fuente.Texto();
        const QString defecto = Leer_Vertice(campos, anterior ? &vertices[*anterior] : nullptr, v);
        if (!defecto.isEmpty()) {
            fuente.Omitir(informe, defecto);
        } else {
            if (!anterior || v.pk > vertices[*anterior].pk) anterior = vertices.size();
            vertices.push_back(std::move(v));
        }
    }
    return Resolver_Rasante(vertices, informe);
}

Rasante Leer_Rasante_Istram_O_Alz(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    return Es_Alz(fuente) ? Leer_Rasante_Alz(fuente, informe)
                          : Leer_Rasante_Istram(fuente, informe);
}
