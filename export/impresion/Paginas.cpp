#include "export/impresion/Paginas.h"

#include <algorithm>

namespace {

double Ancho(const Tramo_RTF& tramo)
{
    return double(tramo.texto.size()) * tramo.medios_puntos / 2 * ANCHO_LETRA;
}

class Cortador {
public:
    explicit Cortador(const Papel& p) : papel(p), y(p.margen) {}

    QList<Pagina> Cortar(const QList<Parrafo_RTF>& documento)
    {
        const auto titulos = std::ranges::find_if(documento, &Parrafo_RTF::Subrayado);
        for (auto parrafo = documento.begin(); parrafo != documento.end(); ++parrafo) {
            Colocar(*parrafo);
            if (parrafo == titulos) repetido = &*parrafo;
        }
        paginas << pagina;
        return paginas;
    }

private:
    void Colocar(const Parrafo_RTF& parrafo)
    {
        const double alto = parrafo.medios_puntos / 2.0 * ALTO_RENGLON;
        QList<QList<Tramo_RTF>> renglones = Doblar(parrafo);
        for (const QList<Tramo_RTF>& tramos : renglones) {
            if (y + alto > papel.alto - papel.margen && !pagina.isEmpty()) Pasar_Pagina();
            double ancho = 0;
            for (const Tramo_RTF& tramo : tramos)
                ancho += Ancho(tramo);
            const double sobra = parrafo.centrado ? std::max(0.0, papel.Util() - ancho) / 2 : 0;
            pagina.append({papel.margen + sobra, y, alto, tramos});
            y += alto;
        }
    }

    void Pasar_Pagina()
    {
        paginas << pagina;
        pagina.clear();
        y = papel.margen;
        if (const Parrafo_RTF* const titulos = std::exchange(repetido, nullptr)) {
            Colocar(*titulos);
            repetido = titulos;
        }
    }

    // The lines that a paragraph takes: as many characters in each as the paper holds.
    QList<QList<Tramo_RTF>> Doblar(const Parrafo_RTF& parrafo) const
    {
        QList<QList<Tramo_RTF>> renglones = {{}};
        double queda = papel.Util();
        for (Tramo_RTF tramo : parrafo.tramos) {
            const double letra = tramo.medios_puntos / 2.0 * ANCHO_LETRA;
            while (letra > 0 && Ancho(tramo) > queda + letra / 100) {
                const auto caben = qsizetype(queda / letra + 0.01);
                Tramo_RTF trozo = tramo;
                trozo.texto.truncate(caben);
                tramo.texto.remove(0, caben);
                if (caben > 0) renglones.last() << trozo;
                if (caben == 0 && renglones.last().isEmpty()) break;
                renglones << QList<Tramo_RTF>();
                queda = papel.Util();
            }
            if (tramo.texto.isEmpty()) continue;
            renglones.last() << tramo;
            queda -= Ancho(tramo);
        }
        return renglones;
    }

    const Papel papel;
    double y;
    Pagina pagina;
    QList<Pagina> paginas;
    const Parrafo_RTF* repetido = nullptr;
};

} // namespace

Papel Papel::A4(bool apaisado)
{
    Papel papel;
    if (apaisado) std::swap(papel.ancho, papel.alto);
    return papel;
}

QList<Pagina> Cortar_Paginas(const QList<Parrafo_RTF>& documento, const Papel& papel)
{
    return Cortador(papel).Cortar(documento);
}
