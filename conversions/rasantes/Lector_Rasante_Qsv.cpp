#include "conversions/rasantes/Lectores_Rasante.h"
#include "conversions/rasantes/Resolver_Rasante.h"
#include "conversions/suelo/Campos_Fuente.h"

using namespace Campos_Fuente;

Rasante Leer_Rasante_Qsv(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    std::vector<Vertice_Fuente> vertices;
    while (fuente.Siguiente()) {
        if (Es_Comentario(fuente.Linea())) continue;
        const Lista campos = Por_Blancos(fuente.Linea());
        const auto pk = Numero_PK(campos[0]);
        Vertice_Fuente v;
        if (campos.size() < 2 || !pk || !Numeros(campos, 1, {&v.cota, &v.valor})) {
            fuente.Omitir(informe, QStringLiteral("Fila ilegible, se omite"));
            continue;
        }
        v.pk = *pk;
        v.dato = Dato_Acuerdo::Kv;
        v.linea = fuente.Numero();
        v.texto = fuente.Texto();
        vertices.push_back(std::move(v));
    }
    return Resolver_Rasante(vertices, informe);
}
