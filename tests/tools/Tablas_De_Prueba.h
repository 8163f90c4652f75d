#pragma once

#include "tools/base/Comprobaciones.h"
#include "tools/base/Escritura.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A copy of the delivered tables in a temporary folder, with an empty file for each picture that
/// they name, to be spoilt by a test.
class Tablas_De_Prueba {
public:
    Tablas_De_Prueba()
    {
        QDir().mkpath(Tablas());
        QDir().mkpath(Datos() + "/bmphlp/ini");
        const QDir origen(QStringLiteral(RAIZ_FUENTES "/data/DAT/tablas"));
        for (const QString& f : origen.entryList({"*.csv"}))
            QFile::copy(origen.filePath(f), Tablas() + '/' + f);
        QList<Falta> faltas;
        const Juego juego = Leer_Tablas(Tablas(), faltas);
        Imagenes(juego.at("KRT"), "Foto", "/bmphlp/");
        Imagenes(juego.at("KRT"), "Fotoini", "/bmphlp/ini/");
        Imagenes(juego.at("Ayudas"), "Foto", "/bmphlp/");
    }

    QString Datos() const { return carpeta.path(); }
    QString Tablas() const { return carpeta.path() + "/DAT/tablas"; }

    QByteArray Leer(const QString& fichero) const
    {
        QFile f(Tablas() + '/' + fichero);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    void Escribir(const QString& fichero, const QByteArray& texto) const
    {
        QFile f(Tablas() + '/' + fichero);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(texto);
    }

    /// Puts `nuevo` in place of the first `viejo`. @return the line where it stood
    int Cambiar(const QString& fichero, const QByteArray& viejo, const QByteArray& nuevo) const
    {
        QByteArray texto = Leer(fichero);
        const qsizetype donde = texto.indexOf(viejo);
        if (donde < 0) return 0;
        const int linea =
            static_cast<int>(texto.left(donde).count('\n')) + 1 + (viejo.startsWith('\n') ? 1 : 0);
        Escribir(fichero, texto.replace(donde, viejo.size(), nuevo));
        return linea;
    }

    QStringList Faltas() const
    {
        QList<Falta> faltas;
        Comprobar_Todo(Leer_Tablas(Tablas(), faltas), Datos(), faltas);
        QStringList textos;
        for (const Falta& f : faltas)
            textos << f.Texto();
        return textos;
    }

private:
    void Imagenes(const Tabla& tabla, const QString& columna, const QString& lugar) const
    {
        for (qsizetype i = 0; i < tabla.Filas(); ++i) {
            QFile f(Datos() + lugar + tabla.Celda(i, columna));
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
    }

    QTemporaryDir carpeta;
};
