#pragma once

// The form: docs/formas/landxml.md

#include "conversions/landxml/Fuente_XML.h"
#include "conversions/suelo/Informe_Lectura.h"

#include <functional>
#include <optional>
#include <QHash>
#include <QXmlStreamReader>
#include <vector>

/// A LandXML file read as a stream, elements matched by their local names, whatever the prefix,
/// namespace or version. Surfaces and all else that isn't asked for pass by.
class Documento_LandXML {
public:
    /// @param dispositivo  open for reading, outliving this object
    explicit Documento_LandXML(QIODevice& dispositivo);

    /// Reads the document from end to end: a file that is cut off or not well formed is no source,
    /// even behind the alignment that was asked for.
    /// @param alineacion  called at each Alignment; what it leaves unread of it is passed over
    /// @param punto       called at each CgPoint; may be empty
    /// @throws Fallo_Conversion with the reason
    void Recorrer(const std::function<void()>& alineacion, const std::function<void()>& punto = {});

    /// Metres in the file's linear unit; known for sure when `Recorrer` has ended, since the unit
    /// may stand behind what it measures. @throws Fallo_Conversion for a unit that isn't known: a
    /// wrong scale is worse than no road
    double Escala() const;

    // Within a call of `Recorrer`:

    /// Steps to the next child of the current element. @return false at the element's end
    bool Hijo() { return xml.readNextStartElement(); }
    /// Passes over the current element.
    void Saltar() { xml.skipCurrentElement(); }
    /// Local name of the current element.
    QStringView Nombre() const { return xml.name(); }
    bool Se_Llama(QStringView nombre) const { return xml.name() == nombre; }
    /// An attribute of the current element, trimmed; empty when it has none.
    QString Atributo(const QString& nombre) const;
    /// Text of the current element, to its end; children are passed over.
    QString Texto();
    /// Line of the file where the reader stands.
    qint64 Linea() const { return xml.lineNumber(); }

private:
    void Leer_Unidad();
    [[noreturn]] void Fallar();

    Fuente_XML fuente;
    QXmlStreamReader xml;
    QString unidad;
};

/// The numbers of a text, parted by blanks and line ends; nothing when one of them is none.
std::optional<std::vector<double>> Lista_De_Numeros(const QString& texto);
