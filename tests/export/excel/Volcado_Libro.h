#pragma once

#include "export/excel/Libro_Excel.h"

#include <QProcess>
#include <QStringList>

/// One line a cell, to compare what the program and a reader made elsewhere find in a workbook; the
/// lines of volcar_xls.py.
inline QStringList Volcar_Libro(const Libro_Excel& libro, const QString& nombre_unica_hoja = {})
{
    const auto escapar = [](QString texto) {
        return texto.replace("\\", "\\\\")
            .replace("\t", "\\t")
            .replace("\n", "\\n")
            .replace("\r", "\\r");
    };
    const auto aspecto = [](const Celda& c) {
        const QString texto = c.negrita ? "n" : "";
        if (c.decimales < 0) return texto + (c.como_texto ? "t" : "");
        return texto + (c.decimales == 0 ? "0" : "0." + QString(c.decimales, u'0'));
    };
    QStringList lineas;
    for (int h = 0; h < libro.Numero_Hojas(); ++h) {
        const Hoja_Excel& hoja = libro.Hoja(h);
        const QString nombre = nombre_unica_hoja.isEmpty() ? hoja.nombre : nombre_unica_hoja;
        for (const auto& [columna, ancho] : hoja.Anchos())
            lineas << QStringList{"ancho", nombre, QString::number(columna),
                                  QString::number(qRound(ancho * 256))}
                          .join('\t');
        if (const auto& area = hoja.Area_Impresion())
            lineas << QStringList{"area",
                                  nombre,
                                  QString::number(area->fila),
                                  QString::number(area->columna),
                                  QString::number(area->fila_hasta),
                                  QString::number(area->columna_hasta)}
                          .join('\t');
        const int ultima = hoja.Rango_Usado().fila_hasta;
        for (int fila = 0; fila <= ultima; ++fila)
            for (const Celda_Situada& c : hoja.Fila(fila)) {
                QString tipo = "V", valor;
                if (c.tipo == Celda::Tipo::Texto) {
                    tipo = "T";
                    valor = escapar(c.texto);
                } else if (c.tipo == Celda::Tipo::Numero) {
                    tipo = "N";
                    valor = QString("%1").arg(std::bit_cast<quint64>(c.numero), 16, 16, QChar('0'));
                }
                lineas << QStringList{nombre,
                                      QString::number(fila),
                                      QString::number(c.columna),
                                      tipo,
                                      valor,
                                      aspecto(c)}
                              .join('\t');
            }
    }
    return lineas;
}

/// The lines that xlrd makes of a file, or one line with its complaint.
/// @param opciones  "areas" lists what is printed of the sheets, too
inline QStringList Volcar_Con_Xlrd(const QString& fichero, const QStringList& opciones = {})
{
    QProcess python;
    python.start("/usr/bin/python3",
                 QStringList{RAIZ_FUENTES "/tests/export/excel/volcar_xls.py", fichero} + opciones);
    python.waitForFinished(600000);
    const QByteArray quejas = python.readAllStandardError();
    if (python.exitCode() != 0 || !quejas.isEmpty()) return {QString::fromUtf8(quejas)};
    const QString salida = QString::fromUtf8(python.readAllStandardOutput());
    return salida.isEmpty() ? QStringList() : salida.chopped(1).split('\n');
}

/// First line in which two lists differ, to be shown by a test that fails; empty when none does.
inline QString Diferencia(const QStringList& a, const QStringList& b)
{
    for (qsizetype i = 0; i < std::max(a.size(), b.size()); ++i)
        if (a.value(i) != b.value(i) || i >= a.size() || i >= b.size())
            return QString("%1: \"%2\" <> \"%3\"").arg(i).arg(a.value(i, "-"), b.value(i, "-"));
    return {};
}
