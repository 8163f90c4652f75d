#include "conversions/landxml/Fuente_XML.h"

#include "core/Ansi.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr qsizetype BLOQUE = 1 << 16;
constexpr QByteArrayView CORTE = "<!---->";

using Tabla = std::vector<QByteArray>;

const Tabla& Tabla_Ansi()
{
    static const Tabla tabla = [] {
        Tabla t;
        for (int c = 0; c < 256; ++c)
            t.push_back(QString(Ansi::Caracter(c)).toUtf8());
        return t;
    }();
    return tabla;
}

const Tabla& Tabla_Latin9()
{
    static const Tabla tabla = [] {
        constexpr std::pair<size_t, char16_t> CAMBIOS[] = {
            {0xA4, 0x20AC}, {0xA6, 0x0160}, {0xA8, 0x0161}, {0xB4, 0x017D},
            {0xB8, 0x017E}, {0xBC, 0x0152}, {0xBD, 0x0153}, {0xBE, 0x0178}};
        Tabla t = Tabla_Ansi();
        for (const auto& [codigo, caracter] : CAMBIOS)
            t[codigo] = QString(QChar(caracter)).toUtf8();
        return t;
    }();
    return tabla;
}

/// Encoding label of the XML declaration at the head, lower case; empty when there is none.
QByteArray Codificacion_Declarada(const QByteArray& cabeza)
{
    if (!cabeza.startsWith("<?xml")) return {};
    const QByteArray declaracion = cabeza.left(std::max(qsizetype(0), cabeza.indexOf("?>")));
    const qsizetype donde = declaracion.indexOf("encoding");
    const qsizetype igual = donde < 0 ? -1 : declaracion.indexOf('=', donde);
    if (igual < 0) return {};
    const QByteArray resto = declaracion.mid(igual + 1).trimmed();
    const qsizetype final = resto.isEmpty() ? -1 : resto.indexOf(resto[0], 1);
    return final < 1 ? QByteArray() : resto.mid(1, final - 1).trimmed().toLower();
}

/// The declaration names a page that the data no longer have: blanks take its place, so that lines
/// keep their numbers.
void Blanquear_Declaracion(QByteArray& cabeza)
{
    if (cabeza.size() < 6 || !cabeza.startsWith("<?xml") || !std::strchr(" \t\r\n", cabeza[5]))
        return;
    const qsizetype final = cabeza.indexOf("?>");
    for (qsizetype i = 0; final >= 0 && i < final + 2; ++i)
        if (cabeza[i] != '\n' && cabeza[i] != '\r') cabeza[i] = ' ';
}

bool Es(const QByteArray& etiqueta, std::initializer_list<const char*> nombres)
{
    return std::any_of(nombres.begin(), nombres.end(),
                       [&](const char* n) { return etiqueta == n; });
}

} // namespace

Fuente_XML::Fuente_XML(QIODevice& origen) : fichero(origen)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 Fuente_XML::readData(char* datos, qint64 maximo)
{
    while (dado == salida.size()) {
        salida.resize(0);
        dado = 0;
        if (acabado || !Cargar()) return 0;
    }
    const qint64 n = std::min(maximo, qint64(salida.size() - dado));
    std::memcpy(datos, salida.constData() + dado, size_t(n));
    dado += n;
    return n;
}

bool Fuente_XML::Cargar()
{
    QByteArray bloque(BLOQUE, Qt::Uninitialized);
    const qint64 n = fichero.read(bloque.data(), BLOQUE);
    if (n < 0) Rehusar("No se puede leer el fichero: " + fichero.errorString());
    if (n <= 0) {
        acabado = true;
        return false;
    }
    bloque.truncate(n);
    if (empezado) {
        Vigilar(A_Utf8(bloque));
        return true;
    }
    empezado = true;
    Elegir_Pagina(bloque);
    QByteArray cabeza = A_Utf8(bloque);
    if (cabeza.startsWith("\xEF\xBB\xBF")) cabeza.remove(0, 3);
    Blanquear_Declaracion(cabeza);
    Vigilar(cabeza);
    return true;
}

void Fuente_XML::Elegir_Pagina(const QByteArray& cabeza)
{
    const auto descodificar = [this](QStringConverter::Encoding e) {
        pagina = Pagina::Descodificador;
        descodificador = QStringDecoder(e);
    };
    if (cabeza.startsWith("\xFF\xFE") || cabeza.startsWith(QByteArrayView("<\0", 2))) {
        descodificar(QStringConverter::Utf16LE);
    } else if (cabeza.startsWith("\xFE\xFF") || cabeza.startsWith(QByteArrayView("\0<", 2))) {
        descodificar(QStringConverter::Utf16BE);
    } else if (!cabeza.startsWith("\xEF\xBB\xBF")) {
        const QByteArray declarada = Codificacion_Declarada(cabeza);
        // A declared UTF-16 without its mark and its null bytes is a text that was saved anew.
        if (Es(declarada, {"", "utf-8", "utf8", "us-ascii", "ascii"}) ||
            declarada.startsWith("utf-16"))
            return;
        if (Es(declarada, {"iso-8859-15", "iso8859-15", "latin9", "latin-9"})) {
            pagina = Pagina::Tabla;
            tabla = &Tabla_Latin9();
        } else if (Es(declarada, {"iso-8859-1", "iso8859-1", "iso_8859-1", "latin1", "latin-1",
                                  "windows-1252", "cp1252", "cp-1252", "x-cp1252", "ansi"})) {
            pagina = Pagina::Tabla;
            tabla = &Tabla_Ansi();
        } else {
            pagina = Pagina::Descodificador;
            descodificador = QStringDecoder(declarada.constData());
            if (!descodificador.isValid())
                Rehusar("Codificación de caracteres desconocida: " +
                        QString::fromLatin1(declarada));
        }
    }
}

QByteArray Fuente_XML::A_Utf8(const QByteArray& bloque)
{
    if (acabado || pagina == Pagina::Utf8) return bloque;
    if (pagina == Pagina::Descodificador) {
        const QString texto = descodificador(bloque);
        if (descodificador.hasError()) Rehusar(QStringLiteral("Caracteres mal codificados"));
        return texto.toUtf8();
    }
    QByteArray utf8;
    utf8.reserve(bloque.size() + bloque.size() / 8);
    for (const char c : bloque) {
        if (static_cast<unsigned char>(c) < 0x80) {
            utf8.append(c);
        } else {
            utf8.append((*tabla)[static_cast<unsigned char>(c)]);
        }
    }
    return utf8;
}

void Fuente_XML::Rehusar(const QString& por_que)
{
    if (motivo.isEmpty()) motivo = por_que;
    acabado = true;
}

/// Puts out a stretch of the file; of what is left out, its line ends.
void Fuente_XML::Dar(const char* desde, const char* hasta)
{
    if (hondura_superficies == 0) {
        salida.append(desde, hasta - desde);
    } else if (const auto lineas = std::count(desde, hasta, '\n')) {
        salida.append(qsizetype(lineas), '\n');
        salida.append(CORTE);
    }
}

/// Follows the markup over a block and puts it out.
void Fuente_XML::Vigilar(const QByteArray& bloque)
{
    const char* p = bloque.constData();
    const char* const fin = p + bloque.size();
    const char* copiado = p; // all before it has been put out
    while (p < fin && !acabado) {
        switch (estado) {
        case Estado::Texto:
            p = Pasar_Texto(p, fin, copiado);
            break;
        case Estado::Apertura:
            p = Pasar_Apertura(p);
            break;
        case Estado::Nombre:
            p = Pasar_Nombre(p, fin);
            break;
        case Estado::Etiqueta:
            p = Pasar_Etiqueta(p, fin);
            if (estado == Estado::Texto) Acabar_Etiqueta(p, copiado);
            break;
        case Estado::Comentario:
        case Estado::CData:
        case Estado::Instruccion:
            p = Pasar_Marca(p, fin);
            break;
        }
    }
    Dar(copiado, p);
}

const char* Fuente_XML::Pasar_Texto(const char* p, const char* fin, const char*& copiado)
{
    const auto* const menor = static_cast<const char*>(std::memchr(p, '<', size_t(fin - p)));
    const char* const hasta = menor ? menor : fin;
    if (hondura_superficies == 0 && largo + (hasta - p) > TEXTO_SEGUIDO) {
        const char* const desde = p + std::max(qsizetype(0), TEXTO_SEGUIDO - largo);
        const char* const blanco =
            std::find_if(desde, hasta, [](char c) { return c == ' ' || c == '\n'; });
        if (blanco < hasta) {
            Dar(copiado, blanco + 1);
            salida.append(CORTE);
            copiado = blanco + 1;
            largo = 0;
            return copiado;
        }
    }
    largo += hasta - p;
    if (!menor) return fin;
    estado = Estado::Apertura;
    apertura.resize(0);
    return menor + 1;
}

/// Takes a character behind "<", until it is clear what opens.
const char* Fuente_XML::Pasar_Apertura(const char* p)
{
    constexpr QByteArrayView COMENTARIO = "!--", CDATA = "![CDATA[";
    largo = 0;
    previo = segundo_previo = 0;
    if (apertura.isEmpty() && *p != '!' && *p != '?') {
        cierre = *p == '/';
        estado = cierre ? Estado::Etiqueta : Estado::Nombre;
        comilla = 0;
        nombre.resize(0);
        return cierre ? p + 1 : p;
    }
    apertura.append(*p);
    if (apertura == "?") {
        estado = Estado::Instruccion;
    } else if (apertura == COMENTARIO) {
        estado = Estado::Comentario;
    } else if (apertura == CDATA) {
        estado = Estado::CData;
    } else if (!COMENTARIO.startsWith(apertura) && !CDATA.startsWith(apertura)) {
        Rehusar(
            QStringLiteral("El fichero declara un tipo de documento (DTD), lo que no se admite"));
    }
    return p + 1;
}

/// Takes the name of a start tag.
const char* Fuente_XML::Pasar_Nombre(const char* p, const char* fin)
{
    const char* q = p;
    while (q < fin && *q != '>' && *q != '/' && *q != ' ' && *q != '\t' && *q != '\r' && *q != '\n')
        ++q;
    nombre.append(p, q - p);
    largo += q - p;
    if (largo > ETIQUETA_MAXIMA) Rehusar(QStringLiteral("Hay una etiqueta demasiado larga"));
    if (q < fin) estado = Estado::Etiqueta;
    return q;
}

const char* Fuente_XML::Pasar_Etiqueta(const char* p, const char* fin)
{
    const char* q = p;
    while (q < fin && (comilla || *q != '>')) {
        if (comilla) {
            const auto* const otra =
                static_cast<const char*>(std::memchr(q, comilla, size_t(fin - q)));
            if (otra) comilla = 0;
            q = otra ? otra + 1 : fin;
        } else {
            if (*q == '"' || *q == '\'') comilla = *q;
            ++q;
        }
    }
    largo += q - p;
    if (largo > ETIQUETA_MAXIMA) Rehusar(QStringLiteral("Hay una etiqueta demasiado larga"));
    if (q > p) previo = q[-1];
    if (q == fin) return q;
    estado = Estado::Texto;
    largo = 0;
    return q + 1;
}

/// Counts the nesting at the end of a tag, and leaves out or takes up again at `Surfaces`.
/// @param detras  the character behind the tag
void Fuente_XML::Acabar_Etiqueta(const char* detras, const char*& copiado)
{
    if (cierre) {
        if (hondura == hondura_superficies && hondura > 0) {
            // Lines within the end tag itself are few; they count as left out.
            Dar(copiado, detras);
            copiado = detras;
            hondura_superficies = 0;
            salida.append("</" + nombre_superficies + '>');
        }
        --hondura;
    } else if (previo != '/') {
        if (++hondura > HONDURA_MAXIMA)
            Rehusar(QStringLiteral("Los elementos están anidados a demasiada profundidad"));
        if (hondura_superficies == 0 && nombre.sliced(nombre.lastIndexOf(':') + 1) == "Surfaces") {
            Dar(copiado, detras);
            copiado = detras;
            hondura_superficies = hondura;
            nombre_superficies = nombre;
        }
    }
}

const char* Fuente_XML::Pasar_Marca(const char* p, const char* fin)
{
    const auto* const mayor = static_cast<const char*>(std::memchr(p, '>', size_t(fin - p)));
    const char* const hasta = mayor ? mayor : fin;
    if (hasta - p >= 2) {
        segundo_previo = hasta[-2];
        previo = hasta[-1];
    } else if (hasta - p == 1) {
        segundo_previo = previo;
        previo = hasta[-1];
    }
    largo += hasta - p;
    if (largo > MARCA_MAXIMA) Rehusar(QStringLiteral("Hay un comentario demasiado largo"));
    if (!mayor) return fin;
    const bool acaba = estado == Estado::Instruccion  ? previo == '?'
                       : estado == Estado::Comentario ? previo == '-' && segundo_previo == '-'
                                                      : previo == ']' && segundo_previo == ']';
    if (acaba) {
        estado = Estado::Texto;
        largo = 0;
    } else {
        segundo_previo = previo;
        previo = '>';
    }
    return mayor + 1;
}
