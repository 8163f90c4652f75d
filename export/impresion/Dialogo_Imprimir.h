#pragma once

#include "export/GuardarN.h"
#include "export/impresion/Paginas.h"
#include "export/impresion/Renderiza_Pagina.h"
#include "formats/Peticiones_Formatos.h"

/// What goes to the printer.
struct Impreso {
    QString nombre; ///< of the document
    QList<Pagina> paginas;
    bool apaisado = false;
};

/// The dialogs and the printer of the paper, as questions: the windows and the tests set them.
struct Peticiones_Impresion {
    /// `FrmImpDat`, filled with what was given before. @return nothing when cancelled
    std::function<std::optional<Datos_Trabajo>(const Datos_Trabajo&)> Pedir_Trabajo =
        [](const Datos_Trabajo&) { return std::optional<Datos_Trabajo>(); };
    /// `FrmImpEdtCol` on the titles of the columns. @return nothing when cancelled
    std::function<std::optional<QStringList>(const QStringList&)> Editar_Columnas =
        [](const QStringList&) { return std::optional<QStringList>(); };
    std::function<bool()> Hay_Impresora = [] { return false; };
    /// @throws Error_Ejecucion 482 when the printer fails
    std::function<void(const Impreso&)> Imprimir = [](const Impreso&) {};
    /// Writes a PDF file, whole or not at all. @throws Error_Ejecucion as `Ficheros::Escribir`
    std::function<void(const Impreso&, const QString& fichero)> Guardar_PDF = [](const Impreso&,
                                                                                 const QString&) {};
};
Peticiones_Impresion& Peticiones_De_Impresion();

/// What `FrmImpFormato` holds: a session's rows as they will print. The dialog puts the user's
/// changes into `parametros` and shows the pages after each.
class Dialogo_Imprimir {
public:
    /// Formats the session with the fields in force. @throws Error_Ejecucion those of stage 1
    Dialogo_Imprimir(const Trabajo_Exportar& trabajo, const Opciones_Exportar& opciones,
                     Avance_Exportar& avance);

    Parametros_Hoja parametros;

    /// The preview's text.
    QByteArray Renderizar() const;
    /// Its pages. @param texto  as `Renderizar` gave it
    QList<Pagina> Paginas(const QByteArray& texto) const;
    /// The titles of the columns as they are now.
    QStringList Columnas() const;

    /// `BtnIns`, `BtnEdtCol`. @return true when the pages have changed
    bool Pedir_Trabajo();
    bool Editar_Columnas();
    /// `BtnImpr`: to the printer, or without one to a PDF file that is asked for. Errors are
    /// reported. @return true when it was printed
    bool Imprimir() const;
    /// Writes the preview's text to a file, or its pages to one whose name ends in ".pdf".
    /// @throws Error_Ejecucion 5 for a page without width, 70 for a file of the program's own, those
    ///         of the file
    void Guardar(const QString& fichero) const;

private:
    void Comprobar_Anchura() const;
    Impreso Para_Imprimir() const;

    std::shared_ptr<Base> bd;
    QString nombre;
    Datos_Formateados datos;
    Datos_Trabajo ultimo;
    bool con_marca;
};
