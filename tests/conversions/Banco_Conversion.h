#pragma once

#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/Ficheros.h"

#include <functional>
#include <optional>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

/// Runs functions of the library in a folder of its own.
class Banco_Conversion {
public:
    struct Resultado {
        int numero = 0;
        std::optional<QByteArray> salida; ///< what stands under the target's name afterwards
        Informe_Lectura informe;

        /// The reason of a result 0.
        QString Motivo() const { return informe.Fallo() ? informe.Fallo()->motivo : QString(); }
    };

    QString Ruta(const QString& nombre) const { return dir.filePath(nombre); }

    /// Writes `bytes` under `nombre`. @return its path
    QString Poner(const QString& nombre, const QByteArray& bytes) const
    {
        Ficheros::Escribir(Ruta(nombre), bytes);
        return Ruta(nombre);
    }

    /// A delivered sample. @return its path
    static QString Muestra(const QString& nombre)
    {
        return QStringLiteral(DATOS_PRUEBA "/conversions/") + nombre;
    }
    static QByteArray Bytes_Muestra(const QString& nombre)
    {
        return Ficheros::Leer(Muestra(nombre));
    }

    /// Runs `funcion` with the arguments; "<salida>" among them is the target, in this folder.
    Resultado Ejecutar(const QString& funcion, QStringList argumentos,
                       const QString& destino = QStringLiteral("salida")) const
    {
        Resultado r;
        QFile::remove(Ruta(destino));
        for (QString& a : argumentos)
            if (a == u"<salida>") a = Ruta(destino);
        r.numero = Ejecutar_Funcion(funcion, argumentos, r.informe);
        if (QFileInfo::exists(Ruta(destino))) r.salida = Ficheros::Leer(Ruta(destino));
        return r;
    }

    /// The same from bytes, for a function of source and target.
    Resultado Convertir(const QString& funcion, const QByteArray& bytes,
                        const QString& nombre = QStringLiteral("entrada.txt")) const
    {
        return Ejecutar(funcion, {Poner(nombre, bytes), QStringLiteral("<salida>")});
    }

    /// What every reader must refuse: nothing, noise, other programs' files, a device that is none.
    static QList<std::pair<QString, QByteArray>> Ajenos()
    {
        QByteArray binario;
        for (int i = 0; i < 4096; ++i)
            binario += static_cast<char>((i * 7919 + i / 256) & 255);
        return {
            {"vacio", ""},
            {"blancos", "  \r\n\t\r\n \r\n"},
            {"solo la marca", "\xEF\xBB\xBF"},
            {"solo el fin", "\x1A"
                            "0 0 0 0\r\n"},
            {"binario", binario},
            {"UTF-16", QByteArray("\xFF\xFE"
                                  "1\0 \0"
                                  "2\0",
                                  8)},
            {"linea enorme", QByteArray(1 << 20, '7')},
            {"linea enorme de campos", QByteArray("1,2 3;4 ").repeated(1 << 17)},
            {"XML", "<?xml version=\"1.0\"?>\r\n<LandXML/>\r\n"},
            {"texto corrido", "En un lugar de la Mancha,\r\nde cuyo nombre\r\nno quiero\r\n"},
        };
    }

    /// The lines of an output joined by "/", to be compared at a glance.
    static QByteArray En_Linea(const QByteArray& salida)
    {
        QByteArrayList lineas = salida.split('\n');
        for (QByteArray& l : lineas)
            l = l.trimmed();
        lineas.removeLast();
        return lineas.join('/');
    }

    /// Calls `probar` with `bueno` cut at each byte, and with each byte changed in seven ways.
    static void Con_Danos(const QByteArray& bueno,
                          const std::function<void(const QByteArray&)>& probar)
    {
        static const QByteArray CAMBIOS("\n-x9\x1A\xFF\0", 7);
        for (qsizetype i = 0; i < bueno.size(); ++i) {
            probar(bueno.left(i));
            QByteArray roto = bueno;
            for (const char c : CAMBIOS) {
                roto[i] = c;
                probar(roto);
            }
        }
    }

private:
    QTemporaryDir dir;
};
