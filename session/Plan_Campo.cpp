#include "session/Plan_Campo.h"

#include "core/Error_Ejecucion.h"
#include "core/Numero_Escrito.h"
#include "session/Blancos.h"
#include "session/Decodificador.h"

#include <algorithm>

namespace {

// A number of so many digits reads the same whether it passes through a binary fraction or not.
constexpr int CIFRAS_EXACTAS = 15;

bool Es_Cifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool Es_Signo(QChar c)
{
    return c == u'+' || c == u'-';
}

// The digits of an integer part without the zeros in front; "0" when nothing else is left.
QString Sin_Ceros(QStringView entera)
{
    QStringView t = Sin_Blancos(entera);
    bool negativo = false;
    if (!t.isEmpty() && Es_Signo(t.front())) {
        negativo = t.front() == u'-';
        t = t.mid(1);
    }
    if (!std::ranges::all_of(t, Es_Cifra)) throw Error_Ejecucion(13);
    while (!t.isEmpty() && t.front() == u'0')
        t = t.mid(1);
    const QString cifras = t.isEmpty() ? QStringLiteral("0") : t.toString();
    return negativo ? u'-' + cifras : cifras;
}

// The text into one that is used again and again, without claiming memory for each line.
void Copiar(QStringView de, QString& en)
{
    en.resize(de.size());
    std::copy(de.begin(), de.end(), en.begin());
}

} // namespace

Plan_Digitos::Plan_Digitos(const QString& posdigit, const QString& marca)
    : es_texto(Sin_Blancos(posdigit) == u"*"), anchos(Anchos_Numero::Leer(posdigit)),
      caracter(marca)
{
}

QString Plan_Digitos::Aplicar(QStringView valor) const
{
    if (valor.isEmpty() || es_texto) return valor.toString();
    QString v = valor.toString();
    const bool negativo = v.front() == u'-';
    if (negativo)
        v.remove(0, 1);
    else if (v.front() == u'+')
        v[0] = u'0';
    if (!caracter.isEmpty()) {
        const auto [e, d] = anchos;
        if (v.size() < d) v = v.rightJustified(d, u'0');
        const qsizetype corte = v.size() - d;
        const qsizetype inicio = std::max<qsizetype>(0, corte - e);
        v = v.mid(inicio, corte - inicio) + caracter + v.mid(corte);
    }
    return negativo ? u'-' + v : v;
}

void Plan_Digitos::Exigir_Cifras(QStringView valor) const
{
    if (es_texto || caracter.isEmpty()) return;
    if (!valor.isEmpty() && Es_Signo(valor.front())) valor = valor.mid(1);
    const auto vale = [](QChar c) { return Es_Cifra(c) || c == u' ' || c == u'.'; };
    if (!std::ranges::all_of(valor, vale)) throw Error_Ejecucion(13);
}

Plan_Especial::Plan_Especial(QStringView lista)
{
    for (QStringView orden : lista.tokenize(u',')) {
        orden = Sin_Blancos(orden);
        if (orden == u"CD") ordenes.push_back(Orden::Ceros_Decimales);
        if (orden == u"CI") ordenes.push_back(Orden::Ceros_Enteros);
        if (orden == u"ED") ordenes.push_back(Orden::Tras_Comilla);
    }
}

void Plan_Especial::Aplicar(QString& valor) const
{
    for (const Orden orden : ordenes) {
        const qsizetype punto = valor.indexOf(u'.');
        switch (orden) {
        case Orden::Ceros_Decimales:
            while (punto >= 0 && valor.size() > punto + 2 && valor.endsWith(u'0'))
                valor.chop(1);
            break;
        case Orden::Ceros_Enteros:
            if (punto >= 0) valor = Sin_Ceros(QStringView(valor).left(punto)) + valor.mid(punto);
            break;
        case Orden::Tras_Comilla:
            if (const qsizetype comilla = valor.lastIndexOf(u'`'); comilla >= 0)
                valor.remove(0, comilla + 1);
            break;
        }
    }
}

Plan_Campo::Plan_Campo(const Fila_Campo& campo, std::optional<Sumador> s)
    : ancho(std::max(0, campo.digitos)), tras_comilla(campo.especial.contains(u"ED")),
      coordenada(!campo.marcas.isEmpty()), sumador(std::move(s)),
      digitos(campo.posdigit, campo.caracter), especial(campo.especial)
{
    if (campo.forsalida.isEmpty()) return;
    dibujo.emplace(campo.forsalida);
    const auto ceros = dibujo->De_Ceros();
    const auto [e, d] = digitos.Anchos();
    if (ceros && ceros->decimales == d && !digitos.Es_Texto() && digitos.Caracter() == u"." &&
        std::max(e, ceros->enteros) + d <= CIFRAS_EXACTAS)
        cifras_copiadas = ceros->enteros;
}

QStringView Plan_Campo::Cortar(QStringView linea, int posicion) const
{
    if (tras_comilla) {
        const qsizetype comilla = linea.lastIndexOf(u'`');
        if (comilla >= 0) return linea.mid(comilla + 1);
    }
    if (posicion > linea.size()) return {};
    return Sin_Blancos(linea.mid(posicion - 1, ancho));
}

void Plan_Campo::De_Columnas(QStringView linea, int posicion, QString& valor) const
{
    const QStringView corte = Cortar(linea, posicion);
    if (corte.isEmpty()) {
        valor.resize(0);
        return;
    }
    if (coordenada)
        Sumar_Coordenada(corte, valor);
    else if (!cifras_copiadas || !Copiar_Cifras(corte, valor))
        Convertir(corte, valor);
    especial.Aplicar(valor);
}

void Plan_Campo::De_Token(QStringView token, QString& valor) const
{
    if (token.startsWith(u'*')) return;
    if (token.isEmpty()) {
        valor.resize(0);
        return;
    }
    if (sumador)
        sumador->Sumar(token, valor);
    else
        Copiar(token, valor);
    especial.Aplicar(valor);
}

// A coordinate's first place is its sign's. Deliberate: what isn't "-" there counts as "+", a digit
// too.
void Plan_Campo::Sumar_Coordenada(QStringView corte, QString& valor) const
{
    const bool con_signo = Es_Signo(corte.front());
    if (con_signo && sumador) return sumador->Sumar(corte, valor);
    QString signada = corte.toString();
    if (!con_signo) signada[0] = u'+';
    if (sumador)
        sumador->Sumar(signada, valor);
    else
        valor = signada;
}

void Plan_Campo::Convertir(QStringView corte, QString& valor) const
{
    if (digitos.Es_Texto()) {
        Copiar(corte, valor);
    } else {
        digitos.Exigir_Cifras(corte);
        valor = digitos.Aplicar(corte);
    }
    if (dibujo) valor = Con_Dibujo(valor);
}

// The picture is the machine's, whose decimal mark is the comma; stored texts have the point.
QString Plan_Campo::Con_Dibujo(const QString& valor) const
{
    QString numero = valor;
    numero.replace(u'.', u',');
    if (const auto x = Leer_Numero_Espanol(numero)) return dibujo->Texto(*x).replace(u',', u'.');
    if (!digitos.Es_Texto()) throw Error_Ejecucion(13);
    return numero.replace(u',', u'.');
}

// A sign and digits alone, in the places where the picture wants them.
// @return false when the text is anything else, which takes the long way
bool Plan_Campo::Copiar_Cifras(QStringView corte, QString& valor) const
{
    QStringView t = corte;
    bool negativo = t.front() == u'-';
    if (Es_Signo(t.front())) t = t.mid(1);
    if (t.isEmpty() || !std::ranges::all_of(t, Es_Cifra)) return false;

    const auto [e, d] = digitos.Anchos();
    t = t.right(e + d);
    const qsizetype de_decimal = std::min<qsizetype>(t.size(), d);
    QStringView entera = t.left(t.size() - de_decimal);
    const QStringView decimal = t.mid(entera.size());
    while (!entera.isEmpty() && entera.front() == u'0')
        entera = entera.mid(1);
    // Zero has no sign.
    if (negativo && entera.isEmpty())
        negativo = !std::ranges::all_of(decimal, [](QChar c) { return c == u'0'; });

    const qsizetype llenos = std::max<qsizetype>(0, *cifras_copiadas - entera.size());
    valor.resize(qsizetype(negativo) + llenos + entera.size() + 1 + d);
    QChar* p = valor.data();
    if (negativo) *p++ = u'-';
    p = std::fill_n(p, llenos, QChar(u'0'));
    p = std::copy(entera.begin(), entera.end(), p);
    *p++ = u'.';
    p = std::fill_n(p, d - de_decimal, QChar(u'0'));
    std::copy(decimal.begin(), decimal.end(), p);
    return true;
}
