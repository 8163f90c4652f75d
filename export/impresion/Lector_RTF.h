#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// A stretch of text of one look.
struct Tramo_RTF {
    QString texto;
    QString letra;         ///< name of its font
    int medios_puntos = 0; ///< size
    bool negrita = false, subrayado = false;
    bool operator==(const Tramo_RTF&) const = default;
};
struct Parrafo_RTF {
    bool centrado = false;
    QList<Tramo_RTF> tramos;
    int medios_puntos = 0; ///< of its largest text, or in force where an empty one ends

    QString Texto() const;
    bool Subrayado() const; ///< some of its text is
    bool operator==(const Parrafo_RTF&) const = default;
};

/// Reads RTF for the words that the preview's text uses: paragraphs, centring, fonts, sizes, bold,
/// underline, escaped characters of the page. Other words and other groups of the head are passed
/// over. A text that isn't whole gives what can be read of it.
QList<Parrafo_RTF> Leer_RTF(const QByteArray& rtf);
