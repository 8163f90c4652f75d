#include "export/impresion/Lector_RTF.h"

#include "core/Ansi.h"

#include <algorithm>
#include <map>

namespace {

constexpr int TAMANO_LLANO = 24; // half points, what \plain sets

struct Estado {
    int fuente = 0;
    int medios_puntos = TAMANO_LLANO;
    bool negrita = false, subrayado = false;
    bool operator==(const Estado&) const = default;
};

class Lector {
public:
    explicit Lector(const QByteArray& bytes) : rtf(bytes) {}

    QList<Parrafo_RTF> Leer()
    {
        while (i < rtf.size())
            Paso();
        // The last paragraph ends with its \par; what follows it is none unless it holds text.
        Cerrar_Tramo();
        if (!parrafo.tramos.isEmpty()) Cerrar_Parrafo();
        return parrafos;
    }

private:
    struct Palabra {
        QByteArrayView nombre;
        int numero = 1; // a word without a number switches on
    };

    void Paso()
    {
        switch (rtf[i]) {
        case '{':
            if (const char* const grupo = Grupo_De_Cabeza())
                Saltar_Grupo(QByteArrayView(grupo) == "fonttbl");
            else
                ++i;
            break;
        case '}':
        case '\r':
        case '\n':
            ++i;
            break;
        case '\\':
            Leer_Palabra();
            break;
        default:
            texto += rtf[i++];
        }
    }

    const char* Grupo_De_Cabeza() const
    {
        for (const char* const nombre : {"fonttbl", "colortbl"})
            if (QByteArrayView(rtf).sliced(i + 1).startsWith(QByteArray("\\") + nombre))
                return nombre;
        return nullptr;
    }

    // A group of the head; that of the fonts is a list of groups "\fN words name;".
    void Saltar_Grupo(bool de_fuentes)
    {
        int hondo = 0;
        qsizetype desde = 0;
        do {
            if (rtf[i] == '{') {
                ++hondo;
                desde = i;
            } else if (rtf[i] == '}' && --hondo == 1 && de_fuentes) {
                Anotar_Fuente(QByteArrayView(rtf).sliced(desde + 1, i - desde - 1));
            }
            ++i;
        } while (i < rtf.size() && hondo > 0);
    }

    void Anotar_Fuente(QByteArrayView grupo)
    {
        const qsizetype blanco = grupo.indexOf(' ');
        if (!grupo.startsWith("\\f") || blanco < 0) return;
        qsizetype fin = 2;
        while (fin < grupo.size() && grupo[fin] >= '0' && grupo[fin] <= '9')
            ++fin;
        QByteArrayView nombre = grupo.sliced(blanco + 1);
        if (nombre.endsWith(';')) nombre.chop(1);
        fuentes[grupo.sliced(2, fin - 2).toByteArray().toInt()] = Ansi::A_Texto(nombre);
    }

    void Leer_Palabra()
    {
        if (++i >= rtf.size()) return;
        const char c = rtf[i];
        if (c == '\'') {
            texto += char(rtf.mid(i + 1, 2).toInt(nullptr, 16));
            i += 3;
        } else if (c >= 'a' && c <= 'z') {
            Obedecer(Cortar_Palabra());
        } else {
            texto += c;
            ++i;
        }
    }

    Palabra Cortar_Palabra()
    {
        const qsizetype desde = i;
        while (i < rtf.size() && rtf[i] >= 'a' && rtf[i] <= 'z')
            ++i;
        Palabra palabra{QByteArrayView(rtf).sliced(desde, i - desde)};
        const qsizetype numero = i;
        while (i < rtf.size() &&
               ((rtf[i] >= '0' && rtf[i] <= '9') || (i == numero && rtf[i] == '-')))
            ++i;
        if (i > numero) palabra.numero = rtf.mid(numero, i - numero).toInt();
        if (i < rtf.size() && rtf[i] == ' ') ++i;
        return palabra;
    }

    void Obedecer(const Palabra& p)
    {
        if (p.nombre == "par") {
            Cerrar_Tramo();
            Cerrar_Parrafo();
            return;
        }
        const Estado antes = estado;
        Estado nuevo = estado;
        if (p.nombre == "plain")
            nuevo = {};
        else if (p.nombre == "f")
            nuevo.fuente = p.numero;
        else if (p.nombre == "fs")
            nuevo.medios_puntos = p.numero;
        else if (p.nombre == "b")
            nuevo.negrita = p.numero != 0;
        else if (p.nombre == "ul")
            nuevo.subrayado = p.numero != 0;
        else if (p.nombre == "pard")
            parrafo.centrado = centrado = false;
        else if (p.nombre == "qc")
            parrafo.centrado = centrado = true;
        if (nuevo == antes) return;
        Cerrar_Tramo();
        estado = nuevo;
    }

    void Cerrar_Tramo()
    {
        if (texto.isEmpty()) return;
        parrafo.tramos.append({Ansi::A_Texto(texto), Fuente(), estado.medios_puntos, estado.negrita,
                               estado.subrayado});
        parrafo.medios_puntos = std::max(parrafo.medios_puntos, estado.medios_puntos);
        texto.clear();
    }

    void Cerrar_Parrafo()
    {
        if (parrafo.tramos.isEmpty()) parrafo.medios_puntos = estado.medios_puntos;
        parrafos << parrafo;
        parrafo = {};
        parrafo.centrado = centrado;
    }

    QString Fuente() const
    {
        const auto fuente = fuentes.find(estado.fuente);
        return fuente == fuentes.end() ? QString() : fuente->second;
    }

    const QByteArray& rtf;
    qsizetype i = 0;
    std::map<int, QString> fuentes;
    Estado estado;
    bool centrado = false;
    QByteArray texto;
    Parrafo_RTF parrafo;
    QList<Parrafo_RTF> parrafos;
};

} // namespace

QString Parrafo_RTF::Texto() const
{
    QString texto;
    for (const Tramo_RTF& tramo : tramos)
        texto += tramo.texto;
    return texto;
}

bool Parrafo_RTF::Subrayado() const
{
    return std::ranges::any_of(tramos, &Tramo_RTF::subrayado);
}

QList<Parrafo_RTF> Leer_RTF(const QByteArray& rtf)
{
    return Lector(rtf).Leer();
}
