#include "session/Decodificador.h"

#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "session/Blancos.h"
#include "session/Identificador.h"
#include "session/Nivel.h"

#include <algorithm>

namespace {

QStringView Vista_Trozo(int n, QStringView linea, QChar sep)
{
    qsizetype desde = 0;
    for (; n > 1; --n) {
        const qsizetype p = linea.indexOf(sep, desde);
        if (p < 0) return {};
        desde = p + 1;
    }
    const qsizetype p = linea.indexOf(sep, desde);
    return linea.mid(desde, p < 0 ? -1 : p - desde);
}

bool Es_Texto(const Fila_Campo& campo)
{
    return Sin_Blancos(campo.posdigit) == u"*";
}

// A text that is to be split into integer and decimals holds digits; anything else is damage.
void Exigir_Cifras(QStringView valor)
{
    if (!valor.isEmpty() && (valor.front() == u'+' || valor.front() == u'-')) valor = valor.mid(1);
    const auto vale = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u' ' || c == u'.'; };
    if (!std::ranges::all_of(valor, vale)) throw Error_Ejecucion(13);
}

// The picture is the machine's, whose decimal mark is the comma; stored texts have the point.
QString Aplicar_Formato(const QString& valor, const Fila_Campo& campo)
{
    QString numero = valor;
    numero.replace(u'.', u',');
    if (!Basico::IsNumeric(numero)) {
        if (!Es_Texto(campo)) throw Error_Ejecucion(13);
        return numero.replace(u',', u'.');
    }
    return Basico::Formato(numero, campo.forsalida).replace(u',', u'.');
}

// The digits of an integer part without the zeros in front; "0" when nothing else is left.
QString Sin_Ceros(QStringView entera)
{
    QStringView t = Sin_Blancos(entera);
    bool negativo = false;
    if (!t.isEmpty() && (t.front() == u'+' || t.front() == u'-')) {
        negativo = t.front() == u'-';
        t = t.mid(1);
    }
    if (!std::ranges::all_of(t, [](QChar c) { return c >= u'0' && c <= u'9'; }))
        throw Error_Ejecucion(13);
    while (!t.isEmpty() && t.front() == u'0')
        t = t.mid(1);
    const QString cifras = t.isEmpty() ? QStringLiteral("0") : t.toString();
    return negativo ? u'-' + cifras : cifras;
}

const QString& Anchos_De_Coordenada()
{
    static const QString formato = QString::fromUtf16(FORMATO_COORDENADA);
    return formato;
}

std::optional<Sumador> Sumador_De(const Suma& suma, const Fila_Campo& campo)
{
    const QString* const desplazamiento = suma.desplazamientos.De_Marca(campo.marcas);
    if (!desplazamiento) return std::nullopt;
    return Sumador(suma.familia, *desplazamiento, Anchos_De_Coordenada(), campo.posdigit,
                   Anchos_De_Coordenada());
}

// A coordinate's first place is its sign's. Deliberate: what isn't "-" there counts as "+", a digit
// too.
QString Sumar_Coordenada(QStringView corte, const std::optional<Sumador>& sumador)
{
    const bool con_signo = corte.front() == u'-' || corte.front() == u'+';
    if (con_signo && sumador) return sumador->Sumar(corte);
    QString valor = corte.toString();
    if (!con_signo) valor[0] = u'+';
    return sumador ? sumador->Sumar(valor) : valor;
}

// Value of a field in fixed columns. @param linea  without blanks around
QString Valor_De_Columnas(QStringView linea, int posicion, const Fila_Campo& campo,
                          const std::optional<Sumador>& sumador)
{
    QStringView corte;
    if (campo.especial.contains(u"ED") && linea.contains(u'`'))
        corte = linea.mid(linea.lastIndexOf(u'`') + 1);
    else if (posicion <= linea.size())
        corte = Sin_Blancos(linea.mid(posicion - 1, std::max(0, campo.digitos)));
    if (corte.isEmpty()) return {};

    QString valor;
    if (!campo.marcas.isEmpty()) {
        valor = Sumar_Coordenada(corte, sumador);
    } else {
        valor = corte.toString();
        if (!Es_Texto(campo)) {
            if (!campo.caracter.isEmpty()) Exigir_Cifras(valor);
            valor = Aplicar_Digitos(campo.posdigit, valor, campo.caracter);
        }
        if (!campo.forsalida.isEmpty()) valor = Aplicar_Formato(valor, campo);
    }
    return campo.especial.isEmpty() ? valor : Aplicar_Especial(valor, campo.especial);
}

// Value of a KRT800 token; nothing when the instrument sent no data.
std::optional<QString> Valor_De_Token(QStringView token, const Fila_Campo& campo,
                                      const std::optional<Sumador>& sumador)
{
    if (token.startsWith(u'*')) return std::nullopt;
    if (token.isEmpty()) return QString();
    const QString valor = sumador ? sumador->Sumar(token) : token.toString();
    return campo.especial.isEmpty() ? valor : Aplicar_Especial(valor, campo.especial);
}

// What the tokens of a KRT800 line are counted in: the kinds with a word in front lose it.
// @return nothing when there is no blank behind the word, so that the line holds no fields
std::optional<QStringView> Sin_Palabra(QStringView linea, int ope)
{
    if (!Fila_De(Operacion(ope)).id_fijo.isEmpty()) return linea;
    linea = Sin_Blancos_Izquierda(linea);
    const qsizetype blanco = linea.indexOf(u' ');
    if (blanco < 0) return std::nullopt;
    return Sin_Blancos_Izquierda(linea.mid(blanco));
}

QChar Separador_800(int ope)
{
    return Operacion(ope) == Operacion::Alineaciones ? u' ' : u',';
}

// Item of a KRT800 `DatosG` that holds a field: identifier, field and value.
std::optional<QStringView> Valor_General_800(QStringView datosg, const Fila_Campo& campo)
{
    for (const QStringView pieza : datosg.tokenize(QChar(SEP_LISTA)))
        if (Vista_Trozo(1, pieza, SEP_CAMPO) == campo.id &&
            Vista_Trozo(2, pieza, SEP_CAMPO) == campo.campo)
            return Vista_Trozo(3, pieza, SEP_CAMPO);
    return std::nullopt;
}

// Runs a routine that must leave quietly whatever happens.
template <typename Rutina> void En_Silencio(const char* nombre, Rutina&& rutina)
{
    try {
        rutina();
    } catch (...) {
        Anotar(QString::fromLatin1(nombre), Error_En_Curso().descripcion);
    }
}

} // namespace

QString Aplicar_Digitos(const QString& posdigit, const QString& valor, const QString& caracter)
{
    if (valor.isEmpty() || Sin_Blancos(posdigit) == u"*") return valor;
    QString v = valor;
    const bool negativo = v.front() == u'-';
    if (negativo)
        v.remove(0, 1);
    else if (v.front() == u'+')
        v[0] = u'0';
    if (!caracter.isEmpty()) {
        const auto [e, d] = Anchos_Numero::Leer(posdigit);
        if (v.size() < d) v = v.rightJustified(d, u'0');
        const qsizetype corte = v.size() - d;
        const qsizetype inicio = std::max<qsizetype>(0, corte - e);
        v = v.mid(inicio, corte - inicio) + caracter + v.mid(corte);
    }
    return negativo ? u'-' + v : v;
}

QString Aplicar_Especial(const QString& valor, const QString& lista)
{
    QString v = valor;
    for (QStringView orden : QStringView(lista).tokenize(u',')) {
        orden = Sin_Blancos(orden);
        const qsizetype punto = v.indexOf(u'.');
        if (orden == u"CD" && punto >= 0) {
            while (v.size() > punto + 2 && v.endsWith(u'0'))
                v.chop(1);
        } else if (orden == u"CI" && punto >= 0) {
            v = Sin_Ceros(QStringView(v).left(punto)) + v.mid(punto);
        } else if (orden == u"ED") {
            v = v.mid(v.lastIndexOf(u'`') + 1);
        }
    }
    return v;
}

QString Aplicar_Marca(const Suma& suma, const QString& modo, const QString& marca,
                      const QString& valor, const QString& posdigit)
{
    const QString* const desplazamiento = suma.desplazamientos.De_Marca(marca);
    if (!desplazamiento) return valor;
    return Sumar_Desplazamiento(suma.familia, modo, *desplazamiento, Anchos_De_Coordenada(), valor,
                                posdigit, Anchos_De_Coordenada());
}

void Cortar_Campo(const Suma& suma, const QString& linea, int posicion, const Fila_Campo& campo,
                  const QStringList& nombres, QStringList& valores)
{
    const qsizetype lugar = nombres.indexOf(campo.campo);
    if (lugar < 0) return;
    valores[lugar].clear();
    En_Silencio("Cortar_Campo", [&] {
        valores[lugar] = Valor_De_Columnas(linea, posicion, campo, Sumador_De(suma, campo));
    });
}

void Cortar_Token_800(const Suma& suma, int ope, const QString& linea, int indice,
                      const Fila_Campo& campo, const QStringList& nombres, QStringList& valores)
{
    const auto resto = Sin_Palabra(linea, ope);
    const qsizetype lugar = nombres.indexOf(campo.campo);
    if (!resto || lugar < 0 || campo.marcas == u"NL") return;
    const QStringView token = Vista_Trozo(indice, *resto, Separador_800(ope));
    QString valor;
    En_Silencio("Cortar_Token_800", [&] {
        valor = Valor_De_Token(token, campo, Sumador_De(suma, campo)).value_or(valores[lugar]);
    });
    valores[lugar] = valor;
}

void Cortar_NV400(const QString& linea, const QStringList& nombres, QStringList& valores)
{
    // Deliberate: by position whatever the names say, and the last place is left alone.
    for (qsizetype k = 1; k < nombres.size(); ++k)
        valores[k - 1] = Campo_NV400(linea, int(k));
}

void Extraer_Punto(Base& bd, qint64 sesion, const QString& maquina, int ope, const QString& punto,
                   qint64 desde, qint64 hasta, const QStringList& nombres, QStringList& valores)
{
    for (QString& valor : valores)
        valor.clear();
    En_Silencio("Extraer_Punto", [&] {
        Decodificador decodificador(bd, maquina, ope, nombres);
        Conjunto_Registros registros = bd.OpenRecordset(
            "SELECT * FROM Registros WHERE ID = " + QString::number(sesion) + " AND Punto = '" +
            Reemplazar(punto, "'", "''") + "' AND Secuencia BETWEEN " + QString::number(desde) +
            " AND " + QString::number(hasta) + " ORDER BY Secuencia");
        for (; !registros.Es_EOF(); registros.MoveNext()) {
            decodificador.Linea(registros.Texto("Datos"), valores);
            decodificador.General(registros.Texto("DatosG"), valores);
        }
        decodificador.Poner_Punto(punto, valores);
    });
}

void Decodificar_Linea(Base& bd, const QString& linea, const QString& punto, const QString& maquina,
                       int ope, const QStringList& nombres, QStringList& valores)
{
    Q_UNUSED(punto)
    En_Silencio("Decodificar_Linea",
                [&] { Decodificador(bd, maquina, ope, nombres).Linea(linea, valores); });
}

void Decodificar_General(Base& bd, const QString& datosg, const QString& maquina,
                         const QStringList& nombres, QStringList& valores, int ope)
{
    En_Silencio("Decodificar_General",
                [&] { Decodificador(bd, maquina, ope, nombres).General(datosg, valores); });
}

// The one place where the decoding looks at the program's state.
Decodificador::Decodificador(Base& base, const QString& maquina, int operacion,
                             const QStringList& pedidos)
    : Decodificador(base, Familia_De(maquina), operacion, pedidos,
                    {Familia_Actual(), Desplazamientos::En_Vigor()})
{
}

Decodificador::Decodificador(Base& base, const Familia& de, int operacion,
                             const QStringList& pedidos, Suma suma_)
    : bd(base), familia(de), ope(operacion), nombres(pedidos), suma(std::move(suma_))
{
    for (qsizetype i = 0; i < nombres.size(); ++i)
        if (nombres[i].compare(u"PUNTO", Qt::CaseInsensitive) == 0) puntos.push_back(i);
}

const Decodificador::Registro& Decodificador::Preparar(QStringView id)
{
    // Most identifiers are one letter.
    const std::size_t letra = id.size() == 1 ? id.front().unicode() : por_letra.size();
    if (letra < por_letra.size() && por_letra[letra]) return *por_letra[letra];
    auto hallado = registros.find(id);
    if (hallado == registros.end())
        hallado = registros.emplace(id.toString(), Leer_Registro(id.toString())).first;
    if (letra < por_letra.size()) por_letra[letra] = &hallado->second;
    return hallado->second;
}

Decodificador::Registro Decodificador::Leer_Registro(const QString& id) const
{
    Registro registro;
    registro.filas = Campos_De(bd, familia.clave, id);
    const bool por_trozos = familia.serie == Serie::B;
    int posicion = por_trozos ? 1 : 2;
    for (const Fila_Campo& campo : *registro.filas) {
        const qsizetype lugar = nombres.indexOf(campo.campo);
        // Deliberate: a field that isn't listed ("NL") is still decoded in fixed columns.
        if (lugar >= 0 && !(por_trozos && campo.marcas == u"NL"))
            registro.pasos.push_back({lugar, posicion, &campo, Sumador_De(suma, campo)});
        posicion += por_trozos ? 1 : campo.digitos;
    }
    return registro;
}

// A field that fails is emptied; the run log tells of the first one and spares the rest.
template <typename Valor>
void Decodificador::Guardar(QString& valor, QStringView linea, Valor&& sacar)
{
    try {
        valor = sacar();
    } catch (...) {
        valor.clear();
        const Error_Ejecucion error = Error_En_Curso();
        if (!anotado)
            Anotar("Decodificador", error.descripcion + ": " + linea.left(200).toString());
        anotado = true;
    }
}

void Decodificador::Linea(QStringView linea, QStringList& valores)
{
    // The level's lines are all of one kind; so is any other session's while it is in force.
    const Registro& registro = Preparar(
        suma.familia.serie == Serie::Nivel ? QStringView(u"1") : Id_De_Linea(linea, familia, ope));
    if (familia.serie == Serie::A) {
        const QStringView recortada = Sin_Blancos(linea);
        for (const Paso& paso : registro.pasos)
            Guardar(valores[paso.lugar], linea, [&] {
                return Valor_De_Columnas(recortada, paso.posicion, *paso.campo, paso.sumador);
            });
    } else if (familia.serie == Serie::B) {
        const auto resto = Sin_Palabra(linea, ope);
        if (!resto) return;
        for (const Paso& paso : registro.pasos) {
            QString& valor = valores[paso.lugar];
            const QStringView token = Vista_Trozo(paso.posicion, *resto, Separador_800(ope));
            Guardar(valor, linea, [&] {
                return Valor_De_Token(token, *paso.campo, paso.sumador).value_or(valor);
            });
        }
    } else if (familia.serie == Serie::Nivel && !registro.filas->empty()) {
        Cortar_NV400(linea.toString(), nombres, valores);
    }
}

void Decodificador::Preparar_Generales()
{
    generales.emplace();
    for (qsizetype i = 0; i < nombres.size(); ++i) {
        auto campo = Buscar_Campo_G(bd, nombres[i], familia, ope);
        // Only the fields marked so travel in the general data of a KRT800.
        if (!campo || (familia.serie == Serie::B && campo->marcas != u"GE")) continue;
        // A general value never gets an offset.
        campo->marcas.clear();
        const int posicion = Posicion_Campo(bd, suma.familia, campo->id, campo->orden);
        generales->push_back({i, posicion, std::move(*campo)});
    }
}

bool Decodificador::Hay_Generales()
{
    if (!generales) Preparar_Generales();
    return !generales->empty();
}

void Decodificador::General(const QString& datosg, QStringList& valores)
{
    if (datosg.isEmpty() || !Hay_Generales()) return;
    for (const General_Pedido& pedido : *generales) {
        QString& valor = valores[pedido.lugar];
        if (familia.serie == Serie::B) {
            if (const auto token = Valor_General_800(datosg, pedido.campo))
                Guardar(valor, datosg, [&] {
                    return Valor_De_Token(*token, pedido.campo, std::nullopt).value_or(valor);
                });
            continue;
        }
        for (const QStringView pieza : QStringView(datosg).tokenize(QChar(SEP_LISTA))) {
            if (pieza.left(1) != pedido.campo.id) continue;
            Guardar(valor, datosg, [&] {
                return Valor_De_Columnas(pieza.mid(1), pedido.posicion, pedido.campo, std::nullopt);
            });
            break;
        }
    }
}

void Decodificador::Poner_Punto(const QString& punto, QStringList& valores) const
{
    for (const qsizetype lugar : puntos)
        valores[lugar] = punto.mid(punto.lastIndexOf(u'`') + 1);
}
