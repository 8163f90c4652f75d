#pragma once

#include "export/Destino_Exportar.h"

#include <QFile>
#include <QString>

/// A text file on its way out: lines ended by CR LF in the program's single-byte page. What was
/// written stays when something fails, as `Destino_Exportar` has it.
class Fichero_Texto {
public:
    /// Opens for output; a file that stands there is replaced by `Cerrar`.
    /// @throws Error_Ejecucion 53 for a name that can't be a file's, 76 when its folder isn't
    ///         there, 75 when it is a folder, 70 without permission
    explicit Fichero_Texto(const QString& ruta);
    Fichero_Texto(const Fichero_Texto&) = delete;
    Fichero_Texto& operator=(const Fichero_Texto&) = delete;
    ~Fichero_Texto();

    /// One line, or one piece after another up to `Fin_De_Linea`.
    /// @throws Error_Ejecucion 61 on a full disk, 57 when the device fails otherwise
    void Linea(QStringView texto);
    void Agregar(QStringView texto);
    /// Characters that are bytes of the page already.
    void Agregar_Bytes(QByteArrayView bytes);
    void Agregar_Blancos(qsizetype cuantos);
    void Fin_De_Linea();
    /// Hands the last bytes over; to be called before the file counts as written.
    /// @throws as `Linea`
    void Cerrar();

private:
    void Volcar();

    Destino_Exportar destino;
    QFile fichero;
    QByteArray pendiente;
};
