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

std::vector<QByteArrayView> Piezas_De(QByteArrayView datosg)
{
    std::vector<QByteArrayView> piezas;
    for (qsizetype desde = 0; desde <= datosg.size();) {
        const qsizetype p = datosg.indexOf(char(SEP_LISTA), desde);
        const qsizetype fin = p < 0 ? datosg.size() : p;
        piezas.push_back(datosg.sliced(desde, fin - desde));
        desde = fin + 1;
    }
    return piezas;
}

// Identifier and field of a KRT800 item of `DatosG`.
QByteArrayView Nombre_De_Item(QByteArrayView pieza)
{
    const qsizetype campo = pieza.indexOf(char(SEP_CAMPO));
    const qsizetype valor = campo < 0 ? -1 : pieza.indexOf(char(SEP_CAMPO), campo + 1);
    return valor < 0 ? pieza : pieza.first(valor);
}

bool Nombran_Lo_Mismo(QByteArrayView una, QByteArrayView otra)
{
    return una == otra || Nombre_De_Item(una) == Nombre_De_Item(otra);
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
    return Plan_Digitos(posdigit, caracter).Aplicar(valor);
}

QString Aplicar_Especial(const QString& valor, const QString& lista)
{
    QString v = valor;
    Plan_Especial(lista).Aplicar(v);
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
    QString valor;
    En_Silencio("Cortar_Campo", [&] {
        QString cortado;
        Plan_Campo(campo, Sumador_De(suma, campo)).De_Columnas(linea, posicion, cortado);
        valor = cortado;
    });
    valores[lugar] = valor;
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
        QString cortado = valores[lugar];
        Plan_Campo(campo, Sumador_De(suma, campo)).De_Token(token, cortado);
        valor = cortado;
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
    // Most identifiers are one letter, and lines of one word follow each other.
    const std::size_t letra = id.size() == 1 ? id.front().unicode() : por_letra.size();
    if (letra < por_letra.size() && por_letra[letra]) return *por_letra[letra];
    if (ultimo.second && id == ultimo.first) return *ultimo.second;
    auto hallado = registros.find(id);
    if (hallado == registros.end())
        hallado = registros.emplace(id.toString(), Leer_Registro(id.toString())).first;
    if (letra < por_letra.size()) por_letra[letra] = &hallado->second;
    ultimo = {hallado->first, &hallado->second};
    return hallado->second;
}

Decodificador::Registro Decodificador::Leer_Registro(const QString& id) const
{
    Registro registro;
    const Filas_Campo filas = Campos_De(bd, familia.clave, id);
    registro.con_filas = !filas->empty();
    const bool por_trozos = familia.serie == Serie::B;
    int posicion = por_trozos ? 1 : 2;
    for (const Fila_Campo& campo : *filas) {
        const qsizetype lugar = nombres.indexOf(campo.campo);
        // Deliberate: a field that isn't listed ("NL") is still decoded in fixed columns.
        if (lugar >= 0 && !(por_trozos && campo.marcas == u"NL")) {
            registro.pasos.push_back({lugar, posicion, Plan_Campo(campo, Sumador_De(suma, campo))});
            registro.ultimo_token = posicion;
        }
        posicion += por_trozos ? 1 : campo.digitos;
    }
    return registro;
}

// A field that fails is emptied; the run log tells of the first one and spares the rest.
// @return false when it failed
template <typename Sacar>
bool Decodificador::Guardar(QString& valor, QStringView linea, Sacar&& sacar)
{
    try {
        sacar(valor);
        return true;
    } catch (...) {
        valor.clear();
        const Error_Ejecucion error = Error_En_Curso();
        if (!anotado)
            Anotar("Decodificador", error.descripcion + ": " + linea.left(200).toString());
        anotado = true;
        return false;
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
            Guardar(valores[paso.lugar], linea, [&](QString& valor) {
                paso.plan.De_Columnas(recortada, paso.posicion, valor);
            });
    } else if (familia.serie == Serie::B) {
        Cortar_Trozos(registro, linea, valores);
    } else if (familia.serie == Serie::Nivel && registro.con_filas) {
        Cortar_NV400(linea.toString(), nombres, valores);
    }
}

void Decodificador::Cortar_Trozos(const Registro& registro, QStringView linea, QStringList& valores)
{
    const auto resto = Sin_Palabra(linea, ope);
    if (!resto || registro.pasos.empty()) return;
    const QChar separador = Separador_800(ope);
    trozos.clear();
    for (const QStringView trozo : resto->tokenize(separador)) {
        trozos.push_back(trozo);
        if (int(trozos.size()) == registro.ultimo_token) break;
    }
    for (const Paso& paso : registro.pasos) {
        const auto n = std::size_t(paso.posicion);
        const QStringView trozo = n <= trozos.size() ? trozos[n - 1] : QStringView();
        Guardar(valores[paso.lugar], linea,
                [&](QString& valor) { paso.plan.De_Token(trozo, valor); });
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
        generales->push_back(
            {i, posicion, campo->id, campo->campo, Plan_Campo(*campo, std::nullopt)});
    }
}

bool Decodificador::Hay_Generales()
{
    if (!generales) Preparar_Generales();
    return !generales->empty();
}

void Decodificador::General(const QString& datosg, QStringList& valores)
{
    General(QByteArrayView(datosg.toUtf8()), valores);
}

void Decodificador::General(QByteArrayView datosg, QStringList& valores)
{
    if (datosg.isEmpty() || !Hay_Generales()) return;
    if (datosg != ultimos_generales) {
        if (familia.serie == Serie::B)
            Leer_Generales_800(datosg);
        else
            Leer_Generales(QString::fromUtf8(datosg));
        ultimos_generales = datosg.toByteArray();
    }
    for (const General_Leido& leido : generales_leidos)
        if (leido.valor) valores[leido.pedido->lugar] = *leido.valor;
}

// The first item that begins with a field's identifier holds it.
void Decodificador::Leer_Generales(QStringView datosg)
{
    generales_leidos.clear();
    for (const General_Pedido& pedido : *generales)
        for (const QStringView pieza : datosg.tokenize(QChar(SEP_LISTA))) {
            if (pieza.left(1) != pedido.id) continue;
            QString cortado;
            Guardar(cortado, datosg, [&](QString& valor) {
                pedido.plan.De_Columnas(pieza.mid(1), pedido.posicion, valor);
            });
            generales_leidos.push_back({&pedido, cortado});
            break;
        }
}

// Each sight brings one item anew and leaves the others as they were: as long as they name the same
// fields, only what changed is read.
void Decodificador::Leer_Generales_800(QByteArrayView datosg)
{
    const std::vector<QByteArrayView> antes = Piezas_De(ultimos_generales);
    const std::vector<QByteArrayView> ahora = Piezas_De(datosg);
    if (!std::ranges::equal(antes, ahora, Nombran_Lo_Mismo)) return Casar_Generales_800(ahora);
    for (General_Leido& leido : generales_leidos)
        if (ahora[leido.pieza] != antes[leido.pieza]) Leer_Item(leido, ahora[leido.pieza]);
}

// The first item of a field's identifier and name holds it: identifier, field and value.
void Decodificador::Casar_Generales_800(const std::vector<QByteArrayView>& piezas)
{
    generales_leidos.clear();
    for (const General_Pedido& pedido : *generales) {
        const QByteArray nombre = (pedido.id + QChar(SEP_CAMPO) + pedido.campo).toUtf8();
        const auto pieza = std::ranges::find(piezas, QByteArrayView(nombre), Nombre_De_Item);
        if (pieza == piezas.end()) continue;
        generales_leidos.push_back({&pedido, {}, std::size_t(pieza - piezas.begin())});
        Leer_Item(generales_leidos.back(), *pieza);
    }
}

void Decodificador::Leer_Item(General_Leido& leido, QByteArrayView pieza)
{
    const QString item = QString::fromUtf8(pieza);
    const QStringView token = Vista_Trozo(3, item, SEP_CAMPO);
    leido.valor.reset();
    if (token.startsWith(u'*')) return;
    leido.valor.emplace();
    Guardar(*leido.valor, item, [&](QString& valor) { leido.pedido->plan.De_Token(token, valor); });
}

void Decodificador::Poner_Punto(const QString& punto, QStringList& valores) const
{
    for (const qsizetype lugar : puntos)
        valores[lugar] = punto.mid(punto.lastIndexOf(u'`') + 1);
}
