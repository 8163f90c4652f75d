#include "conversions/instrumento/Escritor_Instrumento.h"

#include "conversions/suelo/Cifras.h"

namespace {

constexpr int METROS = 3;
constexpr int CLASE_FIN = 9;

/// Joins the texts of a line.
class Renglones {
public:
    explicit Renglones(char entre) : separador(entre) {}

    Renglones& operator<<(QByteArrayView texto)
    {
        if (!vacio) bytes += separador;
        bytes += texto;
        vacio = false;
        return *this;
    }
    Renglones& operator<<(double metros)
    {
        if (!vacio) bytes += separador;
        Cifras::Anadir_Fijo(bytes, metros, METROS);
        vacio = false;
        return *this;
    }
    void Fin()
    {
        bytes += "\r\n";
        vacio = true;
    }

    QByteArray bytes;

private:
    char separador;
    bool vacio = true;
};

double Radio(double curvatura)
{
    return curvatura == 0 ? 0 : 1 / curvatura;
}

} // namespace

QByteArray Escribir_Ssh(const Eje& eje)
{
    Renglones r(' ');
    const Punto_Plano inicio = eje.elementos.front().inicio;
    r << "INI" << eje.pk_inicio << inicio.x << inicio.y;
    r.Fin();
    double pk = eje.pk_inicio;
    for (const Elemento_Eje& e : eje.elementos) {
        const QByteArray azimut = Cifras::Azimut(e.azimut);
        switch (e.clase) {
        case Clase_Elemento::Recta:
            r << "REC" << azimut << e.longitud;
            break;
        case Clase_Elemento::Arco:
            r << "CIR" << azimut << e.longitud << Radio(e.k1);
            break;
        case Clase_Elemento::Clotoide:
            r << "CLO" << azimut << e.longitud << e.A << Radio(e.k1) << Radio(e.k2);
            break;
        }
        r.Fin();
        pk += e.longitud;
    }
    r << "FIN" << pk << eje.fin.x << eje.fin.y << Cifras::Azimut(eje.azimut_fin);
    r.Fin();
    return r.bytes;
}

QByteArray Escribir_Hal(const Eje& eje)
{
    Renglones r(',');
    const auto punto = [&](int clase, double pk, Punto_Plano p, double azimut) {
        r << QByteArray::number(clase) << pk << p.x << p.y << Cifras::Azimut(azimut);
    };
    double pk = eje.pk_inicio;
    for (const Elemento_Eje& e : eje.elementos) {
        punto(int(e.clase), pk, e.inicio, e.azimut);
        r << e.longitud << Radio(e.k1) << Radio(e.k2) << e.A;
        r.Fin();
        pk += e.longitud;
    }
    punto(CLASE_FIN, pk, eje.fin, eje.azimut_fin);
    r << 0.0 << 0.0 << 0.0 << 0.0;
    r.Fin();
    return r.bytes;
}

QByteArray Escribir_Eje_Instrumento(const Eje& eje, const QString& destino)
{
    return destino.endsWith(u".hal", Qt::CaseInsensitive) ? Escribir_Hal(eje) : Escribir_Ssh(eje);
}

QByteArray Escribir_Rasante_Instrumento(const Rasante& rasante, const QString&)
{
    Renglones r(',');
    for (const Vertice_Rasante& v : rasante.vertices) {
        r << v.pk << v.cota << v.longitud;
        r.Fin();
    }
    return r.bytes;
}
