#pragma once

#include "codes/Librerias.h"

/// What the dialogs of both series hold: the list of libraries, the one that is shown with its
/// codes, and all that can be done with it as a whole. A dialog shows the public members after each
/// call.
class Mantenimiento_Librerias {
public:
    explicit Mantenimiento_Librerias(Serie serie);
    virtual ~Mantenimiento_Librerias();
    Mantenimiento_Librerias(const Mantenimiento_Librerias&) = delete;
    Mantenimiento_Librerias& operator=(const Mantenimiento_Librerias&) = delete;

    QList<Cabecera_Libreria> librerias;
    int indice = -1;          ///< the library that is shown; -1: there is none
    Lista_De_Codigos codigos; ///< its codes
    int fila = -1;            ///< the selected one

    /// Key and description of the library that is shown; empty without one.
    QString Codigo() const;
    QString Descripcion() const;
    const Serie_Librerias& Serie_Suya() const { return serie; }

    /// Load: the libraries, the first one shown.
    void Cargar();
    /// The user picks a library. @return false when he would rather keep the changes that were not
    /// saved: the old one stays
    bool Elegir(int entrada);
    /// The list anew; the same library stays, with the changes that were not saved.
    virtual void Actualizar();
    /// Asks before changes that were not saved are given up. @return true to go on
    virtual bool Soltar() { return true; }

    void Nueva();
    void Editar(); ///< another description
    void Eliminar();
    void Copiar();   ///< asks for the key of the copy
    void Importar(); ///< a text file becomes a new library
    void Exportar();
    /// Asks, shows the step help and hands the text to the sending dialog.
    void Enviar();

    /// Selects the next code that holds a text, whatever its case; none beeps.
    /// @param siguiente  looks behind the selected one instead of from it on
    void Buscar(const QString& texto, bool siguiente);
    /// Sorts the codes.
    virtual void Ordenar() = 0;

protected:
    /// @return false, after a beep, without a library
    bool Hay_Libreria() const;
    /// Shows the library of that key, or the first when there is none of it.
    void Mostrar(const QString& libreria);
    virtual void Leer_Los_Codigos();
    /// What the store holds is no longer what is shown.
    virtual bool Cambiado() const { return false; }
    /// @return true when the family in force takes libraries of this series; else the box says so
    bool Sirve_Al_Aparato() const;

    /// Asks for the key of a new library until a free one comes.
    /// @return nothing when cancelled
    std::optional<QString> Pedir_Clave(const QString& titulo, const QString& inicial = {}) const;

private:
    /// Reads the list and stands on that library, or on the first. @return false when it isn't
    /// there
    bool Listar(const QString& libreria);
    void Guardar_Nueva(const QString& clave, const QString& descripcion,
                       const Lista_De_Codigos& lista);
    void Con_Ficha(const std::optional<Cabecera_Libreria>& editada);

    const Serie_Librerias& serie;
};
