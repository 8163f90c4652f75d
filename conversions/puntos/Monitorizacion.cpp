#include "conversions/puntos/Monitorizacion.h"

#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Cifras.h"
#include "core/Ansi.h"

#include <cmath>
#include <map>
#include <numbers>

using namespace Campos_Fuente;

namespace Monitorizacion {

namespace {

double Radianes(double gon)
{
    return gon * std::numbers::pi / 200;
}

// A record: its word, and its values by number from 1.
class Registro {
public:
    explicit Registro(QByteArrayView linea)
    {
        linea = Recortar(linea);
        qsizetype corte = 0;
        while (corte < linea.size() && linea[corte] != ' ' && linea[corte] != '\t')
            ++corte;
        palabra = linea.first(corte);
        valores = Por_Separador(linea.sliced(corte), ',');
    }

    bool Es(const char* otra) const { return palabra == otra; }
    QByteArrayView Valor(qsizetype n) const
    {
        return n <= valores.size() ? valores[n - 1] : QByteArrayView();
    }
    QString Texto(qsizetype n) const { return Ansi::A_Texto(Valor(n)); }
    std::optional<double> Cifra(qsizetype n) const { return Numero(Valor(n), Marca::Punto); }
    /// A height that isn't given is 0.
    std::optional<double> Altura(qsizetype n) const
    {
        return Valor(n).isEmpty() ? std::optional<double>(0) : Cifra(n);
    }

private:
    QByteArrayView palabra;
    Lista valores;
};

std::optional<Coordenadas> Tres(const Lista& campos, qsizetype desde, Marca marca)
{
    if (campos.size() < desde + 3) return {};
    const auto x = Numero(campos[desde], marca);
    const auto y = Numero(campos[desde + 1], marca);
    const auto z = Numero(campos[desde + 2], marca);
    if (!x || !y || !z) return {};
    return Coordenadas{*x, *y, *z};
}

// Name and coordinates of a line by one way of cutting it.
std::optional<std::pair<QString, Coordenadas>> Referencia_De(const Lista& campos, Marca marca)
{
    const auto c = Tres(campos, 1, marca);
    if (!c || campos[0].isEmpty()) return {};
    return std::pair(Ansi::A_Texto(campos[0]), *c);
}

std::optional<std::pair<QString, Coordenadas>> Referencia_De(QByteArrayView linea)
{
    std::optional<std::pair<QString, Coordenadas>> r;
    if (linea.contains(';'))
        r = Referencia_De(Por_Separador(linea, ';'), Marca::Punto_O_Coma);
    else if (linea.contains(','))
        r = Referencia_De(Por_Separador(linea, ','), Marca::Punto);
    // Without a separator the comma, if any, is the decimal mark.
    return r ? r : Referencia_De(Por_Blancos(linea), Marca::Punto_O_Coma);
}

void Anotar_Cabecera(Cabecera& cabecera, const Registro& r)
{
    if (r.Es("TMP") && cabecera.temperatura.isEmpty()) cabecera.temperatura = r.Texto(1);
    if (r.Es("FEC") && cabecera.fecha.isEmpty()) cabecera.fecha = r.Texto(1);
    if (r.Es("HOR") && cabecera.hora.isEmpty()) cabecera.hora = r.Texto(1);
}

// The station's state from record to record.
class Calculo {
public:
    Calculo(Texto_Fuente& f, const Referencias& r, Informe_Lectura& i)
        : fuente(f), referencias(r), informe(i)
    {
    }

    Medidas Leer()
    {
        while (fuente.Siguiente())
            Leer_Registro(Registro(fuente.Linea()));
        if (medidas.empty())
            throw Fallo_Conversion{
                QStringLiteral("No hay ninguna lectura de un punto desde una estación conocida"),
                0,
                {}};
        for (Medida& m : medidas)
            for (double& c : m.media)
                c /= m.cuantas;
        return std::move(medidas);
    }

private:
    void Leer_Registro(const Registro& r)
    {
        if (r.Es("CIC"))
            Empezar_Epoca(r);
        else if (r.Es("STN"))
            Estacionar(r);
        else if (r.Es("XYZ"))
            Situar(r);
        else if (r.Es("BKB"))
            Orientar(r);
        else if (r.Es("SS") || r.Es("FS"))
            Apuntar(r);
        else if (r.Es("SD"))
            Observar(r);
    }

    void Empezar_Epoca(const Registro& r)
    {
        epoca = r.Texto(1);
        fecha = r.Texto(2);
        hora = r.Texto(3);
        en_epoca.clear();
    }

    void Estacionar(const Registro& r)
    {
        const QString nombre = r.Texto(1);
        altura_aparato = r.Altura(2);
        orientacion = 0.0;
        punto.clear();
        estacion.reset();
        conocida = referencias.contains(nombre);
        if (conocida) estacion = referencias.value(nombre);
        if (!altura_aparato) Omitir(QStringLiteral("La altura de aparato no es un número"));
    }

    void Situar(const Registro& r)
    {
        if (conocida) return;
        const auto x = r.Cifra(1), y = r.Cifra(2), z = r.Cifra(3);
        if (x && y && z)
            estacion = Coordenadas{*x, *y, *z};
        else
            Omitir(QStringLiteral("Una coordenada de la estación no es un número"));
    }

    void Orientar(const Registro& r)
    {
        const auto azimut = r.Cifra(2), lectura = r.Cifra(3);
        orientacion.reset();
        if (azimut && lectura)
            orientacion = *azimut - *lectura;
        else
            Omitir(QStringLiteral("Un ángulo de la orientación no es un número"));
    }

    void Apuntar(const Registro& r)
    {
        punto = r.Texto(1);
        altura_prisma = r.Altura(2);
        if (!altura_prisma) Omitir(QStringLiteral("La altura de prisma no es un número"));
    }

    void Observar(const Registro& r)
    {
        const auto h = r.Cifra(1), v = r.Cifra(2), d = r.Cifra(3);
        if (!h || !v || !d) return Omitir(QStringLiteral("La lectura tiene un campo sin número"));
        if (punto.isEmpty() || !altura_prisma)
            return Omitir(QStringLiteral("Lectura sin punto visado"));
        if (!estacion || !altura_aparato || !orientacion)
            return Omitir(
                QStringLiteral("Lectura desde una estación sin coordenadas u orientación"));
        const bool cara_2 = *v > 200;
        const double cenital = Radianes(cara_2 ? 400 - *v : *v);
        const double acimut = Radianes((cara_2 ? *h - 200 : *h) + *orientacion);
        const double reducida = *d * std::sin(cenital);
        Sumar({(*estacion)[0] + reducida * std::sin(acimut),
               (*estacion)[1] + reducida * std::cos(acimut),
               (*estacion)[2] + *altura_aparato + *d * std::cos(cenital) - *altura_prisma});
    }

    void Sumar(const Coordenadas& c)
    {
        const auto [sitio, nuevo] = en_epoca.try_emplace(punto, medidas.size());
        if (nuevo) medidas.push_back({punto, epoca, fecha, hora, {}, 0});
        Medida& m = medidas[sitio->second];
        for (std::size_t i = 0; i < c.size(); ++i)
            m.media[i] += c[i];
        ++m.cuantas;
    }

    void Omitir(const QString& motivo) { fuente.Omitir(informe, motivo); }

    Texto_Fuente& fuente;
    const Referencias& referencias;
    Informe_Lectura& informe;
    Medidas medidas;
    std::map<QString, std::size_t> en_epoca; // measure of each point in the epoch under way
    QString epoca = QStringLiteral("1"), fecha, hora;
    bool conocida = false; // the coordinates file has the station
    std::optional<Coordenadas> estacion;
    std::optional<double> altura_aparato, orientacion, altura_prisma;
    QString punto;
};

QString Numero_4(double x)
{
    return QString::fromLatin1(Cifras::Fijo(x, 4));
}

// A text that can't part a cell or a line.
QString Celda(QString texto)
{
    return texto.replace(u';', u',').replace(u'\r', u' ').replace(u'\n', u' ');
}

QStringList Columnas(const Medida& m, const Referencias& referencias, const Textos& textos)
{
    const bool con_fecha = !m.fecha.isEmpty() || !m.hora.isEmpty();
    QStringList columnas = {Celda(m.punto), Celda(m.epoca),
                            Celda(con_fecha ? m.fecha : textos.fecha),
                            Celda(con_fecha ? m.hora : textos.hora)};
    QStringList posicion, diferencias;
    double cuadrados = 0;
    const auto referencia = referencias.find(m.punto);
    for (std::size_t i = 0; i < m.media.size(); ++i) {
        posicion << Numero_4(m.media[i]);
        if (referencia == referencias.end()) {
            columnas << QString();
            diferencias << QString();
            continue;
        }
        const double d = m.media[i] - (*referencia)[i];
        columnas << Numero_4((*referencia)[i]);
        diferencias << Numero_4(d);
        cuadrados += d * d;
    }
    const bool sin_referencia = referencia == referencias.end();
    return columnas + posicion + diferencias +
           QStringList{sin_referencia ? QString() : Numero_4(std::sqrt(cuadrados))};
}

} // namespace

Referencias Leer_Coordenadas(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    Referencias referencias;
    while (fuente.Siguiente()) {
        if (const auto r = Referencia_De(fuente.Linea()))
            referencias.insert(r->first, r->second);
        else
            fuente.Omitir(informe, QStringLiteral("La línea no da nombre y tres coordenadas"));
    }
    if (referencias.isEmpty())
        throw Fallo_Conversion{
            QStringLiteral("El fichero de coordenadas no contiene ninguna"), 0, {}};
    return referencias;
}

Cabecera Leer_Cabecera(Texto_Fuente& fuente)
{
    Cabecera cabecera;
    std::optional<std::pair<QString, QString>> ciclo;
    while (fuente.Siguiente()) {
        const Registro r(fuente.Linea());
        Anotar_Cabecera(cabecera, r);
        if (r.Es("CIC") && !ciclo) ciclo.emplace(r.Texto(2), r.Texto(3));
    }
    if (ciclo && cabecera.fecha.isEmpty()) cabecera.fecha = ciclo->first;
    if (ciclo && cabecera.hora.isEmpty()) cabecera.hora = ciclo->second;
    return cabecera;
}

Medidas Leer_Lecturas(Texto_Fuente& fuente, const Referencias& referencias,
                      Informe_Lectura& informe)
{
    return Calculo(fuente, referencias, informe).Leer();
}

QByteArray Escribir_Cabecera(const Cabecera& c)
{
    return Ansi::A_Bytes(c.temperatura + QStringLiteral("\r\n") + c.fecha + QStringLiteral("\r\n") +
                         c.hora + QStringLiteral("\r\n"));
}

QByteArray Escribir_Resultados(const Medidas& medidas, const Referencias& referencias,
                               const Textos& textos)
{
    const std::pair<const char16_t*, QString> lineas[] = {
        {u"Trabajo", textos.trabajo},   {u"Descripción", textos.descripcion},
        {u"Operario", textos.operario}, {u"Temperatura", textos.temperatura},
        {u"Fecha", textos.fecha},       {u"Hora", textos.hora},
    };
    const QString fin = QStringLiteral("\r\n");
    QString texto = QStringLiteral("MONITORIZACION ROBOTIZADA") + fin;
    for (const auto& [etiqueta, valor] : lineas)
        texto += QString::fromUtf16(etiqueta) + u';' + Celda(valor) + fin;
    texto +=
        fin + QStringLiteral("Punto;Epoca;Fecha;Hora;X ref;Y ref;Z ref;X;Y;Z;dX;dY;dZ;Mov") + fin;
    for (const Medida& m : medidas)
        texto += Columnas(m, referencias, textos).join(u';') + fin;
    return Ansi::A_Bytes(texto);
}

} // namespace Monitorizacion
