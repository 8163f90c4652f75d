#pragma once

// The form: docs/formas/landxml.md

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QStringDecoder>
#include <vector>

/// An XML file on its way to a stream reader: always UTF-8 without a declaration, whatever page the
/// file is in, and without what could hurt the reader. It is read in blocks.
///
/// - The page is the one of the mark, else the declared one, else UTF-8. ISO-8859-1 is read as
///   Windows-1252, which it nearly always is.
/// - A document type declaration is refused: LandXML has none, and entities are how a small file
///   grows without end or reaches for another. So is a tag of more than `ETIQUETA_MAXIMA` bytes, a
///   comment of more than `MARCA_MAXIMA` and a nesting deeper than `HONDURA_MAXIMA`.
/// - What stands within an element `Surfaces` is left out: triangles by the hundred megabytes, of
///   which no alignment needs a byte. Its markup is still followed, and its lines are kept, so that the
///   reader counts them.
/// - Stream readers gather a text until its end. A point list of hundreds of megabytes is cut by
///   empty comments at blanks, so that it passes in pieces; the text of an element is the pieces
///   joined, as ever.
///
/// A refusal ends the data; `Motivo` tells it. What this is worth stands measured in
/// docs/dependencies.md.
class Fuente_XML : public QIODevice {
public:
    static constexpr qsizetype ETIQUETA_MAXIMA = 32000;
    static constexpr qsizetype MARCA_MAXIMA = 1 << 22;
    static constexpr qsizetype TEXTO_SEGUIDO = 1 << 16;
    static constexpr int HONDURA_MAXIMA = 256;

    /// @param origen  open for reading, outliving this object
    explicit Fuente_XML(QIODevice& origen);

    /// Why the data ended early, in Spanish; empty when nothing was refused.
    const QString& Motivo() const { return motivo; }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* datos, qint64 maximo) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    enum class Estado { Texto, Apertura, Nombre, Etiqueta, Comentario, CData, Instruccion };
    enum class Pagina { Utf8, Tabla, Descodificador };

    bool Cargar();
    void Elegir_Pagina(const QByteArray& cabeza);
    QByteArray A_Utf8(const QByteArray& bloque);
    void Vigilar(const QByteArray& bloque);
    const char* Pasar_Texto(const char* p, const char* fin, const char*& copiado);
    const char* Pasar_Apertura(const char* p);
    const char* Pasar_Nombre(const char* p, const char* fin);
    const char* Pasar_Etiqueta(const char* p, const char* fin);
    void Acabar_Etiqueta(const char* detras, const char*& copiado);
    void Dar(const char* desde, const char* hasta);
    const char* Pasar_Marca(const char* p, const char* fin);
    void Rehusar(const QString& por_que);

    QIODevice& fichero;
    QString motivo;
    Pagina pagina = Pagina::Utf8;
    const std::vector<QByteArray>* tabla = nullptr; ///< UTF-8 of the 256 codes
    QStringDecoder descodificador;
    bool empezado = false, acabado = false;

    QByteArray salida;
    qsizetype dado = 0; ///< bytes of `salida` already handed out

    Estado estado = Estado::Texto;
    QByteArray apertura; ///< what stands behind "<" so far
    qsizetype largo = 0; ///< of the text, tag or comment so far
    char comilla = 0;    ///< quote that is open in a tag
    char previo = 0, segundo_previo = 0;
    bool cierre = false; ///< the tag is an end tag
    QByteArray nombre;   ///< of the start tag
    int hondura = 0;
    QByteArray nombre_superficies;
    int hondura_superficies = 0; ///< of the `Surfaces` that is being left out; 0 for none
};
