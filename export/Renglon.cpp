#include "export/Renglon.h"

#include "core/Basico.h"
#include "formats/Campo_Nivel.h"

#include <algorithm>

void Renglon::Poner(QStringView texto, qsizetype ancho)
{
    if (con_celdas) linea += sep;
    con_celdas = true;
    linea += texto;
    const qsizetype largo = linea.size(), blancos = ancho - texto.size();
    if (blancos <= 0) return;
    linea.resize(largo + blancos);
    std::fill(linea.begin() + largo, linea.end(), QChar(u' '));
}

void Renglon::Poner_Titulos(const QStringList& campos, std::span<const qsizetype> anchos,
                            bool con_marca)
{
    for (std::size_t c = 0; c < std::size_t(campos.size()); ++c) {
        const QString& campo = campos[qsizetype(c)];
        Poner(con_marca ? Titulo_De(campo) : campo, c < anchos.size() ? anchos[c] : 0);
    }
}

void Renglon::Vaciar()
{
    linea.resize(0);
    con_celdas = false;
}

QString Titulo_De(const QString& campo)
{
    return Nombre_Campo_Nivel(campo);
}

void Anchos_Columna(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos)
{
    anchos.assign(filas.size(), 0);
    for (std::size_t c = 0; c < filas.size(); ++c) {
        anchos[c] = filas[c].Ancho();
        if (con_titulos) anchos[c] = std::max(anchos[c], campos[qsizetype(c)].size());
    }
}

void Anchos_Titulos(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos)
{
    anchos.assign(filas.size(), 0);
    if (!con_titulos) return;
    for (std::size_t c = 0; c < filas.size(); ++c)
        anchos[c] = Basico::Trim(campos[qsizetype(c)]).size();
}
